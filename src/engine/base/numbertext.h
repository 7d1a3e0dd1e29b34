// Number -> text and text -> number: each form of the files, the pages and the plotter once, by its
// name. Nothing here looks at the locale: a decimal point is a point.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vernacle {

// At most seven significant digits without trailing zeros and without a zero before the point:
// "75", ".15", "1E+07", "3.333333E-02". The exponent form stands where the magnitude is 1e7 or
// more, or where a number below 1 has digits beyond the seventh place behind the point. A number
// that is not finite is a run-time error.
std::string PlainNumber(float value);
std::string PlainNumber(std::int32_t value);

// The plain number with a blank before it if it is not negative.
std::string SignedNumber(float value);

// The signed form with a blank behind it.
std::string PaddedNumber(float value);

// As the padded number, but always in plain digits, whole numbers in full: a plotter reads no
// exponents. value is rounded to a float unless it is whole.
std::string PlotterNumber(double value);

// The digits of PlotterNumber without the blanks.
std::string PlotterDigits(double value);

// The value's decimal text of at most seven digits, rounded half away from zero to so many places
// behind the point, read back as a float and written in its shortest form; unlike the plain number
// it keeps the zero before the point.
std::string RoundedToPlaces(float value, int places);

// The longest decimal number (sign, digits, point, exponent) that the text starts with behind its
// leading blanks, else 0. An infinity of its sign where the number exceeds a double.
double NumericValue(std::string_view text);

// The number that the whole text is, blanks around it allowed; nothing if it is not one.
std::optional<double> StrictNumber(std::string_view text);

// value as the target's type: rounded to a float, or to the nearest integer with ties to even.
// A value outside the type is a failed conversion, a run-time error.
void StoreNumber(double value, float& target);
void StoreNumber(double value, std::int16_t& target);
void StoreNumber(double value, std::int32_t& target);

} // namespace vernacle
