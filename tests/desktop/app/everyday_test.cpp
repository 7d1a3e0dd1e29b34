// The whole everyday path, by the user's own keys and clicks: a new design is entered, looked at,
// calibrated, printed, plotted and saved; tomorrow the last session has everything back.
#include <algorithm>
#include <span>
#include <sstream>

#include <QListWidget>

#include "desktop/app/strokes.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/core/fieldplace.h"
#include "engine/render/drawing.h"
#include "gallery/dump.h"
#include "support/environment.h"
#include "support/formtest.h"
#include "support/pdfreader.h"
#include "support/plategeometry.h"

namespace vernacle::test {

namespace {

using D = DesignRecord;

constexpr double kToleranceMm = 0.05;
constexpr double kMeasuredWidth = 102; // of the test square, mm
constexpr double kMeasuredHeight = 98;

// What is typed into a box, and what of it the design holds.
struct Typed {
    const char* box;
    const char* text;
    double value;
    FieldPlace field;
};

constexpr Typed kPlateEntries[] = {
    {"txtPlateWidth", "84", 84, At<&D::PlateWidth>},
    {"txtPlateHeight", "61.5", 61.5, At<&D::PlateHeight>},
    {"txtBottomToBearing", "-2.5", -2.5, At<&D::BottomToBearing>},
    {"txtBottomToHoles", "12.25", 12.25, At<&D::BottomToHoles>},
    {"txtHoleSeparation", "58", 58, At<&D::HoleSeparation>},
    {"txtPointerDeflection", "84.5", 84.5, At<&D::PointerDeflection>},
    {"txtActualVirtualOffset", "31", 31, At<&D::ActualVirtualOffset>},
    {"txtMinorTicLength", "2.75", 2.75, At<&D::MinorTicLength>},
    {"txtMajorTicLength", "4.5", 4.5, At<&D::MajorTicLength>},
    {"txtMinorTicWidth", "2", 2, At<&D::MinorTicWidth>},
    {"txtMajorTicWidth", "5", 5, At<&D::MajorTicWidth>},
    {"txtFontSize", "8", 8, At<&D::FontSize>},
    {"txtLabelSpacing", "5.5", 5.5, At<&D::LabelSpacing>},
    {"txtArcWidth", "3", 3, At<&D::ArcWidth>},
};

constexpr Typed kScaleEntries[] = {
    {"txtScaleLeftEnd", "-5", -5, At<&D::ScaleLeftEnd>},
    {"txtScaleLength", "35", 35, At<&D::ScaleLengthUnits>},
    {"txtBottomToScaleCeiling", "47", 47, At<&D::BottomToScaleCeiling>},
    {"txtBottomToTitle", "27.5", 27.5, At<&D::BottomToTitle>},
    {"txtNumberOfTics", "35", 35, At<&D::NrOfTicmarks>},
    {"txtMajorTicsEveryHowMany", "7", 7, At<&D::MajorEveryHowMany>},
    {"txtLabelsEveryHowMany", "5", 5, At<&D::LabelsEveryHowMany>},
};

constexpr const char* kTitle = "KILOVOLTS, peak";
constexpr const char* kAspect = "0.93";

bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != text.npos;
}

class EverydayTest : public FormTest {
protected:
    EverydayTest() {
        std::filesystem::create_directory(Path("home")); // whose documents the plotter file joins
    }

    // As a new process: nothing is left but what the files hold.
    void StartProgram() {
        UnloadPage();
        Settle();
        Design = DesignRecord{};
        Drawing = DrawingState{};
        OpenPage("frmOpening");
    }

    // By a cancelled question for an old one.
    void StartNewDesign() {
        StartProgram();
        ClickAndAnswer("cmdOld", Cancel);
        ExpectPage("frmPreview", "Vernacle - Preview");
    }

    void PressKeys(QKeyCombination key) const {
        Page().activateWindow(); // as a window manager does when a dialog has gone
        QTest::keyClick(Page().windowHandle(), key.key(), key.keyboardModifiers());
        Settle();
    }

    void ExpectPage(const std::string& name, const std::string& title) const {
        EXPECT_EQ(PageName(), name);
        EXPECT_EQ(Page().windowTitle().toStdString(), title);
    }

    void TypeAll(std::span<const Typed> entries) const {
        for (const Typed& entry : entries) {
            Type(entry.box, entry.text);
        }
    }

