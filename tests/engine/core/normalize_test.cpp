// What NormalizeDesign repairs and forces when a page loads.
#include "engine/core/design.h"

#include "support/enginetest.h"

namespace vernacle::test {
namespace {

using NormalizeTest = NewDesignTest;

using Repaired = std::pair<float, float>; // what a field holds, and what it becomes

template <typename T>
void ExpectRepairs(const char* name, T& field, const std::vector<Repaired>& rows) {
    for (const auto& [value, becomes] : rows) {
        field = static_cast<T>(value);
        NormalizeDesign(Design);
        EXPECT_EQ(field, static_cast<T>(becomes)) << name << " " << value;
    }
}

TEST_F(NormalizeTest, HoldsTheFieldsOfThePlate) {
    ExpectRepairs("ActualVirtualOffset", Design.ActualVirtualOffset,
                  {{-2e5F, -2e5F}, {99999.5F, 99999.5F}, {100000, 100000}, {100000.5F, 100000}});
    ExpectRepairs("ArcWidth", Design.ArcWidth, {{0.499F, 0.5F}, {0.5F, 0.5F}, {0.501F, 0.501F}});
    ExpectRepairs("BottomToBearing", Design.BottomToBearing,
                  {{-100000.5F, -100000},
                   {-100000, -100000},
                   {-99999.5F, -99999.5F},
                   {0, 0},
                   {99999.5F, 99999.5F},
                   {100000, 100000},
                   {100000.5F, 100000}});
    ExpectRepairs("PlateHeight", Design.PlateHeight,
                  {{-1, 50}, {0, 50}, {0.001F, 0.001F}, {1000, 1000}});
    ExpectRepairs("LabelSpacing", Design.LabelSpacing,
                  {{-200.01F, -200}, {-200, -200}, {-199.99F, -199.99F}, {1000, 1000}});
    ExpectRepairs("MajorTicLength", Design.MajorTicLength,
                  {{0, 0.5F}, {0.499F, 0.5F}, {0.5F, 0.5F}, {0.501F, 0.501F}});
    ExpectRepairs("MajorTicWidth", Design.MajorTicWidth, {{-1, 1}, {0, 1}, {0.001F, 0.001F}});
    ExpectRepairs("MinorTicLength", Design.MinorTicLength,
                  {{0, 0.5F}, {0.499F, 0.5F}, {0.5F, 0.5F}, {0.501F, 0.501F}});
    ExpectRepairs("MinorTicWidth", Design.MinorTicWidth, {{-1, 1}, {0, 1}, {0.001F, 0.001F}});
    ExpectRepairs(
        "HoleSeparation", Design.HoleSeparation,
        {{-1, 40}, {0, 40}, {0.5F, 0.5F}, {179.99F, 179.99F}, {180, 180}, {180.01F, 180}});
    ExpectRepairs(
        "PlateWidth", Design.PlateWidth,
        {{-1, 50}, {0, 50}, {0.5F, 0.5F}, {179.99F, 179.99F}, {180, 180}, {180.01F, 180}});
    ExpectRepairs("PointerDeflection", Design.PointerDeflection,
                  {{-1, 90}, {0, 90}, {0.5F, 0.5F}, {400, 400}});
    ExpectRepairs("FontSize", Design.FontSize, {{-1, 8}, {0, 8}, {0.5F, 0.5F}, {400, 400}});
    ExpectRepairs("BottomToHoles", Design.BottomToHoles, {{-1e6F, -1e6F}, {1e6F, 1e6F}});
    ExpectRepairs("AspectRatio", Design.AspectRatio, {{-1, -1}, {5, 5}});
}

TEST_F(NormalizeTest, HoldsTheGraphic) {
    const std::vector<Repaired> sizes = {{-1, 2},        {1.99F, 2},         {2, 2},
                                         {2.01F, 2.01F}, {179.99F, 179.99F}, {180, 180},
                                         {180.01F, 180}};
    ExpectRepairs("GraphicWidth", Design.GraphicWidth, sizes);
    ExpectRepairs("GraphicHeight", Design.GraphicHeight, sizes);
    ExpectRepairs("LeftToGraphic", Design.LeftToGraphic, {{-0.01F, 0}, {0, 0}, {500, 500}});
    Design.GraphicHeight = 20;
    ExpectRepairs("BottomToGraphic", Design.BottomToGraphic,
                  {{-1, 20}, {19.99F, 20}, {20, 20}, {20.01F, 20.01F}, {500, 500}});
}

TEST_F(NormalizeTest, HoldsTheGraphicsBottomToItsRepairedHeight) {
    Design.GraphicHeight = 500;
    Design.BottomToGraphic = 100;
    NormalizeDesign(Design);
    EXPECT_EQ(Design.GraphicHeight, 180);
    EXPECT_EQ(Design.BottomToGraphic, 180);
}

TEST_F(NormalizeTest, HoldsTheFirstScale) {
    const std::vector<Repaired> heights = {
        {-200.01F, -200}, {-200, -200}, {-199.99F, -199.99F}, {1000, 1000}};
    ExpectRepairs("BottomToScaleCeiling", Design.BottomToScaleCeiling[1], heights);
    ExpectRepairs("BottomToTitle", Design.BottomToTitle[1], heights);
    ExpectRepairs("MajorEveryHowMany", Design.MajorEveryHowMany[1],
                  {{-1, 5}, {0, 5}, {1, 1}, {361, 361}});
    ExpectRepairs("LabelsEveryHowMany", Design.LabelsEveryHowMany[1],
                  {{-1, 10}, {0, 10}, {1, 1}, {361, 361}});
    ExpectRepairs("NrOfTicmarks", Design.NrOfTicmarks[1],
                  {{-1, 50}, {0, 50}, {1, 1}, {359, 359}, {360, 360}, {361, 360}, {32767, 360}});
    ExpectRepairs("ScaleLengthUnits", Design.ScaleLengthUnits[1],
                  {{0, 100}, {-0.0F, 100}, {-50, -50}, {0.001F, 0.001F}});
    ExpectRepairs("ScaleLeftEnd", Design.ScaleLeftEnd[1], {{0, 0}, {-1e6F, -1e6F}});
    ExpectRepairs("RelativeFontSize", Design.RelativeFontSize[1], {{0, 0}, {-1, -1}});
}

TEST_F(NormalizeTest, ForcesWhatTheProgramDoesNotOffer) {
    ExpectRepairs("NumberOfScales", Design.NumberOfScales, {{0, 1}, {1, 1}, {3, 1}, {-5, 1}});
    ExpectRepairs("CurrentScale", Design.CurrentScale, {{0, 1}, {6, 1}});
    ExpectRepairs("LinearityExponent", Design.LinearityExponent[1], {{0, 1}, {2, 1}, {-4, 1}});
    ExpectRepairs("ScaleColor", Design.ScaleColor[1], {{255, 0}, {-1, 0}, {0, 0}});
    Design.FontName = "Courier New";
    NormalizeDesign(Design);
    EXPECT_EQ(Design.FontName, "Arial");
}

TEST_F(NormalizeTest, FillsEmptyTexts) {
    struct Row {
        std::string& field;
        const char* filling;
        const char* kept;
    };
    const Row rows[] = {
        {Design.DrawArcs, "Y", "N"},
        {Design.PrintText, "Y", "N"},
        {Design.LabelRotation, "H", "B"},
        {Design.ScaleTitle[1], "Default 1", " "},
    };
    for (const Row& row : rows) {
        row.field.clear();
        NormalizeDesign(Design);
        EXPECT_EQ(row.field, row.filling);
        row.field = row.kept;
        NormalizeDesign(Design);
        EXPECT_EQ(row.field, row.kept);
    }
}

TEST_F(NormalizeTest, ADefaultTitleNamesTheScaleAndAnEmptyOneItsNumber) {
    EXPECT_EQ(Design.ScaleTitle[1], "Default Scale 1");
    NormalizeDesign(Design);
    EXPECT_EQ(Design.ScaleTitle[1], "Default Scale 1");
    Design.ScaleTitle[1].clear();
    NormalizeDesign(Design);
    EXPECT_EQ(Design.ScaleTitle[1], "Default 1");
}

TEST_F(NormalizeTest, LeavesTheOtherScalesAlone) {
    Design.ScaleColor[2] = -255;
    Design.NrOfTicmarks[2] = 400;
    Design.LinearityExponent[2] = 3;
    Design.ScaleTitle[2].clear();
    Design.BottomToTitle[2] = -300;
    NormalizeDesign(Design);
    EXPECT_EQ(Design.ScaleColor[2], -255);
    EXPECT_EQ(Design.NrOfTicmarks[2], 400);
    EXPECT_EQ(Design.LinearityExponent[2], 3);
    EXPECT_EQ(Design.ScaleTitle[2], "");
    EXPECT_EQ(Design.BottomToTitle[2], -300);
}

TEST_F(NormalizeTest, ChangesNothingElseInADefaultDesign) {
    EXPECT_EQ(NormalizeDesign(Design), 0);
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_EQ(Design.PlateHeight, 50);
    EXPECT_EQ(Design.PointerDeflection, 99);
    EXPECT_EQ(Design.PlateBackground, 0xFFFFFF);
    EXPECT_EQ(Design.GraphicWidth, 2);
    EXPECT_EQ(Design.BottomToGraphic, 2);
    EXPECT_EQ(Design.NrOfTicmarks[1], 50);
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace vernacle::test
