// Rates of operations beside those of yardsticks that do the same work, as a table and as JSON.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

class BenchTable {
public:
    explicit BenchTable(std::string name) : name_(std::move(name)) {
        std::printf("%-34s %14s %14s %7s\n", name_.c_str(), "rate/s", "yardstick/s", "ratio");
    }

    /// Times both in turn and keeps the middle one of many rounds of each: now and then a round is spared what the
    /// system does for all others. Each is called with the number of its repetition. Numbers go on from round to round,
    /// and a round of either is one or more whole cycles, so that neither's speed decides what the other is given.
    template <class Operation, class Yardstick>
    void measure(const std::string& operation, Operation run, Yardstick yardstick, int cycle = 1) {
        Side<Operation> ours(run, cycle);
        Side<Yardstick> theirs(yardstick, cycle);
        const auto start = Clock::now();
        for (int i = 0; i < most_rounds && (i < least_rounds || since(start) < row_length); ++i) {
            ours.round();
            theirs.round();
        }
        rows_.push_back({operation, ours.rate(), theirs.rate()});
        const Row& row = rows_.back();
        std::printf("%-34s %14.0f %14.0f %7.2f\n", operation.c_str(), row.rate, row.yardstick, row.ratio());
        std::fflush(stdout);
    }

    /// The same for what is to be seen: `look` tells it. Where a repetition leaves it as it was, for one of the two or
    /// both, work is skipped or the same all the time: such a row is not timed.
    template <class Operation, class Yardstick, class LookAtOurs, class LookAtTheirs>
    void measure_shown(const std::string& operation, Operation run, LookAtOurs look, Yardstick yardstick,
                       LookAtTheirs look_at_yardstick, int cycle) {
        if (always_changes(run, look, cycle) && always_changes(yardstick, look_at_yardstick, cycle))
            measure(operation, run, yardstick, cycle);
        else
            wrong(operation);
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

    template <class Operation, class Look> static bool always_changes(Operation& run, Look look, int cycle) {
        run(cycle - 1);
        auto before = look();
        for (int i = 0; i < cycle; ++i) {
            run(i);
            auto after = look();
            if (after == before)
                return false;
            before = std::move(after);
        }
        return true;
    }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr double round_length = 0.003;
    static constexpr double row_length = 3; // slow rows have fewer rounds
    static constexpr int least_rounds = 9;
    static constexpr int most_rounds = 41;
    static constexpr int most_repetitions = 1 << 19; // of a round: all numbers of a row stay small

    static double since(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

    template <class Work> class Side {
    public:
        Side(Work& work, int cycle) : work_(work), count_(cycle) {
            while (repeat() < round_length && count_ < most_repetitions)
                count_ *= 2;
        }
        void round() { times_.push_back(repeat()); }
        double rate() {
            const auto middle = times_.begin() + static_cast<std::ptrdiff_t>(times_.size() / 2);
            std::nth_element(times_.begin(), middle, times_.end());
            return count_ / *middle;
        }

    private:
        double repeat() {
            const auto start = Clock::now();
            for (int i = 0; i < count_; ++i)
                work_(number_++);
            return since(start);
        }

        Work& work_;
        int count_;
        int number_ = 0;
        std::vector<double> times_;
    };

    struct Row {
        std::string operation;
        double rate;
        double yardstick;
        double ratio() const { return rate / yardstick; }
    };

    std::string name_;
    std::vector<Row> rows_;
    bool failed_ = false;
};
