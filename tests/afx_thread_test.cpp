// Threads with and without windows, what they wait for, and the settings of the program.
#include "afx_test_app.h"

#include <afxmt.h>

#include <atomic>
#include <memory>
#include <thread>

using testing::ElementsAre;

namespace {

constexpr UINT add_message = WM_APP + 1, window_message = WM_APP + 2, end_message = WM_APP + 3;

// A thread with a window; keeps what its messages say.
class window_thread : public CWinThread {
    DECLARE_DYNCREATE(window_thread)

public:
    static inline std::vector<int> log;
    static inline std::atomic<int> alive = 0;
    CWnd wnd;
    int idle = 0;

    window_thread() { ++alive; }
    ~window_thread() override { --alive; }
    BOOL InitInstance() override {
        log.push_back(AfxGetThread() == this ? 1 : -1);
        log.push_back(AfxGetMainWnd() != nullptr ? 2 : -2); // the creator's
        create_popup(wnd);
        log.push_back(CWnd::FromHandlePermanent(wnd.m_hWnd) == &wnd ? 3 : -3);
        m_pMainWnd = &wnd;
        return TRUE;
    }
    // Idle again after each message.
    BOOL OnIdle(LONG count) override {
        log.push_back(200 + count);
        return PostThreadMessage(++idle == 1 ? add_message : end_message, 50, 5), FALSE;
    }
    int ExitInstance() override { return log.push_back(99), CWinThread::ExitInstance(); }

