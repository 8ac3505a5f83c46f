// The framework without windows: strings and files.
#include <afx.h>
#include "afx_test_ids.h"

#include <gtest/gtest.h>

#include <mbctype.h>
#include <utility>

namespace {

static_assert(max(2, 3.5) == 3.5 && min(4L, 3) == 3); // which the standard library's headers must not take away

TEST(AfxString, StaysWithinItsBounds) {
    CString text("framework");
    const std::pair<CString, LPCTSTR> parts[] = {
        {text.Left(99), "framework"},    {text.Left(-1), ""},      {text.Right(99), "framework"},
        {text.Mid(50, 3), ""},           {text.Mid(-2, 3), "fra"}, {CString(static_cast<LPCTSTR>(nullptr)), ""},
        {CString(L"f\u00fcr"), "f\xFCr"}};
    for (const auto& [part, expected] : parts)
        EXPECT_STREQ(part, expected);
    EXPECT_EQ(text[99], '\0');
    EXPECT_EQ(text.ReverseFind('x'), -1);
    ASSERT_EQ(_setmbcp(932), 0);
    CString katakana("\x83|a|b");
    EXPECT_EQ(katakana.Replace('|', '+'), 1) << "the first one is half a character";
    _setmbcp(_MB_CP_ANSI);
}

TEST(AfxString, FormatsFromItselfAndFromResources) {
    CString text("self");
    text.Format("%s and %s: %7.2f", text.GetString(), "other", 3.14159);
    EXPECT_STREQ(text, "self and other:    3.14");
    text = CString(MAKEINTRESOURCE(IDS_FORMAT));
    EXPECT_STREQ(text, "%d of %s");
    text.AppendFormat("%0*d", 5000, 1);
    EXPECT_EQ(text.GetLength(), 8 + 5000);
    text = text.GetString() + 6; // from the middle of its own text
    EXPECT_STREQ(text.Left(3), "%s0");
    EXPECT_FALSE(text.LoadString(60000));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(AfxFile, KeepsPositionsAndSharesAsAsked) {
    char folder[MAX_PATH], path[MAX_PATH];
    ASSERT_NE(::GetTempPath(MAX_PATH, folder), 0u);
    ASSERT_NE(::GetTempFileName(folder, "afx", 0, path), 0u);
    CFile file;
    ASSERT_TRUE(file.Open(path, CFile::modeCreate | CFile::modeReadWrite | CFile::shareDenyWrite));
    file.Write("0123456789", 10);
    EXPECT_EQ(file.Seek(-4, CFile::end), 6u);
    char bytes[8] = "";
    EXPECT_EQ(file.Read(bytes, sizeof(bytes)), 4u);
    EXPECT_STREQ(bytes, "6789");
    try {
        file.Seek(-1, CFile::begin);
        ADD_FAILURE() << "a position before the start";
    } catch (CFileException* e) {
        EXPECT_EQ(e->m_cause, CFileException::badSeek);
        e->Delete();
    }
    CFile second;
    CFileException reason;
    EXPECT_FALSE(second.Open(path, CFile::modeReadWrite | CFile::shareDenyNone, &reason));
    EXPECT_EQ(reason.m_cause, CFileException::sharingViolation);
    EXPECT_TRUE(second.Open(path, CFile::modeRead | CFile::shareDenyNone, &reason));
    second.Close();
    file.Close();
    ::DeleteFile(path);
}

} // namespace
