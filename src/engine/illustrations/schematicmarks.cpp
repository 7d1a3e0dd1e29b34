#include "engine/illustrations/schematicmarks.h"

#include <algorithm>
#include <cmath>

#include "engine/geometry/primitives.h"
#include "engine/illustrations/schematic.h"

namespace vernacle {

namespace {

constexpr Colour kMarkInk = 0x0000FF;
constexpr Colour kGraphicInk = 0x808080;
constexpr Colour kHighlightInk = 0x50B050;

using End = SurfacePoint (*)(DrawingSurface& surface);
using Part = void (*)(DrawingSurface& surface);

// Where a dimension line runs, and so how far its extension lines reach.
enum class Lane {
    LeftOfPlate,    // upright, 500 units off the plate's edge
    RightOfPlate,   // the same
    BelowPlate,     // level, the same
    RightOfEnds,    // upright, 500 units from the ends, which lie one over the other
    BesideCrown,    // upright, so near that the arc has hardly fallen yet
    BesideTitle,    // upright, between two labels and clear of the title
    UnderTic,       // level, between the scale and the title
    AcrossPointers, // level, between two pointers that end there
};

constexpr int kArrowPixels = 2;    // extension lines are thinner
constexpr double kOffObject = 500; // units, as the next ones
constexpr double kBeyondLane = 500;
constexpr double kBesideCrown = 200; // right of the plate's middle
constexpr double kBesideTitle = 340; // the same
constexpr double kBeyondNearLane = 80;
constexpr double kUnderTic = 450;
constexpr double kBeyondUnderTic = 150;
constexpr double kAcrossPointers = 1050; // above the real bearing
constexpr double kAngleRadius = 330;     // of the arc that tells an angle from a length

// A tic at the middle of the scale and its neighbour: upright, or nearly so.
constexpr int kMajorTic = kModel.lastTic / 2;
constexpr int kMinorTic = kMajorTic + 1;

SurfacePoint OnPlate(double fromLeftMm, double fromBottomMm) {
    return PlatePoint(SchematicFrame(), fromLeftMm, fromBottomMm);
}

SurfacePoint OnCentreLine(double fromBottomMm) {
    return OnPlate(kModel.width / 2, fromBottomMm);
}

SurfacePoint LeftBottom(DrawingSurface& /*surface*/) {
    return OnPlate(0, 0);
}
SurfacePoint RightBottom(DrawingSurface& /*surface*/) {
    return OnPlate(kModel.width, 0);
}
SurfacePoint LeftTop(DrawingSurface& /*surface*/) {
    return OnPlate(0, kModel.height);
}
SurfacePoint BottomCentre(DrawingSurface& /*surface*/) {
    return OnCentreLine(0);
}
SurfacePoint Bearing(DrawingSurface& /*surface*/) {
    return RealBearing(SchematicFrame());
}
SurfacePoint LowerBearing(DrawingSurface& /*surface*/) {
    return VirtualBearing(SchematicFrame());
}
SurfacePoint LeftHole(DrawingSurface& /*surface*/) {
    return OnPlate((kModel.width - kModel.holeSeparation) / 2, kModel.bottomToHoles);
}
SurfacePoint RightHole(DrawingSurface& /*surface*/) {
    return OnPlate((kModel.width + kModel.holeSeparation) / 2, kModel.bottomToHoles);
}
SurfacePoint ScaleStart(DrawingSurface& /*surface*/) {
    return SchematicPlace(0).point;
}
SurfacePoint ScaleStop(DrawingSurface& /*surface*/) {
    return SchematicPlace(1).point;
}
SurfacePoint Crown(DrawingSurface& /*surface*/) {
    return OnCentreLine(kModel.bottomToCeiling);
}
SurfacePoint ArcInside(DrawingSurface& /*surface*/) {
    return OnCentreLine(kModel.bottomToCeiling - kModel.arcWidth / 2);
}
SurfacePoint ArcOutside(DrawingSurface& /*surface*/) {
    return OnCentreLine(kModel.bottomToCeiling + kModel.arcWidth / 2);
}

// The inner end of a tic, moved to its left or right edge, and so many millimetres outward.
SurfacePoint OfTic(int tic, double asideMm, double outwardMm) {
    const PlateFrame frame = SchematicFrame();
    const ArcPlace place = SchematicTic(tic);
    const double t = place.pointerAngleRad;
    const SurfacePoint edge =
        AlongPointer(frame, place.point, t + kRightAngle, asideMm, Direction::Outward);
    return AlongPointer(frame, edge, t, outwardMm, Direction::Outward);
}

SurfacePoint MinorInner(DrawingSurface& /*surface*/) {
    return OfTic(kMinorTic, 0, 0);
}
SurfacePoint MinorOuter(DrawingSurface& /*surface*/) {
    return OfTic(kMinorTic, 0, kModel.minorTicLength);
}
SurfacePoint MajorInner(DrawingSurface& /*surface*/) {
    return OfTic(kMajorTic, 0, 0);
}
SurfacePoint MajorOuter(DrawingSurface& /*surface*/) {
    return OfTic(kMajorTic, 0, kModel.majorTicLength);
}
SurfacePoint MinorLeft(DrawingSurface& /*surface*/) {
    return OfTic(kMinorTic, -kModel.minorTicWidth / 2, 0);
}
SurfacePoint MinorRight(DrawingSurface& /*surface*/) {
    return OfTic(kMinorTic, kModel.minorTicWidth / 2, 0);
}
SurfacePoint MajorLeft(DrawingSurface& /*surface*/) {
    return OfTic(kMajorTic, -kModel.majorTicWidth / 2, 0);
}
SurfacePoint MajorRight(DrawingSurface& /*surface*/) {
    return OfTic(kMajorTic, kModel.majorTicWidth / 2, 0);
}
SurfacePoint LabelMiddle(DrawingSurface& /*surface*/) {
    return OfTic(kMajorTic, 0, kModel.labelSpacing);
}

SurfacePoint LabelTop(DrawingSurface& surface) {
    const SurfacePoint corner = ModelLabelCorner(surface, kModel.lastTic);
    return {corner.x + double{surface.TextWidth(ModelLabel(kModel.lastTic))}, corner.y};
}
SurfacePoint LabelBottom(DrawingSurface& surface) {
    const SurfacePoint top = LabelTop(surface);
    return {top.x, top.y + double{surface.TextHeight(ModelLabel(kModel.lastTic))}};
}
SurfacePoint TitleTop(DrawingSurface& surface) {
    SelectModelFont(surface, kModel.titleHeight);
    const SurfacePoint top = OnCentreLine(kModel.bottomToTitle);
    return {top.x - double{surface.TextWidth(kModel.title)} / 2, top.y};
}
SurfacePoint TextTop(DrawingSurface& /*surface*/) {
    return OnPlate(kModel.leftToText, kModel.bottomToText);
}
SurfacePoint TextBottom(DrawingSurface& surface) {
    SelectModelFont(surface, kModel.textHeight);
    const SurfacePoint top = TextTop(surface);
    return {top.x, top.y + double{surface.TextHeight(kModel.name)}};
}

SurfacePoint GraphicLeftBottom(DrawingSurface& /*surface*/) {
    return OnPlate(kModel.leftToGraphic, kModel.bottomToGraphic - kModel.graphicHeight);
}
SurfacePoint GraphicRightBottom(DrawingSurface& /*surface*/) {
    return OnPlate(kModel.leftToGraphic + kModel.graphicWidth,
                   kModel.bottomToGraphic - kModel.graphicHeight);
}
SurfacePoint GraphicRightTop(DrawingSurface& /*surface*/) {
    return OnPlate(kModel.leftToGraphic + kModel.graphicWidth, kModel.bottomToGraphic);
}

ArcPlace HighlightPlace(double fraction) {
    const PlateFrame frame = SchematicFrame();
    return PlaceOnArc(frame, PointerAngle(frame, fraction),
                      ScaleRadius(frame, kModel.highlightCeiling));
}

SurfacePoint HighlightFirst(DrawingSurface& /*surface*/) {
    return HighlightPlace(kModel.highlightStart).point;
}
SurfacePoint HighlightLast(DrawingSurface& /*surface*/) {
    return HighlightPlace(kModel.highlightStop).point;
}
SurfacePoint HighlightInside(DrawingSurface& /*surface*/) {
    return OnCentreLine(kModel.highlightCeiling);
}
SurfacePoint HighlightOutside(DrawingSurface& /*surface*/) {
    return OnCentreLine(kModel.highlightCeiling + kModel.highlightLength);
}

// A frame with its diagonals: the place of a picture.
void DrawGraphicPlace(DrawingSurface& surface) {
    const SurfacePoint from = OnPlate(kModel.leftToGraphic, kModel.bottomToGraphic);
    const SurfacePoint to = GraphicRightBottom(surface);
    surface.FilledBox(F(from.x), F(from.y), F(to.x), F(to.y), kWhiteInk);
    surface.Box(F(from.x), F(from.y), F(to.x), F(to.y), kGraphicInk);
    DrawLine(surface, from, to, kGraphicInk);
    DrawLine(surface, {from.x, to.y}, {to.x, from.y}, kGraphicInk);
}

// Lines along the pointer, so close that they fill the band.
void DrawHighlight(DrawingSurface& surface) {
    constexpr int kLines = 500;
    const double span = kModel.highlightStop - kModel.highlightStart;
    for (int line = 0; line <= kLines; ++line) {
        const ArcPlace place = HighlightPlace(kModel.highlightStart + span * line / kLines);
        DrawLine(surface, place.point,
                 AlongPointer(SchematicFrame(), place.point, place.pointerAngleRad,
                              kModel.highlightLength, Direction::Outward),
                 kHighlightInk);
    }
}

struct Topic {
    int number;
    const char* caption;
    End from;
    End to;
    Lane lane;
    Part shown; // beside the bare plate, if any
};

constexpr Topic kTopics[] = {
    {1, "Plate width - mm", LeftBottom, RightBottom, Lane::BelowPlate, nullptr},
    {2, "Plate height - mm", LeftBottom, LeftTop, Lane::LeftOfPlate, nullptr},
    {3, "Bottom to bearing - mm", BottomCentre, Bearing, Lane::RightOfEnds, nullptr},
    {4, "Bottom to mounting holes - mm", LeftBottom, LeftHole, Lane::LeftOfPlate, nullptr},
    {5, "Mounting hole separation - mm", LeftHole, RightHole, Lane::BelowPlate, nullptr},
    {6, "Pointer deflection - degrees", ScaleStart, ScaleStop, Lane::AcrossPointers, nullptr},
    {7, "Actual/virtual offset - mm", LowerBearing, Bearing, Lane::RightOfEnds, nullptr},
    {8, "Left to text - mm", LeftBottom, TextTop, Lane::BelowPlate, nullptr},
    {9, "Minor tic length - mm", MinorInner, MinorOuter, Lane::BesideCrown, nullptr},
    {10, "Major tic length - mm", MajorInner, MajorOuter, Lane::BesideCrown, nullptr},
    {11, "Minor tic width - mm/10", MinorLeft, MinorRight, Lane::UnderTic, nullptr},
    {12, "Major tic width - mm/10", MajorLeft, MajorRight, Lane::UnderTic, nullptr},
    {13, "Font size - points", LabelBottom, LabelTop, Lane::RightOfEnds, nullptr},
    {14, "Arc to label spacing - mm", Crown, LabelMiddle, Lane::BesideCrown, nullptr},
    {15, "Text size relative to other text", TextBottom, TextTop, Lane::LeftOfPlate, nullptr},
    {16, "Bottom to text - mm", LeftBottom, TextTop, Lane::LeftOfPlate, nullptr},
    {23, "Bottom to scale title - mm", LeftBottom, TitleTop, Lane::LeftOfPlate, nullptr},
    {24, "Bottom to ceiling - mm", BottomCentre, Crown, Lane::RightOfEnds, nullptr},
    {25, "Arc width (thickness) - mm/10", ArcInside, ArcOutside, Lane::BesideCrown, nullptr},
    {30, "Left to graphic - mm", LeftBottom, GraphicLeftBottom, Lane::BelowPlate, DrawGraphicPlace},
    {31, "Bottom to graphic top - mm", RightBottom, GraphicRightTop, Lane::RightOfPlate,
     DrawGraphicPlace},
    {32, "Graphic width - mm", GraphicLeftBottom, GraphicRightBottom, Lane::BelowPlate,
     DrawGraphicPlace},
    {33, "Graphic height - mm", GraphicRightBottom, GraphicRightTop, Lane::RightOfPlate,
     DrawGraphicPlace},
    {41, "Highlight start - enter as percent", ScaleStart, HighlightFirst, Lane::AcrossPointers,
     DrawHighlight},
    {42, "Highlight stop - enter as percent", ScaleStart, HighlightLast, Lane::AcrossPointers,
     DrawHighlight},
    {43, "Plate bottom to highlight bottom - mm", BottomCentre, HighlightInside, Lane::RightOfEnds,
     DrawHighlight},
    {44, "Highlight height (thickness) - mm", HighlightInside, HighlightOutside, Lane::BesideTitle,
     DrawHighlight},
};

const Topic* FindTopic(int number) {
    for (const Topic& topic : kTopics) {
        if (topic.number == number) {
            return &topic;
        }
    }
    return nullptr;
}

// With what dimension lines are drawn.
struct MarkPen {
    DrawingSurface& surface;
    double stem; // of the arrows, units

