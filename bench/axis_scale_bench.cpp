// Conversions of the axis beside the same formulas written out.
#include "compare.h"

#include "widgets/axis/axis_model.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr int conversions = 10'000;

wnt::AxisModel axis() {
    wnt::AxisModel made;
    made.resize(1000, 60);
    made.set_range(-3.0f, 97.0f);
    return made;
}

std::vector<float> values() {
    std::vector<float> made;
    for (int i = 0; i < conversions; ++i)
        made.push_back(-3.0f + static_cast<float>(i) * 100.0f / conversions);
    return made;
}

void value_to_pixel(benchmark::State& state) {
    const wnt::AxisModel ours = axis();
    const std::vector<float> at = values();
    std::vector<std::int32_t> pixels(at.size()), expected(at.size());
    const auto convert = [&] {
        for (std::size_t i = 0; i < at.size(); ++i)
            ours.value_to_screen(at[i], &pixels[i]);
        benchmark::DoNotOptimize(pixels.data());
    };
    const auto formula = [&] {
        const float way = static_cast<float>(ours.rect.right - ours.rect.left);
        for (std::size_t i = 0; i < at.size(); ++i) {
            const float share = (at[i] - ours.minimum) * way / (ours.maximum - ours.minimum);
            expected[i] = static_cast<std::int32_t>(share + 0.5f) + ours.rect.left;
        }
        benchmark::DoNotOptimize(expected.data());
    };
    convert();
    formula();
    if (pixels != expected)
        return state.SkipWithError("wrong result");
    compare(state, conversions, convert, formula);
}
BENCHMARK(value_to_pixel);

void pixel_to_value(benchmark::State& state) {
    const wnt::AxisModel ours = axis();
    std::vector<float> found(1000), expected(1000);
    const auto convert = [&] {
        for (int pixel = 0; pixel < 1000; ++pixel)
            ours.screen_to_value(pixel, &found[static_cast<std::size_t>(pixel)]);
        benchmark::DoNotOptimize(found.data());
    };
    const auto formula = [&] {
        const float way = static_cast<float>(ours.rect.right - ours.rect.left);
        for (int pixel = 0; pixel < 1000; ++pixel) {
            const auto offset = static_cast<float>(pixel - ours.rect.left);
            expected[static_cast<std::size_t>(pixel)] = (ours.maximum - ours.minimum) * offset / way + ours.minimum;
        }
        benchmark::DoNotOptimize(expected.data());
    };
    convert();
    formula();
    if (found != expected)
        return state.SkipWithError("wrong result");
    compare(state, 1000, convert, formula);
}
BENCHMARK(pixel_to_value);

} // namespace

BENCHMARK_MAIN();
