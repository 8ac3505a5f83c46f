#include "axis_reference.h"
#include "modal.h"
#include "widget_window.h"

#include <string>

namespace {

constexpr COLORREF shadow = RGB(10, 20, 30);

struct ZoomedAxis : CWntAxis {
    void OnZoomed() override { ++zoomed; }
    int zoomed = 0;
};

struct AxisTest : WidgetTest {
    void SetUp() override {
        set_shadow(shadow);
        WidgetTest::SetUp();
        open(axis_, 0, 0);
    }

    void TearDown() override {
        WidgetTest::TearDown();
        set_shadow(shadow_);
    }

    // On classic screens the shadow has the colour of the axis' ground.
    static void set_shadow(COLORREF colour) {
        const int element = COLOR_BTNSHADOW;
        ::SetSysColors(1, &element, &colour);
    }

    void size(int width, int height) { axis_.MoveWindow(0, 0, width, height); }

    void expect_shown(int position, bool time, const std::vector<AxisMark>& marks) {
        const Pixels shown = repainted(axis_);
        Picture expected(shown.width, shown.height);
        const AxisLook look = {position, time ? time_ticks_start : value_ticks_start,
                               time ? time_labels_start : value_labels_start};
        paint_axis(expected.dc(), shown.width, shown.height, look, marks);
        EXPECT_TRUE(shown.values == expected.values()) << "position " << position;
    }

    void mouse(UINT message, int x, int y, WPARAM keys = 0) { axis_.SendMessage(message, keys, MAKELPARAM(x, y)); }

    void drag(CPoint from, CPoint to) {
        mouse(WM_MOUSEMOVE, from.x, from.y);
        mouse(WM_LBUTTONDOWN, from.x, from.y, MK_LBUTTON);
        mouse(WM_MOUSEMOVE, to.x, to.y, MK_LBUTTON);
    }

