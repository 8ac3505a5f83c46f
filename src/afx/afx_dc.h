// Device contexts.
#pragma once

#include "afx_gdi.h"

class CWnd;

// Owns a device context's handle and deletes it with itself; the derived classes release it in their own ways.
// Output goes to m_hDC, questions about attributes to m_hAttribDC, which is the same unless SetAttribDC made it
// another.
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
    static void PASCAL DeleteTempMap();
    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC); // not for a context that holds a handle
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC();
    BOOL IsPrinting() const { return m_bPrinting; }
    CWnd* GetWindow() const;

    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData) {
        return AttachNew(
            ::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
    }
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData) {
        return AttachNew(
            ::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
    }
    BOOL CreateCompatibleDC(CDC* pDC) { return m_hDC == nullptr && Attach(::CreateCompatibleDC(pDC->GetSafeHdc())); }
    BOOL DeleteDC();

    // Device and state. The capabilities and attributes are the attribute context's, what changes both.
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    BOOL ResetDC(const DEVMODE* lpDevMode) { return ::ResetDC(m_hAttribDC, lpDevMode) != nullptr; }
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }
    int EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData) {
        return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
    }

    // Objects. What was selected before is temporary unless the program attached it; a region's kind is the result.
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    int SelectObject(CRgn* pRgn);
    CGdiObject* SelectObject(CGdiObject* pObject) { return SelectGdiObject(m_hDC, pObject->GetSafeHandle()); }
    CPen* GetCurrentPen() const { return CPen::FromHandle(static_cast<HPEN>(Current(OBJ_PEN))); }
    CBrush* GetCurrentBrush() const { return CBrush::FromHandle(static_cast<HBRUSH>(Current(OBJ_BRUSH))); }
    CPalette* GetCurrentPalette() const { return CPalette::FromHandle(static_cast<HPALETTE>(Current(OBJ_PAL))); }
    CFont* GetCurrentFont() const { return CFont::FromHandle(static_cast<HFONT>(Current(OBJ_FONT))); }
    CBitmap* GetCurrentBitmap() const { return CBitmap::FromHandle(static_cast<HBITMAP>(Current(OBJ_BITMAP))); }
    static CBrush* PASCAL GetHalftoneBrush();
    CPalette* SelectPalette(CPalette* pPalette, BOOL bForceBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }
    void UpdateColors() { ::UpdateColors(m_hDC); }
    COLORREF GetNearestColor(COLORREF crColor) const { return ::GetNearestColor(m_hAttribDC, crColor); }

    // Attributes.
    virtual COLORREF SetBkColor(COLORREF crColor);
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    COLORREF GetDCBrushColor() const { return ::GetDCBrushColor(m_hDC); }
    COLORREF SetDCBrushColor(COLORREF crColor) { return ::SetDCBrushColor(m_hDC, crColor); }
    COLORREF GetDCPenColor() const { return ::GetDCPenColor(m_hDC); }
    COLORREF SetDCPenColor(COLORREF crColor) { return ::SetDCPenColor(m_hDC, crColor); }
    int SetBkMode(int nBkMode) { return Both<int>(::SetBkMode, nBkMode); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int SetPolyFillMode(int nPolyFillMode) { return Both<int>(::SetPolyFillMode, nPolyFillMode); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int SetROP2(int nDrawMode) { return Both<int>(::SetROP2, nDrawMode); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetStretchBltMode(int nStretchMode) { return Both<int>(::SetStretchBltMode, nStretchMode); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetGraphicsMode(int iMode) { return Both<int>(::SetGraphicsMode, iMode); }
    int GetGraphicsMode() const { return ::GetGraphicsMode(m_hDC); }
    BOOL SetWorldTransform(const XFORM* pXform) { return Both<BOOL>(::SetWorldTransform, pXform); }
    BOOL ModifyWorldTransform(const XFORM* pXform, DWORD iMode) {
        return Both<BOOL>(::ModifyWorldTransform, pXform, iMode);
    }
    BOOL GetWorldTransform(XFORM& rXform) const { return ::GetWorldTransform(m_hAttribDC, &rXform); }
    DWORD SetLayout(DWORD dwLayout) { return ::SetLayout(m_hDC, dwLayout); }
    DWORD GetLayout() const { return ::GetLayout(m_hDC); }
    BOOL SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust) {
        return Both<BOOL>(::SetColorAdjustment, lpColorAdjust);
    }
    BOOL GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const {
        return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
    }

    // Logical units.
    virtual int SetMapMode(int nMapMode) { return Both<int>(::SetMapMode, nMapMode); }
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    virtual CPoint SetViewportOrg(int x, int y) { return Both<CPoint>(&Moved<&::SetViewportOrgEx>, x, y); }
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight) {
        return Both<CPoint>(&Moved<&::OffsetViewportOrgEx>, nWidth, nHeight);
    }
    CPoint GetViewportOrg() const;
    virtual CSize SetViewportExt(int cx, int cy) { return Both<CSize>(&Sized<&::SetViewportExtEx>, cx, cy); }
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom) {
        return Both<CSize>(&Scaled<&::ScaleViewportExtEx>, xNum, xDenom, yNum, yDenom);
    }
    CSize GetViewportExt() const;
    CPoint SetWindowOrg(int x, int y) { return Both<CPoint>(&Moved<&::SetWindowOrgEx>, x, y); }
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint OffsetWindowOrg(int nWidth, int nHeight) {
        return Both<CPoint>(&Moved<&::OffsetWindowOrgEx>, nWidth, nHeight);
    }
    CPoint GetWindowOrg() const;
    virtual CSize SetWindowExt(int cx, int cy) { return Both<CSize>(&Sized<&::SetWindowExtEx>, cx, cy); }
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom) {
        return Both<CSize>(&Scaled<&::ScaleWindowExtEx>, xNum, xDenom, yNum, yDenom);
    }
    CSize GetWindowExt() const;
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void LPtoDP(LPSIZE lpSize) const;
    // Hundredths of a millimetre.
    void DPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoDP(LPSIZE lpSize) const;
    void LPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoLP(LPSIZE lpSize) const;

    // Regions and clipping.
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush) { return ::FillRgn(m_hDC, RegionOf(pRgn), BrushOf(pBrush)); }
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
        return ::FrameRgn(m_hDC, RegionOf(pRgn), BrushOf(pBrush), nWidth, nHeight);
    }
    BOOL InvertRgn(CRgn* pRgn) { return ::InvertRgn(m_hDC, RegionOf(pRgn)); }
    BOOL PaintRgn(CRgn* pRgn) { return ::PaintRgn(m_hDC, RegionOf(pRgn)); }
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hAttribDC, lpRect); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hAttribDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hAttribDC, lpRect); }
    int SelectClipRgn(CRgn* pRgn) { return Both<int>(::SelectClipRgn, RegionOf(pRgn)); }
    int SelectClipRgn(CRgn* pRgn, int nMode) { return Both<int>(::ExtSelectClipRgn, RegionOf(pRgn), nMode); }
    int ExcludeClipRect(int x1, int y1, int x2, int y2) { return Both<int>(::ExcludeClipRect, x1, y1, x2, y2); }
    int ExcludeClipRect(LPCRECT r) { return ExcludeClipRect(r->left, r->top, r->right, r->bottom); }
    int ExcludeUpdateRgn(CWnd* pWnd);
    int IntersectClipRect(int x1, int y1, int x2, int y2) { return Both<int>(::IntersectClipRect, x1, y1, x2, y2); }
    int IntersectClipRect(LPCRECT r) { return IntersectClipRect(r->left, r->top, r->right, r->bottom); }
    int OffsetClipRgn(int x, int y) { return Both<int>(::OffsetClipRgn, x, y); }
    int OffsetClipRgn(SIZE size) { return OffsetClipRgn(size.cx, size.cy); }
    UINT GetBoundsRect(LPRECT lpRectBounds, UINT flags) { return ::GetBoundsRect(m_hAttribDC, lpRectBounds, flags); }
    UINT SetBoundsRect(LPCRECT lpRectBounds, UINT flags) { return ::SetBoundsRect(m_hDC, lpRectBounds, flags); }

    // Lines.
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y) { return Both<CPoint>(&Moved<&::MoveToEx>, x, y); }
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Arc(LPCRECT r, POINT from, POINT to) {
        return Arc(r->left, r->top, r->right, r->bottom, from.x, from.y, to.x, to.y);
    }
    BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL ArcTo(LPCRECT r, POINT from, POINT to) {
        return ArcTo(r->left, r->top, r->right, r->bottom, from.x, from.y, to.x, to.y);
    }
    BOOL AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle) {
        return ::AngleArc(m_hDC, x, y, static_cast<DWORD>(nRadius), fStartAngle, fSweepAngle);
    }
    int SetArcDirection(int nArcDirection) { return Both<int>(::SetArcDirection, nArcDirection); }
    int GetArcDirection() const { return ::GetArcDirection(m_hAttribDC); }
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount) {
        return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolylineTo(const POINT* lpPoints, int nCount);
    BOOL PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount) {
        return ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
    }
    BOOL PolyBezier(const POINT* lpPoints, int nCount) {
        return ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolyBezierTo(const POINT* lpPoints, int nCount);

    // Shapes.
    void FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, BrushOf(pBrush)); }
    void FrameRect(LPCRECT lpRect, CBrush* pBrush) { ::FrameRect(m_hDC, lpRect, BrushOf(pBrush)); }
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT r, COLORREF clrTopLeft, COLORREF clrBottomRight) {
        Draw3dRect(r->left, r->top, r->right - r->left, r->bottom - r->top, clrTopLeft, clrBottomRight);
    }
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = nullptr) {
        return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hBitmap), 0, pt.x, pt.y, size.cx, size.cy,
                           nFlags | DST_BITMAP);
    }
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = nullptr) {
        return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(hIcon), 0, pt.x, pt.y, size.cx, size.cy,
                           nFlags | DST_ICON);
    }
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE, int nTextLen = 0,
                   HBRUSH hBrush = nullptr) {
        return ::DrawState(m_hDC, hBrush, nullptr, reinterpret_cast<LPARAM>(lpszText), static_cast<WPARAM>(nTextLen),
                           pt.x, pt.y, size.cx, size.cy, nFlags | (bPrefixText ? DST_PREFIXTEXT : DST_TEXT));
    }
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                   CBrush* pBrush) {
        return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, BrushOf(pBrush));
    }
    BOOL DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush = nullptr) {
        return DrawState(pt, size, static_cast<HBITMAP>(pBitmap->GetSafeHandle()), nFlags, BrushOf(pBrush));
    }
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush) {
        return DrawState(pt, size, hIcon, nFlags, BrushOf(pBrush));
    }
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   HBRUSH hBrush = nullptr) {
        return ::DrawState(m_hDC, hBrush, lpDrawProc, lData, 0, pt.x, pt.y, size.cx, size.cy, nFlags | DST_COMPLEX);
    }
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, CBrush* pBrush) {
        return DrawState(pt, size, lpDrawProc, lData, nFlags, BrushOf(pBrush));
    }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    // The frame of a dragged rectangle, drawn by inversion; the one drawn last goes where there is one.
    void DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush = nullptr,
                      CBrush* pBrushLast = nullptr);
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Chord(LPCRECT r, POINT from, POINT to) {
        return Chord(r->left, r->top, r->right, r->bottom, from.x, from.y, to.x, to.y);
    }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT r) { return Ellipse(r->left, r->top, r->right, r->bottom); }
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Pie(LPCRECT r, POINT from, POINT to) {
        return Pie(r->left, r->top, r->right, r->bottom, from.x, from.y, to.x, to.y);
    }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount) {
        return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
    }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
        return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
    }
    BOOL RoundRect(LPCRECT r, POINT point) { return RoundRect(r->left, r->top, r->right, r->bottom, point.x, point.y); }

    // Bitmaps and pixels.
    BOOL PatBlt(int x, int y, int cx, int cy, DWORD dwRop) { return ::PatBlt(m_hDC, x, y, cx, cy, dwRop); }
    BOOL BitBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
        return ::BitBlt(m_hDC, x, y, cx, cy, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
    }
    BOOL StretchBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, int cxSrc, int cySrc, DWORD dwRop) {
        return ::StretchBlt(m_hDC, x, y, cx, cy, pSrcDC->GetSafeHdc(), xSrc, ySrc, cxSrc, cySrc, dwRop);
    }
    BOOL TransparentBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, int cxSrc, int cySrc,
                        UINT clrTransparent) {
        return ::GdiTransparentBlt(m_hDC, x, y, cx, cy, pSrcDC->GetSafeHdc(), xSrc, ySrc, cxSrc, cySrc, clrTransparent);
    }
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend) {
        return ::GdiAlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc,
                               nSrcWidth, nSrcHeight, blend);
    }
    BOOL MaskBlt(int x, int y, int cx, int cy, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap, int xMask,
                 int yMask, DWORD dwRop) {
        return ::MaskBlt(m_hDC, x, y, cx, cy, pSrcDC->GetSafeHdc(), xSrc, ySrc, maskBitmap, xMask, yMask, dwRop);
    }
    BOOL PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int cx, int cy, CBitmap& maskBitmap, int xMask,
                int yMask) {
        return ::PlgBlt(m_hDC, lpPoint, pSrcDC->GetSafeHdc(), xSrc, ySrc, cx, cy, maskBitmap, xMask, yMask);
    }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    BOOL SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
    BOOL SetPixelV(POINT point, COLORREF crColor) { return SetPixelV(point.x, point.y, crColor); }
    BOOL FloodFill(int x, int y, COLORREF crColor) { return ::FloodFill(m_hDC, x, y, crColor); }
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType) {
        return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
    }
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode) {
        return ::GdiGradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
    }

    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate, LPRECT lpRectUpdate) {
        return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, RegionOf(pRgnUpdate), lpRectUpdate);
    }

    // Paths.
    BOOL BeginPath() { return ::BeginPath(m_hDC); }
    BOOL EndPath() { return ::EndPath(m_hDC); }
    BOOL AbortPath() { return ::AbortPath(m_hDC); }
    BOOL CloseFigure() { return ::CloseFigure(m_hDC); }
    BOOL FillPath() { return ::FillPath(m_hDC); }
    BOOL FlattenPath() { return ::FlattenPath(m_hDC); }
    BOOL StrokePath() { return ::StrokePath(m_hDC); }
    BOOL StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }
    BOOL WidenPath() { return ::WidenPath(m_hDC); }
    float GetMiterLimit() const;
    BOOL SetMiterLimit(float fMiterLimit) { return ::SetMiterLimit(m_hDC, fMiterLimit, nullptr); }
    int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const {
        return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
    }
    BOOL SelectClipPath(int nMode);

    // Printing and metafiles.
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData) {
        return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
    }
    int Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData) {
        return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
    }
    int DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData) {
        return ::DrawEscape(m_hDC, nEscape, nInputSize, lpszInputData);
    }
    int StartDoc(LPDOCINFO lpDocInfo) { return ::StartDoc(m_hDC, lpDocInfo); }
    int StartDoc(LPCTSTR lpszDocName);
    int StartPage() { return ::StartPage(m_hDC); }
    int EndPage() { return ::EndPage(m_hDC); }
    int SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int)) { return ::SetAbortProc(m_hDC, lpfn); }
    int AbortDoc() { return ::AbortDoc(m_hDC); }
    int EndDoc() { return ::EndDoc(m_hDC); }
    BOOL PlayMetaFile(HMETAFILE hMF) { return ::PlayMetaFile(m_hDC, hMF); }
    BOOL PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds) {
        return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
    }
    BOOL AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData) {
        return ::GdiComment(m_hDC, nDataSize, pCommentData);
    }

    BOOL m_bPrinting = FALSE; // set while a view is printed

