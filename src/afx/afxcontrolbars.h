// What programs that a wizard began name in their first lines. The controls that a visual manager draws are not there:
// which one is set can be asked, and nothing looks otherwise for it.
#pragma once

#include "afxdialogex.h"
#include "afxext.h"
#include "afxshellmanager.h"

class ZOPAFX_API CMFCVisualManager : public CObject {
    DECLARE_DYNCREATE(CMFCVisualManager)

public:
    // Null is the class itself. The instance of before goes.
    static void SetDefaultManager(CRuntimeClass* pRTI);
    // Made when it is first asked for.
    static CMFCVisualManager* GetInstance();
    static void DestroyInstance(BOOL bAutoDestroyOnly = FALSE);

private: // a program's own manager would have nothing to draw
    CMFCVisualManager() = default;
    friend class CMFCVisualManagerWindows;
};

class ZOPAFX_API CMFCVisualManagerWindows final : public CMFCVisualManager {
    DECLARE_DYNCREATE(CMFCVisualManagerWindows)

private:
    CMFCVisualManagerWindows() = default;
};

inline void ControlBarCleanUp() {
    CMFCVisualManager::DestroyInstance();
}
