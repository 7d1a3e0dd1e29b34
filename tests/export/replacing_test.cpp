// How an output takes its place: what stood there stays until the new one is whole.
#include <filesystem>
#include <fstream>
#include <functional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "export/exporttest.h"

namespace vernacle::test {

namespace {

namespace fs = std::filesystem;

class ReplacingTest : public ExportTest {
protected:
    ReplacingTest() { ExportQuietly(design, {Path("new.csv")}); }

    // A file that is opened before and read after: it goes on showing what stood there if that was
    // replaced, and not if it was written over.
    static std::string ThroughOpenFile(const std::string& path, const std::function<void()>& act) {
        const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        act();
        std::string text(100000, '\0');
        text.resize(static_cast<std::size_t>(read(file, text.data(), text.size())));
        close(file);
        return text;
    }

    // A folder whose path is so long that no longer name has a place in it, for root neither.
    std::string CrampedFolder(std::size_t room) const {
        constexpr std::size_t kLongestPath = 4095;
        std::string folder = Path("deep");
        while (folder.size() + 1 + room < kLongestPath) {
            const std::size_t left = kLongestPath - room - folder.size() - 1;
            folder += "/" + std::string(left > 250 ? 200 : left - 1, 'd');
            if (left <= 250) {
                break;
            }
        }
        fs::create_directories(folder);
        return folder;
    }

    const std::string design = Example("VOLTS-0-15");
    const std::string& whole() const { return whole_; }

private:
    std::string whole_ = [this] {
        ExportQuietly(design, {Path("whole.csv")});
        std::string text = ReadFile("whole.csv");
        fs::remove(Path("whole.csv"));
        return text;
    }();
};

TEST_F(ReplacingTest, ARegularFileIsReplacedAsAWhole) {
    const std::string path = WriteFile("plate.csv", "old");
    const std::string seen =
        ThroughOpenFile(path, [&] { ExportQuietly(design, {Path("plate.csv")}); });
    EXPECT_EQ(seen, "old");
    EXPECT_EQ(ReadFile("plate.csv"), whole());
    EXPECT_EQ(CountFiles(), 2U); // with new.csv
}

TEST_F(ReplacingTest, TheModeStays) {
    const std::string path = WriteFile("plate.csv", "old");
    for (const mode_t mode : {0600U, 0640U, 0666U, 0755U, 02644U}) {
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
        ExportQuietly(design, {path});
        struct stat state {};
        ASSERT_EQ(stat(path.c_str(), &state), 0);
        EXPECT_EQ(state.st_mode & 07777, mode);
    }
}

TEST_F(ReplacingTest, ANewFileHasTheModeThatTheUserWants) {
    const ProcessResult result = RunProgram("sh", {"-c", "umask 027; exec \"$0\" \"$1\" \"$2\"",
                                                   VERNACLE_EXPORT, design, Path("plate.csv")});
    EXPECT_EQ(result.status, 0) << result.err;
    struct stat state {};
    ASSERT_EQ(stat(Path("plate.csv").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 07777, 0640U);
}

TEST_F(ReplacingTest, ALinkStaysAndWhatItLeadsToIsReplaced) {
    fs::create_directory(Path("there"));
    WriteFile("there/real.csv", "old");
    fs::create_symlink("there/real.csv", Path("plate.csv"));   // from its own folder
    fs::create_symlink(Path("plate.csv"), Path("link.csv"));   // by way of another
    fs::create_symlink("there/missing.csv", Path("next.csv")); // to what is not there yet
    const std::string seen = ThroughOpenFile(Path("there/real.csv"), [&] {
        ExportQuietly(design, {Path("link.csv"), Path("next.csv")});
    });
    EXPECT_EQ(seen, "old");
    for (const char* link : {"plate.csv", "link.csv", "next.csv"}) {
        EXPECT_TRUE(fs::is_symlink(Path(link))) << link;
        EXPECT_EQ(ReadFile(link), whole()) << link;
    }
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(Path("there/real.csv"))));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(Path("there/missing.csv"))));
}

// The other name would go on showing the old plate.
TEST_F(ReplacingTest, AFileWithTwoNamesKeepsBoth) {
    WriteFile("plate.csv", std::string(100000, 'x'));
    fs::create_hard_link(Path("plate.csv"), Path("other.csv"));
    ExportQuietly(design, {Path("plate.csv")});
    EXPECT_EQ(fs::hard_link_count(Path("plate.csv")), 2U);
    EXPECT_EQ(ReadFile("other.csv"), whole());
}

