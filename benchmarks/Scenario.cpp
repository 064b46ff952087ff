#include "Scenario.h"

#include <algorithm>
#include <iostream>

namespace bench {
namespace {

std::vector<Scenario>& known() {
    static std::vector<Scenario> list;
    return list;
}

} // namespace

void Results::measure(const Measurement& measurement) {
    std::clog << measurement.what << "..." << std::endl;
    m_results.push_back(bench::measure(measurement));
}

void Results::record(const Amount& amount) {
    m_results.push_back(bench::record(amount));
}

Registered::Registered(Scenario scenario) {
    known().push_back(std::move(scenario));
}

std::vector<Scenario> scenarios() {
    std::vector<Scenario> sorted = known();
    std::sort(sorted.begin(), sorted.end(), [](const Scenario& a, const Scenario& b) { return a.name < b.name; });
    return sorted;
}

} // namespace bench
