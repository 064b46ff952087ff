#include "PrintingFixture.h"

#include <limits>
#include <thread>

using namespace PrintLogText;
using namespace PrintStory;

namespace {

using PrintStrategyJobs = SpooledPrintingFixture;

} // namespace

TEST_F(PrintStrategyJobs, TakeTheDocumentThroughAllItsPages) {
    print();
    EXPECT_EQ(kStart + printed(1) + printed(2) + printed(3) + " EndDoc end | main enabled, entry gone", takeStory());
    EXPECT_EQ(kBeginning + drawn(1) + drawn(2) + drawn(3) + kGoodEnd, log.take());
    EXPECT_TRUE(log.areWellFormed());
}

TEST_F(PrintStrategyJobs, OpenTheDocumentUnderTheTitleOfThePrintable) {
    printable.title = L"Zażółć & gęślą";
    print();
    EXPECT_EQ(40, spooler.document.cbSize);
    EXPECT_EQ(nullptr, spooler.document.lpszOutput);
    EXPECT_EQ(nullptr, spooler.document.lpszDatatype);
    EXPECT_EQ(0U, spooler.document.fwType);
    EXPECT_NE(std::string::npos, calls.find("StartDoc(Zażółć & gęślą)"));
    EXPECT_EQ(printer.dc(), spooler.abortContext);
}

TEST_F(PrintStrategyJobs, LendTheContextOfThePrinterAndLeaveItToItsOwner) {
    bool wasThePrinters = true;
    const RecordingPrintable::Hook look = [&](CDC& dc, PrintInfo& info) {
        wasThePrinters = wasThePrinters && dc.m_hDC == printer.dc() && dc.IsPrinting() && &info == printer.info.get();
    };
    printable.onBegin = printable.onPrepare = printable.onPrint = printable.onEnd = look;
    print();
    EXPECT_TRUE(wasThePrinters);
    EXPECT_NE(0U, ::GetObjectType(printer.dc()));
    EXPECT_EQ(nullptr, CDC::FromHandle(printer.dc())->GetWindow());
}

TEST_F(PrintStrategyJobs, HoldTheStateOfTheRunUntilTheyEnd) {
    std::weak_ptr<PrintInfoEx> state = printer.info;
    bool wasThere = true;
    printable.onBegin = [&](CDC&, PrintInfo&) { printer.info.reset(); };
    printable.onEnd = [&](CDC&, PrintInfo&) { wasThere = !state.expired(); };
    print();
    EXPECT_TRUE(wasThere);
    EXPECT_TRUE(state.expired());
}

TEST_F(PrintStrategyJobs, WalkARequestedRangeBackwards) {
    printable.pages = 10;
    askForPages(5, 2);
    print();
    EXPECT_EQ(kStart + printed(5) + printed(4) + printed(3) + printed(2) + " EndDoc end | main enabled, entry gone",
              takeStory());
    EXPECT_EQ(kBeginning + drawn(5) + drawn(4) + drawn(3) + drawn(2) + kGoodEnd, log.take());
}

TEST_F(PrintStrategyJobs, WalkARangeAsItWasRequestedWhereverItLies) {
    struct Case {
        const char* what;
        int from;
        int to;
        std::vector<int> pages;
    };
    const Case cases[] = {
        {"within the document", 2, 3, {2, 3}},
        {"beyond its end", 7, 9, {3}},
        {"partly beyond its end", 2, 9, {2, 3}},
        {"backwards from beyond its end", 9, 2, {3, 2}},
        {"page 0", 0, 0, {0}},
        {"from page 0", 0, 1, {0, 1}},
        {"negative pages", -2, -1, {-2, -1}},
        {"down to negative pages", 1, -1, {1, 0, -1}},
        {"one page", 2, 2, {2}},
    };
    for (const Case& c : cases) {
        askForPages(c.from, c.to);
        print();
        std::string expected = kStart;
        for (const int number : c.pages) {
            expected += printed(number);
        }
        EXPECT_EQ(expected + " EndDoc end | main enabled, entry gone", takeStory()) << c.what;
    }
}

