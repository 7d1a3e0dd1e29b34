#include "engine/core/design.h"

#include <span>

#include "engine/base/hostservices.h"
#include "engine/core/fieldplace.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

class DesignTest : public EngineTest {};

// A text of nullptr: not set, the field keeps what it held.
struct Default {
    const char* name;
    FieldPlace field;
    const char* opening;
    const char* reset;
};

constexpr Default kPlateDefaults[] = {
    {"ActualVirtualOffset", At<&D::ActualVirtualOffset>, "30", "30"},
    {"ArcWidth", At<&D::ArcWidth>, "1", "1"},
    {"AspectRatio", At<&D::AspectRatio>, ".8", ".75"},
    {"BottomToBearing", At<&D::BottomToBearing>, "15", "10"},
    {"BottomToHoles", At<&D::BottomToHoles>, "15", "15"},
    {"DrawArcs", At<&D::DrawArcs>, "Y", "Y"},
    {"FontName", At<&D::FontName>, "Arial", nullptr},
    {"LabelSpacing", At<&D::LabelSpacing>, "5", "6"},
    {"MajorTicLength", At<&D::MajorTicLength>, "3", "3"},
    {"MajorTicWidth", At<&D::MajorTicWidth>, "3", "4"},
    {"MessageLevel", At<&D::MessageLevel>, "0", "0"},
    {"MinorTicLength", At<&D::MinorTicLength>, "2", "2"},
    {"MinorTicWidth", At<&D::MinorTicWidth>, "1", "2"},
    {"HoleSeparation", At<&D::HoleSeparation>, "40", "50"},
    {"NumberOfScales", At<&D::NumberOfScales>, "1", "1"},
    {"NumberOfTexts", At<&D::NumberOfTexts>, "0", "0"},
    {"PlateWidth", At<&D::PlateWidth>, "75", "75"},
    {"PlateHeight", At<&D::PlateHeight>, "50", "50"},
    {"PlateBackground", At<&D::PlateBackground>, "16777215", "16777215"},
    {"PointerDeflection", At<&D::PointerDeflection>, "90", "99"},
    {"PrintText", At<&D::PrintText>, "Y", "Y"},
    {"LabelRotation", At<&D::LabelRotation>, "H", "H"},
    {"FontSize", At<&D::FontSize>, "6", "8"},
    {"PlateStyle", At<&D::PlateStyle>, nullptr, "0"},
    {"DrawGraphic", At<&D::DrawGraphic>, nullptr, "N"},
    {"NumberOfHighlights", At<&D::NumberOfHighlights>, nullptr, "0"},
    {"GraphicWidth", At<&D::GraphicWidth>, nullptr, "1"},
    {"GraphicHeight", At<&D::GraphicHeight>, nullptr, "1"},
    {"BottomToGraphic", At<&D::BottomToGraphic>, nullptr, "1"},
    {"LeftToGraphic", At<&D::LeftToGraphic>, nullptr, "10"},
    {"NumberOfCorrectionPoints", At<&D::NumberOfCorrectionPoints>, nullptr, "7"},
    // fields that neither routine touches
    {"DesignFileName", At<&D::DesignFileName>, nullptr, nullptr},
    {"GraphicFileName", At<&D::GraphicFileName>, nullptr, nullptr},
    {"DrawHighlights", At<&D::DrawHighlights>, nullptr, nullptr},
    {"PlateOutlineCircular", At<&D::PlateOutlineCircular>, nullptr, nullptr},
    {"CurrentScale", At<&D::CurrentScale>, nullptr, nullptr},
    {"ActiveScale", At<&D::ActiveScale>, nullptr, nullptr},
    {"HelpTopic", At<&D::HelpTopic>, nullptr, nullptr},
    {"CalibrationX", At<&D::CalibrationX>, nullptr, nullptr},
    {"CalibrationY", At<&D::CalibrationY>, nullptr, nullptr},
};

