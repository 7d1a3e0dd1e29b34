// The plotter's view of a design: a stream of HP-GL commands, plain or wrapped in PCL. Simpler than
// the drawing on a surface: it knows no deletions, corrections, relative sizes or special scales.
#pragma once

#include <string>

namespace vernacle {

class ByteSink;

enum class HpglMode {
    File = 1,       // the stream alone
    PclPrinter = 2, // wrapped for a PCL printer with an HP-GL/2 interpreter, on port LPT1
};

// Writes the design to the file of that path, or in mode 2, whatever the path, to the printer's
// port. Success and failure are both shown in a message box.
void WriteHpgl(const std::string& path, HpglMode mode);

// Writes the whole stream; throws the failure. Counts NumberOfTexts into the design.
void WriteHpglStream(ByteSink& sink, HpglMode mode);

} // namespace vernacle
