#include "DeskWindow.h"

#include <OrtinControls/SystemColors.h>
#include <XTToolkitPro.h>

#include <algorithm>
#include <utility>

#include "DeskColors.h"
#include "DeskDialog.h"
#include "StandardStreams.h"
#include "core/PolishFormat.h"

namespace Desk {

namespace {

constexpr UINT IconId = 1;
constexpr int StripId = 1;
constexpr int TableId = 2;
constexpr int ScrollBarId = 3;
constexpr int StatusId = 4;
constexpr int ChartId = 5;

constexpr int StartWidth = 1180;
constexpr int StartHeight = 860;
constexpr int LeastTableHeight = 160;
/// Of the height between strip and status line.
constexpr double ChartShare = 0.45;

/// Where the library's preview of pages looks for its colours.
constexpr unsigned int PreviewGround = 35;
constexpr unsigned int PreviewShadow = 54;

constexpr UINT_PTR FadingTimer = 1;
constexpr UINT FadingPause = 50;
constexpr UINT_PTR AutoscrollTimer = 2;
constexpr UINT AutoscrollPause = 15;
constexpr std::uint64_t TickSeed = 7;

ColumnLayout firstLayout() {
    ColumnLayout layout;
    for (const QuoteColumnInfo& info : QuoteColumns)
        layout.push_back({std::string(info.key), info.defaultWidth, true});
    return layout;
}

} // namespace

/// The menu of the rows, as the table wants it.
class DeskWindow::RowMenu : public IContextMenuBase {
public:
    explicit RowMenu(DeskWindow& desk) : IContextMenuBase(&desk), m_desk(desk) {}
    void ShowContextMenu(CPoint point) override { m_desk.showRowMenu(point); }

private:
    DeskWindow& m_desk;
};

BEGIN_MESSAGE_MAP(DeskWindow, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_ENDSESSION()
    ON_WM_SIZE()
    ON_MESSAGE(WM_EXITSIZEMOVE, &DeskWindow::OnExitSizeMove)
    ON_WM_GETMINMAXINFO()
    ON_WM_SETFOCUS()
    ON_WM_ACTIVATE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_TIMER()
    ON_WM_MEASUREITEM()
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

DeskWindow::DeskWindow(DeskData data, DeskSettings settings, std::wstring settingsFile)
    : m_book(std::move(data.instruments)),
      m_settings(std::move(settings)),
      m_settingsFile(std::move(settingsFile)),
      m_handler(m_book, m_fonts, *this),
      m_table(m_fonts),
      m_printing(m_table, m_handler, m_fonts),
      m_chart(CandleSource(std::move(data.candles)), std::move(m_settings.chart), m_fonts),
      m_strip(m_fonts, *this),
      m_status(m_fonts),
      m_menu(m_fonts),
      m_info(m_fonts) {}

DeskWindow::~DeskWindow() {
    DestroyWindow();
}

BOOL DeskWindow::open() {
    CRect rect(0, 0, scaled(StartWidth), scaled(StartHeight));
    CalcWindowRect(&rect, WS_OVERLAPPEDWINDOW);
    CRect screen(rect);
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    if (!CreateEx(
            0,
            AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW), nullptr, AfxGetApp()->LoadIcon(IconId)),
            L"OrtinDesk – notowania", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
            std::min(rect.Width(), screen.Width()), std::min(rect.Height(), screen.Height()), nullptr, nullptr))
        return FALSE;
    // A window hears of its first size when it is shown; the table has to have its height to scroll to a row.
    placeWindows();
    showFirstKnown();
    return TRUE;
}

BOOL DeskWindow::PreCreateWindow(CREATESTRUCT& create) {
    create.dwExStyle |= WS_EX_APPWINDOW;
    return CWnd::PreCreateWindow(create);
}

int DeskWindow::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1 || !m_strip.createIn(this, StripId) || !createTable() ||
        !m_scrollBar.createIn(this, ScrollBarId) || !m_chart.createIn(this, ChartId) ||
        !m_status.createIn(this, StatusId))
        return -1;
    m_scrollBar.onScrollTo = [this](int position) {
        m_body->SetScrollPos(SB_VERT, position);
        m_table.Redraw();
    };
    setTheme(m_settings.theme);
    m_strip.setSwitch(StripSwitch::LockedColumns, m_settings.lockedColumns);
    showCounts();
    m_status.setField(TickField, L"Bez zmian kursów");
    return 0;
}

BOOL DeskWindow::createTable() {
    if (!m_table.Create(TableId, this, false))
        return FALSE;
    m_body = m_table.body();
    m_table.SetTableHandler(&m_handler);
    m_table.leaveRoomOnPaper(m_handler.sheetSizes());
    m_table.SetContextMenuHandler(std::make_shared<RowMenu>(*this));
    m_table.onHeaderMenu = [this](CPoint screen) { showHeaderMenu(screen); };
    m_table.LockColumns(m_settings.lockedColumns);
    m_table.EnableMouseMovingColumns(true);
    m_table.layOutHeader();
    // Columns fit the window from the start, so the table has its size before they come.
    CRect client;
    GetClientRect(&client);
    m_table.MoveWindow(0, TopStrip::height(), client.Width() - DeskScrollBar::width(),
                       std::max(client.Height() - TopStrip::height() - m_status.height(), 0));
    m_handler.setUpColumns(fittedLayout(m_settings.columns, firstLayout()));
    for (int id = 0; id < m_table.GetColumnCount(); ++id)
        if (infoOf(m_handler.columnOf(id)).alignsRight)
            m_table.alignTitleRight(id);
    m_handler.setUpRows();
    return TRUE;
}

