#include "engine/correction/curve.h"

#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

struct Point {
    float x;
    float y;
};

// A curve with segments of the slopes 2, 1, .5, 1.5, .25 and .75.
constexpr Point kBent[] = {{0, 0},       {0.125F, 0.25F},   {0.25F, 0.375F},
                           {0.5F, 0.5F}, {0.625F, 0.6875F}, {0.75F, 0.71875F},
                           {1, 0.90625F}};

class CurveTest : public NewDesignTest {
protected:
    static void UseBentCurve() {
        for (int point = 1; point <= 7; ++point) {
            Design.CorrectionPair[2 * point - 1] = kBent[point - 1].x;
            Design.CorrectionPair[2 * point] = kBent[point - 1].y;
        }
        ComputeCorrectionSlopes(Design);
    }
};

float Corrected(float f) {
    return CorrectDeflection(Design, f);
}

TEST_F(CurveTest, TheStraightCurveChangesNothing) {
    for (int step = 0; step <= 1000; ++step) {
        const float f = static_cast<float>(step) / 1000;
        EXPECT_FLOAT_EQ(Corrected(f), f);
    }
}

TEST_F(CurveTest, SlopesAreTheQuotientsOfTheDifferences) {
    UseBentCurve();
    constexpr float kSlopes[] = {2, 1, 0.5F, 1.5F, 0.25F, 0.75F};
    for (int segment = 1; segment <= 6; ++segment) {
        EXPECT_EQ(Design.CorrectionSlope[segment], kSlopes[segment - 1]) << segment;
    }
}

TEST_F(CurveTest, SlopesAreRoundedOnce) {
    Design.CorrectionPair[3] = 0.29F;
    Design.CorrectionPair[4] = 0.1F;
    ComputeCorrectionSlopes(Design);
    EXPECT_EQ(Design.CorrectionSlope[1], static_cast<float>(double{0.1F} / double{0.29F}));
}

TEST_F(CurveTest, EachSegmentHasItsOwnLine) {
    UseBentCurve();
    constexpr std::pair<float, float> kRows[] = {
        {0, 0},
        {0.0625F, 0.125F},
        {0.125F, 0.25F}, // a point belongs to the segment above it
        {0.1875F, 0.3125F},
        {0.25F, 0.375F},
        {0.375F, 0.4375F},
        {0.5F, 0.5F},
        {0.5625F, 0.59375F},
        {0.625F, 0.6875F},
        {0.6875F, 0.703125F},
        {0.75F, 0.71875F},
        {0.875F, 0.8125F},
        {1, 1}, // whatever the last point's Y says
    };
    for (const auto& [f, corrected] : kRows) {
        EXPECT_EQ(Corrected(f), corrected) << f;
    }
}

TEST_F(CurveTest, APointIsJudgedByTheSegmentAboveIt) {
    UseBentCurve();
    for (int point = 2; point <= 6; ++point) {
        Design.CorrectionSlope.fill(100);
        Design.CorrectionSlope[point] = 0;
        EXPECT_EQ(Corrected(kBent[point - 1].x), kBent[point - 1].y) << point;
    }
}

TEST_F(CurveTest, APointReachesItsOwnY) {
    Design.CorrectionPair[4] = 0.3F;
    ComputeCorrectionSlopes(Design);
    EXPECT_EQ(Corrected(0.15F), 0.3F);
}

TEST_F(CurveTest, HoldsItsArgument) {
    struct Row {
        float f;
        float held;
        float corrected;
    };
    constexpr Row kRows[] = {
        {-0.1F, 0, 0}, {-1e30F, 0, 0}, {-0.0F, 0, 0}, {0, 0, 0},
        {1, 1, 1},     {1.5F, 1, 1},   {1e30F, 1, 1}, {0.25F, 0.25F, 0.25F},
    };
    for (const auto& [f, held, corrected] : kRows) {
        float argument = f;
        EXPECT_EQ(CorrectDeflection(Design, argument), corrected) << f;
        EXPECT_EQ(argument, held) << f;
    }
}

TEST_F(CurveTest, BehindAnEarlyLastPointTheResultIsOne) {
    UseBentCurve();
    Design.CorrectionPair[13] = 0.875F;
    float f = 0.9F;
    EXPECT_EQ(CorrectDeflection(Design, f), 1);
    EXPECT_EQ(f, 0.9F);
}

TEST_F(CurveTest, BelowALateLastPointItsSegmentGoesOn) {
    UseBentCurve();
    Design.CorrectionPair[13] = 2;
    Design.CorrectionSlope[6] = 0.75F;
    float f = 1.75F;
    EXPECT_EQ(CorrectDeflection(Design, f), 1.46875F);
    EXPECT_EQ(f, 1.75F);
}

TEST_F(CurveTest, StartsAtTheOriginWhateverTheFirstPointSays) {
    UseBentCurve();
    Design.CorrectionPair[1] = 0.0625F;
    Design.CorrectionPair[2] = 0.5F;
    EXPECT_EQ(Corrected(0.0625F), 0.125F);
}

TEST_F(CurveTest, UsesTheSlopesAsTheyAreStored) {
    Design.CorrectionPair[4] = 0.5F;
    EXPECT_EQ(Corrected(0.125F), 0.125F);
    ComputeCorrectionSlopes(Design);
    EXPECT_FLOAT_EQ(Corrected(0.075F), 0.25F);
}

TEST_F(CurveTest, TheNumberOfPointsDoesNotMatter) {
    UseBentCurve();
    Design.NumberOfCorrectionPoints = 2;
    EXPECT_EQ(Corrected(0.875F), 0.8125F);
}

TEST_F(CurveTest, EqualXIsADivisionByZero) {
    UseBentCurve();
    Design.CorrectionPair[7] = Design.CorrectionPair[5];
    try {
        ComputeCorrectionSlopes(Design);
        ADD_FAILURE() << "no run-time error";
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "Division by zero");
    }
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace vernacle::test
