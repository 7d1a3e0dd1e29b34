// The scale of a signal-strength meter: S-units of 6 decibels up to S 9, and decibels above it,
// linear in decibels but for the exponent.
//
//   q = i / top;  deflection = q ^ LinearityExponent
//
// each rounded to a 32-bit float, for entry i of the scale's table.
#pragma once

#include <cstdint>

#include "engine/core/design.h"

namespace vernacle {

// What the page keeps from one computation to the next.
struct SmeterSetup {
    std::int16_t ScaleType = 0; // 1 to 4: S 9, S 9 +40, +50, +60; 0 until one is chosen
    std::int16_t LastTic = 0;   // number of the last tic made, -1 for none
};

// Stores the exponent, held to its limits, empties the labels and flags of scales 1 to 4 (where
// several are in service, of this one alone), and writes the tables of this scale; no type ends it
// there. A negative exponent is an ImpossibleEntry, in the everyday program behind the emptying.
void ComputeSmeterTics(DesignRecord& design, int scale, float exponent, SmeterSetup& setup);

// The type of a scale that was made here; 0 where no type has so many tics.
int SmeterTypeOf(const DesignRecord& design, int scale);

} // namespace vernacle
