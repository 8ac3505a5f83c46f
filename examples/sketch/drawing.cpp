#include "drawing.h"

#include <algorithm>
#include <unordered_set>

namespace {

constexpr DWORD signature = 0x48434B53; // "SKCH"
constexpr WORD format = 1;

bool is_side(LONG length) {
    return length >= Drawing::smallest_side && length <= Drawing::largest_side;
}

} // namespace

FigurePtr Drawing::At(CPoint point, int reach) const {
    const auto hit = [&](const FigurePtr& figure) { return figure->IsHit(point, reach); };
    const auto found = std::find_if(figures_.rbegin(), figures_.rend(), hit);
    return found != figures_.rend() ? *found : nullptr;
}

void Drawing::Add(FigurePtr figure) {
    if (figures_.size() < most_figures)
        Do({figures_.size(), nullptr, std::move(figure), sheet_, sheet_});
}

void Drawing::Replace(const FigurePtr& figure, FigurePtr other) {
    const auto found = std::find(figures_.begin(), figures_.end(), figure);
    if (figure && found != figures_.end())
        Do({static_cast<std::size_t>(found - figures_.begin()), figure, std::move(other), sheet_, sheet_});
}

void Drawing::SetSheet(CSize sheet) {
    if (is_side(sheet.cx) && is_side(sheet.cy) && sheet != sheet_)
        Do({0, nullptr, nullptr, sheet_, sheet});
}

// What was undone before is no longer to be had, and with it perhaps what was saved.
void Drawing::Do(Step step) {
    steps_.resize(done_);
    if (saved_ > done_)
        saved_ = nowhere;
    steps_.push_back(std::move(step));
    Redo();
}

void Drawing::Undo() {
    if (!CanUndo())
        return;
    const Step& step = steps_[--done_];
    Exchange(step.at, step.after, step.before);
    sheet_ = step.sheet_before;
}

void Drawing::Redo() {
    if (!CanRedo())
        return;
    const Step& step = steps_[done_++];
    Exchange(step.at, step.before, step.after);
    sheet_ = step.sheet_after;
}

void Drawing::Exchange(std::size_t at, const FigurePtr& now, const FigurePtr& then) {
    const auto place = figures_.begin() + static_cast<std::ptrdiff_t>(at);
    if (now && then)
        *place = then;
    else if (now)
        figures_.erase(place);
    else if (then)
        figures_.insert(place, then);
}

void Drawing::Clear() {
    *this = Drawing();
}

void Drawing::Draw(Canvas& canvas) const {
    for (const FigurePtr& figure : figures_)
        figure->Draw(canvas);
}

void Drawing::Serialize(CArchive& archive) {
    if (archive.IsStoring())
        Store(archive);
    else
        Load(archive);
}

void Drawing::Store(CArchive& archive) const {
    archive << signature << format << sheet_;
    archive.WriteCount(figures_.size());
    for (const FigurePtr& figure : figures_)
        archive << figure.get();
}

// An archive may point to one object twice, a drawing never does: such a file is damaged, and its figure is not to be
// owned twice.
void Drawing::Load(CArchive& archive) {
    DWORD found_signature = 0;
    WORD found_format = 0;
    Drawing loaded;
    archive >> found_signature >> found_format >> loaded.sheet_;
    const DWORD_PTR count = archive.ReadCount();
    if (found_signature != signature || found_format != format || !is_side(loaded.sheet_.cx) ||
        !is_side(loaded.sheet_.cy) || count > most_figures)
        AfxThrowArchiveException(CArchiveException::badSchema);
    std::unordered_set<const CObject*> seen;
    for (DWORD_PTR i = 0; i < count; ++i) {
        auto* figure = static_cast<CFigure*>(archive.ReadObject(RUNTIME_CLASS(CFigure)));
        if (!figure || !seen.insert(figure).second)
            AfxThrowArchiveException(CArchiveException::badIndex);
        loaded.figures_.emplace_back(figure);
    }
    *this = std::move(loaded);
}
