// The plant, as far as a front end can see: writes what it measures ten times a second, takes set points.
//   plant_simulator                      runs until the front end, or Control+C, ends it
//   plant_simulator --days FOLDER COUNT  writes recordings of as many days before today, and ends
#include "past_days.h"
#include "plant_blocks.h"
#include "plant_model.h"

#include <zopwnt.h>

#include <afxmt.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr DWORD period = 100; // milliseconds

int Fail(const char* why) {
    std::fprintf(stderr, "plant_simulator: %s\n", why);
    return 1;
}

// The set points that are there at the start are old ones: the request for an end that they hold was for another one.
int Run(ReadingsBlock& readings, SetPointsBlock& set_points) {
    PlantModel plant;
    PlantSetPoints wanted;
    const auto found = set_points.Read();
    const std::uint64_t end_requests = found ? found->record.end_requests : 0;
    for (ULONGLONG last = ::GetTickCount64();; ::Sleep(period)) {
        if (const auto told = set_points.Read())
            wanted = told->record;
        if (wanted.end_requests != end_requests)
            return 0;
        const ULONGLONG now = ::GetTickCount64();
        plant.Step(std::min(static_cast<double>(now - last) / 1000, 1.0), wanted);
        last = now;
        if (!(wanted.faults & simulator_hangs))
            readings.Write(plant.Measure());
    }
}

int RunAlone() {
    CMutex alone(FALSE, simulator_mutex_name);
    CSingleLock lock(&alone);
    if (!lock.Lock(0))
        return Fail("another one is running");
    CWntShMem readings(readings_block_name, sizeof(ReadingsBlock));
    CWntShMem set_points(set_points_block_name, sizeof(SetPointsBlock));
    if (!readings.GetPtr() || !set_points.GetPtr())
        return Fail("there is no shared memory");
    return Run(*static_cast<ReadingsBlock*>(readings.GetPtr()), *static_cast<SetPointsBlock*>(set_points.GetPtr()));
}

} // namespace

int main(int count, char** arguments) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0))
        return Fail("the framework does not start");
    if (count == 1)
        return RunAlone();
    if (count != 4 || std::strcmp(arguments[1], "--days") != 0)
        return Fail("usage: plant_simulator [--days FOLDER COUNT]");
    char* rest = nullptr;
    const long days = std::strtol(arguments[3], &rest, 10);
    if (*rest || days < 1 || days > most_past_days)
        return Fail("the number of days is out of range");
    const CString fault = WritePastDays(arguments[2], static_cast<int>(days));
    return fault.IsEmpty() ? 0 : Fail(fault);
}
