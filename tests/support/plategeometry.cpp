#include "support/plategeometry.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <stdexcept>

namespace vernacle::test {

namespace {

constexpr double kUnitMm = 1 / 56.578;
constexpr double kDevicePixelMm = 25.4 / 600;
constexpr unsigned kBlack = 0x000000;
constexpr unsigned kWhite = 0xFFFFFF;
constexpr unsigned kBlue = 0x0000FF;

double ValueOn(const std::string& design, const std::string& label) {
    const std::size_t line = design.find("\n" + label);
    if (line == design.npos) {
        throw std::runtime_error("the design has no line \"" + label + "\"");
    }
    const char* start = design.data() + line + 1 + label.size();
    double value = 0;
    std::from_chars(start, design.data() + design.size(), value);
    return value;
}

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

int PixelsOfTic(double tenths) {
    return static_cast<int>(std::floor(std::clamp(tenths, 1.0, 20.0) * 0.7 + 0.5));
}

Shape StrokeOf(std::vector<MmPoint> points, int pixels, unsigned rgb) {
    Shape shape;
    shape.stroked = true;
    shape.points = std::move(points);
    shape.widthMm = pixels * kDevicePixelMm;
    shape.rgb = rgb;
    return shape;
}

void AddCross(std::vector<Shape>& lines, MmPoint middle, double arm, int pixels, unsigned rgb) {
    const auto [x, y] = middle;
    lines.push_back(StrokeOf({{x - arm, y}, {x + arm, y}}, pixels, rgb));
    lines.push_back(StrokeOf({{x, y - arm}, {x, y + arm}}, pixels, rgb));
}

Shape RingOf(MmPoint middle, double radius, int pixels, unsigned rgb) {
    const auto [x, y] = middle;
    Shape ring =
        StrokeOf({{x - radius, y}, {x, y - radius}, {x + radius, y}, {x, y + radius}}, pixels, rgb);
    ring.curved = true;
    return ring;
}

double PointerAngle(const Plate& plate, double fraction) {
    return Radians(90 - plate.swing / 2 + plate.swing * fraction);
}

} // namespace

Plate ReadPlate(const std::string& design) {
    const auto value = [&design](const char* label) { return ValueOn(design, label); };
    const auto count = [&design](const char* label) {
        return static_cast<int>(ValueOn(design, label));
    };
    return {
        .width = value("Plate width: "),
        .height = value("Plate height: "),
        .bearing = value("Bottom to bearing: "),
        .offset = value("Actual/virtual offset: "),
        .holesUp = value("Bottom to mounting holes: "),
        .holesApart = value("Hole separation: "),
        .swing = value("Pointer deflection: "),
        .minorLength = value("Minor ticmark length: "),
        .minorWidth = value("Minor ticmark width: "),
        .majorLength = value("Major ticmark length: "),
        .majorWidth = value("Major ticmark width: "),
        .arcWidth = value("Arc width: "),
        .ceiling = value("Bottom to scale ceiling: "),
        .leftEnd = value("Scale left end (units): "),
        .span = value("Scale length (units): "),
        .fontSize = value("Font size: "),
        .relativeSize = value("Scale 1: "),
        .labelSpacing = value("Label spacing: "),
        .titleUp = value("Bottom to title: "),
        .tics = count("Number of ticmarks: "),
        .majorEvery = count("Major ticmarks every how often: "),
        .labelsEvery = count("Labels every how many ticmarks: "),
        .arcs = design.find("Draw arcs Y/N:Y") != design.npos,
    };
}

PlatePoint ArcPointAt(const Plate& plate, double fraction) {
    const double pointer = PointerAngle(plate, fraction);
    const double radius = plate.ceiling - plate.bearing + plate.offset;
    const double arc = pointer + std::asin(plate.offset * std::cos(pointer) / radius);
    return {plate.width / 2 - radius * std::cos(arc),
            radius * std::sin(arc) - plate.offset + plate.bearing};
}

PlatePoint PointAlongPointer(const Plate& plate, double fraction, double outwardMm) {
    const double pointer = PointerAngle(plate, fraction);
    const PlatePoint arc = ArcPointAt(plate, fraction);
    return {arc.x - outwardMm * std::cos(pointer), arc.y + outwardMm * std::sin(pointer)};
}

TicPlace PlaceOfTic(const Plate& plate, int number) {
    const bool labelled = number % plate.labelsEvery == 0;
    const bool major = labelled || number % plate.majorEvery == 0;
    const double fraction = static_cast<double>(number) / plate.tics;
    const double length = (major ? plate.majorLength : plate.minorLength) * plate.relativeSize;
    return {.number = number,
            .major = major,
            .labelled = labelled,
            .fraction = fraction,
            .pointerRad = PointerAngle(plate, fraction),
            .foot = ArcPointAt(plate, fraction),
            .end = PointAlongPointer(plate, fraction, length),
            .widthPixels = PixelsOfTic(major ? plate.majorWidth : plate.minorWidth)};
}

// How far the sheet's picture is moved down, so that the upper trim marks of a high plate stay
// within the 12 points that printers leave white.
double SheetGeometry::MovedDownMm(double middle) const {
    constexpr double kUnprintable = 12 * 25.4 / 72;
    const double half = calibration_.up * plate_.height / 2 + 300 * kUnitMm;
    const double room = paper_.heightMm - kUnprintable - (middle + half);
    return std::max(0.0, std::min(kUnprintable - (middle - half), room));
}

MmPoint SheetGeometry::OnSheet(PlatePoint point) const {
    const double middle = paper_.heightMm / 2 + (4000 - 15200 / 2.0) * kUnitMm;
    return {paper_.widthMm / 2 + (6000 - 11500 / 2.0) * kUnitMm +
                calibration_.across * (point.x - plate_.width / 2),
            middle + MovedDownMm(middle) - calibration_.up * (point.y - plate_.height / 2)};
}

void SheetGeometry::AddTrimMarks(std::vector<Shape>& lines) const {
    constexpr double kNear = 100 * kUnitMm;
    constexpr double kFar = 300 * kUnitMm;
    constexpr int kPixels = 16;
    const MmPoint low = OnSheet({0, 0});
    const MmPoint high = OnSheet({plate_.width, plate_.height});
    for (const double y : {low.y, high.y}) {
        lines.push_back(StrokeOf({{low.x - kFar, y}, {low.x - kNear, y}}, kPixels, kBlue));
        lines.push_back(StrokeOf({{high.x + kNear, y}, {high.x + kFar, y}}, kPixels, kBlue));
    }
    for (const double x : {low.x, high.x}) {
        lines.push_back(StrokeOf({{x, high.y - kFar}, {x, high.y - kNear}}, kPixels, kBlue));
        lines.push_back(StrokeOf({{x, low.y + kNear}, {x, low.y + kFar}}, kPixels, kBlue));
    }
}

void SheetGeometry::AddCrosses(std::vector<Shape>& lines) const {
    constexpr double kArm = 100 * kUnitMm;
    constexpr double kHoleArm = 130 * kUnitMm;
    for (const double side : {-0.5, 0.5}) {
        const MmPoint hole = OnSheet({plate_.width / 2 + side * plate_.holesApart, plate_.holesUp});
        AddCross(lines, hole, kArm, 6, kBlack);
        AddCross(lines, hole, kHoleArm, 6, kWhite);
    }
    AddCross(lines, OnSheet({plate_.width / 2, plate_.bearing}), kArm, 3, kWhite);
    AddCross(lines, OnSheet({plate_.width / 2, plate_.bearing - plate_.offset}), kArm, 3, kBlack);
}

void SheetGeometry::AddTics(std::vector<Shape>& lines, const std::vector<int>& deletedTics) const {
    for (int number = 0; number <= plate_.tics; ++number) {
        if (std::find(deletedTics.begin(), deletedTics.end(), number) != deletedTics.end()) {
            continue;
        }
        const TicPlace tic = PlaceOfTic(plate_, number);
        lines.push_back(StrokeOf({OnSheet(tic.end), OnSheet(tic.foot)}, tic.widthPixels, kBlack));
    }
}

void SheetGeometry::AddRuler(std::vector<Shape>& lines) const {
    const double top = OnSheet({0, 0}).y + 400 * kUnitMm;
    const double base = OnSheet({0, 0}).y + 500 * kUnitMm;
    const double left = OnSheet({0, 0}).x;
    const double length = std::min(plate_.width, 180.0);
    double last = left;
    for (int mm = 0; mm <= length; ++mm) {
        last = OnSheet({static_cast<double>(mm), 0}).x;
        lines.push_back(StrokeOf({{last, top}, {last, base}}, 5, kBlue));
        if (mm % 10 == 0) {
            lines.push_back(StrokeOf({{last, top}, {last, base}}, 10, kBlue));
        }
    }
    lines.push_back(StrokeOf({{left, base}, {last, base}}, 5, kBlue));
}

std::vector<Shape> SheetGeometry::Lines(const std::vector<int>& deletedTics) const {
    std::vector<Shape> lines;
    AddTrimMarks(lines);
    AddCrosses(lines);
    AddTics(lines, deletedTics);
    AddRuler(lines);
    return lines;
}

std::vector<Shape> SheetGeometry::Rings() const {
    const double perUnit = calibration_.across * 28.289 / 32; // kx / 32
    const double wide = 60 * perUnit * kUnitMm;
    const double narrow = (30 * perUnit + 16) * kUnitMm;
    std::vector<Shape> rings;
    for (const double side : {-0.5, 0.5}) {
        const MmPoint hole = OnSheet({plate_.width / 2 + side * plate_.holesApart, plate_.holesUp});
        rings.push_back(RingOf(hole, wide, 6, kBlack));
        rings.push_back(RingOf(hole, narrow, 6, kWhite));
    }
    rings.push_back(RingOf(OnSheet({plate_.width / 2, plate_.bearing}), narrow, 3, kBlack));
    return rings;
}

Shape SheetGeometry::Arc() const {
    std::vector<MmPoint> points;
    for (int chord = 0; chord <= 100; ++chord) {
        points.push_back(OnSheet(ArcPointAt(plate_, chord / 100.0)));
    }
    return StrokeOf(std::move(points), static_cast<int>((plate_.arcWidth + 0.5) * 2.4), kBlack);
}

Shape SheetGeometry::Background() const {
    constexpr double kBleed = 50 * kUnitMm;
    const MmPoint low = OnSheet({0, 0});
    const MmPoint high = OnSheet({plate_.width, plate_.height});
    Shape shape;
    shape.points = {{low.x - kBleed, low.y + kBleed}, {high.x + kBleed, high.y - kBleed}};
    shape.rgb = kWhite;
    return shape;
}

} // namespace vernacle::test
