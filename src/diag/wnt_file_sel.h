#pragma once

#include <afxwin.h>
#include <afxdlgs.h>

#include "zopwnt_api.h"

/// The system's file dialog, in the middle of its parent.
class ZOPWNT_API CWntFileSel : public CFileDialog {
public:
    /// Open TRUE chooses a file to read, FALSE one to write; the filter is "text|pattern|text|pattern||".
    explicit CWntFileSel(BOOL open, const char* extension = nullptr, const char* name = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, const char* filter = nullptr,
                         CWnd* parent = nullptr);

protected:
    BOOL OnInitDialog() override;
    void OnInitDone() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void centre();
};
