#pragma once

#include "OrderLog.h"

class DllData {
public:
    DllData() { logOrder(L"make record"); }
    ~DllData() { logOrder(L"unmake record"); }
    bool InitExtensionModule(HINSTANCE module) {
        logOrder(module != nullptr ? L"register" : L"register nothing");
        return !registrationIsRefused();
    }
    void TermExtensionModule() { logOrder(L"unregister"); }
};
