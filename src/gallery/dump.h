// The design as lines of text, for looking and for comparing.
#pragma once

#include <string>

#include "engine/core/design.h"

namespace vernacle::gallery {

// One line a value, in the order of the record's declaration: PlateWidth = 75, ScaleColor[1] = 255,
// StandardDeflection[1][17] = .34. Of the tables only the entries that differ from atStart. Numbers
// are plain, texts in double quotes with their control characters escaped; a DynamicValue is
// written as what it holds.
std::string DumpDesign(const DesignRecord& design, const DesignRecord& atStart);

} // namespace vernacle::gallery
