// What cannot be read or written: exit status 1, a message, and no half plate left behind.
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <regex>

#include <unistd.h>

#include "export/exporttest.h"

namespace vernacle::test {

namespace {

class FailuresTest : public ExportTest {
protected:
    // In one run.
    static ProcessResult ExportAll(const Words& outputs) {
        return Export(Joined({Example("VOLTS-0-15")}, outputs));
    }
};

const char* MessageOf(const std::string& ending) {
    if (ending == ".hpgl" || ending == ".pcl") {
        return "The HPGL file was not written correctly.";
    }
    if (ending == ".vrn") {
        return "The Vernacle file was not written correctly.\nReadWrite 364";
    }
    return nullptr;
}

std::string LastLine(const std::string& ending, int reason) { // in the language of the locale
    return "/plate" + ending + " was not written: " + std::strerror(reason) + "\n";
}

// The message of the form's own writer, if it has one, and then the file and the system's reason.
void ExpectFailure(const ProcessResult& result, const std::string& ending, int reason) {
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.signal, 0);
    EXPECT_EQ(result.out, "");
    const char* own = MessageOf(ending);
    EXPECT_NE(result.err.find(own ? own : ""), std::string::npos) << result.err;
    EXPECT_TRUE(result.err.ends_with(LastLine(ending, reason))) << result.err;
}

// The same of a run that was to write every form: one after the other.
void ExpectFailures(const ProcessResult& result, int reason) {
    ProcessResult part = result;
    std::size_t at = 0;
    for (const std::string ending : kEndings) {
        const std::string line = LastLine(ending, reason);
        const std::size_t end = result.err.find(line, at);
        ASSERT_NE(end, std::string::npos) << line << "is not behind\n" << result.err.substr(0, at);
        part.err = result.err.substr(at, end + line.size() - at);
        ExpectFailure(part, ending, reason);
        at = end + line.size();
    }
    EXPECT_EQ(result.err.substr(at), "");
}

int StageOf(const std::string& message) {
    std::smatch found;
    return std::regex_search(message, found, std::regex("ReadWrite (\\d+)\n")) ? std::stoi(found[1])
                                                                               : 0;
}

constexpr const char* kNotRead = "We were not successful in reading that Vernacle file.\n"
                                 "Default values for all items have been put in place.\n\n";

TEST_F(FailuresTest, AMissingDesignIsSaidWithItsStageAndNothingIsWritten) {
    const ProcessResult result = Export(Joined({Path("missing.VRN")}, EveryForm()));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "vernacle-export: " + Path("missing.VRN") + ": " + std::strerror(ENOENT) +
                              "\n" + kNotRead + "ReadWrite 407\n");
    EXPECT_EQ(CountFiles(), 0U);
}

TEST_F(FailuresTest, AFolderIsNoDesign) {
    const ProcessResult result = Export({Path(""), Path("plate.csv")});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(StageOf(result.err), 407) << result.err;
    EXPECT_TRUE(result.err.starts_with("vernacle-export: " + Path("") + ": ")) << result.err;
    EXPECT_EQ(CountFiles(), 0U);
}

TEST_F(FailuresTest, ADamagedDesignIsSaidWithTheStageItCameTo) {
    struct Row {
        const char* name;
        Edits edits;
        const char* line; // on which it fails
        const char* reason;
    };
    // In the order of their lines.
    const Row rows[] = {
        {"a text's colour that is no number",
         {{"Texts: ", "1\r\nText 1:made by\r\nLeft to text:  2 \r\nBottom to text:  2 \r\n"
                      "Relative size:  1 \r\nColor: red"}},
         "Color: red",
         "Type mismatch"},
        {"a tic beyond the last",
         {{"Scale 1 - deleted tics: ", "1\r\nTic deleted: 361"}},
         "Tic deleted: 361",
         "Subscript out of range"},
        {"a label beyond the last",
         {{"Scale 1 - deleted labels: ", "1\r\nLabel deleted: 999"}},
         "Label deleted: 999",
         "Subscript out of range"},
    };
    int last = 544; // the loop over the scales, which all of these lie behind
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string design = EditedExample("VOLTS-0-15", row.edits);
        const ProcessResult result = Export({design, Path("plate.pdf"), Path("plate.vrn")});
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find(kNotRead), std::string::npos) << result.err;
        EXPECT_TRUE(result.err.starts_with(
            "vernacle-export: " + design + ":" +
            std::to_string(NumberOfLine(ReadText(design), row.line)) + ": " + row.reason + "\n"))
            << result.err;
        EXPECT_GT(StageOf(result.err), last) << result.err;
        EXPECT_LT(StageOf(result.err), 990) << result.err;
        EXPECT_EQ(CountFiles(), 1U) << "more than the design";
        last = StageOf(result.err);
    }
}

