// What the exporter reads that is no regular file: its standard input, by the name of its device.
#include <sys/stat.h>

#include "exporttest.h"

namespace vernacle::test {
namespace {

class InputTest : public ExportTest {
protected:
    // The exporter in a line of the shell, in this test's folder.
    ProcessResult Shell(const std::string& line) const {
        ProcessSetting setting;
        setting.folder = Path("");
        return RunProgram("sh", {"-c", line, "sh", VERNACLE_EXPORT, Example("VOLTS-0-15")},
                          setting);
    }
};

constexpr const char* kExport = R"("$1" --at "2026-01-02 03:04:05" )";

TEST_F(InputTest, ADesignComesThroughAPipelineOrAsTheInput) {
    const std::string command = kExport;
    for (const std::string& line : {R"(cat "$2" | )" + command + "/dev/stdin out.hpgl",
                                    command + R"(/dev/stdin out.hpgl <"$2")"}) {
        const ProcessResult result = Shell(line);
        EXPECT_EQ(result.status, EXIT_SUCCESS) << result.err;
        ExportQuietly(Example("VOLTS-0-15"), {Path("plain.hpgl")});
        std::string plain = ReadFile("plain.hpgl"); // which tells its design's name
        const std::string name = Example("VOLTS-0-15");
        ASSERT_NE(plain.find(name), plain.npos);
        plain.replace(plain.find(name), name.size(), "/dev/stdin");
        EXPECT_EQ(ReadFile("out.hpgl"), plain);
        std::filesystem::remove(Path("out.hpgl"));
    }
}

TEST_F(InputTest, SoDoesACalibration) {
    const ProcessResult result = Shell(R"(printf 'h\nd\n1.25\n1\n' | )" + std::string(kExport) +
                                       R"(--calibration /dev/stdin "$2" out.svg)");
    EXPECT_EQ(result.status, EXIT_SUCCESS) << result.err;
    EXPECT_TRUE(Exists("out.svg"));
}

// Nobody writes to it: it would be waited for without end.
TEST_F(InputTest, ANamedPipeCannotBeOpened) {
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(Shell(std::string(kExport) + "pipe out.hpgl").status, EXIT_FAILURE);
    EXPECT_EQ(Shell(std::string(kExport) + R"(--calibration pipe "$2" out.svg)").status,
              EXIT_FAILURE);
    EXPECT_FALSE(Exists("out.hpgl"));
    EXPECT_FALSE(Exists("out.svg"));
}

} // namespace
} // namespace vernacle::test
