// The plates in examples/workshop, made through the pages by what a user types and presses, and
// read back from the paper within 0.02 mm of where each meter's law puts its tics.
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>

#include <QColorDialog>
#include <QComboBox>

#include "engine/base/codepage.h"
#include "engine/core/service.h"
#include "engine/designfile/history.h"
#include "engine/designfile/readwrite.h"
#include "export/trueplate.h"
#include "support/environment.h"
#include "support/formtest.h"
#include "support/pdfreader.h"
#include "support/process.h"

namespace vernacle::test {
namespace {

constexpr double kOnPaperMm = 0.02;

// One thing that a user does.
struct Stroke {
    enum Kind {
        Go,     // a key of the toolbar
        Enter,  // text typed into a box, and Return
        Press,  // a button or an option
        Colour, // a button, and a colour chosen in its dialog
        Choose, // an entry of a list
        Picture // the maker's mark beside the design
    };
    Kind kind;
    const char* control;
    const char* text = "";
};
using S = Stroke;

// clang-format off
constexpr Stroke kMultimeter[] = {
    {S::Go, "Plate"},
    {S::Enter, "txtPlateWidth", "100"}, {S::Enter, "txtPlateHeight", "80"},
    {S::Enter, "txtBottomToBearing", "8"}, {S::Enter, "txtBottomToHoles", "10"}, {S::Enter, "txtHoleSeparation", "80"},
    {S::Enter, "txtPointerDeflection", "90"}, {S::Enter, "txtActualVirtualOffset", "0"},
    {S::Enter, "txtMinorTicLength", "2"}, {S::Enter, "txtMajorTicLength", "3.5"},
    {S::Enter, "txtMinorTicWidth", "1.5"}, {S::Enter, "txtMajorTicWidth", "3"}, {S::Enter, "txtArcWidth", "2"},
    {S::Enter, "txtFontSize", "8"}, {S::Enter, "txtLabelSpacing", "6"},
    {S::Press, "Option2"},
    {S::Go, "Scales"}, {S::Press, "Option1"},
    {S::Enter, "txtBottomToScaleCeiling", "64"}, {S::Enter, "txtBottomToTitle", "45"}, {S::Enter, "txtScaleTitle", "OHMS"},
    {S::Colour, "cmdGetColor", "#006030"},
    {S::Press, "cmddBsetup"}, {S::Press, "cmdOhms"},
    {S::Enter, "txtEnterMidscale", "20"},
    {S::Enter, "txtEnterResistance", "1"}, {S::Enter, "txtEnterResistance", "2"}, {S::Enter, "txtEnterResistance", "5"},
    {S::Enter, "txtEnterResistance", "10"}, {S::Enter, "txtEnterResistance", "20"}, {S::Enter, "txtEnterResistance", "30"},
    {S::Enter, "txtEnterResistance", "50"}, {S::Enter, "txtEnterResistance", "100"}, {S::Enter, "txtEnterResistance", "200"},
    {S::Enter, "txtEnterResistance", "500"},
    {S::Press, "cmdAccept"},
    {S::Press, "Option2"},
    {S::Enter, "txtScaleLeftEnd", "0"}, {S::Enter, "txtScaleLength", "30"},
    {S::Enter, "txtNumberOfTics", "60"}, {S::Enter, "txtMajorTicsEveryHowMany", "10"}, {S::Enter, "txtLabelsEveryHowMany", "10"},
    {S::Enter, "txtBottomToScaleCeiling", "57"}, {S::Enter, "txtBottomToTitle", "37"}, {S::Enter, "txtScaleTitle", "DC VOLTS"},
};

constexpr Stroke kVuMeter[] = {
    {S::Go, "Plate"},
    {S::Enter, "txtPlateWidth", "96"}, {S::Enter, "txtPlateHeight", "64"},
    {S::Enter, "txtBottomToBearing", "5"}, {S::Enter, "txtBottomToHoles", "8"}, {S::Enter, "txtHoleSeparation", "84"},
    {S::Enter, "txtPointerDeflection", "90"}, {S::Enter, "txtActualVirtualOffset", "0"},
    {S::Enter, "txtMinorTicLength", "3"}, {S::Enter, "txtMajorTicLength", "4"},
    {S::Enter, "txtMinorTicWidth", "2"}, {S::Enter, "txtMajorTicWidth", "5"}, {S::Enter, "txtArcWidth", "4"},
    {S::Enter, "txtFontSize", "8"}, {S::Enter, "txtLabelSpacing", "6"}, {S::Press, "optLabelRotationBearing"},
    {S::Colour, "cmdGetBackgroundColor", "#fff4d6"},
    {S::Go, "Scales"},
    {S::Enter, "txtBottomToScaleCeiling", "48"}, {S::Enter, "txtBottomToTitle", "28"}, {S::Enter, "txtScaleTitle", "VU"},
    {S::Press, "cmddBsetup"}, {S::Press, "cmddB"},
    {S::Enter, "txtFullScaledB", "3"}, {S::Enter, "txtNrOfTicmarks", "24"}, {S::Press, "optUnlabelledAtBottomNo"},
    {S::Press, "cmdLabelAll"},
    {S::Press, "PrintTicNo7"}, {S::Press, "PrintLabelNo7"}, {S::Press, "PrintTicNo9"}, {S::Press, "PrintLabelNo9"},
    {S::Press, "PrintTicNo11"}, {S::Press, "PrintLabelNo11"}, {S::Press, "PrintTicNo12"}, {S::Press, "PrintLabelNo12"},
    {S::Press, "PrintTicNo14"}, {S::Press, "PrintLabelNo14"}, {S::Press, "PrintTicNo15"}, {S::Press, "PrintLabelNo15"},
    {S::Press, "PrintTicNo16"}, {S::Press, "PrintLabelNo16"}, {S::Press, "PrintTicNo17"}, {S::Press, "PrintLabelNo17"},
    {S::Press, "PrintTicNo18"}, {S::Press, "PrintLabelNo18"}, {S::Press, "PrintTicNo19"}, {S::Press, "PrintLabelNo19"},
    {S::Press, "PrintTicNo20"}, {S::Press, "PrintLabelNo20"}, {S::Press, "PrintTicNo21"}, {S::Press, "PrintLabelNo21"},
    {S::Press, "PrintTicNo22"}, {S::Press, "PrintLabelNo22"},
    {S::Press, "cmdAccept"},
    {S::Go, "Highlights"},
    {S::Colour, "cmdGetColor", "#d02010"},
    {S::Choose, "cboFromTic", "0"}, {S::Choose, "cboToTic", "+3"},
    {S::Enter, "txtCeiling1", "45.5"}, {S::Enter, "txtLength1", "1.5"},
};

constexpr Stroke kSMeter[] = {
    {S::Go, "Plate"},
    {S::Enter, "txtPlateWidth", "90"}, {S::Enter, "txtPlateHeight", "60"},
    {S::Enter, "txtBottomToBearing", "4"}, {S::Enter, "txtBottomToHoles", "6"}, {S::Enter, "txtHoleSeparation", "78"},
    {S::Enter, "txtPointerDeflection", "90"}, {S::Enter, "txtActualVirtualOffset", "0"},
    {S::Enter, "txtMinorTicLength", "2.5"}, {S::Enter, "txtMajorTicLength", "4"},
    {S::Enter, "txtMinorTicWidth", "3"}, {S::Enter, "txtMajorTicWidth", "5"}, {S::Enter, "txtArcWidth", "3"},
    {S::Enter, "txtFontSize", "9"}, {S::Enter, "txtLabelSpacing", "7"},
    {S::Colour, "cmdGetBackgroundColor", "#000000"},
    {S::Go, "Scales"},
    {S::Enter, "txtBottomToScaleCeiling", "45"}, {S::Enter, "txtBottomToTitle", "25"}, {S::Enter, "txtScaleTitle", "S UNITS"},
    {S::Colour, "cmdGetColor", "#ffffff"},
    {S::Press, "cmddBsetup"}, {S::Press, "cmdSmeter"}, {S::Press, "Option4"}, {S::Press, "cmdAccept"},
    {S::Go, "Highlights"},
    {S::Colour, "cmdGetColor", "#ff5030"},
    {S::Choose, "cboFromTic", "9"}, {S::Choose, "cboToTic", "+60"},
    {S::Enter, "txtCeiling1", "42.5"}, {S::Enter, "txtLength1", "1.5"},
    {S::Go, "Text"},
    {S::Enter, "txtText", "dB over S9"}, {S::Enter, "txtLeftToText", "62"}, {S::Enter, "txtBottomToText", "24"},
    {S::Enter, "txtRelSize", "0.7"}, {S::Colour, "cmdGetColor", "#ff5030"},
};

constexpr Stroke kSwrPower[] = {
    {S::Go, "Plate"},
    {S::Enter, "txtPlateWidth", "100"}, {S::Enter, "txtPlateHeight", "76"},
    {S::Enter, "txtBottomToBearing", "6"}, {S::Enter, "txtBottomToHoles", "8"}, {S::Enter, "txtHoleSeparation", "86"},
    {S::Enter, "txtPointerDeflection", "90"}, {S::Enter, "txtActualVirtualOffset", "0"},
    {S::Enter, "txtMinorTicLength", "2"}, {S::Enter, "txtMajorTicLength", "3.5"},
    {S::Enter, "txtMinorTicWidth", "2"}, {S::Enter, "txtMajorTicWidth", "3.5"}, {S::Enter, "txtArcWidth", "2.5"},
    {S::Enter, "txtFontSize", "8"}, {S::Enter, "txtLabelSpacing", "6"},
    {S::Press, "Option2"},
    {S::Go, "Scales"}, {S::Press, "Option1"},
    {S::Enter, "txtBottomToScaleCeiling", "60"}, {S::Enter, "txtBottomToTitle", "40"}, {S::Enter, "txtScaleTitle", "SWR"},
    {S::Colour, "cmdGetColor", "#c02020"},
    {S::Press, "cmddBsetup"}, {S::Press, "cmdVSWR"}, {S::Press, "Option3"}, {S::Press, "cmdAccept"},
    {S::Press, "Option2"},
    {S::Enter, "txtScaleLeftEnd", "0"}, {S::Enter, "txtScaleLength", "100"},
    {S::Enter, "txtNumberOfTics", "20"}, {S::Enter, "txtMajorTicsEveryHowMany", "4"}, {S::Enter, "txtLabelsEveryHowMany", "4"},
    {S::Enter, "txtLinearityExponent", "0.5"},
    {S::Enter, "txtBottomToScaleCeiling", "53"}, {S::Enter, "txtBottomToTitle", "33"}, {S::Enter, "txtScaleTitle", "WATTS"},
    {S::Colour, "cmdGetColor", "#1040c0"},
};

constexpr Stroke kQuadrantAmmeter[] = {
    {S::Go, "Plate"},
    {S::Press, "optDINquad"},
    {S::Enter, "txtPlateWidth", "72"}, {S::Enter, "txtPlateHeight", "72"},
    {S::Enter, "txtBottomToBearing", "12"}, {S::Enter, "txtLeftToBearing", "60"},
    {S::Enter, "txtBottomToHoles", "6"}, {S::Enter, "txtHoleSeparation", "60"},
    {S::Enter, "txtPointerDeflection", "90"}, {S::Enter, "txtActualVirtualOffset", "0"},
    {S::Enter, "txtMinorTicLength", "2"}, {S::Enter, "txtMajorTicLength", "4"},
    {S::Enter, "txtMinorTicWidth", "2"}, {S::Enter, "txtMajorTicWidth", "5"}, {S::Enter, "txtArcWidth", "3"},
    {S::Enter, "txtFontSize", "9"}, {S::Enter, "txtLabelSpacing", "7"},
    {S::Go, "Scales"},
    {S::Enter, "txtScaleLeftEnd", "0"}, {S::Enter, "txtScaleLength", "50"},
    {S::Enter, "txtNumberOfTics", "50"}, {S::Enter, "txtMajorTicsEveryHowMany", "10"}, {S::Enter, "txtLabelsEveryHowMany", "10"},
    {S::Enter, "txtBottomToScaleCeiling", "58"}, {S::Enter, "txtBottomToTitle", "66"}, {S::Enter, "txtScaleTitle", "A"},
    {S::Enter, "txtRelFontsize", "1.2"},
    {S::Go, "Graphic"},
    {S::Picture, "cmdGetGraphic", "MARK.PNG"},
    {S::Enter, "txtLeftToImage", "36"}, {S::Enter, "txtBottomToImage", "26"},
    {S::Enter, "txtGraphicWidth", "10"}, {S::Enter, "txtGraphicHeight", "10"},
};
// clang-format on

struct Tic {
    double fraction; // of full deflection
    std::string label = {};
};
using Tics = std::vector<Tic>;

// A scale's tics and labels by the law of its meter.
struct Expected {
    int scale;
    double ceiling; // mm
    Tics tics;
};

std::vector<Expected> MultimeterLaws() {
    Tics ohms = {{1, "0"}, {0, "\u221E"}};
    for (const int value : {1, 2, 5, 10, 20, 30, 50, 100, 200, 500}) {
        ohms.push_back({20. / (20 + value), std::to_string(value)});
    }
    Tics volts;
    for (int tic = 0; tic <= 60; ++tic) {
        volts.push_back({tic / 60., tic % 10 == 0 ? std::to_string(tic / 2) : std::string()});
    }
    return {{1, 64, ohms}, {2, 57, volts}};
}

std::vector<Expected> VuLaw() {
    Tics units;
    for (const int value : {-20, -10, -7, -5, -3, -2, -1, 0, 1, 2, 3}) {
        units.push_back(
            {std::pow(10, (value - 3) / 20.), (value > 0 ? "+" : "") + std::to_string(value)});
    }
    return {{1, 48, units}};
}

std::vector<Expected> SUnitsLaw() {
    Tics units;
    for (int unit = 0; unit <= 9; ++unit) {
        units.push_back({unit * 6 / 114., std::to_string(unit)});
    }
    for (int above = 10; above <= 60; above += 10) {
        units.push_back({(54 + above) / 114., "+" + std::to_string(above)});
    }
    return {{1, 45, units}};
}

std::vector<Expected> SwrPowerLaws() {
    Tics ratios = {{1, "\u221E"}};
    for (int ratio = 1; ratio <= 10; ++ratio) {
        const bool isCrowded = ratio > 5 && ratio < 10;
        ratios.push_back({(ratio - 1.) / (ratio + 1), isCrowded ? "" : std::to_string(ratio)});
    }
    Tics watts;
    for (int tic = 0; tic <= 20; ++tic) {
        watts.push_back(
            {std::sqrt(tic / 20.), tic % 4 == 0 ? std::to_string(tic * 5) : std::string()});
    }
    return {{1, 60, ratios}, {2, 53, watts}};
}

std::vector<Expected> AmpereLaw() {
    Tics amperes;
    for (int tic = 0; tic <= 50; ++tic) {
        amperes.push_back({tic / 50., tic % 10 == 0 ? std::to_string(tic) : std::string()});
    }
    return {{1, 58, amperes}};
}

struct Plate {
    const char* file;
    std::span<const Stroke> strokes;
    std::vector<Expected> (*laws)();
};

const Plate kPlates[] = {
    {"MULTIMETER.VRN", kMultimeter, MultimeterLaws},
    {"VU-METER.VRN", kVuMeter, VuLaw},
    {"S-METER.VRN", kSMeter, SUnitsLaw},
    {"SWR-POWER.VRN", kSwrPower, SwrPowerLaws},
    {"QUADRANT-AMMETER.VRN", kQuadrantAmmeter, AmpereLaw},
};

class WorkshopPlatesTest : public FormTest, public ::testing::WithParamInterface<Plate> {
protected:
    WorkshopPlatesTest() : home_("XDG_DATA_HOME", Path("home")) {
        StoreService(Program::Workshop);
        ResetDesign(Design);
        Design.DesignFileName = Path(GetParam().file);
        std::filesystem::copy_file(kExamples / "MARK.PNG", Path("MARK.PNG"));
        OpenPage("frmPreview");
    }

