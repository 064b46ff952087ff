#include "OrtinFoundation/Clipboard.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace {

class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) {
        constexpr int attempts = 11;
        constexpr DWORD millisecondsBetween = 10;
        for (int attempt = 0; attempt < attempts && !m_isOpen; ++attempt) {
            if (attempt > 0) {
                Sleep(millisecondsBetween);
            }
            m_isOpen = OpenClipboard(owner) != FALSE;
        }
    }
    ~OpenedClipboard() {
        if (m_isOpen) {
            CloseClipboard();
        }
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    explicit operator bool() const { return m_isOpen; }

private:
    bool m_isOpen = false;
};

struct GlobalMemoryDeleter {
    void operator()(void* memory) const { GlobalFree(memory); }
};
using GlobalMemory = std::unique_ptr<void, GlobalMemoryDeleter>;

GlobalMemory globalCopyOf(std::wstring_view text) {
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, (text.size() + 1) * sizeof(wchar_t)));
    if (memory) {
        std::memcpy(GlobalLock(memory.get()), text.data(), text.size() * sizeof(wchar_t));
        GlobalUnlock(memory.get());
    }
    return memory;
}

} // namespace

std::optional<std::wstring> OrtinTools::Clipboard::GetClipboardString(HWND owner) {
    const OpenedClipboard clipboard(owner);
    const HANDLE memory = clipboard ? GetClipboardData(CF_UNICODETEXT) : nullptr;
    const auto* text = memory != nullptr ? static_cast<const wchar_t*>(GlobalLock(memory)) : nullptr;
    if (text == nullptr) {
        return std::nullopt;
    }
    // Whoever wrote the text may have left out the terminator.
    const std::wstring_view all(text, GlobalSize(memory) / sizeof(wchar_t));
    std::wstring result(all.substr(0, all.find(L'\0')));
    GlobalUnlock(memory);
    return result;
}

bool OrtinTools::Clipboard::SetClipboardString(HWND owner, std::wstring_view text) {
    GlobalMemory memory = globalCopyOf(text);
    const OpenedClipboard clipboard(owner);
    if (!memory || !clipboard || !EmptyClipboard() || SetClipboardData(CF_UNICODETEXT, memory.get()) == nullptr) {
        return false;
    }
    static_cast<void>(memory.release()); // the clipboard owns it now
    return true;
}
