// Settings of the program: in the registry once SetRegistryKey was called, else in a file of sections.
#include "afx_app.h"
#include "afxadv.h"
#include "afxres.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// A key of the registry, closed with the object.
class registry_key {
public:
    explicit registry_key(HKEY key) : m_key(key) {}
    ~registry_key() {
        if (m_key != nullptr)
            ::RegCloseKey(m_key);
    }
    registry_key(const registry_key&) = delete;
    registry_key& operator=(const registry_key&) = delete;
    operator HKEY() const { return m_key; }

    BOOL write(LPCTSTR entry, DWORD type, const void* data, std::size_t size) const {
        return m_key != nullptr && ::RegSetValueEx(m_key, entry, 0, type, static_cast<const BYTE*>(data),
                                                   static_cast<DWORD>(size)) == ERROR_SUCCESS;
    }
    // The value's bytes; false where there is none of the type.
    bool read(LPCTSTR entry, DWORD wanted, std::vector<BYTE>& data) const {
        DWORD type = 0, size = 0;
        if (m_key == nullptr || ::RegQueryValueEx(m_key, entry, nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
            type != wanted)
            return false;
        data.resize(size);
        if (::RegQueryValueEx(m_key, entry, nullptr, &type, data.data(), &size) != ERROR_SUCCESS || type != wanted)
            return false;
        data.resize(size);
        return true;
    }

private:
    HKEY m_key;
};

HKEY sub_key(HKEY parent, LPCTSTR name) {
    HKEY key = nullptr;
    if (parent != nullptr && name != nullptr)
        ::RegCreateKeyEx(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE, nullptr, &key,
                         nullptr);
    return key;
}

CString text_from_file(LPCTSTR section, LPCTSTR entry, LPCTSTR fallback, LPCTSTR file) {
    constexpr DWORD most = 0x10000;
    for (DWORD size = 256;; size *= 4) {
        CString text;
        const DWORD length =
            ::GetPrivateProfileString(section, entry, fallback, text.GetBuffer(static_cast<int>(size)), size, file);
        text.ReleaseBuffer(static_cast<int>(length));
        if (length + 1 < size || size >= most)
            return text;
    }
}

// Bytes are kept in a file as letters, two for each: the low half first, counted from A.
CString letters_of(const BYTE* data, UINT size) {
    CString text;
    for (UINT i = 0; i < size; ++i) {
        text += static_cast<char>('A' + (data[i] & 15));
        text += static_cast<char>('A' + (data[i] >> 4));
    }
    return text;
}

bool bytes_of(const CString& letters, std::vector<BYTE>& data) {
    data.clear();
    if (letters.GetLength() % 2 != 0)
        return false;
    for (int i = 0; i < letters.GetLength(); i += 2) {
        const int low = letters[i] - 'A', high = letters[i + 1] - 'A';
        if (low < 0 || low > 15 || high < 0 || high > 15)
            return false;
        data.push_back(static_cast<BYTE>(low | high << 4));
    }
    return true;
}

} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    std::free(const_cast<LPTSTR>(m_pszRegistryKey));
    m_pszRegistryKey = ::_strdup(lpszRegistryKey);
    std::free(const_cast<LPTSTR>(m_pszProfileName));
    m_pszProfileName = ::_strdup(m_pszAppName);
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey) {
    CString name;
    if (!name.LoadString(nIDRegistryKey))
        AfxThrowResourceException();
    SetRegistryKey(name);
}

HKEY CWinApp::GetAppRegistryKey(ATL::CAtlTransactionManager*) {
    const registry_key software(sub_key(HKEY_CURRENT_USER, "Software"));
    const registry_key company(sub_key(software, m_pszRegistryKey));
    return sub_key(company, m_pszProfileName);
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection, ATL::CAtlTransactionManager*) {
    const registry_key program(GetAppRegistryKey());
    return sub_key(program, lpszSection);
}

