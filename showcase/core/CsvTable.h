#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/CsvReader.h"

namespace Desk {

/// A comma-separated file whose first record names its columns. Whatever is wrong with it throws `InputError` with the
/// line and the column.
class CsvTable {
public:
    /// Reads the header. `input` must be open in binary mode and outlive the table; `fileName` is for messages.
    CsvTable(std::istream& input, std::string fileName);

    /// Where the column of that title stands, counted from 0. There must be just one.
    std::size_t columnOf(std::string_view title) const;

    /// Goes to the next row; false if there is none. A row has as many fields as the header.
    bool next();
    /// Of the current row.
    std::size_t line() const { return m_row->line; }

    /// A cell of the current row, in UTF-8.
    std::string_view text(std::size_t column) const;
    /// No number is farther from 0: what is greater is a mistake, and would have no room anywhere.
    static constexpr double GreatestNumber = 1e18;
    /// A cell that may be empty.
    std::optional<double> number(std::size_t column) const;
    /// A cell that must hold a number.
    double requiredNumber(std::size_t column) const;

    /// Refuses the current row for the sake of one cell.
    [[noreturn]] void refuse(std::size_t column, std::string_view fault, std::string_view advice) const;
    /// The cell as such a message shows it.
    std::string quoted(std::size_t column) const;

private:
    std::string_view cell(std::size_t column) const { return m_row->fields[column]; }
    double parseNumber(std::size_t column, std::string_view advice) const;

    std::string m_fileName;
    CsvReader m_reader;
    std::vector<std::string> m_titles;
    std::size_t m_headerLine = 0;
    const CsvRecord* m_row = nullptr;
};

} // namespace Desk
