#include "surfaces/papersurface.h"

#include "engine/base/runtimeerror.h"
#include "engine/geometry/sheet.h"

namespace vernacle {

namespace {

constexpr double kTwipsPerInch = 1440;

DeviceMap MapOf(double coordinatesPerInch, const Sheet& sheet) {
    const double perMm = coordinatesPerInch / kMmPerInch;
    DeviceMap map;
    map.perUnitX = map.perUnitY = perMm / kSheetUnitsPerMm;
    map.originX = AreaStartMm(sheet.widthMm, kSheetWidth, kSheetCentre.x) * perMm;
    map.originY = AreaStartMm(sheet.heightMm, kSheetHeight, kSheetCentre.y) * perMm;
    map.perPixel = coordinatesPerInch / kPrinterDpi;
    map.pixelsPerPoint = kPrinterDpi / 72;
    return map;
}

} // namespace

PaperSurface::PaperSurface(QPaintDevice& device, double coordinatesPerInch, const Sheet& sheet)
    : device_(device),
      page_(painter_, MapOf(coordinatesPerInch, sheet)),
      sheetBottom_((sheet.heightMm - kUnprintableMm) * coordinatesPerInch / kMmPerInch),
      sheetTop_(kUnprintableMm * coordinatesPerInch / kMmPerInch),
      areaTop_(page_.Map().originY) {}

PaperSurface::~PaperSurface() {
    if (painter_.isActive()) {
        page_.Flush();
        painter_.end();
    }
}

void PaperSurface::KeepOnSheet(float top, float bottom) {
    const double needed = sheetTop_ - (areaTop_ + double{top} * page_.Map().perUnitY);
    const double room = sheetBottom_ - (areaTop_ + double{bottom} * page_.Map().perUnitY);
    page_.SetOriginY(areaTop_ + AreaShift(needed, room));
}

void PaperSurface::StartSheet() {
    if (!painter_.begin(&device_)) {
        throw RunTimeError("The printer could not be started");
    }
}

void PaperSurface::EndDoc() {
    page_.Flush();
    if (!painter_.end()) {
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
    page_.WriteAt({page_.Map().originX + xPixels * page_.Map().perPixel,
                   page_.Map().originY + yPixels * page_.Map().perPixel},
                  text);
}

} // namespace vernacle
