#include "engine/render/overlays.h"

#include <algorithm>
#include <cmath>

#include "support/rendertest.h"

namespace vernacle::test {
namespace {

class OverlaysTest : public RenderTest {
protected:
    static PlateFrame Frame() { return FrameOf(Design, PreviewTraits()); }

    // The lines of that colour.
    Calls LinesIn(const std::string& colour) const {
        Calls lines = surface.CallsOf("Line");
        std::erase_if(lines,
                      [&](const std::string& line) { return !line.ends_with(" " + colour); });
        return lines;
    }
};

TEST_F(OverlaysTest, GridOfASmallPlate) {
    DrawGrid(surface, Frame());
    EXPECT_TRUE(SameCalls(surface.calls, R"(
        SetLineWidth 1
        Line 4720 2700 4720 5900 aaaaaa
        Line 5040 2700 5040 5900 aaaaaa
        Line 5360 2700 5360 5900 aaaaaa
        Line 5680 2700 5680 5900 aaaaaa
        Line 6000 2700 6000 5900 aaaaaa
        Line 6320 2700 6320 5900 aaaaaa
        Line 6640 2700 6640 5900 aaaaaa
        Line 6960 2700 6960 5900 aaaaaa
        Line 7280 2700 7280 5900 aaaaaa
        Line 6000 2700 6000 5900 111111
        Line 6000 3500 6000 5100 1111ff
        Line 4400 5260 7600 5260 aaaaaa
        Line 4400 4620 7600 4620 aaaaaa
        Line 4400 3980 7600 3980 aaaaaa
        Line 4400 3340 7600 3340 aaaaaa
        Line 4400 5900 7600 5900 1111ff
    )"));
}

TEST_F(OverlaysTest, CoarseGridStandsAtEachTenMillimetres) {
    Design.PlateWidth = 50; // 64 units per half millimetre, 32 across; the plate ends at 2700, 5900
    Design.PlateHeight = 25;
    DrawGrid(surface, Frame());
    EXPECT_TRUE(SameCalls(LinesIn("111111"), R"(
        Line 4720 2700 4720 5900 111111
        Line 5360 2700 5360 5900 111111
        Line 6000 2700 6000 5900 111111
        Line 6640 2700 6640 5900 111111
        Line 7280 2700 7280 5900 111111
        Line 4400 4620 7600 4620 111111
        Line 4400 3340 7600 3340 111111
    )"));
}

// A line on the plate's edge would be drawn over the border: none may stand there for any size.
TEST_F(OverlaysTest, GridStaysStrictlyInsideThePlate) {
    Design.AspectRatio = 0.83F;
    for (int size = 1; size <= 180; ++size) {
        SCOPED_TRACE(size);
        Design.PlateHeight = static_cast<float>(size);
        Design.PlateWidth = static_cast<float>(181 - size);
        surface = RecordingSurface();
        DrawGrid(surface, Frame());
        const Calls fine = LinesIn("aaaaaa");
        const int across = 181 - size; // an even width has a line fewer: its edges' own
        const int verticals = across % 2 == 0 ? across - 1 : across;
        const int horizontals = size - 1;
        EXPECT_EQ(static_cast<int>(fine.size()), verticals + horizontals);
    }
}

TEST_F(OverlaysTest, GridOfALargePlateStops200HalfMillimetresFromTheCentre) {
    Design.AspectRatio = 1;
    Design.PlateWidth = 500; // 6.4 units per half millimetre
    Design.PlateHeight = 450;
    DrawGrid(surface, Frame());
    const Calls fine = LinesIn("aaaaaa");
    EXPECT_EQ(fine.size(), 201U + 325U); // the horizontals count from the bottom edge, at 7180
    EXPECT_TRUE(SameCalls({At(fine, 0), At(fine, 200), Last(fine)}, R"(
        Line 4720 1420 4720 7180 aaaaaa
        Line 7280 1420 7280 7180 aaaaaa
        Line 2800 3020 9200 3020 aaaaaa
    )"));
    const Calls coarse = LinesIn("111111");
    EXPECT_EQ(coarse.size(), 21U + 32U);
    EXPECT_TRUE(SameCalls({At(coarse, 0), At(coarse, 20), Last(coarse)}, R"(
        Line 4720 1420 4720 7180 111111
        Line 7280 1420 7280 7180 111111
        Line 2800 3084 9200 3084 111111
    )"));
}

TEST_F(OverlaysTest, PointerShowsItsPlacesAndLength) {
    DrawingState state;
    state.LastArcPoint = {100, 200};
    state.LastTicEnd = {300, 400};
    state.PointerLength = 2.34F;
    DrawPointer(surface, Frame(), state);
    EXPECT_TRUE(SameCalls(surface.calls, R"(
        SetLineWidth 3
        Line 6000 6540 100 200 ff0000
        Line 300 400 6000 5260 ff00
        Line 6000 5260 6000 3762.4 ffff00
        SetLineWidth 1
        SetFontName [Arial]
        SetFontSize 10
        SetForeColor 0
        Dot 4400 6920 ffffff
        PrintText [Pointer length: 2.3mm]
    )"));
}

TEST_F(OverlaysTest, PointerLengthIsRoundedToATenth) {
    constexpr std::pair<float, const char*> kRows[] = {
        {0, "Pointer length: 0mm"},       {0.04F, "Pointer length: 0mm"},
        {0.06F, "Pointer length: .1mm"},  {2.36F, "Pointer length: 2.4mm"},
        {35.04F, "Pointer length: 35mm"}, {62.5F, "Pointer length: 62.5mm"},
        {0.25F, "Pointer length: .3mm"},  {123.456F, "Pointer length: 123.5mm"},
    };
    for (const auto& [length, text] : kRows) {
        DrawingState state;
        state.PointerLength = length;
        DrawPointer(surface, Frame(), state);
        EXPECT_EQ(Last(surface.texts), text) << length;
    }
}

TEST_F(OverlaysTest, PointerBeforeAnyTicComesFromTheCorner) {
    DrawPointer(surface, Frame(), DrawingState{});
    EXPECT_TRUE(SameCalls(surface.CallsOf("Line"), R"(
        Line 6000 6540 0 0 ff0000
        Line 0 0 6000 5260 ff00
        Line 6000 5260 6000 5260 ffff00
    )"));
}

Calls OutlineLines(double radiusAcross, double radiusDown, SurfacePoint centre,
                   const char* colour) {
    Calls lines;
    double x = centre.x - radiusAcross;
    double y = centre.y;
    for (int chord = 1; chord <= 100; ++chord) {
        const double a = chord / 100.0 * 6.28; // a little less than a turn
        const double nextX = centre.x - radiusAcross * std::cos(a);
        const double nextY = centre.y + radiusDown * std::sin(a);
        lines.push_back(Call("Line", x, y, nextX, nextY, colour));
        x = nextX;
        y = nextY;
    }
    return lines;
}

TEST_F(OverlaysTest, OutlineHasThePlatesWidth) {
    DrawOutline(surface, Frame(), OutlineStart::Moved, kBlueInk);
    EXPECT_TRUE(SameCalls(surface.calls, Calls{"SetCurrentX 4400", "SetCurrentY 4300"} +
                                             OutlineLines(1600, 3200, {6000, 4300}, "ff0000")));
}

TEST_F(OverlaysTest, OutlineOnPaperStaysRoundAndStartsWithADot) {
    PlateFrame frame = Frame();
    frame.aspect = 1;
    frame.plateScale = 10;
    frame.upPerHalfMm = 30; // of no account
    frame.centreX = 700;
    frame.centreY = 800;
    DrawOutline(surface, frame, OutlineStart::Dotted, kBlackInk);
    EXPECT_TRUE(
        SameCalls(surface.calls, Calls{"Dot 600 800 0"} + OutlineLines(100, 100, {700, 800}, "0")));
}

} // namespace
} // namespace vernacle::test
