#include "engine/render/drawing.h"

#include <algorithm>
#include <cmath>

#include "engine/core/design.h"
#include "engine/render/stages.h"
#include "engine/scale/scale.h"

namespace vernacle {

DrawingState Drawing;

namespace {

constexpr DrawingStage kPreviewStages[] = {
    ClearStage,  PlateStage,  TrimMarksStage,     HolesStage, BearingsStage,
    RulerStage,  TicsStage,   PointerLengthStage, ArcsStage,  FontStage,
    LabelsStage, TitlesStage, EndStage,
};

constexpr DrawingStage kSetupStages[] = {
    ClearStage, OutlineStage, SetupMarksStage, TicsStage, FontStage, LabelsStage, ArcsStage,
};

constexpr DrawingStage kPageStages[] = {
    ClearStage,         PlateStage, TrimMarksStage, HolesStage,  BearingsStage, TicsStage,
    PointerLengthStage, ArcsStage,  FontStage,      LabelsStage, TitlesStage,   EndStage,
};

void CountHighlights() {
    Design.NumberOfHighlights = 0;
    for (int slot = 1; slot <= kHighlights; ++slot) {
        if (Design.HighlightStart[slot] > 0 && Design.HighlightStop[slot] > 0) {
            ++Design.NumberOfHighlights;
        }
    }
}

void Prepare(Preparation preparation) {
    if (preparation == Preparation::None) {
        return;
    }
    if (preparation == Preparation::CountHighlightsAndRest) {
        CountHighlights();
    }
    Design.NumberOfScales = std::max<std::int16_t>(Design.NumberOfScales, 1);
    Design.CurrentScale = std::max<std::int16_t>(Design.CurrentScale, 1);
    RaiseAspectRatio();
    ComputeTicDeflections(Design);
    ComputeTicLabels(Design);
}

void RunStages(DrawingRun& run) {
    for (const DrawingStage stage : run.traits.stages) {
        stage(run);
    }
}

// Keeps Design.CurrentScale, which the stages run over.
class ScaleKeeper {
public:
    ScaleKeeper() = default;
    ~ScaleKeeper() { Design.CurrentScale = kept_; }
    ScaleKeeper(const ScaleKeeper&) = delete;
    ScaleKeeper& operator=(const ScaleKeeper&) = delete;

private:
    const std::int16_t kept_ = Design.CurrentScale;
};

} // namespace

DrawingTraits PreviewTraits() {
    return {.extent = 3200,
            .centre = {6000, 4300},
            .preparation = Preparation::None,
            .ticInk = TicInk::Black,
            .labelFlags = LabelFlags::SetBack,
            .stages = kPreviewStages};
}

DrawingTraits ScalesTraits() {
    return {.labelFlags = LabelFlags::OnlyFlagged, .stages = kPageStages};
}

DrawingTraits TextTraits() {
    return {.stages = kPageStages};
}

DrawingTraits HighlightsTraits() {
    return {.preparation = Preparation::CountHighlightsAndRest, .stages = kPageStages};
}

DrawingTraits WizardTraits() {
    return {.extent = 3200,
            .centre = {6000, 4300},
            .ticFlags = TicFlags::Ignored,
            .labelFlags = LabelFlags::Ignored,
            .labelFitting = LabelFitting::Sampled,
            .fontName = "Arial",
            .correction = Correction::NotApplied,
            .stages = kPageStages};
}

DrawingTraits SetupTraits() {
    return {.extent = 3200,
            .centre = {6000, 4300},
            .square = 1,
            .aspect = Aspect::Ignored,
            .tables = Tables::SpecialOfCurrentScale,
            .preparation = Preparation::None,
            .labelFlags = LabelFlags::OnlyFlagged,
            .correction = Correction::NotApplied,
            .stages = kSetupStages};
}

PlateFrame FrameOf(const DrawingTraits& traits) {
    const double width = double{Design.PlateWidth};
    const double height = double{Design.PlateHeight};
    const double larger = CheckedDivide(width, height) <= traits.square ? height : width;
    Drawing.PlateScale = static_cast<float>(traits.extent / larger);
    Drawing.PlateCentreX = static_cast<float>(traits.centre.x);
    Drawing.PlateCentreY = static_cast<float>(traits.centre.y);
    Drawing.DegreesPerRadian = ComputeDegreesPerRadian();
    PlateFrame frame = FrameOfDesign(double{Drawing.PlateScale}, traits.centre);
    if (traits.aspect == Aspect::OfDesign) {
        RaiseAspectRatio();
        frame.aspect = double{Design.AspectRatio};
    }
    return frame;
}

void DrawDesign(DrawingSurface& surface, const DrawingTraits& traits, const PageCopies& sizes) {
    Prepare(traits.preparation);
    DrawingRun run{surface, traits, Drawing, sizes, FrameOf(traits)};
    Drawing.WhereMarker = kMarkStart;
    try {
        RunStages(run);
    } catch (const RunTimeError&) {
        // The picture ends here; the page stays usable and the next change draws it anew.
    }
}

void DrawSetup(DrawingSurface& surface, const PageCopies& sizes) {
    const ScaleKeeper keeper;
    const DrawingTraits traits = SetupTraits();
    DrawingRun run{surface, traits, Drawing, sizes, FrameOf(traits)};
    Drawing.WhereMarker = kMarkStart;
    RunStages(run);
}

void EndStage(DrawingRun& run) {
    run.state.WhereMarker = kMarkEnd;
}

float HeldAspect(double aspect) {
    return static_cast<float>(kAspectLimits.Held(aspect));
}

void HoldAspectRatio() {
    // The percent is rounded as it shows: .505, which a float holds a little low, is 50.5 percent.
    const auto percent = static_cast<float>(double{HeldAspect(double{Design.AspectRatio})} * 100);
    Design.AspectRatio = static_cast<float>(std::floor(double{percent} + 0.5) * 0.01);
}

void RaiseAspectRatio() {
    if (Design.AspectRatio <= 0) {
        Design.AspectRatio = 1;
    }
}

} // namespace vernacle
