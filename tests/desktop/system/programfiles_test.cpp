// The places of the program's own files, with real folders and the rights of an ordinary user.
#include "desktop/system/programfiles.h"

#include <QCoreApplication>
#include <QDir>

#include <chrono>

#include <sys/stat.h>
#include <unistd.h>

#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/output/calibrate.h"
#include "support/enginetest.h"
#include "support/environment.h"
#include "support/sourcetree.h"

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
        folders = {Path("program"), Path("home/data/Vernacle"), Path("documents"), Path("share")};
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
    ProgramFiles files(folders);
    EXPECT_EQ(files.PathOf("LASTSESSION.VRN"), Path("program/LASTSESSION.VRN"));
    EXPECT_EQ(files.Calibration(), Path("program/Calibrate.txt"));
    EXPECT_FALSE(Exists("home/data"));
    EXPECT_EQ(CountIn("program"), 2) << "the trial left something";
}

TEST_F(ProgramFilesTest, ElseInTheUsersFolderWhichIsMadeOnDemand) {
    LockProgram();
    const OrdinaryUser user;
    ProgramFiles files(folders);
    EXPECT_EQ(files.PathOf("LASTSESSION.VRN"), Path("home/data/Vernacle/LASTSESSION.VRN"));
    EXPECT_EQ(files.Calibration(), Path("home/data/Vernacle/Calibrate.txt"));
    EXPECT_TRUE(Exists("home/data/Vernacle"));
    std::filesystem::remove(Path("home/data/Vernacle"));
    files.PathOf("LASTSESSION.VRN");
    EXPECT_TRUE(Exists("home/data/Vernacle")) << "made again";
}

TEST_F(ProgramFilesTest, AProgramFolderThatIsNotThereCannotBeWrittenTo) {
    folders.program = Path("gone");
    EXPECT_EQ(ProgramFiles(folders).PathOf("A"), Path("home/data/Vernacle/A"));
    EXPECT_FALSE(Exists("gone"));
}

// A folder may lose its rights, or get them, while the program runs.
TEST_F(ProgramFilesTest, WhereFilesStandIsDecidedOnce) {
    ProgramFiles beside(folders);
    EXPECT_EQ(beside.PathOf("A"), Path("program/A"));
    LockProgram();
    ProgramFiles inHome(folders);
    {
        const OrdinaryUser user;
        EXPECT_EQ(beside.PathOf("A"), Path("program/A"));
        EXPECT_EQ(beside.Calibration(), Path("program/Calibrate.txt"));
        EXPECT_EQ(inHome.PathOf("A"), Path("home/data/Vernacle/A"));
    }
    chmod(Path("program").c_str(), 0777);
    EXPECT_EQ(inHome.PathOf("A"), Path("home/data/Vernacle/A"));
    EXPECT_EQ(ProgramFiles(folders).PathOf("A"), Path("program/A")) << "in the next run";
}

// The failure is then that of the file, with its path.
TEST_F(ProgramFilesTest, AUsersFolderThatCannotBeMadeIsNoFailureYet) {
    LockProgram();
    chmod(Path("home").c_str(), 0555);
    const OrdinaryUser user;
    ProgramFiles files(folders);
    EXPECT_EQ(files.PathOf("A"), Path("home/data/Vernacle/A"));
    EXPECT_FALSE(Exists("home/data"));
    EXPECT_THROW(OpenFileSink(files.PathOf("A")), FileFailure);
}

TEST_F(ProgramFilesTest, FoldersMayHaveAnyName) {
    folders.program = Path("Meßgeräte µA %1");
    MakeFolder("Meßgeräte µA %1", 0755);
    EXPECT_EQ(ProgramFiles(folders).PathOf("A"), folders.program + "/A");
    EXPECT_FALSE(Exists("home/data"));
}

// Files of this user beside the program and in the data folder, of which one was written later.
class TwoPlacesTest : public ProgramFilesTest {
protected:
    TwoPlacesTest() { std::filesystem::create_directories(folders.userData); }

    static constexpr const char* kBeside = "program/A";
    static constexpr const char* kInHome = "home/data/Vernacle/A";

    void Leave(const std::string& name, int secondsAgo) const {
        WriteFile(name, name);
        std::filesystem::last_write_time(Path(name), std::filesystem::file_time_type::clock::now() -
                                                         std::chrono::seconds(secondsAgo));
    }
    std::string Newest() const { return ProgramFiles(folders).NewestOf("A"); }
};

TEST_F(TwoPlacesTest, TheNewerIsRead) {
    EXPECT_EQ(Newest(), Path(kBeside)) << "where one would be written";
    Leave(kInHome, 10);
    EXPECT_EQ(Newest(), Path(kInHome)) << "the only one";
    Leave(kBeside, 20);
    EXPECT_EQ(Newest(), Path(kInHome));
    Leave(kBeside, 0);
    EXPECT_EQ(Newest(), Path(kBeside));
    Leave(kInHome, 10);
    Leave(kBeside, 10);
    std::filesystem::last_write_time(Path(kInHome),
                                     std::filesystem::last_write_time(Path(kBeside)));
    EXPECT_EQ(Newest(), Path(kBeside)) << "of equals the one that will be written";
}

TEST_F(TwoPlacesTest, WhereTheNextIsWrittenDoesNotMatter) {
    Leave(kInHome, 10);
    Leave(kBeside, 0);
    LockProgram();
    chmod(Path("home").c_str(), 0777);
    ProgramFiles files(folders);
    EXPECT_EQ(files.NewestOf("A"), Path(kBeside));
}

