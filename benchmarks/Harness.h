#pragma once

#include <chrono>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

/// Paired measurements: the ways to do the same work run in turns, round by round, and each round gives its own ratios,
/// so that whatever slows the machine down for a while slows both sides of a ratio. The median of the ratios counts;
/// absolute times are only told.
namespace bench {

/// One way to do the work.
struct Runner {
    std::function<void()> run;
    /// Units of work that a run does; times are compared a unit, so that a slow way may do less.
    double work = 1;
    /// Before each run, not measured. With it a sample is a single run, else as many as a sample needs.
    std::function<void()> prepare = {};
};

/// The greatest ratios that are good; nothing where there is no such promise.
struct Goals {
    std::optional<double> toLimit = {};
    std::optional<double> toPeer = {};
};

struct Measurement {
    std::string what;
    Runner ours;
    std::optional<Runner> peer = {};  ///< the platform's own way
    std::optional<Runner> limit = {}; ///< the least that could do it
    Goals goals = {};
    /// At most; slow work ends earlier, with no more than a few.
    int rounds = 15;
};

/// How long measuring goes on.
struct Patience {
    std::chrono::nanoseconds minimumSample; ///< how long a sample without preparation lasts at least
    std::chrono::nanoseconds total;         ///< of a measurement; no round begins later, but for the first three
};

/// A number that is no time, of which less is better.
struct Amount {
    std::string what;
    double ours;
    std::string unit;
    std::optional<double> goal = {};
    std::optional<double> peer = {};
};

struct Result {
    std::string what;
    std::string unit; ///< "s" for times
    double ours;
    std::optional<double> peer = {};
    std::optional<double> limit = {};
    std::optional<double> toPeer = {};
    std::optional<double> toLimit = {};
    std::optional<double> spread = {}; ///< of the first of `toLimit`, `toPeer` and `ours` that there is, see below
    Goals goals = {};
    std::optional<double> goal = {}; ///< the greatest good `ours` itself

    /// Whether each promise is kept; nothing where none was made.
    std::optional<bool> met() const;
};

using Clock = std::function<std::chrono::nanoseconds()>;

/// The middle value, or the mean of the two middle ones; 0 of nothing.
double median(std::vector<double> values);

/// Half of what lies between the quarters of the values at both ends, as a part of the median; 0 of nothing.
double spread(std::vector<double> values);

Result measure(const Measurement& measurement, const Clock& clock, const Patience& patience);
Result measure(const Measurement& measurement);
Result record(const Amount& amount);

void printTable(std::ostream& out, const std::vector<Result>& results);
void printJson(std::ostream& out, const std::vector<Result>& results);

} // namespace bench
