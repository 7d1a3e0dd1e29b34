// The decibel scale: tics one decibel apart, at the voltage ratio of their distance from full
// scale.
//
//   r = 10 ^ (-t / 20);  r = r ^ LinearityExponent;  deflection = FullscaleMultiplier x r
//
// each rounded to a 32-bit float, for tic t counted downward from full scale.
#pragma once

#include <array>

#include "engine/setups/setup.h"

namespace vernacle {

constexpr int kDecibelRows = 25;

constexpr EntryLimits kFullScaleLimits{-200, 200};          // decibels
constexpr EntryLimits kTicmarksLimits{0, kDecibelRows - 1}; // whatever their sign
constexpr EntryLimits kMultiplierLimits{0.7F, 1.1F};

// What the user decided for a tic.
struct DecibelTic {
    Answer printed = Answer::No;
    Answer major = Answer::No;
    Answer labelled = Answer::No;
};

struct DecibelEntries {
    float fullScale = 0; // decibels
    float ticmarks = 0;
    float exponent = 0;
    float multiplier = 0;
    Answer plusSigns = Answer::Yes;           // before positive labels
    Answer unlabelledBottomTic = Answer::Yes; // one more at zero deflection
    std::array<DecibelTic, kDecibelRows> tics;
};

// Holds the four numbers to their limits, the first two to whole numbers, and writes the scale's
// tables. The bottom tic stands behind the last computed one, at the index SpecialNrOfTicmarks.
void ComputeDecibelTics(DesignRecord& design, int scale, DecibelEntries& entries);

} // namespace vernacle
