#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include <OrtinControls/ITableHandler.h>
#include <OrtinControls/PrintDialogContext.h>

#include "CellWidths.h"
#include "DeskFonts.h"
#include "QuoteBook.h"
#include "QuotesPage.h"
#include "QuotesPainter.h"
#include "core/ColumnLayout.h"
#include "core/FindModel.h"
#include "core/PriceFlashes.h"
#include "core/RowSelection.h"
#include "core/TickBatch.h"

namespace Desk {

/// What the quotes tell the window around the table. All on the window's thread.
class QuotesEvents {
public:
    virtual ~QuotesEvents() = default;
    virtual void onSelectionChanged() = 0;
    virtual void onFindChanged() = 0;
    /// A batch of ticks was taken; `last` is the latest of it.
    virtual void onTicked(const Tick& last) = 0;
    /// The view has been painted: position and size of what is in view may be others now.
    virtual void onViewPainted() = 0;
};

/// The host's half of the quotes table. A row's word is the index of its instrument plus 1, for 0 means all rows where
/// a repaint is asked. Columns are created in the order in which the user left them, so a column's id says nothing
/// about what it shows; `columnOf` does.
class QuotesHandler : public ITableHandler {
public:
    /// All outlive the handler.
    QuotesHandler(QuoteBook& book, DeskFonts& fonts, QuotesEvents& events);

    void setUpColumns(const ColumnLayout& layout);
    void setUpRows();
    ColumnLayout columnLayout() const;
    QuoteColumn columnOf(int id) const { return m_columns[static_cast<std::size_t>(id)]; }

    const QuoteBook& book() const { return m_book; }
    const RowSelection& selection() const { return m_selection; }
    /// Nothing without a caret row.
    std::optional<std::size_t> caretInstrument() const;
    int rowOf(std::size_t instrument) const { return m_rows[instrument]; }
    void selectAllRows();
    void collapseSelection();

    const FindModel& find() const { return m_find; }
    /// The place of the caret row among the found ones, from 1; 0 if it is none of them.
    int foundOrdinal() const { return m_find.ordinalOf(m_selection.caret()); }

    /// Any thread may add to it, and calls `ITableView::NotifyTableViewDataChange` when `TickBatch::add` says so.
    TickBatch& ticks() { return m_ticks; }
    /// Lets the flashes fade; false when none is left.
    bool fadeFlashes(std::int64_t now);

    /// Brings the search up to date after rows or columns came to be others.
    void searchAgain();

    /// What stands around the rows on paper; the table leaves its room free.
    const SheetSizes& sheetSizes() const { return m_page.sizes(); }
    /// The rows that a print of the selection holds: from the first selected one to the last. Nothing without any.
    std::optional<RowRange> rowsOfSelection() const;
    /// The table prints what lies between caret and anchor; while this is on, these are the ends of the selection.
    void tellEndsOfSelection(bool on) { m_tellsEndsOfSelection = on; }
    /// Called after each page that was drawn on paper, with its number.
    std::function<void(int page)> onPageDrawn;
    /// When what is printed from now on is said to be printed; nothing if empty.
    void setPrintTime(std::wstring time) { m_printTime = std::move(time); }

    void setAutoscroll(bool on);
    void repaintAll();
    /// Scrolls the caret row into view and tells where it lies there.
    CRect caretRectangleInView();

    // ITableHandler: drawing
    int DrawItem(CDC& dc, int row, const CRect& rect) override;
    void OnDrawFinished(CDC& dc) override;
    void PrepareDraw() override;
    void RefreshView() override;
    int ComputeItemHeight(int row) override;
    bool UseOptimalisation() const override { return true; }
    bool IsPaintEnabled() override { return true; }
    bool CanPaint() override { return true; }
    bool IsAutoscrollEnabled() override { return m_autoscroll; }
    int GetOptimalColumnWidth(int id) override;
    void OnColumnWidthChanging(int id, int width) override;
    void OnColumnWidthChanged() override;
    __int64 GetToolTip(CRect& rect, CString& text) override;

