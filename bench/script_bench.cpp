// Script lines through the gauge's model, against a plain INI parser over the same kind of bytes. The yardstick's
// handler only counts, while the model looks up, converts and stores.
#include "script/script_file.h"
#include "widgets/gauge/gauge_model.h"

#include "compare.h"

#include <benchmark/benchmark.h>
#include <ini.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

using namespace wnt;

namespace {

constexpr int repeats = 1000;

// The built-in script many times over, as script lines or, without the leading colons, as an INI file.
std::string script_text(bool colons) {
    std::string one;
    for (std::string_view line : gauge_built_in_script) {
        if (line.starts_with('/'))
            line = "[GAUGE]";
        const bool setting = line.starts_with(':');
        one.append(line.substr(setting && !colons ? 1 : 0)).append("\n");
    }
    std::string all;
    for (int i = 0; i < repeats; ++i)
        all += one;
    return all;
}

const std::string script = script_text(true);
const std::string ini = script_text(false);

int parse_script(GaugeModel& model) {
    int lines = 0;
    std::string_view rest = script;
    const auto source = [&rest](char* to, int capacity) {
        const std::size_t count = rest.copy(to, capacity);
        rest.remove_prefix(count);
        return static_cast<int>(count);
    };
    feed_script(source, [&](const char* line, int mode) {
        if (mode == script_line) {
            model.load_line(line);
            ++lines;
        } else {
            model.end_script();
        }
    });
    return lines;
}

int count_setting(void* count, const char*, const char*, const char*) {
    ++*static_cast<int*>(count);
    return 1;
}

int parse_ini() {
    int settings = 0;
    ini_parse_string(ini.c_str(), count_setting, &settings);
    return settings;
}

// In bytes.
void gauge_script_against_inih(benchmark::State& state) {
    compare(
        state, static_cast<double>(script.size()),
        [] {
            GaugeModel model;
            benchmark::DoNotOptimize(parse_script(model));
            benchmark::DoNotOptimize(model);
        },
        [] { benchmark::DoNotOptimize(parse_ini()); }, static_cast<double>(ini.size()));
}
BENCHMARK(gauge_script_against_inih)->Name("gauge_script/bytes/libinih");

// What is timed does its work.
void check_work() {
    GaugeModel model;
    const int settings = static_cast<int>(std::ranges::count_if(
        gauge_built_in_script, [](std::string_view line) { return line.starts_with(':') && line != ":CLEARMARKS"; }));
    const bool right = parse_script(model) == static_cast<int>(gauge_built_in_script.size()) * repeats + 1 &&
                       model.current == 76 && model.mark_count == 7 && parse_ini() == settings * repeats;
    if (!right) {
        std::fputs("script_bench: the parsers did not read the whole text\n", stderr);
        std::exit(1);
    }
}

} // namespace

int main(int argc, char** argv) {
    check_work();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
