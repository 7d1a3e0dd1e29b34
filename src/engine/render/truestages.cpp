// What only a true plate has. Its unit is that of the printer's page, so many to the millimetre.
#include <algorithm>
#include <cmath>
#include <vector>

#include "engine/core/design.h"
#include "engine/correction/curve.h"
#include "engine/geometry/primitives.h"
#include "engine/geometry/sheet.h"
#include "engine/render/drawing.h"
#include "engine/render/stages.h"

namespace vernacle {

namespace {

constexpr double kSagittaMm = 0.005;
constexpr double kBleedMm = 1; // the background goes so far past the cut
constexpr double kMarkTenths = 1;
constexpr int kMostChords = 20000; // of a radius beyond all meters
constexpr double kFullCircle = 4 * kRightAngle;

// On a true plate all of the drawing reads: its tables are ready, and nothing is raised or set
// back.
class NoSteps : public DrawingSteps {
public:
    void RaiseAspect() const override {}
    void ReachScale(int /*scale*/) const override {}
    void RaiseRelativeSize(int /*scale*/) const override {}
    void ClearColour(int /*scale*/) const override {}
    void SetBackLabel(int /*scale*/, int /*tic*/) const override {}
};

// The corners of a circle about the plate's middle, each axis in its own units.
std::vector<SurfacePoint> CircleOf(const PlateFrame& frame, double radiusMm) {
    const int chords = FineChords(radiusMm, kFullCircle);
    std::vector<SurfacePoint> corners;
    for (int chord = 0; chord <= chords; ++chord) {
        const double angle = kFullCircle * chord / chords;
        corners.push_back({frame.centreX + 2 * frame.AcrossPerHalfMm() * radiusMm * std::cos(angle),
                           frame.centreY - 2 * frame.upPerHalfMm * radiusMm * std::sin(angle)});
    }
    return corners;
}

void DrawCutLine(DrawingRun& run, Colour ink) {
    if (run.design.PlateOutlineCircular != 1) {
        return;
    }
    SelectMarkWidth(run, 1);
    const std::vector<SurfacePoint> corners = CircleOf(run.frame, run.frame.widthMm / 2);
    for (std::size_t corner = 1; corner < corners.size(); ++corner) {
        DrawLine(run.surface, corners[corner - 1], corners[corner], ink);
    }
}

// Adds the arc of that radius between the pointer at two angles.
void AddArc(std::vector<SurfacePoint>& corners, const PlateFrame& frame, double radiusMm,
            double fromRad, double toRad) {
    const double from = ArcAngle(frame, fromRad, radiusMm);
    const double to = ArcAngle(frame, toRad, radiusMm);
    const int chords = FineChords(radiusMm, to - from);
    for (int chord = 0; chord <= chords; ++chord) {
        corners.push_back(ArcPoint(frame, from + (to - from) * chord / chords, radiusMm));
    }
}

double PointerAtPercent(const DrawingRun& run, float percent) {
    return PointerAngle(run.frame, ContinuedDeflection(run.design, double{percent} / 100));
}

// The inner edge is the arc of its ceiling; the sides lie along the pointer.
void DrawSegment(DrawingRun& run, int highlight) {
    const DesignRecord& design = run.design;
    const double inner = ScaleRadius(run.frame, double{design.HighlightCeiling[highlight]});
    const double outer = inner + double{design.HighlightLength[highlight]};
    if (!(design.HighlightStop[highlight] > design.HighlightStart[highlight]) || !(inner > 0) ||
        !(outer > 0)) {
        return;
    }
    const double start = PointerAtPercent(run, design.HighlightStart[highlight]);
    const double stop = PointerAtPercent(run, design.HighlightStop[highlight]);
    std::vector<SurfacePoint> corners;
    AddArc(corners, run.frame, inner, start, stop);
    AddArc(corners, run.frame, outer, stop, start);
    run.surface.FillArea(corners, design.HighlightColor[highlight]);
}

// The share of light that a colour gives back, 0 to 1, as the eye weighs red, green and blue.
double LightOf(Colour colour) {
    const auto part = [colour](int shift) { return ((colour >> shift) & 0xFF) / 255.0; };
    return 0.299 * part(0) + 0.587 * part(8) + 0.114 * part(16);
}

// Below a picture's plate: the ruler, its numbers, the note of the pointer's length, and some air.
constexpr double kRulerReach = 1120;
constexpr double kMarksAndAir = 400;
constexpr double kUnitAndAir = 520; // behind a ruler that ends at a number

constexpr DrawingStage kPaperStages[] = {
    BackgroundStage, GraphicStage, SegmentsStage,  HolesStage,     BearingsStage,
    TicsStage,       ArcsStage,    FontStage,      LabelsStage,    TitlesStage,
    FreeTextsStage,  CutLineStage, TrimMarksStage, TrueRulerStage,
};

constexpr DrawingStage kScreenStages[] = {
    ClearStage,     BackgroundStage,    GraphicStage,   SegmentsStage, HolesStage,  BearingsStage,
    TicsStage,      PointerLengthStage, ArcsStage,      FontStage,     LabelsStage, TitlesStage,
    FreeTextsStage, TrimMarksStage,     TrueRulerStage, OverlaysStage,
};

// A pen draws on the paper as it is.
constexpr DrawingStage kPlotterStages[] = {
    SegmentsStage, HolesStage,     BearingsStage, TicsStage,      ArcsStage,      LabelsStage,
    TitlesStage,   FreeTextsStage, CutLineStage,  TrimMarksStage, TrueRulerStage,
};

std::span<const DrawingStage> StagesOf(TrueMedium medium) {
    switch (medium) {
    case TrueMedium::Paper:
        return kPaperStages;
    case TrueMedium::Screen:
        return kScreenStages;
    case TrueMedium::Plotter:
        return kPlotterStages;
    }
    return {};
}

} // namespace

int FineChords(double radiusMm, double angleRad) {
    const double cosine = std::max(1 - kSagittaMm / std::max(radiusMm, kSagittaMm), 0.0);
    const double chords = std::ceil(std::fabs(angleRad) / (2 * std::acos(cosine)));
    return static_cast<int>(std::clamp(chords, 1.0, double{kMostChords}));
}

void SelectWidth(const DrawingRun& run, double tenths, int pixels) {
    if (run.traits.IsTrue()) {
        run.surface.SetLineThickness(tenths / 10 * run.traits.unitsPerMm);
    } else {
        run.surface.SetLineWidth(pixels);
    }
}

void SelectMarkWidth(const DrawingRun& run, int pixels) {
    SelectWidth(run, kMarkTenths, pixels);
}

Colour SeenInk(const DesignRecord& design) {
    return LightOf(design.PlateBackground) > 0.5 ? kBlackInk : kWhiteInk;
}

void BackgroundStage(DrawingRun& run) {
    const PlateFrame& frame = run.frame;
    if (run.design.PlateOutlineCircular == 1) {
        run.surface.FillArea(CircleOf(frame, frame.widthMm / 2 + kBleedMm),
                             run.design.PlateBackground);
        return;
    }
    const double across = 2 * frame.AcrossPerHalfMm() * kBleedMm;
    const double up = 2 * frame.upPerHalfMm * kBleedMm;
    run.surface.FilledBox(F(frame.Left() - across), F(frame.Top() - up), F(frame.Right() + across),
                          F(frame.Bottom() + up), run.design.PlateBackground);
}

void SegmentsStage(DrawingRun& run) {
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        DrawSegment(run, highlight);
    }
}

