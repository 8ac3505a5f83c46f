// The program object of the framework's tests, and windows that tell what they see.
#pragma once

#include <afxwin.h>
#include "afx_test_ids.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

// Answers message boxes by itself and keeps their texts.
struct test_app : CWinApp {
    test_app() : CWinApp("Tests") {}
    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        if (box_fails)
            AfxThrowMemoryException();
        boxes.push_back(text);
        return answer;
    }
    BOOL ProcessMessageFilter(int code, LPMSG) override { return code == filtered; }
    using CWinApp::EnableShellOpen, CWinApp::SetDialogBkColor;
    using CWinApp::LoadStdProfileSettings, CWinApp::OnOpenRecentFile, CWinApp::OnUpdateRecentFileMenu,
        CWinApp::SaveStdProfileSettings;
    void WinHelp(DWORD_PTR topic, UINT command) override { helped.push_back(topic << 8 | command); }
    // The registry's key, or null for a file.
    void use_settings(const char* key) {
        if (key != nullptr)
            SetRegistryKey(key);
        else
            std::free(const_cast<char*>(std::exchange(m_pszRegistryKey, nullptr)));
    }
    DECLARE_MESSAGE_MAP()

public:
    std::vector<std::string> take_boxes() { return std::exchange(boxes, {}); }

    std::vector<std::string> boxes;
    std::vector<DWORD_PTR> helped;
    int answer = IDOK, filtered = -1;
    bool box_fails = false;
};

extern test_app the_app;

inline BOOL create_popup(CWnd& wnd) {
    return wnd.CreateEx(0, nullptr, "popup", WS_POPUP, CRect(0, 0, 120, 80), nullptr, 0);
}

// Shown, painted, but not active: without a window manager the system waits for every change of the active window.
inline BOOL create_visible_popup(CWnd& wnd) {
    if (!create_popup(wnd))
        return FALSE;
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    wnd.UpdateWindow();
    return wnd.IsWindowVisible();
}

// Keeps the number of every message it gets, and object_released when the framework lets go of it.
struct recorder : CWnd {
    static constexpr UINT object_released = 0x10000;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        seen.push_back(message);
        if (message == WM_CREATE && refuse)
            return -1;
        return CWnd::WindowProc(message, wParam, lParam);
    }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override { return accept && CWnd::PreCreateWindow(cs); }
    void PreSubclassWindow() override {
        if (fail)
            throw new CUserException;
    }
    void PostNcDestroy() override { seen.push_back(object_released); }

    std::vector<UINT> seen;
    bool refuse = false, fail = false, accept = true;
};

// The cause that the work's exception tells; -1 where it raises none.
template <class Exception> int cause_of(const std::function<void()>& work) {
    try {
        work();
    } catch (Exception* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

template <class Exception> bool raises(const std::function<void()>& work) {
    try {
        work();
    } catch (Exception* exception) {
        exception->Delete();
        return true;
    }
    return false;
}

inline std::string text_of(const CWnd& wnd) {
    CString text;
    wnd.GetWindowText(text);
    return text.GetString();
}

inline CRect inside_of(const CWnd& wnd) {
    CRect rect;
    wnd.GetClientRect(rect);
    return rect;
}

inline CRect on_screen(const CWnd& wnd) {
    CRect rect;
    wnd.GetWindowRect(rect);
    return rect;
}

inline CRect place_in(CWnd& parent, const CWnd& wnd) {
    CRect rect = on_screen(wnd);
    parent.ScreenToClient(&rect);
    return rect;
}

// A window, for controls to stand in.
struct WithParent : testing::Test {
    WithParent() { EXPECT_TRUE(create_visible_popup(parent)); }
    static constexpr DWORD shown = WS_CHILD | WS_VISIBLE;
    const CRect place{0, 0, 100, 60};

    CWnd parent;
};

// A memory bitmap like the screen's, white.
struct canvas : CDC {
    canvas(int width, int height) {
        CWindowDC screen(nullptr);
        EXPECT_TRUE(CreateCompatibleDC(&screen) && m_bitmap.CreateCompatibleBitmap(&screen, width, height));
        m_before = SelectObject(&m_bitmap);
        PatBlt(0, 0, width, height, WHITENESS);
    }
    ~canvas() override { SelectObject(m_before); }

private:
    CBitmap m_bitmap;
    CBitmap* m_before;
};

inline std::string bytes_of(CFile& file) {
    std::string all(static_cast<std::size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(all.data(), static_cast<UINT>(all.size()));
    return all;
}

inline void store(CFile& file, const std::function<void(CArchive&)>& work) {
    file.SetLength(0);
    CArchive ar(&file, CArchive::store, 128);
    work(ar);
    ar.Close();
    file.SeekToBegin();
}

inline void load(CFile& file, const std::function<void(CArchive&)>& work) {
    CArchive ar(&file, CArchive::load, 128);
    work(ar);
}

// Takes back what a program with documents registered, and the end that its last window asked for.
inline void end_documents() {
    MSG quit;
    while (::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
    }
    delete std::exchange(the_app.m_pDocManager, nullptr);
}
