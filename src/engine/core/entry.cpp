#include "engine/core/entry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <type_traits>

#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/runtimeerror.h"
#include "engine/base/text.h"

namespace vernacle {

namespace {

constexpr std::size_t kLongestEntry = 10;
constexpr std::size_t kLongestNumber = 16;
constexpr double kLargestEntry = 1e10;

struct Unit {
    std::string_view letters;
    char appended;
    float multiplier;
};

constexpr Unit kUnits[] = {
    {"pP", 'p', 1e-12F}, //
    {"nN", 'n', 1e-9F},  //
    {"uU", 'u', 1e-6F},  //
    {"m", 'm', 0.001F},  // milli: case tells it from mega
    {"kK", 'k', 1000},   //
    {"M", 'M', 1e6F},    //
    {"gG", 'G', 1e9F},   //
};

const Unit* FindUnit(char c) {
    const auto* unit = std::find_if(std::begin(kUnits), std::end(kUnits), [c](const Unit& u) {
        return u.letters.find(c) != u.letters.npos;
    });
    return unit == std::end(kUnits) ? nullptr : unit;
}

// What the characters of an entry add up to, one at a time.
class Accumulator {
public:
    void Add(char c) {
        AddNumberCharacter(c == ',' ? '.' : c);
        if (!text_.empty()) {
            AddLetter(c);
        }
    }

    // The number that the accumulated text starts with, times its unit, each rounded to a float.
    float Value() const {
        float number = 0;
        StoreNumber(NumericValue(text_), number);
        StoreNumber(double{number} * double{multiplier_}, number);
        return number;
    }

    bool IsClosed() const { return closed_; }

private:
    void AddNumberCharacter(char c) {
        if (c == '.') {
            AddPoint();
        } else if (c == '+' || c == '-' ? TakesSign() : TakesDigit(c)) {
            text_ += c;
        }
    }

    void AddPoint() {
        if (!unitSeen_ && !pointSeen_) {
            pointSeen_ = true;
            text_ += '.';
        }
    }

    bool TakesDigit(char c) const {
        return c >= '0' && c <= '9' && text_.size() < kLongestNumber && !unitSeen_;
    }

    bool TakesSign() const { return text_.empty() || text_.back() == 'E'; }

    void AddLetter(char c) {
        if ((c == 'E' || c == 'e') && !unitSeen_) {
            closed_ = exponentSeen_; // nothing behind a second exponent counts
            if (!exponentSeen_) {
                exponentSeen_ = pointSeen_ = true;
                text_ += 'E';
            }
        } else if (const Unit* unit = FindUnit(c); unit && !exponentSeen_ && !unitSeen_) {
            unitSeen_ = true;
            text_ += unit->appended;
            multiplier_ = unit->multiplier;
        }
    }

    std::string text_;
    float multiplier_ = 1;
    bool pointSeen_ = false;
    bool exponentSeen_ = false;
    bool unitSeen_ = false;
    bool closed_ = false;
};

template <typename T>
T LargestEntry() {
    return static_cast<T>(
        std::min(kLargestEntry, static_cast<double>(std::numeric_limits<T>::max())));
}

template <typename T>
void StoreEntry(const Accumulator& accumulator, T& target) {
    T value = 0;
    try {
        StoreNumber(accumulator.Value(), value);
    } catch (const RunTimeError&) {
        value = LargestEntry<T>();
    }
    if constexpr (std::is_floating_point_v<T>) {
        value = std::clamp(value, -LargestEntry<T>(), LargestEntry<T>());
    }
    target = value;
}

template <typename T>
void Parse(std::string& text, T& target) {
    if (IsTooLongForEntry(text)) {
        return;
    }
    text = std::string(Trimmed(text));
    Accumulator accumulator;
    for (const char c : text) {
        accumulator.Add(c);
        if (accumulator.IsClosed()) {
            break;
        }
    }
    StoreEntry(accumulator, target);
}

struct Magnitude {
    double from; // the smallest magnitude of the row
    double divisor;
    std::string_view pattern; // one # for each digit that may stand there
    std::string_view suffix;
};

constexpr Magnitude kMagnitudes[] = {
    {1e9, 1e9, "##.###", "G"}, //
    {1e6, 1e6, "##.###", "M"}, //
    {1e3, 1, "#####", ""},     //
    {1e2, 1, "####.##", ""},   //
    {1e1, 1, "###.###", ""},   //
    {1e0, 1, "##.####", ""},   //
    {0, 1, "#.#####", ""},     //
};

int PlacesOf(std::string_view pattern) {
    const std::size_t point = std::min(pattern.find('.'), pattern.size() - 1);
    return static_cast<int>(pattern.size() - 1 - point);
}

constexpr double kShownAsZero = 0.00001;

// Held to what a float can hold: showing a number never fails.
float ToFloat(double value) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -kLargest, kLargest));
}

