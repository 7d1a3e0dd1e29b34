// The bytes of a design file: every line of it, for standard and for special scales.
#include "engine/designfile/readwrite.h"

#include "designfile.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

class WrittenDesignTest : public DesignFileTest {
protected:
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

struct ChangedNumber {
    FieldPlace field; // of the first scale, if it is one of a scale
    double value;
    const char* label;
    const char* written;
};

constexpr ChangedNumber kChangedNumbers[] = {
    {At<&D::PlateWidth>, 61.5, "Plate width: ", "61.5"},
    {At<&D::PlateHeight>, 41.25, "Plate height: ", "41.25"},
    {At<&D::BottomToBearing>, -7.5, "Bottom to bearing: ", "-7.5"},
    {At<&D::BottomToHoles>, 12, "Bottom to mounting holes: ", "12"},
    {At<&D::HoleSeparation>, 33.3, "Hole separation: ", "33.3"},
    {At<&D::PointerDeflection>, 85, "Pointer deflection: ", "85"},
    {At<&D::MinorTicLength>, 1.5, "Minor ticmark length: ", "1.5"},
    {At<&D::MinorTicWidth>, 0.5, "Minor ticmark width: ", ".5"},
    {At<&D::MajorTicLength>, 3.25, "Major ticmark length: ", "3.25"},
    {At<&D::MajorTicWidth>, 4.5, "Major ticmark width: ", "4.5"},
    {At<&D::FontSize>, 7, "Font size: ", "7"},
    {At<&D::ActualVirtualOffset>, -0.03333333, "Actual/virtual offset: ", "-3.333333E-02"},
    {At<&D::PlateStyle>, 1, "Plate style: ", "1"},
    {At<&D::LabelSpacing>, -0.5, "Label spacing: ", "-.5"},
    {At<&D::NumberOfScales>, 1, "Number of scales: ", "1"},
    {At<&D::ScaleColor>, 255, "Scale color: ", "255"},
    {At<&D::ScaleLeftEnd>, -10, "Scale left end (units): ", "-10"},
    {At<&D::ScaleLengthUnits>, 12345678, "Scale length (units): ", "1.234568E+07"},
    {At<&D::BottomToTitle>, 21.5, "Bottom to title: ", "21.5"},
    {At<&D::BottomToScaleCeiling>, 31.5, "Bottom to scale ceiling: ", "31.5"},
    {At<&D::NrOfTicmarks>, 40, "Number of ticmarks: ", "40"},
    {At<&D::MajorEveryHowMany>, 4, "Major ticmarks every how often: ", "4"},
    {At<&D::LabelsEveryHowMany>, 8, "Labels every how many ticmarks: ", "8"},
    {At<&D::LinearityExponent>, 0.5, "Linearity exponent: ", ".5"},
    {At<&D::LeftToGraphic>, 11.5, "Left to graphic: ", "11.5"},
    {At<&D::BottomToGraphic>, 12.5, "Bottom to graphic: ", "12.5"},
    {At<&D::GraphicWidth>, 13.5, "Graphic width: ", "13.5"},
    {At<&D::GraphicHeight>, 14.5, "Graphic height: ", "14.5"},
    {At<&D::ArcWidth>, 2.5, "Arc width: ", "2.5"},
    {At<&D::MessageLevel>, 2, "Messages: ", "2"},
    {At<&D::PlateBackground>, 1, "Plate background: ", "1"},
    {At<&D::RelativeFontSize>, 0.8, "Scale 1: ", ".8"},
    {At<&D::AspectRatio>, 1.5, "Aspect ratio: ", "1.5"},
    {At<&D::NumberOfCorrectionPoints>, 5, "Number of correction points: ", "5"},
};

struct ChangedText {
    std::string D::*field;
    const char* label;
    const char* text;
};

constexpr ChangedText kChangedTexts[] = {
    {&D::DrawArcs, "Draw arcs Y/N:", "N"},
    {&D::LabelRotation, "Label rotation H/V/B:", "B"},
    {&D::PrintText, "Print text Y/N:", "N"},
    {&D::FontName, "Font style: ", "Courier New"},
    {&D::DrawGraphic, "Draw graphic Y/N:", "Y"},
    {&D::GraphicFileName, "Graphic filename:", "C:\\logo.bmp"},
};

TEST_F(WrittenDesignTest, AStandardScaleWithEveryFieldChanged) {
    DesignFile expected = DesignFile().Set("Filename: ", Path("plate.vrn"));
    for (const auto& [field, value, label, written] : kChangedNumbers) {
        StoreIn(field.In(Design, 1), value);
        expected.Set(label, written);
    }
    for (const auto& [field, label, text] : kChangedTexts) {
        Design.*field = text;
        expected.Set(label, text);
    }
    Design.ScaleTitle[1] = " \u00B5A: DC ";
    expected.Set("Scale title:", " \xB5"
                                 "A: DC ");
    Design.NumberOfTexts = 2;
    Design.TextString[1] = "R = 10 k";
    Design.LeftToText[1] = 15.25F;
    Design.BottomToText[1] = -0.5F;
    Design.TextRelativeSize[1] = 1.25F;
    Design.TextColor[1] = 8421504;
    expected.Set("Texts: ", "2")
        .AddBehind("Texts: ",
                   {"Text 1:R = 10 k", "Left to text:  15.25 ", "Bottom to text: -.5 ",
                    "Relative size:  1.25 ", "Color: 8421504", "Text 2:", "Left to text:  0 ",
                    "Bottom to text:  0 ", "Relative size:  1 ", "Color: 0"});
    Design.HighlightStart[1] = 10.5F;
    Design.HighlightStop[1] = 90;
    Design.HighlightCeiling[1] = 12.5F;
    Design.HighlightLength[1] = 0.75F;
    Design.HighlightColor[1] = 65535;
    expected.Set("Highlights: ", "1")
        .AddBehind("Highlights: ", {"Starting percentage: 10.5", "Stopping percentage: 90",
                                    "Ceiling: 12.5", "Length: .75", "Color: 65535"});
    for (const int tic : {0, 3, 360}) {
        Design.StandardTicYN[1][tic] = "N";
    }
    Design.StandardTicYN[3][7] = "N";
    Design.StandardTicYN[5][9] = "N";
    Design.StandardLabelYN[2][20] = "N";
    Design.StandardLabelYN[4][30] = "N";
    Design.StandardLabelYN[4][40] = "N";
    Design.StandardLabelYN[6][50] = "N";
    expected.Set("Scale 1 - deleted tics: ", "3")
        .AddBehind("Scale 1 - deleted tics: ",
                   {"Tic deleted: 0", "Tic deleted: 3", "Tic deleted: 360"})
        .Set("Scale 3 - deleted tics: ", "1")
        .AddBehind("Scale 3 - deleted tics: ", {"Tic deleted: 7"})
        .Set("Scale 2 - deleted labels: ", "1")
        .AddBehind("Scale 2 - deleted labels: ", {"Label deleted: 20"})
        .Set("Scale 4 - deleted labels: ", "2")
        .AddBehind("Scale 4 - deleted labels: ", {"Label deleted: 30", "Label deleted: 40"});
    Design.CorrectionPair[3] = 1.0F / 3;
    Design.CorrectionPair[4] = -0.25F;
    Design.PrintTicsAndArcs[1] = std::int16_t{2};
    expected.Set("Pair #2: ", ".3333333 \\ -.25").Set("Scale 1: ", "2", 2);
    EXPECT_EQ(Written(), expected.Text());
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
    for (const auto& [colour, special] : {std::pair{0, false}, {1, false}, {-1, true}}) {
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
    Texts third = StandardScaleBlock("Default Scale 3");
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
