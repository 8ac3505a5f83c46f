// What programs open and close all day gives everything back: dialogs, sheets, drawings, windows of documents.
#include "afx_data_dialog.h"
#include "pixels.h"
#include "temporary_file.h"

#include <afxdlgs.h>
#include <afxext.h>
#include <atlimage.h>

namespace {

// The bound is one object in fifty lives; caches of the system may fill.
void expect_flat(const std::function<void(int life)>& live) {
    for (int i = 0; i < 20; ++i)
        live(i); // what is made once
    const Counts before;
    for (int i = 0; i < 1000; ++i)
        live(i);
    EXPECT_LT(before.grown(), 20);
}

// Painting takes most of a life's time: most are hidden.
int show_command(int life) {
    return life % 10 == 0 ? SW_SHOWNOACTIVATE : SW_HIDE;
}

// Of every kind of control, with objects for some, tips, pictures and a brush of its own.
struct busy_dialog : data_dialog {
    BOOL OnInitDialog() override {
        data_dialog::OnInitDialog();
        pictures.Create(16, 16, ILC_COLOR24 | ILC_MASK, 2, 2);
        rows.SetImageList(&pictures, LVSIL_SMALL);
        tabs.InsertItem(0, "tab");
        tree.InsertItem("root");
        checks.AddString("check");
        tips.Create(this);
        tips.AddTool(GetDlgItem(IDC_NAME), "tip");
        ground.CreateSolidBrush(RGB(200, 210, 220));
        font.CreatePointFont(90, "Arial");
        GetDlgItem(IDC_NAME)->SetFont(&font);
        if (end_at_once)
            EndDialog(IDOK);
        return TRUE;
    }
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT) { return ground; }
    DECLARE_MESSAGE_MAP()

public:
    bool end_at_once = false;

private:
    CImageList pictures;
    CToolTipCtrl tips;
    CBrush ground;
    CFont font;
};

BEGIN_MESSAGE_MAP(busy_dialog, data_dialog)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

TEST(AfxHandles, DialogsGiveEverythingBack) {
    expect_flat([](int life) {
        busy_dialog dialog;
        dialog.end_at_once = life % 2 == 1;
        if (dialog.end_at_once) {
            ASSERT_EQ(dialog.DoModal(), IDOK);
        } else {
            ASSERT_TRUE(dialog.Create(IDD_DATA));
            dialog.ShowWindow(show_command(life));
            dialog.UpdateWindow();
            dialog.DestroyWindow();
        }
        the_app.OnIdle(1); // temporary objects
    });
}

TEST(AfxHandles, SheetsGiveEverythingBack) {
    CWnd owner;
    ASSERT_TRUE(create_popup(owner));
    expect_flat([&](int) {
        CPropertyPage first(IDD_PAGE), second(IDD_PAGE);
        CPropertySheet sheet("Sheet", &owner);
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        ASSERT_TRUE(sheet.Create(&owner, WS_POPUP | WS_CAPTION));
        sheet.SetActivePage(1);
        sheet.DestroyWindow();
        the_app.OnIdle(1);
    });
}

// Pens, fonts, regions and contexts that go with their objects, or where an exception leaves them.
TEST(AfxHandles, DrawingsGiveEverythingBack) {
    CWnd window;
    ASSERT_TRUE(create_visible_popup(window));
    CBitmap image;
    ASSERT_TRUE(image.LoadBitmap(IDR_FRAME));
    const TemporaryFile file;
    expect_flat([&](int life) {
        try {
            CClientDC dc(&window);
            canvas memory(50, 50);
            CPen pen(PS_DASH, 1, RGB(1, 2, 3));
            CPen* old = memory.SelectObject(&pen);
            memory.DrawDragRect(CRect(0, 0, 9, 9), CSize(1, 1), CRect(2, 2, 7, 7), CSize(1, 1));
            CFont font;
            font.CreatePointFont(120, "Arial", &dc);
            CBrush pattern(&image);
            memory.FillRect(CRect(0, 0, 50, 50), &pattern);
            memory.SelectObject(old);
            CClientDC(nullptr).SaveDC();
            CImage picture;
            picture.LoadFromResource(::GetModuleHandle(nullptr), IDB_UP);
            if (life % 50 == 0) { // slower, and in files
                ASSERT_EQ(picture.Save(file.name(), Gdiplus::ImageFormatPNG), S_OK);
                ASSERT_EQ(picture.Load(file.name()), S_OK);
            }
            picture.GetDC();
            AfxThrowUserException();
        } catch (CUserException* exception) {
            exception->Delete();
        }
        the_app.OnIdle(1);
    });
}

