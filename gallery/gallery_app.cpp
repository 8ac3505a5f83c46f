#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "gallery_frame.h"
#include "gallery_ids.h"
#include "render.h"

// zopgallery [--no-splash] [--page NAME] [FILE...]      shows the pages; each FILE is an attribute script
//                                                       or a bitmap (.bmp, .dib)
// zopgallery --render DIR [--size WxH] [FILE...]        paints pages and scripts into DIR and ends

namespace {

constexpr UINT splash_time = 2000; // milliseconds

struct CommandLine {
    NamedFiles files;
    bool splash = true;
    CString page;
    bool render = false;
    CString render_to;
    CSize size = {0, 0};
    bool good = true;
};

bool read_size(const char* text, CSize& size) {
    int width = 0;
    int height = 0;
    char rest = 0;
    if (std::sscanf(text, "%5dx%5d%c", &width, &height, &rest) != 2 || width < 1 || height < 1)
        return false;
    // What lies beyond the screen would not be painted.
    if (width > ::GetSystemMetrics(SM_CXSCREEN) || height > ::GetSystemMetrics(SM_CYSCREEN)) {
        std::fprintf(stderr, "the screen is smaller than %s\n", text);
        return false;
    }
    size = CSize(width, height);
    return true;
}

std::vector<CString>& files_for(const CString& name, NamedFiles& files) {
    const CString end = name.Right(4);
    return end.CompareNoCase(".bmp") == 0 || end.CompareNoCase(".dib") == 0 ? files.pictures : files.scripts;
}

CommandLine read_command_line(int count, char** arguments) {
    CommandLine line;
    for (int i = 1; i < count; ++i) {
        const bool render = std::strcmp(arguments[i], "--render") == 0;
        const bool size = std::strcmp(arguments[i], "--size") == 0;
        const bool page = std::strcmp(arguments[i], "--page") == 0;
        if (std::strcmp(arguments[i], "--no-splash") == 0) {
            line.splash = false;
        } else if ((render || size || page) && ++i == count) {
            line.good = false;
        } else if (render) {
            line.render = true;
            line.render_to = arguments[i];
        } else if (page) {
            line.page = arguments[i];
        } else if (size) {
            line.good = line.good && read_size(arguments[i], line.size);
        } else {
            files_for(arguments[i], line.files).push_back(arguments[i]);
        }
    }
    line.good = line.good && (!line.render || !line.render_to.IsEmpty()) && (line.render || line.size.cx == 0);
    return line;
}

class CGalleryApp : public CWinApp {
public:
    BOOL InitInstance() override {
        const CommandLine line = read_command_line(__argc, __argv);
        if (!line.good) {
            std::fputs("usage: zopgallery [--no-splash] [--page NAME] [--render DIR [--size WxH]] [FILE...]\n", stderr);
            return Fail();
        }
        if (line.render) {
            result_ = RenderGallery(line.render_to, line.size, line.files) ? 0 : 1;
            return FALSE;
        }
        auto* frame = new CGalleryFrame(line.files);
        if (!frame->Open()) // it deletes itself
            return Fail();
        m_pMainWnd = frame;
        frame->SetIcon(LoadIcon("ZOP"), TRUE);
        frame->ShowPage(!line.files.scripts.empty() ? "scripts" : !line.files.pictures.empty() ? "bitmap" : "gauges");
        frame->ShowPage(line.page);
        frame->ShowWindow(m_nCmdShow);
        frame->UpdateWindow();
        if (line.splash)
            ShowSplash();
        return TRUE;
    }

    int ExitInstance() override {
        const int result = CWinApp::ExitInstance();
        return result_ ? result_ : result;
    }

private:
    static void ShowSplash() {
        auto splash = std::make_unique<CWntSplash>(IDB_SPLASH, splash_time);
        if (splash->Create())
            static_cast<void>(splash.release()); // it deletes itself
    }

    BOOL Fail() {
        result_ = 2;
        return FALSE;
    }

    int result_ = 0;
};

CGalleryApp app;

} // namespace
