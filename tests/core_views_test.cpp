#include "even_meter.h"
#include "widgets/supersample.h"
#include "widgets/views/gauge_view.h"
#include "widgets/views/view_parts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

using namespace wnt;

namespace {

GaugeModel model_of(int type, std::initializer_list<const char*> lines = {}) {
    GaugeModel model(0xF5F5F5, 0xFFFFFF, 0x6A6A6A);
    for (const std::string_view line : gauge_built_in_script)
        model.load_line(line);
    model.type = type;
    for (const char* line : lines)
        model.load_line(line);
    return model;
}

struct Scene {
    Picture face;
    Picture value;
};

Scene paint(const GaugeModel& model, int width, int height) {
    EvenMeter meter;
    const Stage stage = {width, height, meter};
    const GaugeView* view = gauge_view(model.type);
    Scene scene;
    view->face(scene.face, model, stage);
    view->value(scene.value, model, stage);
    return scene;
}

template <class Visit> void for_each_figure(const Scene& scene, Visit visit) {
    for (const Picture* picture : {&scene.face, &scene.value})
        for (const auto& figure : picture->figures())
            visit(*picture, figure);
}

bool writes(const Scene& scene, std::string_view text) {
    bool found = false;
    for_each_figure(scene, [&](const Picture& picture, const Picture::Figure& f) {
        found |= f.kind == Picture::Kind::text && picture.characters(f).find(text) != std::string::npos;
    });
    return found;
}

bool inside(const BoxF& box, int width, int height) {
    constexpr float tolerance = 1.01f;
    return std::isfinite(box.left) && std::isfinite(box.top) && box.left >= -tolerance && box.bottom >= -tolerance &&
           box.right <= static_cast<float>(width) + tolerance && box.top <= static_cast<float>(height) + tolerance;
}

const std::vector<std::vector<const char*>> odd_scripts = {
    {},
    {":MINVAL=-2147483648", ":MAXVAL=2147483647", ":CURVAL=-5", ":SCALES=999"},
    {":MINVAL=7", ":MAXVAL=7", ":CURVAL=7", ":SCALES=1"},
    {":MINVAL=500", ":MAXVAL=-500", ":CLEARMARKS"},
    {":BARTITLE=X", ":TITLE=a title of fifty characters that is far too long to fit"},
    {":NOTITLE=X", ":BORDERHEIGHT=5", ":BORDERTYPE=UNKNOWN"},
    {":CLRTEXT=NONE", ":CLRBACK=NONE", ":SETMARK=1,NONE", ":CURVAL=1"},
};

} // namespace

TEST(GaugeViews, StayInsideTheirStageAndTextsApartAtEverySize) {
    std::vector<std::pair<int, int>> sizes = {{40, 60}, {300, 20}, {20, 300}, {331, 187}, {1000, 1000}};
    for (int size = 20; size <= 600; size += 29)
        sizes.emplace_back(size * 5 / 4, size);
    for (int type = 0; type < gauge_type_count; ++type) {
        for (const auto& script : odd_scripts) {
            GaugeModel model = model_of(type);
            for (const char* line : script)
                model.load_line(line);
            for (const auto& size : sizes) {
                const int width = size.first, height = size.second;
                SCOPED_TRACE(testing::Message() << "type " << type << " script " << &script - odd_scripts.data()
                                                << " size " << width << "x" << height);
                std::vector<BoxF> texts;
                for_each_figure(paint(model, width, height), [&](const Picture&, const Picture::Figure& f) {
                    EXPECT_TRUE(inside(f.bounds, width, height)) << f.bounds.left << "," << f.bounds.bottom;
                    if (f.kind != Picture::Kind::text)
                        return;
                    for (const BoxF& other : texts) {
                        const BoxF common = intersection(other, f.bounds);
                        // Cells carry slack at either side and room above the capitals.
                        EXPECT_TRUE(common.width() <= 4 || common.height() <= 0.4f * other.height())
                            << common.left << "," << common.bottom;
                    }
                    texts.push_back(f.bounds);
                });
            }
            paint(model, 1, 1); // must end, whatever it draws
        }
    }
}

