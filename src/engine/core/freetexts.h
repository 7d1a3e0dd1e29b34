// The free texts of a design as a record of their own, for the pages that keep a copy.
#pragma once

#include "engine/core/design.h"

namespace vernacle {

struct FreeTexts {
    Table<std::string, kTexts> TextString; // an empty one counts as absent
    Table<float, kTexts> LeftToText;       // mm from the plate's edges
    Table<float, kTexts> BottomToText;
    Table<float, kTexts> TextRelativeSize; // relative to FontSize
    Table<std::int32_t, kTexts> TextColor;
};

// A copy of entries 1 to 10.
FreeTexts CopyOfTexts(const DesignRecord& design);

// Puts entries 1 to 10 into the design and counts NumberOfTexts anew.
void StoreTexts(DesignRecord& design, const FreeTexts& texts);

// How many are not empty.
std::int16_t CountTexts(const FreeTexts& texts);

} // namespace vernacle
