#pragma once

#include "front_end_settings.h"

#include <afxdlgs.h>

class CLimitsPage : public CPropertyPage {
public:
    explicit CLimitsPage(FrontEndSettings& settings);

protected:
    void DoDataExchange(CDataExchange* exchange) override;

private:
    FrontEndSettings& settings_;
};

class CColoursPage : public CPropertyPage {
public:
    explicit CColoursPage(FrontEndSettings& settings);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    afx_msg void OnChannel();
    afx_msg void OnColour(NMHDR* told, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    FrontEndSettings& settings_;
    CListBox channels_;
    CWntColorSel selector_; // a member: the template finds its class
};

class CRecordingPage : public CPropertyPage {
public:
    explicit CRecordingPage(FrontEndSettings& settings);

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    afx_msg void OnBrowse();
    DECLARE_MESSAGE_MAP()

private:
    FrontEndSettings& settings_;
};

/// Changes a copy of the settings: what is confirmed is in Chosen().
class CSettingsSheet : public CPropertySheet {
public:
    CSettingsSheet(const FrontEndSettings& settings, CWnd* parent);
    const FrontEndSettings& Chosen() const { return chosen_; }

private:
    FrontEndSettings chosen_;
    CLimitsPage limits_;
    CColoursPage colours_;
    CRecordingPage recording_;
};
