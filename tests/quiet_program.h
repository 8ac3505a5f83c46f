// The program object of the tests, at home beside its files; the framework is up before the first test.
#pragma once

#include <zopwnt.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <string>
#include <vector>

/// Keeps the texts of message boxes and answers them by itself.
struct QuietProgram : CWinApp {
    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        boxes.emplace_back(text);
        return IDOK;
    }
    std::vector<std::string> boxes;
};
inline QuietProgram program;

class Framework : public testing::Environment {
    void SetUp() override {
        ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0));
        std::filesystem::current_path(std::filesystem::path(_pgmptr).parent_path());
    }
};
inline const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new Framework);
