// Creation of a table, the layout of its two windows, and its wiring to the host.

#include <OrtinControls/TableCtrl.h>

#include <XTToolkitPro.h>

#include "TableCtrlState.h"
#include "TableMessages.h"

namespace {

constexpr int kWidthUntilLaidOut = 10;
constexpr LONG kHeaderFontWeight = FW_BOLD;
constexpr wchar_t kHeaderFontFace[] = L"Tahoma";

} // namespace

BEGIN_MESSAGE_MAP(TableCtrl, CWnd)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_MESSAGE(TableMessages::kTrackColumnWidth, &TableCtrl::OnTrackColumnWidth)
    ON_MESSAGE(TableMessages::kEndTrackColumnWidth, &TableCtrl::OnEndTrackColumnWidth)
    ON_MESSAGE(TableMessages::kBorderDoubleClick, &TableCtrl::OnTrackColumnWidthBorderDblclk)
    ON_MESSAGE(TableMessages::kCanMoveColumn, &TableCtrl::OnCanMoveColumn)
    ON_MESSAGE(TableMessages::kMoveColumn, &TableCtrl::OnMoveColumn)
    ON_NOTIFY(HDN_TRACKA, TableHeaderCtrl::kWindowId, &TableCtrl::OnHdnTrack)
    ON_NOTIFY(HDN_TRACKW, TableHeaderCtrl::kWindowId, &TableCtrl::OnHdnTrack)
    ON_NOTIFY(HDN_ENDTRACKA, TableHeaderCtrl::kWindowId, &TableCtrl::OnHdnEndtrack)
    ON_NOTIFY(HDN_ENDTRACKW, TableHeaderCtrl::kWindowId, &TableCtrl::OnHdnEndtrack)
    ON_NOTIFY(HDN_ITEMDBLCLICKA, TableHeaderCtrl::kWindowId, &TableCtrl::OnHdnItemdblclick)
    ON_NOTIFY(HDN_ITEMDBLCLICKW, TableHeaderCtrl::kWindowId, &TableCtrl::OnHdnItemdblclick)
    ON_NOTIFY(HDN_ITEMCLICKA, TableHeaderCtrl::kWindowId, &TableCtrl::OnHdnItemclick)
    ON_NOTIFY(HDN_ITEMCLICKW, TableHeaderCtrl::kWindowId, &TableCtrl::OnHdnItemclick)
END_MESSAGE_MAP()

TableCtrl::TableCtrl() : m_state(std::make_unique<TableCtrlState>(this)) {}

TableCtrl::~TableCtrl() {
    // While the windows live, messages reach the state.
    DestroyWindow();
}

int TableCtrl::Create(int id, CWnd* parent, bool replaceDialogItem) {
    if (parent == nullptr) {
        return 0;
    }
    CRect rect(0, 0, kWidthUntilLaidOut, kWidthUntilLaidOut);
    DWORD style = WS_CHILD | WS_VISIBLE;
    if (replaceDialogItem) {
        CWnd* const item = parent->GetDlgItem(id);
        if (item == nullptr) {
            return 0;
        }
        item->GetWindowRect(&rect);
        parent->ScreenToClient(&rect);
        style = (item->GetStyle() & WS_VISIBLE) | WS_CHILD;
        item->DestroyWindow();
    }
    if (!CWnd::Create(nullptr, L"", style, rect, parent, static_cast<UINT>(id))) {
        return 0;
    }
    if (!createChildren()) {
        DestroyWindow();
        return 0;
    }
    XTPSkinManager()->Remove(m_hWnd);
    return 1;
}

bool TableCtrl::createChildren() {
    if (!m_state->header.createIn(this)) {
        return false;
    }
    UpdateHeaderPos();
    createHeaderFont();
    UpdateHeaderPos(); // the font has given it another height, and the body is placed under it
    m_state->header.ShowWindow(SW_SHOW);
    if (!m_state->list.createIn(this)) {
        return false;
    }
    UpdateListPos();
    m_state->list.ShowWindow(SW_SHOW);
    return true;
}

void TableCtrl::createHeaderFont() {
    LOGFONTW font{};
    if (::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font) == 0) {
        return;
    }
    font.lfWeight = kHeaderFontWeight;
    ::lstrcpynW(font.lfFaceName, kHeaderFontFace, LF_FACESIZE);
    m_state->headerFont.DeleteObject();
    m_state->headerFont.CreateFontIndirect(&font);
    m_state->header.SetFont(&m_state->headerFont, TRUE);
}

void TableCtrl::SetTableHandler(ITableHandler* handler) {
    if (handler != nullptr) {
        handler->SetTableView(this);
        m_state->handler = handler;
        m_state->list.setHandler(handler);
        handler->SetListCtrl(&m_state->list);
    }
}

void TableCtrl::SetContextMenuHandler(std::shared_ptr<IContextMenuBase> contextMenu) {
    m_state->list.setContextMenu(std::move(contextMenu));
}

