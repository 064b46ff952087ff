#include "PrintingFixture.h"

#include <algorithm>
#include <random>
#include <sstream>
#include <vector>

#include <winspool.h>

using namespace PrintLogText;
using namespace PrintStory;

namespace {

enum class EndOfPage { Good, WithoutError, Restarting, NoPrinter, Gone, Vanishing, NoMemory, Stuck };

/// What happens to a job. Steps count from 1 along the walk; 0 is never.
struct Plan {
    int pages = 3;
    bool isRange = false;
    int from = 1;
    int to = 1;
    bool isRefused = false;
    int unwanted = 0;
    int badStart = 0;
    int badEnd = 0;
    EndOfPage end = EndOfPage::Good;
    int aborted = 0;
};

std::ostream& operator<<(std::ostream& out, const Plan& plan) {
    out << plan.pages << " pages";
    if (plan.isRange) {
        out << ", " << plan.from << " to " << plan.to;
    }
    return out << ", refused " << plan.isRefused << ", unwanted " << plan.unwanted << ", bad start " << plan.badStart
               << ", bad end " << plan.badEnd << " as " << static_cast<int>(plan.end) << ", aborted " << plan.aborted;
}

struct Outcome {
    std::string calls;
    std::string log;
};

/// The walk written down page by page.
std::vector<int> walk(const Plan& plan) {
    if (plan.pages < 1) {
        return {};
    }
    const int first = plan.isRange ? std::min(plan.from, plan.pages) : 1;
    const int last = plan.isRange ? std::min(plan.to, plan.pages) : plan.pages;
    std::vector<int> pages;
    for (int page = std::min(first, last); page <= std::max(first, last); ++page) {
        pages.push_back(page);
    }
    if (last < first) {
        std::reverse(pages.begin(), pages.end());
    }
    return pages;
}

constexpr int kError = 29;

/// The spooler's part in a page that failed, and whether the job goes on.
struct Check {
    std::string calls;
    std::string line;
    int error;
    bool goesOn;
};

Check checkOf(EndOfPage end) {
    const std::string open = " OpenPrinter(Drukarka główna)";
    const std::string look = " GetJob(77,1)";
    switch (end) {
    case EndOfPage::Good:
        return {"", "", kError, true};
    case EndOfPage::WithoutError:
        return {"", "", 0, true};
    case EndOfPage::Restarting:
        return {open + look + look, "", ERROR_INSUFFICIENT_BUFFER, true};
    case EndOfPage::NoPrinter:
        return {open, "Nie mo\xBFna u\xBFy\xE6 wybranej drukarki: Drukarka g\xB3\xF3wna\n", kError, false};
    case EndOfPage::Gone:
        return {open + look, "", ERROR_INVALID_PARAMETER, false};
    case EndOfPage::Vanishing:
        return {open + look + look, "Status zadania drukowania == 0\n", ERROR_INSUFFICIENT_BUFFER, false};
    case EndOfPage::NoMemory:
        return {open + look, "Brak informacji o utworzonym zadaniu drukowania.\n", ERROR_INSUFFICIENT_BUFFER, false};
    case EndOfPage::Stuck:
        break;
    }
    return {open + look + look, "Status zadania drukowania == 2\n", ERROR_INSUFFICIENT_BUFFER, false};
}

Outcome expectedOf(const Plan& plan) {
    Outcome outcome{kStart, kBeginning};
    if (plan.isRefused) {
        outcome.calls += " end MessageBox | main enabled, entry there";
        return outcome;
    }
    int error = kError;
    int step = 0;
    const auto fail = [&] {
        outcome.calls += " AbortDoc end | main enabled, entry gone";
        outcome.log += failedEnd(error);
        return outcome;
    };
    const std::vector<int> pages = walk(plan);
    outcome.log += plan.pages < 1 ? kNothing : "";
    for (const int number : pages) {
        ++step;
        const std::string prepare = " prepare:" + std::to_string(number);
        outcome.log += page(number);
        if (step == plan.unwanted) {
            outcome.calls += prepare;
            outcome.log += kEarlyEnd;
            break;
        }
        if (step == plan.badStart) {
            outcome.calls += prepare + " StartPage";
            outcome.log += "dcPrint.StartPage() < 0\n";
            return fail();
        }
        outcome.calls += printed(number);
        outcome.log += kCall;
        if (step == plan.badEnd) {
            const Check check = checkOf(plan.end);
            outcome.calls += check.calls;
            outcome.log += check.line;
            error = check.error;
            if (!check.goesOn) {
                return fail();
            }
        }
        if (step == plan.aborted) {
            outcome.log += kCancelled;
            return fail();
        }
    }
    outcome.calls += " EndDoc end | main enabled, entry gone";
    outcome.log += kGoodEnd;
    return outcome;
}

class RandomPlans {
public:
    Plan next() {
        Plan plan;
        plan.pages = number(-1, 6);
        plan.isRange = number(0, 1) != 0;
        plan.from = number(-2, 8);
        plan.to = number(-2, 8);
        plan.isRefused = number(0, 15) == 0;
        plan.unwanted = sometimes();
        plan.badStart = sometimes();
        plan.badEnd = number(0, 5);
        plan.end = static_cast<EndOfPage>(number(0, 7));
        plan.aborted = sometimes();
        return plan;
    }

private:
    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }
    int sometimes() { return number(0, 2) == 0 ? number(1, 6) : 0; }

