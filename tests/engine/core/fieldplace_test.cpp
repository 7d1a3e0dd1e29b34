#include "engine/core/fieldplace.h"

#include "engine/base/runtimeerror.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

class SlotTest : public EngineTest {};

TEST_F(SlotTest, StandsForAFieldAnEntryOrAnEntryOfAnEntry) {
    StoreInSlot(61.5, At<&D::PlateWidth>(3, 4));
    StoreInSlot(2.5, At<&D::NrOfTicmarks>(3, 4));
    StoreInSlot(7, At<&D::DeletedTics>(3, 4));
    EXPECT_EQ(Design.PlateWidth, 61.5F);
    EXPECT_EQ(Design.NrOfTicmarks[3], 2);
    EXPECT_EQ(Design.DeletedTics[3][4], 7);
    EXPECT_EQ(NumberInSlot(At<&D::PlateWidth>(0, 0)), 61.5);
    EXPECT_EQ(NumberInSlot(At<&D::NrOfTicmarks>(3, 0)), 2);
    EXPECT_EQ(NumberInSlot(At<&D::DeletedTics>(3, 4)), 7);
}

TEST_F(SlotTest, ATextTakesNoNumberAndCountsAsItsLeadingOne) {
    Design.ScaleTitle[1] = "12 V";
    EXPECT_THROW(StoreInSlot(1, At<&D::ScaleTitle>(1, 0)), RunTimeError);
    EXPECT_EQ(Design.ScaleTitle[1], "12 V");
    EXPECT_EQ(NumberInSlot(At<&D::ScaleTitle>(1, 0)), 12);
}

TEST_F(SlotTest, WhatIsNotInTheDesignOrItsTypeIsRefused) {
    EXPECT_THROW(At<&D::NrOfTicmarks>(9, 0), RunTimeError);
    EXPECT_THROW(At<&D::DeletedTics>(1, 361), RunTimeError);
    EXPECT_THROW(StoreInSlot(40000, At<&D::PlateStyle>(0, 0)), RunTimeError);
}

TEST_F(SlotTest, NowhereKeepsNothing) {
    const Slot slot = Nowhere(1, 2);
    EXPECT_NO_THROW(StoreInSlot(5, slot));
    EXPECT_EQ(NumberInSlot(slot), 0);
}

} // namespace
} // namespace vernacle::test
