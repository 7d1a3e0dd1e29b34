// The tables of a standard scale: where each tic stands, what each label says, and the lists of the
// tics and labels that the user deleted.
#pragma once

#include "engine/core/design.h"

namespace vernacle {

// Fills StandardDeflection of every standard scale: tic t of N at (t / N) to the LinearityExponent,
// a fraction of full deflection before any movement correction. A run-time error for 0 / 0 and for
// 0 to a negative power. Special scales keep what they hold.
void ComputeTicDeflections(DesignRecord& design);

// Fills StandardLabel of every scale for the tics that are multiples of LabelsEveryHowMany; all
// other entries keep what they hold.
void ComputeTicLabels(DesignRecord& design);

// Rebuilds the lists of deleted tics and labels from the flags of all 361 tics of each scale. A
// run-time error when all 361 are deleted: a list has 360 entries.
void CollectDeletedTics(DesignRecord& design);

// Whether a scale's tics are those that a setup stored, as its negative colour marks.
bool IsSpecial(const DesignRecord& design, int scale);

// Whether tic is a multiple of every; the run-time error of a division by 0 if every is 0.
bool IsMultiple(int tic, int every);

} // namespace vernacle
