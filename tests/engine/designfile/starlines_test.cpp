// Careful files: whatever a design holds comes back from its file, bit for bit, and every reader
// goes on taking the lines by their places.
#include "engine/designfile/starlines.h"

#include <cstdlib>

#include "engine/core/design.h"
#include "engine/core/recordfields.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "support/anydesign.h"
#include "support/enginetest.h"
#include "support/samerecord.h"

namespace vernacle::test {
namespace {

class StarLinesTest : public EngineTest {
protected:
    StarLinesTest() {
        StoreService(Program::Workshop);
        ResetDesign(Design);
    }

    static DesignRecord ReadBack(const std::string& text) {
        DesignRecord design;
        ReadDesignText(design, text);
        return design;
    }

    static std::size_t CountStarLines(const std::string& text) {
        std::size_t count = 0;
        for (std::size_t at = text.find("\r\n*"); at != text.npos;
             at = text.find("\r\n*", at + 1)) {
            count += text[at + 3] == ' ' ? 0 : 1; // headings are comments
        }
        return count;
    }
};

// VERNACLE_ROUND_TRIPS says how many; a suite tries a few.
TEST_F(StarLinesTest, WhateverADesignHoldsComesBack) {
    const char* wanted = std::getenv("VERNACLE_ROUND_TRIPS");
    const int count = wanted ? std::atoi(wanted) : 12;
    for (int seed = 0; seed < count && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        Random random(static_cast<unsigned>(seed));
        RandomiseDesign(Design, random);
        Design.DesignFileName = Path("plate.VRN");
        const auto before = std::make_unique<DesignRecord>(Design);
        ASSERT_TRUE(WriteDesign(Design));
        ExpectSame(Design, *before, FieldRole::Kept); // writing changes nothing
        ExpectSame(Design, *before, FieldRole::Session);
        RandomiseDesign(Design, random); // of which nothing may be left
        ReadDesign(Design, Path("plate.VRN"));
        ExpectSame(Design, *before, FieldRole::Kept);
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(StarLinesTest, ADesignOfShortNumbersNeedsNone) {
    EXPECT_EQ(CountStarLines(DesignText(Design)), 1U); // the mark
    EXPECT_NE(
        DesignText(Design).find("\r\n11/21/26 10:08:00\r\n*Vernacle workshop 1\r\nPlate width: "),
        std::string::npos);
}

TEST_F(StarLinesTest, WhatTheLinesCannotHoldStandsBehindThem) {
    Design.PlateWidth = 62.123456F;
    Design.LeftToBearing = 7;
    Design.PlateOutlineCircular = 1;
    Design.ScaleTitle[5] = "Not drawn: *yet*";
    Design.StandardTicYN[6][360] = "N";
    const std::string text = DesignText(Design);
    for (const char* line :
         {"\r\n*PlateWidth: 62.123455\r\n", "\r\n*LeftToBearing: 7\r\n",
          "\r\n*PlateOutlineCircular: 1\r\n", "\r\n*ScaleTitle[5]: Not drawn: *yet*\r\n",
          "\r\n*StandardTicYN[6,360]: N\r\n"}) {
        EXPECT_NE(text.find(line), std::string::npos) << line;
    }
}

TEST_F(StarLinesTest, WhatIsNoNumberOrNoLineIsNotTaken) {
    Design.TextString[1] = "two\r\n*PlateWidth: 3";
    Design.LeftToBearing = 7;
    std::string text = DesignText(Design);
    EXPECT_EQ(ReadBack(text).PlateWidth, Design.PlateWidth);
    for (const char* odd : {"inf", "-inf", "nan", "1e999", "7x"}) {
        std::string changed = text;
        changed.replace(changed.find("*LeftToBearing: 7") + 16, 1, odd);
        EXPECT_EQ(ReadBack(changed).LeftToBearing, -1) << odd;
    }
}

TEST_F(StarLinesTest, ALabelWithAColonSurvivesInBothReaders) {
    Design.ScaleColor[1] = -1;
    Design.SpecialNrOfTicmarks[1] = 1;
    Design.TicLabelText[1][0] = "0:5";
    Design.TicLabelText[1][1] = "12:30";
    const std::string text = DesignText(Design);
    EXPECT_NE(text.find("\r\nTic 1: 0\\Y\\Y\\N\\12:30\r\n"), std::string::npos) << text;
    for (const Program program : {Program::Workshop, Program::Everyday}) {
        StoreService(program);
        const DesignRecord read = ReadBack(text);
        EXPECT_EQ(read.TicLabelText[1][0], "0:5");
        EXPECT_EQ(read.TicLabelText[1][1], "12:30");
    }
}

TEST_F(StarLinesTest, TheEverydayReaderTakesTheLinesByTheirPlaces) {
    for (int seed = 0; seed < 8; ++seed) {
        SCOPED_TRACE(seed);
        Random random(static_cast<unsigned>(seed));
        RandomiseDesign(Design, random);
        for (int scale = 1; scale <= kScales; ++scale) {
            Design.SpecialExponent[scale] = Design.LinearityExponent[scale]; // share a line there
            for (int tic = 0; tic <= kLastTic; ++tic) {
                Design.TicLabelText[scale][tic] = "5"; // a colon is cut in an everyday file
            }
        }
        StoreService(Program::Workshop);
        const std::string careful = DesignText(Design);
        StoreService(Program::Everyday);
        const DesignRecord ofCareful = ReadBack(careful);
        const std::string everyday = DesignText(Design); // has no mark: its stars are comments
        EXPECT_EQ(everyday.find(kStarMark), std::string::npos);
        ExpectSame(ofCareful, ReadBack(everyday), FieldRole::Kept);
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(StarLinesTest, WithoutTheMarkStarsAreComments) {
    std::string text = DesignText(Design) + "*PlateWidth: 33\r\n";
    EXPECT_EQ(ReadBack(text).PlateWidth, 33);
    text.replace(text.find(kStarMark), 1, "**");
    EXPECT_EQ(ReadBack(text).PlateWidth, 75);
    EXPECT_EQ(ReadBack(text).ForeignLines, "");
}

TEST_F(StarLinesTest, StarsAreReadWhereTheLinesEndEarly) {
    const std::string text = DesignText(Design);
    const std::string early = text.substr(0, text.find("Font size")) + "*ArcWidth: 4.5\r\n";
    EXPECT_EQ(ReadBack(early).ArcWidth, 4.5F);
}

// Each as it stands, and again in the next file.
TEST_F(StarLinesTest, WhatNoFieldKnowsIsKept) {
    for (const char* line :
         {"*Field[1]: 3", "*PlateWidth[1]: 3", "*PlateWidth: wide", "*PlateWidth: 3 mm",
          "*PlateWidth 3", "*ScaleColor: 3", "*ScaleColor[9]: 3", "*ScaleColor[-1]: 3",
          "*ScaleColor[1: 3", "*ScaleColor[1,1]: 3", "*TicDeflection[1]: 3",
          "*TicDeflection[1,361]: 3", "*NumberOfTexts: 99999", "*DesignFileName: other.VRN",
          "*CalibrationX: 2", "*StandardLabel[1,1]: 3", "*PrintTicsAndArcs[1]: x", "*note",
          "*Vernacle workshop 2"}) {
        const std::string text = DesignText(Design) + line + "\r\n";
        const DesignRecord read = ReadBack(text);
        EXPECT_EQ(read.ForeignLines, std::string(line) + "\r\n");
        ExpectSame(read, Design, FieldRole::Kept);
        EXPECT_TRUE(DesignText(read).ends_with(std::string("\r\n") + line + "\r\n")) << line;
    }
}

TEST_F(StarLinesTest, CountsAreHeldToWhatTheTablesHold) {
    const DesignRecord read = ReadBack(DesignText(Design) + "*NumberOfScales: 99\r\n"
                                                            "*NumberOfTexts: 11\r\n"
                                                            "*NumberOfHighlights: 11\r\n"
                                                            "*NrOfTicmarks[8]: 361\r\n"
                                                            "*SpecialNrOfTicmarks[8]: 361\r\n");
    EXPECT_EQ(read.NumberOfScales, 8);
    EXPECT_EQ(read.NumberOfTexts, 10);
    EXPECT_EQ(read.NumberOfHighlights, 10);
    EXPECT_EQ(read.NrOfTicmarks[8], 360);
    EXPECT_EQ(read.SpecialNrOfTicmarks[8], 360);
    DesignText(read); // does not throw
}

TEST_F(StarLinesTest, AllTicsOfAScaleMayBeDeleted) {
    for (int tic = 0; tic <= kLastTic; ++tic) {
        Design.StandardTicYN[5][tic] = "N";
        Design.StandardLabelYN[2][tic] = "N";
    }
    const DesignRecord read = ReadBack(DesignText(Design));
    ExpectSame(read, Design, FieldRole::Kept);
}

TEST_F(StarLinesTest, AReadThatFailsLeavesTheDesignThatWasThere) {
    Design.PlateWidth = 61;
    Design.DesignFileName = Path("mine.VRN");
    std::string text = DesignText(Design);
    text.replace(text.find("Texts: 0"), 8, "Texts: 99"); // more than a design has
    ReadDesign(Design, WriteFile("bad.VRN", text));
    EXPECT_EQ(Design.PlateWidth, 61);
    ASSERT_EQ(said.size(), 2U);
    EXPECT_NE(said[1].find("The design stays as it was."), std::string::npos) << said[1];
}

// The one line of a special scale's block is its own law's; an older reader gets that one.
TEST_F(StarLinesTest, EachLawKeepsItsExponent) {
    Design.ScaleColor[1] = -5;
    Design.LinearityExponent[1] = 0.5F;
    Design.SpecialExponent[1] = 2;
    const std::string text = DesignText(Design);
    EXPECT_NE(text.find("Scale exponent: 2\r\n"), text.npos);
    EXPECT_NE(text.find("*LinearityExponent[1]: 0.5\r\n"), text.npos);
    const DesignRecord read = ReadBack(text);
    EXPECT_EQ(read.LinearityExponent[1], 0.5F);
    EXPECT_EQ(read.SpecialExponent[1], 2);
    StoreService(Program::Everyday);
    const DesignRecord everyday = ReadBack(text);
    EXPECT_EQ(everyday.LinearityExponent[1], 2);
    EXPECT_EQ(everyday.SpecialExponent[1], 1);
}

} // namespace
} // namespace vernacle::test
