// What the two rows of the stored state hold, and what they lift of what the everyday program
// forces.
#include "engine/core/service.h"

#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

constexpr LiftedBy kMembers[] = {
    &ServiceState::severalScales,   &ServiceState::specialScales, &ServiceState::exponent,
    &ServiceState::styles,          &ServiceState::reserveStages, &ServiceState::truePlate,
    &ServiceState::curveInFile,     &ServiceState::carefulFiles,  &ServiceState::wizard,
    &ServiceState::illustratedHelp,
};
static_assert(sizeof(ServiceState) == std::size(kMembers)); // one byte each: none is forgotten

class ServiceTest : public EngineTest {
protected:
    ServiceTest() { ResetDesign(Design); }
};

TEST_F(ServiceTest, WhoStoresNothingIsEveryday) {
    for (const LiftedBy member : kMembers) {
        EXPECT_FALSE(IsLifted(member));
    }
}

TEST_F(ServiceTest, TheWorkshopHasAllInService) {
    StoreService(Program::Workshop);
    for (const LiftedBy member : kMembers) {
        EXPECT_TRUE(IsLifted(member));
    }
    EXPECT_FALSE(IsLifted(nullptr));
}

// A design that uses what the everyday program does not offer.
void UseAll(DesignRecord& design) {
    design.NumberOfScales = 3;
    design.FontName = "Courier";
    for (int scale = 1; scale <= 3; ++scale) {
        design.LinearityExponent[scale] = 2;
        design.ScaleColor[scale] = -0xFF;
    }
}

TEST_F(ServiceTest, NormalisingForcesInTheEverydayProgram) {
    UseAll(Design);
    NormalizeDesign(Design);
    EXPECT_EQ(Design.NumberOfScales, 1);
    EXPECT_EQ(Design.FontName, "Arial");
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(Design.ScaleColor[2], -0xFF);
}

TEST_F(ServiceTest, NormalisingKeepsInTheWorkshopAndHoldsEveryScale) {
    StoreService(Program::Workshop);
    UseAll(Design);
    Design.NrOfTicmarks[3] = 0;
    Design.ScaleTitle[2].clear();
    Design.LinearityExponent[1] = 0;
    Design.LinearityExponent[2] = 4.5F;
    NormalizeDesign(Design);
    EXPECT_EQ(Design.NumberOfScales, 3);
    EXPECT_EQ(Design.FontName, "Courier");
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_EQ(Design.LinearityExponent[2], 4);
    EXPECT_EQ(Design.LinearityExponent[3], 2);
    EXPECT_EQ(Design.ScaleColor[3], -0xFF);
    EXPECT_EQ(Design.NrOfTicmarks[3], 50);
    EXPECT_EQ(Design.ScaleTitle[2], "Default 2");
}

TEST_F(ServiceTest, TheWorkshopHoldsTheNumberOfScales) {
    StoreService(Program::Workshop);
    for (const auto& [scales, held] : {std::pair{0, 1}, {1, 1}, {6, 6}, {7, 6}}) {
        Design.NumberOfScales = static_cast<std::int16_t>(scales);
        NormalizeDesign(Design);
        EXPECT_EQ(Design.NumberOfScales, held) << scales;
    }
}

TEST_F(ServiceTest, OnlyTheWorkshopResetsWhatADesignWouldInherit) {
    for (const Program program : {Program::Everyday, Program::Workshop}) {
        StoreService(program);
        Design.DrawHighlights = "Y";
        Design.FontName = "Courier";
        Design.GraphicFileName = "mark.png";
        Design.PlateOutlineCircular = 1;
        Design.LeftToBearing = 4;
        Design.DeletedTicCount[6] = 2;
        ResetDesign(Design);
        const bool stays = program == Program::Everyday;
        EXPECT_EQ(Design.DrawHighlights, stays ? "Y" : "N");
        EXPECT_EQ(Design.FontName, stays ? "Courier" : "Arial");
        EXPECT_EQ(Design.GraphicFileName, stays ? "mark.png" : "");
        EXPECT_EQ(Design.PlateOutlineCircular, stays ? 1 : 0);
        EXPECT_EQ(Design.LeftToBearing, stays ? 4 : -1);
        EXPECT_EQ(Design.DeletedTicCount[6], stays ? 2 : 0);
    }
}

} // namespace
} // namespace vernacle::test
