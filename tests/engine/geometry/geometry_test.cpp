#include "engine/geometry/geometry.h"

#include <cmath>
#include <numbers>

#include "engine/base/runtimeerror.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

constexpr double kRightAngle = std::numbers::pi / 2;

// 2 units up and 1 across per half millimetre, a plate of 60 x 40 mm around (100, 200), its left
// edge at 40 and its bottom edge at 280; bearing 10 mm up, the virtual one 5 mm lower.
PlateFrame SmallFrame() {
    return {.plateScale = 2,
            .aspect = 0.5,
            .upPerHalfMm = 2,
            .centreX = 100,
            .centreY = 200,
            .widthMm = 60,
            .heightMm = 40,
            .bearingMm = 10,
            .offsetMm = 5,
            .swingDeg = 90,
            .degreesPerRadian = DegreesInRadian()};
}

TEST(GeometryTest, PlateAndItsPointsGrowUpwardFromTheBottomEdge) {
    const PlateFrame frame = SmallFrame();
    EXPECT_EQ(frame.AcrossPerHalfMm(), 1);
    EXPECT_EQ(frame.Left(), 40);
    EXPECT_EQ(frame.Right(), 160);
    EXPECT_EQ(frame.Top(), 120);
    EXPECT_EQ(frame.Bottom(), 280);
    EXPECT_EQ(PlatePoint(frame, 30, 0).x, 100); // half the width is the centre line
    EXPECT_TRUE(IsAt(PlatePoint(frame, 12, 7), 64, 252));
    EXPECT_TRUE(IsAt(RealBearing(frame), 100, 240));
    EXPECT_TRUE(IsAt(VirtualBearing(frame), 100, 260));
}

TEST(GeometryTest, DegreesPerRadianIsA32BitFloat) {
    EXPECT_EQ(ComputeDegreesPerRadian(), 57.2957795F);
    EXPECT_EQ(double{ComputeDegreesPerRadian()}, DegreesInRadian());
}

struct AngleRow {
    const char* name;
    double swingDeg;
    bool quadrant;
    double g;
    double degrees; // from the left horizontal
};

// The quadrant's turn by 57.295 instead of D leaves 45 (1 - D / 57.295) = -0.000612 degrees.
constexpr AngleRow kAngles[] = {
    {"left end of 90 degrees", 90, false, 0, 45},
    {"middle of 90 degrees", 90, false, 0.5, 90},
    {"right end of 90 degrees", 90, false, 1, 135},
    {"a quarter of 120 degrees", 120, false, 0.25, 60},
    {"left end of a full circle", 360, false, 0, -90},
    {"quadrant, left end", 90, true, 0, -0.000612},
    {"quadrant, middle", 90, true, 0.5, 44.999388},
    {"quadrant, right end", 90, true, 1, 89.999388},
    {"quadrant of 60 degrees", 60, true, 1, 59.999184},
};

TEST(GeometryTest, PointerAngleLiesSymmetricallyAboutTheVertical) {
    for (const AngleRow& row : kAngles) {
        PlateFrame frame = SmallFrame();
        frame.swingDeg = row.swingDeg;
        frame.quadrant = row.quadrant;
        EXPECT_NEAR(PointerAngle(frame, row.g) * DegreesInRadian(), row.degrees, 2e-6) << row.name;
    }
}

TEST(GeometryTest, QuadrantKeepsItsSmallResidual) {
    PlateFrame frame = SmallFrame();
    frame.quadrant = true;
    const double residual = 45 / DegreesInRadian() - 45 / 57.295;
    EXPECT_NEAR(PointerAngle(frame, 0), residual, 1e-12);
    EXPECT_LT(PointerAngle(frame, 0), -1e-5);
}

TEST(GeometryTest, RadiusReachesFromTheVirtualBearingToTheCeiling) {
    EXPECT_EQ(ScaleRadius(SmallFrame(), 32), 27);
    EXPECT_EQ(ScaleRadius(SmallFrame(), 5), 0);
    EXPECT_EQ(ScaleRadius(SmallFrame(), -10), -15);
}

TEST(GeometryTest, WithoutOffsetTheArcIsCentredOnTheRealBearing) {
    PlateFrame frame = SmallFrame();
    frame.offsetMm = 0;
    for (const double t : {0.3, 0.7, kRightAngle, 2.0}) {
        const ArcPlace place = PlaceOnArc(frame, t, 20);
        EXPECT_EQ(place.arcAngleRad, t);
        EXPECT_EQ(place.pointerAngleRad, t);
        EXPECT_TRUE(
            IsAt(place.point, 100 - 2 * 20 * std::cos(t), 240 - 4 * 20 * std::sin(t), 1e-9));
    }
}

// The tic stands where the pointer's axis crosses the arc: on the ray from the real bearing, and as
// far from the virtual one as the arc's crown.
TEST(GeometryTest, TicsStandWhereThePointerCrossesTheArc) {
    for (const double offset : {0.0, 5.0, 12.0, -4.0}) {
        for (const double t : {0.5, 1.0, kRightAngle, 2.2}) {
            PlateFrame frame = SmallFrame();
            frame.offsetMm = offset;
            const double radius = 20 + offset;
            const SurfacePoint point = PlaceOnArc(frame, t, radius).point;
            const double left = (100 - point.x) / 2; // mm from the real bearing
            const double up = (240 - point.y) / 4;
            EXPECT_NEAR(up * std::cos(t), left * std::sin(t), 1e-9) << offset << " " << t;
            EXPECT_GT(up * std::sin(t) + left * std::cos(t), 0) << offset << " " << t;
            EXPECT_NEAR(std::hypot(left, up + offset), radius, 1e-9) << offset << " " << t;
        }
    }
}

