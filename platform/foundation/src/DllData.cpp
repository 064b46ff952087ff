#include "OrtinFoundation/DllData.h"

#include <new>

DllData::~DllData() {
    TermExtensionModule();
}

bool DllData::InitExtensionModule(HINSTANCE module) {
    if (m_module.hModule != nullptr || !AfxInitExtensionModule(m_module, module)) {
        return false;
    }
    // The framework owns the object and frees it in AfxTermExtensionModule.
    if (new (std::nothrow) CDynLinkLibrary(m_module) == nullptr) {
        TermExtensionModule();
        return false;
    }
    return true;
}

void DllData::TermExtensionModule() {
    if (m_module.hModule != nullptr) {
        AfxTermExtensionModule(m_module);
        m_module = AFX_EXTENSION_MODULE{};
    }
}
