#include "engine/illustrations/samples.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <set>
#include <sstream>

#include "engine/base/hostservices.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

constexpr Sample kAll[] = {
    Sample::LinearScale,    Sample::ExponentOne,
    Sample::ExponentTwo,    Sample::SomeTicsRemoved,
    Sample::LeftEndCleared, Sample::Exponents,
    Sample::RotatedBearing, Sample::RotatedHorizontal,
    Sample::StandardStyle,  Sample::QuadrantStyle,
    Sample::Ohmmeter,       Sample::Arbitrary,
    Sample::Smeter,         Sample::Vswr,
    Sample::Decibel,
};

constexpr double kDegree = 0.017453292519943295;

struct Place {
    double degrees; // about the bearing, from the left horizontal
    double radius;  // of the inner end, units
};

std::vector<double> Numbers(const std::string& call) {
    std::istringstream words(call.substr(call.find(' ')));
    words.imbue(std::locale::classic());
    std::vector<double> numbers;
    for (double number = 0; words >> number;) {
        numbers.push_back(number);
    }
    return numbers;
}

// Fails in the middle of a drawing with what no drawing routine traps.
class ExhaustedSurface : public RecordingSurface {
public:
    explicit ExhaustedSurface(int lines) : lines_(lines) {}

    void Line(float x1, float y1, float x2, float y2, Colour colour) override {
        if (--lines_ < 0) {
            throw std::bad_alloc();
        }
        RecordingSurface::Line(x1, y1, x2, y2, colour);
    }

private:
    int lines_;
};

class SamplesTest : public RenderTest {
protected:
    SamplesTest() {
        Host.screenSize = [] { return ScreenSize{28800, 16200}; };
        SetVersionAndScreenScale(Design);
    }

    const RecordingSurface& Draw(Sample sample) {
        surface = RecordingSurface();
        DrawSample(surface, sample);
        return surface;
    }

    // The tics of the drawing in order: lines that point at the bearing and are 2 or 3 mm long.
    std::vector<Place> Tics(double unitsPerMm) const {
        const std::vector<double> bearing = Numbers(surface.CallsOf("Circle").back());
        std::vector<Place> places;
        for (const std::string& call : surface.CallsOf("Line")) {
            const std::vector<double> at = Numbers(call);
            const double length = std::hypot(at[2] - at[0], at[3] - at[1]) / unitsPerMm;
            const double x = bearing[0] - at[2];
            const double y = bearing[1] - at[3];
            const double outer = std::hypot(bearing[0] - at[0], bearing[1] - at[1]);
            const double radius = std::hypot(x, y);
            if (std::fabs(outer - radius - length * unitsPerMm) < 0.01 &&
                (std::fabs(length - 2) < 0.001 || std::fabs(length - 3) < 0.001)) {
                places.push_back({std::atan2(y, x) / kDegree, radius});
            }
        }
        return places;
    }

    bool Writes(const std::string& text) const {
        return std::ranges::count(surface.texts, text) > 0;
    }
};

// Whether there is a tic at the deflection of tic t of 50 on the quadratic scale.
bool HasQuadraticTic(const std::vector<Place>& tics, int t) {
    const double degrees = 45 + 90 * (t / 50.0) * (t / 50.0);
    return std::ranges::any_of(
        tics, [&](const Place& tic) { return std::fabs(tic.degrees - degrees) < 0.001; });
}

