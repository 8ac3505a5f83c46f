#include "afx_metafile_dc.h"

IMPLEMENT_DYNAMIC(CMetaFileDC, CDC)

CMetaFileDC::CMetaFileDC() = default;

CMetaFileDC::~CMetaFileDC() {
    if (m_hDC == nullptr)
        return;
    if (::GetObjectType(m_hDC) == OBJ_ENHMETADC)
        ::DeleteEnhMetaFile(CloseEnhanced());
    else
        ::DeleteMetaFile(Close());
}

BOOL CMetaFileDC::Record(HDC hDC) {
    if (!Attach(hDC))
        return FALSE;
    m_hAttribDC = nullptr; // a recording has no attributes to tell
    return TRUE;
}

BOOL CMetaFileDC::Create(LPCTSTR lpszFilename) {
    return m_hDC == nullptr && Record(::CreateMetaFile(lpszFilename));
}

BOOL CMetaFileDC::CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds, LPCTSTR lpszDescription) {
    const HDC reference = pDCRef != nullptr ? pDCRef->m_hAttribDC : nullptr;
    return m_hDC == nullptr && Record(::CreateEnhMetaFile(reference, lpszFileName, lpBounds, lpszDescription));
}

void CMetaFileDC::SetAttribDC(HDC hDC) {
    if (hDC != m_hDC)
        CDC::SetAttribDC(hDC);
}

// The context with the attributes learns where the text has ended.
BOOL CMetaFileDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    if (m_hAttribDC != nullptr && (GetTextAlign() & TA_UPDATECP) != 0) {
        const CPoint at = GetCurrentPosition();
        ::MoveToEx(m_hAttribDC, at.x + GetTextExtent(lpszString, nCount).cx, at.y, nullptr);
    }
    return CDC::TextOut(x, y, lpszString, nCount);
}
