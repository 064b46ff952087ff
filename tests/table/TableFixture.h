#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <OrtinControls/OrtinControls.h>
#include <gtest/gtest.h>

#include "Printers.h"
#include "RecordingHandler.h"
#include "support/Capture.h"
#include "support/ScopedKeys.h"
#include "support/ScopedTheme.h"
#include "support/TopLevelWindow.h"

using support::ScopedKeys;
using support::ScopedTheme;

/// The table with what hosts that derive from it can reach.
class ReachableTable : public TableCtrl {
public:
    using TableCtrl::ComputeNewOrderArrayOnMoveColumn;
    using TableCtrl::GetCtrlOwner;
    using TableCtrl::OnColumnsWidthChanged;
    using TableCtrl::OnResizeInLockedColumnsMode;
    using TableCtrl::OnWndMsg;
    using TableCtrl::UpdateHeaderPos;
    using TableCtrl::UpdateListPos;

    /// The private messages that it got since the last time: "488(column,width)".
    std::string takeMessages();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::string m_messages;
};

/// A table of 400 x 300 pixels in a window, with a recording host and verbs to treat it. Mouse and keys come as
/// messages: no test here needs the focus or moves the real mouse.
class TableFixture : public testing::Test {
protected:
    static constexpr int kTableId = 77;
    static constexpr int kBodyId = 11112;
    static constexpr int kHeaderId = 11113;
    static constexpr int kWidth = 400;

    using Host = support::ScopedTopLevelWindow;

    /// Many tables one after the other may live in one window.
    explicit TableFixture(std::shared_ptr<Host> shared = std::make_shared<Host>(CSize(600, 500)));
    ~TableFixture() override;

    HWND body() const { return ::GetDlgItem(table.m_hWnd, kBodyId); }
    HWND header() const { return ::GetDlgItem(table.m_hWnd, kHeaderId); }

    // Set up; each ends with an empty log.
    using Words = std::vector<unsigned __int64>;
    /// Columns as a host declares them: 0 or less is hidden.
    void setColumns(const std::vector<double>& widths);
    void addRows(const Words& words);
    /// Rows with the words 1 to `count`.
    void addManyRows(int count);
    void select(int row);
    void lock(bool locked) { table.LockColumns(locked); }
    /// Gives the body this client size, as long as it needs no scroll bar; the header stays above it.
    void sizeBody(int width, int height);
    void scrollTo(int position);
    void forget() { handler.takeLog(); }

    // What a user does. Points are client pixels of the body or of the header.
    void press(int x, int y, WPARAM flags = MK_LBUTTON) const;
    void release(int x, int y) const;
    void click(int x, int y) const;
    void moveTo(int x, int y, WPARAM flags = 0) const;
    void doubleClick(int x, int y) const;
    void key(UINT virtualKey) const;
    void pressHeader(int x, int y) const;
    void moveOnHeader(int x, int y) const;
    void releaseHeader(int x, int y) const;
    void clickHeader(int id) const;
    /// Paints all of the body now, if it may paint.
    void paint() const;

    // What is seen.
    /// "rows 10 11 | caret 1 | scroll 0"
    std::string describe() const;
    std::string log() { return handler.takeLog(); }
    int scrollPosition() const { return ::GetScrollPos(body(), SB_VERT); }
    int scrollMaximum() const;
    CSize bodySize() const;
    CRect rectOf(HWND window) const;
    std::vector<int> headerWidths() const;
    std::vector<int> headerOrder() const;
    std::vector<double> realWidths() const;
    CRect headerItem(int id) const;
    /// "up", "down" or nothing.
    std::string arrowOf(int id) const;
    support::Pixels bodyPixels() const { return support::Pixels::ofClient(body()); }

    const std::shared_ptr<Host> sharedHost;
    Host& host;
    RecordingHandler handler;
    ReachableTable table;
};
