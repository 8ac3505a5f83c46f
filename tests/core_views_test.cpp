#include "gauge_scenes.h"
#include "test_random.h"
#include "widgets/painting/shape_raster.h"
#include "widgets/gauge/views/view_parts.h"

#include <gmock/gmock.h>

#include <cctype>
#include <cmath>

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
                model.set_titles("", "u");
                EXPECT_TRUE(writes({model, width, height}, "u"))
                    << type << range.size() << " " << width << "x" << height;
            }
}

TEST(GaugeViews, ShowTheTitleAtEverySize) {
    const std::pair<int, int> sizes[] = {{24, 20}, {30, 40}, {200, 30}, {30, 200}, {120, 48}, {90, 90}, {300, 300}};
    const Lines wide_labels = {":BARTITLE=1", ":MINVAL=-2147483648", ":MAXVAL=2147483647", ":SCALES=8"};
    for (int type = 0; type < gauge_type_count; ++type)
        for (const Lines& lines : {Lines(), wide_labels}) // on its face a dial has no room between them
            for (const auto& [width, height] : sizes) {
                GaugeModel model = model_of(type, lines);
                model.set_titles("T", "");
                EXPECT_TRUE(writes({model, width, height}, "T")) << type << " " << width << "x" << height;
            }
}

TEST(GaugeViews, ZonesAndValueStandWhereTheScaleSays) {
    const std::tuple<Colour, float, float> zones[] = {{blue, 0, 50}, {green, 50, 100}, {red, 100, 200}};
    for (int type = 0; type < gauge_type_count; ++type)
        for (const auto& [colour, from, to] : zones) {
            SCOPED_TRACE(testing::Message() << type << " from " << from);
            const Scene scene(zoned(type, static_cast<int>(from + to) / 2 + 1), stage, stage);
            const BoxF zone = extent(scene.face, colour);
            const BoxF whole = hull(hull(extent(scene.face, blue), extent(scene.face, green)), extent(scene.face, red));
            const BoxF shown = extent(scene.value, colour);
            const float share = ((from + to) / 2 + 1) / 200;
            if (type == gauge_percent_bar) {
                EXPECT_NEAR(zone.left, whole.left + whole.width() * from / 200, 1);
                EXPECT_NEAR(zone.right, whole.left + whole.width() * to / 200, 1);
                EXPECT_NEAR(shown.right, whole.left + whole.width() * share, 1);
                EXPECT_EQ(shown.left, whole.left);
            } else if (type == gauge_thermometer || type == gauge_peak_line) {
                EXPECT_NEAR(zone.bottom, whole.bottom + whole.height() * from / 200, 1);
                EXPECT_NEAR(zone.top, whole.bottom + whole.height() * to / 200, 1);
                EXPECT_NEAR(shown.top, whole.bottom + whole.height() * share, 1);
            } else if (type == gauge_digital) {
                EXPECT_FALSE(shown.empty());
            } else {
                for (const PointF p : corners_of(scene.face, colour)) {
                    EXPECT_LE(angle_of(p), angle_at(from) + 0.1f);
                    EXPECT_GE(angle_of(p), angle_at(to) - 0.1f);
                    if (type == gauge_analog) {
                        EXPECT_NEAR(reach(p) / 111.8f, 0.84f, 0.05f); // between ticks and rim
                    }
                }
                const auto pointer = corners_of(scene.value, type == gauge_analog ? blend(colour, black, 150) : colour);
                PointF aside = {0, 0};
                for (const PointF p : pointer)
                    aside = {aside.x + (p.x - middle.x) / pointer.size(), aside.y + (p.y - middle.y) / pointer.size()};
                EXPECT_NEAR(angle_of({middle.x + aside.x, middle.y + aside.y}), angle_at(share * 200), 0.5f);
            }
        }
}

