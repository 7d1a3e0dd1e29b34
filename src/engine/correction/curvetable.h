// The correction curve as numbers: what its pages show in boxes and in the table.
#pragma once

#include <string>

#include "engine/core/design.h"

namespace vernacle {

// A fraction in percent: "0.0" below a thousandth, "100.0" above .999, else as "15. " and ".05 ".
std::string FormatPercentEntry(float fraction);

// A fraction in percent, in a number's plain form.
std::string PlainPercent(float fraction);

// A percentage or a slope: "0." below .001, "100." above 99.99, else in the same form.
std::string FormatTableValue(double value);

constexpr int kTableRows = 51;

enum class Slopes { Fresh, Failed };

// Computes the slopes, as the table does for each of its rows. A curve that has none is reported,
// or guarded where curves outlive the session.
Slopes RefreshSlopes(DesignRecord& design);

// Row 0 to 50 of the table, in its columns: the point, the current and the deflection in percent.
// Where the slopes failed, the current is left uncorrected.
std::string CurveRow(const DesignRecord& design, int row, Slopes slopes);

// Segment 1 to 6: its number, where it starts and stops in percent of the current, its slope.
std::string SegmentRow(const DesignRecord& design, int segment);

// Above those columns.
extern const char* const kCurveHeading;
extern const char* const kSegmentHeading;

} // namespace vernacle
