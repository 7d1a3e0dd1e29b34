#include "engine/setups/smeter.h"

#include "engine/setups/setup.h"
#include "engine/setups/setuptables.h"

namespace vernacle::test {
namespace {

class SmeterTest : public NewDesignTest {
protected:
    void Compute(int type, float exponent, int scale = 1) {
        setup.ScaleType = static_cast<std::int16_t>(type);
        ComputeSmeterTics(Design, scale, exponent, setup);
    }

    // Labels of the printed tics with their table entries.
    static std::string Printed(int scale = 1) {
        std::string printed;
        for (int tic = 0; tic <= Design.SpecialNrOfTicmarks[scale]; ++tic) {
            if (Design.TicPrintYN[scale][tic] == "Y") {
                printed += std::to_string(tic) + ":[" + Design.TicLabelText[scale][tic] + "] ";
            }
        }
        return printed;
    }

    SmeterSetup setup;
};

TEST_F(SmeterTest, UnitsAloneAreNineEvenSteps) {
    Compute(1, 1);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 9);
    EXPECT_EQ(DeflectionsOf(1, 9),
              (std::vector<float>{0, 0.111111112F, 0.222222224F, 0.333333343F, 0.444444448F,
                                  0.555555582F, 0.666666687F, 0.777777791F, 0.888888896F, 1}));
    for (int unit = 0; unit <= 9; ++unit) {
        EXPECT_EQ(TicInWords(1, unit), "[" + std::to_string(unit) + "] print label major");
    }
    EXPECT_EQ(setup.LastTic, 9);
}

struct TopRow {
    int type;
    int top;
    const char* above;
};

constexpr const char* kUnits =
    "0:[ 0] 6:[ 1] 12:[ 2] 18:[ 3] 24:[ 4] 30:[ 5] 36:[ 6] 42:[ 7] 48:[ 8] 54:[ 9] ";

TEST_F(SmeterTest, DecibelsStandAboveTheNinthUnit) {
    const TopRow rows[] = {
        {2, 94, "64:[+10] 74:[+20] 84:[+30] 94:[+40] "},
        {3, 104, "64:[+10] 74:[+20] 84:[+30] 94:[+40] 104:[+50] "},
        {4, 114, "64:[+10] 74:[+20] 84:[+30] 94:[+40] 104:[+50] 114:[+60] "},
    };
    for (const TopRow& row : rows) {
        Compute(row.type, 1);
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], row.top);
        EXPECT_EQ(Printed(), std::string(kUnits) + row.above);
        EXPECT_EQ(Design.TicDeflection[1][row.top], 1);
        EXPECT_EQ(Design.TicDeflection[1][54], static_cast<float>(54. / row.top));
        EXPECT_EQ(TicInWords(1, 54), "[ 9] print label major");
        EXPECT_EQ(TicInWords(1, 64), "[+10] print label major");
        EXPECT_EQ(TicInWords(1, 55), "[]") << "an entry for every decibel";
        EXPECT_NE(Design.TicDeflection[1][55], 0);
    }
}

struct SmeterCurveRow {
    int type;
    float exponent;
    int tic;
    float deflection;
};

TEST_F(SmeterTest, ExponentBendsTheRoundedShare) {
    const SmeterCurveRow rows[] = {
        {1, 2, 3, 0.111111119F},
        {1, 0.5F, 6, 0.816496611F},
        {2, 1, 54, 0.574468076F},
        {2, 2, 54, 0.330013573F},
        {2, 0.5F, 1, 0.10314212F},
        {4, 1, 54, 0.473684222F},
        {4, 2, 1, 7.69467515e-05F},
        {4, 0.5F, 64, 0.749268651F},
        {4, 2, 114, 1},
        {1, 0, 0, 1},
        {1, 0, 5, 1},
    };
    for (const SmeterCurveRow& row : rows) {
        Compute(row.type, row.exponent);
        EXPECT_EQ(Design.TicDeflection[1][row.tic], row.deflection) << row.type << " " << row.tic;
        EXPECT_EQ(Design.LinearityExponent[1], row.exponent);
    }
}

TEST_F(SmeterTest, ExponentIsHeld) {
    Compute(1, 9);
    EXPECT_EQ(Design.LinearityExponent[1], 4);
    EXPECT_EQ(Design.TicDeflection[1][3], BentDeflection(static_cast<float>(3. / 9), 4));
    EXPECT_THROW(Compute(1, -9), ImpossibleEntry);
    EXPECT_EQ(Design.LinearityExponent[1], -4);
}

TEST_F(SmeterTest, FourScalesAreWipedAndNoOther) {
    for (int scale = 1; scale <= 6; ++scale) {
        SpoilTables(scale);
    }
    Compute(1, 1, 2);
    for (const int scale : {1, 3, 4}) {
        for (const int tic : {0, 5, kLastTic}) {
            EXPECT_EQ(TicInWords(scale, tic), "[]");
            EXPECT_EQ(Design.TicMajorYN[scale][tic], "N");
            EXPECT_EQ(Design.TicDeflection[scale][tic], 7) << "but not their deflections";
        }
    }
    EXPECT_EQ(TicInWords(2, 10), "[]");
    EXPECT_EQ(TicInWords(2, 9), "[9] print label major");
    EXPECT_EQ(TicInWords(5, 5), "[old] print label major");
    EXPECT_EQ(Design.StandardLabel[1][5], "standard");
}

// Above the four only what is printed is written.
TEST_F(SmeterTest, OnAFifthScaleOnlyPrintedTicsAreWritten) {
    SpoilTables(5);
    Compute(2, 1, 5);
    EXPECT_EQ(TicInWords(5, 6), "[ 1] print label major");
    EXPECT_EQ(TicInWords(5, 7), "[old] print label major");
    EXPECT_EQ(Design.TicDeflection[5][7], static_cast<float>(7. / 94));
}

// Of the computation before; the first has made none, and tic 0 is its own.
TEST_F(SmeterTest, LastTicsDeflectionIsWiped) {
    Compute(4, 1);
    EXPECT_EQ(Design.TicDeflection[1][114], 1);
    Compute(1, 1);
    EXPECT_EQ(Design.TicDeflection[1][114], 0);
    EXPECT_EQ(Design.TicDeflection[1][113], static_cast<float>(113. / 114));
}

TEST_F(SmeterTest, WithoutATypeItEndsBehindTheWiping) {
    SpoilTables(1);
    Design.SpecialNrOfTicmarks[1] = 77;
    for (const int type : {0, 5, -1}) {
        Compute(type, 2);
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 77);
        EXPECT_EQ(TicInWords(1, 5), "[]");
        EXPECT_EQ(Design.LinearityExponent[1], 2);
        EXPECT_EQ(setup.LastTic, -1);
    }
}

// 0 to a negative power: what the steps before have stored stays, and the next choice is a new one.
TEST_F(SmeterTest, NegativeExponentFailsAtTheFirstTic) {
    Compute(1, 1);
    EXPECT_THROW(Compute(2, -1), ImpossibleEntry);
    EXPECT_EQ(Design.LinearityExponent[1], -1);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 9);
    EXPECT_EQ(TicInWords(1, 5), "[]");
    EXPECT_THROW(Compute(2, -1), ImpossibleEntry);
    Compute(1, 1);
    EXPECT_EQ(TicInWords(1, 5), "[5] print label major");
}

} // namespace
} // namespace vernacle::test
