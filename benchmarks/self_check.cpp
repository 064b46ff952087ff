// Measures what is known: what the harness says here tells how far to trust what it says elsewhere.
#include "Scenario.h"

#include <numeric>
#include <vector>

namespace {

void checkTheHarness(bench::Results& results) {
    std::vector<int> numbers(1 << 14);
    volatile int sink = 0;
    const auto sumOnce = [&] { sink = std::accumulate(numbers.begin(), numbers.end(), sink); };
    const auto sumTwice = [&] {
        sumOnce();
        sumOnce();
    };
    results.measure({.what = "self-check: twice the work of the limit, the work of the peer",
                     .ours = {.run = sumTwice},
                     .peer = bench::Runner{.run = sumTwice},
                     .limit = bench::Runner{.run = sumOnce},
                     .goals = {.toLimit = 2.1, .toPeer = 1.05}});
}

const bench::Registered selfCheck{{"self-check", checkTheHarness}};

} // namespace
