// Documents made whole in memory: the toolkit's own writers do not notice a full disk, so that what
// they make is written by the checked writer afterwards.
#pragma once

#include <functional>
#include <string>

#include <QBuffer>
#include <QPdfWriter>

#include "surfaces/papersurface.h"

namespace vernacle {

using PrintOn = std::function<void(PrinterSurface& printer)>;
using DrawOn = std::function<void(DrawingSurface& surface)>;

// A PDF of one sheet for a painter to draw on; its bytes are whole when the painter has ended.
struct PdfInMemory {
    PdfInMemory(const Sheet& sheet, const std::string& title);
    std::string Bytes() const; // with the wish to be printed at its own size

    QBuffer buffer;
    QPdfWriter writer; // kPrinterDpi, its origin at the sheet's corner
};

// The bytes of a PDF of one sheet. createdAt, "YYYY-MM-DD hh:mm:ss", stands as its creation date;
// empty for now.
std::string MakePdf(const Sheet& sheet, const std::string& title, const std::string& createdAt,
                    const PrintOn& print);

// The bytes of an SVG of one sheet, its size in millimetres.
std::string MakeSvg(const Sheet& sheet, const std::string& title, const PrintOn& print);

// The bytes of a PNG of a whole screen of that size.
std::string MakePng(int widthPixels, int heightPixels, const DrawOn& draw);

// The same of what that map shows.
std::string MakePng(int widthPixels, int heightPixels, const DeviceMap& map, const DrawOn& draw);

} // namespace vernacle
