#include "atlimage.h"

namespace ATL {

namespace {

// The image's context for one operation.
class source_dc {
public:
    explicit source_dc(const CImage& image) : m_image(image), m_dc(image.GetDC()) {}
    ~source_dc() {
        if (m_dc != nullptr)
            m_image.ReleaseDC();
    }
    source_dc(const source_dc&) = delete;
    source_dc& operator=(const source_dc&) = delete;
    operator HDC() const { return m_dc; }

private:
    const CImage& m_image;
    HDC m_dc;
};

} // namespace

HDC CImage::GetDC() const {
    if (m_hDC == nullptr && m.bitmap != nullptr) {
        m_hDC = ::CreateCompatibleDC(nullptr);
        m_hBefore = ::SelectObject(m_hDC, m.bitmap);
        if (m_hBefore == nullptr) { // another context holds it
            ::DeleteDC(m_hDC);
            m_hDC = nullptr;
        }
    }
    if (m_hDC != nullptr)
        ++m_nDCUses;
    return m_hDC;
}

void CImage::ReleaseDC() const {
    if (m_hDC == nullptr || --m_nDCUses > 0)
        return;
    ::SelectObject(m_hDC, m_hBefore);
    ::DeleteDC(m_hDC);
    m_hDC = nullptr;
}

BOOL CImage::Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc, int nSrcWidth,
                  int nSrcHeight) const {
    if (m.alpha)
        return AlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth, nSrcHeight);
    if (m.transparent >= 0)
        return TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth, nSrcHeight);
    return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth, nSrcHeight);
}

BOOL CImage::BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                    DWORD dwROP) const {
    const source_dc source(*this);
    return source != nullptr && ::BitBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, source, xSrc, ySrc, dwROP);
}

BOOL CImage::StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                        int nSrcWidth, int nSrcHeight, DWORD dwROP) const {
    const source_dc source(*this);
    return source != nullptr && ::StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, source, xSrc, ySrc,
                                             nSrcWidth, nSrcHeight, dwROP);
}

BOOL CImage::TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                            int nSrcWidth, int nSrcHeight, UINT crTransparent) const {
    if (crTransparent == CLR_INVALID) {
        if (m.transparent < 0)
            return FALSE;
        RGBQUAD colour{};
        GetColorTable(static_cast<UINT>(m.transparent), 1, &colour);
        crTransparent = RGB(colour.rgbRed, colour.rgbGreen, colour.rgbBlue);
    }
    const source_dc source(*this);
    return source != nullptr && ::GdiTransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, source, xSrc, ySrc,
                                                    nSrcWidth, nSrcHeight, crTransparent);
}

BOOL CImage::AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                        int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha, BYTE bBlendOp) const {
    if (m.straight) {
        CImage drawn;
        if (!drawn.Create(m.width, m.height, 32, createAlphaChannel) || !CopyColours(drawn))
            return FALSE;
        drawn.Multiply();
        return drawn.AlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, xSrc, ySrc, nSrcWidth, nSrcHeight,
                                bSrcAlpha, bBlendOp);
    }
    const BLENDFUNCTION blend{bBlendOp, 0, bSrcAlpha, static_cast<BYTE>(m.alpha ? AC_SRC_ALPHA : 0)};
    const source_dc source(*this);
    return source != nullptr && ::GdiAlphaBlend(hDestDC, xDest, yDest, nDestWidth, nDestHeight, source, xSrc, ySrc,
                                                nSrcWidth, nSrcHeight, blend);
}

BOOL CImage::MaskBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                     HBITMAP hbmMask, int xMask, int yMask, DWORD dwROP) const {
    const source_dc source(*this);
    return source != nullptr &&
           ::MaskBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, source, xSrc, ySrc, hbmMask, xMask, yMask, dwROP);
}

BOOL CImage::PlgBlt(HDC hDestDC, const POINT* pPoints, int xSrc, int ySrc, int nSrcWidth, int nSrcHeight,
                    HBITMAP hbmMask, int xMask, int yMask) const {
    const source_dc source(*this);
    return source != nullptr && pPoints != nullptr &&
           ::PlgBlt(hDestDC, pPoints, source, xSrc, ySrc, nSrcWidth, nSrcHeight, hbmMask, xMask, yMask);
}

bool CImage::CopyColours(CImage& copy) const {
    const HDC to = copy.GetDC();
    const bool copied = to != nullptr && BitBlt(to, 0, 0);
    copy.ReleaseDC();
    return copied;
}

void CImage::Multiply() {
    ::GdiFlush();
    for (int y = 0; y < m.height; ++y) {
        BYTE* const row = Row(y);
        for (BYTE* pixel = row; pixel < row + m.width * 4; pixel += 4)
            for (int i = 0; i < 3; ++i)
                pixel[i] = static_cast<BYTE>((pixel[i] * pixel[3] + 127) / 255);
    }
}

} // namespace ATL
