// Documents: made, changed, asked about, saved, opened again; the files that were used last; the command line.
#include "afx_test_app.h"
#include "held_keys.h"
#include "modal.h"
#include "temporary_file.h"

#include <afxadv.h>
#include <afxext.h>
#include <afxpriv.h>

#include <filesystem>
#include <fstream>

#include <dde.h>
#include <shlobj.h>

using testing::ElementsAre;

namespace {

class note : public CDocument {
    DECLARE_DYNCREATE(note)

public:
    std::string text;
    bool fails = false;
    static inline int alive = 0;
    static inline std::string events;

    note() { ++alive; }
    ~note() override { --alive; }
    void DeleteContents() override { text.clear(); }
    void OnDocumentEvent(DocumentEvent event) override { events += std::to_string(event); }
    void OnIdle() override { events += "idle"; }
    void Serialize(CArchive& archive) override {
        if (archive.IsStoring()) {
            archive.GetFile()->Write(text.data(), static_cast<UINT>(text.size()));
            if (fails)
                AfxThrowMemoryException();
        } else {
            text = bytes_of(*archive.GetFile());
            if (text == "broken")
                AfxThrowFileException(CFileException::endOfFile);
        }
    }
};
IMPLEMENT_DYNCREATE(note, CDocument)

class note_view : public CView {
    DECLARE_DYNCREATE(note_view)

public:
    static inline std::vector<std::string> log;
    static inline CCreateContext made;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override {
        made = *static_cast<const CCreateContext*>(cs.lpCreateParams);
        return CView::PreCreateWindow(cs);
    }
    void OnDraw(CDC*) override {}
    void OnInitialUpdate() override { log.push_back("initial"), CView::OnInitialUpdate(); }
    void OnUpdate(CView*, LPARAM hint, CObject*) override { log.push_back("update " + std::to_string(hint)); }
    void OnPrintDirect() { log.push_back("print on " + std::string(the_app.m_pCmdInfo->m_strPrinterName)); }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(note_view, CView)
BEGIN_MESSAGE_MAP(note_view, CView)
ON_COMMAND(ID_FILE_PRINT_DIRECT, &note_view::OnPrintDirect)
END_MESSAGE_MAP()

// A program with one kind of document, answering its questions by itself.
struct NoteProgram : testing::Test {
    void SetUp() override {
        the_app.m_nCmdShow = SW_SHOWNOACTIVATE;
        // The registered template and its frame live as long as the test.
        the_app.AddDocTemplate(
            new CSingleDocTemplate(IDR_FRAME, RUNTIME_CLASS(note), RUNTIME_CLASS(CFrameWnd), RUNTIME_CLASS(note_view)));
        the_app.take_boxes();
        note_view::log.clear();
        path_ = (std::filesystem::temp_directory_path() / "afx_document_test.note").string();
        ::DeleteFile(path_.c_str());
    }
    void TearDown() override {
        the_app.answer = IDNO;
        if (the_app.m_pMainWnd != nullptr)
            the_app.m_pMainWnd->SendMessage(WM_CLOSE);
        EXPECT_EQ(note::alive, 0);
        end_documents();
        the_app.answer = IDOK;
        ::DeleteFile(path_.c_str());
        the_app.m_pMainWnd = nullptr;
    }
    static void start() {
        CCommandLineInfo nothing;
        ASSERT_TRUE(the_app.ProcessShellCommand(nothing));
    }
    note& document() { return *static_cast<note*>(frame().GetActiveDocument()); }
    CFrameWnd& frame() { return *static_cast<CFrameWnd*>(the_app.m_pMainWnd); }
    std::string title() { return text_of(frame()); }
    std::string on_disk() { return text_of(path_); }
    void write(const std::string& text) { std::ofstream(path_, std::ios::binary) << text; }
    void command(UINT id) { frame().SendMessage(WM_COMMAND, id); }

