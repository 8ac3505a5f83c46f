#include "pulse_host.h"

#include <atlexcept.h>
#include <psapi.h>

#include "temporary_file.h"

namespace {

using PulseLives = PulseFixture;

TEST_F(PulseLives, RecordsAndReads) {
    const CString path = "pulse_test_record.txt";
    ::DeleteFileA(path);
    ASSERT_EQ(chart_.StartRecording(path), 1);
    const __int64 now = CWntPulse::Now() / 100 * 100;
    for (int i = 0; i < 500; ++i)
        chart_.AddSample(i % 2, i, now + i / 2 * 100);
    EXPECT_EQ(chart_.OpenFile(path, 0), 0); // what is recorded goes on
    EXPECT_EQ(chart_.StopRecording(), 1);
    EXPECT_EQ(chart_.StopRecording() + chart_.StartRecording("no such folder\\x.txt") + chart_.IsRecording(), 0);
    EXPECT_STREQ(chart_.GetRecordingError(), "the file cannot be opened");
    CWntPulse reader;
    ASSERT_TRUE(reader.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 300, 600, 500), &host_, 6));
    reader.SetColours(paper, blue, RGB(0, 200, 0));
    ASSERT_EQ(reader.OpenFile(path, 1), 1);
    const long reading = repainted(reader).count(blue);
    while (reader.IsReading())
        reader.SendMessage(WM_TIMER, 2, 0);
    EXPECT_EQ(host_.told.back(), std::tuple(WNT_PULSE_READ, 1));
    const Pixels read = repainted(reader);
    EXPECT_GT(reading, read.count(blue) + 200) << "how far it is";
    EXPECT_GT(read.count(paper), 2 * read.count(RGB(0, 200, 0)));
    EXPECT_GT(read.count(RGB(0, 200, 0)), 300) << "a grid";
    EXPECT_TRUE(reader.GetCurveCount() == 2 && reader.GetSampleCount(0) + reader.GetSampleCount(1) == 500);
    __int64 from = 0, to = 0;
    reader.GetShownTime(&from, &to);
    EXPECT_TRUE(from <= now && to >= now + 24'900 && to < now + 40'000);
    EXPECT_EQ(reader.OpenFile("no such file", 0) + reader.OpenFile(nullptr, 0), 0);
    EXPECT_EQ(reader.GetSampleCount(0), 250); // refused files leave what is there
    reader.OpenFile(path, 1);
    reader.SendMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(host_.told.back(), std::tuple(WNT_PULSE_READ, 0));
    ASSERT_EQ(reader.StartRecording(path), 1);
    reader.RemoveCurves(); // ends what is recorded of them
    EXPECT_TRUE(reader.IsRecording() == 0 && ::DeleteFileA(path));
}

TEST_F(PulseLives, CopiesWhatIsShown) {
    for (int i = 0; i < 10; ++i)
        chart_.AddSample(flow_, 12.5 + i, i * 200);
    chart_.AddSample(level_, 1, 400); // of a curve that is hidden
    chart_.ShowCurve(level_, 0);
    chart_.ShowTime(350, 450);
    chart_.SendMessage(WM_COMMAND, WNT_PULSE_CMD_COPY_VALUES);
    ASSERT_TRUE(host_.OpenClipboard());
    const HANDLE block = ::GetClipboardData(CF_TEXT);
    const CString text = block ? static_cast<const char*>(::GlobalLock(block)) : "";
    ::GlobalUnlock(block);
    ::CloseClipboard();
    EXPECT_STREQ(text, "1979-12-31 00:00:04.00\tFlow\t14.5\r\n");
}

TEST_F(PulseLives, CopiesItsPictureAlsoFromUnderOtherWindows) {
    feed(0, 6000);
    const Pixels shown = pixels_of(chart_);
    const CRect place = on_screen(chart_);
    CWnd above;
    ASSERT_TRUE(above.CreateEx(0, nullptr, "above", WS_POPUP | WS_VISIBLE, place, nullptr, 0));
    CClientDC(&above).FillSolidRect(CRect(0, 0, 600, 300), poison);
    chart_.SendMessage(WM_COMMAND, WNT_PULSE_CMD_COPY_PICTURE);
    above.DestroyWindow();
    ASSERT_TRUE(host_.OpenClipboard());
    CDC copy;
    copy.CreateCompatibleDC(nullptr);
    const HGDIOBJ before = ::SelectObject(copy, ::GetClipboardData(CF_BITMAP));
    Picture copied(shown.width, shown.height);
    ::BitBlt(copied.dc(), 0, 0, shown.width, shown.height, copy, 0, 0, SRCCOPY);
    ::SelectObject(copy, before);
    ::CloseClipboard();
    const auto values = copied.values();
    const auto above_bar = shown.width * (on_screen(*chart_.GetDlgItem(4)).top - place.top); // which is left out
    EXPECT_TRUE(std::equal(values.begin(), values.begin() + above_bar, shown.values.begin()));
}

