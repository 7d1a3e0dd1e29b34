// The steps of undo and redo, and the states that they walk over.
#include "engine/designfile/history.h"

#include "engine/base/hostservices.h"
#include "engine/core/service.h"
#include "support/enginetest.h"
#include "support/samerecord.h"

namespace vernacle::test {
namespace {

class HistoryTest : public EngineTest {
protected:
    HistoryTest() {
        StoreService(Program::Workshop);
        ResetDesign(Design);
        history.Start("a", true);
    }

    // The states from here to the first one.
    std::string WayBack() {
        std::string way = history.Present();
        while (history.CanUndo()) {
            way += history.Undo();
        }
        return way;
    }

    History history;
};

TEST_F(HistoryTest, GoesBackAndForthByNames) {
    EXPECT_FALSE(history.CanUndo() || history.CanRedo());
    EXPECT_EQ(history.UndoneName() + history.RedoneName(), "");
    history.Record("b", "width", "");
    history.Record("c", "height", "");
    EXPECT_EQ(history.UndoneName(), "height");
    EXPECT_EQ(history.Undo(), "b");
    EXPECT_EQ(history.UndoneName(), "width");
    EXPECT_EQ(history.RedoneName(), "height");
    EXPECT_EQ(history.Undo(), "a");
    EXPECT_EQ(history.Undo(), "a") << "there is nothing before it";
    EXPECT_EQ(history.Redo(), "b");
    EXPECT_EQ(history.Redo(), "c");
    EXPECT_EQ(history.Redo(), "c");
}

TEST_F(HistoryTest, AStepForgetsWhatWasTakenBack) {
    history.Record("b", "width", "");
    history.Undo();
    history.Record("c", "height", "");
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(WayBack(), "ca");
}

TEST_F(HistoryTest, AVisitIsOneStep) {
    history.Record("b", "width", "w");
    history.Record("c", "width", "w");
    history.Record("d", "height", "h");
    history.Record("e", "width", "w");
    history.EndVisit();
    history.Record("f", "width", "w");
    history.Record("g", "button", "");
    history.Record("h", "button", "");
    EXPECT_EQ(WayBack(), "hgfedca");
}

TEST_F(HistoryTest, WhatChangesNothingIsNoStepButEndsAVisit) {
    history.Record("a", "width", "w");
    EXPECT_FALSE(history.CanUndo());
    history.Record("b", "width", "w");
    history.Record("b", "height", "h");
    history.Record("c", "width", "w");
    EXPECT_EQ(WayBack(), "cba");
}

TEST_F(HistoryTest, AVisitThatComesBackIsNoStep) {
    history.Record("b", "width", "w");
    history.Record("a", "width", "w");
    EXPECT_FALSE(history.CanUndo());
    history.Record("c", "width", "w");
    EXPECT_EQ(WayBack(), "ca");
}

TEST_F(HistoryTest, WhatAPageHoldsItselfIsNoStepAndLosesNone) {
    history.Record("b", "width", "");
    history.Undo();
    history.Absorb("A");
    EXPECT_TRUE(history.IsKept());
    EXPECT_EQ(history.Redo(), "b");
    EXPECT_FALSE(history.IsKept());
    EXPECT_EQ(history.Undo(), "A");
}

TEST_F(HistoryTest, KnowsWhetherAFileHoldsTheState) {
    EXPECT_TRUE(history.IsKept());
    history.Record("b", "width", "");
    EXPECT_FALSE(history.IsKept());
    history.Keep();
    EXPECT_TRUE(history.IsKept());
    history.Undo();
    EXPECT_FALSE(history.IsKept());
    history.Redo();
    EXPECT_TRUE(history.IsKept());
    history.Start("n", false);
    EXPECT_FALSE(history.IsKept() || history.CanUndo());
}

TEST_F(HistoryTest, KeepsAtLeastTwoHundredSteps) {
    static_assert(History::kSteps >= 200);
    for (std::size_t step = 0; step < History::kSteps + 5; ++step) {
        history.Record("state " + std::to_string(step), "width", "");
    }
    std::size_t back = 0;
    for (; history.CanUndo(); ++back) {
        history.Undo();
    }
    EXPECT_EQ(back, History::kSteps);
    EXPECT_EQ(history.Present(), "state 4");
}

TEST_F(HistoryTest, AStateIsTheDesignWithoutNameAndDate) {
    Design.DesignFileName = "one.VRN";
    const std::string state = StateOf(Design);
    Design.DesignFileName = "other.VRN";
    Host.localDateTime = [] { return std::string("another day"); };
    EXPECT_EQ(StateOf(Design), state);
    Design.LeftToBearing = 4;
    EXPECT_NE(StateOf(Design), state);
}

TEST_F(HistoryTest, AStateBringsBackTheWholeRecordButItsName) {
    Design.NumberOfScales = 3;
    Design.ScaleColor[5] = 77; // above the scales in use
    Design.PlateWidth = 75.03125F;
    Design.TextString[9] = "behind a gap";
    const DesignRecord before = Design;
    const std::string state = StateOf(Design);
    ResetDesign(Design);
    Design.DesignFileName = "mine.VRN";
    Design.ActiveScale = 5;
    RestoreState(Design, state);
    EXPECT_EQ(Design.DesignFileName, "mine.VRN");
    EXPECT_EQ(Design.ActiveScale, 3) << "the last one that there is";
    ExpectSame(Design, before, FieldRole::Kept);
}

} // namespace
} // namespace vernacle::test
