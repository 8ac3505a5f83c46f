#include "diag/wnt_trace.h"

#include <cstdarg>
#include <ctime>
#include <utility>

#include "diag/trace_state.h"
#include "library_resources.h"
#include "res/resource.h"
#include "script/values.h"

using wnt::trace_state;

namespace {

constexpr int text_limit = 1024;
constexpr int most_lines = 10'000; // in the list, whose program may run for months
constexpr char separator[] = "----------------------------------------------------------------\n";
static_assert(sizeof separator == 64 + 2);

CString now_text(const char* format) {
    const std::time_t now = std::time(nullptr);
    const std::tm* fields = std::localtime(&now);
    char text[128];
    return CString(fields && std::strftime(text, sizeof text, format, fields) ? text : "");
}

void ignore_invalid_parameter(const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t) {}

// The runtime ends the process when a format is bad; a trace line is not worth that.
bool format_secure(char (&text)[text_limit], const char* format, va_list arguments) {
    const auto previous = _set_invalid_parameter_handler(ignore_invalid_parameter);
    const int length = _vsnprintf_s(text, text_limit, _TRUNCATE, format, arguments);
    _set_invalid_parameter_handler(previous);
    return length >= 0;
}

// A box lets messages through, and their handlers trace, too: one box at a time.
void report_overflow() {
    static bool reporting = false;
    if (reporting)
        return;
    reporting = true;
    AfxMessageBox("Wtrace: buffer too small");
    reporting = false;
}

void write_line(int indent, const char* text) {
    const auto& state = trace_state();
    if (!state.stream || !(state.flags & wnt::trace_to_file))
        return;
    for (int i = 0; i < indent; ++i)
        if (std::fputs("  ", state.stream) < 0)
            return; // the disk is full: no use in going on with what may be a huge indent
    std::fputs(text, state.stream);
}

// Adds a line and selects it. The list searches from behind the index that it is given.
void list_line(const char* text) {
    HWND list = trace_state().list;
    if (!::IsWindow(list))
        return;
    ::SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    auto count = static_cast<int>(::SendMessageA(list, LB_GETCOUNT, 0, 0));
    if (count > most_lines)
        count = static_cast<int>(::SendMessageA(list, LB_DELETESTRING, 0, 0));
    if (count > 0)
        ::SendMessageA(list, LB_SELECTSTRING, static_cast<WPARAM>(count - 2), reinterpret_cast<LPARAM>(text));
}

void trace_line(char (&text)[text_limit], int indent, const char* format, va_list arguments) {
    if (!format)
        text[0] = '\0';
    if (!format || !format_secure(text, format, arguments))
        report_overflow();
    trace_state().last_line = text;
    write_line(indent, text);
    if (trace_state().flags & wnt::trace_to_window)
        list_line(text);
}

int stored_position(const char* key, const char* settings_file) {
    char text[20];
    ::GetPrivateProfileStringA("Position", key, "10", text, sizeof text, settings_file);
    return wnt::integer_value(text);
}

} // namespace

BEGIN_MESSAGE_MAP(CWntTrace, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_SIZE()
END_MESSAGE_MAP()

CWntTrace::CWntTrace() {
    auto& state = trace_state();
    state.filename = "trace.txt";
    state.title = "Tracer";
    state.close_stream();
    state.list = nullptr;
}

CWntTrace::~CWntTrace() {
    DestroyWindow(); // while its handlers still exist
    trace_state().close_stream();
}

void CWntTrace::setstream(std::FILE* stream) {
    trace_state().set_stream(stream);
}

std::FILE* CWntTrace::stream() {
    return trace_state().stream;
}

void CWntTrace::SetFilename(const char* name) {
    auto& state = trace_state();
    if (!name) {
        state.filename.Empty();
        state.flags &= ~wnt::trace_to_file;
        return;
    }
    const CString started = now_text("started at %H:%M:%S on %A, %B %d, %Y\n");
    state.filename = name;
    state.flags |= wnt::trace_to_file;
    // Intended: the banner's file does not become the trace stream. It stays open until the next banner.
    if (state.banner)
        std::fclose(state.banner);
    state.banner = std::fopen(name, "wt");
    if (state.banner) {
        std::fprintf(state.banner, "Begin of Trace\n%s%s", started.GetString(), separator);
        std::fflush(state.banner);
    }
}

void CWntTrace::SetFlags(unsigned flags) {
    auto& state = trace_state();
    state.flags = flags;
    if (state.filename.IsEmpty())
        state.filename = "Wtrace.txt";
}

void CWntTrace::SetTitle(const char* title) {
    if (title)
        trace_state().title = title;
}

void CWntTrace::Trace(int indent, const char* format, ...) {
    static char text[text_limit];
    va_list arguments;
    va_start(arguments, format);
    trace_line(text, indent, format, arguments);
    va_end(arguments);
}

void CWntTrace::Trace(const char* format, ...) {
    static char text[text_limit];
    va_list arguments;
    va_start(arguments, format);
    trace_line(text, 0, format, arguments);
    va_end(arguments);
}

void WntTrace(const char* format, ...) {
    static char text[text_limit];
    if (trace_state().flags == 0)
        trace_state().read_environment();
    va_list arguments;
    va_start(arguments, format);
    trace_line(text, 0, format, arguments);
    va_end(arguments);
}

void CWntTrace::display(const char* text) {
    list_line(text);
}

int CWntTrace::OnCreate(LPCREATESTRUCT create) {
    const int result = CWnd::OnCreate(create);
    if (result == -1)
        return result;
    trace_state().read_environment();
    if (trace_state().flags & wnt::trace_to_window)
        createdisplay();
    return 0;
}

void CWntTrace::OnDestroy() {
    destroydisplay();
    CWnd::OnDestroy();
    auto& state = trace_state();
    if (!state.stream)
        return;
    std::fprintf(state.stream, "%s%sEnd of Trace\n\n", separator,
                 now_text("ended at %H:%M:%S on %A, %B %d, %Y\n").GetString());
    state.close_stream();
}

void CWntTrace::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
}

void CWntTrace::createdisplay() {
    auto& state = trace_state();
    if (state.dialog)
        return;
    auto dialog = std::make_unique<CDialog>();
    {
        wnt::LibraryResources current;
        if (!dialog->Create(IDD_TRACE, this))
            return;
    }
    dialog->SetWindowText(state.title);
    const CString settings_file = state.title + ".ini";
    const int x = stored_position("X", settings_file);
    const int y = stored_position("Y", settings_file);
    dialog->SetWindowPos(nullptr, x, y, 468, 350, SWP_NOZORDER | SWP_NOACTIVATE);
    dialog->ShowWindow(SW_SHOW);
    state.list = ::GetDlgItem(dialog->m_hWnd, IDC_TRACE_LINES);
    state.second_control = ::GetDlgItem(dialog->m_hWnd, IDC_TRACE_NOTE);
    state.dialog = std::move(dialog);
}

void CWntTrace::destroydisplay() {
    auto& state = trace_state();
    // Forgotten first: what runs while the dialog goes may trace.
    const auto dialog = std::move(state.dialog);
    state.list = nullptr;
    state.second_control = nullptr;
    if (dialog)
        dialog->DestroyWindow();
}
