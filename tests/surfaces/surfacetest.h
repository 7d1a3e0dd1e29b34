// What the tests of the surfaces share: real pictures drawn on and measured, and Arial's measures.
#pragma once

#include <functional>
#include <string>

#include <QImage>

#include "support/enginetest.h"
#include "support/pixels.h"
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

class SurfaceTest : public EngineTest {
protected:
    using Drawing = std::function<void(DrawingSurface& surface)>;

    // Draws on a white picture of that size as the preview does: smoothed.
    static QImage Draw(QSize size, const Drawing& draw);
    static QImage Draw(const Drawing& draw) { return Draw(QSize(1200, 900), draw); }
};

// A picture of 4 x 2 pixels, red but for its right half, which is blue, in that format of the
// toolkit's ("BMP", "GIF", "ICO", "JPEG").
std::string PictureBytes(const std::string& format);

} // namespace vernacle::test
