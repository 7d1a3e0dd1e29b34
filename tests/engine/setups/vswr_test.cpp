#include "engine/setups/vswr.h"

#include "engine/setups/setup.h"
#include "engine/setups/setuptables.h"

namespace vernacle::test {
namespace {

class VswrTest : public NewDesignTest {
protected:
    void Compute(float step, float exponent = 1) {
        setup.StepSize = step;
        ComputeVSWRTics(Design, 1, exponent, setup);
    }

    // Labels of the tics that have that flag switched on.
    template <typename Flags>
    static std::string LabelsWhere(const Flags& flags) {
        std::string labels;
        for (int tic = 0; tic < Design.SpecialNrOfTicmarks[1]; ++tic) {
            if (flags[1][tic] == "Y") {
                labels += Design.TicLabelText[1][tic] + " ";
            }
        }
        return labels;
    }
    static std::string Labelled() { return LabelsWhere(Design.TicLabelYN); }
    static std::string Major() { return LabelsWhere(Design.TicMajorYN); }
    static std::string Printed() { return LabelsWhere(Design.TicPrintYN); }

    VswrSetup setup;
};

TEST_F(VswrTest, WholeSteps) {
    Compute(1);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 10);
    EXPECT_EQ(DeflectionsOf(1, 10),
              (std::vector<float>{0, 0.333333343F, 0.5F, 0.600000024F, 0.666666687F, 0.714285731F,
                                  0.75F, 0.777777791F, 0.800000012F, 0.818181813F, 1}));
    EXPECT_EQ(Labelled(), "1 2 3 4 5 10 ");
    EXPECT_EQ(Major(), "1 2 3 4 5 10 ");
    EXPECT_EQ(Printed(), "1 2 3 4 5 6 7 8 9 10 ");
    EXPECT_EQ(TicInWords(1, 6), "[7] print");
}

TEST_F(VswrTest, HalfSteps) {
    Compute(0.5F);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 19);
    const std::vector<float> expected = {0.F,          0.200000003F, 0.333333343F, 0.428571433F,
                                         0.5F,         0.555555582F, 0.600000024F, 0.636363626F,
                                         0.666666687F, 0.692307711F, 0.714285731F, 0.733333349F,
                                         0.75F,        0.764705896F, 0.777777791F, 0.789473712F,
                                         0.800000012F, 0.809523821F, 0.818181813F, 1.F};
    EXPECT_EQ(DeflectionsOf(1, 19), expected);
    EXPECT_EQ(Labelled(), "1 2 3 4 5 10 ");
    EXPECT_EQ(Major(), "1 2 3 4 5 6 7 8 9 10 ");
    EXPECT_EQ(Printed(), "1 1.5 2 2.5 3 3.5 4 4.5 5 6 7 8 9 10 ");
    EXPECT_EQ(TicInWords(1, 1), "[1.5] print");
    EXPECT_EQ(TicInWords(1, 9), "[5.5]");
}

TEST_F(VswrTest, FifthSteps) {
    Compute(0.2F);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 46);
    EXPECT_EQ(Labelled(), "1 1.2 1.4 1.6 1.8 2 3 4 5 10 ");
    EXPECT_EQ(Major(), "1 2 3 4 5 6 7 8 9 10 ");
    EXPECT_EQ(Printed(), "1 1.2 1.4 1.6 1.8 2 2.2 2.4 2.6 2.8 3 3.2 3.4 3.6 3.8 4 4.2 4.4 4.6 4.8 "
                         "5 6 7 8 9 10 ");
    EXPECT_EQ(Design.TicLabelText[1][45], "10") << "of 9.9999952";
}

// The counter gathers its roundings.
TEST_F(VswrTest, FifthStepsDeflectAsTheCounterStands) {
    Compute(0.2F);
    const std::vector<float> expected = {
        0.F,          0.0909091085F, 0.166666701F, 0.230769277F, 0.285714328F, 0.333333373F,
        0.37500006F,  0.411764771F,  0.444444507F, 0.473684281F, 0.50000006F,  0.523809612F,
        0.545454621F, 0.565217435F,  0.583333373F, 0.600000024F, 0.615384638F, 0.629629612F,
        0.642857134F, 0.655172408F,  0.666666627F, 0.677419305F, 0.68749994F,  0.696969628F,
        0.705882311F, 0.714285672F,  0.722222149F, 0.729729652F, 0.736842036F, 0.743589699F,
        0.74999994F,  0.756097496F,  0.761904657F, 0.767441809F, 0.772727191F, 0.777777672F,
        0.782608628F, 0.787233949F,  0.791666567F, 0.795918286F, 0.799999952F, 0.803921521F,
        0.80769223F,  0.811320662F,  0.814814746F, 0.818181753F, 1.F};
    EXPECT_EQ(DeflectionsOf(1, 46), expected);
    EXPECT_GT(setup.CurrentRatio, 10);
}

TEST_F(VswrTest, ExponentBendsTheRoundedReflection) {
    Compute(1, 2);
    EXPECT_EQ(DeflectionsOf(1, 10),
              (std::vector<float>{0, 0.111111119F, 0.25F, 0.360000014F, 0.444444478F, 0.510204077F,
                                  0.5625F, 0.604938269F, 0.640000045F, 0.669421494F, 1}));
    EXPECT_EQ(Design.LinearityExponent[1], 2);
    Compute(0.2F, 2);
    EXPECT_EQ(Design.TicDeflection[1][3], 0.0532544591F);
    EXPECT_EQ(Design.TicDeflection[1][44], 0.663923085F);
    Compute(1, 0);
    EXPECT_EQ(Design.TicDeflection[1][0], 1);
    Compute(1, 7);
    EXPECT_EQ(Design.LinearityExponent[1], 4);
}

TEST_F(VswrTest, LastTicIsPrintedAndMajorAndHasNoLabel) {
    for (const auto& [step, last] : {std::pair{0.2F, 46}, {0.5F, 19}, {1.F, 10}}) {
        SpoilTables(1);
        Compute(step);
        EXPECT_EQ(Design.TicDeflection[1][last], 1);
        EXPECT_EQ(TicInWords(1, last), "[] print major");
        EXPECT_EQ(setup.LastTic, last);
        EXPECT_EQ(TicInWords(1, last + 1), "[old] print label major") << "nothing is cleared";
        EXPECT_EQ(Design.TicDeflection[1][last + 1], 7);
        EXPECT_EQ(TicInWords(1, 0), "[1] print label major");
    }
}

TEST_F(VswrTest, AnExponentOfZeroGivesFullDeflectionEverywhere) {
    Compute(0.5F, 0);
    EXPECT_EQ(DeflectionsOf(1, 19), std::vector<float>(20, 1));
}

TEST_F(VswrTest, AnotherStepEndsAtOnce) {
    Design.SpecialNrOfTicmarks[1] = 5;
    for (const float step : {0.F, 0.3F, -1.F}) {
        Compute(step);
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 5);
    }
}

TEST_F(VswrTest, NegativeExponentFailsAtTheFirstTic) {
    Compute(1);
    EXPECT_THROW(Compute(0.5F, -1), ImpossibleEntry);
    EXPECT_EQ(Design.LinearityExponent[1], -1);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 10);
    EXPECT_EQ(Labelled(), "1 2 3 4 5 10 ");
}

} // namespace
} // namespace vernacle::test
