#include "engine/setups/smeter.h"

#include <algorithm>
#include <array>
#include <string>

#include "engine/base/numbertext.h"
#include "engine/core/service.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

constexpr int kClearedScales = 4; // the everyday setup takes a plate for its own
constexpr int kDecibelsPerUnit = 6;
constexpr int kTopUnit = 54; // S 9, decibels above S 0
constexpr int kDecibelsPerLabel = 10;

enum class Counts { Units, Decibels };

struct SmeterType {
    int top; // the last table entry
    Counts counts;
};

constexpr std::array<SmeterType, 4> kTypes = {{
    {9, Counts::Units},
    {94, Counts::Decibels},
    {104, Counts::Decibels},
    {114, Counts::Decibels},
}};

void ClearScale(DesignRecord& design, int scale) {
    for (int tic = 0; tic <= kLastTic; ++tic) {
        design.TicPrintYN[scale][tic] = "N";
        design.TicLabelText[scale][tic].clear();
        design.TicLabelYN[scale][tic] = "N";
        design.TicMajorYN[scale][tic] = "N";
    }
}

// Where a plate has several scales, the others are not this one's to empty.
void ClearScales(DesignRecord& design, int ownScale, int lastTic) {
    const int first = Service.severalScales ? ownScale : 1;
    const int last = Service.severalScales ? ownScale : kClearedScales;
    for (int scale = first; scale <= last; ++scale) {
        ClearScale(design, scale);
    }
    if (lastTic >= 0) { // none was made where the computation before failed
        design.TicDeflection[ownScale][lastTic] = 0;
    }
}

// The label of an entry that counts decibels; none where nothing is printed. An S-unit keeps the
// blank of a number without a sign, but where letters are centred as they are.
std::string DecibelLabel(int decibels) {
    if (decibels <= kTopUnit && decibels % kDecibelsPerUnit == 0) {
        const std::int32_t units = decibels / kDecibelsPerUnit;
        return Service.truePlate ? PlainNumber(units) : SignedNumber(static_cast<float>(units));
    }
    const int above = decibels - kTopUnit;
    if (above > 0 && above % kDecibelsPerLabel == 0) {
        return "+" + PlainNumber(std::int32_t{above});
    }
    return {};
}

std::string LabelOf(const SmeterType& type, int step) {
    return type.counts == Counts::Units ? ShortLabel(static_cast<float>(step)) : DecibelLabel(step);
}

} // namespace

int SmeterTypeOf(const DesignRecord& design, int scale) {
    const int top = design.SpecialNrOfTicmarks[scale];
    const auto* type = std::ranges::find(kTypes, top, &SmeterType::top);
    return type == kTypes.end() ? 0 : static_cast<int>(type - kTypes.begin()) + 1;
}

void ComputeSmeterTics(DesignRecord& design, int scale, float exponent, SmeterSetup& setup) {
    exponent = HeldExponent(exponent);
    ExponentOf(design, scale) = exponent;
    ClearScales(design, scale, setup.LastTic);
    setup.LastTic = -1;
    if (setup.ScaleType < 1 || setup.ScaleType > static_cast<int>(kTypes.size())) {
        return;
    }
    const SmeterType& type = kTypes.at(static_cast<std::size_t>(setup.ScaleType) - 1);
    for (int step = 0; step <= type.top; ++step) {
        const auto share = static_cast<float>(step / static_cast<double>(type.top));
        const float deflection = BentDeflection(share, exponent);
        const std::string label = LabelOf(type, step);
        ++setup.LastTic;
        if (label.empty()) { // stays as it was wiped, or not, on a scale above those
            design.TicDeflection[scale][setup.LastTic] = deflection;
        } else {
            StoreTic(design, scale, setup.LastTic, {.deflection = deflection, .label = label});
        }
    }
    design.TicMajorYN[scale][0] = "Y";
    design.SpecialNrOfTicmarks[scale] = setup.LastTic;
}

} // namespace vernacle
