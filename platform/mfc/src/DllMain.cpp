#include "ThreadState.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    switch (reason) {
    case DLL_PROCESS_ATTACH:
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
