#include <afxwin.h>

#include "ModuleRecord.h"

/// Runs under the loader lock: nothing here may wait for another thread.
extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/) {
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        return ModuleRecord::get().InitExtensionModule(module) ? TRUE : FALSE;
    case DLL_PROCESS_DETACH:
        ModuleRecord::get().TermExtensionModule();
        return TRUE;
    default:
        return TRUE;
    }
}
