#include "desktop/pages/frmCalibrate.h"

#include "engine/base/hostservices.h"
#include "engine/output/calibrate.h"
#include "support/formtest.h"
#include "support/pdfreader.h"

namespace vernacle::test {
namespace {

class CalibratePageTest : public FormTest {
protected:
    CalibratePageTest() {
        Design.DesignFileName = "/designs/mine.VRN";
        OpenPage("frmPreview");
    }

    // With the page open; what use leaves open is closed by its close box. The answers come to the
    // dialogs that use opens, in their order.
    void OnPage(const DialogAnswer& use, const std::vector<DialogAnswer>& answers = {}) {
        Answer([&](QWidget& form) {
            ASSERT_EQ(form.objectName().toStdString(), "frmCalibrate");
            use(form);
            if (form.isVisible()) {
                CloseByUser(form);
            }
        });
        for (const DialogAnswer& answer : answers) {
            Answer(answer);
        }
        ShowModal("frmCalibrate");
        EXPECT_TRUE(AllAnswered());
    }

    void Fill(QWidget& form, const char* box, const std::string& text) const {
        auto& entry = On<EntryBox>(form, box);
        entry.setText(QString::fromStdString(text));
    }

    // Measures of the printed square, and back.
    void Measure(const std::string& width, const std::string& height) {
        OnPage([&](QWidget& form) {
            Fill(form, "txtActualWidth", width);
            Fill(form, "txtActualHeight", height);
            Click(On<QPushButton>(form, "cmdReturn"));
            EXPECT_FALSE(form.isVisible());
        });
    }

    // In that working folder; gives the file of the factors as the calibration left it.
    std::string CancelASaveAfterCalibrating(const std::string& folder) {
        const std::filesystem::path before = std::filesystem::current_path();
        std::filesystem::current_path(Path(folder));
        SetFactors(1, 1);
        Measure("80", "125");
        const std::string factors = ReadFile("Calibrate.txt");
        ClickAndAnswer("Save", Cancel);
        std::filesystem::current_path(before);
        return factors;
    }

    // Prints, and looks at which of the steps show then.
    void PrintSquare(bool nextSteps, const std::vector<DialogAnswer>& answers) {
        OnPage(
            [&](QWidget& form) {
                Click(On<QPushButton>(form, "cmdPrint"));
                ExpectNextSteps(form, nextSteps);
            },
            answers);
    }

    void SetFactors(float x, float y) const {
        Design.CalibrationX = x;
        Design.CalibrationY = y;
    }

    static constexpr const char* kNextSteps[] = {"lblStep2",       "lblMeasure", "lblStep3",
                                                 "lblEnter",       "lblStep4",   "txtActualWidth",
                                                 "txtActualHeight"};

