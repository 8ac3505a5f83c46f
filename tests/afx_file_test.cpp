// Files of text and of bytes: where they stand, what they refuse, what of them is found.
#include "afx_test_app.h"

#include <filesystem>
#include <memory>
#include <string>

namespace {

struct AfxFileModes : testing::Test {
    AfxFileModes() {
        folder.Format("%safx modes %lu", std::filesystem::temp_directory_path().string().c_str(),
                      ::GetCurrentProcessId());
        ::CreateDirectory(folder, nullptr);
        name = folder + "\\file.tmp";
    }
    ~AfxFileModes() override { std::filesystem::remove_all(folder.GetString()); }
    std::string bytes() const {
        CFile file(name, CFile::modeRead | CFile::shareDenyNone);
        return bytes_of(file);
    }

    CString folder, name;
};

constexpr UINT write_new = CFile::modeCreate | CFile::modeWrite;

TEST_F(AfxFileModes, LinesHaveTheEndsOfTheirKind) {
    CStdioFile text(name, write_new | CFile::typeText);
    text.WriteString("one\ntwo\r\n");
    text.Close();
    EXPECT_EQ(bytes(), "one\r\ntwo\r\r\n") << "text: every line feed becomes two characters";
    CStdioFile binary(name, write_new | CFile::typeBinary);
    const CString longest('x', 700);
    binary.WriteString("one\ntwo\r\n\n" + longest);
    binary.Close();
    EXPECT_EQ(bytes(), std::string("one\ntwo\r\n\n") + longest.GetString());
    CStdioFile in(name, CFile::modeRead | CFile::typeText);
    CString line;
    std::string lines;
    while (in.ReadString(line))
        (lines += "[").append(line).append("]");
    EXPECT_EQ(lines, "[one][two][][" + std::string(longest.GetString()) + "]");
    in.SeekToBegin();
    char part[4];
    EXPECT_STREQ(in.ReadString(part, sizeof(part)), "one");
    EXPECT_STREQ(in.ReadString(part, sizeof(part)), "\n") << "what had no room comes with the next call";
    in.SeekToEnd();
    EXPECT_EQ(in.ReadString(part, sizeof(part)), nullptr);
}

TEST_F(AfxFileModes, StandWhereTheyWerePutAndGrowFromThere) {
    CStdioFile file(name, CFile::modeCreate | CFile::modeReadWrite | CFile::shareDenyNone | CFile::typeBinary);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetPosition(), 10u);
    EXPECT_EQ(file.Seek(-3, CFile::end), 7u);
    char part[8] = "";
    EXPECT_EQ(file.Read(part, 8), 3u);
    EXPECT_EQ(cause_of<CFileException>([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
    file.SetLength(4);
    file.SeekToEnd();
    file.Write("x", 1);
    file.Flush();
    EXPECT_EQ(bytes(), "0123x");
    file.Close();
    CFile again(name, CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite);
    EXPECT_EQ(again.SeekToEnd(), 5u);
    const auto denied = [](const std::function<void()>& work) {
        return cause_of<CFileException>(work) == CFileException::accessDenied;
    };
    EXPECT_TRUE(denied([&] { again.Read(part, 1); })) << "opened for writing only";
    again.Close();
    EXPECT_TRUE(denied([&] { CFile(name, CFile::modeRead).Write("x", 1); }));
}

TEST_F(AfxFileModes, AreNobodysOnceTheyAreClosedOrAborted) {
    CFile plain;
    CStdioFile text;
    for (CFile* file : {&plain, static_cast<CFile*>(&text)}) {
        for (const auto end : {&CFile::Close, &CFile::Abort}) {
            ASSERT_TRUE(file->Open(name, write_new | CFile::shareExclusive));
            (file->*end)();
            EXPECT_TRUE(file->m_hFile == CFile::hFileNull && file->GetFilePath().IsEmpty());
            EXPECT_TRUE(::DeleteFile(name)) << "still open";
        }
    }
    CFileStatus status;
    ASSERT_TRUE(plain.Open(name, write_new));
    plain.SetLength(0x500000003); // of holes
    EXPECT_TRUE(CFile::GetStatus(name, status) && ULONGLONG(status.m_size) == plain.SeekToEnd());
}

TEST_F(AfxFileModes, KeepOthersOutAsAsked) {
    CFile first(name, write_new | CFile::shareExclusive);
    EXPECT_EQ(cause_of<CFileException>([&] { CFile(name, CFile::modeRead | CFile::shareDenyNone); }),
              CFileException::sharingViolation);
    CFileException why;
    CFile refused;
    EXPECT_FALSE(refused.Open(folder + "\\none\\such", CFile::modeRead, &why));
    EXPECT_TRUE(why.m_cause == CFileException::badPath && refused.m_hFile == CFile::hFileNull);
    EXPECT_STREQ(why.m_strFileName, folder + "\\none\\such");
    first.Close();
    CFile open(name, CFile::modeReadWrite | CFile::shareDenyNone);
    open.Write("0123456789", 10);
    open.LockRange(2, 4);
    CFile other(name, CFile::modeReadWrite | CFile::shareDenyNone);
    EXPECT_EQ(cause_of<CFileException>([&] { other.LockRange(5, 9); }), CFileException::lockViolation);
    open.UnlockRange(2, 4);
    EXPECT_EQ(cause_of<CFileException>([&] { other.LockRange(5, 9); }), -1);
    EXPECT_EQ(cause_of<CFileException>([&] { open.UnlockRange(50, 1); }), CFileException::lockViolation);
    const std::unique_ptr<CFile> twin(open.Duplicate());
    open.SeekToBegin();
    EXPECT_EQ(twin->GetPosition(), 0u) << "one place for both";
    open.Close();
    EXPECT_EQ(twin->GetLength(), 10u);
}

TEST_F(AfxFileModes, FoundOnesTellWhatTheyAre) {
    CFile(name, write_new).Write("12345", 5);
    CFile(folder + "\\.dot", write_new).Close();
    ::CreateDirectory(folder + "\\inner", nullptr);
    ::SetFileAttributes(name, FILE_ATTRIBUTE_READONLY);
    CFileFind find;
    EXPECT_FALSE(find.FindNextFile()) << "nothing was looked for";
    std::string folders, files;
    CTime changed;
    FILETIME raw{};
    for (BOOL more = find.FindFile(folder + "\\*"); more;) {
        more = find.FindNextFile();
        ((find.IsDirectory() ? folders : files) += "[").append(find.GetFileName()).append("]");
        EXPECT_EQ(find.IsDots(), find.GetFileName()[0] == '.' && find.IsDirectory());
        EXPECT_EQ(find.IsReadOnly(), find.GetFileName() == "file.tmp");
        if (find.GetFileName() != "file.tmp")
            continue;
        EXPECT_TRUE(find.GetLength() == 5 && find.GetFileTitle() == "file" && find.GetFilePath() == name);
        EXPECT_TRUE(find.GetLastWriteTime(changed) && (CTime::GetCurrentTime() - changed).GetTotalSeconds() < 60);
        EXPECT_TRUE(find.GetLastWriteTime(&raw) && CTime(raw) == changed);
        CString url = name;
        url.Replace('\\', '/'), url.Replace(" ", "%20");
        EXPECT_EQ(find.GetFileURL(), "file:///" + url);
    }
    ::SetFileAttributes(name, FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(folders, "[.][..][inner]");
    EXPECT_TRUE(files == "[.dot][file.tmp]" || files == "[file.tmp][.dot]") << files;
    EXPECT_FALSE(find.FindFile(folder + "\\no\\*") || find.FindNextFile() || find.GetLastWriteTime(changed));
}

TEST_F(AfxFileModes, NamesAreChangedAndCausesAreTold) {
    CFile(name, write_new).Write("12345", 5);
    CFile(folder + "\\second.tmp", write_new).Close();
    EXPECT_EQ(cause_of<CFileException>([&] { CFile::Rename(name, folder + "\\second.tmp"); }),
              CFileException::accessDenied);
    EXPECT_EQ(cause_of<CFileException>([&] { CFile::Remove(folder + "\\third.tmp"); }), CFileException::fileNotFound);
    EXPECT_EQ(cause_of<CFileException>([&] { CFile::Remove(folder + "\\no\\third.tmp"); }), CFileException::badPath);
    CFileStatus status;
    EXPECT_FALSE(CFile::GetStatus(folder + "\\third.tmp", status));
    ASSERT_TRUE(CFile::GetStatus(name, status));
    EXPECT_STREQ(status.m_szFullName, name);
    for (const CTime& time : {status.m_ctime, status.m_atime, status.m_mtime})
        EXPECT_LT((CTime::GetCurrentTime() - time).GetTotalSeconds(), 60);
    status.m_mtime = CTime(2002, 2, 3, 4, 5, 6);
    status.m_atime = CTime(2003, 2, 3, 4, 5, 6);
    status.m_attribute |= CFile::readOnly;
    CFile::SetStatus(name, status);
    CFileStatus by_name, open;
    ASSERT_TRUE(CFile::GetStatus(name, by_name) && CFile(name, CFile::modeRead).GetStatus(open));
    for (const CFileStatus& now : {by_name, open}) {
        EXPECT_TRUE(now.m_mtime == status.m_mtime && now.m_atime == status.m_atime);
        EXPECT_TRUE(now.m_attribute == status.m_attribute && now.m_size == 5 && name == now.m_szFullName);
    }
    status.m_attribute &= ~static_cast<DWORD>(CFile::readOnly);
    CFile::SetStatus(name, status);
    CFile::Rename(name, folder + "\\.dot");
    EXPECT_FALSE(CFile::GetStatus(name, status));
    const CString longest('x', 400);
    CFileException why;
    CFile file;
    EXPECT_FALSE(file.Open(folder + "\\" + longest, CFile::modeRead, &why)) << "longer than names can be";
    EXPECT_FALSE(file.Open("", CFile::modeRead, &why));
    EXPECT_FALSE(file.Open("a<b>c?", write_new, &why));
    char text[200];
    EXPECT_TRUE(why.GetErrorMessage(text, sizeof(text)) && text[0] != '\0');
    EXPECT_TRUE(why.GetErrorMessage(text, 5) && std::strlen(text) <= 4) << "cut where there is no room";
}

} // namespace
