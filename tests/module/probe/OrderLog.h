#pragma once

#include <string>

#include <windows.h>

template <typename Function>
Function functionOfProgram(const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(nullptr), name)));
}

/// The stand-ins of this folder write what happens to them into the log of the program that loads the probe.
inline void logOrder(const std::wstring& event) {
    if (const auto append = functionOfProgram<void (*)(const wchar_t*)>("appendToOrderLog")) {
        append(event.c_str());
    }
}

/// Whether the loading program wants the registration to be refused.
inline bool registrationIsRefused() {
    const auto refused = functionOfProgram<bool (*)()>("orderProbeIsRefused");
    return refused != nullptr && refused();
}