LONG CWinApp::DelRegTree(HKEY hParentKey, const CString& strKeyName, ATL::CAtlTransactionManager*) {
    return strKeyName.IsEmpty() ? ERROR_INVALID_PARAMETER // not all that the parent holds
                                : ::RegDeleteTree(hParentKey, strKeyName);
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    if (m_pszRegistryKey == nullptr)
        return ::GetPrivateProfileInt(lpszSection, lpszEntry, nDefault, m_pszProfileName);
    std::vector<BYTE> data;
    DWORD value = static_cast<DWORD>(nDefault);
    if (registry_key(GetSectionKey(lpszSection)).read(lpszEntry, REG_DWORD, data) && data.size() == sizeof(value))
        std::memcpy(&value, data.data(), sizeof(value));
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    if (m_pszRegistryKey != nullptr)
        return registry_key(GetSectionKey(lpszSection)).write(lpszEntry, REG_DWORD, &nValue, sizeof(nValue));
    CString text;
    text.Format("%d", nValue);
    return ::WritePrivateProfileString(lpszSection, lpszEntry, text, m_pszProfileName);
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    LPCTSTR fallback = lpszDefault != nullptr ? lpszDefault : "";
    if (m_pszRegistryKey == nullptr)
        return text_from_file(lpszSection, lpszEntry, fallback, m_pszProfileName);
    std::vector<BYTE> data;
    if (!registry_key(GetSectionKey(lpszSection)).read(lpszEntry, REG_SZ, data))
        return fallback;
    data.push_back(0); // what another program wrote may lack its end
    return reinterpret_cast<LPCTSTR>(data.data());
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    if (m_pszRegistryKey == nullptr)
        return ::WritePrivateProfileString(lpszSection, lpszEntry, lpszValue, m_pszProfileName);
    if (lpszEntry == nullptr)
        return ::RegDeleteKey(registry_key(GetAppRegistryKey()), lpszSection) == ERROR_SUCCESS;
    const registry_key section(GetSectionKey(lpszSection));
    if (lpszValue == nullptr)
        return ::RegDeleteValue(section, lpszEntry) == ERROR_SUCCESS;
    return section.write(lpszEntry, REG_SZ, lpszValue, std::strlen(lpszValue) + 1);
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    std::vector<BYTE> data;
    if (m_pszRegistryKey != nullptr) {
        if (!registry_key(GetSectionKey(lpszSection)).read(lpszEntry, REG_BINARY, data))
            return FALSE;
    } else {
        const CString letters = GetProfileString(lpszSection, lpszEntry);
        if (letters.IsEmpty() || !bytes_of(letters, data))
            return FALSE;
    }
    *ppData = new BYTE[data.size() + 1];
    std::copy(data.begin(), data.end(), *ppData);
    *pBytes = static_cast<UINT>(data.size());
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    if (m_pszRegistryKey != nullptr)
        return registry_key(GetSectionKey(lpszSection)).write(lpszEntry, REG_BINARY, pData, nBytes);
    return WriteProfileString(lpszSection, lpszEntry, letters_of(pData, nBytes));
}

void CWinApp::LoadStdProfileSettings(UINT nMaxMRU) {
    delete std::exchange(m_pRecentFileList, nullptr);
    if (nMaxMRU == 0)
        return;
    m_pRecentFileList = new CRecentFileList(0, "Recent File List", "File%d",
                                            static_cast<int>(std::min<UINT>(nMaxMRU, _AFX_MRU_MAX_COUNT)));
    m_pRecentFileList->ReadList();
}

void CWinApp::SaveStdProfileSettings() {
    if (m_pRecentFileList != nullptr)
        m_pRecentFileList->WriteList();
}

void CWinApp::AddToRecentFileList(LPCTSTR lpszPathName) {
    if (m_pRecentFileList != nullptr)
        m_pRecentFileList->Add(lpszPathName);
}

void CWinApp::OnUpdateRecentFileMenu(CCmdUI* pCmdUI) {
    if (m_pRecentFileList != nullptr)
        m_pRecentFileList->UpdateMenu(pCmdUI);
    else
        pCmdUI->Enable(FALSE);
}

BOOL CWinApp::OnOpenRecentFile(UINT nID) {
    const int index = static_cast<int>(nID - ID_FILE_MRU_FILE1);
    if (m_pRecentFileList == nullptr || index >= m_pRecentFileList->GetSize())
        return FALSE;
    const CString path = (*m_pRecentFileList)[index];
    if (!path.IsEmpty() && OpenDocumentFile(path) == nullptr)
        m_pRecentFileList->Remove(index);
    return TRUE;
}
