#include <zopwnt.h>

#include <atlexcept.h>
#include <gtest/gtest.h>

#include <cstdio>

namespace {

// Through the DLL errors are the framework's: the result code that a call raises.
template <class Call> SCODE code_of(Call call) {
    try {
        call();
    } catch (COleException* error) {
        const SCODE code = error->m_sc;
        error->Delete();
        return code;
    }
    return S_OK;
}

TEST(TimeLibrary, RaisesTheFrameworksException) {
    EXPECT_EQ(code_of([] { CWntTime(1969, 12, 31, 0, 0, 0, 0); }), E_FAIL);
    EXPECT_EQ(code_of([] { CWntTime(3001, 12, 31, 0, 0, 0, 0); }), E_INVALIDARG);
    CWntTime moment;
    moment.time = 1'704'240'000; // 3 January 2024 in every zone's year
    EXPECT_EQ(moment.GetFirstWeekend(), 6);
}

TEST(PulseLibrary, RaisesTheFrameworksException) {
    {
        CWntPulseFile file(CWntPulseFile::write, "pulse_library_test.txt");
        EXPECT_EQ(code_of([&] { file.Put(1, 1, -1); }), E_INVALIDARG);
        EXPECT_EQ(file.Put(1, 1, 1'794'837'839), 28);
    }
    if (std::FILE* text = std::fopen("pulse_library_test.txt", "a")) {
        std::fputs("1;1.00;10:00:00;01/13/2026;\n", text);
        std::fclose(text);
    }
    {
        CWntPulseFile file(CWntPulseFile::read, "pulse_library_test.txt");
        EXPECT_EQ(file.Get(nullptr, nullptr, nullptr), 0);
        EXPECT_EQ(code_of([&] { file.Get(nullptr, nullptr, nullptr); }), E_FAIL);
    }
    for (const char* name : {"pulse_library_test.txt", "Get.out", "ReadHeader.out"})
        EXPECT_EQ(std::remove(name), 0) << name; // fails for a file that is still open
}

} // namespace
