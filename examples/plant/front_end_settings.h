// What the user chose, kept in the program's profile file.
#pragma once

#include "alarm_board.h"

#include <zopwnt.h>

struct FrontEndSettings {
    PlantLimits limits = usual_limits;
    std::array<int, plant_channels> colours = {0, 1, 4, 5, 3, 6, 7}; // of the palette
    CString folder;                                                  // of the recordings
    int sound = 1;

    /// Whatever the file holds, what comes of it is within bounds.
    void Load(CWinApp& program);
    /// False where the file cannot be written.
    bool Save(CWinApp& program) const;
    void Repair();

    COLORREF Colour(std::size_t channel) const { return Palette()[colours[channel]]; }

    static constexpr int palette_size = 16;
    static DWORD* Palette();
};