    std::string path_;
};

TEST_F(NoteProgram, MakesChangesSavesAndOpensADocument) {
    start();
    EXPECT_EQ(title(), "Untitled - Tests");
    EXPECT_THAT(note_view::log, ElementsAre("initial", "update 0"));
    EXPECT_TRUE(frame().IsWindowVisible());
    document().text = "first";
    document().SetModifiedFlag();
    document().UpdateAllViews(nullptr, 7);
    EXPECT_EQ(note_view::log.back(), "update 7");
    ASSERT_TRUE(document().DoSave(path_.c_str()));
    EXPECT_FALSE(document().IsModified());
    EXPECT_EQ(on_disk(), "first");
    EXPECT_EQ(title(), "afx_document_test.note - Tests");

    document().text = "second";
    document().SetModifiedFlag();
    the_app.answer = IDCANCEL;
    command(ID_FILE_NEW);
    EXPECT_EQ(document().text, "second") << "the user wants to go on";
    EXPECT_THAT(the_app.take_boxes(), ElementsAre("Save changes to afx_document_test.note?"));
    frame().SendMessage(WM_CLOSE);
    EXPECT_NE(the_app.m_pMainWnd, nullptr);
    the_app.answer = IDYES;
    frame().ShowWindow(SW_MAXIMIZE);
    frame().SetTitle("");
    command(ID_FILE_NEW);
    EXPECT_TRUE(frame().IsZoomed()) << "only the first one is shown as the program was started";
    EXPECT_EQ(on_disk(), "second");
    EXPECT_EQ(document().text + title(), "Untitled");
    EXPECT_EQ(the_app.OpenDocumentFile(path_.c_str()), &document()) << "the one document is used again";
    EXPECT_EQ(document().text, "second");
    note_view in_no_frame;
    document().AddView(&in_no_frame);
    the_app.CloseAllDocuments(FALSE);
    EXPECT_TRUE(the_app.m_pMainWnd == nullptr && in_no_frame.GetDocument() == nullptr);
    EXPECT_EQ(note::alive, 0);
    EXPECT_TRUE(note::events.ends_with("022013")) << note::events;
}

TEST_F(NoteProgram, KeepsTheOldFileWhereSavingFails) {
    write("old");
    ASSERT_NE(the_app.OpenDocumentFile(path_.c_str()), nullptr);
    document().text = "new";
    document().fails = true;
    document().SetModifiedFlag();
    the_app.take_boxes();
    EXPECT_FALSE(document().DoFileSave());
    EXPECT_EQ(the_app.take_boxes().size(), 1u);
    EXPECT_TRUE(document().IsModified());
    EXPECT_EQ(on_disk(), "old");
    document().fails = false;
    EXPECT_TRUE(document().DoFileSave());
    EXPECT_EQ(on_disk(), "new");
}

TEST_F(NoteProgram, TellsWhyAFileCannotBeOpened) {
    EXPECT_EQ(the_app.OpenDocumentFile("C:\\no\\such.note"), nullptr);
    EXPECT_THAT(the_app.take_boxes(), ElementsAre("such.note was not found."));
    EXPECT_EQ(note::alive, 0) << "neither document nor frame stays";
    write("broken");
    CCommandLineInfo open;
    open.ParseParam(path_.c_str(), FALSE, TRUE);
    EXPECT_FALSE(the_app.ProcessShellCommand(open));
    EXPECT_THAT(the_app.take_boxes(), ElementsAre("afx_document_test.note is not a file of the expected kind."));
    start();
    document().text = "kept?";
    EXPECT_EQ(the_app.OpenDocumentFile(path_.c_str()), nullptr);
    EXPECT_EQ(document().text + title(), "Untitled - Tests") << "half a document is none";
    EXPECT_FALSE(document().OnOpenDocument(path_.c_str()));
    EXPECT_EQ(document().text, "");
    the_app.take_boxes();
    using e = CFileException;
    const std::tuple<int, BOOL, UINT> cases[] = {
        {e::badPath, FALSE, AFX_IDP_FAILED_INVALID_PATH},         {e::diskFull, TRUE, AFX_IDP_FAILED_DISK_FULL},
        {e::sharingViolation, TRUE, AFX_IDP_FAILED_ACCESS_WRITE}, {e::accessDenied, FALSE, AFX_IDP_FAILED_ACCESS_READ},
        {e::hardIO, TRUE, AFX_IDP_FAILED_IO_ERROR_WRITE},         {e::badSeek, FALSE, AFX_IDP_FAILED_IO_ERROR_READ},
        {e::directoryFull, FALSE, AFX_IDP_FAILED_TO_OPEN_DOC}};
    for (const auto& [cause, saving, id] : cases) {
        e exception(cause);
        document().ReportSaveLoadException("C:\\a.note", &exception, saving, AFX_IDP_FAILED_TO_OPEN_DOC);
        CString text;
        AfxFormatString1(text, id, "a.note");
        EXPECT_THAT(the_app.take_boxes(), ElementsAre(std::string(text))) << cause;
    }
}

TEST_F(NoteProgram, PrintsOneFileUnseenAndUnasked) {
    write("printed");
    CCommandLineInfo print;
    print.m_nShellCommand = CCommandLineInfo::FilePrintTo;
    print.m_strFileName = path_.c_str();
    print.m_strPrinterName = "laser";
    EXPECT_FALSE(the_app.ProcessShellCommand(print)) << "there is nothing more to do";
    EXPECT_EQ(note_view::log.back() + " " + document().text, "print on laser printed");
    EXPECT_TRUE(the_app.m_pCmdInfo == nullptr && !frame().IsWindowVisible());
    the_app.m_nCmdShow = SW_HIDE; // as a program that the shell has started
    const TemporaryFile other({'b'});
    EXPECT_TRUE(the_app.OnDDECommand((std::string("[print(\"") + other.name() + "\")]").data()));
    EXPECT_EQ(note_view::log.back() + document().text, "print on b");
    MSG close;
    EXPECT_TRUE(::PeekMessage(&close, frame(), WM_CLOSE, WM_CLOSE, PM_REMOVE)) << "it ends as nobody sees it";
}

TEST_F(NoteProgram, AsksForTheNameOfANewFile) {
    struct : CDocManager {
        BOOL DoPromptFileName(CString& name, UINT title, DWORD, BOOL, CDocTemplate*) override {
            asked.push_back((title == AFX_IDS_SAVEFILE ? "save " : "copy ") + std::string(name));
            name = answer;
            return !answer.IsEmpty();
        }
        CString answer;
        std::vector<std::string> asked;
    } asking;
    start();
    CDocManager* const own = std::exchange(the_app.m_pDocManager, &asking);
    document().SetTitle("Plan: of it");
    command(ID_FILE_SAVE);
    EXPECT_EQ(title(), "Plan: of it - Tests") << "the user wants none";
    asking.answer = path_.c_str();
    document().fails = true;
    command(ID_FILE_SAVE_AS);
    EXPECT_FALSE(std::filesystem::exists(path_)) << "what was begun";
    document().fails = false;
    EXPECT_TRUE(document().DoSave(nullptr, FALSE));
    EXPECT_EQ(title(), "Plan: of it - Tests") << "it was a copy";
    command(ID_FILE_SAVE);
    EXPECT_EQ(title(), "afx_document_test.note - Tests");
    EXPECT_THAT(asking.asked, ElementsAre("save Plan.note", "save Plan.note", "copy ", "save Plan.note"));
    the_app.m_pDocManager = own;
    the_app.OnIdle(0);
    EXPECT_TRUE(note::events.ends_with("2idle")) << note::events;
    command(ID_FILE_CLOSE);
    EXPECT_EQ(the_app.m_pMainWnd, nullptr);
}

TEST_F(NoteProgram, OpensWhatIsDroppedAndAsksWhenTheSessionEnds) {
    write("dropped");
    start();
    const HGLOBAL memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + path_.size() + 2);
    auto* head = static_cast<DROPFILES*>(::GlobalLock(memory));
    head->pFiles = sizeof(DROPFILES);
    path_.copy(reinterpret_cast<char*>(head + 1), path_.size());
    ::GlobalUnlock(memory);
    frame().SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
    EXPECT_EQ(document().text, "dropped");
    document().SetModifiedFlag();
    the_app.answer = IDCANCEL;
    EXPECT_EQ(frame().SendMessage(WM_QUERYENDSESSION), 0);
    the_app.answer = IDNO;
    EXPECT_EQ(frame().SendMessage(WM_QUERYENDSESSION), 1);
    frame().SendMessage(WM_ENDSESSION, TRUE);
    EXPECT_EQ(note::alive, 0);
}

TEST_F(NoteProgram, OpensWhatTheUserChoosesUnlessNothingIsChosen) {
    write("chosen");
    start();
    const auto answer = [&](int button) {
        WhileModal modal([&] {
            HWND dialog = shown_dialog();
            constexpr int file_name = 0x047C;
            if (dialog == nullptr || ::GetDlgItem(dialog, file_name) == nullptr)
                return false;
            ::SendDlgItemMessage(dialog, file_name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path_.c_str()));
            return ::PostMessage(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0) != 0;
        });
        the_app.OnFileOpen();
    };
    answer(IDCANCEL);
    EXPECT_EQ(document().text, "");
    answer(IDOK);
    EXPECT_EQ(document().text, "chosen");
    EXPECT_EQ(the_app.OpenDocumentFile(("\"" + path_ + "\"").c_str()), &document()) << "as a shell writes names";
}

