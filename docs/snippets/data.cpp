#include <zopwnt.h>

#include <ctime>

namespace {

struct Sample {
    int sensor;
    float value;
};

} // namespace

int record_snippet() {
    //! [write]
    CWntPulseFile file(CWntPulseFile::append);
    file.SetLineCount(2);
    file.SetLineTitle(0, "Inflow");
    file.SetLineTitle(1, "Outflow");
    if (file.Open("boiler.txt") != 0)
        return file.GetError();
    file.Put(0, 17.5f, std::time(nullptr));
    file.Put(1, 12.0f, std::time(nullptr));
    return file.GetError();
    //! [write]
}

float read_snippet() {
    float sum = 0;
    //! [read]
    CWntPulseFile file(CWntPulseFile::read, "boiler.txt");
    int curve = 0;
    float value = 0;
    std::int64_t time = 0;
    while (file.Get(&curve, &value, &time) == 0)
        sum += value;
    //! [read]
    return sum;
}

int list_snippet() {
    int found = 0;
    //! [objlist]
    char name[] = "samples";
    char key[] = "SMPL";
    CWntObjlist list;
    list.create(name, 4096);
    Sample sample = {3, 17.5f};
    list.additem(key, sizeof sample, &sample); // 0 when it does not fit
    list.seek(1, 0);
    while (void* data = list.nextitem(key)) {
        static_cast<void>(data); // unaligned: copy it out
        if (list.readitem(key, sizeof sample, &sample))
            found += sample.sensor;
    }
    list.destroy(); // the destructor frees nothing
    //! [objlist]
    return found;
}

int item_snippet() {
    int found = 0;
    //! [ulist]
    char name[] = "items";
    CWntUlist items;
    items.create(name, sizeof(Sample), 100);
    Sample sample = {3, 17.5f};
    items.additem(&sample); // its index, -1 when the list is full
    items.seek(1, 0);
    while (const auto* each = static_cast<Sample*>(items.nextitem()))
        found += each->sensor;
    items.destroy();
    //! [ulist]
    return found;
}

int time_snippet() {
    //! [time]
    CWntTime moment;
    moment.time = std::time(nullptr);
    const int day = moment.GetJulianDay(); // 0 for 1 January
    const int week = moment.GetCalendarWeek(0);
    //! [time]
    return day + week;
}
