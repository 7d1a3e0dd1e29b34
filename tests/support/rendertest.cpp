#include "support/rendertest.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <sstream>

#include "engine/base/numbertext.h"
#include "engine/output/print.h"

namespace vernacle::test {

namespace {

constexpr double kTolerance = 0.002; // units; a float near 10000 has steps of 0.001

// The words of a call; a text in brackets is one word, whatever is in it.
std::vector<std::string> Words(const std::string& call) {
    std::vector<std::string> words;
    std::istringstream line(call.substr(0, call.find('[')));
    for (std::string word; line >> word;) {
        words.push_back(word);
    }
    if (const std::size_t bracket = call.find('['); bracket != call.npos) {
        const std::size_t end = call.rfind(']');
        words.push_back(call.substr(bracket, end - bracket + 1));
        std::istringstream rest(call.substr(end + 1));
        for (std::string word; rest >> word;) {
            words.push_back(word);
        }
    }
    return words;
}

bool SameWord(const std::string& word, const std::string& expected) {
    if (word == expected) {
        return true;
    }
    const auto value = StrictNumber(word); // whatever the locale
    const auto expectedValue = StrictNumber(expected);
    return value && expectedValue && std::fabs(*value - *expectedValue) <= kTolerance;
}

bool SameCall(const std::string& call, const std::string& expected) {
    const auto words = Words(call);
    const auto expectedWords = Words(expected);
    return std::equal(words.begin(), words.end(), expectedWords.begin(), expectedWords.end(),
                      SameWord);
}

Calls WithoutRepeatedWidths(const Calls& calls) {
    Calls kept;
    std::string width;
    for (const std::string& call : calls) {
        if (call.starts_with("SetLineWidth ")) {
            if (call == width) {
                continue;
            }
            width = call;
        }
        kept.push_back(call);
    }
    return kept;
}

} // namespace

RenderTest::RenderTest() {
    ResetDesign(Design);
    Design.ScreenScaleX = 2;
    Design.ScreenScaleY = 0.5F;
    Design.AspectRatio = 0.5F;
    Design.PlateWidth = 10;
    Design.PlateHeight = 5;
    Design.PlateBackground = 0xE0E0E0;
    Design.BottomToBearing = 1;
    Design.ActualVirtualOffset = 2;
    Design.BottomToHoles = 0.5F;
    Design.HoleSeparation = 6;
    Design.PointerDeflection = 90;
    Design.MinorTicLength = 0.2F;
    Design.MajorTicLength = 0.3F;
    Design.MinorTicWidth = 1;
    Design.MajorTicWidth = 4;
    Design.LabelSpacing = 0.5F;
    Design.FontSize = 3;
    Design.FontName = "Arial";
    Design.DrawArcs = "N";
    for (int scale = 1; scale <= kScales; ++scale) {
        Design.ScaleColor[scale] = 0x0000FF;
        Design.BottomToScaleCeiling[scale] = 4;
        Design.BottomToTitle[scale] = 2;
        Design.ScaleTitle[scale] = "mA";
        Design.MajorEveryHowMany[scale] = 1;
        Design.LabelsEveryHowMany[scale] = 1;
        Design.NrOfTicmarks[scale] = 0;
        Design.StandardDeflection[scale][0] = 0.5F;
        Design.StandardLabel[scale][0] = "7";
    }
}

void RenderTest::Draw(const DrawingTraits& traits) {
    surface.Forget();
    DrawPage(Design, surface, traits, {Design.FontSize, Design.LabelSpacing}, Drawing);
}

bool RenderTest::Print() {
    surface.Forget();
    return PrintPlate(Design, surface);
}

void RenderTest::DrawStages(std::initializer_list<DrawingStage> stages, DrawingTraits traits) {
    traits.preparation = Preparation::None;
    traits.stages = {stages.begin(), stages.size()};
    Draw(traits);
}

void GiveTics(int scale, int last) {
    Design.NrOfTicmarks[scale] = static_cast<std::int16_t>(last);
    for (int tic = 0; tic <= last; ++tic) {
        Design.StandardDeflection[scale][tic] =
            static_cast<float>(tic) / static_cast<float>(std::max(last, 1));
        Design.StandardLabel[scale][tic] = std::to_string(tic);
    }
}

void GiveSpecialTics(int scale, int last) {
    Design.ScaleColor[scale] = -std::abs(Design.ScaleColor[scale]);
    Design.SpecialNrOfTicmarks[scale] = static_cast<std::int16_t>(last);
    for (int tic = 0; tic <= last; ++tic) {
        Design.TicDeflection[scale][tic] =
            static_cast<float>(tic) / static_cast<float>(std::max(last, 1));
        Design.TicLabelText[scale][tic] = "s" + std::to_string(tic);
    }
}

Calls LinesOf(const std::string& text) {
    Calls lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.find_first_not_of(' ') != line.npos) {
            lines.push_back(line.substr(line.find_first_not_of(' ')));
        }
    }
    return lines;
}

