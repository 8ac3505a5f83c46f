#include "time/result_error.h"

#include <afxwin.h>

#include <atlexcept.h>

void wnt::raise_result(std::int32_t code) {
    AtlThrow(code);
}
