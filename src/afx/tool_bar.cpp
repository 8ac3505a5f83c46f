#include "afx_tool_bar.h"
#include "afx_module.h"
#include "afxmsg_.h"

#include <algorithm>
#include <utility>
#include <vector>

IMPLEMENT_DYNAMIC(CToolBar, CControlBar)

BEGIN_MESSAGE_MAP(CToolBar, CControlBar)
ON_WM_NCCALCSIZE()
ON_WM_NCPAINT()
ON_WM_NCHITTEST()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()

CToolBar::CToolBar() {
    SetBorders(2, 2, 2, 2);
}

CToolBar::~CToolBar() {
    CControlBar::DestroyWindow(); // before the images that it shows
    if (m_hbmImageWell != nullptr)
        ::DeleteObject(m_hbmImageWell);
}

BOOL CToolBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, CRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder),
                    nID);
}

BOOL CToolBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders, UINT nID) {
    SetBorders(rcBorders);
    m_dwStyle = dwStyle & CBRS_ALL;
    const DWORD style = (dwStyle & ~static_cast<DWORD>(CBRS_ALL)) | dwCtrlStyle | CCS_NOPARENTALIGN | CCS_NOMOVEY |
                        CCS_NODIVIDER | CCS_NORESIZE;
    ::InitCommonControls();
    if (!CWnd::Create(TOOLBARCLASSNAME, nullptr, style, CRect(0, 0, 0, 0), pParentWnd, nID))
        return FALSE;
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    SetOwner(pParentWnd);
    SetSizes(m_sizeButton, m_sizeImage);
    return TRUE;
}

// Where the control sends its commands and its questions for tips.
void CToolBar::SetOwner(CWnd* pOwnerWnd) {
    if (m_hWnd != nullptr)
        SendMessage(TB_SETPARENT, reinterpret_cast<WPARAM>(pOwnerWnd->GetSafeHwnd()));
    CControlBar::SetOwner(pOwnerWnd);
}

void CToolBar::SetSizes(SIZE sizeButton, SIZE sizeImage) {
    m_sizeButton = sizeButton;
    m_sizeImage = sizeImage;
    if (m_hWnd == nullptr)
        return;
    SendMessage(TB_SETBITMAPSIZE, 0, MAKELPARAM(sizeImage.cx, sizeImage.cy));
    SendMessage(TB_SETBUTTONSIZE, 0, MAKELPARAM(sizeButton.cx, sizeButton.cy));
    Invalidate();
}

void CToolBar::SetHeight(int cyHeight) {
    const int room = std::max<int>(cyHeight - m_sizeButton.cy, 0);
    m_cyTopBorder = room / 2;
    m_cyBottomBorder = room - m_cyTopBorder;
    Invalidate();
}

namespace {

struct bar_resource {
    CSize image;
    std::vector<UINT> commands;
};

// Numbers of one width: the image's size, how many items there are, and these.
template <class Number> bool read_items(const BYTE* bytes, std::size_t size, bar_resource& bar) {
    std::vector<Number> numbers(size / sizeof(Number));
    std::memcpy(numbers.data(), bytes, numbers.size() * sizeof(Number));
    if (numbers.size() < 3 || numbers[0] > 1024 || numbers[1] > 1024 || numbers[2] > numbers.size() - 3)
        return false;
    bar.image = CSize(static_cast<int>(numbers[0]), static_cast<int>(numbers[1]));
    bar.commands.assign(numbers.begin() + 3, numbers.begin() + 3 + numbers[2]);
    return true;
}

// A version and 16-bit numbers, or, as this toolchain's resource compiler writes them, 32-bit numbers alone.
bool read_bar(LPCTSTR name, bar_resource& bar) {
    constexpr WORD type = 241, version = 1;
    const HINSTANCE module = AfxFindResourceHandle(name, MAKEINTRESOURCE(type));
    const HRSRC found = ::FindResource(module, name, MAKEINTRESOURCE(type));
    const HGLOBAL loaded = found != nullptr ? ::LoadResource(module, found) : nullptr;
    const auto* bytes = loaded != nullptr ? static_cast<const BYTE*>(::LockResource(loaded)) : nullptr;
    const std::size_t size = bytes != nullptr ? ::SizeofResource(module, found) : 0;
    WORD head[2];
    if (size < sizeof(head))
        return false;
    std::memcpy(head, bytes, sizeof(head));
    if (head[1] == 0)
        return read_items<DWORD>(bytes, size, bar);
    return head[0] == version && read_items<WORD>(bytes + 2, size - 2, bar);
}

} // namespace

