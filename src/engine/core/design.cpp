#include "engine/core/design.h"
#include "engine/core/service.h"

#include <array>
#include <memory>
#include <type_traits>
#include <utility>

#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/core/recordfields.h"
#include "engine/core/repair.h"

namespace vernacle {

DesignRecord Design;

namespace {

using D = DesignRecord;
using Value = std::variant<std::monostate, double, const char*>;

constexpr std::monostate kNotSet{};
constexpr double kSteepestExponent = 4; // of a law; 0 to a negative power has no value

// What a field starts as: at the process's start, and at each reset. The two disagree on purpose:
// the start shows a plate that fits a common small meter, a reset one that reads easily.
struct Default {
    FieldPlace place;
    Value opening;
    Value reset;
};

constexpr Default kDefaults[] = {
    {At<&D::ActualVirtualOffset>, 30.0, 30.0},
    {At<&D::ArcWidth>, 1.0, 1.0},
    {At<&D::AspectRatio>, 0.8, 0.75},
    {At<&D::BottomToBearing>, 15.0, 10.0},
    {At<&D::BottomToHoles>, 15.0, 15.0},
    {At<&D::DrawArcs>, "Y", "Y"},
    {At<&D::FontName>, "Arial", kNotSet},
    {At<&D::LabelSpacing>, 5.0, 6.0},
    {At<&D::MajorTicLength>, 3.0, 3.0},
    {At<&D::MajorTicWidth>, 3.0, 4.0},
    {At<&D::MessageLevel>, 0.0, 0.0},
    {At<&D::MinorTicLength>, 2.0, 2.0},
    {At<&D::MinorTicWidth>, 1.0, 2.0},
    {At<&D::HoleSeparation>, 40.0, 50.0},
    {At<&D::NumberOfScales>, 1.0, 1.0},
    {At<&D::NumberOfTexts>, 0.0, 0.0},
    {At<&D::PlateWidth>, 75.0, 75.0},
    {At<&D::PlateHeight>, 50.0, 50.0},
    {At<&D::PlateBackground>, double{kWhite}, double{kWhite}},
    {At<&D::PointerDeflection>, 90.0, 99.0},
    {At<&D::PrintText>, "Y", "Y"},
    {At<&D::LabelRotation>, "H", "H"},
    {At<&D::FontSize>, 6.0, 8.0},
    {At<&D::PlateStyle>, kNotSet, 0.0},
    {At<&D::DrawGraphic>, kNotSet, "N"},
    {At<&D::NumberOfHighlights>, kNotSet, 0.0},
    {At<&D::GraphicWidth>, kNotSet, 1.0},
    {At<&D::GraphicHeight>, kNotSet, 1.0},
    {At<&D::BottomToGraphic>, kNotSet, 1.0},
    {At<&D::LeftToGraphic>, kNotSet, 10.0},
    {At<&D::NumberOfCorrectionPoints>, kNotSet, double{kCurvePoints}},
};

// Per scale or per text.
constexpr Default kScaleDefaults[] = {
    {At<&D::ScaleColor>, 1.0, 0.0},
    {At<&D::RelativeFontSize>, 1.0, 1.0},
    {At<&D::LinearityExponent>, kNotSet, 1.0},
    {At<&D::FullscaleMultiplier>, kNotSet, 1.0},
    {At<&D::LabelsEveryHowMany>, kNotSet, 10.0},
    {At<&D::MajorEveryHowMany>, kNotSet, 5.0},
    {At<&D::NrOfTicmarks>, kNotSet, 50.0},
    {At<&D::ScaleLeftEnd>, kNotSet, 0.0},
    {At<&D::ScaleLengthUnits>, kNotSet, 50.0},
    {At<&D::SpecialNrOfTicmarks>, kNotSet, 0.0},
    {At<&D::UnlabelledBottomTic>, kNotSet, "Y"},
    {At<&D::SpecialExponent>, kNotSet, 1.0},
    {At<&D::ScaleSetup>, kNotSet, ""},
    {At<&D::BottomToTitle>, 30.0, kNotSet},
    {At<&D::BottomToScaleCeiling>, 35.0, kNotSet},
};

constexpr Default kTextDefaults[] = {
    {At<&D::LeftToText>, 10.0, 0.0},      //
    {At<&D::BottomToText>, 10.0, 0.0},    //
    {At<&D::TextRelativeSize>, 1.0, 1.0}, //
    {At<&D::TextColor>, 0.0, 0.0},        //
    {At<&D::TextString>, "", ""},         //
};

constexpr Default kHighlightDefaults[] = {
    {At<&D::HighlightColor>, kNotSet, 1.0},    //
    {At<&D::HighlightCeiling>, kNotSet, 10.0}, //
    {At<&D::HighlightLength>, kNotSet, 0.0},   //
    {At<&D::HighlightStart>, kNotSet, 0.0},    //
    {At<&D::HighlightStop>, kNotSet, 0.0},     //
};

// What the everyday program lets a design inherit from the one before it.
constexpr Default kInherited[] = {
    {At<&D::DrawHighlights>, kNotSet, "N"},       //
    {At<&D::FontName>, kNotSet, "Arial"},         //
    {At<&D::ForeignLines>, kNotSet, ""},          //
    {At<&D::GraphicFileName>, kNotSet, ""},       //
    {At<&D::LeftToBearing>, kNotSet, -1.0},       //
    {At<&D::PenWidth>, kNotSet, 0.3},             //
    {At<&D::PlateOutlineCircular>, kNotSet, 0.0}, //
};

void Put(const Value& value, const FieldPointer& slot) {
    if (const auto* text = std::get_if<const char*>(&value)) {
        *std::get<std::string*>(slot) = *text;
    } else if (const auto* number = std::get_if<double>(&value)) {
        StoreIn(slot, *number);
    }
}

template <std::size_t Count>
void PutAll(DesignRecord& design, const Default (&rows)[Count], Value Default::*column,
            int index = 0) {
    for (const Default& row : rows) {
        Put(row.*column, row.place.In(design, index));
    }
}

void ResetTic(DesignRecord& design, int scale, int tic) {
    design.StandardDeflection[scale][tic] = 0;
    design.StandardLabel[scale][tic].clear();
    design.StandardLabelYN[scale][tic] = "Y";
    design.StandardTicYN[scale][tic] = "Y";
    ResetSpecialTic(design, scale, tic);
}

void ResetScale(DesignRecord& design, int scale) {
    const auto number = static_cast<float>(scale);
    PutAll(design, kScaleDefaults, &Default::reset, scale);
    design.BottomToScaleCeiling[scale] = 5 * number + 30;
    design.BottomToTitle[scale] = 5 * number + 25;
    design.PrintTicsAndArcs[scale] = std::int16_t{0};
    design.ScaleTitle[scale] = "Default Scale " + std::to_string(scale);
    for (int tic = 0; tic <= kLastTic; ++tic) {
        ResetTic(design, scale, tic);
    }
}

void ResetDeletedLists(DesignRecord& design, int lists) {
    for (int scale = 1; scale <= lists; ++scale) {
        design.DeletedTicCount[scale] = 0;
        design.DeletedLabelCount[scale] = 0;
        for (int entry = 1; entry <= kLastTic; ++entry) {
            design.DeletedTics[scale][entry] = 0;
            design.DeletedLabels[scale][entry] = 0;
        }
    }
}

constexpr Repair kPlateRepairs[] = {
    {At<&D::ActualVirtualOffset>, When::From, 100000, 100000},
    {At<&D::ArcWidth>, When::Below, 0.5, 0.5},
    {At<&D::BottomToBearing>, When::Below, -100000, -100000},
    {At<&D::BottomToBearing>, When::Above, 100000, 100000},
    {At<&D::PlateHeight>, When::NotAbove, 0, 50},
    {At<&D::LabelSpacing>, When::Below, -200, -200},
    {At<&D::MajorTicLength>, When::Below, 0.5, 0.5},
    {At<&D::MajorTicWidth>, When::NotAbove, 0, 1},
    {At<&D::MinorTicLength>, When::Below, 0.5, 0.5},
    {At<&D::MinorTicWidth>, When::NotAbove, 0, 1},
    {At<&D::HoleSeparation>, When::NotAbove, 0, 40},
    {At<&D::HoleSeparation>, When::Above, 180, 180},
    {At<&D::PlateWidth>, When::NotAbove, 0, 50},
    {At<&D::PlateWidth>, When::Above, 180, 180},
    {At<&D::PointerDeflection>, When::NotAbove, 0, 90},
    {At<&D::FontSize>, When::NotAbove, 0, 8},
    {At<&D::GraphicWidth>, When::Below, 2, 2},
    {At<&D::GraphicWidth>, When::Above, 180, 180},
    {At<&D::GraphicHeight>, When::Below, 2, 2},
    {At<&D::GraphicHeight>, When::Above, 180, 180},
    {At<&D::LeftToGraphic>, When::Below, 0, 0},
    {At<&D::BottomToGraphic>, When::Below, 0, 0, At<&D::GraphicHeight>, At<&D::GraphicHeight>},
    {.place = At<&D::DrawArcs>, .when = When::Empty, .text = "Y"},
    {.place = At<&D::PrintText>, .when = When::Empty, .text = "Y"},
    {.place = At<&D::LabelRotation>, .when = When::Empty, .text = "H"},
    {.place = At<&D::FontName>, .text = "Arial", .liftedBy = &ServiceState::styles},
    {.place = At<&D::FontName>, .when = When::Empty, .text = "Arial"},
    {.place = At<&D::NumberOfScales>, .becomes = 1, .liftedBy = &ServiceState::severalScales},
    {At<&D::NumberOfScales>, When::Below, 1, 1},
    {At<&D::NumberOfScales>, When::Above, kScales, kScales},
    {At<&D::CurrentScale>, When::Always, 0, 1},
};

constexpr Repair kScaleRepairs[] = {
    {At<&D::BottomToScaleCeiling>, When::NotAbove, -200, -200},
    {At<&D::BottomToTitle>, When::NotAbove, -200, -200},
    {At<&D::MajorEveryHowMany>, When::Below, 1, 5},
    {At<&D::LabelsEveryHowMany>, When::Below, 1, 10},
    {At<&D::NrOfTicmarks>, When::Below, 1, 50},
    {At<&D::NrOfTicmarks>, When::Above, kLastTic, kLastTic},
    {.place = At<&D::LinearityExponent>, .becomes = 1, .liftedBy = &ServiceState::exponent},
    {At<&D::LinearityExponent>, When::NotAbove, 0, 1},
    {At<&D::LinearityExponent>, When::Above, kSteepestExponent, kSteepestExponent},
    {.place = At<&D::ScaleColor>, .becomes = 0, .liftedBy = &ServiceState::specialScales},
    {At<&D::ScaleLengthUnits>, When::Equal, 0, 100},
};

void NormalizeScale(DesignRecord& design, int scale) {
    RepairFields(design, kScaleRepairs, scale);
    if (design.ScaleTitle[scale].empty()) {
        design.ScaleTitle[scale] = "Default " + std::to_string(scale);
    }
}

} // namespace

double NumberOf(const DynamicValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) {
        return NumericValue(*text);
    }
    return std::get<std::int16_t>(value);
}

