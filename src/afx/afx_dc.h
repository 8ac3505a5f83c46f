// Device contexts.
#pragma once

#include "afx_gdi.h"

class CWnd;

// Owns a device context's handle and deletes it with itself; the derived classes release it in their own ways.
// Output goes to m_hDC, questions about attributes to m_hAttribDC, which is the same.
class ZOPAFX_API CDC : public CObject {
    DECLARE_DYNCREATE(CDC)

public:
    CDC() = default;
    ~CDC() override;

    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;

    HDC GetSafeHdc() const { return this == nullptr ? nullptr : m_hDC; }
    operator HDC() const { return GetSafeHdc(); }
    BOOL Attach(HDC hDC); // FALSE where the object holds a handle already
    HDC Detach();
    static CDC* PASCAL FromHandle(HDC hDC);
    BOOL CreateCompatibleDC(CDC* pDC) { return m_hDC == nullptr && Attach(::CreateCompatibleDC(pDC->GetSafeHdc())); }
    BOOL DeleteDC();

    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }

    // Both answer the object selected before, which is temporary unless the program attached it.
    CBitmap* SelectObject(CBitmap* pBitmap);
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }

    virtual COLORREF SetBkColor(COLORREF crColor);
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int SetBkMode(int nBkMode) { return ::SetBkMode(m_hDC, nBkMode); }
    UINT SetTextAlign(UINT nFlags) { return ::SetTextAlign(m_hDC, nFlags); }

    void FillRect(LPCRECT lpRect, CBrush* pBrush) {
        ::FillRect(m_hDC, lpRect, static_cast<HBRUSH>(pBrush->GetSafeHandle()));
    }
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    BOOL PatBlt(int x, int y, int cx, int cy, DWORD dwRop) { return ::PatBlt(m_hDC, x, y, cx, cy, dwRop); }
    BOOL BitBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
        return ::BitBlt(m_hDC, x, y, cx, cy, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
    }
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }

    int StartDoc(LPDOCINFO lpDocInfo) { return ::StartDoc(m_hDC, lpDocInfo); }
    int StartPage() { return ::StartPage(m_hDC); }
    int EndPage() { return ::EndPage(m_hDC); }
    int EndDoc() { return ::EndDoc(m_hDC); }
    int AbortDoc() { return ::AbortDoc(m_hDC); }
};

// The contexts of a window's client area, of the whole window, and of one painting.
class ZOPAFX_API CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

class ZOPAFX_API CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)

public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

class ZOPAFX_API CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps{};

protected:
    HWND m_hWnd;
};
