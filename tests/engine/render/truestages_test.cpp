// What a true plate has of its own.
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

class TrueStagesTest : public RenderTest {
protected:
    TrueStagesTest() { StoreService(Program::Workshop); }

    // On the screen, without the ruler's many lines.
    Calls DrawTrue() {
        surface.calls.clear();
        DrawTruePlate(Design, surface, TruePlateTraits(TrueMedium::Paper), TrueFrame(Design, 1, 1),
                      {Design.FontSize, Design.LabelSpacing}, Drawing);
        return surface.calls;
    }

    Calls PlacedTexts() {
        DrawTrue();
        Calls texts;
        for (const std::string& call : surface.CallsOf("PlaceText")) {
            texts.push_back(call.substr(0, call.find(']') + 1));
        }
        return texts;
    }
};

TEST_F(TrueStagesTest, DrawingLeavesTheDesignAsItIs) {
    Design.RelativeFontSize[1] = 0;
    Design.AspectRatio = -1;
    Design.ScaleColor[1] = -255;
    GiveSpecialTics(1, 2);
    Design.CurrentScale = 3;
    DrawTrue();
    EXPECT_EQ(Design.RelativeFontSize[1], 0);
    EXPECT_EQ(Design.AspectRatio, -1);
    EXPECT_LT(Design.ScaleColor[1], 0);
    EXPECT_EQ(Design.CurrentScale, 3);
}

TEST_F(TrueStagesTest, MarksAreInTheInkThatIsSeen) {
    struct Row {
        std::int32_t background;
        const char* ink;
    };
    for (const auto& [background, ink] :
         {Row{0xFFFFFF, "0"}, Row{0x00FFFF, "0"}, Row{0x202020, "ffffff"}, Row{0xFF0000, "ffffff"},
          Row{0x0000FF, "ffffff"}}) {
        Design.PlateBackground = background;
        DrawTrue();
        const Calls circles = surface.CallsOf("Circle");
        ASSERT_EQ(circles.size(), 3U); // two holes and the bearing
        for (const std::string& circle : circles) {
            EXPECT_TRUE(circle.ends_with(std::string(" ") + ink)) << circle;
        }
    }
}

TEST_F(TrueStagesTest, ALoneSlashIsBlank) {
    GiveTics(1, 2);
    Design.ScaleColor[1] = -255;
    GiveSpecialTics(1, 2);
    Design.TicLabelText[1][1] = " / ";
    EXPECT_EQ(PlacedTexts(), (Calls{"PlaceText [s0]", "PlaceText [s2]",
                                    "PlaceText [" + Design.ScaleTitle[1] + "]"}));
}

TEST_F(TrueStagesTest, OneScaleAllAroundHasNoLastLabel) {
    GiveTics(1, 2);
    Design.ScaleTitle[1] = "T";
    Design.PointerDeflection = 360;
    EXPECT_EQ(PlacedTexts(), (Calls{"PlaceText [0]", "PlaceText [1]", "PlaceText [T]"}));
    Design.PointerDeflection = 359;
    EXPECT_EQ(PlacedTexts().size(), 4U);
    Design.PointerDeflection = 360;
    Design.NumberOfScales = 2;
    GiveTics(2, 2);
    Design.BottomToScaleCeiling[2] = 3;
    EXPECT_EQ(PlacedTexts().size(), 8U);
}

// With an offset larger than the radius the pointer meets the arc near the crown alone.
TEST_F(TrueStagesTest, WhatThePointerCannotMeetIsLeftOutAndNamed) {
    GiveTics(1, 10);
    Design.PointerDeflection = 170;
    Design.BottomToBearing = -20;
    Design.ActualVirtualOffset = -20;
    Design.BottomToScaleCeiling[1] = 1; // radius 1
    DrawTrue();
    ASSERT_EQ(Drawing.OutOfReach.size(), 10U);
    EXPECT_EQ(Drawing.OutOfReach.front().number, 0);
    EXPECT_EQ(Drawing.OutOfReach.back().number, 10);
    EXPECT_EQ(TrueRemarks(Design, Drawing),
              "The pointer does not meet on scale 1 tic 0, 1, 2, 3, 4, 6, 7, 8, 9, 10");
    Design.ActualVirtualOffset = 0;
    DrawTrue();
    EXPECT_TRUE(Drawing.OutOfReach.empty()) << "of this drawing alone";
    EXPECT_EQ(TrueRemarks(Design, Drawing), "");
    Drawing.OutOfReach = {{1, 3, 0, false}, {2, 0, 0, true}, {2, 9, 0, true}};
    Design.CorrectionPair[8] = 0;
    EXPECT_EQ(TrueRemarks(Design, Drawing),
              "The pointer does not meet on scale 1 tic 3; on scale 2 tic 0, 9\n"
              "The movement's curve does not rise; a straight one is drawn.");
}

TEST_F(TrueStagesTest, HighlightsOfNothingAreNotDrawn) {
    struct Row {
        float start, stop, ceiling;
        std::size_t areas;
    };
    const float centre = Design.BottomToBearing - Design.ActualVirtualOffset;
    for (const auto& [start, stop, ceiling, areas] :
         {Row{0, 10, 3, 1}, Row{10, 10, 3, 0}, Row{20, 10, 3, 0}, Row{-5, 10, 3, 1},
          Row{0, 10, centre, 0}, Row{0, 10, centre - 1, 0}}) {
        Design.HighlightStart[10] = start;
        Design.HighlightStop[10] = stop;
        Design.HighlightCeiling[10] = ceiling;
        Design.HighlightLength[10] = 0.5F;
        DrawTrue();
        EXPECT_EQ(surface.Count("FillArea"), areas) << start << " " << stop << " " << ceiling;
    }
}

TEST_F(TrueStagesTest, ARoundPlateIsCutAlongItsCircle) {
    Design.PlateOutlineCircular = 1;
    DrawTrue();
    EXPECT_EQ(surface.Count("FilledBox"), 0U);
    EXPECT_EQ(surface.Count("FillArea"), 1U); // the background
    const double radius = 5 * 56.578;
    const Calls lines = surface.CallsOf("Line");
    const auto isCut = [&](const std::string& line) {
        return line.starts_with(Call("Line", 6000 + radius, 4000).substr(0, 9));
    };
    EXPECT_GT(std::count_if(lines.begin(), lines.end(), isCut), 0);
}

TEST_F(TrueStagesTest, AQuadrantBearingStandsWhereItIsPut) {
    Design.LeftToBearing = 1;
    const auto bearingOf = [&] {
        DrawTrue();
        return Last(surface.CallsOf("Circle"));
    };
    const std::string middle = bearingOf();
    Design.PlateStyle = 1;
    EXPECT_NE(bearingOf(), middle);
    EXPECT_TRUE(bearingOf().starts_with("Circle " + Call("", 6000 - 4 * 56.578).substr(1, 6)))
        << bearingOf();
    Design.LeftToBearing = -1;
    EXPECT_EQ(bearingOf(), middle);
}

} // namespace
} // namespace vernacle::test
