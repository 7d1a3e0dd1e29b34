// Where everything on a printed plate must stand, worked out from the measures in a design's file
// alone and in millimetres throughout: what the exporter's outputs are compared with.
#pragma once

#include <string>
#include <vector>

#include "support/svgpicture.h"

namespace vernacle::test {

// The measures of a plate with one standard scale, lengths in mm and widths in tenths of one.
struct Plate {
    double width, height;
    double bearing, offset; // of the pointer's bearing above the lower edge; of the arc's below it
    double holesUp, holesApart;
    double swing; // degrees
    double minorLength, minorWidth, majorLength, majorWidth;
    double arcWidth;
    double ceiling; // crown of the arc above the lower edge
    double leftEnd, span;
    double fontSize; // points
    double relativeSize;
    double labelSpacing;
    double titleUp;
    int tics, majorEvery, labelsEvery;
    bool arcs;
};

// Reads them from the text of a design file, line by line.
Plate ReadPlate(const std::string& design);

struct PlatePoint {
    double x; // from the left edge
    double y; // up from the lower edge
};

// A tic of the scale as it is drawn.
struct TicPlace {
    int number;
    bool major;
    bool labelled;
    double fraction;
    double pointerRad; // from the left horizontal
    PlatePoint foot;   // on the arc
    PlatePoint end;
    int widthPixels; // of a 600 dpi printer
};

TicPlace PlaceOfTic(const Plate& plate, int number);

// The arc's point at a fraction of the swing, and the one that lies so far out along the pointer.
PlatePoint ArcPointAt(const Plate& plate, double fraction);
PlatePoint PointAlongPointer(const Plate& plate, double fraction, double outwardMm);

struct Calibration {
    double across = 1;
    double up = 1;
};

struct Paper {
    const char* name;
    double widthMm;
    double heightMm;
};

constexpr Paper kA4 = {"A4", 210, 297};
constexpr Paper kLetter = {"Letter", 215.9, 279.4};

// A plate on its sheet: the page of 11500 x 15200 units of 1/56.578 mm is centred on the paper, and
// the plate's middle stands at (6000, 4000) of it; a high plate moves it down.
class SheetGeometry {
public:
    SheetGeometry(const Plate& plate, const Paper& paper, const Calibration& calibration)
        : plate_(plate), paper_(paper), calibration_(calibration) {}

    MmPoint OnSheet(PlatePoint point) const;

    // All straight strokes, in no order: trim marks, crosses, tics not in the list, ruler.
    std::vector<Shape> Lines(const std::vector<int>& deletedTics) const;
    std::vector<Shape> Rings() const; // a circle as the box of its four outermost points
    Shape Arc() const;
    Shape Background() const; // its bleed included

private:
    double MovedDownMm(double middle) const;
    void AddTrimMarks(std::vector<Shape>& lines) const;
    void AddCrosses(std::vector<Shape>& lines) const;
    void AddTics(std::vector<Shape>& lines, const std::vector<int>& deletedTics) const;
    void AddRuler(std::vector<Shape>& lines) const;

    const Plate& plate_;
    const Paper& paper_;
    Calibration calibration_;
};

} // namespace vernacle::test
