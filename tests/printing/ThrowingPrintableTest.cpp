// What a job leaves behind when the host throws out of it.
#include "PrintingFixture.h"
#include "support/Resources.h"

#include <stdexcept>

using namespace PrintLogText;
using namespace PrintStory;

namespace {

void fail() {
    throw std::runtime_error("host");
}

void failWith(CDC&, PrintInfo&) {
    fail();
}

/// Where the printable throws, and what has happened by then.
struct Place {
    const char* name;
    void (*arrange)(RecordingPrintable&, FakeSpooler&);
    std::string story;
    std::string lines;
};

std::string beginning(int lines) {
    const std::string whole = kBeginning;
    std::size_t end = 0;
    for (; lines > 0; --lines) {
        end = whole.find('\n', end) + 1;
    }
    return whole.substr(0, end);
}

void failInSecondPreparation(RecordingPrintable& printable, FakeSpooler&) {
    printable.onPrepare = [calls = 0](CDC&, PrintInfo&) mutable {
        if (++calls == 2) {
            fail();
        }
    };
}

void failAtTheEndOfARefusedJob(RecordingPrintable& printable, FakeSpooler& spooler) {
    printable.onEnd = failWith;
    spooler.startDocResult = -1;
}

const Place kPlaces[] = {
    {"Title", [](RecordingPrintable& printable, FakeSpooler&) { printable.onTitle = fail; },
     " | main enabled, entry there", beginning(1)},
    {"Beginning", [](RecordingPrintable& printable, FakeSpooler&) { printable.onBegin = failWith; },
     "begin | main enabled, entry there", beginning(2)},
    {"AssociatedWindow", [](RecordingPrintable& printable, FakeSpooler&) { printable.onWindow = fail; },
     "begin SetAbortProc | main disabled, entry there", beginning(4)},
    {"FirstPreparation", [](RecordingPrintable& printable, FakeSpooler&) { printable.onPrepare = failWith; },
     kStart + " prepare:1 | main disabled, entry there", kBeginning + page(1)},
    {"SecondPreparation", failInSecondPreparation,
     kStart + " prepare:1 StartPage prepare:1 | main disabled, entry there", kBeginning + page(1)},
    {"Drawing", [](RecordingPrintable& printable, FakeSpooler&) { printable.onPrint = failWith; },
     kStart + " prepare:1 StartPage prepare:1 print:1 | main disabled, entry there", kBeginning + drawn(1)},
    {"QuestionWhetherToGoOn", [](RecordingPrintable& printable, FakeSpooler&) { printable.onAborted = fail; },
     kStart + printed(1) + " | main disabled, entry there", kBeginning + drawn(1)},
    {"End", [](RecordingPrintable& printable, FakeSpooler&) { printable.onEnd = failWith; },
     kStart + printed(1) + printed(2) + printed(3) + " EndDoc end | main enabled, entry gone",
     kBeginning + drawn(1) + drawn(2) + drawn(3) + kGoodEnd},
    {"EndOfARefusedJob", failAtTheEndOfARefusedJob, kStart + " end | main enabled, entry there", kBeginning},
};

class PrintStrategyThrowingPrintable : public SpooledPrintingFixture, public testing::WithParamInterface<Place> {
protected:
    PrintStrategyThrowingPrintable() {
        print(); // sets the procedure that tells of the registry
        calls.clear();
        log.take();
    }

    void printAndThrow() {
        GetParam().arrange(printable, spooler);
        EXPECT_THROW(print(), std::runtime_error);
        printable.onAborted = nullptr;
    }
};

} // namespace

TEST_P(PrintStrategyThrowingPrintable, LeavesTheJobAsItIs) {
    printAndThrow();
    EXPECT_EQ(GetParam().story, takeStory());
    EXPECT_EQ(GetParam().lines, log.take());
    EXPECT_EQ(nullptr, statusWindow());
    EXPECT_NE(0U, ::GetObjectType(printer.dc())) << "the context is its owner's";
    EXPECT_EQ(1, printer.info.use_count());
}

TEST_P(PrintStrategyThrowingPrintable, LeavesNothingElseBehind) {
    const auto round = [this] {
        printAndThrow();
        mainWindow.EnableWindow(TRUE);
        calls.clear();
        log.take();
        AfxGetThread()->OnIdle(0);
    };
    round();
    const support::Resources before = support::Resources::inUse();
    for (int job = 0; job < 30; ++job) {
        round();
    }
    const support::Resources after = support::Resources::inUse();
    EXPECT_EQ(before.gdiHandles, after.gdiHandles);
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_LT(after.heapBytes, before.heapBytes + 20'000);
}

INSTANTIATE_TEST_SUITE_P(In, PrintStrategyThrowingPrintable, testing::ValuesIn(kPlaces),
                         [](const auto& tested) { return std::string(tested.param.name); });
