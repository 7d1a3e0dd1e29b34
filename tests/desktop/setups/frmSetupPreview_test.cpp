// The preview above a setup, and its drawing.
#include "desktop/setups/frmSetupPreview.h"

#include <cmath>

#include "desktop/setups/setuptest.h"
#include "engine/render/drawing.h"

namespace vernacle::test {
namespace {

class SetupPreviewTest : public SetupFormTest {
protected:
    SetupPreviewTest() {
        Design.PlateWidth = 80;
        Design.PlateHeight = 50;
        Design.SpecialNrOfTicmarks[1] = 3;
        Give(0, 0, "zero", "Y", "Y", "Y");
        Give(1, 0.25F, "silent", "Y", "N", "N");
        Give(2, 0.5F, "unprinted", "N", "Y", "N");
        Give(3, 1, "one,5", "Y", "Y", "N");
        Design.CurrentScale = 1;
    }

    static void Give(int tic, float deflection, const char* label, const char* printed,
                     const char* labelled, const char* major) {
        Design.TicDeflection[1][tic] = deflection;
        Design.TicLabelText[1][tic] = label;
        Design.TicPrintYN[1][tic] = printed;
        Design.TicLabelYN[1][tic] = labelled;
        Design.TicMajorYN[1][tic] = major;
    }

    static RecordingSurface Draw() {
        RecordingSurface surface;
        DrawSetup(Design, surface,
                  {.fontSize = Design.FontSize, .labelSpacing = Design.LabelSpacing}, Drawing);
        return surface;
    }

    // The lines of the tics alone, without arcs and crosses.
    static Strings TicLines() {
        Design.DrawArcs = "N";
        Strings lines = Draw().CallsOf("Line");
        const std::size_t crosses = Design.PlateStyle == 0 ? 6 : 2;
        lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(crosses));
        return lines;
    }

