#pragma once

#include "XtpApi.h"

#include <afxwin.h>

/// The client rectangle of a window as it was at construction, in client coordinates; empty without a window.
class ORTIN_XTP_API CXTPClientRect : public CRect {
public:
    explicit CXTPClientRect(HWND hWnd);
    explicit CXTPClientRect(const CWnd* pWnd);
};

/// The rectangle of a window as it was at construction, in screen coordinates; empty without a window.
class ORTIN_XTP_API CXTPWindowRect : public CRect {
public:
    explicit CXTPWindowRect(HWND hWnd);
    explicit CXTPWindowRect(const CWnd* pWnd);
};

/// A memory context that stands for a part of another one, in the same coordinates, and is copied there when it ends.
///
/// It begins undefined, so all of the part is to be painted. The target outlives it. If memory lacks, or the part is
/// empty, what is drawn is lost.
class ORTIN_XTP_API CXTPBufferDC : public CDC {
public:
    /// The part that is to be painted.
    explicit CXTPBufferDC(CPaintDC& paintDC);
    CXTPBufferDC(HDC hDestDC, const CRect& rcPaint);
    ~CXTPBufferDC() override;

private:
    HDC m_target;
    CRect m_part;
    HBITMAP m_bitmap;
    HGDIOBJ m_previousBitmap = nullptr;
};

/// A pen that is selected into a context for as long as the object lives, and deleted with it.
class ORTIN_XTP_API CXTPPenDC {
public:
    CXTPPenDC(HDC hDC, COLORREF crColor, int nPenStyle = PS_SOLID, int nWidth = 1);
    ~CXTPPenDC();
    CXTPPenDC(const CXTPPenDC&) = delete;
    CXTPPenDC& operator=(const CXTPPenDC&) = delete;

private:
    HDC m_context;
    CPen m_pen;
    HGDIOBJ m_previousPen;
};

/// A bitmap that is selected into a memory context for as long as the object lives. Both outlive it.
class ORTIN_XTP_API CXTPBitmapDC {
public:
    CXTPBitmapDC(CDC* pDC, CBitmap* pBitmap);
    ~CXTPBitmapDC();
    CXTPBitmapDC(const CXTPBitmapDC&) = delete;
    CXTPBitmapDC& operator=(const CXTPBitmapDC&) = delete;

private:
    HDC m_context;
    HGDIOBJ m_previousBitmap;
};
