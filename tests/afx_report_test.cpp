// What objects and exceptions tell about themselves.
#include "afx_test_app.h"

#include <afxdisp.h>
#include <afxtempl.h>

namespace {

class described : public CObject {
    DECLARE_DYNAMIC(described)

public:
    void Dump(CDumpContext& dc) const override {
        CObject::Dump(dc);
        dc << "number " << number << "\n";
    }
    int number = 7;
};
IMPLEMENT_DYNAMIC(described, CObject)

std::string dumped(const std::function<void(CDumpContext&)>& work) {
    CMemFile file;
    CDumpContext dc(&file);
    work(dc);
    dc.Flush();
    return bytes_of(file);
}

TEST(AfxDump, WritesValuesAndObjects) {
    described object;
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(described)));
    const std::string text = dumped([&](CDumpContext& dc) { dc << &object << static_cast<CObject*>(nullptr); });
    for (const char* part : {"described", "number 7\n", "NULL"})
        EXPECT_THAT(text, testing::HasSubstr(part));
    EXPECT_EQ(dumped([](CDumpContext& dc) {
                  dc << BYTE{200} << " " << WORD{65535} << " " << -5 << " " << 4000000000u << " " << 2.5 << " "
                     << LONGLONG{-5000000000} << " " << static_cast<LPCTSTR>(nullptr);
              }),
              "200 65535 -5 4000000000 2.5 -5000000000 (null)");
    EXPECT_EQ(dumped([](CDumpContext& dc) { dc << CPoint(1, -2) << CSize(3, 4) << CRect(5, 6, 7, 8); }),
              "(1, -2)(3 x 4)(L 5, T 6, R 7, B 8)");
    EXPECT_EQ(dumped([](CDumpContext& dc) { dc.DumpAsHex(-1).DumpAsHex(BYTE{10}); }), "0xFFFFFFFF0xA");
    BYTE bytes[5] = {0, 1, 0xAB, 0xFF, 16};
    EXPECT_EQ(dumped([&](CDumpContext& dc) { dc.HexDump(">", bytes, 5, 3); }), "> 00 01 AB\n> FF 10\n");
    EXPECT_THAT(dumped([](CDumpContext& dc) { dc << CTimeSpan(1, 2, 3, 4); }), testing::HasSubstr("1 days, 02 hours"));
}

TEST(AfxExceptions, TellTheUserWhatHappened) {
    char invalid[100] = ""; // in the system's words
    ::FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM, nullptr, static_cast<DWORD>(E_INVALIDARG), 0, invalid, 100, nullptr);
    const std::pair<CString, std::function<void()>> cases[] = {
        {"memory", [] { AfxThrowMemoryException(); }},
        {"resource", [] { AfxThrowResourceException(); }},
        {"argument", [] { AfxThrowInvalidArgException(); }},
        {"unsupported", [] { AfxThrowNotSupportedException(); }},
        {CString(invalid).Left(9).MakeLower(), [] { AfxThrowOleException(E_INVALIDARG); }},
        {"a.dat", [] { AfxThrowFileException(CFileException::diskFull, ERROR_DISK_FULL, "a.dat"); }},
        {"13", [] { AfxThrowFileException(CFileException::diskFull); }},
        {"ends too early", [] { AfxThrowArchiveException(CArchiveException::endOfFile); }},
        {"failed", [] { AfxThrowArchiveException(99); }}};
    for (const auto& [what, thrown] : cases) {
        try {
            thrown();
            ADD_FAILURE() << what;
        } catch (CException* exception) {
            char text[300] = "", little[4] = "xyz";
            UINT help = 5;
            EXPECT_TRUE(exception->GetErrorMessage(text, sizeof(text), &help) && help == 0) << what;
            EXPECT_FALSE(std::isspace(static_cast<unsigned char>(text[std::strlen(text) - 1]))) << "no line ends it";
            CString lower(text);
            EXPECT_TRUE(!what.IsEmpty() && lower.MakeLower().Find(what) >= 0) << text;
            exception->GetErrorMessage(little, sizeof(little));
            EXPECT_LT(std::strlen(little), sizeof(little));
            the_app.take_boxes();
            exception->ReportError();
            EXPECT_THAT(the_app.take_boxes(), testing::ElementsAre(text));
            exception->Delete();
        }
    }
    CUserException silent(FALSE);
    char text[10] = "old";
    EXPECT_TRUE(!silent.GetErrorMessage(text, sizeof(text)) && *text == '\0');
    silent.ReportError(MB_OK, IDS_CAPTION);
    silent.ReportError();
    silent.Delete(); // it is not the heap's
    EXPECT_THAT(the_app.take_boxes(), testing::ElementsAre("Caption of its own", "No error message is available."));
}

// Of those that files do not meet in the tests.
TEST(AfxExceptions, SystemErrorsHaveTheirCauses) {
    const std::pair<LONG, int> cases[] = {{NO_ERROR, CFileException::none},
                                          {ERROR_DISK_FULL, CFileException::diskFull},
                                          {ERROR_HANDLE_EOF, CFileException::endOfFile},
                                          {ERROR_INVALID_HANDLE, CFileException::invalidFile},
                                          {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
                                          {ERROR_CRC, CFileException::hardIO},
                                          {123456, CFileException::genericException}};
    for (const auto& [error, cause] : cases)
        EXPECT_EQ(CFileException::OsErrorToException(error), cause) << error;
    EXPECT_EQ(CFileException::ErrnoToException(ENOENT), CFileException::fileNotFound);
    EXPECT_EQ(CFileException::ErrnoToException(EACCES), CFileException::accessDenied);
    EXPECT_EQ(CFileException::ErrnoToException(9999), CFileException::genericException);
}

TEST(AfxOle, IsBegunForItsThreadOnce) {
    EXPECT_TRUE(AfxOleInit() && AfxOleInit());
    EXPECT_EQ(::CoInitializeEx(nullptr, COINIT_MULTITHREADED), RPC_E_CHANGED_MODE);
    std::string names;
    const auto add = [](const CRuntimeClass* type, void* all) {
        *static_cast<std::string*>(all) += std::string(type->m_lpszClassName) + " ";
    };
    AfxDoForAllClasses(add, &names);
    CRuntimeClass passing = {"passing", 0, 0, nullptr, nullptr, nullptr};
    EXPECT_TRUE((AFX_CLASSINIT(&passing), CRuntimeClass::FromName("passing") == &passing));
    EXPECT_EQ(CRuntimeClass::FromName("passing"), nullptr) << "of a library that went";
    EXPECT_TRUE(names.find("CByteArray ") != names.npos && names.find("CFrameWnd ") == names.npos) << names;
}

} // namespace
