// The true plate as HP-GL: the drawing of the screen and the paper, sorted by pens.
#pragma once

#include <string>
#include <vector>

#include "engine/core/entry.h"
#include "engine/geometry/drawingsurface.h"
#include "engine/output/hpgl.h"

namespace vernacle {

// A pen of the plotter and what it draws in.
struct PlotterPen {
    Colour colour = kBlackInk;
    std::string name; // of the colour, in letters
};

// The pens that the design's plate wants, pen 1 first: black, then the colours in the order in
// which they are drawn. A plotter holds eight; what a ninth colour would draw takes the nearest.
std::vector<PlotterPen> PensOf(const DesignRecord& design);

// Whether the plate has more colours than a plotter has pens.
bool NeedsMorePens(const DesignRecord& design);

// The pens in words, a line each, and what becomes of further colours.
std::string PenTable(const DesignRecord& design);

// How wide a plotter's pens are, mm.
constexpr EntryLimits kPenMm{.lowest = 0.1, .highest = 2};

// The stream of a design whose tables are computed; a run-time error passes through.
void PlotTruePlate(const DesignRecord& design, ByteSink& sink, HpglMode mode);

} // namespace vernacle
