// The wizard's second page without its controls: eleven values that can be nudged, with what each
// accepts.
#pragma once

#include <span>
#include <string>

#include "engine/core/fieldplace.h"

namespace vernacle {

enum class LowestEnd { Included, Excluded };

enum class Refusal {
    Left,      // a value that is not accepted just stays in its label
    Corrected, // and is replaced by one that is
};

struct Nudge {
    const char* upDown = nullptr;
    const char* caption = nullptr;
    const char* label = nullptr; // that shows the number
    const char* tip = nullptr;
    FieldPlace field = {};
    double stepsLowest = 0; // of the control
    double stepsHighest = 0;
    // What is accepted, the highest end included.
    double (*lowest)(const DesignRecord& design) = nullptr;
    double (*highest)(const DesignRecord& design) = nullptr;
    LowestEnd lowestEnd = LowestEnd::Included;
    Refusal refusal = Refusal::Left;
};

std::span<const Nudge> Nudges();

// The number as its label shows it, with its leading blank.
std::string NudgeValue(const DesignRecord& design, const Nudge& nudge);

enum class NudgeResult {
    Accepted,  // the design is to be drawn
    Corrected, // the label is to show the value that was put there
    Ignored,
};

// Reads the label's text into the field.
NudgeResult ApplyNudge(DesignRecord& design, const Nudge& nudge, const std::string& text);

} // namespace vernacle
