// Rates of operations beside those of yardsticks that do the same work, as a table and as JSON.
#pragma once

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

class BenchTable {
    static constexpr double round_length = 0.003;
    static constexpr int rounds = 41;

    static double middle(std::array<double, rounds>& times) {
        std::nth_element(times.begin(), times.begin() + rounds / 2, times.end());
        return times[rounds / 2];
    }

public:
    explicit BenchTable(std::string name) : name_(std::move(name)) {
        std::printf("%-34s %14s %14s %7s\n", name_.c_str(), "rate/s", "yardstick/s", "ratio");
    }

    /// Times both in turn and keeps the middle one of many rounds of each: now and then a round is spared what the
    /// system does for all others. Each is called with the number of its repetition.
    template <class Operation, class Yardstick>
    void measure(const std::string& operation, Operation run, Yardstick yardstick) {
        int count = 1;
        while (seconds(yardstick, count) < round_length && count < 1 << 24)
            count *= 2;
        std::array<double, rounds> times;
        std::array<double, rounds> yardstick_times;
        for (int i = 0; i < rounds; ++i) {
            times[i] = seconds(run, count);
            yardstick_times[i] = seconds(yardstick, count);
        }
        rows_.push_back({operation, count / middle(times), count / middle(yardstick_times)});
        const Row& row = rows_.back();
        std::printf("%-34s %14.0f %14.0f %7.2f\n", operation.c_str(), row.rate, row.yardstick, row.ratio());
        std::fflush(stdout);
    }

    /// A row whose result is not the yardstick's is not timed.
    void wrong(const std::string& operation) {
        std::printf("%-34s WRONG RESULT\n", operation.c_str());
        failed_ = true;
    }

    /// Writes FOLDER/NAME.json where a folder is given as first argument; answers the program's exit code.
    int finish(int argc, char** argv) const {
        if (argc > 1) {
            std::ofstream file(std::string(argv[1]) + "/" + name_ + ".json");
            file << "[\n";
            for (const Row& row : rows_) {
                file << R"(  {"operation": ")" << row.operation << R"(", "rate": )" << row.rate << R"(, "yardstick": )"
                     << row.yardstick << R"(, "ratio": )" << row.ratio() << (&row == &rows_.back() ? "}\n" : "},\n");
            }
            file << "]\n";
            if (!file.flush())
                return 1;
        }
        return failed_ ? 1 : 0;
    }

private:
    struct Row {
        std::string operation;
        double rate;
        double yardstick;
        double ratio() const { return rate / yardstick; }
    };

    template <class Function> static double seconds(Function& function, int count) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < count; ++i)
            function(i);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

    std::string name_;
    std::vector<Row> rows_;
    bool failed_ = false;
};
