// The seam to the desktop: message boxes, file places, the screen.
#include "platform/host.h"

#include <QFile>
#include <QMessageBox>
#include <QPushButton>

#include "support/formtest.h"

namespace vernacle::test {
namespace {

class HostTest : public FormTest {
protected:
    const HostSeam desktop = DesktopHost();

    // What the next message box says, which is closed by its button.
    struct Said {
        QString name;
        QString text;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QMessageBox::StandardButtons buttons;
    };
    Said Say(const std::function<void()>& say) {
        Said heard;
        Answer([&heard](QWidget& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            heard = {box.objectName(), box.text(), box.icon(), box.standardButtons()};
            Click(*box.button(QMessageBox::Ok));
        });
        say();
        return heard;
    }
};

TEST_F(HostTest, AFailureIsABoxWithOk) {
    const Said box = Say([this] { desktop.failureBox("no <b>disk</b>"); });
    EXPECT_EQ(box.name, QStringLiteral("boxFailure"));
    EXPECT_EQ(box.text, QStringLiteral("no <b>disk</b>"));
    EXPECT_EQ(box.icon, QMessageBox::Warning);
    EXPECT_EQ(box.buttons, QMessageBox::Ok);
}

TEST_F(HostTest, SoIsAnInformation) {
    const Said box = Say([this] { desktop.informationBox("done"); });
    EXPECT_EQ(box.name, QStringLiteral("boxInformation"));
    EXPECT_EQ(box.text, QStringLiteral("done"));
    EXPECT_EQ(box.icon, QMessageBox::Information);
}

TEST_F(HostTest, TheWarningSoundTravelsWithTheProgram) {
    QFile sound(QStringLiteral(":/sounds/warningprinter.wav"));
    ASSERT_TRUE(sound.open(QIODevice::ReadOnly));
    EXPECT_TRUE(sound.readAll().startsWith("RIFF"));
    desktop.playSound("warningprinter.wav"); // returns at once, heard or not
}

TEST_F(HostTest, TheScreenIsCountedInTwips) {
    EXPECT_EQ(desktop.screenSize().widthTwips, 1920 * 15);
    EXPECT_EQ(desktop.screenSize().heightTwips, 1080 * 15);
}

TEST_F(HostTest, TheLastSessionStandsBesideTheProgram) {
    const std::string name = desktop.besideProgram("LASTSESSION.VRN");
    EXPECT_EQ(name, QCoreApplication::applicationDirPath().toStdString() + "/LASTSESSION.VRN");
}

TEST_F(HostTest, TheCalibrationFileIsFoundByItsBareName) {
    EXPECT_NE(desktop.readFile("Calibrate.txt").find("Vernacle calibration file"),
              std::string::npos);
}

TEST_F(HostTest, OtherNamesArePaths) {
    const auto sink = desktop.openForOutput(Path("plate.VRN"));
    sink->Write("x");
    sink->Close();
    EXPECT_EQ(ReadFile("plate.VRN"), "x");
}

} // namespace
} // namespace vernacle::test