// Documents side by side in one frame.
struct AfxSeveralDocuments : testing::Test {
    AfxSeveralDocuments() {
        the_app.m_nCmdShow = SW_SHOWNOACTIVATE;
        add(RUNTIME_CLASS(note), IDR_FRAME);
        EXPECT_TRUE(frame->LoadFrame(IDR_FRAME));
        the_app.m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOWNOACTIVATE);
        the_app.take_boxes();
    }
    void TearDown() override {
        the_app.answer = IDNO;
        if (the_app.m_pMainWnd != nullptr)
            frame->SendMessage(WM_CLOSE);
        the_app.answer = IDOK;
        EXPECT_EQ(note::alive, 0);
        end_documents();
        EXPECT_FALSE(::IsMenu(of_documents)) << "it goes with the template";
    }
    static void add(CRuntimeClass* document, UINT id) {
        the_app.AddDocTemplate(
            new CMultiDocTemplate(id, document, RUNTIME_CLASS(CMDIChildWnd), RUNTIME_CLASS(note_view)));
    }

    CMDIFrameWnd* frame = new CMDIFrameWnd; // deletes itself
    HMENU of_documents = nullptr;
};

TEST_F(AfxSeveralDocuments, AFileThatIsOpenIsShownNotOpenedAgain) {
    const std::string path = (std::filesystem::temp_directory_path() / "afx_open.note").string();
    std::ofstream(path) << "kept";
    CDocument* first = the_app.OpenDocumentFile(path.c_str());
    ASSERT_NE(first, nullptr);
    CMDIChildWnd* child = frame->MDIGetActive();
    frame->MDIMaximize(child);
    the_app.OnFileNew();
    EXPECT_EQ(text_of(*frame), "Tests - [Untitled1]") << "it is as large as the one before";
    CMDIChildWnd* hidden = frame->MDIGetActive();
    hidden->ShowWindow(SW_HIDE);
    hidden->ActivateFrame();
    EXPECT_TRUE(hidden->IsWindowVisible() && hidden->IsZoomed());
    std::string other_case = path;
    ::CharUpper(other_case.data());
    EXPECT_EQ(the_app.OpenDocumentFile(other_case.c_str()), first);
    EXPECT_TRUE(frame->MDIGetActive() == child && the_app.GetOpenDocumentCount() == 2);
    int templates = 0;
    for (POSITION at = the_app.GetFirstDocTemplatePosition(); at != nullptr; ++templates)
        the_app.GetNextDocTemplate(at);
    EXPECT_EQ(templates, 1);
    of_documents = frame->GetMenu()->m_hMenu;
    child->GetNextWindow()->SendMessage(WM_CLOSE);
    EXPECT_EQ(frame->GetMenu()->m_hMenu, of_documents) << "one is left";
    child->SendMessage(WM_CLOSE);
    EXPECT_NE(frame->GetMenu()->m_hMenu, of_documents);
    ::DeleteFile(path.c_str());
    const HMENU own = ::CreateMenu();
    CMDIChildWnd* plain = frame->CreateNewChild(RUNTIME_CLASS(CMDIChildWnd), IDR_FRAME, own);
    EXPECT_TRUE(plain == frame->MDIGetActive() && plain->IsWindowVisible() && frame->GetMenu()->m_hMenu == own);
    auto* placed = new CMDIChildWnd;
    EXPECT_TRUE(placed->Create(nullptr, "placed", WS_VISIBLE | WS_CAPTION, CRect(10, 20, 210, 140), frame));
    EXPECT_EQ(place_in(*CWnd::FromHandle(frame->m_hWndMDIClient), *placed), CRect(10, 20, 210, 140));
    placed->DestroyWindow();
    plain->DestroyWindow();
    EXPECT_TRUE(frame->GetMenu()->m_hMenu != own && ::DestroyMenu(own));
}