// Of each scale, but for the places that depend on its number.
constexpr Default kScaleDefaults[] = {
    {"ScaleColor", At<&D::ScaleColor>, "1", "0"},
    {"ScaleLeftEnd", At<&D::ScaleLeftEnd>, nullptr, "0"},
    {"ScaleLengthUnits", At<&D::ScaleLengthUnits>, nullptr, "50"},
    {"NrOfTicmarks", At<&D::NrOfTicmarks>, nullptr, "50"},
    {"MajorEveryHowMany", At<&D::MajorEveryHowMany>, nullptr, "5"},
    {"LabelsEveryHowMany", At<&D::LabelsEveryHowMany>, nullptr, "10"},
    {"LinearityExponent", At<&D::LinearityExponent>, nullptr, "1"},
    {"SpecialNrOfTicmarks", At<&D::SpecialNrOfTicmarks>, nullptr, "0"},
    {"UnlabelledBottomTic", At<&D::UnlabelledBottomTic>, nullptr, "Y"},
    {"FullscaleMultiplier", At<&D::FullscaleMultiplier>, nullptr, "1"},
    {"RelativeFontSize", At<&D::RelativeFontSize>, "1", "1"},
};
constexpr Default kScalePlaces[] = {
    {"BottomToTitle", At<&D::BottomToTitle>, "30", nullptr},
    {"BottomToScaleCeiling", At<&D::BottomToScaleCeiling>, "35", nullptr},
    {"ScaleTitle", At<&D::ScaleTitle>, nullptr, nullptr},
};

constexpr Default kTextDefaults[] = {
    {"TextString", At<&D::TextString>, "", ""},
    {"LeftToText", At<&D::LeftToText>, "10", "0"},
    {"BottomToText", At<&D::BottomToText>, "10", "0"},
    {"TextRelativeSize", At<&D::TextRelativeSize>, "1", "1"},
    {"TextColor", At<&D::TextColor>, "0", "0"},
};

constexpr Default kHighlightDefaults[] = {
    {"HighlightStart", At<&D::HighlightStart>, nullptr, "0"},
    {"HighlightStop", At<&D::HighlightStop>, nullptr, "0"},
    {"HighlightCeiling", At<&D::HighlightCeiling>, nullptr, "10"},
    {"HighlightLength", At<&D::HighlightLength>, nullptr, "0"},
    {"HighlightColor", At<&D::HighlightColor>, nullptr, "1"},
};

bool IsText(const FieldPointer& field) {
    return std::holds_alternative<std::string*>(field);
}

// Gives the field a value that no default has: 77, or "?".
void Poison(const FieldPointer& field) {
    if (IsText(field)) {
        *std::get<std::string*>(field) = "?";
    } else {
        StoreIn(field, 77);
    }
}

void PoisonAll(std::span<const Default> rows, int last = 0) {
    for (int index = 0; index <= last; ++index) {
        for (const Default& row : rows) {
            Poison(row.field.In(Design, index));
        }
    }
}

using Column = const char* Default::*;

constexpr Column kUntouched = nullptr;

// The fields have their values of that column, all others still their poison.
void ExpectDefaults(std::span<const Default> rows, Column column, int index = 0) {
    SCOPED_TRACE(index);
    for (const Default& row : rows) {
        const FieldPointer field = row.field.In(Design, index);
        const char* poison = IsText(field) ? "?" : "77";
        const char* value = column ? row.*column : nullptr;
        EXPECT_EQ(PlainText(field), value ? value : poison) << row.name;
    }
}

void PoisonDesign() {
    PoisonAll(kPlateDefaults);
    PoisonAll(kScaleDefaults, 8);
    PoisonAll(kScalePlaces, 8);
    PoisonAll(kTextDefaults, 10);
    PoisonAll(kHighlightDefaults, 10);
    Design.PrintTicsAndArcs.fill(std::int16_t{77});
    Design.CorrectionPair.fill(77);
    Design.CorrectionSlope.fill(77);
    for (int scale = 0; scale <= 10; ++scale) {
        for (int tic = 0; tic <= 360; ++tic) {
            Design.StandardTicYN[scale][tic] = Design.StandardLabelYN[scale][tic] = "?";
        }
    }
    for (int scale = 0; scale <= 8; ++scale) {
        for (int tic = 0; tic <= 360; ++tic) {
            Design.TicDeflection[scale][tic] = Design.StandardDeflection[scale][tic] = 77;
            Design.TicLabelYN[scale][tic] = Design.TicPrintYN[scale][tic] = "?";
            Design.TicMajorYN[scale][tic] = Design.TicLabelText[scale][tic] = "?";
            Design.StandardLabel[scale][tic] = "?";
        }
    }
    for (int scale = 0; scale <= 6; ++scale) {
        Design.DeletedTicCount[scale] = Design.DeletedLabelCount[scale] = 77;
        Design.DeletedTics[scale].fill(77);
        Design.DeletedLabels[scale].fill(77);
    }
}

