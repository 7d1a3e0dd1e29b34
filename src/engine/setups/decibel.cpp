#include "engine/setups/decibel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>

#include "engine/base/numbertext.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr double kTicsPerDecade = 20; // a ratio of voltages
constexpr int kLabelPlaces = 2;
constexpr double kLabelUnits = 100; // of the last place of a label, to the decibel

int InLabelUnits(float decibels) {
    return static_cast<int>(std::lround(double{decibels} * kLabelUnits));
}

float ToLabelUnits(float decibels) {
    return static_cast<float>(InLabelUnits(decibels) / kLabelUnits);
}

void Hold(DecibelEntries& entries) {
    const float fullScale = kFullScaleLimits.Held(entries.fullScale);
    entries.fullScale = Service.specialScales ? ToLabelUnits(fullScale) : std::floor(fullScale);
    entries.ticmarks = std::floor(TicmarksLimits().Held(std::abs(entries.ticmarks)));
    entries.step = ToLabelUnits(kStepLimits.Held(entries.step));
    entries.exponent = HeldExponent(entries.exponent);
    entries.multiplier = kMultiplierLimits.Held(entries.multiplier);
    if (Service.specialScales && entries.ticmarks < 1) {
        throw ImpossibleEntry("There are no ticmarks.\nPlease enter how many the scale has.");
    }
}

void StoreNumbers(DesignRecord& design, int scale, const DecibelEntries& entries) {
    design.SpecialNrOfTicmarks[scale] = static_cast<std::int16_t>(entries.ticmarks);
    ExponentOf(design, scale) = entries.exponent;
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
    const double below = tic * InLabelUnits(entries.step) / kLabelUnits;
    const auto ratio = static_cast<float>(std::pow(10, -below / kTicsPerDecade));
    const float bent = BentDeflection(ratio, entries.exponent);
    return static_cast<float>(double{entries.multiplier} * double{bent});
}

std::string LabelOf(int tic, const DecibelEntries& entries) {
    const int units = InLabelUnits(entries.fullScale) - tic * InLabelUnits(entries.step);
    const bool plus = entries.plusSigns == Answer::Yes && units > 0;
    const auto decibels = static_cast<float>(units / kLabelUnits);
    return (plus ? "+" : "") + RoundedToPlaces(decibels, kLabelPlaces);
}

void AddBottomTic(DesignRecord& design, int scale, int tic, Answer major) {
    design.TicDeflection[scale][tic] = 0;
    design.TicPrintYN[scale][tic] = "Y";
    design.TicMajorYN[scale][tic] = FlagOf(major);
}

// Whether both place a tic of a number alike, and label it alike.
bool IsSameLaw(const DecibelEntries& a, const DecibelEntries& b) {
    return a.fullScale == b.fullScale && a.step == b.step && a.exponent == b.exponent &&
           a.multiplier == b.multiplier && a.plusSigns == b.plusSigns;
}

bool IsSameScale(const DecibelEntries& a, const DecibelEntries& b) {
    const auto rows = static_cast<std::ptrdiff_t>(a.ticmarks) + 1;
    return IsSameLaw(a, b) && a.ticmarks == b.ticmarks &&
           a.unlabelledBottomTic == b.unlabelledBottomTic &&
           std::equal(a.tics.begin(), a.tics.begin() + rows, b.tics.begin());
}

// Those above the bottom tic, which has no law.
std::span<const KeptTic> TicsToKeep(const DecibelEntries& entries, const DecibelReading* reading) {
    if (!reading || !IsSameLaw(entries, reading->entries)) {
        return {};
    }
    const float above = std::clamp<float>(reading->entries.ticmarks, 0, kLastTic);
    return std::span(reading->tics).first(static_cast<std::size_t>(above));
}

void PutBackAll(DesignRecord& design, int scale, const DecibelReading& reading) {
    StoreNumbers(design, scale, reading.entries);
    design.UnlabelledBottomTic[scale] = reading.unlabelledBottomTic;
    int tic = 0;
    for (const KeptTic& kept : reading.tics) {
        PutBack(design, scale, tic, kept);
        ++tic;
    }
}

