// Tests in an empty folder of their own, in universal time.
#pragma once

#include "time_zone.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

struct OwnFolder : testing::Test {
    OwnFolder() {
        std::filesystem::create_directory(folder);
        std::filesystem::current_path(folder);
        set_zone("UTC0");
    }
    ~OwnFolder() override {
        std::filesystem::current_path(home);
        std::error_code ignored; // a test may leave a file open when it fails
        std::filesystem::remove_all(folder, ignored);
    }

    static constexpr std::int64_t afternoon = 1'794'837'839; // 16 November 2026, 14:03:59 UTC

    const std::filesystem::path home = std::filesystem::current_path();
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("own-" + std::to_string(std::random_device()()));
};
