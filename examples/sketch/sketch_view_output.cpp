// The drawing on the screen, on paper and on the clipboard.
#include "sketch_view.h"

#include <algorithm>
#include <cmath>

namespace {

// A bitmap in memory that is drawn on.
class MemoryPicture {
public:
    MemoryPicture(CDC& like, CSize size) {
        if (!dc_.CreateCompatibleDC(&like) || !bitmap_.CreateCompatibleBitmap(&like, size.cx, size.cy))
            AfxThrowResourceException();
        before_ = dc_.SelectObject(&bitmap_);
    }
    ~MemoryPicture() { dc_.SelectObject(before_); }
    CDC& Context() { return dc_; }
    HBITMAP Take() {
        dc_.SelectObject(before_);
        return static_cast<HBITMAP>(bitmap_.Detach());
    }

private:
    CDC dc_;
    CBitmap bitmap_;
    CBitmap* before_ = nullptr;
};

} // namespace

void CSketchView::OnDraw(CDC* dc) {
    CRect part;
    dc->GetClipBox(part);
    if (part.IsRectEmpty())
        return;
    MemoryPicture picture(*dc, part.Size());
    Paint(picture.Context(), part);
    dc->BitBlt(part.left, part.top, part.Width(), part.Height(), &picture.Context(), 0, 0, SRCCOPY);
}

// The figure that is dragged takes the place of the one it was.
void CSketchView::Paint(CDC& memory, const CRect& part) const {
    const Drawing& drawing = Doc().Contents();
    const CSize sheet = SheetPixels();
    memory.FillSolidRect(CRect(CPoint(0, 0), part.Size()), ::GetSysColor(COLOR_APPWORKSPACE));
    const CRect paper(CPoint(desk - part.left, desk - part.top), sheet);
    memory.FillSolidRect(paper + CPoint(3, 3), ::GetSysColor(COLOR_3DDKSHADOW));
    memory.FillSolidRect(paper, RGB(255, 255, 255));
    const CPoint origin(paper.left, part.Height() - paper.bottom);
    Canvas canvas(memory, part.Size(), origin, Scale());
    const FigurePtr dragged = Dragged(), moved = dragged ? selected_ : nullptr;
    for (const FigurePtr& figure : drawing.Figures())
        (figure == moved ? dragged : figure)->Draw(canvas);
    if (dragged && !moved)
        dragged->Draw(canvas);
    if (selected_)
        canvas.Selection((moved ? dragged : selected_)->Bounds());
}

namespace {

// The program's printer gets the paper as the sheet lies; the user may change that in the dialog.
void turn_paper(bool landscape) {
    PRINTDLG printer{};
    printer.lStructSize = sizeof(printer);
    if (!AfxGetApp()->GetPrinterDeviceDefaults(&printer))
        return; // without a printer: the dialog will say so
    auto* mode = static_cast<DEVMODE*>(::GlobalLock(printer.hDevMode));
    if (!mode)
        return;
    mode->dmFields |= DM_ORIENTATION;
    mode->dmOrientation = landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    ::GlobalUnlock(printer.hDevMode);
}

} // namespace

BOOL CSketchView::OnPreparePrinting(CPrintInfo* info) {
    const CSize sheet = Doc().Contents().Sheet();
    turn_paper(sheet.cx > sheet.cy);
    info->SetMaxPage(1);
    return DoPreparePrinting(info);
}

// At its true size, or smaller where the paper is.
void CSketchView::OnPrint(CDC* dc, CPrintInfo*) {
    const Drawing& drawing = Doc().Contents();
    const CSize page(dc->GetDeviceCaps(HORZRES), dc->GetDeviceCaps(VERTRES)), sheet = drawing.Sheet();
    const double scale = std::min({dc->GetDeviceCaps(LOGPIXELSX) / units_per_inch,
                                   static_cast<double>(page.cx) / sheet.cx, static_cast<double>(page.cy) / sheet.cy});
    const CPoint origin((page.cx - std::lround(sheet.cx * scale)) / 2, (page.cy - std::lround(sheet.cy * scale)) / 2);
    dc->SetMapMode(MM_TEXT);
    dc->SetViewportOrg(0, 0);
    dc->IntersectClipRect(origin.x, page.cy - 1 - origin.y - std::lround(sheet.cy * scale),
                          origin.x + std::lround(sheet.cx * scale) + 1, page.cy - origin.y);
    Canvas canvas(*dc, page, origin, scale);
    drawing.Draw(canvas);
}

// The whole sheet as a bitmap, at most so many pixels wide and high.
void CSketchView::OnEditCopy() {
    constexpr double most = 4000;
    CClientDC screen(this);
    const Drawing& drawing = Doc().Contents();
    const CSize sheet = drawing.Sheet();
    const double scale =
        std::min({screen.GetDeviceCaps(LOGPIXELSX) / units_per_inch, most / sheet.cx, most / sheet.cy});
    const CSize size(std::lround(sheet.cx * scale), std::lround(sheet.cy * scale));
    MemoryPicture picture(screen, size);
    picture.Context().FillSolidRect(CRect(CPoint(0, 0), size), RGB(255, 255, 255));
    {
        Canvas canvas(picture.Context(), size, CPoint(0, 0), scale);
        drawing.Draw(canvas);
    }
    if (!OpenClipboard()) {
        AfxMessageBox("Another program is using the clipboard.");
        return;
    }
    ::EmptyClipboard();
    HBITMAP bitmap = picture.Take();
    if (!::SetClipboardData(CF_BITMAP, bitmap)) // the clipboard's from here on
        ::DeleteObject(bitmap);
    ::CloseClipboard();
}
