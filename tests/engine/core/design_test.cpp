#include "engine/core/design.h"

#include <algorithm>
#include <vector>

#include "engine/base/hostservices.h"
#include "show.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

class DesignTest : public EngineTest {};

// A text of nullptr: not set, the field keeps what it held.
struct PlateDefault {
    const char* name;
    Member field;
    const char* opening;
    const char* reset;
};

const PlateDefault kPlateDefaults[] = {
    {"ActualVirtualOffset", &D::ActualVirtualOffset, "30", "30"},
    {"ArcWidth", &D::ArcWidth, "1", "1"},
    {"AspectRatio", &D::AspectRatio, "0.8", "0.75"},
    {"BottomToBearing", &D::BottomToBearing, "15", "10"},
    {"BottomToHoles", &D::BottomToHoles, "15", "15"},
    {"DrawArcs", &D::DrawArcs, "Y", "Y"},
    {"FontName", &D::FontName, "Arial", nullptr},
    {"LabelSpacing", &D::LabelSpacing, "5", "6"},
    {"MajorTicLength", &D::MajorTicLength, "3", "3"},
    {"MajorTicWidth", &D::MajorTicWidth, "3", "4"},
    {"MessageLevel", &D::MessageLevel, "0", "0"},
    {"MinorTicLength", &D::MinorTicLength, "2", "2"},
    {"MinorTicWidth", &D::MinorTicWidth, "1", "2"},
    {"HoleSeparation", &D::HoleSeparation, "40", "50"},
    {"NumberOfScales", &D::NumberOfScales, "1", "1"},
    {"NumberOfTexts", &D::NumberOfTexts, "0", "0"},
    {"PlateWidth", &D::PlateWidth, "75", "75"},
    {"PlateHeight", &D::PlateHeight, "50", "50"},
    {"PlateBackground", &D::PlateBackground, "16777215", "16777215"},
    {"PointerDeflection", &D::PointerDeflection, "90", "99"},
    {"PrintText", &D::PrintText, "Y", "Y"},
    {"LabelRotation", &D::LabelRotation, "H", "H"},
    {"FontSize", &D::FontSize, "6", "8"},
    {"PlateStyle", &D::PlateStyle, nullptr, "0"},
    {"DrawGraphic", &D::DrawGraphic, nullptr, "N"},
    {"NumberOfHighlights", &D::NumberOfHighlights, nullptr, "0"},
    {"GraphicWidth", &D::GraphicWidth, nullptr, "1"},
    {"GraphicHeight", &D::GraphicHeight, nullptr, "1"},
    {"BottomToGraphic", &D::BottomToGraphic, nullptr, "1"},
    {"LeftToGraphic", &D::LeftToGraphic, nullptr, "10"},
    {"NumberOfCorrectionPoints", &D::NumberOfCorrectionPoints, nullptr, "7"},
    // fields that neither routine touches
    {"DesignFileName", &D::DesignFileName, nullptr, nullptr},
    {"GraphicFileName", &D::GraphicFileName, nullptr, nullptr},
    {"DrawHighlights", &D::DrawHighlights, nullptr, nullptr},
    {"PlateOutlineCircular", &D::PlateOutlineCircular, nullptr, nullptr},
    {"CurrentScale", &D::CurrentScale, nullptr, nullptr},
    {"ActiveScale", &D::ActiveScale, nullptr, nullptr},
    {"HelpTopic", &D::HelpTopic, nullptr, nullptr},
    {"CalibrationX", &D::CalibrationX, nullptr, nullptr},
    {"CalibrationY", &D::CalibrationY, nullptr, nullptr},
};

void ExpectPlate(const char* PlateDefault::*column) {
    for (const PlateDefault& row : kPlateDefaults) {
        const bool isText = std::holds_alternative<std::string D::*>(row.field);
        const char* kept = isText ? kPoisonText : kPoisonNumber;
        EXPECT_EQ(Show(row.field), row.*column ? row.*column : kept) << row.name;
    }
}

// A field of every scale, text or highlight.
struct BlockField {
    const char* name;
    std::string (*show)(int index);
    void (*poison)(int index);
};

template <auto Field>
constexpr BlockField Of(const char* name) {
    return {name, [](int index) { return Show((Design.*Field)[index]); },
            [](int index) { Poison((Design.*Field)[index]); }};
}

constexpr BlockField kScaleFields[] = {
    Of<&D::ScaleColor>("ScaleColor"),
    Of<&D::ScaleLeftEnd>("ScaleLeftEnd"),
    Of<&D::ScaleLengthUnits>("ScaleLengthUnits"),
    Of<&D::BottomToTitle>("BottomToTitle"),
    Of<&D::BottomToScaleCeiling>("BottomToScaleCeiling"),
    Of<&D::ScaleTitle>("ScaleTitle"),
    Of<&D::NrOfTicmarks>("NrOfTicmarks"),
    Of<&D::MajorEveryHowMany>("MajorEveryHowMany"),
    Of<&D::LabelsEveryHowMany>("LabelsEveryHowMany"),
    Of<&D::LinearityExponent>("LinearityExponent"),
    Of<&D::SpecialNrOfTicmarks>("SpecialNrOfTicmarks"),
    Of<&D::UnlabelledBottomTic>("UnlabelledBottomTic"),
    Of<&D::FullscaleMultiplier>("FullscaleMultiplier"),
    Of<&D::RelativeFontSize>("RelativeFontSize"),
};

