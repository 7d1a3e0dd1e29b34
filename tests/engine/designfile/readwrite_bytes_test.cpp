// The bytes of a design file: every line of it, for standard and for special scales.
#include "engine/designfile/readwrite.h"

#include "designfile.h"
#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class WrittenDesignTest : public EngineTest {
protected:
    WrittenDesignTest() {
        ResetDesign(Design);
        Design.FontName = "Arial";
    }

    std::string Written() {
        Design.DesignFileName = Path("plate.vrn");
        WriteDesign(Design);
        EXPECT_TRUE(said.empty());
        return ReadFile("plate.vrn");
    }

    // The written line that begins with the label, without the label; each label only once.
    std::string WrittenValue(const std::string& label) {
        const std::string text = Written();
        const std::size_t line = text.find("\n" + label) + 1;
        EXPECT_NE(line, 0U) << label;
        const std::size_t value = line + label.size();
        return text.substr(value, text.find("\r\n", value) - value);
    }
};

TEST_F(WrittenDesignTest, ADefaultPlate) {
    const DesignFile expected = DesignFile().Set("Filename: ", Path("plate.vrn"));
    EXPECT_EQ(Written(), expected.Text());
}

TEST_F(WrittenDesignTest, AStandardScaleWithEveryFieldChanged) {
    Design.PlateWidth = 61.5F;
    Design.PlateHeight = 41.25F;
    Design.BottomToBearing = -7.5F;
    Design.BottomToHoles = 12;
    Design.HoleSeparation = 33.3F;
    Design.PointerDeflection = 85;
    Design.MinorTicLength = 1.5F;
    Design.MinorTicWidth = 0.5F;
    Design.MajorTicLength = 3.25F;
    Design.MajorTicWidth = 4.5F;
    Design.FontSize = 7;
    Design.ActualVirtualOffset = -0.03333333F;
    Design.PlateStyle = 1;
    Design.DrawArcs = "N";
    Design.LabelRotation = "B";
    Design.PrintText = "N";
    Design.LabelSpacing = -0.5F;
    Design.FontName = "Courier New";
    Design.NumberOfScales = 1;
    Design.ScaleColor[1] = 255;
    Design.ScaleLeftEnd[1] = -10;
    Design.ScaleLengthUnits[1] = 12345678;
    Design.BottomToTitle[1] = 21.5F;
    Design.BottomToScaleCeiling[1] = 31.5F;
    Design.ScaleTitle[1] = " \u00B5A: DC ";
    Design.NrOfTicmarks[1] = 40;
    Design.MajorEveryHowMany[1] = 4;
    Design.LabelsEveryHowMany[1] = 8;
    Design.LinearityExponent[1] = 0.5F;
    Design.DrawGraphic = "Y";
    Design.GraphicFileName = "C:\\logo.bmp";
    Design.LeftToGraphic = 11.5F;
    Design.BottomToGraphic = 12.5F;
    Design.GraphicWidth = 13.5F;
    Design.GraphicHeight = 14.5F;
    Design.ArcWidth = 2.5F;
    Design.MessageLevel = 2;
    Design.NumberOfTexts = 2;
    Design.TextString[1] = "R = 10 k";
    Design.LeftToText[1] = 15.25F;
    Design.BottomToText[1] = -0.5F;
    Design.TextRelativeSize[1] = 1.25F;
    Design.TextColor[1] = 8421504;
    Design.HighlightStart[1] = 10.5F;
    Design.HighlightStop[1] = 90;
    Design.HighlightCeiling[1] = 12.5F;
    Design.HighlightLength[1] = 0.75F;
    Design.HighlightColor[1] = 65535;
    Design.PlateBackground = 1;
    for (const int tic : {0, 3, 360}) {
        Design.StandardTicYN[1][tic] = "N";
    }
    Design.StandardTicYN[3][7] = "N";
    Design.StandardTicYN[5][9] = "N";
    Design.StandardLabelYN[2][20] = "N";
    Design.StandardLabelYN[4][30] = "N";
    Design.StandardLabelYN[4][40] = "N";
    Design.StandardLabelYN[6][50] = "N";
    Design.RelativeFontSize[1] = 0.8F;
    Design.AspectRatio = 1.5F;
    Design.NumberOfCorrectionPoints = 5;
    Design.CorrectionPair[3] = 1.0F / 3;
    Design.CorrectionPair[4] = -0.25F;
    Design.PrintTicsAndArcs[1] = std::int16_t{2};

    const char* expected = "11/21/26 10:08:00\r\n"
                           "Plate width: 61.5\r\n"
                           "Plate height: 41.25\r\n"
                           "Bottom to bearing: -7.5\r\n"
                           "Bottom to mounting holes: 12\r\n"
                           "Hole separation: 33.3\r\n"
                           "Pointer deflection: 85\r\n"
                           "Dummy1: 1\r\n"
                           "Dummy2: 2 \r\n"
                           "Minor ticmark length: 1.5\r\n"
                           "Minor ticmark width: .5\r\n"
                           "Major ticmark length: 3.25\r\n"
                           "Major ticmark width: 4.5\r\n"
                           "Font size: 7\r\n"
                           "Actual/virtual offset: -3.333333E-02\r\n"
                           "Dummy3: 3\r\n"
                           "Dummy4: 4\r\n"
                           "Plate style: 1\r\n"
                           "Draw arcs Y/N:N\r\n"
                           "Label rotation H/V/B:B\r\n"
                           "Print text Y/N:N\r\n"
                           "Label spacing: -.5\r\n"
                           "Font style: Courier New\r\n"
                           "Number of scales: 1\r\n"
                           "Scale color: 255\r\n"
                           "Scale left end (units): -10\r\n"
                           "Scale length (units): 1.234568E+07\r\n"
                           "Bottom to title: 21.5\r\n"
                           "Bottom to scale ceiling: 31.5\r\n"
                           "Scale title: \xB5"
                           "A: DC \r\n"
                           "Number of ticmarks: 40\r\n"
                           "Major ticmarks every how often: 4\r\n"
                           "Labels every how many ticmarks: 8\r\n"
                           "Linearity exponent: .5\r\n"
                           "Draw graphic Y/N:Y\r\n"
                           "Graphic filename:C:\\logo.bmp\r\n"
                           "Left to graphic: 11.5\r\n"
                           "Bottom to graphic: 12.5\r\n"
                           "Graphic width: 13.5\r\n"
                           "Graphic height: 14.5\r\n"
                           "Arc width: 2.5\r\n"
                           "Messages: 2\r\n"
                           "Texts: 2\r\n"
                           "Text 1:R = 10 k\r\n"
                           "Left to text:  15.25 \r\n"
                           "Bottom to text: -.5 \r\n"
                           "Relative size:  1.25 \r\n"
                           "Color: 8421504\r\n"
                           "Text 2:\r\n"
                           "Left to text:  0 \r\n"
                           "Bottom to text:  0 \r\n"
                           "Relative size:  1 \r\n"
                           "Color: 0\r\n"
                           "Highlights: 1\r\n"
                           "Starting percentage: 10.5\r\n"
                           "Stopping percentage: 90\r\n"
                           "Ceiling: 12.5\r\n"
                           "Length: .75\r\n"
                           "Color: 65535\r\n"
                           "Plate background: 1\r\n"
                           "Scale 1 - deleted tics: 3\r\n"
                           "Tic deleted: 0\r\n"
                           "Tic deleted: 3\r\n"
                           "Tic deleted: 360\r\n"
                           "Scale 2 - deleted tics: 0\r\n"
                           "Scale 3 - deleted tics: 1\r\n"
                           "Tic deleted: 7\r\n"
                           "Scale 4 - deleted tics: 0\r\n"
                           "Scale 1 - deleted labels: 0\r\n"
                           "Scale 2 - deleted labels: 1\r\n"
                           "Label deleted: 20\r\n"
                           "Scale 3 - deleted labels: 0\r\n"
                           "Scale 4 - deleted labels: 2\r\n"
                           "Label deleted: 30\r\n"
                           "Label deleted: 40\r\n"
                           "Relative font sizes:\r\n"
                           "Scale 1: .8\r\n"
                           "Aspect ratio: 1.5\r\n"
                           "Number of correction points: 5\r\n"
                           "Pair #1: 0 \\ 0\r\n"
                           "Pair #2: .3333333 \\ -.25\r\n"
                           "Pair #3: .3 \\ .3\r\n"
                           "Pair #4: .5 \\ .5\r\n"
                           "Pair #5: .7 \\ .7\r\n"
                           "Pair #6: .85 \\ .85\r\n"
                           "Pair #7: 1 \\ 1\r\n"
                           "Print ticmarks and arcs:\r\n"
                           "Scale 1: 2\r\n"
                           "\r\n";
    EXPECT_EQ(Written(), "Filename: " + Path("plate.vrn") + "\r\n" + expected);
}