    void ExpectNextSteps(const QWidget& form, bool shown) const {
        for (const char* name : kNextSteps) {
            EXPECT_EQ(On<QWidget>(form, name).isVisible(), shown) << name;
        }
    }
};

TEST_F(CalibratePageTest, Texts) {
    OnPage([this](QWidget& form) {
        EXPECT_EQ(form.windowTitle().toStdString(), "Vernacle - Calibration routine");
        ExpectShown(form, {{"lblHeading", "Printer/Program calibration"},
                           {"lblStep1", "Step 1"},
                           {"lblStep2", "Step 2"},
                           {"lblStep3", "Step 3"},
                           {"lblStep4", "Step 4"},
                           {"lblMeasure",
                            "Now measure the width and height of the printed box, in millimeters."},
                           {"lblEnter", "Enter the actual width and height into the boxes below:"},
                           {"cmdPrint", "Print test square"},
                           {"cmdReturn", "Return"}});
        EXPECT_FALSE(On<EntryBox>(form, "txtActualWidth").accessibleName().isEmpty());
        EXPECT_FALSE(On<EntryBox>(form, "txtActualHeight").accessibleName().isEmpty());
    });
}

TEST_F(CalibratePageTest, EveryLabelHasAName) {
    OnPage([](QWidget& form) {
        for (const auto* label : form.findChildren<QLabel*>()) {
            EXPECT_FALSE(label->objectName().isEmpty()) << label->text().toStdString();
        }
    });
}

TEST_F(CalibratePageTest, NextStepsShowOnceTheSquareIsPrinted) {
    SetFactors(1, 1);
    OnPage(
        [this](QWidget& form) {
            EXPECT_TRUE(On<QWidget>(form, "lblStep1").isVisible());
            EXPECT_TRUE(On<QWidget>(form, "cmdReturn").isVisible());
            ExpectNextSteps(form, false);
            Click(On<QPushButton>(form, "cmdPrint"));
            ExpectNextSteps(form, true);
            EXPECT_EQ(form.focusWidget()->objectName().toStdString(), "txtActualWidth");
            ExpectTabOrder(form, "txtActualWidth txtActualHeight cmdReturn cmdPrint");
        },
        {PrintTo(Path("square.pdf"))});
    EXPECT_TRUE(said.empty());
}

TEST_F(CalibratePageTest, CancelledPrinterShowsNothing) {
    PrintSquare(false, {Cancel});
    EXPECT_TRUE(said.empty());
}

struct SquareRow {
    float x;
    float y;
    double widthMm;
    double heightMm;
};

TEST_F(CalibratePageTest, SquarePrintsByTheFactors) {
    const SquareRow rows[] = {{1, 1, 100, 100}, {0, 0, 100, 100}, {1.2F, 0.9F, 120, 90}};
    int number = 0;
    for (const SquareRow& row : rows) {
        SetFactors(row.x, row.y);
        const std::string file = Path("square" + std::to_string(++number) + ".pdf");
        PrintSquare(true, {PrintTo(file)});
        const SvgPicture page = ReadPdf(file);
        ASSERT_EQ(page.shapes.size(), 1U);
        EXPECT_NEAR(page.shapes[0].WidthOfBox(), row.widthMm, 0.05);
        EXPECT_NEAR(page.shapes[0].HeightOfBox(), row.heightMm, 0.05);
    }
}

TEST_F(CalibratePageTest, PrintingRaisesFactorsOfZero) {
    SetFactors(0, 0);
    PrintSquare(true, {PrintTo(Path("square.pdf"))});
    EXPECT_EQ(Design.CalibrationX, 1);
    EXPECT_EQ(Design.CalibrationY, 1);
}

TEST_F(CalibratePageTest, FailingPrinterIsHeardOnlyAboveMessageLevelZero) {
    for (const int level : {0, 1, 2, -1}) {
        said.clear();
        Design.MessageLevel = static_cast<std::int16_t>(level);
        PrintSquare(false, {PrintTo("/dev/full"), Press(QMessageBox::Yes)}); // the file exists
        Strings expected = {"beep", "failure: We had a problem driving the printer."};
        if (level > 0) {
            expected.insert(expected.begin(), "sound: warningprinter.wav");
        }
        EXPECT_EQ(said, expected) << level;
    }
}

struct MeasureRow {
    const char* name;
    float before;
    const char* measured;
    float after;
};

constexpr MeasureRow kMeasures[] = {
    {"exact", 1, "100", 1},
    {"exact again", 1.07F, "100", 1.07F},
    {"small", 1, "80", 1.25F},
    {"large", 1, "125", 0.8F},
    {"multiplies", 1.25F, "80", 1.5625F},
    {"decimal point", 1, "99.5", 100 / 99.5F},
    {"decimal comma", 1, "99,5", 100 / 99.5F},
    {"half", 1, "200", 0.5F},
    {"below half", 1, "201", 0.5F},
    {"double", 1, "50", 2},
    {"above double", 1, "49.9", 2},
    {"forty", 1, "40", 2},
    {"held again", 2, "80", 2},
    {"tiny", 1, "1e-30", 2},
    {"huge", 1, "1e30", 0.5F},
    {"empty", 1.07F, "", 1.07F},
    {"zero", 1.07F, "0", 1.07F},
    {"negative", 1.07F, "-80", 1.07F},
    {"garbage", 1.07F, "wide", 1.07F},
    {"number and unit", 1, "80 mm", 1.25F},
    {"blanks", 1, "  80", 1.25F},
    {"eleven characters", 1, "80.00000000", 1.25F},
    {"never read", 0, "80", 1.25F},
    {"never read nor measured", 0, "", 1},
    {"out of bounds and not measured", 3, "", 3}, // printing holds it
    {"out of bounds and exact", 3, "100", 2},
};

// Each axis by itself.
TEST_F(CalibratePageTest, MeasuresCorrectTheFactors) {
    for (const MeasureRow& row : kMeasures) {
        SCOPED_TRACE(row.name);
        SetFactors(row.before, 1.1F);
        Measure(row.measured, "");
        EXPECT_FLOAT_EQ(Design.CalibrationX, row.after);
        EXPECT_FLOAT_EQ(Design.CalibrationY, 1.1F);
        SetFactors(1.1F, row.before);
        Measure("", row.measured);
        EXPECT_FLOAT_EQ(Design.CalibrationX, 1.1F);
        EXPECT_FLOAT_EQ(Design.CalibrationY, row.after);
    }
}

TEST_F(CalibratePageTest, ReturnWritesTheSevenLines) {
    SetFactors(1, 1);
    Measure("80", "125");
    EXPECT_EQ(ReadFile("Calibrate.txt"), "\"Vernacle calibration file\"\r\n"
                                         "\r\n"
                                         "#2026-11-21 10:08:00#\r\n"
                                         "\r\n"
                                         "1.25\r\n"
                                         ".8\r\n"
                                         "\r\n");
    EXPECT_EQ(Design.DesignFileName, "Calibrate.txt");
    EXPECT_EQ(OpenPage("frmPreview").windowTitle().toStdString(),
              "Vernacle - Preview - Calibrate.txt");
    EXPECT_TRUE(said.empty());
}

// The design has no name of its own any more: a save that keeps the name goes to a file of that
// name in the working folder.
TEST_F(CalibratePageTest, NextSaveWithoutANameGoesToTheWorkingFolder) {
    std::filesystem::create_directory(Path("work"));
    const std::string factors = CancelASaveAfterCalibrating("work");
    EXPECT_EQ(ReadFile("Calibrate.txt"), factors);
    EXPECT_NE(ReadFile("work/Calibrate.txt").find("\r\nPlate width:"), std::string::npos);
    EXPECT_TRUE(said.empty());
}

// Where that is the factors' own file they stay, and the user is told.
TEST_F(CalibratePageTest, NextSaveWithoutANameDoesNotGoOverTheFactors) {
    const std::string factors = CancelASaveAfterCalibrating("");
    EXPECT_EQ(said, (Strings{"beep", "failure: The Vernacle file was not written correctly.\n"
                                     "ReadWrite 364"}));
    EXPECT_EQ(ReadFile("Calibrate.txt"), factors);
    SetFactors(0, 0);
    ReadCalibrate(Design);
    EXPECT_EQ(Design.CalibrationX, 1.25F);
    EXPECT_EQ(Design.CalibrationY, 0.8F);
}

TEST_F(CalibratePageTest, ReturnWithoutMeasuresWritesToo) {
    SetFactors(0, 0);
    Measure("", "");
    EXPECT_TRUE(Exists("Calibrate.txt"));
    EXPECT_EQ(Design.CalibrationX, 1);
    EXPECT_EQ(Design.CalibrationY, 1);
}

TEST_F(CalibratePageTest, BoxesStartEmpty) {
    Measure("80", "80");
    OnPage([this](QWidget& form) {
        EXPECT_EQ(On<EntryBox>(form, "txtActualWidth").Text(), "");
        EXPECT_EQ(On<EntryBox>(form, "txtActualHeight").Text(), "");
    });
}

TEST_F(CalibratePageTest, UnwritableFileIsSilent) {
    SetFactors(1, 1);
    Host.openForOutput = [](const std::string&) { return OpenFileSink("/dev/full"); };
    Measure("80", "80");
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.CalibrationX, 1.25F);
    EXPECT_EQ(Design.DesignFileName, "Calibrate.txt");
}

struct WayOut {
    const char* name;
    void (*go)(QWidget& form);
};

constexpr WayOut kWaysOut[] = {
    {"close box", [](QWidget& form) { form.close(); }},
    {"Escape", [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); }},
};

TEST_F(CalibratePageTest, CloseBoxWritesNothing) {
    for (const WayOut& way : kWaysOut) {
        SCOPED_TRACE(way.name);
        SetFactors(1, 1);
        OnPage([&](QWidget& form) {
            Fill(form, "txtActualWidth", "80");
            way.go(form);
            EXPECT_FALSE(form.isVisible());
        });
        EXPECT_EQ(Design.CalibrationX, 1);
        EXPECT_FALSE(Exists("Calibrate.txt"));
        EXPECT_EQ(Design.DesignFileName, "/designs/mine.VRN");
        EXPECT_FALSE(TakeProcessEnd());
    }
}

TEST_F(CalibratePageTest, ReturnKeyInABoxPressesNothing) {
    SetFactors(1, 1);
    OnPage([this](QWidget& form) {
        Fill(form, "txtActualWidth", "80");
        QTest::keyClick(&On<EntryBox>(form, "txtActualWidth"), Qt::Key_Return);
        EXPECT_TRUE(form.isVisible());
    });
    EXPECT_FALSE(Exists("Calibrate.txt"));
}

} // namespace
} // namespace vernacle::test
