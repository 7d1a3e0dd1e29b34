// The plate on paper, true to size: the same geometry and tics as on the screen in the printer's
// own frame, with labels and titles placed for print, a ruler in millimetres and a footer.
#pragma once

#include <functional>

#include "engine/render/drawing.h"

namespace vernacle {

class PrinterSurface;

constexpr double kMarksReach = 300; // the trim marks end so many units from the plate
constexpr double kFooterPoints = 6; // at which lines 150 units apart do not touch

// Prints the design by the calibration factors as they stand. Returns whether the document was
// sent; a failure ends the document and is reported without a sound.
bool PrintDesign(const DesignRecord& design, PrinterSurface& printer, const DrawingSteps& steps);

// The print of a design by its owner: the calibration factors are first held to 0.5 .. 2, and it
// takes all the steps. Where true plates are in service it is one of those.
bool PrintPlate(DesignRecord& design, PrinterSurface& printer);

// Runs a print. A failure ends the document and is reported without a sound; false then.
bool PrintReporting(PrinterSurface& printer, const DrawingState& state,
                    const std::function<void()>& print);

// The printed plate's frame: one factor for each axis, no aspect.
PlateFrame PrintFrame(const DesignRecord& design);

// The traits by which a plate is printed, for whoever must know which tics and labels that shows.
DrawingTraits PrintTraits();

// The text that the print writes for a label: a lone "/" stands for none and becomes a blank.
std::string PrintedLabel(const TicLabel& label);

} // namespace vernacle
