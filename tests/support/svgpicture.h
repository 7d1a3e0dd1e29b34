// Reads the painted shapes of an SVG back as plain points in millimetres: as much of the format as
// the toolkit's generator and Poppler's converter write.
#pragma once

#include <string>
#include <vector>

namespace vernacle::test {

struct MmPoint {
    double x = 0; // from the sheet's left edge
    double y = 0; // from its top edge, downward
};

struct Shape {
    bool stroked = false; // else filled
    bool curved = false;
    std::vector<MmPoint> points; // that the outline passes through, in order
    double widthMm = 0;          // of the stroke
    unsigned rgb = 0;            // 0xRRGGBB
    std::string cap;             // "butt" ...
    std::string join;            // "round" ...

    // Of the box around the points.
    MmPoint Centre() const;
    double WidthOfBox() const;
    double HeightOfBox() const;
};

struct SvgPicture {
    double widthMm = 0;
    double heightMm = 0;
    std::string width; // as it is written, "210mm"
    std::string height;
    std::vector<Shape> shapes;   // in the order of painting; glyphs are left out
    std::vector<MmPoint> glyphs; // where the base lines of Poppler's single letters begin
};

// Throws std::runtime_error for what it does not understand.
SvgPicture ReadSvg(const std::string& text);

} // namespace vernacle::test
