#include "DeskFonts.h"

#include <XTToolkitPro.h>

namespace Desk {

namespace {

constexpr int HeaderStrutHeight = 20;

} // namespace

LOGFONTW deskFont(int height, LONG weight) {
    LOGFONTW description{};
    description.lfHeight = -scaled(height);
    description.lfWeight = weight;
    description.lfCharSet = DEFAULT_CHARSET;
    description.lfQuality = ANTIALIASED_QUALITY;
    wcscpy(description.lfFaceName, L"Tahoma");
    return description;
}

void createDeskFont(CFont& font, int height, LONG weight) {
    const LOGFONTW description = deskFont(height, weight);
    font.CreateFontIndirect(&description);
}

DeskFonts::DeskFonts() {
    createDeskFont(m_text, DeskTextHeight, FW_NORMAL);
    createDeskFont(m_bold, DeskTextHeight, FW_BOLD);
    createDeskFont(m_headerStrut, HeaderStrutHeight, FW_NORMAL);
    m_measuring.CreateCompatibleDC(nullptr);
    m_measuring.SelectObject(&m_text);
    TEXTMETRICW metrics{};
    m_measuring.GetTextMetrics(&metrics);
    m_lineHeight = metrics.tmHeight;
}

int DeskFonts::widthOf(std::wstring_view text) {
    return m_measuring.GetTextExtent(text.data(), static_cast<int>(text.size())).cx;
}

int scaled(int length) {
    return XTPDpiHelper().ScaleX(length, 96);
}

} // namespace Desk
