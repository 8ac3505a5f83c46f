#include "main_frame.h"
#include "resource.h"
#include "sketch_doc.h"
#include "sketch_view.h"

namespace {

class CSketchApp : public CWinApp {
public:
    BOOL InitInstance() override;

protected:
    afx_msg void OnAbout() { CDialog(IDD_ABOUT).DoModal(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CSketchApp, CWinApp)
ON_COMMAND(ID_FILE_NEW, &CSketchApp::OnFileNew)
ON_COMMAND(ID_FILE_OPEN, &CSketchApp::OnFileOpen)
ON_COMMAND(ID_FILE_PRINT_SETUP, &CSketchApp::OnFilePrintSetup)
ON_COMMAND(ID_APP_ABOUT, &CSketchApp::OnAbout)
END_MESSAGE_MAP()

BOOL CSketchApp::InitInstance() {
    constexpr UINT recent_files = 6;
    SetRegistryKey("ZOPWNT examples");
    LoadStdProfileSettings(recent_files);
    AddDocTemplate(new CSingleDocTemplate(IDR_MAINFRAME, RUNTIME_CLASS(CSketchDoc), RUNTIME_CLASS(CMainFrame),
                                          RUNTIME_CLASS(CSketchView)));
    CCommandLineInfo wish;
    ParseCommandLine(wish);
    if (!ProcessShellCommand(wish))
        return FALSE;
    m_pMainWnd->DragAcceptFiles();
    m_pMainWnd->ShowWindow(m_nCmdShow);
    m_pMainWnd->UpdateWindow();
    return TRUE;
}

CSketchApp the_app;

} // namespace
