#include "engine/scale/ticrows.h"

#include <tuple>

#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/scale/scale.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class TicRowsTest : public NewDesignTest {
protected:
    TicRowsTest() { Compute(); }

    static void Compute() {
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
    }

    static void UseScales(int scales, int tics) {
        Design.NumberOfScales = static_cast<std::int16_t>(scales);
        for (int scale = 1; scale <= scales; ++scale) {
            Design.NrOfTicmarks[scale] = static_cast<std::int16_t>(tics);
        }
    }

    // Tables of a special scale that differ from those of a standard one.
    static void MakeSpecial(int scale) {
        Design.ScaleColor[scale] = -1;
        Design.SpecialNrOfTicmarks[scale] = 7;
        Design.TicPrintYN[scale][3] = "P";
        Design.TicLabelYN[scale][3] = "L";
        Design.TicLabelText[scale][3] = "dB";
        Design.TicDeflection[scale][3] = 0.125F;
    }
};

TEST_F(TicRowsTest, ColumnsOfASelectionRowAreTenWide) {
    EXPECT_EQ(SelectionRow(Design, 1, 0), "Scale 1   0         Y         0         Y         ");
    EXPECT_EQ(SelectionRow(Design, 1, 7), "Scale 1   7         Y                   Y         ");
    EXPECT_EQ(SelectionRow(Design, 1, 50), "Scale 1   50        Y         50        Y         ");
    Design.StandardTicYN[1][50] = "N";
    Design.StandardLabelYN[1][50] = "N";
    Design.StandardLabel[1][50] = "  fifty ";
    EXPECT_EQ(SelectionRow(Design, 1, 50), "Scale 1   50        N         fifty     N         ");
}

TEST_F(TicRowsTest, LabelsOfTenAndMoreCharactersGetNoBlanks) {
    Design.StandardLabel[1][7] = "ninechars";
    EXPECT_EQ(SelectionRow(Design, 1, 7), "Scale 1   7         Y         ninechars Y         ");
    Design.StandardLabel[1][7] = "tencharact";
    EXPECT_EQ(SelectionRow(Design, 1, 7), "Scale 1   7         Y         tencharactY         ");
    Design.StandardLabel[1][7] = "elevencharac";
    EXPECT_EQ(SelectionRow(Design, 1, 7), "Scale 1   7         Y         elevencharacY         ");
    Design.StandardLabel[1][7] = "µA"; // characters, not bytes
    EXPECT_EQ(SelectionRow(Design, 1, 7), "Scale 1   7         Y         µA        Y         ");
}

TEST_F(TicRowsTest, InformationRowsHaveNarrowerColumns) {
    EXPECT_EQ(InformationRow(Design, 1, 0), "Scale 1   0     0    0         ");
    EXPECT_EQ(InformationRow(Design, 1, 25), "Scale 1   25         50         ")
        << "no label, 50 percent";
    EXPECT_EQ(InformationRow(Design, 1, 50), "Scale 1   50    50   100         ");
    UseScales(1, 360);
    Compute();
    Design.StandardLabel[1][359] = "longer";
    EXPECT_EQ(InformationRow(Design, 1, 359), "Scale 1   359   longer99.722         ");
}

TEST_F(TicRowsTest, InformationKnowsNoFlags) {
    const std::string before = InformationRow(Design, 1, 20);
    Design.StandardTicYN[1][20] = "N";
    Design.StandardLabelYN[1][20] = "N";
    EXPECT_EQ(InformationRow(Design, 1, 20), before);
}

TEST_F(TicRowsTest, PercentIsThatOfTheTableBeforeAnyCorrection) {
    Design.LinearityExponent[1] = 2;
    ComputeTicDeflections(Design);
    EXPECT_EQ(InformationRow(Design, 1, 25), "Scale 1   25         25         ");
    Design.CorrectionSlope.fill(0.5F);
    EXPECT_EQ(InformationRow(Design, 1, 25), "Scale 1   25         25         ");
}

