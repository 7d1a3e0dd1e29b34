#include "engine/wizard/nudges.h"

#include "engine/base/numbertext.h"
#include "engine/core/entry.h"

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr int kNudgedScale = 1;
constexpr double kNoLimit = 1e30;

template <int Number>
double Is(const DesignRecord& /*design*/) {
    return Number;
}

double NoLimit(const DesignRecord& /*design*/) {
    return kNoLimit;
}

double AboveBearing(const DesignRecord& design) {
    return double{design.BottomToBearing} + 1;
}
double HighestCeiling(const DesignRecord& design) {
    return 1.5 * double{design.PlateHeight};
}
double HighestTitle(const DesignRecord& design) {
    return double{design.PlateHeight} + 10;
}
double MinorLength(const DesignRecord& design) {
    return double{design.MinorTicLength};
}
double MajorLength(const DesignRecord& design) {
    return double{design.MajorTicLength};
}
double MinorWidth(const DesignRecord& design) {
    return double{design.MinorTicWidth};
}
double MajorWidth(const DesignRecord& design) {
    return double{design.MajorTicWidth};
}
double Tics(const DesignRecord& design) {
    return design.NrOfTicmarks[kNudgedScale];
}

// clang-format off
constexpr Nudge kNudges[] = {
    {"UpDown1",  "Bottom to ceiling, mm: ",         "lblBottomToCeiling",       "Move the top of the scale - the ceiling - up or down",  At<&D::BottomToScaleCeiling>,   0, 200, AboveBearing, HighestCeiling, LowestEnd::Excluded, Refusal::Corrected},
    {"UpDown2",  "Bottom to title, mm: ",           "lblBottomToTitle",         "Move the title up or down",                             At<&D::BottomToTitle>,        -10, 200, Is<-10>,      HighestTitle,   LowestEnd::Excluded, Refusal::Corrected},
    {"UpDown3",  "Actual/virtual offset: ",         "lblActualVirtualOffset",   "Move the virtual bearing up or down",                   At<&D::ActualVirtualOffset>,    0, 100, Is<0>,        NoLimit},
    {"UpDown4",  "Label-arc spacing, mm: ",         "lblLabelSpacing",          "Spacing in mm from top of ticmark labels to the arc",   At<&D::LabelSpacing>,        -200, 200, Is<-50>,      Is<50>},
    {"UpDown5",  "Fontsize: ",                      "lblFontSize",              "Fontsize for ticmark labels",                           At<&D::FontSize>,               2,  20, Is<2>,        Is<20>},
    {"UpDown6",  "Major tic length, mm: ",          "lblMajorTicLength",        "Major ticmark length, mm",                              At<&D::MajorTicLength>,         1,  20, MinorLength,  Is<20>,         LowestEnd::Included, Refusal::Corrected},
    {"UpDown7",  "Minor tic length, mm: ",          "lblMinorTicLength",        "Minor ticmark length, mm",                              At<&D::MinorTicLength>,         1,  20, Is<1>,        MajorLength,    LowestEnd::Included, Refusal::Corrected},
    {"UpDown8",  "Major tic width, tenths of mm: ", "lblMajorTicWidth",         "Major ticmark width, tenths of a mm",                   At<&D::MajorTicWidth>,          1,  20, MinorWidth,   Is<20>,         LowestEnd::Included, Refusal::Corrected},
    {"UpDown9",  "Minor tic width, tenths of mm: ", "lblMinorTicWidth",         "Minor ticmark width, tenths of a mm",                   At<&D::MinorTicWidth>,          1,  20, Is<1>,        MajorWidth,     LowestEnd::Included, Refusal::Corrected},
    {"UpDown10", "How often major tics: ",          "lblMajorEveryHowMany",     "Major tics every how many tics",                        At<&D::MajorEveryHowMany>,      1, 100, Is<2>,        Tics,           LowestEnd::Included, Refusal::Corrected},
    {"UpDown11", "How often tic labels: ",          "lblLabelsEveryHowMany",    "Tic labels every how many tics",                        At<&D::LabelsEveryHowMany>,     2, 100, Is<2>,        Tics,           LowestEnd::Included, Refusal::Corrected},
};
// clang-format on

double NumberOfNudge(const DesignRecord& design, const Nudge& nudge) {
    return NumberIn(nudge.field.In(design, kNudgedScale));
}

NudgeResult Correct(DesignRecord& design, const Nudge& nudge, double value) {
    if (nudge.refusal == Refusal::Left) {
        return NudgeResult::Ignored;
    }
    StoreIn(nudge.field.In(design, kNudgedScale), value);
    return NudgeResult::Corrected;
}

} // namespace

std::span<const Nudge> Nudges() {
    return kNudges;
}

std::string NudgeValue(const DesignRecord& design, const Nudge& nudge) {
    return SignedNumber(static_cast<float>(NumberOfNudge(design, nudge)));
}

NudgeResult ApplyNudge(DesignRecord& design, const Nudge& nudge, const std::string& text) {
    std::string entered = text;
    ParseInto(entered, nudge.field.In(design, kNudgedScale));
    const double value = NumberOfNudge(design, nudge);
    const double lowest = nudge.lowest(design);
    if (nudge.lowestEnd == LowestEnd::Excluded ? value <= lowest : value < lowest) {
        return Correct(design, nudge, lowest);
    }
    if (value > nudge.highest(design)) {
        return Correct(design, nudge, nudge.highest(design));
    }
    return NudgeResult::Accepted;
}

} // namespace vernacle
