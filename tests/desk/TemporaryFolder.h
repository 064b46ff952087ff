#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// A folder of its own for a test, gone with it.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path file(std::wstring_view name) const { return m_path / name; }
    /// Gives the file's path.
    std::filesystem::path write(std::wstring_view name, std::string_view bytes) const;

private:
    std::filesystem::path m_path;
};

/// Empty if there is no such file.
std::string bytesOf(const std::filesystem::path& file);
