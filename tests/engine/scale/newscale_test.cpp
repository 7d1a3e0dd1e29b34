// Where a further scale stands.
#include "engine/scale/newscale.h"

#include "engine/core/service.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class NewScaleTest : public EngineTest {
protected:
    NewScaleTest() {
        StoreService(Program::Workshop);
        ResetDesign(Design);
        Design.FontSize = 72 / 25.4F * 2048 / 1409; // capitals a millimetre high
        Design.LabelSpacing = 5;
        Design.BottomToScaleCeiling[1] = 60;
        Design.BottomToTitle[1] = 50;
    }

    static void ExpectScale(int scale, float ceiling, float title) {
        EXPECT_NEAR(Design.BottomToScaleCeiling[scale], ceiling, 0.11) << scale;
        EXPECT_NEAR(Design.BottomToTitle[scale], title, 0.11) << scale;
    }
};

TEST_F(NewScaleTest, StandsBelowTheScaleBefore) {
    RaiseScales(Design, 4);
    EXPECT_EQ(Design.NumberOfScales, 4);
    ExpectScale(1, 60, 50);
    ExpectScale(2, 59, 47);     // its letters inward of its arc
    ExpectScale(3, 39.5, 37.5); // its letters below those of scale 2 and both titles
    ExpectScale(4, 35.5, 28);   // below the title of scale 3; its own below its letters
    Design.MajorTicLength = 8;  // longer than the letters reach
    RaiseScales(Design, 5);
    ExpectScale(5, 18.5, 16.5);
}

TEST_F(NewScaleTest, StaysOnThePlate) {
    Design.BottomToScaleCeiling[1] = 12;
    RaiseScales(Design, 6);
    for (int scale = 2; scale <= 6; ++scale) {
        EXPECT_GE(Design.BottomToScaleCeiling[scale], 2);
        EXPECT_GE(Design.BottomToTitle[scale], 2);
    }
}

TEST_F(NewScaleTest, AScaleThatSomeoneHasPlacedStaysWhereItIs) {
    Design.BottomToTitle[2] = 33;
    RaiseScales(Design, 3);
    ExpectScale(2, 40, 33);
    ExpectScale(3, 25.5, 23.5);
    Design.BottomToScaleCeiling[3] = 20;
    RaiseScales(Design, 1);
    EXPECT_EQ(Design.NumberOfScales, 1);
    RaiseScales(Design, 3);
    ExpectScale(3, 20, 23.5);
}

} // namespace
} // namespace vernacle::test
