#include "engine/core/fieldplace.h"

#include "engine/base/runtimeerror.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

class FieldPlaceTest : public EngineTest {};

TEST_F(FieldPlaceTest, StandsForAFieldAnEntryOrAnEntryOfAnEntry) {
    StoreIn(At<&D::PlateWidth>.In(Design, 3, 4), 61.5);
    StoreIn(At<&D::NrOfTicmarks>.In(Design, 3, 4), 2.5);
    StoreIn(At<&D::DeletedTics>.In(Design, 3, 4), 7);
    EXPECT_EQ(Design.PlateWidth, 61.5F);
    EXPECT_EQ(Design.NrOfTicmarks[3], 2);
    EXPECT_EQ(Design.DeletedTics[3][4], 7);
    EXPECT_EQ(NumberIn(At<&D::PlateWidth>.In(Design, 0)), 61.5);
    EXPECT_EQ(NumberIn(At<&D::NrOfTicmarks>.In(Design, 3)), 2);
    EXPECT_EQ(NumberIn(At<&D::DeletedTics>.In(Design, 3, 4)), 7);
}

TEST_F(FieldPlaceTest, ATextTakesNoNumberAndCountsAsItsLeadingOne) {
    Design.ScaleTitle[1] = "12 V";
    EXPECT_THROW(StoreIn(At<&D::ScaleTitle>.In(Design, 1), 1), RunTimeError);
    EXPECT_EQ(Design.ScaleTitle[1], "12 V");
    EXPECT_EQ(NumberIn(At<&D::ScaleTitle>.In(Design, 1)), 12);
}

TEST_F(FieldPlaceTest, WhatIsNotInTheDesignOrItsTypeIsRefused) {
    EXPECT_THROW(At<&D::NrOfTicmarks>.In(Design, 9), RunTimeError);
    EXPECT_THROW(At<&D::DeletedTics>.In(Design, 1, 361), RunTimeError);
    EXPECT_THROW(StoreIn(At<&D::PlateStyle>.In(Design, 0), 40000), RunTimeError);
}

TEST_F(FieldPlaceTest, NowhereKeepsNothing) {
    const FieldPointer nowhere = Nowhere.In(Design, 1, 2);
    EXPECT_NO_THROW(StoreIn(nowhere, 5));
    EXPECT_EQ(NumberIn(nowhere), 0);
}

} // namespace
} // namespace vernacle::test
