#pragma once

#include <memory>
#include <optional>
#include <string>

#include <afxwin.h>

#include "DeskData.h"
#include "DeskFonts.h"
#include "DeskMenu.h"
#include "DeskScrollBar.h"
#include "DeskSettings.h"
#include "InfoWindow.h"
#include "QuoteBook.h"
#include "QuotesHandler.h"
#include "QuotesPrinting.h"
#include "QuotesTable.h"
#include "StatusLine.h"
#include "TickFeed.h"
#include "TopStrip.h"
#include "chart/ChartPane.h"
#include "core/Commands.h"

namespace Desk {

/// The main window: strip, table with its scroll bar, chart, status line. It wires them; what the quotes mean is the
/// handler's, and what the chart shows is the pane's.
class DeskWindow : public CWnd, private QuotesEvents, private StripEvents {
public:
    /// `settings` are the starting ones; `settingsFile` is where they are kept at the end, nowhere if empty.
    DeskWindow(DeskData data, DeskSettings settings, std::wstring settingsFile);
    ~DeskWindow() override;

    BOOL open();
    /// Starts the quotes ticking.
    void startTicks(int ticksPerSecond);

    /// False once keeping the settings has failed.
    bool settingsAreKept() const { return m_settingsAreKept; }

    QuotesTable& table() { return m_table; }
    TopStrip& strip() { return m_strip; }
    ChartPane& chart() { return m_chart; }
    QuotesPrinting& printing() { return m_printing; }
    InfoWindow& info() { return m_info; }
    void setTheme(DeskTheme theme);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnEndSession(BOOL ending);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg LRESULT OnExitSizeMove(WPARAM, LPARAM);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnMeasureItem(int control, LPMEASUREITEMSTRUCT item);
    afx_msg void OnDrawItem(int control, LPDRAWITEMSTRUCT item);
    DECLARE_MESSAGE_MAP()

private:
    class RowMenu;
    enum StatusField : std::size_t { RowsField, SelectionField, TickField };

    // QuotesEvents
    void onSelectionChanged() override;
    void onFindChanged() override;
    void onTicked(const Tick& last) override;
    void onViewPainted() override;
    // StripEvents
    void onPhraseChanged(const std::wstring& phrase) override;
    void onFindNext(bool forward) override;
    void onFindFocusChanged() override;
    void onSwitch(StripSwitch which) override;

    BOOL createTable();
    void showFirstKnown();
    void showInstrument();
    void placeWindows();
    void showCounts();
    void stopAutoscroll();
    void saveSettingsOnce();
    void paintCorner(CDC& dc);
    CRect cornerRect();

    bool isBody(HWND window) { return window == m_body->GetSafeHwnd(); }
    bool isInChart(HWND window);
    bool forwardWheel(const MSG& message);
    KeyPlace placeOf(HWND window);
    bool runShortcut(const MSG& message);
    bool moveFocus(WPARAM key, KeyPlace place);
    void turnFocus(KeyPlace place, bool back);
    void run(Command command);
    void showInfo();
    void report(const std::optional<PrintReport>& report);
    bool runChosen(UINT chosen);
    bool typeIntoFindBox(const MSG& message);
    void focusTable();
    void showRowMenu(CPoint screen);
    void showHeaderMenu(CPoint screen);
    void turnColumn(int id);
    void fitAllColumns();

    DeskFonts m_fonts;
    QuoteBook m_book;
    DeskSettings m_settings;
    std::wstring m_settingsFile;
    QuotesHandler m_handler;
    QuotesTable m_table;
    QuotesPrinting m_printing;
    CWnd* m_body = nullptr; ///< the table's
    DeskScrollBar m_scrollBar;
    ChartPane m_chart;
    TopStrip m_strip;
    StatusLine m_status;
    DeskMenu m_menu;
    InfoWindow m_info;
    std::unique_ptr<TickFeed> m_feed;
    bool m_settingsAreKept = true;
    bool m_fading = false;
    bool m_autoscroll = false;
};

} // namespace Desk
