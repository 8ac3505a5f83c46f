// The shell's knowledge of the program's documents, kept for the current user.
#include "afx_app.h"
#include "position_list.h"
#include "afx_doc_template.h"

namespace {

CString classes_key(const CString& name) {
    return "Software\\Classes\\" + name;
}

bool set_value(const CString& key, const CString& value) {
    return ::RegSetValue(HKEY_CURRENT_USER, classes_key(key), REG_SZ, value, static_cast<DWORD>(value.GetLength())) ==
           ERROR_SUCCESS;
}

CString value_of(const CString& key) {
    char text[MAX_PATH] = "";
    LONG room = sizeof(text);
    return ::RegQueryValue(HKEY_CURRENT_USER, classes_key(key), text, &room) == ERROR_SUCCESS ? CString(text)
                                                                                              : CString();
}

CString program_path() {
    char path[MAX_PATH] = "", name[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    // Short: the older form of the command line knows no quotes.
    return ::GetShortPathName(path, name, MAX_PATH) != 0 ? name : path;
}

// The type's name, and what the user reads; false where the template names no type.
bool type_of(const CDocTemplate& from, CString& id, CString& title) {
    if (!from.GetDocString(id, CDocTemplate::regFileTypeId) || id.IsEmpty())
        return false;
    if (!from.GetDocString(title, CDocTemplate::regFileTypeName) || title.IsEmpty())
        title = id;
    return true;
}

// A program with several documents in one window that takes the shell's commands opens files in that window.
void register_opening(const CDocTemplate& type, const CString& id, const CString& program) {
    const CWinApp* app = AfxGetApp();
    CString title;
    const bool several = !type.GetDocString(title, CDocTemplate::windowTitle) || title.IsEmpty();
    const bool told = several && app != nullptr && app->m_atomApp != 0;
    set_value(id + "\\shell\\open\\command", program + (told ? " /dde" : " \"%1\""));
    if (!told) { // nor by what an earlier version registered
        ::RegDeleteTree(HKEY_CURRENT_USER, classes_key(id + "\\shell\\open\\ddeexec"));
        return;
    }
    set_value(id + "\\shell\\open\\ddeexec", "[open(\"%1\")]");
    set_value(id + "\\shell\\open\\ddeexec\\application", app->m_pszExeName);
}

} // namespace

void CDocManager::RegisterShellFileTypes(BOOL bCompat) {
    const CString program = program_path();
    int icon = 1; // the first is the program's own
    for (CDocTemplate* one : objects_in<CDocTemplate>(m_templateList)) {
        CString id, title, extension, place;
        if (!type_of(*one, id, title))
            continue;
        set_value(id, title);
        place.Format("%s,%d", program.GetString(), icon++);
        set_value(id + "\\DefaultIcon", place);
        register_opening(*one, id, program);
        if (bCompat) {
            set_value(id + "\\shell\\print\\command", program + " /p \"%1\"");
            set_value(id + "\\shell\\printto\\command", program + " /pt \"%1\" \"%2\" \"%3\" \"%4\"");
        }
        if (!one->GetDocString(extension, CDocTemplate::filterExt) || extension.IsEmpty())
            continue;
        const CString owner = value_of(extension);
        if (owner.IsEmpty() || owner == id) // another program's files stay its own
            set_value(extension, id);
        if (bCompat)
            set_value(extension + "\\ShellNew", "");
    }
}

void CDocManager::UnregisterShellFileTypes() {
    for (CDocTemplate* one : objects_in<CDocTemplate>(m_templateList)) {
        CString id, title, extension;
        if (!type_of(*one, id, title))
            continue;
        ::RegDeleteTree(HKEY_CURRENT_USER, classes_key(id));
        if (one->GetDocString(extension, CDocTemplate::filterExt) && value_of(extension) == id)
            ::RegDeleteTree(HKEY_CURRENT_USER, classes_key(extension));
    }
}

void CWinApp::RegisterShellFileTypes(BOOL bCompat) {
    if (m_pDocManager != nullptr)
        m_pDocManager->RegisterShellFileTypes(bCompat);
}

void CWinApp::UnregisterShellFileTypes() {
    if (m_pDocManager != nullptr)
        m_pDocManager->UnregisterShellFileTypes();
}
