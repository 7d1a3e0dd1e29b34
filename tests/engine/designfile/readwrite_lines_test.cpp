// What the reader of a design file makes of the text behind each label.
#include "engine/designfile/readwrite.h"

#include <algorithm>
#include <span>

#include "designfile.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

struct NumberLine {
    const char* label;
    Getter field;
    const char* kept; // the default
    int occurrence = 1;
};

// The lines with forgiving numbers of at most ten characters, the blank behind the colon included.
constexpr NumberLine kFractions[] = {
    {"Plate width: ", Of<&D::PlateWidth>, "75"},
    {"Plate height: ", Of<&D::PlateHeight>, "50"},
    {"Bottom to bearing: ", Of<&D::BottomToBearing>, "10"},
    {"Bottom to mounting holes: ", Of<&D::BottomToHoles>, "15"},
    {"Hole separation: ", Of<&D::HoleSeparation>, "50"},
    {"Pointer deflection: ", Of<&D::PointerDeflection>, "99"},
    {"Minor ticmark length: ", Of<&D::MinorTicLength>, "2"},
    {"Minor ticmark width: ", Of<&D::MinorTicWidth>, "2"},
    {"Major ticmark length: ", Of<&D::MajorTicLength>, "3"},
    {"Major ticmark width: ", Of<&D::MajorTicWidth>, "4"},
    {"Font size: ", Of<&D::FontSize>, "8"},
    {"Actual/virtual offset: ", Of<&D::ActualVirtualOffset>, "30"},
    {"Label spacing: ", Of<&D::LabelSpacing>, "6"},
    {"Scale left end (units): ", Of<&D::ScaleLeftEnd, 1>, "0"},
    {"Scale length (units): ", Of<&D::ScaleLengthUnits, 1>, "50"},
    {"Bottom to title: ", Of<&D::BottomToTitle, 1>, "30"},
    {"Bottom to scale ceiling: ", Of<&D::BottomToScaleCeiling, 1>, "35"},
    {"Linearity exponent: ", Of<&D::LinearityExponent, 1>, "1"},
    {"Left to graphic: ", Of<&D::LeftToGraphic>, "10"},
    {"Bottom to graphic: ", Of<&D::BottomToGraphic>, "1"},
    {"Graphic width: ", Of<&D::GraphicWidth>, "1"},
    {"Graphic height: ", Of<&D::GraphicHeight>, "1"},
    {"Arc width: ", Of<&D::ArcWidth>, "1"},
    {"Starting percentage: ", Of<&D::HighlightStart, 1>, "0"},
    {"Stopping percentage: ", Of<&D::HighlightStop, 1>, "0"},
    {"Ceiling: ", Of<&D::HighlightCeiling, 1>, "10"},
    {"Length: ", Of<&D::HighlightLength, 1>, "0"},
    {"Scale 1: ", Of<&D::RelativeFontSize, 1>, "1"},
};

constexpr NumberLine kWholeNumbers[] = {
    {"Scale color: ", Of<&D::ScaleColor, 1>, "0"},
    {"Number of ticmarks: ", Of<&D::NrOfTicmarks, 1>, "50"},
    {"Major ticmarks every how often: ", Of<&D::MajorEveryHowMany, 1>, "5"},
    {"Labels every how many ticmarks: ", Of<&D::LabelsEveryHowMany, 1>, "10"},
    {"Messages: ", Of<&D::MessageLevel>, "0"},
};

// The lines with the leading number of a text of any length.
constexpr NumberLine kLeadingNumbers[] = {
    {"Left to text: ", Of<&D::LeftToText, 1>, "0"},
    {"Bottom to text: ", Of<&D::BottomToText, 1>, "0"},
    {"Relative size: ", Of<&D::TextRelativeSize, 1>, "1"},
};

