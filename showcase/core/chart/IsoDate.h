#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace Desk {

/// "2015-01-02" and nothing else.
std::optional<std::chrono::sys_days> parseIsoDate(std::string_view text);

/// The same form; nothing of a year that has not four digits in it.
std::optional<std::string> formatIsoDate(std::chrono::sys_days date);

} // namespace Desk
