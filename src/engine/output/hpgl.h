// The plotter's view of a design: a stream of HP-GL commands, plain or wrapped in PCL. Simpler than
// the drawing on a surface: it knows no deletions, corrections, relative sizes or special scales.
#pragma once

#include <string>

#include "engine/geometry/geometry.h"

namespace vernacle {

class ByteSink;
struct DesignRecord;

enum class HpglMode {
    File = 1,       // the stream alone
    PclPrinter = 2, // wrapped for a PCL printer with an HP-GL/2 interpreter, on port LPT1
};

// Writes the design to the file of that path, or in mode 2, whatever the path, to the printer's
// port. Success and failure are both shown in a message box. Where true plates are in service it is
// one of those; its tables must be computed.
void WriteHpgl(DesignRecord& design, const std::string& path, HpglMode mode);

// Writes the whole stream; throws the failure. Behind the scales, where texts are printed at all,
// the texts are counted into the design.
void WriteHpglStream(DesignRecord& design, ByteSink& sink, HpglMode mode);

// A cosine or sine that is no more than rounding as 0.
double ZeroIfTiny(double value);

// What stands before and behind all that is plotted.
void BeginPlot(ByteSink& sink, HpglMode mode, double fontSize);
void EndPlot(ByteSink& sink, HpglMode mode);

// NumberOfTexts becomes the count of the first five texts that are not empty: so many of the list
// are plotted.
void CountPlottedTexts(DesignRecord& design);

// The plate in plotter units, y upward. A quadrant plate is plotted like any other. A run-time
// error if the plate is too large for the corner to be a 16-bit number.
PlateFrame PlotterFrame(const DesignRecord& design);

} // namespace vernacle
