#pragma once

#include <optional>

#include <afxcmn.h>

#include "HeaderDrag.h"
#include "HeaderItems.h"

/// The header of a table: the native header with a column move of its own, a mark for the column in flight, and a guard
/// that keeps it from painting while many widths are rewritten.
class TableHeaderCtrl : public CHeaderCtrl, public HeaderItems {
public:
    static constexpr int kWindowId = 11113;

    TableHeaderCtrl() = default;

    BOOL createIn(CWnd* parent);
    void enableMovingColumns(bool enable) { m_drag.mouseMovingColumns = enable; }
    /// Shows the sort arrow on the column `id` and on no other, or on none.
    void showSortArrow(int id, bool descending, bool show);
    void insertItem(int id, const wchar_t* title, int width);
    void setItemText(int id, const wchar_t* title);
    /// The native control takes over the dragged width at the end, though the table has refused it: the item then gets
    /// back the width that it has now.
    void keepItemWidth(int id);

    /// While one lives, the header does not paint; it stays invalid and paints afterwards.
    class NoPaint {
    public:
        explicit NoPaint(TableHeaderCtrl& header) : m_header(header) { m_header.m_noPaint = true; }
        NoPaint(const NoPaint&) = delete;
        NoPaint& operator=(const NoPaint&) = delete;
        ~NoPaint() { m_header.m_noPaint = false; }

    private:
        TableHeaderCtrl& m_header;
    };

    // HeaderItems
    int itemCount() const override;
    std::optional<int> itemWidth(int id) const override;
    void setItemWidth(int id, int width) override;
    std::vector<int> itemOrder() const override;
    void setItemOrder(const std::vector<int>& order) override;

protected:
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    HDHITTESTINFO hitTest(CPoint point) const;
    int positionOfItem(int id) const;
    CRect rectOfPosition(int position) const;
    LRESULT notifyParent(UINT code, int item, UINT button);
    LRESULT sendDragMessage(UINT message);
    void drawColumnInFlight(CDC& dc);

    struct KeptWidth {
        int id;
        int width;
    };

    HeaderDrag m_drag;
    std::optional<KeptWidth> m_keptWidth;
    bool m_noPaint = false;
};
