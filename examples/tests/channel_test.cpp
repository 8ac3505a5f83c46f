// The settings and the readings of the example program's channel.
#include "../measuring_channel/simulated_channel.h"
#include "quiet_program.h"

#include <limits>
#include <set>

namespace {

TEST(ChannelSettings, OutOfBoundsAreRepaired) {
    ChannelSettings settings;
    settings.view = 99;
    settings.lower = 20000, settings.upper = -20000;
    settings.low_limit = 5, settings.high_limit = -5;
    settings.rate = 0; // would divide
    settings.factor = std::numeric_limits<double>::quiet_NaN();
    settings.name = CString('x', 1000);
    settings.last_calibration = CTime(-5), settings.next_calibration = CTime(1LL << 60);
    settings.order = "0129"; // would name a part that is not there
    settings.Repair();
    EXPECT_STREQ(settings.order, "0123");
    EXPECT_EQ(settings.view, 5);
    EXPECT_TRUE(settings.lower == 9999 && settings.upper == 10000);
    EXPECT_TRUE(settings.low_limit == 9999 && settings.high_limit == 9999);
    EXPECT_TRUE(settings.rate == 1 && settings.factor == 1);
    EXPECT_EQ(settings.name.GetLength(), ChannelSettings::most_characters);
    EXPECT_TRUE(settings.last_calibration == ChannelSettings::FirstDate() &&
                settings.next_calibration == ChannelSettings::LastDate());
}

TEST(SimulatedChannel, StaysInItsRangeAndUsesIt) {
    for (int shape = 0; shape < 3; ++shape) {
        ChannelSettings settings;
        settings.lower = -40, settings.upper = 60;
        settings.shape = shape;
        SimulatedChannel channel;
        std::set<int> seen;
        for (int i = 0; i < 600; ++i)
            seen.insert(channel.Next(settings));
        EXPECT_TRUE(*seen.begin() >= -40 && *seen.rbegin() <= 60) << shape;
        EXPECT_GT(*seen.rbegin() - *seen.begin(), 60) << shape;
    }
}

} // namespace
