// What the preview draws over a picture as it stands: grid, pointer and circular outline.
#pragma once

#include "engine/render/drawing.h"

namespace vernacle {

// A millimetre grid strictly inside the plate, reaching 200 half millimetres from its centre.
void DrawGrid(DrawingSurface& surface, const PlateFrame& frame);

// The radius of the arc at the last tic drawn, the pointer there and at mid-scale, and the
// pointer's length in writing.
void DrawPointer(DrawingSurface& surface, const PlateFrame& frame, const DrawingState& state);

enum class OutlineStart { Moved, Dotted };

// The outline of a circular plate with the plate's width: 100 chords, with a tiny gap at the end.
void DrawOutline(DrawingSurface& surface, const PlateFrame& frame, OutlineStart start,
                 Colour colour);

} // namespace vernacle
