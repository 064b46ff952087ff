#pragma once

#include <afxwin.h>

#include <functional>
#include <optional>

namespace support {

/// A host's main window for the length of a scope: shown without activation, which would cost seconds where no window
/// manager runs, with a client area of exactly the size asked for, at (100, 100) of the screen. Its children end with
/// it.
class ScopedTopLevelWindow : public CWnd {
public:
    /// `style` is joined with WS_POPUP | WS_CLIPCHILDREN.
    explicit ScopedTopLevelWindow(CSize client, DWORD style = 0);
    ~ScopedTopLevelWindow() override;

    /// Sees each message before the window does; what it gives is the answer, nothing lets the window go on.
    std::function<std::optional<LRESULT>(UINT message, WPARAM wParam, LPARAM lParam)> onMessage;

    /// Makes it the window that the keyboard types into, as a click on its frame would. Runs messages.
    void activate();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace support
