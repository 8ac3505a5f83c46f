#include "time/result_error.h"

#include <afxdisp.h>

namespace {

// Its code alone would tell the user no more than that something failed.
class DateException : public COleException {
public:
    explicit DateException(SCODE code) { m_sc = code; }

    using CException::GetErrorMessage;
    BOOL GetErrorMessage(LPTSTR text, UINT room, PUINT help = nullptr) const override {
        if (help)
            *help = 0;
        if (!text || room == 0)
            return FALSE;
        ::lstrcpyn(text, "This date does not exist or lies outside the years 1970 to 3000.", static_cast<int>(room));
        return TRUE;
    }
};

} // namespace

void wnt::raise_result(std::int32_t code) {
    throw new DateException(code);
}

bool wnt::without_result_error(const std::function<void()>& work) {
    try {
        work();
        return true;
    } catch (COleException* error) {
        error->Delete();
        return false;
    }
}
