// Dates of automation, texts in wide characters, and memory that the system shares.
#include "afx_test_app.h"

#include <afxadv.h>
#include <afxdisp.h>
#include <afxdtctl.h>

namespace {

TEST(AfxOleTime, TakesOnlyWhatIsADate) {
    const std::tuple<int, int, int, int, int, int, DATE> cases[] = {
        {1900, 1, 1, 0, 0, 0, 2},         {2000, 2, 29, 12, 0, 0, 36585.5}, {1899, 12, 29, 6, 0, 0, -1.25},
        {9999, 12, 31, 0, 0, 0, 2958465}, {100, 1, 1, 0, 0, 0, -657434},    {1900, 2, 29, 0, 0, 0, 0},
        {2023, 4, 31, 0, 0, 0, 0},        {2023, 0, 1, 0, 0, 0, 0},         {99, 1, 1, 0, 0, 0, 0},
        {2023, 1, 1, 24, 0, 0, 0},        {2023, 1, 1, 0, 0, 60, 0},        {67536, 1, 1, 0, 0, 0, 0}};
    for (const auto& [year, month, day, hour, minute, second, date] : cases) {
        const COleDateTime time(year, month, day, hour, minute, second);
        EXPECT_EQ(time.GetStatus(), date != 0 ? COleDateTime::valid : COleDateTime::invalid) << year;
        EXPECT_EQ(time.GetDay(), date != 0 ? day : COleDateTime::error);
        EXPECT_EQ(time.GetHour(), date != 0 ? hour : COleDateTime::error);
        EXPECT_TRUE(date == 0 || time.m_dt == date);
    }
    const COleDateTime leap(2024, 12, 31, 0, 0, 0);
    EXPECT_TRUE(leap.GetDayOfYear() == 366 && leap.GetDayOfWeek() == 3);
    EXPECT_EQ(COleDateTime(3e6).GetStatus(), COleDateTime::invalid);
}

TEST(AfxOleTime, CountsOverTheDayThatIsZero) {
    const COleDateTime before(1899, 12, 29, 18, 0, 0), after(1899, 12, 30, 6, 0, 0);
    EXPECT_TRUE((after - before).GetTotalHours() == 12 && (after - before).GetStatus() == COleDateTimeSpan::valid);
    EXPECT_TRUE(before < after && after > before && before <= before && !(before >= after));
    EXPECT_TRUE(before + COleDateTimeSpan(0, 12, 0, 0) == after && after - COleDateTimeSpan(0.5) == before);
    EXPECT_TRUE(COleDateTime(1899, 12, 29, 6, 0, 0) < before) << "though its number is the greater one";
    const COleDateTimeSpan span(-1, -2, -3, -4);
    EXPECT_TRUE(span.GetDays() == -1 && span.GetHours() == -2 && span.GetMinutes() == -3 && span.GetSeconds() == -4);
    EXPECT_EQ(COleDateTimeSpan(0.99999999).GetDays(), 1) << "whole seconds";
    const COleDateTimeSpan unknown = COleDateTime(1e8) - after, half(0.5);
    COleDateTime none = after;
    none.SetStatus(COleDateTime::null);
    EXPECT_EQ((none + span).GetStatus(), COleDateTime::null);
    const COleDateTimeSpan nothing = none - before;
    EXPECT_THAT((std::vector{nothing.GetStatus(), (nothing + half).GetStatus(), (half + nothing).GetStatus()}),
                testing::Each(COleDateTimeSpan::null));
    EXPECT_TRUE((half + unknown).GetStatus() == COleDateTimeSpan::invalid && (half + half).GetTotalDays() == 1);
    EXPECT_EQ((after + COleDateTimeSpan(1e8)).GetStatus(), COleDateTime::invalid);
    EXPECT_EQ(unknown.Format("%D"), "Invalid DateTimeSpan");
}

TEST(AfxOleTime, ComesFromTheSystemsOtherForms) {
    const COleDateTime time(2024, 7, 14, 8, 9, 10);
    FILETIME file;
    AfxTimeToFileTime(CTime(2024, 7, 14, 8, 9, 10), &file);
    VARIANT text{};
    text.vt = VT_BSTR;
    text.bstrVal = ::SysAllocString(L"2024-07-14 08:09:10");
    for (const COleDateTime& same : {COleDateTime(file), COleDateTime(text),
                                     COleDateTime(WORD(44 << 9 | 7 << 5 | 14), WORD(8 << 11 | 9 << 5 | 5))})
        EXPECT_TRUE(same == time && same.GetStatus() == COleDateTime::valid) << same.Format().GetString();
    const auto status_of = [](VARTYPE type) {
        VARIANT value{};
        value.vt = type;
        return COleDateTime(value).GetStatus();
    };
    EXPECT_THAT((std::vector{status_of(VT_NULL), status_of(VT_EMPTY), status_of(VT_DISPATCH)}),
                testing::ElementsAre(COleDateTime::null, COleDateTime::valid, COleDateTime::invalid));
    EXPECT_LT(std::abs((COleDateTime::GetCurrentTime() - COleDateTime(std::time(nullptr))).GetTotalSeconds()), 5);
    ::SysFreeString(text.bstrVal);
}

TEST(AfxOleTime, IsWrittenReadAndStored) {
    COleDateTime time(2024, 7, 14, 8, 9, 10), again;
    EXPECT_STREQ(time.Format("%Y-%m-%d %H:%M:%S %j %a"), "2024-07-14 08:09:10 196 Sun");
    EXPECT_TRUE(again.ParseDateTime("2024-07-14 08:09:10") && again == time);
    EXPECT_FALSE(again.ParseDateTime("no date") || again.ParseDateTime(nullptr));
    EXPECT_STREQ(again.Format(), "Invalid DateTime");
    EXPECT_EQ(COleDateTime(__time64_t{-1} << 40).GetStatus(), COleDateTime::invalid);
    CMemFile file;
    store(file, [&](CArchive& ar) { ar << time << COleDateTimeSpan(1.5) << LONG{7} << 1.0; }); // of a damaged file
    COleDateTimeSpan span;
    COleDateTime damaged;
    load(file, [&](CArchive& ar) { ar >> again >> span >> damaged; });
    EXPECT_TRUE(again == time && span.GetTotalHours() == 36 && damaged.GetStatus() == COleDateTime::invalid);
    CWnd parent;
    ASSERT_TRUE(create_popup(parent));
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(WS_CHILD | DTS_SHOWNONE, CRect(0, 0, 90, 20), &parent, 1));
    EXPECT_TRUE(picker.SetTime(time) && picker.GetTime(again) && again == time);
    again.SetStatus(COleDateTime::null);
    EXPECT_TRUE(picker.SetTime(again) && picker.GetTime(time) && time.GetStatus() == COleDateTime::null);
}

