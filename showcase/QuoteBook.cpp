#include "QuoteBook.h"

#include <OrtinFoundation/StringTools.h>
#include <windows.h>

namespace Desk {

namespace {

std::wstring cellText(QuoteColumn column, const Instrument& instrument) {
    if (const std::string* words = wordsOf(column, instrument))
        return OrtinTools::String::Utf8ToWide(*words);
    return figureText(column, instrument);
}

} // namespace

QuoteBook::QuoteBook(std::vector<Instrument> instruments)
    : m_instruments(std::move(instruments)),
      m_texts(m_instruments.size()),
      m_sessions(m_instruments.size()) {
    for (std::size_t instrument = 0; instrument < m_instruments.size(); ++instrument)
        for (const QuoteColumnInfo& info : QuoteColumns)
            m_texts[instrument][static_cast<std::size_t>(info.column)] =
                cellText(info.column, m_instruments[instrument]);
}

const std::wstring& QuoteBook::text(std::size_t instrument, QuoteColumn column) const {
    return m_texts[instrument][static_cast<std::size_t>(column)];
}

std::vector<std::optional<double>> QuoteBook::prices() const {
    std::vector<std::optional<double>> prices;
    prices.reserve(size());
    for (const Instrument& instrument : m_instruments)
        prices.push_back(instrument.price);
    return prices;
}

void QuoteBook::setPrice(std::size_t instrument, double price) {
    std::optional<PriceSession>& session = m_sessions[instrument];
    if (!session)
        session.emplace(m_instruments[instrument].price.value_or(price));
    session->take(price);
    m_instruments[instrument].price = price;
    m_texts[instrument][static_cast<std::size_t>(QuoteColumn::Price)] =
        cellText(QuoteColumn::Price, m_instruments[instrument]);
}

const PriceSession* QuoteBook::session(std::size_t instrument) const {
    const std::optional<PriceSession>& session = m_sessions[instrument];
    return session ? &*session : nullptr;
}

bool QuoteBook::isKnown(std::size_t instrument, QuoteColumn column) const {
    if (const std::string* words = wordsOf(column, at(instrument)))
        return !words->empty();
    return figureOf(column, at(instrument)).has_value();
}

bool QuoteBook::isBefore(std::size_t a, std::size_t b, QuoteColumn column) const {
    if (!infoOf(column).holdsWords)
        return *figureOf(column, at(a)) < *figureOf(column, at(b));
    const std::wstring& left = text(a, column);
    const std::wstring& right = text(b, column);
    return ::CompareStringEx(L"pl-PL", LINGUISTIC_IGNORECASE, left.c_str(), static_cast<int>(left.size()),
                             right.c_str(), static_cast<int>(right.size()), nullptr, nullptr, 0) == CSTR_LESS_THAN;
}

} // namespace Desk