TEST_F(TicRowsTest, NegativeColourReadsTheSpecialTables) {
    Design.NrOfTicmarks[1] = 20;
    Design.NrOfTicmarks[2] = 30;
    MakeSpecial(2);
    EXPECT_EQ(LastTicOf(Design, 1), 20);
    EXPECT_EQ(LastTicOf(Design, 2), 7);
    EXPECT_EQ(SelectionRow(Design, 2, 3), "Scale 2   3         P         dB        L         ");
    EXPECT_EQ(InformationRow(Design, 2, 3), "Scale 2   3     dB   12.5         ");
    Design.ScaleColor[2] = 0;
    EXPECT_EQ(LastTicOf(Design, 2), 30);
    EXPECT_EQ(SelectionRow(Design, 2, 3), "Scale 2   3         Y                   Y         ");
}

TEST_F(TicRowsTest, FlagsAreWrittenToTheScalesOwnTables) {
    TicFlagOf(Design, 2, 3) = "s";
    LabelFlagOf(Design, 2, 3) = "t";
    EXPECT_EQ(Design.StandardTicYN[2][3], "s");
    EXPECT_EQ(Design.StandardLabelYN[2][3], "t");
    MakeSpecial(2);
    TicFlagOf(Design, 2, 3) = "u";
    LabelFlagOf(Design, 2, 3) = "v";
    EXPECT_EQ(Design.TicPrintYN[2][3], "u");
    EXPECT_EQ(Design.TicLabelYN[2][3], "v");
    EXPECT_EQ(Design.StandardTicYN[2][3], "s");
}

TEST_F(TicRowsTest, ReadingBackFindsTheRow) {
    const SelectedTic tic = ReadSelectionRow(SelectionRow(Design, 1, 50));
    EXPECT_EQ(tic.scale, 1);
    EXPECT_EQ(tic.tic, 50);
    EXPECT_EQ(tic.ticFlag, "Y");
    EXPECT_EQ(tic.label, "50");
    EXPECT_EQ(tic.labelFlag, "Y");
    const SelectedTic bare = ReadSelectionRow(SelectionRow(Design, 6, 7));
    EXPECT_EQ(bare.scale, 6);
    EXPECT_EQ(bare.tic, 7);
    EXPECT_EQ(bare.label, "");
}

struct LabelRow {
    const char* label;
    const char* read;
    const char* flag; // that is read for a "Y"
};

TEST_F(TicRowsTest, PlacesAreFixedWhateverTheLabelsLength) {
    const LabelRow rows[] = {
        {"sixcha", "sixcha", "Y"},         {"seven77", "seven7", "Y"},
        {"ninechars", "ninech", "rs Y"},   {"tencharact", "tencha", "actY"},
        {"elevencharx", "eleven", "harx"}, {"twelvecharxy", "twelve", "harx"},
        {"µµµµµµµµ", "µµµµµµ", "µ  Y"},
    };
    for (const LabelRow& row : rows) {
        Design.StandardLabel[1][50] = row.label;
        const SelectedTic tic = ReadSelectionRow(SelectionRow(Design, 1, 50));
        EXPECT_EQ(tic.label, row.read);
        EXPECT_EQ(tic.labelFlag, row.flag) << row.label;
        EXPECT_EQ(tic.ticFlag, "Y");
        EXPECT_EQ(tic.tic, 50);
    }
}

TEST_F(TicRowsTest, AnEmptyRowIsTicZeroOfScaleZero) {
    const SelectedTic tic = ReadSelectionRow("");
    EXPECT_EQ(tic.scale, 0);
    EXPECT_EQ(tic.tic, 0);
    EXPECT_EQ(tic.ticFlag + tic.label + tic.labelFlag, "");
}

TEST_F(TicRowsTest, OneScaleOfFiftyTicsGivesFiftyOneRows) {
    TicRows rows;
    rows.Fill(Design, SelectionRow);
    EXPECT_EQ(rows.Count(), 51);
    EXPECT_EQ(rows[0], "");
    EXPECT_EQ(rows[1], SelectionRow(Design, 1, 0));
    EXPECT_EQ(rows[51], SelectionRow(Design, 1, 50));
}

struct BehindRow {
    std::int16_t scales;
    std::int16_t tics;
    std::int16_t scaleBehind;
    float ticBehind;
};

