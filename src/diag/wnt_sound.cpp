#include "diag/wnt_sound.h"

#include <afxwin.h>
#include <mmsystem.h>

#include <atomic>
#include <cstring>
#include <iterator>

#include "library_resources.h"

namespace {

constexpr const char* sound_names[] = {"IDR_WAVE_BELL", "IDR_WAVE_CLAP", "IDR_WAVE_KEY"};
constexpr std::size_t name_limit = 256; // of the system's, its end included
constexpr int sound_count = static_cast<int>(std::size(sound_names));

struct SoundState {
    std::atomic<bool> enabled = true; // set by one thread, asked by another that plays
    int sound_enabled[sound_count] = {1, 1, 1};
};

SoundState& sound_state() {
    static SoundState state;
    return state;
}

// No sound is better than the system's one for a sound that is missing.
void play(const char* name, HINSTANCE module) {
    ::PlaySoundA(name, module, SND_RESOURCE | SND_SYNC | SND_NODEFAULT);
}

} // namespace

void WntSound(std::uint16_t id, std::uint16_t) {
    // Intended: the sound's own switch is not asked.
    if (sound_state().enabled && id < sound_count)
        play(sound_names[id], wnt::library_module());
}

void WntSoundEnable(std::uint16_t id, int flag) {
    if (id < sound_count)
        sound_state().sound_enabled[id] = flag;
}

void WntSoundEnable(int flag) {
    sound_state().enabled = flag != 0;
}

void WntSoundPlayFromAppResource(const char* name) {
    if (name && (IS_INTRESOURCE(name) || ::strnlen(name, name_limit) < name_limit))
        play(name, AfxGetResourceHandle());
}

void WntSoundSetVolume(std::uint16_t volume) {
    // Intended: the left channel's half is all that is given.
    ::waveOutSetVolume(reinterpret_cast<HWAVEOUT>(static_cast<UINT_PTR>(WAVE_MAPPER)), volume);
}
