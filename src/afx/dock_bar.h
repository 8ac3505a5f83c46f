// The side of a frame that bars are docked to: rows of bars.
#pragma once

#include "afx_control_bar.h"

#include <vector>

class CDockBar : public CControlBar {
    DECLARE_DYNAMIC(CDockBar)

public:
    struct docked {
        CControlBar* bar;
        int at; // along the row, where there is room
    };
    typedef std::vector<docked> row;

    BOOL Create(CFrameWnd* frame, DWORD style, UINT id);
    BOOL IsDockBar() const override { return TRUE; }
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}

    // rect: where on the screen the bar would be; null: in a row of its own.
    void Dock(CControlBar* bar, LPCRECT rect);
    void DockInRow(CControlBar* bar, std::size_t index, int at);
    void Append(CControlBar* bar, std::size_t index, int at);
    void Remove(const CControlBar* bar);
    // Where the bar lies; left alone where it does not.
    void PlaceOf(const CControlBar* bar, int& row, int& at) const;
    const std::vector<row>& rows() const { return m_rows; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void DoPaint(CDC* dc) override;

private:
    struct extent {
        int length, depth;
    };
    extent LayRow(row& bars, int depth, int room);
    std::size_t RowAt(const CRect& rect, bool& fresh) const;

    std::vector<row> m_rows;
};
