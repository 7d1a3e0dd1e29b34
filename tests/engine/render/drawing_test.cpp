#include "engine/render/drawing.h"

#include <algorithm>
#include <map>

#include "engine/base/runtimeerror.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

using DrawingTest = RenderTest;

constexpr const char* kOneTicPlate = R"(
    Clear
    SetLineWidth 1
    FilledBox 4400 2700 7600 5900 e0e0e0
    Box 4400 2700 7600 5900 ffffff
    Box 4368 2668 7632 5932 0
    Line 4100 2700 4300 2700 ff0000
    Line 7700 2700 7900 2700 ff0000
    Line 4100 5900 4300 5900 ff0000
    Line 7700 5900 7900 5900 ff0000
    Line 4400 2400 4400 2600 ff0000
    Line 4400 6000 4400 6200 ff0000
    Line 7600 2400 7600 2600 ff0000
    Line 7600 6000 7600 6200 ff0000
    Circle 5040 5580 600 0
    Circle 5040 5580 316 ffffff
    Line 4940 5580 5140 5580 0
    Line 5040 5480 5040 5680 0
    Line 4910 5580 5170 5580 ffffff
    Line 5040 5450 5040 5710 ffffff
    Circle 6960 5580 600 0
    Circle 6960 5580 316 ffffff
    Line 6860 5580 7060 5580 0
    Line 6960 5480 6960 5680 0
    Line 6830 5580 7090 5580 ffffff
    Line 6960 5450 6960 5710 ffffff
    Line 5900 5260 6100 5260 ffffff
    Line 6000 5160 6000 5360 ffffff
    Circle 6000 5260 316 0
    Line 5900 6540 6100 6540 0
    Line 6000 6440 6000 6640 0
    SetForeColor ff0000
    SetFontSize 10
    Line 4400 6400 4400 6500 ff0000
    Line 4720 6400 4720 6500 ff0000
    Line 5040 6400 5040 6500 ff0000
    Line 5360 6400 5360 6500 ff0000
    Line 5680 6400 5680 6500 ff0000
    Line 6000 6400 6000 6500 ff0000
    Line 6320 6400 6320 6500 ff0000
    Line 6640 6400 6640 6500 ff0000
    Line 6960 6400 6960 6500 ff0000
    Line 7280 6400 7280 6500 ff0000
    Line 7600 6400 7600 6500 ff0000
    SetLineWidth 2
    Line 4400 6400 4400 6500 ff0000
    Line 7600 6400 7600 6500 ff0000
    Line 4400 6500 7600 6500 ff0000
    SetLineWidth 1
    Dot 4355 6530 ffffff
    PrintText [0]
    Dot 7510 6530 ffffff
    PrintText [10]
    Dot 7780 6530 ffffff
    PrintText [mm]
    SetForeColor 0
    SetLineWidth 3
    Line 6000 3148 6000 3340 0
    SetFontName [Arial]
    SetFontSize 13.68
    SetForeColor 0
    BeginFont 25 19 0 [Arial]
    SetCurrentX 5913.32352
    SetCurrentY 2947.7696
    PrintText [7]
    EndFont
    SetForeColor 0
    BeginFont 24 19 0 [Arial]
    SetCurrentX 5951.5728
    SetCurrentY 4620
    PrintText [mA]
    EndFont
)";

TEST_F(DrawingTest, PreviewOfAOneTicPlate) {
    Draw(PreviewTraits());
    EXPECT_TRUE(SameCalls(surface.calls, kOneTicPlate));
    EXPECT_EQ(Drawing.WhereMarker, 675);
    EXPECT_EQ(Drawing.LabelFontFace, std::string("Arial\0", 6));
    EXPECT_FLOAT_EQ(Drawing.PlateScale, 320);
    EXPECT_EQ(Drawing.PlateCentreX, 6000);
    EXPECT_EQ(Drawing.PlateCentreY, 4300);
    EXPECT_EQ(Drawing.DegreesPerRadian, ComputeDegreesPerRadian());
    EXPECT_NEAR(Drawing.PointerLength, 3.3 / 0.70710678, 1e-5);
}

