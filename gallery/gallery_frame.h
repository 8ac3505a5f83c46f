#pragma once

#include "page.h"

/// The gallery's main window: the list of pages at the left, the chosen one at the right.
class CGalleryFrame : public CFrameWnd {
public:
    explicit CGalleryFrame(const NamedFiles& files);

    bool Open();
    void ShowPage(int index);
    void ShowPage(const char* name);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSelectPage();
    DECLARE_MESSAGE_MAP()

private:
    CRect PagePlace() const;

    GalleryPages pages_;
    CListBox list_;
    CFont list_font_;
    int shown_ = -1;
};
