#include "alarm_horn.h"

namespace {

constexpr DWORD pause = 2000; // milliseconds
constexpr std::uint16_t bell = 0;

} // namespace

AlarmHorn::~AlarmHorn() {
    if (!thread_)
        return;
    end_.SetEvent();
    ::WaitForSingleObject(thread_->m_hThread, INFINITE);
    delete thread_;
}

void AlarmHorn::Sound(bool on) {
    if (on == sounds_)
        return;
    sounds_ = on;
    if (on)
        on_.SetEvent();
    else
        on_.ResetEvent();
    if (thread_ || !on)
        return;
    thread_ = AfxBeginThread(&AlarmHorn::Play, this, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    if (!thread_)
        return;                     // an alarm is seen, too
    thread_->m_bAutoDelete = FALSE; // set before it runs: its handle is waited for
    thread_->ResumeThread();
}

UINT AlarmHorn::Play(LPVOID horn) {
    const auto& self = *static_cast<const AlarmHorn*>(horn);
    const HANDLE either[] = {self.end_.m_hObject, self.on_.m_hObject};
    while (::WaitForMultipleObjects(2, either, FALSE, INFINITE) != WAIT_OBJECT_0) {
        WntSound(bell);
        if (::WaitForSingleObject(self.end_.m_hObject, pause) == WAIT_OBJECT_0)
            break;
    }
    return 0;
}
