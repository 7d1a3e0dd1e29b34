#include "engine/setups/decibel.h"

#include "engine/setups/setuptables.h"

namespace vernacle::test {
namespace {

class DecibelTest : public NewDesignTest {
protected:
    // As the page shows them for a new scale.
    DecibelTest() {
        entries.ticmarks = 11;
        entries.exponent = 1;
        entries.multiplier = 1;
        for (DecibelTic& tic : entries.tics) {
            tic.printed = Answer::Yes;
        }
        entries.tics[0].major = Answer::Yes;
    }

    Texts Labels() const {
        Texts labels;
        for (int tic = 0; tic < Design.SpecialNrOfTicmarks[1]; ++tic) {
            labels.push_back(Design.TicLabelText[1][tic]);
        }
        return labels;
    }

    DecibelEntries entries;
};

TEST_F(DecibelTest, ANewScaleGoesDownFromZero) {
    ComputeDecibelTics(Design, 1, entries);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 11);
    EXPECT_EQ(Labels(), (Texts{"0", "-1", "-2", "-3", "-4", "-5", "-6", "-7", "-8", "-9", "-10"}));
    EXPECT_EQ(DeflectionsOf(1, 11),
              (std::vector<float>{1, 0.891250908F, 0.794328213F, 0.707945764F, 0.630957365F,
                                  0.562341332F, 0.501187205F, 0.446683586F, 0.398107171F,
                                  0.354813397F, 0.316227764F, 0}));
    EXPECT_EQ(TicInWords(1, 0), "[0] print major");
    EXPECT_EQ(TicInWords(1, 10), "[-10] print");
    EXPECT_EQ(Design.TicPrintYN[1][11], "Y") << "the bottom tic";
    EXPECT_EQ(Design.TicLabelYN[1][11], "N");
    EXPECT_EQ(Design.UnlabelledBottomTic[1], "Y");
    EXPECT_EQ(Design.TicPrintYN[1][12], "N");
}

struct CurveRow {
    float ticmarks;
    float exponent;
    float multiplier;
    std::vector<float> deflections;
};

TEST_F(DecibelTest, DeflectionsAreRoundedStepByStep) {
    const CurveRow rows[] = {
        {5, 2, 1.1F, {1.10000002F, 0.873760998F, 0.694053054F, 0.55130595F, 0.437917918F}},
        {4, 0.5F, 0.7F, {0.699999988F, 0.660842597F, 0.623875618F, 0.588976562F}},
        {4, -1, 1, {1, 1.12201846F, 1.25892544F, 1.41253757F}}, // above the multiplier
        {3, 0, 0.9F, {0.9F, 0.9F, 0.9F}},                       // all at it
    };
    entries.unlabelledBottomTic = Answer::No;
    for (const CurveRow& row : rows) {
        SCOPED_TRACE(row.exponent);
        entries.ticmarks = row.ticmarks;
        entries.exponent = row.exponent;
        entries.multiplier = row.multiplier;
        ComputeDecibelTics(Design, 1, entries);
        EXPECT_EQ(DeflectionsOf(1, Design.SpecialNrOfTicmarks[1] - 1), row.deflections);
        EXPECT_EQ(Design.LinearityExponent[1], row.exponent);
        EXPECT_EQ(Design.FullscaleMultiplier[1], row.multiplier);
    }
}

TEST_F(DecibelTest, LabelsDoNotMoveTheTics) {
    ComputeDecibelTics(Design, 1, entries);
    const std::vector<float> before = DeflectionsOf(1, 11);
    entries.fullScale = 20;
    ComputeDecibelTics(Design, 1, entries);
    EXPECT_EQ(DeflectionsOf(1, 11), before);
    EXPECT_EQ(Design.TicLabelText[1][0], "+20");
}

TEST_F(DecibelTest, PositiveLabelsHaveAPlusWhereAskedFor) {
    entries.fullScale = 3;
    entries.ticmarks = 5;
    ComputeDecibelTics(Design, 1, entries);
    EXPECT_EQ(Labels(), (Texts{"+3", "+2", "+1", "0", "-1"}));
    entries.plusSigns = Answer::No;
    ComputeDecibelTics(Design, 1, entries);
    EXPECT_EQ(Labels(), (Texts{"3", "2", "1", "0", "-1"}));
}

using Held = std::pair<float, float>; // what was entered, and what it is held to

TEST_F(DecibelTest, NumbersAreHeldToTheirLimits) {
    constexpr Held kFullScales[] = {{-201, -200}, {-200, -200},  {-0.5F, -1}, {3.7F, 3},
                                    {200, 200},   {200.5F, 200}, {1e9F, 200}};
    for (const auto& [entered, held] : kFullScales) {
        entries.fullScale = entered;
        ComputeDecibelTics(Design, 1, entries);
        EXPECT_EQ(entries.fullScale, held) << entered;
    }
    constexpr Held kTicmarks[] = {{30, 24},  {-30, 24}, {24, 24}, {-5, 5},
                                  {2.7F, 2}, {0.9F, 0}, {0, 0}};
    for (const auto& [entered, held] : kTicmarks) {
        entries.ticmarks = entered;
        ComputeDecibelTics(Design, 1, entries);
        EXPECT_EQ(entries.ticmarks, held) << entered;
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], static_cast<std::int16_t>(held));
    }
    constexpr Held kExponents[] = {{-5, -4}, {-4, -4}, {1.5F, 1.5F}, {9, 4}};
    for (const auto& [entered, held] : kExponents) {
        entries.exponent = entered;
        ComputeDecibelTics(Design, 1, entries);
        EXPECT_EQ(Design.LinearityExponent[1], held) << entered;
    }
    constexpr Held kMultipliers[] = {{0, 0.7F}, {0.7F, 0.7F}, {1, 1}, {1.1F, 1.1F}, {2, 1.1F}};
    for (const auto& [entered, held] : kMultipliers) {
        entries.multiplier = entered;
        ComputeDecibelTics(Design, 1, entries);
        EXPECT_EQ(entries.multiplier, held) << entered;
        EXPECT_EQ(Design.FullscaleMultiplier[1], held);
    }
}

