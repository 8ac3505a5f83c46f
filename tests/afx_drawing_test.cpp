// Device contexts and what is selected into them.
#include "afx_test_app.h"

#include <gtest/gtest.h>

namespace {

// A memory bitmap of 32 bits a pixel.
class AfxDeviceContext : public testing::Test {
protected:
    AfxDeviceContext() {
        CWindowDC screen(nullptr);
        EXPECT_TRUE(dc.CreateCompatibleDC(&screen) && bitmap.CreateCompatibleBitmap(&screen, 100, 100));
        before = dc.SelectObject(&bitmap);
        dc.PatBlt(0, 0, 100, 100, WHITENESS);
    }
    ~AfxDeviceContext() override { dc.SelectObject(before); }

    CDC dc;
    CBitmap bitmap;
    CBitmap* before;
};

TEST_F(AfxDeviceContext, GivesBackWhatWasSelected) {
    CPen pen(PS_SOLID, 3, RGB(255, 0, 0));
    CBrush brush(HS_CROSS, RGB(0, 0, 255));
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, "Arial", &dc));
    CPen* old_pen = dc.SelectObject(&pen);
    CBrush* old_brush = dc.SelectObject(&brush);
    CFont* old_font = dc.SelectObject(&font);
    EXPECT_EQ(dc.GetCurrentPen(), &pen);
    EXPECT_EQ(dc.GetCurrentFont(), &font);
    EXPECT_EQ(dc.SelectObject(old_pen), &pen);
    EXPECT_EQ(dc.SelectObject(old_brush), &brush);
    EXPECT_EQ(dc.SelectObject(old_font), &font);
    EXPECT_TRUE(dc.SelectStockObject(BLACK_PEN)->IsKindOf(RUNTIME_CLASS(CPen)));
    LOGPEN described;
    pen.GetLogPen(&described);
    EXPECT_EQ(described.lopnColor, RGB(255, 0, 0));
    CPen other;
    EXPECT_FALSE(pen.CreatePen(PS_SOLID, 1, RGB(0, 0, 0))) << "it holds one already";
    EXPECT_TRUE(pen.DeleteObject() && !pen.DeleteObject());
}

TEST_F(AfxDeviceContext, ConvertsUnitsAndPutsThemBack) {
    const int saved = dc.SaveDC();
    dc.SetMapMode(MM_ANISOTROPIC);
    EXPECT_EQ(dc.SetWindowExt(50, 50), CSize(1, 1));
    dc.SetViewportExt(100, -100);
    EXPECT_EQ(dc.SetViewportOrg(0, 100), CPoint(0, 0));
    CPoint point(10, 10);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(20, 80));
    CRect rect(0, 100, 20, 80);
    dc.DPtoLP(rect);
    EXPECT_EQ(rect, CRect(0, 0, 10, 10));
    CSize size(10, 10);
    dc.LPtoDP(&size);
    EXPECT_EQ(size, CSize(20, 20));
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(dc.GetMapMode(), MM_TEXT);
}

TEST_F(AfxDeviceContext, ClipsToRegions) {
    CRgn left, hole;
    ASSERT_TRUE(left.CreateRectRgn(0, 0, 50, 100) && hole.CreateRectRgnIndirect(CRect(10, 10, 20, 20)));
    EXPECT_EQ(left.CombineRgn(&left, &hole, RGN_DIFF), COMPLEXREGION);
    EXPECT_TRUE(left.PtInRegion(5, 5) && !left.PtInRegion(CPoint(15, 15)));
    dc.SelectClipRgn(&left);
    dc.FillSolidRect(0, 0, 100, 100, RGB(0, 128, 0));
    dc.SelectClipRgn(nullptr);
    const std::pair<CPoint, COLORREF> pixels[] = {
        {CPoint(5, 5), RGB(0, 128, 0)}, {CPoint(15, 15), RGB(255, 255, 255)}, {CPoint(60, 50), RGB(255, 255, 255)}};
    for (const auto& [at, colour] : pixels)
        EXPECT_EQ(dc.GetPixel(at), colour) << at.x;
}

TEST_F(AfxDeviceContext, DragRectanglesVanishAgain) {
    dc.FillSolidRect(0, 0, 100, 100, RGB(12, 34, 56));
    const CRect first(10, 10, 60, 60), second(20, 20, 70, 70);
    dc.DrawDragRect(first, CSize(2, 2), nullptr, CSize(0, 0));
    EXPECT_TRUE(dc.GetPixel(10, 10) != RGB(12, 34, 56) || dc.GetPixel(11, 10) != RGB(12, 34, 56));
    dc.DrawDragRect(second, CSize(2, 2), first, CSize(2, 2));
    dc.DrawDragRect(CRect(0, 0, 0, 0), CSize(2, 2), second, CSize(2, 2));
    int changed = 0;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 100; ++x)
            changed += dc.GetPixel(x, y) != RGB(12, 34, 56);
    EXPECT_EQ(changed, 0);
}

TEST_F(AfxDeviceContext, MeasuresWhatItWrites) {
    const CString text("Wide");
    const CSize size = dc.GetTextExtent(text);
    CRect place(0, 0, 100, 100);
    EXPECT_EQ(dc.DrawText(text, place, DT_CALCRECT | DT_SINGLELINE), size.cy);
    EXPECT_EQ(place.Width(), size.cx);
    CString face;
    EXPECT_GT(dc.GetTextFace(face), 0);
    EXPECT_FALSE(face.IsEmpty());
}

} // namespace
