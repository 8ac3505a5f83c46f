// Strings, rectangles, times and memory files.
#include "afx_test_app.h"

#include <string>

namespace {

static_assert(max(2, 3.5) == 3.5 && min(4L, 3) == 3); // which the standard library's headers must not take away

TEST(AfxWholeString, ChangesAsDocumented) {
    using Change = std::function<CString(CString)>;
    const std::tuple<const char*, Change, const char*, const char*> rows[] = {
        {"trim", [](CString s) { return s.Trim(); }, " \t a b\r\n", "a b"},
        {"trim set", [](CString s) { return s.TrimRight("xy"); }, "yxaxyx", "yxa"},
        {"trim all", [](CString s) { return s.TrimLeft('0'); }, "000", ""},
        {"replace grows", [](CString s) { return s.Replace("a", "aa"), s; }, "banana", "baanaanaa"},
        {"replace nothing", [](CString s) { return s.Replace("", "x"), s; }, "abc", "abc"},
        {"remove", [](CString s) { return s.Remove('a'), s; }, "banana", "bnn"},
        {"insert far", [](CString s) { return s.Insert(99, "!"), s; }, "end", "end!"},
        {"insert itself", [](CString s) { return s.Insert(1, s), s; }, "ab", "aabb"},
        {"delete", [](CString s) { return s.Delete(1, 99), s; }, "abc", "a"},
        {"upper", [](CString s) { return s.MakeUpper(); }, "\xE4 z", "\xC4 Z"},
        {"reverse", [](CString s) { return s.MakeReverse(); }, "abc", "cba"},
        {"span", [](CString s) { return s.SpanIncluding("0123"); }, "310a2", "310"},
        {"span out", [](CString s) { return s.SpanExcluding(" ,"); }, "one, two", "one"},
    };
    for (const auto& [what, change, from, to] : rows)
        EXPECT_STREQ(change(from), to) << what;
}

TEST(AfxFileTime, CountsFineSteps) {
    const SYSTEMTIME day{2024, 2, 4, 29, 12, 30, 15, 250};
    FILETIME record{};
    ASSERT_TRUE(::SystemTimeToFileTime(&day, &record));
    const CFileTime noon = record, later = noon + CFileTimeSpan(CFileTime::Day) - CFileTimeSpan(CFileTime::Second);
    EXPECT_EQ((later - noon).GetTimeSpan(), 86399LL * 10000000);
    EXPECT_TRUE(noon < later && later != noon && CFileTime(noon.GetTime()) == noon && noon - later < CFileTimeSpan());
    EXPECT_EQ(noon.UTCToLocal().LocalToUTC(), noon);
    EXPECT_EQ(CTime(later) - CTime(noon), CTimeSpan(86399));
    EXPECT_EQ((CFileTime(5) - CFileTimeSpan(6)).GetTime(), ~0ULL);
    EXPECT_LE(noon, CFileTime::GetCurrentTime());
}

TEST(AfxWholeString, FindsAndTakesApart) {
    const CString text("one;two;;three");
    EXPECT_EQ(text.Find('t', 5), 9);
    EXPECT_TRUE(text.Find("two") == 4 && text.Find("two", 5) == -1 && text.Find("", 99) == -1);
    EXPECT_EQ(text.FindOneOf("wt"), 4);
    std::string parts;
    int at = 0;
    for (CString part = text.Tokenize(";", at); at != -1; part = text.Tokenize(";", at))
        parts += std::string(part) + "|";
    EXPECT_EQ(parts, "one|two|three|");
    EXPECT_TRUE(raises<CInvalidArgException>([] { CString("abc").SetAt(3, 'x'); }));
}

TEST(AfxWholeString, FormatsStringsOfItsOwnKind) {
    CString name("gauge"), text;
    text.Format("%s = %d, %s", name, 7, CString("ok"));
    EXPECT_STREQ(text, "gauge = 7, ok");
    text.AppendFormat(_T("|%s|"), text);
    EXPECT_STREQ(text, "gauge = 7, ok|gauge = 7, ok|");
    text.Format(IDS_FORMAT, 3, name);
    EXPECT_STREQ(text, "3 of gauge");
    text.AppendFormat("%0*d", 5000, 1);
    EXPECT_EQ(text.GetLength(), 10 + 5000);
    EXPECT_EQ(CString(MAKEINTRESOURCE(IDS_FORMAT)), "%d of %s");
    text.FormatMessage("%2 before %1", name, "dial");
    EXPECT_STREQ(text, "dial before gauge");
    EXPECT_TRUE("a" < name && name > "a" && "gauge" == name && name != "Gauge" && name >= "gauge" && "z" >= name);
}

TEST(AfxRect, ComputesWithPointsAndSizes) {
    CRect rect(10, 20, 5, 8);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(5, 8, 10, 20));
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(4, 6, 13, 24));
    rect.MoveToXY(0, 0);
    EXPECT_EQ(rect + CSize(1, 2), CRect(1, 2, 10, 20));
    EXPECT_EQ(rect & CRect(5, 5, 99, 99), CRect(5, 5, 9, 18));
    EXPECT_EQ(CRect(0, 0, 1, 1) | CRect(4, 4, 5, 6), CRect(0, 0, 5, 6));
    EXPECT_TRUE(!rect.IntersectRect(rect, CRect(50, 50, 60, 60)) && rect.IsRectNull());
    rect.TopLeft() = CPoint(3, 4) - CSize(1, 1);
    EXPECT_EQ(rect.TopLeft(), CPoint(2, 3));
    EXPECT_TRUE(CRect(0, 0, 2, 2).PtInRect(CPoint(1, 1)) && !CRect(0, 0, 2, 2).PtInRect(CPoint(2, 1)));
}

