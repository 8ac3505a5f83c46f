#include "surface_test.h"

namespace {

class Framework : public testing::Environment {
    void SetUp() override { ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0)); }
};
const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new Framework);

} // namespace
