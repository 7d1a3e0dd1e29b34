#include "engine/render/overlays.h"

#include <algorithm>
#include <cmath>

#include "engine/base/numbertext.h"
#include "engine/geometry/primitives.h"

namespace vernacle {

namespace {

constexpr Colour kFineGrid = 0xAAAAAA;
constexpr Colour kCoarseGrid = 0x111111;
constexpr Colour kGridAxis = 0x1111FF;
constexpr Colour kPointerAtTic = 0x00FF00;
constexpr Colour kPointerAtMiddle = 0xFFFF00;
constexpr int kGridReach = 200;        // half millimetres
constexpr double kMostGridLines = 1e5; // a plate of a hundred metres: from a damaged file
constexpr int kOutlineChords = 100;
constexpr double kOutlineTurn = 6.28;
constexpr double kNoteBelowPlate = 1020;

// The plate's lengthwise lines, `step` half millimetres apart.
void DrawVerticals(DrawingSurface& surface, const PlateFrame& frame, int step, Colour colour) {
    for (int across = -kGridReach; across <= kGridReach; across += step) {
        const double x = frame.centreX + frame.AcrossPerHalfMm() * across;
        if (x > frame.Left() && x < frame.Right()) {
            DrawLine(surface, {x, frame.Top()}, {x, frame.Bottom()}, colour);
        }
    }
}

void DrawHorizontals(DrawingSurface& surface, const PlateFrame& frame, int step, Colour colour) {
    const double reach = std::min((frame.heightMm + kGridReach) / step, kMostGridLines);
    for (int line = 1; line <= reach; ++line) {
        const double y = frame.Bottom() - frame.upPerHalfMm * step * line;
        if (y > frame.Top() && y < frame.Bottom()) {
            DrawLine(surface, {frame.Left(), y}, {frame.Right(), y}, colour);
        }
    }
}

} // namespace

void DrawGrid(DrawingSurface& surface, const PlateFrame& frame) {
    surface.SetLineWidth(1);
    DrawVerticals(surface, frame, 2, kFineGrid);
    DrawVerticals(surface, frame, 20, kCoarseGrid);
    const double halfHeight = frame.aspect * frame.upPerHalfMm * frame.heightMm; // stretched with x
    DrawLine(surface, {frame.centreX, frame.centreY - halfHeight},
             {frame.centreX, frame.centreY + halfHeight}, kGridAxis);
    DrawHorizontals(surface, frame, 2, kFineGrid);
    DrawHorizontals(surface, frame, 20, kCoarseGrid);
    DrawLine(surface, {frame.Left(), frame.Bottom()}, {frame.Right(), frame.Bottom()}, kGridAxis);
}

void DrawPointer(DrawingSurface& surface, const PlateFrame& frame, const DrawingState& state) {
    const SurfacePoint bearing = RealBearing(frame);
    const double length = 2 * frame.upPerHalfMm * double{state.PointerLength};
    surface.SetLineWidth(3);
    DrawLine(surface, VirtualBearing(frame), state.LastArcPoint, kBlueInk);
    DrawLine(surface, state.LastTicEnd, bearing, kPointerAtTic);
    DrawLine(surface, bearing, {bearing.x, bearing.y - length}, kPointerAtMiddle);

    const double tenths = std::floor(double{state.PointerLength} * 10 + 0.5) * 0.1;
    surface.SetLineWidth(1);
    surface.SetFontName("Arial");
    surface.SetFontSize(10);
    surface.SetForeColor(kBlackInk);
    surface.Dot(F(frame.Left()), F(frame.Bottom() + kNoteBelowPlate), kWhiteInk);
    surface.PrintText("Pointer length: " + PlainNumber(F(tenths)) + "mm");
}

void DrawOutline(DrawingSurface& surface, const PlateFrame& frame, OutlineStart start,
                 Colour colour) {
    SurfacePoint previous;
    for (int chord = 0; chord <= kOutlineChords; ++chord) {
        const double angle = chord / double{kOutlineChords} * kOutlineTurn;
        const SurfacePoint point = {
            frame.centreX - frame.AcrossPerHalfMm() * frame.widthMm * std::cos(angle),
            frame.centreY + frame.plateScale * frame.widthMm * std::sin(angle)};
        if (chord > 0) {
            DrawLine(surface, previous, point, colour);
        } else if (start == OutlineStart::Dotted) {
            surface.Dot(F(point.x), F(point.y), colour);
        } else {
            surface.SetCurrentX(F(point.x));
            surface.SetCurrentY(F(point.y));
        }
        previous = point;
    }
}

} // namespace vernacle
