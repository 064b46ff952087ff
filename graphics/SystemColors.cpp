#include <OrtinControls/SystemColors.h>

#include <stdexcept>

namespace {

constexpr const wchar_t* WhiteBackstageColor = L"#646464";
constexpr const wchar_t* WhiteBackstageColorAlt = L"#2b579a";
constexpr const wchar_t* BlackBackstageColor = L"#eeeeee";
constexpr const wchar_t* BlackBackstageColorAlt = L"#dddddd";

/// Shows that a theme is unknown wherever it is used.
constexpr unsigned long kErrorColor = 0xFF00FF;

constexpr const wchar_t* kPersonalizeKey = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize";
constexpr const wchar_t* kLightThemeValue = L"AppsUseLightTheme";

constexpr EThemeColorType roleAt(int index) {
    return static_cast<EThemeColorType>(index);
}

} // namespace

const SystemColors::RoleTable SystemColors::WhiteThemeColors{{
    {roleAt(0), RGB(0x56, 0x56, 0x56)},  {roleAt(1), RGB(0xB0, 0xB0, 0xB0)},  {roleAt(2), RGB(0x8D, 0xAC, 0xDA)},
    {roleAt(3), RGB(0xFF, 0xFF, 0xFF)},  {roleAt(4), RGB(0xED, 0xED, 0xF3)},  {roleAt(5), RGB(0x62, 0x89, 0xC4)},
    {roleAt(6), RGB(0x2A, 0x57, 0x9A)},  {roleAt(7), RGB(0xFF, 0xA2, 0x00)},  {roleAt(8), RGB(0xAA, 0xAF, 0xB8)},
    {roleAt(9), RGB(0x78, 0x7D, 0x87)},  {roleAt(10), RGB(0x2B, 0x57, 0x9A)}, {roleAt(11), RGB(0x7F, 0x9D, 0xB9)},
    {roleAt(12), RGB(0xE2, 0xE2, 0xE2)}, {roleAt(13), RGB(0xFF, 0x00, 0x00)}, {roleAt(14), RGB(0x80, 0x80, 0x80)},
    {roleAt(15), RGB(0xFF, 0xFF, 0xFF)}, {roleAt(16), RGB(0x2B, 0x57, 0x9A)}, {roleAt(17), RGB(0x77, 0x77, 0x77)},
    {roleAt(18), RGB(0xFF, 0xFF, 0xFF)}, {roleAt(19), RGB(0xF4, 0xF4, 0xF4)}, {roleAt(20), RGB(0xD1, 0xD1, 0xD1)},
    {roleAt(21), RGB(0x69, 0x91, 0x00)}, {roleAt(22), RGB(0xFF, 0x2E, 0x00)}, {roleAt(23), RGB(0xC8, 0xC8, 0xC8)},
    {roleAt(24), RGB(0x10, 0x40, 0x64)}, {roleAt(25), RGB(0xD5, 0xE1, 0xF2)}, {roleAt(26), RGB(0xA3, 0xBD, 0xE3)},
    {roleAt(27), RGB(0x06, 0xB0, 0x25)}, {roleAt(28), RGB(0xE6, 0xE6, 0xE6)}, {roleAt(29), RGB(0xBC, 0xBC, 0xBC)},
    {roleAt(30), RGB(0xDC, 0xDC, 0xDC)}, {roleAt(31), RGB(0xC9, 0xC7, 0xBA)}, {roleAt(32), RGB(0x99, 0x99, 0x99)},
    {roleAt(33), RGB(0x74, 0xA0, 0xDB)}, {roleAt(34), RGB(0xC0, 0xC0, 0xC0)},
}};

