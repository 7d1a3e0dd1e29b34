// Two designs, field by field.
#pragma once

#include "engine/core/design.h"
#include "engine/core/recordfields.h"

namespace vernacle::test {

// Fails for each field of that role that differs, by its name.
void ExpectSame(const DesignRecord& design, const DesignRecord& expected, FieldRole role);

} // namespace vernacle::test
