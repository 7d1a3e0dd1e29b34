// Every setup from its page to the paper: made by keys and clicks, saved, exported, and its tics
// read back from the PDF within 0.02 mm of where the meter's law puts them.
#include <cmath>

#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "export/trueplate.h"
#include "support/formtest.h"
#include "support/pdfreader.h"
#include "support/process.h"

namespace vernacle::test {
namespace {

constexpr double kSetupToleranceMm = 0.02;

struct Mark {
    double fraction; // of full deflection
    std::string label = {};
};
using Marks = std::vector<Mark>;

class SetupPlateTest : public FormTest {
protected:
    SetupPlateTest() {
        StoreService(Program::Workshop);
        ResetDesign(Design);
        Design.PlateWidth = 110;
        Design.PlateHeight = 90;
        Design.BottomToScaleCeiling[1] = 70;
        Design.FontSize = 5;
    }

    // From the scales page over the menu.
    void OpenSetup(const char* button) const {
        ClickAndSettle("cmddBsetup");
        ClickAndSettle(button);
    }

    // To the scales page, which shows the scale.
    void Accept(const Marks& marks) const {
        ClickAndSettle("cmdAccept");
        ASSERT_EQ(PageName(), "frmScales");
        EXPECT_TRUE(Find("lblSpecialScale").isVisible());
        ExpectLabels(TextsOf("picPlate"), marks);
    }

    static void ExpectLabels(const Strings& texts, const Marks& marks) {
        for (const Mark& mark : marks) {
            EXPECT_TRUE(mark.label.empty() || std::ranges::count(texts, mark.label) > 0)
                << "no label " << mark.label;
        }
    }

    // The plate on paper, from the design's file.
    void Export() {
        Design.DesignFileName = Path("plate.VRN");
        ASSERT_TRUE(WriteDesign(Design));
        const ProcessResult result = RunProgram(
            VERNACLE_EXPORT, {"--workshop", "--strict", Path("plate.VRN"), Path("plate.pdf")});
        ASSERT_EQ(result.status, 0) << result.err;
        pdf_ = ReadPdf(Path("plate.pdf"));
    }

    void ExpectOnPaper(const Marks& marks) {
        Export();
        const TruePlate plate(Design);
        const std::vector<MmPoint> feet = FeetOf(pdf_, plate, 1, Ceiling());
        EXPECT_EQ(feet.size(), marks.size());
        Strings words;
        for (const Word& word : ReadPdfWords(Path("plate.pdf"))) {
            words.push_back(word.text);
        }
        ExpectLabels(words, marks);
        for (const Mark& mark : marks) {
            const MmPoint at = plate.Meet(mark.fraction, Ceiling());
            EXPECT_TRUE(HasPointAt(feet, at, kSetupToleranceMm))
                << "no tic at " << mark.fraction << " for \"" << mark.label << "\"";
        }
    }

    static double Ceiling() { return double{Design.BottomToScaleCeiling[1]}; }

