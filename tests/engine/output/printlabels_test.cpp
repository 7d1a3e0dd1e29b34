#include <algorithm>
#include <cmath>
#include <numbers>

#include "engine/output/print.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

// A printer whose pixels are higher than wide.
class UnevenPrinter : public RecordingSurface {
public:
    float TwipsPerPixelX() const override { return 2; }
    float TwipsPerPixelY() const override { return 4; }
};

class PrintLabelsTest : public RenderTest {
protected:
    PrintLabelsTest() {
        Design.CalibrationX = 1;
        Design.CalibrationY = 2;
        for (int scale = 1; scale <= 4; ++scale) {
            Design.StandardDeflection[scale][0] = 0.25F;
        }
    }

    // The calls of the last label of a printer, of which there are so many: five calls of the first
    // title stand behind them.
    static Calls LabelCalls(const RecordingSurface& printer, std::size_t count) {
        const Calls& calls = printer.calls;
        const auto title = std::find(calls.begin(), calls.end(), "PrintText [mA]");
        const Calls before(calls.begin(), title);
        return Slice(Tail(before, count + 5), 0, count);
    }

    static constexpr Reference kPaper{28.289, 56.578, 6000, 4000};
};

struct UprightRow {
    const char* name;
    const char* text;
    int scale;
    float deflection;
    float relative;
};

constexpr UprightRow kUpright[] = {
    {"outward", "7", 1, 0.25F, 1},        {"inward", "7", 2, 0.25F, 1},
    {"right end", "100", 1, 1, 1},        {"left end, inward", "12", 2, 0, 1},
    {"twice as large", "7", 1, 0.25F, 2}, {"half as large, inward", "75", 2, 0.75F, 0.5F},
};

TEST_F(PrintLabelsTest, UprightLabelsAreCentredOnTheirAnchor) {
    for (const UprightRow& row : kUpright) {
        SCOPED_TRACE(row.name);
        Design.NumberOfScales = static_cast<std::int16_t>(row.scale);
        Design.StandardLabel[row.scale][0] = row.text;
        Design.StandardDeflection[row.scale][0] = row.deflection;
        Design.RelativeFontSize[row.scale] = row.relative;
        Print();
        const double t = kPaper.T(double{row.deflection});
        const double out = row.scale % 2 == 0 ? -0.5 : 0.5;
        const double gap = 2 * out * double{row.relative};
        const double size = 3 * double{row.relative};
        const double width = 6 * size * static_cast<double>(std::string(row.text).size());
        const double x = std::trunc(kPaper.X(t, 4)) - 28.289 * gap * std::cos(t) - 0.5 * width;
        const double y = std::trunc(kPaper.Y(t, 4)) - 56.578 * gap * std::sin(t) - 0.5 * 11 * size;
        EXPECT_TRUE(
            SameCalls(LabelCalls(surface, 6),
                      Calls{"SetFontName [Arial]", Call("SetFontSize", size), "SetForeColor ff",
                            Call("SetCurrentX", std::floor(x)), Call("SetCurrentY", std::floor(y)),
                            std::string("PrintText [") + row.text + "]"}));
    }
}

// The coordinates of the page are 32-bit floats: at mid-scale the arc point is on the centre line,
// not a ten-millionth beside it where cutting would lose a whole unit.
TEST_F(PrintLabelsTest, UprightLabelAtMidScaleStandsOnTheCentreLine) {
    Design.StandardDeflection[1][0] = 0.5F;
    Print();
    EXPECT_EQ(At(surface.CallsOf("SetCurrentX"), 0), "SetCurrentX 5991"); // half of 18 units
}

struct TurnedRow {
    const char* name;
    const char* rotation;
    int scale;
    bool special;
    float deflection;
    float relative;
};

constexpr TurnedRow kTurned[] = {
    {"B", "B", 1, false, 0.25F, 1},        {"B inward", "B", 2, false, 0.25F, 1},
    {"B right", "B", 1, false, 1, 1},      {"B special", "B", 1, true, 0.25F, 2},
    {"B large", "B", 1, false, 0.25F, 2},  {"V", "V", 1, false, 0.25F, 1},
    {"V inward", "V", 2, false, 0.25F, 1}, {"V right, large", "V", 1, false, 1, 1.5F},
    {"V special", "V", 2, true, 0.75F, 1},
};

