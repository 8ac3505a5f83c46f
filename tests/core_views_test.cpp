#include "even_meter.h"
#include "widgets/painting/shape_raster.h"
#include "widgets/gauge/views/view_parts.h"

#include <gmock/gmock.h>

#include <random>

using namespace wnt;

namespace {

using Lines = std::vector<const char*>;

GaugeModel model_of(int type, const Lines& lines = {}) {
    GaugeModel model(0xF5F5F5, 0xFFFFFF, 0x6A6A6A);
    for (const std::string_view line : gauge_built_in_script)
        model.load_line(line);
    model.type = type;
    for (const char* line : lines)
        model.load_line(line);
    return model;
}

bool writes(const Scene& scene, std::string_view text) {
    for (const Picture* picture : {&scene.face, &scene.value})
        for (const Picture::Figure& f : picture->figures())
            if (f.kind == Picture::Kind::text && picture->characters(f).find(text) != std::string::npos)
                return true;
    return false;
}

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
    std::vector<std::pair<int, int>> sizes = {{40, 60}, {300, 20}, {20, 300}, {331, 187}, {1000, 1000}};
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
                std::vector<BoxF> texts;
                for (const Picture* picture : {&scene.face, &scene.value})
                    for (const Picture::Figure& f : picture->figures()) {
                        EXPECT_TRUE(is_inside(f.bounds, width, height)) << f.bounds.left << "," << f.bounds.bottom;
                        if (f.kind != Picture::Kind::text)
                            continue;
                        for (const BoxF& other : texts)
                            EXPECT_TRUE(apart(other, f.bounds)) << f.bounds.left << "," << f.bounds.bottom;
                        texts.push_back(f.bounds);
                    }
            }
        }
}

TEST(GaugeViews, ShowValueTitlesAndScale) {
    for (int type = 0; type < gauge_type_count; ++type) {
        GaugeModel model =
            model_of(type, {":TITLE=Pressure", ":UNITTITLE=bar", ":MAXVAL=500", ":CURVAL=137", ":SCALES=50"});
        const Scene scene(model, 240, 220);
        EXPECT_TRUE(writes(scene, "Pressure") && writes(scene, "bar") && writes(scene, "500")) << type;
        EXPECT_TRUE(type == gauge_digital || writes(scene, "137")) << type; // that one has segments
        model.load_line(":NOTITLE=1");
        const Scene untitled(model, 240, 220);
        EXPECT_FALSE(writes(untitled, "Pressure") || writes(untitled, "bar")) << type;
    }
    EXPECT_TRUE(writes({model_of(gauge_percent_bar, {":CURVAL=7"}), 240, 220}, "  7 %"));
}

TEST(GaugeViews, ShowTheUnitAtEverySizeAndRange) {
    const std::string unit = "litres per minute";
    const std::pair<int, int> sizes[] = {{40, 40},  {60, 40},   {61, 61},   {100, 80},  {320, 60},
                                         {60, 320}, {200, 200}, {320, 240}, {900, 900}, {1000, 1000}};
    const Lines ranges[] = {{}, {":MAXVAL=1000000"}, {":MINVAL=-2147483648", ":MAXVAL=2147483647"}};
    for (int type = 0; type < gauge_type_count; ++type)
        for (const Lines& range : ranges)
            for (const auto& [width, height] : sizes) {
                GaugeModel model = model_of(type, range);
                model.set_titles("", unit.c_str());
                const Scene scene(model, width, height);
                std::string shown;
                for (const Picture* picture : {&scene.face, &scene.value})
                    for (const Picture::Figure& f : picture->figures())
                        if (std::string text(f.kind == Picture::Kind::text ? picture->characters(f) : "");
                            !text.empty()) {
                            text.erase(0, text[0] == ' ');
                            if (unit.starts_with(text.substr(0, text.find(".."))))
                                shown = text;
                        }
                EXPECT_NE(shown, "") << type << range.size() << " " << width << "x" << height;
                if (width >= 320 && height >= 240)
                    EXPECT_TRUE(shown == unit || type == gauge_digital)
                        << type << range.size() << " " << width << shown;
                model.set_titles("", "u");
                EXPECT_TRUE(writes({model, width, height}, "u"))
                    << type << range.size() << " " << width << "x" << height;
            }
}

