#include <zopwnt.h>

#include <atlexcept.h>
#include <gtest/gtest.h>

#include <cstdio>

namespace {

// Through the DLL: errors are the framework's, with their result codes.
TEST(PulseLibrary, RaisesTheFrameworksException) {
    const auto code_of = [](auto work) -> SCODE {
        try {
            work();
        } catch (COleException* error) {
            const SCODE code = error->m_sc;
            error->Delete();
            return code;
        }
        return S_OK;
    };
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
