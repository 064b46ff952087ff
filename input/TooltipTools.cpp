#include <OrtinControls/TooltipTools.h>

#include <OrtinControls/SystemColors.h>

namespace OrtinTools::TooltipTools {

namespace {

constexpr auto kHouseStyle = static_cast<XTPToolTipStyle>(2);
constexpr COLORREF kErrorColor = 0xFF00FF;

COLORREF byTheme(COLORREF white, COLORREF black) {
    switch (SystemColors::GetCurrentDomainColor()) {
    case WhiteTheme:
        return white;
    case BlackTheme:
        return black;
    default:
        return kErrorColor;
    }
}

} // namespace

void SetDefaultStyle(CXTPToolTipContext& context) {
    context.SetStyle(kHouseStyle);
    RefreshColors(context);
}

void RefreshColors(CXTPToolTipContext& context) {
    context.SetTipBkColor(GetTipBgClr());
    context.SetTipTextColor(GetTipTxtClr());
}

std::unique_ptr<CXTPToolTipContext> CreateTooltipContext() {
    auto context = std::make_unique<CXTPToolTipContext>();
    SetDefaultStyle(*context);
    return context;
}

COLORREF GetTipBgClr() {
    return byTheme(0xFFFFFF, 0x282828);
}

COLORREF GetTipTxtClr() {
    return byTheme(0x565656, 0xBEBEBE);
}

} // namespace OrtinTools::TooltipTools
