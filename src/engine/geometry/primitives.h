// The two conversions that every stage makes on its way to a surface: to 32-bit coordinates, and
// from points to a line.
#pragma once

#include "engine/geometry/drawingsurface.h"
#include "engine/geometry/geometry.h"

namespace vernacle {

inline float F(double value) {
    return static_cast<float>(value);
}

inline void DrawLine(DrawingSurface& surface, SurfacePoint from, SurfacePoint to, Colour colour) {
    surface.Line(F(from.x), F(from.y), F(to.x), F(to.y), colour);
}

} // namespace vernacle
