// The program's own controls in file dialogs.
#include "shell_file_dialog.h"

// Adding anything makes it the system's newer dialog, where the program did not ask for the older one.
shell_file_dialog* CFileDialog::Shell() {
    if (m_shell == nullptr && (m_bVistaStyle || m_bPickFoldersMode))
        m_shell.reset(new shell_file_dialog(*this));
    return m_shell != nullptr && m_shell->get() != nullptr ? m_shell.get() : nullptr;
}

template <class... Parameters, class... Arguments>
HRESULT CFileDialog::Control(HRESULT (STDMETHODCALLTYPE IFileDialogCustomize::*call)(Parameters...),
                             Arguments... arguments) {
    const shell_file_dialog* const shell = Shell();
    return shell != nullptr && shell->controls() != nullptr ? (shell->controls()->*call)(arguments...) : E_FAIL;
}

// Counted for the caller.
template <class Interface> Interface* CFileDialog::Ask() {
    const shell_file_dialog* const shell = Shell();
    Interface* found = nullptr;
    if (shell == nullptr || FAILED(shell->get()->QueryInterface(IID_PPV_ARGS(&found))))
        return nullptr;
    return found;
}

IFileOpenDialog* CFileDialog::GetIFileOpenDialog() {
    return Ask<IFileOpenDialog>();
}

IFileSaveDialog* CFileDialog::GetIFileSaveDialog() {
    return Ask<IFileSaveDialog>();
}

IFileDialogCustomize* CFileDialog::GetIFileDialogCustomize() {
    return Ask<IFileDialogCustomize>();
}

void CFileDialog::ApplyOFNToShellDialog() {
    if (shell_file_dialog* const shell = Shell())
        shell->apply(m_ofn, m_bPickFoldersMode != FALSE);
}

void CFileDialog::UpdateOFNFromShellDialog() {
    if (const shell_file_dialog* const shell = Shell())
        shell->update(m_ofn);
}

void CFileDialog::AddPlace(LPCWSTR lpszFolder, FDAP fdap) {
    AddPlace(shell_item_of(lpszFolder).get(), fdap);
}

void CFileDialog::AddPlace(IShellItem* psi, FDAP fdap) {
    const shell_file_dialog* const shell = psi != nullptr ? Shell() : nullptr;
    if (shell != nullptr)
        shell->get()->AddPlace(psi, fdap);
}

HRESULT CFileDialog::StartVisualGroup(DWORD dwIDCtl, const CString& strLabel) {
    return Control(&IFileDialogCustomize::StartVisualGroup, dwIDCtl, CStringW(strLabel));
}

HRESULT CFileDialog::EndVisualGroup() {
    return Control(&IFileDialogCustomize::EndVisualGroup);
}

HRESULT CFileDialog::AddMenu(DWORD dwIDCtl, const CString& strLabel) {
    return Control(&IFileDialogCustomize::AddMenu, dwIDCtl, CStringW(strLabel));
}

HRESULT CFileDialog::AddPushButton(DWORD dwIDCtl, const CString& strLabel) {
    return Control(&IFileDialogCustomize::AddPushButton, dwIDCtl, CStringW(strLabel));
}

HRESULT CFileDialog::AddComboBox(DWORD dwIDCtl) {
    return Control(&IFileDialogCustomize::AddComboBox, dwIDCtl);
}

HRESULT CFileDialog::AddRadioButtonList(DWORD dwIDCtl) {
    return Control(&IFileDialogCustomize::AddRadioButtonList, dwIDCtl);
}

HRESULT CFileDialog::AddCheckButton(DWORD dwIDCtl, const CString& strLabel, BOOL bChecked) {
    return Control(&IFileDialogCustomize::AddCheckButton, dwIDCtl, CStringW(strLabel), bChecked);
}

HRESULT CFileDialog::AddEditBox(DWORD dwIDCtl, const CString& strText) {
    return Control(&IFileDialogCustomize::AddEditBox, dwIDCtl, CStringW(strText));
}

HRESULT CFileDialog::AddSeparator(DWORD dwIDCtl) {
    return Control(&IFileDialogCustomize::AddSeparator, dwIDCtl);
}

