// The plot of the correction curve, on which its points are dragged, in the plot's own units: the
// fraction 0 to 1 lies at 5000 to 10000 across, and at 6000 up to 1000.
#pragma once

#include <string>

#include "engine/core/design.h"
#include "engine/geometry/drawingsurface.h"
#include "engine/geometry/geometry.h"
#include "engine/geometry/logicalarea.h"

namespace vernacle {

// What the plot shows, with the marks beside its axes.
LogicalArea CurvePlotArea();

// Where a fraction of the current and of the deflection lies, and the way back, as floats.
SurfacePoint CurvePlace(double current, double deflection);
float CurrentAt(double x);
float DeflectionAt(double y);

// The middle of the sample strip's lower edge.
SurfacePoint CurveStripMiddle();

// Point 0 to 6 of the curve, as the pages count them.
SurfacePoint CurvePointPlace(const DesignRecord& design, int point);

// Puts a point of the curve where it was dropped, wherever that is.
void PutCurvePoint(DesignRecord& design, int point, double x, double y);

// The middle of a point's handle: on the point, but for the first and the last, which stand a
// little off the plot's corners.
SurfacePoint HandleMiddle(const DesignRecord& design, int point);

enum class CurveVerdict { Allowed, Disallowed };

// Draws the plot by the slopes as they are stored. A curve that falls somewhere, or where
// curves outlive the session rises too little, is not drawn, and is disallowed.
CurveVerdict DrawCurvePlot(const DesignRecord& design, DrawingSurface& surface);

} // namespace vernacle
