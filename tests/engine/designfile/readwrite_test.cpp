// Writing and reading a design file by name: which file, and what is said when it fails.
#include "engine/designfile/readwrite.h"

#include <limits>

#include <sys/stat.h>
#include <unistd.h>

#include "designfile.h"
#include "engine/base/bytesink.h"
#include "engine/base/hostservices.h"
#include "support/filelimit.h"

namespace vernacle::test {
namespace {

class ReadWriteTest : public DesignFileTest {
protected:
    // The file behind the line of its name.
    std::string Body(const std::string& name) const {
        const std::string text = ReadFile(name);
        return text.substr(text.find('\n') + 1);
    }

    // That its reading ends at its opening, with defaults in every field.
    void ExpectNotOpened(const std::string& name) {
        said.clear();
        Design.PlateWidth = 61.5F;
        ReadDesign(Design, name);
        EXPECT_EQ(said, (Texts{"beep", kNotRead + "407"})) << name;
        EXPECT_EQ(Design.PlateWidth, 75) << name;
    }
};

TEST_F(ReadWriteTest, SavesUnderTheDesignsNameUnlessNoneWasChosen) {
    Design.DesignFileName = Path("plate.vrn");
    SaveDesign(Design, "");
    EXPECT_FALSE(Exists("plate.vrn"));
    SaveDesign(Design, "any");
    EXPECT_TRUE(Exists("plate.vrn"));
    EXPECT_FALSE(Exists("any"));
    EXPECT_TRUE(said.empty());
}

TEST_F(ReadWriteTest, ReplacesTheFile) {
    WriteFile("plate.vrn", std::string(100000, '~'));
    Design.DesignFileName = Path("plate.vrn");
    WriteDesign(Design);
    EXPECT_EQ(ReadFile("plate.vrn").find('~'), std::string::npos);
}

TEST_F(ReadWriteTest, ABackupLosesTheNameInHand) {
    Design.DesignFileName = Path("plate.vrn");
    Design.PlateWidth = 61.5F;
    BackupDesign(Design);
    EXPECT_EQ(Design.DesignFileName, "");
    EXPECT_FALSE(Exists("plate.vrn"));
    EXPECT_EQ(ReadFile("Backup.DAT").find("Filename: Backup.DAT\r\n"), 0U);
    Design.PlateWidth = 20;
    ReadDesign(Design, "Backup.DAT");
    EXPECT_EQ(Design.PlateWidth, 61.5F);
    EXPECT_EQ(Design.DesignFileName, "");
    EXPECT_TRUE(said.empty());
}

TEST_F(ReadWriteTest, TheLastSessionStandsBesideTheProgram) {
    Host.besideProgram = [this](const std::string& name) { return Path("beside-" + name); };
    Design.DesignFileName = Path("plate.vrn");
    SaveLastSession(Design);
    EXPECT_EQ(Design.DesignFileName, Path("beside-LASTSESSION.VRN"));
    EXPECT_TRUE(Exists("beside-LASTSESSION.VRN"));
    EXPECT_FALSE(Exists("plate.vrn"));
}

TEST_F(ReadWriteTest, ReadingAnEmptyNameDoesNothing) {
    Design.PlateWidth = 61.5F;
    ReadDesign(Design, "");
    EXPECT_EQ(Design.PlateWidth, 61.5F);
    EXPECT_TRUE(said.empty());
}

TEST_F(ReadWriteTest, ReadingKeepsTheNameOfTheDesign) {
    Design.DesignFileName = "mine";
    ReadDesign(Design, WriteFile("plate.vrn", DesignFile().Text()));
    EXPECT_EQ(Design.DesignFileName, "mine");
    ReadDesign(Design, Path("none.vrn"));
    EXPECT_EQ(Design.DesignFileName, "mine");
}

TEST_F(ReadWriteTest, ReportsWhatCannotBeWritten) {
    for (const std::string& name :
         {Path("none/plate.vrn"), Path(""), std::string("/dev/full"), std::string("")}) {
        said.clear();
        Design.DesignFileName = name;
        WriteDesign(Design);
        EXPECT_EQ(said, kNotWritten) << name;
        EXPECT_EQ(Design.DesignFileName, name);
    }
}

TEST_F(ReadWriteTest, ReportsABackupAndALastSessionThatCannotBeWritten) {
    Host.openForOutput = [](const std::string&) { return OpenFileSink("/dev/full"); };
    BackupDesign(Design);
    EXPECT_EQ(said, kNotWritten);
    EXPECT_EQ(Design.DesignFileName, "");
    said.clear();
    SaveLastSession(Design);
    EXPECT_EQ(said, kNotWritten);
    EXPECT_EQ(Design.DesignFileName, LastSessionName());
}

TEST_F(ReadWriteTest, TellsWhetherTheDesignIsWritten) {
    Design.DesignFileName = Path("plate.vrn");
    EXPECT_TRUE(WriteDesign(Design));
    EXPECT_TRUE(SaveLastSession(Design));
    Design.DesignFileName = "/dev/full";
    EXPECT_FALSE(WriteDesign(Design));
    Host.besideProgram = [](const std::string&) { return "/dev/full"; };
    EXPECT_FALSE(SaveLastSession(Design));
}

// For the next start it does not matter where the next session will be kept.
TEST_F(ReadWriteTest, TheLastSessionIsReadWhereItIsNewest) {
    Host.newestBesideProgram = [this](const std::string& name) { return Path("newest-" + name); };
    EXPECT_EQ(LastSessionName(), Path("newest-LASTSESSION.VRN"));
    SaveLastSession(Design);
    EXPECT_EQ(Design.DesignFileName, Path("LASTSESSION.VRN"));
}

TEST_F(ReadWriteTest, ASessionIsKeptWithoutAWordAndWithNothingChanged) {
    Design.DesignFileName = Path("plate.vrn");
    Design.PlateWidth = 61.5F;
    Design.DrawGraphic = "N";
    Design.GraphicFileName = "/pictures/logo.bmp";
    EXPECT_TRUE(KeepLastSession(Design));
    EXPECT_NE(ReadFile("LASTSESSION.VRN").find("Plate width: 61.5\r\n"), std::string::npos);
    EXPECT_EQ(ReadFile("LASTSESSION.VRN").find("Filename: " + Path("LASTSESSION.VRN")), 0U);
    EXPECT_EQ(Design.DesignFileName, Path("plate.vrn"));
    EXPECT_EQ(Design.GraphicFileName, "/pictures/logo.bmp") << "which writing empties";
    Host.besideProgram = [](const std::string&) { return "/dev/full"; };
    EXPECT_FALSE(KeepLastSession(Design));
    EXPECT_EQ(Design.DesignFileName, Path("plate.vrn"));
    EXPECT_TRUE(said.empty());
}

// A design's lines read as factors would make every later plate too large.
TEST_F(ReadWriteTest, TheCalibrationIsNotWrittenOverByAnyName) {
    const std::string own = WriteFile("Calibrate.txt", "factors");
    const std::string shipped = WriteFile("shipped.txt", "factors");
    Host.calibrationsToRead = [=] { return Texts{own, shipped}; };
    std::filesystem::create_symlink(own, Path("link.VRN"));
    std::filesystem::create_hard_link(own, Path("hard.VRN"));
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(Path(""));
    for (const std::string& name :
         {own, Path("./Calibrate.txt"), Path("link.VRN"), Path("hard.VRN"), shipped,
          std::string("Calibrate.txt"), std::string("./shipped.txt")}) {
        said.clear();
        Design.DesignFileName = name;
        EXPECT_FALSE(WriteDesign(Design));
        EXPECT_EQ(said, kNotWritten) << name;
        EXPECT_EQ(ReadFile("Calibrate.txt"), "factors") << name;
        EXPECT_EQ(ReadFile("shipped.txt"), "factors") << name;
        EXPECT_EQ(Design.DesignFileName, name);
    }
    std::filesystem::remove(own);
    Design.DesignFileName = "Calibrate.txt";
    EXPECT_FALSE(WriteDesign(Design)) << "nor is one made of a design";
    EXPECT_FALSE(Exists("Calibrate.txt"));
    std::filesystem::current_path(before);
}

TEST_F(ReadWriteTest, TheBareNameThatACalibrationLeavesIsAFileOfTheWorkingFolder) {
    std::filesystem::create_directory(Path("work"));
    WriteFile("Calibrate.txt", "factors");
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(Path("work"));
    Design.DesignFileName = "Calibrate.txt";
    EXPECT_TRUE(WriteDesign(Design));
    std::filesystem::current_path(before);
    EXPECT_EQ(ReadFile("work/Calibrate.txt").find("Filename: Calibrate.txt\r\n"), 0U);
    EXPECT_EQ(ReadFile("Calibrate.txt"), "factors");
    EXPECT_TRUE(said.empty());
}

TEST_F(ReadWriteTest, APipeIsADesignThatCannotBeOpened) {
    ASSERT_EQ(mkfifo(Path("plate.vrn").c_str(), 0600), 0);
    ExpectNotOpened(Path("plate.vrn"));
}

TEST_F(ReadWriteTest, ReportsASizeLimit) {
    Design.DesignFileName = Path("plate.vrn");
    {
        const FileSizeLimit limit(1024);
        WriteDesign(Design);
    }
    EXPECT_EQ(said, kNotWritten);
    EXPECT_EQ(ReadFile("plate.vrn").size(), 1024U);
}

// What the writer cannot go through ends the file in front of the line that failed.
struct Unwritable {
    const char* name;
    void (*make)();
    const char* lastLine;
};

constexpr Unwritable kUnwritable[] = {
    {"nine scales", [] { Design.NumberOfScales = 9; }, "Linearity exponent: 0\r\n"},
    {"361 special steps",
     [] {
         Design.ScaleColor[1] = -1;
         Design.SpecialNrOfTicmarks[1] = 361;
     },
     " 0\\Y\\Y\\N\\/\r\n"},
    {"eleven texts", [] { Design.NumberOfTexts = 11; }, "Color: 0\r\n"},
    {"all tics of scale 1 deleted",
     [] {
         for (int tic = 0; tic <= 360; ++tic) {
             Design.StandardTicYN[1][tic] = "N";
         }
     },
     "Plate background: 16777215\r\n"},
    {"all labels of scale 6 deleted",
     [] {
         for (int tic = 0; tic <= 360; ++tic) {
             Design.StandardLabelYN[6][tic] = "N";
         }
     },
     "Plate background: 16777215\r\n"},
    {"a width without a text", [] { Design.PlateWidth = std::numeric_limits<float>::infinity(); },
     "11/21/26 10:08:00\r\n"},
};

TEST_F(ReadWriteTest, ReportsWhatItCannotGoThrough) {
    for (const Unwritable& row : kUnwritable) {
        SCOPED_TRACE(row.name);
        said.clear();
        ResetDesign(Design);
        Design.DesignFileName = Path("plate.vrn");
        row.make();
        WriteDesign(Design);
        EXPECT_EQ(said, kNotWritten);
        EXPECT_TRUE(ReadFile("plate.vrn").ends_with(row.lastLine));
        Design = DesignRecord{};
    }
}

TEST_F(ReadWriteTest, ReportsAFailureAmongTheLinesOnceThoughTheDiskIsFull) {
    Design.NumberOfTexts = 11;
    Design.DesignFileName = "/dev/full";
    WriteDesign(Design);
    EXPECT_EQ(said, kNotWritten);
}

TEST_F(ReadWriteTest, AMissingFileIsReportedWithTheStageOfItsOpening) {
    Design.ScaleTitle[1] = "mA";
    ExpectNotOpened(Path("none.vrn"));
    EXPECT_EQ(Design.ScaleTitle[1], "Default Scale 1");
}

TEST_F(ReadWriteTest, WhatCannotBeReadIsReportedAlike) {
    WriteFile("large.vrn", "");
    std::filesystem::resize_file(Path("large.vrn"), kLargestFile + 1);
    for (const std::string& name : {Path("none/plate.vrn"), Path(""), Path("large.vrn")}) {
        ExpectNotOpened(name);
    }
}

TEST_F(ReadWriteTest, AFileThatMayNotBeReadIsReportedAlike) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "permissions do not bind the superuser";
    }
    const std::string name = WriteFile("plate.vrn", DesignFile().Text());
    std::filesystem::permissions(name, std::filesystem::perms::none);
    ExpectNotOpened(name);
}

TEST_F(ReadWriteTest, TheBodyIsTheSameWhateverTheName) {
    Design.DesignFileName = Path("plate.vrn");
    WriteDesign(Design);
    SaveLastSession(Design);
    EXPECT_EQ(Body("plate.vrn"), Body("LASTSESSION.VRN"));
    EXPECT_NE(Body("plate.vrn"), "");
}

} // namespace
} // namespace vernacle::test
