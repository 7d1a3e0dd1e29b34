#include "engine/output/print.h"

#include <cmath>

#include "support/rendertest.h"

namespace vernacle::test {
namespace {

// The small plate on paper: 28.289 units across and 56.578 up per half millimetre, so that its
// edges are at x = 5717.11 and 6282.89 and at y = 3717.11 and 4282.89. Its tic is at a quarter.
class PrintTest : public RenderTest {
protected:
    PrintTest() {
        Design.CalibrationX = 1;
        Design.CalibrationY = 2;
        Design.DesignFileName = "plates/mine.vrn";
        Design.StandardDeflection[1][0] = 0.25F;
    }

    static constexpr Reference kPaper{28.289, 56.578, 6000, 4000};

    static Calls RulerCalls(int lastMm) {
        const auto x = [](int mm) { return kPaper.Left() + 56.578 * mm; };
        const double y1 = kPaper.Bottom() + 400;
        const double y2 = kPaper.Bottom() + 500;
        Calls calls = {"SetForeColor ff0000", "SetFontSize 8", "SetLineWidth 5"};
        for (int mm = 0; mm <= lastMm; ++mm) {
            calls.push_back(Call("Line", x(mm), y1, x(mm), y2, "ff0000"));
        }
        calls.push_back("SetLineWidth 10");
        for (int mm = 0; mm <= lastMm; mm += 10) {
            calls.push_back(Call("Line", x(mm), y1, x(mm), y2, "ff0000"));
        }
        calls.push_back("SetLineWidth 5");
        calls.push_back(Call("Line", kPaper.Left(), y2, x(lastMm), y2, "ff0000"));
        for (int mm = 0; mm <= lastMm; mm += 10) {
            const std::string number = std::to_string(mm);
            const auto digits = static_cast<double>(number.size());
            calls.push_back(Call("Dot", x(mm) - 45 * digits, y2 + 30, "ffffff"));
            calls.push_back(Call("PrintText", "[" + number + "]"));
        }
        calls.push_back(Call("Dot", x(lastMm / 10 * 10) + 180, y2 + 30, "ffffff"));
        return calls + Calls{"PrintText [MILLIMETERS]", "SetForeColor 0"};
    }
};

constexpr const char* kMarks = R"(
    StartSheet
    FilledBox 5667.11 3667.11 6332.89 4332.89 e0e0e0
    SetLineWidth 16
    Line 5417.11 3717.11 5617.11 3717.11 ff0000
    Line 6382.89 3717.11 6582.89 3717.11 ff0000
    Line 5417.11 4282.89 5617.11 4282.89 ff0000
    Line 6382.89 4282.89 6582.89 4282.89 ff0000
    Line 5717.11 3417.11 5717.11 3617.11 ff0000
    Line 5717.11 4382.89 5717.11 4582.89 ff0000
    Line 6282.89 3417.11 6282.89 3617.11 ff0000
    Line 6282.89 4382.89 6282.89 4582.89 ff0000
    SetLineWidth 6
    Circle 5830.266 4226.312 53.041875 0
    Circle 5830.266 4226.312 42.5209375 ffffff
    Line 5730.266 4226.312 5930.266 4226.312 0
    Line 5830.266 4126.312 5830.266 4326.312 0
    Line 5700.266 4226.312 5960.266 4226.312 ffffff
    Line 5830.266 4096.312 5830.266 4356.312 ffffff
    Circle 6169.734 4226.312 53.041875 0
    Circle 6169.734 4226.312 42.5209375 ffffff
    Line 6069.734 4226.312 6269.734 4226.312 0
    Line 6169.734 4126.312 6169.734 4326.312 0
    Line 6039.734 4226.312 6299.734 4226.312 ffffff
    Line 6169.734 4096.312 6169.734 4356.312 ffffff
    SetLineWidth 3
    Line 5900 4169.734 6100 4169.734 ffffff
    Line 6000 4069.734 6000 4269.734 ffffff
    Circle 6000 4169.734 42.5209375 0
    Line 5900 4396.046 6100 4396.046 0
    Line 6000 4296.046 6000 4496.046 0
)";

// Four lines, 1000, 1150, 1300 and 1450 units below the plate.
constexpr const char* kFooter = R"(
    SetFontSize 6
    SetCurrentX 5717.11
    SetCurrentY 5282.89
    PrintText [plates/mine.vrn]
    SetCurrentX 5717.11
    SetCurrentY 5432.89
    PrintText [Printed by Vernacle from Harrowgate Software]
    SetCurrentX 5717.11
    SetCurrentY 5582.89
    PrintText [https://harrowgate.example/vernacle]
    SetCurrentX 5717.11
    SetCurrentY 5732.89
    PrintText [11/21/26 10:08:00]
    EndDoc
)";

TEST_F(PrintTest, PageOfAOneTicPlate) {
    EXPECT_TRUE(Print());
    const double t = kPaper.T(0.25);
    const double x = kPaper.X(t, 4);
    const double y = kPaper.Y(t, 4);
    const Calls tic = {Call("Line", kPaper.AlongX(t, 4, 0.3), kPaper.AlongY(t, 4, 0.3), x, y, "ff"),
                       "SetFontName [Arial]"};
    // The label's middle, 18 by 33 units, stands half a millimetre outward of the whole arc point.
    const double labelX = std::floor(std::trunc(x) - 28.289 * std::cos(t) - 9);
    const double labelY = std::floor(std::trunc(y) - 56.578 * std::sin(t) - 16.5);
    const Calls texts = {"SetFontName [Arial]", "SetFontSize 3", "SetForeColor ff",
                         Call("SetCurrentX", labelX), Call("SetCurrentY", labelY), "PrintText [7]",
                         // 6000 - 36 x 28.289 x 0.018 = 5981.67, 4000 + 56.578 = 4056.58
                         "SetFontName [Arial]", "SetFontSize 3", "SetForeColor ff",
                         "SetCurrentX 5981", "SetCurrentY 4056", "PrintText [mA]"};
    EXPECT_TRUE(SameCalls(surface.calls,
                          LinesOf(kMarks) + tic + texts + RulerCalls(10) + LinesOf(kFooter)));
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.CurrentScale, 2);
}

