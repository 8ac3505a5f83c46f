#include "front_end_settings.h"

#include <algorithm>

namespace {

constexpr char section[] = "Settings";

CString Entry(const char* what, std::size_t channel) {
    CString entry;
    entry.Format("%s%d", what, static_cast<int>(channel));
    return entry;
}

} // namespace

DWORD* FrontEndSettings::Palette() {
    static DWORD palette[palette_size] = {RGB(198, 60, 52),  RGB(214, 130, 40), RGB(186, 156, 28), RGB(60, 140, 70),
                                          RGB(30, 140, 140), RGB(40, 96, 176),  RGB(120, 80, 170), RGB(180, 70, 130),
                                          RGB(120, 30, 30),  RGB(130, 80, 30),  RGB(100, 100, 40), RGB(30, 80, 40),
                                          RGB(20, 80, 90),   RGB(30, 50, 100),  RGB(70, 70, 70),   RGB(130, 130, 130)};
    return palette;
}

void FrontEndSettings::Load(CWinApp& program) {
    const auto number = [&](const CString& entry, int& value) {
        value = static_cast<int>(program.GetProfileInt(section, entry, value));
    };
    for (std::size_t i = 0; i < plant_channels; ++i) {
        number(Entry("Low", i), limits[i].low);
        number(Entry("High", i), limits[i].high);
        number(Entry("Colour", i), colours[i]);
    }
    number("Sound", sound);
    if (const CString kept = program.GetProfileString(section, "Folder"); !kept.IsEmpty())
        folder = kept; // an empty one would be the root of a drive
    Repair();
}

bool FrontEndSettings::Save(CWinApp& program) const {
    const auto number = [&](const CString& entry, int value) {
        return program.WriteProfileInt(section, entry, value) != 0;
    };
    bool kept = number("Sound", sound) && program.WriteProfileString(section, "Folder", folder);
    for (std::size_t i = 0; kept && i < plant_channels; ++i)
        kept = number(Entry("Low", i), limits[i].low) && number(Entry("High", i), limits[i].high) &&
               number(Entry("Colour", i), colours[i]);
    return kept;
}

void FrontEndSettings::Repair() {
    for (std::size_t i = 0; i < plant_channels; ++i) {
        const ChannelRange& range = plant_ranges[i];
        limits[i].low = std::clamp(limits[i].low, range.least, range.greatest - 1);
        limits[i].high = std::clamp(limits[i].high, limits[i].low + 1, range.greatest);
        colours[i] = std::clamp(colours[i], 0, palette_size - 1);
    }
    sound = sound != 0;
    folder = folder.Left(MAX_PATH - 30); // room for a recording's name
}
