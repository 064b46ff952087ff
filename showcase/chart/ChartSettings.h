#pragma once

#include <string>
#include <vector>

#include "chart/ChartStyles.h"

class Settings;

namespace Desk {

/// Fills `chart` from the desk's node of it. What the node does not say stays, and so does what cannot be read: that is
/// told by its paths below the node.
std::vector<std::string> readChart(const Settings& node, ChartMemory& chart);

/// Puts `chart` into the node and leaves what else stands there as it is. A document of lines that cannot be read is
/// not lost with it: it moves aside.
void writeChart(Settings& node, const ChartMemory& chart);

} // namespace Desk
