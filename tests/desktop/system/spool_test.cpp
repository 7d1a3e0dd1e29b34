// The printer's port over real devices, pipes and programs, and programs that fail in all ways.
#include "desktop/system/spool.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <thread>

#include <QByteArray>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/hpgl.h"
#include "engine/scale/scale.h"
#include "support/enginetest.h"
#include "support/sourcetree.h"

namespace vernacle::test {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::size_t kMoreThanAPipeHolds = 1U << 20U;
constexpr const char* kKeepAll = "cat > \"$KEPT\"";

// Every byte there is, again and again.
std::string AllBytes(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(i % 256);
    }
    return bytes;
}

class SpoolTest : public EngineTest {
protected:
    // A port without a device, whose program is a script of that text. The script finds its place
    // for what it keeps in KEPT, and its arguments stand in the file "arguments" afterwards.
    PrinterPort PortOf(const std::string& script) const {
        WriteFile("fake-lp", "#!/bin/sh\nKEPT='" + Path("kept") + "'\necho \"$@\" > '" +
                                 Path("arguments") + "'\n" + script + "\n");
        chmod(Path("fake-lp").c_str(), 0755);
        return {.device = Path("no-device"), .program = Path("fake-lp")};
    }

    // A device beside a program that keeps what it gets.
    PrinterPort PortWithDevice(const std::string& device) const {
        PrinterPort port = PortOf(kKeepAll);
        port.device = device;
        return port;
    }

    static void Send(const PrinterPort& port, const std::string& bytes) {
        const auto sink = OpenPrinterPort(port);
        sink->Write(bytes);
        sink->Close();
    }

    // The message of the failure; empty if there was none.
    static std::string FailureOf(const PrinterPort& port, const std::string& bytes) {
        try {
            Send(port, bytes);
        } catch (const FileFailure& failure) {
            return failure.what();
        }
        return "";
    }

    static void ExpectNoChildIsLeft() {
        EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
        EXPECT_EQ(errno, ECHILD);
    }

    // The read end of a named pipe.
    int OpenPipe(const std::string& name) const {
        EXPECT_EQ(mkfifo(Path(name).c_str(), 0600), 0);
        return open(Path(name).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    }
};

::testing::AssertionResult Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos ? ::testing::AssertionSuccess()
                                                : ::testing::AssertionFailure() << text;
}

TEST_F(SpoolTest, AJobGetsEveryByteAndIsRaw) {
    for (const std::size_t size : {std::size_t{256}, kMoreThanAPipeHolds}) {
        const std::string bytes = AllBytes(size);
        Send(PortOf(kKeepAll), bytes);
        EXPECT_TRUE(ReadFile("kept") == bytes);
        EXPECT_EQ(ReadFile("arguments"), "-o raw -s\n");
    }
    ExpectNoChildIsLeft();
}

TEST_F(SpoolTest, AJobIsOneWholeOfAllItsWrites) {
    const auto sink = OpenPrinterPort(PortOf(kKeepAll));
    sink->Write("IN\r\n");
    sink->Write({"\0\x1B", 2});
    EXPECT_FALSE(Exists("arguments")) << "it went before its end";
    sink->Close();
    EXPECT_EQ(ReadFile("kept"), std::string("IN\r\n\0\x1B", 6));
}

TEST_F(SpoolTest, AJobThatIsNotClosedIsNotSent) {
    OpenPrinterPort(PortOf(kKeepAll))->Write("IN");
    EXPECT_FALSE(Exists("arguments"));
}

TEST_F(SpoolTest, TheProgramIsFoundOnThePath) {
    PrinterPort port = PortOf(kKeepAll);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray(Path("").c_str()) + ":" + path);
    port.program = "fake-lp";
    Send(port, "IN");
    qputenv("PATH", path);
    EXPECT_EQ(ReadFile("kept"), "IN");
}

