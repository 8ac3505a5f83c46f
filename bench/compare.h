#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

template <class Work> double seconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Times a piece of work beside its yardstick, both in one loop, so that a busy machine slows both alike. The ratio is
/// our speed over the yardstick's; `items` is how many each run of either handles.
template <class Ours, class Theirs>
void compare(benchmark::State& state, double items, Ours our_work, Theirs their_work, double their_items) {
    double ours = 0, theirs = 0;
    for (auto _ : state) {
        ours += seconds(our_work);
        theirs += seconds(their_work);
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["ours_per_s"] = runs * items / ours;
    state.counters["yardstick_per_s"] = runs * their_items / theirs;
    state.counters["ratio"] = items / ours / (their_items / theirs);
}

template <class Ours, class Theirs> void compare(benchmark::State& state, int items, Ours ours, Theirs theirs) {
    compare(state, items, ours, theirs, items);
}
