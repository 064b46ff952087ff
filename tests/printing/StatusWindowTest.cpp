#include "PrintingFixture.h"

#include <chrono>

#include <OrtinFoundation/Log.h>

#include "support/Capture.h"
#include "support/ImportPatch.h"
#include "support/Pump.h"
#include "support/Resources.h"

namespace {

using StatusWindows = PrintingFixture;

support::Pixels pictureOfItem(int item) {
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
        pictures.push_back(pictureOfItem(204));
    };
    // The best of some jobs: a machine that pauses pauses one of them, a window that shows late does so in each.
    Clock::duration best = Clock::duration::max();
    for (int job = 0; job < 3; ++job) {
        pictures.clear();
        longest = {};
        print();
        ASSERT_EQ(3U, pictures.size());
        best = std::min(best, longest);
        EXPECT_FALSE(pictures[0].onlyColour(pictures[0].bounds())) << "there is no text";
        EXPECT_NE(pictures[0], pictures[1]);
        EXPECT_NE(pictures[1], pictures[2]);
    }
    EXPECT_LT(best, std::chrono::milliseconds(100));
}

TEST_F(StatusWindows, CutALongPageTextOfTheHost) {
    // The host's own text of that number comes before the framework's.
    const HMODULE library = ::LoadLibraryW(L"ortin_printing_words.dll");
    ASSERT_NE(nullptr, library);
    const HINSTANCE before = AfxGetResourceHandle();
    AfxSetResourceHandle(library);
    std::wstring shown;
    printable.onPrint = [&](CDC&, PrintInfo&) { shown = statusText(204); };
    askForPages(2, 2);
    print();
    AfxSetResourceHandle(before);
    ::FreeLibrary(library);
    EXPECT_EQ(std::wstring(9, L'.') + L"2" + std::wstring(69, L'-'), shown);
    EXPECT_EQ(79U, shown.size());
}

TEST_F(StatusWindows, ShowAllTheirTextsInAPictureToLookAt) {
    printable.title = L"Notowania spółek z indeksu S&P 500";
    printer.dialog.PrinterName(L"HP LaserJet Pro MFP M428fdw (sala operacyjna, drugie piętro)");
    printer.dialog.PrinterPortName(L"WSD-8a2f01c4-77e0");
    askForPages(2, 2);
    printable.onPrint = [](CDC&, PrintInfo&) {
        support::pumpUntilIdle();
        support::Pixels::ofWindow(statusWindow()).savePng(support::picturesFolder() / "print-status.png");
        for (const int item : {201, 202, 203, 204}) {
            const support::Pixels picture = pictureOfItem(item);
            EXPECT_FALSE(picture.onlyColour(picture.bounds())) << item;
        }
    };
    print();
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

TEST_F(StatusWindows, AreOnTheScreenBeforeTheDocumentStarts) {
    int looks = 0;
    OrtinTools::Log::Instance().SetSink([&](std::string_view, int, std::string_view text) {
        if (text.starts_with("Rozpocz")) {
            ++looks;
            EXPECT_TRUE(::IsWindowVisible(statusWindow()));
            EXPECT_FALSE(::GetUpdateRect(statusWindow(), nullptr, FALSE));
            for (const int item : {201, 202, 203, IDCANCEL}) {
                const HWND child = ::GetDlgItem(statusWindow(), item);
                EXPECT_FALSE(::GetUpdateRect(child, nullptr, FALSE)) << item;
                const support::Pixels picture = pictureOfItem(item);
                EXPECT_FALSE(picture.onlyColour(picture.bounds())) << item;
            }
        }
    });
    print();
    EXPECT_EQ(1, looks);
}

TEST_F(StatusWindows, ThatCannotBeMadeAreDoneWithout) {
    const support::ImportPatch noDialog(
        ::GetModuleHandleW(L"OrtinMfc.dll"), "user32.dll", "CreateDialogIndirectParamW",
        +[](HINSTANCE, LPCDLGTEMPLATEW, HWND, DLGPROC, LPARAM) WINAPI -> HWND { return nullptr; });
    print();
    EXPECT_EQ("begin prepare:1 prepare:1 print:1 prepare:2 prepare:2 print:2 prepare:3 prepare:3 print:3 end",
              printable.takeCalls());
    EXPECT_TRUE(mainWindowIsEnabled());
    EXPECT_TRUE(::IsWindowVisible(mainWindow));
}
