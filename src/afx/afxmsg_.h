// The entries of message maps. Each checks its handler's signature when it is compiled.
#pragma once

#include "afx_cmdui.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
// The dispatcher turns the pointer back into the type that the signature names.
template <class Method> inline AFX_PMSG afx_erased_method(Method method) {
    return reinterpret_cast<AFX_PMSG>(method);
}
#pragma GCC diagnostic pop

// Messages sent back to the control that they came from.
#define WM_REFLECT_BASE 0xBC00

// Whether a handler fits though it is not declared as documented: programs that began on 32 bits have integers of other
// names there, and a result where none is asked for. The platform passes them in the same registers.
template <class Type> constexpr std::size_t afx_width = 0;
template <class Type>
requires std::is_integral_v<Type>
constexpr std::size_t afx_width<Type> = sizeof(Type);
template <class Given, class Named>
constexpr bool afx_same_or_narrower = std::is_same_v<Given, Named> ||
                                      (afx_width<Given> >= sizeof(WORD) && afx_width<Given> <= afx_width<Named>);
template <class Given, class Named>
constexpr bool afx_result_serves = std::is_same_v<Given, Named> || (std::is_void_v<Named> && afx_width<Given> >= 4) ||
                                   (std::is_same_v<Named, LRESULT> && std::is_signed_v<Given> && afx_width<Given> == 4);
template <class Given, class Named> constexpr bool afx_older_form = false;
template <class R, class... A, class Result, class... Arguments>
requires(sizeof...(A) == sizeof...(Arguments)) constexpr bool afx_older_form<R(A...), Result(Arguments...)> =
    afx_result_serves<R, Result> && (afx_same_or_narrower<A, Arguments> && ...);
// A message of the program's own: what its handler has no use for may be left out.
template <class R, class... A>
constexpr bool afx_older_form<R(A...), LRESULT(WPARAM, LPARAM)> = (std::is_void_v<R> ||
                                                                   afx_result_serves<R, LRESULT>)&&sizeof...(A) <= 2 &&
                                                                  (afx_same_or_narrower<A, LPARAM> && ...);
// Any record of a control that begins with the notification's.
template <class R, class Header>
constexpr bool afx_older_form<R(Header*, LRESULT*), void(NMHDR*, LRESULT*)> = afx_result_serves<R, void>&&
                                                                                  std::is_standard_layout_v<Header> &&
                                                                              sizeof(Header) >= sizeof(NMHDR);
template <> inline constexpr bool afx_older_form<UINT(CPoint), LRESULT(CPoint)> = true;
template <> inline constexpr bool afx_older_form<void(BOOL, HTASK), void(BOOL, DWORD)> = true;

template <class W = WPARAM, class L = LPARAM>
constexpr UINT afx_narrowed = (sizeof(W) < sizeof(WPARAM) ? UINT{AfxNarrow_w} : 0U) |
                              (sizeof(L) < sizeof(LPARAM) ? UINT{AfxNarrow_l} : 0U);

// Completes an entry by its handler. That of a window message keeps in nCode how its result is to be read.
template <class Base, class Named> struct afx_handler;
template <class Base, class Result, class... Arguments> struct afx_handler<Base, Result(Arguments...)> {
    template <class Target>
    static AFX_MSGMAP_ENTRY entry(AFX_MSGMAP_ENTRY made, Result (Target::*method)(Arguments...), int) {
        made.pfn = afx_erased_method(static_cast<Result (Base::*)(Arguments...)>(method));
        return made;
    }
    template <class Target, class R, class... A>
    requires afx_older_form<R(A...), Result(Arguments...)>
    static AFX_MSGMAP_ENTRY entry(AFX_MSGMAP_ENTRY made, R (Target::*method)(A...), long) {
        made.pfn = afx_erased_method(static_cast<R (Base::*)(A...)>(method));
        if constexpr (std::is_same_v<Result, LRESULT> && !std::is_same_v<R, LRESULT>)
            made.nCode = std::is_void_v<R> ? AfxResult_none : AfxResult_int;
        if constexpr (std::is_same_v<void(Arguments...), void(WPARAM, LPARAM)>)
            made.nCode |= afx_narrowed<A...>;
        return made;
    }
};

#define AFX_WM_ENTRY(message, sig, result, arguments, method)                                                          \
    {message, 0, 0, 0, sig, afx_erased_method(static_cast<result(CWnd::*) arguments>(&ThisClass::method))},
