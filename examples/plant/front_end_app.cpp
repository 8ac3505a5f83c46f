// plant_front_end [--data FOLDER]                                shows the plant; settings and recordings in FOLDER
// plant_front_end --render PICTURES [--size WxH] [--data FOLDER] paints every page into bitmap files and ends
// The days that pictures show are invented, in the folder data below PICTURES unless told: never among recordings.
#include "main_frame.h"
#include "pictures.h"
#include "resource.h"

#include <afxmt.h>

#include <shlobj.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

struct CommandLine {
    CString data, pictures;
    CSize size{1080, 720};
    bool good = true;
};

CommandLine ReadCommandLine(int count, char** arguments) {
    CommandLine line;
    for (int i = 1; i < count && line.good; i += 2) {
        const CString option = arguments[i], value = i + 1 < count ? arguments[i + 1] : "";
        char rest = 0;
        if (option == "--data")
            line.data = value;
        else if (option == "--render")
            line.pictures = value;
        else
            line.good = option == "--size" &&
                        std::sscanf(value, "%5ldx%5ld%c", &line.size.cx, &line.size.cy, &rest) == 2 &&
                        line.size.cx > 0 && line.size.cy > 0;
        line.good = line.good && !value.IsEmpty();
    }
    return line;
}

CString ProgramFolder() {
    char path[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    const CString whole = path;
    return whole.Left(whole.ReverseFind('\\'));
}

// Whole, and there; empty where that cannot be.
CString DataFolder(const CString& wish) {
    constexpr DWORD longest = MAX_PATH - 50; // room for the names of what lies below it
    char base[MAX_PATH] = "", whole[MAX_PATH] = "";
    CString folder = wish;
    if (folder.IsEmpty() && SUCCEEDED(::SHGetFolderPath(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, base)))
        folder = CString(base) + "\\ZOPWNT plant";
    const DWORD length = ::GetFullPathName(folder, MAX_PATH, whole, nullptr);
    if (length == 0 || length > longest)
        return {};
    ::CreateDirectory(whole, nullptr);
    const DWORD attributes = ::GetFileAttributes(whole);
    return attributes != INVALID_FILE_ATTRIBUTES && attributes & FILE_ATTRIBUTE_DIRECTORY ? whole : "";
}

class CFrontEndApp : public CWinApp {
public:
    BOOL InitInstance() override {
        ::SetProcessDPIAware(); // widgets and pages follow the screen's resolution
        const CommandLine line = ReadCommandLine(__argc, __argv);
        if (!line.good)
            return Fail("usage: plant_front_end [--render PICTURES [--size WxH]] [--data FOLDER]");
        if (!line.pictures.IsEmpty())
            return Paint(line);
        const CString data = DataFolder(line.data);
        if (data.IsEmpty())
            return Refuse(no_data_folder);
        alone_ = std::make_unique<CMutex>(FALSE, front_end_mutex_name);
        if (::WaitForSingleObject(alone_->m_hObject, 0) == WAIT_TIMEOUT) {
            AfxMessageBox("Another front end operates the plant.", MB_ICONINFORMATION);
            return FALSE;
        }
        return Open(data);
    }

    int ExitInstance() override {
        const int result = CWinApp::ExitInstance();
        return result_ ? result_ : result;
    }

private:
    static constexpr char no_data_folder[] = "The folder for settings and recordings cannot be made.";

    BOOL Paint(const CommandLine& line) {
        ::CreateDirectory(line.pictures, nullptr); // where it cannot be made, the one below it cannot either
        const CString data = DataFolder(line.data.IsEmpty() ? line.pictures + "\\data" : line.data);
        if (data.IsEmpty())
            return Fail(no_data_folder);
        const CString fault = PaintPictures(ProgramFolder(), data, line.pictures, line.size);
        return fault.IsEmpty() ? FALSE : Fail(fault);
    }

    BOOL Open(const CString& data) {
        if (!readings_.GetPtr() || !set_points_.GetPtr())
            return Refuse("There is no memory to share with the plant.");
        std::free(const_cast<char*>(m_pszProfileName)); // as the framework's documentation has it
        m_pszProfileName = ::_strdup(data + "\\plant.ini");
        settings_.folder = data + "\\recordings";
        settings_.Load(*this);
        station_ = std::make_unique<PlantStation>(static_cast<ReadingsBlock*>(readings_.GetPtr()),
                                                  static_cast<SetPointsBlock*>(set_points_.GetPtr()));
        if (::GetFileAttributes(ProgramFolder() + "\\scripts") == INVALID_FILE_ATTRIBUTES)
            return Refuse("The folder with the scripts is missing beside the program.");
        front_end_.reset(new FrontEnd{*station_, settings_, ProgramFolder(), m_pszProfileName});
        auto* frame = new CMainFrame(*front_end_); // it deletes itself with its window
        if (!frame->LoadFrame(IDR_MAINFRAME))
            return Refuse("The window cannot be made.");
        m_pMainWnd = frame;
        frame->RestorePlace(m_nCmdShow);
        frame->UpdateWindow();
        return TRUE;
    }

    BOOL Refuse(const char* why) {
        AfxMessageBox(why, MB_ICONSTOP);
        result_ = 1;
        return FALSE;
    }

    // For who called it from a command line.
    BOOL Fail(const char* why) {
        std::fprintf(stderr, "plant_front_end: %s\n", why);
        result_ = 1;
        return FALSE;
    }

    CWntShMem readings_{readings_block_name, sizeof(ReadingsBlock)};
    CWntShMem set_points_{set_points_block_name, sizeof(SetPointsBlock)};
    FrontEndSettings settings_;
    std::unique_ptr<PlantStation> station_;
    std::unique_ptr<FrontEnd> front_end_;
    std::unique_ptr<CMutex> alone_;
    int result_ = 0;
};

CFrontEndApp the_app;

} // namespace
