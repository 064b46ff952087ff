#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

#include "core/InputError.h"

namespace Desk {

/// One record of a comma-separated file.
struct CsvRecord {
    /// The line on which the record starts; quoted fields may hold line ends.
    std::size_t line = 0;
    std::vector<std::string_view> fields;
};

/// Reads comma-separated values as RFC 4180 has them, a record at a time: a byte order mark is skipped, lines end with
/// LF or CR LF, quoted fields may hold commas, line ends and doubled quotes, and empty lines are no records.
///
/// A file that breaks the form, holds a NUL byte or has a record of over `LongestRecord` bytes throws `InputError` as
/// soon as the byte is met, so that no file, however wrong, fills the memory.
class CsvReader {
public:
    static constexpr std::size_t LongestRecord = 1u << 20;

    /// `input` must be open in binary mode and outlive the reader; `fileName` is for messages.
    CsvReader(std::istream& input, std::string fileName);

    /// The next record, valid until the next call; null at the end.
    const CsvRecord* next();

private:
    enum class At { FieldStart, Plain, Quoted, AfterClosingQuote, AfterCarriageReturn };

    bool refill();
    void skipByteOrderMark();
    /// True when the byte ends the record.
    bool take(char byte);
    bool takeOutsideQuotes(char byte);
    void endField();
    const CsvRecord* finishRecord();
    [[noreturn]] void fail(std::string_view fault, std::string_view advice) const;

    std::istream& m_input;
    std::string m_fileName;
    std::vector<char> m_chunk;
    std::size_t m_chunkAt = 0;
    std::size_t m_chunkEnd = 0;
    bool m_started = false;

    At m_at = At::FieldStart;
    std::size_t m_line = 1;
    std::size_t m_quoteLine = 1;
    std::string m_bytes;
    std::vector<std::size_t> m_fieldEnds;
    std::size_t m_recordBytes = 0;
    CsvRecord m_record;
};

} // namespace Desk