#define AFX_MSG_ENTRY(message, sig, target, result, arguments, method)                                                 \
    afx_handler<target, result arguments>::entry({message, 0, 0, 0, sig, nullptr}, method, 0),
#define AFX_OLDER_WM_ENTRY(message, sig, result, arguments, method)                                                    \
    AFX_MSG_ENTRY(message, sig, CWnd, result, arguments, &ThisClass::method)
#define AFX_CODE_ENTRY(message, code, id, lastId, sig, result, arguments, method)                                      \
    afx_handler<CCmdTarget, result arguments>::entry(                                                                  \
        {message, static_cast<UINT>(code), static_cast<UINT>(id), static_cast<UINT>(lastId), sig, nullptr}, method,    \
        0),
#define AFX_CMD_ENTRY(message, code, id, lastId, sig, result, arguments, method)                                       \
    AFX_CODE_ENTRY(message, static_cast<WORD>(code), id, lastId, sig, result, arguments, method)

// Commands. The extended forms answer FALSE to have the command routed on.
#define ON_COMMAND(id, memberFxn) AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_v, void, (), memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_RANGE, void, (UINT), memberFxn)
#define ON_COMMAND_EX(id, memberFxn) ON_COMMAND_EX_RANGE(id, id, memberFxn)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                                     \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_EX, BOOL, (UINT), memberFxn)
#define ON_UPDATE_COMMAND_UI(id, memberFxn) ON_UPDATE_COMMAND_UI_RANGE(id, id, memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    AFX_CODE_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, AfxSigCmdUI, void, (CCmdUI*), memberFxn)
#define ON_UPDATE_COMMAND_UI_REFLECT(memberFxn)                                                                        \
    AFX_CMD_ENTRY(WM_REFLECT_BASE + WM_COMMAND, CN_UPDATE_COMMAND_UI, 0, 0, AfxSigCmdUI, void, (CCmdUI*), memberFxn)

// Control notifications and notify messages.
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    AFX_CMD_ENTRY(WM_COMMAND, wNotifyCode, id, id, AfxSigCmd_v, void, (), memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    AFX_CMD_ENTRY(WM_COMMAND, wNotifyCode, id, idLast, AfxSigCmd_RANGE, void, (UINT), memberFxn)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                                     \
    AFX_CMD_ENTRY(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, AfxSigCmd_v, void, (), memberFxn)
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                                  \
    AFX_CMD_ENTRY(WM_REFLECT_BASE + WM_COMMAND, wNotifyCode, 0, 0, AfxSigCmd_b, BOOL, (), memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    AFX_CMD_ENTRY(WM_NOTIFY, wNotifyCode, id, id, AfxSigNotify_v, void, (NMHDR*, LRESULT*), memberFxn)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                            \
    AFX_CMD_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, AfxSigNotify_RANGE, void, (UINT, NMHDR*, LRESULT*), memberFxn)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn) ON_NOTIFY_EX_RANGE(wNotifyCode, id, id, memberFxn)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                                         \
    AFX_CMD_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, AfxSigNotify_EX, BOOL, (UINT, NMHDR*, LRESULT*), memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                                      \
    AFX_CMD_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, AfxSigNotify_v, void, (NMHDR*, LRESULT*), memberFxn)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                                   \
    AFX_CMD_ENTRY(WM_REFLECT_BASE + WM_NOTIFY, wNotifyCode, 0, 0, AfxSigNotify_b, BOOL, (NMHDR*, LRESULT*), memberFxn)

// Messages of the program's own. A registered message is named by the variable that holds its number.
#define ON_MESSAGE(message, memberFxn) AFX_MSG_ENTRY(message, AfxSig_l_w_l, CWnd, LRESULT, (WPARAM, LPARAM), memberFxn)
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                             \
    AFX_MSG_ENTRY(0xC000, reinterpret_cast<UINT_PTR>(&nMessageVariable), CWnd, LRESULT, (WPARAM, LPARAM), memberFxn)
#define ON_THREAD_MESSAGE(message, memberFxn)                                                                          \
    AFX_MSG_ENTRY(message, AfxSigThread_v, CWinThread, void, (WPARAM, LPARAM), memberFxn)
#define ON_REGISTERED_THREAD_MESSAGE(nMessageVariable, memberFxn)                                                      \
    AFX_MSG_ENTRY(0xC000, reinterpret_cast<UINT_PTR>(&nMessageVariable), CWinThread, void, (WPARAM, LPARAM), memberFxn)

#include "afx_msg_windows.h"
#include "afx_msg_controls.h"
