// The help topics: what each is called, and between which points of the model plate its measure
// lies.
#pragma once

#include "engine/geometry/drawingsurface.h"

namespace vernacle {

enum class Pointing { Left, Right, Up, Down };

// A red arrow, drawn from its tip backward, its stem so many units long.
void DrawArrow(DrawingSurface& surface, float tipX, float tipY, Pointing pointing, double stem);

// The caption of a topic; none for a number without one.
const char* TopicCaption(int topic);

// Draws what only that topic shows of the plate, and its dimension lines; nothing for a number
// without a topic.
void DrawTopicMark(DrawingSurface& surface, int topic, double arrowStem);

} // namespace vernacle
