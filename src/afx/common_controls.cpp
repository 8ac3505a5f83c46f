#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)
IMPLEMENT_DYNCREATE(CImageList, CObject)

namespace {

void register_common_controls(DWORD classes) {
    const INITCOMMONCONTROLSEX wanted{sizeof(wanted), classes};
    ::InitCommonControlsEx(&wanted);
}

// Without an id the window itself is the tool; with one, it is a part of the window.
TOOLINFO tool_record(CWnd* wnd, UINT_PTR id) {
    TOOLINFO tool{};
    tool.cbSize = TTTOOLINFOA_V2_SIZE; // the version without the last field is known to every control
    tool.hwnd = id != 0 ? wnd->GetSafeHwnd() : ::GetParent(wnd->GetSafeHwnd());
    tool.uFlags = id != 0 ? 0 : TTF_IDISHWND;
    tool.uId = id != 0 ? id : reinterpret_cast<UINT_PTR>(wnd->GetSafeHwnd());
    return tool;
}

// A text of the resource chain may be named by its id.
LPTSTR tip_text(CString& loaded, LPCTSTR text) {
    if (text != LPSTR_TEXTCALLBACK && IS_INTRESOURCE(text)) {
        loaded = CString(text);
        text = loaded;
    }
    return const_cast<LPTSTR>(text);
}

} // namespace

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    register_common_controls(ICC_BAR_CLASSES);
    return CWnd::Create(TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CToolTipCtrl::Create(CWnd* pParentWnd, DWORD dwStyle) {
    register_common_controls(ICC_BAR_CLASSES);
    return CreateEx(0, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, pParentWnd->GetSafeHwnd(), nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool) {
    CString loaded;
    TOOLINFO tool = tool_record(pWnd, nIDTool);
    tool.lpszText = tip_text(loaded, lpszText);
    if (lpRectTool != nullptr)
        tool.rect = *lpRectTool;
    return static_cast<BOOL>(SendMessage(TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool)));
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool) {
    TOOLINFO tool = tool_record(pWnd, nIDTool);
    SendMessage(TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&tool));
}

CImageList::~CImageList() {
    DeleteImageList();
}

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    if (m_hImageList != nullptr)
        return FALSE;
    m_hImageList = hImageList;
    return hImageList != nullptr;
}

HIMAGELIST CImageList::Detach() {
    const HIMAGELIST handle = m_hImageList;
    m_hImageList = nullptr;
    return handle;
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    LPCTSTR name = MAKEINTRESOURCE(nBitmapID);
    return m_hImageList == nullptr &&
           Attach(ImageList_LoadBitmap(AfxFindResourceHandle(name, RT_BITMAP), name, cx, nGrow, crMask));
}

BOOL CImageList::DeleteImageList() {
    const HIMAGELIST handle = Detach();
    return handle != nullptr && ImageList_Destroy(handle);
}
