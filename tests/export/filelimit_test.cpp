// A disk that fills up at every kilobyte of every form: each write that can fail does so in turn.
#include <filesystem>
#include <ostream>

#include "export/exporttest.h"

namespace vernacle::test {

namespace {

constexpr unsigned long kStep = 1024;

struct LimitCase {
    const char* name;
    const char* ending;
    const char* example;
    Words options = {};
};

void PrintTo(const LimitCase& limit, std::ostream* out) {
    *out << limit.name;
}

const LimitCase kLimitCases[] = {
    {"hpgl", ".hpgl", "DEGREES-0-360"},
    {"pcl", ".pcl", "VOLTS-0-15"},
    {"pdf", ".pdf", "VOLTS-0-15"},
    {"svg", ".svg", "VOLTS-0-15"},
    {"png", ".png", "VOLTS-0-15", {"--size", "640x480"}},
    {"vrn", ".vrn", "DEGREES-0-360"},
    {"csv", ".csv", "DEGREES-0-360"},
};

class FileLimitTest : public ExportTest, public ::testing::WithParamInterface<LimitCase> {
protected:
    ProcessResult ExportWithin(unsigned long bytes, const std::string& path) const {
        Words words = GetParam().options;
        words.insert(words.end(), {"--at", kAt, "--force", design_, path});
        ProcessSetting setting;
        setting.largestFileBytes = bytes;
        return Export(words, setting);
    }

    // Long lists of deleted tics and labels, so that the design's file has some kilobytes.
    std::string design_ = EditedExample(
        GetParam().example,
        {{"Scale 1 - deleted tics: ", DeletedList("Tic deleted: ", std::vector<int>(200, 3))},
         {"Scale 1 - deleted labels: ", DeletedList("Label deleted: ", AllTo(199))}});

private:
    static std::vector<int> AllTo(int last) {
        std::vector<int> tics;
        for (int tic = 0; tic <= last; ++tic) {
            tics.push_back(tic);
        }
        return tics;
    }
};

TEST_P(FileLimitTest, AFailureAtAnyPlaceLeavesWhatStoodThere) {
    const std::string path = Path(std::string("plate") + GetParam().ending);
    ASSERT_EQ(ExportWithin(1UL << 30U, path).status, 0);
    const std::string whole = ReadText(path);
    ASSERT_GT(whole.size(), 2 * kStep);
    const std::string before = "what stood there before";
    WriteFile(std::string("plate") + GetParam().ending, before);
    for (unsigned long limit = 0; limit < whole.size(); limit += kStep) {
        const ProcessResult result = ExportWithin(limit, path);
        ASSERT_EQ(result.signal, 0) << "at " << limit;
        ASSERT_EQ(result.status, 1) << "at " << limit;
        EXPECT_GT(CountLines(result.err), 0U) << "at " << limit;
        EXPECT_EQ(ReadText(path), before) << "at " << limit;
        EXPECT_EQ(CountFiles(), 2U) << "more than the design and the output, at " << limit;
    }
    EXPECT_EQ(ExportWithin(whole.size() - 1, path).status, 1);
    EXPECT_EQ(ReadText(path), before);
    EXPECT_EQ(ExportWithin(whole.size(), path).status, 0);
    EXPECT_EQ(ReadText(path), whole);
}

TEST_P(FileLimitTest, AFileThatWasNotThereIsNotThereAfterAFailure) {
    for (const unsigned long limit : {0UL, kStep}) {
        const ProcessResult result =
            ExportWithin(limit, Path(std::string("plate") + GetParam().ending));
        EXPECT_EQ(result.status, 1) << "at " << limit;
        EXPECT_EQ(CountFiles(), 1U) << "more than the design, at " << limit;
    }
}

TEST_P(FileLimitTest, AnUnfinishedFileBehindALinkIsAFailureAndTheLinkStays) {
    const std::string link = Path(std::string("plate") + GetParam().ending);
    std::filesystem::create_symlink(Path("elsewhere"), link);
    const ProcessResult result = ExportWithin(kStep, link);
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_FALSE(Exists("elsewhere"));
}

INSTANTIATE_TEST_SUITE_P(Forms, FileLimitTest, ::testing::ValuesIn(kLimitCases),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace

} // namespace vernacle::test
