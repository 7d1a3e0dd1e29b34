// A design file that ends early is no failure: what it has is read, what it lacks stays at the
// default. The sample has every kind of line, and hardly a value that is a default.
#include "engine/designfile/readwrite.h"

#include "designfile.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

struct SampleLine {
    const char* line;
    Getter field = nullptr;
    const char* read = nullptr;      // the field once the line was read
    const char* otherwise = nullptr; // the field of a file that ends before it
};

template <int Tic>
std::string SpecialTic() {
    return Of<&D::TicDeflection, 2, Tic>() + "|" + TicFields(2, Tic);
}

const SampleLine kSample[] = {
    {"Filename: elsewhere.vrn", Of<&D::DesignFileName>, "mine", "mine"},
    {"1/2/2003 4:05:06 PM"},
    {"Plate width: 61.5", Of<&D::PlateWidth>, "61.5", "75"},
    {"Plate height: 41.5", Of<&D::PlateHeight>, "41.5", "50"},
    {"Bottom to bearing: -7.5", Of<&D::BottomToBearing>, "-7.5", "10"},
    {"Bottom to mounting holes: 12.5", Of<&D::BottomToHoles>, "12.5", "15"},
    {"Hole separation: 33.5", Of<&D::HoleSeparation>, "33.5", "50"},
    {"Pointer deflection: 85.5", Of<&D::PointerDeflection>, "85.5", "99"},
    {"Dummy1: 1"},
    {"Dummy2: 2 "},
    {"Minor ticmark length: 1.5", Of<&D::MinorTicLength>, "1.5", "2"},
    {"Minor ticmark width: 2.5", Of<&D::MinorTicWidth>, "2.5", "2"},
    {"Major ticmark length: 3.5", Of<&D::MajorTicLength>, "3.5", "3"},
    {"Major ticmark width: 4.5", Of<&D::MajorTicWidth>, "4.5", "4"},
    {"Font size: 7.5", Of<&D::FontSize>, "7.5", "8"},
    {"Actual/virtual offset: 22.5", Of<&D::ActualVirtualOffset>, "22.5", "30"},
    {"Dummy3: 3"},
    {"Dummy4: 4"},
    {"Plate style: 1", Of<&D::PlateStyle>, "0", "0"},
    {"Draw arcs Y/N:N", Of<&D::DrawArcs>, "N", "Y"},
    {"Label rotation H/V/B:B", Of<&D::LabelRotation>, "B", "H"},
    {"Print text Y/N: N", Of<&D::PrintText>, " N", "Y"},
    {"Label spacing: 4.5", Of<&D::LabelSpacing>, "4.5", "6"},
    {"Font style: Courier", Of<&D::FontName>, "Arial", "Times"}, // no reset of its own
    {"Number of scales: 2", Of<&D::NumberOfScales>, "2", "1"},
    {"Scale color: 255", Of<&D::ScaleColor, 1>, "255", "0"},
    {"Scale left end (units): -5.5", Of<&D::ScaleLeftEnd, 1>, "-5.5", "0"},
    {"Scale length (units): 20.5", Of<&D::ScaleLengthUnits, 1>, "20.5", "50"},
    {"Bottom to title: 21.5", Of<&D::BottomToTitle, 1>, "21.5", "30"},
    {"Bottom to scale ceiling: 31.5", Of<&D::BottomToScaleCeiling, 1>, "31.5", "35"},
    {"Scale title: Volts: DC ", Of<&D::ScaleTitle, 1>, " Volts: DC ", "Default Scale 1"},
    {"Number of ticmarks: 40", Of<&D::NrOfTicmarks, 1>, "40", "50"},
    {"Major ticmarks every how often: 4", Of<&D::MajorEveryHowMany, 1>, "4", "5"},
    {"Labels every how many ticmarks: 8", Of<&D::LabelsEveryHowMany, 1>, "8", "10"},
    {"Linearity exponent: 1.5", Of<&D::LinearityExponent, 1>, "1.5", "1"},
    {"Scale color: -65280", Of<&D::ScaleColor, 2>, "-65280", "0"},
    {"Bottom to scale title: 26.5", Of<&D::BottomToTitle, 2>, "26.5", "35"},
    {"Bottom to scale ceiling: 36.5", Of<&D::BottomToScaleCeiling, 2>, "36.5", "40"},
    {"Scale title:Ohms", Of<&D::ScaleTitle, 2>, "Ohms", "Default Scale 2"},
    {"Number of ticmarks: 2", Of<&D::SpecialNrOfTicmarks, 2>, "2", "0"},
    {"* Deflection, Label Y/N, Tic Y/N, Major Y/N, Label:"},
    {" 0\\N\\Y\\Y\\/", SpecialTic<0>, "0|N|Y|Y| ", "0|Y|Y|N|"},
    {" .25\\Y\\N\\N\\1k", SpecialTic<1>, ".25|Y|N|N|1k", "0|Y|Y|N|"},
    {"-1\\ N \\ N \\ Y \\ a b ", SpecialTic<2>, "-1|N|N|Y|a b", "0|Y|Y|N|"},
    {"Unlabelled ticmark at scale bottom Y/N: N", Of<&D::UnlabelledBottomTic, 2>, " N", "Y"},
    {"Scale exponent: 2.5", Of<&D::LinearityExponent, 2>, "2.5", "1"},
    {"Fullscale multiplier: 10.5", Of<&D::FullscaleMultiplier, 2>, "10.5", "1"},
    {"Draw graphic Y/N:Y", Of<&D::DrawGraphic>, "N", "N"},
    {"Graphic filename:new.bmp", Of<&D::GraphicFileName>, "", "old.bmp"},
    {"Left to graphic: 11.5", Of<&D::LeftToGraphic>, "11.5", "10"},
    {"Bottom to graphic: 12.5", Of<&D::BottomToGraphic>, "12.5", "1"},
    {"Graphic width: 13.5", Of<&D::GraphicWidth>, "13.5", "1"},
    {"Graphic height: 14.5", Of<&D::GraphicHeight>, "14.5", "1"},
    {"Arc width: 2.5", Of<&D::ArcWidth>, "2.5", "1"},
    {"Messages: 2", Of<&D::MessageLevel>, "2", "0"},
    {"Texts: 1", Of<&D::NumberOfTexts>, "1", "0"},
    {"Text 1:R: 10 k", Of<&D::TextString, 1>, "R: 10 k", ""},
    {"Left to text:  15.25 ", Of<&D::LeftToText, 1>, "15.25", "0"},
    {"Bottom to text: -16.25 ", Of<&D::BottomToText, 1>, "-16.25", "0"},
    {"Relative size:  1.25 ", Of<&D::TextRelativeSize, 1>, "1.25", "1"},
    {"Color: 8421504", Of<&D::TextColor, 1>, "8421504", "0"},
    {"Highlights: 1"},
    {"Starting percentage: 10.5", Of<&D::HighlightStart, 1>, "10.5", "0"},
    {"Stopping percentage: 90.5", Of<&D::HighlightStop, 1>, "90.5", "0"},
    {"Ceiling: 12.5", Of<&D::HighlightCeiling, 1>, "12.5", "10"},
    {"Length: 1.5", Of<&D::HighlightLength, 1>, "1.5", "0"},
    {"Color: 65535", Of<&D::HighlightColor, 1>, "65535", "1"},
    {"Plate background: 1", Of<&D::PlateBackground>, "16777215", "16777215"},
    {"Scale 1 - deleted tics: 2", Of<&D::DeletedTicCount, 1>, "2", "0"},
    {"Tic deleted: 3", Of<&D::StandardTicYN, 1, 3>, "N", "Y"},
    {"Tic deleted: 360", Of<&D::StandardTicYN, 1, 360>, "N", "Y"},
    {"Scale 2 - deleted tics: 1", Of<&D::DeletedTicCount, 2>, "1", "0"},
    {"Tic deleted: 4", Of<&D::StandardTicYN, 2, 4>, "N", "Y"},
    {"Scale 3 - deleted tics: 1", Of<&D::DeletedTicCount, 3>, "1", "0"},
    {"Tic deleted: 5", Of<&D::StandardTicYN, 3, 5>, "N", "Y"},
    {"Scale 4 - deleted tics: 1", Of<&D::DeletedTicCount, 4>, "1", "0"},
    {"Tic deleted: 0", Of<&D::StandardTicYN, 4, 0>, "N", "Y"},
    {"Scale 1 - deleted labels: 1", Of<&D::DeletedLabelCount, 1>, "1", "0"},
    {"Label deleted: 6", Of<&D::StandardLabelYN, 1, 6>, "N", "Y"},
    {"Scale 2 - deleted labels: 1", Of<&D::DeletedLabelCount, 2>, "1", "0"},
    {"Label deleted: 7", Of<&D::StandardLabelYN, 2, 7>, "N", "Y"},
    {"Scale 3 - deleted labels: 1", Of<&D::DeletedLabelCount, 3>, "1", "0"},
    {"Label deleted: 8", Of<&D::StandardLabelYN, 3, 8>, "N", "Y"},
    {"Scale 4 - deleted labels: 1", Of<&D::DeletedLabelCount, 4>, "1", "0"},
    {"Label deleted: 9", Of<&D::StandardLabelYN, 4, 9>, "N", "Y"},
    {"Relative font sizes:"},
    {"Scale 1: .8", Of<&D::RelativeFontSize, 1>, ".8", "1"},
    {"Scale 2: 1.2", Of<&D::RelativeFontSize, 2>, "1.2", "1"},
    {"Aspect ratio: .9", Of<&D::AspectRatio>, ".9", ".75"},
    {"Number of correction points: 5", Of<&D::NumberOfCorrectionPoints>, "7", "7"},
    {"Pair #1: 0 \\ 0"},
    {"Pair #2: .1 \\ .2"},
    {"Pair #3: .3 \\ .4"},
    {"Pair #4: .5 \\ .5"},
    {"Pair #5: .6 \\ .7"},
    {"Pair #6: .8 \\ .9"},
    {"Pair #7: 1 \\ 1"},
    {"Print ticmarks and arcs:"},
    {"Scale 1: 1"},
    {"Scale 2: 2"},
    {""},
};

