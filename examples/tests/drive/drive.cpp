// Uses the example programs as somebody would who has no source of theirs: drive sketch|channel|guide|plant PROGRAM
// FOLDER
#include "../../../tests/end_to_end/dropping.h"
#include "program.h"

#include "../../measuring_channel/resource.h"
#include "../../sketch/resource.h"

#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>

namespace {

constexpr int id_undo = 0xE12B, id_redo = 0xE12C, id_copy = 0xE122, id_save = 0xE103, id_first_recent = 0xE110,
              id_pane = 0xE900;
constexpr int file_name_field = 0x047C;

using Picture = std::map<COLORREF, int>; // how many pixels of each colour

// What the program leaves on the clipboard.
Picture copied(HWND frame) {
    command(frame, id_copy);
    Picture picture;
    eventually("the clipboard opens", [] { return ::OpenClipboard(nullptr) != 0; });
    auto bitmap = static_cast<HBITMAP>(::GetClipboardData(CF_BITMAP));
    BITMAP size = {};
    if (bitmap && ::GetObjectA(bitmap, sizeof size, &size)) {
        HDC memory = ::CreateCompatibleDC(nullptr);
        HGDIOBJ before = ::SelectObject(memory, bitmap);
        picture = colours_of(memory, size.bmWidth, size.bmHeight);
        ::SelectObject(memory, before);
        ::DeleteDC(memory);
    }
    ::CloseClipboard();
    expect(!picture.empty(), "there is no picture on the clipboard");
    return picture;
}

void drag(HWND view, int x1, int y1, int x2, int y2) {
    ::SendMessageA(view, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x1, y1));
    ::SendMessageA(view, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x2, y2));
    ::SendMessageA(view, WM_LBUTTONUP, 0, MAKELPARAM(x2, y2));
}

std::string bytes_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

constexpr COLORREF yellow = RGB(255, 255, 0);

Picture draw_and_save(const std::string& program, const std::string& file) {
    Program sketch(program);
    HWND frame = sketch.frame(), view = ::GetDlgItem(frame, id_pane);
    command(frame, ID_TOOL_RECTANGLE);
    command(frame, ID_FILLED);
    drag(view, 100, 100, 300, 200);
    const Picture one = copied(frame);
    expect(one.count(yellow) && one.at(yellow) > 1000, "a filled rectangle shows");
    expect(colours_on_screen(view).count(yellow) == 1, "the view shows it, too");
    command(frame, ID_TOOL_ELLIPSE);
    drag(view, 150, 220, 350, 300);
    const Picture two = copied(frame);
    expect(two.at(yellow) > one.at(yellow), "an ellipse shows");
    command(frame, id_undo);
    expect(copied(frame) == one, "undo takes it away");
    command(frame, id_redo);
    expect(copied(frame) == two, "redo brings it back");
    ::PostMessageA(frame, WM_COMMAND, id_save, 0);
    HWND dialog = sketch.dialog(file_name_field);
    enter(dialog, file_name_field, file.c_str());
    press(dialog, IDOK);
    eventually("the file is written", [&] { return !bytes_of(file).empty() && ::IsWindowEnabled(frame); });
    sketch.expect_end(frame);
    return two;
}

void open_and_change(const std::string& program, const std::string& file, const Picture& saved) {
    const std::string before = bytes_of(file);
    Program sketch(program + " \"" + file + "\"");
    HWND frame = sketch.frame(), view = ::GetDlgItem(frame, id_pane);
    expect(copied(frame) == saved, "what was saved is read back");
    drag(view, 120, 120, 180, 260);
    expect(copied(frame) != saved, "a line changes it");
    ::PostMessageA(frame, WM_CLOSE, 0, 0);
    press(sketch.dialog(IDCANCEL), IDCANCEL);
    eventually("the question is gone", [&] { return ::IsWindowEnabled(frame) != 0; });
    ::PostMessageA(frame, WM_CLOSE, 0, 0);
    press(sketch.dialog(IDNO), IDNO);
    sketch.expect_end();
    expect(bytes_of(file) == before, "nothing was saved");
}

void open_otherwise(const std::string& program, const std::string& file, const Picture& saved) {
    {
        Program sketch(program);
        HWND frame = sketch.frame();
        command(frame, id_first_recent);
        expect(copied(frame) == saved, "the recent file is opened");
        sketch.expect_end(frame);
    }
    Program sketch(program);
    HWND frame = sketch.frame();
    expect(drop(frame, file), "a file can be dropped");
    eventually("the dropped file is opened", [&] { return copied(frame) == saved; });
    sketch.expect_end(frame);
}