void SetTic(int tic, float deflection, const char* label, const char* tick, const char* major,
            const char* text) {
    Design.TicDeflection[1][tic] = deflection;
    Design.TicLabelYN[1][tic] = label;
    Design.TicPrintYN[1][tic] = tick;
    Design.TicMajorYN[1][tic] = major;
    Design.TicLabelText[1][tic] = text;
}

TEST_F(WrittenDesignTest, ASpecialScaleTicByTic) {
    Design.ScaleColor[1] = -16711680;
    Design.BottomToTitle[1] = 21.5F;
    Design.BottomToScaleCeiling[1] = 31.5F;
    Design.ScaleTitle[1] = "dB";
    Design.SpecialNrOfTicmarks[1] = 3;
    Design.UnlabelledBottomTic[1] = "  N ";
    Design.LinearityExponent[1] = 2;
    Design.FullscaleMultiplier[1] = 0.1F;
    SetTic(0, 0, "Y", "Y", "Y", " -20 ");
    SetTic(1, 0.125F, " N ", "N", "N", "");
    SetTic(2, -0.5F, "N", " Y", "N ", "   ");
    SetTic(3, 1, "Y", "Y", "Y", "+3 dB");
    const DesignFile expected =
        DesignFile()
            .Set("Filename: ", Path("plate.vrn"))
            .Replace("Scale color: ", "Draw graphic Y/N:",
                     {"Scale color: -16711680", "Bottom to scale title: 21.5",
                      "Bottom to scale ceiling: 31.5", "Scale title:dB", "Number of ticmarks: 3",
                      "* Deflection, Label Y/N, Tic Y/N, Major Y/N, Label:", " 0\\Y\\Y\\Y\\-20",
                      " .125\\N\\N\\N\\/", "-.5\\N\\Y\\N\\/", " 1\\Y\\Y\\Y\\+3 dB",
                      "Unlabelled ticmark at scale bottom Y/N: N", "Scale exponent: 2",
                      "Fullscale multiplier: .1"});
    EXPECT_EQ(Written(), expected.Text());
    EXPECT_EQ(Design.TicLabelText[1][0], " -20 ");
    EXPECT_EQ(Design.TicLabelText[1][1], "/"); // writing changes the design
    EXPECT_EQ(Design.TicLabelText[1][2], "/");
    EXPECT_EQ(Design.TicLabelText[1][4], "");
}

