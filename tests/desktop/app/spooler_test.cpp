// What arrives at a printer when the pages print on a real spooler, and what the user hears when
// nothing does.
#include "desktop/app/spoolertest.h"

#include <QComboBox>
#include <QInputDialog>

#include "desktop/app/strokes.h"
#include "desktop/system/desktophost.h"
#include "engine/base/hostservices.h"
#include "engine/designfile/readwrite.h"
#include "engine/scale/scale.h"
#include "support/environment.h"
#include "support/pdfreader.h"
#include "support/plategeometry.h"
#include "support/process.h"
#include "support/sourcetree.h"

namespace vernacle::test {
namespace {

constexpr double kToleranceMm = 0.02;
constexpr const char* kAt = "2026-01-02 03:04:05";
constexpr const char* kPlateFailure = "failure: We had a problem driving the printer.\n\n"
                                      "PrintScaleErrorHandler 1026 ";
constexpr const char* kSquareFailure = "failure: We had a problem driving the printer.";
constexpr const char* kPclFailure = "failure: The HPGL file was not written correctly.";

class PrintJobsTest : public SpoolerTest {
protected:
    void SetUp() override {
        SpoolerTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        design = SourcePath("examples/MILLIAMPERES-0-1.VRN");
        ReadDesign(Design, design);
        Design.DesignFileName = design;
        OpenPage("frmPreview");
    }

    void PrintPlate(const PrintChoice& choice) {
        Choose(choice);
        Click("Print");
    }

    // On the calibration page; gives whether the next steps showed.
    bool PrintSquare(const PrintChoice& choice) {
        bool shown = false;
        Answer([&](QWidget& form) {
            Choose(choice);
            Click(On<QPushButton>(form, "cmdPrint"));
            shown = On<QWidget>(form, "txtActualWidth").isVisible();
            CloseByUser(form);
        });
        ShowModal("frmCalibrate");
        return shown;
    }

    // All strokes of the plate stand where the design's file puts them.
    void ExpectPlate(const PrintJob& job, const Paper& paper) const {
        const SvgPicture page = PageOf(job);
        EXPECT_NEAR(page.widthMm, paper.widthMm, 0.36) << "whole points";
        EXPECT_NEAR(page.heightMm, paper.heightMm, 0.36);
        const Plate plate = ReadPlate(ReadWholeFile(design));
        const std::vector<Shape> lines = SheetGeometry(plate, paper, {}).Lines({});
        EXPECT_GT(lines.size(), 50U);
        ExpectStrokes(page, lines, kToleranceMm);
    }

    void ExpectSquare(const PrintJob& job) const {
        const SvgPicture page = PageOf(job);
        ASSERT_EQ(page.shapes.size(), 1U);
        EXPECT_NEAR(page.shapes[0].WidthOfBox(), 100, kToleranceMm);
        EXPECT_NEAR(page.shapes[0].HeightOfBox(), 100, kToleranceMm);
    }

