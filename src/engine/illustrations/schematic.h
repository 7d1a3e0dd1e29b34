// The illustrated schematic: a model plate, the same for every design, on which one measure is
// marked by red dimension lines.
#pragma once

#include <optional>
#include <string>

#include "engine/geometry/drawingsurface.h"
#include "engine/geometry/geometry.h"
#include "engine/geometry/logicalarea.h"

namespace vernacle {

constexpr double kSchematicUnitsPerHalfMm = 15;

// The model plate. Lengths in mm, heights above the plate's bottom edge unless said otherwise. Tics
// and arc are far thicker than any real ones, so that their thickness can be seen and marked.
struct ModelPlate {
    double width = 140;
    double height = 112;
    double bottomToBearing = 34;
    double actualVirtualOffset = 20;
    double bottomToHoles = 20;
    double holeSeparation = 110;

    int lastTic = 30;
    int majorEvery = 5; // every major tic is labelled
    double pointerDeflectionDeg = 90;
    double bottomToCeiling = 90;
    double minorTicLength = 5;
    double majorTicLength = 8;
    double minorTicWidth = 0.8;
    double majorTicWidth = 1.6;
    double arcWidth = 1.8;
    double labelSpacing = 13.5; // from the arc to the label's middle
    double labelHeight = 7;     // of the font's cell, as the next ones

    const char* title = "VOLTS";
    double bottomToTitle = 56; // to the text's upper edge, as the next one
    double titleHeight = 7;
    const char* name = "HarrowgateSoftware";
    double leftToText = 24;
    double bottomToText = 10;
    double textHeight = 5;

    // Shown only when a measure of theirs is marked.
    double leftToGraphic = 92;
    double bottomToGraphic = 60; // to its upper edge
    double graphicWidth = 24;
    double graphicHeight = 20;
    double highlightStart = 0.4; // fractions of the scale
    double highlightStop = 0.8;
    double highlightCeiling = 80; // of its lower edge
    double highlightLength = 5;   // outward
};

constexpr ModelPlate kModel;

// Arrows of dimension lines, units.
constexpr double kArrowStem = 1000;
constexpr double kArrowBack = 300; // of the head's two lines, along the stem
constexpr double kArrowSide = 75;

// In what the pages that show the schematic differ.
struct SchematicLook {
    Colour plate = kWhiteInk;
    Colour border = kBlackInk;
    std::optional<Colour> pointer = std::nullopt; // none is drawn without it
    Colour paper = kWhiteInk;                     // of the dot at which the caption begins
    double arrowStem = kArrowStem;
};

constexpr SchematicLook kPlatePageLook = {.plate = 0xC0CCD0};
constexpr SchematicLook kWizardLook = {.plate = 0xC0CCD0};
// Its dimension lines end in the arrows' heads alone.
constexpr SchematicLook kHelpPageLook = {
    .border = 0xC0CCD0, .pointer = kBlueInk, .paper = 0xE0ECF0, .arrowStem = kArrowBack};

// Clears the surface and draws the model plate, with the measure of that help topic marked and
// captioned; a number without a topic gives the bare plate.
void DrawSchematic(DrawingSurface& surface, int topic, const SchematicLook& look);

// The part of the logical area that holds all of it, whatever the topic. Units are to be square.
LogicalArea SchematicArea();

// The model plate on its surface.
PlateFrame SchematicFrame();

// The place of a fraction of the scale on the model's arc.
ArcPlace SchematicPlace(double fraction);
ArcPlace SchematicTic(int tic);
bool IsMajorModelTic(int tic);

// Selects the ordinary font at the size whose cell is so many millimetres of the model high,
// whatever the surface's pixels are.
void SelectModelFont(DrawingSurface& surface, double heightMm);

// The upper left corner of a tic's label, in the font of labels, which is selected.
SurfacePoint ModelLabelCorner(DrawingSurface& surface, int tic);
std::string ModelLabel(int tic);

} // namespace vernacle
