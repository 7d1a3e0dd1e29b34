#include "engine/output/hpgl.h"

#include "engine/base/hostservices.h"
#include "hpgltest.h"

namespace vernacle::test {
namespace {

using HpglStreamTest = HpglTest;

// A plate of 10 x 5 mm: 400 x 200 units from (3900, 8340). The bearing is at (4100, 8380), the
// virtual one 80 units lower, the arc's radius 200 units. A pointer at 45 degrees crosses it 135.26
// units from the bearing, 95.65 to the left and above: at (4004.35, 8475.65). A major tic of 0.3 mm
// ends 8.49 units further out each way, the label's anchor stands 14.14 units further.
const Calls kStreamStart = {
    "IN",
    "SP1",
    "LT",
    "SI .08333334 .125",
    "PU 3870  8240 ", // cut lines: left, top, right, bottom
    "PD 3870  8640 ",
    "PU 3800  8570 ",
    "PD 4400  8570 ",
    "PU 4330  8640 ",
    "PD 4330  8240 ",
    "PU 4400  8310 ",
    "PD 3800  8310 ",
};

const Calls kStreamOfScale = {
    "SD 1,21 2,1 7,4",
    "PW .8 ", // tic 0: major, and labelled
    "PW .8 ",
    "PW .4 ",
    "PU 3996  8484 ",
    "PD 4004  8476 ",
    "LO5",
    "PU 3990  8490 ",
    "DI 1  0 ",
    "LB0\x03",
    "PW .1 ", // tic 1: minor, straight up
    "PU 4100  8508 ",
    "PD 4100  8500 ",
    "LO5",
    "PW .8 ", // tic 2
    "PW .8 ",
    "PW .4 ",
    "PU 4204  8484 ",
    "PD 4196  8476 ",
    "LO5",
    "PU 4210  8490 ",
    "DI 1  0 ",
    "LB2\x03",
    "DI",
    "PW .1 ",
    "LO6", // title
    "PU 4100  8420 ",
    "DI 1  0 ",
    "LBmA\x03",
    "LO3", // free text
    "SI .15625 .20833",
    "PU 4000  8380 ",
    "LBHz\x03",
};

const Calls kStreamEnd = {
    "LBmm\x03",
    "SI .15 .2",
    "PU 800  7540 ",
    "DI 1  0 ",
    "LBFilename: plate.vrn\x03",
    "PU 800  7340 ",
    "DI 1  0 ",
    "LBTime/date: 11/21/26 10:08:00\x03",
    "PUSP0PG;",
};

// The cross and the circle of a hole or a bearing.
Calls Crossed(int x, int y) {
    return {Move("PU", x - 50, y), Move("PD", x + 50, y), Move("PU", x, y - 50),
            Move("PD", x, y + 50), Move("PU", x, y),      "CI 30.5  3 "};
}

std::string SmallPlateStream() {
    const Calls holes = Crossed(3980, 8360) + Crossed(4220, 8360);
    const Calls bearings = Crossed(4100, 8380) + Crossed(4100, 8300); // the real, the virtual one
    std::string stream;
    for (const std::string& statement : kStreamStart + holes + bearings + kStreamOfScale +
                                            RulerStatements(3900, 10, 4300, 4460) + kStreamEnd) {
        stream.append(statement).append("\r\n");
    }
    return stream;
}

void GiveFreeText() {
    Design.TextString[1] = "  Hz ";
    Design.LeftToText[1] = 2.5F;
    Design.BottomToText[1] = 1;
}

TEST_F(HpglStreamTest, StreamOfASmallPlate) {
    GiveFreeText();
    EXPECT_EQ(Stream(), SmallPlateStream());
    EXPECT_EQ(Design.NumberOfTexts, 1);
}

TEST_F(HpglStreamTest, PrintersGetTheStreamWrappedInEscapes) {
    GiveFreeText();
    EXPECT_EQ(Stream(HpglMode::PclPrinter),
              "\033E\r\n\033&l0O\r\n\033%1B\r\n" + SmallPlateStream() + "\033%1A\r\n\033E\r\n");
}

class HpglFileTest : public HpglTest {
protected:
    HpglFileTest() {
        Host.openForOutput = [this](const std::string& name) {
            opened.push_back(name);
            return OpenScriptedSink(script);
        };
    }

