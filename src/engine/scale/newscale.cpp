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
    const double reach = ReachMm(design);
    const double capitals = CapitalsMm(design);
    const bool isInward = scale % 2 == 0;
    const double up = isInward ? 0 : reach; // where its letters are
    const double down = isInward ? reach : 0;
    double ceiling = double{design.BottomToScaleCeiling[scale - 1]} - kGapMm;
    ceiling -= isInward ? 0 : 2 * reach;
    for (int before = 1; before < scale; ++before) {
        const double title = double{design.BottomToTitle[before]};
        if (title > ceiling - down && title - capitals < ceiling + up) {
            ceiling = title - capitals - kGapMm - up;
        }
    }
    const double title = std::min(double{design.BottomToTitle[scale - 1]} - capitals - 2 * kGapMm,
                                  ceiling - down - 2 * kGapMm);
    design.BottomToScaleCeiling[scale] = Tenths(ceiling);
    design.BottomToTitle[scale] = Tenths(title);
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
