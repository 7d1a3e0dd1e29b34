#include "engine/base/bytesink.h"

#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

#include "engine/base/runtimeerror.h"
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
}

// Opening it would wait for a writer that never comes.
TEST_F(ByteSinkTest, RefusesToReadWhatIsNoRegularFile) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("pipe", Path("link"));
    for (const std::string& path : {Path("pipe"), Path("link"), std::string("/dev/zero")}) {
        const std::string refused = path + ": not a regular file";
        EXPECT_EQ(FailureOf([&] { ReadWholeFile(path); }), refused);
        EXPECT_EQ(FailureOf([&] { ReadFileOrInput(path); }), refused);
    }
    WriteFile("file", "text");
    std::filesystem::create_symlink("file", Path("good"));
    EXPECT_EQ(ReadWholeFile(Path("good")), "text");
    EXPECT_EQ(ReadFileOrInput(Path("good")), "text");
}

// Standard input as a pipe that holds the text, put back at the end of the scope.
class PipedInput {
public:
    explicit PipedInput(const std::string& text) {
        int ends[2] = {};
        EXPECT_EQ(pipe(ends), 0);
        EXPECT_EQ(write(ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
        close(ends[1]);
        dup2(ends[0], STDIN_FILENO);
        close(ends[0]);
    }
    ~PipedInput() {
        dup2(before_, STDIN_FILENO);
        close(before_);
    }
    PipedInput(const PipedInput&) = delete;
    PipedInput& operator=(const PipedInput&) = delete;

private:
    int before_ = dup(STDIN_FILENO);
};

TEST_F(ByteSinkTest, ReadsTheStandardInputForAProgramInAPipeline) {
    for (const char* device : {"/dev/stdin", "/dev/fd/0", "/proc/self/fd/0"}) {
        const PipedInput input("piped");
        EXPECT_EQ(FailureOf([&] { ReadWholeFile(device); }),
                  std::string(device) + ": not a regular file");
        EXPECT_EQ(ReadFileOrInput(device), "piped") << device;
    }
}

} // namespace
} // namespace vernacle::test
