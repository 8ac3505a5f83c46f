#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNCREATE(CImageList, CObject)

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    const INITCOMMONCONTROLSEX wanted{sizeof(wanted), ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&wanted);
    return CWnd::Create(TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
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
