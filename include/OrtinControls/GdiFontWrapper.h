#pragma once

#include <memory>
#include <string>

#include <OrtinControls/Export.h>
#include <OrtinFoundation/JsonForward.h>
#include <afxwin.h>

class Settings;

/// A font as a value: its description, and a GDI font that is asked of FontsObjManager when a handle is first wanted,
/// so that wrappers of one key share it. An instance belongs to one thread at a time.
///
/// The height in memory is in pixels of the screen, that is at the scale of GraphicsHelper::GetSystemScaleFactor; in
/// persisted forms it is the height at 96 pixels an inch. Both ways round half away from zero and keep the sign. A
/// `weight` other than 0 replaces that of the description. A handle is the cache's: nobody else deletes it, and it is
/// the wrapper's font until the next change of the description.
class ORTIN_CONTROLS_API GdiFontWrapper {
public:
    /// The system's default font of user interfaces, whose height is taken as one at 96 pixels an inch. Throws
    /// gsl::narrowing_error if its scaled height is beyond 32 bits.
    GdiFontWrapper();
    explicit GdiFontWrapper(long weight);
    /// The height is not scaled.
    GdiFontWrapper(LOGFONTW description, long weight);
    /// An all-zero description and FromJson, whose exceptions leave the constructor.
    GdiFontWrapper(const boost::json::value& json, long weight);
    GdiFontWrapper(const GdiFontWrapper& other);
    GdiFontWrapper& operator=(const GdiFontWrapper& other);
    ~GdiFontWrapper();

    /// Equal in all 92 bytes of the description, those behind the end of the face name too.
    bool operator==(const GdiFontWrapper& other) const;
    bool operator!=(const GdiFontWrapper& other) const;

    long GetHeight() const;
    LOGFONTW GetLOGFONT() const;
    std::wstring GetFaceName() const;

    /// Null if the system refuses the font.
    HFONT GetHFONT() &;
    HGDIOBJ GetHGDIOBJ() &;

    /// Takes the description of the GDI font `handle`, which stays the caller's, unscaled. Nothing changes if it is
    /// null or dead.
    void FromHandle(void* const handle, long weight);
    /// The height is not scaled.
    void FromLOGFONT(LOGFONTW description, long weight);
    /// Turns the lines of text; the orientation of the letters stays as it is, which is meant.
    void SetAngle(long degrees);

    /// Version 1 of `settings`, the face name in its child "Name", and in its child "Params" height, width, escapement,
    /// orientation, weight, italic, underline, strike-out, character set, output precision, clip precision, quality,
    /// pitch and family as decimal numbers: "-11 0 0 0 400 0 0 0 1 0 0 0 0".
    void Serialize(Settings& settings) const;
    /// Reads version 1, and version 0: the 92 bytes of a LOGFONTW as BinaryStringSerializer writes bytes. Of fewer
    /// numbers those that are there are taken, and face name and GDI font stay; a number that does not fit its field is
    /// cut to its low bits. A face name of 32 characters or more is ignored.
    ///
    /// Ends in every case, also where nothing was read, by scaling the height that the description then has; throws
    /// gsl::narrowing_error if that is beyond 32 bits.
    void Unserialize(const Settings& settings);

    /// False, with nothing changed, for null; false for other than thirteen numbers, with the face name changed. Throws
    /// `std::invalid_argument` with "not an object", "not a string", "array required" or "not an int64", and
    /// `std::out_of_range` for a missing key; what stands before is stored by then. A face name of 32 UTF-16 units or
    /// more is ignored, and a GDI font that is there stays with it. A scaled height beyond 32 bits saturates, other
    /// numbers are cut to the width of their field.
    bool FromJson(const boost::json::value& json);
    /// {"Name": face name, "Params": [the thirteen numbers of Serialize]}, the numbers of kind int64.
    boost::json::value ToJson() const;

private:
    void UpdateFontFaceName(const std::wstring& name);

    LOGFONTW m_description{};
    std::shared_ptr<CFont> m_font;
};