class EarlyEndTest : public EngineTest {
protected:
    void ReadLines(std::size_t count, const std::string& lineEnd) {
        std::string text;
        for (std::size_t line = 0; line < count; ++line) {
            text += kSample[line].line + lineEnd;
        }
        ReadText(text);
    }

    void ReadText(const std::string& text) {
        Design = DesignRecord{};
        Design.DesignFileName = "mine";
        Design.FontName = "Times";
        Design.GraphicFileName = "old.bmp";
        Design.DrawHighlights = "?";
        ReadDesign(Design, WriteFile("plate.vrn", text));
        EXPECT_TRUE(said.empty());
    }

    static void ExpectFields(std::size_t read) {
        for (std::size_t line = 0; line < std::size(kSample); ++line) {
            const SampleLine& sample = kSample[line];
            if (sample.field) {
                EXPECT_EQ(sample.field(), line < read ? sample.read : sample.otherwise)
                    << sample.line;
            }
        }
    }

    // The number of lines up to and with that one.
    static std::size_t Through(const std::string& start) {
        std::size_t line = 0;
        while (!std::string(kSample[line].line).starts_with(start)) {
            ++line;
        }
        return line + 1;
    }
};

TEST_F(EarlyEndTest, BehindEveryLine) {
    for (std::size_t count = 0; count <= std::size(kSample); ++count) {
        SCOPED_TRACE(count == 0 ? "empty file" : kSample[count - 1].line);
        ReadLines(count, "\r\n");
        ExpectFields(count);
    }
}

