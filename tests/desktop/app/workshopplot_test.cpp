// The ways out with everything in service: the plotter's pens and their width, and what is told
// before a plot and a print.
#include "desktop/pages/plateprint.h"
#include "engine/base/hostservices.h"
#include "engine/core/service.h"
#include "support/formtest.h"
#include "support/scriptedsink.h"

namespace vernacle::test {
namespace {

class WorkshopPlotTest : public FormTest {
protected:
    WorkshopPlotTest() {
        StoreService(Program::Workshop);
        ResetDesign(Design);
        Host.openForOutput = [this](const std::string&) { return OpenScriptedSink(script); };
    }

    void OnPage(const DialogAnswer& use) {
        OpenPage("frmPreview");
        ClickAndAnswer("cmdHPGL", [&](QWidget& form) {
            use(form);
            form.close();
        });
    }

    // Presses Write, answers the box before it, and gives what that box said.
    std::string Plot(QMessageBox::StandardButton answer = QMessageBox::Ok) {
        std::string shown;
        script.bytes.clear();
        OnPage([&](QWidget& form) {
            Answer([&](QWidget& box) {
                shown = dynamic_cast<QMessageBox&>(box).text().toStdString();
                Press(answer)(box);
            });
            Click(On<QPushButton>(form, "cmdHPGL"));
        });
        return shown;
    }

    // Of that many zones, each in a colour of its own.
    static void GiveZones(int zones) {
        constexpr Colour kColours[] = {0x0000FF, 0xFF0000, 0x00FF00, 0x008000, 0x00FFFF,
                                       0x00A5FF, 0xFF00FF, 0xFFFF00, 0x800080};
        for (int zone = 1; zone <= zones; ++zone) {
            Design.HighlightStart[zone] = static_cast<float>(10 * zone);
            Design.HighlightStop[zone] = static_cast<float>(10 * zone + 5);
            Design.HighlightCeiling[zone] = 30;
            Design.HighlightLength[zone] = 3;
            Design.HighlightColor[zone] = kColours[zone - 1];
        }
    }

    SinkScript script;
};

TEST_F(WorkshopPlotTest, ThePensAreShownBeforeThePlot) {
    GiveZones(2);
    EXPECT_EQ(Plot(QMessageBox::Cancel),
              "The plotter's pens and their colours:\n\nPen 1: black\nPen 2: red\nPen 3: blue");
    EXPECT_EQ(script.bytes, "") << "cancelled";
    EXPECT_TRUE(said.empty());
    Plot();
    EXPECT_NE(script.bytes.find("CO\"pen one black, pen two red, pen three blue\";"),
              std::string::npos);
    ASSERT_EQ(said.size(), 1U);
    EXPECT_EQ(said[0].find("graphic"), std::string::npos);
    Design.DrawGraphic = "Y";
    Plot();
    EXPECT_TRUE(said.back().ends_with("\r\nThe graphic is not plotted.")) << said.back();
}

TEST_F(WorkshopPlotTest, ANinthColourIsToldOf) {
    GiveZones(7);
    EXPECT_EQ(Plot().find("nearest"), std::string::npos);
    GiveZones(8);
    const std::string shown = Plot();
    EXPECT_NE(shown.find("\nPen 8: magenta\n\nThe plate has more colours than a plotter has pens."),
              std::string::npos)
        << shown;
}

TEST_F(WorkshopPlotTest, HatchingLinesStandAPenApart) {
    GiveZones(1);
    const auto linesAt = [this](const char* width) {
        OnPage([&](QWidget& form) {
            auto& box = On<EntryBox>(form, "txtPenWidth");
            if (*width == '\0') {
                EXPECT_EQ(box.Text(), ".3");
                EXPECT_EQ(box.toolTip(), QLatin1String("0.1 to 2 mm"));
                Click(On<QWidget>(form, "UpDownPenWidthUp"));
                EXPECT_EQ(Design.PenWidth, 0.4F);
                Click(On<QWidget>(form, "UpDownPenWidthDown"));
                return;
            }
            box.selectAll();
            QTest::keyClicks(&box, QLatin1String(width));
        });
        Plot();
        const std::size_t pen = script.bytes.find("SP2");
        const std::string zone = script.bytes.substr(pen, script.bytes.find("SP", pen + 3) - pen);
        std::size_t strokes = 0;
        for (std::size_t at = zone.find("PD"); at != zone.npos; at = zone.find("PD", at + 1)) {
            ++strokes;
        }
        return static_cast<double>(strokes);
    };
    const double usual = linesAt("");
    EXPECT_NEAR(Design.PenWidth, 0.3, 1e-6);
    const double fine = linesAt("0.1");
    const double coarse = linesAt("5");
    EXPECT_EQ(Design.PenWidth, 2);
    const double outline = coarse - 3; // nearly
    EXPECT_NEAR((fine - outline) / (usual - outline), 3, 0.5);
    Design.PenWidth = -1; // a file's
    EXPECT_GT(linesAt("x"), 0);
    ResetDesign(Design);
    EXPECT_EQ(Design.PenWidth, 0.3F);
}

TEST_F(WorkshopPlotTest, APlateTooLargeFailsInThePlot) {
    Design.PlateHeight = 1e6F;
    OnPage([this](QWidget& form) { Click(On<QPushButton>(form, "cmdHPGL")); });
    ASSERT_FALSE(said.empty());
    EXPECT_EQ(said.back(), "failure: The HPGL file was not written correctly.");
}

TEST_F(WorkshopPlotTest, WhatASheetCutsOffIsToldBeforeThePrinterDialog) {
    OpenPage("frmPreview");
    const auto print = [this](std::size_t boxes) {
        Answer([&, boxes](QWidget& dialog) {
            EXPECT_EQ(dialog.objectName(), QLatin1String("PrintDialog"));
            EXPECT_EQ(said.size(), boxes);
            Cancel(dialog);
        });
        AskAndPrintPlate(&Page());
        EXPECT_TRUE(AllAnswered());
    };
    print(0);
    Design.PlateHeight = 400;
    print(1);
    EXPECT_EQ(said[0].rfind("information: The plate is too large for the printer's sheet of ", 0),
              0U);
    EXPECT_NE(said[0].find(" mm. What is cut off: the plate's edge, trim marks, the ruler, the "
                           "footer.\n"),
              std::string::npos)
        << said[0];
    StoreService(Program::Everyday);
    said.clear();
    print(0);
}

} // namespace
} // namespace vernacle::test
