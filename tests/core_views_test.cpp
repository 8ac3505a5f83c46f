#include "even_meter.h"
#include "widgets/painting/supersample.h"
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

TEST(Supersample, AveragingUndoesEnlargingAndMixesEdges) {
    std::mt19937 random(7);
    for (std::size_t scale : {1, 2, 4}) {
        std::vector<std::uint32_t> small(13), large(13 * scale * scale), back(13);
        std::generate(small.begin(), small.end(), [&] { return random() & 0xFFFFFF; });
        enlarge_row(small.data(), 13, large.data(), 13 * scale, static_cast<int>(scale));
        average_row(large.data(), 13 * scale, back.data(), 13, static_cast<int>(scale));
        EXPECT_EQ(back, small) << scale;
    }
    std::vector<std::uint32_t> block(16, 0);
    std::fill_n(block.begin(), 8, 0xFF8040u);
    std::uint32_t mixed = 0;
    average_row(block.data(), 4, &mixed, 1, 4);
    EXPECT_EQ(mixed, 0x804020u);
}

} // namespace
