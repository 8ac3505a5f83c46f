#pragma once

#include <cstdint>

#include "zopwnt_api.h"

/// @file
/// Short sounds. Each call returns when its sound has ended; without a sound device, and for an unknown sound, nothing
/// happens. The switches are the whole process's. WntSound() and the master switch may be used by any thread.

/// Plays a sound of the library: 0 bell, 1 clap, 2 key. Does so whatever the sound's own switch says; only the master
/// switch counts. The second value is ignored.
ZOPWNT_API void WntSound(std::uint16_t id, std::uint16_t ignored = 0);

/// The switch of one sound, for programs that keep their users' choices there.
ZOPWNT_API void WntSoundEnable(std::uint16_t id, int flag);
/// The master switch, on at first: WntSound() is silent while it is off.
ZOPWNT_API void WntSoundEnable(int flag);

/// Plays a WAVE resource of the host's current resource module, whatever the switches say; a name of 256 or more
/// characters is none.
ZOPWNT_API void WntSoundPlayFromAppResource(const char* name);

/// Sets the volume of the left channel, 0 to 65535, and silences the right one.
ZOPWNT_API void WntSoundSetVolume(std::uint16_t volume);
