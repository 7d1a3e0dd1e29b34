// What the tests of the surfaces share: real pictures drawn on and measured, and Arial's measures.
#pragma once

#include <QImage>

#include "support/enginetest.h"
#include "support/pdfreader.h"
#include "support/pixels.h"
#include "surfaces/documents.h"
#include "surfaces/paintersurface.h"

namespace vernacle::test {

// Of the family that stands for Arial, in units of which an em has 2048.
namespace arial {
constexpr double kEm = 2048;
constexpr double kAscent = 1854;
constexpr double kCell = 1854 + 434;
constexpr double kAverage = 904.5;
constexpr double kCapital = 1409; // height of an H
constexpr double kAdvanceH = 1479;
constexpr double kAdvanceDigit = 1139;
} // namespace arial

constexpr QSize kSquareUnits(1200, 900); // a picture whose units are as wide as they are high

class SurfaceTest : public EngineTest {
protected:
    using Drawing = std::function<void(DrawingSurface& surface)>;

    // Draws on a white picture of that size as the preview does: smoothed.
    static QImage Draw(QSize size, const Drawing& draw);
    static QImage Draw(const Drawing& draw) { return Draw(kSquareUnits, draw); }

    // Draws a black line so many pixels wide.
    static QImage DrawLine(QSize size, int width, QLineF line);

    // What the print leaves on the sheet of a PDF, which is "sheet.pdf" then.
    SvgPicture ReadSheet(const Sheet& sheet, const PrintOn& print) const;
};

// Paints on a white picture of that size, smoothed.
QImage Painted(QSize size, const std::function<void(QPainter& painter)>& paint);

// Writes a text at that position.
void WriteAt(DrawingSurface& surface, float x, float y, const std::string& text);

// A print of one sheet.
PrintOn OneSheet(const PrintOn& print);

// A picture of 4 x 2 pixels, red but for its right half, which is blue, in that format of the
// toolkit's ("BMP", "GIF", "ICO", "JPEG").
std::string PictureBytes(const std::string& format);

} // namespace vernacle::test
