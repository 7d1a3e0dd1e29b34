// The places of the program's own files, with real folders and the rights of an ordinary user.
#include "platform/programfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

#include "core/design.h"
#include "core/seam.h"
#include "render/calibrate.h"
#include "support/enginetest.h"

namespace vernacle::test {

namespace {

constexpr uid_t kNobody = 65534;
constexpr const char* kFactors =
    "\"Vernacle calibration file\"\r\n\r\n#2026-01-01 00:00:00#\r\n\r\n1.25\r\n0.75\r\n\r\n";

// The administrator may write everywhere: what follows is then done as the user of least rights.
class OrdinaryUser {
public:
    OrdinaryUser() {
        if (before_ == 0) {
            EXPECT_EQ(seteuid(kNobody), 0);
        }
    }
    ~OrdinaryUser() { EXPECT_EQ(seteuid(before_), 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    uid_t before_ = geteuid();
};

class ProgramFilesTest : public EngineTest {
protected:
    ProgramFilesTest() {
        chmod(Path("").c_str(), 0777);
        MakeFolder("program", 0755);
        MakeFolder("documents", 0755);
        folders = {Path("program"), Path("home/data/Vernacle"), Path("documents")};
        MakeFolder("home", 0777);
    }
    ~ProgramFilesTest() override { chmod(Path("program").c_str(), 0755); }

    void MakeFolder(const std::string& name, mode_t mode) const {
        ASSERT_EQ(mkdir(Path(name).c_str(), mode), 0);
        ASSERT_EQ(chmod(Path(name).c_str(), mode), 0);
    }
    void LockProgram() const { ASSERT_EQ(chmod(Path("program").c_str(), 0555), 0); }
    int CountIn(const std::string& folder) const {
        return static_cast<int>(
            QDir(QString::fromStdString(Path(folder))).count()); // with "." and ".."
    }

    ProgramFolders folders;
};

TEST_F(ProgramFilesTest, FilesStandBesideAProgramThatItsUserMayWriteTo) {
    EXPECT_EQ(ProgramFileIn(folders, "LASTSESSION.VRN"), Path("program/LASTSESSION.VRN"));
    EXPECT_EQ(ProgramFileIn(folders, "Calibrate.txt"), Path("program/Calibrate.txt"));
    EXPECT_FALSE(Exists("home/data"));
    EXPECT_EQ(CountIn("program"), 2) << "the trial left something";
}

TEST_F(ProgramFilesTest, ElseInTheUsersFolderWhichIsMadeOnDemand) {
    LockProgram();
    const OrdinaryUser user;
    EXPECT_EQ(ProgramFileIn(folders, "LASTSESSION.VRN"),
              Path("home/data/Vernacle/LASTSESSION.VRN"));
    EXPECT_TRUE(Exists("home/data/Vernacle"));
    EXPECT_FALSE(Exists("home/data/Vernacle/Calibrate.txt")) << "there is none to copy";
}

TEST_F(ProgramFilesTest, AProgramFolderThatIsNotThereCannotBeWrittenTo) {
    folders.program = Path("gone");
    EXPECT_EQ(ProgramFileIn(folders, "A"), Path("home/data/Vernacle/A"));
    EXPECT_FALSE(Exists("gone"));
}

TEST_F(ProgramFilesTest, TheFirstUseCopiesTheCalibrationThatCameWithTheProgram) {
    WriteFile("program/Calibrate.txt", kFactors);
    chmod(Path("program/Calibrate.txt").c_str(), 0444);
    LockProgram();
    const OrdinaryUser user;
    ProgramFileIn(folders, "LASTSESSION.VRN");
    ASSERT_EQ(ReadFile("home/data/Vernacle/Calibrate.txt"), kFactors);
    EXPECT_TRUE(QFileInfo(QString::fromStdString(Path("home/data/Vernacle/Calibrate.txt")))
                    .permission(QFile::WriteOwner))
        << "or no calibration could ever be kept";
}

TEST_F(ProgramFilesTest, LaterWhatIsMissingStaysMissing) {
    WriteFile("program/Calibrate.txt", kFactors);
    LockProgram();
    const OrdinaryUser user;
    const std::string file = ProgramFileIn(folders, "Calibrate.txt");
    ASSERT_TRUE(std::filesystem::remove(file));
    EXPECT_EQ(ProgramFileIn(folders, "Calibrate.txt"), file);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(ProgramFilesTest, LaterWhatTheUserMeasuredStays) {
    WriteFile("program/Calibrate.txt", kFactors);
    LockProgram();
    const OrdinaryUser user;
    Host.readFile = [this](const std::string& name) {
        return ReadWholeFile(FileForIn(folders, name));
    };
    Host.openForOutput = [this](const std::string& name) {
        return OpenFileSink(FileForIn(folders, name));
    };
    ReadCalibrate();
    EXPECT_EQ(Design.CalibrationX, 1.25F);
    EXPECT_EQ(Design.CalibrationY, 0.75F);
    Design.CalibrationX = 1.5F;
    WriteCalibrate();
    Design.CalibrationX = Design.CalibrationY = 0;
    ReadCalibrate();
    EXPECT_EQ(Design.CalibrationX, 1.5F);
    EXPECT_EQ(Design.CalibrationY, 0.75F);
    EXPECT_EQ(ReadFile("program/Calibrate.txt"), kFactors);
}

// The failure is then that of the file, with its path.
TEST_F(ProgramFilesTest, AUsersFolderThatCannotBeMadeIsNoFailureYet) {
    LockProgram();
    chmod(Path("home").c_str(), 0555);
    const OrdinaryUser user;
    EXPECT_EQ(ProgramFileIn(folders, "A"), Path("home/data/Vernacle/A"));
    EXPECT_FALSE(Exists("home/data"));
    EXPECT_THROW(OpenFileSink(ProgramFileIn(folders, "A")), FileFailure);
}

TEST_F(ProgramFilesTest, FoldersMayHaveAnyName) {
    folders.program = Path("Meßgeräte µA %1");
    MakeFolder("Meßgeräte µA %1", 0755);
    EXPECT_EQ(ProgramFileIn(folders, "A"), folders.program + "/A");
    EXPECT_FALSE(Exists("home/data"));
}

TEST_F(ProgramFilesTest, OnlyTheCalibrationIsABareNameOfAProgramsFile) {
    const char* const unchanged[] = {
        "Backup.DAT", "LPT1", "A.VRN", "/x/Calibrate.txt", "./Calibrate.txt", "calibrate.txt", "",
    };
    EXPECT_EQ(FileForIn(folders, "Calibrate.txt"), Path("program/Calibrate.txt"));
    for (const char* name : unchanged) {
        EXPECT_EQ(FileForIn(folders, name), name);
    }
}

TEST_F(ProgramFilesTest, ThePlotterFileStandsAmongTheDocuments) {
    EXPECT_EQ(PlotterFileNameIn(folders), Path("documents/HPGLfile.HPGL"));
}

// A variable of the environment, put back at the end of the scope.
class Variable {
public:
    Variable(const char* name, const std::string& value)
        : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), before_(qgetenv(name)) {
        qputenv(name, QByteArray::fromStdString(value));
    }
    ~Variable() { wasSet_ ? qputenv(name_, before_) : qunsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
    bool wasSet_;
    QByteArray before_;
};

// A home folder of the test's own, without the folders that a desktop makes.
TEST_F(ProgramFilesTest, TheFoldersAreThoseOfThisProgramAndUser) {
    const Variable home("HOME", Path("home"));
    const Variable data("XDG_DATA_HOME", Path("home/data"));
    const Variable settings("XDG_CONFIG_HOME", Path("home/settings"));
    const ProgramFolders found = SystemFolders();
    EXPECT_EQ(found.program, QCoreApplication::applicationDirPath().toStdString());
    EXPECT_EQ(found.userData.rfind(Path("home/data/"), 0), 0U) << found.userData;
    EXPECT_NE(found.userData.find(QCoreApplication::applicationName().toStdString()),
              std::string::npos)
        << found.userData;
    EXPECT_EQ(found.documents, Path("home"));
    EXPECT_EQ(PlotterFileName(), Path("home/HPGLfile.HPGL"));
    MakeFolder("home/Documents", 0755);
    EXPECT_EQ(PlotterFileName(), Path("home/Documents/HPGLfile.HPGL"));
    EXPECT_EQ(ProgramFile("A"), ProgramFileIn(found, "A"));
    EXPECT_EQ(FileFor("Calibrate.txt"), ProgramFileIn(found, "Calibrate.txt"));
}

} // namespace

} // namespace vernacle::test