TEST_F(FailuresTest, ADeletionOutOfBoundsIsADamagedDesign) {
    const std::pair<const char*, const char*> rows[] = {
        {"Scale 1 - deleted tics: ", "Tic deleted: -1"},
        {"Scale 2 - deleted tics: ", "Tic deleted: 361"},
        {"Scale 4 - deleted tics: ", "Tic deleted: 32767"},
        {"Scale 1 - deleted labels: ", "Label deleted: -5"},
        {"Scale 4 - deleted labels: ", "Label deleted: 361"},
    };
    int last = 0;
    for (const auto& [list, entry] : rows) {
        const std::string design =
            EditedExample("VOLTS-0-15", {{list, std::string("1\r\n") + entry}});
        const ProcessResult result = Export({design, Path("plate.csv")});
        EXPECT_EQ(result.status, 1) << list << entry;
        EXPECT_GE(StageOf(result.err), last) << list << entry;
        EXPECT_FALSE(Exists("plate.csv"));
        last = StageOf(result.err);
    }
}

TEST_F(FailuresTest, ADesignThatEndsEarlyIsNoFailure) {
    const std::string whole = ReadText(Example("VOLTS-0-15"));
    const std::string head = whole.substr(0, whole.find("Number of scales: "));
    const ProcessResult result = Export({WriteFile("old.VRN", head), Path("plate.csv")});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(CountLines(ReadFile("plate.csv")), 52U); // a header and the tics 0 to 50
}

TEST_F(FailuresTest, ACalibrationThatCannotBeReadEndsIt) {
    const std::string design = Example("VOLTS-0-15");
    const std::pair<const char*, std::string> rows[] = {
        {"without a name", ""},
        {"missing", Path("none.txt")},
        {"a folder", Path("")},
        {"ends behind the date", WriteFile("short.txt", "\"header\"\r\n\r\n#2026-01-02#\r\n\r\n")},
        {"ends behind the first factor", WriteFile("half.txt", "\"h\"\r\n#2026-01-02#\r\n1.1\r\n")},
        {"empty", WriteFile("empty.txt", "")},
    };
    const std::size_t before = CountFiles();
    for (const auto& [name, file] : rows) {
        SCOPED_TRACE(name);
        const ProcessResult result =
            Export({"--calibration", file, design, Path("plate.pdf"), Path("plate.csv")});
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find("vernacle-export: " + file + ": "), std::string::npos)
            << result.err;
        EXPECT_EQ(CountFiles(), before);
        std::filesystem::remove(Path("plate.pdf"));
        std::filesystem::remove(Path("plate.csv"));
    }
}

TEST_F(FailuresTest, AFullDiskIsAFailureAndTheLinkToItStays) {
    for (const std::string ending : kEndings) {
        const std::string path = Path("plate" + ending);
        std::filesystem::create_symlink("/dev/full", path);
        ExpectFailure(Export({Example("DEGREES-0-360"), path}), ending, ENOSPC);
        EXPECT_TRUE(std::filesystem::is_symlink(path)) << path;
    }
    EXPECT_TRUE(std::filesystem::exists("/dev/full"));
}

