#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

/// Texts of decimal numbers with blanks between them, as the formats "%d" and "%lu" write and scan them. No windows.
namespace NumberText {

/// Takes the number at the front of `text`: white space, a sign or none, digits. False, with `number` as it was and the
/// white space taken, if none is there.
inline bool take(std::string_view& text, std::uint64_t& number) {
    const std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
    text.remove_prefix(start != text.npos ? start : text.size());
    std::string_view rest = text;
    const bool isNegative = rest.starts_with('-');
    if (isNegative || rest.starts_with('+')) {
        rest.remove_prefix(1);
    }
    if (rest.empty() || rest.front() < '0' || rest.front() > '9') {
        return false;
    }
    std::uint64_t digits = 0;
    for (; !rest.empty() && rest.front() >= '0' && rest.front() <= '9'; rest.remove_prefix(1)) {
        digits = digits * 10 + static_cast<std::uint64_t>(rest.front() - '0');
    }
    number = isNegative ? 0 - digits : digits;
    text = rest;
    return true;
}

/// As `take`, for a number of any width. One that does not fit is cut to its low bits: what the C library would make of
/// it is undefined.
template <std::integral Number>
bool scan(std::string_view& text, Number& number) {
    std::uint64_t whole = 0;
    if (!take(text, whole)) {
        return false;
    }
    number = static_cast<Number>(whole);
    return true;
}

/// Puts a blank between it and what is there already.
template <std::integral Number>
void append(std::string& text, Number number) {
    if (!text.empty()) {
        text += ' ';
    }
    text += std::to_string(number);
}

} // namespace NumberText
