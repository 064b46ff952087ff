#include "Modules.h"

#include "afxwin_app.h"

#include <algorithm>
#include <mutex>
#include <vector>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

namespace {

/// The libraries that take part in the search, the one registered last first.
class LibraryList {
public:
    void add(CDynLinkLibrary* library) {
        const std::lock_guard lock(m_mutex);
        m_libraries.insert(m_libraries.begin(), library);
    }

    void remove(CDynLinkLibrary* library) {
        const std::lock_guard lock(m_mutex);
        std::erase(m_libraries, library);
    }

    /// The resource modules in the order of the search.
    std::vector<HMODULE> resourceModules() const {
        const std::lock_guard lock(m_mutex);
        std::vector<HMODULE> modules;
        for (const CDynLinkLibrary* library : m_libraries) {
            modules.push_back(library->m_hResource);
        }
        return modules;
    }

    /// Null for the module means every one.
    std::vector<CDynLinkLibrary*> librariesOf(HMODULE module) const {
        const std::lock_guard lock(m_mutex);
        std::vector<CDynLinkLibrary*> libraries;
        std::copy_if(
            m_libraries.begin(), m_libraries.end(), std::back_inserter(libraries),
            [module](const CDynLinkLibrary* library) { return module == nullptr || library->m_hModule == module; });
        return libraries;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<CDynLinkLibrary*> m_libraries;
};

LibraryList& libraries() {
    static LibraryList list;
    return list;
}

HMODULE S_frameworkModule = nullptr;

/// The first module of the search that has what is wanted; null if none has.
template <class Has>
HMODULE firstModule(Has has) {
    for (HMODULE module : {AfxGetResourceHandle(), AfxGetInstanceHandle()}) {
        if (has(module)) {
            return module;
        }
    }
    for (HMODULE module : libraries().resourceModules()) {
        if (has(module)) {
            return module;
        }
    }
    return has(S_frameworkModule) ? S_frameworkModule : nullptr;
}

} // namespace

void rememberFrameworkModule(HMODULE module) {
    S_frameworkModule = module;
}

AFX_MODULE_STATE* AfxGetModuleState() {
    static AFX_MODULE_STATE state = [] {
        AFX_MODULE_STATE program;
        program.m_hCurrentInstanceHandle = GetModuleHandleW(nullptr);
        program.m_hCurrentResourceHandle = program.m_hCurrentInstanceHandle;
        return program;
    }();
    return &state;
}

HINSTANCE AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AfxGetResourceHandle() {
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

void AfxSetResourceHandle(HINSTANCE hInstResource) {
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

HINSTANCE AfxFindResourceHandle(LPCWSTR lpszName, LPCWSTR lpszType) {
    HMODULE found = firstModule([&](HMODULE module) { return FindResourceW(module, lpszName, lpszType) != nullptr; });
    return found != nullptr ? found : AfxGetResourceHandle();
}

std::wstring_view findText(UINT id) {
    std::wstring_view found;
    firstModule([&](HMODULE module) {
        found = CStringPlatform<wchar_t>::resource(module, id);
        return !found.empty();
    });
    return found;
}

int AfxLoadString(UINT nIDS, LPWSTR lpszBuf, UINT nMaxBuf) {
    if (lpszBuf == nullptr || nMaxBuf == 0) {
        return 0;
    }
    const std::size_t length = findText(nIDS).copy(lpszBuf, nMaxBuf - 1);
    lpszBuf[length] = L'\0';
    return static_cast<int>(length);
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (hModule == nullptr) {
        return FALSE;
    }
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll) {
    if (!state.bInitialized && !bAll) {
        return;
    }
    for (CDynLinkLibrary* library : libraries().librariesOf(bAll ? nullptr : state.hModule)) {
        delete library;
    }
    state.bInitialized = FALSE;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state) : m_hModule(state.hModule), m_hResource(state.hResource) {
    libraries().add(this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    libraries().remove(this);
}