TEST_F(SpoolTest, AFailingProgramIsAFailureWithItsReason) {
    const std::pair<const char*, const char*> rows[] = {
        {"cat > /dev/null; echo 'lp: Error - no default destination available.' >&2; exit 1",
         "lp: Error - no default destination available."},
        {"echo 'no server' >&2; exit 1", "no server"},
        {"cat > /dev/null; exit 3", "exit status 3"},
        {"cat > /dev/null; head -c 300000 /dev/zero | tr '\\0' x >&2; exit 1", "xxxx"},
        {"kill -9 $$", "crashed"},
    };
    for (const auto& [script, reason] : rows) {
        for (const std::size_t size : {std::size_t{256}, kMoreThanAPipeHolds}) {
            EXPECT_TRUE(Has(FailureOf(PortOf(script), AllBytes(size)), reason)) << script;
        }
    }
    ExpectNoChildIsLeft();
}

TEST_F(SpoolTest, WarningsOfAProgramThatEndsWellAreNoFailure) {
    EXPECT_EQ(FailureOf(PortOf("cat > \"$KEPT\"; echo 'low on ink' >&2; echo request"), "IN"), "");
    EXPECT_EQ(ReadFile("kept"), "IN");
}

TEST_F(SpoolTest, AProgramThatDoesNotTakeTheWholeJobIsAFailure) {
    EXPECT_NE(FailureOf(PortOf("exec 0<&-; exit 0"), AllBytes(kMoreThanAPipeHolds)), "");
}

TEST_F(SpoolTest, AProgramThatHangsIsEndedInTime) {
    for (const char* script : {"exec sleep 60", "cat > \"$KEPT\"; exec sleep 60"}) {
        for (const std::size_t size : {std::size_t{256}, kMoreThanAPipeHolds}) {
            PrinterPort port = PortOf(script);
            port.jobLimit = milliseconds(500);
            const auto start = steady_clock::now();
            EXPECT_TRUE(Has(FailureOf(port, AllBytes(size)), "timed out")) << script;
            EXPECT_LT(steady_clock::now() - start, milliseconds(5000));
            ExpectNoChildIsLeft();
        }
    }
}

TEST_F(SpoolTest, WithoutDeviceAndProgramItDoesNotOpen) {
    PrinterPort port{.device = Path("no-device"), .program = "no-such-lp"};
    std::string failure;
    try {
        OpenPrinterPort(port);
    } catch (const FileFailure& error) {
        failure = error.what();
    }
    EXPECT_TRUE(Has(failure, Path("no-device") + ": "));
    EXPECT_TRUE(Has(failure, "no-such-lp: not found"));
    WriteFile("a-text", "not a program");
    port.program = Path("a-text");
    EXPECT_THROW(OpenPrinterPort(port), FileFailure);
}

TEST_F(SpoolTest, ADeviceComesBeforeAJob) {
    const std::string bytes = AllBytes(kMoreThanAPipeHolds);
    Send(PortWithDevice(WriteFile("device", "")), bytes);
    EXPECT_TRUE(ReadFile("device") == bytes);
    EXPECT_FALSE(Exists("arguments"));
}

TEST_F(SpoolTest, ADeviceThatIsMissingIsNotMade) {
    Send(PortOf(kKeepAll), "IN");
    EXPECT_FALSE(Exists("no-device"));
}

TEST_F(SpoolTest, ADeviceThatTakesNothingIsAFailure) {
    EXPECT_TRUE(Has(FailureOf(PortWithDevice("/dev/full"), "IN"), std::strerror(ENOSPC)));
    EXPECT_FALSE(Exists("arguments"));
}

TEST_F(SpoolTest, WhatCannotBeOpenedForWritingIsNoDevice) {
    Send(PortWithDevice(Path("")), "IN"); // a folder
    EXPECT_EQ(ReadFile("kept"), "IN");
}

