// The setups where special scales are in service.
#include <cmath>
#include <memory>

#include "engine/core/service.h"
#include "engine/setups/decibel.h"
#include "engine/setups/setupkind.h"
#include "engine/setups/setuptables.h"
#include "engine/setups/smeter.h"
#include "engine/setups/special.h"
#include "engine/setups/vswr.h"

namespace vernacle::test {
namespace {

class SetupInServiceTest : public NewDesignTest {
protected:
    SetupInServiceTest() { StoreService(Program::Workshop); }

    static DecibelEntries Decibels(float fullScale, float step, float ticmarks) {
        DecibelEntries entries{.fullScale = fullScale,
                               .ticmarks = ticmarks,
                               .exponent = 1,
                               .multiplier = 1,
                               .step = step,
                               .tics = {}};
        entries.tics.fill({.printed = Answer::Yes, .labelled = Answer::Yes});
        return entries;
    }
};

struct LabelRow {
    float fullScale;
    float step;
    int tic;
    const char* label;
    double decibelsBelow;
};

TEST_F(SetupInServiceTest, DecibelsHaveAnyStep) {
    const LabelRow rows[] = {
        {3, 0.5F, 1, "+2.5", 0.5}, {3, 0.5F, 7, "-0.5", 3.5}, {3, 0.1F, 29, "+0.1", 2.9},
        {3, 0.1F, 30, "0", 3},     {0, 0.2F, 6, "-1.2", 1.2}, {6.25F, 0.25F, 1, "+6", 0.25},
        {-20, 10, 2, "-40", 20},   {3, 0.1F, 230, "-20", 23}, {0, 0.01F, 1, "-0.1", 0.1},
        {3.999F, 1, 0, "+4", 0},
    };
    for (const LabelRow& row : rows) {
        DecibelEntries entries = Decibels(row.fullScale, row.step, 240);
        ComputeDecibelTics(Design, 1, entries);
        EXPECT_EQ(Design.TicLabelText[1][row.tic], row.label);
        EXPECT_FLOAT_EQ(Design.TicDeflection[1][row.tic],
                        static_cast<float>(std::pow(10, -row.decibelsBelow / 20)));
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 240);
    }
}

TEST_F(SetupInServiceTest, EveryNthTicIsCountedFromZeroDecibels) {
    const std::tuple<float, float, int> rows[] = {{3, 1, 3},   {3, 0.5F, 6}, {0, 1, 0},
                                                  {-6, 1, -6}, {0.5F, 1, 0}, {3, 0.1F, 30}};
    for (const auto& [fullScale, step, from] : rows) {
        EXPECT_EQ(TicCountedFrom(Decibels(fullScale, step, 11)), from) << fullScale << " " << step;
    }
}

// Also one whose numbers are not what the formula gives, as a file with seven digits has them.
TEST_F(SetupInServiceTest, DecibelsAreReadBackToTheLastBit) {
    DecibelEntries entries = Decibels(3, 0.5F, 47);
    entries.exponent = 0.7F;
    entries.plusSigns = Answer::No;
    entries.unlabelledBottomTic = Answer::No;
    entries.tics[5].major = Answer::Yes;
    ComputeDecibelTics(Design, 2, entries);
    Design.TicDeflection[2][9] = 0.123456789F;
    Design.TicPrintYN[2][9] = "maybe";
    const auto before = std::make_unique<DesignRecord>(Design);
    const DecibelReading reading = ReadDecibels(Design, 2);
    DecibelEntries read = reading.entries;
    EXPECT_EQ(read.step, 0.5F);
    EXPECT_EQ(read.plusSigns, Answer::No);
    EXPECT_EQ(read.unlabelledBottomTic, Answer::No);
    ComputeDecibelTics(Design, 2, read, &reading);
    EXPECT_EQ(DeflectionsOf(2, kLastTic), [&] {
        std::vector<float> kept;
        for (int tic = 0; tic <= kLastTic; ++tic) {
            kept.push_back(before->TicDeflection[2][tic]);
        }
        return kept;
    }());
    EXPECT_EQ(Design.TicPrintYN[2][9], "maybe");

    read.tics[9].major = Answer::Yes; // another answer leaves the places
    ComputeDecibelTics(Design, 2, read, &reading);
    EXPECT_EQ(Design.TicDeflection[2][9], 0.123456789F);
    EXPECT_EQ(Design.TicMajorYN[2][9], "Y");
    EXPECT_EQ(Design.TicPrintYN[2][9], "Y");

    read.exponent = 1; // another law does not
    ComputeDecibelTics(Design, 2, read, &reading);
    EXPECT_EQ(Design.TicDeflection[2][9], static_cast<float>(std::pow(10, -4.5 / 20)));

    read = reading.entries; // and back again
    ComputeDecibelTics(Design, 2, read, &reading);
    EXPECT_EQ(Design.TicDeflection[2][9], 0.123456789F);
    EXPECT_EQ(Design.TicPrintYN[2][9], "maybe");
}

TEST_F(SetupInServiceTest, ExponentsAreAboveZeroAndAtMostFour) {
    EXPECT_EQ(HeldExponent(0.01F), 0.01F);
    EXPECT_EQ(HeldExponent(5), 4);
    for (const float refused : {0.F, -1.F}) {
        EXPECT_THROW(HeldExponent(refused), ImpossibleEntry);
        const auto before = std::make_unique<DesignRecord>(Design);
        DecibelEntries decibels = Decibels(0, 1, 11);
        decibels.exponent = refused;
        SmeterSetup smeter{.ScaleType = 1};
        VswrSetup vswr{.StepSize = 1};
        EXPECT_THROW(ComputeDecibelTics(Design, 1, decibels), ImpossibleEntry);
        EXPECT_THROW(ComputeSmeterTics(Design, 1, refused, smeter), ImpossibleEntry);
        EXPECT_THROW(ComputeVSWRTics(Design, 1, refused, vswr), ImpossibleEntry);
        EXPECT_EQ(Design.SpecialExponent[1], before->SpecialExponent[1]);
        EXPECT_EQ(Design.TicPrintYN[1][3], before->TicPrintYN[1][3]);
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], before->SpecialNrOfTicmarks[1]);
    }
}

