#include "InputFile.h"

#include "core/InputError.h"

namespace Desk {

namespace {

std::string utf8Name(const std::filesystem::path& file) {
    const std::u8string name = file.u8string();
    return std::string(name.begin(), name.end());
}

} // namespace

InputFile::InputFile(const std::filesystem::path& file) : name(utf8Name(file)) {
    std::error_code error;
    if (std::filesystem::is_directory(file, error))
        throw InputError({name, 0, 0}, "to jest folder", "podaj plik CSV");
    stream.open(file, std::ios::binary);
    if (!stream)
        throw InputError({name, 0, 0}, "pliku nie ma albo nie można go otworzyć", "sprawdź ścieżkę i prawa");
}

} // namespace Desk
