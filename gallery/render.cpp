#include "render.h"

#include <algorithm>
#include <cstdio>

#include "page.h"
#include "png_file.h"
#include "scripted_widget.h"

namespace {

const CSize page_size(840, 580);
const CSize gauge_size(320, 300);

/// A bare window that holds what is to be painted; it must be visible, since hidden windows are not drawn into.
class CStudio : public CWnd {
public:
    bool Open(CSize size) {
        return CreateEx(WS_EX_TOOLWINDOW | WS_EX_TOPMOST, AfxRegisterWndClass(0), "Studio", WS_POPUP | WS_VISIBLE,
                        CRect(CPoint(0, 0), size), nullptr, 0);
    }

    ~CStudio() override { DestroyWindow(); }
};

void PumpPending() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
}

bool Shoot(CWnd& window, CSize size, const CString& file) {
    PumpPending();
    window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    CClientDC from(&window);
    CDC memory;
    memory.CreateCompatibleDC(&from);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&from, size.cx, size.cy);
    CBitmap* previous = memory.SelectObject(&bitmap);
    memory.BitBlt(0, 0, size.cx, size.cy, &from, 0, 0, SRCCOPY);
    memory.SelectObject(previous);
    if (WritePng(static_cast<HBITMAP>(bitmap.m_hObject), file))
        return true;
    std::fprintf(stderr, "cannot write %s\n", file.GetString());
    return false;
}

CString BaseName(const CString& path) {
    CString name = path.Mid(std::max(path.ReverseFind('\\'), path.ReverseFind('/')) + 1);
    const int dot = name.ReverseFind('.');
    return dot > 0 ? name.Left(dot) : name;
}

bool RenderPages(const CString& folder, CSize size, const NamedFiles& files) {
    bool good = true;
    for (const auto& page : MakePages(files)) {
        CStudio studio;
        if (!studio.Open(size) || !page->Open(&studio, CRect(CPoint(0, 0), size)))
            return false;
        page->ShowWindow(SW_SHOW);
        page->Settle();
        good &= Shoot(*page, size, folder + "\\page-" + page->Name() + ".png");
        page->DestroyWindow();
    }
    return good;
}

// Pictures of scripts that are named alike are told apart by a number.
CString PictureName(const CString& script, const std::vector<CString>& scripts) {
    int same = 0;
    for (const CString& other : scripts) {
        if (&other == &script)
            break;
        same += BaseName(other).CompareNoCase(BaseName(script)) == 0;
    }
    CString name = BaseName(script);
    if (same > 0)
        name.AppendFormat("-%d", same + 1);
    return name;
}

bool RenderScript(const CString& file, CSize size, const CString& script) {
    CStudio studio;
    if (::GetFileAttributesA(script) & FILE_ATTRIBUTE_DIRECTORY) { // of a missing file all bits are set
        std::fprintf(stderr, "no such script: %s\n", script.GetString());
        return false;
    }
    if (!studio.Open(size))
        return false;
    const auto widget = MakeScripted(script, CRect(CPoint(0, 0), size), &studio, 1);
    if (!widget)
        return false;
    const bool good = Shoot(*widget, size, file);
    widget->DestroyWindow();
    return good;
}

} // namespace

bool RenderGallery(const CString& folder, CSize size, const NamedFiles& files) {
    ::CreateDirectoryA(folder, nullptr);
    const bool own = size.cx == 0;
    bool good = RenderPages(folder, own ? page_size : size, files);
    for (const CString& script : files.scripts)
        good &=
            RenderScript(folder + "\\" + PictureName(script, files.scripts) + ".png", own ? gauge_size : size, script);
    return good;
}
