#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

/// A program object that keeps the texts of message boxes and answers them by itself.
class QuietProgram : public CWinApp {
public:
    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        boxes.emplace_back(text);
        return IDOK;
    }
    std::vector<std::string> boxes;
};