TEST_F(EarlyEndTest, WithinALine) {
    std::string text;
    for (const SampleLine& sample : kSample) {
        SCOPED_TRACE(sample.line);
        const std::string line = sample.line;
        const bool mustBeANumber = line == "Color: 8421504"; // the colour of a text, alone of all
        if (!mustBeANumber) {
            ReadText(text + line.substr(0, line.size() / 2));
        }
        text += line + "\r\n";
    }
}

TEST_F(EarlyEndTest, LinesMayEndWithLineFeedsAlone) {
    ReadLines(std::size(kSample), "\n");
    ExpectFields(std::size(kSample));
}

TEST_F(EarlyEndTest, EmptyLinesAndCommentsMayStandAnywhere) {
    std::string text;
    for (const SampleLine& sample : kSample) {
        text += "\r\n* a remark: 5\r\n\r\n*\r\n";
        text += std::string(sample.line) + "\r\n";
    }
    ReadText(text);
    ExpectFields(std::size(kSample));
}

TEST_F(EarlyEndTest, LabelsAreNotLookedAt) {
    std::string text;
    for (const SampleLine& sample : kSample) {
        const std::string line = sample.line;
        const std::size_t colon = line.find(':');
        text += colon == line.npos || line[0] == '*' ? line : "other" + line.substr(colon);
        text += "\r\n";
    }
    ReadText(text);
    ExpectFields(std::size(kSample));
}

