#include "gauge_scenes.h"
#include "widgets/gauge/views/scale_parts.h"
#include "test_random.h"
#include "widgets/painting/shape_raster.h"

#include <gmock/gmock.h>

#include <cmath>
#include <sstream>

using namespace wnt;

namespace {

// Cells carry slack at either side and room above the capitals.
bool apart(const BoxF& a, const BoxF& b) {
    const BoxF common = intersection(a, b);
    return common.width() <= 4 || common.height() <= 0.4f * a.height();
}

TEST(GaugeViews, StayInsideTheirStageAndTextsApartAtEverySize) {
    const Lines odd_scripts[] = {
        {},
        {":MINVAL=-2147483648", ":MAXVAL=2147483647", ":CURVAL=-5", ":SCALES=999"},
        {":MINVAL=7", ":MAXVAL=7", ":CURVAL=7", ":SCALES=1"},
        {":MINVAL=500", ":MAXVAL=-500", ":CLEARMARKS"},
        {":BARTITLE=X", ":TITLE=a title of fifty characters that is far too long to fit"},
        {":NOTITLE=X", ":BORDERHEIGHT=5", ":BORDERTYPE=UNKNOWN"},
        {":UNITTITLE=cubic metres of air per minute"},
        {":CLRTEXT=NONE", ":CLRBACK=NONE", ":SETMARK=1,NONE", ":CURVAL=1"},
    };
    std::vector<std::pair<int, int>> sizes = {{40, 60}, {300, 20}, {20, 300}, {200, 200}, {331, 187}, {1000, 1000}};
    for (int size = 20; size <= 600; size += 29)
        sizes.emplace_back(size * 5 / 4, size);
    for (int type = 0; type < gauge_type_count; ++type)
        for (const Lines& script : odd_scripts) {
            const GaugeModel model = model_of(type, script);
            Scene(model, 1, 1); // must end, whatever it draws
            for (const auto& [width, height] : sizes) {
                SCOPED_TRACE(testing::Message() << "type " << type << " script " << &script - odd_scripts << " size "
                                                << width << "x" << height);
                const Scene scene(model, width, height);
                for (const Picture* picture : {&scene.face, &scene.value})
                    for (const Picture::Figure& f : picture->figures())
                        EXPECT_TRUE(is_inside(f.bounds, width, height)) << f.bounds.left << "," << f.bounds.bottom;
                const auto all = writings_of(scene);
                for (std::size_t i = 0; i < all.size(); ++i)
                    for (std::size_t k = 0; k < i; ++k)
                        EXPECT_TRUE(apart(all[k].bounds, all[i].bounds)) << all[k].text << all[i].text;
            }
        }
}

// Each text with its place and size, and its colour where it is not the one of texts.
std::string texts_of(const Scene& scene) {
    std::ostringstream all;
    all << '\n';
    for (const Writing& w : writings_of(scene)) {
        all << (all.str().size() > 1 ? " " : "") << w.text << '@' << std::lround(w.at.x) << ',' << std::lround(w.at.y)
            << '*' << w.tenths;
        if (w.colour != 0x800000)
            all << '#' << std::hex << w.colour << std::dec;
    }
    return all.str();
}

TEST(GaugeViews, ShowValueTitlesAndScale) {
    std::string texts;
    for (int type = 0; type < gauge_type_count; ++type) {
        GaugeModel model = model_of(type, {":TITLE=Flow", ":UNITTITLE=bar", ":MINVAL=-40", ":MAXVAL=160", ":CURVAL=137",
                                           ":SCALES=2", ":CLRTEXT=DARKBLUE"});
        texts += texts_of({model, 240, 220});
        model.load_line(":BARTITLE=X");
        if (type == gauge_percent_bar || type == gauge_analog)
            texts += texts_of({model, 240, 220});
        model.load_line(":NOTITLE=1");
        const Scene untitled(model, 240, 220);
        EXPECT_FALSE(writes(untitled, "Flow") || writes(untitled, "bar")) << type;
    }
    EXPECT_EQ(texts, R"(
Flow@120,192*132 -40@23,25*136 60@121,25*136 160@219,25*136  89 %@120,77*281#0 137@120,147*167#ffffff  bar@120,151*125#c6c4c4
-40@25,32*155 60@121,32*155 160@217,32*155 Flow@28,91*281#0  89 %@212,98*179#0  89 %@212,98*179 137@121,162*189#ffffff  bar@121,166*141#c6c4c4
Flow@120,192*132 -40@101,59*72 60@101,116*72 160@101,174*72 137@121,8*97#ffffff  bar@121,10*72#c6c4c4
-40@84,55*84 60@120,147*84 160@156,55*84 bar@120,58*84 Flow@120,192*132 137@120,32*119#ffffff
-40@79,62*96 60@120,166*96 160@161,62*96 bar@120,66*96 Flow@120,133*96 137@120,36*135#ffffff
Flow@120,192*132 bar@184,74*196#b5b3b2 -40@19,16*118#b5b3b2 160@221,16*118#b5b3b2
Flow@120,192*132 -40@27,33*87 60@27,104*87 160@27,175*87 137@120,9*130#ffffff  bar@120,11*97#c6c4c4
-40@65,35*84 60@120,163*84 160@175,35*84 Flow@120,192*132 137@120,10*119#ffffff  bar@120,13*89#c6c4c4)");
    EXPECT_TRUE(writes({model_of(gauge_percent_bar, {":CURVAL=7"}), 240, 220}, "  7 %"));
}

TEST(GaugeViews, ShowTheUnitAtEverySizeAndRange) {
    const std::string unit = "litres per minute";
    const std::pair<int, int> sizes[] = {{320, 20}, {600, 16}, {40, 40},   {60, 40},   {61, 61},   {100, 80},
                                         {320, 60}, {60, 320}, {200, 200}, {320, 240}, {900, 900}, {1000, 1000}};
    const Lines ranges[] = {{}, {":MAXVAL=1000000"}, {":MINVAL=-2147483648", ":MAXVAL=2147483647"}};
    for (int type = 0; type < gauge_type_count; ++type)
        for (const Lines& range : ranges)
            for (const auto& [width, height] : sizes) {
                GaugeModel model = model_of(type, range);
                model.set_titles("", unit.c_str());
                const Scene scene(model, width, height);
                std::string shown;
                for (Writing& w : writings_of(scene)) {
                    w.text.erase(0, w.text.starts_with(' '));
                    if (!w.text.empty() && unit.starts_with(w.text.substr(0, w.text.find(".."))))
                        shown = w.text;
                }
                EXPECT_NE(shown, "") << type << range.size() << " " << width << "x" << height;
                if (width >= 320 && height >= 240) {
                    EXPECT_TRUE(shown == unit || type == gauge_digital)
                        << type << range.size() << " " << width << shown;
                }
                for (const char* title : {"", "T"}) {
                    model.set_titles(title, "u");
                    const Scene both(model, width, height);
                    EXPECT_TRUE(writes(both, "u") && writes(both, title))
                        << type << range.size() << " " << width << "x" << height << title;
                }
            }
}

TEST(GaugeViews, BordersTakeTheLightFromTheTopLeft) {
    const auto border = [](const Lines& lines) { // left, right, top, bottom, inside: sun, shadow or background
        GaugeModel model = zoned(gauge_analog, 10, lines);
        model.border_height = 3;
        const Scene scene(model, 240, 240);
        std::string colours;
        for (const PointF& at : {PointF{2.5f, 120}, {237.5f, 120}, {120, 237.5f}, {120, 2.5f}, {120, 4}}) {
            char top = ' ';
            for (const auto& f : scene.face.figures())
                if (f.kind == Picture::Kind::box &&
                    !intersection(f.bounds, {at.x, at.y, at.x + 0.1f, at.y + 0.1f}).empty())
                    top = f.colour == 0xFFFFFF ? 's' : f.colour == 0x6A6A6A ? 'd' : f.colour == 0xF5F5F5 ? '.' : '?';
            colours += top;
        }
        return colours;
    };
    EXPECT_EQ(border({":BORDERTYPE=NOBORDER"}), ".....");
    EXPECT_EQ(border({":BORDERTYPE=FLAT"}), "dddd.");
    EXPECT_EQ(border({":BORDERTYPE=3DUP"}), "sdsd.");
    EXPECT_EQ(border({":BORDERTYPE=3DDOWN"}), "dsds.");
    EXPECT_EQ(border({":BORDERTYPE=3DUP", ":BORDERSTYLE=RIGHT TOP"}), ".ds..");
}

TEST(GaugeScale, OfOneValueIsThatValuesZoneThroughout) {
    const auto zones = zones_of(model_of(gauge_analog, {":MINVAL=7", ":MAXVAL=7"}));
    ASSERT_EQ(zones.size(), 1u);
    EXPECT_TRUE(zones[0].from == 0 && zones[0].to == 1);
}

// The size follows from the widest number of the range.
TEST(GaugeViews, ReadoutsKeepTheirSizeWhileTheValueMoves) {
    for (const int type : {gauge_digital, gauge_thermometer, gauge_analog, gauge_turn_knob}) {
        std::vector<std::size_t> sizes; // of the text, or segments of the display, lit or not
        for (const int value : {7, -1'000'000}) {
            GaugeModel model = model_of(type, {":MINVAL=-1000000", ":MAXVAL=9"});
            model.set_current_value(value);
            const Scene scene(model, 160, 160);
            if (type == gauge_digital)
                sizes.push_back(scene.value.figures().size());
            for (const Writing& w : writings_of(scene))
                if (type != gauge_digital && !w.on_face && w.text == std::to_string(value))
                    sizes.push_back(static_cast<std::size_t>(w.tenths));
        }
        ASSERT_EQ(sizes.size(), 2u) << type;
        EXPECT_EQ(sizes[0], sizes[1]) << type;
    }
}

TEST(GaugeViews, WhatIsTooLongEndsInDots) {
    EvenMeter meter; // six units a letter
    for (const auto& [width, shown] :
         {std::pair{60.5f, "abcdefghij"}, {59.0f, "abcdefg.."}, {30.5f, "abc.."}, {17.0f, "a"}, {5.0f, ""}})
        EXPECT_EQ(fit(meter, "abcdefghij", 80, width, 80).text, shown) << width;
}

TEST(GaugeViews, AGapFollowsTheNewestPeak) {
    GaugeModel model = zoned(gauge_peak_line, 10);
    for (int i = 0; i < 500; ++i)
        model.set_current_value(100 + i % 2);
    const Scene scene(model, 240, 240);
    std::vector<bool> shown; // column by column, each of two figures
    const auto& figures = scene.value.figures();
    for (std::size_t i = 0; i < figures.size() && (figures[i].bounds.empty() || figures[i].colour != black); i += 2)
        shown.push_back(!figures[i].bounds.empty());
    ASSERT_GT(shown.size(), 10u);
    const auto newest = static_cast<std::size_t>(model.history.count() - 1);
    EXPECT_EQ(std::ranges::count(shown, false), 1);
    EXPECT_FALSE(shown[(newest + 1) % shown.size()]);
}

// A polygon on a canvas of its own, drawn part by part.
std::vector<std::uint32_t> drawn(const std::vector<PointF>& shape, int size, int scale, int part) {
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(size * size), 0x204060);
    ShapeRaster raster;
    for (int top = 0; top < size; top += part)
        for (int left = 0; left < size; left += part) {
            const CanvasArea area = {left, top, std::min(left + part, size), std::min(top + part, size)};
            raster.begin({pixels.data(), size, size}, area, scale);
            raster.polygon(shape.data(), static_cast<int>(shape.size()), 0x0000FF);
            raster.finish();
        }
    return pixels;
}

TEST(ShapeRaster, CoversTheInsideAndTheOutlineAndAveragesThem) {
    constexpr int size = 40;
    Random random(5);
    for (int round = 0; round < 300; ++round) {
        std::vector<PointF> shape(3 + random.upto(4));
        for (PointF& p : shape)
            p = {random.upto(49) - 5.f, random.upto(49) - 5.f};
        const auto whole = drawn(shape, size, 1, size);
        for (int y = 0; y < size; ++y)
            for (int x = 0; x < size; ++x) {
                bool inside = false, edge = false;
                for (std::size_t i = 0; i < shape.size(); ++i) {
                    const PointF a = shape[i], b = shape[(i + 1) % shape.size()];
                    const double dx = b.x - a.x, dy = b.y - a.y;
                    if ((a.y >= y) != (b.y >= y)) // the crossing's own pixel counts, downwards too
                        inside ^= x - a.x >= (y - a.y) * dx / dy;
                    const bool steep = std::abs(dx) <= std::abs(dy);
                    const double along = steep ? (y - a.y) / dy : (x - a.x) / dx;
                    const double aside = (x - a.x) * dy - (y - a.y) * dx;
                    const double off = steep ? aside / dy : -aside / dx;
                    edge |= along >= 0 && along <= 1 && (steep ? off >= -0.5 && off < 0.5 : off > -0.5 && off <= 0.5);
                }
                const std::uint32_t pixel = whole[static_cast<std::size_t>((size - 1 - y) * size + x)];
                ASSERT_EQ(pixel, inside || edge ? 0xFF0000u : 0x204060u) << round << " " << x << "," << y;
            }
        for (PointF& p : shape)
            p = {p.x + 0.3f, p.y * 0.9f};
        for (const int scale : {2, 4}) {
            const auto pixels = drawn(shape, size, scale, 13);
            std::vector<PointF> larger = shape;
            for (PointF& p : larger)
                p = {p.x * static_cast<float>(scale), p.y * static_cast<float>(scale)};
            const int wide = size * scale;
            const auto subpixels = drawn(larger, wide, 1, wide);
            for (int y = 0; y < size; ++y)
                for (int x = 0; x < size; ++x) {
                    int covered = 0;
                    for (int i = 0; i < scale * scale; ++i)
                        covered += subpixels[static_cast<std::size_t>((y * scale + i / scale) * wide + x * scale +
                                                                      i % scale)] == 0xFF0000;
                    const float share = static_cast<float>(covered) / static_cast<float>(scale * scale);
                    ASSERT_NEAR(static_cast<float>(pixels[static_cast<std::size_t>(y * size + x)] >> 16),
                                0x20 + (0xFF - 0x20) * share, 1)
                        << round << " at " << scale << ": " << x << "," << y;
                }
        }
    }
}

} // namespace