// One label "12" as the printer's pixels have it: sx = 2 / 2, sy = 2.04 / 4.
Calls TurnedCalls(const TurnedRow& row, const Reference& paper) {
    const double kx = 28.289;
    const double ky = 56.578;
    const double sx = 1;
    const double sy = 0.51;
    const double t = paper.T(double{row.deflection});
    const double p = paper.P(t, 4);
    const double size = 3 * double{row.relative};
    const double gap = (row.scale % 2 == 0 ? 0.5 : -0.5) * double{row.relative};
    const double radius = 4 - 1 + 2;
    double x = sx * kx * radius * -std::cos(p) + 2500;
    double y = sy * 0.5 * ky * 5 + 1675 - sy * ky * (radius * std::sin(p) - 2 + 1);
    x += sx * kx * gap * std::cos(t);
    y += sy * ky * gap * std::sin(t);
    const double a = *row.rotation == 'V' ? p : t;
    const double tw = 2 * 6 * size;
    const double th = 11 * size;
    x -= 0.06 / 2 * size * (tw * std::sin(a) + th * std::cos(a));
    y += 0.06 / 4 * size * (tw * std::cos(a) - th * std::sin(a));
    const double turn = (std::numbers::pi / 2 - a) * 10 * DegreesInRadian();
    // The height of the ordinary font in pixels: 20 twips to the point, 4 to the pixel.
    return {"PrintText [ ]",
            Call("BeginFont", -std::nearbyint(size * 20 / 4), 0, std::nearbyint(turn), "[Arial]"),
            Call("TextOutA", std::nearbyint(x), std::nearbyint(y), "[12]"), "EndFont"};
}

TEST_F(PrintLabelsTest, TurnedLabelsArePlacedInPixels) {
    for (const TurnedRow& row : kTurned) {
        SCOPED_TRACE(row.name);
        Design.LabelRotation = row.rotation;
        Design.NumberOfScales = static_cast<std::int16_t>(row.scale);
        Design.ScaleColor[row.scale] = 0xFF;
        Design.RelativeFontSize[row.scale] = row.relative;
        Design.StandardLabel[row.scale][0] = "12";
        Design.StandardDeflection[row.scale][0] = row.deflection;
        if (row.special) {
            GiveSpecialTics(row.scale, 0);
            Design.TicLabelText[row.scale][0] = "12";
            Design.TicDeflection[row.scale][0] = row.deflection;
        }
        UnevenPrinter printer;
        PrintPlate(Design, printer);
        EXPECT_TRUE(SameCalls(LabelCalls(printer, 4), TurnedCalls(row, kPaper)));
        EXPECT_EQ(Design.FontSize, 3);
        EXPECT_EQ(Design.LabelSpacing, 0.5F);
    }
}

TEST_F(PrintLabelsTest, TurnedLabelsAreCorrected) {
    const TurnedRow row = {"corrected", "B", 1, false, 0.05F, 1};
    Design.CorrectionSlope.fill(0.5F);
    Design.LabelRotation = "B";
    Design.StandardLabel[1][0] = "12";
    Design.StandardDeflection[1][0] = 0.1F;
    UnevenPrinter printer;
    PrintPlate(Design, printer);
    EXPECT_TRUE(SameCalls(LabelCalls(printer, 4), TurnedCalls(row, kPaper)));
}

TEST_F(PrintLabelsTest, LoneSlashIsABlank) {
    constexpr std::pair<const char*, const char*> kRows[] = {
        {"/", " "}, {" / ", " "}, {"1/2", "1/2"}, {"//", "//"}, {"1,5", "1.5"}};
    for (const char* rotation : {"H", "B", "V"}) {
        for (const auto& [label, printed] : kRows) {
            Design.LabelRotation = rotation;
            Design.StandardLabel[1][0] = label;
            Print();
            const bool turned = *rotation != 'H';
            EXPECT_EQ(At(surface.texts, turned ? 1 : 0), printed) << rotation << label;
            EXPECT_EQ(surface.Count("TextOutA"), turned ? 1U : 0U);
        }
    }
    EXPECT_EQ(PrintedLabel({1, 0, 0, "/"}), " ");
    EXPECT_EQ(PrintedLabel({1, 0, 0, "7"}), "7");
}