void drive_sketch(const std::string& program, const std::string& folder) {
    const std::string file = folder + "\\drawing.sketch";
    std::remove(file.c_str());
    const Picture saved = draw_and_save(program, file);
    open_and_change(program, file, saved);
    open_otherwise(program, file, saved);
    ::CopyFileA(file.c_str(), (folder + "\\printed.sketch").c_str(), FALSE); // for the next step
}

void drive_channel(const std::string& program, const std::string&) {
    {
        Program channel(program);
        HWND dialog = channel.dialog(IDC_NAME);
        const auto shows = [&](std::initializer_list<int> widgets) {
            for (const int widget : widgets)
                eventually("widget " + std::to_string(widget) + " shows",
                           [&] { return colours_on_screen(descendant(dialog, widget)).size() > 2; });
        };
        shows({IDC_GAUGE, IDC_TREND, IDC_AXIS, IDC_RUN, IDC_ACTIONS, IDC_TABS, IDC_READING, IDC_SIMULATION, IDC_CHART});
        HWND readings = descendant(dialog, IDC_READINGS);
        eventually("readings come", [&] { return ::SendMessageA(readings, 0x1004 /* LVM_GETITEMCOUNT */, 0, 0) > 1; });
        command(dialog, ID_INSERT_READING);
        eventually("the report has a line", [&] { return !text_of(dialog, IDC_REPORT).empty(); });
        shows({IDC_REPORT_PAGE, IDC_INK, IDC_REPORT_HEADER});
        command(dialog, ID_NEXT_TIP);
        shows({IDC_TIPS_PAGE});
        enter(dialog, IDC_HIGH_LIMIT, "500"); // beyond the range, on a page that is hidden
        press(dialog, IDOK);
        dismiss(channel, dialog);
        eventually("the message is gone", [&] { return ::IsWindowEnabled(dialog) != 0; });
        shows({IDC_PLAN, IDC_INSIDE});
        enter(dialog, IDC_HIGH_LIMIT, "80");
        enter(dialog, IDC_UPPER, "120");
        enter(dialog, IDC_NAME, "Feed water");
        press(dialog, IDOK);
        channel.expect_end();
    }
    Program again(program);
    HWND dialog = again.dialog(IDC_NAME);
    expect(text_of(dialog, IDC_NAME) == "Feed water" && text_of(dialog, IDC_UPPER) == "120", "settings are kept");
    press(dialog, IDCANCEL);
    again.expect_end();
}

// The numbers of the guide's program.
void drive_guide(const std::string& program, const std::string&) {
    constexpr int start = 40001, stop = 40002, settings = 40003, preview = 1002, status = 0xE801;
    Program plant(program);
    HWND frame = plant.frame();
    eventually("its gauges show", [&] { return colours_on_screen(frame).size() > 8; });
    HWND bar = ::GetDlgItem(frame, status);
    eventually("a reading comes from the thread",
               [&] { return LOWORD(::SendMessageA(bar, 0x0403 /* SB_GETTEXTLENGTHA */, 1, 0)) > 0; });
    command(frame, stop);
    ::PostMessageA(frame, WM_COMMAND, settings, 0);
    HWND sheet = plant.window("the settings", [](HWND window) { return descendant(window, preview) != nullptr; });
    eventually("the template's gauge shows", [&] { return colours_on_screen(descendant(sheet, preview)).size() > 2; });
    press(sheet, IDOK);
    eventually("the settings are closed", [&] { return ::IsWindowEnabled(frame) != 0; });
    command(frame, start);
    plant.expect_end(frame); // while the thread measures
}

} // namespace

int main(int count, char** arguments) {
    const std::map<std::string, void (*)(const std::string&, const std::string&)> scenes = {
        {"sketch", drive_sketch}, {"channel", drive_channel}, {"guide", drive_guide}, {"plant", drive_front_end}};
    if (count != 4 || !scenes.count(arguments[1]))
        return 2;
    constexpr char settings[] = "Software\\ZOPWNT examples";
    ::RegDeleteTreeA(HKEY_CURRENT_USER, settings);
    try {
        scenes.at(arguments[1])(arguments[2], arguments[3]);
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s: %s\n", arguments[1], fault.what());
        return 1;
    }
    ::RegDeleteTreeA(HKEY_CURRENT_USER, settings);
    return 0;
}