// The plate of a page beside the entries reaches from (1900, 2900) to (4900, 5900).
constexpr const char* kPagePlate = R"(
    Clear
    SetLineWidth 1
    FilledBox 1900 2900 4900 5900 e0e0e0
    Box 1900 2900 4900 5900 ffffff
    Box 1868 2868 4932 5932 0
    Line 1600 2900 1800 2900 ff0000
    Line 5000 2900 5200 2900 ff0000
    Line 1600 5900 1800 5900 ff0000
    Line 5000 5900 5200 5900 ff0000
    Line 1900 2600 1900 2800 ff0000
    Line 1900 6000 1900 6200 ff0000
    Line 4900 2600 4900 2800 ff0000
    Line 4900 6000 4900 6200 ff0000
    Line 3300 5300 3500 5300 ffffff
    Line 3400 5200 3400 5400 ffffff
    Circle 3400 5300 297.25 0
    Line 3300 6500 3500 6500 0
    Line 3400 6400 3400 6600 0
)";

TEST_F(DrawingTest, PagesDrawTicsArcsLabelsAndTitlesInTheScalesColour) {
    GiveTics(1, 2);
    Design.PlateStyle = 1; // no holes
    Design.DrawArcs = "Y";
    Design.LabelsEveryHowMany[1] = 2;
    Design.MajorEveryHowMany[1] = 2;
    Design.ScaleLengthUnits[1] = 2;
    Draw(TextTraits());

    const Reference page = PageReference();
    const auto x = [&](double g, double mm) { return page.AlongX(page.T(g), 4, mm); };
    const auto y = [&](double g, double mm) { return page.AlongY(page.T(g), 4, mm); };
    const auto tic = [&](double g, double mm) {
        return Call("Line", x(g, mm), y(g, mm), x(g, 0), y(g, 0), "ff");
    };
    Calls expected =
        LinesOf(kPagePlate) +
        Calls{"SetLineWidth 3", tic(0, 0.3),
              "SetLineWidth 1", tic(0.5, 0.2),
              "SetLineWidth 3", tic(1, 0.3),
              "SetLineWidth 1", Call("Line", x(0, 0), y(0, 0), x(0, 0), y(0, 0), "ff")};
    for (int chord = 1; chord <= 100; ++chord) {
        const double from = (chord - 1) / 100.0;
        const double to = chord / 100.0;
        expected.push_back(Call("Line", x(from, 0), y(from, 0), x(to, 0), y(to, 0), "ff"));
    }
    const double size = 300 * 0.0285 * 3 * 0.5;
    const double across = 300 * 0.0011 * 0.5 * 2 * 3 * (6 * size);
    const double down = 300 * 0.001 * 0.5 * 3 * (11 * size);
    expected =
        expected + Calls{"SetFontName [Arial]", Call("SetFontSize", size), "SetForeColor ff"};
    for (const int label : {0, 2}) { // the height 23.1 rounds to 23, the width 17.82 to 18
        expected =
            expected + Calls{"BeginFont 23 18 0 [Arial]",
                             Call("SetCurrentX", x(label / 2.0, 0.5) - across),
                             Call("SetCurrentY", y(label / 2.0, 0.5) - down),
                             Call("PrintText", "[" + std::to_string(label) + "]"), "EndFont"};
    }
    expected = expected + Calls{"SetForeColor ff",
                                "BeginFont 22 18 0 [Arial]",
                                Call("SetCurrentX", page.Left() + 300 * 0.5 * 10 * 0.2),
                                Call("SetCurrentY", (5 - 2 * 2) * 300 + 4400),
                                "PrintText [mA]",
                                "EndFont"};
    EXPECT_TRUE(SameCalls(surface.calls, expected));
}

struct PageRow {
    const char* name;
    DrawingTraits traits;
    bool ruler;
    bool onTheLeft;
    bool ticsInColour;
    Texts texts; // behind the ruler's, with labels 1 "N", 2 "" and tic 1 deleted
    std::size_t tics;
};

