#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "gallery_frame.h"
#include "render.h"

// zopgallery [FILE...]                                  shows the pages; each FILE is an attribute script
//                                                       or a bitmap (.bmp, .dib)
// zopgallery --render DIR [--size WxH] [FILE...]        paints pages and scripts into DIR and ends

namespace {

struct CommandLine {
    NamedFiles files;
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
        if ((render || size) && ++i == count) {
            line.good = false;
        } else if (render) {
            line.render = true;
            line.render_to = arguments[i];
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
            std::fputs("usage: zopgallery [--render DIR [--size WxH]] [FILE...]\n", stderr);
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
        frame->ShowWindow(m_nCmdShow);
        frame->UpdateWindow();
        return TRUE;
    }

    int ExitInstance() override {
        const int result = CWinApp::ExitInstance();
        return result_ ? result_ : result;
    }

private:
    BOOL Fail() {
        result_ = 2;
        return FALSE;
    }

    int result_ = 0;
};

CGalleryApp app;

} // namespace