// Every field that a sample or its drawing writes, as one text.
std::string Remembered() {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(9);
    const auto put = [&text](const auto&... values) { ((text << values << '|'), ...); };
    const DesignRecord& d = Design;
    put(d.DesignFileName, d.PlateWidth, d.PlateHeight, d.BottomToBearing, d.BottomToHoles,
        d.HoleSeparation, d.PointerDeflection, d.MinorTicLength, d.MinorTicWidth, d.MajorTicLength,
        d.MajorTicWidth, d.FontSize, d.ActualVirtualOffset, d.PlateStyle, d.DrawArcs,
        d.LabelRotation, d.PrintText, d.LabelSpacing, d.FontName, d.NumberOfScales, d.DrawGraphic,
        d.GraphicFileName, d.LeftToGraphic, d.BottomToGraphic, d.GraphicWidth, d.GraphicHeight,
        d.ArcWidth, d.MessageLevel, d.NumberOfTexts, d.NumberOfHighlights, d.PlateBackground,
        d.AspectRatio, d.NumberOfCorrectionPoints, d.DrawHighlights, d.PlateOutlineCircular,
        d.CalibrationX, d.CalibrationY, d.CurrentScale, d.ActiveScale, d.HelpTopic, d.ProgramName,
        d.VersionText, d.ScreenScaleX, d.ScreenScaleY, LastStepTrace.Text(), d.SharedIndex2,
        d.TicLoop);
    for (int scale = 0; scale <= kLastScale; ++scale) {
        put(d.ScaleColor[scale], d.ScaleLeftEnd[scale], d.ScaleLengthUnits[scale],
            d.BottomToTitle[scale], d.BottomToScaleCeiling[scale], d.ScaleTitle[scale],
            d.NrOfTicmarks[scale], d.MajorEveryHowMany[scale], d.LabelsEveryHowMany[scale],
            d.LinearityExponent[scale], d.SpecialNrOfTicmarks[scale], d.UnlabelledBottomTic[scale],
            d.FullscaleMultiplier[scale], d.RelativeFontSize[scale],
            NumberOf(d.PrintTicsAndArcs[scale]));
        for (int tic = 0; tic <= kLastTic; ++tic) {
            put(Design.TicDeflection[scale][tic], Design.TicLabelYN[scale][tic],
                Design.TicPrintYN[scale][tic], Design.TicMajorYN[scale][tic],
                Design.TicLabelText[scale][tic], Design.StandardDeflection[scale][tic],
                Design.StandardLabel[scale][tic], Design.StandardTicYN[scale][tic],
                Design.StandardLabelYN[scale][tic]);
        }
    }
    for (int slot = 0; slot <= kTexts; ++slot) {
        put(d.TextString[slot], d.LeftToText[slot], d.BottomToText[slot], d.TextRelativeSize[slot],
            d.TextColor[slot], d.HighlightStart[slot], d.HighlightStop[slot],
            d.HighlightCeiling[slot], d.HighlightLength[slot], d.HighlightColor[slot]);
    }
    for (int entry = 0; entry <= kLastPairEntry; ++entry) {
        put(d.CorrectionPair[entry]);
    }
    put(Drawing.PlateScale, Drawing.PlateCentreX, Drawing.PlateCentreY, Drawing.DegreesPerRadian,
        Drawing.LabelFontFace, Drawing.LastArcPoint.x, Drawing.LastArcPoint.y, Drawing.LastTicEnd.x,
        Drawing.LastTicEnd.y, Drawing.PointerLength, Drawing.WhereMarker, Drawing.GridShown,
        Drawing.PointerShown);
    return text.str();
}

// A design and a drawing unlike any sample.
void Disturb() {
    Design.DesignFileName = "mine.VRN";
    Design.PlateWidth = 61.5F;
    Design.PlateStyle = 1;
    Design.LabelRotation = "V";
    LastStepTrace.argument = 0.125;
    Design.NumberOfScales = 4;
    Design.CurrentScale = 3;
    Design.TicLoop = 17;
    Design.PrintTicsAndArcs[2] = std::string("1");
    for (int scale = 1; scale <= kScales; ++scale) {
        Design.LinearityExponent[scale] = 3;
        Design.ScaleTitle[scale] = "Mine";
        for (int tic = 0; tic <= kLastTic; ++tic) {
            Design.StandardTicYN[scale][tic] = tic % 2 == 0 ? "N" : "Y";
            Design.StandardDeflection[scale][tic] = 0.25F;
            Design.StandardLabel[scale][tic] = "mine";
        }
    }
    Drawing.PlateScale = 7;
    Drawing.LastTicEnd = {1, 2};
    Drawing.WhereMarker = 99;
    Drawing.GridShown = 1;
    Drawing.LabelFontFace = "Mine";
}

TEST_F(SamplesTest, DesignAndDrawingAreGivenBack) {
    Disturb();
    const std::string before = Remembered();
    for (const Sample sample : kAll) {
        SCOPED_TRACE(static_cast<int>(sample));
        EXPECT_GT(Draw(sample).Count("Line"), 100U);
        EXPECT_TRUE(Remembered() == before);
    }
}

TEST_F(SamplesTest, DesignAndDrawingAreGivenBackWhenTheSurfaceFails) {
    Disturb();
    const std::string before = Remembered();
    for (const Sample sample : kAll) {
        SCOPED_TRACE(static_cast<int>(sample));
        for (const int lines : {0, 30, 120}) {
            ExhaustedSurface exhausted(lines);
            EXPECT_THROW(DrawSample(exhausted, sample), std::bad_alloc);
            EXPECT_TRUE(Remembered() == before);
        }
        surface = RecordingSurface();
        surface.failCall = "BeginFont"; // one that a drawing traps
        EXPECT_NO_THROW(DrawSample(surface, sample));
        EXPECT_TRUE(Remembered() == before);
    }
}