TEST_F(DrawingTest, PagesDifferInTheirTraits) {
    const PageRow rows[] = {
        {"preview", PreviewTraits(), true, false, false, {"0", "1", "2", "3", "mA"}, 3},
        {"scales", ScalesTraits(), false, true, true, {"0", "3", "mA"}, 3},
        {"text and graphic", TextTraits(), false, true, true, {"0", "2", "3", "mA"}, 3},
        {"highlights", HighlightsTraits(), false, true, true, {"0", "2", "3", "mA"}, 3},
        {"wizard", WizardTraits(), false, false, true, {"0", "1", "2", "3", "mA"}, 4},
    };
    for (const PageRow& row : rows) {
        SCOPED_TRACE(row.name);
        GiveTics(1, 3);
        Design.ScaleLengthUnits[1] = 3;
        Design.ScaleColor[1] = 0x123456;
        Design.StandardTicYN[1][1] = "N";
        Design.StandardLabelYN[1][1] = "N";
        Design.StandardLabelYN[1][2] = "";
        Design.PlateStyle = 1;
        Draw(row.traits);
        // The ruler writes two numbers and its unit.
        const Calls texts = Slice(surface.texts, row.ruler ? 3 : 0, surface.texts.size());
        EXPECT_EQ(texts, row.texts);
        EXPECT_EQ(Drawing.PlateCentreX, row.onTheLeft ? 3400 : 6000);
        EXPECT_EQ(Drawing.PlateCentreY, row.onTheLeft ? 4400 : 4300);
        EXPECT_FLOAT_EQ(Drawing.PlateScale, row.onTheLeft ? 300 : 320);
        const Calls lines = surface.CallsOf("Line");
        const std::size_t coloured = static_cast<std::size_t>(
            std::count_if(lines.begin(), lines.end(),
                          [](const std::string& line) { return line.ends_with(" 123456"); }));
        EXPECT_EQ(coloured, row.ticsInColour ? row.tics : 0U);
        const std::size_t others = 8 + 4 + (row.ruler ? 11 + 2 + 1 : 0);
        EXPECT_EQ(lines.size(), others + row.tics);
    }
}

TEST_F(DrawingTest, CorrectionIsAppliedButByTheWizard) {
    Design.CorrectionSlope.fill(0.5F); // below 0.15 a fraction is halved
    const std::map<bool, std::vector<DrawingTraits>> pages = {
        {true, {PreviewTraits(), ScalesTraits(), TextTraits(), HighlightsTraits()}},
        {false, {WizardTraits()}},
    };
    for (const auto& [corrected, traits] : pages) {
        for (DrawingTraits page : traits) {
            page.preparation = Preparation::None; // which would compute the table anew
            Design.StandardDeflection[1][0] = 0.1F;
            Draw(page);
            const double k = page.extent / 10;
            const Reference at{k * 0.5, k, page.centre.x, page.centre.y};
            const double t = at.T(corrected ? 0.05 : 0.1);
            EXPECT_TRUE(IsAt(Drawing.LastArcPoint, at.X(t, 4), at.Y(t, 4), 0.002)) << page.extent;
        }
    }
    EXPECT_EQ(Design.StandardDeflection[1][0], 0.1F); // the table stays uncorrected
}

TEST_F(DrawingTest, PagesRaiseCountsAndComputeTheTables) {
    for (const DrawingTraits& traits :
         {ScalesTraits(), TextTraits(), HighlightsTraits(), WizardTraits()}) {
        Design.NumberOfScales = 0;
        Design.CurrentScale = -2;
        Design.AspectRatio = 0;
        GiveTics(1, 4);
        Design.ScaleLengthUnits[1] = 40;
        Design.StandardDeflection[1][1] = 0.9F;
        Draw(traits);
        EXPECT_EQ(Design.NumberOfScales, 1);
        EXPECT_EQ(Design.CurrentScale, 2);
        EXPECT_EQ(Design.AspectRatio, 1);
        EXPECT_EQ(Design.StandardDeflection[1][1], 0.25F);
        EXPECT_EQ(Design.StandardLabel[1][1], "10");
        EXPECT_EQ(Drawing.WhereMarker, 675);
    }
}

TEST_F(DrawingTest, TablesThatCannotBeComputedAreARunTimeError) {
    Design.CurrentScale = 0;
    EXPECT_THROW(Draw(ScalesTraits()), RunTimeError); // no steps: nothing divided by nothing
    EXPECT_TRUE(surface.calls.empty());
    EXPECT_EQ(Design.CurrentScale, 1);
    EXPECT_TRUE(said.empty());
}

TEST_F(DrawingTest, PreviewTakesTablesAndCountsAsTheyStand) {
    Design.NumberOfScales = 0;
    Design.AspectRatio = -3;
    Draw(PreviewTraits());
    EXPECT_EQ(Design.NumberOfScales, 0);
    EXPECT_EQ(Design.AspectRatio, 1);
    EXPECT_EQ(surface.Count("BeginFont"), 0U);
    EXPECT_EQ(Design.StandardDeflection[1][0], 0.5F);
}

