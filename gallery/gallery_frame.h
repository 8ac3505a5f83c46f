#pragma once

#include "page.h"

/// The gallery's main window: the list of pages at the left, the chosen one at the right.
class CGalleryFrame : public CFrameWnd {
public:
    explicit CGalleryFrame(const NamedFiles& files);

    bool Open();
    void ShowPage(int index);
    /// A page that is not there changes nothing.
    void ShowPage(const char* name);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSelectPage();
    afx_msg void OnPrint();
    afx_msg void OnEnterIdle(UINT why, CWnd* who);
    DECLARE_MESSAGE_MAP()

private:
    CRect PagePlace() const;

    GalleryPages pages_;
    CListBox list_;
    CButton print_;
    CFont list_font_;
    int shown_ = -1;
    HWND dialog_ = nullptr; // the last one that waited for input
};