TEST_F(PrintTest, PageWithoutText) {
    Design.PrintText = "N";
    Design.PrintTicsAndArcs[1] = std::int16_t{1};
    EXPECT_TRUE(Print());
    EXPECT_TRUE(SameCalls(surface.calls, LinesOf(kMarks) + Calls{"SetFontName [Arial]"} +
                                             RulerCalls(10) + LinesOf(kFooter)));
}

TEST_F(PrintTest, CircularPlatesGetTheirOutline) {
    Design.PlateOutlineCircular = 1;
    Print();
    Calls outline = {"Dot 5717.11 4000 0"}; // round: the unit across counts both ways
    double fromX = 6000 - 282.89;
    double fromY = 4000;
    for (int chord = 1; chord <= 100; ++chord) {
        const double a = chord / 100.0 * 6.28;
        const double x = 6000 - 282.89 * std::cos(a);
        const double y = 4000 + 282.89 * std::sin(a);
        outline.push_back(Call("Line", fromX, fromY, x, y, 0));
        fromX = x;
        fromY = y;
    }
    outline.push_back("SetLineWidth 16");
    EXPECT_TRUE(SameCalls(Slice(surface.calls, 2, 102), outline));
}

TEST_F(PrintTest, QuadrantPlatesHaveNoHoles) {
    Design.PlateStyle = 1;
    Print();
    EXPECT_EQ(surface.Count("Circle"), 1U);
}

TEST_F(PrintTest, CalibrationIsHeldBeforeUseAndStaysSo) {
    constexpr std::pair<float, float> kRows[] = {
        {0, 0.5F}, {-1, 0.5F}, {0.75F, 0.75F}, {1.3F, 1.3F}, {5, 2}};
    for (const auto& [before, held] : kRows) {
        Design.CalibrationX = Design.CalibrationY = before;
        Print();
        EXPECT_EQ(Design.CalibrationX, held) << before;
        EXPECT_EQ(Design.CalibrationY, held) << before;
        const double half = 282.89 * double{held};
        EXPECT_TRUE(
            SameCalls({At(surface.calls, 1)}, Calls{Call("FilledBox", 5950 - half, 3950 - half / 2,
                                                         6050 + half, 4050 + half / 2, "e0e0e0")}));
    }
}

