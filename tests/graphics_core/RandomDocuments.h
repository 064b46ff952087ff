#pragma once

#include <boost/json/array.hpp>
#include <boost/json/object.hpp>
#include <boost/json/value.hpp>

#include <cstdint>
#include <limits>
#include <random>
#include <string>

/// Documents and texts that are nearly, but seldom quite, those of value objects; the same for one seed.
class RandomDocuments {
public:
    explicit RandomDocuments(unsigned seed) : m_random(seed) {}

    boost::json::value next() {
        switch (below(16)) {
        case 0:
            return anything(4);
        case 1:
            return nested(static_cast<int>(below(below(16) == 0 ? 200 : 8)));
        default:
            return form();
        }
    }

    /// Numbers with blanks between them, or what somebody made of them.
    std::string nextText() {
        std::string text;
        for (std::uint32_t count = below(16); count > 0; --count) {
            text += below(8) == 0 ? randomBytes() : std::to_string(number());
            text += " \t-+x,\n\0"[below(8) == 0 ? below(9) : 0];
        }
        return text;
    }

    /// Hexadecimal digits, nearly of so many bytes.
    std::string nextHexText(std::size_t bytes) {
        constexpr char digits[] = "0123456789abcdefABCDEF xg";
        std::string text;
        const std::size_t length = 2 * bytes + (below(4) == 0 ? below(3) : 0);
        const std::uint32_t kinds = below(3) == 0 ? sizeof digits - 1 : 22;
        while (text.size() < length) {
            text += digits[below(kinds)];
        }
        return text;
    }

    std::uint32_t below(std::uint32_t end) { return static_cast<std::uint32_t>(m_random() % end); }

private:
    std::int64_t number() {
        constexpr std::int64_t edges[] = {0,
                                          -1,
                                          255,
                                          256,
                                          std::numeric_limits<std::int32_t>::max(),
                                          std::numeric_limits<std::int32_t>::min(),
                                          std::int64_t{1} << 32,
                                          std::numeric_limits<std::int64_t>::max(),
                                          std::numeric_limits<std::int64_t>::min()};
        return below(4) == 0 ? edges[below(9)] : static_cast<std::int64_t>(below(2000)) - 1000;
    }

    std::string randomBytes() {
        std::string bytes;
        for (std::uint32_t count = below(8); count > 0; --count) {
            bytes += static_cast<char>(below(256));
        }
        return bytes;
    }

    /// Of up to 40 characters: Latin, Polish, beyond the basic plane, NUL, and bytes that are no UTF-8.
    std::string name() {
        static const std::string pieces[] = {
            "T", "a", " ", "\xC5\xBC", "\xF0\x9F\x93\x88", std::string(1, '\0'), "\xED\xA0\x80", "\xFF"};
        std::string text;
        text.reserve(160);
        for (std::uint32_t count = below(41); count > 0; --count) {
            text += pieces[below(below(4) == 0 ? 8 : 5)];
        }
        return text;
    }

    boost::json::value scalar() {
        switch (below(9)) {
        case 0:
            return nullptr;
        case 1:
            return below(2) == 0;
        case 2:
            return static_cast<std::uint64_t>(number());
        case 3:
            return static_cast<double>(number()) / 3.0;
        case 4:
            return std::numeric_limits<double>::quiet_NaN();
        case 5:
            return boost::json::value(name());
        default:
            return number();
        }
    }

    boost::json::value anything(int levels) {
        const std::uint32_t kind = levels > 0 ? below(4) : 0;
        if (kind == 1) {
            boost::json::array array;
            for (std::uint32_t count = below(6); count > 0; --count) {
                array.push_back(anything(levels - 1));
            }
            return array;
        }
        if (kind == 2) {
            boost::json::object object;
            for (std::uint32_t count = below(6); count > 0; --count) {
                object.emplace(key(), anything(levels - 1));
            }
            return object;
        }
        return scalar();
    }

    boost::json::value nested(int levels) {
        boost::json::value value = scalar();
        for (; levels > 0; --levels) {
            if (below(2) == 0) {
                boost::json::array array;
                array.push_back(std::move(value));
                value = std::move(array);
            } else {
                boost::json::object object;
                object.emplace(key(), std::move(value));
                value = std::move(object);
            }
        }
        return value;
    }

    std::string key() {
        static const std::string keys[] = {"Name", "Params", "PenStyle", "PenClr", "PenHatch", "name", ""};
        return keys[below(7)];
    }

    boost::json::array numbers(std::uint32_t usual) {
        boost::json::array array;
        const std::uint32_t count = below(4) == 0 ? below(20) : usual;
        const bool hasOthers = below(4) == 0;
        for (std::uint32_t index = 0; index < count; ++index) {
            array.push_back(hasOthers && below(6) == 0 ? scalar() : boost::json::value(number()));
        }
        return array;
    }

    /// A font's and a brush's members, of which one may be missing or of a wrong kind.
    boost::json::value form() {
        boost::json::object object;
        const auto add = [&](const char* key, boost::json::value value) {
            switch (below(16)) {
            case 0:
                break;
            case 1:
                object.emplace(key, anything(2));
                break;
            default:
                object.emplace(key, std::move(value));
            }
        };
        add("PenStyle", number());
        add("PenClr", numbers(3));
        add("PenHatch", number());
        add("Name", boost::json::value(name()));
        add("Params", numbers(13));
        return object;
    }

    std::mt19937 m_random;
};
