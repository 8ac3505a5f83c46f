#include "file_names.h"

CString full_path_of(LPCTSTR name) {
    char path[MAX_PATH];
    const DWORD length = ::GetFullPathName(name, MAX_PATH, path, nullptr);
    return length > 0 && length < MAX_PATH ? path : name;
}

bool is_same_file(LPCTSTR a, LPCTSTR b) {
    return lstrcmpi(a, b) == 0;
}

CString file_name_of(LPCTSTR path) {
    const CString text = path;
    const int slash = text.ReverseFind('\\');
    return slash >= 0 ? text.Mid(slash + 1) : text.Mid(text.ReverseFind('/') + 1);
}

CString title_of(LPCTSTR path) {
    char title[MAX_PATH];
    return ::GetFileTitle(path, title, MAX_PATH) == 0 ? CString(title) : file_name_of(path);
}

CString extension_of(LPCTSTR path) {
    const CString name = file_name_of(path);
    const int dot = name.ReverseFind('.');
    return dot >= 0 ? name.Mid(dot) : CString();
}

CString shortened(const CString& path, int length) {
    if (path.GetLength() <= length)
        return path;
    const CString name = file_name_of(path);
    const CString root = path.Left(path.GetLength() > 2 && path[1] == ':' ? 3 : 0);
    int from = root.GetLength();
    CString tail = path.Mid(from);
    while (root.GetLength() + 4 + tail.GetLength() > length && tail.GetLength() > name.GetLength()) {
        const char* slash = std::strchr(tail, '\\');
        if (slash == nullptr)
            break;
        tail = CString(slash + 1);
    }
    const CString text = root + "...\\" + tail;
    return text.GetLength() <= length ? text : name;
}

CString with_ampersands(const CString& text) {
    CString doubled;
    for (int i = 0; i < text.GetLength(); ++i) {
        if (text[i] == '&')
            doubled += '&';
        doubled += text[i];
    }
    return doubled;
}

int current_folder(LPTSTR folder, DWORD room) {
    const DWORD length = ::GetCurrentDirectory(room, folder);
    if (length == 0 || length >= room) {
        *folder = '\0';
        return 0;
    }
    if (folder[length - 1] == '\\')
        return static_cast<int>(length);
    folder[length] = '\\';
    folder[length + 1] = '\0';
    return static_cast<int>(length + 1);
}
