#include "QuotesHandler.h"

#include <OrtinControls/ITableView.h>
#include <OrtinFoundation/Keyboard.h>
#include <XTToolkitPro.h>

#include <algorithm>

#include "DeskColors.h"

namespace Desk {

namespace {

constexpr int SortArrowRoom = 16;

std::optional<RowStep> stepOf(unsigned int key) {
    switch (key) {
    case VK_UP:
        return RowStep::Up;
    case VK_DOWN:
        return RowStep::Down;
    case VK_PRIOR:
        return RowStep::PageUp;
    case VK_NEXT:
        return RowStep::PageDown;
    case VK_HOME:
        return RowStep::First;
    case VK_END:
        return RowStep::Last;
    default:
        return std::nullopt;
    }
}

} // namespace

QuotesHandler::QuotesHandler(QuoteBook& book, DeskFonts& fonts, QuotesEvents& events)
    : m_book(book),
      m_fonts(fonts),
      m_events(events),
      m_widths(book, fonts),
      m_painter(book, m_widths, fonts),
      m_page(book, m_painter.rowHeight()) {
    m_caption = L"Notowania";
}

// Columns and rows

void QuotesHandler::setUpColumns(const ColumnLayout& layout) {
    std::vector<std::pair<std::wstring, double>> columns;
    for (const ArrangedColumn& arranged : layout) {
        const auto info = std::find_if(QuoteColumns.begin(), QuoteColumns.end(),
                                       [&](const QuoteColumnInfo& known) { return known.key == arranged.key; });
        m_columns.push_back(info->column);
        columns.emplace_back(info->title, arranged.width * XTPDpiHelper().GetDpiX() / 96.0);
    }
    m_view->SetColumns(columns);
    m_view->UpdateColumns();
    for (std::size_t id = 0; id < layout.size(); ++id)
        if (!layout[id].visible)
            m_view->ShowColumn(static_cast<int>(id), false);
}

void QuotesHandler::setUpRows() {
    std::vector<std::pair<unsigned __int64, int>> rows;
    rows.reserve(m_book.size());
    for (std::size_t instrument = 0; instrument < m_book.size(); ++instrument)
        rows.emplace_back(dataOf(instrument), m_painter.rowHeight());
    m_view->BeginUpdate();
    m_view->InsertItems(rows, 0, 0);
    m_view->FinishUpdate();
    noteRows();
    if (!rows.empty())
        m_view->SelectItem(0, true);
}

ColumnLayout QuotesHandler::columnLayout() const {
    ColumnLayout layout;
    for (int position = 0; position < m_view->GetColumnCount(); ++position) {
        const int id = m_view->GetColumnId(position);
        layout.push_back({std::string(infoOf(columnOf(id)).key),
                          m_view->GetColumnRealWidth(id) * 96.0 / XTPDpiHelper().GetDpiX(),
                          m_view->GetColumnVisibility(id)});
    }
    return layout;
}

std::vector<QuoteColumn> QuotesHandler::visibleColumns() const {
    std::vector<QuoteColumn> columns;
    for (int position = 0; position < m_view->GetColumnCount(); ++position)
        if (const int id = m_view->GetColumnId(position); m_view->GetColumnVisibility(id))
            columns.push_back(columnOf(id));
    return columns;
}

int QuotesHandler::idOf(QuoteColumn column) const {
    return static_cast<int>(std::find(m_columns.begin(), m_columns.end(), column) - m_columns.begin());
}

std::size_t QuotesHandler::instrumentAt(int row) const {
    return static_cast<std::size_t>(m_view->GetItemData(row) - 1);
}

std::optional<std::size_t> QuotesHandler::caretInstrument() const {
    const int row = m_selection.caret();
    return row >= 0 && row < m_view->GetItemCount() ? std::optional(instrumentAt(row)) : std::nullopt;
}

/// From the first selected row to the last.
std::vector<std::size_t> QuotesHandler::selectedInstruments() const {
    std::vector<std::size_t> instruments;
    for (const RowRange& range : m_selection.ranges())
        for (int row = range.first; row < range.end; ++row)
            instruments.push_back(instrumentAt(row));
    return instruments;
}

void QuotesHandler::noteRows() {
    m_rows.assign(m_book.size(), -1);
    for (int row = 0; row < m_view->GetItemCount(); ++row)
        m_rows[instrumentAt(row)] = row;
}

// Drawing

void QuotesHandler::PrepareDraw() {
    CRect client;
    m_list->GetClientRect(&client);
    m_cells = cellsIn(client.right);
    m_drawnRows.clear();
    // Whatever made the view stale had it redrawn whole: this paint shows it.
    m_viewIsStale = false;
}

/// The visible cells of a row from the left. Columns that share the view end with it; locked ones may reach beyond.
std::vector<CellSpan> QuotesHandler::cellsFor(int viewWidth) const {
    std::vector<CellSpan> cells;
    int left = 0;
    for (int position = 0; position < m_view->GetColumnCount(); ++position) {
        const int id = m_view->GetColumnId(position);
        if (!m_view->GetColumnVisibility(id))
            continue;
        const int right = left + m_view->GetColumnWidth(id);
        cells.push_back({columnOf(id), left, right});
        left = right;
    }
    // The widths are laid out for the whole window, whose right edge is under the scroll bar; and pixels lost to
    // rounding are missing at the end.
    if (!cells.empty() && !m_view->AreColumnsLocked())
        cells.back().right = std::max(cells.back().left, viewWidth);
    return cells;
}

/// The same, the last one cut where the view ends.
std::vector<CellSpan> QuotesHandler::cellsIn(int viewWidth) const {
    std::vector<CellSpan> cells = cellsFor(viewWidth);
    if (!cells.empty() && cells.back().right > viewWidth)
        cells.back().right = std::max(cells.back().left, viewWidth);
    return cells;
}

int QuotesHandler::DrawItem(CDC& dc, int row, const CRect& rect) {
    const std::size_t instrument = instrumentAt(row);
    RowLook look;
    look.isOther = row % 2 == 1;
    look.isSelected = m_selection.contains(row);
    look.flash = m_flashes.levelOf(instrument);
    look.phrase = m_find.isActive() ? &m_find.phrase() : nullptr;
    m_painter.drawRow(dc, rect, instrument, m_cells, look);
    m_drawnRows.push_back({row, rect.top});
    if (row == m_selection.caret())
        drawCaret(dc, rect);
    return m_painter.rowHeight();
}

void QuotesHandler::drawCaret(CDC& dc, const CRect& rowRect) {
    const QuoteColumn column = columnOf(m_selectedColumnId);
    const auto cell =
        std::find_if(m_cells.begin(), m_cells.end(), [column](const CellSpan& span) { return span.column == column; });
    if (cell == m_cells.end())
        return;
    const bool hasFocus = CWnd::GetFocus() == m_list;
    DrawCursor(dc, CRect(cell->left, rowRect.top, cell->right, rowRect.bottom), 1,
               hasFocus ? Colors::accent() : Colors::mutedText());
}

void QuotesHandler::OnDrawFinished(CDC& dc) {
    if (m_view->GetItemCount() == 0) {
        CRect client;
        m_list->GetClientRect(&client);
        m_painter.drawEmptyList(dc, client);
    }
    m_events.onViewPainted();
}

int QuotesHandler::ComputeItemHeight(int) {
    return m_painter.rowHeight();
}

void QuotesHandler::RefreshView() {
    if (!m_list || !m_list->GetSafeHwnd())
        return;
    for (const CRect& cell : m_markedCells)
        m_list->InvalidateRect(&cell, FALSE);
    if (m_viewIsStale)
        m_list->Invalidate(FALSE);
}

CRect QuotesHandler::rowRectangle(int row) const {
    CRect rect;
    m_list->GetClientRect(&rect);
    rect.top = row * m_painter.rowHeight() - m_list->GetScrollPos(SB_VERT);
    rect.bottom = rect.top + m_painter.rowHeight();
    return rect;
}

CRect QuotesHandler::caretRectangleInView() {
    const int row = std::max(m_selection.caret(), 0);
    m_view->SetCarretIndex(row);
    repaintAll();
    m_list->UpdateWindow();
    CRect view;
    m_list->GetClientRect(&view);
    // Running rows are not where the scroll position says.
    CRect rect = rowRectangle(row);
    rect.top = std::clamp(rect.top, view.top, view.bottom);
    rect.bottom = std::clamp(rect.bottom, view.top, view.bottom);
    return rect;
}

void QuotesHandler::repaintAll() {
    m_viewIsStale = true;
    m_view->InvalidateView(0);
}

/// The table draws a marked row whole into its memory of the screen; only these cells of it go to the screen.
void QuotesHandler::repaintCells(std::size_t instrument, std::span<const QuoteColumn> columns) {
    // Rows that run are painted all the time.
    if (!m_autoscroll) {
        const CRect row = rowRectangle(m_rows[instrument]);
        for (const CellSpan& cell : m_cells)
            if (std::find(columns.begin(), columns.end(), cell.column) != columns.end())
                m_markedCells.emplace_back(cell.left, row.top, cell.right, row.bottom);
    }
    m_view->InvalidateView(dataOf(instrument));
    m_markedCells.clear();
}

int QuotesHandler::GetOptimalColumnWidth(int id) {
    const QuoteColumn column = columnOf(id);
    int widest = m_fonts.widthOf(infoOf(column).title) + scaled(SortArrowRoom);
    for (std::size_t instrument = 0; instrument < m_book.size(); ++instrument)
        widest = std::max(widest, m_widths.of(instrument, column));
    return m_painter.cellWidthFor(widest);
}

// Rows that are not marked keep their pixels, also under a locked column of another width.

void QuotesHandler::OnColumnWidthChanging(int, int) {
    repaintAll();
}

void QuotesHandler::OnColumnWidthChanged() {
    repaintAll();
}

__int64 QuotesHandler::GetToolTip(CRect& rect, CString& text) {
    if (m_autoscroll || m_view->GetItemCount() == 0)
        return -1;
    const int row = (rect.top + m_list->GetScrollPos(SB_VERT)) / m_painter.rowHeight();
    const std::optional<std::size_t> cell = cellAt(rect.left);
    if (row < 0 || row >= m_view->GetItemCount() || !cell)
        return -1;
    const CellSpan& span = m_cells[*cell];
    const std::size_t instrument = instrumentAt(row);
    // The range is drawn as a bar: its figures show only here.
    if (span.column != QuoteColumn::Range52Weeks && !m_painter.isCutOff(instrument, span))
        return -1;
    const std::wstring& cellText = m_book.text(instrument, span.column);
    if (cellText.empty())
        return -1;
    text = cellText.c_str();
    rect = rowRectangle(row);
    rect.left = span.left;
    rect.right = span.right;
    return static_cast<__int64>(row) * static_cast<__int64>(QuoteColumnCount) + static_cast<__int64>(span.column);
}

std::optional<std::size_t> QuotesHandler::cellAt(int x) const {
    const auto cell = std::find_if(m_cells.begin(), m_cells.end(),
                                   [x](const CellSpan& span) { return x >= span.left && x < span.right; });
    if (cell == m_cells.end())
        return std::nullopt;
    return static_cast<std::size_t>(cell - m_cells.begin());
}

void QuotesHandler::setAutoscroll(bool on) {
    m_autoscroll = on;
    repaintAll();
}

// Selection and keys

int QuotesHandler::OnKey(unsigned int key, int pageRows) {
    if (key == VK_LEFT || key == VK_RIGHT) {
        stepColumn(key == VK_LEFT ? -1 : 1);
        return m_selection.caret();
    }
    const std::optional<RowStep> step = stepOf(key);
    if (!step)
        return -1;
    const int row = rowAfterStep(*step, m_selection.caret(), pageRows, m_view->GetItemCount());
    if (OrtinTools::Keyboard::IsShiftPressed())
        m_selection.extendTo(row);
    else
        m_selection.select(row);
    selectionChanged();
    return row;
}

int QuotesHandler::OnKey(unsigned int) {
    // Delete: the user takes no instrument off the list.
    return -1;
}

void QuotesHandler::OnItemClick(int row, const CPoint& local, bool extend, unsigned int flags) {
    if (const std::optional<std::size_t> cell = cellAt(local.x))
        m_selectedColumnId = idOf(m_cells[*cell].column);
    if (m_autoscroll)
        row = rowUnder(rowRectangle(row).top + local.y);
    const bool control = (flags & MK_CONTROL) != 0;
    if ((flags & MK_RBUTTON) != 0) {
        // The menu is for all selected rows if the press was on one of them.
        if (!m_selection.contains(row))
            m_selection.select(row);
    } else if (extend && control) {
        // The mouse may tremble on a row that was just turned off.
        if (row != m_selection.caret())
            m_selection.extendKeepingTo(row);
    } else if (extend) {
        m_selection.extendTo(row);
    } else if (control) {
        m_selection.toggle(row);
    } else {
        m_selection.select(row);
    }
    selectionChanged();
}

/// While the rows run, the table's scroll position says nothing about where they are; what was drawn last does.
int QuotesHandler::rowUnder(int y) const {
    for (const DrawnRow& drawn : m_drawnRows)
        if (y >= drawn.top && y < drawn.top + m_painter.rowHeight())
            return drawn.row;
    return m_selection.caret();
}

void QuotesHandler::SetSelectedItem(int row, bool) {
    m_selection.select(row);
    selectionChanged();
    // The caller may scroll now, and rows that are not marked keep their pixels.
    repaintAll();
}

void QuotesHandler::SelectPosition(int column, int row) {
    m_selectedColumnId = m_view->GetColumnId(column);
    if (row != m_selection.caret())
        m_selection.select(row);
    selectionChanged();
    repaintAll();
}

CPoint QuotesHandler::GetSelectedPosition() {
    return CPoint(m_view->GetColumnIdxFromId(m_selectedColumnId), m_selection.caret());
}

CPoint QuotesHandler::GetSelectedPositionStart() {
    return CPoint(m_view->GetColumnIdxFromId(m_selectedColumnId), m_selection.anchor());
}

CPoint QuotesHandler::GetCell(int row, const CPoint& local) {
    const std::optional<std::size_t> cell = cellAt(local.x);
    return CPoint(cell ? m_view->GetColumnIdxFromId(idOf(m_cells[*cell].column)) : -1, row);
}

void QuotesHandler::GetCarretOffset(int& top, int& bottom) {
    // Evens out the pixel that scrolling into view leaves above a row.
    top = 1;
    bottom = 0;
}

void QuotesHandler::stepColumn(int direction) {
    const int count = m_view->GetColumnCount();
    int position = m_view->GetColumnIdxFromId(m_selectedColumnId) + direction;
    while (position >= 0 && position < count && !m_view->GetColumnVisibility(m_view->GetColumnId(position)))
        position += direction;
    if (position >= 0 && position < count)
        m_selectedColumnId = m_view->GetColumnId(position);
}

void QuotesHandler::selectAllRows() {
    m_selection.selectAll(m_view->GetItemCount());
    selectionChanged();
    repaintAll();
}

void QuotesHandler::collapseSelection() {
    m_selection.collapse();
    selectionChanged();
    repaintAll();
}

void QuotesHandler::selectionChanged() {
    m_viewIsStale = true;
    m_events.onSelectionChanged();
}

} // namespace Desk
