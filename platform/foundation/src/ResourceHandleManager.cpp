#include "OrtinFoundation/ResourceHandleManager.h"

ResourceHandleManager::ResourceHandleManager(HINSTANCE module) : m_previous(AfxGetResourceHandle()) {
    AfxSetResourceHandle(module);
}

ResourceHandleManager::~ResourceHandleManager() {
    AfxSetResourceHandle(m_previous);
}