DesignFile FileWithBlocks() {
    return DesignFile()
        .Set("Texts: ", "1")
        .AddBehind("Texts: ",
                   {"Text 1:", "Left to text: ", "Bottom to text: ", "Relative size: ", "Color: 0"})
        .Set("Highlights: ", "1")
        .AddBehind("Highlights: ", {"Starting percentage: ", "Stopping percentage: ", "Ceiling: ",
                                    "Length: ", "Color: 0"});
}

// A value and what its field becomes; nullptr: the field keeps its default.
using Reading = std::pair<const char*, const char*>;

class ReadLineTest : public DesignFileTest {
protected:
    void ExpectReadings(std::span<const NumberLine> lines, std::span<const Reading> readings) {
        for (const NumberLine& line : lines) {
            for (const auto& [value, becomes] : readings) {
                Read(FileWithBlocks().Set(line.label, value));
                EXPECT_EQ(line.field(), becomes ? becomes : line.kept) << line.label << value;
            }
        }
    }
};

TEST_F(ReadLineTest, MostLinesTakeForgivingNumbers) {
    constexpr Reading kReadings[] = {
        {"61.5", "61.5"},
        {"61,5", "61.5"},
        {"-2k5", "-2000"},
        {" 5", "5"},
        {"", "0"},
        {"rubbish", "0"},
        {"1E99", "1E+10"},
        {"123456789", "1.234568E+08"},
        {"3.333333E-02", nullptr},
        {"1234567890", nullptr}, // the blank makes it eleven
    };
    ExpectReadings(kFractions, kReadings);
}

TEST_F(ReadLineTest, WholeNumbersAreRoundedAndHeld) {
    constexpr Reading kReadings[] = {
        {"7", "7"}, {"7.5", "8"}, {"6.5", "6"}, {"1k", "1000"}, {"x", "0"}, {"1234567890", nullptr},
    };
    ExpectReadings(kWholeNumbers, kReadings);
    Read(DesignFile().Set("Number of ticmarks: ", "99999"));
    EXPECT_EQ(Design.NrOfTicmarks[1], 32767);
    Read(DesignFile().Set("Number of ticmarks: ", "-5"));
    EXPECT_EQ(Design.NrOfTicmarks[1], -5);
    Read(DesignFile().Set("Scale color: ", "16777215"));
    EXPECT_EQ(Design.ScaleColor[1], 16777215);
}

TEST_F(ReadLineTest, TheLinesOfTextsTakeLeadingNumbersOfAnyLength) {
    constexpr Reading kReadings[] = {
        {" 61.5 ", "61.5"},
        {"3.333333E-02", "3.333333E-02"},
        {"00000000012.5", "12.5"},
        {"2k5", "2"},
        {"61,5", "61"},
        {"", "0"},
        {"x", "0"},
        {"-1.5E+3 mm", "-1500"},
    };
    ExpectReadings(kLeadingNumbers, kReadings);
}

TEST_F(ReadLineTest, AWidthInExponentFormLoadsAsTheDefault) {
    Design.DesignFileName = Path("plate.vrn");
    Design.PlateWidth = 0.03333333F;
    Design.NumberOfTexts = 1;
    Design.LeftToText[1] = 0.03333333F;
    WriteDesign(Design);
    ReadDesign(Design, Path("plate.vrn"));
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_EQ(Design.LeftToText[1], 0.03333333F);
}

TEST_F(ReadLineTest, TextsStandAsTheyAre) {
    constexpr std::pair<const char*, Getter> kRows[] = {
        {"Draw arcs Y/N:", Of<&D::DrawArcs>},   {"Label rotation H/V/B:", Of<&D::LabelRotation>},
        {"Print text Y/N:", Of<&D::PrintText>}, {"Scale title:", Of<&D::ScaleTitle, 1>},
        {"Text 1:", Of<&D::TextString, 1>},
    };
    for (const auto& [label, field] : kRows) {
        for (const char* text : {"", " Y", "a: b ", "*", "\\/"}) {
            Read(FileWithBlocks().Set(label, text));
            EXPECT_EQ(field(), text) << label;
        }
    }
}

