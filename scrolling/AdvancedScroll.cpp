// The scroll and zoom bar: its face to the host and its mouse.

#include <OrtinControls/AdvancedScroll.h>

#include <algorithm>
#include <optional>
#include <utility>

#include <OrtinFoundation/Keyboard.h>

#include "../graphics/ScopedFlag.h"
#include "AdvancedScrollState.h"

using BarDrag::Part;

namespace {

/// The timer of a held click until its second step, which comes at its second tick, and from then on.
constexpr UINT_PTR kHoldTimer = 1;
constexpr UINT kHoldMilliseconds = 200;
constexpr UINT_PTR kRepeatTimer = 2;
constexpr UINT kRepeatMilliseconds = 100;

constexpr double kPartOfWindowPerNotch = 0.1;

LPCWSTR cursorOf(Part part) {
    switch (part) {
    case Part::Thumb:
        return IDC_HAND;
    case Part::LeftEdge:
    case Part::RightEdge:
        return IDC_SIZEWE;
    default:
        return IDC_ARROW;
    }
}

BarSize clientSize(const CWnd& bar) {
    CRect client;
    bar.GetClientRect(&client);
    return {client.Width(), client.Height()};
}

CPoint cursorIn(const CWnd& bar) {
    CPoint cursor;
    ::GetCursorPos(&cursor);
    bar.ScreenToClient(&cursor);
    return cursor;
}

AdvancedScroll::ChangeMessageInfo changeTo(const RangeWindow& window, AdvancedScroll::EChangeType type,
                                           double delta = 0.0) {
    return {delta, window.start, window.end, type};
}

} // namespace

IMPLEMENT_DYNAMIC(AdvancedScroll, CStatic)

BEGIN_MESSAGE_MAP(AdvancedScroll, CStatic)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_TIMER()
    ON_WM_SETCURSOR()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

AdvancedScroll::IScrollHandler::~IScrollHandler() = default;

AdvancedScroll::AdvancedScroll(IScrollHandler* handler) : m_state(std::make_shared<AdvancedScrollState>()) {
    m_state->handler = handler;
}

AdvancedScroll::~AdvancedScroll() {
    m_state->alive = false;
}

void AdvancedScroll::PreSubclassWindow() {
    // A window that went in the middle of a drag leaves nothing to the next one.
    m_state->gesture = {};
    ModifyStyle(0, SS_NOTIFY);
    CStatic::PreSubclassWindow();
}

void AdvancedScroll::SetCurrent(double start, double end) {
    const std::shared_ptr<AdvancedScrollState> state = m_state;
    state->window.start = start;
    state->window.end = end;
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    UpdateRects();
    const CPoint cursor = cursorIn(*this);
    AdvancedScrollState::Gesture& gesture = state->gesture;
    const std::optional<int> base = BarDrag::rebased(state->layout, gesture.drag, cursor.x);
    if (base) {
        gesture.lastPoint.x = *base;
    }
    if (base && !state->drivingDrag) {
        // The host may answer by setting the bar again, for ever where the bar is at its end.
        const ScopedFlag driving(state->drivingDrag);
        OnMouseMove(MK_LBUTTON, cursor);
    } else {
        Invalidate(TRUE);
    }
}

void AdvancedScroll::MoveZoomOnWheel(short delta) {
    // Less than a notch is meant to move nothing; the host is told all the same.
    const int notches = delta / WHEEL_DELTA;
    OnMovement(m_state->window.width() * notches * kPartOfWindowPerNotch);
}

void AdvancedScroll::UpdateRects() {
    m_state->layout = BarLayout::of(clientSize(*this), m_state->window);
}

void AdvancedScroll::SetValidCursor() {
    ::SetCursor(::LoadCursorW(nullptr, cursorOf(m_state->gesture.under)));
}

bool AdvancedScroll::MoveTo(long x) {
    return MoveBy(BarDrag::trackStep(m_state->layout.thumb, x));
}

bool AdvancedScroll::MoveBy(long dx) {
    return OnMovement(m_state->layout.fraction(dx));
}

bool AdvancedScroll::OnMovement(double delta) {
    RangeWindow& window = m_state->window;
    window.move(delta);
    return SendChangedMessage(changeTo(window, MovementInProgress, delta));
}

bool AdvancedScroll::OnMovementCompleted() {
    return SendChangedMessage(changeTo(m_state->window, MovementCompleted));
}

bool AdvancedScroll::OnRange() {
    return SendChangedMessage(changeTo(m_state->window, RangeChangeInProgress));
}

bool AdvancedScroll::OnRangeCompleted() {
    return SendChangedMessage(changeTo(m_state->window, RangeChangeCompleted));
}

bool AdvancedScroll::SendChangedMessage(ChangeMessageInfo info) {
    const std::shared_ptr<AdvancedScrollState> state = m_state;
    if (state->handler != nullptr) {
        state->handler->OnScrollChanged(info);
    }
    return state->alive && GetSafeHwnd() != nullptr;
}

