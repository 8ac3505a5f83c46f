#include "afx_edit_view.h"
#include "afx_document.h"
#include "afxmsg_.h"
#include "afx_app.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CEditView, CCtrlView)

namespace {

const UINT find_message = ::RegisterWindowMessage(FINDMSGSTRING);

} // namespace

BEGIN_MESSAGE_MAP(CEditView, CCtrlView)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_REGISTERED_MESSAGE(find_message, &CEditView::OnFindReplaceCmd)
ON_CONTROL_REFLECT_EX(EN_CHANGE, &CEditView::OnEditChange)
ON_COMMAND(ID_EDIT_CUT, &CEditView::OnEditCut)
ON_COMMAND(ID_EDIT_COPY, &CEditView::OnEditCopy)
ON_COMMAND(ID_EDIT_PASTE, &CEditView::OnEditPaste)
ON_COMMAND(ID_EDIT_CLEAR, &CEditView::OnEditClear)
ON_COMMAND(ID_EDIT_UNDO, &CEditView::OnEditUndo)
ON_COMMAND(ID_EDIT_FIND, &CEditView::OnEditFind)
ON_COMMAND(ID_EDIT_REPLACE, &CEditView::OnEditReplace)
ON_COMMAND(ID_EDIT_REPEAT, &CEditView::OnEditRepeat)
ON_COMMAND(ID_EDIT_SELECT_ALL, &CEditView::OnEditSelectAll)
ON_UPDATE_COMMAND_UI(ID_EDIT_CUT, &CEditView::OnUpdateNeedSel)
ON_UPDATE_COMMAND_UI(ID_EDIT_COPY, &CEditView::OnUpdateNeedSel)
ON_UPDATE_COMMAND_UI(ID_EDIT_CLEAR, &CEditView::OnUpdateNeedSel)
ON_UPDATE_COMMAND_UI(ID_EDIT_PASTE, &CEditView::OnUpdateNeedClip)
ON_UPDATE_COMMAND_UI(ID_EDIT_SELECT_ALL, &CEditView::OnUpdateNeedText)
ON_UPDATE_COMMAND_UI(ID_EDIT_FIND, &CEditView::OnUpdateNeedText)
ON_UPDATE_COMMAND_UI(ID_EDIT_REPLACE, &CEditView::OnUpdateNeedText)
ON_UPDATE_COMMAND_UI(ID_EDIT_REPEAT, &CEditView::OnUpdateNeedFind)
ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CEditView::OnUpdateEditUndo)
END_MESSAGE_MAP()

const DWORD CEditView::dwStyleDefault =
    AFX_WS_DEFAULT_VIEW | WS_HSCROLL | WS_VSCROLL | ES_AUTOHSCROLL | ES_AUTOVSCROLL | ES_MULTILINE | ES_NOHIDESEL;

CEditView::CEditView() : CCtrlView("EDIT", dwStyleDefault) {}

CEditView::~CEditView() = default;

BOOL CEditView::PreCreateWindow(CREATESTRUCT& cs) {
    return CCtrlView::PreCreateWindow(cs);
}

int CEditView::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CCtrlView::OnCreate(lpCreateStruct) != 0)
        return -1;
    SendMessage(EM_LIMITTEXT, 0);
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(SYSTEM_FIXED_FONT)));
    SetTabStops(m_nTabStops);
    return 0;
}

void CEditView::SetTabStops(int nTabStops) {
    m_nTabStops = nTabStops;
    if (m_hWnd != nullptr)
        SendMessage(EM_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&m_nTabStops));
    Invalidate();
}

UINT CEditView::GetBufferLength() const {
    return static_cast<UINT>(GetWindowTextLength());
}

LPCTSTR CEditView::LockBuffer() const {
    GetWindowText(m_shadow);
    return m_shadow;
}

void CEditView::UnlockBuffer() const {
    m_shadow.Empty();
}

void CEditView::DeleteContents() {
    SetWindowText("");
}

void CEditView::GetSelectedText(CString& strResult) const {
    DWORD from = 0, to = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    CString text;
    GetWindowText(text);
    strResult = text.Mid(static_cast<int>(from), static_cast<int>(to - from));
}

void CEditView::SerializeRaw(CArchive& ar) {
    constexpr ULONGLONG most = 0x7FFF0000;
    ar.Flush(); // the text goes past the archive's buffer
    CFile& file = *ar.GetFile();
    if (ar.IsStoring()) {
        CString text;
        GetWindowText(text);
        file.Write(text.GetString(), static_cast<UINT>(text.GetLength()));
    } else {
        const ULONGLONG length = file.GetLength() - file.GetPosition();
        if (length > most) {
            AfxMessageBox(AFX_IDP_FILE_TOO_LARGE);
            AfxThrowUserException();
        }
        CString text;
        const UINT read = file.Read(text.GetBuffer(static_cast<int>(length) + 1), static_cast<UINT>(length));
        text.ReleaseBuffer(static_cast<int>(read));
        SetWindowText(text);
    }
}

BOOL CEditView::OnEditChange() {
    if (m_pDocument != nullptr)
        m_pDocument->SetModifiedFlag();
    return FALSE; // the frame may care, too
}

