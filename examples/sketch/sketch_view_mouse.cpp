// Drawing and moving with the mouse.
#include "dialogs.h"
#include "sketch_view.h"

#include <algorithm>
#include <cstdlib>

namespace {

CPoint within_bounds(CPoint point) {
    return CPoint(std::clamp<LONG>(point.x, -CFigure::farthest, CFigure::farthest),
                  std::clamp<LONG>(point.y, -CFigure::farthest, CFigure::farthest));
}

} // namespace

// What the drag would leave behind if it ended now; null for nothing.
FigurePtr CSketchView::Dragged() const {
    if (!dragging_ || track_.size() < 2)
        return nullptr;
    const CPoint from = track_.front(), to = track_.back();
    switch (tool_) {
    case ID_TOOL_SELECT:
        return selected_ ? FigurePtr(selected_->Moved(to - from)) : nullptr;
    case ID_TOOL_LINE:
        return std::make_shared<CLineFigure>(from, to, style_);
    case ID_TOOL_RECTANGLE:
        return std::make_shared<CRectangleFigure>(from, to, style_);
    case ID_TOOL_ELLIPSE:
        return std::make_shared<CEllipseFigure>(from, to, style_);
    case ID_TOOL_FREE_HAND:
        return std::make_shared<CFreeHandFigure>(track_, style_);
    default:
        return nullptr;
    }
}

void CSketchView::InvalidateDragged(const FigurePtr& before) {
    for (const FigurePtr& figure : {before, Dragged()})
        if (figure)
            InvalidateRect(OnScreen(figure->Bounds()));
}

void CSketchView::OnLButtonDown(UINT, CPoint point) {
    const CPoint at = within_bounds(ToSheet(point));
    if (tool_ == ID_TOOL_TEXT) {
        AskForText(at, nullptr);
        return;
    }
    if (tool_ == ID_TOOL_SELECT)
        Select(Doc().Contents().At(at, Reach()));
    track_ = {at};
    dragging_ = true;
    SetCapture();
}

void CSketchView::OnMouseMove(UINT, CPoint point) {
    pointer_ = within_bounds(ToSheet(point));
    if (!dragging_ || pointer_ == track_.back())
        return;
    const FigurePtr before = Dragged();
    const bool all = tool_ == ID_TOOL_FREE_HAND && track_.size() < CFreeHandFigure::most_points;
    if (!all && track_.size() > 1)
        track_.pop_back();
    track_.push_back(pointer_);
    if (!before && selected_)
        InvalidateRect(OnScreen(selected_->Bounds())); // where it leaves
    InvalidateDragged(before);
}

void CSketchView::OnLButtonUp(UINT flags, CPoint point) {
    if (!dragging_)
        return;
    OnMouseMove(flags, point);
    const FigurePtr made = Dragged();
    const FigurePtr moved = tool_ == ID_TOOL_SELECT ? selected_ : nullptr;
    dragging_ = false;
    ReleaseCapture();
    if (!made)
        return;
    if (moved) {
        selected_ = made;
        Doc().Replace(moved, made);
    } else {
        Doc().Add(made);
    }
}

// Another window took the mouse, or the user thought better of it.
void CSketchView::OnCaptureChanged(CWnd*) {
    if (!dragging_)
        return;
    dragging_ = false;
    Invalidate();
}

void CSketchView::OnCancel() {
    if (dragging_)
        ReleaseCapture();
    else
        Select(nullptr);
}

void CSketchView::OnLButtonDblClk(UINT flags, CPoint point) {
    const FigurePtr figure = tool_ == ID_TOOL_SELECT ? Doc().Contents().At(ToSheet(point), Reach()) : nullptr;
    if (dynamic_cast<const CTextFigure*>(figure.get()))
        AskForText(figure->Bounds().TopLeft(), figure);
    else
        OnLButtonDown(flags, point);
}

// For a new text, or for one that is there.
void CSketchView::AskForText(CPoint at, const FigurePtr& present) {
    const auto* before = static_cast<const CTextFigure*>(present.get());
    CTextDialog dialog(before ? before->GetText() : CString(), before ? before->Height() : text_height_);
    if (dialog.DoModal() != IDOK || dialog.GetText().IsEmpty())
        return;
    text_height_ = dialog.Height();
    auto text = std::make_shared<CTextFigure>(at, text_height_, dialog.GetText(), before ? before->Style() : style_);
    if (before) {
        selected_ = text;
        Doc().Replace(present, text);
    } else {
        Doc().Add(text);
    }
}

BOOL CSketchView::OnMouseWheel(UINT flags, short delta, CPoint point) {
    if (!(flags & MK_CONTROL))
        return CScrollView::OnMouseWheel(flags, delta, point);
    OnZoom(delta > 0 ? ID_ZOOM_IN : ID_ZOOM_OUT);
    return TRUE;
}

BOOL CSketchView::OnSetCursor(CWnd* window, UINT hit, UINT message) {
    if (hit != HTCLIENT || tool_ == ID_TOOL_SELECT)
        return CScrollView::OnSetCursor(window, hit, message);
    ::SetCursor(::LoadCursor(nullptr, tool_ == ID_TOOL_TEXT ? IDC_IBEAM : IDC_CROSS));
    return TRUE;
}