// "-0.500" as "-.5", "-0.000" as "0".
std::string WithoutIdleZeros(std::string text) {
    if (text.find('.') != text.npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') {
            text.pop_back();
        }
    }
    const bool hasSign = text.starts_with('-');
    const std::size_t first = hasSign ? 1 : 0;
    if (text.compare(first, 2, "0.") == 0) {
        text.erase(first, 1);
    }
    return text == "-0" ? "0" : text;
}

} // namespace

bool IsTooLongForEntry(std::string_view text) {
    return CharacterCount(text) > kLongestEntry;
}

std::string EntryText(float value) {
    constexpr int kMostPlaces = 9;
    std::array<char, 64> buffer{};
    char* const first = buffer.data();
    char* const last = first + buffer.size();
    char* end = std::to_chars(first, last, value, std::chars_format::fixed).ptr;
    std::string text = WithoutIdleZeros({first, end}); // no more digits than tell it from others
    for (int places = kMostPlaces; IsTooLongForEntry(text) && places >= 0; --places) {
        end = std::to_chars(first, last, value, std::chars_format::fixed, places).ptr;
        text = WithoutIdleZeros({first, end});
    }
    if (IsTooLongForEntry(text)) {
        FormatByMagnitude(double{value}, text);
    }
    return text;
}

void ParseEntry(std::string& text, float& target) {
    Parse(text, target);
}

void ParseEntry(std::string& text, std::int16_t& target) {
    Parse(text, target);
}

void ParseEntry(std::string& text, std::int32_t& target) {
    Parse(text, target);
}

void FormatByMagnitude(double value, std::string& result) {
    const double magnitude = std::fabs(value);
    const auto* row = std::find_if(std::begin(kMagnitudes), std::end(kMagnitudes) - 1,
                                   [=](const Magnitude& m) { return magnitude >= m.from; });
    float scaled = 0;
    if (magnitude > kShownAsZero) {
        scaled = ToFloat(value / row->divisor);
    }
    if (scaled == 0) {
        result = "0";
        return;
    }
    result = RoundedToPlaces(scaled, PlacesOf(row->pattern));
    result += row->suffix;
    if (result.size() > 1 && result[0] == '0') { // a sign shields the zero: -0.5 keeps it
        result.erase(0, 1);
    }
}

std::string RangeText(const EntryLimits& limits, std::string_view unit) {
    constexpr int kPlaces = 6;
    const auto number = [](double value) { return RoundedToPlaces(ToFloat(value), kPlaces); };
    const std::string behind = unit.empty() ? "" : " " + std::string(unit);
    const std::string lowest = number(limits.lowest);
    const std::string highest = number(limits.highest);
    const bool hasLowest = limits.lowest > -EntryLimits::kNone;
    const bool hasHighest = limits.highest < EntryLimits::kNone;
    const std::string from = (limits.lowestIsOpen ? "above " : "at least ") + lowest;
    const std::string to = (limits.highestIsOpen ? "below " : "at most ") + highest;
    if (hasLowest && hasHighest) {
        const bool closed = !limits.lowestIsOpen && !limits.highestIsOpen;
        return (closed ? lowest + " to " + highest : from + ", " + to) + behind;
    }
    if (hasLowest) {
        return from + behind;
    }
    return hasHighest ? to + behind : "";
}

StepTrace LastStepTrace;

std::string StepTrace::Text() const {
    return argument ? "In ArcSin, X=" + PlainNumber(ToFloat(*argument)) : "";
}

double ArcSin(double& x) {
    constexpr double kLimit = 0.999999; // short of a right angle, so that the root is never 0
    LastStepTrace.argument = x;
    x = std::clamp(x, -kLimit, kLimit);
    return std::atan(x / std::sqrt(1 - x * x));
}

void Delay(float seconds) {
    const auto now = [] { return static_cast<float>(Host.clockSeconds()); };
    const float target = now() + seconds;
    Host.servePendingEvents();
    while (now() < target) {
        Host.pause();
    }
}

} // namespace vernacle