TEST_F(ReplacingTest, APipeIsWrittenDirectly) {
    const std::string pipe = Path("plate.csv");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const ProcessResult result = RunProgram(
        "sh", {"-c", "cat \"$2\" & \"$0\" \"$1\" \"$2\"; wait", VERNACLE_EXPORT, design, pipe});
    EXPECT_EQ(result.out, whole());
    EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST_F(ReplacingTest, AReaderThatHasGoneIsAFailure) {
    const std::string pipe = Path("plate.csv");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    // The reader takes one byte of more than the pipe holds.
    const std::string many =
        EditedExample("VOLTS-0-15", {{"Scale title:", std::string(300000, 'M')}, {"Texts: ", "0"}});
    fs::rename(pipe, Path("plate.hpgl"));
    const ProcessResult result =
        RunProgram("sh", {"-c", "head -c 1 \"$2\" >/dev/null & exec \"$0\" \"$1\" \"$2\"",
                          VERNACLE_EXPORT, many, Path("plate.hpgl")});
    EXPECT_EQ(result.signal, 0);
    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("was not written: "), std::string::npos) << result.err;
}

TEST_F(ReplacingTest, InAFolderThatTakesNoOtherFileTheFileIsWrittenOver) {
    const std::string folder = CrampedFolder(7);
    const std::string path = folder + "/p.csv";
    for (const std::string& old : {std::string("old"), std::string(100000, 'x'), std::string()}) {
        { std::ofstream(path) << old; }
        const std::string seen = ThroughOpenFile(path, [&] { ExportQuietly(design, {path}); });
        EXPECT_EQ(seen, whole());
        EXPECT_EQ(ReadText(path), whole());
    }
}

TEST_F(ReplacingTest, AFileThatIsWrittenOverStaysAsItWasIfTheNewOneDoesNotFit) {
    const std::string folder = CrampedFolder(7);
    const std::string path = folder + "/p.csv";
    const std::string old = "what stood there";
    for (const unsigned long limit : {0UL, 10UL, 100UL, whole().size() - 1}) {
        { std::ofstream(path) << old; }
        ProcessSetting full;
        full.largestFileBytes = limit;
        const ProcessResult result = Export({design, path}, full);
        EXPECT_EQ(result.status, 1) << limit;
        EXPECT_EQ(ReadText(path), old) << limit;
    }
}

TEST_F(ReplacingTest, AFileThatTheUserMayNotWriteStays) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "nothing is forbidden to root";
    }
    const std::string path = WriteFile("plate.csv", "old");
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    EXPECT_EQ(Export({design, path}).status, 1);
    EXPECT_EQ(ReadFile("plate.csv"), "old");
}

TEST_F(ReplacingTest, ADesignIsKeptWhenTheDiskIsFull) {
    const std::string text = ReadText(design);
    WriteFile("a.VRN", text);
    ProcessSetting full;
    full.folder = Path("");
    for (const unsigned long limit : {0UL, 512UL, 1024UL}) {
        full.largestFileBytes = limit;
        EXPECT_EQ(Export({"--force", "a.VRN", "a.VRN"}, full).status, 1) << limit;
        EXPECT_EQ(ReadFile("a.VRN"), text) << limit;
    }
}

// Each limit ends the program at another allocation: from the least with which it comes through
// downward.
TEST_F(ReplacingTest, WhatStoodThereStaysWhenMemoryIsGone) {
    const std::string large =
        EditedExample("VOLTS-0-15", {{"Scale title:", std::string(1U << 20U, 'M')}});
    for (const char* name : {"plate.vrn", "plate.pcl"}) {
        const std::string path = WriteFile(name, "old");
        const std::size_t files = CountFiles();
        const auto exportWithin = [&](int kilobytes) {
            return RunProgram("sh",
                              {"-c", "ulimit -v \"$0\"; exec \"$@\"", std::to_string(kilobytes),
                               VERNACLE_EXPORT, "--force", large, path});
        };
        int tooLittle = 10000;
        int enough = 400000;
        if (exportWithin(enough).status != 0) {
            GTEST_SKIP() << "a sanitized program does not start within such limits";
        }
        EXPECT_GT(fs::file_size(path), 1U << 20U);
        WriteFile(name, "old");
        bool hasStarved = false;
        while (enough - tooLittle > 500) {
            const int kilobytes = (enough + tooLittle) / 2;
            const ProcessResult result = exportWithin(kilobytes);
            hasStarved = hasStarved || result.err.find(path + " was not written: not enough "
                                                              "memory") != std::string::npos;
            EXPECT_EQ(ReadText(path) == "old", result.status != 0) << kilobytes;
            EXPECT_EQ(CountFiles(), files) << kilobytes;
            (result.status == 0 ? enough : tooLittle) = kilobytes;
            WriteFile(name, "old");
        }
        EXPECT_TRUE(hasStarved);
    }
}

} // namespace

} // namespace vernacle::test