TEST_F(PrintStrategyJobs, WalkToTheEndOfTheNumbersWithoutOverflow) {
    constexpr int kMost = std::numeric_limits<int>::max();
    printable.pages = kMost;
    askForPages(kMost - 1, kMost);
    print();
    EXPECT_EQ(kStart + printed(kMost - 1) + printed(kMost) + " EndDoc end | main enabled, entry gone", takeStory());
    constexpr int kLeast = std::numeric_limits<int>::min();
    askForPages(kLeast + 1, kLeast);
    print();
    EXPECT_EQ(kStart + printed(kLeast + 1) + printed(kLeast) + " EndDoc end | main enabled, entry gone", takeStory());
}

TEST_F(PrintStrategyJobs, OfADocumentWithoutPagesEndAnEmptyDocument) {
    for (const int pages : {0, -1}) {
        printable.pages = pages;
        askForPages(1, 2);
        print();
        EXPECT_EQ(kStart + " EndDoc end | main enabled, entry gone", takeStory()) << pages;
        EXPECT_EQ(std::string(kBeginning) + kNothing + kGoodEnd, log.take()) << pages;
    }
}

TEST_F(PrintStrategyJobs, EndBeforeThePageThatThePrintableDoesNotWant) {
    for (const int last : {0, 1, 2}) {
        printable.onPrepare = [last](CDC&, PrintInfo& info) { info.ContinuePrinting(info.CurrentPage() <= last); };
        print();
        std::string expectedCalls = kStart;
        std::string expectedLog = kBeginning;
        for (int number = 1; number <= last; ++number) {
            expectedCalls += printed(number);
            expectedLog += drawn(number);
        }
        expectedCalls += " prepare:" + std::to_string(last + 1) + " EndDoc end | main enabled, entry gone";
        expectedLog += page(last + 1) + kEarlyEnd + kGoodEnd;
        EXPECT_EQ(expectedCalls, takeStory());
        EXPECT_EQ(expectedLog, log.take());
    }
}

TEST_F(PrintStrategyJobs, GoOnAtFirstWhateverThePaginationLeftBehind) {
    printable.pages = 1;
    printable.onBegin = [](CDC&, PrintInfo& info) { info.ContinuePrinting(false); };
    print();
    EXPECT_EQ(kStart + printed(1) + " EndDoc end | main enabled, entry gone", takeStory());
}

TEST_F(PrintStrategyJobs, LookForTheWishToEndOnlyAfterTheFirstPreparation) {
    // Cleared while the page is drawn: the next page's preparation, which leaves it so, ends the run.
    printable.onPrint = [](CDC&, PrintInfo& info) { info.ContinuePrinting(false); };
    print();
    EXPECT_EQ(kStart + printed(1) + " prepare:2 EndDoc end | main enabled, entry gone", takeStory());
}

TEST_F(PrintStrategyJobs, ThatCannotBeStartedSaySoAndStayRegistered) {
    spooler.startDocResult = -1;
    bool wasEnabled = false;
    HWND status = nullptr;
    spooler.onMessageBox = [&] {
        wasEnabled = mainWindowIsEnabled();
        status = statusWindow();
    };
    print();
    EXPECT_EQ(kStart + " end MessageBox | main enabled, entry there", takeStory());
    EXPECT_EQ(kBeginning, log.take());
    EXPECT_EQ(L"Nie można rozpocząć drukowania.", spooler.messageText);
    EXPECT_EQ(static_cast<UINT>(MB_ICONEXCLAMATION), spooler.messageStyle) << "the framework's own addition to 0";
    EXPECT_TRUE(wasEnabled);
    EXPECT_EQ(nullptr, status);
    spooler.startDocResult = 78;
    print();
    EXPECT_EQ(kStart + printed(1) + printed(2) + printed(3) + " EndDoc end | main enabled, entry gone", takeStory())
        << "a later job takes the entry over";
}

