// Where the controls of a window go, and how large they get, when the window gets another size.
#pragma once

#include "afxwin.h"

#include <vector>

// Ratios are per cent of the window's change of width (x) and height (y). Positions are in pixels of the host's client
// area. It holds no windows: items of windows that are gone are left out.
class ZOPAFX_API CMFCDynamicLayout : public CObject {
    DECLARE_DYNAMIC(CMFCDynamicLayout)

public:
    struct MoveSettings {
        BOOL IsHorizontal() const { return m_nXRatio != 0; }
        BOOL IsVertical() const { return m_nYRatio != 0; }
        BOOL IsNone() const { return !IsHorizontal() && !IsVertical(); }
        int m_nXRatio = 0, m_nYRatio = 0;
    };
    struct SizeSettings {
        BOOL IsHorizontal() const { return m_nXRatio != 0; }
        BOOL IsVertical() const { return m_nYRatio != 0; }
        BOOL IsNone() const { return !IsHorizontal() && !IsVertical(); }
        int m_nXRatio = 0, m_nYRatio = 0;
    };
    static MoveSettings MoveNone() { return {}; }
    static MoveSettings MoveHorizontal(int nRatio) { return {nRatio, 0}; }
    static MoveSettings MoveVertical(int nRatio) { return {0, nRatio}; }
    static MoveSettings MoveHorizontalAndVertical(int nXRatio, int nYRatio) { return {nXRatio, nYRatio}; }
    static SizeSettings SizeNone() { return {}; }
    static SizeSettings SizeHorizontal(int nRatio) { return {nRatio, 0}; }
    static SizeSettings SizeVertical(int nRatio) { return {0, nRatio}; }
    static SizeSettings SizeHorizontalAndVertical(int nXRatio, int nYRatio) { return {nXRatio, nYRatio}; }

    CMFCDynamicLayout() = default;

    // Forgets all items; the least size becomes the size of the host's client area. FALSE without a window.
    BOOL Create(CWnd* pHostWnd);
    CWnd* GetHostWnd() { return m_host; }
    // From where the child is, and from the size that the host has now. FALSE for what is no child of the host; a child
    // that is an item already begins anew.
    BOOL AddItem(HWND hwnd, MoveSettings moveSettings = MoveNone(), SizeSettings sizeSettings = SizeNone());
    BOOL AddItem(UINT nID, MoveSettings moveSettings = MoveNone(), SizeSettings sizeSettings = SizeNone());
    BOOL HasItem(HWND hwnd);
    BOOL IsEmpty() const { return m_items.empty(); }
    // Places all items by the host's size.
    void Adjust();

    // The size of the client area below which the items stay as they are at that size.
    CSize GetMinSize() const { return m_least; }
    void SetMinSize(const CSize& size) { m_least = size; }
    // The area that is laid out: the client area, moved by what the host is scrolled.
    void GetHostWndRect(CRect& rect) const;

    // A layout for the host by a resource's bytes: a WORD that is 0, then for each child, in their order, the ratios of
    // its move and of its size. FALSE, and nothing changed, where the bytes are none.
    static BOOL LoadResource(CWnd* pHostWnd, LPVOID lpResource, DWORD dwSize);

private:
    struct item {
        HWND window;
        CRect place; // when it was added
        CSize host;  // likewise
        MoveSettings move;
        SizeSettings size;
    };
    CRect PlaceOf(const item& of, const CRect& area) const;

    CWnd* m_host = nullptr;
    std::vector<item> m_items;
    CSize m_least{0, 0};
};