TEST_F(AfxSeveralDocuments, LieInOneFrameThatShowsTheActiveOnes) {
    EXPECT_FALSE(frame->OnCmdMsg(ID_FILE_SAVE, CN_COMMAND, nullptr, nullptr)) << "no document is there to take it";

    frame->SendMessage(WM_COMMAND, ID_FILE_NEW);
    frame->SendMessage(WM_COMMAND, ID_FILE_NEW);
    EXPECT_EQ(the_app.GetOpenDocumentCount(), 2);
    CMDIChildWnd* second = frame->MDIGetActive();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(text_of(*frame), "Tests - Untitled2");
    EXPECT_EQ(frame->GetActiveFrame(), second);
    frame->MDINext();
    frame->MDIMaximize(frame->MDIGetActive());
    EXPECT_EQ(text_of(*frame), "Tests - [Untitled1]");
    frame->MDIRestore(frame->MDIGetActive());
    EXPECT_EQ(text_of(*frame), "Tests - Untitled1");
    EXPECT_NE(frame->MDIGetActive(), second);

    frame->MDIActivate(second);
    CWnd* const first = second->GetNextWindow();
    const auto is_aligned = [&](UINT command) { // at the left, and above
        frame->SendMessage(WM_COMMAND, command);
        const CPoint apart = on_screen(*second).TopLeft() - on_screen(*first).TopLeft();
        return std::pair(apart.x == 0, apart.y == 0);
    };
    EXPECT_EQ(is_aligned(ID_WINDOW_TILE_HORZ), std::pair(true, false));
    EXPECT_EQ(is_aligned(ID_WINDOW_TILE_VERT), std::pair(false, true));
    EXPECT_EQ(is_aligned(ID_WINDOW_CASCADE), std::pair(false, false));
    first->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(frame->m_hWnd), HTCLIENT);
    EXPECT_EQ(frame->MDIGetActive(), first);
    frame->SendMessage(WM_COMMAND, AFX_IDM_FIRST_MDICHILD + 1); // of the list in the menu
    EXPECT_EQ(frame->MDIGetActive(), second);
    MSG next{frame->m_hWnd, WM_KEYDOWN, VK_F6, 0, 0, {}};
    EXPECT_TRUE((HeldKeys({VK_CONTROL}), frame->PreTranslateMessage(&next)));
    EXPECT_EQ(frame->MDIGetActive(), first);
    frame->MDIActivate(second);
    frame->SendMessage(WM_COMMAND, ID_WINDOW_NEW);
    EXPECT_EQ(text_of(*second), "Untitled2:1");
    CMDIChildWnd* third = frame->MDIGetActive();
    frame->MDINext();
    frame->MDIPrev();
    EXPECT_EQ(frame->MDIGetActive(), third);
    EXPECT_TRUE(note_view::made.m_pNewDocTemplate == second->GetActiveDocument()->GetDocTemplate() &&
                note_view::made.m_pCurrentFrame == second);
    second->SetWindowPos(nullptr, 0, 0, 150, 120, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(on_screen(*second->GetActiveView()).Size(), inside_of(*second).Size());
    MSG key{second->m_hWnd, WM_KEYDOWN, 'T', 0, 0, {}};
    EXPECT_TRUE((HeldKeys({VK_CONTROL}), second->PreTranslateMessage(&key))) << "a key of its template's";
    EXPECT_EQ(the_app.GetOpenDocumentCount(), 2);
    static_cast<note*>(second->GetActiveDocument())->SetModifiedFlag();
    second->SendMessage(WM_CLOSE);
    EXPECT_TRUE(the_app.take_boxes().empty()) << "another window shows the document still";
    the_app.answer = IDCANCEL;
    frame->SendMessage(WM_CLOSE);
    EXPECT_THAT(the_app.take_boxes(), ElementsAre("Save changes to Untitled2?"));
    EXPECT_EQ(note::alive, 2);
    the_app.answer = IDNO;
    frame->SendMessage(WM_CLOSE);
    EXPECT_TRUE(note::alive == 0 && the_app.m_pMainWnd == nullptr);
}

