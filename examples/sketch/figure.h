// The figures of a drawing.
#pragma once

#include "canvas.h"

#include <memory>
#include <utility>

/// Figures never change: whoever wants another one makes a copy. So undo keeps pointers, and nothing else.
/// Rectangles have their lower edge in `top` and their upper one in `bottom`, since y grows upwards.
/// An archive reads only classes that can be stored themselves: this one is therefore not abstract.
class CFigure : public CObject {
    DECLARE_SERIAL(CFigure)

public:
    static constexpr int farthest = 20000; // tenths of a millimetre from the sheet's corner

    virtual void Draw(Canvas& canvas) const;
    virtual bool IsHit(CPoint point, int reach) const;
    CRect Bounds() const;
    const FigureStyle& Style() const { return style_; }

    std::unique_ptr<CFigure> Copy() const;
    std::unique_ptr<CFigure> Moved(CSize by) const;
    std::unique_ptr<CFigure> WithStyle(const FigureStyle& style) const;

    /// A figure that is out of bounds raises an archive's exception.
    void Serialize(CArchive& archive) override;

protected:
    CFigure() = default;
    /// What is drawn, filled and hit; closed where the figure is.
    virtual std::vector<CPoint> Outline() const { return points_; }
    virtual std::size_t MostPoints() const { return 2; }
    virtual void CopyRest(const CFigure&) {}
    void Set(std::vector<CPoint> points, const FigureStyle& style);

    std::vector<CPoint> points_; // two corners, or all of a line's
    FigureStyle style_;

private:
    bool IsValid() const;
};

using FigurePtr = std::shared_ptr<const CFigure>;

class CLineFigure : public CFigure {
    DECLARE_SERIAL(CLineFigure)

public:
    CLineFigure() = default;
    CLineFigure(CPoint from, CPoint to, const FigureStyle& style) { Set({from, to}, style); }
};

class CRectangleFigure : public CFigure {
    DECLARE_SERIAL(CRectangleFigure)

public:
    CRectangleFigure() = default;
    CRectangleFigure(CPoint from, CPoint to, const FigureStyle& style) { Set({from, to}, style); }

protected:
    std::vector<CPoint> Outline() const override;
};

class CEllipseFigure : public CFigure {
    DECLARE_SERIAL(CEllipseFigure)

public:
    CEllipseFigure() = default;
    CEllipseFigure(CPoint from, CPoint to, const FigureStyle& style) { Set({from, to}, style); }

protected:
    std::vector<CPoint> Outline() const override;
};

class CFreeHandFigure : public CFigure {
    DECLARE_SERIAL(CFreeHandFigure)

public:
    static constexpr std::size_t most_points = 10000;

    CFreeHandFigure() = default;
    CFreeHandFigure(std::vector<CPoint> points, const FigureStyle& style) { Set(std::move(points), style); }

protected:
    std::size_t MostPoints() const override { return most_points; }
};

class CTextFigure : public CFigure {
    DECLARE_SERIAL(CTextFigure)

public:
    static constexpr int longest = 200, lowest = 20, highest = 1000;

    CTextFigure() = default;
    /// The left end of the text's lower edge; the height of its letters.
    CTextFigure(CPoint at, int height, const CString& text, const FigureStyle& style);

    const CString& GetText() const { return text_; }
    int Height() const { return height_; }

    void Draw(Canvas& canvas) const override;
    bool IsHit(CPoint point, int reach) const override;
    void Serialize(CArchive& archive) override;

protected:
    void CopyRest(const CFigure& from) override;

private:
    CString text_;
    int height_ = 0;
};