    void Do(const Stroke& stroke) {
        switch (stroke.kind) {
        case Stroke::Go:
        case Stroke::Press:
            ClickAndSettle(stroke.control);
            break;
        case Stroke::Enter:
            Type(stroke.control, stroke.text);
            QTest::keyClick(&Box(stroke.control), Qt::Key_Return);
            Settle();
            break;
        case Stroke::Colour:
            ClickAndAnswer(stroke.control, [&stroke](QWidget& dialog) {
                auto& colours = dynamic_cast<QColorDialog&>(dialog);
                colours.setCurrentColor(QColor(QLatin1String(stroke.text)));
                colours.accept();
            });
            break;
        case Stroke::Choose:
            ChooseTic(Find<QComboBox>(stroke.control), stroke.text);
            break;
        case Stroke::Picture:
            ClickAndAnswer(stroke.control, TypeFile(Path(stroke.text)));
            break;
        }
    }

    // By the keys, from the first entry on.
    static void ChooseTic(QComboBox& list, const std::string& label) {
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Home);
        for (int entry = 0; entry < list.count() && !IsOf(list.currentText(), label); ++entry) {
            QTest::keyClick(&list, Qt::Key_Down);
        }
        EXPECT_TRUE(IsOf(list.currentText(), label)) << label;
        Settle();
    }