TEST_F(PrintTest, CalibrationIsHeldEvenIfThePrinterDoesNotStart) {
    Design.CalibrationX = 0;
    Design.CalibrationY = 9;
    surface.failCall = "StartSheet";
    EXPECT_FALSE(Print());
    EXPECT_EQ(Design.CalibrationX, 0.5F);
    EXPECT_EQ(Design.CalibrationY, 2);
}

TEST_F(PrintTest, ArcsHaveTheirOwnPen) {
    constexpr std::pair<float, const char*> kRows[] = {{0.5F, "2"}, {1, "3"}, {2, "6"},
                                                       {2.7F, "7"}, {3, "8"}, {10, "25"}};
    Design.DrawArcs = "Y";
    for (const auto& [arcWidth, pixels] : kRows) {
        Design.ArcWidth = arcWidth;
        Print();
        const Calls pens = surface.CallsOf("SetLineWidth"); // marks, tic, arc
        ASSERT_GE(pens.size(), 5U);
        EXPECT_EQ(At(pens, 3), "SetLineWidth 3"); // 4 x 0.7 + 0.5
        EXPECT_EQ(At(pens, 4), std::string("SetLineWidth ") + pixels) << arcWidth;
    }
}

TEST_F(PrintTest, ArcsAreChordsInTheScalesColour) {
    Design.DrawArcs = "Y";
    Design.ScaleColor[1] = 0x123456;
    Print();
    Calls lines = surface.CallsOf("Line");
    std::erase_if(lines, [](const std::string& line) { return !line.ends_with(" 123456"); });
    ASSERT_EQ(lines.size(), 102U); // a tic, a dot and 100 chords
    const double from = kPaper.T(0.99);
    const double to = kPaper.T(1);
    EXPECT_TRUE(SameCalls({Last(lines)}, Calls{Call("Line", kPaper.X(from, 4), kPaper.Y(from, 4),
                                                    kPaper.X(to, 4), kPaper.Y(to, 4), "123456")}));
}

TEST_F(PrintTest, TicsFollowFlagsCorrectionAndScales) {
    Design.CorrectionSlope.fill(0.5F); // below 0.15 a fraction is halved
    Design.NumberOfScales = 3;
    GiveTics(1, 10);
    for (int tic = 0; tic <= 10; ++tic) {
        Design.StandardTicYN[1][tic] = tic == 1 ? "Y" : "N";
    }
    GiveSpecialTics(2, 0);
    Design.TicDeflection[2][0] = 0.1F;
    Design.ScaleColor[2] = -0x00FF00;
    Design.PrintTicsAndArcs[3] = std::int16_t{1};
    Print();
    const Calls lines = surface.CallsOf("Line");
    const double t = kPaper.T(0.05);
    const auto tic = [&](double mm, const char* colour) {
        return Call("Line", kPaper.AlongX(t, 4, mm), kPaper.AlongY(t, 4, mm), kPaper.X(t, 4),
                    kPaper.Y(t, 4), colour);
    };
    EXPECT_TRUE(
        SameCalls({At(lines, 20), At(lines, 21)}, Calls{tic(-0.2, "ff00"), tic(0.3, "ff")}));
    EXPECT_TRUE(At(lines, 22).ends_with(" ff0000")); // the ruler
    EXPECT_EQ(Design.ScaleColor[2], -0x00FF00);
}

TEST_F(PrintTest, RulerIsAsLongAsThePlateUpTo180) {
    constexpr std::pair<float, int> kRows[] = {
        {250, 180}, {180, 180}, {75, 75}, {100.5F, 100}, {99.6F, 99}};
    for (const auto& [plateWidth, lastMm] : kRows) {
        SCOPED_TRACE(plateWidth);
        Design.PlateWidth = plateWidth;
        Print();
        const Calls expected = RulerCalls(lastMm);
        const std::size_t count = expected.size() + 1; // a width is set anew
        const Calls ruler = Slice(Tail(surface.calls, count + 14), 0, count);
        EXPECT_TRUE(SameCalls(ruler, expected));
    }
}