TEST_F(SetupInServiceTest, ListsWithoutRowsAreRefused) {
    DecibelEntries none = Decibels(0, 1, 0);
    EXPECT_THROW(ComputeDecibelTics(Design, 1, none), ImpossibleEntry);
    std::array<SpecialRow, kSpecialRows> rows;
    rows[0].deflection = "0";
    rows[1].deflection = "x";
    EXPECT_NO_THROW(CheckRows(0, rows));
    EXPECT_THROW(CheckRows(1, rows), ImpossibleEntry);
}

TEST_F(SetupInServiceTest, AnSmeterEmptiesItsOwnScaleAlone) {
    for (const int scale : {1, 2, 3, 4, 5}) {
        SpoilTables(scale);
    }
    SmeterSetup setup{.ScaleType = 4};
    ComputeSmeterTics(Design, 2, 1, setup);
    for (const int scale : {1, 3, 4, 5}) {
        EXPECT_EQ(TicInWords(scale, 5), "[old] print label major") << scale;
        EXPECT_EQ(Design.TicDeflection[scale][0], 7);
    }
    EXPECT_EQ(TicInWords(2, 5), "[]");
    EXPECT_EQ(TicInWords(2, 54), "[9] print label major") << "without a blank";
    ComputeSmeterTics(Design, 5, 1, setup);
    EXPECT_EQ(TicInWords(5, 5), "[]") << "one beyond the fourth too";
}

TEST_F(SetupInServiceTest, ReadyScalesTellByWhatTheyWereMade) {
    for (int type = 1; type <= 4; ++type) {
        SmeterSetup setup{.ScaleType = static_cast<std::int16_t>(type)};
        ComputeSmeterTics(Design, 1, 1, setup);
        EXPECT_EQ(SmeterTypeOf(Design, 1), type);
    }
    for (const float step : {0.2F, 0.5F, 1.F}) {
        VswrSetup setup{.StepSize = step};
        ComputeVSWRTics(Design, 1, 1, setup);
        EXPECT_EQ(VswrStepOf(Design, 1), step);
        EXPECT_EQ(TicInWords(1, setup.LastTic), "[\u221E] print label major");
        EXPECT_EQ(Design.TicDeflection[1][setup.LastTic], 1);
    }
    Design.SpecialNrOfTicmarks[1] = 7;
    EXPECT_EQ(SmeterTypeOf(Design, 1), 0);
    EXPECT_EQ(VswrStepOf(Design, 1), 0);
}

struct LossRow {
    const char* maker;
    int color;
    int last;
    const SetupKind& kind;
    bool reads;
    const char* loss;
};

TEST_F(SetupInServiceTest, ASetupTellsWhatItWouldTake) {
    const LossRow rows[] = {
        {"", 5, 0, kDecibelKind, false, ""},
        {"", -5, 11, kDecibelKind, true, ""},
        {"dB", -5, 11, kDecibelKind, true, ""},
        {"dB", 5, 11, kDecibelKind, true, ""},
        {"dB", 5, 11, kVswrKind, false, "Scale 3 was made by the dB setup"},
        {"dB", -5, 11, kArbitraryKind, true, "Scale 3 was made by the dB setup"},
        {"S-meter", -5, 114, kArbitraryKind, true,
         "It has 115 tics, of which the arbitrary setup has room for the first 31."},
        {"", -5, 40, kOhmmeterKind, true, "Scale 3 has 41 tics"},
        {"arbitrary", -5, 30, kArbitraryKind, true, ""},
    };
    for (const LossRow& row : rows) {
        Design.ScaleSetup[3] = row.maker;
        Design.ScaleColor[3] = row.color;
        Design.SpecialNrOfTicmarks[3] = static_cast<std::int16_t>(row.last);
        EXPECT_EQ(HoldsTicsFor(Design, 3, row.kind), row.reads) << row.maker << row.kind.name;
        const std::string loss = LossBy(Design, 3, row.kind);
        EXPECT_NE(loss.find(row.loss), std::string::npos) << loss;
        EXPECT_EQ(loss.empty(), *row.loss == '\0') << loss;
    }
    RememberSetup(Design, 3, kVswrKind);
    EXPECT_EQ(Design.ScaleSetup[3], "VSWR");
    ResetDesign(Design);
    EXPECT_EQ(Design.ScaleSetup[3], "");
}

} // namespace
} // namespace vernacle::test
