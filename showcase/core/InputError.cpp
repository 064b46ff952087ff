#include "InputError.h"

namespace Desk {

namespace {

constexpr std::size_t LongestQuotation = 60;

std::string message(const InputPlace& place, std::string_view fault, std::string_view advice) {
    std::string text = place.file;
    if (place.line > 0)
        text += ", wiersz " + std::to_string(place.line);
    if (place.column > 0)
        text += ", kolumna " + std::to_string(place.column);
    text += ": ";
    text += fault;
    text += "; ";
    text += advice;
    return text;
}

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0u) == 0x80u;
}

} // namespace

InputError::InputError(InputPlace place, std::string_view fault, std::string_view advice)
    : std::runtime_error(message(place, fault, advice)),
      m_place(std::move(place)) {}

std::string quotedForMessage(std::string_view text) {
    std::size_t length = text.size();
    if (length > LongestQuotation) {
        length = LongestQuotation;
        while (length > 0 && continuesCharacter(text[length]))
            --length;
    }
    std::string quoted = "„";
    for (const char byte : text.substr(0, length))
        quoted += static_cast<unsigned char>(byte) < 0x20u || byte == 0x7F ? '?' : byte;
    if (length < text.size())
        quoted += "…";
    return quoted + "”";
}

} // namespace Desk
