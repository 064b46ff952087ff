#include "DeskMenu.h"

#include <algorithm>

#include "DeskColors.h"
#include "DeskShapes.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

constexpr int CheckRoom = 26;
constexpr int LineMargin = 5;
constexpr int KeysGap = 28;
constexpr int SeparatorHeight = 7;

} // namespace

DeskMenu::DeskMenu(DeskFonts& fonts) : m_fonts(fonts) {}

UINT DeskMenu::choose(CWnd& owner, CPoint screen, const std::vector<MenuLine>& lines) {
    CMenu menu;
    menu.CreatePopupMenu();
    for (std::size_t line = 0; line < lines.size(); ++line) {
        UINT flags = MF_OWNERDRAW | (lines[line].enabled ? MF_ENABLED : MF_GRAYED);
        if (lines[line].text.empty())
            flags |= MF_SEPARATOR;
        // The item's data tells the line by its place, counted from 1: 0 is what foreign items have.
        menu.AppendMenu(flags, lines[line].command, reinterpret_cast<LPCWSTR>(line + 1));
    }
    CBrush background(Colors::rowBackground());
    MENUINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIM_BACKGROUND;
    info.hbrBack = background;
    ::SetMenuInfo(menu, &info);

    m_lines = &lines;
    const BOOL chosen = menu.TrackPopupMenu(TPM_RETURNCMD | TPM_RIGHTBUTTON, screen.x, screen.y, &owner);
    m_lines = nullptr;
    return static_cast<UINT>(chosen);
}

const MenuLine* DeskMenu::lineOf(ULONG_PTR itemData) const {
    return m_lines && itemData >= 1 && itemData <= m_lines->size() ? &(*m_lines)[itemData - 1] : nullptr;
}

bool DeskMenu::measure(MEASUREITEMSTRUCT& item) {
    const MenuLine* line = lineOf(item.itemData);
    if (item.CtlType != ODT_MENU || !line)
        return false;
    item.itemHeight =
        static_cast<UINT>(line->text.empty() ? scaled(SeparatorHeight) : m_fonts.lineHeight() + 2 * scaled(LineMargin));
    const int keys = line->keys.empty() ? 0 : scaled(KeysGap) + m_fonts.widthOf(line->keys);
    item.itemWidth = static_cast<UINT>(scaled(CheckRoom) + m_fonts.widthOf(line->text) + keys + scaled(LineMargin));
    return true;
}

bool DeskMenu::draw(const DRAWITEMSTRUCT& item) {
    const MenuLine* line = lineOf(item.itemData);
    if (item.CtlType != ODT_MENU || !line)
        return false;
    CDC& dc = *CDC::FromHandle(item.hDC);
    CRect rect(item.rcItem);
    const bool isSelected = (item.itemState & ODS_SELECTED) != 0 && line->enabled;
    dc.FillSolidRect(&rect, isSelected ? Colors::selectedRow() : Colors::rowBackground());
    if (line->text.empty()) {
        const int middle = rect.top + rect.Height() / 2;
        const CRect rule(rect.left, middle, rect.right, middle + 1);
        dc.FillSolidRect(&rule, Colors::line());
        return true;
    }

    const COLORREF color = line->enabled ? Colors::text() : Colors::mutedText();
    CRect check = rect;
    check.right = check.left + scaled(CheckRoom);
    if (line->checked)
        drawCheckMark(dc, check.CenterPoint(), color);
    const ScopedSelection font(dc, m_fonts.text());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(color);
    rect.left = check.right;
    rect.right -= scaled(LineMargin) * 2;
    dc.DrawText(line->text.c_str(), -1, &rect, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    dc.SetTextColor(Colors::mutedText());
    dc.DrawText(line->keys.c_str(), -1, &rect, DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    return true;
}

} // namespace Desk
