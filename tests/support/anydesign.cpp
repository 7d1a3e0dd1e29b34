#include "support/anydesign.h"

#include <bit>
#include <cmath>

#include "engine/core/design.h"
#include "engine/core/recordfields.h"

namespace vernacle::test {

namespace {

float AnyFloat(Random& random) {
    while (true) {
        const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (std::isfinite(value)) {
            return value;
        }
    }
}

std::string AnyText(Random& random) {
    constexpr const char* kTexts2[] = {"",          "/",         " ",    "N",   "Y",
                                       "0:5 A",     "*7",        "Ω",    "-20", " 3,5  ",
                                       "Tic 4: .5", "*Scale: 1", "µA ±", "10 %"};
    return kTexts2[static_cast<std::size_t>(Below(random, std::size(kTexts2)))];
}

void Randomise(const FieldPointer& field, Random& random) {
    if (auto* const* number = std::get_if<float*>(&field)) {
        **number = AnyFloat(random);
    } else if (auto* const* small = std::get_if<std::int16_t*>(&field)) {
        **small = static_cast<std::int16_t>(random());
    } else if (auto* const* whole = std::get_if<std::int32_t*>(&field)) {
        **whole = static_cast<std::int32_t>(random());
    } else if (auto* const* text = std::get_if<std::string*>(&field)) {
        **text = AnyText(random);
    } else if (auto* const* either = std::get_if<DynamicValue*>(&field)) {
        if (Below(random, 2) == 0) {
            **either = static_cast<std::int16_t>(Below(random, 3));
        } else {
            **either = AnyText(random);
        }
    }
}

} // namespace

int Below(Random& random, int end) {
    return std::uniform_int_distribution<int>(0, end - 1)(random);
}

void RandomiseDesign(DesignRecord& design, Random& random) {
    ResetDesign(design);
    for (const RecordField& field : RecordFields()) {
        if (field.role != FieldRole::Kept) {
            continue;
        }
        const int entries = field.indices == 2 ? 12 : field.indices == 1 ? 6 : 1;
        for (int entry = 0; entry < entries; ++entry) {
            Randomise(field.place.In(design, Below(random, field.lastOuter + 1),
                                     Below(random, field.lastInner + 1)),
                      random);
        }
    }
    design.NumberOfScales = static_cast<std::int16_t>(1 + Below(random, kScales));
    design.NumberOfTexts = static_cast<std::int16_t>(Below(random, kTexts + 1));
    design.NumberOfHighlights = static_cast<std::int16_t>(Below(random, kHighlights + 1));
    for (int scale = 0; scale <= kLastScale; ++scale) {
        design.NrOfTicmarks[scale] = static_cast<std::int16_t>(Below(random, kLastTic + 1));
    }
    for (int scale = 0; scale <= kLastScale; ++scale) {
        design.SpecialNrOfTicmarks[scale] = static_cast<std::int16_t>(Below(random, 40));
    }
}

} // namespace vernacle::test
