#include "Harness.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace bench {
namespace {

using std::chrono::nanoseconds;

constexpr int kLeastRounds = 3;

/// Takes the samples of one way.
class Sampler {
public:
    Sampler(const Runner& runner, const Clock& clock, nanoseconds minimumSample) : m_runner(runner), m_clock(clock) {
        const double first = sample(); // warms up, too
        if (!m_runner.prepare && first > 0) {
            const double wanted = std::chrono::duration<double>(minimumSample).count();
            m_repetitions = std::clamp(static_cast<int>(std::ceil(wanted / (first * m_runner.work))), 1, 100'000);
        }
    }

    /// Seconds a unit of work.
    double sample() {
        if (m_runner.prepare) {
            m_runner.prepare();
        }
        const nanoseconds start = m_clock();
        for (int repetition = 0; repetition < m_repetitions; ++repetition) {
            m_runner.run();
        }
        const double seconds = std::chrono::duration<double>(m_clock() - start).count();
        return seconds / m_repetitions / m_runner.work;
    }

private:
    const Runner& m_runner;
    const Clock& m_clock;
    int m_repetitions = 1;
};

std::vector<double> ratios(const std::vector<double>& ours, const std::vector<double>& others) {
    std::vector<double> result;
    for (std::size_t round = 0; round < ours.size(); ++round) {
        if (others[round] > 0) {
            result.push_back(ours[round] / others[round]);
        }
    }
    return result;
}

} // namespace

std::optional<bool> Result::met() const {
    const std::array<std::pair<std::optional<double>, std::optional<double>>, 3> promises{
        {{toLimit, goals.toLimit}, {toPeer, goals.toPeer}, {ours, goal}}};
    std::optional<bool> all;
    for (const auto& [actual, most] : promises) {
        if (most) {
            all = all.value_or(true) && actual && *actual <= *most;
        }
    }
    return all;
}

double median(std::vector<double> values) {
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double spread(std::vector<double> values) {
    const double middle = median(values);
    if (middle <= 0) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    const std::size_t quarter = values.size() / 4;
    return (values[values.size() - 1 - quarter] - values[quarter]) / 2 / middle;
}

Result measure(const Measurement& measurement, const Clock& clock, const Patience& patience) {
    const nanoseconds start = clock();
    struct Way {
        Sampler sampler;
        std::vector<double> samples = {};
    };
    std::vector<Way> ways{{Sampler(measurement.ours, clock, patience.minimumSample)}};
    for (const auto* other : {&measurement.peer, &measurement.limit}) {
        if (*other) {
            ways.push_back({Sampler(**other, clock, patience.minimumSample)});
        }
    }
    const auto takeSample = [](Way& way) { way.samples.push_back(way.sampler.sample()); };
    const auto hasTime = [&](int round) { return round < kLeastRounds || clock() - start < patience.total; };
    for (int round = 0; round < measurement.rounds && hasTime(round); ++round) {
        // Every other round goes the other way, so that nobody always runs in the wake of the same neighbour.
        if (round % 2 == 0) {
            std::for_each(ways.begin(), ways.end(), takeSample);
        } else {
            std::for_each(ways.rbegin(), ways.rend(), takeSample);
        }
    }

    const std::vector<double>& ours = ways.front().samples;
    Result result{.what = measurement.what, .unit = "s", .ours = median(ours), .spread = spread(ours)};
    result.goals = measurement.goals;
    if (measurement.peer) {
        const std::vector<double> toPeer = ratios(ours, ways[1].samples);
        result.peer = median(ways[1].samples);
        result.toPeer = median(toPeer);
        result.spread = spread(toPeer);
    }
    if (measurement.limit) {
        const std::vector<double> toLimit = ratios(ours, ways.back().samples);
        result.limit = median(ways.back().samples);
        result.toLimit = median(toLimit);
        result.spread = spread(toLimit);
    }
    return result;
}

Result measure(const Measurement& measurement) {
    const Clock clock = [] { return nanoseconds(std::chrono::steady_clock::now().time_since_epoch()); };
    return measure(measurement, clock,
                   {.minimumSample = std::chrono::milliseconds(5), .total = std::chrono::seconds(8)});
}

Result record(const Amount& amount) {
    Result result{.what = amount.what, .unit = amount.unit, .ours = amount.ours};
    result.goal = amount.goal;
    result.peer = amount.peer;
    if (amount.peer && *amount.peer > 0) {
        result.toPeer = amount.ours / *amount.peer;
    }
    return result;
}

} // namespace bench
