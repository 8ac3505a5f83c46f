#include "diag/trace_state.h"

#include "script/values.h"

namespace {

// A missing variable, or one of more than nine characters, counts as empty.
int environment_number(const char* name) {
    char text[10];
    const DWORD length = ::GetEnvironmentVariableA(name, text, sizeof text);
    return length > 0 && length < sizeof text ? wnt::integer_value(text) : 0;
}

unsigned window_flags(int number) {
    return static_cast<unsigned>(number) & (wnt::trace_to_window | wnt::trace_kept);
}

} // namespace

wnt::TraceState& wnt::trace_state() {
    static TraceState state;
    return state;
}

wnt::TraceState::~TraceState() {
    close_stream();
    if (banner)
        std::fclose(banner);
    // A dialog that is left now lost its window with the host's.
    static_cast<void>(dialog.release());
}

void wnt::TraceState::set_stream(std::FILE* next) {
    if (stream && stream != next)
        std::fclose(stream);
    stream = next;
}

void wnt::TraceState::read_environment() {
    // Intended: whatever the variables say, lines go to the file as soon as one is open.
    flags |= trace_to_file;
    flags |= window_flags(environment_number("ZOPGTRACE"));
    flags |= window_flags(environment_number("DPTRACE"));
}
