#include "desktop/app/frmOpening.h"

#include "apptest.h"

#include <QPixmap>

#include <sys/stat.h>

namespace vernacle::test {
namespace {

class OpeningTest : public AppTest {
protected:
    OpeningTest() { Design = DesignRecord{}; } // as at the start of the process

    QWidget& OpenOpening() { return OpenPage("frmOpening"); }
};

TEST_F(OpeningTest, LoadSetsTheProcessUp) {
    WriteFile("Calibrate.txt", "\"x\"\r\n\r\n#d#\r\n\r\n1.25\r\n.75\r\n\r\n");
    QWidget& opening = OpenOpening();
    EXPECT_EQ(Design.VersionText, "Version 3.04");
    EXPECT_FLOAT_EQ(Design.ScreenScaleX, 1920 * 15 / 12000.F);
    EXPECT_FLOAT_EQ(Design.ScreenScaleY, 1080 * 15 / 9000.F);
    EXPECT_EQ(Design.PlateWidth, 75); // SetOpeningValues alone
    EXPECT_FLOAT_EQ(Design.AspectRatio, 0.8F);
    EXPECT_EQ(Design.CalibrationX, 1.25F);
    EXPECT_EQ(Design.CalibrationY, 0.75F);
    EXPECT_EQ(Shown("lblTitle"), Design.ProgramName);
    EXPECT_EQ(Shown("lblVersion"), "Version 3.04");
    EXPECT_TRUE(opening.isMaximized());
    EXPECT_EQ(opening.size(), QSize(1920, 1080));
}

TEST_F(OpeningTest, TellsUnderItsButtonsHowToBegin) {
    const QWidget& opening = OpenOpening();
    const auto& text = On<QLabel>(opening, "lblBegin");
    EXPECT_TRUE(text.isVisible());
    EXPECT_GT(text.y(), On<QWidget>(opening, "cmdExit").geometry().bottom());
    for (const char* told : {"new design", "\"Retrieve an old design\"", "cancel"}) {
        EXPECT_TRUE(text.text().contains(QLatin1String(told))) << told;
    }
}

TEST_F(OpeningTest, MissingCalibrationIsSilent) {
    OpenOpening();
    EXPECT_EQ(Design.CalibrationX, 0);
    EXPECT_EQ(Design.CalibrationY, 0);
    EXPECT_TRUE(said.empty());
}

TEST_F(OpeningTest, GroundBlendsFromBlackToBlue) {
    const QImage picture = OpenOpening().grab().toImage();
    for (const int line : {1, 2, 5, 270, 540, 811, 1079, 1080}) {
        const QColor colour = picture.pixelColor(1, line - 1);
        EXPECT_EQ(colour.red(), 1) << line;
        EXPECT_EQ(colour.green(), 1) << line;
        EXPECT_NEAR(colour.blue(), 254. * line / 1080 + 1, 1) << line;
    }
    EXPECT_EQ(picture.pixelColor(1918, 1079), QColor(1, 1, 255));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(1, 1, 1));
}

struct ButtonRow {
    const char* name;
    const char* caption;
    const char* tip;
};

constexpr ButtonRow kButtons[] = {
    {"cmdOld", "Retrieve an old design", "Recall a previously-designed scale   "},
    {"cmdLastSession", "Restart at last session",
     "Restart where you left off at your last session"},
    {"cmdExit", "Exit / Quit", "Exit or quit the program now   "},
};

TEST_F(OpeningTest, ButtonsFromTopToBottom) {
    QWidget& opening = OpenOpening();
    int above = 0;
    for (const ButtonRow& row : kButtons) {
        const auto& button = Find<QPushButton>(row.name);
        EXPECT_EQ(button.text().toStdString(), row.caption);
        EXPECT_EQ(button.toolTip().toStdString(), row.tip);
        EXPECT_EQ(button.accessibleName().toStdString(), row.caption);
        const int top = button.mapTo(&opening, QPoint()).y();
        EXPECT_GT(top, above) << row.name;
        above = top + button.height() - 1;
    }
    EXPECT_EQ(opening.findChildren<QPushButton*>().size(), 3);
}

TEST_F(OpeningTest, TabWalksTheButtonsInOrder) {
    OpenOpening();
    ExpectTabOrder("cmdOld cmdLastSession cmdExit cmdOld");
}

TEST_F(OpeningTest, ReturnPressesTheButtonWithTheFocus) {
    WriteDesignFile("LASTSESSION.VRN", 61);
    OpenOpening();
    Find("cmdLastSession").setFocus();
    QTest::keyClick(&Find("cmdLastSession"), Qt::Key_Return);
    Settle();
    EXPECT_EQ(PageName(), "frmPreview");
}

TEST_F(OpeningTest, OldDesignIsReadAndPreviewed) {
    const std::string file = WriteDesignFile("old.VRN", 61, 33);
    OpenOpening();
    WatchWaits();
    ClickAndAnswer("cmdOld", [&](QWidget& dialog) {
        EXPECT_EQ(waited, 1) << "before the dialog";
        EXPECT_EQ(TitleOf(dialog), "Get Vernacle File");
        TypeFile(file)(dialog);
    });
    EXPECT_EQ(PageName(), "frmPreview");
    EXPECT_EQ(TitleOf(Page()), "Vernacle - Preview - " + file);
    EXPECT_EQ(Design.DesignFileName, file);
    EXPECT_EQ(Design.PlateWidth, 61);
    EXPECT_EQ(Design.PlateHeight, 33);
    EXPECT_EQ(waited, 1);
    EXPECT_TRUE(said.empty());
    EXPECT_FALSE(TakeProcessEnd());
}

TEST_F(OpeningTest, CancelledOldDesignGoesOnWithTheDefaults) {
    OpenOpening();
    Design.DesignFileName = "/designs/before.VRN";
    Design.PlateWidth = 61;
    ClickAndAnswer("cmdOld", Cancel);
    EXPECT_EQ(PageName(), "frmPreview");
    EXPECT_EQ(TitleOf(Page()), "Vernacle - Preview");
    EXPECT_EQ(Design.DesignFileName, "");
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_EQ(Design.PointerDeflection, 99); // the defaults of a reset, not the opening values
    EXPECT_EQ(Design.ScaleTitle[1], "Default Scale 1");
    EXPECT_TRUE(said.empty());
}

TEST_F(OpeningTest, DamagedOldDesignGoesOnWithTheDefaults) {
    const std::string file = WriteDesignFile("bad.VRN", 61);
    WriteFile("bad.VRN",
              ReadFile("bad.VRN").replace(ReadFile("bad.VRN").find("Scale 1 - deleted tics: 0"), 25,
                                          "Scale 1 - deleted tics: 1\r\nTic deleted: 400"));
    OpenOpening();
    ClickAndAnswer("cmdOld", TypeFile(file));
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[0], "beep");
    EXPECT_TRUE(
        said[1].starts_with("failure: We were not successful in reading that Vernacle file."));
    EXPECT_EQ(PageName(), "frmPreview");
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_EQ(Design.DesignFileName, file);
}

