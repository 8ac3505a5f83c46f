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

TEST(PulseLibrary, RaisesTheFrameworksException) {
    EXPECT_EQ(code_of([] { CWntTime(1969, 12, 31, 0, 0, 0, 0); }), E_FAIL);
    {
        CWntPulseFile file(CWntPulseFile::write, "pulse_library_test.txt");
        EXPECT_EQ(code_of([&] { file.Put(1, 1, -1); }), E_INVALIDARG);
        EXPECT_EQ(file.Put(1, 1, 1'794'837'839), 28);
    }
    EXPECT_EQ(std::remove("pulse_library_test.txt"), 0); // fails for a file that is still open
}

} // namespace
