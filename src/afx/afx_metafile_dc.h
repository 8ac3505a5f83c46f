// Device contexts that record; included by afxext.h.
#pragma once

#include "afx_dc.h"

// Output is recorded; attributes are asked of the context that SetAttribDC names, without which no question about them
// has an answer. A recording that is not closed goes with the object.
class ZOPAFX_API CMetaFileDC : public CDC {
    DECLARE_DYNAMIC(CMetaFileDC)

public:
    CMetaFileDC();
    ~CMetaFileDC() override;

    // A null name keeps the recording in memory.
    BOOL Create(LPCTSTR lpszFilename = nullptr);
    BOOL CreateEnhanced(CDC* pDCRef, LPCTSTR lpszFileName, LPCRECT lpBounds, LPCTSTR lpszDescription);
    // The recording is the caller's.
    HMETAFILE Close() { return ::CloseMetaFile(Detach()); }
    HENHMETAFILE CloseEnhanced() { return ::CloseEnhMetaFile(Detach()); }

    void SetAttribDC(HDC hDC) override;
    BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) override;
    using CDC::TextOut;

private:
    BOOL Record(HDC hDC);
};
