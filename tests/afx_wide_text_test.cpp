// Texts of wide characters, and between them and those of the code page.
#include "afx_test_app.h"

#include <afxpriv.h>

namespace {

TEST(AfxWideText, ComesFromBothKindsAndGoesBack) {
    const CString narrow = "Caf\xe9";
    CStringW wide = narrow;
    EXPECT_TRUE(wide == L"Caf\x00e9" && wide.GetLength() == 4 && CStringW("\xe9") == L"\x00e9");
    wide += "!";
    wide += L'\x2603';
    CString back = wide;
    EXPECT_EQ(back.Left(5), "Caf\xe9!");
    back = CStringW(L"\x00e9", 1);
    EXPECT_TRUE(back == "\xe9" && CString(wide + L"x").GetLength() == 7);
    wide = static_cast<LPCWSTR>(nullptr);
    EXPECT_TRUE(wide.IsEmpty() && wide == L"" && CStringW(L"abc", -1).IsEmpty() && CStringW(L'x', -2).IsEmpty());
    EXPECT_EQ(std::wstring(LPCWSTR(L"a" + CStringW(L"b") + L'c')), L"abc");
    char room[] = "xxxxxx";
    _wcstombsz(room, L"abcdef", 4);
    EXPECT_STREQ(room, "abc");
}

TEST(AfxWideText, PartsAndPlacesAreClamped) {
    CStringW text = L"abcabc";
    EXPECT_TRUE(text.Mid(2) == L"cabc" && text.Mid(-1, 2) == L"ab" && text.Mid(9, 2).IsEmpty() && text.Left(-1) == L"");
    EXPECT_TRUE(text.Right(2) == L"bc" && text.Right(99) == text && text.Right(-1).IsEmpty());
    EXPECT_TRUE(text.Find(L"bc", 2) == 4 && text.Find(L'z') == -1 && text.ReverseFind(L'b') == 4 &&
                text.Find(L"a", 99) == -1 && text.Find(L"a", -1) == -1 && text.Find(L'a', -1) == -1 &&
                text.Find(L"", 6) == 6 && text.Find(L"", 7) == -1);
    EXPECT_TRUE(text[5] == L'c' && text[6] == 0 && text[-1] == 0 && text.GetAt(0) == L'a');
    EXPECT_TRUE(raises<CInvalidArgException>([&] { text.GetAt(7); }));
    EXPECT_EQ(text.Replace(L"b", L"bb"), 2);
    EXPECT_TRUE(text == L"abbcabbc" && text.Replace(L"", L"x") == 0);
    text = L" \t\x00c9 x\n";
    EXPECT_TRUE(text.Trim() == L"\x00c9 x" && text.MakeLower() == L"\x00e9 x" && text.MakeUpper() == L"\x00c9 X");
    EXPECT_TRUE(text.CompareNoCase(L"\x00c9 x") == 0 && text > L"A" && L"A" < text);
    const LPCWSTR none = nullptr;
    EXPECT_TRUE(text.Compare(none) > 0 && text.CompareNoCase(none) > 0 && text.Find(none) == -1 && text != none);
}

TEST(AfxWideText, IsWrittenInPlaceAndFormatted) {
    CStringW text = L"ab";
    LPWSTR room = text.GetBuffer(10);
    EXPECT_EQ(std::wstring(room), L"ab");
    std::wcscpy(room, L"written");
    text.ReleaseBuffer();
    EXPECT_TRUE(text == L"written" && text.GetLength() == 7);
    text.Format(L"%s|%d|%S|%s", text, 42, CString("narrow"), L"wide");
    EXPECT_EQ(std::wstring(text), L"written|42|narrow|wide");
    text.Format(L"%s", CStringW(L'x', 5000));
    EXPECT_EQ(text.GetLength(), 5000);
    text.Format(nullptr);
    text.AppendFormat(L"%02d", 0);
    text.AppendFormat(L"%d", 7);
    text.SetAt(0, L'_');
    EXPECT_TRUE(text.Insert(1, text) == 6 && text == L"__0707" && text.Delete(1, 3) == 3 && text == L"_07");
    EXPECT_TRUE(text.FindOneOf(L"70") == 1 && raises<CInvalidArgException>([&] { text.SetAt(3, L'x'); }));
    BSTR copy = text.AllocSysString();
    EXPECT_EQ(std::wstring(copy, ::SysStringLen(copy)), L"_07");
    ::SysFreeString(copy);
    CString same;
    EXPECT_TRUE(text.LoadString(IDR_FRAME) && same.LoadString(IDR_FRAME) && text == CStringW(same) && !text.IsEmpty());
    EXPECT_TRUE(!text.LoadString(9999u) && text.IsEmpty());
}

} // namespace