Calls operator+(Calls first, const Calls& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Calls Slice(const Calls& calls, std::size_t first, std::size_t count) {
    const std::size_t start = std::min(first, calls.size());
    const std::size_t end = std::min(start + count, calls.size());
    return {calls.begin() + static_cast<std::ptrdiff_t>(start),
            calls.begin() + static_cast<std::ptrdiff_t>(end)};
}

Calls Tail(const Calls& calls, std::size_t count) {
    return Slice(calls, calls.size() - std::min(count, calls.size()), count);
}

std::string At(const Calls& calls, std::size_t index) {
    return index < calls.size() ? calls[index] : "nothing";
}

std::string Last(const Calls& calls) {
    return calls.empty() ? "nothing" : calls.back();
}

::testing::AssertionResult SameCalls(const Calls& calls, const Calls& expected) {
    const Calls some = WithoutRepeatedWidths(calls);
    const Calls others = WithoutRepeatedWidths(expected);
    const std::size_t count = std::max(some.size(), others.size());
    for (std::size_t index = 0; index < count; ++index) {
        const std::string call = index < some.size() ? some[index] : "nothing more";
        const std::string wanted = index < others.size() ? others[index] : "nothing more";
        if (!SameCall(call, wanted)) {
            return ::testing::AssertionFailure() << "call " << index + 1 << " is \"" << call
                                                 << "\", expected \"" << wanted << "\"";
        }
    }
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult SameCalls(const Calls& calls, const std::string& expected) {
    return SameCalls(calls, LinesOf(expected));
}

::testing::AssertionResult IsAt(SurfacePoint point, double x, double y, double tolerance) {
    if (std::fabs(point.x - x) <= tolerance && std::fabs(point.y - y) <= tolerance) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "it is at (" << point.x << ", " << point.y
                                         << "), expected (" << x << ", " << y << ")";
}

double DegreesInRadian() {
    return double{static_cast<float>(180 / std::numbers::pi)};
}

double Reference::Left() const {
    return cx - across * double{Design.PlateWidth};
}
double Reference::Right() const {
    return cx + across * double{Design.PlateWidth};
}
double Reference::Top() const {
    return cy - up * double{Design.PlateHeight};
}
double Reference::Bottom() const {
    return cy + up * double{Design.PlateHeight};
}
double Reference::RealBearingY() const {
    return Bottom() - 2 * up * double{Design.BottomToBearing};
}

double Reference::T(double g) const {
    const double swing = double{Design.PointerDeflection};
    const double t = (90 - swing / 2 + swing * g) / DegreesInRadian();
    return Design.PlateStyle == 1 ? t - (90 - swing / 2) / 57.295 : t;
}

double Reference::P(double t, double ceilingMm) const {
    const double v = double{Design.ActualVirtualOffset};
    const double r = ceilingMm - double{Design.BottomToBearing} + v;
    return t + std::asin(std::clamp(v * std::cos(t) / r, -0.999999, 0.999999));
}

double Reference::X(double t, double ceilingMm) const {
    const double v = double{Design.ActualVirtualOffset};
    const double r = ceilingMm - double{Design.BottomToBearing} + v;
    return cx - 2 * across * r * std::cos(P(t, ceilingMm));
}

double Reference::Y(double t, double ceilingMm) const {
    const double v = double{Design.ActualVirtualOffset};
    const double b = double{Design.BottomToBearing};
    return Bottom() - 2 * up * ((ceilingMm - b + v) * std::sin(P(t, ceilingMm)) - v + b);
}

double Reference::AlongX(double t, double ceilingMm, double outwardMm) const {
    return X(t, ceilingMm) - 2 * across * outwardMm * std::cos(t);
}

double Reference::AlongY(double t, double ceilingMm, double outwardMm) const {
    return Y(t, ceilingMm) - 2 * up * outwardMm * std::sin(t);
}

Reference PreviewReference() {
    const double larger = std::max(double{Design.PlateWidth}, double{Design.PlateHeight});
    const double k = 3200 / larger;
    return {k * double{Design.AspectRatio}, k, 6000, 4300};
}

Reference PageReference() {
    const double larger = std::max(double{Design.PlateWidth}, double{Design.PlateHeight});
    const double k = 3000 / larger;
    return {k * double{Design.AspectRatio}, k, 3400, 4400};
}

} // namespace vernacle::test
