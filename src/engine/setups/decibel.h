// The decibel scale: tics a step apart, one decibel if no other is entered, at the voltage ratio of
// their distance from full scale.
//
//   r = 10 ^ (-t x step / 20);  r = r ^ LinearityExponent;  deflection = FullscaleMultiplier x r
//
// each rounded to a 32-bit float, for tic t counted downward from full scale.
#pragma once

#include <array>
#include <vector>

#include "engine/setups/setup.h"

namespace vernacle {

constexpr int kDecibelRows = 25; // with steps of whole decibels

constexpr EntryLimits kFullScaleLimits{-200, 200}; // decibels
constexpr EntryLimits kMultiplierLimits{0.7F, 1.1F};
constexpr EntryLimits kStepLimits{0.1F, 10}; // decibels

// Of the number of tics, whatever its sign: all that a scale has room for where finer steps than a
// decibel are in service.
EntryLimits TicmarksLimits();

// What the user decided for a tic.
struct DecibelTic {
    Answer printed = Answer::No;
    Answer major = Answer::No;
    Answer labelled = Answer::No;

    bool operator==(const DecibelTic&) const = default;
};

struct DecibelEntries {
    float fullScale = 0; // decibels
    float ticmarks = 0;
    float exponent = 0;
    float multiplier = 0;
    float step = 1;                           // decibels
    Answer plusSigns = Answer::Yes;           // before positive labels
    Answer unlabelledBottomTic = Answer::Yes; // one more at zero deflection
    std::array<DecibelTic, kLastTic + 1> tics;
};

// What a scale was read back as, and all of its tables as they stood.
struct DecibelReading {
    DecibelEntries entries;
    std::vector<KeptTic> tics;
    std::string unlabelledBottomTic;
};

// Holds the numbers to their limits, the first two to whole numbers (hundredths of a decibel where
// finer steps are in service), and writes the scale's tables. The bottom tic stands behind the last
// computed one, at the index SpecialNrOfTicmarks. Tics whose law is still that of the reading keep
// what they had there; an entry that gives no scale is an ImpossibleEntry, and nothing is written.
void ComputeDecibelTics(DesignRecord& design, int scale, DecibelEntries& entries,
                        const DecibelReading* reading = nullptr);

// The entries that make the scale as it stands, its step and its signs taken from the labels.
DecibelReading ReadDecibels(const DesignRecord& design, int scale);

// The tic from which every so many are counted, that of 0 dB if there is one: it may lie beyond
// either end of the scale.
int TicCountedFrom(const DecibelEntries& entries);

} // namespace vernacle
