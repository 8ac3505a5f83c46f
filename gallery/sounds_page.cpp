#include <afxcmn.h>

#include "controls_page.h"

// The library's sounds with the volume and the switches. A sound's own switch is kept and not asked.

namespace {

constexpr UINT first_sound = 10;
constexpr UINT first_switch = 20;
constexpr UINT master_id = 30;
constexpr UINT volume_id = 31;
constexpr int sound_count = 3;
constexpr int loudest = 0xFFFF;
constexpr const char* names[sound_count] = {"Bell", "Clap", "Key"};

class CSoundsPage : public CControlsPage {
public:
    const char* Title() const override { return "Sounds"; }
    const char* Name() const override { return "sounds"; }

protected:
    bool AddControls() override {
        for (int i = 0; i < sound_count; ++i) {
            const int y = 20 + 40 * i;
            const auto id = static_cast<UINT>(i);
            CButton* own = AddButton("its own switch (kept, not asked)", CRect(160, y + 4, 420, y + 24),
                                     first_switch + id, BS_AUTOCHECKBOX);
            if (!own || !AddButton(names[i], CRect(20, y, 140, y + 28), first_sound + id))
                return false;
            own->SetCheck(TRUE);
        }
        master_ = AddButton("Sounds on", CRect(20, 146, 200, 170), master_id, BS_AUTOCHECKBOX);
        if (!master_ || !AddText("Volume, left channel", CRect(20, 186, 160, 206)) ||
            !volume_.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | TBS_AUTOTICKS, CRect(160, 180, 420, 212), this,
                            volume_id))
            return false;
        master_->SetCheck(TRUE);
        volume_.SetRange(0, loudest);
        volume_.SetTicFreq(loudest / 8);
        volume_.SetPos(loudest);
        return true;
    }

    afx_msg void OnPlay(UINT id) { WntSound(static_cast<std::uint16_t>(id - first_sound)); }
    afx_msg void OnSwitch(UINT id) {
        WntSoundEnable(static_cast<std::uint16_t>(id - first_switch), IsDlgButtonChecked(static_cast<int>(id)) != 0);
    }
    afx_msg void OnMaster() { WntSoundEnable(master_->GetCheck()); }
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar) {
        CControlsPage::OnHScroll(code, position, bar);
        if (code == TB_ENDTRACK) // not at every step of the way
            WntSoundSetVolume(static_cast<std::uint16_t>(volume_.GetPos()));
    }
    DECLARE_MESSAGE_MAP()

private:
    CButton* master_ = nullptr;
    CSliderCtrl volume_;
};

BEGIN_MESSAGE_MAP(CSoundsPage, CControlsPage)
ON_CONTROL_RANGE(BN_CLICKED, first_sound, first_sound + sound_count - 1, &CSoundsPage::OnPlay)
ON_CONTROL_RANGE(BN_CLICKED, first_switch, first_switch + sound_count - 1, &CSoundsPage::OnSwitch)
ON_BN_CLICKED(master_id, &CSoundsPage::OnMaster)
ON_WM_HSCROLL()
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeSoundsPage() {
    return std::make_unique<CSoundsPage>();
}