TEST(GaugeViews, ShowValueTitlesAndScale) {
    for (int type = 0; type < gauge_type_count; ++type) {
        const GaugeModel model =
            model_of(type, {":TITLE=Pressure", ":UNITTITLE=bar", ":MAXVAL=500", ":CURVAL=137", ":SCALES=50"});
        const Scene scene = paint(model, 240, 220);
        EXPECT_TRUE(writes(scene, "Pressure") && writes(scene, "bar") && writes(scene, "500")) << type;
        EXPECT_TRUE(type == gauge_digital || writes(scene, "137")) << type; // that one has segments

        GaugeModel bare = model;
        bare.load_line(":NOTITLE=1");
        const Scene untitled = paint(bare, 240, 220);
        EXPECT_FALSE(writes(untitled, "Pressure") || writes(untitled, "bar")) << type;
    }
    const Scene percent = paint(model_of(gauge_percent_bar, {":CURVAL=7"}), 240, 220);
    EXPECT_TRUE(writes(percent, "  7 %"));
}

TEST(GaugeViews, ShowTheValueInItsZonesColour) {
    for (int type = 0; type < gauge_type_count; ++type) {
        GaugeModel model = model_of(type, {":CLEARMARKS", ":SETMARK=40,BLUE", ":SETMARK=70,MAGENTA", ":SETMARK=69,CYAN",
                                           ":SETMARK=69,CYAN", ":NOTITLE=1"});
        model.clear();
        const std::pair<int, Colour> zones[] = {{10, 0xFF0000}, {39, 0xFF0000}, {40, 0xFF00FF}, {70, 0xFFFF00}};
        for (const auto& zone : zones) {
            model.set_current_value(zone.first);
            const Scene scene = paint(model, 200, 200);
            EXPECT_TRUE(std::ranges::any_of(
                scene.value.figures(), [&](const auto& f) { return f.colour == zone.second && !f.bounds.empty(); }))
                << "type " << type << " value " << zone.first;
        }
    }
}

TEST(GaugeViews, MarksBecomeZonesAtTheirPlaces) {
    const GaugeModel model = model_of(gauge_percent_bar, {":CLEARMARKS", ":SETMARK=25,BLUE", ":SETMARK=75,GREEN",
                                                          ":SETMARK=74,RED", ":SETMARK=74,RED"});
    const auto zones = zones_of(model);
    ASSERT_EQ(zones.size(), 3u);
    EXPECT_FLOAT_EQ(zones[0].to, 0.25f);
    EXPECT_FLOAT_EQ(zones[1].from, 0.25f);
    EXPECT_EQ(zones[1].colour, 0x00FF00u);
    EXPECT_FLOAT_EQ(zones[2].to, 1.0f);

    GaugeModel inverted = model;
    inverted.set_range(100, 0);
    const auto turned = zones_of(inverted);
    for (const auto& zone : turned)
        EXPECT_LE(zone.from, zone.to);
    EXPECT_FLOAT_EQ(turned.front().to, 1.0f); // the lowest values lie at the far end
}

TEST(GaugeViews, HighestPeakIsHeldWhenItsColumnIsGone) {
    GaugeModel model = model_of(gauge_peak_line);
    model.clear();
    model.set_current_value(90);
    const Scene before = paint(model, 120, 120);
    for (int i = 0; i < 3000; ++i)
        model.set_current_value(10 + i % 2);
    const Scene after = paint(model, 120, 120);
    const auto held = [&](const Scene& scene) {
        float top = 0;
        for (const auto& f : scene.value.figures())
            if (f.kind == Picture::Kind::polygon)
                top = std::max(top, f.bounds.top);
        return top;
    };
    EXPECT_EQ(held(before), held(after));
    EXPECT_EQ(before.value.figures().size(), after.value.figures().size()); // so that lists compare column by column
}

TEST(Supersample, AveragingUndoesEnlargingAndMixesEdges) {
    std::mt19937 random(7);
    for (int scale : {1, 2, 4}) {
        std::vector<std::uint32_t> small(13), large(13 * scale * scale), back(13);
        std::generate(small.begin(), small.end(), [&] { return random() & 0xFFFFFF; });
        enlarge_row(small.data(), 13, large.data(), static_cast<std::size_t>(13 * scale), scale);
        average_row(large.data(), static_cast<std::size_t>(13 * scale), back.data(), 13, scale);
        EXPECT_EQ(back, small) << scale;
    }
    std::vector<std::uint32_t> block(16, 0);
    std::fill(block.begin(), block.begin() + 8, 0xFF8040u);
    std::uint32_t mixed = 0;
    average_row(block.data(), 4, &mixed, 1, 4);
    EXPECT_EQ(mixed, 0x804020u);
}
