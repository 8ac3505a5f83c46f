#pragma once

#include "drawing.h"

/// The program's document: a drawing, its changes told to the views.
class CSketchDoc : public CDocument {
    DECLARE_DYNCREATE(CSketchDoc)

public:
    const Drawing& Contents() const { return drawing_; }
    void Add(FigurePtr figure);
    void Replace(const FigurePtr& figure, FigurePtr other);
    void Remove(const FigurePtr& figure);

    BOOL IsModified() override { return drawing_.IsModified(); }
    void SetModifiedFlag(BOOL modified = TRUE) override;
    void DeleteContents() override;
    void Serialize(CArchive& archive) override;

protected:
    CSketchDoc() = default;
    afx_msg void OnEditUndo();
    afx_msg void OnUpdateEditUndo(CCmdUI* ui);
    afx_msg void OnEditRedo();
    afx_msg void OnUpdateEditRedo(CCmdUI* ui);
    afx_msg void OnPageSetup();
    DECLARE_MESSAGE_MAP()

private:
    Drawing drawing_;
};
