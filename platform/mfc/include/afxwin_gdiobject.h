#pragma once

#include "afx.h"
#include "atltypes.h"

class CBitmap;
class CDC;

/// Owner of one GDI object: deletes it when it ends, unless Detach took it back. The object must not be selected into
/// a device context at that moment.
///
/// FromHandle gives the object that owns a handle in this thread, or a temporary one that owns nothing and lives until
/// the thread is idle. The Create functions give FALSE, and leave no handle, when the system refuses.
class ORTIN_MFC_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
public:
    HGDIOBJ m_hObject = nullptr;

    CGdiObject() = default;
    ~CGdiObject() override;

    operator HGDIOBJ() const { return m_hObject; }
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    static CGdiObject* FromHandle(HGDIOBJ hObject);
    /// Frees the temporary objects of this thread.
    static void DeleteTempMap();

    /// Takes the ownership; FALSE for a null handle. The object must be empty.
    BOOL Attach(HGDIOBJ hObject);
    /// Gives the ownership to the caller.
    HGDIOBJ Detach();
    BOOL DeleteObject();

    /// Bytes written to `data`, 0 on failure; with a null `data` the bytes needed.
    int GetObject(int nCount, LPVOID data) const { return ::GetObjectW(m_hObject, nCount, data); }
    /// An OBJ_ value, 0 without a handle.
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    /// A stock object, such as WHITE_BRUSH; deleting it later does no harm.
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    /// Equal if they stand for the same handle.
    friend bool operator==(const CGdiObject& left, const CGdiObject& right) {
        return left.m_hObject == right.m_hObject;
    }
};

class ORTIN_MFC_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    /// These two throw a CResourceException if the pen cannot be made.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0, const DWORD* lpStyle = nullptr);

    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    static CPen* FromHandle(HPEN hPen) { return static_cast<CPen*>(CGdiObject::FromHandle(hPen)); }

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
        return Attach(::CreatePen(nPenStyle, nWidth, crColor));
    }
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return Attach(::CreatePenIndirect(lpLogPen)); }

    int GetLogPen(LOGPEN* pLogPen) const { return GetObject(sizeof(LOGPEN), pLogPen); }
    int GetExtLogPen(EXTLOGPEN* pLogPen) const { return GetObject(sizeof(EXTLOGPEN), pLogPen); }
};

class ORTIN_MFC_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    /// These three throw a CResourceException if the brush cannot be made.
    explicit CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);

    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    static CBrush* FromHandle(HBRUSH hBrush) { return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush)); }

    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor) { return Attach(::CreateHatchBrush(nIndex, crColor)); }
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) { return Attach(::CreateBrushIndirect(lpLogBrush)); }
    /// The bitmap stays the caller's and is not needed afterwards.
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    /// A brush of the system's own for a COLOR_ index.
    BOOL CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }

    int GetLogBrush(LOGBRUSH* pLogBrush) const { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

class ORTIN_MFC_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)
public:
    CFont() = default;

    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    static CFont* FromHandle(HFONT hFont) { return static_cast<CFont*>(CGdiObject::FromHandle(hFont)); }

    BOOL CreateFontIndirect(const LOGFONTW* lpLogFont) { return Attach(::CreateFontIndirectW(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCWSTR lpszFacename);
    /// The height is in tenths of a point, turned into logical units of `pDC`, or of the screen without it.
    BOOL CreatePointFont(int nPointSize, LPCWSTR lpszFaceName, CDC* pDC = nullptr);
    BOOL CreatePointFontIndirect(const LOGFONTW* lpLogFont, CDC* pDC = nullptr);

    int GetLogFont(LOGFONTW* pLogFont) const { return GetObject(sizeof(LOGFONTW), pLogFont); }
};

class ORTIN_MFC_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap() = default;

    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    static CBitmap* FromHandle(HBITMAP hBitmap) { return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap)); }

    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
        return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap) { return Attach(::CreateBitmapIndirect(lpBitmap)); }
    /// Pixels as in what `pDC` draws to; a memory context draws to one colour until a bitmap is selected.
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);

    int GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits);
    /// Units of 0.1 mm that an application notes with the bitmap; the system makes no use of them.
    CSize SetBitmapDimension(int nWidth, int nHeight);
    CSize GetBitmapDimension() const;
};

/// A region in device units. Functions that combine give SIMPLEREGION, COMPLEXREGION, NULLREGION or ERROR.
class ORTIN_MFC_API CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn() = default;

    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    static CRgn* FromHandle(HRGN hRgn) { return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn)); }

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateEllipticRgn(x1, y1, x2, y2)); }
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect) { return Attach(::CreateEllipticRgnIndirect(lpRect)); }
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode) {
        return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
    }
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
        return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
    }

    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT lpRect) { SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    int CopyRgn(const CRgn* pRgnSrc);
    BOOL EqualRgn(const CRgn* pRgn) const;
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return OffsetRgn(point.x, point.y); }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return ::RectInRegion(*this, lpRect); }
};
