// What the setups of special scales share. A special scale's tics stand one by one in the design's
// tables; only the sign of its ScaleColor tells that they count.
#pragma once

#include <stdexcept>
#include <string>

#include "engine/core/design.h"
#include "engine/core/entry.h"

namespace vernacle {

// An entry from which no scale can be computed. What was stored before stays; the text tells the
// user what is wrong.
class ImpossibleEntry : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Makes the scale special: its colour becomes negative, and black, which has no sign, becomes 1
// before.
void MarkSpecial(DesignRecord& design, int scale);

// What the setups hold a linearity exponent to. Where it is in service it is above 0, as a law that
// has no value at the scale's end is none: any other is an ImpossibleEntry.
EntryLimits ExponentLimits();
bool CanBend(float exponent);
float HeldExponent(float exponent);

// Where a setup's law keeps its exponent: with the standard law's, or apart where it is in service,
// so that reverting the scale gives that law back.
float& ExponentOf(DesignRecord& design, int scale);
float ExponentOf(const DesignRecord& design, int scale);

// The fraction to the power of the exponent, as a float. 0 to a negative power is an
// ImpossibleEntry.
float BentDeflection(float fraction, float exponent);

// "Y" or "N", as the tables hold an answer.
enum class Answer { Yes, No };
Answer AnswerIf(bool yes);
std::string FlagOf(Answer answer);

// The tables' entry of one tic.
struct TicEntry {
    float deflection = 0; // fraction of full deflection, before any movement correction
    std::string label;
    Answer printed = Answer::Yes;
    Answer labelled = Answer::Yes;
    Answer major = Answer::Yes;
};

void StoreTic(DesignRecord& design, int scale, int tic, const TicEntry& entry);

// A tic as the tables hold it, for a page that gives back what was not touched.
struct KeptTic {
    float deflection = 0;
    std::string label;
    std::string printed;
    std::string labelled;
    std::string major;
};

KeptTic TicOf(const DesignRecord& design, int scale, int tic);
void PutBack(DesignRecord& design, int scale, int tic, const KeptTic& kept);

// A design file writes "/" for an empty label: such a label becomes a blank.
void MendEmptyLabel(DesignRecord& design, int scale, int tic);

// Whether the text can be a number at all.
bool HasDigit(const std::string& text);

// A number from 0 up, with one place behind the point unless that is 0: "2", "1.5", and "10" for
// 9.99.
std::string ShortLabel(float value);

} // namespace vernacle
