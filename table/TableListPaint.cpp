// The painting of the body: a retained bitmap on which the handler draws the rows that need it.

#include "TableList.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <OrtinControls/ITableHandler.h>
#include <OrtinControls/SystemColors.h>
#include <OrtinFoundation/DeletableDC.h>

#include "../graphics/Rounding.h"
#include "../graphics/ScopedFlag.h"
#include "FirstProcessor.h"
#include "SelectedObject.h"

namespace {

constexpr double kAutoscrollPixelsPerSecond = 20.0;
/// A host whose row heights never settle is shown as it is after this many restarts, or one for each pixel of the view.
constexpr int kLeastRestartLimit = 64;

COLORREF backgroundColor() {
    switch (SystemColors::GetCurrentDomainColor()) {
    case WhiteTheme:
        return 0xFFFFFF;
    case BlackTheme:
        return 0x282828;
    default:
        return 0xFF00FF;
    }
}

std::int64_t performanceCounter() {
    LARGE_INTEGER counter{};
    ::QueryPerformanceCounter(&counter);
    return counter.QuadPart;
}

/// A row that only touches the view from above or below counts as inside.
bool meetsView(const CRect& row, int viewHeight) {
    return row.bottom >= 0 && row.top <= viewHeight;
}

} // namespace

void TableList::markAndRefresh(std::uint64_t data) {
    if (m_handler != nullptr) {
        m_repaint.mark(data, [this] { return m_handler->UseOptimalisation(); });
        m_handler->RefreshView();
    }
}

bool TableList::mayPaint() const {
    return m_handler == nullptr || (m_handler->CanPaint() && m_handler->IsPaintEnabled());
}

void TableList::repaintNow() {
    requestFullRedraw();
    if (GetSafeHwnd() == nullptr || !mayPaint() || GetSafeHwnd() == nullptr) {
        return;
    }
    CClientDC dc(this);
    paint(dc);
}

void TableList::OnPaint() {
    CPaintDC dc(this);
    if (mayPaint()) {
        paint(dc);
    }
}

BOOL TableList::OnEraseBkgnd(CDC* /*dc*/) {
    return TRUE;
}

void TableList::paint(CDC& target) {
    if (m_painting) {
        // The host asks for a paint from inside one: the back buffer is in use, so the paint follows this one. Only
        // then is the window invalid again, or a message loop that the host runs meanwhile would paint without end.
        requestFullRedraw();
        m_paintAgain = true;
        return;
    }
    const bool restarted = paintUntilHeightsSettle(target);
    if (std::exchange(m_paintAgain, false) && GetSafeHwnd() != nullptr) {
        InvalidateRect(nullptr, FALSE);
    }
    // A host that changes heights and invalidates in every paint would make this go ever deeper.
    if (restarted && !m_catchingUp && GetSafeHwnd() != nullptr) {
        const ScopedFlag catchingUp(m_catchingUp);
        UpdateWindow();
    }
}

/// True if a new height made it start again.
bool TableList::paintUntilHeightsSettle(CDC& target) {
    const ScopedFlag painting(m_painting);
    bool restarted = false;
    int restartsLeft = std::max(kLeastRestartLimit, clientHeight());
    try {
        while (GetSafeHwnd() != nullptr && paintOnce(target, restartsLeft == 0) == PaintResult::HeightChanged) {
            requestFullRedraw();
            updateScroll();
            --restartsLeft;
            restarted = true;
        }
    } catch (...) {
        requestFullRedraw(); // the host threw while drawing: the back buffer is half done
        throw;
    }
    return restarted;
}

TableList::PaintResult TableList::paintOnce(CDC& target, bool showAnyway) {
    CRect client;
    GetClientRect(&client);
    const CSize view = client.Size();
    int scrollPosition = effectiveScrollPos();
    FirstProcessor pinned;
    const bool fullRedraw = m_repaint.takeFullRedraw();
    bool full = fullRedraw || m_handler == nullptr || !m_handler->UseOptimalisation();
    full = fitBackBuffer(target, view) || full;
    std::set<std::uint64_t> dirty;
    if (!full) {
        dirty = m_repaint.takeInvalidRows();
    }
    DeletableDC memory(&target);
    const SelectedObject selectedBitmap(memory, m_backBuffer);
    if (m_handler == nullptr) {
        return PaintResult::Stopped;
    }
    if (m_scrollDirty) {
        updateScroll();
    }
    const std::int64_t now = performanceCounter();
    pinned.release();

    const bool autoscroll = m_handler->IsAutoscrollEnabled();
    const int total = prepareRows();
    if (autoscroll != autoscrollIsOn()) {
        switchAutoscroll(scrollPosition, total, now);
        return PaintResult::Stopped;
    }

    bool heightChanged = false;
    int bottom = 0;
    std::optional<SelectedRow> selected;
    if (total >= 1 && autoscrollIsOn()) {
        heightChanged = drawRunning(memory, view, total, now, bottom);
    } else {
        heightChanged = drawNormal(memory, view, scrollPosition, full ? nullptr : &dirty, bottom, selected);
    }
    if (bottom < view.cy) {
        memory.FillSolidRect(CRect(0, bottom, view.cx, view.cy), backgroundColor());
    }
    if (selected && m_rows.contains(selected->row)) {
        // Last, so that its cursor frame may overlap the rows beside it.
        heightChanged = drawRow(memory, selected->row, selected->rect) || heightChanged;
    }
    if (heightChanged && !showAnyway) {
        return PaintResult::HeightChanged;
    }
    m_lastTick = now;
    m_handler->OnDrawFinished(memory);
    target.BitBlt(0, 0, view.cx, view.cy, &memory, 0, 0, SRCCOPY);
    return PaintResult::Done;
}

