#include "afxcontrolbars.h"
#include "atlconv.h"
#include "modal_parent.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CShellManager, CObject)
IMPLEMENT_DYNCREATE(CMFCVisualManager, CObject)
IMPLEMENT_DYNCREATE(CMFCVisualManagerWindows, CMFCVisualManager)

namespace {

int CALLBACK begin_at(HWND dialog, UINT message, LPARAM, LPARAM folder) {
    if (message == BFFM_INITIALIZED && folder != 0)
        ::SendMessage(dialog, BFFM_SETSELECTIONA, TRUE, folder);
    return 0;
}

} // namespace

BOOL CShellManager::BrowseForFolder(CString& strOutFolder, CWnd* pWndParent, LPCTSTR lplszInitialFolder,
                                    LPCTSTR lpszTitle, UINT ulFlags, LPINT piFolderImage) {
    const modal_parent parent(pWndParent);
    char name[MAX_PATH] = "";
    BROWSEINFOA asked{};
    asked.hwndOwner = parent.handle();
    asked.pszDisplayName = name;
    asked.lpszTitle = lpszTitle;
    asked.ulFlags = ulFlags;
    asked.lpfn = &begin_at;
    asked.lParam = reinterpret_cast<LPARAM>(lplszInitialFolder);
    const LPITEMIDLIST chosen = ::SHBrowseForFolderA(&asked);
    const BOOL is_file_system = chosen != nullptr && ::SHGetPathFromIDListA(chosen, name);
    FreeItem(chosen);
    if (!is_file_system)
        return FALSE;
    strOutFolder = name;
    if (piFolderImage != nullptr)
        *piFolderImage = asked.iImage;
    return TRUE;
}

HRESULT CShellManager::ItemFromPath(LPCTSTR lpszPath, LPITEMIDLIST& pidl) {
    pidl = nullptr;
    if (lpszPath == nullptr)
        return E_INVALIDARG;
    return ::SHParseDisplayName(CA2W(lpszPath), nullptr, &pidl, 0, nullptr);
}

LPITEMIDLIST CShellManager::CreateItem(UINT cbItem) {
    const std::size_t size = std::max<std::size_t>(cbItem, sizeof(USHORT)); // the end takes that much
    auto* item = static_cast<LPITEMIDLIST>(::CoTaskMemAlloc(size));
    if (item != nullptr)
        std::memset(item, 0, size);
    return item;
}

LPITEMIDLIST CShellManager::CopyItem(LPCITEMIDLIST pidlSource) {
    return pidlSource != nullptr ? ::ILClone(pidlSource) : nullptr;
}

LPITEMIDLIST CShellManager::ConcatenateItem(LPCITEMIDLIST pidl1, LPCITEMIDLIST pidl2) {
    return ::ILCombine(pidl1, pidl2);
}

void CShellManager::FreeItem(LPITEMIDLIST pidl) {
    ::CoTaskMemFree(pidl);
}

LPITEMIDLIST CShellManager::GetNextItem(LPCITEMIDLIST pidl) {
    if (pidl == nullptr || pidl->mkid.cb == 0)
        return nullptr;
    const LPITEMIDLIST next = ::ILGetNext(pidl);
    return next != nullptr && next->mkid.cb != 0 ? next : nullptr;
}

UINT CShellManager::GetItemCount(LPCITEMIDLIST pidl) {
    UINT count = 0;
    for (LPCITEMIDLIST at = pidl; at != nullptr && at->mkid.cb != 0; at = GetNextItem(at))
        ++count;
    return count;
}

UINT CShellManager::GetItemSize(LPCITEMIDLIST pidl) {
    return ::ILGetSize(pidl);
}

int CShellManager::GetParentItem(LPCITEMIDLIST lpidl, LPITEMIDLIST& lpidlParent) {
    lpidlParent = GetItemCount(lpidl) > 0 ? ::ILClone(lpidl) : nullptr;
    if (lpidlParent == nullptr)
        return -1;
    ::ILRemoveLastID(lpidlParent);
    return static_cast<int>(GetItemCount(lpidlParent));
}

namespace {

CRuntimeClass* default_manager = nullptr;
CMFCVisualManager* manager = nullptr;

} // namespace

void CMFCVisualManager::SetDefaultManager(CRuntimeClass* pRTI) {
    ENSURE_ARG(pRTI == nullptr || pRTI->IsDerivedFrom(RUNTIME_CLASS(CMFCVisualManager)));
    default_manager = pRTI;
    DestroyInstance();
}

CMFCVisualManager* CMFCVisualManager::GetInstance() {
    if (manager == nullptr) {
        CRuntimeClass* const made = default_manager != nullptr ? default_manager : RUNTIME_CLASS(CMFCVisualManager);
        manager = static_cast<CMFCVisualManager*>(made->CreateObject());
    }
    return manager;
}

void CMFCVisualManager::DestroyInstance(BOOL) {
    delete std::exchange(manager, nullptr);
}
