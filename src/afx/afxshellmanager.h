// The shell's names of files and folders, and its choice of a folder.
#pragma once

#include "afxwin.h"

#include <shlobj.h>

// Items that it makes are the caller's, to be given to FreeItem. A null item is the desktop's, of no parts.
class ZOPAFX_API CShellManager : public CObject {
    DECLARE_DYNAMIC(CShellManager)

public:
    CShellManager() = default;

    // Has the user choose a folder; FALSE, and nothing changed, where none is chosen. The choice begins at
    // lplszInitialFolder; piFolderImage takes the index of the folder's picture in the system's list.
    BOOL BrowseForFolder(CString& strOutFolder, CWnd* pWndParent = nullptr, LPCTSTR lplszInitialFolder = nullptr,
                         LPCTSTR lpszTitle = nullptr, UINT ulFlags = BIF_RETURNONLYFSDIRS,
                         LPINT piFolderImage = nullptr);

    HRESULT ItemFromPath(LPCTSTR lpszPath, LPITEMIDLIST& pidl);
    LPITEMIDLIST CreateItem(UINT cbItem); // zeros; null where there is no memory
    LPITEMIDLIST CopyItem(LPCITEMIDLIST pidlSource);
    LPITEMIDLIST ConcatenateItem(LPCITEMIDLIST pidl1, LPCITEMIDLIST pidl2);
    void FreeItem(LPITEMIDLIST pidl);
    LPITEMIDLIST GetNextItem(LPCITEMIDLIST pidl); // null behind the last part
    UINT GetItemCount(LPCITEMIDLIST pidl);
    UINT GetItemSize(LPCITEMIDLIST pidl); // in bytes, the end's included
    // The number of the parent's parts, 0 of the desktop; -1, and a null parent, for the desktop itself, which has
    // none.
    int GetParentItem(LPCITEMIDLIST lpidl, LPITEMIDLIST& lpidlParent);
};
