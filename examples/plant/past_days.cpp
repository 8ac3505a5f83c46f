#include "past_days.h"

#include "plant_model.h"
#include "recorded_days.h"

#include <cmath>
#include <ctime>

namespace {

constexpr int hour = 3600, day_length = 24 * hour, interval = 60; // seconds

// The shifts want more steam by day; now and then something fails.
PlantSetPoints WantedAt(int second, int day) {
    constexpr double pi = 3.14159265358979;
    const double time_of_day = 2 * pi * second / day_length;
    PlantSetPoints wanted;
    wanted.steam_valve = 42 - 16 * std::cos(time_of_day) + 4 * std::sin(5 * time_of_day + day);
    wanted.furnace_target = 840 - 60 * std::cos(time_of_day) + 15 * std::sin(day);
    const int trouble = (7 + day * 5 % 13) * hour;
    if (day % 3 == 1 && trouble <= second && second < trouble + hour / 4)
        wanted.faults = day % 2 ? burner_fails : tank_leaks;
    return wanted;
}

bool WriteDay(const CString& path, std::time_t midnight, int day) {
    CWntPulseFile file(CWntPulseFile::write);
    file.SetLineCount(plant_channels);
    for (int i = 0; i < static_cast<int>(plant_channels); ++i)
        file.SetLineTitle(i, plant_ranges[static_cast<std::size_t>(i)].name);
    if (file.Open(path) != 0)
        return false;
    PlantModel plant;
    for (int second = 0; second < day_length; second += interval) {
        plant.Step(interval, WantedAt(second, day));
        const PlantReadings readings = plant.Measure();
        for (int i = 0; i < static_cast<int>(plant_channels); ++i)
            file.Put(i, static_cast<float>(readings.values[static_cast<std::size_t>(i)]), midnight + second);
    }
    return file.GetError() == 0;
}

} // namespace

CString WritePastDays(const char* folder, int days) {
    ::CreateDirectory(folder, nullptr);
    const CTime today = CTime::GetCurrentTime();
    for (int back = 1; back <= days; ++back) {
        const CTime noon(today.GetYear(), today.GetMonth(), today.GetDay(), 12, 0, 0);
        const CTime day = noon - CTimeSpan(back, 0, 0, 0);
        const CTime midnight(day.GetYear(), day.GetMonth(), day.GetDay(), 0, 0, 0);
        const CString path =
            CString(folder) + '\\' + recording_of({day.GetYear(), day.GetMonth(), day.GetDay()}).c_str();
        if (::GetFileAttributes(path) == INVALID_FILE_ATTRIBUTES && !WriteDay(path, midnight.GetTime(), back))
            return "cannot write " + path;
    }
    return {};
}
