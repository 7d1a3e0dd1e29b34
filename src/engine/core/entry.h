// Entry checking and number formatting: the one routine that every typed number and most numbers of
// a design file pass, the short text of a number, and the small routines that all pages share.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace vernacle {

// Turns forgiving text ("2k2", "1,5", "-1e-3") into a number and stores it in the target; bad text
// gives 0 or the number found so far, a text of more than ten characters is ignored. Trims text in
// place. Never fails: an overflow stores 1e10, held to the type.
void ParseEntry(std::string& text, float& target);
void ParseEntry(std::string& text, std::int16_t& target);
void ParseEntry(std::string& text, std::int32_t& target);

// What an entry is held to: a row of a page's table, from which both its limiting and what the page
// tells of it come. An end without limit is infinite; an open one is not itself accepted.
struct EntryLimits {
    static constexpr double kNone = std::numeric_limits<double>::infinity();

    double lowest = -kNone;
    double highest = kNone;
    bool lowestIsOpen = false;
    bool highestIsOpen = false;

    double Held(double value) const { return std::clamp(value, lowest, highest); }
    float Held(float value) const { return static_cast<float>(Held(double{value})); }
};

// The limits in words, "20 to 180 mm", "at least -100 mm", "above 0, below 101"; empty where there
// are none.
std::string RangeText(const EntryLimits& limits, std::string_view unit);

// The number in plain digits that an entry takes in full: at most ten characters, rounded where it
// has more digits, and in the short form where it is too large for them.
std::string EntryText(float value);

// Whether a text is one that ParseEntry ignores for its length.
bool IsTooLongForEntry(std::string_view text);

// The short text that labels and lists show: 1.5M, 1235, 123.46, .5, 0.
void FormatByMagnitude(double value, std::string& result);

// The arc sine of x in radians. x is first held to +-0.999999, in the caller's variable too, so
// that a geometry which cannot be still draws.
double ArcSin(double& x);

// What ArcSin noted last, for the message of a drawing that fails. It becomes a text only where one
// is read: to make that text takes longer than all else that a tic asks for.
struct StepTrace {
    std::optional<double> argument;

    std::string Text() const; // "In ArcSin, X=" and the argument; empty before the first
};

extern StepTrace LastStepTrace;

// Serves the pending events once, then blocks until so many seconds have passed.
void Delay(float seconds);

} // namespace vernacle
