// A plotter as a drawing surface: lines, circles and letters become statements of HP-GL, kept apart
// by pens, so that a plotter changes each pen once. It takes the units of the printer's page.
#pragma once

#include <string>
#include <vector>

#include "engine/geometry/drawingsurface.h"
#include "engine/geometry/geometry.h"

namespace vernacle {

constexpr std::size_t kPlotterPens = 8;

class PlotterSurface : public DrawingSurface {
public:
    // page is where the plate stands on the printer's page, plotter where on the plotter's.
    // Hatching lines stand a pen's width apart, which is above 0.
    PlotterSurface(const PlateFrame& page, const PlateFrame& plotter, double penMm);

    struct Pen {
        Colour colour;
        std::string statements; // with their line ends
    };
    // Pen 1 first; black, drawn with or not.
    const std::vector<Pen>& Pens() const { return pens_; }
    bool HasMoreColours() const { return hasMoreColours_; }

    void SetLineWidth(int pixels) override;
    void SetForeColor(Colour colour) override { ink_ = colour; }
    void SetLineThickness(double units) override;
    void Line(float x1, float y1, float x2, float y2, Colour colour) override;
    void Box(float x1, float y1, float x2, float y2, Colour colour) override;
    void FillArea(std::span<const SurfacePoint> corners, Colour colour) override; // hatched
    void Circle(float x, float y, float r, Colour colour) override;
    void SetCurrentX(float x) override { current_.x = double{x}; }
    void SetCurrentY(float y) override { current_.y = double{y}; }
    float GetCurrentX() const override { return static_cast<float>(current_.x); }
    float GetCurrentY() const override { return static_cast<float>(current_.y); }
    void PrintText(const std::string& text) override;
    void SetFontSize(double points) override { points_ = points; }
    float TextWidth(const std::string& text) const override;
    float TextHeight(const std::string& text) const override;
    void PlaceText(const std::string& text, const TextPlace& place) override;

    // A pen has no areas and no pictures, its letters one face.
    void Clear() override {}
    void FilledBox(float /*x1*/, float /*y1*/, float /*x2*/, float /*y2*/,
                   Colour /*colour*/) override {}
    void Dot(float x, float y, Colour colour) override;
    void SetFontName(const std::string& /*name*/) override {}
    void BeginFont(int /*height*/, int /*width*/, int /*escapement*/,
                   const std::string& /*face*/) override {}
    void EndFont() override {}
    void PaintPicture(const std::string& /*file*/, float /*x*/, float /*y*/, float /*width*/,
                      float /*height*/) override {}

private:
    SurfacePoint ToPlotter(SurfacePoint at) const;
    std::size_t PenFor(Colour colour);
    void Statement(std::size_t pen, const std::string& text);
    void Stroke(SurfacePoint from, SurfacePoint to, Colour colour);
    void MoveTo(std::size_t pen, SurfacePoint at);
    void SelectPenWidth(std::size_t pen);

    struct PenState {
        SurfacePoint at;
        bool isPlaced = false;
        double widthMm = 0;
    };

    const PlateFrame page_;
    const PlateFrame plotter_;
    double penMm_;
    std::vector<Pen> pens_;
    std::vector<PenState> states_;
    bool hasMoreColours_ = false;
    double widthMm_;
    double points_ = 8;
    Colour ink_ = kBlackInk;
    SurfacePoint current_;
};

// How far two colours are from each other, each of red, green and blue squared.
int ColoursApart(Colour a, Colour b);

// The text in letters that every plotter has: what lies beyond ASCII becomes the letters that stand
// for it, and what has none a question mark.
std::string PlotterLetters(const std::string& text);

} // namespace vernacle
