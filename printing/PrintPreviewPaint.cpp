// The painting of a preview: pages are drawn once and stretched from then on.

#include <OrtinControls/PrintPreviewWindow.h>

#include <utility>

#include <OrtinControls/IPrintable.h>
#include <OrtinControls/PrintInfoEx.h>
#include <OrtinControls/SystemColors.h>
#include <OrtinFoundation/DeletableDC.h>

#include "../graphics/ScopedFlag.h"
#include "PreviewLayout.h"
#include "StretchedPages.h"

namespace {

constexpr unsigned int kSceneColor = 35;
constexpr unsigned int kShadowColor = 54;
constexpr COLORREF kPaper = 0xFFFFFF;
constexpr COLORREF kUnknownThemeColor = 0xFF00FF;
constexpr int kCornerSize = 2;

/// What a printable does to a context ends with the scope.
class SavedState {
public:
    explicit SavedState(CDC& dc) : m_dc(dc), m_state(dc.SaveDC()) {}
    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;
    ~SavedState() { m_dc.RestoreDC(m_state); }

private:
    CDC& m_dc;
    int m_state;
};

} // namespace

void PrintPreviewWindow::OnPaint() {
    if (m_drawing) { // a printable that lets messages through gets its paint afterwards
        m_drawAgain = true;
        Default();
        return;
    }
    {
        const ScopedFlag drawing(m_drawing);
        CPaintDC paint(this);
        CXTPBufferDC buffer(paint);
        Draw(&buffer);
    }
    if (std::exchange(m_drawAgain, false) && GetSafeHwnd() != nullptr) {
        Invalidate(FALSE);
    }
}

void PrintPreviewWindow::Draw(CDC* dc) {
    DrawScene(dc, CXTPClientRect(this));
    int first = -1;
    int last = -1;
    FindVisiblePages(first, last);
    if (first < 0 || last < 0 || m_printable == nullptr) {
        return;
    }
    const int pageHeight = m_previewRect.Height();
    const int x = PreviewLayout::leftOfPages(m_leftMargin, GetScrollPos(SB_HORZ));
    const int position = GetScrollPos(SB_VERT);
    std::shared_ptr<CBitmap> bitmap; // lives on behind the context that it is selected into
    DeletableDC memory(dc, true);
    dc->SetStretchBltMode(HALFTONE);
    const int firstPage = m_printInfo->FirstPageToPrintIndex();
    const int step = m_printInfo->LastPageToPrintIndex() < firstPage ? -1 : 1;
    const unsigned int update = m_updates;
    for (int place = first; place <= last; ++place) {
        const int page = firstPage + step * place;
        const int y = PreviewLayout::topOfPage(place, pageHeight, position);
        m_printInfo->SetCurrentPage(page);
        DrawPageShadow(dc, x, y);
        if (auto next = SetupPageBitmap(page, dc, &memory)) {
            bitmap = std::move(next);
            m_stretchedPages->draw(*dc, CRect(CPoint(x, y), m_previewRect.Size()), memory, bitmap,
                                   m_printInfo->PrintAreaInObjectUnits().Size());
        }
        if (GetSafeHwnd() == nullptr || m_updates != update) {
            return; // the printable closed the window or began anew
        }
    }
    m_stretchedPages->forgetUnused();
}

std::shared_ptr<CBitmap> PrintPreviewWindow::SetupPageBitmap(int page, CDC* dc, CDC* memoryDC) {
    if (const auto known = m_pageBitmaps.find(page); known != m_pageBitmaps.end()) {
        memoryDC->SelectObject(known->second.get());
        return known->second;
    }
    auto bitmap = std::make_shared<CBitmap>();
    if (m_pageRect.IsRectEmpty() || !bitmap->CreateCompatibleBitmap(dc, m_pageRect.Width(), m_pageRect.Height())) {
        return nullptr;
    }
    {
        // Also of the selection: a bitmap that is still selected when a printable throws could not be deleted.
        const SavedState state(*memoryDC);
        if (memoryDC->SelectObject(bitmap.get()) == nullptr) {
            return nullptr;
        }
        DrawPageScene(memoryDC, m_pageRect);
        // Kept whatever comes: a page whose drawing throws would throw again at each paint.
        m_pageBitmaps[page] = bitmap;
        m_printable->OnPrint(memoryDC, m_printInfo);
    }
    memoryDC->SelectObject(bitmap.get());
    return bitmap;
}

void PrintPreviewWindow::FindVisiblePages(int& first, int& last) {
    first = -1;
    last = -1;
    if (m_printInfo != nullptr) {
        const PreviewLayout::VisiblePages visible =
            PreviewLayout::visiblePages(m_previewRect.Height(), m_printInfo->PagesToPrintCount(),
                                        CXTPClientRect(this).Height(), GetScrollPos(SB_VERT));
        first = visible.first;
        last = visible.last;
    }
}

void PrintPreviewWindow::DrawScene(CDC* dc, const CRect& rect) {
    dc->FillSolidRect(&rect, SystemColors::GetXThemeColor(kSceneColor));
}

void PrintPreviewWindow::DrawPageScene(CDC* dc, const CRect& rect) {
    const EThemeColor theme = SystemColors::GetCurrentDomainColor();
    dc->FillSolidRect(&rect, theme == WhiteTheme || theme == BlackTheme ? kPaper : kUnknownThemeColor);
}

void PrintPreviewWindow::DrawPageShadow(CDC* dc, int x, int y) {
    const int offset = PreviewLayout::shadowOffset(m_previewRect.Width());
    const CRect shadow(CPoint(x + offset, y + offset), m_previewRect.Size());
    dc->FillSolidRect(&shadow, SystemColors::GetXThemeColor(kShadowColor));
}

void PrintPreviewWindow::Button::OnDraw(CDC* dc) {
    const CXTPClientRect client(this);
    CRgn region;
    region.CreateRoundRectRgn(client.left, client.top, client.right + 1, client.bottom + 1, kCornerSize, kCornerSize);
    region.OffsetRgn(
        dc->GetViewportOrg()); // clips are in pixels of the device, which may hold a part of the button only
    dc->SelectClipRgn(&region);
    CXTPButton::OnDraw(dc);
    dc->SelectClipRgn(nullptr);
    region.DeleteObject();
}
