// A drawing: a sheet, the figures on it, and what was done to them.
#pragma once

#include "figure.h"

#include <cstddef>
#include <limits>

class Drawing {
public:
    static constexpr int smallest_side = 200, largest_side = 10000; // tenths of a millimetre
    static constexpr std::size_t most_figures = 100000;

    const std::vector<FigurePtr>& Figures() const { return figures_; }
    CSize Sheet() const { return sheet_; }
    /// The figure on top at this point; null where there is none.
    FigurePtr At(CPoint point, int reach) const;

    // Each of these is one step to undo. A figure that is not in the drawing changes nothing.
    void Add(FigurePtr figure);
    void Replace(const FigurePtr& figure, FigurePtr other);
    void Remove(const FigurePtr& figure) { Replace(figure, nullptr); }
    void SetSheet(CSize sheet);

    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }
    void Undo();
    void Redo();

    /// False after undoing what was done since the drawing was saved, too.
    bool IsModified() const { return done_ != saved_; }
    void SetSaved() { saved_ = done_; }

    void Clear();
    void Draw(Canvas& canvas) const;
    /// A damaged file raises an archive's exception and leaves the drawing as it was.
    void Serialize(CArchive& archive);

private:
    struct Step {
        std::size_t at = 0;
        FigurePtr before, after; // none: the figure is new, or goes
        CSize sheet_before, sheet_after;
    };

    void Do(Step step);
    void Exchange(std::size_t at, const FigurePtr& now, const FigurePtr& then);
    void Load(CArchive& archive);
    void Store(CArchive& archive) const;

    static constexpr std::size_t nowhere = std::numeric_limits<std::size_t>::max();

    std::vector<FigurePtr> figures_; // the last one on top
    CSize sheet_{2970, 2100};        // a landscape A4
    std::vector<Step> steps_;
    std::size_t done_ = 0;
    std::size_t saved_ = 0;
};
