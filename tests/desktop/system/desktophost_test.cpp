// The seam to the desktop: message boxes, file places, the screen.
#include "desktop/system/desktophost.h"

#include <QFile>

#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "engine/base/runtimeerror.h"
#include "engine/core/service.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class HostTest : public FormTest {
protected:
    const HostServices desktop = DesktopHost();

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

// What the system says stands apart from the text, and as it is.
TEST_F(HostTest, AFailuresReasonStandsBesideItsText) {
    for (const std::string& reason : {std::string("lp: <b>Queue</b> & paper"), std::string()}) {
        Answer([&reason](QWidget& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            EXPECT_EQ(box.text(), QStringLiteral("It failed."));
            EXPECT_EQ(box.informativeText().toStdString(), reason);
            for (const auto* label : box.findChildren<QLabel*>()) {
                EXPECT_TRUE(label->text().isEmpty() || label->textFormat() == Qt::PlainText);
            }
            Click(*box.button(QMessageBox::Ok));
        });
        desktop.failureBox({"It failed.", reason});
    }
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

TEST_F(HostTest, ThePlaceOfTheSessionsStaysTheSame) {
    EXPECT_EQ(desktop.besideProgram("A"), desktop.besideProgram("A"));
    EXPECT_EQ(desktop.newestBesideProgram("none-such"), desktop.besideProgram("none-such"));
}

TEST_F(HostTest, TheCalibrationThatCameWithTheProgramIsReadLast) {
    EXPECT_EQ(desktop.calibrationToWrite(), desktop.besideProgram("Calibrate.txt"));
    EXPECT_NE(desktop.readFile(desktop.calibrationsToRead().back()).find("Vernacle calibration"),
              std::string::npos);
}

// The name that a calibration leaves to the design is no way into the program's own folder.
TEST_F(HostTest, ABareNameStandsInTheWorkingFolder) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(Path(""));
    const auto sink = desktop.openForOutput("Calibrate.txt");
    sink->Write("x");
    sink->Close();
    EXPECT_EQ(desktop.readFile("Calibrate.txt"), "x");
    std::filesystem::current_path(before);
    EXPECT_EQ(ReadFile("Calibrate.txt"), "x");
}

TEST_F(HostTest, APipeThatNobodyReadsCannotBeOpened) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    StoreService(Program::Workshop); // whose own way to open a file would wait
    EXPECT_THROW(desktop.openForOutput(Path("pipe")), FileFailure);
    StoreService(Program::Everyday);
    EXPECT_THROW(desktop.openForOutput(Path("pipe")), FileFailure);
    EXPECT_THROW(desktop.readFile(Path("pipe")), FileFailure);
    const int reader = open(Path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
    const auto sink = desktop.openForOutput(Path("pipe"));
    sink->Write("through");
    sink->Close();
    std::array<char, 16> bytes{};
    EXPECT_EQ(read(reader, bytes.data(), bytes.size()), 7);
    EXPECT_STREQ(bytes.data(), "through");
    close(reader);
}

TEST_F(HostTest, TheWorkshopReplacesAFileWhenTheNewOneIsWhole) {
    StoreService(Program::Workshop);
    WriteFile("plate.VRN", "old");
    {
        const auto sink = desktop.openForOutput(Path("plate.VRN"));
        sink->Write("half of the n");
    }
    EXPECT_EQ(ReadFile("plate.VRN"), "old");
    const auto sink = desktop.openForOutput(Path("plate.VRN"));
    sink->Write("new");
    sink->Close();
    EXPECT_EQ(ReadFile("plate.VRN"), "new");
    EXPECT_THROW(desktop.openForOutput(Path("none/plate.VRN"))->Close(), FileFailure);
}

TEST_F(HostTest, OtherNamesArePaths) {
    const auto sink = desktop.openForOutput(Path("plate.VRN"));
    sink->Write("x");
    sink->Close();
    EXPECT_EQ(ReadFile("plate.VRN"), "x");
}

} // namespace
} // namespace vernacle::test
