#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <afxwin.h>

/// The record of a library that offers its resources and runtime classes beside those of the program.
///
/// One object for each library, used from its entry point: it waits for no other thread. A record that still is
/// registered when it ends takes itself out.
class ORTIN_FOUNDATION_API DllData {
public:
    DllData() = default;
    ~DllData();
    DllData(const DllData&) = delete;
    DllData& operator=(const DllData&) = delete;

    /// Registers the library; false, with nothing left behind, if the framework refuses it or it is registered already.
    bool InitExtensionModule(HINSTANCE module);
    /// Undoes InitExtensionModule; without it nothing happens.
    void TermExtensionModule();

    /// Null while the library is not registered.
    HINSTANCE GetModuleInstance() const { return m_module.hModule; }

private:
    AFX_EXTENSION_MODULE m_module{};
};
