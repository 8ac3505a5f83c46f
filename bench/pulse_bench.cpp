// The pulse file against the plain C library doing the same work: formatting and flushing a sample, and reading one
// back together with the protocol that every reading appends to its file.
#include "compare.h"

#include "pulse/wnt_pulse_file.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int samples = 2000;
constexpr std::time_t start = 1'700'000'000;

struct Sample {
    int curve;
    float value;
    std::int64_t time;
    bool operator==(const Sample&) const = default;
};

Sample sample_of(int i) {
    return {i % 10, static_cast<float>(i) * 0.25F, start + i};
}

void put_samples(const char* name) {
    CWntPulseFile file(CWntPulseFile::write, name);
    for (int i = 0; i < samples; ++i) {
        const Sample sample = sample_of(i);
        file.Put(sample.curve, sample.value, sample.time);
    }
}

void print_samples(const char* name) {
    std::FILE* file = std::fopen(name, "w");
    std::fprintf(file, "%d\n", 0);
    for (int i = 0; i < samples; ++i) {
        const Sample sample = sample_of(i);
        const std::time_t time = sample.time;
        std::tm fields;
        char stamp[25];
        localtime_r(&time, &fields);
        std::strftime(stamp, sizeof stamp, "%H:%M:%S;%d/%m/%Y", &fields);
        std::fprintf(file, "%d;%.2f;%s;\n", sample.curve, sample.value, stamp);
        std::fflush(file);
    }
    std::fclose(file);
}

std::vector<Sample> get_samples(const char* name) {
    std::vector<Sample> all(samples);
    CWntPulseFile file(CWntPulseFile::read, name);
    for (Sample& each : all)
        file.Get(&each.curve, &each.value, &each.time);
    return all;
}

void scan_sample(std::FILE* file, Sample& sample) {
    std::FILE* protocol = std::fopen("yardstick.out", "a");
    std::fprintf(protocol, "%sd\nerror: %d\n", "Start", 0);
    std::tm fields{};
    const int found = std::fscanf(file, "%d;%f;%d:%d:%d;%d/%d/%d;", &sample.curve, &sample.value, &fields.tm_hour,
                                  &fields.tm_min, &fields.tm_sec, &fields.tm_mday, &fields.tm_mon, &fields.tm_year);
    std::fprintf(protocol, "i:%d\ny:%d m:%d d:%d  h:%d m:%d s:%d\n", found == 8 ? 3 : 0, fields.tm_year, fields.tm_mon,
                 fields.tm_mday, fields.tm_hour, fields.tm_min, fields.tm_sec);
    fields.tm_year -= 1900;
    fields.tm_mon -= 1;
    sample.time = std::mktime(&fields);
    std::fclose(protocol);
}

std::vector<Sample> scan_samples(const char* name) {
    std::vector<Sample> all(samples);
    std::FILE* file = std::fopen(name, "r");
    int lines = 0;
    if (std::fscanf(file, "%d", &lines) == 1) {
        for (Sample& each : all)
            scan_sample(file, each);
    }
    std::fclose(file);
    return all;
}

// An empty folder for as long as it lives.
class Folder {
public:
    Folder() {
        std::filesystem::create_directory(folder_);
        std::filesystem::current_path(folder_);
    }
    ~Folder() {
        std::filesystem::current_path(home_);
        std::filesystem::remove_all(folder_);
    }

private:
    std::filesystem::path home_ = std::filesystem::current_path();
    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("pulse-bench-" + std::to_string(std::random_device()()));
};

void put(benchmark::State& state) {
    Folder folder;
    compare(
        state, samples, [] { put_samples("ours.txt"); }, [] { print_samples("theirs.txt"); });
}
BENCHMARK(put);

void get(benchmark::State& state) {
    Folder folder;
    put_samples("ours.txt");
    compare(
        state, samples, [] { benchmark::DoNotOptimize(get_samples("ours.txt")); },
        [] { benchmark::DoNotOptimize(scan_samples("ours.txt")); });
}
BENCHMARK(get);

std::string text_of(const char* name) {
    std::ifstream file(name);
    return {std::istreambuf_iterator<char>(file), {}};
}

// What is timed does its work, and both do the same.
void check_work() {
    Folder folder;
    put_samples("ours.txt");
    print_samples("theirs.txt");
    const std::vector<Sample> all = get_samples("ours.txt");
    const bool right = text_of("ours.txt") == text_of("theirs.txt") && all == scan_samples("ours.txt") &&
                       all.back() == sample_of(samples - 1) && text_of("Get.out") == text_of("yardstick.out");
    if (!right) {
        std::fputs("pulse_bench: the samples did not come back\n", stderr);
        std::exit(1);
    }
}

} // namespace

int main(int argc, char** argv) {
    setenv("TZ", "UTC0", 1);
    check_work();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