TEST_F(AfxSeveralDocuments, AreOpenedByTheShellsCommands) {
    const TemporaryFile file({'a', ' ', 'n', 'o', 't', 'e'});
    recorder shell;
    ASSERT_TRUE(create_popup(shell));
    const auto talk = [&](UINT message, LPARAM l) {
        frame->SendMessage(message, reinterpret_cast<WPARAM>(shell.m_hWnd), l);
        for (MSG posted; ::PeekMessage(&posted, shell, WM_DDE_ACK, WM_DDE_ACK, PM_REMOVE);)
            ::DispatchMessage(&posted);
        return std::count(shell.seen.begin(), shell.seen.end(), WM_DDE_ACK);
    };
    EXPECT_EQ(talk(WM_DDE_INITIATE, 0), 0) << "nobody is asked for";
    the_app.EnableShellOpen();
    EXPECT_EQ(talk(WM_DDE_EXECUTE, 0), 0) << "nor told by whom nobody talks to";
    frame->SendMessage(WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(frame->m_hWnd));
    frame->SendMessage(WM_DDE_TERMINATE);
    frame->SendMessage(WM_DDE_EXECUTE);
    MSG answer;
    EXPECT_FALSE(::PeekMessage(&answer, *frame, WM_DDE_FIRST, WM_DDE_LAST, PM_NOREMOVE));
    const LPARAM names = MAKELPARAM(the_app.m_atomApp, ::GlobalFindAtom("system"));
    EXPECT_EQ(talk(WM_DDE_INITIATE, names), 1);
    CWnd another;
    ASSERT_TRUE(create_popup(another));
    frame->SendMessage(WM_DDE_INITIATE, reinterpret_cast<WPARAM>(another.m_hWnd), names);
    const std::string command = std::string("[open(\"") + file.name() + "\")]";
    const HGLOBAL memory = ::GlobalAlloc(GMEM_FIXED, command.size()); // without the end of a text
    std::memcpy(memory, command.data(), command.size());
    EXPECT_EQ(talk(WM_DDE_EXECUTE, reinterpret_cast<LPARAM>(memory)), 2);
    ::GlobalFree(memory);
    EXPECT_TRUE(the_app.OnDDECommand(std::string(command).data()));
    auto* opened = static_cast<note*>(frame->GetActiveFrame()->GetActiveDocument());
    EXPECT_TRUE(opened != nullptr && opened->text == "a note");
    std::ofstream("printed.note") << "b";
    std::string print = "[printto(\"printed.note\",\"laser\",\"driver\",\"port\")]";
    EXPECT_TRUE(the_app.OnDDECommand(print.data()) && note_view::log.back() == "print on laser");
    EXPECT_EQ(the_app.GetOpenDocumentCount(), 1) << "the printed one was not open";
    ::DeleteFile("printed.note");
    frame->SendMessage(WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(shell.m_hWnd));
    EXPECT_TRUE(::PeekMessage(&answer, shell, WM_DDE_TERMINATE, WM_DDE_TERMINATE, PM_REMOVE));
    EXPECT_EQ(talk(WM_DDE_EXECUTE, 0), 2) << "no longer";
    for (std::string wrong :
         {"", "[open(x)]", "[open(\"x\"]", "[open(\"x)]", "[close(\"x\")]", "[printto(\"x\",\"y\")]"})
        EXPECT_FALSE(the_app.OnDDECommand(wrong.data())) << wrong;

    add(RUNTIME_CLASS(note), IDS_LIST_KIND);
    the_app.m_pDocManager->RegisterShellFileTypes(FALSE);
    char start[MAX_PATH] = "";
    LONG room = sizeof(start);
    ::RegQueryValue(HKEY_CURRENT_USER, "Software\\Classes\\Test.List\\shell\\open\\command", start, &room);
    EXPECT_STREQ(CString(start).Right(5), " /dde");
    room = sizeof(start);
    ::RegQueryValue(HKEY_CURRENT_USER, "Software\\Classes\\Test.List\\shell\\open\\ddeexec", start, &room);
    EXPECT_STREQ(start, "[open(\"%1\")]");
    the_app.m_pDocManager->UnregisterShellFileTypes();
}

