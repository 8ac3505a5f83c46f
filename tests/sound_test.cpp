// Sounds as they reach the sound device, which writes what it plays to a file.
#include "quiet_program.h"
#include "resource_file.h"
#include "temporary_file.h"

#include <cstdlib>

namespace {

constexpr std::size_t head_size = 44; // of a wave with one data chunk, before its samples

Bytes library_sound(const char* name) {
    const HMODULE module = ::GetModuleHandleA("ZOPWNT.dll");
    HRSRC found = ::FindResourceA(module, name, "WAVE");
    const auto* first = static_cast<const unsigned char*>(::LockResource(::LoadResource(module, found)));
    return Bytes(first, first + ::SizeofResource(module, found));
}

struct SoundTest : testing::Test {
    void SetUp() override {
        if (!std::getenv("ZOP_PLAYED"))
            GTEST_SKIP() << "NOT PLAYED: no device of the test's own";
    }
    void TearDown() override {
        WntSoundEnable(1);
        AfxSetResourceHandle(nullptr);
    }
    /// What the device got while the function ran; empty where it was not even opened.
    template <class Play> Bytes played(Play play) const {
        const std::string path = std::string("Z:") + std::getenv("ZOP_PLAYED");
        ::DeleteFileA(path.c_str());
        play();
        const std::string file = text_of(path);
        return Bytes(file.begin(), file.end());
    }
};

} // namespace

TEST_F(SoundTest, PlaysTheLibrarysSounds) {
    const char* names[] = {"IDR_WAVE_BELL", "IDR_WAVE_CLAP", "IDR_WAVE_KEY"};
    for (std::uint16_t id = 0; id < 3; ++id) {
        const Bytes sound = library_sound(names[id]), samples(sound.begin() + head_size, sound.end());
        EXPECT_GT(samples.size(), 2000u);
        EXPECT_TRUE(played([=] { WntSound(id, 7); }) == samples) << names[id];
    }
    WntSoundEnable(3, 0);
    for (const std::uint16_t id : {3, 0xFFFF})
        EXPECT_TRUE(played([=] { WntSound(id); }).empty());
    for (const int on : {0, -2}) {
        WntSoundEnable(on);
        EXPECT_EQ(played([] { WntSound(0); }).empty(), on == 0);
    }
}

TEST_F(SoundTest, PlaysTheHostsSoundsFromTheHost) {
    Bytes sound = library_sound("IDR_WAVE_KEY");
    std::reverse(sound.begin() + head_size, sound.end());
    ASSERT_TRUE(write_resource_file("sound test.dll", "WAVE", sound));
    const HMODULE host = ::LoadLibraryExA("sound test.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    AfxSetResourceHandle(host);
    WntSoundEnable(0); // does not count for the host's sounds
    const Bytes samples(sound.begin() + head_size, sound.end());
    EXPECT_TRUE(played([] { WntSoundPlayFromAppResource("#1"); }) == samples);
    const std::string long_name(5000, 'x');
    for (const char* name : {"IDR_WAVE_KEY", "no such sound", long_name.c_str(), "", (const char*)nullptr})
        EXPECT_TRUE(played([=] { WntSoundPlayFromAppResource(name); }).empty());
    ::FreeLibrary(host);
    ::DeleteFileA("sound test.dll");
}

TEST(SoundWithoutDevice, IsOverAtOnce) {
    const DWORD start = ::GetTickCount();
    AfxSetResourceHandle(::GetModuleHandleA("ZOPWNT.dll"));
    for (std::uint16_t i = 0; i < 5 * 4; ++i) { // 0.94 seconds of the library's sounds in each four
        WntSound(i % 4);
        WntSoundPlayFromAppResource("IDR_WAVE_BELL");
    }
    AfxSetResourceHandle(nullptr);
    WntSoundSetVolume(0xFFFF);
    EXPECT_LT(::GetTickCount() - start, 3000u); // less than they would last, with time for a slow machine
}
