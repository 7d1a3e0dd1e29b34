// The geometry of a plate: a pointer that turns about its bearing, and scales that are arcs around
// a second, virtual bearing on the plate's centre line. Pure functions of numbers; y grows downward
// on every surface.
//
//   PointerAngle  t = (90 - swing / 2) / D + swing g / D, from the left horizontal, in radians
//   ArcAngle      p = t + ArcSin(offset cos t / radius), the sine rule in the triangle of the two
//                 bearings and the tic: the tic stands where the pointer's axis crosses the arc
//   ArcPoint      (centre - radius cos p, bottom - radius sin p + offset - bearing)
#pragma once

#include "engine/geometry/surfacepoint.h"

namespace vernacle {

struct DesignRecord;

constexpr double kRightAngle = 1.5707963267948966; // 2 arctan(1), radians
constexpr int kArcChords = 100;                    // an arc is a polygon of so many chords
constexpr double kLongestRulerMm = 180;

// 45 / arctan(1), kept as the 32-bit float by which all drawings divide.
float ComputeDegreesPerRadian();

// Where a plate stands on a surface, and the measures that shape its scales. On a screen the aspect
// ratio is part of the unit across, on paper the calibration of each axis is part of its unit.
struct PlateFrame {
    double plateScale = 0;  // surface units per half millimetre across, before the aspect
    double aspect = 1;      // the screen's stretch across
    double upPerHalfMm = 0; // surface units
    double centreX = 0;
    double centreY = 0;
    double widthMm = 0;
    double heightMm = 0;
    double bearingMm = 0;      // above the plate's bottom edge
    double bearingRightMm = 0; // of the plate's centre line
    double offsetMm = 0;       // real bearing down to the virtual one
    double swingDeg = 0;
    bool quadrant = false;
    double degreesPerRadian = 0;

    double AcrossPerHalfMm() const { return plateScale * aspect; }
    double BearingX() const { return centreX + 2 * AcrossPerHalfMm() * bearingRightMm; }
    double Left() const { return centreX - AcrossPerHalfMm() * widthMm; }
    double Right() const { return centreX + AcrossPerHalfMm() * widthMm; }
    double Top() const { return centreY - upPerHalfMm * heightMm; }
    double Bottom() const { return centreY + upPerHalfMm * heightMm; }
};

// The measures of the design around that centre, with the same unit across and up.
PlateFrame FrameOfDesign(const DesignRecord& design, double plateScale, SurfacePoint centre);

// The same in millimetres: the left edge and the bottom edge at 0, a height above the bottom at -y.
PlateFrame MillimetreFrame(const DesignRecord& design);

// Whether the one scale goes all around: texts at its first and its last tic would stand on each
// other.
bool IsFullCircle(const DesignRecord& design);

// A place on a scale's arc.
struct ArcPlace {
    double pointerAngleRad = 0; // t
    double arcAngleRad = 0;     // p
    SurfacePoint point;
};

enum class Direction { Outward, Inward };

// Scales of odd number carry their tics and labels outward, those of even number inward, so that
// two neighbours can share an arc back to back.
Direction DirectionOf(int scale);

// Millimetres from the left and from the bottom edge of the plate to the surface.
SurfacePoint PlatePoint(const PlateFrame& frame, double fromLeftMm, double fromBottomMm);

SurfacePoint RealBearing(const PlateFrame& frame);
SurfacePoint VirtualBearing(const PlateFrame& frame);

// The pointer's angle in radians at the fraction g of full deflection. A quadrant plate turns it
// back by the same angle divided by 57.295, not by D: the small residual is part of the drawing.
double PointerAngle(const PlateFrame& frame, double g);

// From the virtual bearing to the crown of an arc, mm.
double ScaleRadius(const PlateFrame& frame, double ceilingMm);

// The angle, seen from the virtual bearing, at which the pointer at angle t crosses the arc of that
// radius. A radius of 0 is a run-time error; an offset larger than the radius is held to what can
// be drawn.
double ArcAngle(const PlateFrame& frame, double pointerAngleRad, double radiusMm);

// The point of the arc at that angle.
SurfacePoint ArcPoint(const PlateFrame& frame, double arcAngleRad, double radiusMm);

// Whether the pointer at angle t meets the arc at all: the sine rule has an answer.
bool MeetsArc(const PlateFrame& frame, double pointerAngleRad, double radiusMm);

// Both for the pointer at angle t.
ArcPlace PlaceOnArc(const PlateFrame& frame, double pointerAngleRad, double radiusMm);

// The point so many millimetres from a point along the pointer at angle t.
SurfacePoint AlongPointer(const PlateFrame& frame, SurfacePoint from, double pointerAngleRad,
                          double lengthMm, Direction direction);

} // namespace vernacle
