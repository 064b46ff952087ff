// The half of the main window that is about keys, the wheel and menus.
#include "DeskWindow.h"

#include <OrtinControls/CtrlsTools.h>
#include <OrtinFoundation/Keyboard.h>

#include "KeyPresses.h"

namespace Desk {

namespace {

/// Menus choose commands by their number from 1, and columns behind them.
constexpr UINT FirstCommand = 1;
constexpr UINT FirstColumn = 1000;

MenuLine lineOf(Command command, const wchar_t* text, bool enabled = true) {
    return {FirstCommand + static_cast<UINT>(command), text, keysOf(command), false, enabled};
}

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
    if (isInChart(message.hwnd))
        m_chart.turnWheel(message);
    // A wheel turned over the table has reached its body on the way here.
    else if (!CtrlsTools::IsDescendant(m_table.GetSafeHwnd(), message.hwnd))
        m_body->SendMessage(WM_MOUSEWHEEL, message.wParam, message.lParam);
    return true;
}

KeyPlace DeskWindow::placeOf(HWND window) {
    if (isBody(window))
        return KeyPlace::Rows;
    return window == m_strip.findBox().GetSafeHwnd() ? KeyPlace::FindBox : KeyPlace::Elsewhere;
}

bool DeskWindow::isInChart(HWND window) {
    return CtrlsTools::IsDescendant(m_chart.GetSafeHwnd(), window);
}

bool DeskWindow::runShortcut(const MSG& message) {
    const KeyPlace place = placeOf(message.hwnd);
    if (const std::optional<Command> command = commandOf(keyPressOf(message, place))) {
        run(*command);
        return true;
    }
    // Escape leaves the chart when there is nothing else to leave in it.
    if (message.wParam == VK_ESCAPE && isInChart(message.hwnd) && m_chart.takesEscape())
        return false;
    return moveFocus(message.wParam, place);
}

/// Escape leaves the search, Tab goes on to the rows and the chart, Down goes from it into the rows.
bool DeskWindow::moveFocus(WPARAM key, KeyPlace place) {
    const bool inFindBox = place == KeyPlace::FindBox;
    switch (key) {
    case VK_ESCAPE:
        if (inFindBox)
            m_strip.findBox().empty();
        else if (place == KeyPlace::Rows)
            m_handler.collapseSelection();
        focusTable();
        return true;
    case VK_TAB:
        turnFocus(place, OrtinTools::Keyboard::IsShiftPressed());
        return true;
    case VK_DOWN:
        if (inFindBox)
            focusTable();
        return inFindBox;
    default:
        return false;
    }
}

/// From the search to the rows, to the chart and round again, or the other way.
void DeskWindow::turnFocus(KeyPlace place, bool back) {
    if (place == (back ? KeyPlace::Elsewhere : KeyPlace::FindBox))
        focusTable();
    else if (place == (back ? KeyPlace::FindBox : KeyPlace::Rows))
        m_chart.SetFocus();
    else
        m_strip.findBox().edit();
}

void DeskWindow::run(Command command) {
    switch (command) {
    case Command::CopyRows:
    case Command::CopyColumn:
        m_handler.CopySelectionToClipboard(command == Command::CopyColumn);
        break;
    case Command::SelectAll:
        m_handler.selectAllRows();
        break;
    case Command::Find:
        m_strip.findBox().edit();
        break;
    case Command::FindNext:
    case Command::FindPrevious:
        onFindNext(command == Command::FindNext);
        break;
    case Command::SwitchAutoscroll:
        onSwitch(StripSwitch::Autoscroll);
        break;
    case Command::SwitchLockedColumns:
        onSwitch(StripSwitch::LockedColumns);
        break;
    case Command::SwitchTheme:
        onSwitch(StripSwitch::BlackTheme);
        break;
    case Command::FitAllColumns:
        fitAllColumns();
        break;
    case Command::Print:
        stopAutoscroll();
        report(m_printing.askAndPrint(*this));
        break;
    case Command::Preview:
        stopAutoscroll();
        report(m_printing.showPreview(*this));
        break;
    case Command::ShowInfo:
        showInfo();
        break;
    }
}

void DeskWindow::showInfo() {
    if (!m_info.openOver(*this))
        return;
    m_info.ShowWindow(SW_SHOW);
    m_info.SetActiveWindow();
}

/// What the user did not leave without printing is told in the status line.
void DeskWindow::report(const std::optional<PrintReport>& report) {
    focusTable();
    if (report)
        m_status.setField(TickField, report->text);
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

/// False if the user has chosen no command.
bool DeskWindow::runChosen(UINT chosen) {
    if (chosen < FirstCommand || chosen >= FirstColumn)
        return false;
    run(static_cast<Command>(chosen - FirstCommand));
    return true;
}

void DeskWindow::showRowMenu(CPoint screen) {
    // The keyboard names no place: the menu belongs to the caret row then.
    if (screen == CPoint(-1, -1)) {
        const CRect row = m_handler.caretRectangleInView();
        screen = CPoint(row.left + scaled(40), row.bottom);
        m_body->ClientToScreen(&screen);
    }
    const bool anyRow = m_handler.selection().count() > 0;
    runChosen(m_menu.choose(*this, screen,
                            {
                                lineOf(Command::CopyRows, L"Kopiuj wiersze", anyRow),
                                lineOf(Command::CopyColumn, L"Kopiuj tylko tę kolumnę", anyRow),
                                {},
                                lineOf(Command::SelectAll, L"Zaznacz wszystkie"),
                                lineOf(Command::Find, L"Znajdź"),
                                {},
                                lineOf(Command::Preview, L"Podgląd wydruku"),
                                lineOf(Command::Print, L"Drukuj"),
                                {},
                                lineOf(Command::ShowInfo, L"Informacje"),
                            }));
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
    lines.push_back(lineOf(Command::FitAllColumns, L"Dopasuj szerokości"));

    const UINT chosen = m_menu.choose(*this, screen, lines);
    if (!runChosen(chosen) && chosen >= FirstColumn)
        turnColumn(static_cast<int>(chosen - FirstColumn));
}

void DeskWindow::turnColumn(int id) {
    m_table.ShowColumn(id, !m_table.GetColumnVisibility(id));
    m_handler.searchAgain();
    m_table.Redraw();
}

void DeskWindow::fitAllColumns() {
    for (int position = 0; position < m_table.GetColumnCount(); ++position)
        if (const int id = m_table.GetColumnId(position); m_table.GetColumnVisibility(id))
            m_table.TrackColumnWidthChangeBorderDblClk(id);
    m_table.Redraw();
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
