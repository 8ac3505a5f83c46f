#include "afxdlgs.h"
#include "atlconv.h"
#include "com_ptr.h"
#include "modal_parent.h"

#include <memory>
#include <shobjidl.h>

IMPLEMENT_DYNAMIC(CFolderPickerDialog, CFileDialog)

namespace {

// COM in this thread, also where the program has none.
class com_use {
public:
    com_use() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~com_use() {
        if (SUCCEEDED(m_result))
            ::CoUninitialize();
    }
    com_use(const com_use&) = delete;
    com_use& operator=(const com_use&) = delete;

private:
    HRESULT m_result;
};

// A folder that is not there leaves the dialog where it would be.
void begin_in(IFileDialog& dialog, LPCTSTR folder) {
    IShellItem* item = nullptr;
    if (folder == nullptr || FAILED(::SHCreateItemFromParsingName(CA2W(folder), nullptr, IID_PPV_ARGS(&item))))
        return;
    const com_ptr<IShellItem> owned(item);
    dialog.SetFolder(item);
}

// Null where none was chosen.
std::unique_ptr<WCHAR, decltype(&::CoTaskMemFree)> chosen_path(IFileDialog& dialog, HWND owner) {
    IShellItem* item = nullptr;
    LPWSTR path = nullptr;
    if (SUCCEEDED(dialog.Show(owner)) && SUCCEEDED(dialog.GetResult(&item))) {
        const com_ptr<IShellItem> owned(item);
        if (FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &path)))
            path = nullptr;
    }
    return {path, &::CoTaskMemFree};
}

} // namespace

CFolderPickerDialog::CFolderPickerDialog(LPCTSTR lpszFolder, DWORD dwFlags, CWnd* pParentWnd, DWORD dwSize)
    : CFileDialog(TRUE, nullptr, nullptr, dwFlags, nullptr, pParentWnd, dwSize), m_strFolder(lpszFolder) {
    m_bPickFoldersMode = TRUE;
    if (!m_strFolder.IsEmpty())
        m_ofn.lpstrInitialDir = m_strFolder;
}

INT_PTR CFolderPickerDialog::DoModal() {
    constexpr DWORD taken = OFN_NOCHANGEDIR | OFN_PATHMUSTEXIST | OFN_NODEREFERENCELINKS | OFN_DONTADDTORECENT |
                            OFN_FORCESHOWHIDDEN; // the same bits for both dialogs
    const com_use com;
    IFileOpenDialog* dialog = nullptr;
    if (FAILED(::CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&dialog))))
        return IDCANCEL;
    const com_ptr<IFileOpenDialog> owned(dialog);
    dialog->SetOptions((m_ofn.Flags & taken) | FOS_PICKFOLDERS | FOS_FORCEFILESYSTEM);
    if (m_ofn.lpstrTitle != nullptr)
        dialog->SetTitle(CA2W(m_ofn.lpstrTitle));
    begin_in(*dialog, m_ofn.lpstrInitialDir);
    const modal_parent parent(m_pParentWnd);
    const auto path = chosen_path(*dialog, parent.handle());
    const CString folder(path.get());
    if (folder.IsEmpty() || m_ofn.lpstrFile == nullptr || static_cast<DWORD>(folder.GetLength()) >= m_ofn.nMaxFile)
        return IDCANCEL;
    lstrcpyn(m_ofn.lpstrFile, folder, static_cast<int>(m_ofn.nMaxFile));
    return IDOK;
}