TEST_F(ReadLineTest, SomeValuesAreReadAndGivenUp) {
    Read(FileWithBlocks()
             .Set("Plate style: ", "1")
             .Set("Font style: ", "Courier New")
             .Set("Draw graphic Y/N:", "Y")
             .Set("Graphic filename:", "logo.bmp")
             .Set("Plate background: ", "255")
             .Set("Number of correction points: ", "3 \\ 4")
             .Set("Scale 1: ", "1", 2));
    EXPECT_EQ(Design.PlateStyle, 0);
    EXPECT_EQ(Design.FontName, "Arial");
    EXPECT_EQ(Design.DrawGraphic, "N");
    EXPECT_EQ(Design.GraphicFileName, "");
    EXPECT_EQ(Design.PlateBackground, 0xFFFFFF);
    EXPECT_EQ(Design.NumberOfHighlights, 0);
    EXPECT_EQ(Design.DrawHighlights, "N");
    EXPECT_EQ(Design.NumberOfCorrectionPoints, 7);
    EXPECT_EQ(Design.PrintTicsAndArcs[1], DynamicValue(std::int16_t{0}));
}

TEST_F(ReadLineTest, TheAspectIsHeld) {
    constexpr std::pair<const char*, float> kRows[] = {
        {".49", 0.5F}, {".5", 0.5F}, {".51", 0.51F}, {"1.99", 1.99F},         {"2", 2},
        {"2.01", 2},   {"-1", 0.5F}, {"x", 0.5F},    {"1.50000000000", 1.5F}, {"1E30", 2},
        {"1,5", 1},
    };
    for (const auto& [value, aspect] : kRows) {
        Read(DesignFile().Set("Aspect ratio: ", value));
        EXPECT_EQ(Design.AspectRatio, aspect) << value;
    }
}

TEST_F(ReadLineTest, TheColoursOfTextsAndHighlights) {
    DesignFile file = FileWithBlocks();
    Read(file.Set("Color: ", " 255 ").Set("Color: ", "65280 or so", 2));
    EXPECT_EQ(Design.TextColor[1], 255);
    EXPECT_EQ(Design.HighlightColor[1], 65280);
    Read(file.Set("Color: ", "-1"));
    EXPECT_EQ(Design.TextColor[1], -1);
}

TEST_F(ReadLineTest, ACurveDoesNotSurvive) {
    Read(DesignFile()
             .Set("Pair #2: ", ".1 \\ .4")
             .Set("Pair #3: ", "rubbish")
             .Set("Pair #4: ", "")
             .Set("Pair #7: ", "5 \\ 5"));
    constexpr float kLeft[] = {0, 1, 1.01F, 1.02F, 1.03F, 1.04F, 1};
    for (int point = 1; point <= 7; ++point) {
        EXPECT_FLOAT_EQ(Design.CorrectionPair[2 * point - 1], kLeft[point - 1]) << point;
        EXPECT_FLOAT_EQ(Design.CorrectionPair[2 * point], kLeft[point - 1]) << point;
    }
    for (int segment = 1; segment <= 6; ++segment) {
        EXPECT_FLOAT_EQ(Design.CorrectionSlope[segment], 1) << segment;
    }
}

TEST_F(ReadLineTest, PairsPassTheEntryOneByOne) {
    struct Row {
        const char* value;
        float x;
        float y;
    };
    constexpr Row kRows[] = {
        {".25 \\ .5", 0.25F, 0.5F},
        {".25\\.5", 0.25F, 0.5F},
        {"25m\\\\,5\\", 0.025F, 0.5F},
        {"\\.25\\.5", 0, 0.25F},
        {".25 .5", 0.255F, 0},
        {"x \\ y", 0, 0},
        {"", 0, 0},
    };
    for (const auto& [value, x, y] : kRows) {
        Read(DesignFile().Set("Pair #1: ", value).CutBehind("Pair #1: "));
        EXPECT_FLOAT_EQ(Design.CorrectionPair[1], x) << value;
        EXPECT_FLOAT_EQ(Design.CorrectionPair[2], y) << value;
    }
}

