#include "engine/scale/newscale.h"

#include <algorithm>
#include <cmath>

namespace vernacle {

namespace {

constexpr double kMmPerPoint = 25.4 / 72;
constexpr double kCapitals = 1409. / 2048; // of the size of letters
constexpr double kGapMm = 1;
constexpr double kLowestMm = 2; // above the plate's bottom edge

double CapitalsMm(const DesignRecord& design) {
    return double{design.FontSize} * kMmPerPoint * kCapitals;
}

// From a scale's arc to the end of its letters.
double ReachMm(const DesignRecord& design) {
    return std::max(double{design.MajorTicLength},
                    double{design.LabelSpacing} + CapitalsMm(design) / 2);
}

// It stands where every design puts it at first.
bool IsUnplaced(const DesignRecord& design, int scale) {
    const auto number = static_cast<float>(scale);
    const float ceiling = design.BottomToScaleCeiling[scale];
    const float title = design.BottomToTitle[scale];
    return (ceiling == 5 * number + 30 && title == 5 * number + 25) ||
           (ceiling == 35 && title == 30) || (ceiling == 0 && title == 0);
}

float Tenths(double mm) {
    return static_cast<float>(std::floor(std::max(mm, kLowestMm) * 10 + 0.5) / 10);
}

void PlaceBelow(DesignRecord& design, int scale) {
    const bool isInward = scale % 2 == 0;
    const double down = isInward ? kGapMm : 2 * ReachMm(design) + kGapMm;
    design.BottomToScaleCeiling[scale] =
        Tenths(double{design.BottomToScaleCeiling[scale - 1]} - down);
    const double belowTitle =
        double{design.BottomToTitle[scale - 1]} - CapitalsMm(design) - 2 * kGapMm;
    const double belowArc =
        double{design.BottomToScaleCeiling[scale]} - (isInward ? ReachMm(design) : 0) - 2 * kGapMm;
    design.BottomToTitle[scale] = Tenths(std::min(belowTitle, belowArc));
}

} // namespace

void RaiseScales(DesignRecord& design, int scales) {
    for (int scale = std::max<int>(design.NumberOfScales, 1) + 1; scale <= scales; ++scale) {
        if (IsUnplaced(design, scale)) {
            PlaceBelow(design, scale);
        }
    }
    design.NumberOfScales = static_cast<std::int16_t>(scales);
}

} // namespace vernacle
