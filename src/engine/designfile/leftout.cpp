#include "engine/designfile/leftout.h"

#include "engine/core/design.h"
#include "engine/core/freetexts.h"

namespace vernacle {

namespace {

using IsUsed = bool (*)(const DesignRecord& design);

struct LeftOut {
    const char* words;
    IsUsed isUsed;
};

template <typename IsUsedBy>
bool AnyScale(const DesignRecord& design, IsUsedBy isUsedBy) {
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        if (isUsedBy(scale)) {
            return true;
        }
    }
    return false;
}

bool HasColour(const DesignRecord& design) {
    return AnyScale(design, [&](int scale) { return design.ScaleColor[scale] > 1; });
}

bool HasSpecial(const DesignRecord& design) {
    return AnyScale(design, [&](int scale) { return design.ScaleColor[scale] < 0; });
}

bool HasExponent(const DesignRecord& design) {
    return AnyScale(design, [&](int scale) { return design.LinearityExponent[scale] != 1; });
}

bool HasSwitchedOff(const DesignRecord& design) {
    return AnyScale(design,
                    [&](int scale) { return NumberOf(design.PrintTicsAndArcs[scale]) != 0; });
}

bool HasHighlight(const DesignRecord& design) {
    for (int slot = 1; slot <= kHighlights; ++slot) {
        if (design.HighlightStop[slot] > design.HighlightStart[slot]) {
            return true;
        }
    }
    return false;
}

bool HasCurve(const DesignRecord& design) {
    for (int point = 1; point <= kCurvePoints; ++point) {
        if (design.CorrectionPair[2 * point - 1] != design.CorrectionPair[2 * point]) {
            return true;
        }
    }
    return false;
}

// clang-format off
constexpr LeftOut kLeftOut[] = {
    {"scales above the first",     [](const DesignRecord& d) { return d.NumberOfScales > 1; }},
    {"special scales",             HasSpecial},
    {"colours of scales",          HasColour},
    {"exponents of scales",        HasExponent},
    {"scales without tics",        HasSwitchedOff},
    {"the quadrant style",         [](const DesignRecord& d) { return d.PlateStyle == 1; }},
    {"the circular outline",       [](const DesignRecord& d) { return d.PlateOutlineCircular == 1; }},
    {"the font",                   [](const DesignRecord& d) { return d.FontName != "Arial"; }},
    {"the plate's background",     [](const DesignRecord& d) { return d.PlateBackground != kWhite; }},
    {"highlights",                 HasHighlight},
    {"free texts",                 [](const DesignRecord& d) { return CountTexts(CopyOfTexts(d)) > 0; }},
    {"the graphic",                [](const DesignRecord& d) { return d.DrawGraphic == "Y"; }},
    {"the movement's correction",  HasCurve},
};
// clang-format on

} // namespace

std::vector<std::string> WhatEverydayLeavesOut(const DesignRecord& design) {
    std::vector<std::string> words;
    for (const LeftOut& row : kLeftOut) {
        if (row.isUsed(design)) {
            words.emplace_back(row.words);
        }
    }
    return words;
}

} // namespace vernacle
