#include "Modules.h"
#include "ThreadState.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID) {
    switch (reason) {
    case DLL_PROCESS_ATTACH:
        rememberFrameworkModule(module);
        ThreadState::processStarts();
        break;
    case DLL_THREAD_DETACH:
        ThreadState::threadEnds();
        break;
    default:
        break;
    }
    return TRUE;
}
