// A point on a drawing surface, in its logical units.
#pragma once

namespace vernacle {

struct SurfacePoint {
    double x = 0;
    double y = 0;
};

} // namespace vernacle