TEST_F(TicRowsTest, WorkingScaleAndTicStandBehindTheRows) {
    for (const BehindRow& row :
         {BehindRow{1, 50, 2, 51}, {3, 360, 4, 361}, {2, -5, 3, 0}, {0, 50, 1, 7}, {-2, 9, 1, 7}}) {
        UseScales(row.scales, row.tics);
        Design.CurrentScale = 9;
        Design.TicLoop = 7;
        StandBehindRows(Design);
        EXPECT_EQ(Design.CurrentScale, row.scaleBehind) << row.scales;
        EXPECT_EQ(Design.TicLoop, row.ticBehind) << row.scales << " of " << row.tics;
    }
    UseScales(2, 10);
    MakeSpecial(2);
    StandBehindRows(Design);
    EXPECT_EQ(Design.TicLoop, 8);
}

TEST_F(TicRowsTest, ScalesFollowEachOther) {
    UseScales(3, 10);
    MakeSpecial(2);
    TicRows rows;
    rows.Fill(Design, InformationRow);
    EXPECT_EQ(rows.Count(), 11 + 8 + 11);
    EXPECT_EQ(rows[11], InformationRow(Design, 1, 10));
    EXPECT_EQ(rows[12], InformationRow(Design, 2, 0));
    EXPECT_EQ(rows[20], InformationRow(Design, 3, 0));
}

TEST_F(TicRowsTest, RefillingForgetsTheFormerRows) {
    TicRows rows;
    rows.Fill(Design, SelectionRow);
    Design.NrOfTicmarks[1] = 5;
    rows.Fill(Design, SelectionRow);
    EXPECT_EQ(rows.Count(), 6);
    EXPECT_EQ(rows[7], "");
}

TEST_F(TicRowsTest, FourFullScalesFitAndOneTicMoreIsARunTimeError) {
    TicRows rows;
    UseScales(2, 360);
    rows.Fill(Design, SelectionRow);
    EXPECT_EQ(rows.Count(), 722);
    UseScales(4, 360);
    rows.Fill(Design, SelectionRow);
    EXPECT_EQ(rows.Count(), 1444);
    EXPECT_EQ(rows[1444], SelectionRow(Design, 4, 360));
    UseScales(5, 360);
    std::pair<int, int> asked;
    const auto row = [&asked](const DesignRecord& /*design*/, int scale, int tic) {
        asked = {scale, tic};
        return std::string("row");
    };
    EXPECT_THROW(rows.Fill(Design, row), RunTimeError);
    EXPECT_EQ(asked, (std::pair{5, 0}));
}

TEST_F(TicRowsTest, SixFullScalesFitWhereSeveralAreInService) {
    StoreService(Program::Workshop);
    UseScales(6, 360);
    Design.StandardTicYN[6][360] = "N";
    Design.StandardLabel[6][360] = "a long label, as some are";
    Design.StandardLabelYN[6][360] = "N";
    TicRows rows;
    rows.Fill(Design, SelectionRow);
    EXPECT_EQ(rows.Count(), 6 * 361);
    const auto last = TicOfRow(Design, 6 * 361);
    ASSERT_TRUE(last);
    EXPECT_EQ(std::tie(last->scale, last->tic, last->ticFlag, last->label, last->labelFlag),
              std::make_tuple(6, 360, "N", "a long label, as some are", "N"));
    EXPECT_EQ(TicOfRow(Design, 362)->scale, 2);
    EXPECT_EQ(TicOfRow(Design, 362)->tic, 0);
    EXPECT_FALSE(TicOfRow(Design, 0));
    EXPECT_FALSE(TicOfRow(Design, 6 * 361 + 1));
}

TEST_F(TicRowsTest, ATicAsAChoiceHasItsLabelAndItsPercentage) {
    UseScales(1, 3);
    Design.LabelsEveryHowMany[1] = 3;
    ComputeTicDeflections(Design);
    ComputeTicLabels(Design);
    Design.StandardLabel[1][1] = "of an earlier scale";
    std::vector<std::string> texts;
    for (const TicPercent& tic : TicPercents(Design, 1)) {
        texts.push_back(tic.text);
    }
    EXPECT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[1], "Tic 1: 33.333 %");
    EXPECT_EQ(texts[3], "Tic 3 (" + Design.StandardLabel[1][3] + "): 100 %");
    EXPECT_EQ(TicPercents(Design, 1)[1].percent, 100 * Design.StandardDeflection[1][1]);
}

} // namespace
} // namespace vernacle::test
