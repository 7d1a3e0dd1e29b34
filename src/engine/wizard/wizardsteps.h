// The wizard's first page without its controls: the eighteen steps with what each accepts, the
// prompts, and the repairs that make a design of whatever was entered.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "engine/core/fieldplace.h"

namespace vernacle {

// One end of what a step accepts: a number, or a field of the design.
struct WizardLimit {
    double number = 0;
    FieldPlace field = {};
    bool open = false; // the number itself is refused

    double Value(const DesignRecord& design) const;
};

// A refusal: these words, with a field's number between them if there is one.
struct WizardRefusal {
    const char* before = nullptr;
    FieldPlace field = {};
    const char* after = "";
};

struct WizardStep {
    const char* caption = nullptr;
    const char* box = nullptr;
    const char* unit = nullptr;
    FieldPlace field = {};
    WizardLimit lowest = {};
    WizardLimit highest = {};
    WizardRefusal refusal = {};
    int nextTopic = 0;                                // 0 for none
    void (*accepted)(DesignRecord& design) = nullptr; // what else the step sets
    FieldPlace count = {}; // the whole number that a working value is for
};

std::span<const WizardStep> WizardSteps();

// Reads the text of a step into its field. Gives the message of a refused value, in which a field's
// number has its leading blank; nothing if it is accepted.
std::optional<std::string> EnterWizardStep(DesignRecord& design, const WizardStep& step,
                                           const std::string& text);

// The value that a step has read, with its leading blank.
std::string WizardValue(const DesignRecord& design, const WizardStep& step);

// What a step accepts, in words, as the design stands.
std::string WizardRange(const DesignRecord& design, const WizardStep& step);

// What the user is asked for a help topic; empty for a number without a prompt.
std::string WizardPrompt(const DesignRecord& design, int topic);

// The boxes in the order in which they are read again when the page is accepted, as indices of the
// steps.
std::span<const int> WizardReadingOrder();

// Reads a step's text into its field, whatever it says.
void ReadWizardStep(DesignRecord& design, const WizardStep& step, const std::string& text);

// Gives the design usual values where the page has left none, in the order in which they depend on
// each other.
void RepairWizardDesign(DesignRecord& design);

// What the last step tells.
extern const char* const kWizardEndText;

} // namespace vernacle