TEST_F(OpeningTest, LastSessionComesBack) {
    WriteDesignFile("LASTSESSION.VRN", 62);
    OpenOpening();
    Design.ActiveScale = 3;
    WatchWaits();
    ClickAndSettle("cmdLastSession");
    EXPECT_EQ(waited, 1);
    EXPECT_EQ(PageName(), "frmPreview");
    EXPECT_EQ(Design.PlateWidth, 62);
    EXPECT_EQ(Design.ActiveScale, 1);
    EXPECT_EQ(Design.DesignFileName, Path("LASTSESSION.VRN"));
    EXPECT_EQ(TitleOf(Page()), "Vernacle - Preview - " + Path("LASTSESSION.VRN"));
    EXPECT_TRUE(said.empty());
}

TEST_F(OpeningTest, LastSessionComesFromWhereItIsNewest) {
    const std::string newest = WriteDesignFile("newest.VRN", 62);
    Host.newestBesideProgram = [newest](const std::string&) { return newest; };
    OpenOpening();
    ClickAndSettle("cmdLastSession");
    EXPECT_EQ(Design.PlateWidth, 62);
    EXPECT_EQ(Design.DesignFileName, newest);
}

TEST_F(OpeningTest, ALastSessionThatIsNoFileGoesOnWithTheDefaults) {
    ASSERT_EQ(mkfifo(Path("LASTSESSION.VRN").c_str(), 0600), 0);
    OpenOpening();
    ClickAndSettle("cmdLastSession");
    ASSERT_EQ(said.size(), 2U);
    EXPECT_TRUE(said[1].ends_with("ReadWrite 407")) << said[1];
    EXPECT_EQ(PageName(), "frmPreview");
}

