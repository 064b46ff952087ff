#pragma once

#include <functional>

#include <OrtinControls/TableCtrlPrintable.h>

#include "DeskFonts.h"
#include "core/SheetBands.h"

namespace Desk {

/// The table in the desk's looks: the header is painted by theme, and the system's scroll bar, which knows no theme, is
/// pushed out of sight beyond the right edge: `DeskScrollBar` stands for it.
class QuotesTable : public TableCtrlPrintable {
public:
    /// The windows of every table.
    static constexpr int BodyId = 11112;
    static constexpr int HeaderId = 11113;

    /// `fonts` outlive the table.
    explicit QuotesTable(DeskFonts& fonts);

    CWnd* body() { return GetDlgItem(BodyId); }
    CWnd* header() { return GetDlgItem(HeaderId); }
    /// Gives the header its height and places the body under it; once the windows exist.
    void layOutHeader();
    /// Titles over figures stand at the right, as the figures do.
    void alignTitleRight(int id);
    /// Keeps the rows of a printed page out of what else stands on it.
    void leaveRoomOnPaper(const SheetSizes& sizes);
    /// The width of a printed page, in pixels of the table.
    int widthOnPaper() const;
    /// Called with the screen point of a context menu that is asked for on the header.
    std::function<void(CPoint screen)> onHeaderMenu;

    // What the selection is, is asked by these two: the rows between its ends, wherever the caret stands.
    int OnPreparePrinting(PrintInfo* info) override;
    void OnBeginPrinting(CDC* dc, PrintInfo* info) override;

    /// Keeps keys that a search outlives away from the body, for which every key ends it.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void UpdateListPos() override;

    afx_msg void OnContextMenu(CWnd* window, CPoint screen);
    afx_msg void OnHeaderCustomDraw(NMHDR* notification, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    void drawHeader(CDC& dc);
    void drawHeaderItem(CDC& dc, const CRect& rect, HDITEMW& item);

    DeskFonts& m_fonts;
};

} // namespace Desk