    std::mt19937 m_random{20251231};
};

class RandomPrintJobs : public SpooledPrintingFixture {
protected:
    void arrange(const Plan& plan) {
        printable.pages = plan.pages;
        printer.dialog.PrintOption(plan.isRange ? PrintOptionPages : PrintOptionSelection);
        printer.dialog.FromPage(plan.from);
        printer.dialog.ToPage(plan.to);
        step = 0;
        spooler.lastError = kError;
        spooler.startDocResult = plan.isRefused ? -1 : 77;
        spooler.printerOpens = plan.end != EndOfPage::NoPrinter;
        spooler.sizeError = plan.end == EndOfPage::Gone ? ERROR_INVALID_PARAMETER : ERROR_INSUFFICIENT_BUFFER;
        spooler.jobResult = plan.end == EndOfPage::Vanishing ? FALSE : TRUE;
        spooler.recordIsFilled = plan.end != EndOfPage::Vanishing;
        spooler.jobStatus = plan.end == EndOfPage::Stuck ? JOB_STATUS_ERROR : JOB_STATUS_RESTART;
        spooler.mallocFails = plan.end == EndOfPage::NoMemory;
        printable.onPrepare = [this, plan](CDC&, PrintInfo& info) {
            isSecond = !isSecond;
            step += isSecond ? 1 : 0;
            info.ContinuePrinting(step != plan.unwanted);
        };
        isSecond = false;
        spooler.onStartPage = [this, plan](int) { return step == plan.badStart ? -1 : 1; };
        spooler.onEndPage = [this, plan](int) {
            printable.isAborted = step == plan.aborted;
            if (step != plan.badEnd || plan.end == EndOfPage::Good) {
                return 1;
            }
            spooler.lastError = plan.end == EndOfPage::WithoutError ? 0 : kError;
            return -1;
        };
    }

    int step = 0;
    bool isSecond = false;
};

} // namespace

TEST_F(RandomPrintJobs, EndAsThePlanSays) {
    RandomPlans plans;
    for (int round = 0; round < 1000; ++round) {
        const Plan plan = plans.next();
        arrange(plan);
        print();
        const Outcome expected = expectedOf(plan);
        ASSERT_EQ(expected.calls, takeStory()) << round << ": " << plan;
        ASSERT_EQ(expected.log, log.take()) << round << ": " << plan;
        AfxGetThread()->OnIdle(0);
    }
}