TEST_F(DecibelTest, ChoicesOfEachTicAreStored) {
    entries.ticmarks = 3;
    entries.tics[0] = {Answer::No, Answer::No, Answer::Yes};
    entries.tics[1] = {Answer::Yes, Answer::Yes, Answer::Yes};
    entries.tics[2] = {Answer::No, Answer::Yes, Answer::No};
    ComputeDecibelTics(Design, 1, entries);
    EXPECT_EQ(TicsInWords(1, 2), (Texts{"[0] label", "[-1] print label major", "[-2] major"}));
}

TEST_F(DecibelTest, BottomTicStandsBehindTheLastAndIsNotCounted) {
    SpoilTables(1);
    entries.ticmarks = 24;
    entries.tics[24].major = Answer::Yes;
    ComputeDecibelTics(Design, 1, entries);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 24);
    EXPECT_EQ(Design.TicDeflection[1][23], 0.0707945749F);
    EXPECT_EQ(Design.TicDeflection[1][24], 0);
    EXPECT_EQ(TicInWords(1, 24), "[old] print major") << "its label keeps what it held";
    entries.tics[24].major = Answer::No;
    ComputeDecibelTics(Design, 1, entries);
    EXPECT_EQ(TicInWords(1, 24), "[old] print");
}

TEST_F(DecibelTest, WithoutTheBottomTicNothingStandsThere) {
    entries.unlabelledBottomTic = Answer::No;
    ComputeDecibelTics(Design, 1, entries);
    EXPECT_EQ(Design.UnlabelledBottomTic[1], "N");
    EXPECT_EQ(Design.TicPrintYN[1][11], "N");
}

TEST_F(DecibelTest, NoTicsLeaveTheBottomTicAlone) {
    entries.ticmarks = 0;
    ComputeDecibelTics(Design, 1, entries);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 0);
    EXPECT_EQ(Design.TicDeflection[1][0], 0);
    EXPECT_EQ(Design.TicPrintYN[1][0], "Y");
}

TEST_F(DecibelTest, AllTicsAreClearedBefore) {
    SpoilTables(1);
    SpoilTables(2);
    entries.ticmarks = 2;
    ComputeDecibelTics(Design, 1, entries);
    for (const int tic : {3, 100, kLastTic}) {
        EXPECT_EQ(Design.TicDeflection[1][tic], 0);
        EXPECT_EQ(TicInWords(1, tic), "[old] major") << "labels and classes are not";
        EXPECT_EQ(Design.StandardLabel[1][tic], "");
    }
    EXPECT_EQ(Design.StandardLabel[1][0], "");
    EXPECT_EQ(TicInWords(2, 1), "[old] print label major") << "no other scale";
    EXPECT_EQ(Design.StandardLabel[2][0], "standard");
}

} // namespace
} // namespace vernacle::test