    void ExpectAll(std::span<const Typed> entries) const {
        for (const Typed& entry : entries) {
            EXPECT_NEAR(NumberIn(entry.field.In(Design, 1)), entry.value, 1e-5) << entry.box;
            EXPECT_NEAR(NumericValue(TextOf(entry.box)), entry.value, 1e-5) << entry.box;
        }
    }

    void EnterPlate() {
        PressKeys(Qt::CTRL | Qt::Key_1);
        ExpectPage("frmPlate", "Vernacle - Plate design");
        TypeAll(kPlateEntries);
        Click("optLabelRotationBearing");
        ExpectAll(kPlateEntries);
    }

    void EnterScale() {
        PressKeys(Qt::CTRL | Qt::Key_2);
        ExpectPage("frmScales", "Vernacle - Scale design");
        TypeAll(kScaleEntries);
        Type("txtScaleTitle", kTitle);
        ExpectAll(kScaleEntries);
        const Strings drawn = TextsOf("picPlate");
        EXPECT_EQ(std::count(drawn.begin(), drawn.end(), kTitle), 1);
    }

    // The pages on which nothing can be entered.
    void LookAtTheOtherPages() {
        PressKeys(Qt::CTRL | Qt::Key_3);
        ExpectPage("frmText", "Vernacle - Text entry");
        EXPECT_EQ(TextOf("txtText"), "");
        PressKeys(Qt::CTRL | Qt::Key_4);
        ExpectPage("frmGraphic", "Vernacle - Graphic entry");
        EXPECT_EQ(Find<QLabel>("lblGraphicName").text(),
                  QLatin1String("(No graphic currently selected)"));
        PressKeys(Qt::CTRL | Qt::Key_5);
        ExpectPage("frmHighlights", "Vernacle - Highlight entry");
        ReadPercents();
    }

    // Of the tics, from the list beside the page.
    void ReadPercents() {
        ClickAndSettle("cmdShowTicInfo");
        QWidget* list = QApplication::activeWindow();
        ASSERT_TRUE(list);
        EXPECT_EQ(list->objectName(), QLatin1String("frmShowTicInfo"));
        const auto& rows = On<QListWidget>(*list, "lstTicsData");
        ASSERT_EQ(rows.count(), 36);
        EXPECT_EQ(rows.item(35)->text(), QLatin1String("Scale 1   35    30   100         "));
        Click(On<QPushButton>(*list, "cmdExit"));
        Settle();
    }

    void EnterAspect() {
        PressKeys(Qt::CTRL | Qt::Key_6);
        ExpectPage("frmPreview", "Vernacle - Preview");
        Paste("txtAspect", kAspect); // typed, each digit would be held to the limits at once
        EXPECT_FLOAT_EQ(Design.AspectRatio, 0.93F);
    }

    // Prints the square, measures it and tells.
    void Calibrate() {
        PressKeys(Qt::CTRL | Qt::Key_1);
        ClickAndAnswer("cmdCalibrate", [this](QWidget& form) {
            Answer(PrintTo(Path("square.pdf")));
            Click(On<QWidget>(form, "cmdPrint"));
            On<QLineEdit>(form, "txtActualWidth").setText(QString::number(kMeasuredWidth));
            On<QLineEdit>(form, "txtActualHeight").setText(QString::number(kMeasuredHeight));
            Click(On<QWidget>(form, "cmdReturn"));
        });
        const SvgPicture square = ReadPdf(Path("square.pdf"));
        ASSERT_EQ(square.shapes.size(), 1U);
        EXPECT_NEAR(square.shapes[0].WidthOfBox(), 100, kToleranceMm);
        EXPECT_NEAR(square.shapes[0].HeightOfBox(), 100, kToleranceMm);
        ExpectCalibrated();
    }

    static void ExpectCalibrated() {
        EXPECT_NEAR(double{Design.CalibrationX}, 100 / kMeasuredWidth, 1e-6);
        EXPECT_NEAR(double{Design.CalibrationY}, 100 / kMeasuredHeight, 1e-6);
    }

    void Print(const std::string& file) {
        Answer(PrintTo(Path(file)));
        PressKeys(Qt::CTRL | Qt::Key_P);
    }

