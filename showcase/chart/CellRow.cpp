#include "CellRow.h"

#include <XTToolkitPro.h>

#include <algorithm>
#include <utility>

#include "DeskColors.h"
#include "DeskFonts.h"
#include "DeskShapes.h"

namespace Desk {

namespace {

constexpr int Height = 24;
constexpr int Inset = 2;
constexpr int Rounding = 4;

} // namespace

BEGIN_MESSAGE_MAP(CellRow, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

BOOL CellRow::createIn(CWnd* parent, int id, int cells, DrawCell draw) {
    m_cells = cells;
    m_draw = std::move(draw);
    return CWnd::Create(AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW)), L"",
                        WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 10, height()), parent, static_cast<UINT>(id));
}

int CellRow::height() {
    return scaled(Height);
}

void CellRow::choose(int cell) {
    m_chosen = cell >= 0 && cell < m_cells ? cell : None;
    Invalidate(FALSE);
}

CRect CellRow::cellArea(int cell) const {
    CRect area = CXTPClientRect(this);
    area.DeflateRect(scaled(Inset), scaled(Inset));
    const int left = area.left;
    const int width = area.Width();
    area.left = left + width * cell / m_cells;
    area.right = left + width * (cell + 1) / m_cells;
    return area;
}

int CellRow::cellAt(CPoint point) const {
    for (int cell = 0; cell < m_cells; ++cell)
        if (cellArea(cell).PtInRect(point))
            return cell;
    return None;
}

void CellRow::userChooses(int cell) {
    if (cell == m_chosen)
        return;
    choose(cell);
    // A copy: who is told may end the row, and with it the function that tells.
    if (const auto tell = onChosen)
        tell(cell);
}

// Painting

void CellRow::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC dc(paint);
    const CXTPClientRect client(this);
    dc.FillSolidRect(&client, Colors::strip());
    fillRound(dc, client, scaled(Rounding), Colors::input(),
              GetFocus() == this ? Colors::accent() : Colors::inputFrame());
    for (int cell = 0; cell < m_cells; ++cell) {
        const CRect area = cellArea(cell);
        if (cell == m_chosen)
            fillRound(dc, area, scaled(Rounding), Colors::selectedRow(), Colors::accent());
        else if (cell == m_hot)
            fillRound(dc, area, scaled(Rounding), Colors::input(), Colors::inputFrame());
        m_draw(dc, area, cell);
    }
}

BOOL CellRow::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CellRow::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    Invalidate(FALSE);
}

// Mouse and keys

void CellRow::OnMouseMove(UINT, CPoint point) {
    m_hot.moveTo(cellAt(point));
}

void CellRow::OnMouseLeave() {
    m_hot.leave();
}

void CellRow::OnLButtonDown(UINT, CPoint point) {
    SetFocus();
    if (const int cell = cellAt(point); cell != None)
        userChooses(cell);
}

void CellRow::OnKeyDown(UINT key, UINT, UINT) {
    const int last = m_cells - 1;
    switch (key) {
    case VK_LEFT:
    case VK_UP:
        userChooses(m_chosen == None ? last : std::max(m_chosen - 1, 0));
        break;
    case VK_RIGHT:
    case VK_DOWN:
        userChooses(std::min(m_chosen + 1, last));
        break;
    case VK_HOME:
        userChooses(0);
        break;
    case VK_END:
        userChooses(last);
        break;
    default:
        Default();
    }
}

void CellRow::OnSetFocus(CWnd* oldWindow) {
    CWnd::OnSetFocus(oldWindow);
    Invalidate(FALSE);
}

void CellRow::OnKillFocus(CWnd* newWindow) {
    CWnd::OnKillFocus(newWindow);
    Invalidate(FALSE);
}

} // namespace Desk
