#pragma once

#include <string>

#include <windows.h>

/// The stand-ins of this folder write what happens to them into the log of the program that loads the probe.
inline void logOrder(const std::wstring& event) {
    using Append = void (*)(const wchar_t*);
    if (const auto append =
            reinterpret_cast<Append>(::GetProcAddress(::GetModuleHandleW(nullptr), "appendToOrderLog"))) {
        append(event.c_str());
    }
}

/// Whether the loading program wants the registration to be refused.
inline bool registrationIsRefused() {
    using Refused = bool (*)();
    const auto refused =
        reinterpret_cast<Refused>(::GetProcAddress(::GetModuleHandleW(nullptr), "orderProbeIsRefused"));
    return refused != nullptr && refused();
}