void DeskWindow::startTicks(int ticksPerSecond) {
    if (ticksPerSecond > 0)
        m_feed = std::make_unique<TickFeed>(RandomWalk(TickSeed, m_book.prices()), ticksPerSecond, m_handler.ticks(),
                                            [this] { m_table.NotifyTableViewDataChange(); });
}

// End

void DeskWindow::OnClose() {
    saveSettingsOnce();
    CWnd::OnClose();
}

void DeskWindow::OnEndSession(BOOL ending) {
    if (ending)
        saveSettingsOnce();
}

void DeskWindow::OnDestroy() {
    m_feed.reset();
    CWnd::OnDestroy();
}

void DeskWindow::saveSettingsOnce() {
    if (m_settingsFile.empty())
        return;
    m_settings.columns = m_handler.columnLayout();
    m_settings.chart = m_chart.model().memory();
    const ParameterStatus status = saveSettings(m_settingsFile, m_settings);
    if (!status.IsSuccess())
        printError(status.GetMessageText());
    m_settingsAreKept = status.IsSuccess();
    m_settingsFile.clear();
}

// Layout

void DeskWindow::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED && m_status.GetSafeHwnd())
        placeWindows();
}

void DeskWindow::placeWindows() {
    CRect client;
    GetClientRect(&client);
    const int statusTop = std::max(TopStrip::height(), static_cast<int>(client.bottom) - m_status.height());
    const int barLeft = std::max(0, static_cast<int>(client.right) - DeskScrollBar::width());
    const int room = statusTop - TopStrip::height();
    const int chartHeight =
        std::clamp(static_cast<int>(room * ChartShare), std::min(ChartPane::leastHeight(), room), room);
    const int tableHeight = room - chartHeight;
    m_strip.MoveWindow(0, 0, client.right, TopStrip::height());
    m_table.MoveWindow(0, TopStrip::height(), barLeft, tableHeight);
    const int header = m_table.GetHeaderHeight();
    m_scrollBar.MoveWindow(barLeft, TopStrip::height() + header, client.right - barLeft,
                           std::max(0, tableHeight - header));
    m_chart.MoveWindow(0, TopStrip::height() + tableHeight, client.right, chartHeight);
    m_status.MoveWindow(0, statusTop, client.right, m_status.height());
    const CRect corner = cornerRect();
    InvalidateRect(&corner, FALSE);
}

CRect DeskWindow::cornerRect() {
    CRect client;
    GetClientRect(&client);
    return CRect(client.right - DeskScrollBar::width(), TopStrip::height(), client.right,
                 TopStrip::height() + m_table.GetHeaderHeight());
}

LRESULT DeskWindow::OnExitSizeMove(WPARAM, LPARAM) {
    m_table.OnEndSize();
    return Default();
}

void DeskWindow::OnGetMinMaxInfo(MINMAXINFO* info) {
    CWnd::OnGetMinMaxInfo(info);
    if (!m_status.GetSafeHwnd())
        return;
    CRect least(0, 0, std::max(m_strip.leastWidth(), m_table.GetMinWidthVisibleColumns() + DeskScrollBar::width()),
                TopStrip::height() + scaled(LeastTableHeight) + ChartPane::leastHeight() + m_status.height());
    CalcWindowRect(&least, GetStyle(), GetExStyle());
    info->ptMinTrackSize = CPoint(least.Width(), least.Height());
}

void DeskWindow::OnPaint() {
    CPaintDC dc(this);
    paintCorner(dc);
}

/// The place over the scroll bar, beside the header, is the window's own.
void DeskWindow::paintCorner(CDC& dc) {
    const CRect corner = cornerRect();
    dc.FillSolidRect(&corner, Colors::headerBackground());
    const CRect edge(corner.left, corner.bottom - 1, corner.right, corner.bottom);
    dc.FillSolidRect(&edge, Colors::line());
}

BOOL DeskWindow::OnEraseBkgnd(CDC*) {
    return TRUE;
}

// What the quotes tell

void DeskWindow::showCounts() {
    m_status.setField(
        RowsField, formatCount(static_cast<long long>(m_book.size()), L"instrument", L"instrumenty", L"instrumentów"));
    m_status.setField(SelectionField,
                      L"Zaznaczono " + formatCount(m_handler.selection().count(), L"wiersz", L"wiersze", L"wierszy"));
}

void DeskWindow::onSelectionChanged() {
    if (!m_status.GetSafeHwnd())
        return;
    showCounts();
    showInstrument();
    onFindChanged();
}