    // ITableHandler: paper
    bool DrawPrintRequestedItems(int firstRow, int lastRow, const CRect& rect, const PrintInfo& info,
                                 const std::vector<std::pair<unsigned __int64, int>>& rows, CDC& dc) override;

    // ITableHandler: selection and keys
    int OnKey(unsigned int key, int pageRows) override;
    int OnKey(unsigned int key) override;
    void OnItemClick(int row, const CPoint& local, bool extend, unsigned int flags) override;
    int GetSelectedItem() const override;
    int GetSelectedItemStart() const override;
    void SetSelectedItem(int row, bool followsRowChange) override;
    void SelectPosition(int column, int row) override;
    CPoint GetSelectedPosition() override;
    CPoint GetSelectedPositionStart() override;
    CPoint GetCell(int row, const CPoint& local) override;
    void GetCarretOffset(int& top, int& bottom) override;
    /// True: only the cells of the caret's column.
    bool CopySelectionToClipboard(bool onlyCaretColumn) override;

    // ITableHandler: search
    void SetFindMode(int mode) override;
    bool IsFindMode() const override { return m_find.isActive(); }
    void CancelFindMode() override { SetFindMode(0); }
    /// The number of rows that hold the phrase. The option is not used.
    int SearchPhrase(const wchar_t* phrase, int option) override;
    /// Selects the next found row, or with a negative direction the previous one, and gives it; -1 if none is found.
    int SearchNextPrev(int direction) override;
    /// Selects the first found row at or after the caret.
    bool SelectCurrentFound() override;

    // ITableHandler: order and data
    std::vector<std::pair<unsigned __int64, int>> SortElements(bool descending) override;
    void OnElementsSorted() override;
    bool SortColumnAvailable(int column) const override;
    void OnSortByColumn(int column) override;
    void OnTableViewDataChanged() override;

    // ITableHandler: wiring
    void SetTableView(ITableView* view) override { m_view = view; }
    void SetListCtrl(CWnd* list) override { m_list = list; }
    void TableHandlerReservedA() override {}
    void TableHandlerReservedB() override {}

private:
    /// Where a row was drawn, in pixels of the view.
    struct DrawnRow {
        int row;
        int top;
    };

    static unsigned __int64 dataOf(std::size_t instrument) { return instrument + 1; }
    std::size_t instrumentAt(int row) const;
    std::optional<std::size_t> cellAt(int x) const;
    std::vector<CellSpan> cellsFor(int viewWidth) const;
    std::vector<CellSpan> cellsIn(int viewWidth) const;
    std::wstring partText(EPrintOption option) const;
    std::vector<QuoteColumn> visibleColumns() const;
    std::vector<std::size_t> selectedInstruments() const;
    void noteRows();
    CRect rowRectangle(int row) const;
    int idOf(QuoteColumn column) const;
    void stepColumn(int direction);
    void selectionChanged();
    bool showFoundRow(std::optional<int> row);
    void search(const std::wstring& phrase);
    void repaintCells(std::size_t instrument, std::span<const QuoteColumn> columns);
    void drawCaret(CDC& dc, const CRect& rowRect);
    int rowUnder(int y) const;

    QuoteBook& m_book;
    DeskFonts& m_fonts;
    QuotesEvents& m_events;
    CellWidths m_widths;
    QuotesPainter m_painter;
    QuotesPage m_page;
    std::wstring m_printTime;
    bool m_tellsEndsOfSelection = false;

    ITableView* m_view = nullptr;
    CWnd* m_list = nullptr;
    std::vector<QuoteColumn> m_columns; ///< by id
    std::vector<CellSpan> m_cells;      ///< of the current paint, from the left
    std::vector<DrawnRow> m_drawnRows;  ///< of the latest paint
    std::vector<int> m_rows;            ///< by instrument

    RowSelection m_selection;
    int m_selectedColumnId = 0;
    FindModel m_find;
    int m_sortedColumnId = -1;
    TickBatch m_ticks;
    PriceFlashes m_flashes;
    bool m_autoscroll = false;
    /// What `RefreshView` has to repaint: cells of a row that is being marked, or all.
    std::vector<CRect> m_markedCells;
    bool m_viewIsStale = false;
};

} // namespace Desk
