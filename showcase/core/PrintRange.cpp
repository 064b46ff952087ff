#include "PrintRange.h"

#include <algorithm>
#include <optional>

#include "core/PolishFormat.h"

namespace Desk {

namespace {

constexpr std::size_t MostDigits = 9;

std::wstring trimmed(const std::wstring& text) {
    const std::size_t first = text.find_first_not_of(L" \t\u00A0");
    if (first == std::wstring::npos)
        return {};
    return text.substr(first, text.find_last_not_of(L" \t\u00A0") - first + 1);
}

/// 0 for a number too long to be that of a page.
std::optional<int> wholeNumber(const std::wstring& text) {
    if (text.empty() || !std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; }))
        return std::nullopt;
    return text.size() <= MostDigits ? std::stoi(text) : 0;
}

std::variant<int, std::wstring> readPage(const std::wstring& typed, int pages) {
    const std::wstring text = trimmed(typed);
    const std::wstring wanted = pages == 1 ? L"wpisz 1, bo dokument ma jedną stronę."
                                           : L"wpisz liczbę od 1 do " + std::to_wstring(pages) + L".";
    if (text.empty())
        return L"Brak numeru strony: " + wanted;
    const std::optional<int> page = wholeNumber(text);
    if (!page)
        return L"„" + text + L"” nie jest numerem strony: " + wanted;
    if (*page < 1 || *page > pages)
        return L"Nie ma strony " + text + L": " + wanted;
    return *page;
}

} // namespace

std::variant<PrintRange, RangeFault> readPrintRange(const std::wstring& from, const std::wstring& to, int pages) {
    if (pages < 1)
        return RangeFault{RangeEnd::From, L"Dokument nie ma żadnej strony."};
    std::variant<int, std::wstring> first = readPage(from, pages);
    if (auto* sentence = std::get_if<std::wstring>(&first))
        return RangeFault{RangeEnd::From, std::move(*sentence)};
    std::variant<int, std::wstring> last = readPage(to, pages);
    if (auto* sentence = std::get_if<std::wstring>(&last))
        return RangeFault{RangeEnd::To, std::move(*sentence)};
    return PrintRange{std::get<int>(first), std::get<int>(last)};
}

std::wstring pagesText(int pages) {
    return formatCount(pages, L"strona", L"strony", L"stron");
}

std::wstring rowsText(int first, int last) {
    if (first == last)
        return L"wiersz " + std::to_wstring(first);
    return L"wiersze " + std::to_wstring(first) + L"–" + std::to_wstring(last);
}

std::wstring pageOfText(int page, int pages) {
    return L"Strona " + std::to_wstring(page) + L" z " + std::to_wstring(pages);
}

} // namespace Desk
