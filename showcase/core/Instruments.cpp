#include "Instruments.h"

#include <array>
#include <string_view>
#include <unordered_map>

#include "core/CsvTable.h"
#include "core/InputFile.h"

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

/// Turns rows into instruments, once the header has told where the columns stand.
class InstrumentParser {
public:
    explicit InstrumentParser(const CsvTable& table) : m_table(table) {
        for (std::size_t text = 0; text < TextFields.size(); ++text)
            m_textPlaces[text] = table.columnOf(TextFields[text].title);
        for (std::size_t number = 0; number < NumberFields.size(); ++number)
            m_numberPlaces[number] = table.columnOf(NumberFields[number].title);
    }

    Instrument parse() {
        Instrument instrument;
        for (std::size_t text = 0; text < TextFields.size(); ++text)
            instrument.*TextFields[text].member = m_table.text(m_textPlaces[text]);
        for (std::size_t number = 0; number < NumberFields.size(); ++number)
            instrument.*NumberFields[number].member = m_table.number(m_numberPlaces[number]);
        checkSymbol(instrument.symbol);
        return instrument;
    }

private:
    void checkSymbol(const std::string& symbol) {
        const std::size_t column = m_textPlaces[0];
        if (symbol.empty())
            m_table.refuse(column, "brak symbolu", "wpisz symbol instrumentu");
        const auto [first, isNew] = m_lineOfSymbol.try_emplace(symbol, m_table.line());
        if (!isNew)
            m_table.refuse(
                column, "symbol " + quotedForMessage(symbol) + " jest już w wierszu " + std::to_string(first->second),
                "usuń jeden z tych wierszy");
    }

    const CsvTable& m_table;
    std::array<std::size_t, TextFields.size()> m_textPlaces{};
    std::array<std::size_t, NumberFields.size()> m_numberPlaces{};
    std::unordered_map<std::string, std::size_t> m_lineOfSymbol;
};

} // namespace

std::vector<Instrument> readInstruments(std::istream& input, const std::string& fileName) {
    CsvTable table(input, fileName);
    InstrumentParser parser(table);
    std::vector<Instrument> instruments;
    while (table.next())
        instruments.push_back(parser.parse());
    return instruments;
}

std::vector<Instrument> readInstruments(const std::filesystem::path& file) {
    InputFile input(file);
    return readInstruments(input.stream, input.name);
}

} // namespace Desk