TEST_F(DrawingTest, HighlightsPageCountsThoseWithStartAndStopAboveZero) {
    GiveTics(1, 2);
    Design.NumberOfHighlights = 9;
    Design.HighlightStop[1] = 40; // start 0
    Design.HighlightStart[2] = 40;
    for (const int full : {3, 10}) {
        Design.HighlightStart[full] = 10;
        Design.HighlightStop[full] = 20;
    }
    Draw(TextTraits());
    EXPECT_EQ(Design.NumberOfHighlights, 9);
    Draw(HighlightsTraits());
    EXPECT_EQ(Design.NumberOfHighlights, 2);
}

TEST_F(DrawingTest, PreviewClearsColoursAndSetsLabelsBack) {
    Design.NumberOfScales = 2;
    GiveTics(1, 2);
    GiveTics(2, 2);
    GiveSpecialTics(2, 1);
    Design.ScaleColor[2] = -0x123456;
    Design.StandardLabelYN[1][1] = "N";
    Design.StandardLabelYN[2][2] = "N";
    Design.TicLabelYN[2][1] = "N";
    Draw(PreviewTraits());
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(Design.ScaleColor[2], 0);
    EXPECT_EQ(Design.StandardLabelYN[1][1], "Y");
    EXPECT_EQ(Design.StandardLabelYN[2][2], "Y");
    // Special when its tics are drawn, standard once its labels are.
    const Calls texts = Slice(surface.texts, 3, surface.texts.size());
    EXPECT_EQ(texts, (Calls{"0", "1", "2", "0", "1", "2", "mA", "mA"}));
    for (const std::string& call : surface.CallsOf("SetForeColor")) {
        EXPECT_TRUE(call == "SetForeColor 0" || call == "SetForeColor ff0000") << call;
    }
}

TEST_F(DrawingTest, PreviewWithoutTextKeepsColoursAndDeletions) {
    Design.PrintText = "N";
    Design.StandardLabelYN[1][0] = "N";
    Draw(PreviewTraits());
    EXPECT_EQ(Design.ScaleColor[1], 0xFF);
    EXPECT_EQ(Design.StandardLabelYN[1][0], "N");
}

TEST_F(DrawingTest, OtherPagesKeepColoursAndDeletions) {
    for (const DrawingTraits& traits :
         {ScalesTraits(), TextTraits(), HighlightsTraits(), WizardTraits()}) {
        GiveTics(1, 2);
        Design.StandardLabelYN[1][1] = "N";
        Draw(traits);
        EXPECT_EQ(Design.ScaleColor[1], 0xFF);
        EXPECT_EQ(Design.StandardLabelYN[1][1], "N");
    }
}

TEST_F(DrawingTest, SizesAreThoseOfThePagesLoad) {
    DrawPage(Design, surface, PreviewTraits(), {6, 1}, Drawing);
    EXPECT_EQ(Last(surface.CallsOf("SetFontSize")), "SetFontSize 27.36");
    // Heights 49.25 and 48, width 38; the anchor a whole millimetre above the arc.
    EXPECT_EQ(surface.CallsOf("BeginFont"),
              (Calls{"BeginFont 49 38 0 [Arial]", "BeginFont 48 38 0 [Arial]"}));
    EXPECT_TRUE(SameCalls({At(surface.CallsOf("SetCurrentY"), 0)},
                          Calls{Call("SetCurrentY", 3340 - 640 - 0.96 * 11 * 27.36)}));
}

TEST_F(DrawingTest, StagesInReserveDoNotShow) {
    GiveTics(1, 2);
    for (const DrawingTraits& traits :
         {PreviewTraits(), ScalesTraits(), TextTraits(), HighlightsTraits(), WizardTraits()}) {
        const auto drawn = [&](bool given) {
            Design.TextString[1] = given ? "free" : "";
            Design.HighlightStart[1] = given ? 1 : 0;
            Design.HighlightStop[1] = given ? 90 : 0;
            Design.DrawGraphic = given ? "Y" : "N";
            Design.PlateOutlineCircular = given ? 1 : 0;
            Drawing.GridShown = Drawing.PointerShown = given ? 1 : 0;
            Design.ScaleColor[1] = 0xFF;
            Draw(traits);
            return surface.calls;
        };
        EXPECT_EQ(drawn(true), drawn(false));
    }
}

} // namespace
} // namespace vernacle::test
