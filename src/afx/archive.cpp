#include "afx_archive.h"

void CArchive::Flush() {
    if (IsStoring())
        m_pFile->Flush();
}
