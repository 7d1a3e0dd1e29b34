#include "engine/correction/curvetable.h"

#include <algorithm>

#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/service.h"
#include "engine/correction/curve.h"

namespace vernacle {

const char* const kCurveHeading = "Point:  Current:  Deflection:";
const char* const kSegmentHeading = "Segment:  Start %:  Stop %:  Slope:";

namespace {

// Characters before the columns of the headings.
constexpr std::size_t kCurrentColumn = 8;
constexpr std::size_t kDeflectionColumn = 18;
constexpr std::size_t kStartColumn = 10;
constexpr std::size_t kStopColumn = 20;
constexpr std::size_t kSlopeColumn = 29;

// Two places behind the point at most, no zero before it, and a blank behind it all.
std::string HashPattern(double value) {
    std::string text = RoundedToPlaces(static_cast<float>(value), 2);
    if (text.find('.') == std::string::npos) {
        text += '.';
    }
    if (text.starts_with("0.")) {
        text.erase(0, 1);
    }
    return text + ' ';
}

void AddColumn(std::string& row, std::size_t column, const std::string& text) {
    row.resize(column, ' ');
    row += text;
}

constexpr double kLargestShown = 1e30;

double Percent(float fraction) {
    return double{static_cast<float>(double{fraction} * 100)};
}

} // namespace

std::string FormatPercentEntry(float fraction) {
    if (double{fraction} < 0.001) {
        return "0.0";
    }
    return double{fraction} > 0.999 ? "100.0" : HashPattern(Percent(fraction));
}

std::string PlainPercent(float fraction) {
    return PlainNumber(
        static_cast<float>(std::clamp(Percent(fraction), -kLargestShown, kLargestShown)));
}

std::string FormatTableValue(double value) {
    if (value < 0.001) {
        return "0.";
    }
    return value > 99.99 ? "100." : HashPattern(value);
}

Slopes RefreshSlopes(DesignRecord& design) {
    if (Service.curveInFile) {
        ComputeGuardedSlopes(design);
        return Slopes::Fresh;
    }
    try {
        ComputeCorrectionSlopes(design);
        return Slopes::Fresh;
    } catch (const RunTimeError&) {
        ReportFailure("An error was found in the Correction Table routine");
        return Slopes::Failed;
    }
}

std::string CurveRow(const DesignRecord& design, int row, Slopes slopes) {
    const auto current = static_cast<float>(row / double{kTableRows - 1});
    float deflection = current;
    if (slopes == Slopes::Fresh) {
        deflection = static_cast<float>(DrawnDeflection(design, double{deflection}));
    }
    std::string text = PlainNumber(std::int32_t{row});
    AddColumn(text, kCurrentColumn, FormatTableValue(Percent(current)));
    AddColumn(text, kDeflectionColumn, FormatTableValue(Percent(deflection)));
    return text;
}

std::string SegmentRow(const DesignRecord& design, int segment) {
    std::string text = PlainNumber(std::int32_t{segment});
    AddColumn(text, kStartColumn,
              FormatTableValue(Percent(design.CorrectionPair[2 * segment - 1])));
    AddColumn(text, kStopColumn, FormatTableValue(Percent(design.CorrectionPair[2 * segment + 1])));
    AddColumn(text, kSlopeColumn, FormatTableValue(double{design.CorrectionSlope[segment]}));
    return text;
}

} // namespace vernacle
