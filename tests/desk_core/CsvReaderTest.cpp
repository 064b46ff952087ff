#include "core/CsvReader.h"

#include <algorithm>
#include <sstream>

#include <gtest/gtest.h>

using namespace Desk;

namespace {

/// All records as one text: fields in brackets, records parted by a slash.
std::string describe(const std::string& bytes) {
    std::istringstream input(bytes);
    CsvReader reader(input, "a.csv");
    std::string text;
    while (const CsvRecord* record = reader.next()) {
        if (!text.empty())
            text += '/';
        for (const std::string_view field : record->fields)
            text += '[' + std::string(field) + ']';
    }
    return text;
}

std::string placeOfError(const std::string& bytes) {
    try {
        return "no error: " + describe(bytes);
    } catch (const InputError& error) {
        return error.place().file + ':' + std::to_string(error.place().line) + ':' +
               std::to_string(error.place().column);
    }
}

/// Gives `head`, then `count` times the letter a, without ever holding them in memory.
class LongLine : public std::streambuf {
public:
    explicit LongLine(std::size_t count) : m_left(count), m_block(4096, 'a') {}
    std::size_t left() const { return m_left; }

protected:
    int_type underflow() override {
        if (m_left == 0)
            return traits_type::eof();
        const std::size_t length = std::min(m_left, m_block.size());
        m_left -= length;
        setg(m_block.data(), m_block.data(), m_block.data() + length);
        return traits_type::to_int_type(*gptr());
    }

private:
    std::size_t m_left;
    std::string m_block;
};

struct FormCase {
    const char* name;
    std::string bytes;
    std::string expected;
};

struct FaultCase {
    const char* name;
    std::string bytes;
    std::string place;
};

} // namespace

class CsvForm : public testing::TestWithParam<FormCase> {};

TEST_P(CsvForm, IsReadAsTheStandardFormHasIt) {
    EXPECT_EQ(describe(GetParam().bytes), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(CsvReader, CsvForm,
                         testing::Values(FormCase{"plain", "a,b\nc,d\n", "[a][b]/[c][d]"},
                                         FormCase{"lastLineWithoutEnd", "a,b\nc,d", "[a][b]/[c][d]"},
                                         FormCase{"carriageReturns", "a,b\r\nc,d\r\n", "[a][b]/[c][d]"},
                                         FormCase{"byteOrderMark",
                                                  "\xEF\xBB\xBF"
                                                  "a,b\n",
                                                  "[a][b]"},
                                         FormCase{"quotedComma", "\"a,b\",c\n", "[a,b][c]"},
                                         FormCase{"doubledQuotes", "\"say \"\"a\"\"\",c\n", "[say \"a\"][c]"},
                                         FormCase{"quotedLineEnd", "\"a\r\nb\",c\nd,e", "[a\r\nb][c]/[d][e]"},
                                         FormCase{"emptyFields", ",\n,,\n", "[][]/[][][]"},
                                         FormCase{"fieldEndsTheFile", "a,", "[a][]"},
                                         FormCase{"emptyQuotedField", "\"\",a\n", "[][a]"},
                                         FormCase{"emptyLinesAreNoRecords", "\n\r\na\n\n\nb\n\n", "[a]/[b]"},
                                         FormCase{"nothing", "", ""}, FormCase{"onlyByteOrderMark", "\xEF\xBB\xBF", ""},
                                         FormCase{"quotesThatEndTheFile", "a,\"b\"", "[a][b]"},
                                         FormCase{"spacesBelongToFields", " a , b \n", "[ a ][ b ]"}),
                         [](const auto& test) { return test.param.name; });

class CsvFault : public testing::TestWithParam<FaultCase> {};

TEST_P(CsvFault, IsToldWithItsLineAndColumn) {
    EXPECT_EQ(placeOfError(GetParam().bytes), GetParam().place);
}

INSTANTIATE_TEST_SUITE_P(CsvReader, CsvFault,
                         testing::Values(FaultCase{"quoteInsideField", "a,b\nc,d\"e\n", "a.csv:2:2"},
                                         FaultCase{"textAfterClosingQuote", "a,b\n\n\"c\"d,e\n", "a.csv:3:1"},
                                         FaultCase{"openQuoteIsToldWhereItOpens", "a\n\"b\nc\nd", "a.csv:2:1"},
                                         FaultCase{"nulByte", std::string("a,b\nc,\0d\n", 9), "a.csv:2:2"},
                                         FaultCase{"nulByteInQuotes", std::string("\"a\n\0\"", 5), "a.csv:2:1"},
                                         FaultCase{"loneCarriageReturn", "a\rb\n", "a.csv:1:1"},
                                         FaultCase{"loneCarriageReturnAtTheEnd", "a,b\r", "a.csv:1:2"}),
                         [](const auto& test) { return test.param.name; });

TEST(CsvReader, TellsTheLineOnWhichARecordStarts) {
    std::istringstream input("a\n\n\"b\nc\"\nd\n");
    CsvReader reader(input, "a.csv");
    std::vector<std::size_t> lines;
    while (const CsvRecord* record = reader.next())
        lines.push_back(record->line);
    EXPECT_EQ(lines, (std::vector<std::size_t>{1, 3, 5}));
}

TEST(CsvReader, GivesUpALineOf100MegabytesAfterTheFirst) {
    LongLine line(100u << 20);
    std::istream input(&line);
    CsvReader reader(input, "long.csv");
    EXPECT_THROW(reader.next(), InputError);
    EXPECT_GT(line.left(), 98u << 20);
}

TEST(CsvReader, ReadsARecordOfTheGreatestLength) {
    const std::string field(CsvReader::LongestRecord - 1, 'x');
    EXPECT_EQ(describe(field + "\n").size(), field.size() + 2);
    EXPECT_EQ(placeOfError(field + "y\n"), "a.csv:1:1");
}

TEST(CsvReader, ReadsFieldsThatCrossTheChunksOfTheFile) {
    std::ostringstream bytes;
    std::ostringstream expected;
    for (int record = 0; record < 20000; ++record) {
        bytes << record << ",\"x,\"\"" << record << "\"\n";
        expected << (record == 0 ? "[" : "/[") << record << "][x,\"" << record << ']';
    }
    EXPECT_EQ(describe(bytes.str()), expected.str());
}

TEST(InputError, SaysPlaceFaultAndAdviceInOneLine) {
    const InputError error({"a.csv", 3, 4}, quotedForMessage("x\ny") + " nie jest liczbą", "wpisz liczbę");
    EXPECT_STREQ(error.what(), "a.csv, wiersz 3, kolumna 4: „x?y” nie jest liczbą; wpisz liczbę");
}

TEST(InputError, LeavesOutAPlaceThatThereIsNot) {
    EXPECT_STREQ(InputError({"a.csv", 0, 0}, "nie ma", "podaj").what(), "a.csv: nie ma; podaj");
    EXPECT_STREQ(InputError({"a.csv", 1, 0}, "nie ma", "podaj").what(), "a.csv, wiersz 1: nie ma; podaj");
}

TEST(InputError, ShortensAQuotationBetweenCharacters) {
    std::string text(59, 'a');
    EXPECT_EQ(quotedForMessage(text + "łb"), "„" + text + "…”");
}
