#include "PageRangeDialog.h"

#include "DeskColors.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

/// At 96 pixels to the inch.
constexpr int Gap = 8;

} // namespace

BEGIN_MESSAGE_MAP(PageRangeDialog, DeskDialog)
    ON_EN_SETFOCUS(FromId, &PageRangeDialog::OnFieldFocus)
    ON_EN_SETFOCUS(ToId, &PageRangeDialog::OnFieldFocus)
    ON_EN_KILLFOCUS(FromId, &PageRangeDialog::OnFieldFocus)
    ON_EN_KILLFOCUS(ToId, &PageRangeDialog::OnFieldFocus)
END_MESSAGE_MAP()

void PageRangeDialog::makeRange(const wchar_t* fromText) {
    makeLabel(m_fromLabel, fromText);
    makeField(m_from, FromId);
    makeLabel(m_toLabel, L"&do");
    makeField(m_to, ToId);
}

void PageRangeDialog::showRange(const PrintRange& range) {
    m_from.SetWindowText(std::to_wstring(range.from).c_str());
    m_to.SetWindowText(std::to_wstring(range.to).c_str());
}

int PageRangeDialog::placeRange(int x, int top, int fieldWidth) {
    const auto place = [&](CStatic& label, CEdit& field) {
        const int labelWidth = widthOf(label) + scaled(Gap);
        label.MoveWindow(x, top, labelWidth, rowHeight());
        x += labelWidth;
        placeField(field, CRect(x, top, x + fieldWidth, top + rowHeight()));
        x += fieldWidth;
    };
    place(m_fromLabel, m_from);
    x += scaled(Gap);
    place(m_toLabel, m_to);
    return x;
}

int PageRangeDialog::widthOf(const CStatic& label) {
    CString text;
    label.GetWindowText(text);
    text.Remove(L'&');
    return fonts().widthOf(text.GetString());
}

bool PageRangeDialog::hasFocusInRange() const {
    const CWnd* focus = GetFocus();
    return focus == &m_from || focus == &m_to;
}

std::optional<PrintRange> PageRangeDialog::typedRange() {
    CString from;
    CString to;
    m_from.GetWindowText(from);
    m_to.GetWindowText(to);
    const auto read = readPrintRange(from.GetString(), to.GetString(), m_pageCount);
    if (const auto* fault = std::get_if<RangeFault>(&read)) {
        complain(fault->sentence);
        CEdit& field = fault->end == RangeEnd::From ? m_from : m_to;
        field.SetFocus();
        field.SetSel(0, -1);
        return std::nullopt;
    }
    complain({});
    return std::get<PrintRange>(read);
}

void PageRangeDialog::complain(const std::wstring& sentence) {
    m_complaint = sentence;
    Invalidate(FALSE);
}

void PageRangeDialog::drawBackground(CDC& dc) {
    drawField(dc, m_from);
    drawField(dc, m_to);
    const ScopedSelection font(dc, fonts().text());
    dc.SetBkMode(TRANSPARENT);
    CRect area;
    m_to.GetWindowRect(&area);
    ScreenToClient(&area);
    area.left = area.right + scaled(2 * Gap);
    area.right = CXTPClientRect(this).right;
    dc.SetTextColor(Colors::mutedText());
    dc.DrawText((L"z " + std::to_wstring(m_pageCount)).c_str(), -1, &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
    CRect complaint = complaintArea();
    dc.SetTextColor(Colors::complaint());
    dc.DrawText(m_complaint.c_str(), -1, &complaint, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

/// The frame of a field tells the focus, and the dialog paints it.
void PageRangeDialog::OnFieldFocus() {
    Invalidate(FALSE);
}

} // namespace Desk
