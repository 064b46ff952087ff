// The mouse over the body: selecting, dragging rows, dragging column borders.

#include "TableList.h"

#include <cstdlib>

#include <OrtinControls/ITableHandler.h>
#include <OrtinControls/ITableView.h>
#include <OrtinFoundation/Keyboard.h>

#include "../graphics/Rounding.h"
#include "TableMessages.h"

namespace {

/// Pixels on both sides of a column border that take hold of it.
constexpr int kBorderReach = 4;

} // namespace

void TableList::clickRow(CPoint point, bool extend, UINT flags) {
    if (m_handler == nullptr) {
        return;
    }
    m_handler->CancelFindMode();
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    const int y = contentY(point.y);
    if (const std::optional<RowSpan> span = m_rows.rowAt(y)) {
        m_handler->OnItemClick(span->row, CPoint(point.x, y - span->top), extend, flags);
        repaintNow();
    }
}

bool TableList::tracksBorder() const {
    return m_rows.count() > 0 && m_tracker.enabled && m_tracker.overBorder;
}

void TableList::OnLButtonDown(UINT flags, CPoint point) {
    if (tracksBorder()) {
        if (GetCapture() != this) {
            SetCapture();
        }
        m_tracker.startX = point.x;
        m_mouseDown = true;
        return;
    }
    if (m_rows.count() > 0) {
        m_tracker.startX = -1;
    }
    const bool shift = OrtinTools::Keyboard::IsShiftPressed();
    SetFocus();
    clickRow(point, shift, flags);
    m_mouseDown = true;
    m_dragArmed = !shift;
    if (m_dragArmed) {
        m_dragOrigin = point;
    }
    Default();
}

void TableList::OnLButtonUp(UINT /*flags*/, CPoint /*point*/) {
    // Also when the host has taken the rows away or tracking off since the press.
    if (m_tracker.overBorder && GetCapture() == this) {
        ::ReleaseCapture();
    }
    if (tracksBorder()) {
        m_tracker.overBorder = false;
        m_tracker.column = -1;
        m_tracker.startWidth = -1;
        m_tracker.target->SendMessage(TableMessages::kEndTrackColumnWidth, 0, 0);
    }
    if (m_handler != nullptr) {
        m_handler->SetFindMode(0);
    }
    repaintNow();
    m_mouseDown = false;
    Default();
}

void TableList::OnLButtonDblClk(UINT flags, CPoint point) {
    if (tracksBorder()) {
        m_tracker.target->SendMessage(TableMessages::kBorderDoubleClick, static_cast<WPARAM>(m_tracker.column), 0);
        return;
    }
    clickRow(point, false, flags);
    Default();
    if (m_handler != nullptr) {
        m_handler->OnDblClick();
    }
}

void TableList::OnRButtonDown(UINT /*flags*/, CPoint point) {
    Default();
    if (m_contextMenu && GetSafeHwnd() != nullptr) {
        SendMessage(WM_LBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y));
    }
}

void TableList::OnMouseMove(UINT flags, CPoint point) {
    const bool borderTakesIt = m_rows.count() > 0 && trackBorder(flags, point);
    if (m_rows.count() > 0 && !borderTakesIt) {
        dragRow(flags, point);
    }
    if (m_handler != nullptr) {
        m_handler->RefreshView();
    }
    Default();
}

/// True if the move belongs to a column border.
bool TableList::trackBorder(UINT flags, CPoint point) {
    if (m_tracker.target == nullptr || !m_tracker.enabled) {
        return false;
    }
    if ((flags & MK_LBUTTON) != 0 && m_mouseDown) {
        if (m_tracker.overBorder) {
            const int width = saturateToInt(std::int64_t{m_tracker.startWidth} - m_tracker.startX + point.x);
            m_tracker.target->SendMessage(TableMessages::kTrackColumnWidth, static_cast<WPARAM>(m_tracker.column),
                                          static_cast<LPARAM>(width));
        }
        return m_tracker.overBorder;
    }
    searchBorder(point.x);
    m_mouseDown = false;
    return m_tracker.overBorder;
}

void TableList::searchBorder(int x) {
    m_tracker.overBorder = false;
    m_tracker.column = -1;
    m_tracker.startWidth = -1;
    std::int64_t edge = 0;
    for (int position = 0; position < m_view->GetColumnCount(); ++position) {
        const int width = m_view->GetColumnWidth(m_view->GetColumnId(position));
        edge += width;
        if (x <= edge + kBorderReach && x > edge - kBorderReach) {
            m_tracker.overBorder = true;
            m_tracker.column = position;
            m_tracker.startWidth = width;
            m_tracker.savedCursor = ::SetCursor(m_tracker.trackCursor);
            return;
        }
    }
    if (m_tracker.savedCursor != nullptr) {
        ::SetCursor(m_tracker.savedCursor);
        m_tracker.savedCursor = nullptr;
    }
}

void TableList::dragRow(UINT flags, CPoint point) {
    if ((flags & MK_LBUTTON) == 0 || !m_mouseDown) {
        m_mouseDown = false;
        return;
    }
    if (OrtinTools::Keyboard::IsCtrlPressed()) {
        clickRow(point, true, flags);
        return;
    }
    const int limit = (::GetSystemMetrics(SM_CXDRAG) + ::GetSystemMetrics(SM_CYDRAG)) / 4;
    const bool moved = std::abs(point.x - m_dragOrigin.x) > limit || std::abs(point.y - m_dragOrigin.y) > limit;
    if (m_dragArmed && m_handler != nullptr && moved) {
        // Disarmed before the call: a host that drags in a loop of its own gets more moves in the middle of it.
        m_dragArmed = false;
        m_handler->BeginDrag();
    }
}

BOOL TableList::OnSetCursor(CWnd* window, UINT hitTest, UINT message) {
    if (tracksBorder()) {
        return FALSE;
    }
    if (m_handler != nullptr && hitTest == HTCLIENT) {
        m_handler->SetCursor();
        return TRUE;
    }
    return CWnd::OnSetCursor(window, hitTest, message);
}
