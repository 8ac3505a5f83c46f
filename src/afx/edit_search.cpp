// Searching and replacing in a text view: one box, and one text to search for, for all views of a thread.
#include "afxdlgs.h"
#include "afx_edit_view.h"
#include "thread_state.h"

#include <utility>

namespace {

struct search_state {
    CFindReplaceDialog* box = nullptr;
    HWND view = nullptr; // which the box tells
    bool find_only = true;
    CString find, replace;
    BOOL match_case = FALSE, next = TRUE;
};

search_state& search() {
    return of_this_thread<search_state>();
}

void close_box(search_state& state) {
    if (CFindReplaceDialog* box = std::exchange(state.box, nullptr))
        box->DestroyWindow(); // it deletes itself
}

} // namespace

BOOL CEditView::SameAsSelected(LPCTSTR lpszCompare, BOOL bCase) {
    CString text;
    GetSelectedText(text);
    return (bCase ? text.Compare(lpszCompare) : text.CompareNoCase(lpszCompare)) == 0;
}

void CEditView::OnEditFind() {
    OnEditFindReplace(TRUE);
}

void CEditView::OnEditReplace() {
    OnEditFindReplace(FALSE);
}

void CEditView::OnEditFindReplace(BOOL bFindOnly) {
    search_state& state = search();
    if (state.box != nullptr && state.view == m_hWnd && state.find_only == (bFindOnly != FALSE)) {
        state.box->SetActiveWindow();
        return;
    }
    close_box(state);
    CString selected;
    GetSelectedText(selected);
    if (!selected.IsEmpty() && selected.FindOneOf("\r\n") < 0)
        state.find = selected;
    const DWORD flags = FR_HIDEWHOLEWORD | (state.next ? FR_DOWN : 0) | (state.match_case ? FR_MATCHCASE : 0);
    auto* box = new CFindReplaceDialog;
    if (!box->Create(bFindOnly, state.find, state.replace, flags, this)) {
        delete box;
        return;
    }
    state.box = box;
    state.view = m_hWnd;
    state.find_only = bFindOnly != FALSE;
}

LRESULT CEditView::OnFindReplaceCmd(WPARAM, LPARAM lParam) {
    search_state& state = search();
    CFindReplaceDialog* box = CFindReplaceDialog::GetNotifier(lParam);
    if (box != state.box)
        return 0;
    if (box->IsTerminating()) {
        state.box = nullptr;
        return 0;
    }
    state.find = box->GetFindString();
    state.replace = box->GetReplaceString();
    state.match_case = box->MatchCase();
    state.next = box->SearchDown();
    const CString find = state.find, replace = state.replace;
    if (box->FindNext())
        OnFindNext(find, state.next, state.match_case);
    else if (box->ReplaceCurrent())
        OnReplaceSel(find, state.next, state.match_case, replace);
    else if (box->ReplaceAll())
        OnReplaceAll(find, replace, state.match_case);
    return 0;
}

void CEditView::OnEditRepeat() {
    const search_state& state = search();
    const CString find = state.find;
    OnFindNext(find, state.next, state.match_case);
}

void CEditView::OnUpdateNeedFind(CCmdUI* pCmdUI) {
    pCmdUI->Enable(GetWindowTextLength() != 0 && !search().find.IsEmpty());
}

void CEditView::OnFindNext(LPCTSTR lpszFind, BOOL bNext, BOOL bCase) {
    if (!FindText(lpszFind, bNext, bCase))
        OnTextNotFound(lpszFind);
}

BOOL CEditView::InitializeReplace() {
    const search_state& state = search();
    const CString find = state.find;
    if (SameAsSelected(find, state.match_case))
        return TRUE;
    OnFindNext(find, state.next, state.match_case);
    return FALSE;
}

void CEditView::OnReplaceSel(LPCTSTR lpszFind, BOOL bNext, BOOL bCase, LPCTSTR lpszReplace) {
    if (!InitializeReplace())
        return;
    GetEditCtrl().ReplaceSel(lpszReplace, TRUE);
    OnFindNext(lpszFind, bNext, bCase);
}

// From the selection to the end.
void CEditView::OnReplaceAll(LPCTSTR lpszFind, LPCTSTR lpszReplace, BOOL bCase) {
    const CWaitCursor wait;
    if (!SameAsSelected(lpszFind, bCase) && !FindText(lpszFind, TRUE, bCase)) {
        OnTextNotFound(lpszFind);
        return;
    }
    do {
        GetEditCtrl().ReplaceSel(lpszReplace, TRUE);
    } while (FindText(lpszFind, TRUE, bCase));
}

void CEditView::OnTextNotFound(LPCTSTR) {
    ::MessageBeep(0);
}

void CEditView::OnDestroy() {
    search_state& state = search();
    if (state.view == m_hWnd)
        close_box(state);
    CCtrlView::OnDestroy();
}
