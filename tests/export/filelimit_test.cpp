// A disk that fills up: what stood there stays in every form, wherever the bytes end.
#include <algorithm>
#include <filesystem>
#include <numeric>

#include "engine/base/runtimeerror.h"
#include "export/exporttest.h"
#include "files/outputfile.h"
#include "support/filelimit.h"

namespace vernacle::test {

namespace {

constexpr unsigned long kStep = 1024;
constexpr unsigned long kPlenty = 1UL << 30U;
constexpr const char* kBefore = "what stood there before";

class FileLimitTest : public ExportTest {
protected:
    ProcessResult ExportWithin(unsigned long bytes) const {
        ProcessSetting setting;
        setting.largestFileBytes = bytes;
        return Export(Joined({"--at", kAt, "--size", "640x480", "--force", design_}, outputs),
                      setting);
    }

    // What a disk with room for all of it holds in the end.
    std::vector<std::string> Whole() const {
        EXPECT_EQ(ExportWithin(kPlenty).status, 0);
        std::vector<std::string> texts;
        for (const std::string& path : outputs) {
            texts.push_back(ReadText(path));
        }
        return texts;
    }

    void PutBackWhatStoodThere() const {
        for (const char* ending : kEndings) {
            WriteFile(std::string("plate") + ending, kBefore);
        }
    }

    const Words outputs = EveryForm();

private:
    // So many that the design's file has some kilobytes.
    static Edit ManyDeletedLabels() {
        std::vector<int> labels(200);
        std::iota(labels.begin(), labels.end(), 0);
        return DeletedLabels(labels);
    }

    const std::string design_ = EditedExample("DEGREES-0-360", {ManyDeletedLabels()});
};

// Each form alone is the first that does not fit, and at one byte less than it has.
TEST_F(FileLimitTest, EachFormIsWrittenWholeOrLeavesWhatStoodThere) {
    const std::vector<std::string> whole = Whole();
    std::vector<unsigned long> limits = {0, 1, kStep};
    unsigned long largest = 0;
    for (const std::string& text : whole) {
        ASSERT_GT(text.size(), 2 * kStep);
        limits.push_back(text.size() - 1);
        largest = std::max<unsigned long>(largest, text.size());
    }
    limits.push_back(largest);
    for (const unsigned long limit : limits) {
        SCOPED_TRACE(limit);
        PutBackWhatStoodThere();
        const ProcessResult result = ExportWithin(limit);
        EXPECT_EQ(result.signal, 0);
        EXPECT_EQ(result.status, limit < largest ? 1 : 0);
        for (std::size_t form = 0; form < outputs.size(); ++form) {
            const bool fits = whole[form].size() <= limit;
            EXPECT_NE(IsSaidUnwritten(result, outputs[form]), fits) << outputs[form];
            EXPECT_TRUE(ReadText(outputs[form]) == (fits ? whole[form] : kBefore)) << outputs[form];
        }
        EXPECT_EQ(CountFiles(), 1 + outputs.size()) << "more than the design and the outputs";
    }
}

// The program gathers an output and hands it over at once; the system takes what still fits.
TEST_F(FileLimitTest, AFileThatEndsAtAnyKilobyteLeavesWhatStoodThere) {
    const auto isWrittenWithin = [](unsigned long limit, const std::string& path,
                                    const std::string& bytes) {
        const FileSizeLimit full(limit);
        try {
            const auto sink = OpenOutputFile(path);
            sink->Write(bytes);
            sink->Close();
        } catch (const FileFailure&) {
            return false;
        }
        return true;
    };
    const std::vector<std::string> whole = Whole();
    PutBackWhatStoodThere();
    for (std::size_t form = 0; form < outputs.size(); ++form) {
        SCOPED_TRACE(outputs[form]);
        for (unsigned long limit = 0; limit < whole[form].size(); limit += kStep) {
            EXPECT_FALSE(isWrittenWithin(limit, outputs[form], whole[form])) << limit;
            EXPECT_EQ(ReadText(outputs[form]), kBefore) << limit;
            EXPECT_EQ(CountFiles(), 1 + outputs.size()) << limit;
        }
        EXPECT_TRUE(isWrittenWithin(whole[form].size(), outputs[form], whole[form]));
        EXPECT_TRUE(ReadText(outputs[form]) == whole[form]);
    }
}

TEST_F(FileLimitTest, AFileThatWasNotThereIsNotThereAfterAFailure) {
    for (const unsigned long limit : {0UL, kStep}) {
        const ProcessResult result = ExportWithin(limit);
        EXPECT_EQ(result.status, 1) << "at " << limit;
        EXPECT_EQ(CountFiles(), 1U) << "more than the design, at " << limit;
    }
}

TEST_F(FileLimitTest, AnUnfinishedFileBehindALinkIsAFailureAndTheLinkStays) {
    for (const std::string& link : outputs) {
        std::filesystem::create_symlink(link + "-elsewhere", link);
    }
    const ProcessResult result = ExportWithin(kStep);
    EXPECT_EQ(result.status, 1);
    for (const std::string& link : outputs) {
        EXPECT_TRUE(IsSaidUnwritten(result, link)) << link;
        EXPECT_TRUE(std::filesystem::is_symlink(link)) << link;
        EXPECT_FALSE(std::filesystem::exists(link)) << link;
    }
}

} // namespace

} // namespace vernacle::test
