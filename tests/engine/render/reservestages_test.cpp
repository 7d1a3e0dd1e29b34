#include <cmath>

#include "support/rendertest.h"

namespace vernacle::test {
namespace {

class ReserveStagesTest : public RenderTest {
protected:
    // The line of a highlight at the fraction g; its length counts in units across both ways.
    static std::string HighlightLine(double g, double ceiling, double length, const char* colour) {
        const Reference at = PreviewReference();
        const double t = at.T(g);
        const double x = at.X(t, ceiling);
        const double y = at.Y(t, ceiling);
        return Call("Line", x, y, x - 2 * at.across * length * std::cos(t),
                    y - 2 * at.across * length * std::sin(t), colour);
    }

    static void GiveHighlight(int slot, float start, float stop) {
        Design.HighlightStart[slot] = start;
        Design.HighlightStop[slot] = stop;
        Design.HighlightCeiling[slot] = 3;
        Design.HighlightLength[slot] = 0.5F;
        Design.HighlightColor[slot] = 0x00FF00 + slot;
    }
};

TEST_F(ReserveStagesTest, HighlightsAreLinesOutwardInSmallSteps) {
    GiveHighlight(1, 40, 40.05F);
    GiveHighlight(10, 99.97F, 200); // held to the scale's end
    DrawStages({HighlightsStage});
    EXPECT_EQ(At(surface.calls, 0), "SetLineWidth 1");
    EXPECT_TRUE(SameCalls(surface.CallsOf("Line"), Calls{HighlightLine(0.4, 3, 0.5, "ff01"),
                                                         HighlightLine(0.4002, 3, 0.5, "ff01"),
                                                         HighlightLine(0.4004, 3, 0.5, "ff01"),
                                                         HighlightLine(0.9997, 3, 0.5, "ff0a"),
                                                         HighlightLine(0.9999, 3, 0.5, "ff0a")}));
}

TEST_F(ReserveStagesTest, HighlightsOfAWholeScaleTakeFiveThousandSteps) {
    GiveHighlight(2, -5, 100);
    DrawStages({HighlightsStage});
    const Calls lines = surface.CallsOf("Line");
    EXPECT_NEAR(static_cast<double>(lines.size()), 5001, 1);
    EXPECT_TRUE(SameCalls({At(lines, 0)}, Calls{HighlightLine(0, 3, 0.5, "ff02")}));
}

TEST_F(ReserveStagesTest, HighlightEndsAreCorrectedAndWhatIsBetweenIsNot) {
    Design.CorrectionSlope.fill(0.5F); // below 15 percent a fraction is halved
    GiveHighlight(1, 10, 10.05F);      // 0.05 to 0.05025
    DrawStages({HighlightsStage});
    EXPECT_TRUE(SameCalls(surface.CallsOf("Line"), Calls{HighlightLine(0.05, 3, 0.5, "ff01"),
                                                         HighlightLine(0.0502, 3, 0.5, "ff01")}));
}

TEST_F(ReserveStagesTest, EmptyReversedAndImpossibleHighlightsAreSkipped) {
    GiveHighlight(1, 0, 0);
    GiveHighlight(2, 60, 40);
    GiveHighlight(3, 10, 20);
    Design.HighlightCeiling[3] = -1; // a radius of 0
    GiveHighlight(4, 50, 50);
    DrawStages({HighlightsStage, EndStage});
    EXPECT_TRUE(SameCalls(surface.CallsOf("Line"), Calls{HighlightLine(0.5, 3, 0.5, "ff04")}));
    EXPECT_EQ(Drawing.WhereMarker, 675);
}

TEST_F(ReserveStagesTest, FreeTextsStandAtTheirPlaces) {
    Design.TextString[2] = "Hz";
    Design.LeftToText[2] = 2.5F;
    Design.BottomToText[2] = 1;
    Design.TextColor[2] = 0xABCDEF;
    Design.TextString[10] = " r. m. s. ";
    Design.TextRelativeSize[10] = 2;
    DrawStages({FontStage, FreeTextsStage});
    // 320 x 0.0513 x 3 x 0.5 = 24.6, 320 x 0.0198 x 0.5 x 3 x 2 = 19.0
    EXPECT_TRUE(SameCalls(surface.calls, R"(
        SetFontName [Arial]
        SetForeColor abcdef
        BeginFont 25 19 0 [Arial]
        SetCurrentX 5200
        SetCurrentY 5260
        PrintText [Hz]
        EndFont
        SetForeColor 0
        BeginFont 49 38 0 [Arial]
        SetCurrentX 4400
        SetCurrentY 5900
        PrintText [ r. m. s. ]
        EndFont
    )"));
}

TEST_F(ReserveStagesTest, GraphicIsStretchedIntoItsBox) {
    Design.GraphicFileName = "logo.bmp";
    Design.LeftToGraphic = 2;
    Design.BottomToGraphic = 3;
    Design.GraphicWidth = 4;
    Design.GraphicHeight = 1.5F;
    for (const char* answer : {"N", "", "y"}) {
        Design.DrawGraphic = answer;
        DrawStages({GraphicStage});
        EXPECT_TRUE(surface.calls.empty()) << answer;
    }
    Design.DrawGraphic = "Y";
    DrawStages({GraphicStage});
    EXPECT_TRUE(SameCalls(surface.calls, "PaintPicture [logo.bmp] 5040 3980 1280 960"));
}

TEST_F(ReserveStagesTest, GraphicThatDoesNotLoadIsLeftOut) {
    Design.DrawGraphic = "Y";
    surface.picturesFail = true;
    DrawStages({GraphicStage, BearingsStage, EndStage});
    EXPECT_EQ(surface.Count("Circle"), 1U);
    EXPECT_EQ(Drawing.WhereMarker, 675);
}

struct ToggleRow {
    std::int16_t grid;
    std::int16_t pointer;
    std::int16_t circle;
};

TEST_F(ReserveStagesTest, OverlaysFollowTheirToggles) {
    const ToggleRow rows[] = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 1}};
    for (const ToggleRow& row : rows) {
        Drawing.GridShown = row.grid;
        Drawing.PointerShown = row.pointer;
        Design.PlateOutlineCircular = row.circle;
        DrawStages({OverlaysStage});
        Calls kinds; // in order: the grid's first line, the pointer's width, the circle's start
        for (const std::string& call : surface.calls) {
            for (const char* mark : {"Line 4720 2700", "SetLineWidth 3", "SetCurrentX"}) {
                if (call.starts_with(mark)) {
                    kinds.emplace_back(mark);
                }
            }
        }
        Calls expected;
        if (row.grid == 1) {
            expected.emplace_back("Line 4720 2700");
        }
        if (row.pointer == 1) {
            expected.emplace_back("SetLineWidth 3");
        }
        if (row.circle == 1) {
            expected.emplace_back("SetCurrentX");
        }
        EXPECT_EQ(kinds, expected);
        EXPECT_EQ(surface.calls.empty(), expected.empty());
    }
}

} // namespace
} // namespace vernacle::test