TEST_F(PrintLabelsTest, DeletedLabelsStayDeletedAndColoursAreKept) {
    GiveTics(1, 3);
    Design.NumberOfScales = 2;
    Design.StandardLabelYN[1][2] = "N";
    GiveSpecialTics(2, 2);
    Design.TicLabelYN[2][1] = "N";
    Design.ScaleColor[2] = -0x00FF00;
    Print();
    EXPECT_EQ(Slice(surface.texts, 0, 7), (Calls{"0", "1", "3", "s0", "s2", "mA", "mA"}));
    EXPECT_EQ(surface.CallsOf("SetForeColor"),
              (Calls{"SetForeColor ff", "SetForeColor ff00", "SetForeColor ff", "SetForeColor ff00",
                     "SetForeColor ff0000", "SetForeColor 0"}));
    EXPECT_EQ(Design.ScaleColor[1], 0xFF);
    EXPECT_EQ(Design.ScaleColor[2], -0x00FF00);
    EXPECT_EQ(Design.StandardLabelYN[1][2], "N");
    EXPECT_EQ(Design.TicLabelYN[2][1], "N");
}

TEST_F(PrintLabelsTest, SizesNotAboveZeroBecomeOne) {
    Design.PrintTicsAndArcs[1] = std::int16_t{1}; // so that the tics do not see to it
    Design.RelativeFontSize[1] = -2;
    Print();
    EXPECT_EQ(At(surface.CallsOf("SetFontSize"), 0), "SetFontSize 3");
    EXPECT_EQ(Design.RelativeFontSize[1], 1);
}

TEST_F(PrintLabelsTest, FontHasTheNameOfTheDesign) {
    Design.FontName = " Courier New ";
    Design.LabelRotation = "B";
    Print();
    EXPECT_EQ(Last(surface.CallsOf("SetFontName")), "SetFontName [ Courier New ]");
    EXPECT_EQ(Last(surface.CallsOf("BeginFont")), "BeginFont -25 0 225 [Courier New]");
}

struct TitleRow {
    const char* name;
    float plateWidth;
    std::int16_t plateStyle;
    float bottomToTitle;
    std::size_t length;
    int x;
    int y;
};

// A character of the title is 18 units wide; y is 4000 + 56.578 (5 - 2 bottomToTitle).
constexpr TitleRow kTitles[] = {
    {"centred", 10, 0, 2, 2, 5981, 4056},
    {"empty", 10, 0, 2, 0, 6000, 4056},
    {"above the plate", 10, 0, 7, 2, 5981, 3490},
    {"held to the left", 10, 0, 2, 800, 300, 4056},
    {"held above", 10, 0, 500, 2, 5981, 300},
    {"held below", 10, 0, -500, 2, 5981, 14900},
    {"quadrant", 10, 1, 2, 2, 5773, 4056},
    {"quadrant held to the left", 1000, 1, 2, 2, 300, 4056},
    {"quadrant held to the right", -1000, 1, 2, 2, 11200, 4056},
};

TEST_F(PrintLabelsTest, TitlesAreHeldOnThePage) {
    for (const TitleRow& row : kTitles) {
        Design.PlateWidth = row.plateWidth;
        Design.PlateStyle = row.plateStyle;
        Design.BottomToTitle[1] = row.bottomToTitle;
        Design.ScaleTitle[1] = std::string(row.length, 'x');
        Print();
        // The first position is the label's, the second the title's.
        EXPECT_EQ(At(surface.CallsOf("SetCurrentX"), 1), Call("SetCurrentX", row.x)) << row.name;
        EXPECT_EQ(At(surface.CallsOf("SetCurrentY"), 1), Call("SetCurrentY", row.y)) << row.name;
    }
}

TEST_F(PrintLabelsTest, QuadrantTitlesGoByTheScalesNumber) {
    Design.PlateStyle = 1;
    Design.NumberOfScales = 5;
    Design.RelativeFontSize[5] = 2;
    Print();
    const Calls all = surface.CallsOf("SetCurrentX");
    const Calls titles = Slice(all, 5, 5);
    // 6000 less 0.8, 0.4, 0.4 and 0.2 of 282.89; then 6000 - 72 x 28.289 x 0.018
    EXPECT_EQ(titles, (Calls{"SetCurrentX 5773", "SetCurrentX 5886", "SetCurrentX 5886",
                             "SetCurrentX 5943", "SetCurrentX 5963"}));
    EXPECT_EQ(At(surface.CallsOf("SetFontSize"), 9), "SetFontSize 6");
}

} // namespace
} // namespace vernacle::test
