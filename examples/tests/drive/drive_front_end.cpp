// The plant's front end and its simulator, as an operator and as a plant that fails would use them.
#include "program.h"

#include "../../plant/plant_blocks.h"
#include "../../plant/recorded_days.h"
#include "../../plant/resource.h"

#include <filesystem>

namespace {

constexpr COLORREF amber = RGB(250, 232, 190), red = RGB(190, 40, 36);
constexpr const char* furnace_limit = "800"; // below what the plant rests at
constexpr int id_print = 0xE107;
constexpr int furnace_limit_field = IDC_HIGH_FIRST + furnace_temperature;

// A block of the plant's, seen from a third process.
template <class Block> struct Shared {
    explicit Shared(const char* name) {
        mapping_ = ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Block), name);
        block_ = static_cast<Block*>(::MapViewOfFile(mapping_, FILE_MAP_ALL_ACCESS, 0, 0, sizeof(Block)));
        expect(block_ != nullptr, "the block can be shared");
    }
    ~Shared() {
        ::UnmapViewOfFile(block_);
        ::CloseHandle(mapping_);
    }
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;
    Block* operator->() const { return block_; }

private:
    HANDLE mapping_;
    Block* block_;
};

// Whatever happens, no simulator stays behind.
struct Plant {
    ~Plant() {
        auto found = set_points->Read();
        PlantSetPoints wanted = found ? found->record : PlantSetPoints{};
        ++wanted.end_requests;
        set_points->Write(wanted);
    }
    static bool Runs() {
        const HANDLE held = ::OpenMutexA(SYNCHRONIZE, FALSE, simulator_mutex_name);
        ::CloseHandle(held);
        return held != nullptr;
    }
    PlantReadings Told() {
        const auto found = readings->Read();
        return found ? found->record : PlantReadings{};
    }

    Shared<ReadingsBlock> readings{readings_block_name};
    Shared<SetPointsBlock> set_points{set_points_block_name};
};

struct FrontEndWindow {
    FrontEndWindow(const std::string& program, const std::string& data)
        : process(program + " --data \"" + data + "\""), frame(process.frame()) {}

