// What of the plant's example needs no window: the model, the shared blocks, the link, alarms, reports.
#include "../plant/alarm_board.h"
#include "../plant/plant_link.h"
#include "../plant/plant_model.h"
#include "../plant/plant_statistics.h"
#include "../plant/recorded_days.h"

#include <gmock/gmock.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <thread>

namespace {

constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

PlantReadings readings_of(double value) {
    PlantReadings readings;
    readings.values.fill(value);
    readings.furnace_target = value;
    return readings;
}

TEST(PlantModel, RestsWithinItsLimitsAndFollowsSetPointsWithInertia) {
    PlantModel plant;
    PlantSetPoints wanted;
    AlarmBoard alarms;
    for (int i = 0; i < 3000; ++i) {
        plant.Step(0.2, wanted);
        alarms.Look(plant.Measure(), usual_limits, 0);
    }
    EXPECT_EQ(alarms.Text(), "") << "a plant that nobody touches raises no alarm";
    wanted.furnace_target = 1100;
    plant.Step(1, wanted);
    EXPECT_NEAR(plant.Measure().values[furnace_temperature], 870, 15) << "a twelfth of the way";
    plant.Step(120, wanted);
    EXPECT_NEAR(plant.Measure().values[furnace_temperature], 1100, 5);
    EXPECT_EQ(plant.Measure().furnace_target, 1100);
    wanted.furnace_target = not_a_number;
    plant.Step(1, wanted);
    EXPECT_EQ(plant.Measure().furnace_target, 1100) << "what is no number is not wanted";
}

TEST(PlantModel, FaultsShowWhereTheyShouldAndPass) {
    const std::tuple<std::uint32_t, double, PlantChannel, double, double> cases[] = {
        {pump_trips, 20, pump_speed, 0, 20},
        {pump_trips, 120, boiler_level, 0, 25},
        {tank_leaks, 60, tank_level, 0, 60},
        {tank_leaks, 600, feed_flow, 0, 10}, // an empty tank feeds nothing
        {burner_fails, 120, furnace_temperature, 0, 150},
        {every_fault, 36'000, boiler_pressure, -1, -1}}; // only no number will do
    for (const auto& [fault, seconds, channel, least, greatest] : cases) {
        PlantModel plant;
        PlantSetPoints wanted;
        wanted.faults = fault;
        plant.Step(seconds, wanted);
        const double value = plant.Measure().values[channel];
        EXPECT_TRUE(least < 0 ? std::isnan(value) : least <= value && value <= greatest) << fault << ' ' << value;
        wanted.faults = 0;
        plant.Step(3600, wanted);
        PlantReadings after = plant.Measure();
        AlarmBoard alarms;
        alarms.Look(after, usual_limits, bound(after, after));
        EXPECT_EQ(alarms.Text(), "") << "after fault " << fault;
    }
}

TEST(CountedBlock, ReadersNeverSeeHalfARecord) {
    ReadingsBlock block{};
    EXPECT_FALSE(block.Read()) << "nobody has written";
    std::atomic<bool> done = false;
    std::atomic<int> read = 0;
    int written = 0, torn = 0;
    std::thread writer([&] { // a busy machine may let the reader wait
        while (written < 200'000 || (read == 0 && written < 100'000'000))
            block.Write(readings_of(++written));
        done = true;
    });
    for (double last = 0; !done;) {
        const auto found = block.Read();
        if (!found)
            continue;
        const PlantReadings& r = found->record;
        torn += r.values != readings_of(r.furnace_target).values || r.furnace_target < last || found->count % 2;
        last = r.furnace_target;
        ++read;
    }
    writer.join();
    EXPECT_TRUE(torn == 0 && read > 0) << torn << " of " << read;
    EXPECT_EQ(block.Read()->record.furnace_target, written);
}

TEST(CountedBlock, AWriterThatEndedInARecordIsFollowedByTheNext) {
    ReadingsBlock block{};
    block.Write(readings_of(5));
    const std::uint32_t count = block.Read()->count;
    auto* words = reinterpret_cast<std::uint32_t*>(&block);
    words[1] = count + 1; // a record was begun
    EXPECT_FALSE(block.Read());
    block.Write(readings_of(6));
    EXPECT_EQ(block.Read()->record.furnace_target, 6);
    EXPECT_EQ(block.Read()->count, count + 2);
    words[0] += 8; // as long as another program's record
    EXPECT_FALSE(block.Read());
}

TEST(PlantLink, TellsALivingSimulatorFromOneThatEndedOrHangs) {
    ReadingsBlock block{};
    PlantLink link(&block);
    EXPECT_TRUE(!link.Poll(0) && link.State() == LinkState::absent);
    block.Write(readings_of(10)); // left behind, as far as the link can know
    EXPECT_FALSE(link.Poll(100) || link.Poll(5000));
    EXPECT_EQ(link.State(), LinkState::absent) << "without a count that moves";
    block.Write(readings_of(20));
    EXPECT_TRUE(link.Poll(5100) && link.State() == LinkState::live);
    EXPECT_EQ(link.Readings().values[tank_level], 20);
    link.Poll(6000);
    EXPECT_EQ(link.State(), LinkState::live) << "a busy machine is no fault";
    link.Poll(6700);
    EXPECT_EQ(link.State(), LinkState::silent);
    EXPECT_EQ(link.Readings().values[tank_level], 20);
    block = {}; // a new block: the front end was the only one to hold the old one
    link.Poll(6800);
    EXPECT_EQ(link.State(), LinkState::silent);
    block.Write(readings_of(30));
    EXPECT_TRUE(link.Poll(6900) && link.State() == LinkState::live);
    EXPECT_FALSE(PlantLink(nullptr).Poll(1));
}

TEST(PlantLink, BoundsWhatIsNearARangeAndRefusesWhatNoPlantHas) {
    ReadingsBlock block{};
    PlantLink link(&block);
    block.Write(readings_of(7)), link.Poll(0);
    block.Write(readings_of(8)), link.Poll(1);
    PlantReadings wild = readings_of(-1e300);
    wild.values[boiler_pressure] = not_a_number;
    wild.values[feed_flow] = infinite;
    wild.values[pump_speed] = 1e300;
    wild.values[boiler_level] = 200; // as far outside as the range is wide
    wild.values[furnace_temperature] = -1400;
    wild.values[tank_level] = 801;
    wild.furnace_target = not_a_number;
    wild.switches = wild.faults = 0xFFFFFFFF;
    block.Write(wild);
    ASSERT_TRUE(link.Poll(2));
    EXPECT_EQ(link.State(), LinkState::nonsense);
    constexpr std::uint32_t clamped = 1u << boiler_level | 1u << furnace_temperature;
    EXPECT_EQ(link.Refused(), ((1u << plant_channels) - 1) & ~clamped);
    const PlantReadings& seen = link.Readings();
    EXPECT_THAT(seen.values, testing::ElementsAre(8, 8, 100, 8, 8, 8, 0));
    EXPECT_EQ(seen.furnace_target, least_furnace_target) << "that of the record before, bounded";
    wild.furnace_target = 800;
    block.Write(wild), link.Poll(3);
    EXPECT_TRUE(seen.faults == every_fault && seen.switches == every_switch);
    block.Write(readings_of(9)), link.Poll(4);
    EXPECT_EQ(link.State(), LinkState::live);
}

TEST(AlarmBoard, ShowsAnAlarmUntilItIsSeenAndOver) {
    using State = AlarmBoard::State;
    AlarmBoard board;
    PlantLimits limits = usual_limits;
    PlantReadings readings = PlantModel().Measure();
    const auto pressure = [&](double value, std::uint32_t unknown = 0) {
        readings.values[boiler_pressure] = value;
        board.Look(readings, limits, unknown);
        return board.Of(boiler_pressure);
    };
    EXPECT_EQ(pressure(1100), State::quiet) << "at the limit";
    EXPECT_EQ(pressure(1101), State::raised);
    EXPECT_EQ(board.Text(), "Boiler pressure above 1100 kPa");
    EXPECT_EQ(pressure(1090), State::raised) << "not back by a hundredth of the range";
    EXPECT_EQ(pressure(1080), State::passed);
    EXPECT_TRUE(board.IsCalling());
    EXPECT_EQ(board.Text(), "Boiler pressure above 1100 kPa, back again");
    EXPECT_EQ(pressure(1101), State::raised);
    board.Acknowledge();
    limits[boiler_pressure].high = 1150;
    EXPECT_EQ(pressure(1200), State::acknowledged);
    EXPECT_EQ(board.Text(), "Boiler pressure above 1150 kPa") << "the limit that is in force";
    EXPECT_FALSE(board.IsCalling());
    EXPECT_EQ(pressure(100, 1u << boiler_pressure), State::acknowledged) << "not judged";
    EXPECT_EQ(pressure(100), State::raised) << "beyond the other limit is another alarm";
    EXPECT_EQ(board.Text(), "Boiler pressure below 300 kPa");
    board.Acknowledge();
    readings.values[tank_level] = 10;
    board.Look(readings, limits, 0);
    EXPECT_EQ(board.Text(), "Tank level below 60 cm  (and 1 more)") << "what nobody has seen comes first";
    readings.values[tank_level] = 200;
    EXPECT_EQ(pressure(800), State::quiet);
    board.Acknowledge();
    EXPECT_EQ(board.Text(), "");
}

TEST(PlantStatistics, SharesAreOfTheRangeAndLeaveOutWhatIsUnknown) {
    PlantStatistics statistics;
    for (const double value : {10.0, 30.0, 20.0})
        statistics.Add(readings_of(value), value == 30 ? 1u << tank_level : 0);
    EXPECT_EQ(statistics.Count(boiler_level), 3);
    const auto level = statistics.Shares(boiler_level);
    EXPECT_THAT((std::array{level.least, level.mean, level.greatest}), testing::ElementsAre(0.1, 0.2, 0.3));
    EXPECT_EQ(statistics.Count(tank_level), 2);
    EXPECT_DOUBLE_EQ(statistics.Shares(tank_level).greatest, 20 / 400.0);
}

TEST(RecordedDays, NamesAreReadBackAndOthersRefused) {
    for (const RecordedDay& day : {RecordedDay{2024, 2, 29}, RecordedDay{1999, 12, 31}, RecordedDay{2026, 8, 31}})
        EXPECT_EQ(day_of_recording(recording_of(day)), day);
    for (const char* name : {"", "plant.txt", "plant-20260229.txt", "plant-20261301.txt", "plant-20260010.txt",
                             "plant-20260431.txt", "plant-20260101_2.txt", "plant-20260101.txt.bak",
                             "plant-2026 1 1.txt", "plant--1260101.txt", "boiler-20260101.txt"})
        EXPECT_FALSE(day_of_recording(name)) << name;
}

} // namespace
