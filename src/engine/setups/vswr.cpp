#include "engine/setups/vswr.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

#include "engine/base/numbertext.h"
#include "engine/core/service.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

constexpr float kLastRatio = 10;
constexpr float kCrowdedFrom = 5; // above it only whole ratios are printed
using Labels = std::span<const std::string_view>;

bool IsOneOf(const std::string& label, Labels labels) {
    return std::ranges::find(labels, label) != labels.end();
}

bool IsWhole(const std::string& label) {
    return label.find('.') == std::string::npos;
}

// The label tells whether, as the counter is not exact.
bool IsCrowded(const std::string& label) {
    const double ratio = NumericValue(label);
    return ratio > double{kCrowdedFrom} && ratio < double{kLastRatio} && !IsWhole(label);
}

constexpr std::string_view kHighUnits[] = {"6", "7", "8", "9"};
constexpr std::string_view kLowHalves[] = {"1.5", "2.5", "3.5", "4.5"};
constexpr std::string_view kLabelledUnits[] = {"2", "3", "4", "5", "10"};
constexpr std::string_view kMiddleUnits[] = {"3", "4", "5"};
constexpr std::string_view kWholes[] = {"2", "3", "4", "5", "6", "7", "8", "9", "10"};

bool IsSilentAtUnits(const std::string& label, float /*ratio*/) {
    return IsOneOf(label, kHighUnits);
}

bool IsSilentAtHalves(const std::string& label, float ratio) {
    return IsOneOf(label, kLowHalves) || (ratio > kCrowdedFrom && ratio < kLastRatio);
}

// In the order of text "10" stands before "2".
bool IsSilentAtFifths(const std::string& label, float /*ratio*/) {
    return label > "2" && !IsOneOf(label, kMiddleUnits);
}

bool IsNever(const std::string& /*label*/) {
    return false;
}

struct StepRule {
    float step;
    bool (*isSilent)(const std::string& label, float ratio); // has no label
    Labels majors;
    bool (*isLeftOut)(const std::string& label); // not printed
};

constexpr StepRule kRules[] = {
    {1.0F, IsSilentAtUnits, kLabelledUnits, IsNever},
    {0.5F, IsSilentAtHalves, kWholes, IsCrowded},
    {0.2F, IsSilentAtFifths, kWholes, IsCrowded},
};

TicEntry EntryOf(const StepRule& rule, float ratio, float exponent) {
    const auto reflection = static_cast<float>((double{ratio} - 1) / (double{ratio} + 1));
    const std::string label = ShortLabel(ratio);
    return {.deflection = BentDeflection(reflection, exponent),
            .label = label,
            .printed = AnswerIf(!rule.isLeftOut(label)),
            .labelled = AnswerIf(!rule.isSilent(label, ratio)),
            .major = AnswerIf(IsOneOf(label, rule.majors))};
}

// Where all is reflected, and the ratio is infinite.
TicEntry FullReflection() {
    if (Service.specialScales) {
        return {.deflection = 1, .label = "\u221E"};
    }
    return {.deflection = 1, .label = {}, .labelled = Answer::No};
}

// Number of the last tic by a step, that of full reflection.
int LastTicBy(float step) {
    int tics = 0;
    for (float ratio = 1; ratio <= kLastRatio; ratio += step) {
        ++tics;
    }
    return tics;
}

} // namespace

float VswrStepOf(const DesignRecord& design, int scale) {
    const auto* rule = std::ranges::find_if(kRules, [&](const StepRule& candidate) {
        return LastTicBy(candidate.step) == design.SpecialNrOfTicmarks[scale];
    });
    return rule == std::end(kRules) ? 0 : rule->step;
}

void ComputeVSWRTics(DesignRecord& design, int scale, float exponent, VswrSetup& setup) {
    exponent = HeldExponent(exponent);
    ExponentOf(design, scale) = exponent;
    setup.LastTic = -1;
    const auto* rule = std::ranges::find(kRules, setup.StepSize, &StepRule::step);
    if (rule == std::end(kRules)) {
        return;
    }
    for (setup.CurrentRatio = 1; setup.CurrentRatio <= kLastRatio;
         setup.CurrentRatio += setup.StepSize) {
        const TicEntry entry = EntryOf(*rule, setup.CurrentRatio, exponent);
        ++setup.LastTic;
        StoreTic(design, scale, setup.LastTic, entry);
    }
    design.TicMajorYN[scale][0] = "Y";
    ++setup.LastTic;
    StoreTic(design, scale, setup.LastTic, FullReflection());
    design.SpecialNrOfTicmarks[scale] = setup.LastTic;
}

} // namespace vernacle