// The document's views are a list that programs go through themselves.
class listed_note : public note {
    DECLARE_DYNCREATE(listed_note)

public:
    BOOL OnNewDocument() override { return note::OnNewDocument() && m_viewList.GetCount() == 1; }
};
IMPLEMENT_DYNCREATE(listed_note, note)

TEST_F(AfxSeveralDocuments, OfSeveralKindsAreOfferedToTheUser) {
    add(RUNTIME_CLASS(listed_note), IDS_LIST_KIND);
    const std::string path = (std::filesystem::temp_directory_path() / "afx_any.kind").string();
    std::ofstream(path) << "text";
    CDocument* any = the_app.OpenDocumentFile(path.c_str());
    ASSERT_NE(any, nullptr);
    EXPECT_FALSE(any->IsKindOf(RUNTIME_CLASS(listed_note))) << "both would do: the first one takes it";
    any->OnCloseDocument();
    ::DeleteFile(path.c_str());
    std::vector<std::string> names;
    // Chooses a kind in the box for new documents; -1: none after all.
    const auto make = [&](int kind) {
        const WhileModal answer([&] {
            CWnd* box = CWnd::FromHandle(::GetLastActivePopup(frame->m_hWnd));
            auto* list = static_cast<CListBox*>(box->GetDlgItem(AFX_IDC_LISTBOX));
            if (list == nullptr || !box->IsWindowVisible())
                return false;
            names.clear();
            EXPECT_EQ(list->GetCurSel(), 0);
            for (int i = 0; i < list->GetCount(); ++i) {
                CString name;
                list->GetText(i, name);
                names.push_back(std::string(name));
            }
            list->SetCurSel(kind);
            box->PostMessage(WM_COMMAND, kind < 0 ? IDCANCEL : IDOK);
            return true;
        });
        frame->SendMessage(WM_COMMAND, ID_FILE_NEW);
    };
    make(1);
    EXPECT_THAT(names, ElementsAre("Note", "List"));
    CDocument* chosen = frame->GetActiveFrame()->GetActiveDocument();
    EXPECT_TRUE(chosen != nullptr && chosen->IsKindOf(RUNTIME_CLASS(listed_note)));
    make(-1);
    EXPECT_EQ(the_app.GetOpenDocumentCount(), 1);
}

