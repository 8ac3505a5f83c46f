// The list of recently used files; files in memory of the system; where bars stand.
#pragma once

#include "afxwin.h"
#include "afx_dock_state.h"

#include <vector>

// A file in memory of the system, as the clipboard takes and gives it.
class ZOPAFX_API CSharedFile : public CMemFile {
    DECLARE_DYNAMIC(CSharedFile)

public:
    explicit CSharedFile(UINT nAllocFlags = GMEM_MOVEABLE, UINT nGrowBytes = 4096);
    ~CSharedFile() override;

    // The memory, which is the caller's now: null where nothing was written.
    HGLOBAL Detach();
    // Over the memory, which stays its owner's as long as it need not grow.
    void SetHandle(HGLOBAL hGlobalMemory, BOOL bAllowGrow = TRUE);

protected:
    BYTE* Alloc(SIZE_T nBytes) override;
    BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes) override;
    void Free(BYTE* lpMem) override;

private:
    UINT m_flags;
    HGLOBAL m_global = nullptr;
};

// The latest first, kept in the program's settings; entry names hold a %d for the number.
class ZOPAFX_API CRecentFileList {
public:
    // Names in the menu are shortened to about nMaxDispLen characters; they are numbered from nStart + 1.
    CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                    int nMaxDispLen = AFX_ABBREV_FILENAME_LEN);
    virtual ~CRecentFileList();

    CRecentFileList(const CRecentFileList&) = delete;
    CRecentFileList& operator=(const CRecentFileList&) = delete;

    int m_nSize;
    CString* m_arrNames;

    int GetSize() const { return m_nSize; }
    CString& operator[](int nIndex) { return m_names.at(static_cast<std::size_t>(nIndex)); }

    virtual void Remove(int nIndex);
    virtual void Add(LPCTSTR lpszPathName);
    // The name without the folder where that is the given one. FALSE where there is no such file.
    virtual BOOL GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                BOOL bAtLeastName = TRUE) const;
    // In the place of the item come the files.
    virtual void UpdateMenu(CCmdUI* pCmdUI);
    virtual void ReadList();
    virtual void WriteList();

    enum { AFX_ABBREV_FILENAME_LEN = 30 };

private:
    CString EntryName(int index) const;

    std::vector<CString> m_names;
    UINT m_start;
    CString m_section, m_format, m_original;
    int m_display_length;
};