TEST(GaugeViews, DigitsHaveTheirSegments) {
    const std::string drawn_digits[] = {" _ | ||_|", "     |  |", " _  _||_ ", " _  _| _|", "   |_|  |",
                                        " _ |_  _|", " _ |_ |_|", " _   |  |", " _ |_||_|", " _ |_| _|"};
    for (const int value : {1234567890, -306}) {
        GaugeModel model = zoned(gauge_digital, 10, {":MINVAL=-2147483648", ":MAXVAL=2147483647", ":CLEARMARKS"});
        model.set_current_value(value);
        const Scene scene(model, 800, 200);
        std::vector<Picture::Figure> segments;
        for (const auto& f : scene.value.figures())
            if (f.kind == Picture::Kind::polygon)
                segments.push_back(f);
        std::string text = std::to_string(value);
        text.insert(0, 11 - text.size(), ' ');
        ASSERT_EQ(segments.size(), 7 * text.size());
        std::vector<BoxF> cells;
        for (std::size_t digit = 0; digit < text.size(); ++digit) {
            BoxF cell = segments[7 * digit].bounds;
            for (std::size_t i = 0; i < 7; ++i)
                cell = hull(cell, segments[7 * digit + i].bounds);
            cells.push_back(cell);
            std::string shown(9, ' ');
            for (std::size_t i = 0; i < 7; ++i) {
                const auto& f = segments[7 * digit + i];
                const bool level = f.bounds.width() > f.bounds.height();
                const float x = (f.bounds.centre().x - cell.left) / cell.width();
                const float y = (cell.top - f.bounds.centre().y) / cell.height();
                const auto row = static_cast<std::size_t>(level ? std::lround(2 * y) : y < 0.5f ? 1 : 2);
                if (f.colour == 0x0000FF)
                    shown[3 * row + static_cast<std::size_t>(std::lround(2 * x))] = level ? '_' : '|';
            }
            const std::string expected = text[digit] == ' '   ? std::string(9, ' ')
                                         : text[digit] == '-' ? "    _    "
                                                              : drawn_digits[text[digit] - '0'];
            EXPECT_EQ(shown, expected) << text[digit];
        }
        const float pitch = (cells.back().left - cells[0].left) / static_cast<float>(cells.size() - 1);
        for (std::size_t digit = 0; digit < cells.size(); ++digit)
            EXPECT_NEAR(cells[digit].left, cells[0].left + pitch * static_cast<float>(digit), 0.1f);
        EXPECT_NEAR(cells.front().left + cells.back().right, 800, 4) << "in the middle";
    }
}

TEST(GaugeViews, LampsAreLitUpToTheValue) {
    const std::pair<int, int> cases[] = {{0, 1}, {1, 1}, {20, 1}, {21, 2}, {100, 5}, {101, 6}, {200, 10}};
    for (const auto& [value, lit] : cases) {
        const Scene scene(zoned(gauge_digital, value), stage, stage);
        EXPECT_EQ(std::ranges::count_if(scene.value.figures(),
                                        [](const auto& f) {
                                            return f.kind == Picture::Kind::box && !f.bounds.empty() &&
                                                   (f.colour == blue || f.colour == green || f.colour == red);
                                        }),
                  lit)
            << value;
    }
}

