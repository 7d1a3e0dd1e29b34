#include "engine/render/drawing.h"

#include <algorithm>

#include "engine/base/runtimeerror.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

class DrawingFailureTest : public RenderTest {
protected:
    // Three scales of three tics; the radius of scale 2 is 0.
    static void GiveThreeScales() {
        Design.NumberOfScales = 3;
        for (int scale = 1; scale <= 3; ++scale) {
            GiveTics(scale, 2);
        }
        Design.BottomToScaleCeiling[2] = -1;
    }
};

struct SilentRow {
    const char* name;
    bool special;
    bool ticsDeleted;
    std::int16_t printTicsAndArcs;
    int marker;
    int scale; // where the loop is left
};

// Scale 2 has a radius of 0: whatever first asks for its geometry ends the drawing.
TEST_F(DrawingFailureTest, RadiusOfZeroEndsTheDrawingWhereItStands) {
    const SilentRow rows[] = {
        {"at a standard tic", false, false, 0, 425, 2},
        {"at a special tic", true, false, 0, 435, 2},
        {"at the arc", false, true, 0, 483, 2},
        {"at a standard label", false, false, 1, 549, 2},
        {"at a special label", true, false, 1, 590, 2},
    };
    for (const SilentRow& row : rows) {
        SCOPED_TRACE(row.name);
        GiveThreeScales();
        Design.DrawArcs = "Y";
        Design.PrintTicsAndArcs[2] = row.printTicsAndArcs;
        Design.ScaleColor[2] = 0xFF;
        if (row.special) {
            GiveSpecialTics(2, 2);
        }
        for (int tic = 0; tic <= 2; ++tic) {
            Design.StandardTicYN[2][tic] = row.ticsDeleted ? "N" : "Y";
        }
        DrawingTraits traits = TextTraits();
        traits.preparation = Preparation::None;
        Draw(traits);
        EXPECT_EQ(Drawing.WhereMarker, row.marker);
        EXPECT_EQ(Design.CurrentScale, row.scale);
        EXPECT_TRUE(said.empty());
        EXPECT_GE(surface.Count("Line"), 4U + 8 + 8 + 3); // marks and the tics of scale 3 stay
    }
}

TEST_F(DrawingFailureTest, FailedTicLeavesThePointerAtTheLastOneDrawn) {
    GiveThreeScales();
    Drawing.PointerLength = 77;
    Draw(PreviewTraits());
    const Reference at = PreviewReference();
    const double t = at.T(1);
    EXPECT_TRUE(IsAt(Drawing.LastArcPoint, at.X(t, 4), at.Y(t, 4), 0.002));
    EXPECT_TRUE(IsAt(Drawing.LastTicEnd, at.AlongX(t, 4, 0.3), at.AlongY(t, 4, 0.3), 0.002));
    EXPECT_EQ(Drawing.PointerLength, 77);
}

TEST_F(DrawingFailureTest, PointerLengthIsTakenBeforeTheArcs) {
    Design.DrawArcs = "Y";
    Design.StandardTicYN[1][0] = "N";
    Design.BottomToScaleCeiling[1] = -1; // the arc fails
    Drawing.LastTicEnd = {6000, 5260 - 640};
    Draw(PreviewTraits());
    EXPECT_EQ(Drawing.WhereMarker, 483);
    EXPECT_NEAR(Drawing.PointerLength, 1 / 0.70710678, 1e-6);
}

TEST_F(DrawingFailureTest, LoopVariablesStandBehindTheTitlesAfterwards) {
    GiveThreeScales();
    Design.BottomToScaleCeiling[2] = 4;
    Draw(PreviewTraits());
    EXPECT_EQ(Design.CurrentScale, 4);
    Design.PrintText = "N"; // the last passes are those of tics and arcs
    Draw(PreviewTraits());
    EXPECT_EQ(Design.CurrentScale, 0);
    Design.CurrentScale = 5;
    Design.DrawArcs = "Y";
    DrawStages({ArcsStage});
    EXPECT_EQ(Design.CurrentScale, 0);
}

TEST_F(DrawingFailureTest, FailureOfTheSurfaceEndsTheDrawingSilentlyAtAnyCall) {
    Design.DrawArcs = "Y";
    Draw(PreviewTraits());
    const int count = static_cast<int>(surface.calls.size());
    const auto blue = std::find(surface.calls.begin(), surface.calls.end(), "SetForeColor ff0000");
    const int ruler = static_cast<int>(blue - surface.calls.begin()) + 1;
    const int titles = count - 6 + 1; // colour, font, two coordinates, text, end of font
    const int labels = titles - 5;
    const int font = labels - 3;
    const int arcs = font - 103;
    const int tics = arcs - 2;
    for (int call = 1; call <= count; ++call) {
        Design.ScaleColor[1] = 0xFF;
        Design.CurrentScale = 99;
        surface.failAt = call;
        Draw(PreviewTraits());
        EXPECT_EQ(static_cast<int>(surface.calls.size()), call);
        const int marker = call < ruler    ? 265
                           : call < tics   ? 316
                           : call < arcs   ? 425
                           : call < font   ? 483
                           : call < labels ? 541
                           : call < titles ? 549
                                           : 602;
        EXPECT_EQ(Drawing.WhereMarker, marker) << call << " " << Last(surface.calls);
        const bool betweenPasses = call == arcs || call == font - 1 || call == font;
        const int scale = call < tics ? 99 : betweenPasses ? 0 : 1;
        EXPECT_EQ(Design.CurrentScale, scale) << call << " " << Last(surface.calls);
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(DrawingFailureTest, PlateWithoutHeightHasNoScale) {
    Design.PlateHeight = 0;
    EXPECT_THROW(Draw(PreviewTraits()), RunTimeError);
    EXPECT_TRUE(surface.calls.empty());
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace vernacle::test
