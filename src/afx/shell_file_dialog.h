// The system's newer file dialog: it carries controls of the program's, and chooses folders.
#pragma once

#include "afx_file_dialog.h"
#include "com_ptr.h"

#include <vector>

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

// Of a path; null where there is none.
com_ptr<IShellItem> shell_item_of(LPCWSTR path);

// Tells the object what happens in it, and knows it as long as it lives itself.
class shell_file_dialog final : IFileDialogEvents, IFileDialogControlEvents {
public:
    explicit shell_file_dialog(CFileDialog& object);
    shell_file_dialog(const shell_file_dialog&) = delete;
    shell_file_dialog& operator=(const shell_file_dialog&) = delete;

    // Null where the system has none.
    IFileDialog* get() const { return m_dialog.get(); }
    IFileDialogCustomize* controls() const { return m_controls.get(); }
    bool is_shown() const { return m_shown; }
    void apply(const OPENFILENAME& record, bool folders);
    bool show(HWND owner);
    // Empties the record's path where none is chosen, or too long a one.
    void update(OPENFILENAME& record) const;
    // Of what is chosen at the moment.
    CString path() const;
    CString folder() const;

private:
    std::vector<CString> chosen() const;
    UINT type_index() const;
    template <class Work> HRESULT tell(Work work) noexcept;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; } // its owner ends the conversation before it goes
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE OnFileOk(IFileDialog*) override;
    HRESULT STDMETHODCALLTYPE OnFolderChanging(IFileDialog*, IShellItem*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnFolderChange(IFileDialog*) override;
    HRESULT STDMETHODCALLTYPE OnSelectionChange(IFileDialog*) override;
    HRESULT STDMETHODCALLTYPE OnShareViolation(IFileDialog*, IShellItem* item,
                                               FDE_SHAREVIOLATION_RESPONSE* answer) override;
    HRESULT STDMETHODCALLTYPE OnTypeChange(IFileDialog*) override;
    HRESULT STDMETHODCALLTYPE OnOverwrite(IFileDialog*, IShellItem*, FDE_OVERWRITE_RESPONSE*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnItemSelected(IFileDialogCustomize*, DWORD control, DWORD item) override;
    HRESULT STDMETHODCALLTYPE OnButtonClicked(IFileDialogCustomize*, DWORD control) override;
    HRESULT STDMETHODCALLTYPE OnCheckButtonToggled(IFileDialogCustomize*, DWORD control, WINBOOL checked) override;
    HRESULT STDMETHODCALLTYPE OnControlActivating(IFileDialogCustomize*, DWORD control) override;

    const com_use m_com;
    CFileDialog& m_object;
    com_ptr<IFileDialog> m_dialog;
    com_ptr<IFileDialogCustomize> m_controls;
    bool m_shown = false, m_has_types = false;
};