TEST_F(FailuresTest, ADeviceThatTakesAllIsASuccess) {
    for (const std::string& path : EveryForm()) {
        std::filesystem::create_symlink("/dev/null", path);
    }
    EXPECT_EQ(ExportAll(EveryForm()).status, 0);
    for (const std::string& path : EveryForm()) {
        EXPECT_TRUE(std::filesystem::is_symlink(path)) << path;
    }
}

TEST_F(FailuresTest, AMissingFolderIsAFailure) {
    ExpectFailures(ExportAll(EveryForm("none/plate")), ENOENT);
    EXPECT_EQ(CountFiles(), 0U);
}

TEST_F(FailuresTest, AFolderOfThatNameIsAFailureAndStays) {
    for (const std::string& path : EveryForm()) {
        std::filesystem::create_directory(path);
    }
    ExpectFailures(ExportAll(EveryForm()), EISDIR);
    for (const std::string& path : EveryForm()) {
        EXPECT_TRUE(std::filesystem::is_directory(path)) << path;
    }
}

TEST_F(FailuresTest, ALinkThatLeadsNowhereStays) {
    for (const std::string& path : EveryForm()) {
        std::filesystem::create_symlink(Path("none/target"), path);
    }
    ExpectFailures(ExportAll(EveryForm()), ENOENT);
    for (const std::string& path : EveryForm()) {
        EXPECT_TRUE(std::filesystem::is_symlink(path)) << path;
    }
}

TEST_F(FailuresTest, AFolderWithoutPermissionIsAFailure) {
    if (geteuid() == 0) {
        GTEST_SKIP() << "nothing is forbidden to root";
    }
    std::filesystem::permissions(Path(""), std::filesystem::perms::owner_read |
                                               std::filesystem::perms::owner_exec);
    ExpectFailures(ExportAll(EveryForm()), EACCES);
}

// A file that could not even be opened is not ours to remove. A running program's own file cannot
// be written by anybody, root included.
TEST_F(FailuresTest, AFileThatCouldNotBeOpenedStaysAsItWas) {
    for (const std::string ending : kEndings) {
        const std::string path = Path("plate" + ending);
        std::filesystem::copy_file(VERNACLE_EXPORT, path);
        ExpectFailure(RunProgram(path, {"--force", Example("VOLTS-0-15"), path}), ending, ETXTBSY);
        ASSERT_TRUE(std::filesystem::is_regular_file(path)) << path;
        EXPECT_EQ(std::filesystem::file_size(path), std::filesystem::file_size(VERNACLE_EXPORT));
    }
}

TEST_F(FailuresTest, OneFailureDoesNotKeepTheOthersFromBeingWritten) {
    const std::string design = Example("VOLTS-0-15");
    ExportQuietly(design, {Path("first.pdf"), Path("second.csv"), Path("third.hpgl")});
    const std::string pdf = ReadFile("first.pdf");
    const std::string csv = ReadFile("second.csv");
    const std::string hpgl = ReadFile("third.hpgl");
    std::filesystem::create_symlink("/dev/full", Path("full.svg"));
    const ProcessResult result =
        Export({"--at", kAt, design, Path("first.pdf"), Path("full.svg"), Path("second.csv"),
                Path("none/plate.vrn"), Path("none/plate.pcl"), Path("third.hpgl")});
    EXPECT_EQ(result.status, 1);
    for (const char* name : {"full.svg", "none/plate.vrn", "none/plate.pcl"}) {
        EXPECT_NE(result.err.find(Path(name)), std::string::npos) << name << ": " << result.err;
    }
    EXPECT_EQ(result.err.find("first.pdf"), std::string::npos) << result.err;
    EXPECT_EQ(ReadFile("first.pdf"), pdf);
    EXPECT_EQ(ReadFile("second.csv"), csv);
    EXPECT_EQ(ReadFile("third.hpgl"), hpgl);
}

