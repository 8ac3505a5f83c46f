// Collections of any type: CArray, CList, CMap, and pointers of one type in the collections of afxcoll.h.
#pragma once
#ifndef __AFXTEMPL_H__
#define __AFXTEMPL_H__

#include "afx.h"
#include "afxcoll.h"

#include <type_traits>

// Programs specialise these helpers for their types.
template <class TYPE> inline void AFXAPI CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount) {
    std::copy(pSrc, pSrc + nCount, pDest);
}
template <class TYPE, class ARG_TYPE>
inline BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2) {
    return *pElement1 == *pElement2;
}
// Texts by their characters, numbers and pointers by their value; other types need a form of their own.
template <class ARG_KEY> inline UINT AFXAPI HashKey(ARG_KEY key) {
    if constexpr (std::is_convertible_v<ARG_KEY, LPCSTR>)
        return afx_hash(static_cast<LPCSTR>(key));
    else if constexpr (std::is_pointer_v<std::remove_reference_t<ARG_KEY>>)
        return afx_hash(static_cast<const void*>(key));
    else
        return afx_hash(static_cast<ULONGLONG>(key));
}
// Byte by byte where the type allows it; other types that are serialised need a form of their own.
template <class TYPE> inline void AFXAPI SerializeElements(CArchive& ar, TYPE* pElements, INT_PTR nCount) {
    if constexpr (!std::is_trivially_copyable_v<TYPE>)
        AfxThrowNotSupportedException();
    else
        for (; nCount > 0; ++pElements, --nCount) {
            if (ar.IsStoring())
                ar.Write(pElements, sizeof(TYPE));
            else if (ar.Read(pElements, sizeof(TYPE)) != sizeof(TYPE))
                AfxThrowArchiveException(CArchiveException::endOfFile);
        }
}
// Programs from 32 bits specialise or overload this one: the collections call it, and it leads to the other.
template <class TYPE> inline void AFXAPI SerializeElements(CArchive& ar, TYPE* pElements, int nCount) {
    SerializeElements(ar, pElements, static_cast<INT_PTR>(nCount));
}
template <class TYPE, class Count>
requires(std::is_integral_v<Count> && !std::is_same_v<Count, int> && !std::is_same_v<Count, INT_PTR>) inline void AFXAPI
    SerializeElements(CArchive& ar, TYPE* pElements, Count nCount) {
    SerializeElements(ar, pElements, static_cast<INT_PTR>(nCount));
}
template <> inline void AFXAPI SerializeElements<CString>(CArchive& ar, CString* pElements, INT_PTR nCount) {
    for (; nCount > 0; ++pElements, --nCount)
        ar.IsStoring() ? ar << *pElements : ar >> *pElements;
}
template <class TYPE> inline void AFXAPI DumpElements(CDumpContext&, const TYPE*, INT_PTR) {}

// Indices out of range raise CInvalidArgException.
template <class TYPE, class ARG_TYPE = const TYPE&> class CArray : public CObject {
public:
    INT_PTR GetSize() const { return m_items.size(); }
    INT_PTR GetCount() const { return m_items.size(); }
    BOOL IsEmpty() const { return m_items.size() == 0; }
    INT_PTR GetUpperBound() const { return m_items.size() - 1; }
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1) { m_items.resize(nNewSize, nGrowBy); }
    void FreeExtra() { m_items.shrink(); }
    void RemoveAll() { m_items.clear(); }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_items.at(nIndex); }
    TYPE& GetAt(INT_PTR nIndex) { return m_items.at(nIndex); }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_items.at(nIndex) = newElement; }
    const TYPE& ElementAt(INT_PTR nIndex) const { return m_items.at(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return m_items.at(nIndex); }
    const TYPE& operator[](INT_PTR nIndex) const { return m_items.at(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return m_items.at(nIndex); }
    const TYPE* GetData() const { return m_items.data(); }
    TYPE* GetData() { return m_items.data(); }

    // SetAtGrow and Add make room; Add answers the new element's index, Append the first new one's.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) { m_items.set_grow(nIndex, newElement); }
    INT_PTR Add(ARG_TYPE newElement) {
        m_items.set_grow(GetSize(), newElement);
        return GetUpperBound();
    }
    INT_PTR Append(const CArray& src) {
        const INT_PTR first = GetSize();
        m_items.insert(first, src.m_items);
        return first;
    }
    void Copy(const CArray& src) { m_items = src.m_items; }
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1) {
        m_items.insert(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, CArray* pNewArray) { m_items.insert(nStartIndex, pNewArray->m_items); }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1) { m_items.remove(nIndex, nCount); }

    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(GetSize()));
            m_items.each_run([&ar](TYPE* first, int count) { SerializeElements(ar, first, count); });
            return;
        }
        RemoveAll();
        // One by one: a count that the file does not hold fails before its memory is asked for.
        for (DWORD_PTR left = ar.ReadCount(); left > 0; --left) {
            m_items.resize(GetSize() + 1, -1);
            SerializeElements(ar, &ElementAt(GetUpperBound()), 1);
        }
    }