TEST(GaugeViews, ShowTheValueInItsZonesColour) {
    const std::pair<int, Colour> zones[] = {{10, 0xFF0000}, {39, 0xFF0000}, {40, 0xFF00FF}, {70, 0xFFFF00}};
    for (int type = 0; type < gauge_type_count; ++type) {
        GaugeModel model = model_of(type, {":CLEARMARKS", ":SETMARK=40,BLUE", ":SETMARK=70,MAGENTA", ":SETMARK=69,CYAN",
                                           ":SETMARK=69,CYAN", ":NOTITLE=1"});
        model.clear();
        for (const auto& zone : zones) {
            model.set_current_value(zone.first);
            const auto shows = [&](const auto& f) { return f.colour == zone.second && !f.bounds.empty(); };
            EXPECT_TRUE(std::ranges::any_of(Scene(model, 200, 200).value.figures(), shows)) << type << zone.first;
        }
    }
}

TEST(GaugeViews, ShowZonesOfTheGroundsColour) {
    for (int type = 0; type < gauge_type_count; ++type) {
        const GaugeModel model =
            model_of(type, {":CLEARMARKS", ":SETMARK=20,WHITE", ":SETMARK=80,DARKGREEN", ":SETMARK=90,RED"});
        const Scene scene(model, 200, 200);
        const auto edged = [](const auto& f) { return f.colour == edge_of(white); };
        const auto& part = type == gauge_digital ? scene.value : scene.face; // the lamps
        EXPECT_TRUE(std::ranges::any_of(part.figures(), edged)) << type;
    }
}

TEST(GaugeViews, SmallAndTallScalesKeepTicksAndProportions) {
    const auto boxes = [](int type, int width, int height, const auto& wanted) {
        const Scene scene(model_of(type, {":CLRTEXT=BLUE", ":CLEARMARKS"}), width, height);
        return std::ranges::count_if(scene.face.figures(), wanted);
    };
    const auto is_tick = [](const auto& f) {
        return f.kind == Picture::Kind::box && f.colour == 0xFF0000 &&
               std::min(f.bounds.width(), f.bounds.height()) == 1;
    };
    for (const int type : {gauge_percent_bar, gauge_peak_line})
        EXPECT_GE(boxes(type, 44, 40, is_tick), 5) << type; // without labels
    const auto is_thick_zone = [](const auto& f) { return f.colour == 0x0000FF && f.bounds.height() > 6; };
    EXPECT_EQ(boxes(gauge_percent_bar, 60, 320, is_thick_zone), 0);
}

TEST(GaugeViews, HighestPeakIsHeldWhenItsColumnIsGone) {
    GaugeModel model = model_of(gauge_peak_line);
    model.clear();
    model.set_current_value(90);
    const Scene before(model, 120, 120);
    for (int i = 0; i < 3000; ++i)
        model.set_current_value(10 + i % 2);
    const Scene after(model, 120, 120);
    const auto held = [](const Scene& scene) {
        float top = 0;
        for (const auto& f : scene.value.figures())
            top = std::max(top, f.kind == Picture::Kind::polygon ? f.bounds.top : 0);
        return top;
    };
    EXPECT_EQ(held(before), held(after));
    EXPECT_EQ(before.value.figures().size(), after.value.figures().size()); // so that lists compare column by column
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
    std::mt19937 random(5);
    for (int round = 0; round < 300; ++round) {
        std::vector<PointF> shape(3 + random() % 5);
        for (PointF& p : shape)
            p = {static_cast<float>(random() % 50) - 5, static_cast<float>(random() % 50) - 5};
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
        for (const int scale : {2, 4})
            ASSERT_EQ(drawn(shape, size, scale, size), drawn(shape, size, scale, 13)) << round;
    }
    // The left half of pixel (1, 1), to the middle of the outline.
    EXPECT_EQ(drawn({{1, 1}, {1.25f, 1}, {1.25f, 1.75f}, {1, 1.75f}}, 3, 4, 3)[4], 0x902030u);
}

} // namespace
