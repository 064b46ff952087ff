// Printers that vanish while a job runs, and the handles that their pages cost.
#include "PrintingFixture.h"
#include "support/Resources.h"

#include <stdexcept>

#include <winspool.h>

using namespace PrintLogText;
using namespace PrintStory;

namespace {

constexpr const char* kOpen = " OpenPrinter(Drukarka główna)";
constexpr const char* kAskedTwice = " GetJob(77,1) GetJob(77,1)";
constexpr const char* kAborted = " AbortDoc end | main enabled, entry gone";

class LostPrinter : public SpooledPrintingFixture {
protected:
    /// From page `number` on no page can end.
    void vanishAtTheEndOf(int number) {
        spooler.printerOpens = true;
        spooler.lastError = 0;
        spooler.onEndPage = [this, number](int page) {
            if (page < number) {
                return 1;
            }
            spooler.printerOpens = false;
            spooler.lastError = ERROR_INVALID_PRINTER_NAME;
            return -1;
        };
    }
    /// The spooler restarts the job again and again, so that all its pages fail and are forgiven.
    void failEachPage() {
        spooler.jobStatus = JOB_STATUS_RESTART;
        spooler.onEndPage = [this](int) {
            spooler.lastError = ERROR_INVALID_HANDLE;
            return -1;
        };
    }

    std::string printedBefore(int number) const {
        std::string pages;
        for (int page = 1; page < number; ++page) {
            pages += printed(page);
        }
        return pages;
    }
    std::string drawnBefore(int number) const {
        std::string lines;
        for (int page = 1; page < number; ++page) {
            lines += drawn(page);
        }
        return lines;
    }
};

} // namespace

TEST_F(LostPrinter, AtTheEndOfAPageEndsTheJobThere) {
    for (const int number : {1, 2, 3}) {
        vanishAtTheEndOf(number);
        print();
        EXPECT_EQ(kStart + printedBefore(number + 1) + kOpen + kAborted, takeStory()) << number;
        EXPECT_EQ(kBeginning + drawnBefore(number + 1) +
                      "Nie mo\xBFna u\xBFy\xE6 wybranej drukarki: Drukarka g\xB3\xF3wna\n" +
                      failedEnd(ERROR_INVALID_PRINTER_NAME),
                  log.take())
            << number;
    }
}

TEST_F(LostPrinter, AtTheStartOfAPageEndsTheJobThere) {
    for (const int number : {1, 2, 3}) {
        spooler.onStartPage = [this, number](int page) {
            spooler.lastError = ERROR_INVALID_PRINTER_NAME;
            return page < number ? 1 : -1;
        };
        print();
        EXPECT_EQ(kStart + printedBefore(number) + " prepare:" + std::to_string(number) + " StartPage" + kAborted,
                  takeStory())
            << number;
        EXPECT_EQ(kBeginning + drawnBefore(number) + page(number) + "dcPrint.StartPage() < 0\n" +
                      failedEnd(ERROR_INVALID_PRINTER_NAME),
                  log.take())
            << number;
    }
}

TEST_F(LostPrinter, IsNotForgivenBecauseAPageBeforeWas) {
    spooler.jobStatus = JOB_STATUS_RESTART;
    spooler.onEndPage = [this](int page) {
        spooler.printerOpens = page == 1;
        spooler.lastError = ERROR_INVALID_PRINTER_NAME;
        return -1;
    };
    print();
    EXPECT_EQ(kStart + printed(1) + kOpen + kAskedTwice + printed(2) + kOpen + kAborted, takeStory());
    EXPECT_EQ(1U, spooler.openedPrinters);
}

TEST_F(LostPrinter, AfterAForgivenPageMayRefuseToStartTheNext) {
    failEachPage();
    spooler.onStartPage = [](int page) { return page == 2 ? -1 : 1; };
    print();
    EXPECT_EQ(kStart + printed(1) + kOpen + kAskedTwice + " prepare:2 StartPage" + kAborted, takeStory());
}

TEST_F(LostPrinter, IsTheOnlyReasonToOpenOne) {
    print();
    spooler.startDocResult = -1;
    print();
    spooler.startDocResult = 77;
    spooler.onStartPage = [](int) { return -1; };
    print();
    spooler.onStartPage = [](int) { return 1; };
    spooler.onEndPage = [](int) { return -1; }; // without an error
    print();
    EXPECT_EQ(0U, spooler.openedPrinters);
}

TEST_F(LostPrinter, LeavesOneHandleOpenForEachFailedPageAndNothingElse) {
    failEachPage();
    print(); // what is made once
    log.take();
    calls.clear();
    AfxGetThread()->OnIdle(0);
    const support::Resources before = support::Resources::inUse();
    spooler.openedPrinters = 0;
    constexpr int kJobs = 1000;
    for (int job = 0; job < kJobs; ++job) {
        print();
        log.take();
        calls.clear();
        AfxGetThread()->OnIdle(0);
    }
    const support::Resources after = support::Resources::inUse();
    EXPECT_EQ(3U * kJobs, spooler.openedPrinters);
    EXPECT_EQ(before.gdiHandles, after.gdiHandles);
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_LT(after.heapBytes, before.heapBytes + 100'000);
}

TEST_F(LostPrinter, IsNeverClosed) {
    // What does not import the call cannot make it.
    for (const wchar_t* name : {L"OrtinControls.dll", L"OrtinMfc.dll", L"OrtinXtp.dll", L"OrtinFoundation.dll"}) {
        const HMODULE module = ::GetModuleHandleW(name);
        ASSERT_NE(nullptr, module);
        EXPECT_THROW(support::ImportPatch(module, "winspool.drv", "ClosePrinter", ::ClosePrinter), std::runtime_error);
    }
}

namespace {

using LostContext = PrintingFixture;

} // namespace

TEST_F(LostContext, FailsTheJobWithTheSystemsOwnCalls) {
    printable.onPrint = [this](CDC&, PrintInfo&) { printer.dialog.PrinterDC(nullptr); };
    print();
    // It is the system's choice whether the page in work or the next one fails.
    const std::string calls = printable.takeCalls();
    const std::string kFirstPage = "begin prepare:1 prepare:1 print:1";
    EXPECT_TRUE(calls == kFirstPage + " end" || calls == kFirstPage + " prepare:2 end") << calls;
    const std::string lines = log.take();
    EXPECT_TRUE(lines.starts_with(kBeginning + drawn(1))) << lines;
    EXPECT_NE(std::string::npos, lines.find("Nast\xB9pi\xB3 b\xB3\xB9"
                                            "d drukowania i zosta\xB3o ono przerwane\nGetLastError() == "))
        << lines;
    EXPECT_TRUE(mainWindowIsEnabled());
    EXPECT_EQ(nullptr, statusWindow());
}
