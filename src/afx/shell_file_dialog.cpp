#include "shell_file_dialog.h"
#include "file_names.h"
#include "wnd_state.h"

#include <utility>
#include <vector>

namespace {

CString path_of(IShellItem* item) {
    LPWSTR text = nullptr;
    if (item == nullptr || FAILED(item->GetDisplayName(SIGDN_FILESYSPATH, &text)))
        return {};
    const CString path(text);
    ::CoTaskMemFree(text);
    return path;
}

// What a call of the dialog that answers an item answers.
template <class Dialog> CString path_of(Dialog* dialog, HRESULT (STDMETHODCALLTYPE Dialog::*ask)(IShellItem**)) {
    IShellItem* item = nullptr;
    if (FAILED((dialog->*ask)(&item)))
        return {};
    const com_ptr<IShellItem> owned(item);
    return path_of(item);
}

// A folder that is not there leaves the dialog where it would be.
void begin_in(IFileDialog& dialog, const CString& folder) {
    if (folder.IsEmpty())
        return;
    if (const com_ptr<IShellItem> item = shell_item_of(CStringW(full_path_of(folder))))
        dialog.SetFolder(item.get());
}

// A list of texts and patterns in turn, ended twice.
void set_types(IFileDialog& dialog, LPCTSTR filter) {
    std::vector<CStringW> texts;
    for (LPCTSTR at = filter; at != nullptr && *at != '\0'; at += lstrlen(at) + 1)
        texts.emplace_back(at);
    std::vector<COMDLG_FILTERSPEC> types;
    for (std::size_t i = 0; i + 1 < texts.size(); i += 2)
        types.push_back({texts[i], texts[i + 1]});
    if (!types.empty())
        dialog.SetFileTypes(static_cast<UINT>(types.size()), types.data());
}

} // namespace

com_ptr<IShellItem> shell_item_of(LPCWSTR path) {
    IShellItem* item = nullptr;
    if (path == nullptr || FAILED(::SHCreateItemFromParsingName(path, nullptr, IID_PPV_ARGS(&item))))
        return nullptr;
    return com_ptr<IShellItem>(item);
}

shell_file_dialog::shell_file_dialog(CFileDialog& object) : m_object(object) {
    const CLSID& kind = object.m_bOpenFileDialog ? CLSID_FileOpenDialog : CLSID_FileSaveDialog;
    IFileDialog* dialog = nullptr;
    IFileDialogCustomize* controls = nullptr;
    if (FAILED(::CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&dialog))))
        return;
    m_dialog.reset(dialog);
    if (SUCCEEDED(dialog->QueryInterface(IID_PPV_ARGS(&controls))))
        m_controls.reset(controls);
}

void shell_file_dialog::apply(const OPENFILENAME& record, bool folders) {
    // The same bits for both dialogs.
    constexpr DWORD taken = OFN_OVERWRITEPROMPT | OFN_NOCHANGEDIR | OFN_NOVALIDATE | OFN_ALLOWMULTISELECT |
                            OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST | OFN_CREATEPROMPT | OFN_SHAREAWARE |
                            OFN_NOREADONLYRETURN | OFN_NOTESTFILECREATE | OFN_NODEREFERENCELINKS | OFN_DONTADDTORECENT |
                            OFN_FORCESHOWHIDDEN;
    m_dialog->SetOptions((record.Flags & taken) | FOS_FORCEFILESYSTEM | (folders ? DWORD{FOS_PICKFOLDERS} : 0));
    if (record.lpstrTitle != nullptr)
        m_dialog->SetTitle(CStringW(record.lpstrTitle));
    const CString named = record.lpstrFile, file = file_name_of(named);
    begin_in(*m_dialog, record.lpstrInitialDir != nullptr ? CString(record.lpstrInitialDir)
                                                          : named.Left(named.GetLength() - file.GetLength()));
    if (folders)
        return;
    if (!std::exchange(m_has_types, true)) // the system takes them once
        set_types(*m_dialog, record.lpstrFilter);
    if (record.nFilterIndex > 0)
        m_dialog->SetFileTypeIndex(record.nFilterIndex);
    if (record.lpstrDefExt != nullptr)
        m_dialog->SetDefaultExtension(CStringW(record.lpstrDefExt));
    m_dialog->SetFileName(CStringW(file));
}

bool shell_file_dialog::show(HWND owner) {
    DWORD cookie = 0;
    const bool told = SUCCEEDED(m_dialog->Advise(this, &cookie));
    m_shown = true;
    const HRESULT result = m_dialog->Show(owner);
    m_shown = false;
    if (told)
        m_dialog->Unadvise(cookie);
    return SUCCEEDED(result);
}

