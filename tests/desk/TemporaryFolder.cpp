#include "TemporaryFolder.h"

#include <fstream>
#include <iterator>

#include <windows.h>

TemporaryFolder::TemporaryFolder()
    : m_path(std::filesystem::temp_directory_path() /
             (L"desk test " + std::to_wstring(::GetCurrentProcessId()) + L" " + std::to_wstring(::GetTickCount64()))) {
    std::filesystem::create_directories(m_path);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::filesystem::path TemporaryFolder::write(std::wstring_view name, std::string_view bytes) const {
    std::filesystem::path path = file(name);
    std::ofstream output(path, std::ios::binary);
    output.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return path;
}

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream input(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(input), std::istreambuf_iterator<char>()};
}
