#pragma once

#include <array>
#include <optional>
#include <string>
#include <utility>

#include <OrtinControls/Export.h>
#include <afxwin.h>

/// The application's visual theme. Values other than these two are accepted and lead to an error colour.
enum EThemeColor : int {
    WhiteTheme = 0,
    BlackTheme = 1,
};

/// The role of a colour in both themes, 0 to 34. What each role is for is settled by the library's clients.
enum EThemeColorType : int {};

/// The colours of the two themes, the current theme, and a table of free colours that the client fills.
/// Colours are COLORREF values, 0x00BBGGRR. All state is static and belongs to the user-interface thread.
class ORTIN_CONTROLS_API SystemColors {
public:
    static EThemeColor GetCurrentDomainColor();
    static void SetThemeColor(EThemeColor theme);

    /// 0xFF00FF in an unknown theme, whatever the type; throws `std::out_of_range` for a type of 35 or more.
    static unsigned long GetThemeColor(EThemeColorType type);
    /// The client's own colour, 0 for an index of 62 or more.
    static unsigned long GetXThemeColor(unsigned int index);
    /// Ignored for an index of 62 or more.
    static void UpdateColor(unsigned int index, unsigned long color);

    /// "#rrggbb" of the backstage in the current theme, with `alt` its other shade. The text lives as the library does.
    static const wchar_t* GetBackstageColorString(bool alt);
    /// The theme that Windows uses for applications, empty if it does not say. The current theme does not change.
    static std::optional<EThemeColor> GetWindowsThemeSetting();
    /// "#RRGGBB" in upper case, of a COLORREF.
    static std::wstring GetMarkupColor(unsigned long color);
    /// Always true.
    static bool Validate();

private:
    using RoleTable = std::array<std::pair<EThemeColorType, unsigned long>, 35>;
    static const RoleTable WhiteThemeColors;
    static const RoleTable BlackThemeColors;
    static EThemeColor m_domainColor;
    static std::array<unsigned long, 62> m_themeColors;
};
