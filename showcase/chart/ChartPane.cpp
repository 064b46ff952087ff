#include "ChartPane.h"

#include <OrtinFoundation/Keyboard.h>

#include <algorithm>
#include <utility>

#include "DeskColors.h"

namespace Desk {

namespace {

constexpr int BarHeight = 24;
constexpr int LeastHeight = 180;
constexpr int LeastCanvasWidth = 420;
constexpr const wchar_t* LineTitle = L"Linia trendu";
/// A line has the looks of the new ones.
constexpr ChartPart LineAspects = ChartPart::NewLine;

} // namespace

BEGIN_MESSAGE_MAP(ChartPane, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()

ChartPane::ChartPane(CandleSource source, ChartMemory memory, DeskFonts& fonts)
    : m_model(std::move(source), std::move(memory)),
      m_canvas(m_model, fonts),
      m_panel(fonts) {}

ChartPane::~ChartPane() {
    DestroyWindow();
}

BOOL ChartPane::createIn(CWnd* parent, int id) {
    return CWnd::Create(AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW)), L"",
                        WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, 10, 10), parent, static_cast<UINT>(id));
}

int ChartPane::leastHeight() {
    return scaled(LeastHeight);
}

int ChartPane::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1 || !m_canvas.createIn(this, CanvasId) ||
        !m_bar.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), this, BarId) || !m_panel.createIn(this, PanelId))
        return -1;
    m_canvas.onChanged = [this](const ChartChange& change) {
        if (change.range)
            showRange();
        if (change.selection)
            showSelected();
    };
    m_panel.onChanged = [this](const ChartStyle& style) {
        m_model.setSelectedStyle(style);
        m_canvas.apply({.picture = true});
    };
    return 0;
}

// What is shown

void ChartPane::show(const Instrument* instrument, const PriceSession* session) {
    if (m_model.show(instrument, session))
        m_canvas.apply({.picture = true, .range = true, .selection = true});
}

void ChartPane::follow(const PriceSession& session) {
    if (m_model.follow(session))
        m_canvas.renewSoon();
}

void ChartPane::setTheme(DeskTheme theme) {
    m_model.setTheme(theme);
    m_canvas.apply({.picture = true});
    showSelected();
    m_panel.repaint();
    m_bar.Invalidate(FALSE);
    Invalidate(FALSE);
}

void ChartPane::showRange() {
    const ChartRange& range = m_model.state().range;
    m_bar.SetCurrent(range.start, range.end);
}

void ChartPane::showSelected() {
    const ChartObject& selected = m_model.state().selected;
    if (selected.kind == ChartObject::Kind::Line) {
        m_panel.show(LineTitle, aspectsOf(LineAspects), m_model.styleOfLine(selected.index));
    } else if (selected.kind == ChartObject::Kind::Part) {
        const auto part = static_cast<ChartPart>(selected.index);
        m_panel.show(nameOf(part), aspectsOf(part), m_model.styleOf(part));
    } else {
        m_panel.showNothing();
    }
}

void ChartPane::OnScrollChanged(AdvancedScroll::ChangeMessageInfo info) {
    m_canvas.apply(m_model.gestures().setRange({info.start, info.end}));
    // The bar waits for an answer, also where nothing changes.
    showRange();
}

void ChartPane::turnWheel(const MSG& message) {
    const short delta = GET_WHEEL_DELTA_WPARAM(message.wParam);
    if (!OrtinTools::Keyboard::IsCtrlPressed()) {
        m_bar.MoveZoomOnWheel(delta);
        return;
    }
    CPoint point(message.lParam);
    m_canvas.ScreenToClient(&point);
    m_canvas.zoomAt(point.x, delta);
}

// Layout

void ChartPane::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    place();
}

void ChartPane::place() {
    CRect client;
    GetClientRect(&client);
    client.top = std::min(client.bottom, client.top + 1);
    const int panel = client.Width() >= scaled(LeastCanvasWidth) + StylePanel::width() ? StylePanel::width() : 0;
    const int canvasWidth = client.Width() - panel;
    const int barTop = std::max(client.top, client.bottom - scaled(BarHeight));
    m_canvas.MoveWindow(client.left, client.top, canvasWidth, barTop - client.top);
    m_bar.MoveWindow(client.left, barTop, canvasWidth, client.bottom - barTop);
    m_panel.MoveWindow(canvasWidth, client.top, panel, client.Height());
    m_panel.ShowWindow(panel > 0 ? SW_SHOWNA : SW_HIDE);
}

void ChartPane::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    const CRect edge(client.left, client.top, client.right, client.top + 1);
    dc.FillSolidRect(&edge, Colors::line());
}

BOOL ChartPane::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void ChartPane::OnSetFocus(CWnd*) {
    m_canvas.SetFocus();
}

} // namespace Desk
