#pragma once

#include <memory>
#include <string>

#include "controls/pane_window.h"

namespace wnt {
class ControlFont;
class PaintPass;
struct TipFile;
} // namespace wnt

/// Notifications of a tip page, as WM_NOTIFY with an NMHDR.
enum WntTipPageCode : UINT {
    WNT_TIP_TURNED = 146, ///< after the user turned to another tip
    WNT_TIP_START = 147,  ///< after the user chose whether tips are shown at start
};

/// The tip of the day: a page for CWntTabs, or a window of its own in a dialog or popup.
///
///     if (CWntTipPage::IsShownAtStart(profile, "Tips")) {
///         page.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 420, 240), this, 1);
///         page.LoadTips("tips.txt");
///         page.SetProfile(profile, "Tips"); // the tip behind the last one
///     }
///
/// Tips stand in a text file, a paragraph each, with blank lines between. The lines of a paragraph are joined; one that
/// begins with a blank stays a line of its own. Lines that begin with `;` are comments. The file is UTF-8 or of the
/// system's code page; of a tip 64 KB count, of a file 4 MB. A file that is missing or without tips shows a sentence
/// that says so.
///
/// Alt+N and Alt+P turn to the next and previous tip, round the ends, Alt+S chooses whether tips are shown at start. In
/// a dialog template the class is "WntTipPage" and the text the name of the file.
///
/// Operations answer 1, or 0 when they did nothing.
class ZOPWNT_API CWntTipPage : public wnt::PaneWindow {
public:
    CWntTipPage();
    ~CWntTipPage() override;

    /// Shows the first tip, or with a profile the one behind the last. 0 when the file cannot be opened or has no tip.
    int LoadTips(const char* file);
    /// From now on the last tip and the choice are kept in section `name` of a profile file. Shows the tip behind the
    /// one that is stored there.
    int SetProfile(const char* profile, const char* name);
    /// What is stored; 1 when nothing is.
    static int IsShownAtStart(const char* profile, const char* name);

    int GetTipCount() const;
    /// Counted from 0; -1: none.
    int GetTip() const;
    int ShowTip(int tip);
    /// In the system's code page, lines end with "\r\n"; what is shown instead where there is none.
    CString GetTipText() const;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    bool build() override;
    void leave() override;
    void lay_out(int cx, int cy) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnEnable(BOOL enabled);
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    struct Places;

    void take_text(const CString& text) override;
    void rescale(bool settings_changed);
    Places places() const;
    void paint_bulb(wnt::PaintPass& pass, const CRect& place);
    std::wstring shown_text() const;
    void start();
    void turn_to(int tip);
    void show_text();
    void turn_by_user(int step);
    void choose_by_user();
    void store(const char* key, int value);

    std::unique_ptr<wnt::TipFile> file_;
    bool opened_ = false;
    int tip_ = -1;
    int scale_ = 100;
    CString profile_, section_;
    std::unique_ptr<wnt::ControlFont> font_, heading_;
    HWND text_ = nullptr; // takes any characters, whatever the code page
    CButton at_start_, previous_, next_;
};
