#include "engine/geometry/geometry.h"

#include <cmath>

#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr double kQuadrantDegreesPerRadian = 57.295;

// Only a quadrant plate has its bearing elsewhere than on its centre line.
double BearingRightOf(const DesignRecord& design) {
    const bool isMoved = Service.styles && design.PlateStyle == 1 && design.LeftToBearing >= 0;
    return isMoved ? double{design.LeftToBearing} - double{design.PlateWidth} / 2 : 0;
}

} // namespace

float ComputeDegreesPerRadian() {
    return static_cast<float>(45 / std::atan(1.0));
}

PlateFrame FrameOfDesign(const DesignRecord& design, double plateScale, SurfacePoint centre) {
    return PlateFrame{
        .plateScale = plateScale,
        .upPerHalfMm = plateScale,
        .centreX = centre.x,
        .centreY = centre.y,
        .widthMm = double{design.PlateWidth},
        .heightMm = double{design.PlateHeight},
        .bearingMm = double{design.BottomToBearing},
        .bearingRightMm = BearingRightOf(design),
        .offsetMm = double{design.ActualVirtualOffset},
        .swingDeg = double{design.PointerDeflection},
        .quadrant = design.PlateStyle == 1,
        .degreesPerRadian = double{ComputeDegreesPerRadian()},
    };
}

PlateFrame MillimetreFrame(const DesignRecord& design) {
    const double half = 0.5;
    return FrameOfDesign(design, half,
                         {half * double{design.PlateWidth}, -half * double{design.PlateHeight}});
}

bool IsFullCircle(const DesignRecord& design) {
    return design.NumberOfScales == 1 && design.PointerDeflection == 360;
}

Direction DirectionOf(int scale) {
    const double half = scale / 2.0;
    return half == std::floor(half) ? Direction::Inward : Direction::Outward;
}

SurfacePoint PlatePoint(const PlateFrame& frame, double fromLeftMm, double fromBottomMm) {
    return {frame.Left() + 2 * frame.AcrossPerHalfMm() * fromLeftMm,
            frame.Bottom() - 2 * frame.upPerHalfMm * fromBottomMm};
}

SurfacePoint RealBearing(const PlateFrame& frame) {
    return {frame.BearingX(), frame.Bottom() - 2 * frame.upPerHalfMm * frame.bearingMm};
}

SurfacePoint VirtualBearing(const PlateFrame& frame) {
    return {frame.BearingX(),
            frame.Bottom() + 2 * frame.upPerHalfMm * (frame.offsetMm - frame.bearingMm)};
}

double PointerAngle(const PlateFrame& frame, double g) {
    const double leftEndDeg = 90 - frame.swingDeg * 0.5;
    const double angle =
        leftEndDeg / frame.degreesPerRadian + frame.swingDeg * g / frame.degreesPerRadian;
    return frame.quadrant ? angle - leftEndDeg / kQuadrantDegreesPerRadian : angle;
}

double ScaleRadius(const PlateFrame& frame, double ceilingMm) {
    return ceilingMm - frame.bearingMm + frame.offsetMm;
}

double ArcAngle(const PlateFrame& frame, double pointerAngleRad, double radiusMm) {
    double sine = CheckedDivide(frame.offsetMm * std::sin(pointerAngleRad + kRightAngle), radiusMm);
    return pointerAngleRad + ArcSin(sine);
}

SurfacePoint ArcPoint(const PlateFrame& frame, double arcAngleRad, double radiusMm) {
    const double up = radiusMm * std::sin(arcAngleRad) - frame.offsetMm + frame.bearingMm;
    return {frame.BearingX() - 2 * frame.AcrossPerHalfMm() * radiusMm * std::cos(arcAngleRad),
            frame.Bottom() - 2 * frame.upPerHalfMm * up};
}

bool MeetsArc(const PlateFrame& frame, double pointerAngleRad, double radiusMm) {
    return radiusMm > 0 && std::fabs(frame.offsetMm * std::cos(pointerAngleRad)) <= radiusMm;
}

ArcPlace PlaceOnArc(const PlateFrame& frame, double pointerAngleRad, double radiusMm) {
    const double angle = ArcAngle(frame, pointerAngleRad, radiusMm);
    return {pointerAngleRad, angle, ArcPoint(frame, angle, radiusMm)};
}

SurfacePoint AlongPointer(const PlateFrame& frame, SurfacePoint from, double pointerAngleRad,
                          double lengthMm, Direction direction) {
    const double length = direction == Direction::Outward ? lengthMm : -lengthMm;
    return {from.x - 2 * frame.AcrossPerHalfMm() * length * std::cos(pointerAngleRad),
            from.y - 2 * frame.upPerHalfMm * length * std::sin(pointerAngleRad)};
}

} // namespace vernacle
