#include <algorithm>
#include <cctype>
#include <cstring>

#include "controls_page.h"

// A block of memory that every gallery on the machine shares: what one writes or scrambles shows in all.

namespace {

enum : UINT { text_id = 10, write_id, scramble_id, another_id };
constexpr UINT_PTR refresh_timer = 1;
constexpr UINT refresh_time = 200;
constexpr int block_size = 64;
constexpr int row_size = 16;

CString Row(const unsigned char* bytes) {
    CString text;
    for (int i = 0; i < row_size; ++i)
        text.AppendFormat("%02X ", bytes[i]);
    text += ' ';
    for (int i = 0; i < row_size; ++i)
        text += std::isprint(bytes[i]) && bytes[i] < 0x80 ? static_cast<char>(bytes[i]) : '.';
    return text;
}

class CSharingPage : public CControlsPage {
public:
    const char* Title() const override { return "Shared memory"; }
    const char* Name() const override { return "sharing"; }

protected:
    bool AddControls() override {
        if (!AddText("The block's bytes, as every open gallery sees them. Scrambling twice restores them.",
                     CRect(20, 20, 820, 40)) ||
            !text_.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL, CRect(20, 48, 420, 72), this,
                          text_id) ||
            !AddButton("Write", CRect(430, 46, 510, 74), write_id) ||
            !AddButton("Scramble", CRect(520, 46, 610, 74), scramble_id) ||
            !AddButton("Another gallery", CRect(620, 46, 750, 74), another_id))
            return false;
        fixed_font_.CreatePointFont(100, "Courier New");
        bytes_ = AddText("", CRect(20, 90, 820, 200));
        if (!bytes_)
            return false;
        bytes_->SetFont(&fixed_font_);
        text_.SetFont(&font_);
        text_.LimitText(block_size);
        text_.SetWindowText("Both galleries read this.");
        if (Bytes() && std::all_of(Bytes(), Bytes() + block_size, [](unsigned char byte) { return byte == 0; }))
            OnWrite(); // the first gallery's block is empty
        Refresh();
        SetTimer(refresh_timer, refresh_time, nullptr);
        return true;
    }

    unsigned char* Bytes() { return static_cast<unsigned char*>(block_.GetPtr()); }

    void Refresh() {
        CString rows;
        for (int i = 0; Bytes() && i < block_size; i += row_size)
            rows += Row(Bytes() + i) + "\r\n";
        if (rows == shown_)
            return;
        shown_ = rows;
        bytes_->SetWindowText(rows);
    }
    afx_msg void OnWrite() {
        char text[block_size + 1] = "";
        text_.GetWindowText(text, sizeof text);
        if (Bytes())
            std::memcpy(Bytes(), text, block_size);
        Refresh();
    }
    afx_msg void OnScramble() {
        block_.Scramble();
        Refresh();
    }
    afx_msg void OnAnother() {
        char program[MAX_PATH + 1] = "";
        ::GetModuleFileNameA(nullptr, program, MAX_PATH);
        ::ShellExecuteA(m_hWnd, nullptr, program, "--no-splash --page diagnostics", nullptr, SW_SHOWNORMAL);
    }
    afx_msg void OnTimer(UINT_PTR timer) {
        CControlsPage::OnTimer(timer);
        Refresh();
    }
    DECLARE_MESSAGE_MAP()

private:
    CWntShMem block_{"zopgallery block", block_size};
    CEdit text_;
    CStatic* bytes_ = nullptr;
    CFont fixed_font_;
    CString shown_;
};

BEGIN_MESSAGE_MAP(CSharingPage, CControlsPage)
ON_BN_CLICKED(write_id, &CSharingPage::OnWrite)
ON_BN_CLICKED(scramble_id, &CSharingPage::OnScramble)
ON_BN_CLICKED(another_id, &CSharingPage::OnAnother)
ON_WM_TIMER()
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeSharingPage() {
    return std::make_unique<CSharingPage>();
}
