// The printer's page: a logical area whose unit is nearly a twip, the same on every paper.
#pragma once

#include "engine/geometry/geometry.h"

namespace vernacle {

constexpr double kSheetWidth = 11500; // units
constexpr double kSheetHeight = 15200;
constexpr SurfacePoint kSheetCentre = {6000, 4000}; // where the middle of a plate stands

constexpr double kMmPerPoint = 25.4 / 72; // of the size of letters

// On a printer whose calibration factors are 1.
constexpr double kSheetUnitsPerHalfMm = 28.289;
constexpr double kSheetUnitsPerMm = 2 * kSheetUnitsPerHalfMm;

} // namespace vernacle
