// CArray: a growing array.
#pragma once

#include "afx.h"

#include <vector>

// Indices out of range raise CInvalidArgException; SetAtGrow makes room for its own.
template <class TYPE, class ARG_TYPE = const TYPE&> class CArray : public CObject {
public:
    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_items.size()); }
    INT_PTR GetCount() const { return GetSize(); }
    BOOL IsEmpty() const { return m_items.empty(); }
    INT_PTR GetUpperBound() const { return GetSize() - 1; }
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1) { m_items.resize(static_cast<std::size_t>(nNewSize)); }
    void RemoveAll() { m_items.clear(); }

    const TYPE& GetAt(INT_PTR nIndex) const { return m_items[checked(nIndex)]; }
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement) { m_items[checked(nIndex)] = newElement; }
    TYPE& ElementAt(INT_PTR nIndex) { return m_items[checked(nIndex)]; }
    const TYPE& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
    const TYPE* GetData() const { return m_items.data(); }
    TYPE* GetData() { return m_items.data(); }

    INT_PTR Add(ARG_TYPE newElement) {
        m_items.push_back(newElement);
        return GetUpperBound();
    }
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement) {
        if (nIndex >= GetSize())
            SetSize(nIndex + 1);
        SetAt(nIndex, newElement);
    }
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1) {
        if (nIndex > GetSize())
            SetSize(nIndex);
        if (nIndex < 0 || nCount < 0)
            AfxThrowInvalidArgException();
        m_items.insert(m_items.begin() + nIndex, static_cast<std::size_t>(nCount), newElement);
    }
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1) {
        if (nIndex < 0 || nCount < 0 || nCount > GetSize() - nIndex)
            AfxThrowInvalidArgException();
        m_items.erase(m_items.begin() + nIndex, m_items.begin() + nIndex + nCount);
    }

private:
    std::size_t checked(INT_PTR index) const {
        if (index < 0 || index >= GetSize())
            AfxThrowInvalidArgException();
        return static_cast<std::size_t>(index);
    }

    std::vector<TYPE> m_items;
};
