// Synchronisation of threads.
#pragma once
#ifndef __AFXMT_H__
#define __AFXMT_H__

#include "afx.h"

// A handle that can be waited for. Times are in milliseconds; Lock answers FALSE where the time ran out first.
class ZOPAFX_API CSyncObject : public CObject {
    DECLARE_DYNAMIC(CSyncObject)

public:
    explicit CSyncObject(LPCTSTR pstrName);
    ~CSyncObject() override;

    HANDLE m_hObject = nullptr;

    operator HANDLE() const { return m_hObject; }
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    virtual BOOL Unlock() = 0;
    virtual BOOL Unlock(LONG lCount, LPLONG lpPrevCount = nullptr);

protected:
    // Raises CResourceException where the system gave none.
    void Take(HANDLE handle);
    CString m_strName;
};

class ZOPAFX_API CSemaphore : public CSyncObject {
    DECLARE_DYNAMIC(CSemaphore)

public:
    explicit CSemaphore(LONG lInitialCount = 1, LONG lMaxCount = 1, LPCTSTR pstrName = nullptr,
                        LPSECURITY_ATTRIBUTES lpsaAttributes = nullptr);
    ~CSemaphore() override;
    BOOL Unlock() override { return Unlock(1, nullptr); }
    BOOL Unlock(LONG lCount, LPLONG lprevCount = nullptr) override;
};

class ZOPAFX_API CMutex : public CSyncObject {
    DECLARE_DYNAMIC(CMutex)

public:
    explicit CMutex(BOOL bInitiallyOwn = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    ~CMutex() override;
    using CSyncObject::Unlock;
    BOOL Unlock() override;
};

class ZOPAFX_API CEvent : public CSyncObject {
    DECLARE_DYNAMIC(CEvent)

public:
    explicit CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE, LPCTSTR lpszName = nullptr,
                    LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);
    ~CEvent() override;
    BOOL SetEvent() { return ::SetEvent(m_hObject); }
    BOOL PulseEvent() { return ::PulseEvent(m_hObject); }
    BOOL ResetEvent() { return ::ResetEvent(m_hObject); }
    using CSyncObject::Unlock;
    BOOL Unlock() override; // the waiting thread saw to it already
};

// Only for the threads of the process; a thread may enter more than once. It cannot be waited for with a time.
class ZOPAFX_API CCriticalSection : public CSyncObject {
    DECLARE_DYNAMIC(CCriticalSection)

public:
    CCriticalSection();
    ~CCriticalSection() override;
    operator CRITICAL_SECTION*() { return &m_sect; }
    BOOL Lock();
    BOOL Lock(DWORD dwTimeout) override;
    using CSyncObject::Unlock;
    BOOL Unlock() override;

    CRITICAL_SECTION m_sect;
};

// Holds one object, or not; lets go of it in the end.
class ZOPAFX_API CSingleLock {
public:
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    ~CSingleLock() { Unlock(); }
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;

    BOOL Lock(DWORD dwTimeOut = INFINITE);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked() { return m_bAcquired; }

protected:
    CSyncObject* m_pObject;
    BOOL m_bAcquired = FALSE;
};

// Waits for some of several objects, or for all. Critical sections are not among them.
class ZOPAFX_API CMultiLock {
public:
    CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock = FALSE);
    ~CMultiLock();
    CMultiLock(const CMultiLock&) = delete;
    CMultiLock& operator=(const CMultiLock&) = delete;

    // As the platform's waiting function answers.
    DWORD Lock(DWORD dwTimeOut = INFINITE, BOOL bWaitForAll = TRUE, DWORD dwWakeMask = 0);
    BOOL Unlock();
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked(DWORD dwObject) { return dwObject < m_count && m_locked[dwObject]; }

private:
    CSyncObject* m_objects[MAXIMUM_WAIT_OBJECTS];
    HANDLE m_handles[MAXIMUM_WAIT_OBJECTS];
    bool m_locked[MAXIMUM_WAIT_OBJECTS] = {};
    DWORD m_count;
};

#endif