class plain_document : public CDocument {
    DECLARE_DYNCREATE(plain_document)
};
IMPLEMENT_DYNCREATE(plain_document, CDocument)

class plain_view : public CScrollView {
    DECLARE_DYNCREATE(plain_view)
    void OnInitialUpdate() override {
        SetScrollSizes(MM_TEXT, CSize(1000, 1000));
        CScrollView::OnInitialUpdate();
    }
    void OnDraw(CDC* dc) override { dc->TextOut(0, 0, "plain"); }
};
IMPLEMENT_DYNCREATE(plain_view, CScrollView)

TEST(AfxHandles, ChildrenOfAFrameGiveEverythingBack) {
    the_app.m_nCmdShow = SW_SHOWNOACTIVATE;
    the_app.AddDocTemplate(new CMultiDocTemplate(IDR_FRAME, RUNTIME_CLASS(plain_document), RUNTIME_CLASS(CMDIChildWnd),
                                                 RUNTIME_CLASS(plain_view)));
    auto* frame = new CMDIFrameWnd;
    ASSERT_TRUE(frame->LoadFrame(IDR_FRAME));
    the_app.m_pMainWnd = frame;
    expect_flat([&](int life) {
        frame->ShowWindow(show_command(life));
        the_app.OnFileNew();
        frame->MDIGetActive()->UpdateWindow();
        frame->MDIGetActive()->SendMessage(WM_CLOSE);
        the_app.OnIdle(1);
    });
    EXPECT_EQ(the_app.GetOpenDocumentCount(), 0);
    frame->SendMessage(WM_CLOSE);
    end_documents();
}

// A frame with everything around it.
class full_frame : public CFrameWnd {
    DECLARE_DYNCREATE(full_frame)

public:
    CToolBar tools;
    CStatusBar status;
    CSplitterWnd splitter;
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext* context) override {
        const UINT panes[] = {ID_SEPARATOR, ID_INDICATOR_NUM};
        if (!splitter.Create(this, 2, 2, CSize(10, 10), context) || !tools.Create(this) ||
            !tools.LoadToolBar(IDR_FRAME) || !status.Create(this) || !status.SetIndicators(panes, 2))
            return FALSE;
        tools.EnableDocking(CBRS_ALIGN_ANY);
        EnableDocking(CBRS_ALIGN_ANY);
        DockControlBar(&tools);
        return TRUE;
    }
};
IMPLEMENT_DYNCREATE(full_frame, CFrameWnd)

TEST(AfxHandles, FramesAndDocumentsGiveEverythingBack) {
    the_app.AddDocTemplate(new CSingleDocTemplate(IDR_FRAME, RUNTIME_CLASS(plain_document), RUNTIME_CLASS(full_frame),
                                                  RUNTIME_CLASS(plain_view)));
    expect_flat([](int life) {
        the_app.m_nCmdShow = show_command(life);
        the_app.OnFileNew();
        auto* frame = static_cast<full_frame*>(the_app.m_pMainWnd);
        frame->splitter.SplitRow(50);
        the_app.OnIdle(0);
        frame->SendMessage(WM_CLOSE);
        the_app.OnIdle(1);
    });
    end_documents();
}

} // namespace
