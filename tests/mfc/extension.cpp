#include <windows.h>

// A library for its resources; the linker wants an entry point.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, LPVOID) {
    return TRUE;
}
