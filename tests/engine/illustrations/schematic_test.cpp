#include "engine/illustrations/schematic.h"

#include "engine/core/design.h"
#include "schematictest.h"

namespace vernacle::test {
namespace {

TEST_F(SchematicTest, PlateOfThePlatePageIsGrey) {
    Draw(0);
    EXPECT_EQ(surface.calls.at(0), "Clear");
    EXPECT_EQ(surface.CallsOf("FilledBox").back(), "FilledBox 1150 850 5350 4210 c0ccd0");
    EXPECT_TRUE(surface.Strokes("ff0000").empty());
}

TEST_F(SchematicTest, PlateOfTheHelpPageIsWhiteInGreyWithABluePointer) {
    Draw(1, kHelpPageLook);
    EXPECT_EQ(surface.CallsOf("FilledBox"), (Texts{"FilledBox 1118 818 5382 4242 c0ccd0",
                                                   "FilledBox 1150 850 5350 4210 ffffff"}));
    const std::vector<Stroke> blue = surface.Strokes("ff0000");
    ASSERT_EQ(blue.size(), 1U);
    EXPECT_TRUE(Same(blue[0].from, At(kMiddle, kModel.bottomToBearing)));
    EXPECT_TRUE(Same(blue[0].to, OnModelScale(0.07)));
    EXPECT_TRUE(surface.CallsOf("Dot").back().ends_with(" e0ecf0"));
}

TEST_F(SchematicTest, TitleNameAndLabelsAreWritten) {
    Draw(0);
    EXPECT_EQ(surface.texts,
              (Texts{"0", "5", "10", "15", "20", "25", "30", "VOLTS", "HarrowgateSoftware"}));
    const TextBox title = surface.BoxOf("VOLTS");
    EXPECT_NEAR(title.corner.x + title.width / 2, At(kMiddle, 0).x, kNear);
    EXPECT_NEAR(title.corner.y, At(0, kModel.bottomToTitle).y, kNear);
    for (int tic = 0; tic <= 30; tic += 5) {
        const TextBox label = surface.BoxOf(std::to_string(tic));
        EXPECT_NEAR(label.height, kModel.labelHeight * kUnitsPerMm, kNear);
        EXPECT_TRUE(Same({label.corner.x + label.width / 2, label.corner.y + label.height / 2},
                         OnModelScale(tic / 30.0, kModel.labelSpacing)));
    }
}

TEST_F(SchematicTest, ThirtyOneTicsStandOver90Degrees) {
    const std::vector<Stroke> black = Draw(0).Strokes("0");
    std::size_t strokes = 0;
    for (int tic = 0; tic <= 30; ++tic) {
        SCOPED_TRACE(tic);
        const bool major = tic % 5 == 0;
        const double length = major ? kModel.majorTicLength : kModel.minorTicLength;
        const double side = (major ? kModel.majorTicWidth : kModel.minorTicWidth) / 2;
        for (const double aside : {-side, 0.0, side}) {
            EXPECT_TRUE(HasStroke(black, OnModelScale(tic / 30.0, length, aside),
                                  OnModelScale(tic / 30.0, 0, aside)));
        }
    }
    for (const Stroke& stroke : black) {
        const double length = stroke.Length() / kUnitsPerMm;
        if (std::fabs(length - kModel.majorTicLength) < 0.001 ||
            std::fabs(length - kModel.minorTicLength) < 0.001) {
            ++strokes;
        }
    }
    EXPECT_EQ(strokes, 24U * 9 + 7U * 17); // a minor tic has 9 strokes, a major one 17
}

TEST_F(SchematicTest, ArcIsAsThickAsItsMark) {
    const std::vector<Stroke> black = Draw(0).Strokes("0");
    for (const double aside : {-kModel.arcWidth / 2, 0.0, kModel.arcWidth / 2}) {
        const SurfacePoint crown = At(kMiddle, kModel.bottomToCeiling + aside);
        bool found = false;
        for (const Stroke& stroke : black) {
            found = found || Same(stroke.to, crown);
        }
        EXPECT_TRUE(found) << aside;
    }
}

TEST_F(SchematicTest, HolesAndBearingsAreCircledAndCrossed) {
    Draw(0);
    const std::vector<Stroke> black = surface.Strokes("0");
    const SurfacePoint marks[] = {At(15, 20), At(125, 20), At(kMiddle, 34), At(kMiddle, 14)};
    for (const SurfacePoint at : marks) {
        EXPECT_TRUE(HasStroke(black, {at.x - 130, at.y}, {at.x + 130, at.y}));
        EXPECT_TRUE(HasStroke(black, {at.x, at.y - 130}, {at.x, at.y + 130}));
    }
    EXPECT_EQ(surface.CallsOf("Circle"),
              (Texts{"Circle 1600 3610 90 0", "Circle 4900 3610 90 0", "Circle 3250 3190 60 0"}));
}

TEST_F(SchematicTest, NothingLeavesItsArea) {
    const LogicalArea area = SchematicArea();
    const auto holds = [&](SurfacePoint point) {
        return point.x >= area.left && point.x <= area.left + area.width && point.y >= area.top &&
               point.y <= area.top + area.height;
    };
    for (int topic = 0; topic <= 44; ++topic) {
        SCOPED_TRACE(topic);
        Draw(topic, kHelpPageLook);
        for (const Stroke& stroke : surface.Strokes()) {
            EXPECT_TRUE(holds(stroke.from) && holds(stroke.to));
        }
        for (const TextBox& box : surface.boxes) {
            EXPECT_TRUE(holds(box.corner) &&
                        holds({box.corner.x + box.width, box.corner.y + box.height}));
        }
    }
}

TEST_F(SchematicTest, DesignHasNoPartInIt) {
    SetOpeningValues(Design);
    const Texts calls = Draw(6).calls;
    ResetDesign(Design);
    Design.PlateWidth = 33;
    Design.PlateStyle = 1;
    Design.PointerDeflection = 240;
    Design.PlateBackground = 1;
    Design.AspectRatio = 0.5;
    EXPECT_EQ(Draw(6).calls, calls);
    EXPECT_EQ(Design.PlateWidth, 33);
    EXPECT_EQ(Design.AspectRatio, 0.5);
}

} // namespace
} // namespace vernacle::test