    SvgPicture pdf_;
};

// A volt meter of audio: the ratio of voltages, full scale at the top.
TEST_F(SetupPlateTest, Decibels) {
    Marks marks = {{0}};
    for (int below = 0; below < 11; ++below) {
        marks.push_back({std::pow(10, -below / 20.), std::to_string(-below)});
    }
    OpenPage("frmScales");
    OpenSetup("cmddB");
    Click("cmdLabelAll");
    Accept(marks);
    ExpectOnPaper(marks);
}

// From -20 to +3 with its red zone above 0.
TEST_F(SetupPlateTest, VolumeUnits) {
    const auto fraction = [](double units) { return std::pow(10, (units - 3) / 20); };
    const int printed[] = {-20, -10, -7, -5, -3, -2, -1, 0, 1, 2, 3};
    Marks marks;
    for (const int units : printed) {
        marks.push_back({fraction(units), (units > 0 ? "+" : "") + std::to_string(units)});
    }
    OpenPage("frmScales");
    OpenSetup("cmddB");
    Type("txtFullScaledB", "3");
    Type("txtNrOfTicmarks", "24");
    Click("optUnlabelledAtBottomNo");
    Click("cmdLabelAll");
    for (int row = 0; row < 24; ++row) {
        if (std::ranges::count(printed, 3 - row) == 0) {
            Option("PrintTicNo" + std::to_string(row)).Select();
            Option("PrintLabelNo" + std::to_string(row)).Select();
        }
    }
    Accept(marks);
    OpenPage("frmHighlights");
    Click("Option1");
    Type("txtStart1", "70.794578");
    Type("txtStop1", "100");
    Type("txtCeiling1", "67");
    Type("txtLength1", "2");
    ExpectOnPaper(marks);
    const TruePlate plate(Design);
    for (const double height : {67., 69.}) {
        for (const double units : {0., 3.}) {
            const MmPoint corner = plate.Meet(fraction(units), height);
            EXPECT_TRUE(std::ranges::any_of(
                pdf_.shapes,
                [corner](const Shape& shape) {
                    return !shape.stroked && HasPointAt(shape.points, corner, kSetupToleranceMm);
                }))
                << "no corner of the zone at " << units << " VU";
        }
    }
}

// Half a decibel apart, labelled at every second tic.
TEST_F(SetupPlateTest, HalfDecibels) {
    Marks marks;
    for (int tic = 0; tic <= 18; ++tic) {
        marks.push_back({std::pow(10, -tic * 0.5 / 20),
                         tic % 2 == 0 ? std::to_string(3 - tic / 2) : std::string()});
    }
    marks[0].label = "3";
    OpenPage("frmScales");
    OpenSetup("cmddB");
    Type("txtFullScaledB", "3");
    Type("txtStep", "0.5");
    Type("txtNrOfTicmarks", "19");
    Type("txtEveryHowMany", "2");
    Click("optUnlabelledAtBottomNo");
    Click("optN");
    Click("cmdLabelEvery");
    Click("cmdMajorEvery");
    Accept(marks);
    const Strings texts = TextsOf("picPlate");
    EXPECT_EQ(std::ranges::count(texts, "2.5"), 0);
    ExpectOnPaper(marks);
}

TEST_F(SetupPlateTest, OhmsWithMidscale) {
    Marks marks = {{1, "0"}, {0, "\u221E"}};
    OpenPage("frmScales");
    OpenSetup("cmdOhms");
    Type("txtEnterMidscale", "12");
    QTest::keyClick(&Box("txtEnterMidscale"), Qt::Key_Return);
    for (const int ohms : {1, 2, 5, 12, 20, 50, 100, 500}) {
        marks.push_back({12. / (12 + ohms), std::to_string(ohms)});
        EXPECT_TRUE(Box("txtEnterResistance").hasFocus());
        QTest::keyClicks(&Box("txtEnterResistance"), QString::number(ohms));
        QTest::keyClick(&Box("txtEnterResistance"), Qt::Key_Return);
    }
    Accept(marks);
    ExpectOnPaper(marks);
}

TEST_F(SetupPlateTest, SmeterToSixtyDecibelsAboveNine) {
    Marks marks;
    for (int unit = 0; unit <= 9; ++unit) {
        marks.push_back({unit * 6 / 114., std::to_string(unit)});
    }
    for (int above = 10; above <= 60; above += 10) {
        marks.push_back({(54 + above) / 114., "+" + std::to_string(above)});
    }
    OpenPage("frmScales");
    OpenSetup("cmdSmeter");
    Click("Option4");
    Accept(marks);
    ExpectOnPaper(marks);
}

TEST_F(SetupPlateTest, StandingWavesFromOneToInfinity) {
    Marks marks = {{1, "\u221E"}};
    for (int ratio = 1; ratio <= 10; ++ratio) {
        const bool isCrowded = ratio > 5 && ratio < 10;
        marks.push_back(
            {std::pow((ratio - 1.) / (ratio + 1), 0.8), isCrowded ? "" : std::to_string(ratio)});
    }
    OpenPage("frmScales");
    OpenSetup("cmdVSWR");
    Type("txtLinearityExponent", "0.8");
    Click("Option3");
    Accept(marks);
    ExpectOnPaper(marks);
}

// As a movement was measured.
TEST_F(SetupPlateTest, AnArbitraryTable) {
    const Marks marks = {{0, "E"},           {0.0825, "1/8"},    {0.1704, "1/4"},
                         {0.3333333, "1/2"}, {0.6190476, "3/4"}, {1, "F"}};
    OpenPage("frmScales");
    OpenSetup("cmdSpecial");
    Type("txtNrOfTicmarks", "5");
    for (std::size_t row = 0; row < marks.size(); ++row) {
        const QString fraction = QString::number(marks[row].fraction, 'g', 7);
        Type("txtDeflection" + std::to_string(row), fraction.toStdString());
        Type("txtLabel" + std::to_string(row), marks[row].label);
    }
    Accept(marks);
    ExpectOnPaper(marks);
}

} // namespace
} // namespace vernacle::test
