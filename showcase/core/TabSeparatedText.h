#pragma once

#include <string>
#include <string_view>

namespace Desk {

/// Builds the text of a table for the clipboard, as spreadsheets take it: cells parted by tabs, rows ended by CR LF.
/// A tab or a line end inside a cell becomes a space.
class TabSeparatedText {
public:
    void addCell(std::wstring_view text);
    void endRow();
    const std::wstring& text() const { return m_text; }

private:
    std::wstring m_text;
    bool m_rowHasCells = false;
};

} // namespace Desk