TEST_F(DesignTest, StartsEmptyInEveryField) {
    for (const Default& row : kPlateDefaults) {
        const FieldPointer field = row.field.In(Design);
        EXPECT_EQ(PlainText(field), IsText(field) ? "" : "0") << row.name;
    }
    EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[10]), 0);
    EXPECT_EQ(Design.StandardTicYN[10][360], "");
}

TEST_F(DesignTest, TablesHaveTheirBounds) {
    EXPECT_NO_THROW(Design.ScaleColor[8]);
    EXPECT_THROW(Design.ScaleColor[9], RunTimeError);
    EXPECT_NO_THROW(Design.PrintTicsAndArcs[10]);
    EXPECT_THROW(Design.PrintTicsAndArcs[11], RunTimeError);
    EXPECT_NO_THROW(Design.TicDeflection[8][360]);
    EXPECT_THROW(Design.TicDeflection[9][0], RunTimeError);
    EXPECT_THROW(Design.TicDeflection[8][361], RunTimeError);
    EXPECT_NO_THROW(Design.StandardTicYN[10][360]);
    EXPECT_THROW(Design.StandardTicYN[11][0], RunTimeError);
    EXPECT_NO_THROW(Design.DeletedTics[6][360]);
    EXPECT_THROW(Design.DeletedTics[6][361], RunTimeError);
    EXPECT_THROW(Design.DeletedTics[7], RunTimeError);
    EXPECT_NO_THROW(Design.TextString[10]);
    EXPECT_THROW(Design.TextString[11], RunTimeError);
    EXPECT_NO_THROW(Design.HighlightStop[10]);
    EXPECT_THROW(Design.HighlightStop[11], RunTimeError);
    EXPECT_NO_THROW(Design.CorrectionPair[20]);
    EXPECT_THROW(Design.CorrectionPair[21], RunTimeError);
    EXPECT_NO_THROW(Design.CorrectionSlope[6]);
    EXPECT_THROW(Design.CorrectionSlope[7], RunTimeError);
}

TEST_F(DesignTest, OpeningValuesCoverTheirFieldsAlone) {
    PoisonDesign();
    SetOpeningValues(Design);
    ExpectDefaults(kPlateDefaults, &Default::opening);
    for (int scale = 0; scale <= 8; ++scale) {
        const bool covered = scale >= 1 && scale <= 6;
        ExpectDefaults(kScaleDefaults, covered ? &Default::opening : kUntouched, scale);
        ExpectDefaults(kScalePlaces, covered ? &Default::opening : kUntouched, scale);
    }
    for (int text = 0; text <= 10; ++text) {
        const bool covered = text >= 1 && text <= 8;
        ExpectDefaults(kTextDefaults, covered ? &Default::opening : kUntouched, text);
        ExpectDefaults(kHighlightDefaults, &Default::opening, text);
    }
    EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[1]), 77);
    EXPECT_EQ(Design.StandardTicYN[1][1], "?");
    EXPECT_EQ(Design.CorrectionPair[3], 77);
    EXPECT_EQ(Design.CorrectionSlope[1], 77);
}

TEST_F(DesignTest, ResetCoversTheFieldsOfThePlate) {
    PoisonDesign();
    ResetDesign(Design);
    ExpectDefaults(kPlateDefaults, &Default::reset);
}

TEST_F(DesignTest, ResetCoversSixScales) {
    PoisonDesign();
    ResetDesign(Design);
    for (int scale = 1; scale <= 6; ++scale) {
        ExpectDefaults(kScaleDefaults, &Default::reset, scale);
        EXPECT_EQ(Design.BottomToTitle[scale], static_cast<float>(25 + 5 * scale)) << scale;
        EXPECT_EQ(Design.BottomToScaleCeiling[scale], static_cast<float>(30 + 5 * scale)) << scale;
        EXPECT_EQ(Design.ScaleTitle[scale], "Default Scale " + std::to_string(scale));
        EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[scale]), 0) << scale;
    }
    for (const int scale : {0, 7, 8}) {
        ExpectDefaults(kScaleDefaults, kUntouched, scale);
        ExpectDefaults(kScalePlaces, kUntouched, scale);
        EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[scale]), 77) << scale;
    }
}

