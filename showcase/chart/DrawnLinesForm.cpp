#include "DrawnLinesForm.h"

#include <boost/json/parse.hpp>
#include <boost/json/serialize.hpp>

#include <cmath>
#include <optional>

#include "chart/StyleForm.h"
#include "core/Utf8.h"
#include "core/chart/IsoDate.h"

namespace Desk::DrawnLinesForm {

namespace {

namespace json = boost::json;

constexpr const char* Symbol = "symbol";
constexpr const char* From = "from";
constexpr const char* To = "to";
constexpr const char* Date = "date";
constexpr const char* Place = "place";
constexpr const char* Price = "price";
constexpr const char* Style = "style";
constexpr const char* Pen = "pen";
constexpr const char* Opacity = "opacity";

std::optional<json::value> written(const AnchoredPoint& point) {
    const std::optional<std::string> date = formatIsoDate(point.date);
    if (!date || !std::isfinite(point.places) || !std::isfinite(point.price))
        return std::nullopt;
    return json::object{{Date, *date}, {Place, point.places}, {Price, point.price}};
}

std::optional<json::value> written(const DrawnLine& line) {
    std::optional<json::value> from = written(line.line.from);
    std::optional<json::value> to = written(line.line.to);
    if (!from || !to || !isUtf8(line.symbol) || !StyleForm::isOpacity(line.style.opacity))
        return std::nullopt;
    json::object style{{Pen, StyleForm::textOf(line.style.pen)}, {Opacity, line.style.opacity}};
    return json::object{
        {Symbol, line.symbol}, {From, *std::move(from)}, {To, *std::move(to)}, {Style, std::move(style)}};
}

const json::object* objectAt(const json::object& owner, const char* key) {
    const json::value* const value = owner.if_contains(key);
    return value ? value->if_object() : nullptr;
}

std::optional<std::string> textAt(const json::object& owner, const char* key) {
    const json::value* const value = owner.if_contains(key);
    const json::string* const text = value ? value->if_string() : nullptr;
    return text ? std::optional<std::string>(std::string(text->data(), text->size())) : std::nullopt;
}

std::optional<double> numberAt(const json::object& owner, const char* key) {
    const json::value* const value = owner.if_contains(key);
    json::error_code error;
    const double number = value ? value->to_number<double>(error) : NAN;
    return !error && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<AnchoredPoint> pointAt(const json::object& line, const char* key) {
    const json::object* const point = objectAt(line, key);
    if (!point)
        return std::nullopt;
    const std::optional<std::chrono::sys_days> date = parseIsoDate(textAt(*point, Date).value_or(""));
    const std::optional<double> places = numberAt(*point, Place);
    const std::optional<double> price = numberAt(*point, Price);
    if (!date || !places || !price)
        return std::nullopt;
    return AnchoredPoint{*date, *places, *price};
}

/// Without a style of its own.
std::optional<DrawnLine> lineFrom(const json::value& document) {
    const json::object* const form = document.if_object();
    if (!form)
        return std::nullopt;
    std::optional<std::string> symbol = textAt(*form, Symbol);
    const std::optional<AnchoredPoint> from = pointAt(*form, From);
    const std::optional<AnchoredPoint> to = pointAt(*form, To);
    if (!symbol || symbol->empty() || !from || !to)
        return std::nullopt;
    DrawnLine line;
    line.symbol = *std::move(symbol);
    line.line = {*from, *to};
    return line;
}

void readStyle(const json::value& document, const std::string& path, ChartStyle& style,
               std::vector<std::string>& unread) {
    const json::object* const form = document.if_object();
    if (!form) {
        unread.push_back(path);
        return;
    }
    if (form->contains(Pen)) {
        if (const auto pen = StyleForm::penFrom(textAt(*form, Pen).value_or(""), StyleForm::PenVersion))
            style.pen = *pen;
        else
            unread.push_back(path + '/' + Pen);
    }
    if (form->contains(Opacity)) {
        if (const auto opacity = numberAt(*form, Opacity); opacity && StyleForm::isOpacity(*opacity))
            style.opacity = *opacity;
        else
            unread.push_back(path + '/' + Opacity);
    }
}

} // namespace

std::string textOf(const std::vector<DrawnLine>& lines) {
    json::array form;
    for (const DrawnLine& line : lines)
        if (std::optional<json::value> each = written(line))
            form.push_back(*std::move(each));
    return json::serialize(form);
}

Read read(std::string_view text, const ChartStyle& first) {
    Read result;
    json::error_code error;
    const json::value document = json::parse({text.data(), text.size()}, error);
    const json::array* const form = error ? nullptr : document.if_array();
    if (!form) {
        result.unread.emplace_back();
        return result;
    }
    for (std::size_t place = 0; place < form->size(); ++place) {
        const std::string path = '/' + std::to_string(place);
        std::optional<DrawnLine> line = lineFrom((*form)[place]);
        if (!line) {
            result.unread.push_back(path);
            continue;
        }
        line->style = first;
        if (const json::value* const style = (*form)[place].as_object().if_contains(Style))
            readStyle(*style, path + '/' + Style, line->style, result.unread);
        result.lines.push_back(*std::move(line));
    }
    return result;
}

} // namespace Desk::DrawnLinesForm
