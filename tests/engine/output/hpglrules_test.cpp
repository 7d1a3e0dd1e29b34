#include <algorithm>
#include <functional>

#include "hpgltest.h"

namespace vernacle::test {
namespace {

class HpglRulesTest : public HpglTest {
protected:
    // The statements from the first that is `from` up to the next that is `to`, both included.
    static Calls Part(const std::string& from, const std::string& to) {
        const Calls all = Statements();
        const auto start = std::find(all.begin(), all.end(), from);
        const auto end = std::find(start, all.end(), to);
        return end == all.end() ? Calls(start, end) : Calls(start, end + 1);
    }
};

// In units of the plate's own corner at 1/40 mm: across and up 40 to the millimetre.
const Reference kUnits{20, 20, 4100, 0};

TEST_F(HpglRulesTest, ArcsAre100Chords) {
    Design.DrawArcs = "Y";
    const Calls arc = Part("DI", "LO6");
    ASSERT_EQ(arc.size(), 2U + 101 + 1);
    EXPECT_EQ(arc[1], "PW .1 ");
    for (int chord = 0; chord <= 100; ++chord) {
        const double t = kUnits.T(chord / 100.0);
        const double up = kUnits.Bottom() - kUnits.Y(t, 4);
        EXPECT_EQ(arc[static_cast<std::size_t>(chord) + 2],
                  Move(chord == 0 ? "PU" : "PD", kUnits.X(t, 4), 8340 + up));
    }
}

// Else a design from a stranger could give commands to the printer that it is sent to.
TEST_F(HpglRulesTest, TextsGiveNoCommands) {
    std::string hostile = "a";
    for (char control = 0; control < ' '; ++control) {
        hostile += control;
    }
    hostile += "b\x7F\x1B%0A\xC2\xB5";
    const std::string harmless = "ab%0A\xB5"; // in the plotter's code page
    Design.ScaleTitle[1] = hostile;
    Design.StandardLabel[1][2] = hostile;
    Design.TextString[1] = hostile;
    Design.DesignFileName = hostile;
    for (const HpglMode mode : {HpglMode::File, HpglMode::PclPrinter}) {
        std::string stream = Stream(mode);
        const auto escapes = std::count(stream.begin(), stream.end(), '\x1B');
        EXPECT_EQ(escapes, mode == HpglMode::File ? 0 : 5); // the wrapping's own
        int found = 0;
        for (const std::string& label : {harmless, "Filename: " + harmless}) {
            const std::string statement = "LB" + label + "\x03\r\n";
            for (auto at = stream.find(statement); at != stream.npos; at = stream.find(statement)) {
                stream.erase(at, statement.size());
                ++found;
            }
        }
        EXPECT_EQ(found, 4);
        std::erase_if(stream, [](char c) { return c == '\r' || c == '\n' || c == '\x03'; });
        const auto isControl = [](char c) { return c < ' ' && c != '\x1B'; };
        EXPECT_EQ(std::count_if(stream.begin(), stream.end(), isControl), 0);
    }
}

TEST_F(HpglRulesTest, ScalesWithoutArcsStillSetDirectionAndPen) {
    for (const char* answer : {"N", "", "y"}) {
        Design.DrawArcs = answer;
        EXPECT_EQ(Part("DI", "LO6"), (Calls{"DI", "PW .1 ", "LO6"}));
    }
}

TEST_F(HpglRulesTest, EvenScalesPointInwardAndScalesGoUpward) {
    Design.NumberOfScales = 2;
    Design.ScaleTitle[2] = "V";
    Design.StandardDeflection[2][0] = 0.5F;
    Design.LabelsEveryHowMany[2] = 1;
    const Calls second = Part("LBmA\x03", "LO6");
    EXPECT_EQ(second,
              (Calls{"LBmA\x03", "PW .8 ", "PW .8 ", "PW .4 ", "PU 4100  8488 ", "PD 4100  8500 ",
                     "LO5", "PU 4100  8480 ", "DI 1  0 ", "LB7\x03", "DI", "PW .1 ", "LO6"}));
    EXPECT_TRUE(HasText("V"));
}

struct PlottedPenRow {
    const char* name;
    std::int16_t major;
    std::int16_t labels;
    float majorLength;
    const char* pens; // of tics 0, 1 and 2
};

TEST_F(HpglRulesTest, PensGoByTheTicsLength) {
    const PlottedPenRow rows[] = {
        {"all kinds", 2, 2, 0.3F, " .8  .8  .4  .1  .8  .8  .4 "},
        {"major alone", 1, 5, 0.3F, " .8  .8  .4  .8  .4  .8  .4 "},
        {"labelled between", 5, 1, 0.3F, " .8  .8  .4  .8  .4  .8  .4 "},
        {"equal lengths take the minor pen", 2, 2, 0.2F, " .8  .8  .1  .1  .8  .8  .1 "},
    };
    Design.ArcWidth = 9; // tells its pen from the tics'
    for (const PlottedPenRow& row : rows) {
        Design.MajorEveryHowMany[1] = row.major;
        Design.LabelsEveryHowMany[1] = row.labels;
        Design.MajorTicLength = row.majorLength;
        std::string pens;
        for (const std::string& statement : Part("SD 1,21 2,1 7,4", "DI")) {
            pens += statement.starts_with("PW") ? statement.substr(2) : "";
        }
        EXPECT_EQ(pens, row.pens) << row.name;
    }
    EXPECT_EQ(CountOf("PW .9 "), 1);
}

TEST_F(HpglRulesTest, LabelsAreWrittenAsTheTableHoldsThem) {
    Design.StandardLabel[1][0] = " 1,5 ";
    EXPECT_TRUE(HasText(" 1,5 "));
}

TEST_F(HpglRulesTest, FullCircleOfOneScaleHasNoFirstLabel) {
    Design.PointerDeflection = 360;
    EXPECT_EQ(CountOf("LB0\x03"), 1); // the ruler's
    EXPECT_TRUE(HasText("2"));
    EXPECT_EQ(CountOf("LO5"), 3 + 1); // all tics stay
    EXPECT_EQ(CountOf("DI -1 0"), 0);
    Design.PointerDeflection = 359;
    EXPECT_EQ(CountOf("LB0\x03"), 2);
    Design.PointerDeflection = 360;
    Design.NumberOfScales = 2;
    EXPECT_EQ(CountOf("LB0\x03"), 2);
}

TEST_F(HpglRulesTest, FullCircleWithoutTicsTurnsItsTextsOver) {
    Design.PointerDeflection = 360;
    Design.NrOfTicmarks[1] = -1; // the loop over the tics stands at 0 afterwards
    const Calls title = Part("LO6", "LBmA\x03");
    EXPECT_EQ(title, (Calls{"LO6", "PU 4100  8420 ", "DI -1 0", "LBmA\x03"}));
    Design.PointerDeflection = 90;
    EXPECT_EQ(At(Part("LO6", "LBmA\x03"), 2), "DI 1  0 ");
}

TEST_F(HpglRulesTest, NothingButTheRulerIsWrittenWithoutPrintText) {
    Design.TextString[1] = "free";
    Design.NumberOfTexts = 7;
    for (const char* answer : {"N", "", "y"}) {
        Design.PrintText = answer;
        Calls texts = Statements();
        std::erase_if(texts, [](const std::string& s) {
            return !s.starts_with("LB") && !s.starts_with("DI") && !s.starts_with("LO3");
        });
        EXPECT_EQ(texts, (Calls{"DI", "LB0\x03", "LB10\x03", "LBmm\x03"}));
        EXPECT_EQ(Design.NumberOfTexts, 7);
    }
}

struct TextsRow {
    const char* name;
    std::vector<int> filled;
    std::int16_t counted;
    std::vector<int> written;
};

TEST_F(HpglRulesTest, FreeTextsAreCountedAmongFiveAndCutOffByGaps) {
    const TextsRow rows[] = {
        {"none", {}, 0, {}},
        {"all ten", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 5, {1, 2, 3, 4, 5}},
        {"a gap", {1, 3}, 2, {1}},
        {"a gap at the start", {2, 3, 4}, 3, {2, 3}},
        {"the fifth alone", {5}, 1, {}},
        {"beyond the fifth", {1, 6}, 1, {1}},
    };
    for (const TextsRow& row : rows) {
        SCOPED_TRACE(row.name);
        for (int text = 1; text <= kTexts; ++text) {
            const bool isFilled =
                std::find(row.filled.begin(), row.filled.end(), text) != row.filled.end();
            Design.TextString[text] = isFilled ? "text " + std::to_string(text) : "";
        }
        for (int text = 1; text <= kTexts; ++text) {
            const bool isWritten =
                std::find(row.written.begin(), row.written.end(), text) != row.written.end();
            EXPECT_EQ(HasText("text " + std::to_string(text)), isWritten) << text;
        }
        EXPECT_EQ(Design.NumberOfTexts, row.counted);
        EXPECT_EQ(CountOf("LO3"), static_cast<int>(row.written.size()));
    }
}

TEST_F(HpglRulesTest, FreeTextsHaveTheirOwnSizeAndPlace) {
    Design.TextString[1] = "free";
    Design.TextRelativeSize[1] = 16;
    Design.LeftToText[1] = -0.5F;
    Design.BottomToText[1] = 1.26F;
    EXPECT_EQ(Part("LO3", "LBfree\x03"),
              (Calls{"LO3", "SI 2.5 3.3333", "PU 3880  8390 ", "LBfree\x03"}));
}

struct PlottedRulerRow {
    float plateWidth;
    int corner;
    int lastMm;
    int lineEnd;
    int unitAt;
};

TEST_F(HpglRulesTest, RulerIsAsLongAsThePlateUpTo180) {
    const PlottedRulerRow rows[] = {
        {250, -900, 180, 6300, 6460},    {180, 500, 180, 7700, 7860},
        {100.5F, 2090, 100, 6110, 6270}, {75, 2600, 75, 5600, 5760},
        {10.49F, 3890, 10, 4309, 4470}, // 4309.6 is cut at the line's end, rounded at the unit
        {10.47F, 3890, 10, 4308, 4469}, // a corner at 3890.6 is cut
    };
    for (const PlottedRulerRow& row : rows) {
        SCOPED_TRACE(row.plateWidth);
        Design.PlateWidth = row.plateWidth;
        const Calls expected = RulerStatements(row.corner, row.lastMm, row.lineEnd, row.unitAt);
        EXPECT_EQ(Part("PW.5", "LO"), expected);
    }
}

TEST_F(HpglRulesTest, NegativeCornersAreWrittenWithTheirSign) {
    Design.PlateWidth = 250.02F; // a corner at Int(-900.4), Int(-1103.2)
    Design.PlateHeight = 300.1F;
    const Calls all = Statements();
    EXPECT_EQ(At(all, 4), "PU-931 -1204 ");
    EXPECT_EQ(At(all, 5), "PD-931  11000 "); // -1104 + 12004 + 100
    EXPECT_EQ(CountOf("PU 800 -1904 "), 1);
    EXPECT_EQ(CountOf("PU 800 -2104 "), 1);
}

struct NumberRow {
    const char* name;
    float arcWidth;
    const char* statement;
};

TEST_F(HpglRulesTest, NumbersNeverHaveExponents) {
    const NumberRow rows[] = {
        {"tiny", 0.00001F, "PW .000001 "},
        {"a third", 1 / 3.0F, "PW .03333334 "},
        {"huge", 1e9F, "PW 100000000 "},
        {"negative", -3, "PW-.3 "},
        {"seven digits", 12345.678F, "PW 1234.568 "},
        {"zero", 0, "PW 0 "},
    };
    for (const NumberRow& row : rows) {
        Design.ArcWidth = row.arcWidth;
        EXPECT_EQ(At(Part("DI", "LO6"), 1), row.statement) << row.name;
    }
    Design.FontSize = 6;
    EXPECT_EQ(At(Statements(), 3), "SI .1 .15");
    Design.FontSize = 120;
    EXPECT_EQ(At(Statements(), 3), "SI 2 3");
    Design.FontSize = 0.000006F;
    EXPECT_EQ(At(Statements(), 3), "SI .0000001 .00000015");
}

TEST_F(HpglRulesTest, TextsAreWindows1252) {
    Design.ScaleTitle[1] = "\xC2\xB5"
                           "A \xE2\x82\xAC \xCE\xA9"; // micro, euro, ohm
    Design.StandardLabel[1][0] = "\xC2\xBD";          // a half
    Design.TextString[1] = "\xE2\x88\x9E";            // infinity
    EXPECT_TRUE(HasText("\xB5"
                        "A \x80 ?"));
    EXPECT_TRUE(HasText("\xBD"));
    EXPECT_TRUE(HasText("?"));
}

struct IgnoredRow {
    const char* name;
    std::function<void()> change;
};

TEST_F(HpglRulesTest, StreamLeavesOutWhatPlottersDoNotKnow) {
    const IgnoredRow rows[] = {
        {"deleted tics", [] { Design.StandardTicYN[1][1] = "N"; }},
        {"deleted labels", [] { Design.StandardLabelYN[1][2] = "N"; }},
        {"special scales", [] { GiveSpecialTics(1, 5); }},
        {"colours", [] { Design.ScaleColor[1] = 0x123456; }},
        {"correction", [] { Design.CorrectionSlope[3] = Design.CorrectionSlope[5] = 0.5F; }},
        {"quadrant style", [] { Design.PlateStyle = 1; }},
        {"relative sizes", [] { Design.RelativeFontSize[1] = 3; }},
        {"rotation", [] { Design.LabelRotation = "V"; }},
        {"switch of tics and arcs", [] { Design.PrintTicsAndArcs[1] = std::int16_t{1}; }},
        {"outline", [] { Design.PlateOutlineCircular = 1; }},
        {"highlights", [] { Design.HighlightStart[1] = Design.HighlightStop[1] = 50; }},
        {"graphic", [] { Design.DrawGraphic = "Y"; }},
        {"aspect", [] { Design.AspectRatio = 0.9F; }},
        {"calibration", [] { Design.CalibrationX = Design.CalibrationY = 1.5F; }},
    };
    const std::string stream = Stream();
    for (const IgnoredRow& row : rows) {
        row.change();
        EXPECT_EQ(Stream(), stream) << row.name;
    }
}

} // namespace
} // namespace vernacle::test
