#include <afxpriv.h>

#include <algorithm>
#include <array>

#include "controls_page.h"
#include "gallery_ids.h"
#include "log.h"

// Toolbars: one with everything, texts at each place, a narrow one with a chevron beside one that wraps, and an upright
// one. Their states come from the page's update handlers.

namespace {

constexpr UINT first_id = 10;
constexpr UINT zoom_id = 40;
constexpr UINT level_id = 41;

enum Command : UINT {
    cmd_start = 300,
    cmd_pause,
    cmd_stop,
    cmd_open,
    cmd_save,
    cmd_print,
    cmd_find,
    cmd_chart,
    cmd_bars,
    cmd_alarm,
    cmd_dial,
    cmd_last
};

constexpr const char* scripts[] = {
    nullptr, // everything there is: a script of its own, among the resources
    ":TEXT=BESIDE\n:RADIO=300,0,Start\n:RADIO=301,1,Pause\n:RADIO=302,2,Stop\n:SEPARATOR\n:ITEM=304,4,Save\n"
    ":ITEM=305,5,Print\n:SEPARATOR\n:CHECK=309,9,Alarm\n:STRETCH\n:DROPDOWN=310,10,View\n:MENU=307,Chart",
    ":TEXT=BELOW\n:RADIO=300,0,Start\n:RADIO=301,1,Pause\n:RADIO=302,2,Stop\n:SEPARATOR\n:SPLIT=303,3,Open\n"
    ":MENU=303,Open...\n:ITEM=304,4,Save\n:ITEM=305,5,Print\n:SEPARATOR\n:ITEM=306,6,Find\n:CHECK=307,7,Chart\n"
    ":CHECK=308,8,Bars\n:CHECK=309,9,Alarm\n:STRETCH\n:ITEM=310,10,View",
    ":TEXT=BESIDE\n:DRAG=1\n:RADIO=300,0,Start\n:RADIO=301,1,Pause\n:RADIO=302,2,Stop\n:SEPARATOR\n"
    ":ITEM=304,4,Save\n:ITEM=305,5,Print\n:CHECK=309,9,Alarm\n:DROPDOWN=310,10,View\n:MENU=307,Chart",
    ":TEXT=BESIDE\n:WRAP=1\n:RADIO=300,0,Start\n:RADIO=301,1,Pause\n:RADIO=302,2,Stop\n:SEPARATOR\n"
    ":ITEM=304,4,Save\n:ITEM=305,5,Print\n:CHECK=309,9,Alarm\n:DROPDOWN=310,10,View\n:MENU=307,Chart",
    ":TEXT=BESIDE\n:UPRIGHT=1\n:RADIO=300,0,Start\n:RADIO=301,1,Pause\n:RADIO=302,2,Stop\n:SEPARATOR\n"
    ":SPLIT=303,3,Open\n:MENU=303,Open...\n:ITEM=304,4,Save\n:ITEM=305,5,Print\n:SEPARATOR\n:CHECK=309,9,Alarm\n"
    ":STRETCH\n:DROPDOWN=310,10,View\n:MENU=307,Chart",
    ":TEXT=BELOW\n:RADIO=300,0,Start\n:RADIO=301,1,Pause\n:RADIO=302,2,Stop\n:SEPARATOR\n:SPLIT=303,3,Open\n"
    ":MENU=303,Open...\n:ITEM=304,4,Save\n:ITEM=305,5,Print\n:SEPARATOR\n:ITEM=306,6,Find\n:CHECK=309,9,Alarm",
};

constexpr const char* captions[] = {
    "Every kind of item; F6 goes into this one and back",
    "Texts beside the pictures",
    "Texts below them",
    "A chevron for what does not fit; to be rearranged",
    "The same items on several lines",
    "Upright",
    "The large pictures",
};

class CToolBarsPage : public CControlsPage {
public:
    const char* Title() const override { return "Toolbars"; }
    const char* Name() const override { return "toolbars"; }

    // An item under the pointer, one that is held down, and one that has no use now.
    void Settle() override {
        running_ = cmd_start;
        for (CWntToolBar& bar : bars_)
            bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        Point(bars_[1], cmd_print, WM_MOUSEMOVE);
        Point(bars_[0], cmd_open, WM_MOUSEMOVE);
        Point(bars_[2], cmd_find, WM_LBUTTONDOWN);
    }

