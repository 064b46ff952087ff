// The window of a preview: its place in the dialog, its scale, its scroll bars and buttons.

#include <OrtinControls/PrintPreviewWindow.h>

#include <OrtinControls/IPrintable.h>
#include <OrtinControls/PrintInfoEx.h>
#include <OrtinFoundation/Keyboard.h>
#include <OrtinFoundation/ResourceHandleManager.h>

#include "../graphics/ScopedFlag.h"
#include "../module/ModuleRecord.h"
#include "LentPrinterDC.h"
#include "PreviewLayout.h"
#include "StretchedPages.h"

namespace {

constexpr UINT kIncreaseId = 1;
constexpr UINT kDecreaseId = 2;
constexpr UINT kIncreaseIcon = 3012;
constexpr UINT kDecreaseIcon = 3011;
constexpr CSize kIconSize(16, 16);
constexpr DWORD kButtonStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;

constexpr UINT_PTR kAutoHideTimer = 1;
constexpr UINT kAutoHideDelay = 5000; // milliseconds

constexpr double kButtonStep = 0.1;
constexpr int kWheelUnits = 4; // of the bar, or of a tenth of the scale, for a notch

CRect toRect(const PreviewLayout::Box& box) {
    return CRect(box.left, box.top, box.right, box.bottom);
}

} // namespace

IMPLEMENT_DYNAMIC(PrintPreviewWindow, CWnd)

BEGIN_MESSAGE_MAP(PrintPreviewWindow, CWnd)
    ON_WM_VSCROLL()
    ON_WM_HSCROLL()
    ON_WM_PAINT()
    ON_WM_MOUSEWHEEL()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_BN_CLICKED(kIncreaseId, &PrintPreviewWindow::OnBnIncreasePreviewSize)
    ON_BN_CLICKED(kDecreaseId, &PrintPreviewWindow::OnBnDecreasePreviewSize)
    ON_WM_SIZE()
    ON_WM_TIMER()
END_MESSAGE_MAP()

PrintPreviewWindow::PrintPreviewWindow()
    : m_stretchedPages(std::make_unique<StretchedPages>()),
      m_leftMargin(PreviewLayout::kLeastLeftMargin) {}

PrintPreviewWindow::~PrintPreviewWindow() {
    // While the window lives, messages reach the buttons.
    DestroyWindow();
}

void PrintPreviewWindow::Init(PrintInfoEx* printInfo, IPrintable* printable) {
    m_printInfo = printInfo;
    m_printable = printable;
}

int PrintPreviewWindow::Create(unsigned int id, CWnd* parent) {
    CWnd* const placeholder = parent == nullptr ? nullptr : parent->GetDlgItem(static_cast<int>(id));
    if (placeholder == nullptr) {
        return 0;
    }
    CRect rect = CXTPWindowRect(placeholder);
    parent->ScreenToClient(&rect);
    const DWORD style = placeholder->GetStyle() | WS_CHILD | WS_VISIBLE;
    placeholder->DestroyWindow();
    const BOOL created = CWnd::Create(nullptr, L"", style, rect, parent, id);
    if (created) {
        CreateButtons();
        ShowButtons(SW_SHOW);
        SetTimer(kAutoHideTimer, kAutoHideDelay);
    }
    return created;
}

void PrintPreviewWindow::CreateButtons() {
    const ResourceHandleManager resources(ModuleRecord::get().GetModuleInstance());
    const CRect rect(CPoint(0, 0), kIconSize);
    m_increaseButton.Create(L"", kButtonStyle, rect, this, kIncreaseId);
    m_decreaseButton.Create(L"", kButtonStyle, rect, this, kDecreaseId);
    m_increaseButton.SetIcon(kIconSize, kIncreaseIcon);
    m_decreaseButton.SetIcon(kIconSize, kDecreaseIcon);
    RepositionButtons();
}

void PrintPreviewWindow::RepositionButtons() {
    const CXTPClientRect client(this);
    const PreviewLayout::Buttons buttons = PreviewLayout::buttons(client.Width(), client.Height());
    m_increaseButton.MoveWindow(toRect(buttons.increase));
    m_decreaseButton.MoveWindow(toRect(buttons.decrease));
    m_buttonsHotRect = toRect(buttons.hot);
}

void PrintPreviewWindow::ShowButtons(int show) {
    m_increaseButton.ShowWindow(show);
    m_decreaseButton.ShowWindow(show);
}

