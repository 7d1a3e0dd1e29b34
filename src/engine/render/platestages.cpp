#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/geometry/primitives.h"
#include "engine/render/stages.h"

namespace vernacle {

namespace {

constexpr double kTrimFrom = 100; // units beyond the plate's edge
constexpr double kTrimTo = 300;
constexpr double kBorderOutside = 32;
constexpr double kMarkScale = 32; // the plate scale for which the radii of the marks were chosen
constexpr double kRulerTic = 100;
constexpr double kNumberBelowRuler = 30;
constexpr double kHalfDigit = 45;
constexpr double kUnitBesideNumber = 180;

void DrawPlateBox(const DrawingRun& run, double outside, Colour colour) {
    const PlateFrame& frame = run.frame;
    run.surface.Box(F(frame.Left() - outside), F(frame.Top() - outside), F(frame.Right() + outside),
                    F(frame.Bottom() + outside), colour);
}

void DrawCross(const DrawingRun& run, SurfacePoint at, double arm, Colour colour) {
    DrawLine(run.surface, {at.x - arm, at.y}, {at.x + arm, at.y}, colour);
    DrawLine(run.surface, {at.x, at.y - arm}, {at.x, at.y + arm}, colour);
}

void DrawCircle(const DrawingRun& run, SurfacePoint at, double radius, Colour colour) {
    run.surface.Circle(F(at.x), F(at.y), F(radius), colour);
}

double HoleRadius(const PlateFrame& frame) {
    return 60 * frame.plateScale / kMarkScale;
}

double BearingRadius(const PlateFrame& frame) {
    return 30 * frame.plateScale / kMarkScale + 16;
}

// Of the two, one is seen on a dark plate and the other on a light one. A true plate has but the
// ink that is seen.
struct MarkInks {
    Colour first = kBlackInk;
    std::optional<Colour> second = kWhiteInk;
};

MarkInks InksOf(const DrawingRun& run) {
    return run.traits.IsTrue() ? MarkInks{SeenInk(run.design), std::nullopt} : MarkInks{};
}

// The left one first; a quadrant plate has none.
std::vector<SurfacePoint> HolesOf(const DrawingRun& run) {
    const PlateFrame& frame = run.frame;
    if (run.design.PlateStyle != 0) {
        return {};
    }
    const double apart = frame.AcrossPerHalfMm() * double{run.design.HoleSeparation};
    const double y = frame.Bottom() - 2 * frame.upPerHalfMm * double{run.design.BottomToHoles};
    return {{frame.centreX - apart, y}, {frame.centreX + apart, y}};
}

// A number or the unit, beginning at (x, y).
void WriteBelowRuler(const DrawingRun& run, double x, double y, const std::string& text) {
    run.surface.Dot(F(x), F(y), kWhiteInk);
    run.surface.PrintText(text);
}

} // namespace

void ClearStage(DrawingRun& run) {
    run.surface.Clear();
    run.surface.SetLineWidth(1);
}

void PlateStage(DrawingRun& run) {
    const PlateFrame& frame = run.frame;
    run.surface.FilledBox(F(frame.Left()), F(frame.Top()), F(frame.Right()), F(frame.Bottom()),
                          run.design.PlateBackground);
    DrawPlateBox(run, 0, kWhiteInk);
    DrawPlateBox(run, kBorderOutside, kBlackInk);
}

void TrimMarksStage(DrawingRun& run) {
    const PlateFrame& frame = run.frame;
    SelectMarkWidth(run, run.traits.lineWidths.trimMarks);
    for (const double y : {frame.Top(), frame.Bottom()}) {
        DrawLine(run.surface, {frame.Left() - kTrimTo, y}, {frame.Left() - kTrimFrom, y}, kBlueInk);
        DrawLine(run.surface, {frame.Right() + kTrimFrom, y}, {frame.Right() + kTrimTo, y},
                 kBlueInk);
    }
    for (const double x : {frame.Left(), frame.Right()}) {
        DrawLine(run.surface, {x, frame.Top() - kTrimTo}, {x, frame.Top() - kTrimFrom}, kBlueInk);
        DrawLine(run.surface, {x, frame.Bottom() + kTrimFrom}, {x, frame.Bottom() + kTrimTo},
                 kBlueInk);
    }
}

void HolesStage(DrawingRun& run) {
    const std::vector<SurfacePoint> holes = HolesOf(run);
    if (holes.empty()) {
        return;
    }
    SelectMarkWidth(run, run.traits.lineWidths.holes);
    const MarkInks inks = InksOf(run);
    for (const SurfacePoint hole : holes) {
        DrawCircle(run, hole, HoleRadius(run.frame), inks.first);
        if (inks.second) {
            DrawCircle(run, hole, BearingRadius(run.frame), *inks.second);
        }
        DrawCross(run, hole, 100, inks.first);
        if (inks.second) {
            DrawCross(run, hole, 130, *inks.second);
        }
    }
}

void BearingsStage(DrawingRun& run) {
    const SurfacePoint bearing = RealBearing(run.frame);
    SelectMarkWidth(run, run.traits.lineWidths.bearings);
    const MarkInks inks = InksOf(run);
    DrawCross(run, bearing, 100, inks.second.value_or(inks.first));
    DrawCircle(run, bearing, BearingRadius(run.frame), inks.first);
    DrawCross(run, VirtualBearing(run.frame), 100, inks.first);
}

void OutlineStage(DrawingRun& run) {
    DrawPlateBox(run, 0, kBlackInk);
}

void SetupMarksStage(DrawingRun& run) {
    for (const SurfacePoint hole : HolesOf(run)) {
        DrawCircle(run, hole, HoleRadius(run.frame), kBlackInk);
        DrawCross(run, hole, 130, run.design.PlateBackground);
    }
    const SurfacePoint bearing = RealBearing(run.frame);
    DrawCross(run, bearing, 100, run.design.PlateBackground);
    DrawCircle(run, bearing, BearingRadius(run.frame), kBlackInk);
}

void RulerStage(DrawingRun& run) {
    const double rounded = std::nearbyint(double{run.design.PlateWidth});
    DrawRuler(run, {.lengthMm = std::min(rounded, kLongestRulerMm),
                    .belowPlate = 500,
                    .fineWidth = 1,
                    .coarseWidth = 2,
                    .baseWidth = 2,
                    .fontPoints = 10,
                    .unit = "mm"});
    run.surface.SetLineWidth(1);
}

void DrawRuler(DrawingRun& run, const Ruler& ruler) {
    DrawingSurface& surface = run.surface;
    run.state.WhereMarker = kMarkRuler;
    surface.SetForeColor(kBlueInk);
    surface.SetFontSize(ruler.fontPoints);
    const double y1 = run.frame.Bottom() + ruler.belowPlate;
    const double y2 = y1 + kRulerTic;
    const int last = static_cast<int>(std::floor(std::min(ruler.lengthMm, kLongestRulerMm)));
    const auto xAt = [&run](int mm) { return PlatePoint(run.frame, mm, 0).x; };
    const auto drawTics = [&](int width, int step) {
        SelectMarkWidth(run, width);
        for (int mm = 0; mm <= last; mm += step) {
            DrawLine(surface, {xAt(mm), y1}, {xAt(mm), y2}, kBlueInk);
        }
    };
    drawTics(ruler.fineWidth, 1);
    drawTics(ruler.coarseWidth, 10);
    SelectMarkWidth(run, ruler.baseWidth);
    DrawLine(surface, {run.frame.Left(), y2}, {xAt(last), y2}, kBlueInk);
    SelectMarkWidth(run, ruler.fineWidth);
    int mm = 0;
    for (; mm <= last; mm += 10) {
        const std::string number = std::to_string(mm);
        WriteBelowRuler(run, xAt(mm) - kHalfDigit * static_cast<double>(number.size()),
                        y2 + kNumberBelowRuler, number);
    }
    WriteBelowRuler(run, xAt(mm - 10) + kUnitBesideNumber, y2 + kNumberBelowRuler, ruler.unit);
    surface.SetForeColor(kBlackInk);
}

} // namespace vernacle
