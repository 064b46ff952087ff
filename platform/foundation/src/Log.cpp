#include "OrtinFoundation/Log.h"

#include <cstdio>
#include <utility>

#include <windows.h>

namespace {

class KeptLastError {
public:
    KeptLastError() : m_error(GetLastError()) {}
    ~KeptLastError() { SetLastError(m_error); }
    KeptLastError(const KeptLastError&) = delete;
    KeptLastError& operator=(const KeptLastError&) = delete;

private:
    DWORD m_error;
};

std::string timeNow() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    char text[64];
    std::snprintf(text, sizeof text, "%04u-%02u-%02u %02u:%02u:%02u.%03u", now.wYear, now.wMonth, now.wDay, now.wHour,
                  now.wMinute, now.wSecond, now.wMilliseconds);
    return text;
}

/// A file that only grows: each line goes to its end in one piece, whoever else writes there.
std::shared_ptr<void> openForAppending(const std::wstring& path) {
    HANDLE file = CreateFileW(path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                              nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    return file != INVALID_HANDLE_VALUE ? std::shared_ptr<void>(file, &CloseHandle) : nullptr;
}

} // namespace

namespace OrtinTools {

Log::Log() = default;
Log::~Log() = default;

Log& Log::Instance() {
    static Log log;
    return log;
}

void Log::Write(std::string_view function, int line, std::string_view text) noexcept {
    const KeptLastError kept;
    try {
        const std::lock_guard lock(m_mutex);
        // Held for the call: the sink may set another one.
        if (const std::shared_ptr<const Sink> sink = m_sink) {
            (*sink)(function, line, text);
        }
    } catch (...) { // NOLINT(bugprone-empty-catch): there is no place to tell of a log that fails
    }
}

void Log::SetSink(Sink sink) {
    std::shared_ptr<const Sink> next = sink ? std::make_shared<const Sink>(std::move(sink)) : nullptr;
    const std::lock_guard lock(m_mutex);
    m_sink.swap(next);
}

bool Log::SetFile(const std::wstring& path) {
    std::shared_ptr<void> file = openForAppending(path);
    if (file == nullptr) {
        return false;
    }
    SetSink([file = std::move(file)](std::string_view function, int line, std::string_view text) {
        const std::string entry =
            timeNow() + ' ' + std::string(function) + '(' + std::to_string(line) + "): " + std::string(text) + "\r\n";
        DWORD written = 0;
        WriteFile(file.get(), entry.data(), static_cast<DWORD>(entry.size()), &written, nullptr);
    });
    return true;
}

} // namespace OrtinTools
