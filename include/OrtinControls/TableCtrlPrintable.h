#pragma once

#include <vector>

#include <OrtinControls/IPrintable.h>
#include <OrtinControls/TableCtrl.h>

/// A table that prints itself: it divides its rows into pages, scales its width on the screen to the sheet, and draws
/// its rows on the page through its handler.
///
/// A page is mapped so that the table's client width with the margins at both sides fills the width of the sheet: one
/// logical unit is one pixel of the table, whatever the resolution of the printer, and rows keep their heights. The
/// header is not printed; a handler that wants a title or a header draws the page itself in `DrawPrintRequestedItems`.
///
/// Choices of a print run: all rows, pages of them, the rows of the selection, and as an added choice of id 0 the rows
/// that the view shows; while its content runs by itself these count from the top, so that a host stops it before. Any
/// other choice has no pages. Pages break one row earlier than they must, but the row before the break is not counted
/// on the new page, nor is the last row of the run: a page may be longer than the sheet by up to these two rows. The
/// first page has no rows where its first row fills it, alone or with the second one.
class ORTIN_CONTROLS_API TableCtrlPrintable : public TableCtrl, public IPrintable {
public:
    TableCtrlPrintable();
    ~TableCtrlPrintable() override;

    // IPrintable. Without a context or a state nothing happens.

    /// The handler's caption; empty without a handler.
    const std::wstring& PrintTitle() const override;
    /// Offers the selection if it is larger than one cell, pages, and the visible area. Gives 1.
    int OnPreparePrinting(PrintInfo* info) override;
    void OnPrepareDC(CDC* dc, PrintInfo* info) override;
    void OnBeginPrinting(CDC* dc, PrintInfo* info) override;
    /// Draws nothing for a page that the run does not have. Rows that do not exist, because the selection lies outside
    /// the table or the host has deleted them meanwhile, are left out.
    void OnPrint(CDC* dc, PrintInfo* info) override;
    /// Repaints the table.
    void OnEndPrinting(CDC* dc, PrintInfo* info) override;
    void OnPrintingFinished() override;
    bool IsPrintAborted() const override;
    /// The parent of the table; null without one.
    CWnd* AssociatedWindow() const override;

protected:
    /// 0 to 255 in the black and white way.
    int m_blackWhiteContrast = 0;
    /// Each page is covered by its picture in black and white, which is white: only a derived class sets it.
    bool m_blackWhitePrinting = false;
    /// Pixels of the table.
    int m_marginLeft = 10;
    int m_marginTop = 10;
    int m_marginRight = 10;
    int m_marginBottom = 10;

private:
    void PrintPage(CDC* dc, PrintInfo* info, const CRect& area, int firstRow, int lastRow);
    void PrepareBasicDCParams(CDC* dc, PrintInfo* info);
    bool isSelectionPrintable();
    void paginate(const PrintInfo& info, int pageHeight);
    void printBlackWhite(CDC& dc, PrintInfo& info, const CRect& area, int firstRow, int lastRow);
    bool fitPrintBitmap(CDC& dc, CSize size);

    int m_lastPrintRow = 0;
    CBitmap m_printBitmap;
    std::vector<int> m_pageFirstRows;
};
