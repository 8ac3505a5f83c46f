// Collections of one type each.
#pragma once
#ifndef __AFXCOLL_H__
#define __AFXCOLL_H__

#include "afx_collections.h"

// As DECLARE_SERIAL, with the friend exported: programs call it.
#define AFX_DECLARE_SERIAL(class_name)                                                                                 \
    DECLARE_DYNCREATE(class_name)                                                                                      \
    friend ZOPAFX_API CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb);

// Indices out of range raise CInvalidArgException. InsertAt and SetAtGrow make room; Add answers the new element's
// index, Append the first new one's.
#define AFX_ARRAY_MEMBERS(class_name, TYPE, ARG)                                                                       \
public:                                                                                                                \
    class_name() = default;                                                                                            \
    INT_PTR GetSize() const {                                                                                          \
        return m_items.size();                                                                                         \
    }                                                                                                                  \
    INT_PTR GetCount() const {                                                                                         \
        return m_items.size();                                                                                         \
    }                                                                                                                  \
    BOOL IsEmpty() const {                                                                                             \
        return m_items.size() == 0;                                                                                    \
    }                                                                                                                  \
    INT_PTR GetUpperBound() const {                                                                                    \
        return m_items.size() - 1;                                                                                     \
    }                                                                                                                  \
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1) {                                                             \
        m_items.resize(nNewSize, nGrowBy);                                                                             \
    }                                                                                                                  \
    void FreeExtra() {                                                                                                 \
        m_items.shrink();                                                                                              \
    }                                                                                                                  \
    void RemoveAll() {                                                                                                 \
        m_items.clear();                                                                                               \
    }                                                                                                                  \
    TYPE& ElementAt(INT_PTR nIndex) {                                                                                  \
        return m_items.at(nIndex);                                                                                     \
    }                                                                                                                  \
    TYPE& operator[](INT_PTR nIndex) {                                                                                 \
        return m_items.at(nIndex);                                                                                     \
    }                                                                                                                  \
    TYPE const* GetData() const {                                                                                      \
        return m_items.data();                                                                                         \
    }                                                                                                                  \
    TYPE* GetData() {                                                                                                  \
        return m_items.data();                                                                                         \
    }                                                                                                                  \
    void SetAt(INT_PTR nIndex, ARG newElement) {                                                                       \
        m_items.at(nIndex) = newElement;                                                                               \
    }                                                                                                                  \
    void SetAtGrow(INT_PTR nIndex, ARG newElement) {                                                                   \
        m_items.set_grow(nIndex, newElement);                                                                          \
    }                                                                                                                  \
    INT_PTR Add(ARG newElement) {                                                                                      \
        m_items.set_grow(GetSize(), newElement);                                                                       \
        return GetUpperBound();                                                                                        \
    }                                                                                                                  \
    INT_PTR Append(const class_name& src) {                                                                            \
        const INT_PTR first = GetSize();                                                                               \
        m_items.insert(first, src.m_items);                                                                            \
        return first;                                                                                                  \
    }                                                                                                                  \
    void Copy(const class_name& src) {                                                                                 \
        m_items = src.m_items;                                                                                         \
    }                                                                                                                  \
    void InsertAt(INT_PTR nIndex, ARG newElement, INT_PTR nCount = 1) {                                                \
        m_items.insert(nIndex, newElement, nCount);                                                                    \
    }                                                                                                                  \
    void InsertAt(INT_PTR nStartIndex, const class_name* pNewArray) {                                                  \
        m_items.insert(nStartIndex, pNewArray->m_items);                                                               \
    }                                                                                                                  \
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1) {                                                                \
        m_items.remove(nIndex, nCount);                                                                                \
    }                                                                                                                  \
                                                                                                                       \
private:                                                                                                               \
    afx_items<TYPE> m_items;

#define AFX_NUMBER_ARRAY(class_name, TYPE, DECLARATION, SERIALIZE)                                                     \
    class ZOPAFX_API class_name : public CObject {                                                                     \
        DECLARATION(class_name)                                                                                        \
        AFX_ARRAY_MEMBERS(class_name, TYPE, TYPE)                                                                      \
                                                                                                                       \
    public:                                                                                                            \
        TYPE GetAt(INT_PTR nIndex) const { return m_items.at(nIndex); }                                                \
        TYPE operator[](INT_PTR nIndex) const { return m_items.at(nIndex); }                                           \
        SERIALIZE                                                                                                      \
    };