const SystemColors::RoleTable SystemColors::BlackThemeColors{{
    {roleAt(0), RGB(0xBE, 0xBE, 0xBE)},  {roleAt(1), RGB(0x64, 0x64, 0x64)},  {roleAt(2), RGB(0x46, 0x46, 0x46)},
    {roleAt(3), RGB(0x19, 0x19, 0x19)},  {roleAt(4), RGB(0x19, 0x19, 0x19)},  {roleAt(5), RGB(0x3D, 0x52, 0x6E)},
    {roleAt(6), RGB(0x48, 0x6F, 0xA4)},  {roleAt(7), RGB(0x74, 0xA0, 0xDB)},  {roleAt(8), RGB(0x12, 0x12, 0x12)},
    {roleAt(9), RGB(0x8C, 0x8C, 0x8C)},  {roleAt(10), RGB(0x84, 0x84, 0x84)}, {roleAt(11), RGB(0x84, 0x84, 0x84)},
    {roleAt(12), RGB(0x44, 0x44, 0x44)}, {roleAt(13), RGB(0xFF, 0x00, 0x00)}, {roleAt(14), RGB(0x80, 0x80, 0x80)},
    {roleAt(15), RGB(0xFF, 0xFF, 0xFF)}, {roleAt(16), RGB(0x2B, 0x57, 0x9A)}, {roleAt(17), RGB(0xBE, 0xBE, 0xBE)},
    {roleAt(18), RGB(0x28, 0x28, 0x28)}, {roleAt(19), RGB(0x1E, 0x1E, 0x1E)}, {roleAt(20), RGB(0x32, 0x32, 0x32)},
    {roleAt(21), RGB(0x4D, 0x60, 0x1B)}, {roleAt(22), RGB(0x8F, 0x47, 0x38)}, {roleAt(23), RGB(0x82, 0x82, 0x82)},
    {roleAt(24), RGB(0x53, 0x86, 0xCA)}, {roleAt(25), RGB(0x80, 0x80, 0x80)}, {roleAt(26), RGB(0x44, 0x44, 0x44)},
    {roleAt(27), RGB(0x56, 0x9D, 0x32)}, {roleAt(28), RGB(0x50, 0x50, 0x50)}, {roleAt(29), RGB(0x00, 0x00, 0x00)},
    {roleAt(30), RGB(0xDC, 0xDC, 0xDC)}, {roleAt(31), RGB(0xC9, 0xC7, 0xBA)}, {roleAt(32), RGB(0x99, 0x99, 0x99)},
    {roleAt(33), RGB(0x74, 0xA0, 0xDB)}, {roleAt(34), RGB(0x42, 0x69, 0x9E)},
}};

EThemeColor SystemColors::m_domainColor = WhiteTheme;
std::array<unsigned long, 62> SystemColors::m_themeColors{};

EThemeColor SystemColors::GetCurrentDomainColor() {
    return m_domainColor;
}

void SystemColors::SetThemeColor(EThemeColor theme) {
    m_domainColor = theme;
}

unsigned long SystemColors::GetThemeColor(EThemeColorType type) {
    if (m_domainColor != WhiteTheme && m_domainColor != BlackTheme) {
        return kErrorColor;
    }
    const auto index = static_cast<std::size_t>(type);
    if (index >= WhiteThemeColors.size()) {
        throw std::out_of_range("invalid array<T, N> subscript");
    }
    return (m_domainColor == WhiteTheme ? WhiteThemeColors : BlackThemeColors)[index].second;
}

unsigned long SystemColors::GetXThemeColor(unsigned int index) {
    return index < m_themeColors.size() ? m_themeColors[index] : 0;
}

void SystemColors::UpdateColor(unsigned int index, unsigned long color) {
    if (index < m_themeColors.size()) {
        m_themeColors[index] = color;
    }
}

const wchar_t* SystemColors::GetBackstageColorString(bool alt) {
    switch (m_domainColor) {
    case WhiteTheme:
        return alt ? WhiteBackstageColorAlt : WhiteBackstageColor;
    case BlackTheme:
        return alt ? BlackBackstageColorAlt : BlackBackstageColor;
    default:
        return WhiteBackstageColor;
    }
}

std::optional<EThemeColor> SystemColors::GetWindowsThemeSetting() {
    DWORD light = 0;
    DWORD size = sizeof light;
    const LSTATUS status =
        ::RegGetValueW(HKEY_CURRENT_USER, kPersonalizeKey, kLightThemeValue, RRF_RT_REG_DWORD, nullptr, &light, &size);
    if (status != ERROR_SUCCESS) {
        return std::nullopt;
    }
    return light == 1 ? WhiteTheme : BlackTheme;
}

std::wstring SystemColors::GetMarkupColor(unsigned long color) {
    CString text;
    text.Format(L"#%02X%02X%02X", static_cast<unsigned int>(GetRValue(color)),
                static_cast<unsigned int>(GetGValue(color)), static_cast<unsigned int>(GetBValue(color)));
    return std::wstring(text.GetString());
}

bool SystemColors::Validate() {
    return true;
}
