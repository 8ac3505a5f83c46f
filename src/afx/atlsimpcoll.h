// CSimpleArray: an array of few elements.
#pragma once

#include "afx_base.h"
#include "afx_debug.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace ATL {

template <class T> class CSimpleArrayEqualHelper {
public:
    static bool IsEqual(const T& t1, const T& t2) { return t1 == t2; }
};

// An index outside the array raises CInvalidArgException, or answers FALSE.
template <class T, class TEqual = CSimpleArrayEqualHelper<T>> class CSimpleArray {
public:
    typedef T _ArrayElementType;

    int GetSize() const { return static_cast<int>(m_elements.size()); }
    BOOL Add(const T& t) { return m_elements.push_back(t), TRUE; }
    int Find(const T& t) const { // -1 where there is none
        const auto found = std::find_if(m_elements.begin(), m_elements.end(),
                                        [&](const T& element) { return TEqual::IsEqual(element, t); });
        return found != m_elements.end() ? static_cast<int>(found - m_elements.begin()) : -1;
    }
    BOOL Remove(const T& t) { return RemoveAt(Find(t)); }
    BOOL RemoveAt(int nIndex) {
        if (!Holds(nIndex))
            return FALSE;
        m_elements.erase(m_elements.begin() + nIndex);
        return TRUE;
    }
    void RemoveAll() { m_elements.clear(); }
    BOOL SetAtIndex(int nIndex, const T& t) {
        if (!Holds(nIndex))
            return FALSE;
        m_elements[static_cast<std::size_t>(nIndex)] = t;
        return TRUE;
    }
    T* GetData() const { return const_cast<T*>(m_elements.data()); }
    T& operator[](int nIndex) { return const_cast<T&>(std::as_const(*this)[nIndex]); }
    const T& operator[](int nIndex) const {
        if (!Holds(nIndex))
            AfxThrowInvalidArgException();
        return m_elements[static_cast<std::size_t>(nIndex)];
    }

private:
    bool Holds(int index) const { return index >= 0 && index < GetSize(); }

    std::vector<T> m_elements;
};

} // namespace ATL

using namespace ATL;
