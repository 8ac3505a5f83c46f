#pragma once

#include <zopwnt.h>

#include <afxmt.h>

/// Sounds the bell again and again while there is something to hear. A sound lasts until it has ended, so a thread of
/// its own plays it: the front end never waits.
class AlarmHorn {
public:
    AlarmHorn() = default;
    ~AlarmHorn();
    AlarmHorn(const AlarmHorn&) = delete;
    AlarmHorn& operator=(const AlarmHorn&) = delete;

    void Sound(bool on);

private:
    static UINT Play(LPVOID horn);

    CEvent on_{FALSE, TRUE}, end_{FALSE, TRUE}; // reset by hand
    CWinThread* thread_ = nullptr;
    bool sounds_ = false;
};