#define AFX_SERIALIZED void Serialize(CArchive& ar) override;

AFX_NUMBER_ARRAY(CByteArray, BYTE, AFX_DECLARE_SERIAL, AFX_SERIALIZED)
AFX_NUMBER_ARRAY(CWordArray, WORD, AFX_DECLARE_SERIAL, AFX_SERIALIZED)
AFX_NUMBER_ARRAY(CDWordArray, DWORD, AFX_DECLARE_SERIAL, AFX_SERIALIZED)
AFX_NUMBER_ARRAY(CUIntArray, UINT, DECLARE_DYNAMIC, )
AFX_NUMBER_ARRAY(CPtrArray, void*, DECLARE_DYNAMIC, )
AFX_NUMBER_ARRAY(CObArray, CObject*, AFX_DECLARE_SERIAL, AFX_SERIALIZED)

class ZOPAFX_API CStringArray : public CObject {
    AFX_DECLARE_SERIAL(CStringArray)
    AFX_ARRAY_MEMBERS(CStringArray, CString, LPCTSTR)

public:
    const CString& GetAt(INT_PTR nIndex) const { return m_items.at(nIndex); }
    const CString& operator[](INT_PTR nIndex) const { return m_items.at(nIndex); }
    void SetAt(INT_PTR nIndex, const CString& newElement) { m_items.at(nIndex) = newElement; }
    void SetAtGrow(INT_PTR nIndex, const CString& newElement) { m_items.set_grow(nIndex, newElement); }
    INT_PTR Add(const CString& newElement) {
        m_items.set_grow(GetSize(), newElement);
        return GetUpperBound();
    }
    void InsertAt(INT_PTR nIndex, const CString& newElement, INT_PTR nCount = 1) {
        m_items.insert(nIndex, newElement, nCount);
    }
    void Serialize(CArchive& ar) override;
};

// The position of an element stays valid until the element goes.
#define AFX_LIST_MEMBERS(class_name, TYPE, ARG)                                                                        \
public:                                                                                                                \
    explicit class_name(INT_PTR nBlockSize = 10) {}                                                                    \
    INT_PTR GetCount() const {                                                                                         \
        return m_items.size();                                                                                         \
    }                                                                                                                  \
    INT_PTR GetSize() const {                                                                                          \
        return m_items.size();                                                                                         \
    }                                                                                                                  \
    BOOL IsEmpty() const {                                                                                             \
        return m_items.size() == 0;                                                                                    \
    }                                                                                                                  \
    TYPE& GetHead() {                                                                                                  \
        return m_items.at(m_items.head());                                                                             \
    }                                                                                                                  \
    TYPE const& GetHead() const {                                                                                      \
        return m_items.at(m_items.head());                                                                             \
    }                                                                                                                  \
    TYPE& GetTail() {                                                                                                  \
        return m_items.at(m_items.tail());                                                                             \
    }                                                                                                                  \
    TYPE const& GetTail() const {                                                                                      \
        return m_items.at(m_items.tail());                                                                             \
    }                                                                                                                  \
    TYPE RemoveHead() {                                                                                                \
        return m_items.remove(m_items.head());                                                                         \
    }                                                                                                                  \
    TYPE RemoveTail() {                                                                                                \
        return m_items.remove(m_items.tail());                                                                         \
    }                                                                                                                  \
    POSITION AddHead(ARG newElement) {                                                                                 \
        return m_items.insert(m_items.head(), newElement);                                                             \
    }                                                                                                                  \
    POSITION AddTail(ARG newElement) {                                                                                 \
        return m_items.insert(nullptr, newElement);                                                                    \
    }                                                                                                                  \
    void AddHead(class_name* pNewList) {                                                                               \
        m_items.prepend(pNewList->m_items);                                                                            \
    }                                                                                                                  \
    void AddTail(class_name* pNewList) {                                                                               \
        m_items.append(pNewList->m_items);                                                                             \
    }                                                                                                                  \
    void RemoveAll() {                                                                                                 \
        m_items.clear();                                                                                               \
    }                                                                                                                  \
    POSITION GetHeadPosition() const {                                                                                 \
        return m_items.head();                                                                                         \
    }                                                                                                                  \
    POSITION GetTailPosition() const {                                                                                 \
        return m_items.tail();                                                                                         \
    }                                                                                                                  \
    TYPE& GetNext(POSITION& rPosition) {                                                                               \
        return m_items.next(rPosition);                                                                                \
    }                                                                                                                  \
    TYPE const& GetNext(POSITION& rPosition) const {                                                                   \
        return m_items.next(rPosition);                                                                                \
    }                                                                                                                  \
    TYPE& GetPrev(POSITION& rPosition) {                                                                               \
        return m_items.before(rPosition);                                                                              \
    }                                                                                                                  \
    TYPE const& GetPrev(POSITION& rPosition) const {                                                                   \
        return m_items.before(rPosition);                                                                              \
    }                                                                                                                  \
    TYPE& GetAt(POSITION position) {                                                                                   \
        return m_items.at(position);                                                                                   \
    }                                                                                                                  \
    TYPE const& GetAt(POSITION position) const {                                                                       \
        return m_items.at(position);                                                                                   \
    }                                                                                                                  \
    void SetAt(POSITION pos, ARG newElement) {                                                                         \
        m_items.at(pos) = newElement;                                                                                  \
    }                                                                                                                  \
    void RemoveAt(POSITION position) {                                                                                 \
        m_items.remove(position);                                                                                      \
    }                                                                                                                  \
    POSITION InsertBefore(POSITION position, ARG newElement) {                                                         \
        return m_items.insert(position != nullptr ? position : m_items.head(), newElement);                            \
    }                                                                                                                  \
    POSITION InsertAfter(POSITION position, ARG newElement) {                                                          \
        return position != nullptr ? m_items.insert_after(position, newElement) : AddTail(newElement);                 \
    }                                                                                                                  \
    POSITION FindIndex(INT_PTR nIndex) const {                                                                         \
        return m_items.find_index(nIndex);                                                                             \
    }                                                                                                                  \
    POSITION Find(ARG searchValue, POSITION startAfter = nullptr) const {                                              \
        return m_items.find(startAfter, [&](TYPE const& item) { return item == searchValue; });                        \
    }                                                                                                                  \
                                                                                                                       \
