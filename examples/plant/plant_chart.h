#pragma once

#include <zopwnt.h>

/// A strip chart whose own menu leaves one command out: a live chart opens no file, one of a file records nothing.
class CPlantChart : public CWntPulse {
public:
    explicit CPlantChart(UINT left_out) : left_out_(left_out) {}

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        return LOWORD(wParam) == left_out_ || CWntPulse::OnCommand(wParam, lParam);
    }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system) {
        menu->DeleteMenu(left_out_, MF_BYCOMMAND);
        CWntPulse::OnInitMenuPopup(menu, index, system);
    }
    DECLARE_MESSAGE_MAP()

private:
    UINT left_out_;
};
