#include "engine/correction/curvetable.h"

#include "engine/core/design.h"
#include "engine/correction/curve.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class CurveTableTest : public NewDesignTest {
protected:
    // As the table makes it.
    static std::string Row(int row) {
        const Slopes slopes = RefreshSlopes(Design);
        return CurveRow(Design, row, slopes);
    }
};

TEST_F(CurveTableTest, EntriesArePercentWithTwoPlaces) {
    constexpr std::pair<double, const char*> kRows[] = {
        {0, "0.0"},     {0.0009, "0.0"},     {-0.5, "0.0"},    {0.001, ".1 "},    {0.0005, "0.0"},
        {0.15, "15. "}, {0.12345, "12.35 "}, {0.5, "50. "},    {0.9991, "100.0"}, {1, "100.0"},
        {3, "100.0"},   {0.0123, "1.23 "},   {0.00456, ".46 "}};
    for (const auto& [value, text] : kRows) {
        EXPECT_EQ(FormatPercentEntry(static_cast<float>(value)), text) << value;
    }
}

TEST_F(CurveTableTest, TableValuesAreCutAtHundred) {
    constexpr std::pair<double, const char*> kRows[] = {
        {0, "0."},        {0.0009, "0."},     {-3, "0."},        {1, "1. "},       {0.25, ".25 "},
        {1.005, "1.01 "}, {33.333, "33.33 "}, {99.99, "99.99 "}, {99.995, "100."}, {250, "100."}};
    for (const auto& [value, text] : kRows) {
        EXPECT_EQ(FormatTableValue(value), text) << value;
    }
}

TEST_F(CurveTableTest, LinearRowsShowTheSameTwice) {
    EXPECT_EQ(Row(0), "0       0.        0.");
    EXPECT_EQ(Row(1), "1       2.        2. ");
    EXPECT_EQ(Row(25), "25      50.       50. ");
    EXPECT_EQ(Row(50), "50      100.      100.");
    for (int row = 0; row < kTableRows; ++row) {
        const std::string text = Row(row);
        const std::string value = FormatTableValue(2. * row);
        EXPECT_EQ(text.substr(8, value.size()), value);
        EXPECT_EQ(text.substr(18), value);
    }
}

TEST_F(CurveTableTest, RowsShowTheCurveAsItStands) {
    Design.CorrectionPair[7] = 0.5F;
    Design.CorrectionPair[8] = 0.625F;
    EXPECT_EQ(Row(25), "25      50.       62.5 ");
    EXPECT_FLOAT_EQ(Design.CorrectionSlope[3], 1.625F) << "the slopes are fresh";
}

TEST_F(CurveTableTest, SegmentsRunFromPointToPoint) {
    EXPECT_EQ(SegmentRow(Design, 1), "1         0.        15.      1. ");
    EXPECT_EQ(SegmentRow(Design, 6), "6         85.       100.     1. ");
    Design.CorrectionSlope[2] = 0;
    Design.CorrectionSlope[3] = 120;
    EXPECT_EQ(SegmentRow(Design, 2), "2         15.       30.      0.");
    EXPECT_EQ(SegmentRow(Design, 3), "3         30.       50.      100.");
}

TEST_F(CurveTableTest, FailingCurveIsReportedOnceARowAndLeftUncorrected) {
    Design.CorrectionPair[7] = Design.CorrectionPair[5];
    for (int row = 1; row <= 3; ++row) {
        EXPECT_EQ(Row(row), std::to_string(row) + "       " + FormatTableValue(2. * row) +
                                "       " + FormatTableValue(2. * row));
        EXPECT_EQ(said,
                  (Texts{"beep", "failure: An error was found in the Correction Table routine"}));
        said.clear();
    }
}

} // namespace
} // namespace vernacle::test
