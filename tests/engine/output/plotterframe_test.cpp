// The plotter has the geometry of every other drawing, in a frame of its own: as the formulas say
// that a plotter's programmer would write, in units of 1/40 mm and upward from the plate's corner.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "engine/output/hpgl.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

struct Units {
    double x = 0;
    double y = 0;
};

// As a coordinate is written.
Units Whole(double x, double y) {
    return {std::floor(x + 0.5), std::floor(y + 0.5)};
}

class PlotterFrameTest : public RenderTest {
protected:
    // The point so many mm outward of a scale's arc, at that fraction.
    static Units Plotted(double ceiling, double fraction, double mm) {
        const double width = double{Design.PlateWidth};
        const double bearing = 40 * double{Design.BottomToBearing};
        const double offset = 40 * double{Design.ActualVirtualOffset};
        const double swing = double{Design.PointerDeflection};
        const double t =
            (90 - swing * 0.5) / DegreesInRadian() + swing * fraction / DegreesInRadian();
        const double radius = 40 * ceiling - bearing + offset;
        const double sine = offset * std::sin(t + std::numbers::pi / 2) / radius;
        const double p = t + std::asin(std::clamp(sine, -0.999999, 0.999999));
        const double x0 = std::floor(4100 - 20 * width);
        const double y0 = std::floor(8500 - 32 * double{Design.PlateHeight});
        return Whole(x0 - radius * std::cos(p) + 20 * width - 40 * mm * std::cos(t),
                     y0 + radius * std::sin(p) - offset + bearing + 40 * mm * std::sin(t));
    }

    static Units Framed(double ceiling, double fraction, double mm) {
        const PlateFrame frame = PlotterFrame(Design);
        const ArcPlace place =
            PlaceOnArc(frame, PointerAngle(frame, fraction), ScaleRadius(frame, ceiling));
        const SurfacePoint point =
            AlongPointer(frame, place.point, place.pointerAngleRad, mm, Direction::Outward);
        return Whole(point.x, point.y);
    }
};

struct PlateRow {
    float width;
    float height;
    float bearing;
};

TEST_F(PlotterFrameTest, PointsAreThoseOfThePlottersOwnFormulas) {
    int points = 0;
    int unlike = 0;
    for (const PlateRow& plate : {PlateRow{10, 5, 1}, {75.3F, 50.7F, 10.1F}, {180, 130, -12.5F}}) {
        Design.PlateWidth = plate.width;
        Design.PlateHeight = plate.height;
        Design.BottomToBearing = plate.bearing;
        for (const float offset : {0.F, 2.2F, 30.F, 100.F}) {
            Design.ActualVirtualOffset = offset;
            for (const float swing : {45.F, 90.F, 99.5F, 270.F, 360.F}) {
                Design.PointerDeflection = swing;
                for (const float ceiling : {4.F, 35.2F, 64.F}) {
                    for (int step = 0; step <= 40; ++step) {
                        for (const double mm : {0., 2.1, -6.}) {
                            const Units wanted = Plotted(double{ceiling}, step / 40., mm);
                            const Units found = Framed(double{ceiling}, step / 40., mm);
                            unlike += wanted.x != found.x || wanted.y != found.y ? 1 : 0;
                            ++points;
                        }
                    }
                }
            }
        }
    }
    EXPECT_EQ(points, 3 * 4 * 5 * 3 * 41 * 3);
    EXPECT_EQ(unlike, 0);
}

TEST_F(PlotterFrameTest, PlatesStandOnTheirCornerAndQuadrantsAsAnyOther) {
    Design.PlateStyle = 1;
    const PlateFrame frame = PlotterFrame(Design);
    EXPECT_FALSE(frame.quadrant);
    EXPECT_EQ(frame.Left(), 3900);
    EXPECT_EQ(frame.Right(), 4300);
    EXPECT_EQ(frame.Bottom(), 8340);
    EXPECT_EQ(frame.Top(), 8540);
    Design.PlateWidth = 1900;
    EXPECT_THROW(PlotterFrame(Design), RunTimeError);
}

} // namespace
} // namespace vernacle::test