TEST_F(PrintStrategyJobs, TakeOverTheEntryOfAnotherPrintableOnTheirContext) {
    RecordingPrintable refused;
    int askedTheRefused = 0;
    refused.onAborted = [&] { ++askedTheRefused; };
    spooler.startDocResult = -1;
    PrintStrategy().PrintObject(printer.info, &refused);
    spooler.startDocResult = 77;
    int askedTheirs = 0;
    printable.pages = 1;
    printable.onAborted = [&] { ++askedTheirs; };
    printable.onPrint = [&](CDC&, PrintInfo&) { EXPECT_EQ(1, spooler.abortProcedure(printer.dc(), 0)); };
    print();
    EXPECT_EQ(0, askedTheRefused);
    EXPECT_EQ(2, askedTheirs) << "by the spooler and after the page";
}

TEST_F(PrintStrategyJobs, TakeAnyOtherJobNumberForAJob) {
    for (const int number : {0, -2}) {
        spooler.startDocResult = number;
        print();
        EXPECT_EQ(kStart + printed(1) + printed(2) + printed(3) + " EndDoc end | main enabled, entry gone",
                  takeStory());
    }
}

TEST_F(PrintStrategyJobs, AreAbortedWhenAPageCannotStart) {
    spooler.onStartPage = [this](int number) {
        spooler.lastError = 1804;
        return number == 2 ? -1 : 0;
    };
    print();
    EXPECT_EQ(kStart + printed(1) + " prepare:2 StartPage AbortDoc end | main enabled, entry gone", takeStory());
    EXPECT_EQ(kBeginning + drawn(1) + page(2) + "dcPrint.StartPage() < 0\n" + failedEnd(1804), log.take());
}

TEST_F(PrintStrategyJobs, AreCancelledByThePrintable) {
    printable.onPrint = [this](CDC&, PrintInfo& info) { printable.isAborted = info.CurrentPage() == 2; };
    spooler.lastError = 63;
    print();
    EXPECT_EQ(kStart + printed(1) + printed(2) + " AbortDoc end | main enabled, entry gone", takeStory());
    EXPECT_EQ(kBeginning + drawn(1) + drawn(2) + kCancelled + failedEnd(63), log.take());
}

TEST_F(PrintStrategyJobs, AreCancelledWhenTheirEntryIsGone) {
    // A job inside the job, on the same context, erases the entry when it ends.
    RecordingPrintable inner;
    inner.calls = &calls;
    inner.title = L"W środku";
    printable.onPrint = [&](CDC&, PrintInfo&) {
        PrintStrategy().PrintObject(std::make_shared<PrintInfoEx>(&printer.dialog), &inner);
    };
    print();
    EXPECT_EQ(kStart + " prepare:1 StartPage prepare:1 print:1 begin SetAbortProc StartDoc(W środku)" + printed(1) +
                  " EndDoc end EndPage AbortDoc end | main enabled, entry gone",
              takeStory());
    EXPECT_EQ(kBeginning + drawn(1) + kBeginning + drawn(1) + kGoodEnd + kCancelled + failedEnd(0), log.take());
}

TEST_F(PrintStrategyJobs, OnTwoPrintersAtATimeHaveAnEntryEach) {
    MemoryPrinter secondPrinter;
    RecordingPrintable inner;
    inner.calls = &calls;
    inner.title = L"Drugi";
    int answerForTheFirst = -1;
    inner.onPrint = [&](CDC&, PrintInfo&) { answerForTheFirst = spooler.abortProcedure(printer.dc(), 0); };
    printable.pages = 1;
    printable.onPrint = [&](CDC&, PrintInfo&) { PrintStrategy().PrintObject(secondPrinter.info, &inner); };
    print();
    EXPECT_EQ(1, answerForTheFirst);
    EXPECT_EQ(kStart + " prepare:1 StartPage prepare:1 print:1 begin SetAbortProc StartDoc(Drugi)" + printed(1) +
                  " EndDoc end EndPage EndDoc end | main enabled, entry gone",
              takeStory());
}