constexpr BlockField kTextFields[] = {
    Of<&D::TextString>("TextString"),     Of<&D::LeftToText>("LeftToText"),
    Of<&D::BottomToText>("BottomToText"), Of<&D::TextRelativeSize>("TextRelativeSize"),
    Of<&D::TextColor>("TextColor"),
};

constexpr BlockField kHighlightFields[] = {
    Of<&D::HighlightStart>("HighlightStart"),     Of<&D::HighlightStop>("HighlightStop"),
    Of<&D::HighlightCeiling>("HighlightCeiling"), Of<&D::HighlightLength>("HighlightLength"),
    Of<&D::HighlightColor>("HighlightColor"),
};

struct Expected {
    const char* name;
    std::string value;
};

// The fields named have their values at that index, all others of the block still their poison.
template <std::size_t Count>
void ExpectBlock(const BlockField (&fields)[Count], int index,
                 const std::vector<Expected>& expected) {
    SCOPED_TRACE(index);
    for (const BlockField& field : fields) {
        const auto row = std::find_if(expected.begin(), expected.end(), [&](const Expected& e) {
            return std::string(e.name) == field.name;
        });
        if (row != expected.end()) {
            EXPECT_EQ(field.show(index), row->value) << field.name;
        } else {
            const std::string shown = field.show(index);
            EXPECT_TRUE(shown == kPoisonNumber || shown == kPoisonText) << field.name << shown;
        }
    }
}

template <std::size_t Count>
void PoisonBlock(const BlockField (&fields)[Count], int last) {
    for (int index = 0; index <= last; ++index) {
        for (const BlockField& field : fields) {
            field.poison(index);
        }
    }
}

void PoisonDesign() {
    for (const PlateDefault& row : kPlateDefaults) {
        Poison(row.field);
    }
    PoisonBlock(kScaleFields, 8);
    PoisonBlock(kTextFields, 10);
    PoisonBlock(kHighlightFields, 10);
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
    for (const PlateDefault& row : kPlateDefaults) {
        const bool isText = std::holds_alternative<std::string D::*>(row.field);
        EXPECT_EQ(Show(row.field), isText ? "" : "0") << row.name;
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
    ExpectPlate(&PlateDefault::opening);
    for (int scale = 0; scale <= 8; ++scale) {
        const bool covered = scale >= 1 && scale <= 6;
        const std::vector<Expected> values = {{"ScaleColor", "1"},
                                              {"BottomToTitle", "30"},
                                              {"BottomToScaleCeiling", "35"},
                                              {"RelativeFontSize", "1"}};
        ExpectBlock(kScaleFields, scale, covered ? values : std::vector<Expected>{});
    }
    for (int text = 0; text <= 10; ++text) {
        const bool covered = text >= 1 && text <= 8;
        const std::vector<Expected> values = {{"TextString", ""},
                                              {"LeftToText", "10"},
                                              {"BottomToText", "10"},
                                              {"TextRelativeSize", "1"},
                                              {"TextColor", "0"}};
        ExpectBlock(kTextFields, text, covered ? values : std::vector<Expected>{});
        ExpectBlock(kHighlightFields, text, {});
    }
    EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[1]), 77);
    EXPECT_EQ(Design.StandardTicYN[1][1], "?");
    EXPECT_EQ(Design.CorrectionPair[3], 77);
    EXPECT_EQ(Design.CorrectionSlope[1], 77);
}

TEST_F(DesignTest, ResetCoversTheFieldsOfThePlate) {
    PoisonDesign();
    ResetDesign(Design);
    ExpectPlate(&PlateDefault::reset);
}

TEST_F(DesignTest, ResetCoversSixScales) {
    PoisonDesign();
    ResetDesign(Design);
    const char* ceilings[] = {"", "35", "40", "45", "50", "55", "60"};
    const char* titles[] = {"", "30", "35", "40", "45", "50", "55"};
    for (int scale = 1; scale <= 6; ++scale) {
        ExpectBlock(kScaleFields, scale,
                    {{"ScaleColor", "0"},
                     {"ScaleLeftEnd", "0"},
                     {"ScaleLengthUnits", "50"},
                     {"BottomToTitle", titles[scale]},
                     {"BottomToScaleCeiling", ceilings[scale]},
                     {"ScaleTitle", std::string("Default Scale ") + "0123456"[scale]},
                     {"NrOfTicmarks", "50"},
                     {"MajorEveryHowMany", "5"},
                     {"LabelsEveryHowMany", "10"},
                     {"LinearityExponent", "1"},
                     {"SpecialNrOfTicmarks", "0"},
                     {"UnlabelledBottomTic", "Y"},
                     {"FullscaleMultiplier", "1"},
                     {"RelativeFontSize", "1"}});
        EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[scale]), 0) << scale;
    }
    for (const int scale : {0, 7, 8}) {
        ExpectBlock(kScaleFields, scale, {});
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
        ExpectBlock(kTextFields, index,
                    {{"TextString", ""},
                     {"LeftToText", "0"},
                     {"BottomToText", "0"},
                     {"TextRelativeSize", "1"},
                     {"TextColor", "0"}});
        ExpectBlock(kHighlightFields, index,
                    {{"HighlightColor", "1"},
                     {"HighlightCeiling", "10"},
                     {"HighlightLength", "0"},
                     {"HighlightStart", "0"},
                     {"HighlightStop", "0"}});
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
