#pragma once

#include "afx.h"

class CDynLinkLibrary;
class CWinApp;

/// The record of a library that takes part in the search for resources and runtime classes; owned by the library.
struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

/// What the program as a whole knows of itself.
class ORTIN_MFC_API AFX_MODULE_STATE {
public:
    HINSTANCE m_hCurrentInstanceHandle = nullptr; ///< the program's own module
    HINSTANCE m_hCurrentResourceHandle = nullptr; ///< where resources are looked for first
    CWinApp* m_pCurrentWinApp = nullptr;
    LPCWSTR m_lpszCurrentAppName = nullptr;
};

ORTIN_MFC_API AFX_MODULE_STATE* AfxGetModuleState();
ORTIN_MFC_API HINSTANCE AfxGetInstanceHandle();
ORTIN_MFC_API HINSTANCE AfxGetResourceHandle();
/// From now on resources are looked for in hInstResource first; returns nothing, the caller restores the old one.
ORTIN_MFC_API void AfxSetResourceHandle(HINSTANCE hInstResource);

/// The module that holds the resource: the one given to AfxSetResourceHandle, the program, then each extension
/// module, the one registered last first. If none has it, the answer is AfxGetResourceHandle().
ORTIN_MFC_API HINSTANCE AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType);

/// Copies string nIDS of the first module that has it into lpszBuf (room for nMaxBuf characters, always ended); the
/// length, 0 if there is none. Modules that share a block of sixteen strings complete each other.
ORTIN_MFC_API int AfxLoadString(UINT nIDS, LPWSTR lpszBuf, UINT nMaxBuf = 256);

/// Fills the record of a library from its process attach; false for a null handle.
ORTIN_MFC_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// Takes the library out of the search and frees its CDynLinkLibrary objects. bAll: of every library.
ORTIN_MFC_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);
