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

// The same, but a neighbour with the same X, through which no line has a slope, gives it slope 1.
void ComputeGuardedSlopes(DesignRecord& design);

// Whether point 1 to 6, counted from 0, stands above the one before it, in X and in Y, by at least
// a thousandth.
bool PointRises(const DesignRecord& design, int point);

// Whether all of them do: else no drawing can follow the curve.
bool CurveRises(const DesignRecord& design);

// The deflection that the pointer of this movement shows at the fraction f of full scale, by the
// points alone: before the first and behind the last the curve goes on as its end segments do, to
// at most a tenth of the swing beyond either end. One that does not rise counts as straight.
double ContinuedDeflection(const DesignRecord& design, double f);

// Writes the curve to a correction file; an empty name does nothing. A failure is reported. Once
// the file is open the curve has seven points, whatever came of writing them.
void WriteCorrectionFile(DesignRecord& design, const std::string& name);

// The deflection that a drawing shows at the fraction f, which is the curve's part between its
// ends, by the slopes; or, where curves outlive the session, all of it, by its points.
double DrawnDeflection(const DesignRecord& design, double f);

// Reads a curve. A failure is reported and keeps the points read so far, where files are careful
// the curve that was there. The slopes are not recomputed, and bad points are not judged here.
void ReadCorrectionFile(DesignRecord& design, const std::string& name);

} // namespace vernacle
