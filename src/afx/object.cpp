#include "afx_object.h"
#include "afx_dump.h"
#include "afx_exception.h"

#include <cstring>
#include <new>

namespace {
// Constant-initialised, so that registration from static constructors needs no order.
CRuntimeClass* first_class = nullptr;
} // namespace

CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr, nullptr};

CRuntimeClass* PASCAL CObject::GetThisClass() {
    return &classCObject;
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return &classCObject;
}

CObject::~CObject() = default;

void CObject::Serialize(CArchive& ar) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext& dc) const {
    dc << GetRuntimeClass()->m_lpszClassName << "\n";
}

BOOL CObject::IsSerializable() const {
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return this != nullptr && GetRuntimeClass()->IsDerivedFrom(pClass);
}

CObject* AFX_CDECL AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* CRuntimeClass::CreateObject() {
    if (m_pfnCreateObject == nullptr)
        return nullptr;
    try {
        return (*m_pfnCreateObject)();
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (CMemoryException* exception) {
        exception->Delete();
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    for (const CRuntimeClass* at = this; at != nullptr;
         at = at->m_pfnGetBaseClass != nullptr ? (*at->m_pfnGetBaseClass)() : nullptr) {
        if (at == pBaseClass)
            return TRUE;
    }
    return FALSE;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName) {
    CRuntimeClass* at = lpszClassName != nullptr ? first_class : nullptr;
    while (at != nullptr && std::strcmp(at->m_lpszClassName, lpszClassName) != 0)
        at = at->m_pNextClass;
    return at;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName) {
    CRuntimeClass* found = FromName(lpszClassName);
    return found != nullptr ? found->CreateObject() : nullptr;
}

void AFXAPI AfxDoForAllClasses(void(CALLBACK* pfn)(const CRuntimeClass* pClass, void* pContext), void* pContext) {
    for (const CRuntimeClass* at = first_class; at != nullptr; at = at->m_pNextClass) {
        if (at->m_wSchema != 0xFFFF)
            pfn(at, pContext);
    }
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) : m_class(pNewClass) {
    pNewClass->m_pNextClass = first_class;
    first_class = pNewClass;
}

AFX_CLASSINIT::~AFX_CLASSINIT() {
    for (CRuntimeClass** at = &first_class; *at != nullptr; at = &(*at)->m_pNextClass) {
        if (*at == m_class) {
            *at = m_class->m_pNextClass;
            return;
        }
    }
}
