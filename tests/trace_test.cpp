// The trace: its switches, its file and its window.
#include "quiet_program.h"

#include <cstdio>
#include <fstream>
#include <iterator>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::StartsWith;
using Texts = std::vector<std::string>;

namespace {

class Tracer : public CWntTrace {
public:
    using CWntTrace::setstream;
    using CWntTrace::stream;
};

std::string contents(const char* path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class TraceTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(host.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0));
        trace.SetFlags(0);
        environment_variables("", "");
    }
    void TearDown() override {
        host.DestroyWindow();
        trace.SetFlags(0);
        environment_variables("", "");
        std::remove(file);
    }
    static void environment_variables(const char* own, const char* other) {
        ::SetEnvironmentVariableA("ZOPGTRACE", *own ? own : nullptr);
        ::SetEnvironmentVariableA("DPTRACE", *other ? other : nullptr);
    }
    BOOL create() { return trace.Create(nullptr, "Trace", WS_CHILD, CRect(0, 0, 0, 0), &host, 101); }
    HWND dialog() const { return ::FindWindowA("#32770", title.c_str()); }
    HWND list() const { return ::GetDlgItem(dialog(), 255); }
    Texts lines() const {
        Texts all;
        const auto count = ::SendMessage(list(), LB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            std::string text(::SendMessage(list(), LB_GETTEXTLEN, i, 0) + 1, '\0');
            ::SendMessageA(list(), LB_GETTEXT, i, reinterpret_cast<LPARAM>(text.data()));
            all.push_back(text.c_str());
        }
        return all;
    }

    static constexpr const char* file = "trace test.txt";
    const std::string title = "Trace test";
    CWnd host;
    Tracer trace;
};

constexpr const char* hyphens = "----------------------------------------------------------------";

} // namespace

TEST_F(TraceTest, EnvironmentOpensTheWindow) {
    const struct {
        const char *own, *other;
        bool window;
    } cases[] = {{"", "", false},     {"1", "1", false}, {"2", "", true},
                 {"", "2", true},     {"16", "", false}, {"3 and more", "", false},
                 {"3more", "", true}, {"x2", "", false}, {"1000000002", "", false}};
    for (const auto& c : cases) {
        trace.SetFlags(0);
        environment_variables(c.own, c.other);
        trace.SetTitle(title.c_str());
        ASSERT_TRUE(create());
        EXPECT_EQ(dialog() != nullptr, c.window) << c.own << ',' << c.other;
        trace.DestroyWindow();
        EXPECT_EQ(dialog(), nullptr);
    }
    for (const unsigned flags : {0u, 1u}) { // the function reads the variables while no flag is set
        trace.SetFlags(flags);
        environment_variables("2", "");
        WntTrace("to nobody");
        environment_variables("", "");
        trace.SetTitle(title.c_str());
        ASSERT_TRUE(create());
        EXPECT_EQ(dialog() != nullptr, flags == 0);
        trace.DestroyWindow();
    }
}

TEST_F(TraceTest, LinesGoToTheOpenStream) {
    std::remove("trace.txt");
    std::remove("Wtrace.txt");
    WntTrace("nowhere %d\n", 1); // switches file output on, but no stream is open
    EXPECT_EQ(contents("trace.txt"), "");

    ASSERT_TRUE(create());
    trace.setstream(std::fopen(file, "wt"));
    WntTrace("plain %s\n", "text");
    trace.Trace(3, "indented %d", 7);
    trace.Trace("\n");
    trace.Trace(-2, "outdented\n");
    trace.Trace(0, "flush %c\n", '!');
    trace.SetFlags(0);
    trace.Trace("lost\n");
    trace.SetFlags(16 | 1);
    trace.SetFilename(nullptr);
    trace.Trace("lost\n");
    trace.SetFlags(1);
    trace.Trace("last\n");
    trace.DestroyWindow();
    EXPECT_EQ(trace.stream(), nullptr);
    const std::string text = contents(file);
    constexpr const char* written = "plain text\r\n      indented 7\r\noutdented\r\nflush !\r\nlast\r\n";
    ASSERT_THAT(text, StartsWith(std::string(written) + hyphens + "\r\nended at "));
    EXPECT_THAT(text, testing::EndsWith("\r\nEnd of Trace\r\n\r\n"));
    EXPECT_EQ(contents("trace.txt") + contents("Wtrace.txt"), "");

    trace.setstream(std::fopen(file, "wt"));
    trace.Trace("kept\n");
    CWntTrace another; // a new instance closes the stream of all
    EXPECT_EQ(trace.stream(), nullptr);
    trace.Trace("lost\n");
    EXPECT_EQ(contents(file), "kept\r\n");
}

TEST_F(TraceTest, FileNameGetsTheBannerOnly) {
    trace.SetFilename(file);
    trace.Trace("not here\n");
    EXPECT_EQ(trace.stream(), nullptr);
    EXPECT_THAT(contents(file), MatchesRegex("Begin of Trace\r\nstarted at \\d\\d:\\d\\d:\\d\\d on \\w+, \\w+ \\d\\d, "
                                             "\\d\\d\\d\\d\r\n-+\r\n"));
    EXPECT_THAT(contents(file), testing::HasSubstr(std::string("\n") + hyphens + "\r\n"));
    trace.SetFilename("no such folder/x.txt"); // ignored; the first file is let go
    EXPECT_EQ(std::remove(file), 0);
}

TEST_F(TraceTest, WindowShowsAndSelectsTheNewestLine) {
    constexpr const char* settings = "Trace test.ini";
    ::WritePrivateProfileStringA("Position", "X", "37", settings);
    ::WritePrivateProfileStringA("Position", "Y", "21", settings);
    trace.SetTitle(title.c_str());
    trace.SetTitle(nullptr); // ignored
    trace.SetFlags(2);
    trace.Trace("before the window");
    ASSERT_TRUE(create());
    CRect place;
    ::GetWindowRect(dialog(), &place);
    EXPECT_EQ(place, CRect(37, 21, 37 + 468, 21 + 350));
    EXPECT_TRUE(::IsWindowVisible(dialog()));
    EXPECT_NE(::GetDlgItem(dialog(), 257), nullptr);

    const auto selected = [this] { return ::SendMessage(list(), LB_GETCURSEL, 0, 0); };
    trace.Trace("one");
    EXPECT_EQ(selected(), 0);
    trace.Trace("one");
    EXPECT_EQ(selected(), 1);
    trace.Trace(2, "one more");
    EXPECT_EQ(selected(), 2);
    WntTrace("one");
    EXPECT_EQ(selected(), 3);
    trace.SetFlags(1);
    trace.Trace("unseen");
    EXPECT_THAT(lines(), ElementsAre("one", "one", "one more", "one"));
    trace.SetFlags(2);
    trace.DestroyWindow();
    trace.Trace("after the window");
    WntTrace("after the window");
    ASSERT_TRUE(create()); // a window of its own again, without a position of its own
    EXPECT_THAT(lines(), IsEmpty());
    trace.DestroyWindow();
    ::WritePrivateProfileStringA("Position", nullptr, nullptr, settings);
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
    EXPECT_EQ(contents(file), fits + longer.substr(0, 1023) + "  " + longer.substr(0, 1023) + longer.substr(0, 1023));

    program.boxes.clear();
    const char* volatile none = nullptr;
    int count = 0;
    const char* volatile counting = "%d%n";
    trace.Trace(none);
    WntTrace(none);
    trace.Trace(counting, 1, &count);
    EXPECT_GE(program.boxes.size(), 2u);
    program.boxes.clear();
}
