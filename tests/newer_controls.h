// Puts version 6 of the common controls into force for a while.
#pragma once

#include "afx_test_ids.h"

#include <gtest/gtest.h>
#include <windows.h>

// Windows that are created while it lives are of version 6 of the common controls.
class newer_controls {
public:
    newer_controls() {
        ACTCTX wanted{};
        wanted.cbSize = sizeof(wanted);
        wanted.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
        wanted.lpResourceName = MAKEINTRESOURCE(IDR_NEW_CONTROLS);
        wanted.hModule = ::GetModuleHandle(nullptr);
        context = ::CreateActCtx(&wanted);
        EXPECT_TRUE(::ActivateActCtx(context, &cookie));
    }
    ~newer_controls() { ::DeactivateActCtx(0, cookie), ::ReleaseActCtx(context); }

private:
    HANDLE context;
    ULONG_PTR cookie = 0;
};
