#pragma once

#include "channel_report.h"
#include "simulated_channel.h"

#include <afxcmn.h>
#include <afxdtctl.h>

#include <vector>

/// A button of the library that sends its parent a command, which it does not do by itself.
class CCommandButton : public CWntButton {
protected:
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()
};

/// The settings of one channel, and its readings as they come.
///
/// The library's widgets are members: their window classes, which the template names, are known once an object of the
/// widget exists.
class CChannelDialog : public CDialog {
public:
    explicit CChannelDialog(const ChannelSettings& settings);
    const ChannelSettings& Settings() const { return settings_; }

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* exchange) override;
    afx_msg void OnApply();
    afx_msg void OnRun();
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnHScroll(UINT request, UINT position, CScrollBar* bar);
    afx_msg void OnPage(NMHDR* header, LRESULT* result);
    afx_msg void OnLast(NMHDR* header, LRESULT* result);
    afx_msg void OnTab(NMHDR* header, LRESULT* result);
    afx_msg void OnSash(NMHDR* header, LRESULT* result);
    afx_msg void OnColumn(NMHDR* header, LRESULT* result);
    afx_msg void OnInk();
    afx_msg void OnInsertReading();
    afx_msg void OnNextTip();
    afx_msg void OnEdit(UINT command);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void JoinControls(CDataExchange* exchange);
    void ExchangeChannel(CDataExchange* exchange);
    void ExchangeLimits(CDataExchange* exchange);
    void ExchangeDates(CDataExchange* exchange);
    void FillBoxes();
    void FillPages();
    void PrepareRanges();
    void PrepareTips();
    void UpdateTexts();
    void CollectPages();
    void BuildPanes();
    void BuildBars();
    void ShowTabPage(int page);
    void ShowPageOf(HWND control);
    void PlacePages();
    bool TurnPage(const MSG& message);

    void ShowSettings();
    void ShowZones(CWntGauge& gauge) const;
    void ShowPage();
    void Run(bool running);
    void Log(int value);
    CString ZoneOf(int value) const;

    bool TakeOver();

    ChannelSettings settings_; // what is measured
    ChannelSettings entered_;  // what the controls show; some of it may be refused yet
    SimulatedChannel channel_;
    bool running_ = false;
    int readings_ = 0, last_value_ = 0;
    std::vector<HWND> tab_pages_[4]; // the controls of each

    CWntToolBar actions_;
    CWntTabs tabs_;
    CWntFrame reading_;
    CWntFrameEx simulation_;
    CWntSash sash_;
    CWntPulse chart_;
    CWntTipPage tip_page_;
    CWntGauge gauge_, trend_;
    CWntAxis axis_;
    CCommandButton run_;
    CWntCalendar plan_;
    CWntColorSel inside_, beyond_;

    CSpinButtonCtrl lower_spin_, upper_spin_, low_limit_spin_, high_limit_spin_;
    CSliderCtrl rate_;
    CScrollBar damping_;
    CHotKeyCtrl hot_key_;
    CCheckListBox tell_;
    ChannelReport report_;
    CDateTimeCtrl last_;
    CMonthCalCtrl next_;
    CAnimateCtrl animation_;
    CProgressCtrl filling_;
    CTabCtrl pages_;
    CListCtrl log_;
    CTreeCtrl plant_;
    CStatusBarCtrl status_;
    CToolTipCtrl tips_;
};
