#include "engine/setups/setup.h"

#include "engine/setups/setuptables.h"

namespace vernacle::test {
namespace {

class SetupTest : public NewDesignTest {};

TEST_F(SetupTest, MarkingMakesTheColourNegative) {
    const std::pair<std::int32_t, std::int32_t> rows[] = {
        {0, -1}, {1, -1}, {-1, -1}, {0x804020, -0x804020}, {-0x804020, -0x804020}};
    for (const auto& [before, after] : rows) {
        Design.ScaleColor[3] = before;
        MarkSpecial(Design, 3);
        EXPECT_EQ(Design.ScaleColor[3], after);
    }
    EXPECT_GE(Design.ScaleColor[2], 0) << "no other scale";
}

TEST_F(SetupTest, ExponentsAreHeldToFour) {
    const std::pair<float, float> rows[] = {{-5, -4}, {-4, -4}, {0, 0}, {2.5F, 2.5F}, {4.1F, 4}};
    for (const auto& [entered, held] : rows) {
        EXPECT_EQ(HeldExponent(entered), held);
    }
}

TEST_F(SetupTest, BendingIsAPower) {
    EXPECT_EQ(BentDeflection(0.5F, 2), 0.25F);
    EXPECT_EQ(BentDeflection(0.25F, 0.5F), 0.5F);
    EXPECT_EQ(BentDeflection(0.5F, -1), 2);
    EXPECT_EQ(BentDeflection(0, 0), 1) << "0 to the power 0";
    EXPECT_EQ(BentDeflection(0, 3), 0);
}

TEST_F(SetupTest, ZeroToANegativePowerIsImpossible) {
    try {
        BentDeflection(0, -0.5F);
        FAIL();
    } catch (const ImpossibleEntry& entry) {
        EXPECT_NE(std::string(entry.what()).find("exponent"), std::string::npos);
    }
}

TEST_F(SetupTest, ShortLabelsHaveOnePlaceAtMost) {
    constexpr std::pair<float, const char*> kRows[] = {
        {0, "0"},          {1, "1"},           {9, "9"},
        {10, "10"},        {1.2F, "1.2"},      {1.4000001F, "1.4"},
        {2.0000002F, "2"}, {9.9999952F, "10"}, {9.79999F, "9.8"},
        {2.5F, "2.5"},
    };
    for (const auto& [value, label] : kRows) {
        EXPECT_EQ(ShortLabel(value), label) << value;
    }
}

TEST_F(SetupTest, MarksOfEmptyLabelsBecomeABlank) {
    const std::pair<const char*, const char*> rows[] = {{"/", " "},     {" / ", " "}, {"//", "//"},
                                                        {"a/b", "a/b"}, {"", ""},     {" ", " "}};
    for (const auto& [before, after] : rows) {
        Design.TicLabelText[2][5] = before;
        MendEmptyLabel(Design, 2, 5);
        EXPECT_EQ(Design.TicLabelText[2][5], after);
    }
}

TEST_F(SetupTest, AnEntryIsStoredInAllItsTables) {
    StoreTic(Design, 4, 9, {.deflection = 0.5F, .label = "x", .labelled = Answer::No});
    EXPECT_EQ(Design.TicDeflection[4][9], 0.5F);
    EXPECT_EQ(TicInWords(4, 9), "[x] print major");
    EXPECT_EQ(Design.TicLabelYN[4][9], "N");
}

} // namespace
} // namespace vernacle::test
