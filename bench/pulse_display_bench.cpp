// The strip chart's history and picture: appending beside copying the same bytes, long histories beside short ones,
// rows of many values beside the plain loop.
#include "compare.h"

#include "widgets/pulse/pulse_picture.h"
#include "widgets/pulse/pulse_transfer.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

using namespace wnt;

namespace {

constexpr int samples = 1'000'000;

// Noise on a slow wave: of any length of history the same picture.
double wave(std::int64_t number, double count = samples) {
    return 50 + 40 * std::sin(static_cast<double>(number) / count * 60) + static_cast<double>(number * 7919 % 17);
}

void check(bool right, const char* what) {
    if (right)
        return;
    std::fprintf(stderr, "pulse_display_bench: %s\n", what);
    std::exit(1);
}

// Into a full ring, with its oldest samples dropped, beside copies of samples into a ring of the same size.
void append(benchmark::State& state) {
    PulseSeries series;
    std::vector<PulsePoint> points(samples), ring(samples);
    std::int64_t time = 0;
    for (PulsePoint& point : points) {
        point = {time++, wave(time)};
        series.append(point.time, point.value);
    }
    compare(
        state, samples,
        [&] {
            for (PulsePoint& point : points)
                series.append(time++, point.value);
        },
        [&] {
            for (int i = 0; i < samples; ++i) {
                std::memcpy(&ring[i], &points[i], sizeof ring[i]);
                benchmark::ClobberMemory();
            }
        });
    check(series.size() == samples && series.newest() == time - 1, "not every sample was appended");
}
BENCHMARK(append)->Name("pulse/append/memcpy of a sample");

struct Chart {
    std::vector<PulseSeries> series;
    PlotScene scene;
    PulsePicture picture;

    Chart(int curves, int each) {
        for (int i = 0; i < curves; ++i) {
            series.emplace_back(each);
            for (int k = 0; k < each; ++k)
                series.back().append(k, wave(k, each) + i);
        }
        scene.columns = {each, 1000};
        scene.height = 500;
        for (int i = 0; i < curves; ++i)
            scene.curves.push_back({&series[i], {0, 110, 500}, {.colour = 1u + i}, 1000});
    }
    void repaint() { picture.show(scene, true); }
};

void long_histories(benchmark::State& state) {
    Chart ten(2, 10 * samples), one(2, samples);
    compare(
        state, 1, [&] { ten.repaint(); }, [&] { one.repaint(); });
}
BENCHMARK(long_histories)->Name("pulse/repaint of 10,000,000/of 1,000,000");

void rows(benchmark::State& state) {
    const ValueScale scale{0, 110, 500};
    std::vector<double> values(4096);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = wave(static_cast<std::int64_t>(i));
    std::vector<std::int32_t> found(values.size()), plain(values.size());
    const double factor = 500 / (scale.high - scale.low);
    constexpr double limit = ValueScale::beyond;
    const auto loop = [&] {
        for (std::size_t i = 0; i < values.size(); ++i) {
            double above = (values[i] - scale.low) * factor;
            above = above < limit ? above : limit;
            above = above > -limit ? above : -limit;
            above -= above < 0.5 ? 0 : 0.5;
            plain[i] = 499 + 2 * ValueScale::beyond - static_cast<std::int32_t>(above + 2 * limit);
        }
        benchmark::ClobberMemory();
    };
    loop();
    scale.rows(values.data(), values.size(), found.data());
    check(found == plain, "rows differ from the plain loop's");
    compare(
        state, 4096,
        [&] {
            scale.rows(values.data(), values.size(), found.data());
            benchmark::ClobberMemory();
        },
        loop);
}
BENCHMARK(rows)->Name("pulse/rows of values/plain loop");

// A file of ten curves, a sample a second of each, beside the plain library reading the same text into the same times.
constexpr int records = 50'000;
constexpr const char* record_file = "pulse_display_bench.txt";

void write_records() {
    PulseRecorder recorder;
    std::vector<std::string> titles(10, "Curve");
    check(recorder.start(record_file, titles).empty(), "the file cannot be written");
    for (int i = 0; i < records; ++i)
        recorder.put(i % 10, i * 0.25, 1'700'000'000 + i / 10);
}

double read_by_reader() {
    PulseReader reader;
    double sum = 0;
    check(reader.open(record_file).empty(), "the file cannot be read");
    while (reader.read(1000, [&](int curve, std::int64_t time, double value) { sum += curve + value + time % 1000; })) {
    }
    return sum;
}

double read_by_library() {
    std::FILE* const file = std::fopen(record_file, "r");
    char line[128];
    for (int i = 0; i < 11; ++i) // the header
        benchmark::DoNotOptimize(std::fgets(line, sizeof line, file));
    double sum = 0;
    int curve;
    float value;
    std::tm at{};
    while (std::fscanf(file, "%d;%f;%d:%d:%d;%d/%d/%d;", &curve, &value, &at.tm_hour, &at.tm_min, &at.tm_sec,
                       &at.tm_mday, &at.tm_mon, &at.tm_year) == 8) {
        std::tm fields = at;
        fields.tm_mon -= 1;
        fields.tm_year -= 1900;
        fields.tm_isdst = -1;
        sum += curve + static_cast<double>(value) + static_cast<double>(axis_time_of(std::mktime(&fields)) % 1000);
    }
    std::fclose(file);
    return sum;
}

void reading(benchmark::State& state) {
    write_records();
    check(read_by_reader() == read_by_library(), "other samples were read");
    compare(
        state, records, [] { benchmark::DoNotOptimize(read_by_reader()); },
        [] { benchmark::DoNotOptimize(read_by_library()); });
    std::remove(record_file);
}
BENCHMARK(reading)->Name("pulse/reading a file/fscanf and mktime");

} // namespace

BENCHMARK_MAIN();
