// The workshop itself, as a process: its arguments, and its end by the system.
#include <QDirIterator>
#include <QProcess>

#include "apptest.h"
#include "engine/core/service.h"
#include "support/process.h"

namespace vernacle::test {
namespace {

constexpr int kPatienceMs = 60000;

class WorkshopProgramTest : public AppTest {
protected:
    WorkshopProgramTest() { StoreService(Program::Workshop); }

    ProcessResult Run(const std::vector<std::string>& arguments) const {
        ProcessSetting setting;
        setting.environment = {"QT_QPA_PLATFORM=offscreen", "XDG_DATA_HOME=" + Path("home")};
        return RunProgram(VERNACLE_WORKSHOP, arguments, setting);
    }

    QString FoundInHome(const QString& name) const {
        QDirIterator files(QString::fromStdString(Path("home")), {name}, QDir::Files,
                           QDirIterator::Subdirectories);
        return files.hasNext() ? files.next() : QString();
    }
};

TEST_F(WorkshopProgramTest, TellsOfItsArguments) {
    const ProcessResult help = Run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("[FILE]"), std::string::npos);
    EXPECT_EQ(Run({"--version"}).status, 0);
    for (const auto& wrong : {std::vector<std::string>{"--nonsense"}, {"one.VRN", "two.VRN"}}) {
        const ProcessResult result = Run(wrong);
        EXPECT_EQ(result.status, 2);
        EXPECT_NE(result.err.find("vernacle-workshop: "), std::string::npos) << result.err;
    }
}

TEST_F(WorkshopProgramTest, OpensAFileAndKeepsItsSessionWhenItIsEnded) {
    WriteDesignFile("mine.VRN", 61.5F);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("XDG_DATA_HOME"), QString::fromStdString(Path("home")));
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(QString::fromStdString(Path(".")));
    program.start(QStringLiteral(VERNACLE_WORKSHOP), {QStringLiteral("mine.VRN")});
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return !FoundInHome(QStringLiteral("workshop.ini")).isEmpty(); }, kPatienceMs))
        << "it is open, and a recent design";
    program.terminate();
    ASSERT_TRUE(program.waitForFinished(kPatienceMs));
    EXPECT_EQ(program.exitCode(), 0);
    const QString session = FoundInHome(QStringLiteral("LASTWORKSHOP.VRN"));
    ASSERT_FALSE(session.isEmpty());
    ReadDesign(Design, session.toStdString());
    EXPECT_EQ(Design.PlateWidth, 61.5F);
    EXPECT_EQ(DesignNameIn(Host.readFile(session.toStdString())),
              std::filesystem::canonical(Path("mine.VRN")).string());
}

} // namespace
} // namespace vernacle::test