BOOL AdvancedScroll::OnEraseBkgnd(CDC* /*dc*/) {
    return TRUE;
}

BOOL AdvancedScroll::OnSetCursor(CWnd* /*window*/, UINT /*hitTest*/, UINT /*message*/) {
    SetValidCursor();
    return TRUE;
}

void AdvancedScroll::OnLButtonDown(UINT /*flags*/, CPoint point) {
    AdvancedScrollState::Gesture& gesture = m_state->gesture;
    gesture.pressed = true;
    const Part part = BarDrag::pressed(m_state->layout, point.x, point.y);
    if (part != Part::None) {
        gesture.drag = part;
    }
    if (part == Part::Track) {
        if (!MoveTo(point.x)) {
            return;
        }
        Invalidate(FALSE);
        gesture.skipFirstTimerTick = true;
        SetTimer(kHoldTimer, kHoldMilliseconds);
    }
    if (part != Part::None && ::GetCapture() != m_hWnd) {
        SetCapture();
        gesture.under = gesture.drag;
    }
    gesture.lastPoint = point;
    SetValidCursor();
}

void AdvancedScroll::OnTimer(UINT_PTR id) {
    if (id == kHoldTimer) {
        if (std::exchange(m_state->gesture.skipFirstTimerTick, false)) {
            return;
        }
        KillTimer(kHoldTimer);
        SetTimer(kRepeatTimer, kRepeatMilliseconds);
    } else if (id != kRepeatTimer) {
        Default();
        return;
    }
    if (::GetKeyState(VK_LBUTTON) >= 0) {
        KillTimer(kRepeatTimer);
        return;
    }
    if (MoveTo(cursorIn(*this).x)) {
        Invalidate(FALSE);
        Default();
    }
}

void AdvancedScroll::OnMouseMove(UINT flags, CPoint point) {
    AdvancedScrollState::Gesture& gesture = m_state->gesture;
    const Part under = BarDrag::under(m_state->layout, point.x, point.y);
    if (const bool hover = under != Part::None; hover != gesture.hover) {
        gesture.hover = hover;
        Invalidate(FALSE);
    }
    gesture.under = gesture.drag != Part::None ? gesture.drag : under;
    SetValidCursor();
    if (gesture.drag != Part::None && flags == 0) {
        EndDrag();
        return;
    }
    // So that the bar sees the mouse leave.
    if (::GetCapture() != m_hWnd) {
        SetCapture();
    }
    if (gesture.drag == Part::None && !m_state->layout.client.holds(point.x, point.y)) {
        gesture.under = Part::None;
        ::ReleaseCapture();
    }
    if (!FollowDrag(point)) {
        return;
    }
    if (gesture.drag != Part::None) {
        Invalidate(FALSE);
    }
    const BarRect& client = m_state->layout.client;
    gesture.lastPoint = CPoint(std::clamp<int>(point.x, client.left, client.right), point.y);
}

bool AdvancedScroll::FollowDrag(CPoint& point) {
    AdvancedScrollState& state = *m_state;
    const int distance = point.x - state.gesture.lastPoint.x;
    switch (state.gesture.drag) {
    case Part::Thumb:
        return MoveBy(distance);
    case Part::LeftEdge:
        point.x = BarDrag::dragLeftEdge(state.window, state.layout, clientSize(*this), distance, point.x);
        return OnRange();
    case Part::RightEdge:
        point.x = BarDrag::dragRightEdge(state.window, state.layout, clientSize(*this), distance, point.x);
        return OnRange();
    default:
        return true;
    }
}

void AdvancedScroll::EndDrag() {
    const Part drag = m_state->gesture.drag;
    const bool moved = drag == Part::Thumb || drag == Part::Track;
    if (moved ? OnMovementCompleted() : OnRangeCompleted()) {
        StopDragging();
    }
}

void AdvancedScroll::StopDragging() {
    m_state->gesture.drag = Part::None;
    ::ReleaseCapture();
}

BOOL AdvancedScroll::OnMouseWheel(UINT /*flags*/, short delta, CPoint /*point*/) {
    if (OrtinTools::Keyboard::IsCtrlPressed()) {
        return static_cast<BOOL>(Default());
    }
    MoveZoomOnWheel(delta);
    return TRUE;
}

void AdvancedScroll::OnLButtonUp(UINT flags, CPoint point) {
    m_state->gesture.pressed = false;
    // With Shift or Ctrl held the flags are not 0, and the drag is meant to go on until a move without them.
    OnMouseMove(flags, point);
}

void AdvancedScroll::OnLButtonDblClk(UINT /*flags*/, CPoint point) {
    if (BarDrag::under(m_state->layout, point.x, point.y) == Part::None) {
        return;
    }
    m_state->window.toggleFull();
    if (OnRangeCompleted()) {
        StopDragging();
    }
}
