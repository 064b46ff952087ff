#include "Instruments.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fstream>
#include <string_view>
#include <unordered_map>

#include "core/CsvReader.h"
#include "core/Utf8.h"

namespace Desk {

namespace {

struct TextField {
    std::string_view title;
    std::string Instrument::*member;
};

struct NumberField {
    std::string_view title;
    std::optional<double> Instrument::*member;
};

constexpr std::array TextFields{
    TextField{"Symbol", &Instrument::symbol},
    TextField{"Name", &Instrument::name},
    TextField{"Sector", &Instrument::sector},
};

constexpr std::array NumberFields{
    NumberField{"Price", &Instrument::price},
    NumberField{"PriceEarnings", &Instrument::priceEarnings},
    NumberField{"DividendYield", &Instrument::dividendYield},
    NumberField{"EarningsPerShare", &Instrument::earningsPerShare},
    NumberField{"Low52Weeks", &Instrument::low52Weeks},
    NumberField{"High52Weeks", &Instrument::high52Weeks},
    NumberField{"MarketCap", &Instrument::marketCap},
};

/// Turns records into instruments, once the header has told where the columns stand.
class InstrumentParser {
public:
    InstrumentParser(const CsvRecord& header, std::string fileName)
        : m_fileName(std::move(fileName)),
          m_fieldCount(header.fields.size()) {
        for (std::size_t text = 0; text < TextFields.size(); ++text)
            m_textPlaces[text] = find(header, TextFields[text].title);
        for (std::size_t number = 0; number < NumberFields.size(); ++number)
            m_numberPlaces[number] = find(header, NumberFields[number].title);
    }

    Instrument parse(const CsvRecord& record) {
        if (record.fields.size() != m_fieldCount)
            throw InputError({m_fileName, record.line, std::min(record.fields.size(), m_fieldCount) + 1},
                             "pól jest " + std::to_string(record.fields.size()) + ", a w nagłówku " +
                                 std::to_string(m_fieldCount),
                             "uzupełnij wiersz albo ujmij pola z przecinkami w cudzysłów");
        Instrument instrument;
        for (std::size_t text = 0; text < TextFields.size(); ++text)
            instrument.*TextFields[text].member = parseText(record, m_textPlaces[text]);
        for (std::size_t number = 0; number < NumberFields.size(); ++number)
            instrument.*NumberFields[number].member = parseNumber(record, m_numberPlaces[number]);
        checkSymbol(instrument.symbol, record.line);
        return instrument;
    }

private:
    std::size_t find(const CsvRecord& header, std::string_view title) const {
        std::optional<std::size_t> place;
        for (std::size_t field = 0; field < header.fields.size(); ++field) {
            if (header.fields[field] != title)
                continue;
            if (place)
                throw InputError({m_fileName, header.line, field + 1},
                                 "kolumna " + quotedForMessage(title) + " występuje drugi raz",
                                 "zostaw jedną kolumnę o tej nazwie");
            place = field;
        }
        if (!place)
            throw InputError({m_fileName, header.line, header.fields.size() + 1},
                             "brak kolumny " + quotedForMessage(title), "dopisz ją do nagłówka");
        return *place;
    }

    std::string parseText(const CsvRecord& record, std::size_t field) const {
        const std::string_view text = record.fields[field];
        if (!isUtf8(text))
            throw InputError({m_fileName, record.line, field + 1}, "tekst nie jest w UTF-8", "zapisz plik w UTF-8");
        return std::string(text);
    }

    std::optional<double> parseNumber(const CsvRecord& record, std::size_t field) const {
        const std::string_view text = record.fields[field];
        if (text.empty())
            return std::nullopt;
        double value = 0.0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
            throw InputError({m_fileName, record.line, field + 1},
                             (isUtf8(text) ? quotedForMessage(text) : std::string("pole")) + " nie jest liczbą",
                             "wpisz liczbę z kropką dziesiętną albo zostaw pole puste");
        return value;
    }

    void checkSymbol(const std::string& symbol, std::size_t line) {
        const std::size_t column = m_textPlaces[0] + 1;
        if (symbol.empty())
            throw InputError({m_fileName, line, column}, "brak symbolu", "wpisz symbol instrumentu");
        const auto [first, isNew] = m_lineOfSymbol.try_emplace(symbol, line);
        if (!isNew)
            throw InputError({m_fileName, line, column},
                             "symbol " + quotedForMessage(symbol) + " jest już w wierszu " +
                                 std::to_string(first->second),
                             "usuń jeden z tych wierszy");
    }

    std::string m_fileName;
    std::size_t m_fieldCount;
    std::array<std::size_t, TextFields.size()> m_textPlaces{};
    std::array<std::size_t, NumberFields.size()> m_numberPlaces{};
    std::unordered_map<std::string, std::size_t> m_lineOfSymbol;
};

std::string utf8Name(const std::filesystem::path& file) {
    const std::u8string name = file.u8string();
    return std::string(name.begin(), name.end());
}

} // namespace

std::vector<Instrument> readInstruments(std::istream& input, const std::string& fileName) {
    CsvReader reader(input, fileName);
    const CsvRecord* header = reader.next();
    if (!header)
        throw InputError({fileName, 1, 1}, "plik jest pusty", "zacznij go od nagłówka z nazwami kolumn");
    InstrumentParser parser(*header, fileName);
    std::vector<Instrument> instruments;
    while (const CsvRecord* record = reader.next())
        instruments.push_back(parser.parse(*record));
    return instruments;
}

std::vector<Instrument> readInstruments(const std::filesystem::path& file) {
    const std::string fileName = utf8Name(file);
    std::error_code error;
    if (std::filesystem::is_directory(file, error))
        throw InputError({fileName, 0, 0}, "to jest folder", "podaj plik CSV");
    std::ifstream input(file, std::ios::binary);
    if (!input)
        throw InputError({fileName, 0, 0}, "pliku nie ma albo nie można go otworzyć", "sprawdź ścieżkę i prawa");
    return readInstruments(input, fileName);
}

} // namespace Desk
