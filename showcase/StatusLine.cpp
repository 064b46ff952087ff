#include "StatusLine.h"

#include <XTToolkitPro.h>

#include <algorithm>

#include "DeskColors.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

constexpr int LineMargin = 5;
constexpr int SideMargin = 10;
constexpr int FieldWidth = 190;

} // namespace

BEGIN_MESSAGE_MAP(StatusLine, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

StatusLine::StatusLine(DeskFonts& fonts) : m_fonts(fonts) {}

BOOL StatusLine::createIn(CWnd* parent, int id) {
    return CWnd::Create(AfxRegisterWndClass(CS_HREDRAW, ::LoadCursorW(nullptr, IDC_ARROW)), L"", WS_CHILD | WS_VISIBLE,
                        CRect(0, 0, 10, height()), parent, static_cast<UINT>(id));
}

int StatusLine::height() const {
    return m_fonts.lineHeight() + 2 * scaled(LineMargin);
}

void StatusLine::setField(std::size_t field, const std::wstring& text) {
    if (m_fields[field] == text)
        return;
    m_fields[field] = text;
    const CRect rect = fieldRect(field);
    InvalidateRect(&rect, FALSE);
}

CRect StatusLine::fieldRect(std::size_t field) {
    CRect rect;
    GetClientRect(&rect);
    rect.DeflateRect(scaled(SideMargin), 1, scaled(SideMargin), 0);
    const LONG end = rect.right;
    rect.left = std::min(end, rect.left + static_cast<LONG>(field) * scaled(FieldWidth));
    if (field + 1 < FieldCount)
        rect.right = std::min(end, rect.left + scaled(FieldWidth) - scaled(SideMargin));
    return rect;
}

void StatusLine::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC dc(paint);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, Colors::strip());
    const CRect edge(client.left, client.top, client.right, client.top + 1);
    dc.FillSolidRect(&edge, Colors::line());

    const ScopedSelection font(dc, m_fonts.text());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Colors::stripText());
    for (std::size_t field = 0; field < FieldCount; ++field) {
        const std::wstring& text = m_fields[field];
        const bool isLast = field + 1 == FieldCount;
        CRect rect = fieldRect(field);
        dc.DrawText(text.c_str(), static_cast<int>(text.size()), &rect,
                    (isLast ? DT_RIGHT : DT_LEFT) | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
}

BOOL StatusLine::OnEraseBkgnd(CDC*) {
    return TRUE;
}

} // namespace Desk