// Whether the process's design is the user's at each line.
class WatchingSurface : public RecordingSurface {
public:
    void Line(float x1, float y1, float x2, float y2, Colour colour) override {
        RecordingSurface::Line(x1, y1, x2, y2, colour);
        watched = watched && Design.ScaleTitle[1] == "Mine" && Drawing.LabelFontFace == "Mine";
    }

    bool watched = true;
};

TEST_F(SamplesTest, UsersDesignStaysInItsPlaceMeanwhile) {
    Disturb();
    for (const Sample sample : kAll) {
        WatchingSurface watching;
        DrawSample(watching, sample);
        EXPECT_TRUE(watching.watched) << static_cast<int>(sample);
    }
}

TEST_F(SamplesTest, UsersDesignDoesNotShowThrough) {
    for (const Sample sample : kAll) {
        SCOPED_TRACE(static_cast<int>(sample));
        ResetDesign(Design);
        const Calls calls = Draw(sample).calls;
        Disturb();
        SetLinearCurve(Design);
        Design.CorrectionPair[6] = 0.9F;
        Design.RelativeFontSize[1] = 5;
        Design.PlateBackground = 1;
        Design.AspectRatio = 0.5;
        EXPECT_EQ(Draw(sample).calls, calls);
    }
}

TEST_F(SamplesTest, ExponentOneSpreadsItsTicsEvenly) {
    Draw(Sample::ExponentOne);
    const std::vector<Place> tics = Tics(60);
    ASSERT_EQ(tics.size(), 51U);
    for (int tic = 0; tic <= 50; ++tic) {
        EXPECT_NEAR(tics[static_cast<std::size_t>(tic)].degrees, 45 + 90 * tic / 50.0, 0.001);
    }
}

TEST_F(SamplesTest, ExponentTwoCrowdsTheLeftEnd) {
    Draw(Sample::ExponentTwo);
    const std::vector<Place> tics = Tics(60);
    ASSERT_EQ(tics.size(), 51U);
    for (int tic = 0; tic <= 50; ++tic) {
        EXPECT_TRUE(HasQuadraticTic(tics, tic)) << tic;
    }
    const double first = tics[1].degrees - tics[0].degrees;
    const double last = tics[50].degrees - tics[49].degrees;
    EXPECT_LT(first * 50, last);
}

TEST_F(SamplesTest, DeletedTicsAndLabelsAreAbsent) {
    Draw(Sample::SomeTicsRemoved);
    const std::vector<Place> thinned = Tics(60);
    EXPECT_EQ(thinned.size(), 51U - 12U);
    EXPECT_TRUE(Writes("10"));
    Draw(Sample::LeftEndCleared);
    const std::vector<Place> cleared = Tics(60);
    EXPECT_EQ(cleared.size(), 51U - 18U);
    EXPECT_FALSE(Writes("10"));
    EXPECT_TRUE(Writes("0") && Writes("20") && Writes("50"));
    for (int tic = 0; tic <= 50; ++tic) {
        SCOPED_TRACE(tic);
        EXPECT_EQ(HasQuadraticTic(thinned, tic), tic >= 15 || tic % 5 == 0);
        EXPECT_EQ(HasQuadraticTic(cleared, tic), tic == 0 || tic == 15 || tic >= 20);
    }
}

TEST_F(SamplesTest, ThreeArcsShowThreeExponents) {
    Draw(Sample::Exponents);
    const double unitsPerMm = 6000 / 116.0;
    const std::vector<Place> tics = Tics(unitsPerMm);
    ASSERT_EQ(tics.size(), 63U); // the innermost scale first
    for (int tic = 0; tic <= 20; ++tic) {
        const double fraction = tic / 20.0;
        const auto at = [&](int scale) { return tics[static_cast<std::size_t>(scale * 21 + tic)]; };
        EXPECT_NEAR(at(0).degrees, 45 + 90 * std::sqrt(fraction), 0.001);
        EXPECT_NEAR(at(1).degrees, 45 + 90 * fraction, 0.001);
        EXPECT_NEAR(at(2).degrees, 45 + 90 * fraction * fraction, 0.001);
        EXPECT_LT(at(0).radius, at(1).radius);
        EXPECT_LT(at(1).radius, at(2).radius);
    }
    EXPECT_TRUE(Writes("Exponent 0.5") && Writes("Exponent 1") && Writes("Exponent 2"));
    EXPECT_EQ(std::ranges::count(surface.texts, "10"), 3); // none of the hidden scales
    EXPECT_EQ(std::ranges::count(surface.texts, ""), 2);   // their titles
}

