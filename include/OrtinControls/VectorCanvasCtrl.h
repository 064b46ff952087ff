#pragma once

#include <mutex>

#include <OrtinControls/Export.h>
#include <afxwin.h>

namespace VectorCanvas {

class IVectorPainter;

/// The window that shows what a painter has drawn. It draws nothing itself: it copies the painter's picture when the
/// painter says that one is ready, and when the system asks for a repaint.
///
/// The painter is the host's and outlives the window, at whose end it lets its surfaces go. A painter of the host's own
/// may destroy the window from inside the calls that it gets, but not delete the object. The copy runs in the
/// window's thread under a lock of the window, which orders copies among themselves only; see VectorPainterGdi for what
/// a host that renders in another thread has to keep apart.
class ORTIN_CONTROLS_API VectorCanvasCtrl : public CWnd {
    DECLARE_DYNAMIC(VectorCanvasCtrl)
public:
    explicit VectorCanvasCtrl(IVectorPainter* painter);
    VectorCanvasCtrl(const VectorCanvasCtrl&) = delete;
    VectorCanvasCtrl& operator=(const VectorCanvasCtrl&) = delete;
    ~VectorCanvasCtrl() override;

    /// The message, without parameters, by which a painter says that a picture is ready. The same number in all
    /// programs of the session.
    static unsigned int GetUpdatePaintingMessage();

    using CWnd::Create;
    /// Makes the window and tells the painter of it and of its client size. 0 without a painter, or if there is no
    /// window to be had.
    virtual BOOL Create(const wchar_t* windowName, unsigned long style, const CRect& rect, CWnd* parent,
                        unsigned int id);

protected:
    /// Copies the picture to `origin` of `dc`, and fills what the client area has beside it.
    virtual void Draw(CDC* dc, const CPoint& origin);

    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    IVectorPainter* m_painter;

protected:
    /// Of what the client area has beside the picture. For derived classes to set.
    COLORREF m_marginColor = 0;

private:
    std::recursive_mutex m_lock;
};

} // namespace VectorCanvas
