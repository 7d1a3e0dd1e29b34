// What the tests of the drawing rooms share: a plate so small that its drawing has round
// coordinates, the comparison of recorded calls, and the geometry of a plate written down anew.
#pragma once

#include <initializer_list>
#include <sstream>

#include "engine/core/design.h"
#include "engine/render/drawing.h"
#include "engine/render/stages.h"
#include "support/enginetest.h"
#include "support/recordingsurface.h"

namespace vernacle::test {

using Calls = Texts;

// A plate of 10 x 5 mm, stretched by 0.5. On the preview half a millimetre is 160 units across and
// 320 up, the plate reaches from (4400, 2700) to (7600, 5900), and its bearings are at (6000, 5260)
// and (6000, 6540). Its one scale, in red, has one tic, labelled "7", at mid-scale: (6000, 3340).
class RenderTest : public EngineTest {
protected:
    RenderTest();

    // Each drawing is recorded anew.
    void Draw(const DrawingTraits& traits);

    bool Print();

    // Draws these stages alone, without preparation of the design.
    void DrawStages(std::initializer_list<DrawingStage> stages,
                    DrawingTraits traits = PreviewTraits());

    RecordingSurface surface;
};

// Gives a scale tics 0 to last, evenly spaced and labelled "0", "1" and so on.
void GiveTics(int scale, int last);

// Makes a scale special, with tics 0 to last, evenly spaced and labelled "s0", "s1" and so on.
void GiveSpecialTics(int scale, int last);

// A recorded call with these arguments.
template <typename... Arguments>
std::string Call(const std::string& name, const Arguments&... arguments) {
    std::ostringstream line;
    line.imbue(std::locale::classic());
    line.precision(12);
    line << name;
    ((line << ' ' << arguments), ...);
    return line.str();
}

// The lines of a text, without the empty ones.
Calls LinesOf(const std::string& text);

Calls operator+(Calls first, const Calls& second);

// So many of the calls from an index on, and the last ones; fewer if there are no more.
Calls Slice(const Calls& calls, std::size_t first, std::size_t count);
Calls Tail(const Calls& calls, std::size_t count);

// The call of that index, and the last one; "nothing" if there is none.
std::string At(const Calls& calls, std::size_t index);
std::string Last(const Calls& calls);

// Whether the calls are those, numbers within 0.002 units (coordinates are 32-bit floats). A line
// width that is set to what it is already does not count.
::testing::AssertionResult SameCalls(const Calls& calls, const Calls& expected);
::testing::AssertionResult SameCalls(const Calls& calls, const std::string& expected);

// Whether the point is there, within so many units each way.
::testing::AssertionResult IsAt(SurfacePoint point, double x, double y, double tolerance = 0);

// The plate of the design on a surface, by the sine rule and plain trigonometry.
struct Reference {
    double across; // units per half millimetre
    double up;
    double cx;
    double cy;

    double Left() const;
    double Right() const;
    double Top() const;
    double Bottom() const;
    double RealBearingY() const;

    double T(double g) const; // pointer angle, radians
    double P(double t, double ceilingMm) const;
    double X(double t, double ceilingMm) const;
    double Y(double t, double ceilingMm) const;
    double AlongX(double t, double ceilingMm, double outwardMm) const;
    double AlongY(double t, double ceilingMm, double outwardMm) const;
};

// That of the preview page, and that of a page beside the entries.
Reference PreviewReference();
Reference PageReference();

// Degrees in a radian as the drawings hold it, a 32-bit float.
double DegreesInRadian();

} // namespace vernacle::test
