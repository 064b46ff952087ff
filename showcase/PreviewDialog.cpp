#include "PreviewDialog.h"

#include <OrtinControls/CtrlsTools.h>

#include <algorithm>

namespace Desk {

namespace {

constexpr int PagesId = 100;
constexpr int ZoomOutId = 101;
constexpr int ZoomInId = 102;
constexpr int FitWidthId = 103;
constexpr int ShowId = 106;
constexpr int DownBarId = 107;
constexpr int AcrossBarId = 108;

constexpr double ZoomStep = 0.1;

/// At 96 pixels to the inch.
constexpr int Width = 860;
constexpr int Height = 680;
constexpr int LeastWidth = 740; ///< all controls of the strip in a row
constexpr int LeastHeight = 320;
constexpr int Margin = 10;
constexpr int Gap = 8;
constexpr int SignWidth = 34;
constexpr int FieldWidth = 48;
constexpr int CountRoom = 44;
constexpr int ButtonPadding = 14;

/// The command of a scroll bar that a key stands for.
std::optional<int> scrollCommandOf(WPARAM key) {
    switch (key) {
    case VK_PRIOR:
        return SB_PAGEUP;
    case VK_NEXT:
        return SB_PAGEDOWN;
    case VK_HOME:
        return SB_TOP;
    case VK_END:
        return SB_BOTTOM;
    default:
        return std::nullopt;
    }
}

} // namespace

BEGIN_MESSAGE_MAP(PreviewDialog, PageRangeDialog)
    ON_WM_DESTROY()
    ON_WM_GETMINMAXINFO()
    ON_BN_CLICKED(ZoomInId, &PreviewDialog::OnZoomIn)
    ON_BN_CLICKED(ZoomOutId, &PreviewDialog::OnZoomOut)
    ON_BN_CLICKED(FitWidthId, &PreviewDialog::OnFitWidth)
    ON_BN_CLICKED(ShowId, &PreviewDialog::OnShowRange)
END_MESSAGE_MAP()

PreviewDialog::PreviewDialog(DeskFonts& fonts, IPrintable& printable, const Printer& printer, int leastWidth)
    : PageRangeDialog(fonts, L"Podgląd wydruku", WS_THICKFRAME | WS_MAXIMIZEBOX),
      m_printable(printable) {
    choosePrinterForScreen(m_context, printer, leastWidth);
    m_context.FitToPageArea(true);
}

// Controls

void PreviewDialog::createControls() {
    m_zoomOut.createIn(this, ZoomOutId, L"−", fonts());
    m_zoomIn.createIn(this, ZoomInId, L"+", fonts());
    m_fitWidth.createIn(this, FitWidthId, L"&Szerokość strony", fonts());
    makeRange(L"Strony &od");
    m_show.createIn(this, ShowId, L"&Pokaż", fonts());
    m_print.createIn(this, IDOK, L"D&rukuj…", fonts());
    m_print.makeDefault();
    m_close.createIn(this, IDCANCEL, L"&Zamknij", fonts());
    m_placeholder.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), this, PagesId);
    m_pages.Init(&m_info, &m_printable);
    m_pages.Create(PagesId, this);
    m_pages.onPainted = [this] { showScrollStates(); };
    m_downBar.createIn(this, DownBarId);
    m_downBar.onScrollTo = [this](int position) { m_pages.scrollTo(SB_VERT, position); };
    m_acrossBar.createIn(this, AcrossBarId);
    m_acrossBar.ShowWindow(SW_HIDE);
    m_acrossBar.onScrollTo = [this](int position) { m_pages.scrollTo(SB_HORZ, position); };

    m_pageCount = countPages(m_printable, m_context);
    showRange({1, m_pageCount});
}

BOOL PreviewDialog::OnInitDialog() {
    PageRangeDialog::OnInitDialog();
    m_print.SetFocus();
    // The pages have their size now.
    showPages();
    m_pages.ScaleToAvailableArea();
    return FALSE;
}

CSize PreviewDialog::firstSize() {
    return CSize(scaled(Width), scaled(Height));
}

void PreviewDialog::placeControls(CSize client) {
    const int top = scaled(Margin);
    int x = scaled(Margin);
    const auto place = [&](CWnd& control, int width) {
        control.MoveWindow(x, top, width, rowHeight());
        x += width + scaled(Gap);
    };
    const auto textWidth = [this](const wchar_t* text) { return fonts().widthOf(text) + scaled(2 * ButtonPadding); };
    place(m_zoomOut, scaled(SignWidth));
    place(m_zoomIn, scaled(SignWidth));
    place(m_fitWidth, textWidth(L"Szerokość strony"));
    x += scaled(Gap);
    x = placeRange(x, top, scaled(FieldWidth)) + scaled(CountRoom);
    place(m_show, textWidth(L"Pokaż"));

    x = static_cast<int>(client.cx) - scaled(Margin) - textWidth(L"Zamknij");
    place(m_close, textWidth(L"Zamknij"));
    x = static_cast<int>(client.cx) - scaled(Margin + Gap) - textWidth(L"Zamknij") - textWidth(L"Drukuj…");
    place(m_print, textWidth(L"Drukuj…"));

    const int pagesTop = top + rowHeight() + scaled(Margin) + (isComplaining() ? rowHeight() : 0);
    placePages(CRect(0, pagesTop, client.cx, std::max<int>(pagesTop, client.cy)));
}

