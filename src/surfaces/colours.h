// Colours of designs, 0x00BBGGRR, and those of the toolkit.
#pragma once

#include <QColor>

#include "engine/geometry/drawingsurface.h"

namespace vernacle {

inline QColor ToQColor(Colour colour) {
    const auto bits = static_cast<unsigned>(colour);
    return QColor::fromRgb(static_cast<int>(bits & 0xFFU), static_cast<int>(bits >> 8U & 0xFFU),
                           static_cast<int>(bits >> 16U & 0xFFU));
}

inline Colour ToColour(const QColor& colour) {
    return colour.blue() << 16 | colour.green() << 8 | colour.red();
}

} // namespace vernacle
