#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <windows.h>

#include "TemporaryFolder.h"
#include "support/Capture.h"

/// Asks again and again until it holds, for at most ten seconds.
bool eventually(const std::function<bool()>& holds);

/// Drags by the left button until what is dragged has followed; false if it never has. A busy display's late word of an
/// earlier place takes it back, and a last move that arrives together with the release counts as none.
bool dragUntil(POINT from, POINT to, const std::function<bool()>& hasFollowed);

/// A run of OrtinDesk to its end.
struct DeskRun {
    int exitCode = -1;
    std::string output;
    std::string errors;
};

/// Starts the desk with the arguments and waits until it ends. With `whileOpen` its window is waited for and closed
/// afterwards, as the user closes it.
DeskRun runDesk(const std::vector<std::wstring>& arguments, const std::function<void()>& whileOpen = {});

/// A desk with 60 known instruments on the screen, its client area 1000 x 600 at 96 DPI, its columns locked at known
/// widths. What the user's eyes would tell is asked of the screen, in client coordinates of the window that is named.
class DeskOnScreen : public testing::Test {
protected:
    void TearDown() override;

    void start(const std::vector<std::wstring>& more = {});
    /// As the user closes it; the settings are written then.
    void close();

    HWND desk() const { return m_desk; }
    HWND strip() const;
    HWND findBox() const;
    HWND table() const;
    HWND header() const;
    HWND body() const;
    HWND scrollBar() const;
    HWND statusLine() const;

    /// Waits until nothing moves on the desk any more: what the hands did has had its effect.
    void settle() const;
    /// Presses at `from`, releases at `to` when the desk has followed there, and waits until it rests.
    void drag(POINT from, POINT to) const;
    /// A click with a key held down.
    void clickWith(WORD key, POINT point) const;
    /// Two clicks that are no double click.
    void clickAgain(POINT point) const;

    POINT onScreen(HWND window, int x, int y) const;
    support::Pixels pixelsOf(HWND window) const;

    /// The middle of a column by its place in the settings that the desk was started with.
    int columnMiddle(std::size_t position) const;
    int columnRight(std::size_t position) const;
    int rowHeight() const;
    POINT cell(int rowInView, std::size_t position) const;
    POINT title(std::size_t position) const;

    /// What Ctrl+C of the table puts on the clipboard; empty if nothing comes.
    std::wstring copied();
    /// The first cell of each copied row, parted by blanks.
    std::string copiedSymbols();
    std::wstring textOf(HWND window) const;
    std::string settings() const { return bytesOf(m_settings); }
    /// "key width" or "key width hidden" of each column, from the settings as they were left.
    std::vector<std::string> keptColumns() const;
    std::vector<std::string> keptKeys() const;
    double keptWidth(const std::string& key) const;
    double keptSum() const;

    static int scaled(int length);

    TemporaryFolder m_folder;

private:
    /// Waits until the desk has taken from its queue what the hands put there.
    void catchUp() const;
    std::filesystem::path m_settings = m_folder.file(L"settings.txt");
    HANDLE m_process = nullptr;
    HWND m_desk = nullptr;
};