TEST(AfxCommandLine, SaysWhatTheShellWants) {
    const std::tuple<std::vector<const char*>, int, const char*, const char*> cases[] = {
        {{}, CCommandLineInfo::FileNew, "", ""},
        {{"a.note"}, CCommandLineInfo::FileOpen, "a.note", ""},
        {{"/p", "a.note"}, CCommandLineInfo::FilePrint, "a.note", ""},
        {{"/pt", "a.note", "-dde2", "laser", "driver", "port"},
         CCommandLineInfo::FilePrintTo,
         "a.note",
         "laserdriverport"},
        {{"-dde"}, CCommandLineInfo::FileDDE, "", ""},
        {{"/Unregister"}, CCommandLineInfo::AppUnregister, "", ""},
        {{"-unknown", "b.note"}, CCommandLineInfo::FileOpen, "b.note", ""}};
    for (const auto& [words, command, file, printer] : cases) {
        std::vector<const char*> arguments = words;
        arguments.insert(arguments.begin(), "program");
        const int count = std::exchange(__argc, static_cast<int>(arguments.size()));
        char** const before = std::exchange(__argv, const_cast<char**>(arguments.data()));
        CCommandLineInfo info;
        the_app.ParseCommandLine(info);
        __argc = count;
        __argv = before;
        EXPECT_EQ(info.m_nShellCommand, command) << file;
        EXPECT_STREQ(info.m_strFileName, file);
        EXPECT_STREQ(info.m_strPrinterName + info.m_strDriverName + info.m_strPortName, printer);
    }
}

