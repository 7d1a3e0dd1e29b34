// The scale of a standing-wave ratio: the deflection is the reflection coefficient of the ratio v.
//
//   r = (v - 1) / (v + 1);  deflection = r ^ LinearityExponent
//
// each rounded to a 32-bit float, for v from 1 to 10, and one more tic at full deflection.
#pragma once

#include <cstdint>

namespace vernacle {

// The steps that the page offers.
constexpr float kVswrSteps[] = {0.2F, 0.5F, 1.0F};

// What the page keeps from one computation to the next.
struct VswrSetup {
    float StepSize = 0; // one of kVswrSteps
    float CurrentRatio = 0;
    std::int16_t LastTic = 0; // number of the last tic made
};

// Stores the exponent, held to -4 .. 4, and writes the scale's tables; entries behind the last tic
// stay. A negative exponent is an ImpossibleEntry.
void ComputeVSWRTics(int scale, float exponent, VswrSetup& setup);

} // namespace vernacle
