#include "channel_dialog.h"

namespace {

class CChannelApp : public CWinApp {
public:
    BOOL InitInstance() override {
        SetRegistryKey("ZOPWNT examples");
        AfxInitRichEdit2(); // knows the template's class "RichEdit20A"
        ChannelSettings settings;
        settings.Load(*this);
        CChannelDialog dialog(settings);
        m_pMainWnd = &dialog;
        if (dialog.DoModal() == IDOK)
            dialog.Settings().Save(*this);
        m_pMainWnd = nullptr;
        return FALSE; // the program ends with its dialog
    }
};

CChannelApp the_app;

} // namespace
