#include "OrtinFoundation/Settings.h"

#include <windows.h>

namespace {

constexpr DWORD S_largestFile = 256u * 1024u * 1024u; // bytes; far beyond any real settings

class OwnedFile {
public:
    explicit OwnedFile(HANDLE file) : m_file(file) {}
    ~OwnedFile() {
        if (m_file != INVALID_HANDLE_VALUE) {
            CloseHandle(m_file);
        }
    }
    OwnedFile(const OwnedFile&) = delete;
    OwnedFile& operator=(const OwnedFile&) = delete;

    explicit operator bool() const { return m_file != INVALID_HANDLE_VALUE; }
    HANDLE get() const { return m_file; }

private:
    HANDLE m_file;
};

ParameterStatus failure(Settings::FileError code, const wchar_t* what, const std::wstring& path, DWORD systemError) {
    return {code, what + path + L" (błąd systemu " + std::to_wstring(systemError) + L")"};
}

bool writeAll(const std::wstring& path, const std::string& content) {
    const OwnedFile file(
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    return file && WriteFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &written, nullptr) &&
           written == content.size() && FlushFileBuffers(file.get());
}

} // namespace

ParameterStatus Settings::SaveToFile(const std::wstring& path) const {
    const std::string content = ToFileText();
    // A good file is not replaced by one that no load would accept: text that is no UTF-8, a tree that is too deep.
    Settings readBack;
    if (const ParameterStatus readable = readBack.LoadFromFileText(content, path); !readable.IsSuccess()) {
        return {FileNotWritable, readable.GetMessageText()};
    }
    // Two programs, or two threads, that save at once must not write into one file.
    const std::wstring temporary =
        path + L"." + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(GetCurrentThreadId()) + L".tmp";
    if (!writeAll(temporary, content) ||
        !MoveFileExW(temporary.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        const DWORD error = GetLastError();
        DeleteFileW(temporary.c_str());
        return failure(FileNotWritable, L"Nie można zapisać pliku ustawień ", path, error);
    }
    return {};
}

ParameterStatus Settings::LoadFromFile(const std::wstring& path) {
    const OwnedFile file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        const DWORD error = GetLastError();
        const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
        return isMissing ? failure(FileNotFound, L"Nie ma pliku ustawień ", path, error)
                         : failure(FileNotReadable, L"Nie można odczytać pliku ustawień ", path, error);
    }
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.get(), &size)) {
        return failure(FileNotReadable, L"Nie można odczytać pliku ustawień ", path, GetLastError());
    }
    if (size.QuadPart > S_largestFile) {
        return failure(FileNotReadable, L"Zbyt duży plik ustawień ", path, ERROR_FILE_TOO_LARGE);
    }
    std::string content(static_cast<size_t>(size.QuadPart), '\0');
    DWORD read = 0;
    if (!ReadFile(file.get(), content.data(), static_cast<DWORD>(content.size()), &read, nullptr) ||
        read != content.size()) {
        return failure(FileNotReadable, L"Nie można odczytać pliku ustawień ", path, GetLastError());
    }
    return LoadFromFileText(content, path);
}