TEST_F(PulseLives, ReadsScripts) {
    const TemporaryFile file(":TITLE=Pump\r\n:CLEARCURVES\r\n:CURVE=Speed,RED,0,3000\r\n:SPAN=10\r\n");
    ASSERT_EQ(chart_.LoadFromFile(file.name()), 1);
    EXPECT_TRUE(chart_.GetCurveCount() == 1 && chart_.GetSpan() == 1000);
    double low = -1, high = -1;
    EXPECT_TRUE(chart_.GetRange(0, &low, &high) == 1 && low == 0 && high == 3000);
    EXPECT_EQ(chart_.GetRange(1, &low, &high) + chart_.GetRange(0, nullptr, &high), 0);
    EXPECT_EQ(chart_.AddSample(0, 1500), 1);
    CWntPulse* volatile none = nullptr;
    EXPECT_EQ(none->AddSample(0, 1) + none->AddSample(0, 1, 1) + none->SetSpan(5) + none->GetCurveCount() +
                  none->OpenFile("x", 0) + none->CopyValues() + none->IsLive(),
              0);
}

TEST_F(PulseLives, MayBeDestroyedOnAnyNotification) {
    for (const UINT code : {WNT_PULSE_VIEW, WNT_PULSE_CURSOR, WNT_PULSE_CURVE, WNT_PULSE_READ}) {
        auto* chart = new CWntPulse;
        ASSERT_TRUE(chart->Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 400, 300), &host_, 7));
        chart->AddCurve("a", red, 0, 1);
        for (int i = 0; i < 1000; ++i)
            chart->AddSample(0, 0.5, i * 100);
        const HWND window = chart->m_hWnd;
        host_.answer = [&](WntPulseNotify& n) -> LRESULT {
            if (n.hdr.code == code)
                delete std::exchange(chart, nullptr);
            return 0;
        };
        const TemporaryFile file({'1', '\n', 'a', ' ', ';', '\n'});
        if (code == WNT_PULSE_READ)
            chart->OpenFile(file.name(), 0);
        for (int i = 0; i < 3; ++i)
            ::SendMessage(window, WM_TIMER, 2, 0);
        ::SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(200, 150));
        ::SendMessage(window, WM_LBUTTONUP, 0, MAKELPARAM(200, 150));
        if (const HWND axis = ::GetDlgItem(window, 3); axis && code == WNT_PULSE_VIEW) {
            CRect size;
            ::GetClientRect(axis, &size);
            ::SendMessage(window, WM_COMMAND, WNT_PULSE_CMD_ZOOM, 0);
            drag(axis, 1, 90, size.bottom - 5);
            EXPECT_FALSE(::IsWindow(window));
        }
        ::SendMessage(window, WM_KEYDOWN, VK_PRIOR, 0);
        for (int y = 2; y < 40; y += 4)
            ::SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, y));
        EXPECT_FALSE(chart || ::IsWindow(window)) << code;
    }
}

// A hundred samples a second; the picture follows every 1,080 seconds.
TEST_F(PulseLives, AWeekOfLiveTimeGrowsNothing) {
    constexpr __int64 day = 8'640'000, tick = 108'000;
    const auto memory = [] {
        PROCESS_MEMORY_COUNTERS counters = {};
        ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
        return counters.PagefileUsage;
    };
    chart_.SetCapacity(100'000);
    Counts first;
    SIZE_T first_memory = 0;
    for (__int64 time = 0; time < 7 * day; time += tick) {
        for (__int64 at = time; at < time + tick; ++at)
            chart_.AddSample(flow_, static_cast<double>(at % 977) / 10, at);
        show();
        if (time == day) {
            first = {};
            first_memory = memory();
        }
    }
    EXPECT_EQ(chart_.GetSampleCount(flow_), 100'000);
    EXPECT_LE(first.grown(), 0);
    EXPECT_LT(memory(), first_memory + 1'000'000);
}

// The result code of the framework's exception, which is what errors are through the DLL.
template <class Call> SCODE code_of(Call call) {
    try {
        call();
    } catch (COleException* error) {
        const SCODE code = error->m_sc;
        error->Delete();
        return code;
    }
    return S_OK;
}

TEST(PulseLibrary, RaisesTheFrameworksException) {
    EXPECT_EQ(code_of([] { CWntTime(1969, 12, 31, 0, 0, 0, 0); }), E_FAIL);
    const TemporaryFile disk;
    CWntPulseFile file(CWntPulseFile::write, disk.name());
    EXPECT_EQ(code_of([&] { file.Put(1, 1, -1); }), E_INVALIDARG);
    EXPECT_EQ(file.Put(1, 1, 1'794'837'839), 28);
}

} // namespace