    static std::vector<double> NumbersIn(const std::string& call) {
        std::istringstream words(call.substr(call.find(' ')));
        words.imbue(std::locale::classic());
        std::vector<double> numbers;
        for (double number = 0; words >> number;) {
            numbers.push_back(number);
        }
        return numbers;
    }
};

TEST_F(SetupPreviewTest, PlateIsABlackOutlineOnTheLargerDimension) {
    // 3200 units for the 40 mm beside the centre
    EXPECT_EQ(Draw().CallsOf("Box"), Strings{"Box 2800 2300 9200 6300 0"});
    EXPECT_EQ(Draw().Count("FilledBox"), 0U);
    Design.AspectRatio = 0.5F; // plays no part
    EXPECT_EQ(Draw().CallsOf("Box"), Strings{"Box 2800 2300 9200 6300 0"});
    EXPECT_EQ(Design.AspectRatio, 0.5F);
    Design.PlateWidth = 50;
    Design.PlateHeight = 80;
    EXPECT_EQ(Draw().CallsOf("Box"), Strings{"Box 4000 1100 8000 7500 0"});
    Design.PlateWidth = 80;
    EXPECT_EQ(Draw().CallsOf("Box"), Strings{"Box 2800 1100 9200 7500 0"});
    Design.PlateWidth = 80.004F; // wider, if by little
    EXPECT_EQ(NumbersIn(Draw().CallsOf("Box").at(0)).at(0), 2800);
}

TEST_F(SetupPreviewTest, MarksAreBlackCirclesWithCrossesInThePlatesColour) {
    Design.PlateBackground = 0xCCDDEE;
    const RecordingSurface surface = Draw();
    const Strings circles = surface.CallsOf("Circle");
    ASSERT_EQ(circles.size(), 3U); // two holes and the real bearing
    const double k = 40;           // units per half millimetre
    EXPECT_NEAR(NumbersIn(circles[0])[2], 60 * k / 32, 0.001);
    EXPECT_NEAR(NumbersIn(circles[2])[2], 30 * k / 32 + 16, 0.001);
    for (const std::string& circle : circles) {
        EXPECT_TRUE(circle.ends_with(" 0")) << circle;
    }
    const Strings lines = surface.CallsOf("Line");
    for (std::size_t line = 0; line < 6; ++line) {
        EXPECT_TRUE(lines[line].ends_with(" ccddee")) << lines[line];
    }
    Design.PlateStyle = 1;
    EXPECT_EQ(Draw().Count("Circle"), 1U) << "a quadrant plate has no holes";
}

TEST_F(SetupPreviewTest, PrintedTicsOfTheTablesAreDrawn) {
    EXPECT_EQ(TicLines().size(), 3U);
    const auto lengthOf = [](const std::string& line) {
        const std::vector<double> at = NumbersIn(line);
        return std::hypot(at[2] - at[0], at[3] - at[1]) / 80; // units per mm
    };
    EXPECT_NEAR(lengthOf(TicLines()[0]), double{Design.MajorTicLength}, 0.01);
    EXPECT_NEAR(lengthOf(TicLines()[1]), double{Design.MinorTicLength}, 0.01);
    EXPECT_NEAR(lengthOf(TicLines()[2]), double{Design.MinorTicLength}, 0.01);
    EXPECT_GE(Design.ScaleColor[1], 0) << "its kind is not asked";
}

// At their deflections, outward for odd scales, and whatever the aspect.
TEST_F(SetupPreviewTest, TicsStandAtTheirDeflections) {
    for (const float aspect : {1.F, 0.6F}) {
        Design.AspectRatio = aspect;
        const PlateFrame frame = FrameOfDesign(Design, 40, {6000, 4300});
        const double radius = ScaleRadius(frame, double{Design.BottomToScaleCeiling[1]});
        const double shares[] = {0, 0.25, 1};
        const Strings lines = TicLines();
        ASSERT_EQ(lines.size(), 3U);
        for (std::size_t index = 0; index < 3; ++index) {
            const SurfacePoint at =
                PlaceOnArc(frame, PointerAngle(frame, shares[index]), radius).point;
            const std::vector<double> drawn = NumbersIn(lines[index]);
            EXPECT_NEAR(drawn[2], at.x, 0.01);
            EXPECT_NEAR(drawn[3], at.y, 0.01);
            EXPECT_LT(drawn[1], drawn[3]) << "outward";
        }
    }
}

TEST_F(SetupPreviewTest, ScalesThatAreSwitchedOffHaveNoTicsAndArcs) {
    Design.PrintTicsAndArcs[1] = std::int16_t{1};
    EXPECT_EQ(Draw().Count("Line"), 6U) << "the marks' crosses";
    EXPECT_EQ(Draw().texts.size(), 3U);
}

TEST_F(SetupPreviewTest, NoCorrectionIsApplied) {
    const Strings before = TicLines();
    for (int segment = 1; segment < kCurvePoints; ++segment) {
        Design.CorrectionSlope[segment] = 0.5F;
    }
    EXPECT_EQ(TicLines(), before);
}

TEST_F(SetupPreviewTest, LabelSwitchesAreHonoured) {
    EXPECT_EQ(Draw().texts, (Strings{"zero", "unprinted", "one.5"}));
    EXPECT_EQ(Design.TicLabelYN[1][1], "N") << "and stay";
    Design.PrintText = "N";
    EXPECT_TRUE(Draw().texts.empty());
}

TEST_F(SetupPreviewTest, ColourIsTheMagnitude) {
    for (const std::int32_t colour : {0x0000FF, -0x0000FF}) {
        Design.ScaleColor[1] = colour;
        for (const std::string& line : TicLines()) {
            EXPECT_TRUE(line.ends_with(" ff")) << line;
        }
        EXPECT_EQ(Draw().CallsOf("SetForeColor"), Strings{"SetForeColor ff"});
    }
}

// Tics, labels and then the arcs, of every scale that has one.
TEST_F(SetupPreviewTest, ArcsComeLastAndForAllScales) {
    Design.DrawArcs = "Y";
    Design.ArcWidth = 2.6F;
    Design.NumberOfScales = 2;
    const RecordingSurface surface = Draw();
    const Strings& calls = surface.calls;
    EXPECT_EQ(surface.Count("Line"), 6U + 3U + 2 * 101U);
    const auto lastText = std::find(calls.rbegin(), calls.rend(), "EndFont");
    const auto width = std::find(calls.rbegin(), calls.rend(), "SetLineWidth 3");
    ASSERT_NE(width, calls.rend());
    EXPECT_LT(width - calls.rbegin(), lastText - calls.rbegin()) << "behind the labels";
    EXPECT_EQ(calls.back(), "SetLineWidth 1");
    Design.DrawArcs = "N";
    EXPECT_EQ(Draw().Count("Line"), 9U);
}

TEST_F(SetupPreviewTest, OnlyTheCurrentScaleHasTicsAndLabels) {
    Design.NumberOfScales = 2;
    Design.SpecialNrOfTicmarks[2] = 3;
    for (int tic = 0; tic <= 3; ++tic) {
        Design.TicLabelText[2][tic] = "second";
        Design.TicPrintYN[2][tic] = Design.TicLabelYN[2][tic] = "Y";
    }
    EXPECT_EQ(Draw().texts, (Strings{"zero", "unprinted", "one.5"}));
    Design.CurrentScale = 2;
    EXPECT_EQ(Draw().texts, Strings(4, "second"));
    EXPECT_EQ(Design.CurrentScale, 2) << "left alone";
}

TEST_F(SetupPreviewTest, NothingElseIsDrawn) {
    Design.TextString[1] = "free text";
    Design.ScaleTitle[1] = "title";
    Design.HighlightStart[1] = 10;
    Design.HighlightStop[1] = 50;
    Design.HighlightLength[1] = 2;
    Design.DrawGraphic = "Y";
    Design.GraphicFileName = Path("x.bmp");
    Design.DrawArcs = "N";
    const RecordingSurface surface = Draw();
    EXPECT_EQ(surface.texts, (Strings{"zero", "unprinted", "one.5"}));
    EXPECT_EQ(surface.Count("PaintPicture"), 0U);
    EXPECT_EQ(surface.Count("Line"), 9U);
}

TEST_F(SetupPreviewTest, TurnedLabelsTakeThePlatesFontSize) {
    Design.LabelRotation = "B";
    Design.RelativeFontSize[1] = 0.5F;
    const auto corner = [] { return Draw().CallsOf("SetCurrentX").at(0); };
    const std::string standard = corner();
    Design.ScaleColor[1] = -1;
    EXPECT_EQ(corner(), standard) << "special labels, whatever the colour's sign";
}

TEST_F(SetupPreviewTest, FormShowsTheDrawing) {
    OpenPage("frmPreview");
    Design.CurrentScale = 1;
    Answer([this](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), QLatin1String("Vernacle - Setup Preview"));
        EXPECT_EQ(On<QLabel>(form, "lblHeading").text(), QString());
        EXPECT_EQ(On<QPushButton>(form, "cmdExit").text(), QLatin1String("Return"));
        EXPECT_EQ(TextsOn(form), (Strings{"zero", "unprinted", "one.5"}));
        Click(On<QPushButton>(form, "cmdExit"));
        EXPECT_FALSE(form.isVisible());
    });
    ShowModal("frmSetupPreview");
    EXPECT_TRUE(said.empty());
}

TEST_F(SetupPreviewTest, FailingDrawingIsReportedOnceAndStaysOpen) {
    Design.BottomToScaleCeiling[1] = -20;
    Design.BottomToBearing = 10;
    Design.ActualVirtualOffset = 30; // no radius is left
    LastStepTrace.argument = 0.5;
    OpenPage("frmPreview");
    Design.CurrentScale = 1;
    said.clear();
    Answer([this](QWidget& form) {
        EXPECT_EQ(Recorded(On<PictureBox>(form, "picPlate")).Count("Box"), 1U)
            << "what came before";
        EXPECT_EQ(Recorded(On<PictureBox>(form, "picPlate")).Count("PrintText"), 0U);
        Click(On<QPushButton>(form, "cmdExit"));
    });
    Design.BottomToScaleCeiling[1] = -20;
    LastStepTrace.argument = 0.5;
    ShowModal("frmSetupPreview");
    EXPECT_EQ(said, Strings{"failure: We have a problem.\n\nWe are at SetupPreview errorhandler "
                            "337\nIn ArcSin, X=.5"});
}

} // namespace
} // namespace vernacle::test
