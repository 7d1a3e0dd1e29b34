#include "engine/geometry/screen.h"

#include <algorithm>

#include "engine/base/hostservices.h"
#include "engine/core/design.h"

namespace vernacle {

namespace {

constexpr double kUnitsAcross = 12000;
constexpr auto kWidestScale = static_cast<float>(kWidestScreen * kTwipsPerPixel / kUnitsAcross);

} // namespace

double ScreenMagnification(double widthPixels) {
    return std::max(widthPixels / kWidestScreen, 1.);
}

ScreenFactors DrawnScreen(const DesignRecord& design) {
    const double x = double{design.ScreenScaleX};
    const double y = double{design.ScreenScaleY};
    const double magnification = std::max(x / double{kWidestScale}, 1.);
    return {x / magnification, y / magnification};
}

} // namespace vernacle
