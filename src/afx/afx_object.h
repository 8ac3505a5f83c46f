// CObject and run-time class information.
#pragma once

#include "afx_base.h"

class CObject;
class CArchive;
class CDumpContext;

// Describes a class at run time: its name, its base and, where it can be created dynamically, how.
struct ZOPAFX_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;
    CObject*(PASCAL* m_pfnCreateObject)();
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();
    CRuntimeClass* m_pNextClass;

    // A new object, or null where the class is not dynamically creatable or memory is short.
    CObject* CreateObject();
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    // Looks among the registered classes of the program and of every loaded extension library.
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);

    // The class's name and schema number in an archive; null where it holds no class that is known.
    void Store(CArchive& ar) const;
    static CRuntimeClass* PASCAL Load(CArchive& ar, UINT* pwSchemaNum);
};

// Registers a class for CreateObject by its name as long as its module is loaded.
class ZOPAFX_API AFX_CLASSINIT {
public:
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_class;
};

// Root of the class family. Objects are not copied.
class ZOPAFX_API CObject {
public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();
    virtual void Serialize(CArchive& ar);
    // Checks the object's state; a plain object has nothing to check.
    virtual void AssertValid() const;
    // Writes the class's name, and what a derived class adds.
    virtual void Dump(CDumpContext& dc) const;

    BOOL IsSerializable() const;
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    static CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject() = default;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())
#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))

// Calls the function for every class whose objects an archive can hold.
ZOPAFX_API void AFXAPI AfxDoForAllClasses(void(CALLBACK* pfn)(const CRuntimeClass* pClass, void* pContext),
                                          void* pContext);

// The object where it is of the class, else null.
ZOPAFX_API CObject* AFX_CDECL AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);

#define DECLARE_DYNAMIC(class_name)                                                                                    \
protected:                                                                                                             \
    static CRuntimeClass* PASCAL _GetBaseClass();                                                                      \
                                                                                                                       \
public:                                                                                                                \
    static CRuntimeClass class##class_name;                                                                            \
    static CRuntimeClass* PASCAL GetThisClass();                                                                       \
    virtual CRuntimeClass* GetRuntimeClass() const;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* PASCAL CreateObject();

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, create)                                        \
    CRuntimeClass* PASCAL class_name::_GetBaseClass() {                                                                \
        return RUNTIME_CLASS(base_class_name);                                                                         \
    }                                                                                                                  \
    CRuntimeClass class_name::class##class_name = {#class_name, sizeof(class class_name),   schema,                    \
                                                   create,      &class_name::_GetBaseClass, nullptr};                  \
    CRuntimeClass* PASCAL class_name::GetThisClass() {                                                                 \
        return &class_name::class##class_name;                                                                         \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                               \
        return &class_name::class##class_name;                                                                         \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define AFX_IMPLEMENT_CREATION(class_name, base_class_name, schema)                                                    \
    CObject* PASCAL class_name::CreateObject() {                                                                       \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, class_name::CreateObject)                          \
    static const AFX_CLASSINIT _init_##class_name(RUNTIME_CLASS(class_name));

#define IMPLEMENT_DYNCREATE(class_name, base_class_name) AFX_IMPLEMENT_CREATION(class_name, base_class_name, 0xFFFF)

// An object of a serialisable class is read by its pointer. With VERSIONABLE_SCHEMA or'ed to the schema number, other
// versions are read, too: Serialize asks CArchive::GetObjectSchema.
// An extension library defines AFX_API as its export around a class to let its hosts do so, too.
#define VERSIONABLE_SCHEMA 0x80000000
#ifndef AFX_API
#define AFX_API
#endif
#define DECLARE_SERIAL(class_name)                                                                                     \
    DECLARE_DYNCREATE(class_name)                                                                                      \
    friend AFX_API CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb);
#define IMPLEMENT_SERIAL(class_name, base_class_name, schema)                                                          \
    AFX_IMPLEMENT_CREATION(class_name, base_class_name, static_cast<UINT>(schema))                                     \
    CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb) {                                                      \
        pOb = static_cast<class_name*>(afx_read_object(ar, RUNTIME_CLASS(class_name)));                                \
        return ar;                                                                                                     \
    }
ZOPAFX_API CObject* AFX_CDECL afx_read_object(CArchive& ar, CRuntimeClass* pClass);