TEST_F(PrintTest, PlateLargerThanThePageIsNotScaledDown) {
    Design.PlateWidth = 300;
    Design.PlateHeight = 200;
    Print();
    EXPECT_TRUE(
        SameCalls({At(surface.calls, 1)}, "FilledBox -2536.7 -7365.6 14536.7 15365.6 e0e0e0"));
}

TEST_F(PrintTest, StagesInReserveAreNotPrinted) {
    Print();
    const Calls bare = surface.calls;
    Design.TextString[1] = "free";
    Design.HighlightStart[1] = 1;
    Design.HighlightStop[1] = 90;
    Design.DrawGraphic = "Y";
    Drawing.GridShown = Drawing.PointerShown = 1;
    Print();
    EXPECT_EQ(surface.calls, bare);
}

TEST_F(PrintTest, TwoPrintsAreEqual) {
    for (const char* rotation : {"H", "B", "V"}) {
        Design.LabelRotation = rotation;
        Design.NumberOfScales = 3;
        Design.RelativeFontSize[1] = 2;
        Design.RelativeFontSize[3] = 0.5F;
        Print();
        const Calls first = surface.calls;
        EXPECT_EQ(Design.FontSize, 3);
        EXPECT_EQ(Design.LabelSpacing, 0.5F);
        Print();
        EXPECT_EQ(surface.calls, first);
    }
}

// What the printer's trouble at that marker is told as.
Texts TroubleAt(int marker) {
    return {"failure: We had a problem driving the printer.\n\nPrintScaleErrorHandler 1026 " +
            std::to_string(marker)};
}

TEST_F(PrintTest, FailureAtAnyCallEndsTheDocumentAndIsReportedWithoutASound) {
    Design.DrawArcs = "Y";
    Design.RelativeFontSize[1] = 2;
    Print();
    const int count = static_cast<int>(surface.calls.size());
    const int rulerAndFooter = count - (2 + 9 + 13 + 6) - 2 - 103 - 4 - 3 - 6 - 1;
    // The markers, and how many calls are made at each.
    const std::pair<int, int> rows[] = {
        {265, 2 + 9 + 13 + 6}, // page and background, trim marks, holes, bearings
        {425, 2},              // the tic
        {483, 103},            // the arc between its widths
        {541, 4},              // fonts and colour
        {549, 3},              // the label
        {602, 6},              // the title
        {316, rulerAndFooter}, //
        {675, 1},              // the document's end
    };
    int call = 0;
    for (const auto& [marker, calls] : rows) {
        for (const int last = call + calls; call < last;) {
            ++call;
            surface.failAt = call;
            said.clear();
            EXPECT_FALSE(Print());
            EXPECT_EQ(said, TroubleAt(marker))
                << call << " " << At(surface.calls, surface.calls.size() - 2);
            EXPECT_EQ(static_cast<int>(surface.calls.size()), call + 1);
            EXPECT_EQ(Last(surface.calls), "EndDoc");
            EXPECT_EQ(Design.FontSize, 3);
            EXPECT_EQ(Design.LabelSpacing, 0.5F);
        }
    }
    EXPECT_EQ(call, count);
}

TEST_F(PrintTest, DocumentThatCannotBeEndedIsReportedOnce) {
    surface.failCall = "EndDoc";
    EXPECT_FALSE(Print());
    EXPECT_EQ(said, TroubleAt(675));
}

struct SpecialRow {
    bool special;
    std::int16_t printTicsAndArcs;
    int marker;
};

TEST_F(PrintTest, RadiusOfZeroIsReported) {
    const SpecialRow rows[] = {{false, 0, 425}, {true, 0, 435}, {false, 1, 549}, {true, 1, 590}};
    Design.BottomToScaleCeiling[1] = -1;
    for (const SpecialRow& row : rows) {
        Design.ScaleColor[1] = 1;
        if (row.special) {
            GiveSpecialTics(1, 0);
        }
        Design.PrintTicsAndArcs[1] = row.printTicsAndArcs;
        said.clear();
        EXPECT_FALSE(Print());
        EXPECT_EQ(said, TroubleAt(row.marker));
        EXPECT_EQ(Last(surface.calls), "EndDoc");
    }
}

} // namespace
} // namespace vernacle::test
