// Exchange of data between a dialog's controls and its members.
#pragma once

#include "afx_wnd.h"

// What DoDataExchange is given; it throws CUserException to end the exchange.
class ZOPAFX_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate) : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

    BOOL m_bSaveAndValidate; // TRUE: from the controls to the members
    CWnd* m_pDlgWnd;
};