// What an old function returns of its conversions; they last as long as it.
int converted_length(LPCWSTR wide, LPCSTR narrow) {
    USES_CONVERSION;
    const int length = lstrlenA(W2A(wide));
    const LPCWSTR none = A2W(nullptr), widened = A2W(narrow);
    return none == nullptr ? length + lstrlenW(widened) : -1;
}

TEST(AfxConversion, GoesThroughTheCodePage) {
    EXPECT_STREQ(CW2A(L"\u20AC \u4E00"), "\x80 ?");
    EXPECT_TRUE(lstrcmpW(CA2W("\x80 a"), L"\u20AC a") == 0);
    EXPECT_STREQ(CW2A(L"\u20AC", CP_UTF8), "\xE2\x82\xAC");
    EXPECT_TRUE(LPWSTR(CA2W(nullptr)) == nullptr && LPSTR(CW2A(nullptr)) == nullptr && *LPSTR(CW2A(L"")) == '\0');
    EXPECT_EQ(converted_length(L"abc", "\x80 def"), 8);
}

TEST(AfxSharedFile, IsTheSystemsMemory) {
    CSharedFile out(GMEM_MOVEABLE, 4);
    for (char c = 'a'; c <= 'z'; ++c)
        out.Write(&c, 1);
    const HGLOBAL memory = out.Detach();
    ASSERT_NE(memory, nullptr);
    EXPECT_TRUE(::GlobalSize(memory) >= 26 && out.GetLength() == 0 && out.Detach() == nullptr);
    {
        CSharedFile in;
        in.SetHandle(memory, FALSE);
        EXPECT_EQ(bytes_of(in).substr(0, 26), "abcdefghijklmnopqrstuvwxyz");
        in.SeekToEnd();
        EXPECT_TRUE(raises<CException>([&] { in.Write("more", 4); })) << "it may not grow";
        EXPECT_TRUE(raises<CException>([&] { in.SetHandle(memory); })) << "it has one";
    }
    CSharedFile longer;
    longer.SetHandle(memory);
    longer.SetLength(10000);
    const HGLOBAL grown = longer.Detach();
    EXPECT_TRUE(::GlobalSize(grown) >= 10000 && (::GlobalFlags(grown) & GMEM_LOCKCOUNT) == 0);
    ::GlobalFree(grown);
}

} // namespace