BOOL CToolBar::LoadToolBar(LPCTSTR lpszResourceName) {
    bar_resource bar;
    if (!read_bar(lpszResourceName, bar))
        return FALSE;
    SetSizes(CSize(bar.image.cx + 7, bar.image.cy + 7), bar.image);
    return SetButtons(bar.commands.data(), static_cast<int>(bar.commands.size())) && LoadBitmap(lpszResourceName);
}

BOOL CToolBar::LoadBitmap(LPCTSTR lpszResourceName) {
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, RT_BITMAP);
    const auto bitmap = static_cast<HBITMAP>(
        ::LoadImage(module, lpszResourceName, IMAGE_BITMAP, 0, 0, LR_DEFAULTSIZE | LR_LOADMAP3DCOLORS));
    if (!AddReplaceBitmap(bitmap))
        return FALSE;
    m_images_module = module;
    m_images_name = IS_INTRESOURCE(lpszResourceName) ? CString() : CString(lpszResourceName);
    m_images_id = IS_INTRESOURCE(lpszResourceName) ? lpszResourceName : nullptr;
    return TRUE;
}

BOOL CToolBar::AddReplaceBitmap(HBITMAP hbmImageWell) {
    BITMAP bitmap;
    if (hbmImageWell == nullptr || ::GetObject(hbmImageWell, sizeof(bitmap), &bitmap) == 0)
        return FALSE;
    const int images = m_sizeImage.cx > 0 ? bitmap.bmWidth / m_sizeImage.cx : 0;
    bool shown = false;
    if (m_hbmImageWell == nullptr) {
        TBADDBITMAP add{nullptr, reinterpret_cast<UINT_PTR>(hbmImageWell)};
        shown = SendMessage(TB_ADDBITMAP, static_cast<WPARAM>(images), reinterpret_cast<LPARAM>(&add)) != -1;
    } else {
        TBREPLACEBITMAP replace{nullptr, reinterpret_cast<UINT_PTR>(m_hbmImageWell), nullptr,
                                reinterpret_cast<UINT_PTR>(hbmImageWell), images};
        shown = SendMessage(TB_REPLACEBITMAP, 0, reinterpret_cast<LPARAM>(&replace)) != 0;
    }
    if (!shown)
        return FALSE;
    if (HBITMAP before = std::exchange(m_hbmImageWell, hbmImageWell))
        ::DeleteObject(before);
    m_images_module = nullptr;
    return TRUE;
}

// Images of a resource follow the system's colours.
void CToolBar::OnSysColorChange() {
    const CString name = m_images_name;
    if (m_images_module != nullptr)
        LoadBitmap(m_images_id != nullptr ? m_images_id : name.GetString());
    Default();
}

BOOL CToolBar::SetButtons(const UINT* lpIDArray, int nIDCount) {
    while (SendMessage(TB_DELETEBUTTON, 0)) {
    }
    int image = 0;
    for (int i = 0; i < nIDCount; ++i) {
        TBBUTTON button{};
        button.fsState = TBSTATE_ENABLED;
        button.iString = -1;
        if (lpIDArray != nullptr && lpIDArray[i] == ID_SEPARATOR) {
            button.fsStyle = TBSTYLE_SEP;
            button.iBitmap = 8;
        } else {
            button.fsStyle = TBSTYLE_BUTTON;
            button.iBitmap = lpIDArray != nullptr ? image++ : -1;
            button.idCommand = lpIDArray != nullptr ? static_cast<int>(lpIDArray[i]) : 0;
        }
        if (!SendMessage(TB_ADDBUTTONS, 1, reinterpret_cast<LPARAM>(&button)))
            return FALSE;
    }
    m_nCount = nIDCount;
    constexpr int endless = 32767;
    WrapButtons(IsHorizontal() ? endless : 0);
    return TRUE;
}

