// What the tests of the schematic share: its recorded lines and texts, and its geometry written
// down anew.
#pragma once

#include <cmath>
#include <locale>
#include <sstream>

#include "engine/illustrations/schematic.h"
#include "support/enginetest.h"
#include "support/recordingsurface.h"

namespace vernacle::test {

constexpr double kNear = 0.01;     // units; coordinates are 32-bit floats
constexpr double kUnitsPerMm = 30; // of the model
constexpr double kLeft = 1150;     // of the plate
constexpr double kBottom = 4210;   // the same
constexpr double kMiddle = 70;     // mm, half the plate's width
constexpr double kDegree = 0.017453292519943295;

inline const std::string kRed = "ff";

struct Stroke {
    SurfacePoint from;
    SurfacePoint to;
    std::string colour;

    double Length() const { return std::hypot(to.x - from.x, to.y - from.y); }
};

inline bool Same(SurfacePoint a, SurfacePoint b) {
    return std::fabs(a.x - b.x) < kNear && std::fabs(a.y - b.y) < kNear;
}

struct TextBox {
    SurfacePoint corner;
    double width;
    double height;
};

// Measures as the recording does, and keeps the box of each text.
class MeasuringSurface : public RecordingSurface {
public:
    std::vector<TextBox> boxes;

    void PrintText(const std::string& text) override {
        boxes.push_back({{double{GetCurrentX()}, double{GetCurrentY()}},
                         double{TextWidth(text)},
                         double{TextHeight(text)}});
        RecordingSurface::PrintText(text);
    }

    TextBox BoxOf(const std::string& text) const {
        for (std::size_t index = 0; index < texts.size(); ++index) {
            if (texts[index] == text) {
                return boxes[index];
            }
        }
        ADD_FAILURE() << text << " is not written";
        return {};
    }

    std::vector<Stroke> Strokes() const {
        std::vector<Stroke> strokes;
        for (const std::string& call : CallsOf("Line")) {
            std::istringstream words(call.substr(5));
            words.imbue(std::locale::classic());
            Stroke stroke;
            words >> stroke.from.x >> stroke.from.y >> stroke.to.x >> stroke.to.y >> stroke.colour;
            strokes.push_back(stroke);
        }
        return strokes;
    }

    std::vector<Stroke> Strokes(const std::string& colour) const {
        std::vector<Stroke> strokes = Strokes();
        std::erase_if(strokes, [&](const Stroke& stroke) { return stroke.colour != colour; });
        return strokes;
    }
};

// The model by plain trigonometry: mm from the left and bottom edge of the plate.
inline SurfacePoint At(double fromLeftMm, double fromBottomMm) {
    return {kLeft + kUnitsPerMm * fromLeftMm, kBottom - kUnitsPerMm * fromBottomMm};
}

inline double PointerDegrees(double fraction) {
    return 45 + 90 * fraction;
}

// Where the pointer crosses the arc of that height, and so many mm outward and to its right.
inline SurfacePoint OnScale(double fraction, double ceilingMm, double outwardMm = 0,
                            double asideMm = 0) {
    const double t = PointerDegrees(fraction) * kDegree;
    const double radius = ceilingMm - kModel.bottomToBearing + kModel.actualVirtualOffset;
    const double p = t + std::asin(kModel.actualVirtualOffset * std::cos(t) / radius);
    const double x = kMiddle - radius * std::cos(p) - outwardMm * std::cos(t);
    const double y = radius * std::sin(p) - kModel.actualVirtualOffset + kModel.bottomToBearing +
                     outwardMm * std::sin(t);
    return At(x + asideMm * std::sin(t), y + asideMm * std::cos(t));
}

inline SurfacePoint OnModelScale(double fraction, double outwardMm = 0, double asideMm = 0) {
    return OnScale(fraction, kModel.bottomToCeiling, outwardMm, asideMm);
}

inline bool HasStroke(const std::vector<Stroke>& strokes, SurfacePoint from, SurfacePoint to) {
    for (const Stroke& stroke : strokes) {
        if (Same(stroke.from, from) && Same(stroke.to, to)) {
            return true;
        }
    }
    return false;
}

class SchematicTest : public EngineTest {
protected:
    const MeasuringSurface& Draw(int topic, const SchematicLook& look = kPlatePageLook) {
        surface = MeasuringSurface();
        DrawSchematic(surface, topic, look);
        return surface;
    }

    MeasuringSurface surface;
};

} // namespace vernacle::test