    // Every line where the measures of the design file and the calibration put it.
    void ExpectPrinted(const std::string& file, const std::string& design) const {
        const SvgPicture page = ReadPdf(Path(file));
        const Plate plate = ReadPlate(ReadFile(design));
        const Paper paper = page.widthMm > 212 ? kLetter : kA4;
        const Calibration calibration{100 / kMeasuredWidth, 100 / kMeasuredHeight};
        const std::vector<Shape> lines = SheetGeometry(plate, paper, calibration).Lines({});
        EXPECT_GT(lines.size(), 36U);
        ExpectStrokes(page, lines, kToleranceMm);
        std::string words;
        for (const Word& word : ReadPdfWords(Path(file))) {
            words += word.text + " ";
        }
        for (const char* word : {"KILOVOLTS, peak ", "-5 ", "30 "}) {
            EXPECT_TRUE(Has(words, word)) << word << " in " << words;
        }
    }

    void Plot() {
        said.clear();
        ClickAndAnswer("cmdHPGL", [this](QWidget& form) {
            Click(On<QWidget>(form, "cmdHPGL"));
            Click(On<QWidget>(form, "cmdExit"));
        });
        EXPECT_EQ(said, Strings({"information: THE HPGL FILE WAS SUCCESSFULLY "
                                 "WRITTEN TO\r\n" +
                                 Path("home/HPGLfile.HPGL")}));
        EXPECT_TRUE(Has(ReadFile("home/HPGLfile.HPGL"), kTitle));
        said.clear();
    }

    void Save(const std::string& file) {
        Answer(TypeFile(Path(file)));
        PressKeys(Qt::CTRL | Qt::Key_S);
    }

    // By the toolbar and the exit page; the process ends.
    void Exit() {
        Answer([this](QWidget& form) { Click(On<QWidget>(form, "cmdExit")); });
        PressKeys(Qt::CTRL | Qt::Key_Q);
        EXPECT_TRUE(TakeProcessEnd());
    }

    void RestartAtLastSession() {
        StartProgram();
        ClickAndSettle("cmdLastSession");
        ExpectPage("frmPreview", "Vernacle - Preview - " + Path("LASTSESSION.VRN"));
        EXPECT_EQ(said, Strings());
    }

    void ExpectAllThere() {
        EXPECT_EQ(TextOf("txtAspect"), ".93");
        PressKeys(Qt::CTRL | Qt::Key_1);
        ExpectAll(kPlateEntries);
        EXPECT_TRUE(Option("optLabelRotationBearing").isChecked());
        PressKeys(Qt::CTRL | Qt::Key_2);
        ExpectAll(kScaleEntries);
        EXPECT_EQ(TextOf("txtScaleTitle"), kTitle);
        PressKeys(Qt::CTRL | Qt::Key_6);
    }

