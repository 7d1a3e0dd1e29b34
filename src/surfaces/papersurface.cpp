#include "surfaces/papersurface.h"

#include "core/runtimeerror.h"
#include "render/page.h"

namespace vernacle {

namespace {

constexpr double kMmPerInch = 25.4;
constexpr double kTwipsPerInch = 1440;
constexpr double kUnitsPerMm = 2 * kPageUnitsPerHalfMm;

DeviceMap MapOf(double coordinatesPerInch, const Sheet& sheet) {
    const double perMm = coordinatesPerInch / kMmPerInch;
    DeviceMap map;
    map.perUnitX = map.perUnitY = perMm / kUnitsPerMm;
    map.originX = (sheet.widthMm - kPageWidth / kUnitsPerMm) / 2 * perMm;
    map.originY = (sheet.heightMm - kPageHeight / kUnitsPerMm) / 2 * perMm;
    map.perPixel = coordinatesPerInch / kPrinterDpi;
    map.pixelsPerPoint = kPrinterDpi / 72;
    return map;
}

} // namespace

PaperSurface::PaperSurface(QPaintDevice& device, double coordinatesPerInch, const Sheet& sheet)
    : PainterSurface(painter, MapOf(coordinatesPerInch, sheet)), device_(device) {}

PaperSurface::~PaperSurface() {
    if (painter.isActive()) {
        Flush();
        painter.end();
    }
}

void PaperSurface::StartPage() {
    if (!painter.begin(&device_)) {
        throw RunTimeError("The printer could not be started");
    }
}

void PaperSurface::EndDoc() {
    Flush();
    if (!painter.end()) {
        throw RunTimeError("The printer could not end the document");
    }
}

float PaperSurface::TwipsPerPixelX() const {
    return static_cast<float>(kTwipsPerInch / kPrinterDpi);
}

float PaperSurface::TwipsPerPixelY() const {
    return static_cast<float>(kTwipsPerInch / kPrinterDpi);
}

void PaperSurface::TextOutA(int xPixels, int yPixels, const std::string& text) {
    WriteAt({Map().originX + xPixels * Map().perPixel, Map().originY + yPixels * Map().perPixel},
            text);
}

} // namespace vernacle
