#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "log.h"
#include "page.h"

// Tips: of rectangles, with everything that one may hold, and one that follows the pointer over a chart. A rendered
// page shows them below what they belong to.

namespace {

constexpr COLORREF paper = RGB(255, 255, 255), ink = RGB(40, 44, 52), curve = RGB(200, 40, 40);
constexpr int columns = 4;
constexpr UINT_PTR asked_tool = 4;

class CTipsPage : public CGalleryPage {
public:
    const char* Title() const override { return "Tips"; }
    const char* Name() const override { return "tips"; }

    void Settle() override {
        for (UINT_PTR tool = 1; tool <= columns; ++tool) {
            tips_.ShowTip(this, tool);
            KeepPicture(tool - 1);
        }
        const CRect area = Chart();
        Track(CPoint(area.left + area.Width() * 5 / 8, area.CenterPoint().y));
        KeepPicture(columns);
        tips_.HideTip();
        Invalidate();
    }

    BOOL PreTranslateMessage(MSG* message) override {
        if (message->message == WM_MOUSEMOVE && message->hwnd == m_hWnd) {
            CPoint at = message->pt;
            ScreenToClient(&at);
            const bool over = Chart().PtInRect(at) != FALSE;
            if (over)
                Track(at);
            else if (over_chart_)
                tips_.HideTip();
            over_chart_ = over;
        }
        tips_.RelayEvent(message);
        return CGalleryPage::PreTranslateMessage(message);
    }

protected:
    bool CreateContents() override {
        font_.CreatePointFont(90, "Arial");
        if (!tips_.Create(this, TTS_ALWAYSTIP))
            return false;
        const CRect nowhere(0, 0, 1, 1);
        tips_.AddTip(this, {"", "A line of text"}, nowhere, 1);
        tips_.AddTip(this,
                     {"Pressure too high", "The valve at the upper side does not close any more.\n\nCall the service.",
                      ::LoadIcon(nullptr, IDI_WARNING), CLR_NONE},
                     nowhere, 2);
        tips_.AddTip(this,
                     {"Channel 3",
                      "Temperature of the outer wall, taken every second and shown as a mean of "
                      "ten values",
                      nullptr, RGB(200, 40, 40)},
                     nowhere, 3);
        tips_.AddTool(this, LPSTR_TEXTCALLBACK, nowhere, asked_tool);
        return true;
    }

    void Arrange(int, int) override {
        tips_.SetMaxTipWidth(Box(0).Width());
        for (int i = 0; i < columns; ++i)
            tips_.SetToolRect(this, static_cast<UINT_PTR>(i + 1), Box(i));
        Invalidate();
    }

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        auto& told = *reinterpret_cast<NMHDR*>(lParam);
        if (told.code == WNT_TIP_NEEDED && told.idFrom == asked_tool) {
            WntTip& tip = reinterpret_cast<WntTipNotify&>(told).tip;
            tip.title = "Asked for";
            tip.text.Format("This is answer %d.", ++asked_);
            tip.icon = ::LoadIcon(nullptr, IDI_INFORMATION);
            Log("tip asked %d", asked_);
            return TRUE;
        }
        return CGalleryPage::OnNotify(wParam, lParam, result);
    }

    afx_msg void OnPaint() {
        CPaintDC dc(this);
        CFont* before = dc.SelectObject(&font_);
        dc.SetBkMode(TRANSPARENT);
        for (int i = 0; i < columns; ++i) {
            static constexpr const char* names[] = {"text", "title, text, icon", "sample of a colour", "asked for"};
            CRect box = Box(i);
            dc.FillSolidRect(box, paper);
            dc.Draw3dRect(box, ::GetSysColor(COLOR_BTNSHADOW), ::GetSysColor(COLOR_BTNSHADOW));
            dc.SetBkMode(TRANSPARENT);
            dc.SetTextColor(ink);
            dc.DrawText(names[i], -1, box, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        }
        PaintChart(dc);
        for (std::size_t i = 0; i < pictures_.size(); ++i)
            PaintPicture(dc, i);
        dc.SelectObject(before);
    }
    DECLARE_MESSAGE_MAP()

private:
    CRect Client() const {
        CRect client;
        GetClientRect(&client);
        return client;
    }
    CRect Box(int i) const {
        const int wide = (Client().Width() - 12) / columns;
        return CRect(12 + i * wide, 12, i * wide + wide, 60);
    }
    CRect Chart() const {
        CRect area = Client();
        area.DeflateRect(12, 220, 12, 12);
        return area;
    }
    static double Value(double part) { return 50 + 35 * std::sin(part * 9) * std::cos(part * 4 + 1); }
    CPoint At(double part) const {
        const CRect area = Chart();
        return CPoint(area.left + static_cast<int>(part * area.Width()),
                      area.bottom - static_cast<int>(Value(part) * area.Height() / 100));
    }

    void PaintChart(CDC& dc) const {
        const CRect area = Chart();
        dc.FillSolidRect(area, paper);
        for (int i = 1; i < 10; ++i)
            dc.FillSolidRect(area.left, area.top + area.Height() * i / 10, area.Width(), 1, RGB(224, 228, 234));
        CPen pen(PS_SOLID, 2, curve);
        CPen* before = dc.SelectObject(&pen);
        dc.MoveTo(At(0));
        for (int i = 1; i <= 200; ++i)
            dc.LineTo(At(i / 200.0));
        dc.SelectObject(before);
    }

    void Track(CPoint at) {
        const double part = static_cast<double>(at.x - Chart().left) / std::max(Chart().Width(), 1);
        WntTip tip = {"Outer wall", "", nullptr, curve};
        tip.text.Format("t = %.2f s\nT = %.1f \xB0"
                        "C",
                        part * 60, Value(part));
        CPoint screen = at;
        ClientToScreen(&screen);
        tips_.TrackTip(tip, screen);
    }

    // What the tip shows now, and where, seen from the page.
    void KeepPicture(std::size_t i) {
        CRect place;
        tips_.GetWindowRect(&place);
        ScreenToClient(&place);
        CClientDC from(&tips_);
        CDC memory;
        memory.CreateCompatibleDC(&from);
        pictures_[i].bitmap.DeleteObject();
        pictures_[i].bitmap.CreateCompatibleBitmap(&from, place.Width(), place.Height());
        CBitmap* before = memory.SelectObject(&pictures_[i].bitmap);
        memory.BitBlt(0, 0, place.Width(), place.Height(), &from, 0, 0, SRCCOPY);
        memory.SelectObject(before);
        pictures_[i].place = place;
    }
    void PaintPicture(CDC& dc, std::size_t i) {
        if (!pictures_[i].bitmap.m_hObject)
            return;
        CDC memory;
        memory.CreateCompatibleDC(&dc);
        CBitmap* before = memory.SelectObject(&pictures_[i].bitmap);
        const CRect& place = pictures_[i].place;
        dc.BitBlt(place.left, place.top, place.Width(), place.Height(), &memory, 0, 0, SRCCOPY);
        memory.SelectObject(before);
    }

    struct Shown {
        CBitmap bitmap;
        CRect place;
    };
    CToolTipCtrlEx tips_;
    CFont font_;
    std::array<Shown, columns + 1> pictures_;
    bool over_chart_ = false;
    int asked_ = 0;
};

BEGIN_MESSAGE_MAP(CTipsPage, CGalleryPage)
ON_WM_PAINT()
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeTipsPage() {
    return std::make_unique<CTipsPage>();
}
