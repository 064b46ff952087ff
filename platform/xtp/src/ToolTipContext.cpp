#include "ToolTipWindow.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace {

enum TimerId : UINT_PTR { waitTimer = 1, showTimer = 2, watchTimer = 3 };

constexpr UINT S_watchInterval = 100; // milliseconds; how late a leave of the mouse may be seen

struct Tool {
    HWND window = nullptr;
    INT_PTR id = -1;
    CString text;

    friend bool operator==(const Tool&, const Tool&) = default;
};

CPoint pointerOnScreen() {
    CPoint pointer;
    ::GetCursorPos(&pointer);
    return pointer;
}

bool isPointerOver(HWND window) {
    const HWND under = ::WindowFromPoint(pointerOnScreen());
    return under != nullptr && (under == window || ::IsChild(window, under));
}

bool isOfWindow(const CWnd& window, const MSG& message) {
    return window.m_hWnd != nullptr && (message.hwnd == window.m_hWnd || ::IsChild(window.m_hWnd, message.hwnd));
}

bool hasButtonDown(const MSG& mouseMove) {
    return (mouseMove.wParam & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON | MK_XBUTTON1 | MK_XBUTTON2)) != 0;
}

std::optional<Tool> toolUnder(CWnd& window, const MSG& mouseMove) {
    CPoint point(mouseMove.lParam);
    ::MapWindowPoints(mouseMove.hwnd, window.m_hWnd, &point, 1);
    TOOLINFOW info{};
    info.cbSize = sizeof(info);
    Tool tool{window.m_hWnd, -1, {}};
    tool.id = window.OnToolHitTest(point, &info);
    if (info.lpszText != nullptr && info.lpszText != LPSTR_TEXTCALLBACKW) {
        tool.text = info.lpszText;
        std::free(info.lpszText);
    }
    // Whom the window asked may have destroyed it, or deleted its object.
    return tool.id != -1 && !tool.text.IsEmpty() && ::IsWindow(tool.window) ? std::optional(tool) : std::nullopt;
}

} // namespace

/// Which tool the mouse is on and how far its tip has come.
class CXTPToolTipContext::Hover {
public:
    Hover() : m_window(look, [this](UINT_PTR timer) { timeIsUp(timer); }) {}

    void moveTo(const std::optional<Tool>& tool);
    void press();
    bool isShown() const { return m_phase == Phase::Shown; }
    void repaint();

    ToolTipLook look;
    int initialDelay = static_cast<int>(::GetDoubleClickTime());
    int reshowDelay = initialDelay / 5;
    int showDelay = initialDelay * 10;

private:
    enum class Phase {
        Away,    ///< on no tool
        Waiting, ///< on a tool, its tip comes when the time is up
        Shown,
        Spent ///< on a tool that shows no tip any more
    };

    void leave();
    void wait(int milliseconds);
    void showTip();
    void hideTip();
    void timeIsUp(UINT_PTR timer);

    ToolTipWindow m_window;
    Phase m_phase = Phase::Away;
    Tool m_tool;
    CPoint m_restsAt; ///< screen
    int m_delay = 0;  ///< of the running wait
};

void CXTPToolTipContext::Hover::moveTo(const std::optional<Tool>& tool) {
    if (!tool || !m_window.ensureWindow()) {
        leave();
        return;
    }
    const CPoint pointer = pointerOnScreen();
    if (m_phase != Phase::Away && *tool == m_tool) {
        if (m_phase == Phase::Waiting && pointer != m_restsAt) {
            wait(m_delay);
        }
    } else {
        const bool comesFromTip = isShown() || (m_phase == Phase::Waiting && m_delay == reshowDelay);
        hideTip();
        m_tool = *tool;
        m_phase = Phase::Waiting;
        wait(comesFromTip ? reshowDelay : initialDelay);
        m_window.SetTimer(watchTimer, S_watchInterval);
    }
    m_restsAt = pointer;
}

void CXTPToolTipContext::Hover::press() {
    hideTip();
    if (m_phase != Phase::Away) {
        m_phase = Phase::Spent;
    }
}

void CXTPToolTipContext::Hover::leave() {
    hideTip();
    m_phase = Phase::Away;
    m_tool = Tool();
    m_window.KillTimer(watchTimer);
}

void CXTPToolTipContext::Hover::wait(int milliseconds) {
    m_delay = milliseconds;
    m_window.SetTimer(waitTimer, static_cast<UINT>(milliseconds));
}

void CXTPToolTipContext::Hover::showTip() {
    m_window.show(m_tool.text, pointerOnScreen());
    m_phase = Phase::Shown;
    m_window.SetTimer(showTimer, static_cast<UINT>(showDelay));
}

