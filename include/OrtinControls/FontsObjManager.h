#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>

#include <OrtinControls/Export.h>
#include <afxwin.h>

/// The process-wide cache of GDI fonts: descriptions with one key share one font.
///
/// The key is face name, height, italic, orientation, underline, weight and character set. Descriptions that differ
/// only in something else (width, escapement, strike-out, precision, quality, pitch) share the font of whichever came
/// first. That is meant: of fonts turned by escapement alone the first one decides the angle.
///
/// The cache keeps a reference to each of its fonts until it ends, so a font outlives all who asked for it. Both
/// operations may be called from any thread.
class ORTIN_CONTROLS_API FontsObjManager {
public:
    FontsObjManager();
    ~FontsObjManager();
    FontsObjManager(const FontsObjManager&) = delete;
    FontsObjManager& operator=(const FontsObjManager&) = delete;

    /// The one instance, made at its first use; it ends with the process.
    static FontsObjManager* Instance();

    /// The font for a description, in logical units. A description that the system makes no font of gives an object
    /// with a null handle, which is kept like any other.
    std::shared_ptr<CFont> AddFont(const LOGFONTW& description);
    /// The cache's own font for the description of `font`, which is only read; an empty one has an all-zero
    /// description.
    std::shared_ptr<CFont> AddFont(CFont& font);

private:
    std::shared_ptr<CFont> CreateAndAddFont(const LOGFONTW& description, std::wstring key);
    static std::wstring GetFontKey(const LOGFONTW& description);

    std::mutex m_lock;
    std::map<std::wstring, std::shared_ptr<CFont>> m_fonts;
};