/// The lower bar takes room only where it is needed; the right one always, so that its coming does not narrow the
/// pages.
void PreviewDialog::placePages(const CRect& area) {
    const int right = std::max<int>(area.left, area.right - DeskScrollBar::width());
    const bool isAcross = m_pages.scrollState(SB_HORZ).extent > 0;
    const int bottom = isAcross ? std::max<int>(area.top, area.bottom - DeskScrollBar::width()) : area.bottom;
    m_acrossBar.ShowWindow(isAcross ? SW_SHOWNA : SW_HIDE);
    m_acrossBar.MoveWindow(area.left, bottom, right - area.left, area.bottom - bottom);
    m_downBar.MoveWindow(right, area.top, area.right - right, area.Height());
    m_pages.MoveWindow(area.left, area.top, right - area.left, bottom - area.top);
}

CRect PreviewDialog::complaintArea() {
    const int top = scaled(2 * Margin) + rowHeight() - scaled(Gap);
    return CRect(scaled(Margin), top, CXTPClientRect(this).right, top + rowHeight());
}

// Pages

/// False, with a sentence for the user and what was shown before, if the fields hold no range.
bool PreviewDialog::takeRange() {
    const std::optional<PrintRange> range = typedRange();
    if (range)
        m_range = *range != PrintRange{1, m_pageCount} ? range : std::nullopt;
    const CXTPClientRect client(this);
    placeControls(client.Size()); // the sentence takes a row, or gives it back
    return range.has_value();
}

void PreviewDialog::showPages() {
    m_context.PrintOption(m_range ? PrintOptionPages : PrintOptionAll);
    if (m_range) {
        m_context.FromPage(m_range->from);
        m_context.ToPage(m_range->to);
    }
    if (m_context.PrinterDC())
        m_pages.Update(m_context.PrinterDC());
}

void PreviewDialog::showScrollStates() {
    const ScrollState across = m_pages.scrollState(SB_HORZ);
    m_downBar.setState(m_pages.scrollState(SB_VERT));
    m_acrossBar.setState(across);
    if ((across.extent > 0) != ((m_acrossBar.GetStyle() & WS_VISIBLE) != 0)) {
        const CXTPClientRect client(this);
        placeControls(client.Size());
    }
}

void PreviewDialog::OnShowRange() {
    if (takeRange())
        showPages();
}

void PreviewDialog::OnZoomIn() {
    m_pages.zoom(ZoomStep);
}

void PreviewDialog::OnZoomOut() {
    m_pages.zoom(-ZoomStep);
}

void PreviewDialog::OnFitWidth() {
    const HDC device = m_context.PrinterDC();
    m_pages.fitWidth(CSize(::GetDeviceCaps(device, HORZRES), ::GetDeviceCaps(device, VERTRES)),
                     m_info.PagesToPrintCount());
}

/// Enter in a field of the range shows it; the button prints what the fields say.
void PreviewDialog::OnOK() {
    if (hasFocusInRange())
        OnShowRange();
    else if (takeRange())
        PageRangeDialog::OnOK();
}

BOOL PreviewDialog::PreTranslateMessage(MSG* message) {
    // The wheel is for the pages, wherever the focus is.
    if (message->message == WM_MOUSEWHEEL && !CtrlsTools::IsDescendant(m_pages.m_hWnd, message->hwnd)) {
        m_pages.SendMessage(WM_MOUSEWHEEL, message->wParam, message->lParam);
        return TRUE;
    }
    if (message->message == WM_KEYDOWN && !hasFocusInRange())
        if (const std::optional<int> command = scrollCommandOf(message->wParam)) {
            m_pages.SendMessage(WM_VSCROLL, static_cast<WPARAM>(*command));
            return TRUE;
        }
    return PageRangeDialog::PreTranslateMessage(message);
}

void PreviewDialog::OnGetMinMaxInfo(MINMAXINFO* info) {
    PageRangeDialog::OnGetMinMaxInfo(info);
    CRect least(0, 0, scaled(LeastWidth), scaled(LeastHeight));
    CalcWindowRect(&least, GetStyle(), GetExStyle());
    info->ptMinTrackSize = CPoint(least.Width(), least.Height());
}

void PreviewDialog::OnDestroy() {
    m_pages.DestroyWindow();
    // The preview leaves the end of the run to its owner.
    m_printable.OnEndPrinting(nullptr, &m_info);
    PageRangeDialog::OnDestroy();
}

} // namespace Desk
