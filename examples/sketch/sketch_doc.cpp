#include "sketch_doc.h"

#include "dialogs.h"
#include "resource.h"

#include <utility>

IMPLEMENT_DYNCREATE(CSketchDoc, CDocument)

BEGIN_MESSAGE_MAP(CSketchDoc, CDocument)
ON_COMMAND(ID_EDIT_UNDO, &CSketchDoc::OnEditUndo)
ON_UPDATE_COMMAND_UI(ID_EDIT_UNDO, &CSketchDoc::OnUpdateEditUndo)
ON_COMMAND(ID_EDIT_REDO, &CSketchDoc::OnEditRedo)
ON_UPDATE_COMMAND_UI(ID_EDIT_REDO, &CSketchDoc::OnUpdateEditRedo)
ON_COMMAND(ID_FILE_PAGE_SETUP, &CSketchDoc::OnPageSetup)
END_MESSAGE_MAP()

void CSketchDoc::Add(FigurePtr figure) {
    drawing_.Add(std::move(figure));
    UpdateAllViews(nullptr);
}

void CSketchDoc::Replace(const FigurePtr& figure, FigurePtr other) {
    drawing_.Replace(figure, std::move(other));
    UpdateAllViews(nullptr);
}

void CSketchDoc::Remove(const FigurePtr& figure) {
    drawing_.Remove(figure);
    UpdateAllViews(nullptr);
}

// The drawing knows by itself what was changed: the framework only tells when it was saved.
void CSketchDoc::SetModifiedFlag(BOOL modified) {
    if (!modified)
        drawing_.SetSaved();
}

void CSketchDoc::DeleteContents() {
    drawing_.Clear();
    CDocument::DeleteContents();
}

void CSketchDoc::Serialize(CArchive& archive) {
    drawing_.Serialize(archive);
}

void CSketchDoc::OnEditUndo() {
    drawing_.Undo();
    UpdateAllViews(nullptr);
}

void CSketchDoc::OnUpdateEditUndo(CCmdUI* ui) {
    ui->Enable(drawing_.CanUndo());
}

void CSketchDoc::OnEditRedo() {
    drawing_.Redo();
    UpdateAllViews(nullptr);
}

void CSketchDoc::OnUpdateEditRedo(CCmdUI* ui) {
    ui->Enable(drawing_.CanRedo());
}

void CSketchDoc::OnPageSetup() {
    CSheetDialog dialog(drawing_.Sheet());
    if (dialog.DoModal() != IDOK)
        return;
    drawing_.SetSheet(dialog.Sheet());
    UpdateAllViews(nullptr);
}
