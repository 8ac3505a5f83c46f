#include "gallery_frame.h"
#include "log.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int list_width = 150;
constexpr UINT list_id = 2;
constexpr UINT print_id = 3;
constexpr int print_height = 32;

} // namespace

BEGIN_MESSAGE_MAP(CGalleryFrame, CFrameWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_ENTERIDLE()
ON_LBN_SELCHANGE(list_id, &CGalleryFrame::OnSelectPage)
ON_BN_CLICKED(print_id, &CGalleryFrame::OnPrint)
END_MESSAGE_MAP()

CGalleryFrame::CGalleryFrame(const NamedFiles& files) : pages_(MakePages(files)) {}

bool CGalleryFrame::Open() {
    return Create(nullptr, "ZOPWNT gallery", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CRect(40, 40, 1000, 680));
}

void CGalleryFrame::OnEnterIdle(UINT why, CWnd* who) {
    const HWND window = who ? who->m_hWnd : nullptr;
    if (why == MSGF_DIALOGBOX && window != dialog_) {
        dialog_ = window;
        Log("dialog");
    }
    CFrameWnd::OnEnterIdle(why, who);
}

int CGalleryFrame::OnCreate(LPCREATESTRUCT create) {
    if (CFrameWnd::OnCreate(create) == -1)
        return -1;
    if (!list_.Create(WS_CHILD | WS_VISIBLE | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL, CRect(0, 0, 0, 0), this,
                      list_id) ||
        !print_.Create("Print this window", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, CRect(0, 0, 0, 0), this, print_id))
        return -1;
    list_font_.CreatePointFont(100, "Arial");
    list_.SetFont(&list_font_);
    print_.SetFont(&list_font_);
    for (const auto& page : pages_) {
        if (!page->Open(this, CRect(0, 0, 10, 10)))
            return -1;
        list_.AddString(page->Title());
    }
    return 0;
}

CRect CGalleryFrame::PagePlace() const {
    CRect client;
    GetClientRect(&client);
    client.left = std::min<LONG>(client.right, list_width);
    return client;
}

void CGalleryFrame::OnSize(UINT type, int cx, int cy) {
    CFrameWnd::OnSize(type, cx, cy);
    if (print_.m_hWnd) {
        const int list_height = std::max(cy - print_height, 0);
        list_.SetWindowPos(nullptr, 0, 0, list_width, list_height, SWP_NOZORDER | SWP_NOACTIVATE);
        print_.SetWindowPos(nullptr, 0, list_height, list_width, print_height, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (shown_ >= 0)
        pages_[static_cast<std::size_t>(shown_)]->MoveWindow(PagePlace());
}

void CGalleryFrame::ShowPage(int index) {
    if (index < 0 || index >= static_cast<int>(pages_.size()) || index == shown_)
        return;
    if (shown_ >= 0)
        pages_[static_cast<std::size_t>(shown_)]->ShowWindow(SW_HIDE);
    shown_ = index;
    CGalleryPage& page = *pages_[static_cast<std::size_t>(index)];
    page.MoveWindow(PagePlace());
    page.ShowWindow(SW_SHOW);
    Log("page %s", page.Name());
    if (IsWindowVisible())
        LogPlaces(*this);
    list_.SetCurSel(index);
}

void CGalleryFrame::ShowPage(const char* name) {
    const auto named = [name](const auto& page) { return std::strcmp(page->Name(), name) == 0; };
    ShowPage(static_cast<int>(std::find_if(pages_.begin(), pages_.end(), named) - pages_.begin()));
}

void CGalleryFrame::OnSelectPage() {
    ShowPage(list_.GetCurSel());
}

void CGalleryFrame::OnPrint() {
    MakeHardcopy(this, "ZOPWNT gallery");
}
