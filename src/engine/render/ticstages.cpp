#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "engine/core/design.h"
#include "engine/correction/curve.h"
#include "engine/geometry/primitives.h"
#include "engine/render/stages.h"
#include "engine/scale/scale.h"

namespace vernacle {

namespace {

Colour TicInkOf(const DrawingRun& run, int scale) {
    return run.traits.ticInk == TicInk::Black ? kBlackInk : InkOf(run.design, scale);
}

// Held to 1 .. 20 tenths of a millimetre; one of them is 0.7 pixel.
int TicLineWidth(const DesignRecord& design, const Tic& tic) {
    const double tenths = double{tic.major ? design.MajorTicWidth : design.MinorTicWidth};
    return static_cast<int>(std::floor(std::clamp(tenths, 1.0, 20.0) * 0.7 + 0.5));
}

void DrawTic(DrawingRun& run, const Tic& tic) {
    const ArcPlace place =
        PlaceTic(run.design, run.frame, run.traits.correction, tic.scale, tic.deflection);
    if (!HasPlace(run, tic.scale, place)) {
        run.state.OutOfReach.push_back(tic);
        return;
    }
    const SurfacePoint end = AlongPointer(run.frame, place.point, place.pointerAngleRad,
                                          TicLength(run.design, tic), DirectionOf(tic.scale));
    SelectWidth(run, double{tic.major ? run.design.MajorTicWidth : run.design.MinorTicWidth},
                TicLineWidth(run.design, tic));
    DrawLine(run.surface, end, place.point, TicInkOf(run, tic.scale));
    run.state.LastArcPoint = place.point;
    run.state.LastTicEnd = end;
}

void DrawArc(DrawingRun& run, int scale) {
    const double radius = ScaleRadius(run.frame, double{run.design.BottomToScaleCeiling[scale]});
    SurfacePoint previous;
    for (int chord = 0; chord <= kArcChords; ++chord) {
        const double angle = PointerAngle(run.frame, chord / double{kArcChords});
        const SurfacePoint point = PlaceOnArc(run.frame, angle, radius).point;
        DrawLine(run.surface, chord == 0 ? point : previous, point, TicInkOf(run, scale));
        previous = point;
    }
}

// The pointer's swing, and as far beyond its ends as tics stand.
struct Sweep {
    double from = 0;
    double to = 1;
};

void WalkDrawnTics(const DrawingRun& run, int scale, const TicVisit& visit) {
    if (ShowsSpecial(run, scale)) {
        WalkSpecialTics(run.design, scale, visit);
    } else {
        WalkStandardTics(run.design, scale, run.traits.ticFlags, visit);
    }
}

Sweep SweepOf(const DrawingRun& run, int scale) {
    Sweep sweep;
    WalkDrawnTics(run, scale, [&](const Tic& tic) {
        const ArcPlace place =
            PlaceTic(run.design, run.frame, run.traits.correction, scale, tic.deflection);
        if (HasPlace(run, scale, place)) {
            const double shown = ContinuedDeflection(run.design, double{tic.deflection});
            sweep = {std::min(sweep.from, shown), std::max(sweep.to, shown)};
        }
    });
    return sweep;
}

// So fine that no chord is seen.
void DrawFineArc(DrawingRun& run, int scale) {
    const PlateFrame& frame = run.frame;
    const double radius = ScaleRadius(frame, double{run.design.BottomToScaleCeiling[scale]});
    if (!(radius > 0)) {
        return; // its tics are told of as out of reach
    }
    const Sweep sweep = SweepOf(run, scale);
    const double from = ArcAngle(frame, PointerAngle(frame, sweep.from), radius);
    const double to = ArcAngle(frame, PointerAngle(frame, sweep.to), radius);
    const int chords = FineChords(radius, to - from);
    SurfacePoint previous = ArcPoint(frame, from, radius);
    for (int chord = 1; chord <= chords; ++chord) {
        const SurfacePoint point = ArcPoint(frame, from + (to - from) * chord / chords, radius);
        DrawLine(run.surface, previous, point, TicInkOf(run, scale));
        previous = point;
    }
}

bool IsDrawn(const DesignRecord& design, int scale) {
    return NumberOf(design.PrintTicsAndArcs[scale]) == 0;
}

void DrawTics(DrawingRun& run, int scale) {
    run.steps.RaiseRelativeSize(scale);
    const auto draw = [&run](const Tic& tic) { DrawTic(run, tic); };
    run.state.WhereMarker = ShowsSpecial(run, scale) ? kMarkSpecialTics : kMarkStandardTics;
    WalkDrawnTics(run, scale, draw);
}

// Runs over the scales from the highest number down, so that scale 1 is drawn last and on top.
template <typename Draw>
void ForEachDrawnScale(const DrawingRun& run, Draw draw) {
    int scale = run.design.NumberOfScales;
    for (; scale >= 1; --scale) {
        run.steps.ReachScale(scale);
        if (IsDrawn(run.design, scale)) {
            draw(scale);
        }
    }
    run.steps.ReachScale(scale);
}

} // namespace

Colour InkOf(const DesignRecord& design, int scale) {
    return static_cast<Colour>(std::abs(std::int64_t{design.ScaleColor[scale]}));
}

bool ShowsSpecial(const DrawingRun& run, int scale) {
    return run.traits.tables == Tables::SpecialOfCurrentScale || IsSpecial(run.design, scale);
}

double RelativeSizeOf(const DesignRecord& design, int scale) {
    const float relative = design.RelativeFontSize[scale];
    return relative <= 0 ? 1 : double{relative};
}

ArcPlace PlaceTic(const DesignRecord& design, const PlateFrame& frame, Correction correction,
                  int scale, float deflection) {
    auto shown = double{deflection};
    if (correction == Correction::Applied) {
        shown = double{CorrectDeflection(design, deflection)};
    } else if (correction == Correction::Continued) {
        shown = ContinuedDeflection(design, shown);
    }
    const double pointer = PointerAngle(frame, shown);
    const double radius = ScaleRadius(frame, double{design.BottomToScaleCeiling[scale]});
    if (correction == Correction::Continued && !(radius > 0)) {
        return {pointer, 0, {}}; // which HasPlace turns away
    }
    return PlaceOnArc(frame, pointer, radius);
}

bool HasPlace(const DrawingRun& run, int scale, const ArcPlace& place) {
    const double radius = ScaleRadius(run.frame, double{run.design.BottomToScaleCeiling[scale]});
    return run.traits.correction != Correction::Continued ||
           (radius > 0 && MeetsArc(run.frame, place.pointerAngleRad, radius));
}

double TicLength(const DesignRecord& design, const Tic& tic) {
    const float length = tic.major ? design.MajorTicLength : design.MinorTicLength;
    return double{length} * RelativeSizeOf(design, tic.scale);
}

void TicsStage(DrawingRun& run) {
    if (run.traits.tables == Tables::ByColour) {
        ForEachDrawnScale(run, [&run](int scale) { DrawTics(run, scale); });
    } else if (IsDrawn(run.design, run.design.CurrentScale)) {
        DrawTics(run, run.design.CurrentScale);
    }
}

// From the real bearing to the outer end of the last tic drawn, one of scale 1.
void PointerLengthStage(DrawingRun& run) {
    const SurfacePoint bearing = RealBearing(run.frame);
    const SurfacePoint end = run.state.LastTicEnd;
    const double units = std::hypot(end.x - bearing.x, end.y - bearing.y);
    run.state.PointerLength = F(units / (2 * run.frame.upPerHalfMm) / std::sqrt(run.frame.aspect));
}

void ArcsStage(DrawingRun& run) {
    if (run.design.DrawArcs != "Y") {
        return;
    }
    run.state.WhereMarker = kMarkArcs;
    const double width = (double{run.design.ArcWidth} + 0.5) * run.traits.lineWidths.arcFactor;
    SelectWidth(run, double{run.design.ArcWidth}, RoundToInt(std::floor(width)));
    const auto draw = run.traits.IsTrue() ? DrawFineArc : DrawArc;
    ForEachDrawnScale(run, [&](int scale) { draw(run, scale); });
    run.surface.SetLineWidth(1);
}

} // namespace vernacle
