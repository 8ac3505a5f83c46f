// What a channel measures and how it is shown, kept in the program's settings.
#pragma once

#include <zopwnt.h>

struct ChannelSettings {
    static constexpr int colours = 16;
    static constexpr int least_value = -10000, greatest_value = 10000;
    static constexpr int most_characters = 24;
    static constexpr int most_rate = 20; // readings a second
    static constexpr double least_factor = 0.1, greatest_factor = 10;

    CString name = "Boiler pressure", unit = "bar x 10", place = "Boiler house";
    CString order = "0123"; // of the parts of a report
    int view = 2;           // the gauge's type
    int lower = 0, upper = 100;
    int low_limit = 20, high_limit = 80;
    int alarms = 1;
    int inside_colour = 12, beyond_colour = 6; // of the palette of sixteen
    int shape = 0;                             // sine, steps, noise
    int rate = 5;
    int damping = 20; // per cent
    int told = 3;     // a bit for everyone who hears of an alarm
    int hot_key = 0;  // as the control tells it; 0 for none
    int address = 0x0A000007;
    double factor = 1;
    CTime last_calibration{2026, 1, 15, 0, 0, 0}, next_calibration{2027, 1, 15, 0, 0, 0};

    static CTime FirstDate() { return CTime(2000, 1, 1, 0, 0, 0); }
    static CTime LastDate() { return CTime(2099, 12, 31, 23, 59, 59); }

    /// Whatever the settings hold, what comes of them is within bounds.
    void Load(CWinApp& program);
    void Save(CWinApp& program) const;
    void Repair();
};
