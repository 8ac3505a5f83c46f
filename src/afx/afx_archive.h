// Archives: a file together with the direction in which objects serialise themselves.
#pragma once

#include "afx_file.h"

// Nothing is read or written through it. The file stays the caller's and is not closed with the archive.
class ZOPAFX_API CArchive {
public:
    enum Mode : UINT { store = 0, load = 1 };

    CArchive(CFile* pFile, UINT nMode) : m_pFile(pFile), m_nMode(nMode) {}
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return (m_nMode & load) == 0; }
    CFile* GetFile() const { return m_pFile; }
    // Whatever was stored is in the file afterwards.
    void Flush();
    void Close() { Flush(); }

    class CDocument* m_pDocument = nullptr; // where the file is a document's

private:
    CFile* m_pFile;
    UINT m_nMode;
};
