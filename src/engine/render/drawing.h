// The drawing of a whole design on a page, and the traits in which the pages that draw it differ.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "engine/core/entry.h"
#include "engine/core/freetexts.h"
#include "engine/geometry/drawingsurface.h"
#include "engine/geometry/geometry.h"
#include "engine/geometry/logicalarea.h"
#include "engine/scale/ticwalk.h"

namespace vernacle {

class DrawingSteps;

// What a drawing works with and what it leaves for overlays and messages.
struct DrawingState {
    float PlateScale = 0; // surface units per half millimetre
    float PlateCentreX = 0;
    float PlateCentreY = 0;
    float DegreesPerRadian = 0;
    std::string LabelFontFace;
    SurfacePoint LastArcPoint;   // of the last tic drawn
    SurfacePoint LastTicEnd;     // its other end
    float PointerLength = 0;     // mm
    int WhereMarker = 0;         // how far the drawing came
    std::vector<Tic> OutOfReach; // tics of a true plate that the pointer cannot meet on their arc

    // The overlays that are switched on, 0 or 1; the circular outline is a field of the design.
    std::int16_t GridShown = 0;
    std::int16_t PointerShown = 0;
};

// That of the pages, shared by all of them.
extern DrawingState Drawing;

// A page's copies, taken when it loads: a change reaches its drawing at the next load.
struct PageCopies {
    float fontSize = 0;
    float labelSpacing = 0;
    const FreeTexts* texts = nullptr; // those of the design if null
};

struct DrawingRun; // one drawing under way: render/stages

using DrawingStage = void (*)(DrawingRun& run);

// What is done to the design before a page draws it.
enum class Preparation {
    None,
    RaiseAndCompute,        // counts of 0 raised to 1, the scale tables computed
    CountHighlightsAndRest, // NumberOfHighlights counted before that
};

enum class TicInk { Black, ScaleColour };
enum class Correction {
    Applied, // deflections beyond the scale's ends stand on the ends
    NotApplied,
    Continued, // beyond the ends the curve goes on, and what the pointer cannot meet is left out
};

// Where a label stands relative to its anchor, and how its font's height is asked for.
enum class LabelFitting {
    Measured, // by the text's own size
    Sampled,  // by the size of sample texts, with the height of the characters
    Centred,  // in true points, the middle of the letters' width and of their capitals' height
};

// Which tables the tics and labels are taken from.
enum class Tables {
    ByColour,              // of each scale, standard or special as its colour says
    SpecialOfCurrentScale, // of the current scale alone, whatever its colour says
};

enum class Aspect {
    OfDesign,
    Ignored,
};

struct LineWidths {
    int trimMarks;
    int holes;
    int bearings;
    double arcFactor; // of ArcWidth + 0.5
};

struct DrawingTraits {
    double extent = 3000; // units from the plate's centre to the end of its larger dimension
    SurfacePoint centre = {3400, 4400};
    double square = 1.0001; // plates up to this much wider than high are scaled by their height
    Aspect aspect = Aspect::OfDesign;
    Tables tables = Tables::ByColour;
    Preparation preparation = Preparation::RaiseAndCompute;
    TicInk ticInk = TicInk::ScaleColour;
    TicFlags ticFlags = TicFlags::Honoured;
    LabelFlags labelFlags = LabelFlags::SkipDeleted;
    LabelFitting labelFitting = LabelFitting::Measured;
    double unitsPerMm = 0;          // of a true plate: lines are as wide as their entries say
    const char* fontName = nullptr; // that of the design if null
    Correction correction = Correction::Applied;
    LineWidths lineWidths = {1, 1, 1, 1};
    std::span<const DrawingStage> stages;

    bool IsTrue() const { return unitsPerMm > 0; }
};

// The pages' traits; that of the text page serves the graphic page too.
DrawingTraits PreviewTraits();
DrawingTraits ScalesTraits();
DrawingTraits TextTraits();
DrawingTraits HighlightsTraits();
DrawingTraits WizardTraits();
DrawingTraits SetupTraits();

// Draws the design as it stands, but for the steps that are taken on the way. A run-time failure of
// a stage ends the drawing silently: what was drawn so far stays. One on the way there, in the
// frame, is not trapped.
void DrawDesign(const DesignRecord& design, DrawingSurface& surface, const DrawingTraits& traits,
                const PageCopies& sizes, DrawingState& state, const DrawingSteps& steps);

// A page's drawing of its design, which is first prepared and then takes all the steps. A failure
// of the scale tables is not trapped.
void DrawPage(DesignRecord& design, DrawingSurface& surface, const DrawingTraits& traits,
              const PageCopies& sizes, DrawingState& state);

// The true plate, the same in every medium, in units of the printer's page: square ones.
enum class TrueMedium { Paper, Screen, Plotter };

DrawingTraits TruePlateTraits(TrueMedium medium);

// The frame of a true plate with these factors of a printer, 1 for what is not printed.
PlateFrame TrueFrame(const DesignRecord& design, double factorX, double factorY);

// What a page says of a true plate that was drawn with that state: tics that it has no place for, a
// curve that it cannot follow. Empty where there is nothing to say.
std::string TrueRemarks(const DesignRecord& design, const DrawingState& state);

// What a picture of it shows: the plate, its trim marks and its ruler.
LogicalArea TrueArea(const DesignRecord& design);

// Draws the stages of a true plate in that frame; the design's tables must be computed. It stays as
// it is. A run-time failure passes through.
void DrawTruePlate(const DesignRecord& design, DrawingSurface& surface, const DrawingTraits& traits,
                   const PlateFrame& frame, const PageCopies& sizes, DrawingState& state);

// Draws the scale that is being set up, from the special tables of CurrentScale, which stays as it
// is. A run-time failure passes through; what was drawn so far stays.
void DrawSetup(DesignRecord& design, DrawingSurface& surface, const PageCopies& sizes,
               DrawingState& state);

// The width in mm of a free text of that size, from its width in average characters of its font, by
// which a made font is asked for. Drawings round the font's width to whole pixels.
double FreeTextWidthMm(double averageCharacters, double points);

// The colour of a scale: the magnitude of ScaleColor.
Colour InkOf(const DesignRecord& design, int scale);

// The frame of a page. An AspectRatio of 0 or less counts as 1. A plate without height is a
// run-time error.
PlateFrame FrameOf(const DesignRecord& design, const DrawingTraits& traits);

// What an aspect ratio is held to.
constexpr EntryLimits kAspectLimits{0.5, 1.15};
float HeldAspect(double aspect);

// Holds AspectRatio to those limits and rounds it to whole hundredths.
void HoldAspectRatio(DesignRecord& design);

} // namespace vernacle
