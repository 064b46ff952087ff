#include "PlainReaders.h"

#include <boost/json/array.hpp>
#include <boost/json/object.hpp>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <vector>

#include <OrtinFoundation/Settings.h>
#include <OrtinFoundation/StringTools.h>

#include "PretendedScale.h"

namespace {

constexpr double kLeast = -2147483648.0;
constexpr double kMost = 2147483647.0;

/// The fields of a font lie in the order of its parameters: five of four bytes, eight of one.
void storeParameter(std::size_t index, std::int64_t value, LOGFONTW& font) {
    auto* bytes = reinterpret_cast<unsigned char*>(&font);
    std::memcpy(index < 5 ? bytes + 4 * index : bytes + 15 + index, &value, index < 5 ? 4 : 1);
}

void storeName(const std::wstring& name, LOGFONTW& font) {
    if (name.size() < 32) {
        std::memset(font.lfFaceName, 0, sizeof font.lfFaceName);
        std::memcpy(font.lfFaceName, name.data(), name.size() * sizeof(wchar_t));
    }
}

/// How many numbers a scan by the C library finds, at most 13. They have to fit 64 bits.
std::size_t scan(const char* text, std::array<long long, 13>& numbers) {
    const int count = std::sscanf(text, "%lld %lld %lld %lld %lld %lld %lld %lld %lld %lld %lld %lld %lld", &numbers[0],
                                  &numbers[1], &numbers[2], &numbers[3], &numbers[4], &numbers[5], &numbers[6],
                                  &numbers[7], &numbers[8], &numbers[9], &numbers[10], &numbers[11], &numbers[12]);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

bool readImage(const std::string& text, void* image, std::size_t size) {
    std::vector<unsigned char> bytes;
    const std::string digits = "0123456789abcdef";
    for (std::size_t index = 0; index + 1 < text.size(); index += 2) {
        const std::size_t high = digits.find(static_cast<char>(std::tolower(static_cast<unsigned char>(text[index]))));
        const std::size_t low =
            digits.find(static_cast<char>(std::tolower(static_cast<unsigned char>(text[index + 1]))));
        if (high == digits.npos || low == digits.npos) {
            return false;
        }
        bytes.push_back(static_cast<unsigned char>(high * 16 + low));
    }
    if (bytes.size() * 2 != text.size() || bytes.size() != size) {
        return false;
    }
    std::memcpy(image, bytes.data(), size);
    return true;
}

} // namespace

std::string PlainReaders::readBrush(const boost::json::value& document, LOGBRUSH& brush) {
    if (document.is_null()) {
        return "false";
    }
    if (!document.is_object()) {
        return "not an object";
    }
    const boost::json::object& members = document.get_object();
    const boost::json::value* style = members.if_contains("PenStyle");
    if (style == nullptr) {
        return "out of range";
    }
    if (!style->is_int64()) {
        return "not an int64";
    }
    brush.lbStyle = static_cast<UINT>(style->get_int64());
    const boost::json::value* color = members.if_contains("PenClr");
    if (color == nullptr) {
        return "out of range";
    }
    if (!color->is_array()) {
        return "array required";
    }
    const boost::json::array& components = color->get_array();
    constexpr std::uint64_t masks[] = {0xFF, 0xFFFFFFFF, 0xFFFFFFFF};
    std::uint64_t sum = 0;
    for (std::size_t index = 0; index < 3; ++index) {
        if (index == components.size()) {
            return "out of range";
        }
        if (!components[index].is_int64()) {
            return "not an int64";
        }
        sum |= (static_cast<std::uint64_t>(components[index].get_int64()) & masks[index]) << 8 * index;
    }
    brush.lbColor = static_cast<COLORREF>(sum);
    return "not an int64"; // of the colour, which is a list
}

std::string PlainReaders::readFont(const boost::json::value& document, LOGFONTW& font) {
    if (document.is_null()) {
        return "false";
    }
    if (!document.is_object()) {
        return "not an object";
    }
    const boost::json::object& members = document.get_object();
    const boost::json::value* name = members.if_contains("Name");
    if (name == nullptr) {
        return "out of range";
    }
    if (!name->is_string()) {
        return "not a string";
    }
    storeName(OrtinTools::String::Utf8ToWide(name->get_string()), font);
    const boost::json::value* list = members.if_contains("Params");
    if (list == nullptr) {
        return "out of range";
    }
    if (!list->is_array()) {
        return "array required";
    }
    const boost::json::array& parameters = list->get_array();
    if (parameters.size() != 13) {
        return "false";
    }
    for (std::size_t index = 0; index < 13; ++index) {
        if (!parameters[index].is_int64()) {
            return "not an int64";
        }
        const std::int64_t value = parameters[index].get_int64();
        const double height = std::round(pretendedScale() * static_cast<double>(value));
        storeParameter(
            index, index == 0 ? static_cast<std::int64_t>(std::fmin(std::fmax(height, kLeast), kMost)) : value, font);
    }
    return "true";
}

std::string PlainReaders::readPen(const Settings& settings, LOGPEN& pen) {
    if (settings.Version == 0) {
        return readImage(settings, &pen, 16) ? "true" : "false";
    }
    if (settings.Version != 1) {
        return "false";
    }
    std::array<long long, 13> numbers{};
    const std::size_t count = scan(settings, numbers);
    const std::size_t offsets[] = {0, 4, 12}; // style, width, colour
    for (std::size_t index = 0; index < std::min<std::size_t>(count, 3); ++index) {
        std::memcpy(reinterpret_cast<unsigned char*>(&pen) + offsets[index], &numbers[index], 4);
    }
    return count >= 3 ? "true" : "false";
}

std::string PlainReaders::readFont(const Settings& settings, LOGFONTW& font) {
    if (settings.Version == 0) {
        readImage(settings, &font, 92);
    } else if (settings.Version == 1) {
        std::array<long long, 13> numbers{};
        const std::size_t count = scan(settings["Params"], numbers);
        for (std::size_t index = 0; index < count; ++index) {
            storeParameter(index, numbers[index], font);
        }
        if (count == 13) {
            storeName(settings["Name"], font);
        }
    }
    const double height = std::round(pretendedScale() * font.lfHeight);
    if (height < kLeast || height > kMost) {
        return "narrowing error";
    }
    font.lfHeight = static_cast<LONG>(height);
    return "true";
}
