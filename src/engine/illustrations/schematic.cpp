#include "engine/illustrations/schematic.h"

#include <algorithm>
#include <cmath>

#include "engine/geometry/primitives.h"
#include "engine/illustrations/schematicmarks.h"

namespace vernacle {

namespace {

// Around the plate: extension lines of 1000 units reach beyond three of its edges, the upward stems
// of arrows at the labels and the caption stand above the fourth.
constexpr double kMarginAcross = 1150;
constexpr double kMarginAbove = 850;
constexpr double kMarginBelow = 1100;
constexpr double kPlateWidth = 2 * kSchematicUnitsPerHalfMm * kModel.width;
constexpr double kPlateHeight = 2 * kSchematicUnitsPerHalfMm * kModel.height;

constexpr double kBorder = 32; // units, as the next ones
constexpr double kHoleRadius = 90;
constexpr double kBearingRadius = 60;
constexpr double kCrossArm = 130;
constexpr double kStrokePitch = 3; // so close that neighbours leave no gap on any screen

constexpr double kPointerFraction = 0.07; // clear of the title
constexpr int kPointerPixels = 3;
// The caption stands at the left, clear of all arrows. Units, and mm of the model.
constexpr double kCaptionLeft = 150;
constexpr double kCaptionTop = 200;
constexpr double kCaptionHeight = 8.5;

double Units(double mm) {
    return 2 * kSchematicUnitsPerHalfMm * mm;
}

// Calls draw with offsets across a stroke of that width, from one edge to the other.
template <typename Draw>
void ForEachStroke(double widthUnits, Draw draw) {
    const int gaps = 2 * static_cast<int>(std::ceil(widthUnits / 2 / kStrokePitch));
    for (int stroke = 0; stroke <= gaps; ++stroke) {
        draw(widthUnits * (stroke / double(gaps) - 0.5));
    }
}

void DrawPlate(DrawingSurface& surface, const SchematicLook& look) {
    const PlateFrame frame = SchematicFrame();
    surface.FilledBox(F(frame.Left() - kBorder), F(frame.Top() - kBorder),
                      F(frame.Right() + kBorder), F(frame.Bottom() + kBorder), look.border);
    surface.FilledBox(F(frame.Left()), F(frame.Top()), F(frame.Right()), F(frame.Bottom()),
                      look.plate);
}

void DrawCross(DrawingSurface& surface, SurfacePoint at) {
    DrawLine(surface, {at.x - kCrossArm, at.y}, {at.x + kCrossArm, at.y}, kBlackInk);
    DrawLine(surface, {at.x, at.y - kCrossArm}, {at.x, at.y + kCrossArm}, kBlackInk);
}

void DrawHole(DrawingSurface& surface, SurfacePoint at, double radius) {
    surface.Circle(F(at.x), F(at.y), F(radius), kBlackInk);
    DrawCross(surface, at);
}

void DrawHolesAndBearings(DrawingSurface& surface) {
    const PlateFrame frame = SchematicFrame();
    for (const double side : {-0.5, 0.5}) {
        const double fromLeft = kModel.width / 2 + side * kModel.holeSeparation;
        DrawHole(surface, PlatePoint(frame, fromLeft, kModel.bottomToHoles), kHoleRadius);
    }
    DrawHole(surface, RealBearing(frame), kBearingRadius);
    DrawCross(surface, VirtualBearing(frame));
}

void DrawTic(DrawingSurface& surface, int tic) {
    const bool major = IsMajorModelTic(tic);
    const ArcPlace place = SchematicTic(tic);
    const double t = place.pointerAngleRad;
    const SurfacePoint end =
        AlongPointer(SchematicFrame(), place.point, t,
                     major ? kModel.majorTicLength : kModel.minorTicLength, Direction::Outward);
    ForEachStroke(Units(major ? kModel.majorTicWidth : kModel.minorTicWidth), [&](double aside) {
        const double x = aside * std::sin(t);
        const double y = -aside * std::cos(t);
        DrawLine(surface, {end.x + x, end.y + y}, {place.point.x + x, place.point.y + y},
                 kBlackInk);
    });
}

void DrawArc(DrawingSurface& surface) {
    const PlateFrame frame = SchematicFrame();
    const double radius = ScaleRadius(frame, kModel.bottomToCeiling);
    ForEachStroke(Units(kModel.arcWidth), [&](double aside) {
        const double strokeRadius = radius + aside / Units(1);
        SurfacePoint previous;
        for (int chord = 0; chord <= kArcChords; ++chord) {
            const double angle = SchematicPlace(chord / double{kArcChords}).arcAngleRad;
            const SurfacePoint point = ArcPoint(frame, angle, strokeRadius);
            DrawLine(surface, chord == 0 ? point : previous, point, kBlackInk);
            previous = point;
        }
    });
}

void Write(DrawingSurface& surface, SurfacePoint corner, const std::string& text) {
    surface.SetCurrentX(F(corner.x));
    surface.SetCurrentY(F(corner.y));
    surface.PrintText(text);
}

void DrawTexts(DrawingSurface& surface) {
    const PlateFrame frame = SchematicFrame();
    surface.SetForeColor(kBlackInk);
    for (int tic = 0; tic <= kModel.lastTic; tic += kModel.majorEvery) {
        Write(surface, ModelLabelCorner(surface, tic), ModelLabel(tic));
    }
    SelectModelFont(surface, kModel.titleHeight);
    const SurfacePoint title = PlatePoint(frame, kModel.width / 2, kModel.bottomToTitle);
    const double width = double{surface.TextWidth(kModel.title)};
    Write(surface, {title.x - width / 2, title.y}, kModel.title);
    SelectModelFont(surface, kModel.textHeight);
    Write(surface, PlatePoint(frame, kModel.leftToText, kModel.bottomToText), kModel.name);
}

void DrawPointer(DrawingSurface& surface, Colour colour) {
    surface.SetLineWidth(kPointerPixels);
    DrawLine(surface, RealBearing(SchematicFrame()), SchematicPlace(kPointerFraction).point,
             colour);
    surface.SetLineWidth(1);
}

void DrawCaption(DrawingSurface& surface, const char* caption, Colour paper) {
    SelectModelFont(surface, kCaptionHeight);
    surface.Dot(F(kCaptionLeft), F(kCaptionTop), paper);
    surface.PrintText(caption);
}

} // namespace

void DrawSchematic(DrawingSurface& surface, int topic, const SchematicLook& look) {
    surface.Clear();
    surface.SetLineWidth(1);
    DrawPlate(surface, look);
    DrawHolesAndBearings(surface);
    for (int tic = 0; tic <= kModel.lastTic; ++tic) {
        DrawTic(surface, tic);
    }
    DrawArc(surface);
    DrawTexts(surface);
    if (look.pointer) {
        DrawPointer(surface, *look.pointer);
    }
    DrawTopicMark(surface, topic, look.arrowStem);
    if (const char* caption = TopicCaption(topic)) {
        DrawCaption(surface, caption, look.paper);
    }
}

LogicalArea SchematicArea() {
    return {.left = 0,
            .top = 0,
            .width = kPlateWidth + 2 * kMarginAcross,
            .height = kMarginAbove + kPlateHeight + kMarginBelow};
}

PlateFrame SchematicFrame() {
    return PlateFrame{
        .plateScale = kSchematicUnitsPerHalfMm,
        .upPerHalfMm = kSchematicUnitsPerHalfMm,
        .centreX = kMarginAcross + kPlateWidth / 2,
        .centreY = kMarginAbove + kPlateHeight / 2,
        .widthMm = kModel.width,
        .heightMm = kModel.height,
        .bearingMm = kModel.bottomToBearing,
        .offsetMm = kModel.actualVirtualOffset,
        .swingDeg = kModel.pointerDeflectionDeg,
        .degreesPerRadian = double{ComputeDegreesPerRadian()},
    };
}

ArcPlace SchematicPlace(double fraction) {
    const PlateFrame frame = SchematicFrame();
    return PlaceOnArc(frame, PointerAngle(frame, fraction),
                      ScaleRadius(frame, kModel.bottomToCeiling));
}

ArcPlace SchematicTic(int tic) {
    return SchematicPlace(tic / double{kModel.lastTic});
}

bool IsMajorModelTic(int tic) {
    return tic % kModel.majorEvery == 0;
}

void SelectModelFont(DrawingSurface& surface, double heightMm) {
    constexpr double kTrialPoints = 100; // large, so that whole pixels do not spoil the proportion
    surface.SetFontName("Arial");
    surface.SetFontSize(kTrialPoints);
    const double trialHeight = std::max(double{surface.TextHeight("0")}, 1.0);
    surface.SetFontSize(kTrialPoints * Units(heightMm) / trialHeight);
}

SurfacePoint ModelLabelCorner(DrawingSurface& surface, int tic) {
    SelectModelFont(surface, kModel.labelHeight);
    const ArcPlace place = SchematicTic(tic);
    const SurfacePoint middle = AlongPointer(SchematicFrame(), place.point, place.pointerAngleRad,
                                             kModel.labelSpacing, Direction::Outward);
    const std::string label = ModelLabel(tic);
    return {middle.x - double{surface.TextWidth(label)} / 2,
            middle.y - double{surface.TextHeight(label)} / 2};
}

std::string ModelLabel(int tic) {
    return std::to_string(tic);
}

} // namespace vernacle
