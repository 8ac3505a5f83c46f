// The box that stands in front of the program while it prints.
#pragma once

#include "afx_dialog.h"
#include "modal_parent.h"

class print_box : public CDialog {
public:
    // Where it cannot be made, printing goes on without it. The device context asks it from now on.
    print_box(CDC& dc, LPCTSTR document, LPCTSTR printer, LPCTSTR port);
    ~print_box() override;
    print_box(const print_box&) = delete;
    print_box& operator=(const print_box&) = delete;

    void ShowPage(UINT page);
    // Lets the user act; TRUE where printing is to stop.
    BOOL IsStopped();

protected:
    void OnOK() override {}
    void OnCancel() override;

private:
    static BOOL CALLBACK AbortProc(HDC, int);

    modal_parent m_behind;
    print_box* m_outer; // a box that prints already
    bool m_stopped = false;
};
