// Sample plates, drawn by the drawing of real designs, for the forms that explain an entry by a
// picture.
#pragma once

#include "engine/geometry/drawingsurface.h"
#include "engine/geometry/logicalarea.h"

namespace vernacle {

enum class Sample {
    LinearScale,
    ExponentOne,     // each of many tics drawn
    ExponentTwo,     // the same tics, the left end crowded
    SomeTicsRemoved, // minor tics of that left end deleted
    LeftEndCleared,  // and more of them, and a label
    Exponents,       // three arcs: the exponents 0.5, 1 and 2
    RotatedBearing,
    RotatedHorizontal,
    StandardStyle,
    QuadrantStyle,
    Ohmmeter, // a special scale of each kind
    Arbitrary,
    Smeter,
    Vswr,
    Decibel,
};

// Draws the sample, a design of its own, for a surface of square units. What the surface throws
// beside a RunTimeError passes through.
void DrawSample(DrawingSurface& surface, Sample sample);

// The part of the logical area that shows the sample: the plate, or its enlarged detail.
LogicalArea SampleArea(Sample sample);

} // namespace vernacle
