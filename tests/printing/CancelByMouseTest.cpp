#include "PrintingFixture.h"

#include <thread>

#include "support/RealInput.h"

using namespace PrintLogText;
using namespace PrintStory;

namespace {

using CancelByMouse = SpooledPrintingFixture;

/// The user's click, from outside: no message of the job's thread is run here.
void clickOutside(HWND window) {
    CRect area;
    ::GetWindowRect(window, &area);
    std::thread([middle = area.CenterPoint()] { support::click(middle); }).join();
}

} // namespace

TEST_F(CancelByMouse, EndsTheJobAfterThePageInWork) {
    spooler.lastError = 63;
    printable.onPrint = [](CDC&, PrintInfo& info) {
        if (info.CurrentPage() == 2) {
            clickOutside(::GetDlgItem(statusWindow(), IDCANCEL));
        }
    };
    print();
    EXPECT_EQ(kBeginning + drawn(1) + drawn(2) + kCancelled + failedEnd(63), log.take());
    EXPECT_EQ(kStart + printed(1) + printed(2) + " AbortDoc end | main enabled, entry gone", takeStory());
    EXPECT_EQ(nullptr, statusWindow());
}

TEST_F(CancelByMouse, DoesNotReachTheDisabledMainWindow) {
    int presses = 0;
    mainWindow.onMessage = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        presses += message == WM_LBUTTONDOWN ? 1 : 0;
        return std::nullopt;
    };
    printable.onPrint = [this](CDC&, PrintInfo& info) {
        if (info.CurrentPage() == 1) {
            CRect area;
            mainWindow.GetWindowRect(&area);
            std::thread([corner = area.TopLeft()] { support::click({corner.x + 2, corner.y + 2}); }).join();
        }
    };
    print();
    EXPECT_EQ(0, presses);
    EXPECT_EQ(kStart + printed(1) + printed(2) + printed(3) + " EndDoc end | main enabled, entry gone", takeStory());
}