HRESULT CFileDialog::AddText(DWORD dwIDCtl, const CString& strText) {
    return Control(&IFileDialogCustomize::AddText, dwIDCtl, CStringW(strText));
}

HRESULT CFileDialog::AddControlItem(DWORD dwIDCtl, DWORD dwIDItem, const CString& strLabel) {
    return Control(&IFileDialogCustomize::AddControlItem, dwIDCtl, dwIDItem, CStringW(strLabel));
}

HRESULT CFileDialog::RemoveControlItem(DWORD dwIDCtl, DWORD dwIDItem) {
    return Control(&IFileDialogCustomize::RemoveControlItem, dwIDCtl, dwIDItem);
}

HRESULT CFileDialog::EnableOpenDropDown(DWORD dwIDCtl) {
    return Control(&IFileDialogCustomize::EnableOpenDropDown, dwIDCtl);
}

HRESULT CFileDialog::MakeProminent(DWORD dwIDCtl) {
    return Control(&IFileDialogCustomize::MakeProminent, dwIDCtl);
}

HRESULT CFileDialog::SetControlLabel(DWORD dwIDCtl, const CString& strLabel) {
    return Control(&IFileDialogCustomize::SetControlLabel, dwIDCtl, CStringW(strLabel));
}

HRESULT CFileDialog::GetControlState(DWORD dwIDCtl, CDCONTROLSTATEF& dwState) {
    return Control(&IFileDialogCustomize::GetControlState, dwIDCtl, &dwState);
}

HRESULT CFileDialog::SetControlState(DWORD dwIDCtl, CDCONTROLSTATEF dwState) {
    return Control(&IFileDialogCustomize::SetControlState, dwIDCtl, dwState);
}

HRESULT CFileDialog::GetControlItemState(DWORD dwIDCtl, DWORD dwIDItem, CDCONTROLSTATEF& dwState) {
    return Control(&IFileDialogCustomize::GetControlItemState, dwIDCtl, dwIDItem, &dwState);
}

HRESULT CFileDialog::SetControlItemState(DWORD dwIDCtl, DWORD dwIDItem, CDCONTROLSTATEF dwState) {
    return Control(&IFileDialogCustomize::SetControlItemState, dwIDCtl, dwIDItem, dwState);
}

HRESULT CFileDialog::SetControlItemText(DWORD dwIDCtl, DWORD dwIDItem, const CString& strLabel) {
    return Control(&IFileDialogCustomize::SetControlItemText, dwIDCtl, dwIDItem, CStringW(strLabel));
}

HRESULT CFileDialog::GetEditBoxText(DWORD dwIDCtl, CString& strText) {
    LPWSTR text = nullptr;
    const HRESULT result = Control(&IFileDialogCustomize::GetEditBoxText, dwIDCtl, &text);
    if (SUCCEEDED(result))
        strText = text;
    ::CoTaskMemFree(text);
    return result;
}

HRESULT CFileDialog::SetEditBoxText(DWORD dwIDCtl, const CString& strText) {
    return Control(&IFileDialogCustomize::SetEditBoxText, dwIDCtl, CStringW(strText));
}

HRESULT CFileDialog::GetCheckButtonState(DWORD dwIDCtl, BOOL& bChecked) {
    return Control(&IFileDialogCustomize::GetCheckButtonState, dwIDCtl, &bChecked);
}

HRESULT CFileDialog::SetCheckButtonState(DWORD dwIDCtl, BOOL bChecked) {
    return Control(&IFileDialogCustomize::SetCheckButtonState, dwIDCtl, bChecked);
}

HRESULT CFileDialog::GetSelectedControlItem(DWORD dwIDCtl, DWORD& dwIDItem) {
    return Control(&IFileDialogCustomize::GetSelectedControlItem, dwIDCtl, &dwIDItem);
}

HRESULT CFileDialog::SetSelectedControlItem(DWORD dwIDCtl, DWORD dwIDItem) {
    return Control(&IFileDialogCustomize::SetSelectedControlItem, dwIDCtl, dwIDItem);
}

void CFileDialog::OnItemSelected(DWORD, DWORD) {}

void CFileDialog::OnButtonClicked(DWORD) {}

void CFileDialog::OnCheckButtonToggled(DWORD, BOOL) {}

void CFileDialog::OnControlActivating(DWORD) {}