TEST_F(PrintStrategyJobs, AnswerTheSpoolerWhileItWorks) {
    std::vector<int> answers;
    printable.pages = 1;
    printable.onPrint = [&](CDC&, PrintInfo&) {
        answers.push_back(spooler.abortProcedure(printer.dc(), 0));
        answers.push_back(spooler.abortProcedure(printer.dc(), SP_OUTOFDISK));
        answers.push_back(spooler.abortProcedure(nullptr, 0)); // nobody's job
        printable.isAborted = true;
        answers.push_back(spooler.abortProcedure(printer.dc(), 0));
        printable.isAborted = false;
        ::SendMessageW(statusWindow(), WM_COMMAND, IDCANCEL, 0);
        answers.push_back(spooler.abortProcedure(printer.dc(), 0));
    };
    print();
    EXPECT_EQ((std::vector<int>{1, 1, 0, 0, 0}), answers);
}

TEST_F(PrintStrategyJobs, KeepTheMainWindowDisabledWhileTheyRun) {
    std::string states;
    const RecordingPrintable::Hook look = [&](CDC&, PrintInfo&) { states += mainWindowIsEnabled() ? '1' : '0'; };
    printable.pages = 1;
    printable.onBegin = printable.onPrepare = printable.onPrint = printable.onEnd = look;
    print();
    EXPECT_EQ("10001", states) << "begin, prepare twice, print, end";
}

TEST_F(PrintStrategyJobs, RegisterBeforeTheyBeginAndLeaveBeforeTheyEnd) {
    print(); // sets the procedure that tells
    std::string states;
    const RecordingPrintable::Hook look = [&](CDC&, PrintInfo&) { states += isRegistered() ? '1' : '0'; };
    printable.pages = 1;
    printable.onBegin = printable.onPrepare = printable.onPrint = printable.onEnd = look;
    print();
    EXPECT_EQ("11110", states) << "begin, prepare twice, print, end";
}

TEST_F(PrintStrategyJobs, ShowTheStatusWindowFromAfterTheBeginningUntilAfterTheEnd) {
    std::string states;
    const RecordingPrintable::Hook look = [&](CDC&, PrintInfo&) { states += statusWindow() != nullptr ? '1' : '0'; };
    printable.pages = 1;
    printable.onBegin = printable.onPrepare = printable.onPrint = printable.onEnd = look;
    print();
    EXPECT_EQ("01111", states) << "begin, prepare twice, print, end";
    EXPECT_EQ(nullptr, statusWindow());
}

TEST_F(PrintStrategyJobs, RunWithoutAMainWindow) {
    AfxGetApp()->m_pMainWnd = nullptr;
    ::SetActiveWindow(nullptr);
    printable.window = nullptr;
    print();
    EXPECT_EQ(kBeginning + drawn(1) + drawn(2) + drawn(3) + kGoodEnd, log.take());
}

TEST_F(PrintStrategyJobs, SurviveTheEndOfTheMainWindow) {
    printable.onPrint = [this](CDC&, PrintInfo& info) {
        if (info.CurrentPage() == 2) {
            AfxGetApp()->m_pMainWnd = nullptr;
            mainWindow.DestroyWindow(); // takes the status window with it
        }
    };
    print();
    EXPECT_EQ(kStart + printed(1) + printed(2) + printed(3) + " EndDoc end", calls);
}

TEST_F(PrintStrategyJobs, RunInAThreadWithoutAThreadObject) {
    printable.window = nullptr;
    printable.pages = 1;
    std::thread([this] { print(); }).join();
    EXPECT_EQ(kStart + printed(1) + " EndDoc end | main enabled, entry gone", takeStory());
}

TEST_F(PrintStrategyJobs, RunWithoutAPrinterAsFarAsTheSpoolerSaysNo) {
    printer.dialog.PrinterDC(nullptr);
    spooler.startDocResult = -1;
    print();
    EXPECT_EQ(kStart + " end MessageBox", calls);
    calls.clear();
    spooler.startDocResult = 77;
    print();
    EXPECT_EQ(kStart + printed(1) + printed(2) + printed(3) + " EndDoc end | main enabled, entry gone", takeStory())
        << "the entry is no printer's, and goes like any other";
}