// An ordinary open would wait for a reader.
TEST_F(SpoolTest, ADeviceThatNobodyServesIsPassedOver) {
    close(OpenPipe("pipe"));
    Send(PortWithDevice(Path("pipe")), "IN");
    EXPECT_EQ(ReadFile("kept"), "IN");
}

TEST_F(SpoolTest, ASlowPrinterGetsEveryByte) {
    const int reader = OpenPipe("pipe");
    PrinterPort port = PortWithDevice(Path("pipe"));
    port.limit = milliseconds(400); // for each step; the whole takes longer
    const std::string bytes = AllBytes(kMoreThanAPipeHolds / 2);
    std::string received;
    std::thread printer([&] {
        std::string part(32768, '\0');
        while (received.size() < bytes.size()) {
            std::this_thread::sleep_for(milliseconds(50));
            const ssize_t count = read(reader, part.data(), part.size());
            if (count == 0) {
                break;
            }
            received.append(part, 0, static_cast<std::size_t>(std::max(count, ssize_t{0})));
        }
    });
    const auto start = steady_clock::now();
    EXPECT_EQ(FailureOf(port, bytes), "");
    EXPECT_GT(steady_clock::now() - start, port.limit);
    printer.join();
    close(reader);
    EXPECT_TRUE(received == bytes);
}

TEST_F(SpoolTest, APrinterThatStopsIsAFailureInTime) {
    const int reader = OpenPipe("pipe");
    PrinterPort port = PortWithDevice(Path("pipe"));
    port.limit = milliseconds(300);
    const auto start = steady_clock::now();
    EXPECT_TRUE(Has(FailureOf(port, AllBytes(kMoreThanAPipeHolds)), "takes no data"));
    EXPECT_GE(steady_clock::now() - start, port.limit);
    EXPECT_LT(steady_clock::now() - start, milliseconds(3000));
    close(reader);
}

TEST_F(SpoolTest, APrinterThatGoesAwayIsAFailure) {
    std::signal(SIGPIPE, SIG_DFL);
    const int reader = OpenPipe("pipe");
    const auto sink = OpenPrinterPort(PortWithDevice(Path("pipe")));
    sink->Write("IN");
    close(reader);
    EXPECT_THROW(sink->Write("SP1"), FileFailure);
}

// As the plotter's page uses it.
class PlotterPortTest : public SpoolTest {
protected:
    void Plot(const PrinterPort& port) {
        SetOpeningValues(Design);
        ReadDesign(Design, SourcePath("examples/VOLTS-0-15.VRN"));
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
        Host.openForOutput = [port](const std::string& name) {
            EXPECT_EQ(name, "LPT1");
            return OpenPrinterPort(port);
        };
        WriteHpgl(Design, "", HpglMode::PclPrinter);
    }
};

TEST_F(PlotterPortTest, TheStreamArrivesWhole) {
    Plot(PortOf(kKeepAll));
    ASSERT_EQ(said.size(), 1U);
    EXPECT_TRUE(Has(said[0], "information: THE HPGL FILE WITH PCL HEADER/FOOTER WAS SENT"));
    const std::string stream = ReadFile("kept");
    EXPECT_EQ(stream.rfind("\x1B"
                           "E\r\n\x1B&l0O\r\n\x1B%1B\r\n",
                           0),
              0U);
    EXPECT_TRUE(Has(stream.substr(stream.size() - 20), "\x1B"
                                                       "E"));
}

TEST_F(PlotterPortTest, EveryFailureIsReported) {
    PrinterPort hanging = PortOf("exec sleep 60");
    hanging.jobLimit = milliseconds(200);
    const PrinterPort ports[] = {
        hanging,
        {.device = Path("no-device"), .program = "no-such-lp"},
        {.device = "/dev/full"},
    };
    for (const PrinterPort& port : ports) {
        said.clear();
        Plot(port);
        ASSERT_FALSE(said.empty());
        EXPECT_EQ(said.back(), "failure: The HPGL file was not written correctly.");
    }
}

} // namespace

} // namespace vernacle::test