TEST(AfxTime, AddsSpansAndFormatsThem) {
    const CTime start(2024, 2, 28, 23, 59, 30);
    const CTime next = start + CTimeSpan(1, 0, 0, 45);
    EXPECT_EQ(std::tuple(next.GetMonth(), next.GetDay(), next.GetSecond()), std::tuple(3, 1, 15))
        << "a leap year's 29th is over";
    EXPECT_EQ(CTime(2024, 3, 3, 0, 0, 0).GetDayOfWeek(), 1);
    EXPECT_EQ((next - start).GetTotalSeconds(), 86445);
    EXPECT_TRUE(start < next && next - start > CTimeSpan(1, 0, 0, 0));
    EXPECT_STREQ(CTimeSpan(3, 4, 5, 6).Format("%D:%H:%M:%S%%"), "3:04:05:06%");
    FILETIME file_time;
    AfxTimeToFileTime(start, &file_time);
    EXPECT_EQ(CTime(file_time), start);
    EXPECT_LT(std::abs((CTime::GetCurrentTime() - CTime(std::time(nullptr))).GetTotalSeconds()), 5);
}

TEST(AfxMemFile, GrowsUnlessItsMemoryIsTheCallers) {
    CMemFile file(16);
    for (int i = 0; i < 1000; ++i)
        file.Write(&i, sizeof(i));
    file.Seek(4 * 500, CFile::begin);
    int number = 0;
    EXPECT_TRUE(file.Read(&number, sizeof(number)) == sizeof(number) && number == 500);
    file.SetLength(3992);
    file.SetLength(3996);
    file.Seek(6, CFile::end);
    file.Write("x", 1);
    file.Seek(-11, CFile::end);
    char tail[12] = "zzzzzzzzzzz";
    EXPECT_EQ(std::string(tail, file.Read(tail, 12)), std::string(10, '\0') + "x") << "what lies between is zero";
    CFileStatus status;
    file.SetFilePath("name");
    EXPECT_TRUE(file.GetStatus(status) && status.m_size == 4003 && status.m_szFullName == std::string("name"));
    BYTE memory[4] = {1, 2, 3, 4};
    CMemFile fixed(memory, sizeof(memory));
    EXPECT_EQ(fixed.GetLength(), 4u);
    fixed.SeekToEnd();
    EXPECT_EQ(cause_of<CFileException>([&] { fixed.Write("x", 1); }), CFileException::diskFull);
    file.Attach(memory, sizeof(memory));
    EXPECT_TRUE(file.GetPosition() == 0 && file.GetLength() == 4) << "from the beginning, whatever it held";
    file.Attach(memory, sizeof(memory), 16);
    EXPECT_EQ(file.GetLength(), 0u) << "room to write into";
}

} // namespace