double LabelledDecibels(const DesignRecord& design, int scale, int tic) {
    constexpr double kLargest = 1e30;
    const double decibels = NumericValue(design.TicLabelText[scale][tic]);
    return std::clamp(decibels, -kLargest, kLargest);
}

// Of the first two labels; 1 where they do not tell.
float StepOf(const DesignRecord& design, int scale) {
    const double step = LabelledDecibels(design, scale, 0) - LabelledDecibels(design, scale, 1);
    const bool isStep = design.SpecialNrOfTicmarks[scale] > 1 && step > 0;
    return isStep ? ToLabelUnits(kStepLimits.Held(static_cast<float>(step))) : 1;
}

} // namespace

EntryLimits TicmarksLimits() {
    return {.lowest = 0,
            .highest = static_cast<double>(Service.specialScales ? kLastTic : kDecibelRows - 1)};
}

void ComputeDecibelTics(DesignRecord& design, int scale, DecibelEntries& entries,
                        const DecibelReading* reading) {
    Hold(entries);
    if (reading && IsSameScale(entries, reading->entries)) {
        PutBackAll(design, scale, *reading);
        return;
    }
    const std::span<const KeptTic> kept = TicsToKeep(entries, reading);
    StoreNumbers(design, scale, entries);
    ClearTics(design, scale);
    const int last = design.SpecialNrOfTicmarks[scale];
    for (int tic = 0; tic < last; ++tic) {
        const auto row = static_cast<std::size_t>(tic);
        const bool isKept = row < kept.size();
        const DecibelTic& choice = entries.tics.at(row);
        StoreTic(design, scale, tic,
                 {.deflection = isKept ? kept[row].deflection : DeflectionOf(tic, entries),
                  .label = isKept ? kept[row].label : LabelOf(tic, entries),
                  .printed = choice.printed,
                  .labelled = choice.labelled,
                  .major = choice.major});
    }
    design.UnlabelledBottomTic[scale] = FlagOf(entries.unlabelledBottomTic);
    if (entries.unlabelledBottomTic == Answer::Yes) {
        AddBottomTic(design, scale, last, entries.tics.at(static_cast<std::size_t>(last)).major);
    }
}

DecibelReading ReadDecibels(const DesignRecord& design, int scale) {
    DecibelReading reading;
    DecibelEntries& entries = reading.entries;
    entries.fullScale = static_cast<float>(LabelledDecibels(design, scale, 0));
    entries.ticmarks = design.SpecialNrOfTicmarks[scale];
    entries.exponent = ExponentOf(design, scale);
    entries.multiplier = design.FullscaleMultiplier[scale];
    entries.step = StepOf(design, scale);
    entries.plusSigns = AnswerIf(entries.fullScale <= 0 ||
                                 design.TicLabelText[scale][0].find('+') != std::string::npos);
    entries.unlabelledBottomTic = AnswerIf(design.UnlabelledBottomTic[scale] == "Y");
    for (int tic = 0; tic <= kLastTic; ++tic) {
        // What a finer scale may gain is printed, as on a new one.
        const bool isGained = Service.specialScales && tic >= design.SpecialNrOfTicmarks[scale];
        entries.tics.at(static_cast<std::size_t>(tic)) = {
            .printed = AnswerIf(isGained || design.TicPrintYN[scale][tic] != "N"),
            .major = AnswerIf(design.TicMajorYN[scale][tic] != "N"),
            .labelled = AnswerIf(design.TicLabelYN[scale][tic] != "N")};
    }
    for (int tic = 0; tic <= kLastTic; ++tic) {
        reading.tics.push_back(TicOf(design, scale, tic));
    }
    reading.unlabelledBottomTic = design.UnlabelledBottomTic[scale];
    return reading;
}

int TicCountedFrom(const DecibelEntries& entries) {
    const int fullScale = InLabelUnits(entries.fullScale);
    const int step = std::max(InLabelUnits(entries.step), 1);
    return fullScale % step == 0 ? fullScale / step : 0;
}

} // namespace vernacle
