#include "SampleData.h"

#include <array>
#include <cmath>
#include <set>
#include <string_view>

#include "core/SeededRandom.h"

namespace Desk {

namespace {

struct Branch {
    std::string_view word;
    std::string_view sector;
};

constexpr std::array<std::string_view, 26> Places{
    "Bałtycka",     "Beskidzka",  "Bieszczadzka",  "Bursztynowa",  "Dębowa",    "Gdyńska",  "Górnośląska",
    "Jurajska",     "Karkonoska", "Karpacka",      "Kaszubska",    "Kujawska",  "Łużycka",  "Małopolska",
    "Mazowiecka",   "Mazurska",   "Nadodrzańska",  "Nadwiślańska", "Pienińska", "Podlaska", "Pomorska",
    "Roztoczańska", "Sudecka",    "Świętokrzyska", "Tatrzańska",   "Żuławska",
};

constexpr std::array<Branch, 22> Branches{{
    {"Stal", "Hutnictwo"},
    {"Energia", "Energetyka"},
    {"Kolej", "Transport"},
    {"Żegluga", "Transport"},
    {"Huta Szkła", "Materiały budowlane"},
    {"Cegielnia", "Materiały budowlane"},
    {"Młynarnia", "Żywność"},
    {"Mleczarnia", "Żywność"},
    {"Piekarnia", "Żywność"},
    {"Apteka", "Ochrona zdrowia"},
    {"Aparatura", "Ochrona zdrowia"},
    {"Kasa Rolna", "Bankowość"},
    {"Kasa Kupiecka", "Bankowość"},
    {"Polisa", "Ubezpieczenia"},
    {"Informatyka", "Oprogramowanie"},
    {"Łączność", "Telekomunikacja"},
    {"Prasa", "Media"},
    {"Tkalnia", "Odzież"},
    {"Papiernia", "Opakowania, papier i tworzywa"},
    {"Kopalnia Miedzi", "Górnictwo"},
    {"Zabudowa", "Deweloperzy"},
    {"Księgarnia", "Handel detaliczny"},
}};

/// The letters of symbols: capitals without diacritics, the letters that Polish has.
constexpr std::string_view SymbolLetters = "ABCDEFGHIJKLMNOPRSTUWYZ";

double rounded(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    return std::round(value * scale) / scale;
}

/// Spread evenly over magnitudes, as prices and sizes of companies are.
double logarithmic(SeededRandom& random, double least, double greatest) {
    return least * std::pow(greatest / least, random.between(0.0, 1.0));
}

std::string freshSymbol(SeededRandom& random, std::set<std::string>& taken) {
    for (std::size_t tries = 0;; ++tries) {
        std::string symbol;
        const std::size_t length = 3 + tries / 8;
        while (symbol.size() < length)
            symbol += SymbolLetters[random.below(SymbolLetters.size())];
        if (taken.insert(symbol).second)
            return symbol;
    }
}

std::string freshName(SeededRandom& random, std::string_view word, std::set<std::string>& taken) {
    for (std::size_t tries = 0;; ++tries) {
        std::string name = std::string(word) + ' ' + std::string(Places[random.below(Places.size())]);
        if (tries >= 8)
            name += ' ' + std::to_string(2 + random.below(tries));
        if (random.below(3) == 0)
            name += " S.A.";
        if (taken.insert(name).second)
            return name;
    }
}

void inventFigures(SeededRandom& random, Instrument& instrument) {
    const double price = rounded(logarithmic(random, 1.2, 2400.0), 2);
    const double low = rounded(price * random.between(0.45, 0.97), 2);
    const double high = rounded(price * random.between(1.02, 1.9), 2);
    const bool earns = random.below(8) != 0;
    const double priceEarnings = rounded(logarithmic(random, 4.0, 90.0), 2);

    instrument.price = price;
    instrument.low52Weeks = low;
    instrument.high52Weeks = high;
    instrument.earningsPerShare = rounded(earns ? price / priceEarnings : -price * random.between(0.01, 0.2), 2);
    if (earns)
        instrument.priceEarnings = priceEarnings;
    if (earns && random.below(4) != 0)
        instrument.dividendYield = rounded(random.between(0.002, 0.085), 4);
    if (random.below(16) != 0)
        instrument.marketCap = std::round(logarithmic(random, 4e7, 9e11));
}

} // namespace

std::vector<Instrument> sampleInstruments(std::size_t count, std::uint64_t seed) {
    SeededRandom random(seed);
    std::set<std::string> symbols;
    std::set<std::string> names;
    std::vector<Instrument> instruments(count);
    for (Instrument& instrument : instruments) {
        const Branch& branch = Branches[random.below(Branches.size())];
        instrument.name = freshName(random, branch.word, names);
        instrument.sector = branch.sector;
        instrument.symbol = freshSymbol(random, symbols);
        // A newly listed company: nothing is known of it yet.
        if (random.below(40) != 0)
            inventFigures(random, instrument);
    }
    return instruments;
}

} // namespace Desk
