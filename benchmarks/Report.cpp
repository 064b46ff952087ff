#include "Harness.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace bench {
namespace {

using Line = std::array<std::string, 10>;

std::string rounded(double value, int digits) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(digits) << value;
    return text.str();
}

/// Three significant digits and the unit that fits; nothing for no value.
std::string quantity(const std::optional<double>& value, const std::string& unit) {
    if (!value) {
        return "";
    }
    double shown = *value;
    std::string prefix;
    if (unit == "s") {
        for (const char* smaller : {"m", "u", "n"}) {
            if (shown >= 1 || shown == 0) {
                break;
            }
            shown *= 1000;
            prefix = smaller;
        }
    }
    const int digits = shown < 10 ? 2 : shown < 100 ? 1 : 0;
    return rounded(shown, digits) + " " + prefix + unit;
}

std::string ratio(const std::optional<double>& value) {
    return value ? rounded(*value, *value < 0.1 ? 4 : 2) : "";
}

std::string percent(const std::optional<double>& part) {
    return part ? "+-" + rounded(*part * 100, 0) + "%" : "";
}

std::string atMost(const std::optional<double>& goal) {
    return goal ? "<= " + ratio(goal) : "";
}

Line lineOf(const Result& result) {
    const auto met = result.met();
    return {result.what,
            quantity(result.ours, result.unit) + (result.goal ? " (<= " + rounded(*result.goal, 0) + ")" : ""),
            quantity(result.peer, result.unit),
            quantity(result.limit, result.unit),
            ratio(result.toLimit),
            atMost(result.goals.toLimit),
            ratio(result.toPeer),
            atMost(result.goals.toPeer),
            percent(result.spread),
            !met   ? ""
            : *met ? "met"
                   : "MISSED"};
}

void printQuoted(std::ostream& out, const std::string& text) {
    out << '"';
    for (const char character : text) {
        if (character == '"' || character == '\\') {
            out << '\\';
        }
        out << character;
    }
    out << '"';
}

void printMember(std::ostream& out, const char* name, const std::optional<double>& value) {
    if (value) {
        out << ", \"" << name << "\": " << *value;
    }
}

} // namespace

void printTable(std::ostream& out, const std::vector<Result>& results) {
    std::vector<Line> lines{{"what", "ours", "peer", "limit", "ours/limit", "goal", "ours/peer", "goal", "spread", ""}};
    std::transform(results.begin(), results.end(), std::back_inserter(lines), lineOf);
    std::array<std::size_t, std::tuple_size_v<Line>> widths{};
    for (const Line& line : lines) {
        for (std::size_t column = 0; column < line.size(); ++column) {
            widths[column] = std::max(widths[column], line[column].size());
        }
    }
    for (const Line& line : lines) {
        std::ostringstream text;
        for (std::size_t column = 0; column < line.size(); ++column) {
            text << (column == 0 ? std::left : std::right) << std::setw(static_cast<int>(widths[column]))
                 << line[column] << "  ";
        }
        const std::string whole = text.str();
        out << whole.substr(0, whole.find_last_not_of(' ') + 1) << '\n';
    }
}

void printJson(std::ostream& out, const std::vector<Result>& results) {
    out << "[";
    const char* separator = "\n";
    for (const Result& result : results) {
        out << separator << "  {\"what\": ";
        printQuoted(out, result.what);
        out << ", \"unit\": ";
        printQuoted(out, result.unit);
        printMember(out, "ours", result.ours);
        printMember(out, "peer", result.peer);
        printMember(out, "limit", result.limit);
        printMember(out, "toLimit", result.toLimit);
        printMember(out, "goalToLimit", result.goals.toLimit);
        printMember(out, "toPeer", result.toPeer);
        printMember(out, "goalToPeer", result.goals.toPeer);
        printMember(out, "spread", result.spread);
        printMember(out, "goal", result.goal);
        if (const auto met = result.met()) {
            out << ", \"met\": " << (*met ? "true" : "false");
        }
        out << "}";
        separator = ",\n";
    }
    out << "\n]\n";
}

} // namespace bench