private:                                                                                                               \
    afx_chain<TYPE> m_items;

class ZOPAFX_API CPtrList : public CObject {
    DECLARE_DYNAMIC(CPtrList)
    AFX_LIST_MEMBERS(CPtrList, void*, void*)
};

class ZOPAFX_API CObList : public CObject {
    AFX_DECLARE_SERIAL(CObList)
    AFX_LIST_MEMBERS(CObList, CObject*, CObject*)

public:
    void Serialize(CArchive& ar) override;
};

class ZOPAFX_API CStringList : public CObject {
    AFX_DECLARE_SERIAL(CStringList)
    AFX_LIST_MEMBERS(CStringList, CString, LPCTSTR)

public:
    POSITION AddHead(const CString& newElement) { return m_items.insert(m_items.head(), newElement); }
    POSITION AddTail(const CString& newElement) { return m_items.insert(nullptr, newElement); }
    void SetAt(POSITION pos, const CString& newElement) { m_items.at(pos) = newElement; }
    POSITION InsertBefore(POSITION position, const CString& newElement) {
        return m_items.insert(position != nullptr ? position : m_items.head(), newElement);
    }
    POSITION InsertAfter(POSITION position, const CString& newElement) {
        return position != nullptr ? m_items.insert_after(position, newElement) : AddTail(newElement);
    }
    void Serialize(CArchive& ar) override;
};

