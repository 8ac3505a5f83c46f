// The framework without windows: strings, run-time classes, files, times, arrays.
#include <afx.h>
#include <afxcoll.h>
#include "afx_test_ids.h"

#include <gtest/gtest.h>

namespace {

TEST(AfxString, CutsWithinItsBounds) {
    const CString text("framework");
    EXPECT_STREQ(text.Left(5), "frame");
    EXPECT_STREQ(text.Left(99), "framework");
    EXPECT_STREQ(text.Left(-1), "");
    EXPECT_STREQ(text.Right(4), "work");
    EXPECT_STREQ(text.Right(99), "framework");
    EXPECT_STREQ(text.Mid(5), "work");
    EXPECT_STREQ(text.Mid(1, 3), "ram");
    EXPECT_STREQ(text.Mid(50, 3), "");
    EXPECT_STREQ(text.Mid(-2, 3), "fra");
    EXPECT_EQ(text.GetAt(99), '\0');
    EXPECT_STREQ(CString("ab", 1), "a");
    EXPECT_STREQ(CString('x', 3), "xxx");
    EXPECT_STREQ(CString(static_cast<LPCTSTR>(nullptr)), "");
    EXPECT_STREQ(CString(L"f\u00fcr"), "f\xFCr");
}

TEST(AfxString, FindsReplacesAndTrims) {
    CString text("a.b.c");
    EXPECT_EQ(text.Find('.'), 1);
    EXPECT_EQ(text.Find('.', 2), 3);
    EXPECT_EQ(text.Find(".c"), 3);
    EXPECT_EQ(text.Find("x"), -1);
    EXPECT_EQ(text.Find('a', 99), -1);
    EXPECT_EQ(text.ReverseFind('.'), 3);
    EXPECT_EQ(text.FindOneOf("cb"), 2);
    EXPECT_EQ(text.Replace(".", "::"), 2);
    EXPECT_STREQ(text, "a::b::c");
    EXPECT_EQ(text.Replace("::", ""), 2);
    EXPECT_EQ(text.Replace("", "x"), 0);
    EXPECT_STREQ(text, "abc");
    EXPECT_EQ(text.Insert(99, "!"), 4);
    EXPECT_EQ(text.Delete(1, 99), 1);
    EXPECT_STREQ(text, "a");
    text = " \t x y \r\n";
    EXPECT_STREQ(text.Trim(), "x y");
    EXPECT_STREQ(CString("--x--").TrimLeft('-'), "x--");
    EXPECT_STREQ(CString("   ").Trim(), "");
    int start = 0;
    const CString list(";a;;b");
    EXPECT_STREQ(list.Tokenize(";", start), "a");
    EXPECT_STREQ(list.Tokenize(";", start), "b");
    EXPECT_STREQ(list.Tokenize(";", start), "");
    EXPECT_EQ(start, -1);
    text = "aBc\xE4";
    EXPECT_STREQ(text.MakeUpper(), "ABC\xC4");
    EXPECT_EQ(text.CompareNoCase("abc\xC4"), 0);
    EXPECT_NE(text.Compare("abc\xC4"), 0);
}

TEST(AfxString, FormatsFromItselfAndFromResources) {
    CString text("self");
    text.Format("%s and %s: %7.2f", text.GetString(), "other", 3.14159);
    EXPECT_STREQ(text, "self and other:    3.14");
    text.Format(IDS_FORMAT, 3, "four");
    EXPECT_STREQ(text, "3 of four");
    text.AppendFormat("%0*d", 5000, 1);
    EXPECT_EQ(text.GetLength(), 9 + 5000);
    text = text.GetString() + 5; // from the middle of its own text
    EXPECT_STREQ(text.Left(4), "four");
    EXPECT_FALSE(text.LoadString(60000));
    EXPECT_TRUE(text.IsEmpty());
    ASSERT_TRUE(::SetEnvironmentVariable("AFX_TEST", "value"));
    EXPECT_TRUE(text.GetEnvironmentVariable("AFX_TEST"));
    EXPECT_STREQ(text, "value");
    EXPECT_FALSE(text.GetEnvironmentVariable("AFX_TEST_MISSING"));
    EXPECT_TRUE(text.IsEmpty());
}

TEST(AfxString, LendsItsBuffer) {
    CString text("keep");
    LPSTR buffer = text.GetBuffer(100);
    EXPECT_STREQ(buffer, "keep");
    lstrcpy(buffer + 4, "ing");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 7);
    text.GetBuffer(2);
    text.ReleaseBuffer(3);
    EXPECT_STREQ(text, "kee");
    const CString copy = text;
    text.SetAt(0, 'b');
    text.SetAt(99, 'x');
    EXPECT_STREQ(copy, "kee");
    EXPECT_STREQ(text + '-' + "x", "bee-x");
}

