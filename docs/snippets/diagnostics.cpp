#include <zopwnt.h>

namespace {

struct Reading {
    int sensor;
    float value;
};

constexpr UINT IDB_WELCOME = 7;

} // namespace

void trace_snippet(CWnd* parent) {
    //! [trace]
    static CWntTrace trace;
    trace.SetFlags(2); // before Create(), which then opens the window with the list
    trace.Create(nullptr, "Trace", WS_CHILD, CRect(0, 0, 0, 0), parent, 101);
    trace.Trace("loaded %d curves\n", 2);
    WntTrace("the same from anywhere\n");
    //! [trace]
}

void version_snippet(CWnd* parent) {
    //! [version]
    CWntVersion("About this installation", parent).DoModal();
    //! [version]
}

void shared_memory_snippet() {
    //! [shmem]
    CWntShMem block("Readings", sizeof(Reading) * 100);
    if (auto* readings = static_cast<Reading*>(block.GetPtr()))
        readings[0] = {.sensor = 3, .value = 17.5f};
    block.Scramble(); // unreadable for everyone until the next call
    block.Scramble();
    //! [shmem]
}

void sound_snippet() {
    //! [sound]
    WntSoundEnable(1);
    WntSound(0);                          // the bell; returns when it has ended
    WntSoundPlayFromAppResource("ALARM"); // a WAVE resource of the program
    //! [sound]
}

void splash_snippet() {
    //! [splash]
    auto* splash = new CWntSplash(IDB_WELCOME, 2000);
    if (!splash->Create())
        delete splash; // refused; otherwise it deletes itself
    //! [splash]
}

void box_snippet(CWnd* parent, const CString& path) {
    //! [boxes]
    CWntFileSel choice(TRUE, "dat", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, "Scripts|*.dat|All files|*.*||",
                       parent);
    if (choice.DoModal() != IDOK)
        CWntErrorBox("Scripts", "No script was chosen.", path).DoModal();
    //! [boxes]
}