TEST_F(TwoPlacesTest, WhatAnotherUserLeftIsNotTaken) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only the superuser can give a file away";
    }
    Leave(kInHome, 10);
    Leave(kBeside, 0);
    ASSERT_EQ(chown(Path(kBeside).c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(Newest(), Path(kInHome));
    ASSERT_EQ(chown(Path(kInHome).c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(Newest(), Path(kBeside)) << "in the place of this user's";
    std::filesystem::remove(Path(kBeside));
    EXPECT_EQ(Newest(), Path(kBeside));
}

TEST_F(TwoPlacesTest, WhatIsNoFileIsNotTaken) {
    Leave(kBeside, 10);
    ASSERT_EQ(mkfifo(Path(kInHome).c_str(), 0666), 0);
    EXPECT_EQ(Newest(), Path(kBeside));
    std::filesystem::remove(Path(kInHome));
    MakeFolder(kInHome, 0755);
    EXPECT_EQ(Newest(), Path(kBeside));
}

TEST_F(ProgramFilesTest, TheCalibrationsAreTheUsersAndThenTheOneThatCameWithTheProgram) {
    const std::string beside = Path("program/Calibrate.txt");
    const std::string inHome = Path("home/data/Vernacle/Calibrate.txt");
    const std::string shipped = Path("share/Calibrate.txt");
    ProgramFiles files(folders);
    EXPECT_EQ(files.Calibrations(), (std::vector{beside, inHome, shipped}));
    std::filesystem::create_directories(folders.userData);
    WriteFile("home/data/Vernacle/Calibrate.txt", kFactors);
    EXPECT_EQ(files.Calibrations(), (std::vector{inHome, beside, shipped}));
    EXPECT_EQ(files.Calibration(), beside) << "written where files stand in this run";
}

class ShippedCalibrationTest : public ProgramFilesTest {
protected:
    ShippedCalibrationTest() {
        LockProgram();
        MakeFolder("share", 0755);
        WriteFile("share/Calibrate.txt", kFactors);
        chmod(Path("share/Calibrate.txt").c_str(), 0444);
        Host.calibrationsToRead = [this] { return files.Calibrations(); };
        Host.calibrationToWrite = [this] { return files.Calibration(); };
        Design.CalibrationX = Design.CalibrationY = 0;
    }

    void ExpectRead(float x, float y) const {
        Design.CalibrationX = Design.CalibrationY = 0;
        ReadCalibrate(Design);
        EXPECT_EQ(Design.CalibrationX, x);
        EXPECT_EQ(Design.CalibrationY, y);
    }

    ProgramFiles files{folders};
    const std::string own = "home/data/Vernacle/Calibrate.txt";
};

TEST_F(ShippedCalibrationTest, WhatTheUserMeasuredIsKeptInTheUsersFolder) {
    const OrdinaryUser user;
    ExpectRead(1.25F, 0.75F);
    EXPECT_FALSE(Exists(own)) << "reading writes nothing";
    Design.CalibrationX = 1.5F;
    WriteCalibrate(Design);
    ExpectRead(1.5F, 0.75F);
    EXPECT_EQ(ReadFile("share/Calibrate.txt"), kFactors);
}

TEST_F(ShippedCalibrationTest, ItIsReadWhereTheUsersIsMissingOrCutShort) {
    const OrdinaryUser user;
    Design.CalibrationX = Design.CalibrationY = 1.5F;
    WriteCalibrate(Design);
    ExpectRead(1.5F, 1.5F);
    const std::string whole = ReadFile(own);
    for (std::size_t size = 0; size + 10 < whole.size(); ++size) {
        WriteFile(own, whole.substr(0, size));
        ExpectRead(1.25F, 0.75F);
    }
    chmod(Path(own).c_str(), 0);
    ExpectRead(1.25F, 0.75F);
    std::filesystem::remove(Path(own));
    ExpectRead(1.25F, 0.75F);
    ASSERT_EQ(mkfifo(Path(own).c_str(), 0600), 0);
    ExpectRead(1.25F, 0.75F);
}

TEST_F(ShippedCalibrationTest, OnlyWithoutBothTheFactorsStayAsTheyAre) {
    std::filesystem::remove(Path("share/Calibrate.txt"));
    const OrdinaryUser user;
    ExpectRead(0, 0);
}

// The folders above the program of a build or of an installation.
TEST_F(ProgramFilesTest, WhatComesWithTheProgramIsFoundFromTheBuiltOneToo) {
    const ProgramFolders found = SystemFolders();
    EXPECT_EQ(ReadWholeFile(found.share + "/Calibrate.txt"),
              ReadWholeFile(SourcePath("packaging/Calibrate.txt")));
    EXPECT_EQ(ExamplesFolder(), found.share + "/examples");
    const std::filesystem::path examples = SourcePath("examples");
    for (const auto& example : std::filesystem::recursive_directory_iterator(examples)) {
        if (example.is_regular_file()) {
            const auto name = std::filesystem::relative(example.path(), examples);
            EXPECT_EQ(ReadWholeFile(ExamplesFolder() + "/" + name.string()),
                      ReadWholeFile(example.path().string()));
        }
    }
    EXPECT_EQ(ExamplesFolderIn(folders), "") << "where there are none";
}

TEST_F(ProgramFilesTest, ThePlotterFileStandsAmongTheDocuments) {
    EXPECT_EQ(PlotterFileNameIn(folders), Path("documents/HPGLfile.HPGL"));
}

// A home folder of the test's own, without the folders that a desktop makes.
TEST_F(ProgramFilesTest, TheFoldersAreThoseOfThisProgramAndUser) {
    const EnvironmentVariable home("HOME", Path("home"));
    const EnvironmentVariable data("XDG_DATA_HOME", Path("home/data"));
    const EnvironmentVariable settings("XDG_CONFIG_HOME", Path("home/settings"));
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
}

} // namespace

} // namespace vernacle::test
