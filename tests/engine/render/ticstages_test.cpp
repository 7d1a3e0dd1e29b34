#include <algorithm>
#include <cmath>

#include "support/rendertest.h"

namespace vernacle::test {
namespace {

class TicStagesTest : public RenderTest {
protected:
    // The line of a tic of that length, outward if it is positive, on the preview.
    static std::string TicLine(double g, double ceiling, double mm, const char* colour = "0") {
        const Reference at = PreviewReference();
        const double t = at.T(g);
        return Call("Line", at.AlongX(t, ceiling, mm), at.AlongY(t, ceiling, mm), at.X(t, ceiling),
                    at.Y(t, ceiling), colour);
    }

    Calls Lines() const { return surface.CallsOf("Line"); }
};

// Tenths of a millimetre, and the pixels they are drawn with.
using Width = std::pair<float, const char*>;

TEST_F(TicStagesTest, WidthsAreHeldAndTurnedIntoPixels) {
    constexpr Width kRows[] = {
        {-4, "1"}, {0, "1"},    {0.2F, "1"}, {1, "1"},   {1.5F, "1"},
        {2, "1"},  {2.2F, "2"}, {3, "2"},    {4, "3"},   {5, "4"},
        {10, "7"}, {19, "13"},  {20, "14"},  {21, "14"}, {500, "14"},
    };
    GiveTics(1, 1);
    Design.MajorEveryHowMany[1] = Design.LabelsEveryHowMany[1] = 2;
    for (const auto& [tenths, pixels] : kRows) {
        const std::string width = std::string("SetLineWidth ") + pixels;
        Design.MajorTicWidth = tenths;
        Design.MinorTicWidth = 30;
        DrawStages({TicsStage});
        EXPECT_EQ(surface.CallsOf("SetLineWidth"), (Calls{width, "SetLineWidth 14"})) << tenths;
        Design.MajorTicWidth = 30;
        Design.MinorTicWidth = tenths;
        DrawStages({TicsStage});
        EXPECT_EQ(surface.CallsOf("SetLineWidth"), (Calls{"SetLineWidth 14", width})) << tenths;
    }
    EXPECT_EQ(Design.MinorTicWidth, 500); // held in the drawing alone
}

TEST_F(TicStagesTest, TicsRunFromTheirEndToTheArc) {
    GiveTics(1, 2);
    Design.MajorEveryHowMany[1] = Design.LabelsEveryHowMany[1] = 2;
    DrawStages({TicsStage});
    EXPECT_TRUE(
        SameCalls(Lines(), Calls{TicLine(0, 4, 0.3), TicLine(0.5, 4, 0.2), TicLine(1, 4, 0.3)}));
    EXPECT_EQ(Drawing.WhereMarker, 425);
}

TEST_F(TicStagesTest, EvenScalesPointInwardAndScalesGoDownToTheFirst) {
    Design.NumberOfScales = 4;
    for (int scale = 1; scale <= 4; ++scale) {
        Design.BottomToScaleCeiling[scale] = static_cast<float>(scale) / 2 + 2;
        Design.ScaleColor[scale] = scale;
    }
    DrawStages({TicsStage}, TextTraits());
    const Reference at = PageReference();
    Calls expected;
    for (const int scale : {4, 3, 2, 1}) {
        const double ceiling = scale / 2.0 + 2;
        const double t = at.T(0.5);
        const double mm = scale % 2 == 0 ? -0.3 : 0.3;
        expected.push_back(Call("Line", at.AlongX(t, ceiling, mm), at.AlongY(t, ceiling, mm),
                                at.X(t, ceiling), at.Y(t, ceiling), scale));
    }
    EXPECT_TRUE(SameCalls(Lines(), expected));
    EXPECT_EQ(Design.CurrentScale, 0);
    EXPECT_NEAR(Drawing.LastArcPoint.y, at.Y(at.T(0.5), 2.5), 0.002); // of scale 1
}

TEST_F(TicStagesTest, QuadrantPlatesTurnTheScale) {
    Design.PlateStyle = 1;
    Design.ActualVirtualOffset = 0;
    GiveTics(1, 2);
    DrawStages({TicsStage});
    EXPECT_TRUE(
        SameCalls(Lines(), Calls{TicLine(0, 4, 0.3), TicLine(0.5, 4, 0.3), TicLine(1, 4, 0.3)}));
    // The left end lies at the bearing's height, but for the residual: 3 mm of it are 0.02 units.
    EXPECT_NEAR(Drawing.LastArcPoint.x, 6000 - 320 * 3 * 1.07e-5, 0.005);
}

TEST_F(TicStagesTest, RelativeSizeScalesTheLengths) {
    Design.RelativeFontSize[1] = 2.5F;
    DrawStages({TicsStage});
    EXPECT_TRUE(SameCalls(Lines(), Calls{TicLine(0.5, 4, 0.75)}));
    GiveSpecialTics(1, 1);
    DrawStages({TicsStage});
    EXPECT_TRUE(SameCalls(Lines(), Calls{TicLine(0, 4, 0.5), TicLine(1, 4, 0.5)}));
}

TEST_F(TicStagesTest, RelativeSizeNotAboveZeroBecomesOne) {
    Design.NumberOfScales = 3;
    Design.RelativeFontSize[1] = 0;
    Design.RelativeFontSize[2] = -3;
    Design.RelativeFontSize[3] = 0;
    Design.PrintTicsAndArcs[3] = std::int16_t{1}; // not drawn, not touched
    DrawStages({TicsStage});
    EXPECT_EQ(Design.RelativeFontSize[1], 1);
    EXPECT_EQ(Design.RelativeFontSize[2], 1);
    EXPECT_EQ(Design.RelativeFontSize[3], 0);
    EXPECT_TRUE(SameCalls(Lines(), Calls{TicLine(0.5, 4, -0.3), TicLine(0.5, 4, 0.3)}));
}

TEST_F(TicStagesTest, TicsAndArcsNeedASwitchOfZero) {
    const std::pair<DynamicValue, bool> rows[] = {
        {DynamicValue{}, true},
        {std::int16_t{0}, true},
        {std::int16_t{1}, false},
        {std::int16_t{-1}, false},
        {"", true},
        {"0", true},
        {" 0 ", true},
        {"1", false},
        {"anything", true},
    };
    Design.DrawArcs = "Y";
    for (const auto& [value, drawn] : rows) {
        Design.PrintTicsAndArcs[1] = value;
        DrawStages({TicsStage, ArcsStage});
        EXPECT_EQ(Lines().size(), drawn ? 102U : 0U) << ::testing::PrintToString(value);
        DrawStages({FontStage, LabelsStage, TitlesStage}); // these are written all the same
        EXPECT_EQ(surface.texts, (Texts{"7", "mA"}));
    }
}

TEST_F(TicStagesTest, SpecialTicsReplaceTheStandardOnes) {
    GiveTics(1, 5);
    GiveSpecialTics(1, 2);
    Design.TicMajorYN[1][1] = "Y";
    Design.TicPrintYN[1][0] = "N";
    Design.StandardTicYN[1][1] = "N";
    DrawStages({TicsStage}, TextTraits());
    EXPECT_EQ(surface.CallsOf("SetLineWidth"), (Calls{"SetLineWidth 3", "SetLineWidth 1"}));
    ASSERT_EQ(Lines().size(), 2U);
    EXPECT_TRUE(At(Lines(), 0).ends_with(" ff")); // the magnitude of the colour
    EXPECT_EQ(Drawing.WhereMarker, 435);
    DrawStages({TicsStage});
    EXPECT_TRUE(SameCalls(Lines(), Calls{TicLine(0.5, 4, 0.3), TicLine(1, 4, 0.2)}));
}

TEST_F(TicStagesTest, SpecialTicsAreCorrectedToo) {
    Design.CorrectionSlope.fill(0.5F);
    GiveSpecialTics(1, 0);
    Design.TicDeflection[1][0] = 0.1F;
    DrawStages({TicsStage});
    EXPECT_TRUE(SameCalls(Lines(), Calls{TicLine(0.05, 4, 0.2)}));
}

TEST_F(TicStagesTest, DeflectionsBeyondTheScaleStopAtItsEnds) {
    GiveSpecialTics(1, 1);
    Design.TicDeflection[1][0] = -0.5F;
    Design.TicDeflection[1][1] = 7;
    DrawStages({TicsStage});
    EXPECT_TRUE(SameCalls(Lines(), Calls{TicLine(0, 4, 0.2), TicLine(1, 4, 0.2)}));
    EXPECT_EQ(Design.TicDeflection[1][1], 7);
}

TEST_F(TicStagesTest, PointerReachesToTheOuterEndOfTheLastTic) {
    GiveTics(1, 2);
    DrawStages({TicsStage, PointerLengthStage});
    const Reference at = PreviewReference();
    const double t = at.T(1);
    const double dx = at.AlongX(t, 4, 0.3) - 6000;
    const double dy = at.AlongY(t, 4, 0.3) - at.RealBearingY();
    EXPECT_NEAR(Drawing.PointerLength, std::sqrt(dx * dx + dy * dy) / 640 / std::sqrt(0.5), 1e-5);
    EXPECT_NEAR(Drawing.LastTicEnd.x, at.AlongX(t, 4, 0.3), 0.002);
}

TEST_F(TicStagesTest, PointerLengthWithoutTicsComesFromWhatWasLeft) {
    Design.PrintTicsAndArcs[1] = std::int16_t{1};
    DrawStages({TicsStage, PointerLengthStage});
    EXPECT_NEAR(Drawing.PointerLength,
                std::sqrt(6000.0 * 6000 + 5260.0 * 5260) / 640 / std::sqrt(0.5), 1e-4);
}

TEST_F(TicStagesTest, ArcsAreChordsBetweenTheEndDeflections) {
    Design.CorrectionSlope.fill(0.5F); // no matter for an arc
    Design.DrawArcs = "Y";
    Design.NumberOfScales = 2;
    Design.BottomToScaleCeiling[2] = 3;
    DrawStages({ArcsStage});
    const Reference at = PreviewReference();
    Calls expected = {"SetLineWidth 1"};
    for (const double ceiling : {3, 4}) {
        for (int chord = 0; chord <= 100; ++chord) {
            const double from = at.T(std::max(chord - 1, 0) / 100.0);
            const double to = at.T(chord / 100.0);
            expected.push_back(Call("Line", at.X(from, ceiling), at.Y(from, ceiling),
                                    at.X(to, ceiling), at.Y(to, ceiling), 0));
        }
    }
    EXPECT_TRUE(SameCalls(surface.calls, expected));
    EXPECT_EQ(Drawing.WhereMarker, 483);
}

TEST_F(TicStagesTest, ArcWidthIsRounded) {
    constexpr Width kRows[] = {{0.5F, "1"}, {1, "1"}, {1.4F, "1"},
                               {1.5F, "2"}, {3, "3"}, {3.7F, "4"}};
    Design.DrawArcs = "Y";
    for (const auto& [tenths, pixels] : kRows) {
        Design.ArcWidth = tenths;
        DrawStages({ArcsStage});
        EXPECT_EQ(surface.CallsOf("SetLineWidth"),
                  (Calls{std::string("SetLineWidth ") + pixels, "SetLineWidth 1"}));
        EXPECT_EQ(Last(surface.calls), "SetLineWidth 1");
    }
}

TEST_F(TicStagesTest, ArcsNeedTheirSwitch) {
    for (const char* answer : {"N", "", "y"}) {
        Design.DrawArcs = answer;
        DrawStages({ArcsStage});
        EXPECT_TRUE(surface.calls.empty()) << answer;
    }
}

TEST_F(TicStagesTest, ArcsTakeTheColourByThePage) {
    Design.DrawArcs = "Y";
    Design.ScaleColor[1] = -0x123456;
    DrawStages({ArcsStage}, TextTraits());
    for (const std::string& line : Lines()) {
        EXPECT_TRUE(line.ends_with(" 123456")) << line;
    }
    DrawStages({ArcsStage}, PreviewTraits());
    for (const std::string& line : Lines()) {
        EXPECT_TRUE(line.ends_with(" 0")) << line;
    }
}

} // namespace
} // namespace vernacle::test