TEST_F(ReadLineTest, CountsThatAreNotPositiveHaveNoBlocks) {
    for (const char* count : {"0", "-1", "x", ""}) {
        Read(DesignFile()
                 .Set("Texts: ", count)
                 .Set("Highlights: ", count)
                 .Set("Scale 2 - deleted tics: ", count)
                 .Set("Scale 3 - deleted labels: ", count)
                 .Set("Aspect ratio: ", "1.5"));
        EXPECT_EQ(Design.AspectRatio, 1.5F) << count;
    }
    DesignFile noScales;
    noScales.Replace("Scale color: ", "Draw graphic", {}).Set("Number of scales: ", "0");
    noScales.lines.erase(std::find(noScales.lines.begin(), noScales.lines.end(), "Scale 1: 1"));
    Read(noScales.Set("Aspect ratio: ", "1.5"));
    EXPECT_EQ(Design.NumberOfScales, 0);
    EXPECT_EQ(Design.AspectRatio, 1.5F);
}

TEST_F(ReadLineTest, TenTextsAndTenHighlightsFit) {
    DesignFile file;
    file.Set("Texts: ", "10").Set("Highlights: ", "10").Set("Aspect ratio: ", "1.5");
    for (int block = 10; block >= 1; --block) {
        file.AddBehind("Texts: ", {"Text:t" + std::to_string(block), "0", "0", "0", "0"});
        file.AddBehind("Highlights: ", {"0", std::to_string(block), "0", "0", "0"});
    }
    Read(file);
    EXPECT_EQ(Design.TextString[1], "t1");
    EXPECT_EQ(Design.TextString[10], "t10");
    EXPECT_EQ(Design.HighlightStop[10], 10);
    EXPECT_EQ(Design.AspectRatio, 1.5F);
}

TEST_F(ReadLineTest, EightScalesFitAndASeventhAndEighthHaveNoDefaults) {
    DesignFile file;
    file.Set("Number of scales: ", "8").Set("Aspect ratio: ", "1.5");
    for (int scale = 8; scale >= 2; --scale) {
        file.AddBehind("Linearity exponent: ", StandardScaleBlock("t" + std::to_string(scale)));
        file.AddBehind("Scale 1: 1", {"Scale: " + std::to_string(scale)});
        file.AddBehind("Scale 1: 0", {"Scale: 0"});
    }
    Read(file);
    EXPECT_EQ(Design.ScaleTitle[2], "t2");
    EXPECT_EQ(Design.ScaleTitle[8], "t8");
    EXPECT_EQ(Design.RelativeFontSize[8], 8);
    EXPECT_EQ(Design.AspectRatio, 1.5F);
    NormalizeDesign(Design);
    EXPECT_EQ(Design.NumberOfScales, 1);
}

