#include "OrtinFoundation/BinaryStringSerializer.h"

#include <algorithm>
#include <charconv>
#include <vector>

bool BinaryStringSerializer::ConvertTextToBin(const std::string& text, void* data, std::size_t size) {
    if (text.size() % 2 != 0 || text.size() / 2 != size) {
        return false;
    }
    std::vector<unsigned char> bytes(size);
    const char* digits = text.data();
    for (unsigned char& byte : bytes) {
        const char* end = digits + 2;
        if (std::from_chars(digits, end, byte, 16).ptr != end) {
            return false;
        }
        digits = end;
    }
    std::copy(bytes.begin(), bytes.end(), static_cast<unsigned char*>(data));
    return true;
}