    void OnAdd(WPARAM w, LPARAM l) { log.push_back(static_cast<int>(w) + static_cast<int>(l)); }
    void OnEnd(WPARAM, LPARAM) { wnd.DestroyWindow(); }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(window_thread, CWinThread)

BEGIN_MESSAGE_MAP(window_thread, CWinThread)
ON_THREAD_MESSAGE(add_message, &window_thread::OnAdd)
ON_THREAD_MESSAGE(end_message, &window_thread::OnEnd)
END_MESSAGE_MAP()

// Lasts longer than the object.
HANDLE own_handle(CWinThread* thread) {
    return ::OpenThread(THREAD_ALL_ACCESS, FALSE, thread->m_nThreadID);
}

DWORD end_of(HANDLE thread) {
    EXPECT_EQ(::WaitForSingleObject(thread, 20000), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeThread(thread, &code);
    ::CloseHandle(thread);
    return code;
}

TEST(AfxThread, WithWindowsHasMessagesAndHandleMapsOfItsOwn) {
    CWnd main;
    ASSERT_TRUE(create_popup(main));
    the_app.m_pMainWnd = &main;
    CWinThread* thread = AfxBeginThread(RUNTIME_CLASS(window_thread), THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_TRUE(thread != nullptr && window_thread::log.empty()) << "suspended";
    const HANDLE handle = own_handle(thread);
    thread->PostThreadMessage(add_message, 40, 2);
    thread->ResumeThread();
    EXPECT_EQ(end_of(handle), 0u);
    EXPECT_THAT(window_thread::log, ElementsAre(1, 2, 3, 42, 200, 55, 200, 99));
    EXPECT_EQ(window_thread::alive, 0) << "the object goes with its thread";
    EXPECT_TRUE(::IsWindow(main)) << "lent only";
    the_app.m_pMainWnd = nullptr;
}

struct work {
    CWnd* target;
    CWnd* found = nullptr;
    bool throws = false;
};

UINT post_samples(LPVOID parameter) {
    auto& job = *static_cast<work*>(parameter);
    job.found = CWnd::FromHandlePermanent(job.target->m_hWnd);
    CWnd::FromHandle(job.target->m_hWnd); // a temporary object, which goes with the thread
    for (int i = 1; i <= 3; ++i)
        job.target->PostMessage(window_message, static_cast<WPARAM>(i));
    if (job.throws)
        AfxThrowMemoryException();
    return 17;
}

struct receiver : CWnd {
    int sum = 0;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        sum += message == window_message ? static_cast<int>(wParam) : 0;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST(AfxThread, FiltersTheMessagesOfTheSystemsLoops) {
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0);
    MSG message{nullptr, WM_KEYDOWN, VK_F1, 0, 0, {0, 0}};
    the_app.filtered = MSGF_MENU;
    EXPECT_TRUE(::CallMsgFilter(&message, MSGF_MENU));
    EXPECT_FALSE(::CallMsgFilter(&message, MSGF_DIALOGBOX));
    the_app.filtered = -1;
    EXPECT_FALSE(::CallMsgFilter(&message, MSGF_MENU));
}

TEST(AfxThread, IsIdleAfterWhatHappenedOnly) {
    MSG move{nullptr, WM_MOUSEMOVE, 0, 0, 0, {7, 8}}, paint{nullptr, WM_PAINT, 0, 0, 0, {}}, other{};
    EXPECT_TRUE(AfxIsIdleMessage(&move) && AfxIsIdleMessage(&other));
    EXPECT_FALSE(AfxIsIdleMessage(&move) || AfxIsIdleMessage(&paint));
}

TEST(AfxThread, WorkersPostToWindowsOfOthers) {
    receiver wnd;
    ASSERT_TRUE(create_popup(wnd));
    work job{&wnd};
    CWinThread* thread = AfxBeginThread(&post_samples, &job, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    const HANDLE handle = own_handle(thread);
    thread->ResumeThread();
    EXPECT_EQ(end_of(handle), 17u);
    EXPECT_EQ(job.found, nullptr) << "objects of this thread are not the other's";
    MSG message;
    while (::PeekMessage(&message, wnd, window_message, window_message, PM_REMOVE))
        ::DispatchMessage(&message);
    EXPECT_EQ(wnd.sum, 6);

    job.throws = true;
    the_app.take_boxes();
    CWinThread kept(&post_samples, &job);
    kept.m_bAutoDelete = FALSE;
    ASSERT_TRUE(kept.CreateThread());
    EXPECT_FALSE(kept.CreateThread()) << "it runs already";
    EXPECT_EQ(end_of(own_handle(&kept)), static_cast<DWORD>(-1)) << "an exception ends the thread, not the program";
    EXPECT_EQ(the_app.take_boxes().size(), 1u) << "and is told";
    CWinThread* of_foreign_thread = &the_app;
    std::thread([&] { of_foreign_thread = AfxGetThread(); }).join();
    EXPECT_EQ(of_foreign_thread, nullptr);
}

TEST(AfxSync, LocksAreTakenInTimeAndGivenBack) {
    CEvent automatic, manual(FALSE, TRUE);
    EXPECT_FALSE(automatic.Lock(0));
    automatic.SetEvent();
    EXPECT_TRUE(automatic.Lock(0) && !automatic.Lock(0)) << "one waiter";
    manual.SetEvent();
    EXPECT_TRUE(manual.Lock(0) && manual.Lock(0));

    CSemaphore two(2, 2);
    {
        CSingleLock first(&two, TRUE), second(&two, TRUE), third(&two);
        EXPECT_TRUE(first.IsLocked() && second.IsLocked() && !third.Lock(0));
        EXPECT_TRUE(first.Unlock() && third.Lock(0));
    }
    LONG before = -1;
    EXPECT_FALSE(two.Unlock(1, &before)) << "all were given back";
    manual.ResetEvent();
    CSyncObject* objects[] = {&two, &manual};
    CMultiLock both(objects, 2);
    EXPECT_EQ(both.Lock(0), static_cast<DWORD>(WAIT_TIMEOUT));
    EXPECT_TRUE(both.Lock(0, FALSE) == WAIT_OBJECT_0 && both.IsLocked(0) && !both.IsLocked(1));
    EXPECT_TRUE(both.Unlock(1, &before) && before == 1 && !both.IsLocked(0) && !both.Unlock(1));
    {
        CSingleLock one(&two, TRUE);
        EXPECT_TRUE(two.Lock(0) && one.Unlock(2, &before) && before == 0 && !one.IsLocked());
    }
    manual.SetEvent();
    EXPECT_TRUE(both.Lock(0) == WAIT_OBJECT_0 && both.IsLocked(1) && both.Unlock(1) && both.IsLocked(1));
    for (const DWORD wrong : {DWORD{0}, DWORD{MAXIMUM_WAIT_OBJECTS + 1}})
        EXPECT_TRUE(raises<CInvalidArgException>([&] { CMultiLock(objects, wrong); }));
    EXPECT_TRUE((CMutex(FALSE, "afx_test"), ::CloseHandle(::OpenMutex(SYNCHRONIZE, FALSE, "afx_test"))));
    EXPECT_EQ(::OpenMutex(SYNCHRONIZE, FALSE, "afx_test"), nullptr) << "gone with its object";
    CCriticalSection section;
    CSingleLock outer(&section, TRUE), inner(&section, TRUE);
    EXPECT_TRUE(inner.IsLocked()) << "the same thread enters twice";
}

TEST(AfxSettings, ReadBackWhatWasWrittenInTheRegistryAndInAFile) {
    for (const char* key : {static_cast<const char*>(nullptr), "ZopwntTest"}) {
        the_app.use_settings(key);
        EXPECT_EQ(the_app.GetProfileInt("Section", "None", -7), static_cast<UINT>(-7)) << key;
        EXPECT_TRUE(the_app.WriteProfileInt("Section", "Number", 70000));
        EXPECT_EQ(the_app.GetProfileInt("Section", "Number", 0), 70000u);
        const std::string large(3000, 'x');
        EXPECT_TRUE(the_app.WriteProfileString("Section", "Text", large.c_str()));
        EXPECT_EQ(std::string(the_app.GetProfileString("Section", "Text", "none")), large);
        EXPECT_STREQ(the_app.GetProfileString("Section", "None", "none"), "none");
        BYTE bytes[] = {0, 1, 0xFE, 0x7F};
        EXPECT_TRUE(the_app.WriteProfileBinary("Section", "Bytes", bytes, sizeof(bytes)));
        BYTE* data = nullptr;
        UINT size = 0;
        ASSERT_TRUE(the_app.GetProfileBinary("Section", "Bytes", &data, &size));
        const std::unique_ptr<BYTE[]> owner(data);
        EXPECT_EQ(std::vector<BYTE>(data, data + size), std::vector<BYTE>(bytes, bytes + sizeof(bytes)));
        EXPECT_FALSE(the_app.GetProfileBinary("Section", "Number2", &data, &size));
        the_app.WriteProfileString("Section", "Text", nullptr);
        EXPECT_STREQ(the_app.GetProfileString("Section", "Text", "gone"), "gone");
        the_app.WriteProfileString("Section", nullptr, nullptr);
        EXPECT_EQ(the_app.GetProfileInt("Section", "Number", 5), 5u) << "the whole section went";
    }
    const CString place = CString("Software\\ZopwntTest\\") + the_app.m_pszProfileName;
    EXPECT_EQ(the_app.DelRegTree(HKEY_CURRENT_USER, place), ERROR_SUCCESS) << "where it was";
    the_app.use_settings(nullptr);
}

TEST(AfxSettings, KeepTheFilesThatWereUsedLast) {
    the_app.LoadStdProfileSettings(2);
    for (const char* name : {"C:\\1.note", "C:\\2.note", "C:\\3.note"})
        the_app.AddToRecentFileList(name);
    the_app.SaveStdProfileSettings();
    EXPECT_TRUE(the_app.OnOpenRecentFile(ID_FILE_MRU_FILE1) && !the_app.OnOpenRecentFile(ID_FILE_MRU_FILE1 + 2));
    the_app.SaveStdProfileSettings();
    const auto kept = [](const char* entry) { return the_app.GetProfileString("Recent File List", entry, "none"); };
    EXPECT_STREQ(kept("File1") + kept("File2"), "C:\\2.notenone") << "what does not open goes";
    CMenu menu;
    CCmdUI item;
    ASSERT_TRUE(menu.CreatePopupMenu() && menu.AppendMenu(MF_STRING, item.m_nID = ID_FILE_MRU_FILE1, "Recent"));
    item.m_pMenu = &menu;
    for (const UINT count : {0, 4}) {
        the_app.LoadStdProfileSettings(count);
        the_app.OnUpdateRecentFileMenu(&item);
        CString text;
        menu.GetMenuString(0, text, MF_BYPOSITION);
        EXPECT_EQ(text, count == 0 ? "Recent" : "&1 C:\\2.note");
        EXPECT_EQ((menu.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED) != 0, count == 0);
    }
    the_app.LoadStdProfileSettings(0);
}

} // namespace