TEST(GaugeViews, BordersTakeTheLightFromTheTopLeft) {
    const Colour back = 0xF5F5F5, sun = 0xFFFFFF, shadow = 0x6A6A6A;
    const struct {
        const char* type;
        const char* sides;
        Colour left, right, top, bottom;
    } cases[] = {{":BORDERTYPE=NOBORDER", ":BORDERSTYLE=LEFT RIGHT TOP BOTTOM", back, back, back, back},
                 {":BORDERTYPE=FLAT", ":BORDERSTYLE=LEFT RIGHT TOP BOTTOM", shadow, shadow, shadow, shadow},
                 {":BORDERTYPE=3DUP", ":BORDERSTYLE=LEFT RIGHT TOP BOTTOM", sun, shadow, sun, shadow},
                 {":BORDERTYPE=3DDOWN", ":BORDERSTYLE=LEFT RIGHT TOP BOTTOM", shadow, sun, shadow, sun},
                 {":BORDERTYPE=3DUP", ":BORDERSTYLE=RIGHT TOP", back, shadow, sun, back}};
    for (const auto& c : cases) {
        const Scene scene(zoned(gauge_analog, 10, {":BORDERHEIGHT=3", c.type, c.sides}), stage, stage);
        const auto at = [&](float x, float y) {
            Colour top = 0;
            for (const auto& f : scene.face.figures())
                if (const BoxF& b = f.bounds;
                    f.kind == Picture::Kind::box && b.left <= x && x <= b.right && b.bottom <= y && y <= b.top)
                    top = f.colour;
            return top;
        };
        EXPECT_EQ(at(2.5f, 120), c.left) << c.type;
        EXPECT_EQ(at(237.5f, 120), c.right) << c.type;
        EXPECT_EQ(at(120, 237.5f), c.top) << c.type;
        EXPECT_EQ(at(120, 2.5f), c.bottom) << c.type;
        EXPECT_EQ(at(120, 4), back) << c.type;
    }
}

TEST(GaugeViews, PeakLineKeepsItsCourseColumnByColumn) {
    GaugeModel model = zoned(gauge_peak_line, 10);
    model.clear();
    model.load_line(":MAXVAL=200");
    std::vector<int> course;
    for (int i = 0; i < 25; ++i) {
        course.push_back(i * 77 % 190 + 5);
        model.set_current_value(course.back());
    }
    const Scene scene(model, stage, stage);
    const BoxF plot = hull(hull(extent(scene.face, blue), extent(scene.face, green)), extent(scene.face, red));
    std::size_t column = 0;
    for (const auto& f : scene.value.figures())
        if (column < course.size() && f.kind == Picture::Kind::box && !f.bounds.empty()) {
            EXPECT_NEAR(f.bounds.top, plot.bottom + plot.height() * static_cast<float>(course[column]) / 200, 1)
                << column;
            EXPECT_EQ(f.colour, zone_colour(model, course[column])) << column;
            ++column;
        }
    const float highest = static_cast<float>(*std::ranges::max_element(course));
    EXPECT_NEAR(extent(scene.value, black).top, plot.bottom + plot.height() * highest / 200, 6);
}

// What is wide enough keeps the zone's colour within its edge: lamps on the ground of a dark zone's digits, columns.
TEST(GaugeViews, ValuesInAZoneOfTheGroundsColourAreOutlined) {
    for (const int type : {gauge_digital, gauge_peak_line}) {
        GaugeModel model = model_of(type, {":CLEARMARKS", ":SETMARK=20,WHITE", ":SETMARK=90,RED", ":SETMARK=95,RED"});
        model.set_current_value(10);
        model.set_current_value(85);
        const Scene scene(model, 600, 200);
        EXPECT_TRUE(std::ranges::any_of(scene.value.figures(), [](const auto& f) {
            return f.kind == Picture::Kind::box && f.colour == white && !f.bounds.empty();
        })) << type;
        EXPECT_TRUE(
            std::ranges::any_of(scene.value.figures(), [](const auto& f) { return f.colour == edge_of(white); }));
    }
}

TEST(GaugeViews, AChangedValueChangesNoFigureOfOthers) {
    for (int type = 0; type < gauge_type_count; ++type) {
        GaugeModel model = model_of(type, {":CLEARMARKS", ":SETMARK=20,WHITE", ":SETMARK=90,RED", ":SETMARK=95,RED"});
        model.set_current_value(10);
        const std::size_t before = Scene(model, 200, 200).value.figures().size();
        for (int i = 0; i < 3000; ++i) // the course's columns are filled, and the first ones gone
            model.set_current_value(10 + i % 2);
        model.set_current_value(85);
        EXPECT_EQ(Scene(model, 200, 200).value.figures().size(), before) << type;
    }
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
