#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Desk {

/// Where in an input file something is wrong. Lines and columns count from 1; 0 means that the place has none.
/// A column is the ordinal number of the field, not of the character; what is missing is told at the column where it
/// should begin.
struct InputPlace {
    std::string file;
    std::size_t line = 0;
    std::size_t column = 0;

    bool operator==(const InputPlace&) const = default;
};

/// A file that cannot be used. `what()` is one line of UTF-8 for the user: place, fault, advice.
class InputError : public std::runtime_error {
public:
    InputError(InputPlace place, std::string_view fault, std::string_view advice);

    const InputPlace& place() const { return m_place; }

private:
    InputPlace m_place;
};

/// `text` in Polish quotation marks, fit for a message of one line: shortened, control characters as question marks.
std::string quotedForMessage(std::string_view text);

} // namespace Desk