int CurrentTic(const DesignRecord& design) {
    return static_cast<int>(design.TicLoop);
}

void SetOpeningValues(DesignRecord& design) {
    PutAll(design, kDefaults, &Default::opening);
    for (int scale = 1; scale <= kScales; ++scale) {
        PutAll(design, kScaleDefaults, &Default::opening, scale);
    }
    for (int text = 1; text <= kOpeningTexts; ++text) {
        PutAll(design, kTextDefaults, &Default::opening, text);
    }
}

void SetLinearPairs(DesignRecord& design) {
    constexpr std::array<float, kCurvePoints> kPoints = {0, 0.15F, 0.3F, 0.5F, 0.7F, 0.85F, 1};
    for (int point = 1; point <= kCurvePoints; ++point) {
        const float coordinate = kPoints[static_cast<std::size_t>(point - 1)];
        design.CorrectionPair[2 * point - 1] = coordinate;
        design.CorrectionPair[2 * point] = coordinate;
    }
}

void SetLinearCurve(DesignRecord& design) {
    SetLinearPairs(design);
    for (int segment = 1; segment < kCurvePoints; ++segment) {
        design.CorrectionSlope[segment] = 1;
    }
}

namespace {

void CopyValue(const FieldPointer& to, const ConstFieldPointer& from) {
    std::visit(
        [](auto target, auto source) {
            if constexpr (std::is_same_v<std::add_const_t<std::remove_pointer_t<decltype(target)>>*,
                                         decltype(source)>) {
                *target = *source;
            }
        },
        to, from);
}

// Nothing of the design before is left, but for what is of the process.
void Clear(DesignRecord& design) {
    const auto blank = std::make_unique<DesignRecord>();
    for (const RecordField& field : RecordFields()) {
        if (field.role == FieldRole::Session) {
            ForEachEntry(field, [&](int outer, int inner) {
                CopyValue(field.place.In(*blank, outer, inner),
                          field.place.In(std::as_const(design), outer, inner));
            });
        }
    }
    design = std::move(*blank);
}

} // namespace