TBBUTTON CToolBar::ButtonAt(int index) const {
    TBBUTTON button{};
    SendMessage(TB_GETBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button));
    return button;
}

void CToolBar::ReplaceButton(int index, const TBBUTTON& button) {
    const TBBUTTON before = ButtonAt(index);
    if (std::memcmp(&before, &button, sizeof(button)) == 0)
        return;
    SendMessage(TB_DELETEBUTTON, static_cast<WPARAM>(index));
    SendMessage(TB_INSERTBUTTON, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&button));
    Invalidate();
}

int CToolBar::CommandToIndex(UINT nIDFind) const {
    return static_cast<int>(SendMessage(TB_COMMANDTOINDEX, nIDFind));
}

UINT CToolBar::GetItemID(int nIndex) const {
    return static_cast<UINT>(ButtonAt(nIndex).idCommand);
}

void CToolBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    if (!SendMessage(TB_GETITEMRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpRect)))
        ::SetRectEmpty(lpRect);
}

// The enabled state is the one that a plain button has, so its bit says disabled.
UINT CToolBar::GetButtonStyle(int nIndex) const {
    const TBBUTTON button = ButtonAt(nIndex);
    return static_cast<UINT>(MAKELONG(button.fsStyle, button.fsState ^ TBSTATE_ENABLED));
}

void CToolBar::SetButtonStyle(int nIndex, UINT nStyle) {
    TBBUTTON button = ButtonAt(nIndex);
    button.fsStyle = static_cast<BYTE>(LOWORD(nStyle));
    button.fsState = static_cast<BYTE>((HIWORD(nStyle) ^ TBSTATE_ENABLED) & 0xFF);
    ReplaceButton(nIndex, button);
}

void CToolBar::GetButtonInfo(int nIndex, UINT& nID, UINT& nStyle, int& iImage) const {
    nID = GetItemID(nIndex);
    nStyle = GetButtonStyle(nIndex);
    iImage = ButtonAt(nIndex).iBitmap;
}

void CToolBar::SetButtonInfo(int nIndex, UINT nID, UINT nStyle, int iImage) {
    TBBUTTON button = ButtonAt(nIndex);
    button.idCommand = static_cast<int>(nID);
    button.iBitmap = iImage;
    button.fsStyle = static_cast<BYTE>(LOWORD(nStyle));
    button.fsState = static_cast<BYTE>((HIWORD(nStyle) ^ TBSTATE_ENABLED) & 0xFF);
    ReplaceButton(nIndex, button);
}

BOOL CToolBar::SetButtonText(int nIndex, LPCTSTR lpszText) {
    CString strings = lpszText;
    strings += CString('\0', 1); // the list's end
    TBBUTTON button = ButtonAt(nIndex);
    button.iString = SendMessage(TB_ADDSTRING, 0, reinterpret_cast<LPARAM>(strings.GetString()));
    if (button.iString == -1)
        return FALSE;
    ReplaceButton(nIndex, button);
    return TRUE;
}

CString CToolBar::GetButtonText(int nIndex) const {
    const WPARAM command = GetItemID(nIndex);
    const LRESULT length = SendMessage(TB_GETBUTTONTEXT, command);
    CString text;
    if (length > 0) {
        SendMessage(TB_GETBUTTONTEXT, command, reinterpret_cast<LPARAM>(text.GetBuffer(static_cast<int>(length) + 1)));
        text.ReleaseBuffer();
    }
    return text;
}
