#include "engine/illustrations/schematicmarks.h"

#include <set>

#include "schematictest.h"

namespace vernacle::test {
namespace {

using SchematicMarksTest = SchematicTest;

enum class Runs { Upright, Level, BetweenPointers };

struct Measure {
    int topic;
    const char* caption;
    Runs runs;
    SurfacePoint from; // lower or left
    SurfacePoint to;
};

// Every topic's measure between its true ends, as the surface drew the texts.
std::vector<Measure> Measures(const MeasuringSurface& surface) {
    const ModelPlate& m = kModel;
    const double holeLeft = kMiddle - m.holeSeparation / 2;
    const double holeRight = kMiddle + m.holeSeparation / 2;
    const double virtualBearing = m.bottomToBearing - m.actualVirtualOffset;
    const double graphicRight = m.leftToGraphic + m.graphicWidth;
    const double graphicBottom = m.bottomToGraphic - m.graphicHeight;
    const TextBox label = surface.BoxOf("30");
    const TextBox title = surface.BoxOf("VOLTS");
    const TextBox name = surface.BoxOf("HarrowgateSoftware");
    const auto lower = [](const TextBox& box, double right) {
        return SurfacePoint{box.corner.x + right, box.corner.y + box.height};
    };
    const auto upper = [](const TextBox& box, double right) {
        return SurfacePoint{box.corner.x + right, box.corner.y};
    };
    const double middle = 0.5;
    const double minor = 16 / 30.0;
    return {
        {1, "Plate width - mm", Runs::Level, At(0, 0), At(m.width, 0)},
        {2, "Plate height - mm", Runs::Upright, At(0, 0), At(0, m.height)},
        {3, "Bottom to bearing - mm", Runs::Upright, At(kMiddle, 0),
         At(kMiddle, m.bottomToBearing)},
        {4, "Bottom to mounting holes - mm", Runs::Upright, At(0, 0),
         At(holeLeft, m.bottomToHoles)},
        {5, "Mounting hole separation - mm", Runs::Level, At(holeLeft, m.bottomToHoles),
         At(holeRight, m.bottomToHoles)},
        {6, "Pointer deflection - degrees", Runs::BetweenPointers, OnModelScale(0),
         OnModelScale(1)},
        {7, "Actual/virtual offset - mm", Runs::Upright, At(kMiddle, virtualBearing),
         At(kMiddle, m.bottomToBearing)},
        {8, "Left to text - mm", Runs::Level, At(0, 0), upper(name, 0)},
        {9, "Minor tic length - mm", Runs::Upright, OnModelScale(minor),
         OnModelScale(minor, m.minorTicLength)},
        {10, "Major tic length - mm", Runs::Upright, OnModelScale(middle),
         OnModelScale(middle, m.majorTicLength)},
        {11, "Minor tic width - mm/10", Runs::Level, OnModelScale(minor, 0, -m.minorTicWidth / 2),
         OnModelScale(minor, 0, m.minorTicWidth / 2)},
        {12, "Major tic width - mm/10", Runs::Level, OnModelScale(middle, 0, -m.majorTicWidth / 2),
         OnModelScale(middle, 0, m.majorTicWidth / 2)},
        {13, "Font size - points", Runs::Upright, lower(label, label.width),
         upper(label, label.width)},
        {14, "Arc to label spacing - mm", Runs::Upright, OnModelScale(middle),
         OnModelScale(middle, m.labelSpacing)},
        {15, "Text size relative to other text", Runs::Upright, lower(name, 0), upper(name, 0)},
        {16, "Bottom to text - mm", Runs::Upright, At(0, 0), upper(name, 0)},
        {23, "Bottom to scale title - mm", Runs::Upright, At(0, 0), upper(title, 0)},
        {24, "Bottom to ceiling - mm", Runs::Upright, At(kMiddle, 0), OnModelScale(middle)},
        {25, "Arc width (thickness) - mm/10", Runs::Upright,
         At(kMiddle, m.bottomToCeiling - m.arcWidth / 2),
         At(kMiddle, m.bottomToCeiling + m.arcWidth / 2)},
        {30, "Left to graphic - mm", Runs::Level, At(0, 0), At(m.leftToGraphic, graphicBottom)},
        {31, "Bottom to graphic top - mm", Runs::Upright, At(m.width, 0),
         At(graphicRight, m.bottomToGraphic)},
        {32, "Graphic width - mm", Runs::Level, At(m.leftToGraphic, graphicBottom),
         At(graphicRight, graphicBottom)},
        {33, "Graphic height - mm", Runs::Upright, At(graphicRight, graphicBottom),
         At(graphicRight, m.bottomToGraphic)},
        {41, "Highlight start - enter as percent", Runs::BetweenPointers, OnModelScale(0),
         OnScale(m.highlightStart, m.highlightCeiling)},
        {42, "Highlight stop - enter as percent", Runs::BetweenPointers, OnModelScale(0),
         OnScale(m.highlightStop, m.highlightCeiling)},
        {43, "Plate bottom to highlight bottom - mm", Runs::Upright, At(kMiddle, 0),
         OnScale(middle, m.highlightCeiling)},
        {44, "Highlight height (thickness) - mm", Runs::Upright,
         OnScale(middle, m.highlightCeiling),
         OnScale(middle, m.highlightCeiling, m.highlightLength)},
    };
}

struct Arrow {
    SurfacePoint tip;
    SurfacePoint tail;
};

// Lines of 1000 units with a head at their start: two lines that reach back 300 and aside 75.
std::vector<Arrow> ArrowsOf(const std::vector<Stroke>& strokes) {
    std::vector<Arrow> arrows;
    for (const Stroke& stem : strokes) {
        if (std::fabs(stem.Length() - 1000) > kNear) {
            continue;
        }
        const double alongX = (stem.to.x - stem.from.x) / 1000;
        const double alongY = (stem.to.y - stem.from.y) / 1000;
        int heads = 0;
        for (const double side : {-75.0, 75.0}) {
            const SurfacePoint end = {stem.from.x + 300 * alongX - side * alongY,
                                      stem.from.y + 300 * alongY + side * alongX};
            for (const Stroke& stroke : strokes) {
                heads += Same(stroke.from, stem.from) && Same(stroke.to, end) ? 1 : 0;
            }
        }
        if (heads == 2) {
            arrows.push_back({stem.from, stem.to});
        }
    }
    return arrows;
}

// An extension line: from an end of the measure, through the tip and beyond.
bool HasExtension(const std::vector<Stroke>& strokes, SurfacePoint end, SurfacePoint tip) {
    for (const Stroke& stroke : strokes) {
        const double toTip = std::hypot(tip.x - end.x, tip.y - end.y);
        const double onward = stroke.Length();
        if (Same(stroke.from, end) && onward > toTip &&
            Same({end.x + (tip.x - end.x) * onward / toTip,
                  end.y + (tip.y - end.y) * onward / toTip},
                 stroke.to)) {
            return true;
        }
    }
    return false;
}

// The point between the bearing and that of the arc, at that height on the surface.
SurfacePoint OnPointer(SurfacePoint end, double y) {
    const SurfacePoint bearing = At(kMiddle, kModel.bottomToBearing);
    const double share = (y - bearing.y) / (end.y - bearing.y);
    return {bearing.x + share * (end.x - bearing.x), y};
}

TEST_F(SchematicMarksTest, EveryTopicIsMarkedBetweenItsTrueEnds) {
    const std::vector<Measure> measures = Measures(Draw(0));
    EXPECT_EQ(measures.size(), 27U);
    for (const Measure& measure : measures) {
        SCOPED_TRACE(measure.caption);
        const std::vector<Stroke> red = Draw(measure.topic).Strokes(kRed);
        const std::vector<Arrow> arrows = ArrowsOf(red);
        ASSERT_EQ(arrows.size(), 2U);
        const SurfacePoint from = arrows[0].tip;
        const SurfacePoint to = arrows[1].tip;
        EXPECT_TRUE(HasStroke(red, from, to)); // the line between the tips
        switch (measure.runs) {
        case Runs::Upright:
            EXPECT_NEAR(from.x, to.x, kNear);
            EXPECT_NEAR(from.y, measure.from.y, kNear);
            EXPECT_NEAR(to.y, measure.to.y, kNear);
            break;
        case Runs::Level:
            EXPECT_NEAR(from.y, to.y, kNear);
            EXPECT_NEAR(from.x, measure.from.x, kNear);
            EXPECT_NEAR(to.x, measure.to.x, kNear);
            break;
        case Runs::BetweenPointers:
            EXPECT_TRUE(Same(from, OnPointer(measure.from, from.y)));
            EXPECT_TRUE(Same(to, OnPointer(measure.to, from.y)));
            EXPECT_TRUE(HasStroke(red, At(kMiddle, kModel.bottomToBearing), measure.from));
            EXPECT_TRUE(HasStroke(red, At(kMiddle, kModel.bottomToBearing), measure.to));
            continue;
        }
        EXPECT_TRUE(HasExtension(red, measure.from, from));
        EXPECT_TRUE(HasExtension(red, measure.to, to));
    }
}

TEST_F(SchematicMarksTest, ArrowsPointAtTheEndsFromWithinOrFromOutside) {
    for (const Measure& measure : Measures(Draw(0))) {
        SCOPED_TRACE(measure.caption);
        const std::vector<Arrow> arrows = ArrowsOf(Draw(measure.topic).Strokes(kRed));
        ASSERT_EQ(arrows.size(), 2U);
        const auto [tip, tail] = arrows[0];
        const SurfacePoint other = arrows[1].tip;
        const double length = std::hypot(other.x - tip.x, other.y - tip.y);
        const double towards =
            ((tail.x - tip.x) * (other.x - tip.x) + (tail.y - tip.y) * (other.y - tip.y)) / length;
        EXPECT_NEAR(towards, length >= 1000 ? 1000 : -1000, kNear);
    }
}

struct ArrowRow {
    Pointing pointing;
    double backX; // from the tip
    double backY;
};

TEST_F(SchematicMarksTest, ArrowsPointInFourDirections) {
    const ArrowRow rows[] = {
        {Pointing::Left, 1, 0},
        {Pointing::Right, -1, 0},
        {Pointing::Up, 0, 1},
        {Pointing::Down, 0, -1},
    };
    for (const ArrowRow& row : rows) {
        surface = MeasuringSurface();
        DrawArrow(surface, 5000, 4000, row.pointing, kArrowStem);
        const std::vector<Stroke> strokes = surface.Strokes(kRed);
        EXPECT_EQ(strokes.size(), 3U);
        ASSERT_EQ(ArrowsOf(strokes).size(), 1U);
        EXPECT_TRUE(Same(ArrowsOf(strokes)[0].tip, {5000, 4000}));
        EXPECT_TRUE(
            Same(ArrowsOf(strokes)[0].tail, {5000 + 1000 * row.backX, 4000 + 1000 * row.backY}));
    }
}

TEST_F(SchematicMarksTest, CaptionsAreTheTopics) {
    for (const Measure& measure : Measures(Draw(0))) {
        EXPECT_EQ(Draw(measure.topic).texts.back(), measure.caption);
        EXPECT_STREQ(TopicCaption(measure.topic), measure.caption);
    }
}

TEST_F(SchematicMarksTest, NumbersWithoutATopicShowTheBarePlate) {
    const Texts bare = Draw(0).calls;
    EXPECT_TRUE(surface.Strokes(kRed).empty());
    std::set<int> topics;
    for (const Measure& measure : Measures(surface)) {
        topics.insert(measure.topic);
    }
    for (int topic = -3; topic <= 50; ++topic) {
        SCOPED_TRACE(topic);
        EXPECT_EQ(Draw(topic).calls == bare, !topics.contains(topic));
    }
    EXPECT_EQ(Draw(-32768).calls, bare);
    EXPECT_EQ(Draw(32767).calls, bare);
}

} // namespace
} // namespace vernacle::test
