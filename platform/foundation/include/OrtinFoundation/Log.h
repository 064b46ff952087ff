#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace OrtinTools {

/// The log of the process. It has no levels; a line is a function, a number of a source line, and a text in the
/// Windows-1250 code page. Lines go to the sink that the host has set or to its file, and nowhere before that.
///
/// Any thread may write. Lines are taken one at a time, and a line that cannot be taken is lost: the log never throws,
/// and it leaves GetLastError as it was, so that writing never changes what is being logged.
class ORTIN_FOUNDATION_API Log {
public:
    /// The views are good for the length of the call.
    using Sink = std::function<void(std::string_view function, int line, std::string_view text)>;

    static Log& Instance();
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;

    void Write(std::string_view function, int line, std::string_view text) noexcept;

    /// Replaces the sink or the file; an empty sink ends both. When it returns, no call to the previous sink runs,
    /// unless the sink itself called. The sink may write to the log, may throw, and must not wait for other threads.
    void SetSink(Sink sink);
    /// Appends lines "2025-12-31 13:45:10.123 function(line): text" to the file, which is made if there is none. False
    /// if it cannot be opened; then everything stays as it was.
    bool SetFile(const std::wstring& path);

private:
    Log();
    ~Log();

    std::recursive_mutex m_mutex; // a sink may log itself
    std::shared_ptr<const Sink> m_sink;
};

} // namespace OrtinTools