void CutLineStage(DrawingRun& run) {
    DrawCutLine(run, SeenInk(run.design));
}

void TrueRulerStage(DrawingRun& run) {
    DrawRuler(run, {.lengthMm = double{run.design.PlateWidth},
                    .belowPlate = 400,
                    .fineWidth = 1,
                    .coarseWidth = 1,
                    .baseWidth = 1,
                    .fontPoints = 8,
                    .unit = "mm"});
}

std::string TrueRemarks(const DesignRecord& design, const DrawingState& state) {
    std::string remarks;
    int scale = 0;
    for (const Tic& tic : state.OutOfReach) {
        remarks += tic.scale == scale ? ", " : (scale == 0 ? "The pointer does not meet " : "; ");
        remarks += tic.scale == scale ? "" : "on scale " + std::to_string(tic.scale) + " tic ";
        remarks += std::to_string(tic.number);
        scale = tic.scale;
    }
    if (!CurveRises(design)) {
        remarks += remarks.empty() ? "" : "\n";
        remarks += "The movement's curve does not rise; a straight one is drawn.";
    }
    return remarks;
}

LogicalArea TrueArea(const DesignRecord& design) {
    const PlateFrame frame = TrueFrame(design, 1, 1);
    const double round = design.PlateOutlineCircular == 1
                             ? 2 * frame.upPerHalfMm * (frame.widthMm / 2 + kBleedMm)
                             : 0;
    const double top = std::min(frame.Top() - kMarksAndAir, frame.centreY - round);
    const double bottom = std::max(frame.Bottom() + kRulerReach, frame.centreY + round);
    return {frame.Left() - kUnitAndAir, top, frame.Right() - frame.Left() + 2 * kUnitAndAir,
            bottom - top};
}

DrawingTraits TruePlateTraits(TrueMedium medium) {
    return {.centre = kSheetCentre,
            .aspect = Aspect::Ignored,
            .preparation = Preparation::None,
            .labelFitting = LabelFitting::Centred,
            .unitsPerMm = kSheetUnitsPerMm,
            .correction = Correction::Continued,
            .stages = StagesOf(medium)};
}

PlateFrame TrueFrame(const DesignRecord& design, double factorX, double factorY) {
    PlateFrame frame = FrameOfDesign(design, factorX * kSheetUnitsPerHalfMm, kSheetCentre);
    frame.upPerHalfMm = factorY * kSheetUnitsPerHalfMm;
    return frame;
}

void DrawTruePlate(const DesignRecord& design, DrawingSurface& surface, const DrawingTraits& traits,
                   const PlateFrame& frame, const PageCopies& sizes, DrawingState& state) {
    const NoSteps steps;
    state.OutOfReach.clear();
    DrawingRun run{design, surface, traits, state, steps, sizes, frame};
    for (const DrawingStage stage : traits.stages) {
        stage(run);
    }
}

} // namespace vernacle