void CXTPToolTipContext::Hover::hideTip() {
    m_window.KillTimer(waitTimer);
    m_window.KillTimer(showTimer);
    m_window.hide();
}

void CXTPToolTipContext::Hover::timeIsUp(UINT_PTR timer) {
    m_window.KillTimer(timer);
    if (!isPointerOver(m_tool.window)) {
        leave();
    } else if (timer == waitTimer) {
        // A message of a timer that was stopped meanwhile may still come.
        if (m_phase == Phase::Waiting) {
            showTip();
        }
    } else if (timer == showTimer) {
        if (isShown()) {
            press();
        }
    } else {
        m_window.SetTimer(watchTimer, S_watchInterval);
    }
}

void CXTPToolTipContext::Hover::repaint() {
    if (isShown()) {
        m_window.Invalidate(FALSE);
    }
}

CXTPToolTipContext::CXTPToolTipContext() : m_hover(std::make_shared<Hover>()) {}

CXTPToolTipContext::~CXTPToolTipContext() = default;

void CXTPToolTipContext::SetStyle(XTPToolTipStyle style) {
    m_hover->look.style = style;
}

XTPToolTipStyle CXTPToolTipContext::GetStyle() const {
    return m_hover->look.style;
}

void CXTPToolTipContext::SetTipBkColor(COLORREF color) {
    m_hover->look.background = color;
    m_hover->repaint();
}

void CXTPToolTipContext::SetTipTextColor(COLORREF color) {
    m_hover->look.text = color;
    m_hover->repaint();
}

COLORREF CXTPToolTipContext::GetTipBkColor() const {
    return m_hover->look.background;
}

COLORREF CXTPToolTipContext::GetTipTextColor() const {
    return m_hover->look.text;
}

void CXTPToolTipContext::SetDelayTime(UINT nFlags, int nTime) {
    const int time = std::max(nTime, 0);
    switch (nFlags) {
    case TTDT_AUTOMATIC:
        m_hover->initialDelay = nTime < 0 ? static_cast<int>(::GetDoubleClickTime()) : nTime;
        m_hover->reshowDelay = m_hover->initialDelay / 5;
        m_hover->showDelay = m_hover->initialDelay * 10;
        break;
    case TTDT_INITIAL:
        m_hover->initialDelay = time;
        break;
    case TTDT_RESHOW:
        m_hover->reshowDelay = time;
        break;
    case TTDT_AUTOPOP:
        m_hover->showDelay = time;
        break;
    default:
        break;
    }
}

int CXTPToolTipContext::GetDelayTime(UINT nFlags) const {
    switch (nFlags) {
    case TTDT_INITIAL:
        return m_hover->initialDelay;
    case TTDT_RESHOW:
        return m_hover->reshowDelay;
    case TTDT_AUTOPOP:
        return m_hover->showDelay;
    default:
        return 0;
    }
}

void CXTPToolTipContext::FilterToolTipMessage(CWnd* pWnd, MSG* pMsg) {
    if (pWnd == nullptr || pMsg == nullptr || !isOfWindow(*pWnd, *pMsg)) {
        return;
    }
    switch (pMsg->message) {
    case WM_MOUSEMOVE:
        if (hasButtonDown(*pMsg)) {
            m_hover->press();
        } else {
            // The window is often the owner of this context, which then ends with it inside the question.
            const std::weak_ptr<Hover> hover = m_hover;
            const std::optional<Tool> tool = toolUnder(*pWnd, *pMsg);
            if (const std::shared_ptr<Hover> left = hover.lock()) {
                left->moveTo(tool);
            }
        }
        break;
    case WM_NCMOUSEMOVE:
    case WM_MOUSELEAVE:
        m_hover->moveTo(std::nullopt);
        break;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
    case WM_XBUTTONDOWN:
    case WM_XBUTTONDBLCLK:
    case WM_NCLBUTTONDOWN:
    case WM_NCRBUTTONDOWN:
    case WM_NCMBUTTONDOWN:
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        m_hover->press();
        break;
    default:
        break;
    }
}

void CXTPToolTipContext::HideToolTip() {
    m_hover->press();
}

BOOL CXTPToolTipContext::IsToolTipVisible() const {
    return m_hover->isShown();
}

void CXTPToolTipContext::FillInToolInfo(TOOLINFOW* pTI, HWND hWnd, const CRect& rect, INT_PTR nHit,
                                        const CString& strTipText) {
    pTI->hwnd = hWnd;
    // The base's answer for a child, which the caller may have asked for first, names a window instead.
    pTI->uFlags &= ~static_cast<UINT>(TTF_IDISHWND);
    pTI->rect = rect;
    pTI->uId = static_cast<UINT_PTR>(nHit);
    pTI->lpszText = strTipText.IsEmpty() ? nullptr : _wcsdup(strTipText);
}