    BOOL PreTranslateMessage(MSG* message) override {
        return bars_[0].FilterKey(message) || CControlsPage::PreTranslateMessage(message);
    }

protected:
    bool AddControls() override {
        const CRect nowhere(0, 0, 0, 0);
        const auto strip = [](UINT id) {
            return static_cast<HBITMAP>(
                ::LoadImageA(AfxGetInstanceHandle(), MAKEINTRESOURCEA(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
        };
        CBitmap small_strip, large_strip;
        small_strip.Attach(strip(IDB_TOOLS_SMALL));
        large_strip.Attach(strip(IDB_TOOLS_LARGE));
        for (std::size_t i = 0; i < bars_.size(); ++i) {
            const UINT id = first_id + static_cast<UINT>(i);
            CWntToolBar& bar = bars_[i];
            if (!bar.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, nowhere, this, id) ||
                (i == 0 && !AddEmbedded(bar)))
                return false;
            bar.SetPictures(i == 6 ? nullptr : static_cast<HBITMAP>(small_strip.m_hObject),
                            static_cast<HBITMAP>(large_strip.m_hObject));
            LoadLines(scripts[i] ? scripts[i] : StoredScript().c_str(),
                      [&](const char* line) { bar.LoadLine(line, 0); });
            bar.LoadLine("", 2);
            labels_[i] = AddText(captions[i], CRect(0, 0, 10, 10));
        }
        return true;
    }

    void Arrange(int width, int height) override {
        const int gap = 12, line = 20;
        const int upright = bars_[5].GetThickness(height);
        const int room = width - upright - 3 * gap;
        int y = gap;
        const auto place = [&](std::size_t i, int x, int wide) {
            if (labels_[i])
                Place(*labels_[i], x, y, wide, line);
            const int high = bars_[i].GetThickness(wide);
            Place(bars_[i], x, y + line, wide, high);
            return high + line + gap + gap / 2;
        };
        for (const std::size_t i : {0, 1, 2})
            y += place(i, gap, room);
        const int narrow = std::min(room, 260 * bars_[0].GetScale() / 100);
        y += place(3, gap, narrow);
        y += place(4, gap, narrow);
        place(6, gap, room);
        if (labels_[5])
            Place(*labels_[5], width - upright - gap, gap, upright, line);
        Place(bars_[5], width - upright - gap, gap + line, upright, std::max(height - 2 * gap - line, 0));
    }

    afx_msg void OnTool(UINT id) {
        Log("tool %u", id);
        if (id <= cmd_stop)
            running_ = id;
        if (id >= cmd_chart && id <= cmd_alarm)
            on_[id - cmd_chart] = !on_[id - cmd_chart];
        level_.SetCurVal(id == cmd_start ? 80 : 20);
    }
    afx_msg void OnUpdateTool(CCmdUI* state) {
        state->Enable(state->m_nID != cmd_print || running_ != cmd_start);
        if (state->m_nID <= cmd_stop)
            state->SetRadio(state->m_nID == running_);
        if (state->m_nID >= cmd_chart && state->m_nID <= cmd_alarm)
            state->SetCheck(on_[state->m_nID - cmd_chart]);
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& told = *reinterpret_cast<const NMHDR*>(lParam);
        if (told.code == WNT_TOOL_MOVED)
            Log("tool %u moved", reinterpret_cast<const WntToolNotify&>(told).id);
        return CControlsPage::OnNotify(wParam, lParam, result);
    }
    DECLARE_MESSAGE_MAP()

private:
    bool AddEmbedded(CWntToolBar& bar) {
        const int scale = bar.GetScale();
        if (!zoom_.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | CBS_DROPDOWNLIST, CRect(0, 0, 76 * scale / 100, 200),
                          &bar, zoom_id) ||
            !level_.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 120 * scale / 100, 20 * scale / 100), &bar,
                           level_id))
            return false;
        zoom_.SetFont(&font_);
        for (const char* part : {"50 %", "100 %", "200 %"})
            zoom_.AddString(part);
        zoom_.SetCurSel(1);
        level_.SetType(0);
        level_.SetTitles("", "%");
        level_.SetCurVal(80);
        return true;
    }
    static std::string StoredScript() {
        const HRSRC found = ::FindResourceA(AfxGetInstanceHandle(), MAKEINTRESOURCEA(IDR_PLANT_TOOLS), RT_RCDATA);
        const HGLOBAL loaded = found ? ::LoadResource(AfxGetInstanceHandle(), found) : nullptr;
        if (!loaded)
            return "";
        return {static_cast<const char*>(::LockResource(loaded)), ::SizeofResource(AfxGetInstanceHandle(), found)};
    }
    static void Point(CWntToolBar& bar, UINT id, UINT message) {
        CRect place;
        if (bar.GetItemRect(bar.FindItem(id), &place))
            bar.SendMessage(message, 0, MAKELPARAM(place.left + 5, place.top + 5));
    }

    std::array<CWntToolBar, 7> bars_; // before what they hold, which goes first
    CComboBox zoom_;
    CWntGauge level_;
    std::array<CStatic*, 7> labels_{};
    UINT running_ = cmd_stop;
    bool on_[cmd_alarm - cmd_chart + 1] = {false, false, true};
};

BEGIN_MESSAGE_MAP(CToolBarsPage, CControlsPage)
ON_COMMAND_RANGE(cmd_start, cmd_last, &CToolBarsPage::OnTool)
ON_UPDATE_COMMAND_UI_RANGE(cmd_start, cmd_last, &CToolBarsPage::OnUpdateTool)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeToolBarsPage() {
    return std::make_unique<CToolBarsPage>();
}