TEST(GeometryTest, WithAnOffsetTheTicsLeanAgainstTheRadii) {
    const ArcPlace left = PlaceOnArc(SmallFrame(), 1, 20);
    const ArcPlace right = PlaceOnArc(SmallFrame(), std::numbers::pi - 1, 20);
    EXPECT_NEAR(left.arcAngleRad - 1, std::asin(5 * std::cos(1.0) / 20), 1e-12);
    EXPECT_GT(left.arcAngleRad, 1); // flatter: nearer to the vertical than the pointer
    EXPECT_NEAR(left.arcAngleRad + right.arcAngleRad, std::numbers::pi, 1e-9);
}

TEST(GeometryTest, AnOffsetBeyondTheRadiusStaysDrawable) {
    PlateFrame frame = SmallFrame();
    frame.offsetMm = 30;
    const double t = 0.2;
    const double p = t + std::asin(0.999999);
    const ArcPlace place = PlaceOnArc(frame, t, 20);
    EXPECT_NEAR(place.arcAngleRad, p, 1e-9);
    EXPECT_NEAR(place.point.x, 100 - 2 * 20 * std::cos(p), 1e-9);
    EXPECT_NEAR(place.point.y, 280 - 4 * (20 * std::sin(p) - 30 + 10), 1e-9);
}

TEST(GeometryTest, NegativeRadiusIsDrawnBelowTheBearing) {
    const ArcPlace place = PlaceOnArc(SmallFrame(), kRightAngle, -15);
    EXPECT_TRUE(IsAt(place.point, 100, 280 + 4 * (15 + 5 - 10), 1e-9));
}

TEST(GeometryTest, RadiusOfZeroIsARunTimeError) {
    EXPECT_THROW(PlaceOnArc(SmallFrame(), 1, 0), RunTimeError);
    PlateFrame frame = SmallFrame();
    frame.offsetMm = 0; // nothing divided by nothing as well
    EXPECT_THROW(PlaceOnArc(frame, 1, 0), RunTimeError);
}

TEST(GeometryTest, LengthsRunAlongThePointer) {
    const PlateFrame frame = SmallFrame();
    const SurfacePoint out = AlongPointer(frame, {70, 90}, 1, 3, Direction::Outward);
    EXPECT_TRUE(IsAt(out, 70 - 2 * 3 * std::cos(1.0), 90 - 4 * 3 * std::sin(1.0), 1e-12));
    const SurfacePoint in = AlongPointer(frame, {70, 90}, 1, 3, Direction::Inward);
    EXPECT_TRUE(IsAt(in, 70 + 2 * 3 * std::cos(1.0), 90 + 4 * 3 * std::sin(1.0), 1e-12));
}

TEST(GeometryTest, OddScalesPointOutwardAndEvenOnesInward) {
    for (const int scale : {1, 3, 5, 7}) {
        EXPECT_EQ(DirectionOf(scale), Direction::Outward) << scale;
    }
    for (const int scale : {2, 4, 6, 8}) {
        EXPECT_EQ(DirectionOf(scale), Direction::Inward) << scale;
    }
}

using FrameTest = RenderTest;

TEST_F(FrameTest, TakesTheMeasuresOfTheDesign) {
    Design.PlateStyle = 1;
    const PlateFrame frame = FrameOfDesign(Design, 7, {50, 60});
    EXPECT_EQ(frame.plateScale, 7);
    EXPECT_EQ(frame.aspect, 1); // the screen's pages put their stretch in
    EXPECT_EQ(frame.upPerHalfMm, 7);
    EXPECT_EQ(frame.centreX, 50);
    EXPECT_EQ(frame.centreY, 60);
    EXPECT_EQ(frame.widthMm, 10);
    EXPECT_EQ(frame.heightMm, 5);
    EXPECT_EQ(frame.bearingMm, 1);
    EXPECT_EQ(frame.offsetMm, 2);
    EXPECT_EQ(frame.swingDeg, 90);
    EXPECT_TRUE(frame.quadrant);
    EXPECT_EQ(frame.degreesPerRadian, DegreesInRadian());
    Design.PlateStyle = 0;
    EXPECT_FALSE(FrameOfDesign(Design, 7, {50, 60}).quadrant);
}

TEST_F(FrameTest, MillimetresCountFromTheLowerLeftCorner) {
    const PlateFrame frame = MillimetreFrame(Design);
    EXPECT_EQ(frame.Left(), 0);
    EXPECT_EQ(frame.Right(), 10);
    EXPECT_EQ(frame.Bottom(), 0);
    EXPECT_EQ(frame.Top(), -5);
    EXPECT_TRUE(IsAt(PlatePoint(frame, 3, 2), 3, -2));
    const SurfacePoint crown = PlaceOnArc(frame, kRightAngle, ScaleRadius(frame, 4)).point;
    EXPECT_TRUE(IsAt(crown, 5, -4, 1e-9));
}

} // namespace
} // namespace vernacle::test
