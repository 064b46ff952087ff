// The half of the main window that is about keys, the wheel and menus.
#include "DeskWindow.h"

#include <OrtinControls/CtrlsTools.h>
#include <OrtinFoundation/Keyboard.h>

namespace Desk {

namespace {

enum Command : UINT {
    CopyRows = 1,
    CopyColumn,
    SelectAll,
    Find,
    FitAllColumns,
    FirstColumn = 100,
};

} // namespace

BOOL DeskWindow::PreTranslateMessage(MSG* message) {
    if (message->message == WM_MOUSEWHEEL)
        return forwardWheel(*message);
    if (message->message == WM_CHAR && isBody(message->hwnd) && typeIntoFindBox(*message))
        return TRUE;
    if (message->message != WM_KEYDOWN)
        return CWnd::PreTranslateMessage(message);
    if (runShortcut(*message))
        return TRUE;
    // The table has let its body have the key already, but for these two: what is left of the others is their letter.
    if (isBody(message->hwnd) && message->wParam != VK_INSERT && message->wParam != VK_DELETE) {
        ::TranslateMessage(message);
        return TRUE;
    }
    return CWnd::PreTranslateMessage(message);
}

bool DeskWindow::forwardWheel(const MSG& message) {
    // A wheel turned over the table has reached its body on the way here.
    if (!CtrlsTools::IsDescendant(m_table.GetSafeHwnd(), message.hwnd))
        m_body->SendMessage(WM_MOUSEWHEEL, message.wParam, message.lParam);
    return true;
}

bool DeskWindow::runShortcut(const MSG& message) {
    const bool control = OrtinTools::Keyboard::IsCtrlPressed() && !OrtinTools::Keyboard::IsAltPressed();
    const bool inBody = isBody(message.hwnd);
    const bool inFindBox = message.hwnd == m_strip.findBox().GetSafeHwnd();
    switch (message.wParam) {
    case VK_F3:
        onFindNext(!OrtinTools::Keyboard::IsShiftPressed());
        return true;
    case VK_RETURN:
        if (!inFindBox)
            return false;
        onFindNext(!OrtinTools::Keyboard::IsShiftPressed());
        return true;
    case VK_ESCAPE:
        if (inFindBox)
            m_strip.findBox().empty();
        else if (inBody)
            m_handler.collapseSelection();
        focusTable();
        return true;
    case VK_TAB:
        if (inFindBox)
            focusTable();
        else
            m_strip.findBox().edit();
        return true;
    case VK_DOWN:
        if (inFindBox)
            focusTable();
        return inFindBox;
    case 'F':
        if (control)
            m_strip.findBox().edit();
        return control;
    case 'C':
        if (control && inBody)
            m_handler.CopySelectionToClipboard(OrtinTools::Keyboard::IsShiftPressed());
        return control && inBody;
    case 'A':
        if (control && inBody)
            m_handler.selectAllRows();
        if (control && inFindBox)
            m_strip.findBox().edit();
        return control;
    default:
        return false;
    }
}

bool DeskWindow::typeIntoFindBox(const MSG& message) {
    const auto letter = static_cast<wchar_t>(message.wParam);
    if (letter <= L' ' || letter == L'\x7F')
        return false;
    m_strip.findBox().editFrom(letter);
    return true;
}

void DeskWindow::focusTable() {
    m_body->SetFocus();
}

void DeskWindow::OnSetFocus(CWnd*) {
    if (m_body)
        focusTable();
}

void DeskWindow::OnActivate(UINT state, CWnd* other, BOOL minimized) {
    CWnd::OnActivate(state, other, minimized);
    // The caret looks another way without the focus.
    if (m_body)
        m_handler.repaintAll();
}

// Menus

void DeskWindow::showRowMenu(CPoint screen) {
    if (screen == CPoint(-1, -1)) {
        const CRect row = m_handler.rowRectangle(std::max(m_handler.GetSelectedItem(), 0));
        screen = CPoint(row.left + scaled(40), row.bottom);
        m_body->ClientToScreen(&screen);
    }
    const bool anyRow = m_handler.selection().count() > 0;
    const UINT command = m_menu.choose(*this, screen,
                                       {
                                           {CopyRows, L"Kopiuj wiersze", L"Ctrl+C", false, anyRow},
                                           {CopyColumn, L"Kopiuj tylko tę kolumnę", L"Ctrl+Shift+C", false, anyRow},
                                           {},
                                           {SelectAll, L"Zaznacz wszystkie", L"Ctrl+A"},
                                           {Find, L"Znajdź", L"Ctrl+F"},
                                       });
    if (command == CopyRows || command == CopyColumn)
        m_handler.CopySelectionToClipboard(command == CopyColumn);
    else if (command == SelectAll)
        m_handler.selectAllRows();
    else if (command == Find)
        m_strip.findBox().edit();
}

void DeskWindow::showHeaderMenu(CPoint screen) {
    std::vector<MenuLine> lines;
    for (int position = 0; position < m_table.GetColumnCount(); ++position) {
        const int id = m_table.GetColumnId(position);
        const bool visible = m_table.GetColumnVisibility(id);
        // The last visible column stays.
        lines.push_back({FirstColumn + static_cast<UINT>(id), infoOf(m_handler.columnOf(id)).title, L"", visible,
                         !visible || m_table.GetVisibleColumnCount() > 1});
    }
    lines.push_back({});
    lines.push_back({FitAllColumns, L"Dopasuj szerokości"});

    const UINT command = m_menu.choose(*this, screen, lines);
    if (command >= FirstColumn) {
        const int id = static_cast<int>(command - FirstColumn);
        m_table.ShowColumn(id, !m_table.GetColumnVisibility(id));
        m_handler.searchAgain();
        m_table.Redraw();
    } else if (command == FitAllColumns) {
        for (int position = 0; position < m_table.GetColumnCount(); ++position)
            if (const int id = m_table.GetColumnId(position); m_table.GetColumnVisibility(id))
                m_table.TrackColumnWidthChangeBorderDblClk(id);
        m_table.Redraw();
    }
}

void DeskWindow::OnMeasureItem(int control, LPMEASUREITEMSTRUCT item) {
    if (!m_menu.measure(*item))
        CWnd::OnMeasureItem(control, item);
}

void DeskWindow::OnDrawItem(int control, LPDRAWITEMSTRUCT item) {
    if (!m_menu.draw(*item))
        CWnd::OnDrawItem(control, item);
}

} // namespace Desk
