#include "time/result_error.h"

void wnt::raise_result(std::int32_t code) {
    throw ResultError{code};
}
