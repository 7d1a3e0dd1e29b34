#include "engine/setups/smeter.h"

#include <array>
#include <string>

#include "engine/base/numbertext.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

constexpr int kClearedScales = 4; // the setup takes a plate for its own
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

void ClearScales(DesignRecord& design, int ownScale, int lastTic) {
    for (int scale = 1; scale <= kClearedScales; ++scale) {
        for (int tic = 0; tic <= kLastTic; ++tic) {
            design.TicPrintYN[scale][tic] = "N";
            design.TicLabelText[scale][tic].clear();
            design.TicLabelYN[scale][tic] = "N";
            design.TicMajorYN[scale][tic] = "N";
        }
    }
    if (lastTic >= 0) { // none was made where the computation before failed
        design.TicDeflection[ownScale][lastTic] = 0;
    }
}

// The label of an entry that counts decibels; none where nothing is printed. An S-unit keeps the
// blank of a number without a sign.
std::string DecibelLabel(int decibels) {
    if (decibels <= kTopUnit && decibels % kDecibelsPerUnit == 0) {
        const int units = decibels / kDecibelsPerUnit;
        return SignedNumber(static_cast<float>(units));
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

void ComputeSmeterTics(DesignRecord& design, int scale, float exponent, SmeterSetup& setup) {
    exponent = HeldExponent(exponent);
    design.LinearityExponent[scale] = exponent;
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