std::vector<CString> shell_file_dialog::chosen() const {
    IFileOpenDialog* opening = nullptr;
    IShellItemArray* items = nullptr;
    std::vector<CString> paths;
    if (FAILED(m_dialog->QueryInterface(IID_PPV_ARGS(&opening))))
        return {path_of(m_dialog.get(), &IFileDialog::GetResult)};
    const com_ptr<IFileOpenDialog> owned(opening);
    DWORD count = 0;
    if (FAILED(opening->GetResults(&items)))
        return paths;
    const com_ptr<IShellItemArray> owned_items(items);
    items->GetCount(&count);
    for (DWORD i = 0; i < count; ++i) {
        IShellItem* item = nullptr;
        if (SUCCEEDED(items->GetItemAt(i, &item)))
            paths.push_back(path_of(com_ptr<IShellItem>(item).get()));
    }
    return paths;
}

// One file with its path; of several the folder, then each name. Ended twice.
void shell_file_dialog::update(OPENFILENAME& record) const {
    const std::vector<CString> paths = chosen();
    const CString first = paths.empty() ? CString() : paths.front(), name = file_name_of(first);
    const int extension = paths.size() > 1 ? 0 : extension_of(name).GetLength();
    CString list = first;
    record.nFileOffset = static_cast<WORD>(first.GetLength() - name.GetLength());
    record.nFileExtension = static_cast<WORD>(extension > 0 ? first.GetLength() - extension + 1 : 0);
    if (paths.size() > 1) {
        list.Truncate(record.nFileOffset - 1);
        for (const CString& path : paths)
            list += CString('\0') + file_name_of(path);
    }
    list += CString('\0', 2);
    if (record.lpstrFile == nullptr || record.nMaxFile == 0)
        return;
    if (static_cast<DWORD>(list.GetLength()) <= record.nMaxFile)
        CString::CopyChars(record.lpstrFile, list, list.GetLength());
    else
        *record.lpstrFile = '\0';
    record.nFilterIndex = type_index();
    if (record.lpstrFileTitle != nullptr)
        lstrcpyn(record.lpstrFileTitle, name, static_cast<int>(record.nMaxFileTitle));
}

UINT shell_file_dialog::type_index() const {
    UINT index = 0;
    m_dialog->GetFileTypeIndex(&index);
    return index;
}

CString shell_file_dialog::path() const {
    const CString result = path_of(m_dialog.get(), &IFileDialog::GetResult);
    return !result.IsEmpty() ? result : path_of(m_dialog.get(), &IFileDialog::GetCurrentSelection);
}

CString shell_file_dialog::folder() const {
    return path_of(m_dialog.get(), &IFileDialog::GetFolder);
}

HRESULT shell_file_dialog::QueryInterface(REFIID id, void** object) {
    if (object == nullptr)
        return E_POINTER;
    if (id == __uuidof(IUnknown) || id == __uuidof(IFileDialogEvents))
        *object = static_cast<IFileDialogEvents*>(this);
    else if (id == __uuidof(IFileDialogControlEvents))
        *object = static_cast<IFileDialogControlEvents*>(this);
    else
        return *object = nullptr, E_NOINTERFACE;
    return S_OK;
}

// No exception may reach the system; it is told of a refusal.
template <class Work> HRESULT shell_file_dialog::tell(Work work) noexcept {
    try {
        work();
        return S_OK;
    } catch (...) {
        answer_exception({});
        return S_FALSE;
    }
}

HRESULT shell_file_dialog::OnFileOk(IFileDialog*) {
    BOOL keep = FALSE;
    const HRESULT told = tell([&] { keep = m_object.OnFileNameOK(); });
    return keep ? S_FALSE : told;
}

HRESULT shell_file_dialog::OnFolderChange(IFileDialog*) {
    return tell([&] { m_object.OnFolderChange(); });
}

HRESULT shell_file_dialog::OnSelectionChange(IFileDialog*) {
    return tell([&] { m_object.OnFileNameChange(); });
}

HRESULT shell_file_dialog::OnShareViolation(IFileDialog*, IShellItem* item, FDE_SHAREVIOLATION_RESPONSE* answer) {
    UINT wanted = OFN_SHAREWARN;
    const HRESULT told = tell([&] { wanted = m_object.OnShareViolation(path_of(item)); });
    *answer = wanted == OFN_SHAREFALLTHROUGH ? FDESVR_ACCEPT
              : wanted == OFN_SHARENOWARN    ? FDESVR_REFUSE
                                             : FDESVR_DEFAULT;
    return told;
}

HRESULT shell_file_dialog::OnTypeChange(IFileDialog*) {
    m_object.m_ofn.nFilterIndex = type_index();
    return tell([&] { m_object.OnTypeChange(); });
}

HRESULT shell_file_dialog::OnItemSelected(IFileDialogCustomize*, DWORD control, DWORD item) {
    return tell([&] { m_object.OnItemSelected(control, item); });
}

HRESULT shell_file_dialog::OnButtonClicked(IFileDialogCustomize*, DWORD control) {
    return tell([&] { m_object.OnButtonClicked(control); });
}

HRESULT shell_file_dialog::OnCheckButtonToggled(IFileDialogCustomize*, DWORD control, WINBOOL checked) {
    return tell([&] { m_object.OnCheckButtonToggled(control, checked); });
}

HRESULT shell_file_dialog::OnControlActivating(IFileDialogCustomize*, DWORD control) {
    return tell([&] { m_object.OnControlActivating(control); });
}