    const EnvironmentVariable home_{"HOME", Path("home")};
    const EnvironmentVariable settings_{"XDG_CONFIG_HOME", Path("home/.config")};
};

// Fields of the dump that are no part of a design, or are computed from it.
constexpr const char* kWorking[] = {
    "CurrentScale", "ActiveScale",         "HelpTopic",      "SharedIndex2",
    "TicLoop",      "StandardDeflection[", "StandardLabel[", "DesignFileName",
};

// What no file brings back.
constexpr const char* kForced[] = {"CorrectionPair", "DrawHighlights"};

bool BeginsWithOneOf(const std::string& line, std::span<const char* const> names) {
    return std::any_of(names.begin(), names.end(),
                       [&](const char* name) { return line.starts_with(name); });
}

Strings DesignLines() {
    const auto atStart = std::make_unique<DesignRecord>();
    Strings lines;
    std::istringstream dump(gallery::DumpDesign(Design, *atStart));
    for (std::string line; std::getline(dump, line);) {
        if (!BeginsWithOneOf(line, kWorking) && !BeginsWithOneOf(line, kForced)) {
            lines.push_back(line);
        }
    }
    return lines;
}

// The fields of one design that are otherwise in the other.
Strings Different(Strings one, Strings other) {
    std::sort(one.begin(), one.end());
    std::sort(other.begin(), other.end());
    Strings lines;
    std::set_symmetric_difference(one.begin(), one.end(), other.begin(), other.end(),
                                  std::back_inserter(lines));
    return lines;
}

TEST_F(EverydayTest, WhatIsEnteredTodayIsThereTomorrow) {
    StartNewDesign();
    EnterPlate();
    EnterScale();
    LookAtTheOtherPages();
    EnterAspect();
    Calibrate();
    PressKeys(Qt::CTRL | Qt::Key_6);
    ExpectPage("frmPreview", "Vernacle - Preview - Calibrate.txt");
    Save("kilovolts"); // the ending comes by itself
    ASSERT_TRUE(Exists("kilovolts.VRN"));
    Print("today.pdf");
    ExpectPrinted("today.pdf", "kilovolts.VRN");
    Plot();
    const Strings picture = CallsOf("picPlate");
    const Strings design = DesignLines();
    Exit();
    EXPECT_EQ(said, Strings());

    RestartAtLastSession();
    EXPECT_EQ(Different(DesignLines(), design), Strings());
    EXPECT_EQ(CallsOf("picPlate"), picture);
    ExpectCalibrated();
    ExpectAllThere();
    Print("tomorrow.pdf");
    ExpectPrinted("tomorrow.pdf", "kilovolts.VRN");
    Exit();

    // And the day after, from the design's own file.
    StartProgram();
    ClickAndAnswer("cmdOld", TypeFile(Path("kilovolts.VRN")));
    ExpectPage("frmPreview", "Vernacle - Preview - " + Path("kilovolts.VRN"));
    EXPECT_EQ(Different(DesignLines(), design), Strings());
    EXPECT_EQ(CallsOf("picPlate"), picture);
    ExpectAllThere();
}

struct ClosedPage {
    Qt::Key key; // that leads there
    const char* page;
    bool keepsSession;
};

constexpr ClosedPage kClosedPages[] = {
    {Qt::Key_1, "frmPlate", true},   {Qt::Key_2, "frmScales", true},
    {Qt::Key_4, "frmGraphic", true}, {Qt::Key_5, "frmHighlights", true},
    {Qt::Key_6, "frmPreview", true}, {Qt::Key_3, "frmText", false},
};

// On all pages but one, where the session before comes back.
TEST_F(EverydayTest, TheCloseBoxKeepsTheSessionToo) {
    float kept = 0;
    for (const ClosedPage& row : kClosedPages) {
        SCOPED_TRACE(row.page);
        StartNewDesign();
        EnterPlate();
        EnterScale();
        const float height = kept + 1;
        Type("txtBottomToTitle", PlainNumber(height));
        PressKeys(Qt::CTRL | row.key);
        ExpectPage(row.page, Page().windowTitle().toStdString());
        CloseByUser(Page());
        EXPECT_TRUE(TakeProcessEnd());
        kept = row.keepsSession ? height : kept;
        RestartAtLastSession();
        EXPECT_EQ(Design.BottomToTitle[1], kept);
        PressKeys(Qt::CTRL | Qt::Key_1);
        ExpectAll(kPlateEntries);
    }
}

TEST_F(EverydayTest, ALaterSessionTakesThePlaceOfTheEarlierOne) {
    for (const char* width : {"84", "96.5", "72"}) {
        if (Exists("LASTSESSION.VRN")) {
            RestartAtLastSession();
        } else {
            StartNewDesign();
        }
        PressKeys(Qt::CTRL | Qt::Key_1);
        Type("txtPlateWidth", width);
        Exit();
        RestartAtLastSession();
        EXPECT_EQ(Design.PlateWidth, static_cast<float>(NumericValue(width)));
    }
}

// Choices of the day that no file keeps.
TEST_F(EverydayTest, TomorrowThePlateIsRectangularAndItsTicsArePrintedAgain) {
    StartNewDesign();
    Click("cmdCircle");
    EXPECT_EQ(Design.PlateOutlineCircular, 1);
    PressKeys(Qt::CTRL | Qt::Key_2);
    Click("Option8");
    Click("Option10");
    EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[1]), 1);
    Exit();
    RestartAtLastSession();
    EXPECT_EQ(Design.PlateOutlineCircular, 0);
    PressKeys(Qt::CTRL | Qt::Key_2);
    EXPECT_TRUE(Option("Option7").isChecked());
    EXPECT_TRUE(Option("Option10").isChecked()) << "whether there are arcs is kept";
}

TEST_F(EverydayTest, ACancelledExitKeepsNothingAndGoesOn) {
    StartNewDesign();
    PressKeys(Qt::CTRL | Qt::Key_1);
    Type("txtPlateWidth", "84");
    Answer([](QWidget& form) { form.close(); });
    PressKeys(Qt::CTRL | Qt::Key_Q);
    EXPECT_FALSE(TakeProcessEnd());
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
    ExpectPage("frmPlate", "Vernacle - Plate design");
    EXPECT_EQ(TextOf("txtPlateWidth"), "84");
}

} // namespace

} // namespace vernacle::test