bool TableList::fitBackBuffer(CDC& target, CSize size) {
    if (m_backBuffer.GetSafeHandle() != nullptr && m_backBufferSize == size) {
        return false;
    }
    m_repaint.clearInvalidRows();
    m_backBuffer.DeleteObject();
    m_backBuffer.CreateCompatibleBitmap(&target, std::max<int>(size.cx, 1), std::max<int>(size.cy, 1));
    m_backBufferSize = size;
    return true;
}

/// Lets the host prepare the drawing and gives the height of all rows.
int TableList::prepareRows() {
    m_handler->PrepareDraw();
    for (int row = 0; row < m_rows.count(); ++row) {
        m_handler->UpdateItemPosition(row);
    }
    return std::max(m_rows.totalHeight(), 0);
}

void TableList::switchAutoscroll(int scrollPosition, int total, std::int64_t now) {
    if (autoscrollIsOn()) {
        scrollPosition = truncateToInt(m_autoscrollPos);
        m_autoscrollPos = std::numeric_limits<double>::infinity();
    } else {
        m_lastTick = now;
        m_autoscrollPos = scrollPosition;
    }
    updateScroll();
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    if (total > clientHeight()) {
        SetScrollPos(SB_VERT, scrollPosition, TRUE);
    }
    requestFullRedraw();
    InvalidateRect(nullptr, FALSE);
}

bool TableList::drawRunning(CDC& dc, CSize view, int total, std::int64_t now, int& bottom) {
    const double elapsed = static_cast<double>(now - m_lastTick) / static_cast<double>(m_tickFrequency);
    m_autoscrollPos += elapsed * kAutoscrollPixelsPerSecond;
    if (m_autoscrollPos >= total) {
        m_autoscrollPos = std::fmod(m_autoscrollPos, total);
    }
    m_repaint.forgetDrawnRows();
    const int position = truncateToInt(m_autoscrollPos);
    const std::optional<RowSpan> first = m_rows.rowAt(position);
    if (!first) {
        return false;
    }
    bool heightChanged = false;
    bottom = first->top - position;
    int row = first->row;
    // Rows without height could go round for ever; one round that leads nowhere ends it.
    int lowest = bottom;
    int rowsWithoutProgress = 0;
    while (bottom <= view.cy && m_rows.count() > 0 && rowsWithoutProgress < m_rows.count()) {
        row %= m_rows.count();
        const CRect rect = rectBelow(bottom, row, view.cx);
        bottom = rect.bottom;
        rowsWithoutProgress = bottom > lowest ? 0 : rowsWithoutProgress + 1;
        lowest = std::max(lowest, bottom);
        if (meetsView(rect, view.cy)) {
            m_repaint.addDrawnRow(m_rows.data(row));
            heightChanged = drawRow(dc, row, rect) || heightChanged;
        }
        ++row;
    }
    return heightChanged;
}

/// `dirty` names the rows that need drawing; without it all do.
bool TableList::drawNormal(CDC& dc, CSize view, int scrollPosition, const std::set<std::uint64_t>* dirty, int& bottom,
                           std::optional<SelectedRow>& selected) {
    const std::optional<RowSpan> first = m_rows.rowAt(scrollPosition);
    m_repaint.forgetDrawnRows();
    bottom = m_rows.totalHeight();
    if (!first) {
        return false;
    }
    const int contentBottom = saturateToInt(std::int64_t{bottom} - scrollPosition);
    const std::uint64_t revision = m_rows.revision();
    bool heightChanged = false;
    bottom = first->top - scrollPosition;
    for (int row = first->row; row < m_rows.count(); ++row) {
        if (bottom > view.cy && m_rows.revision() == revision) {
            // All that follows lies below the view, and where it ends is known.
            bottom = contentBottom;
            break;
        }
        const CRect rect = rectBelow(bottom, row, view.cx);
        bottom = rect.bottom;
        if (!meetsView(rect, view.cy)) {
            continue;
        }
        const std::uint64_t data = m_rows.data(row);
        m_repaint.addDrawnRow(data);
        if (row == m_handler->GetSelectedItem()) {
            selected = SelectedRow{row, rect};
        } else if (dirty == nullptr || dirty->contains(data)) {
            heightChanged = drawRow(dc, row, rect) || heightChanged;
        }
    }
    return heightChanged;
}

CRect TableList::rectBelow(int top, int row, int width) const {
    return CRect(0, top, width, saturateToInt(std::int64_t{top} + m_rows.height(row)));
}

bool TableList::drawRow(CDC& dc, int row, const CRect& rect) {
    const std::uint64_t data = m_rows.data(row);
    const int stored = m_rows.height(row);
    const int height = m_handler->DrawItem(dc, row, rect);
    if (m_rows.data(row) != data) {
        return true; // the host has changed the rows while drawing: the answer is for a row that has gone elsewhere
    }
    if (height == stored) {
        return false;
    }
    m_rows.setHeight(row, height);
    return true;
}