TEST_F(DesignTest, ResetCoversAllTicsOfSixScales) {
    PoisonDesign();
    ResetDesign(Design);
    for (int scale = 0; scale <= 8; ++scale) {
        const bool covered = scale >= 1 && scale <= 6;
        SCOPED_TRACE(scale);
        for (const int tic : {0, 1, 180, 359, 360}) {
            EXPECT_EQ(Design.StandardDeflection[scale][tic], covered ? 0 : 77);
            EXPECT_EQ(Design.TicDeflection[scale][tic], covered ? 0 : 77);
            EXPECT_EQ(Design.StandardLabel[scale][tic], covered ? "" : "?");
            EXPECT_EQ(Design.TicLabelText[scale][tic], covered ? "" : "?");
            EXPECT_EQ(Design.StandardLabelYN[scale][tic], covered ? "Y" : "?");
            EXPECT_EQ(Design.TicLabelYN[scale][tic], covered ? "Y" : "?");
            EXPECT_EQ(Design.StandardTicYN[scale][tic], covered ? "Y" : "?");
            EXPECT_EQ(Design.TicPrintYN[scale][tic], covered ? "Y" : "?");
            EXPECT_EQ(Design.TicMajorYN[scale][tic], covered ? "N" : "?");
        }
    }
}

TEST_F(DesignTest, ResetCoversAllTextsAndHighlights) {
    PoisonDesign();
    ResetDesign(Design);
    for (int index = 1; index <= 10; ++index) {
        ExpectDefaults(kTextDefaults, &Default::reset, index);
        ExpectDefaults(kHighlightDefaults, &Default::reset, index);
    }
}

TEST_F(DesignTest, ResetEmptiesTheDeletedListsOfFourScales) {
    PoisonDesign();
    ResetDesign(Design);
    for (int scale = 1; scale <= 6; ++scale) {
        const int expected = scale <= 4 ? 0 : 77;
        SCOPED_TRACE(scale);
        EXPECT_EQ(Design.DeletedTicCount[scale], expected);
        EXPECT_EQ(Design.DeletedLabelCount[scale], expected);
        for (const int entry : {1, 180, 360}) {
            EXPECT_EQ(Design.DeletedTics[scale][entry], expected);
            EXPECT_EQ(Design.DeletedLabels[scale][entry], expected);
        }
    }
}

void ExpectLinearCurve() {
    constexpr float kPoints[] = {0, 0.15F, 0.3F, 0.5F, 0.7F, 0.85F, 1};
    for (int point = 1; point <= 7; ++point) {
        EXPECT_EQ(Design.CorrectionPair[2 * point - 1], kPoints[point - 1]) << point;
        EXPECT_EQ(Design.CorrectionPair[2 * point], kPoints[point - 1]) << point;
    }
    for (int segment = 1; segment <= 6; ++segment) {
        EXPECT_EQ(Design.CorrectionSlope[segment], 1) << segment;
    }
    EXPECT_EQ(Design.CorrectionPair[15], 77);
}

TEST_F(DesignTest, ResetMakesTheCurveStraight) {
    PoisonDesign();
    ResetDesign(Design);
    ExpectLinearCurve();
}

TEST_F(DesignTest, TheStraightCurveHasSevenPoints) {
    PoisonDesign();
    SetLinearCurve(Design);
    ExpectLinearCurve();
    EXPECT_EQ(Design.PlateWidth, 77);
}

TEST_F(DesignTest, ScreenFactorsComeFromTheScreen) {
    Host.screenSize = [] { return ScreenSize{24000, 13500}; };
    SetVersionAndScreenScale(Design);
    EXPECT_EQ(Design.VersionText, "Version 3.04");
    EXPECT_EQ(Design.ProgramName, "Vernacle");
    EXPECT_EQ(Design.ScreenScaleX, 2);
    EXPECT_EQ(Design.ScreenScaleY, 1.5F);
}

TEST_F(DesignTest, DynamicValuesCountAsNumbers) {
    EXPECT_EQ(NumberOf(DynamicValue{}), 0);
    EXPECT_EQ(NumberOf(std::int16_t{3}), 3);
    EXPECT_EQ(NumberOf(std::string(" 2.5x")), 2.5);
    EXPECT_EQ(NumberOf(std::string("no")), 0);
}

TEST_F(DesignTest, TheCurrentTicIsWhereTheLoopStands) {
    Design.TicLoop = 360;
    EXPECT_EQ(CurrentTic(Design), 360);
}

} // namespace
} // namespace vernacle::test
