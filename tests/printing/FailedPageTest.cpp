// Pages that cannot end, and what the spooler says of their job.
#include "PrintingFixture.h"

using namespace PrintLogText;
using namespace PrintStory;

namespace {

using FailedPages = SpooledPrintingFixture;

/// What follows the failed end of page 2 of 3.
struct PageFailure {
    const char* what;
    void (*arrange)(FakeSpooler&);
    const char* calls; ///< to the spooler
    const char* line;  ///< of the log
    int error;         ///< at the end of the log
};

class FailedPagesOfAJob : public SpooledPrintingFixture, public testing::WithParamInterface<PageFailure> {};

constexpr const char* kOpen = " OpenPrinter(Drukarka główna)";
constexpr DWORD kPaused = 0x1;
constexpr DWORD kRestart = 0x800;

const PageFailure kPageFailures[] = {
    {"PrinterThatCannotBeOpened", [](FakeSpooler& spooler) { spooler.printerOpens = false; }, "",
     "Nie mo\xBFna u\xBFy\xE6 wybranej drukarki: Drukarka g\xB3\xF3wna\n", 5},
    {"JobThatIsGoneAtTheFirstLook", [](FakeSpooler& spooler) { spooler.sizeError = ERROR_INVALID_PARAMETER; },
     " GetJob(77,1)", "", ERROR_INVALID_PARAMETER},
    {"JobThatIsGoneAtTheSecondLook",
     [](FakeSpooler& spooler) {
         spooler.jobResult = FALSE;
         spooler.recordIsFilled = false;
     },
     " GetJob(77,1) GetJob(77,1)", "Status zadania drukowania == 0\n", ERROR_INSUFFICIENT_BUFFER},
    {"JobThatIsGoneButLeftItsRecord",
     [](FakeSpooler& spooler) {
         spooler.jobResult = FALSE;
         spooler.jobStatus = kRestart;
     },
     " GetJob(77,1) GetJob(77,1)", "Status zadania drukowania == 2048\n", ERROR_INSUFFICIENT_BUFFER},
    {"JobThatIsNotRestarting", [](FakeSpooler& spooler) { spooler.jobStatus = kPaused | 0x400; },
     " GetJob(77,1) GetJob(77,1)", "Status zadania drukowania == 1025\n", ERROR_INSUFFICIENT_BUFFER},
    {"JobWithTheHighestBit", [](FakeSpooler& spooler) { spooler.jobStatus = 0x80000000; }, " GetJob(77,1) GetJob(77,1)",
     "Status zadania drukowania == -2147483648\n", ERROR_INSUFFICIENT_BUFFER},
    {"LackOfMemoryForTheJobRecord",
     [](FakeSpooler& spooler) {
         spooler.mallocFails = true;
         spooler.jobStatus = kRestart;
     },
     " GetJob(77,1)", "Brak informacji o utworzonym zadaniu drukowania.\n", ERROR_INSUFFICIENT_BUFFER},
};

} // namespace

TEST_P(FailedPagesOfAJob, AbortTheJob) {
    const PageFailure& failure = GetParam();
    spooler.onEndPage = [this](int number) {
        spooler.lastError = 5;
        return number == 2 ? -1 : 1;
    };
    failure.arrange(spooler);
    print();
    EXPECT_EQ(kStart + printed(1) + printed(2) + kOpen + failure.calls + " AbortDoc end | main enabled, entry gone",
              takeStory());
    EXPECT_EQ(kBeginning + drawn(1) + drawn(2) + failure.line + failedEnd(failure.error), log.take());
}

INSTANTIATE_TEST_SUITE_P(WithA, FailedPagesOfAJob, testing::ValuesIn(kPageFailures),
                         [](const auto& tested) { return std::string(tested.param.what); });

TEST_F(FailedPages, ForgiveAFailedPageWhileTheSpoolerRestartsTheJob) {
    for (const DWORD status : {kRestart, kRestart | kPaused}) {
        spooler.jobStatus = status;
        spooler.onEndPage = [this](int number) {
            spooler.lastError = 5;
            return number == 2 ? -1 : 1;
        };
        print();
        EXPECT_EQ(kStart + printed(1) + printed(2) + kOpen + " GetJob(77,1) GetJob(77,1)" + printed(3) +
                      " EndDoc end | main enabled, entry gone",
                  takeStory());
        EXPECT_EQ(kBeginning + drawn(1) + drawn(2) + drawn(3) + kGoodEnd, log.take());
    }
}

TEST_F(FailedPages, LookForACancellationAlsoAfterAForgivenPage) {
    spooler.jobStatus = kRestart;
    spooler.onEndPage = [this](int) {
        spooler.lastError = 5;
        printable.isAborted = true;
        return -1;
    };
    print();
    EXPECT_EQ(kStart + printed(1) + kOpen + " GetJob(77,1) GetJob(77,1) AbortDoc end | main enabled, entry gone",
              takeStory());
    EXPECT_EQ(kBeginning + drawn(1) + kCancelled + failedEnd(ERROR_INSUFFICIENT_BUFFER), log.take());
}

TEST_F(FailedPages, TakeAFailedPageWithoutAnErrorForASuccess) {
    spooler.onEndPage = [this](int) {
        spooler.lastError = 0;
        return -1;
    };
    print();
    EXPECT_EQ(kStart + printed(1) + printed(2) + printed(3) + " EndDoc end | main enabled, entry gone", takeStory());
    EXPECT_EQ(kBeginning + drawn(1) + drawn(2) + drawn(3) + kGoodEnd, log.take());
}

TEST_F(FailedPages, TakeAnEndOfAPageThatIsNotNegativeForASuccess) {
    spooler.onEndPage = [this](int) {
        spooler.lastError = 5;
        return 0;
    };
    print();
    EXPECT_EQ(kStart + printed(1) + printed(2) + printed(3) + " EndDoc end | main enabled, entry gone", takeStory());
    EXPECT_EQ(kBeginning + drawn(1) + drawn(2) + drawn(3) + kGoodEnd, log.take());
}

TEST_F(FailedPages, LookAtTheJobWhateverItsSizeIsSaidToBe) {
    printable.pages = 1;
    spooler.sizeResult = TRUE; // and so no error
    spooler.jobStatus = kRestart;
    spooler.onEndPage = [this](int) {
        spooler.lastError = 5;
        return -1;
    };
    for (const DWORD size : {0, 1, 5000}) {
        spooler.size = size;
        print();
        EXPECT_EQ(kStart + printed(1) + kOpen + " GetJob(77,1) GetJob(77,1) EndDoc end | main enabled, entry gone",
                  takeStory())
            << size;
    }
}
