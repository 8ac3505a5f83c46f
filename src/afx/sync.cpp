#include "afxmt.h"

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

CSyncObject::CSyncObject(LPCTSTR pstrName) : m_strName(pstrName) {}

CSyncObject::~CSyncObject() {
    if (m_hObject != nullptr)
        ::CloseHandle(m_hObject);
}

void CSyncObject::Take(HANDLE handle) {
    if (handle == nullptr)
        AfxThrowResourceException();
    m_hObject = handle;
}

BOOL CSyncObject::Lock(DWORD dwTimeout) {
    const DWORD answer = ::WaitForSingleObject(m_hObject, dwTimeout);
    return answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG, LPLONG) {
    return TRUE;
}

CSemaphore::CSemaphore(LONG lInitialCount, LONG lMaxCount, LPCTSTR pstrName, LPSECURITY_ATTRIBUTES lpsaAttributes)
    : CSyncObject(pstrName) {
    Take(::CreateSemaphore(lpsaAttributes, lInitialCount, lMaxCount, pstrName));
}

CSemaphore::~CSemaphore() = default;

BOOL CSemaphore::Unlock(LONG lCount, LPLONG lprevCount) {
    return ::ReleaseSemaphore(m_hObject, lCount, lprevCount);
}

CMutex::CMutex(BOOL bInitiallyOwn, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute) : CSyncObject(lpszName) {
    Take(::CreateMutex(lpsaAttribute, bInitiallyOwn, lpszName));
}

CMutex::~CMutex() = default;

BOOL CMutex::Unlock() {
    return ::ReleaseMutex(m_hObject);
}

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName) {
    Take(::CreateEvent(lpsaAttribute, bManualReset, bInitiallyOwn, lpszName));
}

CEvent::~CEvent() = default;

BOOL CEvent::Unlock() {
    return TRUE;
}

CCriticalSection::CCriticalSection() : CSyncObject(nullptr) {
    ::InitializeCriticalSection(&m_sect);
}

CCriticalSection::~CCriticalSection() {
    ::DeleteCriticalSection(&m_sect);
}

BOOL CCriticalSection::Lock() {
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Lock(DWORD) {
    return Lock();
}

BOOL CCriticalSection::Unlock() {
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}

CSingleLock::CSingleLock(CSyncObject* pObject, BOOL bInitialLock) : m_pObject(pObject) {
    ENSURE_ARG(pObject != nullptr);
    if (bInitialLock)
        Lock();
}

BOOL CSingleLock::Lock(DWORD dwTimeOut) {
    m_bAcquired = m_pObject->Lock(dwTimeOut);
    return m_bAcquired;
}

BOOL CSingleLock::Unlock() {
    if (m_bAcquired)
        m_bAcquired = !m_pObject->Unlock();
    return !m_bAcquired;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount) {
    if (m_bAcquired)
        m_bAcquired = !m_pObject->Unlock(lCount, lPrevCount);
    return !m_bAcquired;
}

CMultiLock::CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock) : m_count(dwCount) {
    ENSURE_ARG(ppObjects != nullptr && dwCount > 0 && dwCount <= MAXIMUM_WAIT_OBJECTS);
    for (DWORD i = 0; i < dwCount; ++i) {
        ENSURE_ARG(ppObjects[i] != nullptr && ppObjects[i]->m_hObject != nullptr);
        m_objects[i] = ppObjects[i];
        m_handles[i] = ppObjects[i]->m_hObject;
    }
    if (bInitialLock)
        Lock();
}

CMultiLock::~CMultiLock() {
    Unlock();
}

DWORD CMultiLock::Lock(DWORD dwTimeOut, BOOL bWaitForAll, DWORD dwWakeMask) {
    const DWORD answer = dwWakeMask == 0
                             ? ::WaitForMultipleObjects(m_count, m_handles, bWaitForAll, dwTimeOut)
                             : ::MsgWaitForMultipleObjects(m_count, m_handles, bWaitForAll, dwTimeOut, dwWakeMask);
    const bool abandoned = answer >= WAIT_ABANDONED_0 && answer < WAIT_ABANDONED_0 + m_count;
    if (!abandoned && answer >= WAIT_OBJECT_0 + m_count)
        return answer; // the time ran out, or there is a message
    for (DWORD i = 0; bWaitForAll && i < m_count; ++i)
        m_locked[i] = true;
    m_locked[abandoned ? answer - WAIT_ABANDONED_0 : answer - WAIT_OBJECT_0] = true;
    return answer;
}

BOOL CMultiLock::Unlock() {
    BOOL all = TRUE;
    for (DWORD i = 0; i < m_count; ++i) {
        if (m_locked[i])
            m_locked[i] = !m_objects[i]->Unlock();
        all = all && !m_locked[i];
    }
    return all;
}

// Only semaphores have a count to give back.
BOOL CMultiLock::Unlock(LONG lCount, LPLONG lPrevCount) {
    BOOL any = FALSE;
    for (DWORD i = 0; i < m_count; ++i) {
        auto* semaphore = m_locked[i] ? DYNAMIC_DOWNCAST(CSemaphore, m_objects[i]) : nullptr;
        if (semaphore == nullptr)
            continue;
        any = TRUE;
        m_locked[i] = !semaphore->Unlock(lCount, lPrevCount);
    }
    return any;
}
