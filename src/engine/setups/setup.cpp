#include "engine/setups/setup.h"

#include <cmath>
#include <cstdlib>

#include "engine/base/runtimeerror.h"
#include "engine/base/text.h"
#include "engine/core/service.h"

namespace vernacle {

void MarkSpecial(DesignRecord& design, int scale) {
    std::int32_t& colour = design.ScaleColor[scale];
    if (colour == 0) {
        colour = 1;
    }
    colour = -std::abs(colour);
}

EntryLimits ExponentLimits() {
    constexpr double kSteepest = 4;
    return {.lowest = Service.exponent ? 0 : -kSteepest,
            .highest = kSteepest,
            .lowestIsOpen = Service.exponent};
}

bool CanBend(float exponent) {
    const EntryLimits limits = ExponentLimits();
    return !limits.lowestIsOpen || double{exponent} > limits.lowest;
}

float& ExponentOf(DesignRecord& design, int scale) {
    return Service.exponent ? design.SpecialExponent[scale] : design.LinearityExponent[scale];
}

float ExponentOf(const DesignRecord& design, int scale) {
    return Service.exponent ? design.SpecialExponent[scale] : design.LinearityExponent[scale];
}

float HeldExponent(float exponent) {
    if (!CanBend(exponent)) {
        throw ImpossibleEntry("A scale cannot be computed by this linearity exponent.\n"
                              "Please enter one above 0; 1 is linear.");
    }
    return ExponentLimits().Held(exponent);
}

float BentDeflection(float fraction, float exponent) {
    if (fraction == 0 && exponent < 0) {
        throw ImpossibleEntry("The first tic stands at no deflection, which a negative linearity "
                              "exponent cannot bend.\nPlease enter an exponent of 0 or more.");
    }
    return static_cast<float>(CheckedPower(double{fraction}, double{exponent}));
}

Answer AnswerIf(bool yes) {
    return yes ? Answer::Yes : Answer::No;
}

std::string FlagOf(Answer answer) {
    return answer == Answer::Yes ? "Y" : "N";
}

void StoreTic(DesignRecord& design, int scale, int tic, const TicEntry& entry) {
    design.TicDeflection[scale][tic] = entry.deflection;
    design.TicLabelText[scale][tic] = entry.label;
    design.TicPrintYN[scale][tic] = FlagOf(entry.printed);
    design.TicLabelYN[scale][tic] = FlagOf(entry.labelled);
    design.TicMajorYN[scale][tic] = FlagOf(entry.major);
}

KeptTic TicOf(const DesignRecord& design, int scale, int tic) {
    return {.deflection = design.TicDeflection[scale][tic],
            .label = design.TicLabelText[scale][tic],
            .printed = design.TicPrintYN[scale][tic],
            .labelled = design.TicLabelYN[scale][tic],
            .major = design.TicMajorYN[scale][tic]};
}

void PutBack(DesignRecord& design, int scale, int tic, const KeptTic& kept) {
    design.TicDeflection[scale][tic] = kept.deflection;
    design.TicLabelText[scale][tic] = kept.label;
    design.TicPrintYN[scale][tic] = kept.printed;
    design.TicLabelYN[scale][tic] = kept.labelled;
    design.TicMajorYN[scale][tic] = kept.major;
}

void MendEmptyLabel(DesignRecord& design, int scale, int tic) {
    std::string& label = design.TicLabelText[scale][tic];
    if (Trimmed(label) == "/") {
        label = " ";
    }
}

bool HasDigit(const std::string& text) {
    return text.find_first_of("0123456789") != text.npos;
}

std::string ShortLabel(float value) {
    const auto tenths = static_cast<int>(std::lround(double{value} * 10));
    const std::string whole = std::to_string(tenths / 10);
    return tenths % 10 == 0 ? whole : whole + "." + std::to_string(tenths % 10);
}

} // namespace vernacle
