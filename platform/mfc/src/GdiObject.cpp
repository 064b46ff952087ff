#include "HandleMap.h"
#include "afxwin_dc.h"

#include <cstdlib>

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace {

std::unique_ptr<CGdiObject> makeObjectOfKind(UINT kind) {
    switch (kind) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return std::make_unique<CPen>();
    case OBJ_BRUSH:
        return std::make_unique<CBrush>();
    case OBJ_FONT:
        return std::make_unique<CFont>();
    case OBJ_BITMAP:
        return std::make_unique<CBitmap>();
    case OBJ_REGION:
        return std::make_unique<CRgn>();
    default:
        return std::make_unique<CGdiObject>();
    }
}

struct GdiObjectTraits {
    using Object = CGdiObject;
    using Handle = HGDIOBJ;

    static std::unique_ptr<CGdiObject> make(HGDIOBJ handle) { return makeObjectOfKind(::GetObjectType(handle)); }
    static HGDIOBJ handleOf(const CGdiObject& object) { return object.m_hObject; }
    static void setHandle(CGdiObject& object, HGDIOBJ handle) noexcept { object.m_hObject = handle; }
};

using GdiObjectMap = HandleMap<GdiObjectTraits>;

void needResource(BOOL made) {
    if (!made) {
        AfxThrowResourceException();
    }
}

} // namespace

CGdiObject::~CGdiObject() {
    DeleteObject();
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject) {
    return GdiObjectMap::ofThread().fromHandle(hObject);
}

void CGdiObject::DeleteTempMap() {
    GdiObjectMap::ofThread().deleteTemporaries();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    return GdiObjectMap::ofThread().attach(*this, hObject);
}

HGDIOBJ CGdiObject::Detach() {
    return GdiObjectMap::ofThread().detach(*this);
}

BOOL CGdiObject::DeleteObject() {
    return m_hObject != nullptr && ::DeleteObject(Detach());
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    needResource(CreatePen(nPenStyle, nWidth, crColor));
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle) {
    needResource(CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle) {
    return Attach(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                 static_cast<DWORD>(nStyleCount), lpStyle));
}

CBrush::CBrush(COLORREF crColor) {
    needResource(CreateSolidBrush(crColor));
}

CBrush::CBrush(int nIndex, COLORREF crColor) {
    needResource(CreateHatchBrush(nIndex, crColor));
}

CBrush::CBrush(CBitmap* pBitmap) {
    needResource(CreatePatternBrush(pBitmap));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return Attach(::CreatePatternBrush(*pBitmap));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                       BYTE nQuality, BYTE nPitchAndFamily, LPCWSTR lpszFacename) {
    return Attach(::CreateFontW(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline, cStrikeOut,
                                nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCWSTR lpszFaceName, CDC* pDC) {
    LOGFONTW description{};
    description.lfCharSet = DEFAULT_CHARSET;
    description.lfHeight = nPointSize;
    lstrcpynW(description.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&description, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONTW* lpLogFont, CDC* pDC) {
    constexpr int tenthsOfPointInInch = 720;
    const HDC device = pDC != nullptr ? pDC->m_hAttribDC : ::GetDC(nullptr);
    POINT size{0, ::MulDiv(::GetDeviceCaps(device, LOGPIXELSY), lpLogFont->lfHeight, tenthsOfPointInInch)};
    POINT origin{};
    ::DPtoLP(device, &size, 1);
    ::DPtoLP(device, &origin, 1);
    if (pDC == nullptr) {
        ::ReleaseDC(nullptr, device);
    }
    LOGFONTW description = *lpLogFont;
    // A negative height means the height of the letters without the leading above them, which is what points measure.
    description.lfHeight = -std::abs(size.y - origin.y);
    return CreateFontIndirect(&description);
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
}

DWORD CBitmap::SetBitmapBits(DWORD dwCount, const void* lpBits) {
    return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) {
    CSize previous;
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &previous);
    return previous;
}

CSize CBitmap::GetBitmapDimension() const {
    CSize dimension;
    ::GetBitmapDimensionEx(*this, &dimension);
    return dimension;
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, pRgn1 != nullptr ? static_cast<HRGN>(*pRgn1) : nullptr,
                        pRgn2 != nullptr ? static_cast<HRGN>(*pRgn2) : nullptr, nCombineMode);
}

int CRgn::CopyRgn(const CRgn* pRgnSrc) {
    return ::CombineRgn(*this, *pRgnSrc, nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(const CRgn* pRgn) const {
    return ::EqualRgn(*this, *pRgn);
}
