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

struct TypedRow {
    FieldPlace place;
    const char* typed;
    const char* shown;
};

TEST_F(FieldPlaceTest, WhatIsTypedIsReadByTheTypeOfItsPlace) {
    std::int32_t wide = 0;
    for (const TypedRow& row : {TypedRow{At<&D::PlateWidth>, " 2,5k", "2500"},
                                {At<&D::PlateWidth>, "-,5", "-.5"},
                                {At<&D::PlateWidth>, "12345678901", "-.5"}, // too long
                                {At<&D::NrOfTicmarks>, "12.5", "12"},
                                {At<&D::NrOfTicmarks>, "1M", "32767"}}) {
        std::string text = row.typed;
        ParseInto(text, row.place.In(Design, 2));
        EXPECT_EQ(PlainText(row.place.In(Design, 2)), row.shown) << row.typed;
    }
    std::string text = "1M";
    ParseInto(text, &wide);
    EXPECT_EQ(PlainText(FieldPointer(&wide)), "1000000");
}

TEST_F(FieldPlaceTest, ATextIsShownAsItStandsAndTakesNoEntry) {
    Design.ScaleTitle[1] = " 12 V";
    std::string text = "5";
    EXPECT_THROW(ParseInto(text, At<&D::ScaleTitle>.In(Design, 1)), RunTimeError);
    EXPECT_EQ(PlainText(At<&D::ScaleTitle>.In(Design, 1)), " 12 V");
}

TEST_F(FieldPlaceTest, NowhereKeepsNothing) {
    const FieldPointer nowhere = Nowhere.In(Design, 1, 2);
    std::string text = "5";
    EXPECT_NO_THROW(StoreIn(nowhere, 5));
    EXPECT_NO_THROW(ParseInto(text, nowhere));
    EXPECT_EQ(NumberIn(nowhere), 0);
    EXPECT_EQ(PlainText(nowhere), "");
}

} // namespace
} // namespace vernacle::test
