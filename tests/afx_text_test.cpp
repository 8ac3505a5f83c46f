// Strings at their edges, where characters have two bytes, and moments that no clock shows.
#include "afx_test_app.h"

#include <mbctype.h>
#include <string>

namespace {

TEST(AfxStringEdges, PlacesOutsideTheTextAreItsEnds) {
    const CString text("abc");
    const std::tuple<int, int, const char*> cases[] = {{0, 3, "abc"}, {1, 99, "bc"}, {3, 1, ""}, {99, 1, ""},
                                                       {-5, 2, "ab"}, {1, -1, ""},   {0, 0, ""}};
    for (const auto& [first, count, part] : cases)
        EXPECT_STREQ(text.Mid(first, count), part) << first << ", " << count;
    EXPECT_TRUE(text.Left(-1).IsEmpty() && text.Left(99) == text && text.Right(2) == "bc" && text.Right(99) == text &&
                text.Right(-1).IsEmpty());
    EXPECT_TRUE(text[99] == '\0' && text[-1] == '\0' && text.GetAt(3) == '\0');
    EXPECT_TRUE(raises<CInvalidArgException>([&] { text.GetAt(4); }) &&
                raises<CInvalidArgException>([&] { text.GetAt(-1); }));
    EXPECT_STREQ(CString(L"f\u00fcr"), "f\xFCr");
    EXPECT_TRUE(text.Find('c', 3) == -1 && text.Find('c', -1) == -1 && text.ReverseFind('x') == -1);
    EXPECT_EQ(text.Find("", 3), 3);
    CString changed = text;
    EXPECT_EQ(changed.Delete(-4, 1), 2) << "from the start on";
    EXPECT_EQ(changed.Insert(-4, 'x'), 3);
    EXPECT_EQ(changed.Delete(7, 7), 3);
    EXPECT_STREQ(changed, "xbc");
}

TEST(AfxStringEdges, NoTextIsAnEmptyOne) {
    const char* none = nullptr;
    const wchar_t* none_wide = nullptr;
    CString text(none);
    text += none;
    text = none;
    text = none_wide;
    text.Append(none, 5);
    text.SetString(none, 5);
    EXPECT_TRUE(text.IsEmpty() && CString(none_wide).IsEmpty() && CString(none, 3).IsEmpty());
    EXPECT_TRUE(text == none && text.Compare(none) == 0 && text.CollateNoCase(none) == 0 && !(text < none));
    EXPECT_TRUE(text.Find(none) == -1 && text.Insert(0, none) == 0 && text.Replace(none, "x") == 0);
    text.Format(none);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_FALSE(text.LoadString(0xFFF0u) || text.GetEnvironmentVariable("NO SUCH VARIABLE"));
    char printed[20];
    const CString letter = 'x';
    EXPECT_EQ(sprintf(printed, "%s%d%s", letter, 5, letter + "y") + sprintf_s(printed, "%s%s", "z", letter), 6);
    EXPECT_STREQ(printed, "zx");
    text = L'\x20AC';
    text += L'\x20AC';
    EXPECT_EQ(text, CString(L'\x20AC') + CString(L"\x20AC"));
    EXPECT_EQ(CString(L"a\0b", 3).GetLength(), 3);
    static_assert(!std::is_convertible_v<int, CString>, "which character would it be?");
    CString* nobody = new CString("old");
    *nobody = nobody->GetString() + 1; // a part of itself
    EXPECT_STREQ(*nobody, "ld");
    delete nobody;
}

TEST(AfxStringEdges, BuffersKeepTheTextUntilTheyAreReleased) {
    CString text("abc");
    char* buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, "abc");
    std::memset(buffer, 'x', 100);
    text.ReleaseBuffer(100);
    EXPECT_EQ(text.GetLength(), 100);
    std::strcpy(text.GetBuffer(), "short");
    text.ReleaseBuffer();
    EXPECT_STREQ(text, "short");
    text.GetBufferSetLength(3);
    text.ReleaseBuffer(99); // no more than there is
    text.Truncate(-1);
    EXPECT_STREQ(text, "sho");
    const CString zeros("a\0b", 3);
    EXPECT_TRUE(zeros.GetLength() == 3 && (zeros + zeros).GetLength() == 6 && zeros.Mid(2) == "b");
    BSTR wide = zeros.AllocSysString();
    EXPECT_EQ(::SysStringLen(wide), 3u);
    CString("other").SetSysString(&wide);
    EXPECT_EQ(CString(wide), "other");
    ::SysFreeString(wide);
}

// In this code page the second byte of a character may look like a letter or a backslash: \x83\x5C is one.
TEST(AfxStringEdges, CharactersOfTwoBytesAreNotTakenApart) {
    const int page = _getmbcp();
    ASSERT_EQ(_setmbcp(932), 0);
    CString text("a\x83\x5C"
                 "b\\c");
    EXPECT_TRUE(text.Find('\\') == 4 && text.ReverseFind('\\') == 4 && text.FindOneOf("\\c") == 4);
    EXPECT_EQ(text.Replace('\\', '/'), 1);
    EXPECT_STREQ(text, "a\x83\x5C"
                       "b/c");
    EXPECT_EQ(text.Remove('\\'), 0);
    CString trimmed("\x83\x5C\\\\");
    EXPECT_STREQ(trimmed.TrimRight('\\'), "\x83\x5C");
    EXPECT_STREQ(CString("x\x83\x5Cy").MakeReverse(), "y\x83\x5Cx");
    int at = 0;
    EXPECT_STREQ(CString("\x83\x5C\\z").Tokenize("\\", at), "\x83\x5C");
    EXPECT_EQ(CString("\x83\x5C").Replace("\\", "?"), 0);
    _setmbcp(page);
}

