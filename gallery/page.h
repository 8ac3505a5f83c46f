#pragma once

#include <list>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <zopwnt.h>

/// One page of the gallery: a child window that shows one feature.
class CGalleryPage : public CWnd {
public:
    virtual const char* Title() const = 0;
    /// Short name for files.
    virtual const char* Name() const = 0;

    bool Open(CWnd* parent, const CRect& place);
    /// Its ground is not painted over its children.
    virtual DWORD Style() const { return WS_CHILD | WS_CLIPCHILDREN; }
    /// Brings what moves to a state worth a picture.
    virtual void Settle() {}

protected:
    virtual bool CreateContents() { return true; }
    virtual void Arrange(int width, int height) = 0;

    static void Place(CWnd& window, int x, int y, int width, int height);
    static void Place(CWnd& window, const CRect& place);

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()
};

/// Fills the whole surface with one colour.
void FillSurface(CWntOut& out, COLORREF colour);

/// A page that is painted through one drawing surface, and shown when it is finished.
class CSurfacePage : public CGalleryPage {
public:
    /// It is told what to paint by what is uncovered, its surface included.
    DWORD Style() const override { return WS_CHILD; }

protected:
    virtual void Paint(CWntOut& out) = 0;
    /// Rows that the surface leaves free at the page's top.
    virtual int TopHeight() const { return 0; }

    bool CreateContents() override;
    void Arrange(int width, int height) override;

    CWntOut& Surface() { return out_; }

    afx_msg void OnPaint();
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    void PaintOn(CDC& dc);

    CWntOut out_;
};

/// One with a row of push buttons above the surface.
class CBarPage : public CSurfacePage {
protected:
    /// Behind those that are there.
    CButton* AddButton(const char* text, UINT id, int width);

    int TopHeight() const override { return 36; }
    bool CreateContents() override;
    void Arrange(int width, int height) override;

private:
    struct BarButton {
        CButton button;
        int width;
    };
    CFont font_;
    std::list<BarButton> buttons_;
};

/// One that a function paints.
class CPaintedPage : public CSurfacePage {
public:
    using Painter = void (*)(CWntOut& out);
    CPaintedPage(const char* title, const char* name, Painter painter)
        : title_(title), name_(name), painter_(painter) {}

    const char* Title() const override { return title_; }
    const char* Name() const override { return name_; }

protected:
    void Paint(CWntOut& out) override { painter_(out); }

private:
    const char* title_;
    const char* name_;
    Painter painter_;
};

/// The files that were named at start.
struct NamedFiles {
    std::vector<CString> scripts;
    std::vector<CString> pictures; ///< bitmap files
};

using GalleryPages = std::vector<std::unique_ptr<CGalleryPage>>;

/// Hands each line of a script to a widget's line operation.
template <class Load> void LoadLines(const char* script, Load load) {
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);)
        load(line.c_str());
}

std::unique_ptr<CGalleryPage> MakeSurfacePage();
std::unique_ptr<CGalleryPage> MakeTextPage();
std::unique_ptr<CGalleryPage> MakeGaugesPage();
std::unique_ptr<CGalleryPage> MakeButtonsPage();
std::unique_ptr<CGalleryPage> MakeScrollBarsPage();
std::unique_ptr<CGalleryPage> MakeFramesPage();
std::unique_ptr<CGalleryPage> MakeFoldingFramesPage();
std::unique_ptr<CGalleryPage> MakeSashPage();
std::unique_ptr<CGalleryPage> MakeToolBarsPage();
std::unique_ptr<CGalleryPage> MakeTabsPage();
std::unique_ptr<CGalleryPage> MakeTipsPage();
std::unique_ptr<CGalleryPage> MakeTipOfTheDayPage();
std::unique_ptr<CGalleryPage> MakeChartsPage();
std::unique_ptr<CGalleryPage> MakePulsePage();
std::unique_ptr<CGalleryPage> MakeCalendarPage();
std::unique_ptr<CGalleryPage> MakeColoursPage();
std::unique_ptr<CGalleryPage> MakeAxesPage();
std::unique_ptr<CGalleryPage> MakeDiagnosticsPage();
// Its parts.
std::unique_ptr<CGalleryPage> MakeDialogsPage();
std::unique_ptr<CGalleryPage> MakeSoundsPage();
std::unique_ptr<CGalleryPage> MakeSharingPage();
std::unique_ptr<CGalleryPage> MakeBitmapPage(const std::vector<CString>& pictures);
std::unique_ptr<CGalleryPage> MakeBitmapDrawingPage();
std::unique_ptr<CGalleryPage> MakePalettePage();
std::unique_ptr<CGalleryPage> MakeScriptsPage(const std::vector<CString>& scripts);

/// All pages, in the order of the list.
GalleryPages MakePages(const NamedFiles& files);