private:
    afx_items<TYPE> m_items;
};

// The position of an element stays valid until the element goes.
template <class TYPE, class ARG_TYPE = const TYPE&> class CList : public CObject {
public:
    explicit CList(INT_PTR nBlockSize = 10) {}

    INT_PTR GetCount() const { return m_items.size(); }
    INT_PTR GetSize() const { return m_items.size(); }
    BOOL IsEmpty() const { return m_items.size() == 0; }
    const TYPE& GetHead() const { return m_items.at(m_items.head()); }
    TYPE& GetHead() { return m_items.at(m_items.head()); }
    const TYPE& GetTail() const { return m_items.at(m_items.tail()); }
    TYPE& GetTail() { return m_items.at(m_items.tail()); }
    TYPE RemoveHead() { return m_items.remove(m_items.head()); }
    TYPE RemoveTail() { return m_items.remove(m_items.tail()); }
    POSITION AddHead(ARG_TYPE newElement) { return m_items.insert(m_items.head(), newElement); }
    POSITION AddTail(ARG_TYPE newElement) { return m_items.insert(nullptr, newElement); }
    void AddHead(CList* pNewList) { m_items.prepend(pNewList->m_items); }
    void AddTail(CList* pNewList) { m_items.append(pNewList->m_items); }
    void RemoveAll() { m_items.clear(); }

    POSITION GetHeadPosition() const { return m_items.head(); }
    POSITION GetTailPosition() const { return m_items.tail(); }
    TYPE& GetNext(POSITION& rPosition) { return m_items.next(rPosition); }
    const TYPE& GetNext(POSITION& rPosition) const { return m_items.next(rPosition); }
    TYPE& GetPrev(POSITION& rPosition) { return m_items.before(rPosition); }
    const TYPE& GetPrev(POSITION& rPosition) const { return m_items.before(rPosition); }
    TYPE& GetAt(POSITION position) { return m_items.at(position); }
    const TYPE& GetAt(POSITION position) const { return m_items.at(position); }
    void SetAt(POSITION pos, ARG_TYPE newElement) { m_items.at(pos) = newElement; }
    void RemoveAt(POSITION position) { m_items.erase(position); }
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement) {
        return position == nullptr ? AddHead(newElement) : m_items.insert(position, newElement);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement) {
        return position == nullptr ? AddTail(newElement) : m_items.insert_after(position, newElement);
    }
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const {
        return m_items.find(startAfter, [&](const TYPE& item) { return CompareElements<TYPE>(&item, &searchValue); });
    }
    POSITION FindIndex(INT_PTR nIndex) const { return m_items.find_index(nIndex); }

    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(GetCount()));
            for (POSITION at = GetHeadPosition(); at != nullptr;)
                SerializeElements(ar, &GetNext(at), 1);
            return;
        }
        for (DWORD_PTR left = ar.ReadCount(); left > 0; --left) {
            TYPE item{};
            SerializeElements(ar, &item, 1);
            AddTail(item);
        }
    }

