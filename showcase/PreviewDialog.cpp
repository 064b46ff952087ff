#include "PreviewDialog.h"

#include <OrtinControls/CtrlsTools.h>

#include <algorithm>

#include "DeskColors.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

constexpr int PagesId = 100;
constexpr int ZoomOutId = 101;
constexpr int ZoomInId = 102;
constexpr int FitWidthId = 103;
constexpr int FromId = 104;
constexpr int ToId = 105;
constexpr int ShowId = 106;

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

} // namespace

BEGIN_MESSAGE_MAP(PreviewDialog, DeskDialog)
    ON_WM_DESTROY()
    ON_WM_GETMINMAXINFO()
    ON_BN_CLICKED(ZoomInId, &PreviewDialog::OnZoomIn)
    ON_BN_CLICKED(ZoomOutId, &PreviewDialog::OnZoomOut)
    ON_BN_CLICKED(FitWidthId, &PreviewDialog::OnFitWidth)
    ON_BN_CLICKED(ShowId, &PreviewDialog::OnShowRange)
    ON_EN_SETFOCUS(FromId, &PreviewDialog::OnFieldFocus)
    ON_EN_SETFOCUS(ToId, &PreviewDialog::OnFieldFocus)
    ON_EN_KILLFOCUS(FromId, &PreviewDialog::OnFieldFocus)
    ON_EN_KILLFOCUS(ToId, &PreviewDialog::OnFieldFocus)
END_MESSAGE_MAP()

PreviewDialog::PreviewDialog(DeskFonts& fonts, IPrintable& printable, const Printer& printer, int leastWidth)
    : DeskDialog(fonts, L"Podgląd wydruku", WS_THICKFRAME | WS_MAXIMIZEBOX),
      m_printable(printable) {
    choosePrinterForScreen(m_context, printer, leastWidth);
    m_context.FitToPageArea(true);
}

// Controls

void PreviewDialog::createControls() {
    m_zoomOut.createIn(this, ZoomOutId, L"−", fonts());
    m_zoomIn.createIn(this, ZoomInId, L"+", fonts());
    m_fitWidth.createIn(this, FitWidthId, L"&Szerokość strony", fonts());
    makeLabel(m_fromLabel, L"Strony &od");
    makeField(m_from, FromId);
    makeLabel(m_toLabel, L"&do");
    makeField(m_to, ToId);
    m_show.createIn(this, ShowId, L"&Pokaż", fonts());
    m_print.createIn(this, IDOK, L"D&rukuj…", fonts());
    m_print.makeDefault();
    m_close.createIn(this, IDCANCEL, L"&Zamknij", fonts());
    m_placeholder.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), this, PagesId);
    m_pages.Init(&m_info, &m_printable);
    m_pages.Create(PagesId, this);

    m_pageCount = countPages(m_printable, m_context);
    m_from.SetWindowText(L"1");
    m_to.SetWindowText(std::to_wstring(m_pageCount).c_str());
}

BOOL PreviewDialog::OnInitDialog() {
    DeskDialog::OnInitDialog();
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
    place(m_fromLabel, fonts().widthOf(L"Strony od"));
    placeField(m_from, CRect(x, top, x + scaled(FieldWidth), top + rowHeight()));
    x += scaled(FieldWidth) + scaled(Gap);
    place(m_toLabel, fonts().widthOf(L"do"));
    placeField(m_to, CRect(x, top, x + scaled(FieldWidth), top + rowHeight()));
    x += scaled(FieldWidth) + scaled(CountRoom);
    place(m_show, textWidth(L"Pokaż"));

    x = static_cast<int>(client.cx) - scaled(Margin) - textWidth(L"Zamknij");
    place(m_close, textWidth(L"Zamknij"));
    x = static_cast<int>(client.cx) - scaled(Margin + Gap) - textWidth(L"Zamknij") - textWidth(L"Drukuj…");
    place(m_print, textWidth(L"Drukuj…"));

    const int pagesTop = top + rowHeight() + scaled(Margin) + (m_complaint.empty() ? 0 : rowHeight());
    m_pages.MoveWindow(0, pagesTop, client.cx, std::max(0, static_cast<int>(client.cy) - pagesTop));
}

void PreviewDialog::drawBackground(CDC& dc) {
    drawField(dc, m_from);
    drawField(dc, m_to);
    const ScopedSelection font(dc, fonts().text());
    dc.SetBkMode(TRANSPARENT);
    CRect area;
    m_to.GetWindowRect(&area);
    ScreenToClient(&area);
    area.left = area.right + scaled(2 * Gap);
    area.right = area.left + scaled(CountRoom);
    dc.SetTextColor(Colors::mutedText());
    dc.DrawText((L"z " + std::to_wstring(m_pageCount)).c_str(), -1, &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
    const CXTPClientRect client(this);
    CRect complaint(scaled(Margin), scaled(2 * Margin) + rowHeight() - scaled(Gap), client.right, 0);
    complaint.bottom = complaint.top + rowHeight();
    dc.SetTextColor(Colors::complaint());
    dc.DrawText(m_complaint.c_str(), -1, &complaint, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

// Pages

/// False, with a sentence for the user and what was shown before, if the fields hold no range.
bool PreviewDialog::takeRange() {
    CString from;
    CString to;
    m_from.GetWindowText(from);
    m_to.GetWindowText(to);
    const auto read = readPrintRange(from.GetString(), to.GetString(), m_pageCount);
    const auto* fault = std::get_if<RangeFault>(&read);
    m_complaint = fault ? fault->sentence : std::wstring();
    if (fault) {
        CEdit& field = fault->end == RangeEnd::From ? m_from : m_to;
        field.SetFocus();
        field.SetSel(0, -1);
    } else {
        const PrintRange range = std::get<PrintRange>(read);
        m_range = range != PrintRange{1, m_pageCount} ? std::optional(range) : std::nullopt;
    }
    const CXTPClientRect client(this);
    placeControls(client.Size());
    Invalidate(FALSE);
    return !fault;
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
    m_pages.ScaleToAvailableArea();
}

/// Enter in a field of the range shows it; the button prints what the fields say.
void PreviewDialog::OnOK() {
    if (GetFocus() == &m_from || GetFocus() == &m_to)
        OnShowRange();
    else if (takeRange())
        DeskDialog::OnOK();
}

BOOL PreviewDialog::PreTranslateMessage(MSG* message) {
    // The wheel is for the pages, wherever the focus is.
    if (message->message == WM_MOUSEWHEEL && !CtrlsTools::IsDescendant(m_pages.m_hWnd, message->hwnd)) {
        m_pages.SendMessage(WM_MOUSEWHEEL, message->wParam, message->lParam);
        return TRUE;
    }
    return DeskDialog::PreTranslateMessage(message);
}

void PreviewDialog::OnFieldFocus() {
    Invalidate(FALSE);
}

void PreviewDialog::OnGetMinMaxInfo(MINMAXINFO* info) {
    DeskDialog::OnGetMinMaxInfo(info);
    CRect least(0, 0, scaled(LeastWidth), scaled(LeastHeight));
    CalcWindowRect(&least, GetStyle(), GetExStyle());
    info->ptMinTrackSize = CPoint(least.Width(), least.Height());
}

void PreviewDialog::OnDestroy() {
    m_pages.DestroyWindow();
    // The preview leaves the end of the run to its owner.
    m_printable.OnEndPrinting(nullptr, &m_info);
    DeskDialog::OnDestroy();
}

} // namespace Desk
