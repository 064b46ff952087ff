#pragma once

#include <string>
#include <vector>

#include <afxwin.h>

#include "DeskFonts.h"

namespace Desk {

/// One line of a popup menu; without a text it is a separator.
struct MenuLine {
    UINT command = 0;
    std::wstring text = {};
    /// Shown at the right: which keys do the same.
    std::wstring keys = {};
    bool checked = false;
    bool enabled = true;
};

/// A popup menu in the colours of the theme. Its owner hands it WM_MEASUREITEM and WM_DRAWITEM.
class DeskMenu {
public:
    /// `fonts` outlive the menu.
    explicit DeskMenu(DeskFonts& fonts);

    /// Shows the lines at a screen point until the user chooses or leaves; the chosen command, or 0.
    UINT choose(CWnd& owner, CPoint screen, const std::vector<MenuLine>& lines);

    /// False if the item is none of the menu that is shown.
    bool measure(MEASUREITEMSTRUCT& item);
    bool draw(const DRAWITEMSTRUCT& item);

private:
    const MenuLine* lineOf(ULONG_PTR itemData) const;

    DeskFonts& m_fonts;
    /// While shown.
    const std::vector<MenuLine>* m_lines = nullptr;
};

} // namespace Desk
