#pragma once

#include "Harness.h"

#include <functional>
#include <string>
#include <vector>

namespace bench {

/// Where a scenario leaves what it measured.
class Results {
public:
    void measure(const Measurement& measurement);
    void record(const Amount& amount);

    const std::vector<Result>& all() const { return m_results; }

private:
    std::vector<Result> m_results;
};

/// What measures: it makes the windows and data that it needs, measures, and lets them go.
struct Scenario {
    std::string name; ///< scenarios run in the order of their names
    std::function<void(Results&)> run;
};

/// A namespace-scope object of this type makes a scenario known to the program: const Registered table{{"table", run}};
struct Registered {
    explicit Registered(Scenario scenario);
};

/// Sorted by name.
std::vector<Scenario> scenarios();

} // namespace bench
