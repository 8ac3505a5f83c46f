#include "dock_bar.h"
#include "afx_frame.h"
#include "afxmsg_.h"
#include "afxpriv.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CDockBar, CControlBar)

namespace {

CSize size_of(CControlBar& bar, bool horizontal) {
    DWORD mode = horizontal ? LM_HORZ | LM_HORZDOCK : LM_VERTDOCK;
    if (bar.IsFloating())
        mode = horizontal ? LM_HORZ | LM_MRUWIDTH : 0;
    return bar.CalcDynamicLayout(-1, mode | LM_COMMIT);
}

} // namespace

BOOL CDockBar::Create(CFrameWnd* frame, DWORD style, UINT id) {
    m_bAutoDelete = TRUE;
    m_dwStyle = style;
    SetBorders();
    const LPCTSTR name =
        AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    return CWnd::Create(name, nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, 0, 0), frame, id);
}

BOOL CDockBar::PreCreateWindow(CREATESTRUCT& cs) {
    return CControlBar::PreCreateWindow(cs);
}

void CDockBar::DoPaint(CDC*) {} // the bars are all there is to see

// Places the bars of a row one behind the other, each where it wants to be unless another is there.
CDockBar::extent CDockBar::LayRow(row& bars, int depth, int room) {
    const bool horizontal = IsHorizontal();
    extent total{0, 0};
    for (docked& one : bars) {
        if (!one.bar->IsVisible())
            continue;
        const CSize size = size_of(*one.bar, horizontal);
        const int length = horizontal ? size.cx : size.cy;
        int at = std::max(total.length, std::min(one.at, room - length));
        const CRect rect(horizontal ? CPoint(at, depth) : CPoint(depth, at), size);
        CRect before;
        one.bar->GetWindowRect(before);
        ScreenToClient(&before);
        if (!::EqualRect(&before, &rect))
            one.bar->SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                                  SWP_NOZORDER | SWP_NOACTIVATE);
        total.length = at + length;
        total.depth = std::max<int>(total.depth, horizontal ? size.cy : size.cx);
    }
    return total;
}

CSize CDockBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    if (m_pDockSite == nullptr)
        return CSize(0, 0);
    CRect client;
    m_pDockSite->GetClientRect(client);
    constexpr int endless = 32767;
    const int docked_room = bHorz ? client.Width() : client.Height(), room = IsFloating() ? endless : docked_room;
    extent all{0, 0};
    for (row& bars : m_rows) {
        for (const docked& one : bars)
            one.bar->Undelay();
        const extent line = LayRow(bars, all.depth, room);
        all.length = std::max(all.length, line.length);
        all.depth += line.depth;
    }
    if (bStretch)
        all.length = endless;
    return bHorz ? CSize(all.length, all.depth) : CSize(all.depth, all.length);
}

void CDockBar::Remove(const CControlBar* bar) {
    for (row& bars : m_rows)
        std::erase_if(bars, [bar](const docked& one) { return one.bar == bar; });
    std::erase_if(m_rows, [](const row& bars) { return bars.empty(); });
}

// The row that the middle of the rectangle lies in; fresh: between rows, or outside.
std::size_t CDockBar::RowAt(const CRect& rect, bool& fresh) const {
    const bool horizontal = IsHorizontal();
    const CPoint middle = rect.CenterPoint();
    const int at = horizontal ? middle.y : middle.x;
    fresh = true;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        int least = 0x7FFF, most = -0x7FFF;
        for (const docked& one : m_rows[i]) {
            CRect bar;
            one.bar->GetWindowRect(bar);
            ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(&bar), 2);
            least = std::min<int>(least, horizontal ? bar.top : bar.left);
            most = std::max<int>(most, horizontal ? bar.bottom : bar.right);
        }
        if (at < least)
            return i;
        if (at < most) {
            fresh = false;
            return i;
        }
    }
    return m_rows.size();
}

void CDockBar::Dock(CControlBar* bar, LPCRECT rect) {
    if (rect == nullptr) {
        m_rows.push_back({{bar, 0}});
        return;
    }
    CRect place = *rect;
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(&place), 2);
    bool fresh = false;
    const std::size_t index = RowAt(place, fresh);
    if (fresh)
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(index), row());
    DockInRow(bar, index, IsHorizontal() ? place.left : place.top);
}

// Behind all others of the row.
void CDockBar::Append(CControlBar* bar, std::size_t index, int at) {
    if (m_rows.size() <= index)
        m_rows.emplace_back();
    m_rows[std::min(index, m_rows.size() - 1)].push_back({bar, std::max(at, 0)});
}

void CDockBar::DockInRow(CControlBar* bar, std::size_t index, int at) {
    while (m_rows.size() <= index)
        m_rows.emplace_back();
    const bool horizontal = IsHorizontal();
    row& bars = m_rows[index];
    const auto behind = std::find_if(bars.begin(), bars.end(), [&](const docked& other) {
        CRect rect;
        other.bar->GetWindowRect(rect);
        ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(&rect), 2);
        return at < std::max<int>(other.at, horizontal ? rect.left : rect.top);
    });
    bars.insert(behind, {bar, std::max(at, 0)});
}

void CDockBar::PlaceOf(const CControlBar* bar, int& row, int& at) const {
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        for (const docked& one : m_rows[i]) {
            if (one.bar == bar)
                row = static_cast<int>(i), at = one.at;
        }
    }
}