/// The chart is that of the row with the caret.
void DeskWindow::showInstrument() {
    const std::optional<std::size_t> instrument = m_handler.caretInstrument();
    if (instrument)
        m_chart.show(&m_book.at(*instrument), m_book.session(*instrument));
    else
        m_chart.show(nullptr);
}

/// At the start the caret stands where there is something to see.
void DeskWindow::showFirstKnown() {
    for (std::size_t instrument = 0; instrument < m_book.size(); ++instrument)
        if (m_chart.model().source().knows(m_book.at(instrument).symbol)) {
            m_table.SelectItem(m_handler.rowOf(instrument), false);
            break;
        }
    showInstrument();
}

void DeskWindow::onFindChanged() {
    if (m_handler.find().isActive())
        m_strip.setFound(TopStrip::Found{m_handler.foundOrdinal(), m_handler.find().count()});
    else
        m_strip.setFound(std::nullopt);
}

void DeskWindow::onTicked(const Tick& last) {
    SYSTEMTIME now{};
    ::GetLocalTime(&now);
    CString time;
    time.Format(L"%02u:%02u:%02u", now.wHour, now.wMinute, now.wSecond);
    m_status.setField(TickField, m_book.text(last.instrument, QuoteColumn::Symbol) + L"  " +
                                     m_book.text(last.instrument, QuoteColumn::Price) + L"  o " + time.GetString());
    if (const std::optional<std::size_t> shown = m_handler.caretInstrument())
        if (const PriceSession* session = m_book.session(*shown))
            m_chart.follow(*session);
    if (!m_fading)
        m_fading = SetTimer(FadingTimer, FadingPause) != 0;
}

void DeskWindow::onViewPainted() {
    if (!m_scrollBar.GetSafeHwnd())
        return;
    // While the rows run by themselves there is no position to show.
    ScrollState state;
    if (!m_autoscroll) {
        state.page = m_table.GetListCtrlHeight();
        state.extent = m_table.GetAllItemsHeight();
        state.position = m_body->GetScrollPos(SB_VERT);
    }
    m_scrollBar.setState(state);
}

void DeskWindow::OnTimer(UINT_PTR timer) {
    if (timer == FadingTimer && !m_handler.fadeFlashes(static_cast<std::int64_t>(::GetTickCount64()))) {
        KillTimer(FadingTimer);
        m_fading = false;
    }
    // The table runs on by the time that has passed, as long as it is asked to paint.
    if (timer == AutoscrollTimer)
        m_body->Invalidate(FALSE);
}

// What the strip wants

void DeskWindow::onPhraseChanged(const std::wstring& phrase) {
    if (m_handler.SearchPhrase(phrase.c_str(), 0) > 0)
        m_handler.SelectCurrentFound();
}

void DeskWindow::onFindFocusChanged() {
    m_handler.repaintAll();
}

void DeskWindow::onFindNext(bool forward) {
    m_handler.SearchNextPrev(forward ? 1 : -1);
}

void DeskWindow::onSwitch(StripSwitch which) {
    switch (which) {
    case StripSwitch::Autoscroll:
        m_autoscroll = !m_autoscroll;
        if (m_autoscroll)
            SetTimer(AutoscrollTimer, AutoscrollPause);
        else
            KillTimer(AutoscrollTimer);
        m_strip.setSwitch(which, m_autoscroll);
        m_handler.setAutoscroll(m_autoscroll);
        break;
    case StripSwitch::LockedColumns:
        m_settings.lockedColumns = !m_settings.lockedColumns;
        m_table.LockColumns(m_settings.lockedColumns);
        m_table.UpdateColumns();
        m_strip.setSwitch(which, m_settings.lockedColumns);
        m_table.Redraw();
        break;
    case StripSwitch::BlackTheme:
        setTheme(m_settings.theme == DeskTheme::Black ? DeskTheme::White : DeskTheme::Black);
        break;
    }
}

/// Rows that run by themselves have no place in the table, which the rows that are seen could be counted from.
void DeskWindow::stopAutoscroll() {
    if (!m_autoscroll)
        return;
    onSwitch(StripSwitch::Autoscroll);
    m_body->UpdateWindow();
}

void DeskWindow::setTheme(DeskTheme theme) {
    m_settings.theme = theme;
    SystemColors::SetThemeColor(theme == DeskTheme::Black ? EThemeColor::BlackTheme : EThemeColor::WhiteTheme);
    SystemColors::UpdateColor(PreviewGround, Colors::previewGround());
    SystemColors::UpdateColor(PreviewShadow, Colors::previewShadow());
    setDarkTitleBar(m_hWnd, theme == DeskTheme::Black);
    m_table.RefreshProgramStyleColors();
    m_table.Redraw();
    m_strip.setSwitch(StripSwitch::BlackTheme, theme == DeskTheme::Black);
    m_strip.repaint();
    m_scrollBar.Invalidate(FALSE);
    m_chart.setTheme(theme);
    m_status.Invalidate(FALSE);
    m_info.repaint();
    Invalidate(FALSE);
}

} // namespace Desk
