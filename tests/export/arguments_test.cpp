// The command line: what is taken, and that wrong usage is said in one line and writes nothing.
#include <algorithm>
#include <ostream>

#include "export/exporttest.h"

namespace vernacle::test {

namespace {

// "DESIGN" stands for an example, a word that begins with "out/" for a file of the test's folder.
struct UsageCase {
    const char* name;
    Words words;
};

void PrintTo(const UsageCase& usage, std::ostream* out) {
    *out << usage.name;
}

class WrongUsageTest : public ExportTest, public ::testing::WithParamInterface<UsageCase> {
protected:
    Words FullWords(Words words) const {
        for (std::string& word : words) {
            if (word == "DESIGN") {
                word = Example("VOLTS-0-15");
            } else if (word.starts_with("out/")) {
                word = Path(word.substr(4));
            }
        }
        return words;
    }
};

const UsageCase kWrong[] = {
    {"no_arguments", {}},
    {"design_alone", {"DESIGN"}},
    {"options_alone", {"--paper", "A4"}},
    {"empty_design", {"", "out/plate.pdf"}},
    {"empty_output", {"DESIGN", ""}},
    {"output_without_ending", {"DESIGN", "out/plate"}},
    {"unknown_ending", {"DESIGN", "out/plate.txt"}},
    {"longer_ending", {"DESIGN", "out/plate.pdfx"}},
    {"shorter_ending", {"DESIGN", "out/plate.pd"}},
    {"ending_and_another", {"DESIGN", "out/plate.pdf.bak"}},
    {"ending_alone_without_point", {"DESIGN", "out/pdf"}},
    {"point_at_the_end", {"DESIGN", "out/plate."}},
    {"ending_of_the_folder", {"DESIGN", "out/folder.pdf/plate"}},
    {"one_unknown_ending_among_known_ones", {"DESIGN", "out/plate.pdf", "out/a.xyz", "out/b.csv"}},
    {"unknown_option", {"--colour", "DESIGN", "out/plate.pdf"}},
    {"unknown_option_behind", {"DESIGN", "out/plate.pdf", "--colour"}},
    {"unknown_letter", {"-x", "DESIGN", "out/plate.pdf"}},
    {"flag_with_a_value", {"--help=yes", "DESIGN", "out/plate.pdf"}},
    {"at_without_value", {"DESIGN", "out/plate.pdf", "--at"}},
    {"paper_without_value", {"DESIGN", "out/plate.pdf", "--paper"}},
    {"size_without_value", {"DESIGN", "out/plate.png", "--size"}},
    {"calibration_without_value", {"DESIGN", "out/plate.pdf", "--calibration"}},
    {"size_of_nothing", {"--size", "0x0", "DESIGN", "out/plate.png"}},
    {"size_of_one_pixel", {"--size", "1x1", "DESIGN", "out/plate.png"}},
    {"size_of_a_wall", {"--size", "99999x1", "DESIGN", "out/plate.png"}},
    {"size_beyond_any_integer", {"--size", "99999999999x900", "DESIGN", "out/plate.png"}},
    {"size_in_letters", {"--size", "abc", "DESIGN", "out/plate.png"}},
    {"size_without_height", {"--size", "10x", "DESIGN", "out/plate.png"}},
    {"size_without_width", {"--size", "x900", "DESIGN", "out/plate.png"}},
    {"size_without_numbers", {"--size", "x", "DESIGN", "out/plate.png"}},
    {"size_of_three", {"--size", "100x100x100", "DESIGN", "out/plate.png"}},
    {"size_below_nothing", {"--size", "-800x600", "DESIGN", "out/plate.png"}},
    {"size_with_a_blank", {"--size", "800 x600", "DESIGN", "out/plate.png"}},
    {"size_of_half_pixels", {"--size", "800.5x600", "DESIGN", "out/plate.png"}},
    {"size_empty", {"--size", "", "DESIGN", "out/plate.png"}},
    {"size_wrong_though_no_picture_is_made", {"--size", "0x0", "DESIGN", "out/plate.csv"}},
    {"unknown_paper", {"--paper", "A3", "DESIGN", "out/plate.pdf"}},
    {"empty_paper", {"--paper", "", "DESIGN", "out/plate.pdf"}},
    {"impossible_date", {"--at", "2026-02-30 12:00:00", "DESIGN", "out/plate.pdf"}},
    {"no_leap_year", {"--at", "2027-02-29 12:00:00", "DESIGN", "out/plate.pdf"}},
    {"thirteenth_month", {"--at", "2026-13-01 12:00:00", "DESIGN", "out/plate.pdf"}},
    {"no_day", {"--at", "2026-01-00 12:00:00", "DESIGN", "out/plate.pdf"}},
    {"hour_24", {"--at", "2026-01-01 24:00:00", "DESIGN", "out/plate.pdf"}},
    {"minute_60", {"--at", "2026-01-01 12:60:00", "DESIGN", "out/plate.pdf"}},
    {"date_alone", {"--at", "2026-01-02", "DESIGN", "out/plate.pdf"}},
    {"date_with_a_T", {"--at", "2026-01-02T03:04:05", "DESIGN", "out/plate.pdf"}},
    {"date_with_more_behind", {"--at", "2026-01-02 03:04:05 Z", "DESIGN", "out/plate.pdf"}},
    {"date_with_a_blank_behind", {"--at", "2026-01-02 03:04:05 ", "DESIGN", "out/plate.pdf"}},
    {"date_without_noughts", {"--at", "2026-1-2 3:4:5", "DESIGN", "out/plate.pdf"}},
    {"date_of_another_country", {"--at", "02.01.2026 03:04:05", "DESIGN", "out/plate.pdf"}},
    {"empty_date", {"--at", "", "DESIGN", "out/plate.pdf"}},
    {"date_in_words", {"--at", "yesterday", "DESIGN", "out/plate.pdf"}},
};

TEST_P(WrongUsageTest, IsSaidInOneLineAndWritesNothing) {
    const ProcessResult result = Export(FullWords(GetParam().words));
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(CountLines(result.err), 1U) << result.err;
    EXPECT_TRUE(result.err.ends_with("\n"));
    EXPECT_GT(result.err.size(), 20U) << "says hardly what is wrong: " << result.err;
    EXPECT_EQ(CountFiles(), 0U);
}

INSTANTIATE_TEST_SUITE_P(Usage, WrongUsageTest, ::testing::ValuesIn(kWrong),
                         [](const auto& test) { return std::string(test.param.name); });

class ArgumentsTest : public ExportTest {};

// The one line names the word that is wrong.
TEST_F(ArgumentsTest, TheMessageQuotesWhatIsWrong) {
    const std::string design = Example("VOLTS-0-15");
    const std::pair<Words, const char*> rows[] = {
        {{"--paper", "A3", design, Path("a.pdf")}, "A3"},
        {{"--size", "10x", design, Path("a.png")}, "10x"},
        {{"--at", "2026-02-30 12:00:00", design, Path("a.pdf")}, "2026-02-30 12:00:00"},
        {{"--colour", design, Path("a.pdf")}, "--colour"},
        {{design, Path("a.pdf"), "--size"}, "--size"},
        {{"-x", design, Path("a.pdf")}, "-x"},
        {{design, Path("a.txt")}, "a.txt"},
    };
    for (const auto& [words, wrong] : rows) {
        const ProcessResult result = Export(words);
        EXPECT_EQ(result.status, 2) << wrong;
        EXPECT_NE(result.err.find(wrong), std::string::npos) << result.err;
    }
}

// Wrong usage is found before a file is touched, even one that is missing.
TEST_F(ArgumentsTest, UsageIsJudgedBeforeTheDesignIsRead) {
    EXPECT_EQ(Export({Path("missing.VRN"), Path("a.txt")}).status, 2);
    EXPECT_EQ(Export({Path("missing.VRN"), Path("a.pdf")}).status, 1);
}

TEST_F(ArgumentsTest, TheEndingPicksTheFormInAnyCase) {
    const std::pair<const char*, const char*> rows[] = {
        {"a.hpgl", "IN\r\nSP1\r\n"},
        {"b.HPGL", "IN\r\nSP1\r\n"},
        {"c.plt", "IN\r\nSP1\r\n"},
        {"d.Plt", "IN\r\nSP1\r\n"},
        {"e.pcl", "\x1B"
                  "E\r\n"},
        {"f.PCL", "\x1B"
                  "E\r\n"},
        {"g.pdf", "%PDF-"},
        {"h.PDF", "%PDF-"},
        {"i.Pdf", "%PDF-"},
        {"j.svg", "<?xml"},
        {"k.SVG", "<?xml"},
        {"l.png", "\x89PNG\r\n"},
        {"m.pNG", "\x89PNG\r\n"},
        {"n.vrn", "Filename: "},
        {"o.VRN", "Filename: "},
        {"p.csv", "scale,tic,"},
        {"q.Csv", "scale,tic,"},
        {"two.csv.pdf", "%PDF-"},
        {"my plate.PDF", "%PDF-"},
    };
    Words outputs;
    for (const auto& row : rows) {
        outputs.push_back(Path(row.first));
    }
    ExportQuietly(Example("VOLTS-0-15"), outputs, {"--size", "320x180"});
    for (const auto& [name, start] : rows) {
        EXPECT_TRUE(ReadFile(name).starts_with(start)) << name;
    }
}

TEST_F(ArgumentsTest, OptionsMayStandBehindTheFiles) {
    const std::string design = Example("VOLTS-0-15");
    ASSERT_EQ(Export({"--at", kAt, "--paper", "Letter", design, Path("before.svg")}).status, 0);
    ASSERT_EQ(Export({design, Path("behind.svg"), "--paper=Letter", "--at", kAt}).status, 0);
    EXPECT_EQ(ReadFile("before.svg"), ReadFile("behind.svg"));
    EXPECT_NE(ReadFile("before.svg").find("width=\"215.9mm\""), std::string::npos);
}

TEST_F(ArgumentsTest, ADesignMayBeginWithADashBehindTwo) {
    const std::string text = ReadText(Example("VOLTS-0-15"));
    WriteFile("-plate.VRN", text);
    const ProcessSetting here{.environment = {}, .largestFileBytes = {}, .folder = Path("")};
    const ProcessResult result = Export({"--", "-plate.VRN", "-plate.csv"}, here);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(Exists("-plate.csv"));
}

TEST_F(ArgumentsTest, HelpNamesEveryFormAndOption) {
    const ProcessResult result = Export({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    for (const char* word : {".hpgl", ".plt", ".pcl", ".pdf", ".svg", ".png", ".vrn", ".csv",
                             "--paper", "--size", "--calibration", "--at", "--help", "--version",
                             "A4", "Letter", "1600x900", "DESIGN.VRN OUTPUT"}) {
        EXPECT_NE(result.out.find(word), std::string::npos) << word;
    }
}

TEST_F(ArgumentsTest, VersionIsOneLine) {
    const ProcessResult result = Export({"--version"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(CountLines(result.out), 1U);
    EXPECT_NE(result.out.find("3.04"), std::string::npos) << result.out;
}

} // namespace

} // namespace vernacle::test
