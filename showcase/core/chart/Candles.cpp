#include "Candles.h"

#include <algorithm>
#include <array>
#include <optional>

#include "core/CsvTable.h"
#include "core/InputFile.h"
#include "core/chart/IsoDate.h"

namespace Desk {

namespace {

struct PriceField {
    std::string_view title;
    double Candle::*member;
};

constexpr std::array PriceFields{
    PriceField{"Open", &Candle::open},
    PriceField{"High", &Candle::high},
    PriceField{"Low", &Candle::low},
    PriceField{"Close", &Candle::close},
};
constexpr std::size_t High = 1;
constexpr std::size_t Low = 2;

/// Turns rows into candles, once the header has told where the columns stand.
class CandleParser {
public:
    explicit CandleParser(const CsvTable& table)
        : m_table(table),
          m_symbolPlace(table.columnOf("Symbol")),
          m_datePlace(table.columnOf("Date")) {
        for (std::size_t price = 0; price < PriceFields.size(); ++price)
            m_pricePlaces[price] = table.columnOf(PriceFields[price].title);
        m_volumePlace = table.columnOf("Volume");
    }

    void parseInto(CandleBook& book) const {
        Candles& candles = candlesOfRow(book);
        Candle candle;
        candle.date = parseDay(candles);
        for (std::size_t price = 0; price < PriceFields.size(); ++price)
            candle.*PriceFields[price].member = parsePrice(m_pricePlaces[price]);
        checkExtremes(candle);
        candle.volume = m_table.requiredNumber(m_volumePlace);
        if (candle.volume < 0.0)
            m_table.refuse(m_volumePlace, "wolumen " + m_table.quoted(m_volumePlace) + " jest ujemny",
                           "popraw liczbę sztuk");
        candles.push_back(candle);
    }

private:
    Candles& candlesOfRow(CandleBook& book) const {
        const std::string_view symbol = m_table.text(m_symbolPlace);
        if (symbol.empty())
            m_table.refuse(m_symbolPlace, "brak symbolu", "wpisz symbol instrumentu");
        const auto known = book.find(symbol);
        return known != book.end() ? known->second : book.try_emplace(std::string(symbol)).first->second;
    }

    std::chrono::sys_days parseDay(const Candles& before) const {
        const std::optional<std::chrono::sys_days> date = parseIsoDate(m_table.text(m_datePlace));
        if (!date)
            m_table.refuse(m_datePlace, m_table.quoted(m_datePlace) + " nie jest datą",
                           "wpisz dzień w postaci 2015-01-02");
        if (before.empty() || before.back().date < *date)
            return *date;
        if (before.back().date == *date)
            m_table.refuse(m_datePlace, "dzień " + m_table.quoted(m_datePlace) + " tego symbolu występuje drugi raz",
                           "zostaw jeden z tych wierszy");
        m_table.refuse(m_datePlace,
                       "dzień " + m_table.quoted(m_datePlace) + " jest wcześniejszy niż poprzedni tego symbolu",
                       "ułóż wiersze symbolu od najstarszego dnia");
    }

    double parsePrice(std::size_t place) const {
        const double price = m_table.requiredNumber(place);
        if (price <= 0.0)
            m_table.refuse(place, "cena " + m_table.quoted(place) + " nie jest większa od zera", "popraw cenę");
        return price;
    }

    void checkExtremes(const Candle& candle) const {
        if (candle.high < std::max({candle.open, candle.low, candle.close}))
            m_table.refuse(m_pricePlaces[High],
                           "najwyższa cena dnia " + m_table.quoted(m_pricePlaces[High]) + " jest niższa od innej",
                           "popraw ceny tego dnia");
        if (candle.low > std::min(candle.open, candle.close))
            m_table.refuse(m_pricePlaces[Low],
                           "najniższa cena dnia " + m_table.quoted(m_pricePlaces[Low]) + " jest wyższa od innej",
                           "popraw ceny tego dnia");
    }

    const CsvTable& m_table;
    std::size_t m_symbolPlace;
    std::size_t m_datePlace;
    std::array<std::size_t, PriceFields.size()> m_pricePlaces{};
    std::size_t m_volumePlace = 0;
};

} // namespace

Candle carriedOn(const Candle& candle, const PriceSession& session) {
    if (!(session.first > 0.0))
        return candle;
    // A file may end at another price than that of the table.
    const double share = candle.close / session.first;
    Candle carried = candle;
    carried.close = session.last * share;
    carried.high = std::max(candle.high, session.highest * share);
    carried.low = std::min(candle.low, session.lowest * share);
    return carried;
}

CandleBook readCandles(std::istream& input, const std::string& fileName) {
    CsvTable table(input, fileName);
    const CandleParser parser(table);
    CandleBook book;
    while (table.next())
        parser.parseInto(book);
    return book;
}

CandleBook readCandles(const std::filesystem::path& file) {
    InputFile input(file);
    return readCandles(input.stream, input.name);
}

} // namespace Desk
