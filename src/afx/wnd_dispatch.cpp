// Unpacks a window message's parameters for the handler that its map entry names.
#include "afx_wnd.h"
#include "message_map.h"

namespace {

template <class Parameter> HWND window_of(Parameter value) {
    return reinterpret_cast<HWND>(value);
}

int low(LPARAM value) {
    return static_cast<short>(LOWORD(value));
}

int high(LPARAM value) {
    return static_cast<short>(HIWORD(value));
}

// Programs know a bar by this type whatever control sent the message; no more than CWnd's data is behind it.
CScrollBar* bar_of(LPARAM value) {
    return reinterpret_cast<CScrollBar*>(CWnd::FromHandle(window_of(value)));
}

template <class Result, class... Arguments>
Result call(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, Arguments... arguments) {
    return (wnd->*typed_handler<Result (CWnd::*)(Arguments...)>(entry))(arguments...);
}

template <class Record> Record* record_of(LPARAM value) {
    return reinterpret_cast<Record*>(value);
}

LRESULT result_of(const void* handle) {
    return reinterpret_cast<LRESULT>(handle);
}

// Handlers that answer nothing.
void call_without_result(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, UINT word, WPARAM wParam, LPARAM lParam) {
    switch (entry.nSig) {
    case AfxSig_vv:
        return call<void>(wnd, entry);
    case AfxSig_v_size:
        return call<void, UINT, int, int>(wnd, entry, word, low(lParam), high(lParam));
    case AfxSig_v_timer:
        return call<void, UINT_PTR>(wnd, entry, wParam);
    case AfxSig_v_key:
        return call<void, UINT, UINT, UINT>(wnd, entry, word, LOWORD(lParam), HIWORD(lParam));
    case AfxSig_v_mouse:
        return call<void, UINT, CPoint>(wnd, entry, word, CPoint(lParam));
    case AfxSig_v_wnd:
        return call<void, CWnd*>(wnd, entry, CWnd::FromHandle(window_of(wParam)));
    case AfxSig_v_capture:
        return call<void, CWnd*>(wnd, entry, CWnd::FromHandle(window_of(lParam)));
    case AfxSig_v_scroll:
        return call<void, UINT, UINT, CScrollBar*>(wnd, entry, LOWORD(wParam), HIWORD(wParam), bar_of(lParam));
    case AfxSig_v_drop:
        return call<void, HDROP>(wnd, entry, reinterpret_cast<HDROP>(wParam));
    default:
        return;
    }
}

// Handlers that answer something.
LRESULT call_for_result(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam) {
    const UINT word = static_cast<UINT>(wParam);
    switch (entry.nSig) {
    case AfxSig_i_create:
        return call<int, LPCREATESTRUCT>(wnd, entry, record_of<CREATESTRUCT>(lParam));
    case AfxSig_b_wheel:
        return call<BOOL, UINT, short, CPoint>(wnd, entry, LOWORD(wParam), static_cast<short>(HIWORD(wParam)),
                                               CPoint(lParam));
    case AfxSig_b_dc:
        return call<BOOL, CDC*>(wnd, entry, CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
    case AfxSig_h_ctlcolor: {
        const auto* color = record_of<AFX_CTLCOLOR>(lParam);
        return result_of(call<HBRUSH, CDC*, CWnd*, UINT>(wnd, entry, CDC::FromHandle(color->hDC),
                                                         CWnd::FromHandle(color->hWnd), color->nCtlType));
    }
    default:
        call_without_result(wnd, entry, word, wParam, lParam);
        return 0;
    }
}

} // namespace

LRESULT CWnd::DispatchEntry(const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam) {
    return call_for_result(this, entry, wParam, lParam);
}
