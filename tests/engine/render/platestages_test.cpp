#include "support/rendertest.h"

namespace vernacle::test {
namespace {

using PlateStagesTest = RenderTest;

TEST_F(PlateStagesTest, BackgroundIsFilledWithinAWhiteAndABlackBox) {
    Design.PlateBackground = 1;
    DrawStages({ClearStage, PlateStage});
    EXPECT_TRUE(SameCalls(surface.calls, R"(
        Clear
        SetLineWidth 1
        FilledBox 4400 2700 7600 5900 1
        Box 4400 2700 7600 5900 ffffff
        Box 4368 2668 7632 5932 0
    )"));
}

TEST_F(PlateStagesTest, MarksTakeTheWidthsOfTheTraits) {
    DrawingTraits traits = TextTraits();
    traits.lineWidths = {.trimMarks = 4, .holes = 5, .bearings = 6, .arcFactor = 1};
    DrawStages({TrimMarksStage, HolesStage, BearingsStage}, traits);
    EXPECT_EQ(surface.CallsOf("SetLineWidth"),
              (Calls{"SetLineWidth 4", "SetLineWidth 5", "SetLineWidth 6"}));
    EXPECT_EQ(At(surface.calls, 0), "SetLineWidth 4");
    EXPECT_EQ(At(surface.calls, 9), "SetLineWidth 5");
    EXPECT_EQ(At(surface.calls, 22), "SetLineWidth 6");
}

TEST_F(PlateStagesTest, OnlyStandardPlatesHaveHoles) {
    DrawStages({HolesStage});
    EXPECT_EQ(surface.Count("Circle"), 4U);
    EXPECT_EQ(surface.Count("Line"), 8U);
    Design.PlateStyle = 1;
    DrawStages({HolesStage});
    EXPECT_TRUE(surface.calls.empty());
}

TEST_F(PlateStagesTest, HolesStandAtTheirHeightAndSeparation) {
    Design.BottomToHoles = -0.25F; // a mark may stand below the plate
    Design.HoleSeparation = 12;
    DrawStages({HolesStage});
    EXPECT_TRUE(SameCalls(surface.CallsOf("Circle"), R"(
        Circle 4080 6060 600 0
        Circle 4080 6060 316 ffffff
        Circle 7920 6060 600 0
        Circle 7920 6060 316 ffffff
    )"));
}

TEST_F(PlateStagesTest, BearingsStandOnTheCentreLine) {
    Design.PlateStyle = 1; // a quadrant plate has them too
    Design.BottomToBearing = -0.5F;
    Design.ActualVirtualOffset = 0;
    DrawStages({BearingsStage});
    EXPECT_TRUE(SameCalls(surface.calls, R"(
        SetLineWidth 1
        Line 5900 6220 6100 6220 ffffff
        Line 6000 6120 6000 6320 ffffff
        Circle 6000 6220 316 0
        Line 5900 6220 6100 6220 0
        Line 6000 6120 6000 6320 0
    )"));
}

TEST_F(PlateStagesTest, RulerIsAsLongAsThePlateUpTo180) {
    // The width is rounded to the nearest millimetre, halves to the even one.
    constexpr std::pair<float, int> kRows[] = {
        {250, 180},  {180.4F, 180}, {180, 180},    {179.4F, 179}, {179.6F, 180}, {75, 75},
        {74.5F, 74}, {75.5F, 76},   {100.5F, 100}, {9.4F, 9},     {0.4F, 0},
    };
    for (const auto& [plateWidth, lengthMm] : kRows) {
        SCOPED_TRACE(plateWidth);
        Design.PlateWidth = plateWidth;
        DrawStages({RulerStage});
        const Reference at = PreviewReference();
        const auto x = [&](int mm) { return at.Left() + 2 * at.across * mm; };
        const double y1 = at.Bottom() + 500;
        const double y2 = at.Bottom() + 600;
        Calls expected = {"SetForeColor ff0000", "SetFontSize 10", "SetLineWidth 1"};
        for (int mm = 0; mm <= lengthMm; ++mm) {
            expected.push_back(Call("Line", x(mm), y1, x(mm), y2, "ff0000"));
        }
        expected.push_back("SetLineWidth 2");
        for (int mm = 0; mm <= lengthMm; mm += 10) {
            expected.push_back(Call("Line", x(mm), y1, x(mm), y2, "ff0000"));
        }
        expected.push_back(Call("Line", at.Left(), y2, x(lengthMm), y2, "ff0000"));
        expected.push_back("SetLineWidth 1");
        for (int mm = 0; mm <= lengthMm; mm += 10) {
            const int digits = mm < 10 ? 1 : mm < 100 ? 2 : 3;
            expected.push_back(Call("Dot", x(mm) - 45 * digits, y2 + 30, "ffffff"));
            expected.push_back(Call("PrintText", "[" + std::to_string(mm) + "]"));
        }
        expected.push_back(Call("Dot", x(lengthMm / 10 * 10) + 180, y2 + 30, "ffffff"));
        expected.push_back("PrintText [mm]");
        expected.push_back("SetForeColor 0");
        EXPECT_TRUE(SameCalls(surface.calls, expected));
        EXPECT_EQ(Drawing.WhereMarker, 316);
    }
}

} // namespace
} // namespace vernacle::test
