#include <filesystem>

#include "engine/core/design.h"
#include "engine/correction/curve.h"
#include "engine/geometry/primitives.h"
#include "engine/render/overlays.h"
#include "engine/render/stages.h"

namespace vernacle {

namespace {

constexpr double kHighlightStep = 0.0002; // of full deflection: closer than the lines are wide

double CorrectedPercent(const DesignRecord& design, float percent) {
    auto fraction = static_cast<float>(double{percent} * 0.01);
    return double{CorrectDeflection(design, fraction)};
}

void DrawHighlight(DrawingRun& run, int highlight) {
    const PlateFrame& frame = run.frame;
    const double radius = ScaleRadius(frame, double{run.design.HighlightCeiling[highlight]});
    if (radius == 0) {
        return;
    }
    const double length = double{run.design.HighlightLength[highlight]};
    const double stop = CorrectedPercent(run.design, run.design.HighlightStop[highlight]);
    const double start = CorrectedPercent(run.design, run.design.HighlightStart[highlight]);
    for (int step = 0; start + step * kHighlightStep <= stop; ++step) {
        const double f = start + step * kHighlightStep;
        const ArcPlace place = PlaceOnArc(frame, PointerAngle(frame, f), radius);
        // Unlike a tic's, the end's y counts in units across too.
        PlateFrame square = frame;
        square.upPerHalfMm = frame.AcrossPerHalfMm();
        const SurfacePoint end =
            AlongPointer(square, place.point, place.pointerAngleRad, length, Direction::Outward);
        DrawLine(run.surface, place.point, end, run.design.HighlightColor[highlight]);
    }
}

} // namespace

void HighlightsStage(DrawingRun& run) {
    run.surface.SetLineWidth(1);
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        if (run.design.HighlightStop[highlight] > 0) {
            DrawHighlight(run, highlight);
        }
    }
}

// A name without a folder is that of a file beside the design's own: both move together.
std::string PicturePlace(const DesignRecord& design) {
    const std::filesystem::path picture(design.GraphicFileName);
    if (picture.has_parent_path()) {
        return design.GraphicFileName;
    }
    return (std::filesystem::path(design.DesignFileName).parent_path() / picture).string();
}

void GraphicStage(DrawingRun& run) {
    if (run.design.DrawGraphic != "Y") {
        return;
    }
    const PlateFrame& frame = run.frame;
    const SurfacePoint corner =
        PlatePoint(frame, double{run.design.LeftToGraphic}, double{run.design.BottomToGraphic});
    const double width = 2 * frame.AcrossPerHalfMm() * double{run.design.GraphicWidth};
    const double height = 2 * frame.upPerHalfMm * double{run.design.GraphicHeight};
    try {
        run.surface.PaintPicture(PicturePlace(run.design), F(corner.x), F(corner.y), F(width),
                                 F(height));
    } catch (const RunTimeError&) {
        // A picture that does not load is left out.
    }
}

void OverlaysStage(DrawingRun& run) {
    if (run.state.GridShown == 1) {
        DrawGrid(run.surface, run.frame);
    }
    if (run.state.PointerShown == 1) {
        DrawPointer(run.surface, run.frame, run.state);
    }
    if (run.design.PlateOutlineCircular == 1) {
        DrawOutline(run.surface, run.frame, OutlineStart::Moved, kBlueInk);
    }
}

} // namespace vernacle
