// Lists of pictures of one size.
#pragma once

#include "afxwin.h"

// Owns an image list's handle. FromHandle objects are temporary and own nothing.
class ZOPAFX_API CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList() = default;
    ~CImageList() override;

    HIMAGELIST m_hImageList = nullptr;

    HIMAGELIST GetSafeHandle() const { return this == nullptr ? nullptr : m_hImageList; }
    operator HIMAGELIST() const { return GetSafeHandle(); }
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    // FALSE, here and in every Create function, where the object holds a list already.
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();

    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    // From a bitmap of the resource chain, cut into images cx wide; crMask becomes transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    // One image over another, or a copy.
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy);
    BOOL Create(CImageList* pImageList);
    BOOL DeleteImageList();

    int GetImageCount() const { return ImageList_GetImageCount(m_hImageList); }
    BOOL SetImageCount(UINT uNewCount) { return ImageList_SetImageCount(m_hImageList, uNewCount); }
    // The index of the first new image, or -1.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask) {
        return ImageList_Add(m_hImageList, BitmapOf(pbmImage), BitmapOf(pbmMask));
    }
    int Add(CBitmap* pbmImage, COLORREF crMask) {
        return ImageList_AddMasked(m_hImageList, BitmapOf(pbmImage), crMask);
    }
    int Add(HICON hIcon) { return ImageList_AddIcon(m_hImageList, hIcon); }
    BOOL Remove(int nImage) { return ImageList_Remove(m_hImageList, nImage); }
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask) {
        return ImageList_Replace(m_hImageList, nImage, BitmapOf(pbmImage), BitmapOf(pbmMask));
    }
    int Replace(int nImage, HICON hIcon) { return ImageList_ReplaceIcon(m_hImageList, nImage, hIcon); }
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE) { return Copy(iDst, this, iSrc, uFlags); }
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE) {
        return ImageList_Copy(m_hImageList, iDst, pSrc->GetSafeHandle(), iSrc, uFlags);
    }
    HICON ExtractIcon(int nImage) { return ImageList_ExtractIcon(nullptr, m_hImageList, nImage); }
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
        return ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
    }
    COLORREF SetBkColor(COLORREF cr) { return ImageList_SetBkColor(m_hImageList, cr); }
    COLORREF GetBkColor() const { return ImageList_GetBkColor(m_hImageList); }
    BOOL SetOverlayImage(int nImage, int nOverlay) { return ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay); }

    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
        return ImageList_Draw(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, nStyle);
    }
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle) {
        return ImageList_DrawEx(m_hImageList, nImage, pDC->GetSafeHdc(), pt.x, pt.y, sz.cx, sz.cy, clrBk, clrFg,
                                nStyle);
    }
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    BOOL DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle = ILD_NORMAL,
                      DWORD dwRop = SRCCOPY, COLORREF rgbBack = CLR_DEFAULT, COLORREF rgbFore = CLR_DEFAULT,
                      DWORD fState = ILS_NORMAL, DWORD Frame = 0, COLORREF crEffect = CLR_DEFAULT);
    // An image list as such; in a document, its stream of the platform.
    BOOL Read(CArchive* pArchive);
    BOOL Write(CArchive* pArchive);

    // Dragging: one image at a time, whatever list it is of.
    BOOL BeginDrag(int nImage, CPoint ptHotSpot) {
        return ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
    }
    static void PASCAL EndDrag() { ImageList_EndDrag(); }
    static BOOL PASCAL DragMove(CPoint pt) { return ImageList_DragMove(pt.x, pt.y); }
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot) {
        return ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
    }
    static BOOL PASCAL DragShowNolock(BOOL bShow) { return ImageList_DragShowNolock(bShow); }
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point) {
        return ImageList_DragEnter(pWndLock->GetSafeHwnd(), point.x, point.y);
    }
    static BOOL PASCAL DragLeave(CWnd* pWndLock) { return ImageList_DragLeave(pWndLock->GetSafeHwnd()); }
    static CImageList* PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot) {
        return FromHandle(ImageList_GetDragImage(lpPoint, lpPointHotSpot));
    }

private:
    static HBITMAP BitmapOf(const CBitmap* pBitmap) { return static_cast<HBITMAP>(pBitmap->GetSafeHandle()); }
    BOOL AttachNew(HIMAGELIST hImageList);
};
