#include "engine/render/drawing.h"

#include <algorithm>
#include <cmath>

#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/render/drawingsteps.h"
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

void CountHighlights(DesignRecord& design) {
    design.NumberOfHighlights = 0;
    for (int slot = 1; slot <= kHighlights; ++slot) {
        if (design.HighlightStart[slot] > 0 && design.HighlightStop[slot] > 0) {
            ++design.NumberOfHighlights;
        }
    }
}

void Prepare(DesignRecord& design, Preparation preparation) {
    if (preparation == Preparation::None) {
        return;
    }
    if (preparation == Preparation::CountHighlightsAndRest && !Service.carefulFiles) {
        CountHighlights(design);
    }
    design.NumberOfScales = std::max<std::int16_t>(design.NumberOfScales, 1);
    design.CurrentScale = std::max<std::int16_t>(design.CurrentScale, 1);
    RaiseAspectRatio(design);
    ComputeTicDeflections(design);
    ComputeTicLabels(design);
}

DrawingRun Begin(const DesignRecord& design, DrawingSurface& surface, const DrawingTraits& traits,
                 const PageCopies& sizes, DrawingState& state, const DrawingSteps& steps) {
    const PlateFrame frame = FrameOf(design, traits);
    if (traits.aspect == Aspect::OfDesign) {
        steps.RaiseAspect();
    }
    state.PlateScale = static_cast<float>(frame.plateScale);
    state.PlateCentreX = static_cast<float>(frame.centreX);
    state.PlateCentreY = static_cast<float>(frame.centreY);
    state.DegreesPerRadian = static_cast<float>(frame.degreesPerRadian);
    state.WhereMarker = kMarkStart;
    return {design, surface, traits, state, steps, sizes, frame};
}

void RunStages(DrawingRun& run) {
    for (const DrawingStage stage : run.traits.stages) {
        stage(run);
    }
}

// The scale that is being set up stays the current one.
class SetupSteps : public StepsOn {
public:
    using StepsOn::StepsOn;
    void ReachScale(int /*scale*/) const override {}
};

// As on paper, in square units; a page's picture box shows as much of it as TrueArea says.
void ShowTruePlate(const DesignRecord& design, DrawingSurface& surface, const PageCopies& sizes,
                   DrawingState& state) {
    try {
        DrawTruePlate(design, surface, TruePlateTraits(TrueMedium::Screen), TrueFrame(design, 1, 1),
                      sizes, state);
    } catch (const RunTimeError&) {
        // The picture ends here; the page stays usable and the next change draws it anew.
    }
}

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

PlateFrame FrameOf(const DesignRecord& design, const DrawingTraits& traits) {
    const double width = double{design.PlateWidth};
    const double height = double{design.PlateHeight};
    const double larger = CheckedDivide(width, height) <= traits.square ? height : width;
    const auto plateScale = static_cast<float>(traits.extent / larger);
    PlateFrame frame = FrameOfDesign(design, double{plateScale}, traits.centre);
    if (traits.aspect == Aspect::OfDesign) {
        frame.aspect = design.AspectRatio <= 0 ? 1 : double{design.AspectRatio};
    }
    return frame;
}

void DrawDesign(const DesignRecord& design, DrawingSurface& surface, const DrawingTraits& traits,
                const PageCopies& sizes, DrawingState& state, const DrawingSteps& steps) {
    DrawingRun run = Begin(design, surface, traits, sizes, state, steps);
    try {
        RunStages(run);
    } catch (const RunTimeError&) {
        // The picture ends here; the page stays usable and the next change draws it anew.
    }
}

void DrawPage(DesignRecord& design, DrawingSurface& surface, const DrawingTraits& traits,
              const PageCopies& sizes, DrawingState& state) {
    Prepare(design, traits.preparation);
    if (Service.truePlate) {
        ShowTruePlate(design, surface, sizes, state);
        return;
    }
    DrawDesign(design, surface, traits, sizes, state, StepsOn(design));
}

void DrawSetup(DesignRecord& design, DrawingSurface& surface, const PageCopies& sizes,
               DrawingState& state) {
    const DrawingTraits traits = SetupTraits();
    const SetupSteps steps(design);
    DrawingRun run = Begin(design, surface, traits, sizes, state, steps);
    RunStages(run);
}

void EndStage(DrawingRun& run) {
    run.state.WhereMarker = kMarkEnd;
}

float HeldAspect(double aspect) {
    return static_cast<float>(kAspectLimits.Held(aspect));
}

void HoldAspectRatio(DesignRecord& design) {
    // The percent is rounded as it shows: .505, which a float holds a little low, is 50.5 percent.
    const auto percent = static_cast<float>(double{HeldAspect(double{design.AspectRatio})} * 100);
    design.AspectRatio = static_cast<float>(std::floor(double{percent} + 0.5) * 0.01);
}

} // namespace vernacle
