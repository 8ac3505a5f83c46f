#pragma once

#include <afxwin.h>

namespace wnt {

/// Draws through somebody else's device context, of which neither the framework's maps nor its deletion must know.
class BorrowedContext : public CDC {
public:
    explicit BorrowedContext(HDC dc) { m_hDC = m_hAttribDC = dc; }
    ~BorrowedContext() override { m_hDC = m_hAttribDC = nullptr; }
};

} // namespace wnt
