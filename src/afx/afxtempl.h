// CArray: a growing array.
#pragma once
#define __AFXTEMPL_H__

#include "afx.h"

#include <vector>

// Indices out of range raise CInvalidArgException.
template <class TYPE, class ARG_TYPE = const TYPE&> class CArray : public CObject {
public:
    INT_PTR GetSize() const { return static_cast<INT_PTR>(m_items.size()); }
    void RemoveAll() { m_items.clear(); }
    const TYPE& operator[](INT_PTR nIndex) const { return m_items[checked(nIndex)]; }
    TYPE& operator[](INT_PTR nIndex) { return m_items[checked(nIndex)]; }
    // The new element's index.
    INT_PTR Add(ARG_TYPE newElement) {
        m_items.push_back(newElement);
        return GetSize() - 1;
    }

private:
    std::size_t checked(INT_PTR index) const {
        if (index < 0 || index >= GetSize())
            AfxThrowInvalidArgException();
        return static_cast<std::size_t>(index);
    }

    std::vector<TYPE> m_items;
};
