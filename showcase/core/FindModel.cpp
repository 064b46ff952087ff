#include "FindModel.h"

#include <algorithm>
#include <array>

namespace Desk {

namespace {

struct LetterFamily {
    wchar_t plain;
    std::wstring_view capitals;
    std::wstring_view smalls;
};

/// Letters with diacritics by their plain letter, the capital and the small one at the same place.
constexpr std::array LetterFamilies{
    LetterFamily{L'a', L"ĄÀÁÂÃÄÅĂ", L"ąàáâãäåă"},
    LetterFamily{L'c', L"ĆÇČ", L"ćçč"},
    LetterFamily{L'd', L"ĎĐ", L"ďđ"},
    LetterFamily{L'e', L"ĘÈÉÊËĚĖ", L"ęèéêëěė"},
    LetterFamily{L'g', L"Ğ", L"ğ"},
    LetterFamily{L'i', L"ÌÍÎÏ", L"ìíîï"},
    LetterFamily{L'l', L"ŁĽĹ", L"łľĺ"},
    LetterFamily{L'n', L"ŃÑŇ", L"ńñň"},
    LetterFamily{L'o', L"ÓÒÔÕÖØŐ", L"óòôõöøő"},
    LetterFamily{L'r', L"ŘŔ", L"řŕ"},
    LetterFamily{L's', L"ŚŠŞȘ", L"śšşș"},
    LetterFamily{L't', L"ŤȚ", L"ťț"},
    LetterFamily{L'u', L"ÙÚÛÜŮŰŪ", L"ùúûüůűū"},
    LetterFamily{L'y', L"ÝŸ", L"ýÿ"},
    LetterFamily{L'z', L"ŹŻŽ", L"źżž"},
};

constexpr wchar_t FirstLetterWithDiacritic = L'\u00C0';
constexpr wchar_t NoBreakSpace = L'\u00A0';

/// A character without its case, and the same without its diacritic.
struct Folded {
    wchar_t small;
    wchar_t plain;
};

Folded folded(wchar_t character) {
    if (character >= L'A' && character <= L'Z') {
        const auto small = static_cast<wchar_t>(character - L'A' + L'a');
        return {small, small};
    }
    if (character == NoBreakSpace)
        return {L' ', L' '};
    if (character < FirstLetterWithDiacritic)
        return {character, character};
    for (const LetterFamily& family : LetterFamilies) {
        if (const auto at = family.capitals.find(character); at != std::wstring_view::npos)
            return {family.smalls[at], family.plain};
        if (family.smalls.find(character) != std::wstring_view::npos)
            return {character, family.plain};
    }
    return {character, character};
}

bool matchesAt(std::wstring_view text, std::size_t begin, std::wstring_view phrase) {
    for (std::size_t at = 0; at < phrase.size(); ++at) {
        const Folded found = folded(text[begin + at]);
        const wchar_t wanted = folded(phrase[at]).small;
        if (wanted != found.small && wanted != found.plain)
            return false;
    }
    return true;
}

std::optional<std::size_t> findFrom(std::wstring_view text, std::size_t begin, std::wstring_view phrase) {
    if (phrase.empty())
        return std::nullopt;
    for (; begin + phrase.size() <= text.size(); ++begin)
        if (matchesAt(text, begin, phrase))
            return begin;
    return std::nullopt;
}

} // namespace

std::vector<FoundPiece> findPieces(std::wstring_view text, std::wstring_view phrase) {
    std::vector<FoundPiece> pieces;
    for (auto at = findFrom(text, 0, phrase); at; at = findFrom(text, *at + phrase.size(), phrase))
        pieces.push_back({*at, phrase.size()});
    return pieces;
}

bool containsPhrase(std::wstring_view text, std::wstring_view phrase) {
    return findFrom(text, 0, phrase).has_value();
}

void FindModel::search(std::wstring phrase, int rowCount, const std::function<bool(int row)>& holdsPhrase) {
    m_phrase = std::move(phrase);
    m_active = true;
    m_rows.clear();
    if (m_phrase.empty())
        return;
    for (int row = 0; row < rowCount; ++row)
        if (holdsPhrase(row))
            m_rows.push_back(row);
}

int FindModel::ordinalOf(int row) const {
    const auto place = std::lower_bound(m_rows.begin(), m_rows.end(), row);
    return place != m_rows.end() && *place == row ? static_cast<int>(place - m_rows.begin()) + 1 : 0;
}

std::optional<int> FindModel::firstFrom(int row) const {
    if (m_rows.empty())
        return std::nullopt;
    const auto place = std::lower_bound(m_rows.begin(), m_rows.end(), row);
    return place == m_rows.end() ? m_rows.front() : *place;
}

std::optional<int> FindModel::previousBefore(int row) const {
    if (m_rows.empty())
        return std::nullopt;
    const auto place = std::lower_bound(m_rows.begin(), m_rows.end(), row);
    return place == m_rows.begin() ? m_rows.back() : *std::prev(place);
}

} // namespace Desk
