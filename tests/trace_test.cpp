// The trace: its switches, its file and its window.
#include "temporary_file.h"
#include "widget_window.h"

using namespace testing;
using Texts = std::vector<std::string>;

namespace {

struct Tracer : CWntTrace {
    using CWntTrace::display;
    using CWntTrace::setstream;
    using CWntTrace::stream;
};

struct TraceTest : WidgetTest {
    void SetUp() override {
        WidgetTest::SetUp();
        start(0);
    }
    void TearDown() override {
        WidgetTest::TearDown();
        start(0);
        std::remove(file);
    }
    void start(unsigned flags, const char* own = nullptr, const char* other = nullptr) {
        trace.SetFlags(flags);
        ::SetEnvironmentVariableA("ZOPGTRACE", own);
        ::SetEnvironmentVariableA("DPTRACE", other);
    }
    bool opens_window() {
        trace.SetTitle(title.c_str());
        open(trace, 0, 0);
        const bool opened = dialog() != nullptr;
        trace.DestroyWindow();
        EXPECT_EQ(dialog(), nullptr);
        return opened;
    }
    HWND dialog() const { return ::FindWindowA("#32770", title.c_str()); }
    HWND list() const { return ::GetDlgItem(dialog(), 255); }
    LRESULT selected() const { return ::SendMessage(list(), LB_GETCURSEL, 0, 0); }
    Texts lines() const {
        Texts all;
        char text[2000];
        for (int i = 0; ::SendMessageA(list(), LB_GETTEXT, i, reinterpret_cast<LPARAM>(text)) != LB_ERR; ++i)
            all.push_back(text);
        return all;
    }

    static constexpr const char* file = "trace test.txt";
    const std::string title = "Trace test";
    Tracer trace;
};

const std::string hyphens(64, '-');

} // namespace

TEST_F(TraceTest, EnvironmentOpensTheWindow) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {nullptr, nullptr, false}, {"1", "1", false},      {"2", nullptr, true},
        {nullptr, "2", true},      {"16", nullptr, false}, {"1000000002", nullptr, false}};
    for (const auto& [own, other, window] : cases) {
        start(0, own, other);
        EXPECT_EQ(opens_window(), window) << own << ',' << other;
    }
}

TEST_F(TraceTest, LinesGoToTheOpenStream) {
    std::remove("trace.txt");
    std::remove("Wtrace.txt");
    WntTrace("nowhere %d\n", 1); // switches file output on, but no stream is open
    EXPECT_EQ(text_of("trace.txt"), "");

    open(trace, 0, 0);
    trace.setstream(std::fopen(file, "wt"));
    WntTrace("plain %s\n", "text");
    trace.Trace(3, "indented %d", 7);
    trace.Trace("\n");
    trace.Trace(-2, "outdented\n");
    trace.Trace(600, "deep\n");
    trace.SetFlags(2);
    trace.Trace("lost\n");
    trace.SetFilename("trace banner.txt"); // switches it on; the stream stays
    EXPECT_THAT(text_of("trace banner.txt"),
                AllOf(StartsWith("Begin of Trace\r\nstarted at "), EndsWith(hyphens + "\r\n")));
    trace.Trace("almost ");
    trace.SetFilename(nullptr);
    trace.Trace("lost\n");
    trace.SetFlags(1);
    trace.Trace("last\n");
    trace.SetFilename(""); // closes it
    std::remove("trace banner.txt");
    trace.DestroyWindow();
    EXPECT_EQ(trace.stream(), nullptr);
    const std::string written =
        "plain text\r\n      indented 7\r\noutdented\r\n" + std::string(1200, ' ') + "deep\r\nalmost last\r\n";
    EXPECT_THAT(text_of(file),
                AllOf(StartsWith(written + hyphens + "\r\nended at "), EndsWith("\r\nEnd of Trace\r\n\r\n")));
    EXPECT_EQ(text_of("trace.txt") + text_of("Wtrace.txt"), "");
}

TEST_F(TraceTest, WindowShowsAndSelectsTheNewestLine) {
    constexpr const char* settings = "Trace test.ini";
    ::WritePrivateProfileStringA("Position", "X", "37", settings);
    ::WritePrivateProfileStringA("Position", "Y", "21", settings);
    trace.SetTitle(title.c_str());
    trace.SetFlags(2);
    trace.Trace("before the window");
    open(trace, 0, 0);
    EXPECT_EQ(on_screen(*CWnd::FromHandle(dialog())), CRect(37, 21, 37 + 468, 21 + 350));
    EXPECT_TRUE(::IsWindowVisible(dialog()));

    trace.Trace("first"), trace.Trace("one"), trace.Trace("one");
    EXPECT_EQ(selected(), 2);
    trace.Trace(2, "one more"), WntTrace("one");
    EXPECT_EQ(selected(), 4);
    trace.SetFlags(1);
    trace.Trace("unseen");
    trace.SetFlags(2);
    trace.display("two");
    EXPECT_THAT(lines(), ElementsAre("first", "one", "one", "one more", "one", "two"));
    ::SendMessage(list(), WM_SETREDRAW, FALSE, 0);
    for (int i = 6; i < 9'999; ++i)
        ::SendMessage(list(), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(""));
    trace.Trace("last with all"), trace.Trace("newest");
    EXPECT_EQ(::SendMessage(list(), LB_GETCOUNT, 0, 0), 10'000);
    EXPECT_EQ(selected(), 9'999);
    EXPECT_EQ(::SendMessage(list(), LB_FINDSTRINGEXACT, 9'990, reinterpret_cast<LPARAM>("first")), LB_ERR);
    trace.DestroyWindow();
    trace.Trace("after the window");
    WntTrace("after the window");
    open(trace, 0, 0); // a window of its own again, without a position of its own
    EXPECT_THAT(lines(), IsEmpty());
    trace.DestroyWindow();
    ::WritePrivateProfileStringA("Position", nullptr, nullptr, settings);
    {
        Tracer fresh;
        open(fresh, 0, 0);
        const HWND window = ::FindWindowA("#32770", "Tracer");
        EXPECT_EQ(on_screen(*CWnd::FromHandle(window)).TopLeft(), CPoint(10, 10));
    }
    EXPECT_EQ(::FindWindowA("#32770", "Tracer"), nullptr);
}

TEST_F(TraceTest, LongLinesAndBadFormatsAreOnlyReported) {
    trace.setstream(std::fopen(file, "wt"));
    trace.SetFlags(1);
    const std::string fits(1023, 'x');
    trace.Trace("%s", fits.c_str());
    EXPECT_THAT(program.boxes, IsEmpty());
    const std::string longer(5000, 'y');
    trace.Trace("%s", longer.c_str());
    trace.Trace(1, "%s", longer.c_str());
    WntTrace("%s", longer.c_str());
    EXPECT_EQ(program.boxes, Texts(3, "Wtrace: buffer too small"));
    trace.setstream(nullptr);
    EXPECT_EQ(text_of(file), fits + longer.substr(0, 1023) + "  " + longer.substr(0, 1023) + longer.substr(0, 1023));

    program.boxes.clear();
    const char* volatile none = nullptr, * volatile counting = "%d%n";
    int count = 0;
    trace.Trace(none), WntTrace(none), trace.Trace(counting, 1, &count);
    EXPECT_GE(program.boxes.size(), 2u);
    program.boxes.clear();
}
