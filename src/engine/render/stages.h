// The stages of a drawing. Each draws on the run's surface in the run's frame; what differs between
// users stands in the run's traits.
#pragma once

#include <optional>
#include <string>

#include "engine/core/design.h"
#include "engine/geometry/screen.h"
#include "engine/render/drawing.h"
#include "engine/render/drawingsteps.h"

namespace vernacle {

struct DrawingRun {
    const DesignRecord& design;
    DrawingSurface& surface;
    const DrawingTraits& traits;
    DrawingState& state;
    const DrawingSteps& steps;
    PageCopies sizes;
    PlateFrame frame;
    ScreenFactors screen = DrawnScreen(design);
};

// How far a drawing came, for the message of one that fails.
constexpr int kMarkStart = 265;
constexpr int kMarkRuler = 316;
constexpr int kMarkStandardTics = 425;
constexpr int kMarkSpecialTics = 435;
constexpr int kMarkArcs = 483;
constexpr int kMarkFont = 541;
constexpr int kMarkStandardLabels = 549;
constexpr int kMarkSpecialLabels = 590;
constexpr int kMarkTitles = 602;
constexpr int kMarkEnd = 675;

// platestages: the plate and its marks
void ClearStage(DrawingRun& run);
void PlateStage(DrawingRun& run);
void TrimMarksStage(DrawingRun& run);
void HolesStage(DrawingRun& run);
void BearingsStage(DrawingRun& run);
void OutlineStage(DrawingRun& run);    // of a setup: the plate's edge alone
void SetupMarksStage(DrawingRun& run); // holes and bearing with crosses in the plate's colour
void RulerStage(DrawingRun& run);

// ticstages: tics from the highest scale down, then the arcs
void TicsStage(DrawingRun& run);
void PointerLengthStage(DrawingRun& run);
void ArcsStage(DrawingRun& run);

// labelstages: all that is written
void FontStage(DrawingRun& run);
void LabelsStage(DrawingRun& run);
void TitlesStage(DrawingRun& run);

// reservestages: complete, but asked for by no page of the program
void HighlightsStage(DrawingRun& run);
void FreeTextsStage(DrawingRun& run);
void GraphicStage(DrawingRun& run);
void OverlaysStage(DrawingRun& run);

// truestages: what only a true plate has
void BackgroundStage(DrawingRun& run);
void SegmentsStage(DrawingRun& run); // highlights as ring segments
void CutLineStage(DrawingRun& run);  // of a circular plate, on paper
void TrueRulerStage(DrawingRun& run);

void EndStage(DrawingRun& run);

struct Ruler {
    double lengthMm;
    double belowPlate; // units from the plate's bottom edge to the tics' upper ends
    int fineWidth;     // of the tics at each millimetre
    int coarseWidth;   // of those at each ten
    int baseWidth;     // of the line along the lower ends
    double fontPoints;
    const char* unit;
};

void DrawRuler(DrawingRun& run, const Ruler& ruler);

// Whether the scale's special tables are drawn.
bool ShowsSpecial(const DrawingRun& run, int scale);

// RelativeFontSize of the scale; 0 or less counts as 1.
double RelativeSizeOf(const DesignRecord& design, int scale);

// The place on its scale's arc of a tic or label with that deflection.
ArcPlace PlaceTic(const DesignRecord& design, const PlateFrame& frame, Correction correction,
                  int scale, float deflection);

// Whether it has such a place: a drawing that continues the curve leaves out what has none.
bool HasPlace(const DrawingRun& run, int scale, const ArcPlace& place);

// How many equal chords an arc of that radius and angle needs for its sagitta to stay below 0.005
// mm.
int FineChords(double radiusMm, double angleRad);

// Lines so wide: in a true plate the tenths of a millimetre, else the pixels.
void SelectWidth(const DrawingRun& run, double tenths, int pixels);
void SelectMarkWidth(const DrawingRun& run, int pixels);

// Black or white, whichever is seen on the plate's background.
Colour SeenInk(const DesignRecord& design);

// The length of a tic in mm, by its class and its scale's relative size.
double TicLength(const DesignRecord& design, const Tic& tic);

// Where a quadrant plate puts the title of a scale across; none for other plates and for scales
// above 4, whose titles are centred.
std::optional<double> QuadrantTitleX(const DesignRecord& design, const PlateFrame& frame,
                                     int scale);

// The turn of a scale's labels by LabelRotation, counter-clockwise in radians; 0 unless it is "B"
// or "V".
double LabelTurn(const DesignRecord& design, const ArcPlace& place);

// The same in whole tenths of a degree.
int LabelEscapement(const DesignRecord& design, const PlateFrame& frame, const ArcPlace& place);

// Runs over the scales from 1 up.
template <typename Draw>
void ForEachScaleUpward(const DrawingRun& run, Draw draw) {
    int scale = 1;
    for (; scale <= run.design.NumberOfScales; ++scale) {
        run.steps.ReachScale(scale);
        draw(scale);
    }
    run.steps.ReachScale(scale);
}

// A font's name without outer blanks and with one NUL behind it, as a font's record holds it.
std::string FontFace(const std::string& name);

} // namespace vernacle
