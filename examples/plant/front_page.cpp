#include "front_page.h"

BEGIN_MESSAGE_MAP(CFrontPage, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

int Scaled(int pixels) {
    const CWindowDC screen(nullptr);
    return ::MulDiv(pixels, screen.GetDeviceCaps(LOGPIXELSX), 96);
}

bool CFrontPage::Open(CWnd* parent, UINT id) {
    return Create(nullptr, "", WS_CHILD | WS_CLIPCHILDREN, CRect(0, 0, 0, 0), parent, id) != 0;
}

int CFrontPage::OnCreate(LPCREATESTRUCT create) {
    return CWnd::OnCreate(create) == 0 && CreateContents() ? 0 : -1;
}

void CFrontPage::OnSize(UINT type, int width, int height) {
    CWnd::OnSize(type, width, height);
    if (width > 0 && height > 0)
        Arrange(width, height);
}

BOOL CFrontPage::OnEraseBkgnd(CDC* dc) {
    CRect client;
    GetClientRect(client);
    dc->FillSolidRect(client, ::GetSysColor(COLOR_BTNFACE));
    return TRUE;
}