// Boxes in place of letters would be cut out and glued in.
TEST_F(FailuresTest, APlateIsNotWrittenWithoutAnyFont) {
    const std::string fonts = WriteFile(
        "fonts.conf", "<?xml version=\"1.0\"?><fontconfig><dir>" + Path("none") +
                          "</dir><cachedir>" + Path("cache") + "</cachedir></fontconfig>");
    ProcessSetting without;
    without.environment = {"FONTCONFIG_FILE=" + fonts};
    const std::string design = Example("VOLTS-0-15");
    for (const char* name : {"plate.pdf", "plate.svg", "plate.png"}) {
        const ProcessResult result = Export({design, Path(name)}, without);
        EXPECT_EQ(result.status, 1) << name;
        EXPECT_NE(result.err.find("vernacle-export: no font was found"), std::string::npos)
            << result.err;
        EXPECT_FALSE(Exists(name));
    }
    EXPECT_EQ(Export({design, Path("plate.csv"), Path("plate.hpgl")}, without).status, 0);
}

TEST_F(FailuresTest, AMissingPluginOfTheToolkitIsAFailureInWords) {
    WriteFile("qt.conf", "[Paths]\nPlugins=" + Path("none") + "\n");
    const std::string program = Path("vernacle-export");
    std::filesystem::copy_file(VERNACLE_EXPORT, program);
    const ProcessResult result = RunProgram(program, {Example("VOLTS-0-15"), Path("plate.pdf")});
    EXPECT_EQ(result.signal, 0);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.err.starts_with("vernacle-export: ")) << result.err;
    EXPECT_NE(result.err.find("plugin"), std::string::npos) << result.err;
    EXPECT_FALSE(Exists("plate.pdf"));
}

TEST_F(FailuresTest, HelpThatCannotBeWrittenIsAFailure) {
    for (const char* option : {"--help", "--version"}) {
        for (const char* output : {">/dev/full", ">&-"}) {
            const ProcessResult result = RunProgram(
                "sh", {"-c", "exec \"$0\" \"$1\" " + std::string(output), VERNACLE_EXPORT, option});
            EXPECT_EQ(result.status, 1) << option << output;
            EXPECT_TRUE(result.err.starts_with("vernacle-export: standard output: ")) << result.err;
        }
    }
}

// A file that is opened takes the lowest free number, and messages go to the second.
TEST_F(FailuresTest, AClosedStandardErrorDoesNotPutMessagesIntoAPlate) {
    const std::string design = EditedExample("VOLTS-0-15", {{"Plate width: ", "wide"}});
    ASSERT_EQ(Export({"--at", kAt, design, Path("usual.hpgl")}).status, 0);
    const ProcessResult result =
        RunProgram("sh", {"-c", "exec \"$@\" <&- >&- 2>&-", "sh", VERNACLE_EXPORT, "--at", kAt,
                          design, Path("plate.hpgl")});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(ReadFile("plate.hpgl"), ReadFile("usual.hpgl"));
}

// A scale whose arc has no radius cannot be printed.
TEST_F(FailuresTest, APlateThatCannotBePrintedIsNotWritten) {
    const std::string design = EditedExample("VOLTS-0-15", {{"Bottom to bearing: ", "20"},
                                                            {"Actual/virtual offset: ", "0"},
                                                            {"Bottom to scale ceiling: ", "20"}});
    for (const char* name : {"plate.pdf", "plate.svg"}) {
        SCOPED_TRACE(name);
        const ProcessResult result = Export({design, Path(name)});
        EXPECT_EQ(result.status, 1);
        EXPECT_NE(result.err.find("We had a problem driving the printer.\n\n"
                                  "PrintScaleErrorHandler 1026 425\n"),
                  std::string::npos)
            << result.err;
        EXPECT_FALSE(Exists(name));
    }
    // The preview ends where it came to, without a word.
    const ProcessResult preview = Export({design, Path("plate.png")});
    EXPECT_EQ(preview.status, 0);
    EXPECT_EQ(preview.err, "");
}

} // namespace

} // namespace vernacle::test
