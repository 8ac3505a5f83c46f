// Where the bars of a frame are; included by afxadv.h.
#pragma once

#include "afx_archive.h"
#include "afxcoll.h"
#include "atltypes.h"

// One bar: shown or not, docked to which side and where, or floating.
class ZOPAFX_API CControlBarInfo {
public:
    UINT m_nBarID = 0;
    BOOL m_bVisible = TRUE;
    BOOL m_bFloating = FALSE;
    BOOL m_bHorz = TRUE;
    UINT m_nDockBarID = 0; // 0: neither docked nor floating
    int m_nRow = 0;
    int m_at = 0;
    CPoint m_pointPos = CPoint(0, 0); // of a floating bar, on the screen
    int m_nMRUWidth = 32767;
};

// GetDockState of a frame fills it, SetDockState puts the bars where it says; it is kept in the program's settings or
// in an archive.
class ZOPAFX_API CDockState : public CObject {
    DECLARE_SERIAL(CDockState)

public:
    CDockState();
    ~CDockState() override;

    CPtrArray m_arrBarInfo; // of CControlBarInfo, which are the object's

    void LoadState(LPCTSTR lpszProfileName);
    void SaveState(LPCTSTR lpszProfileName);
    void Clear();
    DWORD GetVersion() const { return 2; }
    void Serialize(CArchive& ar) override;
};
