#pragma once

#include <OrtinControls/Export.h>
#include <afxwin.h>

class Settings;

/// A pen as a value: its description, and a GDI pen that is made when a handle is first asked for. Copies share no
/// handle. An instance belongs to one thread at a time.
///
/// Style is a PS_ value, colour a COLORREF, width in logical units of the device that the pen is selected into; it is
/// never scaled. A handle is the wrapper's: it is valid until the next change of the description or the end of the
/// wrapper, and nobody else deletes it.
class ORTIN_CONTROLS_API GdiPenWrapper {
public:
    /// Solid, black, of width 0: a line of one device pixel.
    GdiPenWrapper();
    GdiPenWrapper(unsigned int style, long width, unsigned long color);
    GdiPenWrapper(const GdiPenWrapper& other);
    GdiPenWrapper& operator=(const GdiPenWrapper& other);
    ~GdiPenWrapper();

    /// Equal in description and in handle: a pen whose GDI pen exists differs from the same pen without one.
    bool operator==(const GdiPenWrapper& other) const;
    bool operator!=(const GdiPenWrapper& other) const;

    unsigned long Color() const;
    long Width() const;
    unsigned int LineStyle() const;
    void Color(unsigned long color);
    void Width(int width);
    void LineStyle(unsigned int style);

    LOGPEN GetLOGPEN() const;
    void FromLOGPEN(LOGPEN description);
    /// Leaves the unused second number of the width as it was.
    void FromDescription(unsigned int style, long width, unsigned long color);
    /// Takes the description of the GDI pen `handle`, which stays the caller's. Nothing changes if it is null or dead.
    void FromHandle(void* const handle);

    /// The description stays.
    void DeletePen();
    /// Null if the system refuses the pen.
    HPEN GetHPEN() &;
    HGDIOBJ GetHGDIOBJ() &;

    /// Version 1 of `settings` and the text "style width colour" in decimal numbers: solid, red and 2 wide is "0 2
    /// 255".
    void Serialize(Settings& settings) const;
    /// Reads version 1, and version 0: the 16 bytes of a LOGPEN as BinaryStringSerializer writes bytes. Another version
    /// changes nothing. Of a text with fewer numbers those that are there are taken, and the GDI pen stays. A number
    /// beyond 32 bits is cut to its low 32 bits.
    void Unserialize(const Settings& settings);

private:
    LOGPEN m_description{};
    CPen m_pen;
};