void ResetSpecialTic(DesignRecord& design, int scale, int tic) {
    design.TicDeflection[scale][tic] = 0;
    design.TicLabelText[scale][tic].clear();
    design.TicLabelYN[scale][tic] = "Y";
    design.TicPrintYN[scale][tic] = "Y";
    design.TicMajorYN[scale][tic] = "N";
}

void ResetDesign(DesignRecord& design) {
    if (Service.carefulFiles) {
        Clear(design);
    }
    PutAll(design, kDefaults, &Default::reset);
    if (Service.carefulFiles) {
        PutAll(design, kInherited, &Default::reset);
    }
    for (int scale = 1; scale <= kScales; ++scale) {
        ResetScale(design, scale);
    }
    for (int text = 1; text <= kTexts; ++text) {
        PutAll(design, kTextDefaults, &Default::reset, text);
    }
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        PutAll(design, kHighlightDefaults, &Default::reset, highlight);
    }
    ResetDeletedLists(design, Service.carefulFiles ? kScales : kFiledLists);
    SetLinearCurve(design);
}

int NormalizeDesign(DesignRecord& design) {
    RepairFields(design, kPlateRepairs);
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        NormalizeScale(design, scale);
    }
    return 0;
}

void SetVersionAndScreenScale(DesignRecord& design) {
    design.VersionText = "Version 3.04";
    design.ProgramName = ServiceName();
    const ScreenSize screen = Host.screenSize();
    design.ScreenScaleX = screen.widthTwips / 12000;
    design.ScreenScaleY = screen.heightTwips / 9000;
}

} // namespace vernacle
