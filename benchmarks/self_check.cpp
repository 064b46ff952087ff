// Measures what is known: what the harness says here tells how far to trust what it says elsewhere.
#include "Scenario.h"

#include <vector>

namespace {

/// Not inlined, or the compiler would find better code for one caller than for the other.
[[gnu::noinline]] void work(std::vector<unsigned>& numbers) {
    for (unsigned& number : numbers) {
        number = number * 1'664'525U + 1'013'904'223U;
    }
}

void checkTheHarness(bench::Results& results) {
    std::vector<unsigned> numbers(1 << 14);
    const auto workOnce = [&] { work(numbers); };
    const auto workTwice = [&] {
        work(numbers);
        work(numbers);
    };
    results.measure({.what = "self-check: twice the work of the limit, the work of the peer",
                     .ours = {.run = workTwice},
                     .peer = bench::Runner{.run = workTwice},
                     .limit = bench::Runner{.run = workOnce},
                     .goals = {.toLimit = 2.1, .toPeer = 1.05}});
}

const bench::Registered selfCheck{{"self-check", checkTheHarness}};

} // namespace