void PrintPreviewWindow::Update(HDC printerDC) {
    if (GetSafeHwnd() == nullptr || m_printInfo == nullptr || m_printable == nullptr) {
        return;
    }
    ++m_updates;
    m_pageBitmaps.clear();
    m_stretchedPages->clear();
    {
        LentPrinterDC dc(printerDC);
        m_printable->OnBeginPrinting(&dc, m_printInfo);
        m_pageRect.SetRect(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
        m_previewRect = m_pageRect;
    }
    ChangePreviewAreaScale(0.0);
}

void PrintPreviewWindow::ChangePreviewAreaScale(double delta) {
    // Written so that a scale that is no number is refused too.
    if (GetSafeHwnd() == nullptr || !(m_scale + delta >= PreviewLayout::kLeastScale)) {
        return;
    }
    SetRedraw(FALSE);
    m_scale += delta;
    m_previewRect.right = PreviewLayout::scaled(m_pageRect.right, m_scale);
    m_previewRect.bottom = PreviewLayout::scaled(m_pageRect.bottom, m_scale);
    centrePages();
    UpdateVerticalScroll();
    UpdateHorizontalScroll();
    SetRedraw(TRUE);
    Invalidate(TRUE);
}

void PrintPreviewWindow::centrePages() {
    CRect client = CXTPClientRect(this);
    if (CalculateTotalHeight() > client.Height()) {
        ShowScrollBar(SB_VERT, TRUE);
        client = CXTPClientRect(this);
    }
    m_leftMargin = PreviewLayout::leftMargin(client.Width(), m_previewRect.Width());
}

int PrintPreviewWindow::CalculateTotalHeight() {
    return m_printInfo == nullptr
               ? -1
               : PreviewLayout::totalHeight(m_previewRect.Height(), m_printInfo->PagesToPrintCount());
}

bool PrintPreviewWindow::UpdateVerticalScroll() {
    return updateBar(SB_VERT, CXTPClientRect(this).Height(), CalculateTotalHeight());
}

bool PrintPreviewWindow::UpdateHorizontalScroll() {
    return updateBar(SB_HORZ, CXTPClientRect(this).Width(),
                     PreviewLayout::totalWidth(m_previewRect.Width(), m_leftMargin));
}

bool PrintPreviewWindow::updateBar(int bar, int clientExtent, int totalExtent) {
    const PreviewLayout::BarExtent extent = PreviewLayout::barExtent(clientExtent, totalExtent);
    SCROLLINFO info{};
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = extent.maximum;
    info.nPage = static_cast<UINT>(extent.page);
    SetScrollInfo(bar, &info, TRUE);
    ShowScrollBar(static_cast<UINT>(bar), extent.shown);
    return extent.shown;
}

void PrintPreviewWindow::ScaleToAvailableArea() {
    if (GetSafeHwnd() == nullptr) {
        return;
    }
    const int client = CXTPClientRect(this).Width();
    const int available = client - 2 * m_leftMargin;
    if (available >= m_pageRect.Width()) {
        // Meant: the margin of the page at its own size, whatever the scale, which stays.
        m_leftMargin = (client - m_pageRect.Width()) / 2;
        Invalidate(TRUE);
    } else {
        ChangePreviewAreaScale(static_cast<double>(available) / m_pageRect.Width() - m_scale);
    }
}

void PrintPreviewWindow::HandleScroll(unsigned int code, unsigned int position, int bar, int extent) {
    ShowButtons(SW_HIDE);
    PreviewLayout::BarState state{GetScrollPos(bar), 0, 0};
    GetScrollRange(bar, &state.minimum, &state.maximum);
    if (const std::optional<int> next = PreviewLayout::afterCommand(code, position, state, extent)) {
        SetScrollPos(bar, *next, TRUE);
        Invalidate(TRUE);
    }
}

void PrintPreviewWindow::OnVScroll(UINT code, UINT position, CScrollBar* bar) {
    HandleScroll(code, position, SB_VERT, CXTPClientRect(this).Height());
    CWnd::OnVScroll(code, position, bar);
}

void PrintPreviewWindow::OnHScroll(UINT code, UINT position, CScrollBar* bar) {
    HandleScroll(code, position, SB_HORZ, CXTPClientRect(this).Width());
    CWnd::OnHScroll(code, position, bar);
}

BOOL PrintPreviewWindow::OnMouseWheel(UINT /*flags*/, short delta, CPoint /*point*/) {
    const int units = delta / WHEEL_DELTA * kWheelUnits;
    if (OrtinTools::Keyboard::IsCtrlPressed()) {
        ChangePreviewAreaScale(units * kButtonStep);
        return 1;
    }
    ShowButtons(SW_HIDE);
    SCROLLINFO info{};
    if (!GetScrollInfo(SB_VERT, &info, SIF_PAGE) || info.nPage == 0) {
        return 1;
    }
    SetScrollPos(SB_VERT, GetScrollPos(SB_VERT) - units, TRUE);
    Invalidate(TRUE);
    return static_cast<BOOL>(Default());
}

void PrintPreviewWindow::OnBnIncreasePreviewSize() {
    ChangePreviewAreaScale(kButtonStep);
}

void PrintPreviewWindow::OnBnDecreasePreviewSize() {
    ChangePreviewAreaScale(-kButtonStep);
}

bool PrintPreviewWindow::isInHotRect(CPoint point) const {
    return m_buttonsHotRect.PtInRect(point);
}

void PrintPreviewWindow::OnTimer(UINT_PTR id) {
    if (id == kAutoHideTimer) {
        KillTimer(kAutoHideTimer);
        CPoint cursor;
        ::GetCursorPos(&cursor);
        ScreenToClient(&cursor);
        ShowButtons(isInHotRect(cursor) ? SW_SHOW : SW_HIDE);
        m_buttonsAutoHide = true;
    }
    Default();
}

void PrintPreviewWindow::OnMouseMove(UINT /*flags*/, CPoint point) {
    if (m_buttonsAutoHide) {
        ShowButtons(isInHotRect(point) ? SW_SHOW : SW_HIDE);
    }
    Default();
}

void PrintPreviewWindow::OnLButtonDown(UINT /*flags*/, CPoint /*point*/) {
    SetFocus();
    Default();
}

void PrintPreviewWindow::OnSize(UINT /*type*/, int /*cx*/, int /*cy*/) {
    Default();
    // Showing and hiding the bars comes back here.
    if (m_inOnSize || m_previewRect.Width() == 0) {
        return;
    }
    const ScopedFlag sizing(m_inOnSize);
    centrePages();
    UpdateVerticalScroll();
    UpdateHorizontalScroll();
    RepositionButtons();
    SetRedraw(TRUE);
    Invalidate(TRUE);
}
