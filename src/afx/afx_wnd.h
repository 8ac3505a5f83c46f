// CWnd: a window and the object that handles its messages.
#pragma once

#include "afx_cmdui.h"
#include "afx_dc.h"
#include "afx_menu.h"

class CDataExchange;
class CFrameWnd;
class CListBox;
class CMFCDynamicLayout;
class CScrollBar;
class CView;
struct CCreateContext;

// Sent to the window of a modal loop while the loop is idle.
#define WM_KICKIDLE 0x036A

enum : DWORD { MLF_NOIDLEMSG = 1, MLF_NOKICKIDLE = 2, MLF_SHOWONIDLE = 4 };

// The three colour messages of a control in one shape.
struct AFX_CTLCOLOR {
    HWND hWnd;
    HDC hDC;
    UINT nCtlType;
};

// A window that the object created, subclassed or attached is permanent: its messages come to the object (an attached
// one's do not), and destroying the object destroys it. FromHandle gives a temporary object for every other window,
// good until the program is idle. Every operation forwards to the platform function of its name unless noted.
class ZOPAFX_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
    DECLARE_MESSAGE_MAP()

public:
    CWnd() = default;
    ~CWnd() override;

    HWND m_hWnd = nullptr;
    static const CWnd wndTop, wndBottom, wndTopMost, wndNoTopMost; // places for SetWindowPos

    HWND GetSafeHwnd() const { return this == nullptr ? nullptr : m_hWnd; }
    operator HWND() const { return GetSafeHwnd(); }
    bool operator==(const CWnd& wnd) const { return wnd.m_hWnd == m_hWnd; }
    bool operator!=(const CWnd& wnd) const { return wnd.m_hWnd != m_hWnd; }

    static CWnd* PASCAL FromHandle(HWND hWnd);
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static void PASCAL DeleteTempMap();
    // These answer FALSE where the object has a window already; so do Create and CreateEx.
    BOOL Attach(HWND hWndNew);
    HWND Detach();
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    // Gives the window its own procedure back; its handle is the caller's.
    HWND UnsubclassWindow();

    // A null class name makes a plain window: double clicks, arrow cursor, nothing painted behind.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                          int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    virtual BOOL DestroyWindow();
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual void PreSubclassWindow();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    virtual BOOL IsFrameWnd() const;
    // The window's rectangle for this client rectangle.
    enum AdjustType { adjustBorder = 0, adjustOutside = 1 };
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);

    // Asks every window from the message's up to hWndStop whether it wants the message for itself.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    // Runs a message loop until EndModalLoop; answers its argument, or -1 after a quit message or where
    // the window was destroyed.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual void EndModalLoop(int nResult);
    virtual BOOL ContinueModal() { return m_modal; }
    BOOL IsDialogMessage(LPMSG lpMsg) { return ::IsDialogMessage(m_hWnd, lpMsg); }
    BOOL PreTranslateInput(LPMSG lpMsg);

    // Tips: asked for by TTN_NEEDTEXT, for the children or for what OnToolHitTest finds. That answers the number of
    // what is at the point, -1 for nothing; a text it gives comes from malloc. EnableToolTips answers what was before.
    BOOL EnableToolTips(BOOL bEnable = TRUE);
    static void PASCAL CancelToolTips(BOOL bKeys = FALSE);
    void FilterToolTipMessage(MSG* pMsg);
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;

    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    virtual void DoDataExchange(CDataExchange* pDX);
    // Updates the window's controls like the items of a menu.
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
    // Fills boxes from the dialog's initial data in the resource chain, or in memory.
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource);

    // Passes a notification back to the control it came from; TRUE where the control handled it.
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtr(m_hWnd, GWL_EXSTYLE)); }
    // FALSE where the style is as wanted already; nFlags other than 0 go to SetWindowPos.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0) {
        return ModifyStyle(m_hWnd, dwRemove, dwAdd, nFlags);
    }
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0) {
        return ModifyStyleEx(m_hWnd, dwRemove, dwAdd, nFlags);
    }
    static BOOL PASCAL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    static BOOL PASCAL ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);

    // The family of windows. The owner is the window that notifications go to: the parent unless SetOwner was called.
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* pWndNewParent) { return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd())); }
    CWnd* GetOwner() const { return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent(); }
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd->GetSafeHwnd(); }
    CFrameWnd* GetParentFrame() const;
    CFrameWnd* GetTopLevelFrame() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* GetParentOwner() const;
    // Who is to own a modal window: pParent, or the main window's last active popup, or the first parent of it that is
    // no child. pWndTop takes the last owner of that one where it is another one and was enabled, and gets disabled;
    // else null.
    static CWnd* PASCAL GetSafeOwner(CWnd* pParent = nullptr, HWND* pWndTop = nullptr);
    CWnd* EnsureTopLevelParent() { return GetTopLevelParent(); }
    BOOL IsTopParentActive() const;
    void ActivateTopParent();
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const { return FromHandle(::GetWindow(m_hWnd, nFlag)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, pWnd->GetSafeHwnd()); }
    static CWnd* PASCAL GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm);
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const {
        return GetDescendantWindow(m_hWnd, nID, bOnlyPerm);
    }
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
        return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
    }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags = CWP_ALL) const {
        return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
    }

    // The controls of a dialog.
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID)); }
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
    void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemText(m_hWnd, nID, lpszString); }
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
        return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
    }
    int GetDlgItemText(int nID, CString& rString) const;
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const {
        return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
    }
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE) { ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned); }
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
    }
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton) {
        ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
    }
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const {
        return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
    }
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const {
        return FromHandle(::GetNextDlgGroupItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
    }
    int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType) {
        return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
    }
    int DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType) {
        return ::DlgDirListComboBox(m_hWnd, lpPathSpec, nIDComboBox, nIDStaticPath, nFileType);
    }
    BOOL DlgDirSelect(LPTSTR lpString, int nSize, int nIDListBox) {
        return ::DlgDirSelectEx(m_hWnd, lpString, nSize, nIDListBox);
    }
    BOOL DlgDirSelectComboBox(LPTSTR lpString, int nSize, int nIDComboBox) {
        return ::DlgDirSelectComboBoxEx(m_hWnd, lpString, nSize, nIDComboBox);
    }

    // Messages.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return ::PostMessage(m_hWnd, message, wParam, lParam);
    }
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
    }
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE) {
        SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
    }
    static void PASCAL SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                                BOOL bOnlyPerm);

    // Help, by the program's WinHelp: for the window with the focus and those around it, else the default one.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();

    // Texts, fonts, icons, menus.
    void SetWindowText(LPCTSTR lpszString) { ::SetWindowText(m_hWnd, lpszString); }
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
        return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
    }
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE) {
        ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(pFont->GetSafeHandle()), bRedraw);
    }
    CFont* GetFont() const;
    HICON SetIcon(HICON hIcon, BOOL bBigIcon) {
        return reinterpret_cast<HICON>(SendMessage(WM_SETICON, bBigIcon, reinterpret_cast<LPARAM>(hIcon)));
    }
    HICON GetIcon(BOOL bBigIcon) const { return reinterpret_cast<HICON>(SendMessage(WM_GETICON, bBigIcon)); }
    virtual CMenu* GetMenu() const;
    virtual BOOL SetMenu(CMenu* pMenu);
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId) { return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId); }
    DWORD GetWindowContextHelpId() const { return ::GetWindowContextHelpId(m_hWnd); }
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    CMenu* GetSystemMenu(BOOL bRevert) const { return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert)); }
    BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite) {
        return ::HiliteMenuItem(m_hWnd, pMenu->GetSafeHmenu(), nIDHiliteItem, nHilite);
    }
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);

    // Place and size.
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE) {
        ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
    }
    void MoveWindow(LPCRECT r, BOOL bRepaint = TRUE) {
        MoveWindow(r->left, r->top, r->right - r->left, r->bottom - r->top, bRepaint);
    }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
        return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
    }
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    UINT ArrangeIconicWindows() { return ::ArrangeIconicWindows(m_hWnd); }
    // Centres over the alternate window, the parent of a child window, or the owner of any other; kept on the screen.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    // Lets every child with an id in the range take its part of the client area; the one with nIDLeftOver gets the
    // rest.
    enum RepositionFlags { reposDefault = 0, reposQuery = 1, reposExtra = 2 };
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr, BOOL bStretch = TRUE);
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const { MapWindowPoints(nullptr, lpRect); }
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const {
        ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
    }
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
        ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), lpPoint, nCount);
    }
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
        MapWindowPoints(pwndTo, reinterpret_cast<LPPOINT>(lpRect), 2);
    }

    // Children that follow the window's size; see afxlayout.h. Dialogs and form views whose template has an
    // AFX_DIALOG_LAYOUT of its name have one. Null where none is enabled.
    void EnableDynamicLayout(BOOL bEnable = TRUE);
    BOOL IsDynamicLayoutEnabled() const { return m_pDynamicLayout != nullptr; }
    CMFCDynamicLayout* GetDynamicLayout() { return m_pDynamicLayout; }

    // State.
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void ShowOwnedPopups(BOOL bShow = TRUE) { ::ShowOwnedPopups(m_hWnd, bShow); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    void CloseWindow() { ::CloseWindow(m_hWnd); }
    BOOL OpenIcon() { return ::OpenIcon(m_hWnd); }
    BOOL FlashWindow(BOOL bInvert) { return ::FlashWindow(m_hWnd, bInvert); }
    BOOL FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout = 0) {
        FLASHWINFO how{sizeof(how), m_hWnd, dwFlags, uCount, dwTimeout};
        return ::FlashWindowEx(&how);
    }
    static CWnd* PASCAL FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow) {
        return FromHandle(::FindWindowEx(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
    }
    // Whether the user drags from there, on the screen, before the button goes up.
    BOOL DragDetect(POINT pt) const { return ::DragDetect(m_hWnd, pt); }
    BOOL DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags) {
        return ::DrawCaption(m_hWnd, pDC->GetSafeHdc(), lprc, uFlags);
    }
    BOOL DrawAnimatedRects(int idAni, const RECT* lprcFrom, const RECT* lprcTo) {
        return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
    }
    CWnd* GetAncestor(UINT gaFlags) const { return FromHandle(::GetAncestor(m_hWnd, gaFlags)); }
    int GetWindowRgn(HRGN hRgn) const { return ::GetWindowRgn(m_hWnd, hRgn); }
    // The records' sizes are the framework's to set.
    BOOL GetWindowInfo(PWINDOWINFO pwi) const {
        pwi->cbSize = sizeof(*pwi);
        return ::GetWindowInfo(m_hWnd, pwi);
    }
    BOOL GetTitleBarInfo(PTITLEBARINFO pti) const {
        pti->cbSize = sizeof(*pti);
        return ::GetTitleBarInfo(m_hWnd, pti);
    }
    BOOL GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const {
        psbi->cbSize = sizeof(*psbi);
        return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
    }
    BOOL AnimateWindow(DWORD dwTime, DWORD dwFlags) { return ::AnimateWindow(m_hWnd, dwTime, dwFlags); }
    BOOL SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags) {
        return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
    }
    BOOL GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const {
        return ::GetLayeredWindowAttributes(m_hWnd, pcrKey, pbAlpha, pdwFlags);
    }
    BOOL UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc, COLORREF crKey,
                             BLENDFUNCTION* pblend, DWORD dwFlags) {
        return ::UpdateLayeredWindow(m_hWnd, pDCDst->GetSafeHdc(), pptDst, psize, pDCSrc->GetSafeHdc(), pptSrc, crKey,
                                     pblend, dwFlags);
    }
    // While the user is kept to another window.
    virtual void BeginModalState() { ::EnableWindow(m_hWnd, FALSE); }
    virtual void EndModalState() { ::EnableWindow(m_hWnd, TRUE); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD)) {
        return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
    }
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }
    void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }

    // Painting.
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    CDC* GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC) { return ::ReleaseDC(m_hWnd, pDC->GetSafeHdc()); }
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint) { return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint)); }
    void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    BOOL PrintWindow(CDC* pDC, UINT nFlags) const { return ::PrintWindow(m_hWnd, pDC->GetSafeHdc(), nFlags); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL bRedraw = TRUE) { SendMessage(WM_SETREDRAW, bRedraw); }
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    void ValidateRgn(CRgn* pRgn);
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    static void PASCAL UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }

    // Scroll bars. GetScrollBarCtrl answers the control that stands for a bar, where there is one.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    int GetScrollPos(int nBar) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow); }
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH) {
        return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
    }
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate, LPRECT lpRectUpdate,
                       UINT flags);

    // Carets and the clipboard.
    void CreateCaret(CBitmap* pBitmap);
    void CreateSolidCaret(int nWidth, int nHeight) { ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight); }
    void CreateGrayCaret(int nWidth, int nHeight);
    static CPoint PASCAL GetCaretPos();
    static void PASCAL SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
    void HideCaret() { ::HideCaret(m_hWnd); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    static CWnd* PASCAL GetClipboardOwner() { return FromHandle(::GetClipboardOwner()); }
    static CWnd* PASCAL GetClipboardViewer() { return FromHandle(::GetClipboardViewer()); }
    static CWnd* PASCAL GetOpenClipboardWindow() { return FromHandle(::GetOpenClipboardWindow()); }
    HWND SetClipboardViewer() { return ::SetClipboardViewer(m_hWnd); }
    BOOL ChangeClipboardChain(HWND hWndNext) { return ::ChangeClipboardChain(m_hWnd, hWndNext); }

protected:
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual void PostNcDestroy();
    // The platform's handling of the message being handled.
    LRESULT Default();
    static const MSG* PASCAL GetCurrentMessage();

    BOOL LoadDynamicLayoutResource(LPCTSTR lpszResourceName);
    void InitDynamicLayout();
    // After the window's other work for its new size.
    virtual void ResizeDynamicLayout();

    // A child dialog; its template is one of the resource chain.
    BOOL CreateDlg(LPCTSTR lpszTemplateName, CWnd* pParentWnd);
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);

#include "afx_wnd_handlers.h"

    HWND m_hWndOwner = nullptr;
    WNDPROC m_pfnSuper = nullptr;
    CMFCDynamicLayout* m_pDynamicLayout = nullptr;
    bool m_modal = false;
    bool m_has_tips = false;
    int m_nModalResult = -1;

private:
    AFX_MODULE_STATE* m_module_state = nullptr; // that its window was created under
    friend LRESULT AfxCallWndProc(CWnd* wnd, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    friend bool take_over_window(CWnd* wnd, HWND hwnd);
    explicit CWnd(HWND place) : m_hWnd(place) {}
    void OfferToScrollBar();
    BOOL ReflectColor(const AFX_CTLCOLOR& color, LRESULT* pResult);
    LRESULT DispatchEntry(const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam);
};

#include "afx_wnd_class.h"
