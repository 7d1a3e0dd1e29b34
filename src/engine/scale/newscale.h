// Where a scale stands that a plate gets beside those that it has.
#pragma once

#include "engine/core/design.h"

namespace vernacle {

// Gives a plate that many scales. One that comes new, and has not been placed by anyone, gets a
// ceiling and a title of its own: an even scale, whose tics point inward, stands close below the
// scale before it, an odd one below the letters of both, either clear of the titles before.
void RaiseScales(DesignRecord& design, int scales);

} // namespace vernacle
