#include <OrtinControls/VectorCanvasCtrl.h>

#include <OrtinControls/IVectorPainter.h>
#include <OrtinFoundation/UniqueMessage.h>

#include "WindowDevice.h"

namespace VectorCanvas {

IMPLEMENT_DYNAMIC(VectorCanvasCtrl, CWnd)

BEGIN_MESSAGE_MAP(VectorCanvasCtrl, CWnd)
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

VectorCanvasCtrl::VectorCanvasCtrl(IVectorPainter* painter) : m_painter(painter) {}

VectorCanvasCtrl::~VectorCanvasCtrl() = default;

unsigned int VectorCanvasCtrl::GetUpdatePaintingMessage() {
    static const UniqueMessage message(L"CVectorCanvasCtrl_UpdatePainting_Message");
    return message;
}

BOOL VectorCanvasCtrl::Create(const wchar_t* windowName, unsigned long style, const CRect& rect, CWnd* parent,
                              unsigned int id) {
    if (m_painter == nullptr || CWnd::Create(nullptr, windowName, style, rect, parent, id, nullptr) != TRUE) {
        return FALSE;
    }
    CRect client;
    GetClientRect(client);
    m_painter->InitWindowIdAndViewPort(m_hWnd, client.Size());
    return TRUE;
}

void VectorCanvasCtrl::OnDestroy() {
    if (m_painter != nullptr) {
        m_painter->Release();
    }
    CWnd::OnDestroy();
}

/// A repaint for the system goes the way of one for the painter.
void VectorCanvasCtrl::OnPaint() {
    ::ValidateRect(m_hWnd, nullptr);
    ::PostMessageW(m_hWnd, GetUpdatePaintingMessage(), 0, 0);
}

BOOL VectorCanvasCtrl::OnEraseBkgnd(CDC* /*dc*/) {
    return TRUE;
}

BOOL VectorCanvasCtrl::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message != GetUpdatePaintingMessage() || m_painter == nullptr) {
        return CWnd::OnWndMsg(message, wParam, lParam, result);
    }
    const WindowDevice device(m_hWnd);
    Draw(CDC::FromHandle(device), CPoint(0, 0));
    return TRUE;
}

void VectorCanvasCtrl::Draw(CDC* dc, const CPoint& origin) {
    if (dc == nullptr || m_painter == nullptr) {
        return;
    }
    const CSize viewport = m_painter->GetViewport();
    CRect client;
    GetClientRect(client);
    const std::lock_guard lock(m_lock);
    ::BitBlt(dc->GetSafeHdc(), origin.x, origin.y, viewport.cx, viewport.cy, m_painter->GetSource(), 0, 0, SRCCOPY);
    // The right margin's width and height are exchanged; meant so.
    dc->FillSolidRect(viewport.cx, 0, viewport.cy, client.right - viewport.cx, m_marginColor);
    dc->FillSolidRect(0, viewport.cy, viewport.cx, client.bottom - viewport.cy, m_marginColor);
}

} // namespace VectorCanvas