TEST_F(EarlyEndTest, AmongTheHighlightsTheyAreStillOn) {
    const std::size_t count = Through("Highlights: ");
    for (std::size_t lines = 0; lines <= count + 5; ++lines) {
        SCOPED_TRACE(lines);
        ReadLines(lines, "\r\n");
        const bool among = lines >= count && lines < count + 5;
        EXPECT_EQ(Design.NumberOfHighlights, among ? 1 : 0);
        EXPECT_EQ(Design.DrawHighlights, among ? "Y" : lines < count ? "?" : "N");
    }
}

TEST_F(EarlyEndTest, AmongThePointsOfTheCurveThoseReadStay) {
    const float xs[] = {0, 0.1F, 0.3F, 0.5F, 0.6F, 0.8F};
    const float ys[] = {0, 0.2F, 0.4F, 0.5F, 0.7F, 0.9F};
    const float line[] = {0, 0.15F, 0.3F, 0.5F, 0.7F, 0.85F, 1};
    for (int points = 0; points <= 6; ++points) {
        SCOPED_TRACE(points);
        ReadLines(Through("Number of correction") + static_cast<std::size_t>(points), "\r\n");
        for (int point = 1; point <= 7; ++point) {
            const int i = point - 1;
            EXPECT_EQ(Design.CorrectionPair[2 * point - 1], point <= points ? xs[i] : line[i]);
            EXPECT_EQ(Design.CorrectionPair[2 * point], point <= points ? ys[i] : line[i]);
        }
        EXPECT_EQ(Design.CorrectionSlope[1], 1);
    }
}

TEST_F(EarlyEndTest, AmongTheLastLinesTheirTextsStay) {
    const std::size_t heading = Through("Print ticmarks");
    ReadLines(heading, "\r\n");
    EXPECT_EQ(Design.PrintTicsAndArcs[1], DynamicValue(std::int16_t{0}));
    ReadLines(heading + 1, "\r\n");
    EXPECT_EQ(Design.PrintTicsAndArcs[1], DynamicValue(std::string(" 1")));
    ReadLines(heading + 2, "\r\n");
    for (int scale = 1; scale <= 10; ++scale) {
        EXPECT_EQ(Design.PrintTicsAndArcs[scale], DynamicValue(std::int16_t{0}));
    }
}

} // namespace
} // namespace vernacle::test