ITableHandler* TableCtrl::GetHandler() {
    return m_state->handler;
}

CWnd* TableCtrl::GetCtrlOwner() {
    return GetParent();
}

void TableCtrl::UpdateHeaderPos() {
    TableHeaderCtrl& header = m_state->header;
    if (header.GetSafeHwnd() == nullptr) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    WINDOWPOS position{};
    HDLAYOUT layout{&client, &position};
    if (header.Layout(&layout)) {
        ::SetWindowPos(header.m_hWnd, position.hwndInsertAfter, position.x, position.y, position.cx,
                       m_state->headerHidden ? 0 : position.cy, position.flags);
    }
}

void TableCtrl::UpdateListPos() {
    if (m_state->list.GetSafeHwnd() == nullptr) {
        return;
    }
    CRect client;
    GetClientRect(&client);
    CRect header;
    m_state->header.GetWindowRect(&header);
    ScreenToClient(&header);
    m_state->list.MoveWindow(client.left, header.bottom, client.Width(), client.bottom - header.bottom, TRUE);
}

void TableCtrl::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (m_state->list.GetSafeHwnd() != nullptr) {
        UpdateListPos();
    }
    UpdateColumns();
    m_state->columns.widthChangedByUser = false;
    m_state->endSizePending = true;
}

void TableCtrl::OnEndSize() {
    if (std::exchange(m_state->endSizePending, false) && m_state->handler != nullptr) {
        m_state->handler->OnColumnWidthChanged();
    }
}

void TableCtrl::OnSetFocus(CWnd* /*oldWindow*/) {
    if (m_state->list.GetSafeHwnd() != nullptr) {
        m_state->list.SetFocus();
    }
}

BOOL TableCtrl::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (Sm_tableViewDataChangedMessage == message) {
        if (m_state->handler != nullptr) {
            m_state->handler->OnTableViewDataChanged();
        }
        if (result != nullptr) {
            *result = 1;
        }
        return TRUE;
    }
    return CWnd::OnWndMsg(message, wParam, lParam, result);
}

void TableCtrl::NotifyTableViewDataChange() {
    // Without a window the system would post to the calling thread.
    if (const HWND window = m_hWnd) {
        ::PostMessageW(window, Sm_tableViewDataChangedMessage, 0, 0);
    }
}

BOOL TableCtrl::PreTranslateMessage(MSG* message) {
    if (message != nullptr) {
        const HWND list = m_state->list.GetSafeHwnd();
        if (message->message == WM_MOUSEWHEEL) {
            ::SendMessageW(list, WM_MOUSEWHEEL, message->wParam, message->lParam);
        }
        const bool keyOfBody = message->message == WM_KEYDOWN && list != nullptr && message->hwnd == list;
        if (keyOfBody && message->wParam != VK_INSERT && message->wParam != VK_DELETE) {
            ::SendMessageW(list, WM_KEYDOWN, message->wParam, message->lParam);
            if (message->wParam == VK_PRIOR || message->wParam == VK_NEXT) {
                return TRUE;
            }
            // The key still passes to the parent for its accelerators. A parent that lets it through has it
            // dispatched to the body a second time; parents that run IsDialogMessage do not.
            if (CWnd* const parent = GetSafeHwnd() == nullptr ? nullptr : GetParent()) {
                return parent->PreTranslateMessage(message);
            }
        }
    }
    return CWnd::PreTranslateMessage(message);
}

void TableCtrl::HideHeader(bool hide) {
    if (m_state->header.GetSafeHwnd() != nullptr) {
        m_state->headerHidden = hide;
        UpdateHeaderPos();
        UpdateListPos();
    }
}

int TableCtrl::GetHeaderCtrlId() {
    return TableHeaderCtrl::kWindowId;
}

int TableCtrl::GetHeaderHeight() const {
    CRect rect;
    if (m_state->header.GetSafeHwnd() != nullptr) {
        m_state->header.GetWindowRect(&rect);
    }
    return rect.Height();
}

int TableCtrl::GetWidth() const {
    CRect client;
    if (GetSafeHwnd() != nullptr) {
        GetClientRect(&client);
    }
    return client.Width();
}

int TableCtrl::GetListCtrlHeight() {
    return m_state->list.clientHeight();
}

void TableCtrl::EnableColumnWidthTracking(bool enable) {
    m_state->list.enableColumnWidthTracking(enable);
}

void TableCtrl::EnableColumnWidthResizing(bool enable) {
    m_state->header.ModifyStyle(enable ? HDS_NOSIZING : HDS_HOTTRACK, enable ? HDS_HOTTRACK : HDS_NOSIZING);
    if (!enable) {
        m_state->list.enableColumnWidthTracking(false);
    }
}

void TableCtrl::EnableMouseMovingColumns(bool enable) {
    m_state->header.enableMovingColumns(enable);
}

void TableCtrl::RefreshProgramStyleColors() {
    m_state->list.refreshToolTipColors();
}
