#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <memory>
#include <utility>

#include "gallery_frame.h"
#include "gallery_ids.h"
#include "log.h"
#include "render.h"

// zopgallery [--no-splash] [--page NAME] [--log LOG] [FILE...]
//                                                       shows the pages; each FILE is an attribute script
//                                                       or a bitmap (.bmp, .dib)
// zopgallery --render DIR [--size WxH] [FILE...]        paints pages and scripts into DIR and ends

namespace {

constexpr UINT splash_time = 2000; // milliseconds

struct CommandLine {
    NamedFiles files;
    bool splash = true;
    CString page;
    CString log;
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
    CString size;
    const std::pair<const char*, CString*> options[] = {
        {"--render", &line.render_to}, {"--size", &size}, {"--page", &line.page}, {"--log", &line.log}};
    for (int i = 1; i < count; ++i) {
        const auto named = [&](const auto& option) { return std::strcmp(arguments[i], option.first) == 0; };
        const auto* option = std::find_if(std::begin(options), std::end(options), named);
        if (std::strcmp(arguments[i], "--no-splash") == 0)
            line.splash = false;
        else if (option == std::end(options))
            files_for(arguments[i], line.files).push_back(arguments[i]);
        else if (++i < count && arguments[i][0])
            *option->second = arguments[i];
        else
            line.good = false;
    }
    if (!size.IsEmpty())
        line.good = line.good && !line.render_to.IsEmpty() && read_size(size, line.size);
    return line;
}

class CGalleryApp : public CWinApp {
public:
    BOOL InitInstance() override {
        const CommandLine line = read_command_line(__argc, __argv);
        if (!line.good) {
            std::fputs(
                "usage: zopgallery [--no-splash] [--page NAME] [--log LOG] [--render DIR [--size WxH]] [FILE...]\n",
                stderr);
            return Fail();
        }
        if (!line.render_to.IsEmpty()) {
            result_ = RenderGallery(line.render_to, line.size, line.files) ? 0 : 1;
            return FALSE;
        }
        if (!line.log.IsEmpty() && !OpenLog(line.log)) {
            std::fprintf(stderr, "cannot write %s\n", line.log.GetString());
            return Fail();
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
        LogPlaces(*frame); // of the page that is shown at start
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
