#pragma once

#include "alarm_banner.h"
#include "alarm_horn.h"
#include "history_page.h"
#include "overview_page.h"
#include "report_page.h"
#include "trend_page.h"

#include <afxext.h>

#include <memory>

/// Toolbar, banner and the pages behind tabs; asks for the plant's news ten times a second.
class CMainFrame : public CFrameWnd {
public:
    explicit CMainFrame(FrontEnd& front_end);

    /// Shown as it was left the last time.
    void RestorePlace(int show);
    /// Takes the plant's news now.
    void Update();
    CWntTabs& Tabs() { return tabs_; }
    COverviewPage& Overview() { return overview_; }
    CTrendPage& Trend() { return trend_; }
    CHistoryPage& History() { return history_; }

    BOOL PreTranslateMessage(MSG* message) override;
    void RecalcLayout(BOOL notify = TRUE) override;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnClose();
    afx_msg void OnEndSession(BOOL ends);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* sizes);
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);

    afx_msg void OnSimulatorStart();
    afx_msg void OnUpdateSimulatorStart(CCmdUI* ui);
    afx_msg void OnSimulatorEnd();
    afx_msg void OnUpdateSimulatorEnd(CCmdUI* ui);
    afx_msg void OnSwitch(UINT id);
    afx_msg void OnUpdateSwitch(CCmdUI* ui);
    afx_msg void OnFault(UINT id);
    afx_msg void OnUpdateFault(CCmdUI* ui);
    afx_msg void OnAcknowledge();
    afx_msg void OnUpdateAcknowledge(CCmdUI* ui);
    afx_msg void OnSound();
    afx_msg void OnUpdateSound(CCmdUI* ui);
    afx_msg void OnRecord();
    afx_msg LRESULT OnRecordingFailed(WPARAM, LPARAM);
    afx_msg void OnUpdateRecord(CCmdUI* ui);
    afx_msg void OnReportClear();
    afx_msg void OnPrint();
    afx_msg void OnSettings();
    afx_msg void OnPage(UINT id);
    afx_msg void OnUpdatePage(CCmdUI* ui);
    afx_msg void OnTrace();
    afx_msg void OnUpdateTrace(CCmdUI* ui);
    afx_msg void OnTip();
    afx_msg void OnVersions();
    afx_msg void OnUpdateLink(CCmdUI* ui);
    afx_msg void OnUpdateRecording(CCmdUI* ui);
    DECLARE_MESSAGE_MAP()

private:
    std::array<CFrontPage*, 4> Pages() { return {&overview_, &trend_, &history_, &report_}; }
    bool CreateTools();
    bool CreatePages();
    void LookForDays();
    void ShowSettings();
    void TellRecordingFault(const CString& fault);
    void StorePlace();
    /// Told once where the profile cannot be written.
    void StoreSettings();

    FrontEnd& front_end_;
    CWntToolBar tools_;
    CStatusBar status_;
    CAlarmBanner banner_;
    CWntTabs tabs_; // before its pages, so that they go first
    COverviewPage overview_;
    CTrendPage trend_;
    CHistoryPage history_;
    CReportPage report_;
    std::unique_ptr<CWntTrace> trace_;
    AlarmHorn horn_;
    bool told_unkept_ = false;
};
