#include "core/bytesink.h"

#include <cerrno>
#include <cstring>

#include "core/runtimeerror.h"
#include "support/enginetest.h"
#include "support/filelimit.h"

namespace vernacle::test {
namespace {

class ByteSinkTest : public EngineTest {
protected:
    void Write(const std::string& path, const std::string& bytes) {
        const auto sink = OpenFileSink(path);
        sink->Write(bytes);
        sink->Close();
    }
};

// The system's own words, in the language of the machine.
std::string Because(int error) {
    return std::string(": ") + std::strerror(error);
}

template <typename Action>
std::string FailureOf(Action action) {
    try {
        action();
    } catch (const FileFailure& failure) {
        return failure.what();
    }
    return "";
}

TEST_F(ByteSinkTest, WritesTheBytesAsTheyAre) {
    const std::string bytes("a\r\nb\n\0c\xFF", 8);
    const auto sink = OpenFileSink(Path("file"));
    sink->Write(bytes);
    sink->Write("");
    sink->Write("more");
    sink->Close();
    EXPECT_EQ(ReadFile("file"), bytes + "more");
    EXPECT_EQ(ReadWholeFile(Path("file")), bytes + "more");
}

TEST_F(ByteSinkTest, ReplacesWhatWasThere) {
    WriteFile("file", "a long text");
    Write(Path("file"), "new");
    EXPECT_EQ(ReadFile("file"), "new");
    Write(Path("file"), "");
    EXPECT_EQ(ReadFile("file"), "");
}

TEST_F(ByteSinkTest, KeepsWhatWasWrittenWhenItIsGivenUp) {
    OpenFileSink(Path("file"))->Write("part");
    EXPECT_EQ(ReadFile("file"), "part");
}

TEST_F(ByteSinkTest, NamesTheFileAndTheSystemsReason) {
    EXPECT_EQ(FailureOf([&] { OpenFileSink(Path("none/file")); }),
              Path("none/file") + Because(ENOENT));
    EXPECT_EQ(FailureOf([&] { OpenFileSink(Path("")); }), Path("") + Because(EISDIR));
    EXPECT_EQ(FailureOf([] { OpenFileSink(""); }), Because(ENOENT));
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(Path("none")); }), Path("none") + Because(ENOENT));
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(Path("")); }), Path("") + Because(EISDIR));
}

TEST_F(ByteSinkTest, AFullDiskIsAFailureAtTheLatestWhenItCloses) {
    EXPECT_EQ(FailureOf([&] { Write("/dev/full", "a"); }), "/dev/full" + Because(ENOSPC));
    EXPECT_EQ(FailureOf([&] { Write("/dev/full", std::string(100000, 'a')); }),
              "/dev/full" + Because(ENOSPC));
}

TEST_F(ByteSinkTest, ASizeLimitIsAFailure) {
    for (const std::size_t size : {1025U, 5000U, 100000U}) {
        const FileSizeLimit limit(1024);
        EXPECT_THROW(Write(Path("file"), std::string(size, 'a')), FileFailure) << size;
    }
    const FileSizeLimit limit(1024);
    EXPECT_NO_THROW(Write(Path("fits"), std::string(1024, 'a')));
}

TEST_F(ByteSinkTest, ReadsFilesOfEverySize) {
    for (const std::size_t size : {0U, 1U, 65535U, 65536U, 65537U, 200000U}) {
        WriteFile("file", std::string(size, 'a'));
        EXPECT_EQ(ReadWholeFile(Path("file")).size(), size);
    }
}

TEST_F(ByteSinkTest, RefusesToReadMoreThanTheLargestFile) {
    WriteFile("file", "");
    std::filesystem::resize_file(Path("file"), kLargestFile);
    EXPECT_EQ(ReadWholeFile(Path("file")).size(), kLargestFile);
    std::filesystem::resize_file(Path("file"), kLargestFile + 1);
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(Path("file")); }), Path("file") + ": too large");
    EXPECT_EQ(FailureOf([] { ReadWholeFile("/dev/zero"); }), "/dev/zero: too large");
}

} // namespace
} // namespace vernacle::test
