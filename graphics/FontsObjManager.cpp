#include <OrtinControls/FontsObjManager.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

namespace {

void appendField(std::wstring& key, long value) {
    char digits[12];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    key += L'|';
    key.append(digits, end);
}

} // namespace

FontsObjManager::FontsObjManager() = default;
FontsObjManager::~FontsObjManager() = default;

FontsObjManager* FontsObjManager::Instance() {
    static FontsObjManager instance;
    return &instance;
}

std::shared_ptr<CFont> FontsObjManager::AddFont(const LOGFONTW& description) {
    std::wstring key = GetFontKey(description);
    const std::lock_guard lock(m_lock);
    const auto found = m_fonts.find(key);
    return found != m_fonts.end() ? found->second : CreateAndAddFont(description, std::move(key));
}

std::shared_ptr<CFont> FontsObjManager::AddFont(CFont& font) {
    LOGFONTW description{};
    font.GetLogFont(&description);
    return AddFont(description);
}

std::shared_ptr<CFont> FontsObjManager::CreateAndAddFont(const LOGFONTW& description, std::wstring key) {
    auto font = std::make_shared<CFont>();
    font->CreateFontIndirect(&description);
    m_fonts.emplace(std::move(key), font);
    return font;
}

// The key is settled and must not be widened, though it leaves fields out: which fonts are shared would change.
std::wstring FontsObjManager::GetFontKey(const LOGFONTW& description) {
    const wchar_t* name = description.lfFaceName;
    std::wstring key;
    key.reserve(80);
    key.assign(name, std::find(name, name + LF_FACESIZE, L'\0'));
    appendField(key, description.lfHeight);
    appendField(key, description.lfItalic);
    appendField(key, description.lfOrientation);
    appendField(key, description.lfUnderline);
    appendField(key, description.lfWeight);
    appendField(key, description.lfCharSet);
    return key;
}
