#include "support/Resources.h"

#include <array>
#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

#include <windows.h>

#include <winternl.h>

// Exported by ntdll, in no header.
extern "C" PPEB NTAPI RtlGetCurrentPeb();

namespace support {
namespace {

/// An entry of the table that each process shares with GDI (64-bit Windows).
struct GdiTableEntry {
    std::uint64_t object;
    std::uint32_t owner;
    std::uint16_t unique;
    std::uint16_t type; ///< 0 when free
    std::uint64_t user;
};
static_assert(sizeof(GdiTableEntry) == 24);

constexpr std::size_t gdiTableOffset = 0xF8; // in the process environment block
constexpr std::size_t gdiTableLength = 0x10000;

/// The system's own companion of a thread's first window.
bool isInputMethodWindow(HWND window) {
    std::array<wchar_t, 8> name{};
    ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return std::wstring_view(name.data()) == L"IME";
}

void countWindowsBelow(HWND parent, DWORD process, std::size_t& count) {
    HWND child = nullptr;
    while ((child = ::FindWindowExW(parent, child, nullptr, nullptr)) != nullptr) {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(child, &owner);
        if (owner == process && !isInputMethodWindow(child)) {
            ++count;
            countWindowsBelow(child, process, count);
        }
    }
}

std::size_t busyBytes(HANDLE heap) {
    std::size_t bytes = 0;
    ::HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (::HeapWalk(heap, &entry)) {
        if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) {
            bytes += entry.cbData;
        }
    }
    ::HeapUnlock(heap);
    return bytes;
}

} // namespace

std::size_t gdiHandleCount() {
    const auto* block = reinterpret_cast<const std::uint8_t*>(RtlGetCurrentPeb());
    const auto* table = *reinterpret_cast<const volatile GdiTableEntry* const*>(block + gdiTableOffset);
    std::size_t count = 0;
    for (std::size_t index = 0; table != nullptr && index < gdiTableLength; ++index) {
        count += table[index].type != 0 ? 1U : 0U;
    }
    return count;
}

std::size_t windowCount() {
    const DWORD process = ::GetCurrentProcessId();
    std::size_t count = 0;
    countWindowsBelow(nullptr, process, count);
    countWindowsBelow(HWND_MESSAGE, process, count);
    return count;
}

std::size_t heapBytes() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = ::GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    std::size_t bytes = 0;
    for (DWORD index = 0; index < count && index < heaps.size(); ++index) {
        bytes += busyBytes(heaps[index]);
    }
    return bytes;
}

Resources Resources::inUse() {
    return {gdiHandleCount(), windowCount(), support::heapBytes()};
}

std::ostream& operator<<(std::ostream& out, const Resources& resources) {
    return out << resources.gdiHandles << " GDI handles, " << resources.windows << " windows, " << resources.heapBytes
               << " heap bytes";
}

} // namespace support
