// The scale of a standing-wave ratio: the deflection is the reflection coefficient of the ratio v.
//
//   r = (v - 1) / (v + 1);  deflection = r ^ LinearityExponent
//
// each computed in double and rounded to a 32-bit float, for v from 1 to 10, and one more tic at
// full deflection, which special scales in service label with the sign of infinity.
#pragma once

#include <cstdint>

#include "engine/core/design.h"

namespace vernacle {

// What the page keeps from one computation to the next.
struct VswrSetup {
    float StepSize = 0; // 0.2, 0.5 or 1; 0 until one is chosen
    float CurrentRatio = 0;
    std::int16_t LastTic = 0; // number of the last tic made
};

// Stores the exponent, held to its limits, and writes the scale's tables; entries behind the last
// tic stay. Another step ends it there, and so does a negative exponent, as an ImpossibleEntry.
void ComputeVSWRTics(DesignRecord& design, int scale, float exponent, VswrSetup& setup);

// The step of a scale that was made here; 0 where no step makes so many tics.
float VswrStepOf(const DesignRecord& design, int scale);

} // namespace vernacle
