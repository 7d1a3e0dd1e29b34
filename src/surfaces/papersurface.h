// A printer over a paint device: a sheet of paper in a PDF, an SVG or a real printer's job. One
// page unit is 1/56.578 mm on all of them, and the logical area of 11500 x 15200 is centred on the
// sheet; on a sheet that is shorter than the area, as a landscape one, the plate's middle is.
#pragma once

#include <QPaintDevice>

#include "surfaces/paintersurface.h"

namespace vernacle {

struct Sheet {
    const char* name;
    double widthMm;
    double heightMm;
};

// What most printers leave white at the edges of a sheet: 12 points.
constexpr double kUnprintableMm = 12 * 25.4 / 72;

constexpr Sheet kSheets[] = {
    {"A4", 210, 297},
    {"Letter", 215.9, 279.4},
};

// Line widths, made fonts and turned labels count device pixels of this many to the inch.
constexpr double kPrinterDpi = 600;

// The painter is made before the surface that draws with it.
struct PainterHolder {
    QPainter painter;
};

class PaperSurface : private PainterHolder, public PainterSurface, public PrinterSurface {
public:
    // The device's coordinates begin at the sheet's corner, so many of them to the inch.
    PaperSurface(QPaintDevice& device, double coordinatesPerInch, const Sheet& sheet);
    ~PaperSurface() override;

    void KeepOnSheet(float top, float bottom) override;
    void StartSheet() override;
    void EndDoc() override;
    float TwipsPerPixelX() const override;
    float TwipsPerPixelY() const override;
    void TextOutA(int xPixels, int yPixels, const std::string& text) override;

private:
    QPaintDevice& device_;
    double sheetBottom_; // where printing ends, the device's coordinates, as all here
    double sheetTop_;    // where it begins
    double areaTop_;     // of a logical area that is not moved
};

} // namespace vernacle
