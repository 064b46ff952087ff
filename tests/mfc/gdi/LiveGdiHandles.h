#pragma once

#include <windows.h>

#include <cstdint>

/// GDI objects that are alive in this process, as its shared handle table shows them: 64-bit Windows keeps the table's
/// address in the process environment block. GetGuiResources knows nothing of them under Wine.
inline int liveGdiHandles() {
    constexpr std::size_t tableInEnvironment = 0xF8;
    constexpr std::size_t entries = 0x4000;
    struct Entry {
        std::uint64_t object;
        std::uint32_t owner;
        std::uint16_t unique;
        std::uint16_t type; ///< 0 for a free entry
        std::uint64_t user;
    };
    static_assert(sizeof(Entry) == 24);

    using CurrentEnvironment = const unsigned char*(WINAPI*)();
    static const auto currentEnvironment = reinterpret_cast<CurrentEnvironment>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "RtlGetCurrentPeb")));
    const unsigned char* environment = currentEnvironment();
    const auto* table = *reinterpret_cast<const Entry* const*>(environment + tableInEnvironment);
    int count = 0;
    for (std::size_t index = 0; index < entries; ++index) {
        count += table[index].type != 0 ? 1 : 0;
    }
    return count;
}
