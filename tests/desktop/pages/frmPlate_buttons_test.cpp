// The plate page's buttons: its modal forms, its dialogs for font and background, its toolbar, and
// the order of the keyboard through all of it.
#include <QColorDialog>
#include <QFontDialog>
#include <QToolButton>

#include "desktop/pages/platetest.h"
#include "engine/designfile/readwrite.h"

namespace vernacle::test {
namespace {

struct PlateButton {
    const char* name;
    const char* caption;
    const char* tip;
    bool enabled;
};

constexpr PlateButton kButtons[] = {
    {"cmdCalibrate", "Calibrate", "Go to printer calibration routine", true},
    {"cmdLinearity", "Movement linearity", "", false},
    {"cmdGetFont", "Get font", "", false},
    {"cmdGetBackgroundColor", "Background", "", false},
    {"cmdRotateHelp", "H", "", true},
    {"cmdStyleHelp", "H", "", false},
};

class PlateButtonsTest : public PlateTest {
protected:
    void EnableAndClick(const std::string& button) const {
        Find(button).setEnabled(true);
        Click(button);
    }

    // The name of the modal form that the button opens; it is closed by that control.
    std::string FormBehind(const std::string& button, const std::string& closing) {
        std::string opened;
        Answer([&, closing](QWidget& form) {
            opened = form.objectName().toStdString();
            EXPECT_TRUE(form.isModal());
            EXPECT_EQ(form.parentWidget(), &Page());
            Click(On<QWidget>(form, closing));
            EXPECT_FALSE(form.isVisible());
        });
        EnableAndClick(button);
        EXPECT_TRUE(AllAnswered());
        EXPECT_EQ(PageName(), "frmPlate");
        return opened;
    }

    void AnswerFont(const char* family, QDialog::DialogCode end) {
        Answer([this, family, end](QWidget& widget) {
            auto& dialog = dynamic_cast<QFontDialog&>(widget);
            fontTitle = dialog.windowTitle().toStdString();
            fontAtStart = dialog.currentFont().family().toStdString();
            dialog.setCurrentFont(QFont(QLatin1String(family)));
            static_cast<QDialog&>(dialog).done(end);
        });
        EnableAndClick("cmdGetFont");
        EXPECT_TRUE(AllAnswered());
    }

    void AnswerColour(const QColor& colour, QDialog::DialogCode end) {
        Answer([this, colour, end](QWidget& widget) {
            auto& dialog = dynamic_cast<QColorDialog&>(widget);
            colourTitle = dialog.windowTitle().toStdString();
            colourAtStart = dialog.currentColor();
            dialog.setCurrentColor(colour);
            static_cast<QDialog&>(dialog).done(end);
        });
        EnableAndClick("cmdGetBackgroundColor");
        EXPECT_TRUE(AllAnswered());
    }

    QColor SwatchColour() const {
        const QImage swatch = Find<QLabel>("lblShowBackground").grab().toImage();
        return swatch.pixelColor(swatch.width() / 2, swatch.height() / 2);
    }

