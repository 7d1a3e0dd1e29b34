#include "engine/wizard/wizardsteps.h"

#include <algorithm>
#include <cmath>

#include "engine/base/numbertext.h"
#include "engine/core/entry.h"
#include "engine/core/repair.h"

namespace vernacle {

const char* const kWizardEndText =
    "The fullscale value in units (volts, amps, etc.) has been temporarily set to be the same as "
    "the number of ticmarks. You may change this later. You now have a simple scale which can be "
    "added on to and edited upon return to the main part of the program. ";

namespace {

using D = DesignRecord;

constexpr int kWizardScale = 1; // the wizard's only one

// Holds a count until its step has tested it.
float workingValue = 0;

constexpr FieldPlace WorkingValue = {[](DesignRecord& /*design*/, int /*outer*/,
                                        int /*inner*/) -> FieldPointer { return &workingValue; }};

double NumberAt(const DesignRecord& design, FieldPlace field) {
    return NumberIn(field.In(design, kWizardScale));
}

void NameScale(DesignRecord& design) {
    design.ScaleTitle[kWizardScale] = "Simple Scale";
}

std::int16_t NearestCount() {
    std::int16_t count = 0;
    StoreNumber(double{workingValue}, count);
    return count;
}

// The scale counts from zero in ones.
void CountTics(DesignRecord& design) {
    design.NrOfTicmarks[kWizardScale] = NearestCount();
    design.ScaleLeftEnd[kWizardScale] = 0;
    design.ScaleLengthUnits[kWizardScale] = design.NrOfTicmarks[kWizardScale];
}

void CountMajors(DesignRecord& design) {
    design.MajorEveryHowMany[kWizardScale] = NearestCount();
    design.LabelsEveryHowMany[kWizardScale] = design.MajorEveryHowMany[kWizardScale];
}

constexpr WizardLimit From(double number) {
    return {.number = number};
}

constexpr WizardLimit Beyond(double number) {
    return {.number = number, .open = true};
}

constexpr WizardLimit UpTo(FieldPlace field) {
    return {.field = field};
}

constexpr FieldPlace kWidth = At<&D::PlateWidth>;
constexpr FieldPlace kHeight = At<&D::PlateHeight>;
constexpr FieldPlace kMajorLength = At<&D::MajorTicLength>;
constexpr FieldPlace kMajorWidth = At<&D::MajorTicWidth>;

// Some messages tell other limits than those that hold.
// clang-format off
constexpr WizardStep kSteps[] = {
    {"Plate width, mm: ",               "txtPlateWidth",           "mm",           kWidth,                       From(20),      From(180),        {"Please enter 20 minimum to 180 maximum"},               2, NameScale},
    {"Plate height, mm: ",              "txtPlateHeight",          "mm",           kHeight,                      From(10),      From(160),        {"Please enter 20 minimum to 160 maximum"},               3},
    {"Bottom to bearing, mm: ",         "txtBottomToBearing",      "mm",           At<&D::BottomToBearing>,      From(-100000), From(100000),     {"Please enter -100000 minimum to 100000 maximum"},       4},
    {"Bottom to mounting, mm: ",        "txtBottomToHoles",        "mm",           At<&D::BottomToHoles>,        From(-1000),   From(150),        {"Please enter -1000 minimum to 150 maximum"},            5},
    {"Mounting hole separation, mm: ",  "txtHoleSeparation",       "mm",           At<&D::HoleSeparation>,       From(5),       UpTo(kWidth),     {"Please enter 5 minimum to ", kWidth, " maximum"},       6},
    {"Pointer deflection, degrees: ",   "txtPointerDeflection",    "degrees",      At<&D::PointerDeflection>,    From(0.1F),    From(360),        {"Please enter .1 minimum to 360 maximum"},               7},
    {"Actual/virtual offset, mm: ",     "txtActualVirtualOffset",  "mm",           At<&D::ActualVirtualOffset>,  From(0),       From(100000),     {"Please enter 0 minimum to 100000 maximum"},            10},
    {"Major tic length, mm: ",          "txtMajorTicLength",       "mm",           kMajorLength,                 From(1),       From(20),         {"Please enter 1 minimum to 20 maximum"},                 9},
    {"Minor tic length, mm: ",          "txtMinorTicLength",       "mm",           At<&D::MinorTicLength>,       Beyond(0.5),   UpTo(kMajorLength), {"Please enter .5 minimum to ", kMajorLength, " maximum"}, 12},
    {"Major tic width, tenths of mm: ", "txtMajorTicWidth",        "tenths of mm", kMajorWidth,                  From(1),       From(20),         {"Please enter 1 minimum to 20 maximum"},                11},
    {"Minor tic width, tenths of mm: ", "txtMinorTicWidth",        "tenths of mm", At<&D::MinorTicWidth>,        From(1),       UpTo(kMajorWidth),  {"Please enter .5 minimum to ", kMajorWidth, " maximum"},  25},
    {"Arc thickness, tenths of mm: ",   "txtArcWidth",             "tenths of mm", At<&D::ArcWidth>,             From(1),       From(20),         {"Please enter 1 minimum to 20 maximum"},                24},
    {"Bottom to scale ceiling, mm: ",   "txtBottomToScaleCeiling", "mm",           At<&D::BottomToScaleCeiling>, Beyond(0),     UpTo(kHeight),    {"Please enter greater than zero to", kHeight, " maximum"}, 13},
    {"Font size for ticmark labels: ",  "txtFontSize",             "points",       At<&D::FontSize>,             From(2),       From(20),         {"Please enter 2 minimum to 20 maximum"},                14},
    {"Label to arc spacing, mm: ",      "txtLabelSpacing",         "mm",           At<&D::LabelSpacing>,         Beyond(-100),  From(200),        {"Please enter greater than zero to 200 maximum"},       23},
    {"Bottom to top of title, mm: ",    "txtBottomToTitle",        "mm",           At<&D::BottomToTitle>,        Beyond(0),     UpTo(kHeight),    {"Please enter greater than zero to ", kHeight, " maximum"}, 0},
    {"Number of ticmarks: ",            "txtNrOfTicmarks",         "ticmarks",     WorkingValue,                 Beyond(0),     Beyond(101),      {"Please enter 1 minimum to 100 maximum"},                0, CountTics,   At<&D::NrOfTicmarks>},
    {"Major tics every how many: ",     "txtMajorEveryHowMany",    "ticmarks",     WorkingValue,                 Beyond(0),     Beyond(21),       {"Please enter greater than 0 to 10 maximum"},            0, CountMajors, At<&D::MajorEveryHowMany>},
};
// clang-format on

// Minor tics before the major ones, unlike on the page.
constexpr int kReadingOrder[] = {0, 1, 2, 3, 4, 5, 6, 8, 7, 10, 9, 11, 12, 13, 14, 15, 16, 17};

// A prompt, with up to two numbers of the design in it.
struct Prompt {
    int topic = 0;
    const char* text = nullptr;
    FieldPlace field = {}; // whose number stands behind the text
    const char* between = "";
    int tenthsOfHeight = 0; // whose whole millimetres stand behind that
    const char* after = "";
};

constexpr Prompt kPrompts[] = {
    {1, "Measure and enter the plate width in mm; 20 minimum to 180 maximum."},
    {2, "Measure and enter the plate height in mm; 20 minimum to 160 maximum."},
    {3, "Measure and enter the distance from  the plate bottom  up to  the bearing, in mm; -1000 "
        "minimum to 1000 maximum."},
    {4, "Measure and enter the distance from  the plate bottom  up to  the mounting holes, in mm; "
        "-1000 minimum to 150 maximum."},
    {5, "Measure and enter the mounting hole separation, in mm, typically 20 to plate width (",
     kWidth, ") max."},
    {6, "Measure and enter the pointer deflection in degrees, .1 minimum to 360 maximum. Common "
        "values are 90 and 100."},
    {7,
     "Enter a value for the Actual/Virtual offset, in mm, 0 to 100,000. Enter 0 if for an "
     "'old-fashioned' design or if you don't know the value. For a modern design a typical value "
     "would be about half the plate height (i.e., ",
     {},
     "",
     5,
     ")."},
    {9, "Enter a value for the Minor tic length, in mm, .5 minimum to 20 maximum. A suggested "
        "value is 2. This cannot be greater than the major tic length."},
    {10, "Enter a value for the Major tic length, in mm, 1 minimum to 20 maximum. A suggested "
         "value is  3"},
    {11, "Enter a value for the Minor tic width, in tenths of a mm, .5 minimum to 20 maximum. A "
         "suggested value is 2. This cannot be greater than the width for the major tics."},
    {12, "Enter a value for the Major tic width, in tenths of a mm, .5 minimum to 20 maximum. A "
         "suggested value is 4."},
    {13, "Enter a value for the Font size, in points, 2 minimum to 20 maximum.  A suggested value "
         "is  8."},
    {14, "Enter a value for the spacing between the arc and the top of the ticmark labels, in mm, "
         "0 minimum to 200 maximum. A suggested value is 6."},
    {23,
     "Enter a value for the distance from the plate bottom to the top of the scale title, in mm, "
     "0 to ",
     kHeight, " maximum. A typical value would be about .5 times scale height i.e., ", 5, " mm"},
    {24,
     "Enter a value for the distance from the plate bottom to the top of the scale arc (the "
     "'ceiling') in mm, 0 minimum to ",
     kHeight, " maximum.  A typical value would be about .7 times scale height i.e., ", 7, " mm"},
    {25, "Enter a value for the thickness of the arc, in tenths of a mm, .5 minimum to 20 maximum. "
         "A suggested is a value of 2."},
};

constexpr Repair kRepairs[] = {
    {At<&D::ArcWidth>, When::NotAbove, 0, 1},
    {At<&D::AspectRatio>, When::Equal, 0, 0.75},
    {At<&D::BottomToBearing>, When::Equal, 0, 1},
    {At<&D::BottomToScaleCeiling>, When::Equal, 0, 35},
    {At<&D::BottomToHoles>, When::Equal, 0, 1},
    {At<&D::BottomToTitle>, When::Equal, 0, 25},
    {At<&D::MajorEveryHowMany>, When::Equal, 0, 5},
    {At<&D::LabelSpacing>, When::Equal, 0, 6},
    {kMajorLength, When::Equal, 0, 3},
    {kMajorWidth, When::Equal, 0, 4},
    {At<&D::MinorTicLength>, When::Equal, 0, 2},
    {At<&D::MinorTicLength>, When::Above, 0, 0, kMajorLength, kMajorLength},
    {At<&D::MinorTicWidth>, When::Equal, 0, 2},
    {At<&D::MinorTicWidth>, When::Above, 0, 0, kMajorWidth, kMajorWidth},
    {At<&D::HoleSeparation>, When::Equal, 0, -10, {}, kWidth},
    {At<&D::NrOfTicmarks>, When::Below, 1, 50},
    {At<&D::NumberOfScales>, When::Always, 0, 1},
    {At<&D::PlateBackground>, When::Always, 0, 0xFFFFFF},
    {kHeight, When::Equal, 0, 50},
    {At<&D::PlateStyle>, When::Always, 0, 0},
    {kWidth, When::NotAbove, 0, 75},
    {At<&D::PointerDeflection>, When::Below, 0.1F, 90},
    {At<&D::FontSize>, When::NotAbove, 0, 8},
    {.place = At<&D::DrawArcs>, .text = "Y"},
    {.place = At<&D::PrintText>, .text = "Y"},
    {.place = At<&D::LabelRotation>, .text = "H"},
    {.place = At<&D::ScaleTitle>, .text = "Wizard Title"},
};

bool IsAccepted(const DesignRecord& design, const WizardStep& step, double value) {
    const double lowest = step.lowest.Value(design);
    const double highest = step.highest.Value(design);
    const bool highEnough = step.lowest.open ? value > lowest : value >= lowest;
    const bool lowEnough = step.highest.open ? value < highest : value <= highest;
    return highEnough && lowEnough;
}

std::string Plain(double number) {
    return PlainNumber(static_cast<float>(number));
}

} // namespace

double WizardLimit::Value(const DesignRecord& design) const {
    return field ? NumberAt(design, field) : number;
}

std::span<const WizardStep> WizardSteps() {
    return kSteps;
}

std::optional<std::string> EnterWizardStep(DesignRecord& design, const WizardStep& step,
                                           const std::string& text) {
    std::string entered = text;
    ParseInto(entered, step.field.In(design, kWizardScale));
    if (IsAccepted(design, step, NumberAt(design, step.field))) {
        if (step.accepted) {
            step.accepted(design);
        }
        return std::nullopt;
    }
    const WizardRefusal& refusal = step.refusal;
    const std::string number =
        refusal.field ? SignedNumber(static_cast<float>(NumberAt(design, refusal.field)))
                      : std::string();
    return refusal.before + number + refusal.after;
}

std::string WizardValue(const DesignRecord& design, const WizardStep& step) {
    return SignedNumber(static_cast<float>(NumberAt(design, step.field)));
}

std::string WizardRange(const DesignRecord& design, const WizardStep& step) {
    return RangeText({.lowest = step.lowest.Value(design),
                      .highest = step.highest.Value(design),
                      .lowestIsOpen = step.lowest.open,
                      .highestIsOpen = step.highest.open},
                     step.unit);
}

std::string WizardPrompt(const DesignRecord& design, int topic) {
    const auto* row = std::ranges::find(kPrompts, topic, &Prompt::topic);
    if (row == std::end(kPrompts)) {
        return {};
    }
    std::string prompt = row->text;
    if (row->field) {
        prompt += Plain(NumberAt(design, row->field));
    }
    prompt += row->between;
    if (row->tenthsOfHeight != 0) {
        prompt += Plain(std::floor(row->tenthsOfHeight * double{design.PlateHeight} / 10));
    }
    return prompt + row->after;
}

std::span<const int> WizardReadingOrder() {
    return kReadingOrder;
}

void ReadWizardStep(DesignRecord& design, const WizardStep& step, const std::string& text) {
    const FieldPlace field = step.count ? step.count : step.field;
    std::string entered = text;
    ParseInto(entered, field.In(design, kWizardScale));
}

void RepairWizardDesign(DesignRecord& design) {
    RepairFields(design, kRepairs, kWizardScale);
}

} // namespace vernacle
