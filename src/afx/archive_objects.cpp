// Object graphs in archives. Objects and classes are numbered as they appear, from 1; 0 is the null pointer. A class
// number has its highest bit set, a new class is announced by a tag of its own, numbers from 0x7FFF on are long ones.
#include "afx_archive.h"

#include <algorithm>
#include <utility>

namespace {

constexpr WORD null_tag = 0, new_class_tag = 0xFFFF, class_bit = 0x8000, long_tag = 0x7FFF;
constexpr DWORD long_class_bit = 0x80000000, most_objects = 0x3FFFFFFE;
constexpr UINT no_schema = static_cast<UINT>(-1);
constexpr WORD longest_name = 63;

void write_number(CArchive& ar, DWORD number, bool is_class) {
    if (number < long_tag)
        ar << static_cast<WORD>(is_class ? class_bit | number : number);
    else
        ar << long_tag << (is_class ? long_class_bit | number : number);
}

} // namespace

void CRuntimeClass::Store(CArchive& ar) const {
    const auto length = static_cast<WORD>(std::strlen(m_lpszClassName));
    ar << static_cast<WORD>(m_wSchema) << length;
    ar.Write(m_lpszClassName, length);
}

CRuntimeClass* PASCAL CRuntimeClass::Load(CArchive& ar, UINT* pwSchemaNum) {
    WORD schema, length;
    char name[longest_name + 1];
    ar >> schema >> length;
    if (length > longest_name || ar.Read(name, length) != length)
        return nullptr;
    name[length] = '\0';
    *pwSchemaNum = schema;
    return FromName(name);
}

CObject* AFX_CDECL afx_read_object(CArchive& ar, CRuntimeClass* pClass) {
    return ar.ReadObject(pClass);
}

namespace {

// What is reserved ahead; the maps grow by themselves.
std::size_t expected(UINT count) {
    constexpr UINT most = 0x10000;
    return std::min(count, most);
}

} // namespace

void CArchive::SetLoadParams(UINT nGrowBy) {
    m_loaded.reserve(expected(nGrowBy));
}

void CArchive::SetStoreParams(UINT nHashSize, UINT) {
    m_stored.reserve(expected(nHashSize));
}

void CArchive::CheckCount() const {
    if (m_stored.size() >= most_objects || m_loaded.size() >= most_objects)
        Fail(CArchiveException::badIndex);
}

UINT CArchive::GetObjectSchema() {
    return std::exchange(m_schema, no_schema);
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef) {
    if (IsLoading())
        Fail(CArchiveException::readOnly);
    if (pClassRef->m_wSchema == 0xFFFF)
        AfxThrowNotSupportedException();
    const auto known = m_stored.find(pClassRef);
    if (known != m_stored.end()) {
        write_number(*this, known->second, true);
        return;
    }
    CheckCount();
    *this << new_class_tag;
    pClassRef->Store(*this);
    m_stored.emplace(pClassRef, static_cast<DWORD>(m_stored.size() + 1));
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema, DWORD* pObTag) {
    if (IsStoring())
        Fail(CArchiveException::writeOnly);
    if (pClassRefRequested != nullptr && pClassRefRequested->m_wSchema == 0xFFFF)
        AfxThrowNotSupportedException();
    WORD tag;
    *this >> tag;
    DWORD number = static_cast<DWORD>(tag & class_bit) << 16 | (tag & 0x7FFF);
    if (tag == long_tag)
        *this >> number;
    if ((number & long_class_bit) == 0) {
        if (pObTag == nullptr)
            Fail(CArchiveException::badIndex);
        *pObTag = number;
        return nullptr;
    }
    loaded found{};
    if (tag == new_class_tag) {
        found.type = CRuntimeClass::Load(*this, &found.schema);
        if (found.type == nullptr)
            Fail(CArchiveException::badClass);
        if ((found.type->m_wSchema & ~VERSIONABLE_SCHEMA) != found.schema &&
            (found.type->m_wSchema & VERSIONABLE_SCHEMA) == 0)
            Fail(CArchiveException::badSchema);
        CheckCount();
        m_loaded.push_back(found);
    } else {
        number &= ~long_class_bit;
        if (number == 0 || number > m_loaded.size() || m_loaded[number - 1].type == nullptr)
            Fail(CArchiveException::badIndex);
        found = m_loaded[number - 1];
    }
    if (pClassRefRequested != nullptr && !found.type->IsDerivedFrom(pClassRefRequested))
        Fail(CArchiveException::badClass);
    if (pSchema != nullptr)
        *pSchema = found.schema;
    else
        m_schema = found.schema;
    if (pObTag != nullptr)
        *pObTag = 0;
    return found.type;
}

void CArchive::SerializeClass(const CRuntimeClass* pClassRef) {
    if (IsStoring())
        WriteClass(pClassRef);
    else
        ReadClass(pClassRef);
}

void CArchive::MapObject(const CObject* pOb) {
    CheckCount();
    if (pOb == nullptr)
        return;
    if (IsLoading())
        m_loaded.push_back({const_cast<CObject*>(pOb), nullptr, 0});
    else
        m_stored.emplace(pOb, static_cast<DWORD>(m_stored.size() + 1));
}

void CArchive::WriteObject(const CObject* pOb) {
    if (IsLoading())
        Fail(CArchiveException::readOnly);
    if (pOb == nullptr) {
        *this << null_tag;
        return;
    }
    const auto known = m_stored.find(pOb);
    if (known != m_stored.end()) {
        write_number(*this, known->second, false);
        return;
    }
    WriteClass(pOb->GetRuntimeClass());
    MapObject(pOb);
    const_cast<CObject*>(pOb)->Serialize(*this);
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass) {
    UINT schema = no_schema;
    DWORD number = 0;
    CRuntimeClass* type = ReadClass(pClass, &schema, &number);
    if (type == nullptr) {
        if (number == 0)
            return nullptr;
        if (number > m_loaded.size() || m_loaded[number - 1].type != nullptr)
            Fail(CArchiveException::badIndex);
        CObject* known = m_loaded[number - 1].object;
        if (known != nullptr && pClass != nullptr && !known->IsKindOf(pClass))
            Fail(CArchiveException::badClass);
        return known;
    }
    CObject* made = type->CreateObject();
    if (made == nullptr)
        AfxThrowMemoryException();
    MapObject(made); // before its contents: they may point back to it
    const UINT outer = std::exchange(m_schema, schema);
    made->Serialize(*this);
    m_schema = outer;
    return made;
}
