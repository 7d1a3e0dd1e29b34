#include "engine/setups/decibel.h"

#include <cmath>
#include <cstdlib>

#include "engine/base/numbertext.h"

namespace vernacle {

namespace {

constexpr double kTicsPerDecade = 20; // a ratio of voltages

void Hold(DecibelEntries& entries) {
    entries.fullScale = std::floor(kFullScaleLimits.Held(entries.fullScale));
    entries.ticmarks = std::floor(kTicmarksLimits.Held(std::abs(entries.ticmarks)));
    entries.exponent = HeldExponent(entries.exponent);
    entries.multiplier = kMultiplierLimits.Held(entries.multiplier);
}

void StoreNumbers(DesignRecord& design, int scale, const DecibelEntries& entries) {
    design.SpecialNrOfTicmarks[scale] = static_cast<std::int16_t>(entries.ticmarks);
    design.LinearityExponent[scale] = entries.exponent;
    design.FullscaleMultiplier[scale] = entries.multiplier;
}

// Major tics and labels keep what they hold behind the last tic.
void ClearTics(DesignRecord& design, int scale) {
    for (int tic = 0; tic <= kLastTic; ++tic) {
        design.TicDeflection[scale][tic] = 0;
        design.StandardLabel[scale][tic].clear();
        design.TicPrintYN[scale][tic] = "N";
        design.TicLabelYN[scale][tic] = "N";
    }
}

float DeflectionOf(int tic, const DecibelEntries& entries) {
    const auto ratio = static_cast<float>(std::pow(10, -tic / kTicsPerDecade));
    const float bent = BentDeflection(ratio, entries.exponent);
    return static_cast<float>(double{entries.multiplier} * double{bent});
}

std::string LabelOf(int tic, const DecibelEntries& entries) {
    const float decibels = entries.fullScale - static_cast<float>(tic);
    const bool plus = entries.plusSigns == Answer::Yes && decibels > 0;
    return (plus ? "+" : "") + PlainNumber(decibels);
}

void AddBottomTic(DesignRecord& design, int scale, int tic, Answer major) {
    design.TicDeflection[scale][tic] = 0;
    design.TicPrintYN[scale][tic] = "Y";
    design.TicMajorYN[scale][tic] = FlagOf(major);
}

} // namespace

void ComputeDecibelTics(DesignRecord& design, int scale, DecibelEntries& entries) {
    Hold(entries);
    StoreNumbers(design, scale, entries);
    ClearTics(design, scale);
    const int last = design.SpecialNrOfTicmarks[scale];
    for (int tic = 0; tic < last; ++tic) {
        const DecibelTic& choice = entries.tics.at(static_cast<std::size_t>(tic));
        StoreTic(design, scale, tic,
                 {.deflection = DeflectionOf(tic, entries),
                  .label = LabelOf(tic, entries),
                  .printed = choice.printed,
                  .labelled = choice.labelled,
                  .major = choice.major});
    }
    design.UnlabelledBottomTic[scale] = FlagOf(entries.unlabelledBottomTic);
    if (entries.unlabelledBottomTic == Answer::Yes) {
        AddBottomTic(design, scale, last, entries.tics.at(static_cast<std::size_t>(last)).major);
    }
}

} // namespace vernacle