private:
    afx_chain<TYPE> m_items;
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE> class CMap : public CObject {
public:
    struct CPair {
        const KEY key;
        VALUE value{};

    protected:
        explicit CPair(ARG_KEY keyval) : key(keyval) {}
    };

    explicit CMap(INT_PTR nBlockSize = 10) {}

    INT_PTR GetCount() const { return m_table.size(); }
    INT_PTR GetSize() const { return m_table.size(); }
    BOOL IsEmpty() const { return m_table.size() == 0; }
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {
        const CPair* found = PLookup(key);
        if (found == nullptr)
            return FALSE;
        rValue = found->value;
        return TRUE;
    }
    CPair* PLookup(ARG_KEY key) { return Found(key); }
    const CPair* PLookup(ARG_KEY key) const { return Found(key); }
    VALUE& operator[](ARG_KEY key) {
        CPair* found = PLookup(key);
        return found != nullptr ? found->value : m_table.add(HashKey<ARG_KEY>(key), key).value;
    }
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }
    BOOL RemoveKey(ARG_KEY key) { return m_table.remove(HashKey<ARG_KEY>(key), Same(key)); }
    void RemoveAll() { m_table.clear(); }

    // In no order that means anything. The pair that was told last may be removed meanwhile.
    POSITION GetStartPosition() const { return m_table.place(m_table.first()); }
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {
        const CPair& pair = m_table.take(rNextPosition);
        rKey = pair.key;
        rValue = pair.value;
    }
    CPair* PGetFirstAssoc() { return m_table.first(); }
    const CPair* PGetFirstAssoc() const { return m_table.first(); }
    CPair* PGetNextAssoc(const CPair* pAssocRet) { return m_table.next(pAssocRet); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const { return m_table.next(pAssocRet); }
    UINT GetHashTableSize() const { return m_table.buckets(); }
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE) { m_table.set_buckets(hashSize); }

    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar.WriteCount(static_cast<DWORD_PTR>(GetCount()));
            for (CPair* at = PGetFirstAssoc(); at != nullptr; at = PGetNextAssoc(at)) {
                SerializeElements(ar, const_cast<KEY*>(&at->key), 1);
                SerializeElements(ar, &at->value, 1);
            }
            return;
        }
        for (DWORD_PTR left = ar.ReadCount(); left > 0; --left) {
            KEY key{};
            VALUE value{};
            SerializeElements(ar, &key, 1);
            SerializeElements(ar, &value, 1);
            SetAt(key, value);
        }
    }

private:
    static auto Same(const std::remove_reference_t<ARG_KEY>& key) {
        return [&key](const CPair& pair) { return CompareElements(&pair.key, &key); };
    }
    CPair* Found(ARG_KEY key) const { return m_table.find(HashKey<ARG_KEY>(key), Same(key)); }

    afx_table<CPair> m_table;
};

// BASE_CLASS is CObArray or CPtrArray; TYPE the pointers that it holds.
template <class BASE_CLASS, class TYPE> class CTypedPtrArray : public BASE_CLASS {
public:
    TYPE GetAt(INT_PTR nIndex) const { return static_cast<TYPE>(BASE_CLASS::GetAt(nIndex)); }
    TYPE& ElementAt(INT_PTR nIndex) { return reinterpret_cast<TYPE&>(BASE_CLASS::ElementAt(nIndex)); }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1) {
        BASE_CLASS::InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, CTypedPtrArray* pNewArray) { BASE_CLASS::InsertAt(nStartIndex, pNewArray); }
    TYPE operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
};

// BASE_CLASS is CObList or CPtrList.
template <class BASE_CLASS, class TYPE> class CTypedPtrList : public BASE_CLASS {
public:
    explicit CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE& GetHead() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return static_cast<TYPE>(BASE_CLASS::GetHead()); }
    TYPE& GetTail() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return static_cast<TYPE>(BASE_CLASS::GetTail()); }
    TYPE RemoveHead() { return static_cast<TYPE>(BASE_CLASS::RemoveHead()); }
    TYPE RemoveTail() { return static_cast<TYPE>(BASE_CLASS::RemoveTail()); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList* pNewList) { BASE_CLASS::AddHead(pNewList); }
    void AddTail(CTypedPtrList* pNewList) { BASE_CLASS::AddTail(pNewList); }
    TYPE& GetNext(POSITION& rPosition) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetNext(rPosition)); }
    TYPE GetNext(POSITION& rPosition) const { return static_cast<TYPE>(BASE_CLASS::GetNext(rPosition)); }
    TYPE& GetPrev(POSITION& rPosition) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetPrev(rPosition)); }
    TYPE GetPrev(POSITION& rPosition) const { return static_cast<TYPE>(BASE_CLASS::GetPrev(rPosition)); }
    TYPE& GetAt(POSITION position) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const { return static_cast<TYPE>(BASE_CLASS::GetAt(position)); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }
};

// BASE_CLASS is one of the maps of afxcoll.h that hold pointers.
template <class BASE_CLASS, class KEY, class VALUE> class CTypedPtrMap : public BASE_CLASS {
public:
    explicit CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE& rValue) const {
        return BASE_CLASS::Lookup(key, reinterpret_cast<typename BASE_CLASS::BASE_VALUE&>(rValue));
    }
    VALUE& operator[](typename BASE_CLASS::BASE_ARG_KEY key) {
        return reinterpret_cast<VALUE&>(BASE_CLASS::operator[](key));
    }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const {
        BASE_CLASS::GetNextAssoc(rPosition, reinterpret_cast<typename BASE_CLASS::BASE_KEY&>(rKey),
                                 reinterpret_cast<typename BASE_CLASS::BASE_VALUE&>(rValue));
    }
};

#endif