    std::string design;
};

struct PaperRow {
    const char* queue;
    const char* chosen; // in the dialog; nothing for what it proposes
    const char* media;  // in the job's options
    Paper paper;
};

constexpr PaperRow kPaperRows[] = {
    {"office", "A4", "A4", kA4},
    {"office", "US Letter", "Letter", kLetter},
    {"letter", "A4", "A4", kA4},
    {"letter", "US Letter", "Letter", kLetter},
    {"office", "", "A4", kA4},
    {"letter", "", "Letter", kLetter},
    {"plotter", "Letter", "Letter", kLetter},
};

TEST_F(PrintJobsTest, TheJobAndItsPageHaveTheChosenPaper) {
    for (const PaperRow& row : kPaperRows) {
        SCOPED_TRACE(std::string(row.queue) + ": " + row.chosen);
        PrintPlate({.queue = row.queue, .paper = row.chosen});
        const PrintJob job = TheSpooler().TakeJob(row.queue);
        EXPECT_TRUE(job.Has(std::string("media=") + row.media)) << job.options;
        EXPECT_TRUE(job.Has("print-scaling=none")) << job.options;
        EXPECT_EQ(job.title, "MILLIAMPERES-0-1.VRN");
        ExpectPlate(job, row.paper);
    }
    EXPECT_TRUE(said.empty());
}

// With its own paper: the toolkit's dialog shows no other one at first.
TEST_F(PrintJobsTest, TheChosenQueueIsProposedAgain) {
    PrintPlate({.queue = "letter", .paper = "A4"});
    EXPECT_TRUE(TheSpooler().TakeJob("letter").Has("media=A4"));
    ClickAndAnswer("Print", [](QWidget& dialog) {
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    const PrintJob again = TheSpooler().TakeJob("letter");
    EXPECT_TRUE(again.Has("media=Letter")) << again.options;
    ExpectPlate(again, kLetter);
}

TEST_F(PrintJobsTest, AQueueThatFitsPagesPrintsAtTrueSize) {
    const Strings rows[] = {
        {"print-scaling-default=fit"}, {"print-scaling-default=fill"},
        {"fit-to-page-default=true"},  {"number-up-default=2"},
        {"scaling-default=50"},        {"natural-scaling-default=50"},
    };
    for (const Strings& row : rows) {
        SCOPED_TRACE(row.front());
        TheSpooler().Do("lpadmin", {"-p", "office", "-o", row.front()});
        PrintPlate({.queue = "office", .paper = "US Letter"});
        ExpectPlate(TheSpooler().TakeJob("office"), kLetter);
        EXPECT_TRUE(PrintSquare({.queue = "office", .paper = "A4"}));
        const PrintJob square = TheSpooler().TakeJob("office");
        EXPECT_TRUE(square.Has("print-scaling=none")) << square.options;
        EXPECT_EQ(square.title, "Calibration square");
        ExpectSquare(square);
        TheSpooler().Start();
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(PrintJobsTest, WhatIsChosenInTheDialogReachesTheJob) {
    PrintPlate({.queue = "office",
                .paper = "A4",
                .copies = 3,
                .onBothSides = true,
                .fromLowerTray = true,
                .firstPageOnly = true});
    const PrintJob job = TheSpooler().TakeJob("office");
    EXPECT_TRUE(job.Has("InputSlot=Lower")) << job.options;
    EXPECT_TRUE(job.Has("sides=two-sided-long-edge")) << job.options;
    EXPECT_TRUE(job.Has("page-ranges=1-1") || job.Has("page-ranges=1")) << job.options;
    EXPECT_EQ(job.copies, "3") << job.options;
    PrintPlate({.queue = "office", .paper = "A4"});
    const PrintJob plain = TheSpooler().TakeJob("office");
    EXPECT_TRUE(plain.Has("sides=one-sided")) << plain.options;
    EXPECT_FALSE(plain.Has("InputSlot=Lower")) << plain.options;
    EXPECT_EQ(plain.copies, "1");
}

TEST_F(PrintJobsTest, ALandscapeSheetArrivesWhole) {
    EXPECT_TRUE(
        PrintSquare({.queue = "office", .paper = "A4", .orientation = QPageLayout::Landscape}));
    const PrintJob job = TheSpooler().TakeJob("office");
    EXPECT_TRUE(job.Has("orientation-requested=4") || job.Has("landscape")) << job.options;
    ExpectSquare(job);
    const SvgPicture page = PageOf(job);
    ASSERT_FALSE(page.shapes.empty());
    const MmPoint middle = page.shapes[0].Centre();
    const double across = (6000 - 5750) / 56.578; // of the plate's middle beside the sheet's
    const bool turned = page.widthMm < page.heightMm;
    EXPECT_NEAR((turned ? middle.y - page.heightMm / 2 : middle.x - page.widthMm / 2),
                (turned ? -across : across), 0.4)
        << AboutPageOf(job);
    EXPECT_NEAR((turned ? middle.x - page.widthMm / 2 : middle.y - page.heightMm / 2), 0, 0.4);
}

struct RefusalRow {
    const char* name;
    std::function<void()> before;
    std::function<void()> meanwhile;
};

TEST_F(PrintJobsTest, ARefusedJobIsToldAndNothingIsShownAsPrinted) {
    const RefusalRow rows[] = {
        {"rejecting", [] { TheSpooler().Do("cupsreject", {"office"}); }, {}},
        {"rejecting meanwhile", {}, [] { TheSpooler().Do("cupsreject", {"office"}); }},
        {"removed",
         {},
         [] {
             TheSpooler().Do("lpadmin", {"-x", "office"});
         }},
        {"no server any more", {}, [] { TheSpooler().End(); }},
    };
    for (const RefusalRow& row : rows) {
        for (const bool plate : {true, false}) {
            SCOPED_TRACE(std::string(row.name) + (plate ? ", plate" : ", square"));
            TheSpooler().Start();
            said.clear();
            reasons.clear();
            if (row.before) {
                row.before();
            }
            const PrintChoice choice{.queue = "office", .paper = "A4", .meanwhile = row.meanwhile};
            if (plate) {
                PrintPlate(choice);
                ASSERT_EQ(said.size(), 1U);
                EXPECT_EQ(said[0].rfind(kPlateFailure, 0), 0U) << said[0];
            } else {
                EXPECT_FALSE(PrintSquare(choice)) << "the next steps";
                ASSERT_FALSE(said.empty());
                EXPECT_EQ(said.back(), kSquareFailure);
            }
            ASSERT_FALSE(reasons.empty());
            EXPECT_EQ(reasons.back().rfind("lp: ", 0), 0U) << reasons.back();
            EXPECT_FALSE(TheSpooler().HasJobs());
        }
    }
}

TEST_F(PrintJobsTest, AQueueThatHoldsTheJobIsNoFailure) {
    TheSpooler().Do("cupsdisable", {"office"});
    EXPECT_TRUE(PrintSquare({.queue = "office", .paper = "A4"}));
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(TheSpooler().Waiting("office"), 1U);
    EXPECT_FALSE(TheSpooler().HasJobs());
    TheSpooler().Do("cupsenable", {"office"});
    ExpectSquare(TheSpooler().TakeJob("office"));
}

// The toolkit's own job, which is what a spooler without its program gets.
TEST_F(PrintJobsTest, WithoutTheProgramTheJobHasTheChosenPaperToo) {
    for (const auto& [paper, media, sheet] :
         {std::tuple{"US Letter", "Letter", kLetter}, {"A4", "A4", kA4}}) {
        {
            const EnvironmentVariable path("PATH", Path("empty"));
            PrintPlate({.queue = "office", .paper = paper});
        }
        const PrintJob job = TheSpooler().TakeJob("office");
        EXPECT_TRUE(job.Has(std::string("media=") + media)) << job.options;
        EXPECT_TRUE(job.Has("print-scaling=none")) << job.options;
        ExpectPlate(job, sheet);
    }
}

TEST_F(PrintJobsTest, AFileNameStandsReadyBesideTheQueues) {
    const std::string home = Path("home");
    std::filesystem::create_directories(home);
    const EnvironmentVariable setting("HOME", home);
    Strings names;
    const auto look = [&names](QWidget& dialog) {
        auto* printers = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
        EXPECT_NE(printers->currentIndex(), printers->count() - 1) << "a queue is chosen";
        printers->setCurrentIndex(printers->count() - 1);
        names.push_back(
            dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->text().toStdString());
        Cancel(dialog);
    };
    ClickAndAnswer("Print", look);
    Answer([&](QWidget& form) {
        Answer(look);
        Click(On<QPushButton>(form, "cmdPrint"));
        CloseByUser(form);
    });
    ShowModal("frmCalibrate");
    EXPECT_EQ(names, (Strings{home + "/MILLIAMPERES-0-1.pdf", home + "/Calibration square.pdf"}));
}

// The raw job of the plotter page.
class RawJobsTest : public PrintJobsTest {
protected:
    void SetUp() override {
        PrintJobsTest::SetUp();
        Host.openForOutput = DesktopHost().openForOutput;
        Host.localDateTime = [] { return kAt; };
    }

    // Presses the button on the page; the answer goes to the question for the queue, if any.
    void Send(const DialogAnswer& answer = {}) {
        said.clear();
        reasons.clear();
        Answer([&](QWidget& form) {
            if (answer) {
                Answer(answer);
            }
            Click(On<QPushButton>(form, "cmdPCL"));
            CloseByUser(form);
        });
        ShowModal("frmHPGL");
    }

    DialogAnswer ChooseQueue(const QString& queue) {
        return [this, queue](QWidget& dialog) {
            auto& question = dynamic_cast<QInputDialog&>(dialog);
            EXPECT_EQ(question.objectName().toStdString(), "dlgQueue");
            proposed = question.textValue().toStdString();
            offered = question.comboBoxItems().join(QLatin1Char(' ')).toStdString();
            question.setTextValue(queue);
            question.accept();
        };
    }

    std::string proposed;
    std::string offered;
};

TEST_F(RawJobsTest, TheStreamIsTheExportersByteForByte) {
    ComputeTicDeflections(Design);
    ComputeTicLabels(Design);
    Send(ChooseQueue(QStringLiteral("plotter")));
    ASSERT_EQ(said.size(), 1U);
    EXPECT_EQ(said[0].rfind("information: THE HPGL FILE WITH PCL HEADER/FOOTER WAS SENT", 0), 0U);
    EXPECT_EQ(proposed, "plotter");
    EXPECT_EQ(offered, "letter office plotter");
    const PrintJob job = TheSpooler().TakeJob("plotter");
    EXPECT_EQ(job.title, "MILLIAMPERES-0-1.VRN");
    const ProcessResult exported =
        RunProgram(VERNACLE_EXPORT, {"--at", kAt, design, Path("plate.pcl")});
    ASSERT_EQ(exported.status, 0) << exported.err;
    EXPECT_GT(job.bytes.size(), 2000U);
    EXPECT_TRUE(job.bytes == ReadFile("plate.pcl"));
}

TEST_F(RawJobsTest, TheQueueIsAskedForEachTime) {
    Design.DesignFileName.clear();
    Send(ChooseQueue(QStringLiteral("office")));
    EXPECT_EQ(TheSpooler().TakeJob("office").title, "Vernacle");
    Send(ChooseQueue(QStringLiteral("plotter")));
    EXPECT_EQ(proposed, "plotter") << "the default one, not the last";
    EXPECT_FALSE(TheSpooler().TakeJob("plotter").bytes.empty());
    Send(Cancel);
    EXPECT_TRUE(said.empty());
    EXPECT_FALSE(TheSpooler().HasJobs());
}

TEST_F(RawJobsTest, AnOnlyQueueIsTakenWithoutAQuestion) {
    for (const char* queue : {"letter", "plotter"}) {
        TheSpooler().Do("lpadmin", {"-x", queue});
    }
    Send();
    EXPECT_FALSE(TheSpooler().TakeJob("office").bytes.empty());
    TheSpooler().Do("lpadmin", {"-x", "office"});
    Send();
    ASSERT_FALSE(said.empty());
    EXPECT_EQ(said.back(), kPclFailure);
    ASSERT_FALSE(reasons.empty());
    EXPECT_EQ(reasons.back().rfind("lp: ", 0), 0U) << reasons.back();
}

TEST_F(RawJobsTest, ARefusedStreamSaysWhy) {
    TheSpooler().Do("cupsreject", {"plotter"});
    Send(ChooseQueue(QStringLiteral("plotter")));
    EXPECT_EQ(said, (Strings{"beep", kPclFailure}));
    ASSERT_FALSE(reasons.empty());
    EXPECT_NE(reasons.back().find("not accepting jobs"), std::string::npos) << reasons.back();
    EXPECT_FALSE(TheSpooler().HasJobs());
}

} // namespace
} // namespace vernacle::test
