#include "engine/core/repair.h"

#include "support/enginetest.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

class RepairTest : public EngineTest {};

struct RepairedRow {
    When when;
    const char* held;     // by a width of 4, 5 and 6, "r" for repaired
    const char* textHeld; // by a title that is empty, and by another
};

TEST_F(RepairTest, EachConditionRepairsWhatItSays) {
    const RepairedRow rows[] = {
        {When::Always, "rrr", "rr"},   {When::Equal, ".r.", ".."}, {When::Below, "r..", ".."},
        {When::NotAbove, "rr.", ".."}, {When::Above, "..r", ".."}, {When::From, ".rr", ".."},
        {When::Empty, "...", "r."},
    };
    for (const RepairedRow& row : rows) {
        const Repair repairs[] = {
            {At<&D::PlateWidth>, row.when, 5, 70},
            {.place = At<&D::ScaleTitle>, .when = row.when, .text = "Volts"},
        };
        std::string held;
        for (const float width : {4.0F, 5.0F, 6.0F}) {
            Design.PlateWidth = width;
            RepairFields(Design, repairs, 2);
            held += Design.PlateWidth == 70 ? 'r' : '.';
        }
        EXPECT_EQ(held, row.held);
        std::string textHeld;
        for (const char* title : {"", "Ohms"}) {
            Design.ScaleTitle[2] = title;
            RepairFields(Design, repairs, 2);
            textHeld += Design.ScaleTitle[2] == "Volts" ? 'r' : '.';
        }
        EXPECT_EQ(textHeld, row.textHeld);
    }
}

TEST_F(RepairTest, FieldsAreAddedAndRowsSeeWhatCameBefore) {
    constexpr Repair kRows[] = {
        {At<&D::PlateWidth>, When::Always, 0, 60},
        {At<&D::HoleSeparation>, When::Above, -5, -10, At<&D::PlateWidth>, At<&D::PlateWidth>},
        {At<&D::NrOfTicmarks>, When::Below, 1, 50},
    };
    for (const auto& [separation, repaired] : {std::pair(55.0F, 55.0F), {55.5F, 50.0F}}) {
        Design.HoleSeparation = separation;
        Design.NrOfTicmarks[2] = 0;
        Design.NrOfTicmarks[3] = 0;
        RepairFields(Design, kRows, 3);
        EXPECT_EQ(Design.HoleSeparation, repaired);
        EXPECT_EQ(Design.NrOfTicmarks[3], 50);
        EXPECT_EQ(Design.NrOfTicmarks[2], 0);
    }
}

} // namespace
} // namespace vernacle::test
