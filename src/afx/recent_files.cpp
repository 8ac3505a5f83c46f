#include "afxadv.h"
#include "file_names.h"

#include <algorithm>

CRecentFileList::CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize, int nMaxDispLen)
    : m_names(static_cast<std::size_t>(std::clamp(nSize, 1, _AFX_MRU_MAX_COUNT))), m_start(nStart),
      m_section(lpszSection), m_format(lpszEntryFormat), m_display_length(nMaxDispLen) {
    m_nSize = static_cast<int>(m_names.size());
    m_arrNames = m_names.data(); // stays: there are always as many
}

CRecentFileList::~CRecentFileList() = default;

void CRecentFileList::Remove(int nIndex) {
    if (nIndex < 0 || nIndex >= GetSize())
        return;
    m_names.erase(m_names.begin() + nIndex);
    m_names.emplace_back();
}

void CRecentFileList::Add(LPCTSTR lpszPathName) {
    const CString path = full_path_of(lpszPathName);
    auto at =
        std::find_if(m_names.begin(), m_names.end(), [&](const CString& name) { return is_same_file(name, path); });
    if (at == m_names.end())
        --at; // the oldest goes
    std::rotate(m_names.begin(), at, at + 1);
    m_names.front() = path;
}

BOOL CRecentFileList::GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                     BOOL bAtLeastName) const {
    if (nIndex < 0 || nIndex >= GetSize() || m_names[static_cast<std::size_t>(nIndex)].IsEmpty())
        return FALSE;
    strName = m_names[static_cast<std::size_t>(nIndex)];
    if (nCurDir > 0 && ::_strnicmp(strName, lpszCurDir, static_cast<std::size_t>(nCurDir)) == 0 &&
        strName.ReverseFind('\\') < nCurDir) {
        strName = file_name_of(strName);
    } else if (m_display_length != -1) {
        strName = shortened(strName, m_display_length);
        if (!bAtLeastName && strName.GetLength() > m_display_length)
            strName.Empty();
    }
    return TRUE;
}

void CRecentFileList::UpdateMenu(CCmdUI* pCmdUI) {
    CMenu* menu = pCmdUI->m_pMenu;
    if (m_original.IsEmpty() && menu != nullptr)
        menu->GetMenuString(pCmdUI->m_nID, m_original, MF_BYCOMMAND);
    if (m_names.front().IsEmpty()) {
        if (!m_original.IsEmpty())
            pCmdUI->SetText(m_original);
        pCmdUI->Enable(FALSE);
        return;
    }
    if (menu == nullptr)
        return;
    for (int i = 0; i < GetSize(); ++i)
        menu->DeleteMenu(pCmdUI->m_nID + static_cast<UINT>(i), MF_BYCOMMAND);
    char folder[MAX_PATH + 2];
    const int length = current_folder(folder, MAX_PATH);
    CString name;
    for (int i = 0; i < GetSize() && GetDisplayName(name, i, folder, length); ++i) {
        CString text = "1&0 ";
        const unsigned number = m_start + static_cast<unsigned>(i) + 1;
        if (number != 10)
            text.Format(number < 10 ? "&%u " : "%u ", number);
        text += with_ampersands(name);
        menu->InsertMenu(pCmdUI->m_nIndex++, MF_STRING | MF_BYPOSITION, pCmdUI->m_nID++, text);
    }
    --pCmdUI->m_nIndex; // the last that was inserted
    pCmdUI->m_nIndexMax = menu->GetMenuItemCount();
    pCmdUI->m_bEnableChanged = TRUE;
}

CString CRecentFileList::EntryName(int index) const {
    CString number, entry = m_format;
    number.Format("%d", index + 1);
    const char* place = std::strstr(entry, "%d");
    if (place == nullptr)
        return entry + number;
    const int at = static_cast<int>(place - entry.GetString());
    return entry.Left(at) + number + entry.Mid(at + 2);
}

void CRecentFileList::ReadList() {
    for (int i = 0; i < GetSize(); ++i)
        m_names[static_cast<std::size_t>(i)] = AfxGetApp()->GetProfileString(m_section, EntryName(i));
}

void CRecentFileList::WriteList() {
    CWinApp* app = AfxGetApp();
    app->WriteProfileString(m_section, nullptr, nullptr);
    for (int i = 0; i < GetSize(); ++i) {
        const CString& name = m_names[static_cast<std::size_t>(i)];
        if (!name.IsEmpty())
            app->WriteProfileString(m_section, EntryName(i), name);
    }
}
