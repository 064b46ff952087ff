#include "TableList.h"

#include <algorithm>

#include <OrtinControls/ITableHandler.h>
#include <OrtinControls/ITableView.h>
#include <OrtinControls/TooltipTools.h>

#include "FirstProcessor.h"

namespace {

constexpr int kToolTipHitSize = 10;

} // namespace

BEGIN_MESSAGE_MAP(TableList, CWnd)
    ON_WM_CREATE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_VSCROLL()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_SETCURSOR()
    ON_WM_CONTEXTMENU()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
END_MESSAGE_MAP()

TableList::TableList(ITableView* view) : m_view(view), m_tickFrequency(readTickFrequency()) {}

TableList::~TableList() = default;

BOOL TableList::createIn(CWnd* parent) {
    return Create(nullptr, L"", WS_CHILD | WS_VSCROLL | WS_TABSTOP, CRect(), parent, kWindowId);
}

void TableList::enableColumnWidthTracking(bool enable) {
    m_tracker.enabled = enable;
    m_tracker.trackCursor = ::LoadCursorW(nullptr, IDC_SIZEWE);
}

void TableList::refreshToolTipColors() {
    if (m_toolTip) {
        OrtinTools::TooltipTools::RefreshColors(*m_toolTip);
    }
}

std::int64_t TableList::readTickFrequency() const {
    const FirstProcessor pinned;
    LARGE_INTEGER frequency{};
    ::QueryPerformanceFrequency(&frequency);
    return frequency.QuadPart;
}

int TableList::OnCreate(LPCREATESTRUCT createStruct) {
    if (CWnd::OnCreate(createStruct) == -1) {
        return -1;
    }
    if (vScrollAlwaysVisible) {
        ModifyStyle(0, WS_VSCROLL);
    }
    m_tracker.target = CWnd::FromHandle(createStruct->hwndParent);
    m_toolTip = OrtinTools::TooltipTools::CreateTooltipContext();
    m_toolTip->SetDelayTime(TTDT_RESHOW, 100);
    m_toolTip->SetDelayTime(TTDT_INITIAL, 500);
    m_toolTip->SetDelayTime(TTDT_AUTOPOP, 10000);
    return 0;
}

BOOL TableList::PreTranslateMessage(MSG* message) {
    if (CWnd::PreTranslateMessage(message)) {
        return TRUE;
    }
    if (m_toolTip) {
        // Last, for the host may delete this control when it is asked for a tip.
        m_toolTip->FilterToolTipMessage(this, message);
    }
    return FALSE;
}

INT_PTR TableList::OnToolHitTest(CPoint point, TOOLINFO* toolInfo) const {
    if (m_handler == nullptr) {
        return -1;
    }
    CRect rect(point.x, point.y, point.x + kToolTipHitSize, point.y + kToolTipHitSize);
    CString text;
    CWnd::OnToolHitTest(point, toolInfo);
    const HWND window = m_hWnd;
    // The host may delete this control in the call.
    const __int64 id = m_handler->GetToolTip(rect, text);
    if (id == -1 || text.IsEmpty()) {
        return -1;
    }
    if (toolInfo != nullptr) {
        CXTPToolTipContext::FillInToolInfo(toolInfo, window, rect, static_cast<INT_PTR>(id), text);
    }
    return static_cast<INT_PTR>(id);
}

void TableList::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    updateScroll();
    if (m_handler != nullptr) {
        m_handler->OnSizeTableListCtrl();
    }
}

void TableList::OnContextMenu(CWnd* /*window*/, CPoint point) {
    if (const std::shared_ptr<IContextMenuBase> contextMenu = m_contextMenu) {
        contextMenu->ShowContextMenu(point);
    }
}

void TableList::OnKeyDown(UINT key, UINT /*repeat*/, UINT /*flags*/) {
    if (m_handler == nullptr) {
        return;
    }
    switch (key) {
    case VK_PRIOR:
    case VK_NEXT:
    case VK_END:
    case VK_HOME:
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN: {
        const int drawn = static_cast<int>(m_repaint.drawnRowCount());
        const int row = m_handler->OnKey(key, std::max(drawn - 1, 1));
        if (row >= 0) {
            scrollIntoView(row);
            requestFullRedraw();
            if (GetSafeHwnd() != nullptr) {
                InvalidateRect(nullptr, FALSE);
            }
        }
        break;
    }
    case VK_DELETE:
        m_handler->OnKey(key);
        break;
    default:
        break;
    }
    m_handler->SetFindMode(0);
    if (GetSafeHwnd() != nullptr) {
        SetFocus();
    }
}

void TableList::OnKeyUp(UINT key, UINT repeat, UINT flags) {
    CWnd::OnKeyUp(key, repeat, flags);
    if (GetSafeHwnd() != nullptr) {
        SetFocus();
    }
}
