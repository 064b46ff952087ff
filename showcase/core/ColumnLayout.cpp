#include "ColumnLayout.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace Desk {

namespace {

constexpr std::string_view HiddenWord = "hidden";

template <class Columns>
auto findKey(Columns& columns, std::string_view key) {
    return std::find_if(columns.begin(), columns.end(),
                        [&](const ArrangedColumn& column) { return column.key == key; });
}

/// Cuts the text up to the next space off its front.
std::string_view takeWord(std::string_view& text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return word;
}

double numberFrom(std::string_view word) {
    double value = 0.0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc() && end == word.data() + word.size() ? value : 0.0;
}

} // namespace

ColumnLayout fittedLayout(const ColumnLayout& kept, const ColumnLayout& known) {
    ColumnLayout fitted;
    for (const ArrangedColumn& column : kept) {
        const auto first = findKey(known, column.key);
        if (first == known.end() || findKey(fitted, column.key) != fitted.end())
            continue;
        fitted.push_back(column);
        if (!(column.width >= LeastKeptWidth && column.width <= GreatestKeptWidth))
            fitted.back().width = first->width;
    }
    for (const ArrangedColumn& column : known)
        if (findKey(fitted, column.key) == fitted.end())
            fitted.push_back(column);
    if (!fitted.empty() &&
        std::none_of(fitted.begin(), fitted.end(), [](const auto& column) { return column.visible; }))
        fitted.front().visible = true;
    return fitted;
}

ColumnLayout withForeignColumns(ColumnLayout current, const ColumnLayout& kept) {
    for (const ArrangedColumn& column : kept)
        if (!column.key.empty() && findKey(current, column.key) == current.end())
            current.push_back(column);
    return current;
}

std::string arrangedColumnText(const ArrangedColumn& column) {
    std::array<char, 64> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), column.width);
    std::string text = column.key + ' ' + std::string(digits.data(), error == std::errc() ? end : digits.data());
    if (!column.visible)
        text += ' ' + std::string(HiddenWord);
    return text;
}

ArrangedColumn arrangedColumnFromText(std::string_view text) {
    ArrangedColumn column;
    column.key = takeWord(text);
    column.width = numberFrom(takeWord(text));
    column.visible = takeWord(text) != HiddenWord;
    return column;
}

} // namespace Desk
