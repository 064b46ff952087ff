#include "PrintingFixture.h"

#include <chrono>

#include "support/Capture.h"
#include "support/Resources.h"

namespace {

using StatusWindows = PrintingFixture;

support::Pixels picturesOfItem(int item) {
    CRect area;
    ::GetWindowRect(::GetDlgItem(statusWindow(), item), &area);
    ::MapWindowPoints(nullptr, statusWindow(), reinterpret_cast<POINT*>(&area), 2);
    return support::Pixels::ofClient(statusWindow()).part(area);
}

} // namespace

TEST_F(StatusWindows, TellDocumentPrinterPortAndPage) {
    std::vector<std::wstring> pages;
    printable.title = L"Notowania & kursy";
    printable.onPrint = [&](CDC&, PrintInfo&) {
        pages.push_back(statusText(204));
        EXPECT_EQ(L"Notowania & kursy", statusText(201));
        EXPECT_EQ(L"Drukarka główna", statusText(202));
        EXPECT_EQ(L"LPT1:", statusText(203));
        EXPECT_TRUE(::IsWindowVisible(statusWindow()));
        EXPECT_EQ(mainWindow.m_hWnd, ::GetWindow(statusWindow(), GW_OWNER));
    };
    askForPages(3, 2);
    print();
    EXPECT_EQ((std::vector<std::wstring>{L"Strona 3", L"Strona 2"}), pages);
    EXPECT_EQ(nullptr, statusWindow());
}

TEST_F(StatusWindows, ShowThePageOnTheScreenBeforeItIsDrawn) {
    using Clock = std::chrono::steady_clock;
    Clock::time_point start;
    Clock::duration longest{};
    std::vector<support::Pixels> pictures;
    printable.onPrepare = [&](CDC& dc, PrintInfo&) {
        // The first of the two calls for a page begins it.
        start = dc.IsPrinting() && start == Clock::time_point() ? Clock::now() : start;
    };
    printable.onPrint = [&](CDC&, PrintInfo&) {
        longest = std::max(longest, Clock::now() - start);
        start = {};
        pictures.push_back(picturesOfItem(204));
    };
    print();
    ASSERT_EQ(3U, pictures.size());
    EXPECT_LT(longest, std::chrono::milliseconds(100));
    EXPECT_FALSE(pictures[0].onlyColour(pictures[0].bounds())) << "there is no text";
    EXPECT_NE(pictures[0], pictures[1]);
    EXPECT_NE(pictures[1], pictures[2]);
}

TEST_F(StatusWindows, OfAThousandJobsLeaveNothingBehind) {
    print(); // what is made once
    const support::Resources before = support::Resources::inUse();
    for (int round = 0; round < 1000; ++round) {
        print();
        log.take();
        printable.takeCalls();
        AfxGetThread()->OnIdle(0); // as the host's loop, which frees temporary objects
    }
    const support::Resources after = support::Resources::inUse();
    EXPECT_EQ(before.gdiHandles, after.gdiHandles);
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_LT(after.heapBytes, before.heapBytes + 100'000);
}