    SinkScript script;
    Texts opened;
};

const Texts kFailure = {"beep", "failure: The HPGL file was not written correctly."};

TEST_F(HpglFileTest, FileIsWrittenAndAnnounced) {
    WriteHpgl(Design, "out/plate.hpgl", HpglMode::File);
    EXPECT_EQ(opened, (Texts{"out/plate.hpgl"}));
    EXPECT_EQ(script.bytes, Stream());
    EXPECT_EQ(script.closes, 1);
    EXPECT_EQ(script.open, 0);
    EXPECT_EQ(said, (Texts{"information: THE HPGL FILE WAS SUCCESSFULLY WRITTEN TO\r\n"
                           "out/plate.hpgl"}));
}

TEST_F(HpglFileTest, PrinterIsFedThroughItsPort) {
    for (const char* path : {"", "of/no/account"}) {
        opened.clear();
        said.clear();
        script = SinkScript();
        WriteHpgl(Design, path, HpglMode::PclPrinter);
        EXPECT_EQ(opened, (Texts{"LPT1"}));
        EXPECT_EQ(script.bytes, Stream(HpglMode::PclPrinter));
        EXPECT_EQ(said,
                  (Texts{"information: THE HPGL FILE WITH PCL HEADER/FOOTER WAS SENT DIRECTLY "
                         "TO THE PCL PRINTER ON LPT1"}));
    }
}

TEST_F(HpglFileTest, FailureOfAnyWriteIsReported) {
    WriteHpgl(Design, "plate.hpgl", HpglMode::PclPrinter);
    const int writes = script.writes;
    ASSERT_GT(writes, 0);
    for (int write = 1; write <= writes; ++write) {
        script = SinkScript();
        script.failAtWrite = write;
        said.clear();
        WriteHpgl(Design, "plate.hpgl", HpglMode::PclPrinter);
        EXPECT_EQ(said, kFailure) << write;
        EXPECT_EQ(script.writes, write); // nothing is tried after it
        EXPECT_EQ(script.open, 0);
    }
}

TEST_F(HpglFileTest, FailureOfTheCloseIsReported) {
    script.failAtClose = true;
    WriteHpgl(Design, "plate.hpgl", HpglMode::File);
    EXPECT_EQ(said, kFailure);
    EXPECT_EQ(script.open, 0);
}

TEST_F(HpglFileTest, FullDiskAndMissingFolderAreReported) {
    Host.openForOutput = [](const std::string& name) { return OpenFileSink(name); };
    for (const std::string& path : {std::string("/dev/full"), Path("missing/plate.hpgl")}) {
        said.clear();
        WriteHpgl(Design, path, HpglMode::File);
        EXPECT_EQ(said, kFailure) << path;
    }
}

TEST_F(HpglFileTest, RealFileHoldsTheStream) {
    Host.openForOutput = [](const std::string& name) { return OpenFileSink(name); };
    WriteFile("plate.hpgl", std::string(100000, 'x')); // replaced, not appended to
    WriteHpgl(Design, Path("plate.hpgl"), HpglMode::File);
    EXPECT_EQ(ReadFile("plate.hpgl"), Stream());
}

struct CornerRow {
    const char* name;
    float plateWidth;
    float plateHeight;
    bool written;
};

// A corner is a 16-bit number: Int(4100 - 20 W), Int(8500 - 32 H).
TEST_F(HpglFileTest, CornerThatDoesNotFitIsAFailure) {
    const CornerRow rows[] = {
        {"lowest x", 1843.375F, 5, true},  {"below it", 1843.5F, 5, false},
        {"lowest y", 10, 1289.625F, true}, {"below it", 10, 1290, false},
        {"highest y", 10, -758.25F, true}, {"above it", 10, -760, false},
    };
    for (const CornerRow& row : rows) {
        Design.PlateWidth = row.plateWidth;
        Design.PlateHeight = row.plateHeight;
        said.clear();
        WriteHpgl(Design, "plate.hpgl", HpglMode::File);
        EXPECT_EQ(said != kFailure, row.written) << row.name;
    }
}

TEST_F(HpglFileTest, RunTimeErrorsOfTheDesignAreReported) {
    Design.BottomToScaleCeiling[1] = -1; // a radius of 0
    Design.NumberOfTexts = 7;
    WriteHpgl(Design, "plate.hpgl", HpglMode::File);
    EXPECT_EQ(said, kFailure);
    EXPECT_EQ(Design.NumberOfTexts, 7) << "texts are counted behind the scales";
    said.clear();
    Design.BottomToScaleCeiling[1] = 4;
    Design.MajorEveryHowMany[1] = 0;
    WriteHpgl(Design, "plate.hpgl", HpglMode::File);
    EXPECT_EQ(said, kFailure);
}

} // namespace
} // namespace vernacle::test
