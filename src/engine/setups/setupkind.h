// The kinds of setups. A scale remembers which made its tics, for what one kind wrote another reads
// as something else.
#pragma once

#include <string>

#include "engine/core/design.h"

namespace vernacle {

struct SetupKind {
    const char* name = nullptr; // as a scale remembers it
    int room = kLastTic + 1;    // tics that it can take
    bool takesAny = false;      // also tics that another kind made
};

constexpr SetupKind kOhmmeterKind{.name = "ohmmeter", .room = 30, .takesAny = true};
constexpr SetupKind kArbitraryKind{.name = "arbitrary", .room = 31, .takesAny = true};
constexpr SetupKind kSmeterKind{.name = "S-meter"};
constexpr SetupKind kVswrKind{.name = "VSWR"};
constexpr SetupKind kDecibelKind{.name = "dB"};

// From then on the scale's tables are that kind's; behind its last tic they are empty.
void RememberSetup(DesignRecord& design, int scale, const SetupKind& kind);

// Whether the tables of the scale hold tics that a setup of that kind reads back: its own, marked
// or not, those of a special scale that remembers none, and those of any if it takes them.
bool HoldsTicsFor(const DesignRecord& design, int scale, const SetupKind& kind);

// What a setup of that kind would take from the scale, in words for a question; empty if nothing.
std::string LossBy(const DesignRecord& design, int scale, const SetupKind& kind);

} // namespace vernacle