#define AFX_MAP_MEMBERS(class_name, KEY, ARG_KEY, VALUE, ARG_VALUE)                                                    \
public:                                                                                                                \
    typedef KEY BASE_KEY;                                                                                              \
    typedef ARG_KEY BASE_ARG_KEY;                                                                                      \
    typedef VALUE BASE_VALUE;                                                                                          \
    typedef ARG_VALUE BASE_ARG_VALUE;                                                                                  \
    struct CPair {                                                                                                     \
        KEY const key;                                                                                                 \
        VALUE value{};                                                                                                 \
                                                                                                                       \
    protected:                                                                                                         \
        explicit CPair(ARG_KEY keyval) : key(keyval) {}                                                                \
    };                                                                                                                 \
    explicit class_name(INT_PTR nBlockSize = 10) {}                                                                    \
    INT_PTR GetCount() const {                                                                                         \
        return m_table.size();                                                                                         \
    }                                                                                                                  \
    INT_PTR GetSize() const {                                                                                          \
        return m_table.size();                                                                                         \
    }                                                                                                                  \
    BOOL IsEmpty() const {                                                                                             \
        return m_table.size() == 0;                                                                                    \
    }                                                                                                                  \
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const {                                                                    \
        const CPair* found = Found(key);                                                                               \
        if (found != nullptr)                                                                                          \
            rValue = found->value;                                                                                     \
        return found != nullptr;                                                                                       \
    }                                                                                                                  \
    VALUE& operator[](ARG_KEY key) {                                                                                   \
        CPair* found = Found(key);                                                                                     \
        return found != nullptr ? found->value : m_table.add(afx_hash(key), key).value;                                \
    }                                                                                                                  \
    void SetAt(ARG_KEY key, ARG_VALUE newValue) {                                                                      \
        (*this)[key] = newValue;                                                                                       \
    }                                                                                                                  \
    BOOL RemoveKey(ARG_KEY key) {                                                                                      \
        return m_table.remove(afx_hash(key), [&](const CPair& pair) { return pair.key == key; });                      \
    }                                                                                                                  \
    void RemoveAll() {                                                                                                 \
        m_table.clear();                                                                                               \
    }                                                                                                                  \
    POSITION GetStartPosition() const {                                                                                \
        return m_table.place(m_table.first());                                                                         \
    }                                                                                                                  \
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const {                                       \
        const CPair& pair = m_table.take(rNextPosition);                                                               \
        rKey = pair.key;                                                                                               \
        rValue = pair.value;                                                                                           \
    }                                                                                                                  \
    UINT GetHashTableSize() const {                                                                                    \
        return m_table.buckets();                                                                                      \
    }                                                                                                                  \
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE) {                                                         \
        m_table.set_buckets(hashSize);                                                                                 \
    }                                                                                                                  \
                                                                                                                       \
private:                                                                                                               \
    CPair* Found(ARG_KEY key) const {                                                                                  \
        return m_table.find(afx_hash(key), [&](const CPair& pair) { return pair.key == key; });                        \
    }                                                                                                                  \
    afx_table<CPair> m_table;

#define AFX_TYPED_MAP(class_name, DECLARATION, KEY, ARG_KEY, VALUE, FURTHER)                                           \
    class ZOPAFX_API class_name : public CObject {                                                                     \
        DECLARATION(class_name)                                                                                        \
        AFX_MAP_MEMBERS(class_name, KEY, ARG_KEY, VALUE, VALUE)                                                        \
                                                                                                                       \
    public:                                                                                                            \
        FURTHER                                                                                                        \
    };
// The map's own text for the key.
#define AFX_STRING_KEYS                                                                                                \
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const {                                                                 \
        const CPair* found = Found(key);                                                                               \
        if (found != nullptr)                                                                                          \
            rKey = found->key;                                                                                         \
        return found != nullptr;                                                                                       \
    }

AFX_TYPED_MAP(CMapWordToPtr, DECLARE_DYNAMIC, WORD, WORD, void*, )
AFX_TYPED_MAP(CMapPtrToWord, DECLARE_DYNAMIC, void*, void*, WORD, )
AFX_TYPED_MAP(
    CMapPtrToPtr, DECLARE_DYNAMIC, void*, void*, void*, void* GetValueAt(void* key) const {
        void* value = nullptr;
        Lookup(key, value);
        return value;
    })
AFX_TYPED_MAP(CMapWordToOb, AFX_DECLARE_SERIAL, WORD, WORD, CObject*, AFX_SERIALIZED)
AFX_TYPED_MAP(CMapStringToPtr, DECLARE_DYNAMIC, CString, LPCTSTR, void*, AFX_STRING_KEYS)
AFX_TYPED_MAP(CMapStringToOb, AFX_DECLARE_SERIAL, CString, LPCTSTR, CObject*, AFX_SERIALIZED AFX_STRING_KEYS)

class ZOPAFX_API CMapStringToString : public CObject {
    AFX_DECLARE_SERIAL(CMapStringToString)
    AFX_MAP_MEMBERS(CMapStringToString, CString, LPCTSTR, CString, LPCTSTR)

public:
    AFX_STRING_KEYS
    CPair* PLookup(LPCTSTR key) { return Found(key); }
    const CPair* PLookup(LPCTSTR key) const { return Found(key); }
    CPair* PGetFirstAssoc() { return m_table.first(); }
    const CPair* PGetFirstAssoc() const { return m_table.first(); }
    CPair* PGetNextAssoc(const CPair* pAssocRet) { return m_table.next(pAssocRet); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const { return m_table.next(pAssocRet); }
    void Serialize(CArchive& ar) override;
};

#endif
