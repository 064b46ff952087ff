#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "chart/ChartStyles.h"

/// The lines on charts as a JSON document: an array of
///
///     {"symbol": "AAPL", "from": {"date": "2015-01-02", "place": 0.5, "price": 27.33}, "to": {...},
///      "style": {"pen": "0 2 255", "opacity": 1}}
///
/// where `place` counts candles from the left edge of the day's own.
namespace Desk::DrawnLinesForm {

/// A line that the form cannot hold, such as one at a price that is no number, is left out.
std::string textOf(const std::vector<DrawnLine>& lines);

struct Read {
    std::vector<DrawnLine> lines;
    /// What was not read, as paths in the document from "/0" on; empty for the document itself. A line is left out, a
    /// piece of its style is that of `first`.
    std::vector<std::string> unread;
};
/// `first` is the style of a line that says nothing of its own. No text makes it throw.
Read read(std::string_view text, const ChartStyle& first);

} // namespace Desk::DrawnLinesForm
