#include "OrtinFoundation/BinaryStringSerializer.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

/// -1 for what is no hexadecimal digit.
int digitValue(char digit) {
    constexpr std::string_view lower = "0123456789abcdef";
    constexpr std::string_view upper = "0123456789ABCDEF";
    const std::size_t place = std::min(lower.find(digit), upper.find(digit));
    return place != std::string_view::npos ? static_cast<int>(place) : -1;
}

} // namespace

bool BinaryStringSerializer::ConvertTextToBin(const std::string& text, void* data, std::size_t size) {
    if (text.size() % 2 != 0 || text.size() / 2 != size) {
        return false;
    }
    std::vector<unsigned char> bytes;
    bytes.reserve(size);
    for (std::size_t index = 0; index < text.size(); index += 2) {
        const int high = digitValue(text[index]);
        const int low = digitValue(text[index + 1]);
        if (high < 0 || low < 0) {
            return false;
        }
        bytes.push_back(static_cast<unsigned char>(high * 16 + low));
    }
    std::copy(bytes.begin(), bytes.end(), static_cast<unsigned char*>(data));
    return true;
}
