#include "afx.h"

#include <new>

const CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr};

CObject* CRuntimeClass::CreateObject() const {
    if (m_pfnCreateObject == nullptr) {
        return nullptr;
    }
    try {
        return m_pfnCreateObject();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    for (const CRuntimeClass* ancestor = this; ancestor != nullptr;
         ancestor = ancestor->m_pfnGetBaseClass != nullptr ? ancestor->m_pfnGetBaseClass() : nullptr) {
        if (ancestor == pBaseClass) {
            return TRUE;
        }
    }
    return FALSE;
}

CRuntimeClass* CObject::GetThisClass() {
    return const_cast<CRuntimeClass*>(&classCObject);
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return GetThisClass();
}

void CObject::AssertValid() const {
    ASSERT(GetRuntimeClass() != nullptr);
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

CObject* AfxDynamicDownCast(const CRuntimeClass* pClass, CObject* pObject) {
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}