    std::string fontTitle;
    std::string fontAtStart;
    std::string colourTitle;
    QColor colourAtStart;
};

TEST_F(PlateButtonsTest, ButtonsStandAsTold) {
    OpenPlate();
    for (const PlateButton& button : kButtons) {
        SCOPED_TRACE(button.name);
        const auto& shown = Find<QPushButton>(button.name);
        EXPECT_EQ(shown.text(), QLatin1String(button.caption));
        EXPECT_EQ(shown.toolTip(), QLatin1String(button.tip));
        EXPECT_EQ(shown.isEnabled(), button.enabled);
        EXPECT_TRUE(shown.isVisible());
        EXPECT_FALSE(shown.accessibleName().isEmpty());
    }
}

TEST_F(PlateButtonsTest, ModalFormsOpenAndClose) {
    OpenPlate();
    EXPECT_EQ(FormBehind("cmdCalibrate", "cmdReturn"), "frmCalibrate");
    EXPECT_EQ(FormBehind("cmdRotateHelp", "Command1"), "frmRotateIllustration");
    EXPECT_EQ(FormBehind("cmdStyleHelp", "cmdReturn"), "frmStyleHelp");
}

// Stands in for a form that other tests look at.
class NamedForm : public QDialog {
public:
    NamedForm() { setObjectName(QStringLiteral("frmCorrectionEntry")); }
};

TEST_F(PlateButtonsTest, MovementLinearityLeadsToTheCorrectionEntry) {
    OpenPlate();
    static constexpr FormRow kForms[] = {{"frmCorrectionEntry", []() -> std::unique_ptr<QWidget> {
                                              return std::make_unique<NamedForm>();
                                          }}};
    SetForms(kForms);
    std::string opened;
    Answer([&](QWidget& form) {
        opened = form.objectName().toStdString();
        form.close();
    });
    EnableAndClick("cmdLinearity");
    EXPECT_EQ(opened, "frmCorrectionEntry");
    EXPECT_EQ(PageName(), "frmPlate");
}

TEST_F(PlateButtonsTest, IllustrationsLeaveTheDesignAndThePage) {
    OpenPlate();
    Click("cmdFontSize");
    Type("txtPlateWidth", "200");
    SaveDesign(Design, Path("before.VRN"));
    const Strings schematic = ShownSchematic();
    FormBehind("cmdRotateHelp", "Command1");
    FormBehind("cmdStyleHelp", "cmdReturn");
    SaveDesign(Design, Path("after.VRN"));
    EXPECT_EQ(ReadFile("after.VRN"), ReadFile("before.VRN"));
    EXPECT_EQ(Design.HelpTopic, 1);
    EXPECT_EQ(TextOf("txtPlateWidth"), "200");
    EXPECT_EQ(ShownSchematic(), schematic);
}

TEST_F(PlateButtonsTest, FontDialogOpensOnTheFontAndGivesItsName) {
    OpenPlate();
    Design.FontName = "DejaVu Sans Mono";
    AnswerFont("DejaVu Serif", QDialog::Accepted);
    EXPECT_EQ(fontTitle, "Get font");
    EXPECT_EQ(fontAtStart, "DejaVu Sans Mono");
    EXPECT_EQ(Design.FontName, "DejaVu Serif");
    EXPECT_EQ(Shown("lblShowFont"), "    DejaVu Serif");
    EXPECT_TRUE(said.empty());
}

TEST_F(PlateButtonsTest, CancelledFontDialogKeepsTheNameTrimmed) {
    OpenPlate();
    Design.FontName = "  Courier New ";
    AnswerFont("DejaVu Serif", QDialog::Rejected);
    EXPECT_EQ(Design.FontName, "Courier New");
    EXPECT_EQ(Shown("lblShowFont"), "     Courier New");
    EXPECT_TRUE(said.empty());
}

TEST_F(PlateButtonsTest, NoFontBecomesArialWithAMessage) {
    for (const char* nothing : {"", "   "}) {
        OpenPlate();
        Design.FontName = nothing;
        said.clear();
        AnswerFont("DejaVu Serif", QDialog::Rejected);
        EXPECT_EQ(Design.FontName, "Arial");
        EXPECT_EQ(Shown("lblShowFont"), "           Arial");
        const Strings message = {"information: No font was selected; Arial is being used"};
        EXPECT_EQ(said, message);
    }
}

TEST_F(PlateButtonsTest, ColourDialogOpensOnWhiteAndGivesTheBackground) {
    OpenPlate();
    Design.PlateBackground = 0x112233;
    AnswerColour(QColor(0x20, 0x40, 0x80), QDialog::Accepted);
    EXPECT_EQ(colourTitle, "Get plate background color");
    EXPECT_EQ(colourAtStart, Qt::white);
    EXPECT_EQ(Design.PlateBackground, 0x804020);
    EXPECT_EQ(SwatchColour(), QColor(0x20, 0x40, 0x80));
}

TEST_F(PlateButtonsTest, BlackBackgroundIsStoredAsOne) {
    OpenPlate();
    AnswerColour(Qt::black, QDialog::Accepted);
    EXPECT_EQ(Design.PlateBackground, 1);
    EXPECT_EQ(SwatchColour(), QColor(1, 0, 0));
    AnswerColour(QColor(2, 0, 0), QDialog::Accepted);
    EXPECT_EQ(Design.PlateBackground, 2);
}

TEST_F(PlateButtonsTest, CancelledColourDialogHoldsTheWhiteItOpenedOn) {
    OpenPlate();
    Design.PlateBackground = 0x112233;
    AnswerColour(Qt::red, QDialog::Rejected);
    EXPECT_EQ(Design.PlateBackground, kWhite);
    EXPECT_EQ(SwatchColour(), Qt::white);
}

TEST_F(PlateButtonsTest, SwatchShowsTheBackgroundOutlinedInBlack) {
    Design.PlateBackground = 0x00C0FF;
    OpenPlate();
    EXPECT_EQ(SwatchColour(), QColor(0xFF, 0xC0, 0));
    const QImage swatch = Find<QLabel>("lblShowBackground").grab().toImage();
    for (const QPoint edge : {QPoint(0, swatch.height() / 2), QPoint(swatch.width() / 2, 0),
                              QPoint(swatch.width() - 1, swatch.height() / 2),
                              QPoint(swatch.width() / 2, swatch.height() - 1)}) {
        EXPECT_EQ(swatch.pixelColor(edge), Qt::black) << edge.x() << "," << edge.y();
    }
}

TEST_F(PlateButtonsTest, PrintKeyIsGreyedAndPlateKeyStays) {
    const QWidget* page = &OpenPlate();
    EXPECT_FALSE(Find<QToolButton>("Print").isEnabled());
    EXPECT_TRUE(Find<QToolButton>("Plate").isEnabled());
    Click("Plate");
    EXPECT_EQ(&Page(), page);
    ClickAndSettle("Scales");
    EXPECT_EQ(PageName(), "frmScales");
}

TEST_F(PlateButtonsTest, PrintKeyThatIsEnabledAsksForThePrinter) {
    OpenPlate();
    std::string asked;
    Answer([&](QWidget& dialog) {
        asked = dialog.objectName().toStdString();
        dynamic_cast<QDialog&>(dialog).reject();
    });
    Find<QToolButton>("Print").defaultAction()->setEnabled(true);
    Click("Print");
    EXPECT_TRUE(AllAnswered());
    EXPECT_EQ(asked, "PrintDialog");
    EXPECT_TRUE(said.empty());
}

TEST_F(PlateButtonsTest, TabWalksInReadingOrder) {
    OpenPlate();
    std::string order;
    for (const Measure& measure : kMeasures) {
        order += measure.Named("txt") + " " + measure.Named("cmd") + " ";
    }
    EXPECT_TRUE(Box("txtPlateWidth").hasFocus()) << "where it starts";
    ExpectTabOrder(order + "optArcsYes optPrintTextYes optLabelRotationHorizontal cmdRotateHelp "
                           "Option1 cmdCalibrate Open");
}

TEST_F(PlateButtonsTest, EnterInABoxPressesNoButton) {
    OpenPlate();
    Click("cmdFontSize");
    QTest::keyClick(&Box("txtPlateWidth"), Qt::Key_Return);
    EXPECT_EQ(Design.HelpTopic, 13);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace vernacle::test