BOOL CEditView::FindText(LPCTSTR lpszFind, BOOL bNext, BOOL bCase) {
    CString text, wanted = lpszFind;
    GetWindowText(text);
    DWORD from = 0, to = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    const int length = wanted.GetLength(), last = text.GetLength() - length;
    const auto same = [&](int at) {
        const auto count = static_cast<std::size_t>(length);
        return (bCase ? std::strncmp(text.GetString() + at, wanted, count)
                      : ::_strnicmp(text.GetString() + at, wanted, count)) == 0;
    };
    if (length == 0)
        return FALSE;
    const int start = bNext ? static_cast<int>(to) : std::min(static_cast<int>(from) - 1, last);
    for (int at = start; at >= 0 && at <= last; at += bNext ? 1 : -1) {
        if (!same(at))
            continue;
        SendMessage(EM_SETSEL, static_cast<WPARAM>(at), at + length);
        SendMessage(EM_SCROLLCARET);
        return TRUE;
    }
    return FALSE;
}

void CEditView::OnEditCut() {
    SendMessage(WM_CUT);
}

void CEditView::OnEditCopy() {
    SendMessage(WM_COPY);
}

void CEditView::OnEditPaste() {
    SendMessage(WM_PASTE);
}

void CEditView::OnEditClear() {
    SendMessage(WM_CLEAR);
}

void CEditView::OnEditUndo() {
    SendMessage(EM_UNDO);
}

void CEditView::OnEditSelectAll() {
    SendMessage(EM_SETSEL, 0, -1);
}

void CEditView::OnUpdateNeedSel(CCmdUI* pCmdUI) {
    DWORD from = 0, to = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    pCmdUI->Enable(from != to);
}

void CEditView::OnUpdateNeedClip(CCmdUI* pCmdUI) {
    pCmdUI->Enable(::IsClipboardFormatAvailable(CF_TEXT));
}

void CEditView::OnUpdateNeedText(CCmdUI* pCmdUI) {
    pCmdUI->Enable(GetWindowTextLength() != 0);
}

void CEditView::OnUpdateEditUndo(CCmdUI* pCmdUI) {
    pCmdUI->Enable(SendMessage(EM_CANUNDO) != 0);
}

BOOL CEditView::OnPreparePrinting(CPrintInfo* pInfo) {
    return DoPreparePrinting(pInfo);
}

void CEditView::OnBeginPrinting(CDC* pDC, CPrintInfo*) {
    LockBuffer();
    m_pages = {0};
    if (m_hPrinterFont == nullptr) {
        LOGFONT description{};
        ::GetObject(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)), sizeof(description), &description);
        description.lfHeight = -::MulDiv(10, ::GetDeviceCaps(*pDC, LOGPIXELSY), 72);
        description.lfWidth = 0;
        m_print_font = ::CreateFontIndirect(&description);
    }
}

void CEditView::OnEndPrinting(CDC*, CPrintInfo*) {
    UnlockBuffer();
    if (m_print_font != nullptr)
        ::DeleteObject(m_print_font);
    m_print_font = nullptr;
}

void CEditView::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) {
    if (pInfo == nullptr)
        return;
    ::SelectObject(*pDC, m_print_font != nullptr ? m_print_font : m_hPrinterFont);
    pInfo->m_bContinuePrinting = PaginateTo(pDC, pInfo);
}

// Where a page begins shows only when those before it are laid out, drawn or not.
BOOL CEditView::PaginateTo(CDC* pDC, CPrintInfo* pInfo) {
    const auto length = static_cast<UINT>(m_shadow.GetLength());
    const std::size_t page = pInfo->m_nCurPage;
    if (page == 0 || m_pages.empty())
        return FALSE;
    while (m_pages.size() < page && m_pages.back() < length) {
        CRect paper(0, 0, pDC->GetDeviceCaps(HORZRES), pDC->GetDeviceCaps(VERTRES));
        pDC->DPtoLP(paper);
        const int state = pDC->SaveDC();
        pDC->IntersectClipRect(CRect(0, 0, 0, 0));
        const UINT end = PrintInsideRect(pDC, paper, m_pages.back(), length);
        pDC->RestoreDC(state);
        if (end == m_pages.back())
            return FALSE; // not even a line finds room
        m_pages.push_back(end);
    }
    return page <= m_pages.size() && (page == 1 || m_pages[page - 1] < length);
}

void CEditView::OnPrint(CDC* pDC, CPrintInfo* pInfo) {
    CRect rect = pInfo->m_rectDraw;
    const UINT from = m_pages.at(pInfo->m_nCurPage - 1);
    const UINT end = PrintInsideRect(pDC, rect, from, static_cast<UINT>(m_shadow.GetLength()));
    if (m_pages.size() == pInfo->m_nCurPage)
        m_pages.push_back(end);
}

UINT CEditView::PrintInsideRect(CDC* pDC, RECT& rectLayout, UINT nIndexStart, UINT nIndexStop) {
    TEXTMETRIC metrics{};
    ::GetTextMetrics(*pDC, &metrics);
    const int height = std::max<int>(metrics.tmHeight + metrics.tmExternalLeading, 1);
    const int width = rectLayout.right - rectLayout.left;
    int tab = std::max<int>(m_nTabStops * metrics.tmAveCharWidth / 4, 1), y = rectLayout.top;
    const char *at = m_shadow.GetString() + nIndexStart, *const end = m_shadow.GetString() + nIndexStop;
    for (; at < end && y + height <= rectLayout.bottom; y += height) {
        const char* stop = std::find(at, end, '\n');
        int length = static_cast<int>(stop - at);
        if (length > 0 && at[length - 1] == '\r')
            --length;
        int fits = length;
        while (fits > 1 && LOWORD(::GetTabbedTextExtent(*pDC, at, fits, 1, &tab)) > width)
            --fits;
        ::TabbedTextOut(*pDC, rectLayout.left, y, at, fits, 1, &tab, rectLayout.left);
        at += fits;
        if (fits == length)
            at = stop < end ? stop + 1 : end;
    }
    rectLayout.bottom = y;
    return static_cast<UINT>(at - m_shadow.GetString());
}
