#include "engine/base/numbertext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "engine/base/runtimeerror.h"
#include "engine/base/text.h"

namespace vernacle {

namespace {

constexpr int kSignificantDigits = 7;
constexpr int kPlainLimit = 7; // powers of ten from here on, and places behind the point beyond it,
                               // call for the exponent form

// 0.d1d2d3... times ten to the power `point`; no digits at all for zero.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;
};

void StripTrailingZeros(Decimal& decimal) {
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    if (decimal.digits.empty()) {
        decimal = Decimal{};
    }
}

Decimal ToDecimal(float value) {
    if (!std::isfinite(value)) {
        ThrowOverflow();
    }
    std::array<char, 32> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(double{value}),
                      std::chars_format::scientific, kSignificantDigits - 1);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    Decimal decimal;
    decimal.negative = std::signbit(value);
    decimal.digits = text[0];
    decimal.digits += text.substr(2, kSignificantDigits - 1);
    const std::size_t exponent = kSignificantDigits + 2;
    std::from_chars(text.data() + exponent + 1, text.data() + text.size(), decimal.point);
    if (text[exponent] == '-') {
        decimal.point = -decimal.point;
    }
    ++decimal.point;
    StripTrailingZeros(decimal);
    return decimal;
}

// Digits before the point, the point, digits behind it; no zero before the point.
std::string PlainText(const Decimal& decimal) {
    const auto& digits = decimal.digits;
    const int count = static_cast<int>(digits.size());
    std::string text = decimal.negative ? "-" : "";
    if (count == 0) {
        return "0";
    }
    if (decimal.point <= 0) {
        return text + "." + std::string(static_cast<std::size_t>(-decimal.point), '0') + digits;
    }
    const auto whole = static_cast<std::size_t>(decimal.point);
    if (decimal.point >= count) {
        return text + digits + std::string(whole - digits.size(), '0');
    }
    return text + digits.substr(0, whole) + "." + digits.substr(whole);
}

std::string ExponentText(const Decimal& decimal) {
    std::string text = decimal.negative ? "-" : "";
    text += decimal.digits[0];
    if (decimal.digits.size() > 1) {
        text += "." + decimal.digits.substr(1);
    }
    const int exponent = decimal.point - 1;
    const std::string power = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
}

bool NeedsExponent(const Decimal& decimal) {
    const int places = static_cast<int>(decimal.digits.size()) - decimal.point;
    return decimal.point > kPlainLimit || (decimal.point <= 0 && places > kPlainLimit);
}

void RoundHalfAway(Decimal& decimal, int places) {
    const int kept = decimal.point + places;
    if (kept >= static_cast<int>(decimal.digits.size())) {
        return;
    }
    if (kept < 0) {
        decimal = Decimal{};
        return;
    }
    const bool up = decimal.digits[static_cast<std::size_t>(kept)] >= '5';
    decimal.digits.resize(static_cast<std::size_t>(kept));
    if (up) {
        auto digit = decimal.digits.rbegin();
        while (digit != decimal.digits.rend() && *digit == '9') {
            *digit++ = '0';
        }
        if (digit == decimal.digits.rend()) {
            decimal.digits.insert(decimal.digits.begin(), '1');
            ++decimal.point;
        } else {
            ++*digit;
        }
    }
    StripTrailingZeros(decimal);
}

bool StartsNumber(std::string_view text) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return !text.empty() &&
           (isDigit(text[0]) || (text.size() > 1 && text[0] == '.' && isDigit(text[1])));
}

// Whether a number out of a double's range is too small for it, rather than too large.
bool IsTiny(std::string_view number) {
    const std::size_t exponent = number.find_first_of("eE");
    if (exponent != number.npos) {
        return number[exponent + 1] == '-';
    }
    return number.find_first_of("123456789") > number.find('.');
}

struct Leading {
    double value = 0;
    std::size_t length = 0; // characters used; 0 if no number stands at the start
};

// from_chars takes no "+" and does take words as "inf": both are decided here.
Leading LeadingNumber(std::string_view text) {
    const bool hasSign = !text.empty() && (text[0] == '+' || text[0] == '-');
    const std::string_view magnitude = text.substr(hasSign ? 1 : 0);
    if (!StartsNumber(magnitude)) {
        return {};
    }
    Leading leading;
    const auto [end, error] =
        std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), leading.value);
    leading.length = static_cast<std::size_t>(end - text.data());
    if (error == std::errc::result_out_of_range) {
        leading.value =
            IsTiny({magnitude.data(), end}) ? 0 : std::numeric_limits<double>::infinity();
    }
    if (text[0] == '-') {
        leading.value = -leading.value;
    }
    return leading;
}

template <typename Integer>
void StoreInteger(double value, Integer& target) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Integer>::min() &&
          rounded <= std::numeric_limits<Integer>::max())) {
        ThrowOverflow();
    }
    target = static_cast<Integer>(rounded);
}

} // namespace

std::string PlainNumber(float value) {
    const Decimal decimal = ToDecimal(value);
    return NeedsExponent(decimal) ? ExponentText(decimal) : PlainText(decimal);
}

std::string PlainNumber(std::int32_t value) {
    return std::to_string(value);
}

std::string SignedNumber(float value) {
    std::string text = PlainNumber(value);
    return text[0] == '-' ? text : " " + text;
}

std::string PaddedNumber(float value) {
    return SignedNumber(value) + " ";
}

std::string PlotterDigits(double value) {
    if (!std::isfinite(value)) {
        ThrowOverflow();
    }
    if (value != std::trunc(value)) {
        return PlainText(ToDecimal(static_cast<float>(value)));
    }
    if (value == 0) {
        return "0";
    }
    std::array<char, 320> buffer{}; // a double has at most 309 digits before its point
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, 0);
    return {buffer.data(), end};
}

std::string PlotterNumber(double value) {
    const std::string digits = PlotterDigits(value);
    return (digits[0] == '-' ? "" : " ") + digits + " ";
}

std::string RoundedToPlaces(float value, int places) {
    Decimal rounded = ToDecimal(value);
    RoundHalfAway(rounded, places);
    const std::string text = PlainText(rounded);
    float readBack = 0;
    StoreNumber(NumericValue(text), readBack);
    std::string shortest =
        rounded.point > kPlainLimit ? PlainNumber(readBack) : PlainText(ToDecimal(readBack));
    const std::size_t point = shortest.find('.');
    if (point == 0 || (point == 1 && shortest[0] == '-')) {
        shortest.insert(point, "0");
    }
    return shortest;
}

double NumericValue(std::string_view text) {
    return LeadingNumber(LeftTrimmed(text)).value;
}

std::optional<double> StrictNumber(std::string_view text) {
    const std::string_view trimmed = Trimmed(text);
    const Leading leading = LeadingNumber(trimmed);
    if (leading.length == 0 || leading.length != trimmed.size()) {
        return std::nullopt;
    }
    return leading.value;
}

void StoreNumber(double value, float& target) {
    const auto rounded = static_cast<float>(value);
    if (!std::isfinite(rounded)) {
        ThrowOverflow();
    }
    target = rounded;
}

void StoreNumber(double value, std::int16_t& target) {
    StoreInteger(value, target);
}

void StoreNumber(double value, std::int32_t& target) {
    StoreInteger(value, target);
}

} // namespace vernacle