    // That two arrows need between the ends.
    double Room() const { return std::max(stem, 2 * kArrowBack); }
};

// Two arrows with their tips at a measure's ends and a line between the tips: from within where
// both stems have room, else from outside.
void DrawAcross(const MarkPen& pen, double y, double left, double right) {
    const bool within = right - left >= pen.Room();
    pen.surface.SetLineWidth(kArrowPixels);
    DrawLine(pen.surface, {left, y}, {right, y}, kMarkInk);
    DrawArrow(pen.surface, F(left), F(y), within ? Pointing::Left : Pointing::Right, pen.stem);
    DrawArrow(pen.surface, F(right), F(y), within ? Pointing::Right : Pointing::Left, pen.stem);
    pen.surface.SetLineWidth(1);
}

void DrawUpright(const MarkPen& pen, double x, double bottom, double top) {
    const bool within = bottom - top >= pen.Room();
    pen.surface.SetLineWidth(kArrowPixels);
    DrawLine(pen.surface, {x, bottom}, {x, top}, kMarkInk);
    DrawArrow(pen.surface, F(x), F(bottom), within ? Pointing::Down : Pointing::Up, pen.stem);
    DrawArrow(pen.surface, F(x), F(top), within ? Pointing::Up : Pointing::Down, pen.stem);
    pen.surface.SetLineWidth(1);
}

void MarkUpright(const MarkPen& pen, SurfacePoint lower, SurfacePoint upper, double x,
                 double beyond) {
    const double end = x + std::copysign(beyond, x - lower.x);
    DrawLine(pen.surface, lower, {end, lower.y}, kMarkInk);
    DrawLine(pen.surface, upper, {end, upper.y}, kMarkInk);
    DrawUpright(pen, x, lower.y, upper.y);
}

void MarkLevel(const MarkPen& pen, SurfacePoint left, SurfacePoint right, double y, double beyond) {
    DrawLine(pen.surface, left, {left.x, y + beyond}, kMarkInk);
    DrawLine(pen.surface, right, {right.x, y + beyond}, kMarkInk);
    DrawAcross(pen, y, left.x, right.x);
}

// The point of the line from the real bearing to an arc where it crosses that level.
SurfacePoint OnPointer(SurfacePoint arcPoint, double y) {
    const SurfacePoint bearing = RealBearing(SchematicFrame());
    const double share = (bearing.y - y) / (bearing.y - arcPoint.y);
    return {bearing.x + share * (arcPoint.x - bearing.x), y};
}

void DrawAngle(const MarkPen& pen, SurfacePoint centre, SurfacePoint left, SurfacePoint right) {
    constexpr int kChords = 30;
    const double first = std::atan2(centre.y - left.y, left.x - centre.x);
    const double last = std::atan2(centre.y - right.y, right.x - centre.x);
    SurfacePoint previous;
    for (int chord = 0; chord <= kChords; ++chord) {
        const double angle = first + (last - first) * chord / kChords;
        const SurfacePoint point = {centre.x + kAngleRadius * std::cos(angle),
                                    centre.y - kAngleRadius * std::sin(angle)};
        DrawLine(pen.surface, chord == 0 ? point : previous, point, kMarkInk);
        previous = point;
    }
}

void MarkPointers(const MarkPen& pen, SurfacePoint left, SurfacePoint right) {
    const SurfacePoint bearing = RealBearing(SchematicFrame());
    const double y = bearing.y - kAcrossPointers;
    DrawLine(pen.surface, bearing, left, kMarkInk);
    DrawLine(pen.surface, bearing, right, kMarkInk);
    DrawAngle(pen, bearing, left, right);
    DrawAcross(pen, y, OnPointer(left, y).x, OnPointer(right, y).x);
}

void MarkBetween(const MarkPen& pen, Lane lane, SurfacePoint from, SurfacePoint to) {
    const PlateFrame frame = SchematicFrame();
    switch (lane) {
    case Lane::LeftOfPlate:
        return MarkUpright(pen, from, to, frame.Left() - kOffObject, kBeyondLane);
    case Lane::RightOfPlate:
        return MarkUpright(pen, from, to, frame.Right() + kOffObject, kBeyondLane);
    case Lane::BelowPlate:
        return MarkLevel(pen, from, to, frame.Bottom() + kOffObject, kBeyondLane);
    case Lane::RightOfEnds:
        return MarkUpright(pen, from, to, to.x + kOffObject, kBeyondLane);
    case Lane::BesideCrown:
        return MarkUpright(pen, from, to, frame.centreX + kBesideCrown, kBeyondNearLane);
    case Lane::BesideTitle:
        return MarkUpright(pen, from, to, frame.centreX + kBesideTitle, kBeyondNearLane);
    case Lane::UnderTic:
        return MarkLevel(pen, from, to, from.y + kUnderTic, kBeyondUnderTic);
    case Lane::AcrossPointers:
        return MarkPointers(pen, from, to);
    }
}

} // namespace

void DrawArrow(DrawingSurface& surface, float tipX, float tipY, Pointing pointing, double stem) {
    const bool level = pointing == Pointing::Left || pointing == Pointing::Right;
    const double back = pointing == Pointing::Left || pointing == Pointing::Up ? 1 : -1;
    const SurfacePoint tip = {double{tipX}, double{tipY}};
    const auto drawTo = [&](double along, double aside) {
        const SurfacePoint end = level ? SurfacePoint{tip.x + back * along, tip.y + aside}
                                       : SurfacePoint{tip.x + aside, tip.y + back * along};
        DrawLine(surface, tip, end, kMarkInk);
    };
    drawTo(stem, 0);
    drawTo(kArrowBack, -kArrowSide);
    drawTo(kArrowBack, kArrowSide);
}

const char* TopicCaption(int topic) {
    const Topic* row = FindTopic(topic);
    return row ? row->caption : nullptr;
}

void DrawTopicMark(DrawingSurface& surface, int topic, double arrowStem) {
    const Topic* row = FindTopic(topic);
    if (!row) {
        return;
    }
    if (row->shown) {
        row->shown(surface);
    }
    MarkBetween({surface, arrowStem}, row->lane, row->from(surface), row->to(surface));
}

} // namespace vernacle