TEST_F(WrittenDesignTest, TheSignOfTheColourChoosesTheBlock) {
    struct Row {
        std::int32_t colour;
        bool special;
    };
    for (const auto& [colour, special] : {Row{0, false}, Row{1, false}, Row{-1, true}}) {
        Design.ScaleColor[1] = colour;
        const std::string text = Written();
        EXPECT_EQ(text.find("Scale exponent: ") != std::string::npos, special) << colour;
        EXPECT_EQ(text.find("Linearity exponent: ") == std::string::npos, special) << colour;
    }
}

TEST_F(WrittenDesignTest, EveryScaleHasItsBlockAndItsLinesOfTheTail) {
    Design.NumberOfScales = 3;
    Design.ScaleColor[2] = -1;
    Design.RelativeFontSize[2] = 2;
    Design.RelativeFontSize[3] = 3;
    Design.PrintTicsAndArcs[2] = std::string(" 1 ");
    Design.PrintTicsAndArcs[3] = std::string("rubbish");
    DesignFile expected;
    expected.Set("Filename: ", Path("plate.vrn")).Set("Number of scales: ", "3");
    std::vector<std::string> third = StandardScaleBlock("Default Scale 3");
    third[3] = "Bottom to title: 40";
    third[4] = "Bottom to scale ceiling: 45";
    expected.AddBehind("Linearity exponent: ", third);
    expected.AddBehind("Linearity exponent: ",
                       {"Scale color: -1", "Bottom to scale title: 35",
                        "Bottom to scale ceiling: 40", "Scale title:Default Scale 2",
                        "Number of ticmarks: 0",
                        "* Deflection, Label Y/N, Tic Y/N, Major Y/N, Label:", " 0\\Y\\Y\\N\\/",
                        "Unlabelled ticmark at scale bottom Y/N: Y", "Scale exponent: 1",
                        "Fullscale multiplier: 1"});
    expected.AddBehind("Scale 1: 1", {"Scale 2: 2", "Scale 3: 3"});
    expected.AddBehind("Scale 1: 0", {"Scale 2: 1", "Scale 3: 0"});
    EXPECT_EQ(Written(), expected.Text());
}