class animal : public CObject {
    DECLARE_DYNAMIC(animal)
};
class dog : public animal {
    DECLARE_DYNCREATE(dog)
};
IMPLEMENT_DYNAMIC(animal, CObject)
IMPLEMENT_DYNCREATE(dog, animal)

TEST(AfxObject, KnowsItsClassAtRunTime) {
    CObject* object = CRuntimeClass::CreateObject("dog");
    ASSERT_NE(object, nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(animal)));
    EXPECT_FALSE(object->IsKindOf(RUNTIME_CLASS(CException)));
    EXPECT_EQ(DYNAMIC_DOWNCAST(CException, object), nullptr);
    EXPECT_NE(DYNAMIC_DOWNCAST(dog, object), nullptr);
    delete object;
    EXPECT_EQ(CRuntimeClass::FromName("cat"), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(animal)->CreateObject(), nullptr);
    EXPECT_NE(CRuntimeClass::FromName("CGdiObject"), nullptr) << "the framework's own are found, too";
}

TEST(AfxTypes, RectanglesAndPackedPoints) {
    CRect rect(10, 40, 5, 20);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(5, 20, 10, 40));
    EXPECT_EQ(rect & CRect(7, 0, 100, 30), CRect(7, 20, 10, 30));
    EXPECT_EQ(CPoint(static_cast<LPARAM>(MAKELPARAM(-3, 4))), CPoint(-3, 4));
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
    EXPECT_EQ(file.GetPosition(), 10u);
    EXPECT_STREQ(bytes, "6789");
    EXPECT_THROW(
        try { file.Seek(-1, CFile::begin); } catch (CFileException* e) {
            EXPECT_EQ(e->m_cause, CFileException::badSeek);
            e->Delete();
            throw 0;
        },
        int);
    CFile second;
    CFileException reason;
    EXPECT_FALSE(second.Open(path, CFile::modeWrite | CFile::shareDenyNone, &reason));
    EXPECT_EQ(reason.m_cause, CFileException::sharingViolation);
    EXPECT_TRUE(second.Open(path, CFile::modeRead | CFile::shareDenyNone, &reason));
    second.Close();
    file.SetLength(3);
    EXPECT_EQ(file.GetLength(), 3u);
    file.Close();
    ASSERT_TRUE(file.Open(path, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite));
    EXPECT_EQ(file.SeekToEnd(), 3u);
    file.Close();
    CFile::Remove(path);
    try {
        CFile missing(path, CFile::modeRead);
        ADD_FAILURE();
    } catch (CFileException* e) {
        EXPECT_EQ(e->m_cause, CFileException::fileNotFound);
        char text[300];
        EXPECT_TRUE(e->GetErrorMessage(text, sizeof(text)));
        EXPECT_NE(CString(text).Find(path), -1);
        e->Delete();
    }
}

TEST(AfxTime, ShowsLocalCalendarFields) {
    const CTime time(2024, 2, 29, 13, 5, 9);
    EXPECT_STREQ(time.Format("%d.%m.%Y %H:%M:%S"), "29.02.2024 13:05:09");
    EXPECT_EQ(time.GetDayOfWeek(), 5);
    EXPECT_EQ(CTime(time.GetTime()), time);
    EXPECT_STREQ(CTime(-1).Format("%Y"), "");
    EXPECT_GT(CTime::GetCurrentTime(), time);
    for (const int year : {1969, 3001}) {
        EXPECT_THROW(
            try { CTime(year, 1, 1, 0, 0, 0); } catch (CInvalidArgException* e) {
                e->Delete();
                throw 0;
            },
            int);
    }
}

TEST(AfxArray, GrowsAndRefusesPlacesOutside) {
    CStringArray names;
    names.SetAtGrow(2, "c");
    names.InsertAt(1, "b", 2);
    EXPECT_EQ(names.GetSize(), 5);
    EXPECT_STREQ(names[2], "b");
    names.RemoveAt(0, 4);
    EXPECT_STREQ(names.GetAt(0), "c");
    for (const INT_PTR outside : {INT_PTR{-1}, INT_PTR{1}}) {
        try {
            names.GetAt(outside);
            ADD_FAILURE();
        } catch (CInvalidArgException* e) {
            e->Delete();
        }
    }
}

} // namespace
