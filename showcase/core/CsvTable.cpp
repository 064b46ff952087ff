#include "CsvTable.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "core/Utf8.h"

namespace Desk {

CsvTable::CsvTable(std::istream& input, std::string fileName)
    : m_fileName(std::move(fileName)),
      m_reader(input, m_fileName) {
    const CsvRecord* header = m_reader.next();
    if (!header)
        throw InputError({m_fileName, 1, 1}, "plik jest pusty", "zacznij go od nagłówka z nazwami kolumn");
    m_titles.assign(header->fields.begin(), header->fields.end());
    m_headerLine = header->line;
}

std::size_t CsvTable::columnOf(std::string_view title) const {
    const auto first = std::find(m_titles.begin(), m_titles.end(), title);
    if (first == m_titles.end())
        throw InputError({m_fileName, m_headerLine, m_titles.size() + 1}, "brak kolumny " + quotedForMessage(title),
                         "dopisz ją do nagłówka");
    const auto second = std::find(first + 1, m_titles.end(), title);
    if (second != m_titles.end())
        throw InputError({m_fileName, m_headerLine, static_cast<std::size_t>(second - m_titles.begin()) + 1},
                         "kolumna " + quotedForMessage(title) + " występuje drugi raz",
                         "zostaw jedną kolumnę o tej nazwie");
    return static_cast<std::size_t>(first - m_titles.begin());
}

bool CsvTable::next() {
    m_row = m_reader.next();
    if (!m_row)
        return false;
    const std::size_t fields = m_row->fields.size();
    if (fields != m_titles.size())
        refuse(std::min(fields, m_titles.size()),
               "pól jest " + std::to_string(fields) + ", a w nagłówku " + std::to_string(m_titles.size()),
               "uzupełnij wiersz albo ujmij pola z przecinkami w cudzysłów");
    return true;
}

std::string_view CsvTable::text(std::size_t column) const {
    if (!isUtf8(cell(column)))
        refuse(column, "tekst nie jest w UTF-8", "zapisz plik w UTF-8");
    return cell(column);
}

std::optional<double> CsvTable::number(std::size_t column) const {
    if (cell(column).empty())
        return std::nullopt;
    return parseNumber(column, "wpisz liczbę z kropką dziesiętną albo zostaw pole puste");
}

double CsvTable::requiredNumber(std::size_t column) const {
    constexpr std::string_view Advice = "wpisz liczbę z kropką dziesiętną";
    if (cell(column).empty())
        refuse(column, "brak liczby", Advice);
    return parseNumber(column, Advice);
}

void CsvTable::refuse(std::size_t column, std::string_view fault, std::string_view advice) const {
    throw InputError({m_fileName, m_row->line, column + 1}, fault, advice);
}

std::string CsvTable::quoted(std::size_t column) const {
    return isUtf8(cell(column)) ? quotedForMessage(cell(column)) : std::string("pole");
}

double CsvTable::parseNumber(std::size_t column, std::string_view advice) const {
    const std::string_view digits = cell(column);
    double value = 0.0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size() || !std::isfinite(value))
        refuse(column, quoted(column) + " nie jest liczbą", advice);
    if (std::fabs(value) > GreatestNumber)
        refuse(column, "liczba " + quoted(column) + " jest poza zakresem", "podaj liczbę od -1e18 do 1e18");
    return value;
}

} // namespace Desk