    HWND Part(int id) const { return descendant(frame, id); }
    void Command(int id) const { command(frame, id); }
    std::string Text(int id) const {
        char text[256] = "";
        ::SendMessageA(Part(id), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        return text;
    }
    void ExpectText(int id, const std::string& part) const {
        eventually("the text " + part, [&] { return Text(id).find(part) != std::string::npos; });
    }
    void ExpectBanner(COLORREF colour, const std::string& what, bool shown = true) const {
        eventually(what, [&] { return (colours_on_screen(Part(IDC_BANNER)).count(colour) != 0) == shown; });
    }
    HWND Settings() const {
        ::PostMessageA(frame, WM_COMMAND, ID_SETTINGS, 0);
        return process.window("the settings", [this](HWND w) { return w != frame && descendant(w, IDC_LOW_FIRST); });
    }
    void ExpectActive(const std::string& after) const {
        eventually("goes on after " + after, [this] { return ::IsWindowEnabled(frame) != 0; });
    }

    Program process;
    HWND frame;
};

void click(HWND window, int x, int y) {
    ::SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    ::SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void write_past_days(const std::string& folder, const std::string& data) {
    ::CreateDirectoryA(data.c_str(), nullptr);
    const std::string writer = folder + "\\plant_simulator.exe --days ";
    Program(writer + "\"" + data + "\\recordings\" 3").expect_end();
    const Program refused(writer + "\"" + data + "\" 0");
    eventually("no days are refused", [&] { return refused.ended(); });
}

void change_limit(const FrontEndWindow& window) {
    HWND sheet = window.Settings();
    HWND page = ::GetParent(descendant(sheet, furnace_limit_field));
    enter(page, furnace_limit_field, "99999"); // beyond the range
    press(sheet, IDOK);
    dismiss(window.process, sheet);
    eventually("the message is gone", [&] { return ::IsWindowEnabled(sheet) != 0; });
    enter(page, furnace_limit_field, furnace_limit);
    press(sheet, IDOK);
    window.ExpectActive("the settings");
}

void change_set_points(const FrontEndWindow& window, Plant& plant) {
    window.ExpectText(IDC_IN_FORCE, "850");
    HWND bar = window.Part(IDC_FURNACE_TARGET);
    ::SendMessageA(::GetParent(bar), WM_HSCROLL, SB_PAGERIGHT, reinterpret_cast<LPARAM>(bar));
    eventually("the simulator has the set point", [&] { return plant.Told().furnace_target == 875; });
    window.ExpectText(IDC_IN_FORCE, "875");
    click(window.Part(ID_PUMP), 20, 10);
    eventually("the simulator has the switch", [&] { return plant.Told().switches == burner_on; });
    window.Command(ID_PUMP);
    eventually("and has it back", [&] { return plant.Told().switches == every_switch; });
}

// The three last days are somewhere in the calendar.
void open_a_day(const FrontEndWindow& window) {
    window.Command(ID_PAGE_FIRST + 2);
    HWND calendar = window.Part(IDC_CALENDAR);
    RECT room = {};
    ::GetClientRect(calendar, &room);
    const int width = (room.right - 18) / 7;
    for (int cell = 0; cell < 56 && window.Text(IDC_DAY_TEXT).find("is shown") == std::string::npos; ++cell)
        click(calendar, 17 + cell % 7 * width + width / 2, 34 + cell / 7 * 30 + 15);
    window.ExpectText(IDC_DAY_TEXT, "is shown");
    eventually("its curves show", [&] { return colours_on_screen(window.Part(IDC_DAY_CHART)).size() > 10; });
}

void record(const FrontEndWindow& window, const std::string& data) {
    SYSTEMTIME now = {};
    ::GetLocalTime(&now);
    const std::string path = data + "\\recordings\\" + recording_of({now.wYear, now.wMonth, now.wDay});
    window.Command(ID_RECORD);
    std::error_code missing; // as long as there is no file
    eventually("values are recorded", [&] { return std::filesystem::file_size(path, missing) + 1 > 1000; });
    window.Command(ID_RECORD);
}

void play_faults(const FrontEndWindow& window, Plant& plant) {
    struct {
        int begin, end;
        const char* what;
    } constexpr faults[] = {{ID_FAULT_FIRST + 3, ID_FAULT_FIRST + 3, "no number"},
                            {ID_FAULT_LAST, ID_FAULT_LAST, "no record"},
                            {ID_FAULT_LAST, ID_SIMULATOR_START, "no record, until a start"}};
    for (const auto& fault : faults) {
        window.Command(fault.begin);
        window.ExpectBanner(amber, fault.what);
        window.Command(fault.end);
        window.ExpectBanner(amber, std::string("the end of ") + fault.what, false);
    }
    PlantReadings wild; // a writer that is no simulator
    wild.values.fill(-1e308);
    wild.switches = wild.faults = 0xFFFFFFFF;
    for (int i = 0; i < 200; ++i)
        plant.readings->Write(wild);
    window.ExpectText(IDC_IN_FORCE, "875");
}

int panel_width(const FrontEndWindow& window) {
    RECT place = {};
    ::GetClientRect(descendant(window.Part(IDC_OVERVIEW), 10), &place);
    return place.right;
}

// Moves the sash beside the boiler's panel.
void drag_sash(const FrontEndWindow& window) {
    HWND sash = descendant(window.Part(IDC_OVERVIEW), 1);
    const int before = panel_width(window);
    ::SendMessageA(sash, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(before + 2, 50));
    ::SendMessageA(sash, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(before + 62, 50));
    ::SendMessageA(sash, WM_LBUTTONUP, 0, MAKELPARAM(before + 62, 50));
    expect(panel_width(window) == before + 60, "the sash is dragged");
}

void refuse_a_second_one(const std::string& program) {
    const Program second(program);
    dismiss(second);
    second.expect_end();
}

// Answers how wide the boiler's panel was in the end.
int use(const std::string& program, const std::string& data, Plant& plant) {
    FrontEndWindow window(program, data);
    HWND tip = window.process.dialog(IDC_TIPS);
    press(tip, IDCANCEL);
    window.ExpectActive("the tip");
    window.ExpectText(IDC_IN_FORCE, "not known");
    window.ExpectBanner(amber, "it says that there is no plant");
    window.Command(ID_SIMULATOR_START);
    change_set_points(window, plant);
    change_limit(window);
    window.ExpectBanner(red, "an alarm is raised");
    window.Command(ID_ACKNOWLEDGE); // until then nothing else shows
    drag_sash(window);
    record(window, data);
    window.Command(id_print); // without a printer nothing is printed
    expect(::IsWindowVisible(window.Part(IDC_REPORT)) != 0, "what is printed is shown");
    play_faults(window, plant);
    open_a_day(window);
    refuse_a_second_one(program);
    ::SetWindowPos(window.frame, nullptr, 60, 50, 900, 640, SWP_NOZORDER);
    window.Command(ID_PAGE_FIRST); // that its parts are placed anew
    const int width = panel_width(window);
    window.process.expect_end(window.frame);
    return width;
}

void use_again(const std::string& program, const std::string& data, int width) {
    ::WritePrivateProfileStringA("Tips", "ShowAtStart", "0", (data + "\\plant.ini").c_str());
    FrontEndWindow window(program, data);
    RECT place = {};
    ::GetWindowRect(window.frame, &place);
    expect(place.left == 60 && place.right == 960 && place.bottom == 690, "the window is where it was");
    expect(panel_width(window) == width, "and the panels as they were dragged");
    window.ExpectText(IDC_IN_FORCE, "875");
    window.Command(ID_TRACE);
    window.Command(ID_SIMULATOR_END);
    eventually("the simulator ends", [] { return !Plant::Runs(); });
    window.process.expect_end(window.frame);
}

} // namespace

void drive_front_end(const std::string& program, const std::string& folder) {
    const std::string data = folder + "\\front-end-data";
    write_past_days(program.substr(0, program.rfind('\\')), data);
    Plant plant;
    use_again(program, data, use(program, data, plant));
}
