// A part of a surface's logical coordinates: what a picture must show.
#pragma once

namespace vernacle {

struct LogicalArea {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

} // namespace vernacle
