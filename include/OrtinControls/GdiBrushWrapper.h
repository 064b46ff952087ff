#pragma once

#include <OrtinControls/Export.h>
#include <OrtinFoundation/JsonForward.h>
#include <afxwin.h>

/// A brush as a value: its description, and a GDI brush that is made when a handle is first asked for. Copies share no
/// handle. An instance belongs to one thread at a time.
///
/// The GDI brush is always solid, of the description's colour (a COLORREF): style and hatch are kept and written, no
/// more. A handle is the wrapper's: it is valid until the next change of the description or the end of the wrapper, and
/// nobody else deletes it.
class ORTIN_CONTROLS_API GdiBrushWrapper {
public:
    /// Solid and black.
    GdiBrushWrapper();
    /// As FromJson, whose exceptions leave it.
    explicit GdiBrushWrapper(const boost::json::value& json);
    GdiBrushWrapper(const GdiBrushWrapper& other);
    GdiBrushWrapper& operator=(const GdiBrushWrapper& other);
    ~GdiBrushWrapper();

    /// Equal in handle, whatever the descriptions: brushes without GDI brushes are equal.
    bool operator==(const GdiBrushWrapper& other) const;

    /// Style and hatch stay.
    void FromColor(unsigned long color);
    /// Takes the description of the GDI brush `handle`, which stays the caller's. Nothing changes if it is null or
    /// dead.
    void FromHandle(void* const handle);

    /// The description stays.
    void DeleteBrush();
    /// Null if the system refuses the brush.
    HBRUSH GetHBRUSH();
    HGDIOBJ GetHGDIOBJ();

    /// False, with nothing changed, for null. Everything else throws in this version, a well-formed document too, which
    /// has changed style and colour by then: `std::invalid_argument` with "not an object", "array required" or "not an
    /// int64", `std::out_of_range` for a missing key or fewer than three colour components.
    bool FromJson(const boost::json::value& json);
    /// {"PenStyle": style, "PenClr": [red, green, blue], "PenHatch": hatch}, all of kind uint64.
    boost::json::value ToJson() const;

private:
    LOGBRUSH m_description{};
    CBrush m_brush;
};
