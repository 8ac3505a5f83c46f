#include "time/result_error.h"

void wnt::raise_result(std::int32_t code) {
    throw ResultError{code};
}

bool wnt::without_result_error(const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (const ResultError&) {
        return false;
    }
}
