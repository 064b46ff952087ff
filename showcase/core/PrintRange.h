#pragma once

#include <string>
#include <variant>

namespace Desk {

/// Pages of a document from 1. A `from` above `to` prints them backwards.
struct PrintRange {
    int from = 1;
    int to = 1;

    bool operator==(const PrintRange&) const = default;
};

enum class RangeEnd { From, To };

/// Why what the user typed is no range: which of the two fields is wrong, and one sentence that says what would be
/// right.
struct RangeFault {
    RangeEnd end = RangeEnd::From;
    std::wstring sentence;
};

/// Reads both ends for a document of `pages`; blanks around the numbers do not matter.
std::variant<PrintRange, RangeFault> readPrintRange(const std::wstring& from, const std::wstring& to, int pages);

/// "9 stron" with the word in its form.
std::wstring pagesText(int pages);

/// "wiersze 3–9", both ends included.
std::wstring rowsText(int first, int last);

/// What stands on a page of paper: "Strona 3 z 9".
std::wstring pageOfText(int page, int pages);

} // namespace Desk
