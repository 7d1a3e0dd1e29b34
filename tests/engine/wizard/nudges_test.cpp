#include "engine/wizard/nudges.h"

#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class NudgesTest : public NewDesignTest {
protected:
    NudgesTest() {
        Design.BottomToBearing = 30;
        Design.PlateHeight = 50;
        Design.MinorTicLength = 2;
        Design.MajorTicLength = 4;
        Design.MinorTicWidth = 3;
        Design.MajorTicWidth = 6;
        Design.NrOfTicmarks[1] = 40;
    }

    static const Nudge& At(int number) { return Nudges()[static_cast<std::size_t>(number - 1)]; }
};

struct NudgeRow {
    int nudge;
    const char* text;
    NudgeResult result;
    const char* value; // what the field holds then
};

constexpr auto kAccepted = NudgeResult::Accepted;
constexpr auto kCorrected = NudgeResult::Corrected;
constexpr auto kIgnored = NudgeResult::Ignored;

TEST_F(NudgesTest, EachAcceptsItsRange) {
    const NudgeRow rows[] = {
        {1, "32", kAccepted, " 32"},   {1, "31", kCorrected, " 31"},  {1, "20", kCorrected, " 31"},
        {1, "75", kAccepted, " 75"},   {1, "76", kCorrected, " 75"},  {2, "-9", kAccepted, "-9"},
        {2, "-10", kCorrected, "-10"}, {2, "60", kAccepted, " 60"},   {2, "61", kCorrected, " 60"},
        {3, "0", kAccepted, " 0"},     {3, "-1", kIgnored, "-1"},     {3, "100", kAccepted, " 100"},
        {4, "-50", kAccepted, "-50"},  {4, "50", kAccepted, " 50"},   {4, "60", kIgnored, " 60"},
        {4, "-51", kIgnored, "-51"},   {5, "2", kAccepted, " 2"},     {5, "20", kAccepted, " 20"},
        {6, "2", kAccepted, " 2"},     {6, "1", kCorrected, " 2"},    {6, "20", kAccepted, " 20"},
        {7, "1", kAccepted, " 1"},     {7, "20", kAccepted, " 20"},   {7, "21", kCorrected, " 20"},
        {8, "3", kAccepted, " 3"},     {8, "2", kCorrected, " 3"},    {9, "3", kAccepted, " 3"},
        {9, "4", kCorrected, " 3"},    {10, "1", kCorrected, " 2"},   {10, "2", kAccepted, " 2"},
        {10, "40", kAccepted, " 40"},  {10, "41", kCorrected, " 40"}, {11, "2", kAccepted, " 2"},
        {11, "41", kCorrected, " 40"},
    };
    for (const NudgeRow& row : rows) {
        EXPECT_EQ(ApplyNudge(Design, At(row.nudge), row.text), row.result)
            << row.nudge << " " << row.text;
        EXPECT_EQ(NudgeValue(Design, At(row.nudge)), row.value) << row.nudge << " " << row.text;
    }
}

TEST_F(NudgesTest, OneTicLeavesOne) {
    Design.NrOfTicmarks[1] = 1;
    EXPECT_EQ(ApplyNudge(Design, At(10), "3"), kCorrected);
    EXPECT_EQ(Design.MajorEveryHowMany[1], 1);
}

} // namespace
} // namespace vernacle::test