    static bool IsOf(const QString& entry, const std::string& label) {
        return entry.contains(QStringLiteral("(%1)").arg(QString::fromStdString(label)));
    }

    SvgPicture Export(const char* output) const {
        const ProcessResult result = RunProgram(
            VERNACLE_EXPORT, {"--workshop", "--strict", Path(GetParam().file), Path(output)});
        EXPECT_EQ(result.status, 0) << result.err;
        return ReadPdf(Path(output));
    }

    static const std::filesystem::path kExamples;

private:
    EnvironmentVariable home_;
};

const std::filesystem::path WorkshopPlatesTest::kExamples = VERNACLE_WORKSHOP_EXAMPLES;

// VERNACLE_KEEP_TEXTS in the environment writes the example anew.
TEST_P(WorkshopPlatesTest, IsMadeByKeysAndIsTheExample) {
    for (const Stroke& stroke : GetParam().strokes) {
        Do(stroke);
    }
    Do({Stroke::Go, "Preview"});
    const Strings texts = TextsOf("picPlate");
    ASSERT_TRUE(WriteDesign(Design));
    EXPECT_TRUE(said.empty()) << said.front();
    const DesignRecord made = Design;
    if (std::getenv("VERNACLE_KEEP_TEXTS")) {
        Design.DesignFileName = std::string("examples/workshop/") + GetParam().file;
        std::ofstream(kExamples / GetParam().file, std::ios::binary)
            << ToFileBytes(DesignText(Design));
    }
    ReadDesign(Design, (kExamples / GetParam().file).string());
    EXPECT_EQ(StateOf(Design), StateOf(made));

    const SvgPicture pdf = Export("plate.pdf");
    const TruePlate plate(made);
    for (const Expected& scale : GetParam().laws()) {
        SCOPED_TRACE("scale " + std::to_string(scale.scale));
        const std::vector<MmPoint> feet = FeetOf(pdf, plate, scale.scale, scale.ceiling);
        EXPECT_EQ(feet.size(), scale.tics.size());
        for (const Tic& tic : scale.tics) {
            EXPECT_TRUE(HasPointAt(feet, plate.Meet(tic.fraction, scale.ceiling), kOnPaperMm))
                << "no tic at " << tic.fraction << " for \"" << tic.label << "\"";
            EXPECT_TRUE(tic.label.empty() || std::ranges::count(texts, tic.label) > 0)
                << "no label " << tic.label;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Examples, WorkshopPlatesTest, ::testing::ValuesIn(kPlates),
                         [](const auto& plate) {
                             std::string name = plate.param.file;
                             std::erase_if(name, [](char c) { return !std::isalpha(c); });
                             return name;
                         });

} // namespace
} // namespace vernacle::test