TEST_F(WrittenDesignTest, ForgetsAGraphicThatIsNotDrawn) {
    Design.GraphicFileName = "logo.bmp";
    EXPECT_EQ(WrittenValue("Graphic filename:"), "");
    EXPECT_EQ(Design.GraphicFileName, "");
    Design.GraphicFileName = "logo.bmp";
    for (const char* drawn : {"Y", "", "n"}) {
        Design.DrawGraphic = drawn;
        EXPECT_EQ(WrittenValue("Graphic filename:"), "logo.bmp") << drawn;
        EXPECT_EQ(Design.GraphicFileName, "logo.bmp");
    }
}

TEST_F(WrittenDesignTest, CountsTheFullHighlightsAndWritesTheFirstSlots) {
    Design.NumberOfHighlights = 9;
    Design.HighlightStop[2] = 50;
    EXPECT_EQ(WrittenValue("Highlights: "), "1");
    EXPECT_EQ(Design.NumberOfHighlights, 1);
    EXPECT_EQ(WrittenValue("Stopping percentage: "), "0"); // the empty slot's
    EXPECT_EQ(WrittenValue("Ceiling: "), "10");
    EXPECT_EQ(Design.HighlightStop[1], 0);

    Design.HighlightStop[2] = -1;
    EXPECT_EQ(WrittenValue("Highlights: "), "0");
    for (int slot = 1; slot <= 10; ++slot) {
        Design.HighlightStop[slot] = 0.001F;
    }
    EXPECT_EQ(WrittenValue("Highlights: "), "10");
}

TEST_F(WrittenDesignTest, WritesTenTexts) {
    Design.NumberOfTexts = 10;
    Design.TextString[10] = "last";
    EXPECT_EQ(WrittenValue("Text 10:"), "last");
    EXPECT_EQ(WrittenValue("Text 9:"), "");
}

TEST_F(WrittenDesignTest, CompilesTheDeletedListsAnew) {
    Design.DeletedTicCount[1] = 5;
    Design.DeletedLabelCount[2] = 5;
    EXPECT_EQ(WrittenValue("Scale 1 - deleted tics: "), "0");
    EXPECT_EQ(WrittenValue("Scale 2 - deleted labels: "), "0");
}

TEST_F(WrittenDesignTest, AListOf360DeletionsFits) {
    for (int tic = 1; tic <= 360; ++tic) {
        Design.StandardLabelYN[4][tic] = "N";
    }
    EXPECT_EQ(WrittenValue("Scale 4 - deleted labels: "), "360");
}

TEST_F(WrittenDesignTest, ATextStaysOnItsLine) {
    Design.ScaleTitle[1] = "two\r\nlines";
    EXPECT_EQ(WrittenValue("Scale title:"), "two  lines");
    ReadDesign(Design, Path("plate.vrn"));
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.ScaleTitle[1], "two  lines");
    EXPECT_EQ(Design.NrOfTicmarks[1], 50);
}

TEST_F(WrittenDesignTest, AForeignCharacterTurnsTheFileToUtf8) {
    Design.ScaleTitle[1] = "k\u2126 \u00B5";
    const std::string text = Written();
    EXPECT_EQ(text.find("\xEF\xBB\xBF"
                        "Filename: "),
              0U);
    EXPECT_NE(text.find("\r\nScale title:k\u2126 \u00B5\r\n"), std::string::npos);
    ReadDesign(Design, Path("plate.vrn"));
    EXPECT_EQ(Design.ScaleTitle[1], "k\u2126 \u00B5");
    EXPECT_EQ(Design.PlateWidth, 75);
    Design.ScaleTitle[1] = "\u00B5";
    EXPECT_EQ(Written().find("Filename: "), 0U);
}

TEST_F(WrittenDesignTest, ADesignInUseComesBackByteByByte) {
    Design.NumberOfScales = 2;
    Design.PlateWidth = 61.5F;
    Design.ScaleColor[2] = -255;
    Design.SpecialNrOfTicmarks[2] = 360;
    for (int tic = 0; tic <= 360; ++tic) {
        Design.TicDeflection[2][tic] = static_cast<float>(tic) / 360;
        Design.TicLabelText[2][tic] = tic % 10 == 0 ? std::to_string(tic) : "";
    }
    Design.NumberOfTexts = 10;
    Design.TextString[7] = "\u00B0C: \u20AC";
    Design.StandardTicYN[1][360] = Design.StandardLabelYN[4][0] = "N";
    Written();
    ReadDesign(Design, Path("plate.vrn"));
    const std::string text = Written();
    ReadDesign(Design, Path("plate.vrn"));
    EXPECT_EQ(Design.StandardTicYN[1][360], "N");
    EXPECT_EQ(Design.TextString[7], "\u00B0C: \u20AC");
    EXPECT_EQ(Written(), text);
}

} // namespace
} // namespace vernacle::test