TEST(AfxRecentFiles, AreKeptLatestFirstAndShownInTheMenu) {
    CRecentFileList list(0, "Recent Test", "File%d", 3);
    for (const char* name : {"C:\\a\\1.note", "C:\\a\\2.note", "C:\\a folder with a long name\\a&b\\3.note",
                             "C:\\a\\4.note", "C:\\A\\2.NOTE"})
        list.Add(name);
    EXPECT_STREQ(list[0] + "|" + list[1] + "|" + list[2],
                 "C:\\A\\2.NOTE|C:\\a\\4.note|C:\\a folder with a long name\\a&b\\3.note");
    list.WriteList();
    CRecentFileList again(0, "Recent Test", "File%d", 3);
    again.ReadList();
    EXPECT_STREQ(again[2], list[2]);
    again.Remove(1);
    EXPECT_TRUE(again[2].IsEmpty());

    CMenu menu, fresh;
    const auto update = [](CRecentFileList& files, CMenu& in) {
        in.CreatePopupMenu();
        in.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, "Recent File");
        in.AppendMenu(MF_STRING, ID_APP_EXIT, "Exit");
        CCmdUI item;
        item.m_pMenu = &in;
        item.m_nID = ID_FILE_MRU_FILE1;
        item.m_nIndexMax = 2;
        files.UpdateMenu(&item);
    };
    update(again, menu);
    CString text;
    ASSERT_EQ(menu.GetMenuItemCount(), 3u);
    menu.GetMenuString(1, text, MF_BYPOSITION);
    EXPECT_STREQ(text, "&2 C:\\...\\a&&b\\3.note");
    EXPECT_EQ(menu.GetMenuItemID(1), static_cast<UINT>(ID_FILE_MRU_FILE2));
    CRecentFileList tenth(9, "Recent Test", "File%d", 1);
    tenth.Add("5.note"); // in the current folder
    CMenu last;
    update(tenth, last);
    last.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_STREQ(text, "1&0 5.note");
    CRecentFileList empty(0, "Recent Test", "File%d", 3);
    update(empty, fresh);
    EXPECT_NE(fresh.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED, 0u);
}

} // namespace
