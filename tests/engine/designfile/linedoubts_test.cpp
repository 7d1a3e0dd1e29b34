// What the reader of a design reports beside reading it.
#include "engine/designfile/linedoubts.h"

#include "designfile.h"
#include "engine/base/hostservices.h"
#include "engine/designfile/readwrite.h"

namespace vernacle::test {
namespace {

class LineDoubtsTest : public DesignFileTest {
protected:
    using Reports = Texts;

    // "line: reason" of each doubt; failures begin with "failed at ".
    static Reports ReportsOn(const std::string& text) {
        Reports reports;
        Host.readFile = [&text](const std::string&) { return text; };
        ReadDesign(Design, "design",
                   {.doubt =
                        [&](int line, const std::string& reason) {
                            reports.push_back(std::to_string(line) + ": " + reason);
                        },
                    .failure =
                        [&](int line, const std::string& reason) {
                            reports.push_back("failed at " + std::to_string(line) + ": " + reason);
                        }});
        return reports;
    }

    static void FillEveryBlock() {
        Design.NumberOfScales = 3;
        Design.ScaleColor[2] = -255;
        Design.SpecialNrOfTicmarks[2] = 7;
        for (int tic = 0; tic <= 7; ++tic) {
            Design.TicDeflection[2][tic] = static_cast<float>(tic) / 7;
            Design.TicLabelText[2][tic] = tic % 2 == 0 ? "" : "label";
            Design.TicPrintYN[2][tic] = Design.TicLabelYN[2][tic] = Design.TicMajorYN[2][tic] = "Y";
        }
        Design.NumberOfTexts = 2;
        Design.TextString[1] = "made by: hand";
        Design.TextString[2] = "no digit here";
        Design.LeftToText[2] = 3.333333F / 1000;
        Design.HighlightStop[1] = 20;
        Design.StandardTicYN[1][3] = Design.StandardLabelYN[3][360] = "N";
        Design.ScaleTitle[1] = "1234567890123";
        Design.RelativeFontSize[3] = 1.5F;
    }
};

TEST_F(LineDoubtsTest, WhatTheProgramWritesGivesNone) {
    EXPECT_EQ(ReportsOn(Written()), Reports{});
    FillEveryBlock();
    EXPECT_EQ(ReportsOn(Written()), Reports{});
    EXPECT_EQ(ReportsOn(DesignFile().Text()), Reports{});
    EXPECT_EQ(ReportsOn(DesignFile().Text("\n")), Reports{});
}

TEST_F(LineDoubtsTest, AFileCutAnywhereGivesNone) {
    FillEveryBlock();
    const std::string text = Written();
    for (std::size_t length = 0; length <= text.size(); length += 3) {
        Reports reports = ReportsOn(text.substr(0, length));
        // The reader itself takes the colour of a text only whole.
        std::erase_if(reports, [](const auto& report) { return report.starts_with("failed"); });
        ASSERT_EQ(reports, Reports{}) << text.substr(0, length);
    }
}

// The writer's exponent form is longer than what the reader takes.
TEST_F(LineDoubtsTest, ANumberThatTheReaderWillNotTakeIsSaid) {
    Design.PlateWidth = 1234567936;
    Design.ScaleLeftEnd[1] = 0.01234567F;
    EXPECT_EQ(ReportsOn(Written()),
              (Reports{"3: Plate width: more than ten characters are ignored",
                       "27: Scale left end (units): more than ten characters are ignored"}));
    EXPECT_EQ(Design.PlateWidth, 75);
}

TEST_F(LineDoubtsTest, TheWayOfReadingDecides) {
    const std::pair<DesignFile, Reports> rows[] = {
        {DesignFile().Set("Plate width: ", "ten"), {"3: Plate width: no number"}},
        {DesignFile().Set("Plate width: ", "E5"), {}}, // is read as 5
        {DesignFile().Set("Plate width: ", "123456789"), {}},
        {DesignFile().Set("Plate width: ", "1234567890"),
         {"3: Plate width: more than ten characters are ignored"}},
        {DesignFile().Set("Texts: ", "-0000000000000"), {}}, // read in full
        {DesignFile().Set("Dummy1: ", "none"), {}},          // given up unread
        {DesignFile().Set("Draw arcs Y/N:", ""), {}},
        {DesignFile().Set("Scale title:", "Volts: DC"), {}},
        {DesignFile().Set("Number of correction points: ", "\\ \\"),
         {"58: Number of correction points: no number"}},
        {DesignFile().Set("Pair #3: ", "0.5"), {"61: Pair #3: no number"}},
        {DesignFile().Set("Pair #3: ", "0.5 \\ y"), {"61: Pair #3: no number"}},
        {DesignFile().Set("Scale 1: ", "x"), {"56: Scale 1: no number"}},
        {DesignFile().Set("Scale 1: ", "x", 2), {"67: Scale 1: no number"}},
        {DesignFile().Set("Plate height: ", "x").AddBefore("Plate height: ", {"", "* note"}),
         {"6: Plate height: no number"}},
    };
    for (const auto& [file, reports] : rows) {
        EXPECT_EQ(ReportsOn(file.Text()), reports) << file.Text();
    }
}

TEST_F(LineDoubtsTest, ATicLineHasFiveFields) {
    const auto reportsOn = [](const std::string& tic) {
        return ReportsOn(
            DesignFile().Replace("Scale color: ", "Draw graphic", SpecialScaleBlock({tic})).Text());
    };
    EXPECT_EQ(reportsOn(" .5\\Y\\Y\\N\\/"), Reports{});
    EXPECT_EQ(reportsOn("\\\\ .5\\Y\\\\Y\\N\\a\\b\\"), Reports{});
    for (const char* tic : {" .5\\Y\\Y\\N", " .5", " .5\\Y\\Y\\N\\", "x", " .5\\Y\\Y\\N\\a:b"}) {
        const Reports reports = reportsOn(tic);
        ASSERT_EQ(reports.size(), 1U) << tic;
        EXPECT_TRUE(reports[0].ends_with(": a tic line with fewer than five fields")) << reports[0];
    }
    const Reports reports = reportsOn("half\\Y\\Y\\N\\a");
    ASSERT_EQ(reports.size(), 1U);
    EXPECT_TRUE(reports[0].ends_with(": no number")) << reports[0];
}

TEST_F(LineDoubtsTest, AHeadThatLooksLikeNoneIsSaidOnce) {
    const std::string reason = "1: no line of the head looks like one of a design";
    for (const std::string& text :
         {std::string("a letter\n"), std::string("garbage"), std::string(5000, '\xFF'),
          std::string("\"Vernacle calibration file\"\r\n\r\n#now#\r\n")}) {
        EXPECT_EQ(ReportsOn(text), Reports{reason}) << text;
    }
    std::string numbers;
    for (int line = 0; line < 26; ++line) {
        numbers += "0\n";
    }
    EXPECT_EQ(ReportsOn(numbers), Reports{reason});
    EXPECT_EQ(ReportsOn("Plate height: 5\n" + numbers), Reports{}); // at any place
    for (const char* text : {"", "\n\n", "* a note\n", "Filename: x", "Plate wi"}) {
        EXPECT_EQ(ReportsOn(text), Reports{}) << text;
    }
}

TEST_F(LineDoubtsTest, AFailureIsSaidWithItsLine) {
    DesignFile file;
    file.Set("Scale 1 - deleted tics: ", "1").AddBehind("Scale 1 - deleted tics: ", {"Tic: 361"});
    EXPECT_EQ(ReportsOn(file.Text()), Reports{"failed at 48: Subscript out of range"});
    EXPECT_EQ(Design.PlateWidth, 75);
}

TEST_F(LineDoubtsTest, WhatIsReadIsTheSameWithAndWithoutAnEar) {
    FillEveryBlock();
    const std::string text = DesignFile().Set("Plate height: ", "1.234567E-02").Text();
    for (const std::string& file : {Written(), text}) {
        const std::string path = WriteFile("design.vrn", file);
        ReportsOn(file);
        const std::string heard = Written();
        const std::int16_t index = Design.SharedIndex2;
        Host.readFile = ReadWholeFile;
        ReadDesign(Design, path);
        EXPECT_EQ(index, Design.SharedIndex2);
        EXPECT_EQ(Written(), heard);
    }
}

} // namespace
} // namespace vernacle::test
