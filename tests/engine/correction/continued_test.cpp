// The curve as a true plate takes it: beyond its ends it goes on.
#include <cmath>
#include <iterator>
#include <limits>

#include "engine/core/design.h"
#include "engine/correction/curve.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class ContinuedTest : public EngineTest {
protected:
    ContinuedTest() { SetLinearCurve(Design); }

    static void SetPoint(int point, float x, float y) {
        Design.CorrectionPair[2 * point - 1] = x;
        Design.CorrectionPair[2 * point] = y;
    }
};

TEST_F(ContinuedTest, GoesOnWithTheSlopesOfItsEndSegments) {
    SetPoint(2, 0.15F, 0.1F);  // the first segment's slope is 2 / 3
    SetPoint(6, 0.85F, 0.94F); // the last one's 0.4
    struct Row {
        double f, shown;
    };
    for (const auto& [f, shown] : {Row{-0.06, -0.04},
                                   {0, 0},
                                   {0.075, 0.05},
                                   {0.15, 0.1},
                                   {0.4, 0.4},
                                   {0.925, 0.97},
                                   {1, 1},
                                   {1.1, 1.04}}) {
        EXPECT_NEAR(ContinuedDeflection(Design, f), shown, 1e-6) << f;
    }
}

TEST_F(ContinuedTest, EndsATenthOfTheSwingBeyondTheEnds) {
    EXPECT_NEAR(ContinuedDeflection(Design, -0.099), -0.099, 1e-6);
    EXPECT_EQ(ContinuedDeflection(Design, -0.2), -0.1);
    EXPECT_EQ(ContinuedDeflection(Design, 1.2), 1.1);
    EXPECT_EQ(ContinuedDeflection(Design, 1e30), 1.1);
}

TEST_F(ContinuedTest, GoesOnBehindAnEarlyLastPoint) {
    SetPoint(7, 0.9F, 0.95F); // the last slope is 2
    EXPECT_NEAR(ContinuedDeflection(Design, 0.92), 0.99, 1e-6);
}

TEST_F(ContinuedTest, StartsAtItsFirstPoint) {
    SetPoint(1, 0.05F, 0);
    EXPECT_NEAR(ContinuedDeflection(Design, 0.05), 0, 1e-6);
    EXPECT_NEAR(ContinuedDeflection(Design, 0.1), 0.075, 1e-6);
}

TEST_F(ContinuedTest, ACurveThatDoesNotRiseIsTakenForTheStraightOne) {
    struct Row {
        float x, y;
        bool rises;
    };
    // Point 4 stands between (0.3, 0.3) and (0.7, 0.7).
    for (const auto& [x, y, rises] : {Row{0.301F, 0.5F, true},
                                      {0.3005F, 0.5F, false},
                                      {0.5F, 0.301F, true},
                                      {0.5F, 0.3F, false},
                                      {0.5F, 0.699F, true},
                                      {0.5F, 0.8F, false},
                                      {0.7F, 0.5F, false},
                                      {std::nanf(""), 0.5F, false}}) {
        SetPoint(4, x, y);
        EXPECT_EQ(CurveRises(Design), rises) << x << " " << y;
        if (!rises) {
            EXPECT_EQ(ContinuedDeflection(Design, 0.4), 0.4) << x << " " << y;
        }
    }
}

TEST_F(ContinuedTest, GuardedSlopesNeverDivideByZero) {
    SetPoint(2, 0.15F, 0.3F);
    SetPoint(3, 0.15F, 0.4F);
    ComputeGuardedSlopes(Design);
    EXPECT_NEAR(Design.CorrectionSlope[1], 2, 1e-6);
    EXPECT_EQ(Design.CorrectionSlope[2], 1);
    SetPoint(2, std::numeric_limits<float>::max(), 0.3F);
    ComputeGuardedSlopes(Design);
    EXPECT_TRUE(std::isfinite(Design.CorrectionSlope[1]));
}

} // namespace
} // namespace vernacle::test