protected:
    static CGdiObject* PASCAL SelectGdiObject(HDC hDC, HGDIOBJ h);

private:
    BOOL AttachNew(HDC hDC);
    HGDIOBJ Current(UINT kind) const { return ::GetCurrentObject(m_hAttribDC, kind); }
    static HBRUSH BrushOf(const CBrush* pBrush) { return static_cast<HBRUSH>(pBrush->GetSafeHandle()); }
    static HRGN RegionOf(const CRgn* pRgn) { return static_cast<HRGN>(pRgn->GetSafeHandle()); }

    // What changes an attribute changes both contexts; the answer is the attribute context's.
    template <class Result, class Function, class... Arguments> Result Both(Function function, Arguments... arguments) {
        Result result = function(m_hDC, arguments...);
        if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC)
            result = function(m_hAttribDC, arguments...);
        return result;
    }
    template <auto function> static CPoint Moved(HDC dc, int x, int y) {
        CPoint before;
        function(dc, x, y, &before);
        return before;
    }
    template <auto function> static CSize Sized(HDC dc, int x, int y) {
        CSize before;
        function(dc, x, y, &before);
        return before;
    }
    template <auto function> static CSize Scaled(HDC dc, int xn, int xd, int yn, int yd) {
        CSize before;
        function(dc, xn, xd, yn, yd, &before);
        return before;
    }

public:
#include "afx_dc_text.h"
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
