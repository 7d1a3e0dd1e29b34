// How the true plate comes to the printer and to the plotter.
#include "engine/output/trueprint.h"

#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/output/hpgl.h"
#include "engine/output/print.h"
#include "engine/output/trueplot.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

class DeviceSurface : public RecordingSurface {
public:
    bool IsDevice() const override { return true; }
};

class TruePrintTest : public RenderTest {
protected:
    TruePrintTest() {
        StoreService(Program::Workshop);
        Design.PlateBackground = kWhite;
        Design.CalibrationX = 1.5F;
        Design.CalibrationY = 0.5F;
    }
};

// The background is a millimetre wider on each side.
Calls BackgroundOf(double across, double up) {
    const double perMm = 56.578;
    return {Call("FilledBox", 6000 - 6 * perMm * across, 4000 - 3.5 * perMm * up,
                 6000 + 6 * perMm * across, 4000 + 3.5 * perMm * up, "ffffff")};
}

TEST_F(TruePrintTest, ThePrintersFactorsAreForADevice) {
    RecordingSurface file;
    EXPECT_TRUE(PrintPlate(Design, file));
    EXPECT_TRUE(SameCalls(file.CallsOf("FilledBox"), BackgroundOf(1, 1)));
    DeviceSurface device;
    EXPECT_TRUE(PrintPlate(Design, device));
    EXPECT_TRUE(SameCalls(device.CallsOf("FilledBox"), BackgroundOf(1.5, 0.5)));
    EXPECT_EQ(file.CallsOf("SetLineThickness"), device.CallsOf("SetLineThickness"));
}

TEST_F(TruePrintTest, AFailureIsReportedOnce) {
    RecordingSurface printer;
    printer.failCall = "PlaceText";
    EXPECT_FALSE(PrintPlate(Design, printer));
    ASSERT_EQ(said.size(), 1U);
    EXPECT_TRUE(said[0].starts_with("failure: We had a problem driving the printer.")) << said[0];
    EXPECT_EQ(Last(printer.calls), "EndDoc");
}

TEST_F(TruePrintTest, TheSheetKeepsMarksAndFooter) {
    RecordingSurface printer;
    PrintPlate(Design, printer);
    EXPECT_NEAR(double{printer.keptTop}, 4000 - 2.5 * 56.578 - 300, 0.01);
    EXPECT_NEAR(double{printer.keptBottom}, 4000 + 2.5 * 56.578 + 1450, 0.01);
    Design.PlateOutlineCircular = 1; // rounder than the plate is high
    PrintPlate(Design, printer);
    EXPECT_NEAR(double{printer.keptTop}, 4000 - 5 * 56.578 - 300, 0.01);
}

TEST_F(TruePrintTest, WhatDoesNotFitOnASheetIsNamed) {
    struct Row {
        float width, height;
        double sheetWidth, sheetHeight;
        const char* cut;
    };
    constexpr const char* kAll = "the plate's edge, trim marks, the ruler, the footer";
    const Row rows[] = {
        {180, 180, 210, 297, ""},
        {180, 180, 215.9, 279.4, ""},
        {75, 50, 148, 210, ""},
        {75, 50, 105, 148, ""},
        {75, 110, 105, 148, "the footer"},
        {90, 50, 105, 148, "trim marks"}, // 5.3 mm beside the plate, of 7.5, and 4.2 are white
        {97, 50, 105, 148, kAll},
        {75, 200, 210, 210, "trim marks, the ruler, the footer"},
        {75, 180, 297, 210, "the ruler, the footer"},
    };
    Design.CalibrationX = Design.CalibrationY = 1;
    for (const Row& row : rows) {
        Design.PlateWidth = row.width;
        Design.PlateHeight = row.height;
        EXPECT_EQ(CutOffOnSheet(Design, row.sheetWidth, row.sheetHeight), row.cut)
            << row.width << " x " << row.height << " on " << row.sheetWidth;
    }
    Design.PlateWidth = Design.PlateHeight = 180;
    Design.CalibrationX = 1.06F;
    EXPECT_EQ(CutOffOnSheet(Design, 210, 297), "trim marks, the ruler")
        << "for a printer that prints too small";
}

TEST_F(TruePrintTest, EightPensAreEnoughForEightColours) {
    Design.NumberOfScales = 6;
    for (int scale = 1; scale <= 6; ++scale) {
        Design.ScaleColor[scale] = 0x101010 * scale;
        Design.BottomToScaleCeiling[scale] = 3 + static_cast<float>(scale);
    }
    EXPECT_EQ(PensOf(Design).size(), 8U); // with black and the marks' blue
    EXPECT_FALSE(NeedsMorePens(Design));
    EXPECT_EQ(PensOf(Design).front().name, "black");
    EXPECT_EQ(PensOf(Design).back().name, "blue");
    Design.TextString[1] = "Made here";
    Design.TextColor[1] = 0x0000FF;
    EXPECT_EQ(PensOf(Design).size(), 8U);
    EXPECT_TRUE(NeedsMorePens(Design));
}

TEST_F(TruePrintTest, TheBoxSaysThatTheGraphicIsNotPlotted) {
    WriteHpgl(Design, Path("a.hpgl"), HpglMode::File);
    Design.DrawGraphic = "Y";
    WriteHpgl(Design, Path("b.hpgl"), HpglMode::File);
    EXPECT_EQ(said,
              (std::vector<std::string>{
                  "information: THE HPGL FILE WAS SUCCESSFULLY WRITTEN TO\r\n" + Path("a.hpgl"),
                  "information: THE HPGL FILE WAS SUCCESSFULLY WRITTEN TO\r\n" + Path("b.hpgl") +
                      "\r\nThe graphic is not plotted."}));
    EXPECT_EQ(ReadFile("a.hpgl"), ReadFile("b.hpgl"));
}

TEST_F(TruePrintTest, ThePclPrinterGetsTheStreamInItsWrapper) {
    WriteHpgl(Design, Path("a.hpgl"), HpglMode::File);
    const std::string port = Path("LPT1");
    const auto open = Host.openForOutput;
    Host.openForOutput = [open, port](const std::string&) { return open(port); };
    WriteHpgl(Design, "", HpglMode::PclPrinter);
    EXPECT_EQ(ReadFile("LPT1"), "\x1B"
                                "E\r\n\x1B&l0O\r\n\x1B%1B\r\n" +
                                    ReadFile("a.hpgl") +
                                    "\x1B%1A\r\n\x1B"
                                    "E\r\n");
}

TEST_F(TruePrintTest, WhatCannotBeWrittenIsReported) {
    WriteHpgl(Design, "/dev/full", HpglMode::File);
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[1], "failure: The HPGL file was not written correctly.");
}

} // namespace
} // namespace vernacle::test
