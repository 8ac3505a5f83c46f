#pragma once

#include "resource.h"
#include "sketch_doc.h"

/// Shows the drawing and lets the user draw. What it shows is put together in memory and copied to the window.
class CSketchView : public CScrollView {
    DECLARE_DYNCREATE(CSketchView)

protected:
    CSketchView() = default;
    CSketchDoc& Doc() const { return *static_cast<CSketchDoc*>(m_pDocument); }

    void OnInitialUpdate() override;
    void OnUpdate(CView* sender, LPARAM hint, CObject* what) override;
    void OnDraw(CDC* dc) override;
    BOOL OnPreparePrinting(CPrintInfo* info) override;
    void OnPrint(CDC* dc, CPrintInfo* info) override;

    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; } // every pixel is copied from memory
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message);
    afx_msg void OnCancel();

    afx_msg void OnTool(UINT id);
    afx_msg void OnUpdateTool(CCmdUI* ui);
    afx_msg void OnPattern(UINT id);
    afx_msg void OnUpdatePattern(CCmdUI* ui);
    afx_msg void OnWidth(UINT id);
    afx_msg void OnUpdateWidth(CCmdUI* ui);
    afx_msg void OnFilled();
    afx_msg void OnUpdateFilled(CCmdUI* ui);
    afx_msg void OnLineColour(NMHDR* header, LRESULT* result);
    afx_msg void OnFillColour(NMHDR* header, LRESULT* result);
    afx_msg void OnZoom(UINT id);
    afx_msg void OnUpdateZoom(CCmdUI* ui);
    afx_msg void OnEditClear();
    afx_msg void OnEditCopy();
    afx_msg void OnUpdateSelected(CCmdUI* ui);
    afx_msg void OnUpdateCopy(CCmdUI* ui);
    afx_msg void OnUpdatePosition(CCmdUI* ui);
    afx_msg void OnUpdateZoomText(CCmdUI* ui);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int desk = 12; // pixels around the sheet
    static constexpr double units_per_inch = 254;

    double Scale() const;
    CSize SheetPixels() const;
    void SetZoom(int percent);
    void FitZoom();
    CPoint ToSheet(CPoint client);
    int Reach() const;
    CRect OnScreen(const CRect& box);

    FigureStyle CurrentStyle() const { return selected_ ? selected_->Style() : style_; }
    void ChangeStyle(const FigureStyle& style);
    void Select(FigurePtr figure);

    FigurePtr Dragged() const;
    void Paint(CDC& memory, const CRect& part) const;
    void InvalidateDragged(const FigurePtr& before);
    void AskForText(CPoint at, const FigurePtr& present);

    UINT tool_ = ID_TOOL_LINE;
    FigureStyle style_;
    int fill_colour_ = 3; // taken when filling is switched on
    int text_height_ = 100;
    int zoom_ = 100;
    FigurePtr selected_;

    bool dragging_ = false;
    std::vector<CPoint> track_; // where the pointer was since the button went down: the first, and the last or all
    CPoint pointer_;            // on the sheet
};