    const COLORREF shadow_ = ::GetSysColor(COLOR_BTNSHADOW);
    ZoomedAxis axis_;
};

TEST_F(AxisTest, NumericTicksAndLabelsOfAllPositions) {
    // Steps of 2, six pixels each, every fifth labelled; upright ones round one pixel lower.
    std::vector<AxisMark> across, upright;
    for (int k = 1; k <= 50; ++k) {
        const std::string label = k % 5 ? "" : std::to_string(2 * k);
        across.push_back({6 * k, k % 5 ? 2 : 6, label});
        upright.push_back({301 - 6 * k, k % 5 ? 2 : 6, k < 50 ? label : ""}); // none in the uppermost rows
    }
    for (int position = 0; position < 4; ++position) {
        axis_.SetFlags(position, 7, 0);
        size(50, 90);
        full_repaint(axis_); // what it keeps of this is too low for the next
        position % 2 ? size(50, 300) : size(300, 50);
        axis_.SetRange(0.0f, 100.0f);
        expect_shown(position, false, position % 2 ? upright : across);
    }
}

TEST_F(AxisTest, TextsAndTheirAbsence) {
    std::vector<CString> texts = {"Inflow", "", CString('W', 300)};
    axis_.SetFlags(2, 3, 1);
    size(300, 40);
    axis_.SetTexts(3, nullptr);
    axis_.UpdateWindow();
    axis_.SetTexts(3, texts.data());
    EXPECT_TRUE(::GetUpdateRect(axis_, nullptr, FALSE));
    full_repaint(axis_);
    axis_.SetTicks(50); // what lies beyond the last label has none
    EXPECT_TRUE(::GetUpdateRect(axis_, nullptr, FALSE));
    const char* none = "No title specified";
    const std::string cut(49, 'W');
    expect_shown(2, false, {{0, 6, "Inflow"}, {100, 6, ""}, {200, 6, cut}, {300, 6, none}, {301, 6, none}});
}

TEST_F(AxisTest, TimeTicksAndLabels) {
    TAxisdatetime start = {21, 11, 2026, 6, 0, 0, 0};
    TAxisdatetime end = {21, 11, 2026, 18, 0, 0, 0};
    std::vector<AxisMark> across, upright;
    for (int k = 0; k < 12; ++k) {
        across.push_back({50 * k, 3, std::string(k < 4, ' ') + std::to_string(6 + k) + "h"});
        upright.push_back({600 - 50 * k, 3, ""}); // no labels where the first tick is a time after 1980
    }
    axis_.SetAxisPosition(2);
    size(600, 40);
    axis_.SetViewTime(&start, nullptr);
    axis_.SetViewTime(&start, &end);
    expect_shown(2, true, across);
    axis_.SetAxisPosition(1);
    size(40, 600);
    axis_.SetViewTime(&start, &end);
    expect_shown(1, true, upright);
    TAxisdatetime shown_start, shown_end;
    axis_.GetViewTime(&shown_start, &shown_end);
    EXPECT_EQ(shown_start.year, 2026);
    EXPECT_EQ(shown_end.hour, 18);
}

TEST_F(AxisTest, ConvertsBetweenPixelsAndWhatItShows) {
    axis_.SetFlags(2, 7, 0);
    EXPECT_EQ(axis_.GetGridCount(), 7);
    size(315, 40);
    axis_.UpdateWindow();
    axis_.SetRange(-12.0f, 88.0f);
    EXPECT_TRUE(::GetUpdateRect(axis_, nullptr, FALSE));
    axis_.SetTicks(9);
    axis_.MakeRange();
    EXPECT_THAT((std::vector{axis_.GetGridCount(), axis_.GetScaleLineCount(), axis_.GetScaleLinePos(2),
                             axis_.GetScaleLinePos(99), axis_.GetTickWidth()}),
                testing::ElementsAre(100, 20, 54, 316, 3));
    EXPECT_FLOAT_EQ(axis_.PixelPerGrid(), 3.15f);
    float inside = 5, strict = 5, beyond = 5;
    int pixel = -9, clamped = -9, beyond_pixel = -9;
    __int64 time = -9;
    EXPECT_THAT((std::vector{axis_.CalcFloatCoord(63, &inside), axis_.CalcFloatCoord(378, &strict),
                             axis_.ScreenToValue(378, &beyond), axis_.ValueToScreen(8.5f, &pixel),
                             axis_.ValueToScreen(99.0f, &beyond_pixel), axis_.CalcPixelCoord(8.5f, &clamped)}),
                testing::ElementsAre(1, 0, 0, 0, 1, 1));
    EXPECT_THAT((std::vector{inside, strict, beyond}), testing::Pointwise(testing::FloatEq(), {8.0f, 5.0f, 108.0f}));
    EXPECT_THAT((std::vector{pixel, beyond_pixel, clamped}), testing::ElementsAre(65, 316, 64));
    beyond_pixel = -9;
    constexpr __int64 start = 32 * 8'640'000; // of 1 February 1980
    axis_.SetRange(start, start + 6'300);
    axis_.SetCurrentDay(1980, 2, 1);
    EXPECT_THAT(
        (std::vector{axis_.ScreenToValue(7, &time), axis_.ValueToScreen(start + 170, &pixel),
                     axis_.ValueToScreen(start - 1, &clamped), axis_.ValueToScreen(start + 6'301, &beyond_pixel),
                     axis_.SetCurrentTime(190), axis_.SetCurrentTime(start + 210)}),
        testing::ElementsAre(1, 0, -1, 1, 9, 10));
    EXPECT_THAT((std::vector<__int64>{time - start, pixel, clamped, beyond_pixel}),
                testing::ElementsAre(140, 8, -1, 316));
}

// Draws what a derived class can besides.
struct MarkedAxis : CWntAxis {
    using CWntAxis::position_description_, CWntAxis::title_, CWntAxis::value_title_;
    using CWntAxis::title_font_, CWntAxis::value_font_, CWntAxis::engraved_ticks_;
    void OnPaint() {
        CPaintDC dc(this);
        dc.FillSolidRect(CRect(0, 0, 40, 40), RGB(255, 255, 0));
        if (zooms) {
            SetZoomRects(1);
            PaintZoomControl(&dc);
            return;
        }
        shadowline(&dc, 24, 14, 24, 17, 1);
        DrawBorder(&dc, 14, 14, 4, 3, 0, 1);
        DrawBorder(&dc, 19, 14, 4, 3, 1, 0);
        upright ? vertical_time_scale(&dc, 25) : horizontal_time_scale(&dc, 25);
    }
    bool upright = false, zooms = false;
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(MarkedAxis, CWntAxis)
ON_WM_PAINT()
END_MESSAGE_MAP()

TEST_F(AxisTest, DerivedAxesDrawBordersAndTimeMarks) {
    MarkedAxis axis;
    open(axis, 40, 36);
    const CRect borders(13, 13, 26, 18);
    Pixels seen;
    CString marks;
    Picture printed(40, 36);
    for (int position = 0; position < 4; ++position) {
        axis.SetFlags(position, 7, 0);
        axis.SetRange(0.0f, 100.0f);
        axis.upright = position % 2;
        seen = repainted(axis);
        for (int i = 0; i < seen.width * seen.height; ++i)
            if (seen.values[i] == shadow && !borders.PtInRect(CPoint(i % seen.width, i / seen.width)))
                marks.AppendFormat("%d,%d ", i % seen.width, i / seen.width);
        axis.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(printed.dc()));
        marks += axis.position_description_ + CString("| ");
    }
    EXPECT_STREQ(marks, "11,31 11,32 11,33 11,34 11,35 X Axis at top| "
                        "28,27 29,27 30,27 31,27 32,27 33,27 34,27 35,27 36,27 37,27 38,27 39,27 Y Axis at left| "
                        "11,1 11,2 11,3 11,4 11,5 X Axis at bottom| "
                        "1,27 2,27 3,27 4,27 5,27 6,27 7,27 8,27 9,27 10,27 11,27 12,27 Y Axis at right| ");
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    EXPECT_EQ(sketch(seen, borders, {{shadow, 's'}, {light, 'l'}, {RGB(255, 255, 0), ' '}}),
              "             \n"
              " sssl llls sl\n"
              " s??l l  s sl\n" // filled and not
              " llll ssss sl\n"
              "             \n");
    axis.engraved_ticks_ = FALSE;
    const Pixels engraved = {40, 36, printed.values()};
    axis.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(printed.dc()));
    EXPECT_EQ(std::pair(engraved.count(light) - printed.count(light), printed.count(shadow)), std::pair(28L, 103L));
    axis.zooms = true;
    axis.SetAxisPosition(1);
    EXPECT_EQ(sketch(repainted(axis), CRect(0, 0, 9, 3),
                     {{RGB(255, 255, 0), ' '}, {shadow, 's'}, {light, 'l'}, {RGB(0, 128, 0), '#'}}),
              "llllllls \nl######s \nl######s \n");
    CString title = "title", value_title = "value";
    axis.SetTitle(&title);
    axis.SetValueTitle(&value_title);
    LOGFONT fonts[2] = {};
    axis.title_font_.GetLogFont(&fonts[0]);
    axis.value_font_.GetLogFont(&fonts[1]);
    EXPECT_THAT((std::vector<LONG>{fonts[0].lfHeight, fonts[1].lfHeight}), testing::ElementsAre(-25, -15));
    EXPECT_EQ(axis.title_ + "," + axis.value_title_, "title,value");
    short day[3] = {};
    EXPECT_EQ(axis.SetCurrentDay(2026, 11, 21), 1);
    axis.GetCurrentDay(&day[0], &day[1], &day[2]);
    EXPECT_THAT(day, testing::ElementsAre(2026, 11, 21));
}

TEST_F(AxisTest, AFollowedRangeIsSeenAtOnce) {
    axis_.FollowRange(0, 6'000); // before it has a size
    axis_.SetAxisType(2);
    for (const CSize& extent : {CSize(300, 40), CSize(500, 60), CSize(90, 30)}) {
        size(extent.cx, extent.cy);
        const Pixels before = repainted(axis_);
        axis_.FollowRange(extent.cx, extent.cx + 6'000);
        EXPECT_FALSE(::GetUpdateRect(axis_, nullptr, FALSE));
        const Pixels seen = pixels_of(axis_);
        EXPECT_NE(seen, before) << extent.cx;
        EXPECT_EQ(seen, repainted(axis_)) << extent.cx;
        Picture copy(extent.cx, extent.cy);
        axis_.FollowRange(extent.cx, extent.cx + 6'000, CDC::FromHandle(copy.dc()));
        EXPECT_EQ(copy.values(), seen.values) << extent.cx;
    }
    axis_.SetRange(0LL, 6'000LL); // one that is set waits for its paint
    EXPECT_TRUE(::GetUpdateRect(axis_, nullptr, FALSE));
}

TEST_F(AxisTest, ZoomControlFollowsTheMouse) {
    const auto zoom = [this] { // the slider's pixels and those of the box around it
        full_repaint(axis_);
        std::string text;
        for (int x : {5, 20, 40, 150, 190, 210, 290}) {
            const COLORREF colour = pixels_of(axis_).at(x, 56);
            text += colour == RGB(0, 128, 0) ? '#' : colour == RGB(0, 255, 0) ? '.' : ' ';
        }
        return text;
    };
    const auto captured = [this] { return ::GetCapture() == axis_.m_hWnd; };
    size(300, 60);
    axis_.SetRange(0.0f, 100.0f);
    double from = -1, to = -1;
    EXPECT_EQ(axis_.GetZoom(&from, &to), 0); // not shown yet
    axis_.UpdateWindow();
    axis_.SendMessage(WM_COMMAND, 100);
    EXPECT_TRUE(::GetUpdateRect(axis_, nullptr, FALSE));
    EXPECT_EQ(zoom(), "#######");

    drag({297, 55}, {200, 55}); // the far grip
    EXPECT_TRUE(captured());
    mouse(WM_LBUTTONUP, 200, 55);
    EXPECT_FALSE(captured());
    EXPECT_EQ(zoom(), "#####..");

    drag({100, 55}, {130, 55}); // its middle
    EXPECT_EQ(zoom(), "..####.");
    mouse(WM_MOUSEMOVE, 30, 55, MK_LBUTTON); // further than the start
    mouse(WM_MOUSEMOVE, 30, 20, MK_LBUTTON); // outside the control: ignored
    mouse(WM_LBUTTONUP, 30, 55);
    EXPECT_EQ(zoom(), "#####..");

    drag({100, 55}, {100, 55});
    host_.SetCapture(); // takes the mouse away, which ends the drag though the button is down
    ::ReleaseCapture();
    mouse(WM_MOUSEMOVE, 130, 55, MK_LBUTTON);
    EXPECT_EQ(zoom(), "#####..");
    EXPECT_EQ(axis_.zoomed, 2);

    drag({100, 55}, {290, 55}); // further than the end
    mouse(WM_LBUTTONUP, 290, 55);
    EXPECT_EQ(zoom(), ".... ##");
    axis_.SetAxisPosition(1);
    size(60, 300);
    axis_.SetRange(0.0f, 100.0f);
    drag({5, 297}, {5, 200});
    EXPECT_EQ(axis_.GetZoom(&from, &to), 1);
    EXPECT_NEAR(from, 1.0 / 3, 0.02) << "counted from the lower end";
    EXPECT_NEAR(to, 1, 0.02);
    mouse(WM_LBUTTONUP, 5, 200);
    drag({5, 3}, {5, 90}); // the other grip
    axis_.GetZoom(&from, &to);
    EXPECT_NEAR(from, 1.0 / 3, 0.02);
    EXPECT_NEAR(to, 0.7, 0.02);
}

TEST_F(AxisTest, ZoomControlLooksLikeItsSketches) {
    axis_.SetAxisType(2); // without ticks
    axis_.SendMessage(WM_COMMAND, 100);
    std::vector<Pixels> shown;
    for (const int position : {0, 1, 2, 3}) {
        axis_.SetAxisPosition(position);
        size(6, 6);
        axis_.SetRange(0.0f, 100.0f); // the slider keeps the place that it has here
        size(11, 9);
        shown.push_back(repainted(axis_));
    }
    const std::vector<std::pair<COLORREF, char>> names = {{shadow, 's'},
                                                          {::GetSysColor(COLOR_BTNHIGHLIGHT), 'l'},
                                                          {RGB(128, 128, 128), '.'},
                                                          {RGB(0, 255, 0), 'b'},
                                                          {RGB(0, 128, 0), '#'}};
    std::string rows;
    for (int y = 0; y < 9; ++y, rows += '\n')
        for (const Pixels& each : shown)
            rows += " " + sketch(each, CRect(0, y, 11, y + 1), names).substr(0, 11);
    EXPECT_EQ(rows, R"( lllllllllls lllllllslls l####sssssl lllssssssss
 l.........s l######s..s ssssssbbbbl ###sbbbbbbb
 l.........s l######s..s sbbbbbbbbbl ###sbbbbbbb
 l.........s l######s..s sbbbbbbbbbl ###sbbbbbbb
 l.........s l######s..s sbbbbbbbbbl ###sbbbbbbb
 l.........s ssssssss..s sbbbbbbbbbl ssssbbbbbbb
 l.........s sbbbbbbl..s sbbbbbbbbbl l..sbbbbbbb
 l.lllsssssl sbbbbbbl..s lllllllllll l..sbbbbbbb
 sssssslllll llllllllsss sssssssssss sssllllllll
)");
}

TEST_F(AxisTest, PropertiesShowItsLimitsAndOrientation) {
    CString shown;
    for (const int position : {0, 1, 2, 3}) {
        axis_.SetFlags(position, 7, 0);
        const WhileModal modal([&] {
            CWnd* dialog = CWnd::FromHandle(shown_dialog());
            for (int id = 1026; dialog && id <= 1028; ++id) {
                CString text;
                dialog->GetDlgItemText(id, text);
                shown += text + ";";
            }
            if (dialog)
                shown += dialog->IsDlgButtonChecked(1127) ? "x " : "- ";
            return dialog && dialog->PostMessage(WM_COMMAND, IDOK);
        });
        axis_.SendMessage(WM_COMMAND, 101);
    }
    EXPECT_STREQ(shown, "   0.00; 100.00;   0.00;-    0.00; 100.00;   0.00;- "
                        "   0.00; 100.00;   0.00;x    0.00; 100.00;   0.00;x ");
}

TEST_F(AxisTest, DraggingTheZoomPaintsAllThatChanges) {
    for (int position = 0; position < 4; ++position) {
        const bool across = position % 2 == 0;
        axis_.SetFlags(position, 100, 0);
        across ? size(300, 40) : size(40, 300);
        axis_.SetRange(0.0f, 100.0f); // lays the slider out for this size
        axis_.SendMessage(WM_COMMAND, 100);
        across ? size(300, 70) : size(70, 300); // which the box follows, and the slider does not
        const Pixels before = repainted(axis_);
        const CPoint end = across ? CPoint(297, 65) : CPoint(position == 1 ? 5 : 65, 297);
        const CPoint middle = across ? CPoint(150, 65) : CPoint(end.x, 150);
        drag(end, middle);
        const Pixels dragged = pixels_of(axis_);
        EXPECT_EQ(dragged == before, position == 0) << "the one at the top cannot be dragged: " << position;
        EXPECT_EQ(dragged, repainted(axis_)) << "position " << position;
        ::ReleaseCapture();
        mouse(WM_MOUSEMOVE, middle.x, middle.y);
        axis_.SendMessage(WM_COMMAND, 100);
    }
}

TEST_F(AxisTest, PointerTellsWhatADragWouldDo) {
    const auto pointer = [](const char* name) { return ::LoadCursorA(::GetModuleHandleA("ZOPWNT.dll"), name); };
    axis_.SendMessage(WM_COMMAND, 100);
    for (const bool across : {true, false}) {
        axis_.SetFlags(across ? 2 : 3, 100, 0);
        size(300, 300);
        axis_.SetRange(0.0f, 100.0f);
        for (const int at : {0, 4, 5, 294, 295, 299}) {
            const CPoint place = across ? CPoint(at, 295) : CPoint(295, at);
            const CString name =
                CString("IDC_AXIS_") + (across ? "X_" : "Y_") + (at == 5 || at == 294 ? "MOVE" : "ENLARGE");
            EXPECT_EQ(pointer_at(axis_, place), pointer(name)) << name << at; // as the system asks before each move
        }
    }
}

TEST_F(AxisTest, DoubleClicksAreTold) {
    CString texts[4] = {"x", "x", "x", "x"};
    int item = -1;
    host_.on_message = [&](UINT message) { item = message == WM_NOTIFY ? axis_.QueryDoubleclickedItem() : item; };
    const auto clicked = [&](int x, int y) {
        mouse(WM_LBUTTONDBLCLK, x, y);
        return item;
    };
    axis_.SetFlags(2, 4, 1);
    size(400, 40);
    axis_.SetTexts(4, texts);
    EXPECT_EQ(clicked(250, 10), 2);
    EXPECT_THAT(host_.notified, testing::ElementsAre(testing::FieldsAre(axis_.m_hWnd, 1u, 103u)));
    axis_.SetAxisPosition(3);
    size(40, 400);
    EXPECT_EQ(clicked(250, 310), 3);
}

} // namespace
