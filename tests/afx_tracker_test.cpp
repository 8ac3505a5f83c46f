// Rectangles that follow the pointer, and device contexts that record.
#include "afx_test_app.h"
#include "pixels.h"

#include <afxext.h>

namespace {

constexpr COLORREF white = RGB(255, 255, 255);

// A tracking is run by messages that lie in the queue before it begins.
struct AfxTracker : WithParent {
    void queue(UINT message, int x, int y) { parent.PostMessage(message, 0, MAKELPARAM(x, y)); }
    CRect tracked(CRectTracker& tracker, CPoint from, CPoint to, UINT end = WM_LBUTTONUP, BOOL invert = FALSE) {
        queue(WM_MOUSEMOVE, to.x, to.y);
        parent.PostMessage(end, end == WM_KEYDOWN ? VK_ESCAPE : 0, MAKELPARAM(to.x, to.y));
        changed = tracker.Track(&parent, from, invert);
        EXPECT_EQ(::GetCapture(), nullptr);
        return tracker.m_rect;
    }

    BOOL changed = FALSE;
};

TEST_F(AfxTracker, MovesSidesCornersAndTheWhole) {
    const CRect start(20, 20, 80, 60);
    const std::tuple<CPoint, CPoint, CRect> rows[] = {
        {{20, 20}, {-5, 3}, {15, 23, 80, 60}},   {{79, 59}, {7, 7}, {20, 20, 87, 67}},
        {{50, 21}, {9, 4}, {20, 24, 80, 60}},    {{79, 40}, {6, 9}, {20, 20, 86, 60}},
        {{50, 40}, {-8, 5}, {12, 25, 72, 65}},   {{20, 40}, {90, 0}, {72, 20, 80, 60}},
        {{79, 59}, {-90, -90}, {20, 20, 28, 28}}};
    for (const auto& [from, by, to] : rows) {
        CRectTracker tracker(start, CRectTracker::resizeInside | CRectTracker::solidLine);
        EXPECT_EQ(tracked(tracker, from, from + by), to) << from.x << ' ' << from.y;
        EXPECT_TRUE(changed);
    }
    CRectTracker tracker(start, CRectTracker::resizeInside);
    EXPECT_EQ(tracked(tracker, {20, 20}, {30, 30}, WM_KEYDOWN), start) << "given up";
    EXPECT_FALSE(changed);
    EXPECT_EQ(tracked(tracker, {20, 40}, {95, 40}, WM_LBUTTONUP, TRUE), CRect(95, 20, 80, 60)) << "turned over";
    EXPECT_EQ(tracker.NormalizeHit(CRectTracker::hitLeft), CRectTracker::hitRight);
    EXPECT_EQ(tracker.HitTest({88, 40}), CRectTracker::hitMiddle);
    tracker.m_rect.SetRect(20, 60, 80, 20); // upside down
    EXPECT_EQ(tracker.HitTest({20, 40}), CRectTracker::hitLeft);
    tracker.m_rect.SetRect(95, 20, 80, 60);
    EXPECT_EQ(tracker.HitTest({10, 10}), CRectTracker::hitNothing);

    CRectTracker band;
    queue(WM_LBUTTONUP, 10, 10);
    EXPECT_FALSE(band.TrackRubberBand(&parent, {10, 10})) << "a click";
    queue(WM_MOUSEMOVE, 50, 40);
    queue(WM_MOUSEMOVE, 90, 70);
    queue(WM_LBUTTONUP, 90, 70);
    EXPECT_TRUE(band.TrackRubberBand(&parent, {10, 10}));
    EXPECT_EQ(band.m_rect, CRect(10, 10, 90, 70));
}

TEST_F(AfxTracker, DrawsHandlesWhereItFindsThem) {
    canvas dc(120, 100);
    for (const UINT style : {CRectTracker::resizeInside, CRectTracker::resizeOutside}) {
        dc.PatBlt(0, 0, 120, 100, WHITENESS);
        const CRectTracker tracker(CRect(20, 20, 80, 60), style);
        dc.SetViewportOrg(5, 7); // a tracker knows pixels alone
        tracker.Draw(&dc);
        EXPECT_EQ(dc.SetViewportOrg(0, 0), CPoint(5, 7));
        int black = 0;
        for (int i = 0; i < 120 * 100; ++i) {
            const CPoint at(i % 120, i / 120);
            const int hit = tracker.HitTest(at);
            const bool drawn = dc.GetPixel(at) == 0;
            ASSERT_EQ(drawn, hit >= 0 && hit != CRectTracker::hitMiddle) << style << ": " << at.x << ',' << at.y;
            black += drawn;
        }
        EXPECT_EQ(black, 8 * 16) << style;
    }
}

TEST_F(AfxTracker, ShowsItsStyleAndItsCursors) {
    Picture seen(55, 12);
    seen.clear(white);
    CDC* dc = CDC::FromHandle(seen.dc());
    std::vector<CRect> outside;
    int left = 2;
    const UINT styles[] = {CRectTracker::solidLine, CRectTracker::dottedLine, CRectTracker::hatchInside,
                           CRectTracker::hatchedBorder | CRectTracker::resizeOutside};
    for (const UINT style : styles) {
        CRectTracker tracker(CRect(left, 3, left < 38 ? left + 8 : 52, 9), style);
        tracker.m_nHandleSize = 3;
        tracker.Draw(dc);
        tracker.GetTrueRect(&outside.emplace_back());
        left += 12;
    }
    EXPECT_EQ(letters(seen.values(), 55, {{white, '.'}, {0, '#'}}),
              ".......................................................\n"
              "....................................###....####....###.\n"
              ".##########...###...###.............###....###.....###.\n"
              ".#........#...........#.....#.......###....###.....###.\n"
              ".#........#...........#....#...........................\n"
              ".#........#..#............#............................\n"
              ".#........#..#...................#.....................\n"
              ".#........#..#..................#......................\n"
              ".#........#...........#........#....###....###.....###.\n"
              ".##########....###...##.............###....####....###.\n"
              "....................................###....###.....###.\n"
              ".......................................................\n");
    EXPECT_THAT(outside, testing::ElementsAre(CRect(1, 2, 11, 10), CRect(13, 2, 23, 10), CRect(26, 3, 34, 9),
                                              CRect(36, 1, 54, 11)));
    const CRectTracker tracker(CRect(20, 20, 80, 60), CRectTracker::resizeInside);
    const std::pair<CPoint, LPCTSTR> cursors[] = {{{21, 21}, IDC_SIZENWSE}, {{78, 40}, IDC_SIZEWE},
                                                  {{50, 21}, IDC_SIZENS},   {{22, 58}, IDC_SIZENESW},
                                                  {{50, 40}, IDC_SIZEALL},  {{5, 5}, nullptr}};
    for (const auto& [place, cursor] : cursors) {
        CPoint point = place;
        parent.ClientToScreen(&point);
        ::SetCursorPos(point.x, point.y);
        ::SetCursor(nullptr);
        EXPECT_EQ(tracker.SetCursor(&parent, HTCLIENT), cursor != nullptr);
        EXPECT_EQ(::GetCursor(), cursor != nullptr ? ::LoadCursor(nullptr, cursor) : nullptr) << place.x;
    }
    EXPECT_FALSE(tracker.SetCursor(&parent, HTCAPTION));
}

TEST_F(AfxTracker, ARecordingIsPlayedWhereItIsWanted) {
    CClientDC screen(&parent);
    CMetaFileDC plain, rich;
    ASSERT_TRUE(plain.Create());
    EXPECT_FALSE(plain.Create()) << "it records already";
    EXPECT_EQ(plain.GetDeviceCaps(LOGPIXELSX), 0) << "no context tells its attributes";
    plain.SetAttribDC(screen.m_hDC);
    EXPECT_NE(plain.GetDeviceCaps(LOGPIXELSX), 0);
    plain.FillSolidRect(10, 10, 20, 20, RGB(200, 0, 0));
    const HMETAFILE recorded = plain.Close();
    ASSERT_TRUE(rich.CreateEnhanced(&screen, nullptr, nullptr, nullptr));
    rich.FillSolidRect(0, 0, 50, 50, RGB(0, 0, 200));
    const HENHMETAFILE enhanced = rich.CloseEnhanced();
    canvas dc(120, 100);
    EXPECT_TRUE(dc.PlayMetaFile(recorded) && dc.PlayMetaFile(enhanced, CRect(60, 60, 100, 100)));
    EXPECT_TRUE(dc.GetPixel(15, 15) == RGB(200, 0, 0) && dc.GetPixel(80, 80) == RGB(0, 0, 200));
    ::DeleteMetaFile(recorded);
    ::DeleteEnhMetaFile(enhanced);
}

} // namespace
