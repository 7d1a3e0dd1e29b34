// The movement's correction curve: seven points from current to deflection, joined by straight
// segments, and the correction file that keeps one.
#pragma once

#include <string>

#include "engine/core/design.h"

namespace vernacle {

// CorrectionSlope from CorrectionPair, each the quotient of the differences of its segment's ends.
// Two neighbouring points with the same X are the run-time error of a division by zero.
void ComputeCorrectionSlopes(DesignRecord& design);

// The corrected fraction of full scale for the fraction f, by the slopes as they are stored. f is
// held to 0 .. 1 in place. A value on a point belongs to the segment above it.
float CorrectDeflection(const DesignRecord& design, float& f);

// Writes the curve to a correction file; an empty name does nothing. A failure is reported. Once
// the file is open the curve has seven points, whatever came of writing them.
void WriteCorrectionFile(DesignRecord& design, const std::string& name);

// Reads a curve. A failure is reported and keeps the points read so
// far. The slopes are not recomputed, and bad points are not judged here.
void ReadCorrectionFile(DesignRecord& design, const std::string& name);

} // namespace vernacle
