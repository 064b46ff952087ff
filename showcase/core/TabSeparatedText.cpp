#include "TabSeparatedText.h"

namespace Desk {

void TabSeparatedText::addCell(std::wstring_view text) {
    if (m_rowHasCells)
        m_text += L'\t';
    m_rowHasCells = true;
    for (const wchar_t character : text)
        m_text += character == L'\t' || character == L'\r' || character == L'\n' ? L' ' : character;
}

void TabSeparatedText::endRow() {
    m_text += L"\r\n";
    m_rowHasCells = false;
}

} // namespace Desk
