// The printer's page: a logical area whose unit is nearly a twip, the same on every paper.
#pragma once

#include <algorithm>

#include "engine/geometry/geometry.h"

namespace vernacle {

constexpr double kSheetWidth = 11500; // units
constexpr double kSheetHeight = 15200;
constexpr SurfacePoint kSheetCentre = {6000, 4000}; // where the middle of a plate stands

constexpr double kMmPerPoint = 25.4 / 72; // of the size of letters

// On a printer whose calibration factors are 1.
constexpr double kSheetUnitsPerHalfMm = 28.289;
constexpr double kSheetUnitsPerMm = 2 * kSheetUnitsPerHalfMm;

// What most printers leave white at the edges of a sheet: 12 points.
constexpr double kUnprintableMm = 12 * kMmPerPoint;

// Where the logical area begins on a sheet: its middle stands in the sheet's, or, where the area is
// longer than the sheet, the plate's own middle does.
constexpr double AreaStartMm(double sheetMm, double areaUnits, double centreUnits) {
    const double areaMm = areaUnits / kSheetUnitsPerMm;
    return sheetMm >= areaMm ? (sheetMm - areaMm) / 2
                             : sheetMm / 2 - centreUnits / kSheetUnitsPerMm;
}

// How far down what must not be lost is moved: by what it needs at the upper edge, as far as there
// is room at the lower one.
constexpr double AreaShift(double needed, double room) {
    return std::max(std::min(needed, room), 0.0);
}

} // namespace vernacle
