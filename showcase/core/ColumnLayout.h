#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Desk {

/// One column as the user has arranged it.
struct ArrangedColumn {
    std::string key;
    /// At 96 pixels to the inch, kept also while hidden.
    double width = 0.0;
    bool visible = true;

    bool operator==(const ArrangedColumn&) const = default;
};

/// The columns in display order.
using ColumnLayout = std::vector<ArrangedColumn>;

inline constexpr double LeastKeptWidth = 16.0;
inline constexpr double GreatestKeptWidth = 4000.0;

/// Makes a layout that was kept earlier, maybe by another version or an editor's hand, fit the columns there are:
/// unknown and repeated keys fall away, new columns come last, widths that are no widths become the known ones, and at
/// least one column is visible.
ColumnLayout fittedLayout(const ColumnLayout& kept, const ColumnLayout& known);

/// `current` and behind it the columns that only another version of the desk knows: what it kept is not lost.
ColumnLayout withForeignColumns(ColumnLayout current, const ColumnLayout& kept);

/// One column as text, "name 220.5 hidden", and back; an entry without a key is what no layout can use.
std::string arrangedColumnText(const ArrangedColumn& column);
ArrangedColumn arrangedColumnFromText(std::string_view text);

} // namespace Desk