TEST_F(ReadLineTest, TheFieldsOfASpecialTic) {
    struct Row {
        const char* name;
        const char* line;
        float deflection;
        const char* fields; // label, tic, major, text
    };
    constexpr Row kRows[] = {
        {"whole", " .25\\N\\Y\\Y\\10", 0.25F, "N|Y|Y|10"},
        {"blanks around", "  .25 \\ N \\ Y \\ Y \\ 1 0 ", 0.25F, "N|Y|Y|1 0"},
        {"no label", " .25\\N\\Y\\Y\\/", 0.25F, "N|Y|Y| "},
        {"no label, blanks", " .25\\N\\Y\\Y\\ / ", 0.25F, "N|Y|Y| "},
        {"two slashes", " .25\\N\\Y\\Y\\//", 0.25F, "N|Y|Y|//"},
        {"blank label", " .25\\N\\Y\\Y\\  ", 0.25F, "N|Y|Y|"},
        {"long number", " 2.500000000E-01x\\N\\Y\\Y\\10", 0.25F, "N|Y|Y|10"},
        {"leading number only", "2k5\\N\\Y\\Y\\10", 2, "N|Y|Y|10"},
        {"missing label", " .25\\N\\Y\\Y", 0.25F, "N|Y|Y|"},
        {"missing fields", " .25\\N", 0.25F, "N|Y|N|"},
        {"number alone", " .25", 0.25F, "Y|Y|N|"},
        {"separators alone", "\\\\\\", 0, "Y|Y|N|"},
        {"an empty field", " .25\\\\Y\\Y\\10", 0.25F, "Y|Y|10|"},
        {"a sixth field", " .25\\N\\Y\\Y\\a\\b", 0.25F, "N|Y|Y|a"},
        {"colon in the label", " .25\\N\\Y\\Y\\1:50", 50, "Y|Y|N|"},
        {"colon and fields", " .25\\N\\Y\\Y\\a:.5\\N", 0.5F, "N|Y|N|"},
        {"colon at the end", " .25\\N\\Y\\Y\\a:", 0, "Y|Y|N|"},
    };
    for (const auto& [name, line, deflection, fields] : kRows) {
        Read(DesignFile().Replace("Scale color: ", "Draw graphic", SpecialScaleBlock({line})));
        EXPECT_EQ(Design.TicDeflection[1][0], deflection) << name;
        EXPECT_EQ(TicFields(1, 0), fields) << name;
        EXPECT_EQ(Design.FullscaleMultiplier[1], 10) << name;
        EXPECT_EQ(Design.UnlabelledBottomTic[1], " N") << name;
    }
}

TEST_F(ReadLineTest, ASpecialScaleMayHaveNoTicsOrAll) {
    Read(DesignFile()
             .Replace("Scale color: ", "Draw graphic", SpecialScaleBlock({}))
             .Set("Aspect ratio: ", "1.5"));
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], -1);
    EXPECT_EQ(Design.AspectRatio, 1.5F);
    const Texts tics(361, " .5\\N\\N\\N\\x");
    Read(DesignFile()
             .Replace("Scale color: ", "Draw graphic", SpecialScaleBlock(tics))
             .Set("Aspect ratio: ", "1.5"));
    EXPECT_EQ(Design.TicLabelText[1][360], "x");
    EXPECT_EQ(Design.AspectRatio, 1.5F);
}

TEST_F(ReadLineTest, ALongTicNumberDeletesTheTicBeforeItAgain) {
    Read(DesignFile()
             .Set("Scale 1 - deleted tics: ", "2")
             .AddBehind("Scale 1 - deleted tics: ", {"Tic deleted: 7", "Tic deleted: 1234567890"}));
    EXPECT_EQ(Design.StandardTicYN[1][7], "N");
    EXPECT_EQ(Design.StandardTicYN[1][8], "Y");
    EXPECT_EQ(Design.DeletedTicCount[1], 2);
    EXPECT_EQ(Design.DeletedTics[1][1], 0); // the flags are what is read
}

TEST_F(ReadLineTest, BytesAboveAsciiAreThoseOfTheCodePage) {
    Read(DesignFile().Set("Scale title:", "\xB5"
                                          "A \x80"));
    EXPECT_EQ(Design.ScaleTitle[1], "\u00B5A \u20AC");
    DesignFile file;
    file.lines[0].insert(0, "\xEF\xBB\xBF");
    Read(file.Set("Scale title:", "k\u2126"));
    EXPECT_EQ(Design.ScaleTitle[1], "k\u2126");
    EXPECT_EQ(Design.PlateWidth, 75);
}

} // namespace
} // namespace vernacle::test