TEST(AfxTimeEdges, FieldsThatAreNoneAreRefused) {
    constexpr int wrong[][6] = {{1969, 12, 31, 23, 59, 59}, {3001, 1, 1, 0, 0, 0},  {2024, 0, 1, 0, 0, 0},
                                {2024, 13, 1, 0, 0, 0},     {2024, 1, 0, 0, 0, 0},  {2024, 1, 32, 0, 0, 0},
                                {2024, 1, 1, 24, 0, 0},     {2024, 1, 1, -1, 0, 0}, {2024, 1, 1, 0, 60, 0},
                                {2024, 1, 1, 0, 0, 60}};
    for (const auto& w : wrong)
        EXPECT_TRUE(raises<CInvalidArgException>([&] { CTime(w[0], w[1], w[2], w[3], w[4], w[5]); })) << w[0] << w[1];
    EXPECT_EQ(CTime(2023, 2, 29, 0, 0, 0), CTime(2023, 3, 1, 0, 0, 0)) << "days of longer months run on";
    EXPECT_TRUE(CTime(1970, 1, 2, 0, 0, 0).GetYear() == 1970 && CTime(3000, 12, 31, 0, 0, 0).GetYear() == 3000);
    const SYSTEMTIME never{};
    EXPECT_EQ(CTime(never), CTime());
    const FILETIME far_off = {0xFFFFFFFF, 0x7FFFFFFF};
    EXPECT_FALSE(CTime::IsValidFILETIME(far_off));
    EXPECT_TRUE(raises<CInvalidArgException>([&] { CTime{far_off}; }));
    EXPECT_EQ(CTime(WORD((44 << 9) | (5 << 5) | 6), WORD((7 << 11) | (8 << 5) | 5)), CTime(2024, 5, 6, 7, 8, 10));
}

TEST(AfxTimeEdges, MomentsBeyondEveryClockShowNothing) {
    for (const __time64_t moment : {__time64_t{-1} << 40, __time64_t{1} << 60}) {
        const CTime time(moment);
        SYSTEMTIME fields;
        tm local{};
        for (const int field : {time.GetYear(), time.GetMonth(), time.GetDay(), time.GetDayOfWeek(), time.GetSecond()})
            EXPECT_EQ(field, 0);
        EXPECT_TRUE(time.Format("%Y").IsEmpty() && time.FormatGmt("%Y").IsEmpty());
        EXPECT_FALSE(time.GetAsSystemTime(fields) || time.GetLocalTm(&local) || time.GetLocalTm(nullptr));
        FILETIME file;
        EXPECT_TRUE(raises<CInvalidArgException>([&] { AfxTimeToFileTime(time, &file); }));
    }
    const CTime summer(2024, 7, 14, 8, 9, 10);
    EXPECT_STREQ(summer.Format("%Y-%m-%d %H:%M:%S %j %%"), "2024-07-14 08:09:10 196 %");
    EXPECT_TRUE(summer.Format(static_cast<LPCTSTR>(nullptr)).IsEmpty());
    EXPECT_TRUE(raises<CInvalidArgException>([] { CTimeSpan(5).Format("%x"); }) &&
                raises<CInvalidArgException>([] { CTimeSpan(5).Format("%"); }));
    const CTimeSpan back(-1, -2, -3, -4);
    EXPECT_TRUE(back.GetTotalSeconds() == -93784 && back.GetHours() == -2);
    EXPECT_EQ(CTimeSpan(100000, 0, 0, 0).GetTotalSeconds(), 8640000000) << "more seconds than 32 bits hold";
}

TEST(AfxGenericText, FunctionsOfTheOldNamesAreThere) {
    TCHAR text[20];
    _tcsncpy(text, _T("one, two"), 20);
    EXPECT_TRUE(_tcscmp(text, _T("one, two")) == 0 && _tcsicmp(text, _T("ONE, TWO")) == 0);
    EXPECT_TRUE(_tcschr(text, _T(',')) == text + 3 && _tcsrchr(text, 'o') == text + 7 && _tcsinc(text) == text + 1);
    EXPECT_TRUE(_tcsstr(text, _T("two")) == text + 5 && _tcsncmp(text, _T("onto"), 2) == 0 && _tcsclen(text) == 8);
    EXPECT_STREQ(_tcstok(_tcsupr(_tcsrev(text)), _T(" ,")), "OWT");
    EXPECT_TRUE(_tcsncpy_s(text, 20, _T("three"), 2) == 0 && _tcsnicmp(text, _T("TH"), 3) == 0);
}

} // namespace
