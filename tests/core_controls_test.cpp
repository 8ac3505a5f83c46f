#include "controls/sash_model.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <random>

using namespace wnt;
using Keeps = SashModel::Keeps;

namespace {

// After any operations the parts fill the length, and the least lengths hold where there is room for both.
TEST(SashModel, PartsFillTheLengthAfterAnyOperations) {
    std::mt19937 random(7);
    const auto some = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    for (int run = 0; run < 200; ++run) {
        SashModel sash;
        int least[2] = {0, 0};
        int bar = 5;
        for (int step = 0; step < 50; ++step) {
            const int odd[] = {INT_MIN, -1, 0, 1, INT_MAX};
            const int value = some(9) == 0 ? odd[some(4)] : some(2000);
            switch (some(7)) {
            case 0:
                sash.resize(value);
                break;
            case 1:
                sash.set_bar(bar = some(64));
                break;
            case 2:
                sash.set_least(least[0] = some(300), least[1] = some(300));
                break;
            case 3:
                sash.set_position(value);
                break;
            case 4:
                sash.set_second(value);
                break;
            case 5:
                sash.set_share(some(3) == 0 ? NAN : value / 1000.0 - 0.5);
                break;
            case 6:
                sash.set_keeps(static_cast<Keeps>(some(2)));
                break;
            default:
                sash.fold(some(3));
            }
            const auto first = sash.first(), middle = sash.bar(), second = sash.second();
            ASSERT_TRUE(first.start == 0 && first.length >= 0 && second.length >= 0);
            ASSERT_TRUE(middle.start == first.length && second.start == middle.start + middle.length);
            ASSERT_EQ(second.start + second.length, sash.length());
            ASSERT_TRUE(sash.share() >= 0 && sash.share() <= 1);
            const int room = sash.length() - bar;
            if (!sash.folded() && room >= least[0] + least[1]) {
                ASSERT_GE(first.length, least[0]);
                ASSERT_GE(second.length, least[1]);
            }
            ASSERT_EQ(sash.can_move(), room > least[0] + least[1]);
        }
    }
}

TEST(SashModel, KeepsWhatItIsToldThroughSizes) {
    const struct {
        Keeps keeps;
        int at_105, at_205, at_45;
    } cases[] = {{Keeps::share, 60, 120, 24}, {Keeps::first, 60, 60, 40}, {Keeps::second, 60, 160, 0}};
    for (const auto& c : cases) {
        SashModel sash;
        sash.set_keeps(c.keeps);
        sash.set_position(60); // before there is any length
        sash.resize(105);
        EXPECT_EQ(sash.position(), c.at_105);
        sash.resize(205);
        EXPECT_EQ(sash.position(), c.at_205);
        sash.resize(45);
        EXPECT_EQ(sash.position(), c.at_45);
        sash.resize(105);
        EXPECT_EQ(sash.position(), c.at_105) << "it grows again";
        sash.fold(2);
        EXPECT_EQ(sash.position(), 100);
        sash.resize(205);
        sash.fold(0);
        EXPECT_EQ(sash.position(), c.at_205) << "it unfolds";
    }
    SashModel sash;
    sash.set_least(30, 90);
    sash.resize(65);
    EXPECT_EQ(sash.position(), 15); // in proportion
    EXPECT_FALSE(sash.can_move());
    sash.resize(205);
    EXPECT_EQ(sash.clamped(-5), 30);
    EXPECT_EQ(sash.clamped(500), 110);
    sash.set_keeps(Keeps::second);
    sash.set_second(95);
    EXPECT_EQ(sash.position(), 105);
}

} // namespace