TEST_F(OpeningTest, MissingLastSessionGoesOnWithTheDefaults) {
    OpenOpening();
    ClickAndSettle("cmdLastSession");
    EXPECT_EQ(said,
              (Strings{"beep", "failure: We were not successful in reading that Vernacle file.\n"
                               "Default values for all items have been put in place.\n\n"
                               "ReadWrite 407"}));
    EXPECT_EQ(PageName(), "frmPreview");
    EXPECT_EQ(Design.PointerDeflection, 99);
    EXPECT_EQ(Design.ActiveScale, 1);
    EXPECT_EQ(Design.DesignFileName, Path("LASTSESSION.VRN"));
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
}

TEST_F(OpeningTest, NothingIsPressedDuringTheWait) {
    OpenOpening();
    bool onPage = false;
    WatchWaits([&] { onPage = PageName() == "frmOpening" && !QApplication::activeModalWidget(); });
    ClickAndAnswer("cmdOld", Cancel);
    EXPECT_TRUE(onPage);
}

// Both ways end the process without a last session.
TEST_F(OpeningTest, ExitAndCloseBoxEndWithoutSaving) {
    OpenOpening();
    Click("cmdExit");
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_EQ(CurrentPage(), nullptr);
    CloseByUser(OpenOpening());
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_EQ(CurrentPage(), nullptr);
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
    EXPECT_TRUE(said.empty());
}

TEST_F(OpeningTest, Shortcuts) {
    OpenOpening();
    Answer([](QWidget& dialog) {
        EXPECT_EQ(TitleOf(dialog), "Get Vernacle File");
        Cancel(dialog);
    });
    QTest::keyClick(&Page(), Qt::Key_O, Qt::ControlModifier);
    Settle();
    EXPECT_TRUE(AllAnswered());
    OpenOpening();
    QTest::keyClick(&Page(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_TRUE(TakeProcessEnd());
}

std::string madeWizard; // what the design was when the wizard was made

std::unique_ptr<QWidget> MakeWizard() {
    madeWizard = Design.ScaleTitle[1];
    auto wizard = std::make_unique<QWidget>();
    wizard->setObjectName(QStringLiteral("frmWizard"));
    return wizard;
}

constexpr FormRow kWizard[] = {{"frmWizard", MakeWizard}};

TEST_F(OpeningTest, NewDesignGoesToTheWizard) {
    auto& opening = dynamic_cast<frmOpening&>(OpenOpening());
    SetForms(kWizard);
    WatchWaits([] { EXPECT_EQ(Design.ScaleTitle[1], "Default Scale 1") << "reset first"; });
    opening.StartNewDesign();
    Settle();
    EXPECT_EQ(waited, 1);
    EXPECT_EQ(madeWizard, "Default Scale 1");
    EXPECT_EQ(PageName(), "frmWizard");
}

} // namespace
} // namespace vernacle::test
