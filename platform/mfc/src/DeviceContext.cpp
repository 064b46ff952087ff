#include "HandleMap.h"
#include "afxwin_dc.h"

IMPLEMENT_DYNCREATE(CDC, CObject)

namespace {

struct DeviceContextTraits {
    using Object = CDC;
    using Handle = HDC;

    static std::unique_ptr<CDC> make(HDC) { return std::make_unique<CDC>(); }
    static HDC handleOf(const CDC& context) { return context.m_hDC; }
    static void setHandle(CDC& context, HDC handle) noexcept { context.m_hDC = context.m_hAttribDC = handle; }
};

using DeviceContextMap = HandleMap<DeviceContextTraits>;

template <typename Owner>
HGDIOBJ handleOf(const Owner* object) {
    return object != nullptr ? object->m_hObject : nullptr;
}

} // namespace

CDC::~CDC() {
    DeleteDC();
}

CDC* CDC::FromHandle(HDC hDC) {
    return DeviceContextMap::ofThread().fromHandle(hDC);
}

void CDC::DeleteTempMap() {
    DeviceContextMap::ofThread().deleteTemporaries();
}

BOOL CDC::Attach(HDC hDC) {
    if (!DeviceContextMap::ofThread().attach(*this, hDC)) {
        return FALSE;
    }
    // Derived classes may want another one for the attributes.
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach() {
    ReleaseAttribDC();
    return DeviceContextMap::ofThread().detach(*this);
}

BOOL CDC::CreateDC(LPCWSTR lpszDriverName, LPCWSTR lpszDeviceName, LPCWSTR lpszOutput, const void* lpInitData) {
    return Attach(::CreateDCW(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODEW*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCWSTR lpszDriverName, LPCWSTR lpszDeviceName, LPCWSTR lpszOutput, const void* lpInitData) {
    return Attach(::CreateICW(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODEW*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return Attach(::CreateCompatibleDC(pDC != nullptr ? pDC->m_hDC : nullptr));
}

BOOL CDC::DeleteDC() {
    return m_hDC != nullptr && ::DeleteDC(Detach());
}

void CDC::SetOutputDC(HDC hDC) {
    DeviceContextMap::ofThread().forget(*this);
    m_hDC = hDC;
}

void CDC::ReleaseOutputDC() {
    SetOutputDC(nullptr);
}

int CDC::SaveDC() {
    const int saved = ::SaveDC(m_hDC);
    return hasOwnAttributes() && saved != 0 ? ::SaveDC(m_hAttribDC) : saved;
}

BOOL CDC::RestoreDC(int nSavedDC) {
    if (!hasOwnAttributes()) {
        return ::RestoreDC(m_hDC, nSavedDC);
    }
    const BOOL restored = m_hDC == nullptr || ::RestoreDC(m_hDC, nSavedDC);
    return ::RestoreDC(m_hAttribDC, nSavedDC) && restored;
}

HGDIOBJ CDC::selectInBoth(HGDIOBJ object) {
    HGDIOBJ previous = m_hDC != nullptr ? ::SelectObject(m_hDC, object) : nullptr;
    if (hasOwnAttributes()) {
        previous = ::SelectObject(m_hAttribDC, object);
    }
    return previous;
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(selectInBoth(::GetStockObject(nIndex)));
}

CPen* CDC::SelectObject(CPen* pPen) {
    return static_cast<CPen*>(CGdiObject::FromHandle(selectInBoth(handleOf(pPen))));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return static_cast<CBrush*>(CGdiObject::FromHandle(selectInBoth(handleOf(pBrush))));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return static_cast<CFont*>(CGdiObject::FromHandle(selectInBoth(handleOf(pFont))));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    // A bitmap fits into one context only.
    return static_cast<CBitmap*>(CGdiObject::FromHandle(::SelectObject(m_hDC, handleOf(pBitmap))));
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    return CGdiObject::FromHandle(selectInBoth(handleOf(pObject)));
}

int CDC::SelectObject(CRgn* pRgn) {
    return static_cast<int>(reinterpret_cast<INT_PTR>(selectInBoth(handleOf(pRgn))));
}

CPen* CDC::GetCurrentPen() const {
    return static_cast<CPen*>(CGdiObject::FromHandle(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const {
    return static_cast<CBrush*>(CGdiObject::FromHandle(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CFont* CDC::GetCurrentFont() const {
    return static_cast<CFont*>(CGdiObject::FromHandle(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const {
    return static_cast<CBitmap*>(CGdiObject::FromHandle(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
}

CPoint CDC::GetBrushOrg() const {
    CPoint origin;
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y) {
    CPoint previous;
    ::SetBrushOrgEx(m_hDC, x, y, &previous);
    return previous;
}

COLORREF CDC::SetBkColor(COLORREF crColor) {
    const COLORREF previous = ::SetBkColor(m_hDC, crColor);
    return hasOwnAttributes() ? ::SetBkColor(m_hAttribDC, crColor) : previous;
}

COLORREF CDC::SetTextColor(COLORREF crColor) {
    const COLORREF previous = ::SetTextColor(m_hDC, crColor);
    return hasOwnAttributes() ? ::SetTextColor(m_hAttribDC, crColor) : previous;
}

UINT CDC::SetTextAlign(UINT nFlags) {
    const UINT previous = ::SetTextAlign(m_hDC, nFlags);
    return hasOwnAttributes() ? ::SetTextAlign(m_hAttribDC, nFlags) : previous;
}

int CDC::SetTextCharacterExtra(int nCharExtra) {
    const int previous = ::SetTextCharacterExtra(m_hDC, nCharExtra);
    return hasOwnAttributes() ? ::SetTextCharacterExtra(m_hAttribDC, nCharExtra) : previous;
}

int CDC::SelectClipRgn(CRgn* pRgn) {
    return ::SelectClipRgn(m_hDC, static_cast<HRGN>(handleOf(pRgn)));
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    return ::ExtSelectClipRgn(m_hDC, static_cast<HRGN>(handleOf(pRgn)), nMode);
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return ::ExcludeClipRect(m_hDC, x1, y1, x2, y2);
}