// The turns of the seven fonts made for six labels and a title.
std::vector<double> Escapements(const RecordingSurface& surface) {
    std::vector<double> turns;
    for (const std::string& call : surface.CallsOf("BeginFont")) {
        turns.push_back(Numbers(call).at(2));
    }
    return turns;
}

TEST_F(SamplesTest, LabelsTurnAboutTheBearingOrStayLevel) {
    EXPECT_EQ(Escapements(Draw(Sample::RotatedBearing)),
              (std::vector<double>{450, 270, 90, -90, -270, -450, 0}));
    const std::vector<Place> round = Tics(60);
    EXPECT_EQ(Escapements(Draw(Sample::RotatedHorizontal)), std::vector<double>(7, 0));
    const std::vector<Place> flat = Tics(60);
    EXPECT_NEAR(round[0].radius, round[25].radius, 0.01); // the old arc, about the bearing itself
    EXPECT_GT(flat[0].radius, flat[25].radius * 1.1);
}

TEST_F(SamplesTest, StylesDifferInHolesAndSwing) {
    EXPECT_EQ(Draw(Sample::StandardStyle).Count("Circle"), 5U);
    EXPECT_NEAR(Tics(60)[0].degrees, 45, 0.001);
    EXPECT_EQ(Draw(Sample::QuadrantStyle).Count("Circle"), 1U); // the bearing
    const std::vector<Place> tics = Tics(6000 / 72.0);
    ASSERT_EQ(tics.size(), 51U);
    EXPECT_NEAR(tics[0].degrees, 0, 0.01);
    EXPECT_NEAR(tics[50].degrees, 90, 0.01);
}

TEST_F(SamplesTest, AreasShowThePlateOrADetailOfIt) {
    const std::set<Sample> details = {Sample::ExponentTwo, Sample::SomeTicsRemoved,
                                      Sample::LeftEndCleared};
    for (const Sample sample : kAll) {
        SCOPED_TRACE(static_cast<int>(sample));
        const std::vector<double> plate = Numbers(Draw(sample).CallsOf("FilledBox").at(0));
        const LogicalArea area = SampleArea(sample);
        EXPECT_EQ(area.left > plate[0], details.contains(sample));
        EXPECT_EQ(area.top > plate[1], details.contains(sample));
        EXPECT_EQ(area.left + area.width < plate[2], details.contains(sample));
        EXPECT_EQ(area.top + area.height < plate[3], details.contains(sample));
    }
}

TEST_F(SamplesTest, DetailShowsTheLeftEndOfTheScale) {
    Draw(Sample::ExponentTwo);
    const LogicalArea area = SampleArea(Sample::ExponentTwo);
    EXPECT_LT(area.width, SampleArea(Sample::ExponentOne).width / 3);
    const std::vector<double> bearing = Numbers(surface.CallsOf("Circle").back());
    const std::vector<Place> tics = Tics(60);
    ASSERT_EQ(tics.size(), 51U);
    for (int tic = 0; tic <= 50; ++tic) {
        SCOPED_TRACE(tic);
        const auto [degrees, radius] = tics[static_cast<std::size_t>(tic)];
        const double x = bearing[0] - radius * std::cos(degrees * kDegree);
        const double y = bearing[1] - radius * std::sin(degrees * kDegree);
        const bool inside = x > area.left && x < area.left + area.width && y > area.top &&
                            y < area.top + area.height;
        EXPECT_TRUE(inside || tic > 20); // all of the crowd, and no more than half the scale
        EXPECT_TRUE(!inside || tic < 35);
    }
}

TEST_F(SamplesTest, LettersKeepTheirShape) {
    const std::vector<double> font = Numbers(Draw(Sample::LinearScale).CallsOf("BeginFont").at(0));
    EXPECT_NEAR(font[1] / font[0], 0.0198 / 0.0513, 0.05);
}

TEST_F(SamplesTest, AreTheSameOnEveryScreen) {
    const Texts usual = Draw(Sample::RotatedBearing).calls;
    for (const ScreenSize& screen : {ScreenSize{15360, 11520}, {36000, 9000}, {57600, 32400}}) {
        Host.screenSize = [screen] { return screen; };
        SetVersionAndScreenScale(Design);
        const float before = Design.ScreenScaleY;
        EXPECT_EQ(Draw(Sample::RotatedBearing).calls, usual) << screen.widthTwips;
        EXPECT_EQ(Design.ScreenScaleY, before);
    }
    Design.ScreenScaleX = 0;
    Design.ScreenScaleY = 0; // before the program has asked for its screen
    EXPECT_EQ(Draw(Sample::RotatedBearing).calls, usual);
    EXPECT_EQ(Design.ScreenScaleY, 0);
}

} // namespace
} // namespace vernacle::test
