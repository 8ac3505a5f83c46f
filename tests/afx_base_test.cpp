// The framework without windows: strings, files, times.
#include <afx.h>
#include "afx_test_ids.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <mbctype.h>
#include <type_traits>
#include <utility>

class dumped : public CObject {
    DECLARE_DYNAMIC(dumped)

public:
    void AssertValid() const override { CObject::AssertValid(); }
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "value " << 7;
    }
};
IMPLEMENT_DYNAMIC(dumped, CObject)

namespace {

std::string debugger_text;

LONG CALLBACK take_debugger_text(EXCEPTION_POINTERS* raised) {
    const EXCEPTION_RECORD& record = *raised->ExceptionRecord;
    if (record.ExceptionCode != DBG_PRINTEXCEPTION_C)
        return EXCEPTION_CONTINUE_SEARCH;
    debugger_text += reinterpret_cast<const char*>(record.ExceptionInformation[1]);
    return EXCEPTION_CONTINUE_EXECUTION;
}

TEST(AfxObject, DumpsItsClassToTheDebugger) {
    void* listener = ::AddVectoredExceptionHandler(TRUE, &take_debugger_text);
    const dumped object;
    object.AssertValid();
    object.Dump(afxDump);
    ::RemoveVectoredExceptionHandler(listener);
    EXPECT_EQ(debugger_text, "dumped\nvalue 7");
}

TEST(AfxString, StaysWithinItsBounds) {
    CString text("framework");
    const std::pair<CString, LPCTSTR> parts[] = {{text.Left(99), "framework"},
                                                 {text.Left(-1), ""},
                                                 {text.Right(99), "framework"},
                                                 {text.Mid(50, 3), ""},
                                                 {text.Mid(-2, 3), "fra"},
                                                 {CString(static_cast<LPCTSTR>(nullptr)), ""},
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

// The exception that a call throws, by its class; its object goes.
template <class Exception> bool throws(const std::function<void()>& call, int cause = 0) {
    try {
        call();
    } catch (Exception* e) {
        if constexpr (std::is_same_v<Exception, CFileException>) {
            EXPECT_EQ(e->m_cause, cause);
        }
        e->Delete();
        return true;
    }
    return false;
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
    EXPECT_TRUE(throws<CFileException>([&] { file.Seek(-1, CFile::begin); }, CFileException::badSeek));
    CFile second;
    CFileException reason;
    EXPECT_FALSE(second.Open(path, CFile::modeReadWrite | CFile::shareDenyNone, &reason));
    EXPECT_EQ(reason.m_cause, CFileException::sharingViolation);
    EXPECT_TRUE(second.Open(path, CFile::modeRead | CFile::shareDenyNone, &reason));
    second.Close();
    file.Close();
    ::DeleteFile(path);
    EXPECT_TRUE(throws<CFileException>([&] { CFile(path, CFile::modeRead); }, CFileException::fileNotFound));
}

TEST(AfxTime, RefusesYearsOutside) {
    EXPECT_STREQ(CTime(2024, 2, 29, 13, 5, 9).Format("%d.%m.%Y %H:%M:%S"), "29.02.2024 13:05:09");
    EXPECT_STREQ(CTime(-1).Format("%Y"), "");
    for (const int year : {1969, 3001})
        EXPECT_TRUE(throws<CInvalidArgException>([&] { CTime(year, 1, 1, 0, 0, 0); })) << year;
}

} // namespace
