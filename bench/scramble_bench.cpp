// The scrambling pass against a copy of the same bytes.
#include "compare.h"

#include "diag/scramble.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

void scramble(benchmark::State& state) {
    const auto size = static_cast<std::size_t>(state.range(0));
    std::vector<std::uint8_t> block(size, 7);
    std::vector<std::uint8_t> copy(size);
    const auto pass = [&] {
        wnt::scramble(block.data(), size);
        benchmark::ClobberMemory();
    };
    pass();
    copy = block;
    pass();
    if (block == copy || block != std::vector<std::uint8_t>(size, 7)) {
        std::fputs("scramble_bench: a block did not come back\n", stderr);
        std::exit(1);
    }
    // Many passes a round: a clock reading takes as long as a small block.
    const auto repeats = static_cast<int>(std::max<std::size_t>((1 << 22) / size, 1));
    const auto repeat = [repeats](auto work) {
        for (int i = 0; i < repeats; ++i)
            work();
    };
    compare(
        state, repeats * static_cast<int>(size), [&] { repeat(pass); },
        [&] {
            repeat([&] {
                std::memcpy(copy.data(), block.data(), size);
                benchmark::ClobberMemory();
            });
        });
}
BENCHMARK(scramble)->Arg(4 << 10)->Arg(64 << 10)->Arg(1 << 20)->Arg(16 << 20)->Name("scramble/bytes/memcpy");

} // namespace

BENCHMARK_MAIN();
