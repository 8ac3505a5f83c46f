#include "afxadv.h"

#include <utility>

IMPLEMENT_DYNAMIC(CSharedFile, CMemFile)

CSharedFile::CSharedFile(UINT nAllocFlags, UINT nGrowBytes) : CMemFile(nGrowBytes), m_flags(nAllocFlags) {}

CSharedFile::~CSharedFile() {
    CMemFile::Close(); // while the memory is still known as the system's
    if (m_global != nullptr)
        ::GlobalUnlock(m_global); // somebody else's, by SetHandle
}

HGLOBAL CSharedFile::Detach() {
    CMemFile::Detach();
    if (m_global != nullptr)
        ::GlobalUnlock(m_global);
    return std::exchange(m_global, nullptr);
}

void CSharedFile::SetHandle(HGLOBAL hGlobalMemory, BOOL bAllowGrow) {
    const SIZE_T size = ::GlobalSize(hGlobalMemory);
    auto* bytes = m_global == nullptr && size <= UINT_MAX ? static_cast<BYTE*>(::GlobalLock(hGlobalMemory)) : nullptr;
    if (bytes == nullptr)
        AfxThrowInvalidArgException();
    const UINT grow = m_grow;
    Attach(bytes, static_cast<UINT>(size));
    m_grow = bAllowGrow ? grow : 0;
    m_global = hGlobalMemory;
}

BYTE* CSharedFile::Alloc(SIZE_T nBytes) {
    m_global = ::GlobalAlloc(m_flags, nBytes);
    return m_global != nullptr ? static_cast<BYTE*>(::GlobalLock(m_global)) : nullptr;
}

BYTE* CSharedFile::Realloc(BYTE*, SIZE_T nBytes) {
    ::GlobalUnlock(m_global);
    const HGLOBAL moved = ::GlobalReAlloc(m_global, nBytes, m_flags);
    if (moved != nullptr)
        m_global = moved;
    auto* bytes = static_cast<BYTE*>(::GlobalLock(m_global));
    return moved != nullptr ? bytes : nullptr;
}

void CSharedFile::Free(BYTE*) {
    ::GlobalUnlock(m_global);
    ::GlobalFree(std::exchange(m_global, nullptr));
}
