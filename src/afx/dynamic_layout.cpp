#include "afxlayout.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CMFCDynamicLayout, CObject)

namespace {

using MoveSettings = CMFCDynamicLayout::MoveSettings;
using SizeSettings = CMFCDynamicLayout::SizeSettings;

// The share of a change; what is beyond the platform's coordinates stays at their end.
int moved_by(int from, int change, int ratio) {
    const long long to = from + static_cast<long long>(change) * std::clamp(ratio, -10000, 10000) / 100;
    return static_cast<int>(std::clamp(to, -32768LL, 32767LL));
}

bool drops_down(HWND window) {
    char name[16] = {};
    ::GetClassName(window, name, sizeof name);
    return ::lstrcmpi(name, "ComboBox") == 0 && (::GetWindowLong(window, GWL_STYLE) & 3) != CBS_SIMPLE;
}

int dropped_height(HWND box) {
    CRect dropped;
    ::SendMessage(box, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
    return dropped.Height();
}

// The height that a box which drops down is given is its list's as well, however the platform counts it.
class kept_list {
public:
    explicit kept_list(HWND box) : box_(box), height_(dropped_height(box)) {}
    void restore() const {
        const int lost = height_ - dropped_height(box_);
        CRect field;
        ::GetWindowRect(box_, &field);
        if (lost != 0)
            ::SetWindowPos(box_, nullptr, 0, 0, field.Width(), field.Height() + lost,
                           SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    }

private:
    HWND box_;
    int height_;
};

// A child's four ratios, each in a word of its own, or two in a word.
struct ratios {
    MoveSettings move;
    SizeSettings size;
};

std::vector<ratios> read_ratios(const BYTE* bytes, DWORD size) {
    std::vector<WORD> words;
    for (DWORD at = 0; at + 2 <= size; at += 2)
        words.push_back(MAKEWORD(bytes[at], bytes[at + 1]));
    if (words.empty() || words.front() != 0)
        return {};
    words.erase(words.begin());
    const bool packed = std::any_of(words.begin(), words.end(), [](WORD word) { return HIBYTE(word) != 0; });
    std::vector<int> values;
    for (const WORD word : words)
        if (packed)
            values.insert(values.end(), {LOBYTE(word), HIBYTE(word)});
        else
            values.push_back(word);
    std::vector<ratios> result;
    for (std::size_t at = 0; at + 4 <= values.size(); at += 4)
        result.push_back({{values[at], values[at + 1]}, {values[at + 2], values[at + 3]}});
    return result;
}

} // namespace

BOOL CMFCDynamicLayout::Create(CWnd* pHostWnd) {
    m_items.clear();
    m_least = CSize(0, 0);
    m_host = pHostWnd != nullptr && ::IsWindow(pHostWnd->m_hWnd) ? pHostWnd : nullptr;
    if (m_host == nullptr)
        return FALSE;
    CRect area;
    GetHostWndRect(area);
    m_least = area.Size();
    return TRUE;
}

void CMFCDynamicLayout::GetHostWndRect(CRect& rect) const {
    rect.SetRectEmpty();
    if (m_host == nullptr || !::GetClientRect(m_host->m_hWnd, &rect))
        return;
    const DWORD style = m_host->GetStyle();
    rect.OffsetRect((style & WS_HSCROLL) != 0 ? -::GetScrollPos(m_host->m_hWnd, SB_HORZ) : 0,
                    (style & WS_VSCROLL) != 0 ? -::GetScrollPos(m_host->m_hWnd, SB_VERT) : 0);
}

BOOL CMFCDynamicLayout::AddItem(HWND hwnd, MoveSettings moveSettings, SizeSettings sizeSettings) {
    if (m_host == nullptr || hwnd == nullptr || ::GetAncestor(hwnd, GA_PARENT) != m_host->m_hWnd)
        return FALSE;
    std::erase_if(m_items, [&](const item& i) { return i.window == hwnd; });
    CRect area, place;
    GetHostWndRect(area);
    ::GetWindowRect(hwnd, &place);
    m_host->ScreenToClient(&place);
    place.OffsetRect(-area.left, -area.top);
    m_items.push_back({hwnd, place, area.Size(), moveSettings, sizeSettings});
    return TRUE;
}

BOOL CMFCDynamicLayout::AddItem(UINT nID, MoveSettings moveSettings, SizeSettings sizeSettings) {
    return m_host != nullptr &&
           AddItem(::GetDlgItem(m_host->m_hWnd, static_cast<int>(nID)), moveSettings, sizeSettings);
}

BOOL CMFCDynamicLayout::HasItem(HWND hwnd) {
    return std::any_of(m_items.begin(), m_items.end(), [&](const item& i) { return i.window == hwnd; });
}

CRect CMFCDynamicLayout::PlaceOf(const item& of, const CRect& area) const {
    const int wider = std::max<int>(area.Width(), m_least.cx) - of.host.cx;
    const int higher = std::max<int>(area.Height(), m_least.cy) - of.host.cy;
    const CPoint at(moved_by(of.place.left, wider, of.move.m_nXRatio),
                    moved_by(of.place.top, higher, of.move.m_nYRatio));
    const CSize size(std::max(0, moved_by(of.place.Width(), wider, of.size.m_nXRatio)),
                     std::max(0, moved_by(of.place.Height(), higher, of.size.m_nYRatio)));
    return CRect(at + area.TopLeft(), size);
}

void CMFCDynamicLayout::Adjust() {
    if (m_host == nullptr || ::IsIconic(m_host->m_hWnd))
        return;
    std::erase_if(m_items, [&](const item& i) { return ::GetAncestor(i.window, GA_PARENT) != m_host->m_hWnd; });
    CRect area;
    GetHostWndRect(area);
    std::vector<kept_list> lists;
    HDWP places = ::BeginDeferWindowPos(static_cast<int>(m_items.size()));
    for (const item& i : m_items) {
        const CRect place = PlaceOf(i, area);
        const UINT flags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER | (i.size.IsNone() ? SWP_NOSIZE : 0U);
        if (!i.size.IsNone() && drops_down(i.window))
            lists.emplace_back(i.window);
        if (places != nullptr)
            places = ::DeferWindowPos(places, i.window, nullptr, place.left, place.top, place.Width(), place.Height(),
                                      flags);
    }
    if (places != nullptr)
        ::EndDeferWindowPos(places);
    for (const kept_list& list : lists)
        list.restore();
}

BOOL CMFCDynamicLayout::LoadResource(CWnd* pHostWnd, LPVOID lpResource, DWORD dwSize) {
    if (pHostWnd == nullptr || !::IsWindow(pHostWnd->m_hWnd) || lpResource == nullptr)
        return FALSE;
    const std::vector<ratios> of_children = read_ratios(static_cast<const BYTE*>(lpResource), dwSize);
    if (of_children.empty())
        return FALSE;
    pHostWnd->EnableDynamicLayout(FALSE);
    pHostWnd->EnableDynamicLayout(TRUE);
    HWND child = ::GetWindow(pHostWnd->m_hWnd, GW_CHILD);
    for (const ratios& r : of_children) {
        if (child == nullptr)
            break;
        if (!r.move.IsNone() || !r.size.IsNone())
            pHostWnd->GetDynamicLayout()->AddItem(child, r.move, r.size);
        child = ::GetWindow(child, GW_HWNDNEXT);
    }
    return TRUE;
}

void CWnd::EnableDynamicLayout(BOOL bEnable) {
    if (!bEnable)
        delete std::exchange(m_pDynamicLayout, nullptr);
    else if (m_pDynamicLayout == nullptr) {
        m_pDynamicLayout = new CMFCDynamicLayout;
        InitDynamicLayout();
    }
}

// A layout that was asked for before there was a window.
void CWnd::InitDynamicLayout() {
    if (m_pDynamicLayout != nullptr && m_pDynamicLayout->GetHostWnd() == nullptr && ::IsWindow(m_hWnd))
        m_pDynamicLayout->Create(this);
}

void CWnd::ResizeDynamicLayout() {
    if (m_pDynamicLayout == nullptr)
        return;
    InitDynamicLayout();
    m_pDynamicLayout->Adjust();
}
