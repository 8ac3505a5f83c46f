// Numbers without a pattern, the same in every run and on every platform.
#pragma once

#include <cstddef>
#include <random>

struct Random {
    explicit Random(unsigned seed) : engine(seed) {}
    int upto(int most) { return static_cast<int>(engine() % static_cast<unsigned>(most + 1)); }
    bool one_in(int n) { return upto(n - 1) == 0; }
    double unit() { return engine() / 4294967296.0; }
    template <class T, std::size_t count> const T& of(const T (&list)[count]) {
        return list[upto(static_cast<int>(count) - 1)];
    }

    std::mt19937 engine;
};
