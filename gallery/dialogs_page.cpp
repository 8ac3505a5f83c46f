#include "controls_page.h"

// The library's dialogs: what is installed, an error in three texts, a file choice.

namespace {

enum : UINT { version_id = 10, error_id, choose_id, save_id, answer_id };

constexpr const char* filter = "Attribute scripts (*.dat)|*.dat|All files (*.*)|*.*||";

class CDialogsPage : public CControlsPage {
public:
    const char* Title() const override { return "Version sheet and boxes"; }
    const char* Name() const override { return "dialogs"; }

protected:
    bool AddControls() override {
        const struct {
            UINT id;
            const char* name;
            const char* what;
        } rows[] = {
            {version_id, "Versions...",
             "CWntVersion: the installed components with status and version, the environment"},
            {error_id, "Error...", "CWntErrorBox: title, message and details of an error"},
            {choose_id, "Open...", "CWntFileSel: an existing file, in the middle of its parent"},
            {save_id, "Save as...", "CWntFileSel: a file to write, with a question before one is replaced"},
        };
        int y = 20;
        for (const auto& row : rows) {
            if (!AddButton(row.name, CRect(20, y, 140, y + 28), row.id) ||
                !AddText(row.what, CRect(160, y + 6, 820, y + 28)))
                return false;
            y += 38;
        }
        answer_ = AddText("Nothing answered yet.", CRect(20, y + 10, 820, y + 50), answer_id);
        return answer_ != nullptr;
    }

    void Answered(INT_PTR result, const CString& more = "") {
        answer_->SetWindowText((result == IDOK ? "OK " : "Cancelled ") + more);
    }
    afx_msg void OnVersion() { Answered(CWntVersion("ZOPWNT versions", this).DoModal()); }
    afx_msg void OnError() {
        CWntErrorBox box(
            "Recording", "The curves could not be recorded: the disk is full.",
            "File: zopgallery-pulse.txt\r\nWritten: 150 of 300 samples\r\nNothing that was there before is "
            "lost.");
        Answered(box.DoModal());
    }
    afx_msg void OnChoose() { Choose(TRUE, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY); }
    afx_msg void OnSave() { Choose(FALSE, OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY); }
    void Choose(BOOL open, DWORD flags) {
        CWntFileSel choice(open, "dat", open ? "" : "gauge.dat", flags | OFN_NOCHANGEDIR, filter, this);
        const INT_PTR result = choice.DoModal();
        Answered(result, result == IDOK ? choice.GetPathName() : CString());
    }
    DECLARE_MESSAGE_MAP()

private:
    CStatic* answer_ = nullptr;
};

BEGIN_MESSAGE_MAP(CDialogsPage, CControlsPage)
ON_BN_CLICKED(version_id, &CDialogsPage::OnVersion)
ON_BN_CLICKED(error_id, &CDialogsPage::OnError)
ON_BN_CLICKED(choose_id, &CDialogsPage::OnChoose)
ON_BN_CLICKED(save_id, &CDialogsPage::OnSave)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeDialogsPage() {
    return std::make_unique<CDialogsPage>();
}
