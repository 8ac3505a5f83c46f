#pragma once

#include <zopwnt.h>

/// The tip of the day in a box of its own; the page keeps in the profile which tip comes next.
class CTipDialog : public CDialog {
public:
    CTipDialog(const CString& tips, const CString& profile, CWnd* parent);
    static bool IsWanted(const CString& profile);
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

private:
    CString file_, profile_;
    CWntTipPage tips_; // a member: the template finds its class
};
