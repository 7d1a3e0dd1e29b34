#include "engine/output/calibrate.h"

#include <sys/stat.h>

#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/service.h"
#include "support/rendertest.h"
#include "support/scriptedsink.h"

namespace vernacle::test {
namespace {

class CalibrateTest : public RenderTest {
protected:
    CalibrateTest() { Design.DesignFileName = "mine.vrn"; }

    static void SetFactors(float x, float y) {
        Design.CalibrationX = x;
        Design.CalibrationY = y;
    }
    static std::pair<float, float> Factors() { return {Design.CalibrationX, Design.CalibrationY}; }
};

TEST_F(CalibrateTest, FileHasSevenLines) {
    SetFactors(1.02F, 0.985F);
    WriteCalibrate(Design);
    EXPECT_EQ(ReadFile("Calibrate.txt"), "\"Vernacle calibration file\"\r\n"
                                         "\r\n"
                                         "#2026-11-21 10:08:00#\r\n"
                                         "\r\n"
                                         "1.02\r\n"
                                         ".985\r\n"
                                         "\r\n");
    EXPECT_TRUE(said.empty());
}

TEST_F(CalibrateTest, WritingReplacesTheDesignsName) {
    WriteCalibrate(Design);
    EXPECT_EQ(Design.DesignFileName, "Calibrate.txt");
}

TEST_F(CalibrateTest, WhereFilesAreCarefulTheDesignKeepsItsName) {
    StoreService(Program::Workshop);
    Design.DesignFileName = "mine.VRN";
    WriteCalibrate(Design);
    EXPECT_EQ(Design.DesignFileName, "mine.VRN");
    EXPECT_TRUE(Exists("Calibrate.txt"));
}

TEST_F(CalibrateTest, WrittenFactorsAreReadBack) {
    SetFactors(1.234567F, 0.5F);
    WriteCalibrate(Design);
    SetFactors(0, 0);
    ReadCalibrate(Design);
    EXPECT_EQ(Factors(), std::pair(1.234567F, 0.5F));
    EXPECT_EQ(Design.DesignFileName, "Calibrate.txt");
}

struct ReadRow {
    const char* name;
    const char* text;
    float x;
    float y;
};

// Both factors are 7 before.
constexpr ReadRow kFiles[] = {
    {"as written", "\"Vernacle calibration file\"\r\n\r\n#2026-11-21#\r\n\r\n1.5\r\n.75\r\n\r\n",
     1.5F, 0.75F},
    {"line feeds alone", "header\n\n#date#\n\n1.5\n.75\n", 1.5F, 0.75F},
    {"no empty lines", "header\r\ndate\r\n1.5\r\n.75", 1.5F, 0.75F},
    {"comments", "* a\r\nheader\r\n*\r\ndate\r\n* 3\r\n1.5\r\n*4\r\n.75\r\n", 1.5F, 0.75F},
    {"labels", "header: x\r\ndate\r\nAcross: 1.5\r\nDown:.75\r\n", 1.5F, 0.75F},
    {"behind the first colon", "h\r\nd\r\na: 1.5: 9\r\nb:2:3\r\n", 1.5F, 2},
    {"blanks and words behind", "h\r\nd\r\n   1.5 wide\r\n .75mm\r\n", 1.5F, 0.75F},
    {"words alone", "h\r\nd\r\nwide\r\nhigh\r\n", 0, 0},
    {"exponent and sign", "h\r\nd\r\n+15e-1\r\n-2\r\n", 1.5F, -2},
    {"out of bounds", "h\r\nd\r\n40\r\n0\r\n", 40, 0}, // printing holds them
    {"second missing", "h\r\nd\r\n1.5\r\n\r\n", 1.5F, 7},
    {"both missing", "h\r\nd\r\n", 7, 7},
    {"header alone", "h", 7, 7},
    {"empty", "", 7, 7},
    {"beyond a float", "h\r\nd\r\n1e99\r\n2\r\n", 7, 7},
};

TEST_F(CalibrateTest, ReadingTakesTheThirdAndFourthDataLine) {
    for (const ReadRow& row : kFiles) {
        SetFactors(7, 7);
        WriteFile("Calibrate.txt", row.text);
        ReadCalibrate(Design);
        EXPECT_EQ(Factors(), std::pair(row.x, row.y)) << row.name;
    }
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.DesignFileName, "mine.vrn");
}

TEST_F(CalibrateTest, MissingFileIsNotReported) {
    ReadCalibrate(Design);
    EXPECT_EQ(Factors(), std::pair(0.F, 0.F));
    EXPECT_TRUE(said.empty());
}

struct OrderRow {
    const char* name;
    const char* first; // nothing: there is no such file
    const char* second;
    float x;
    float y;
};

constexpr const char* kWhole = "h\nd\n1.25\n.75\n";

// Both factors are 0 before.
constexpr OrderRow kOrder[] = {
    {"the first counts", kWhole, "h\nd\n2\n2\n", 1.25F, 0.75F},
    {"zeros are numbers", "h\nd\n0\nwide\n", kWhole, 0, 0},
    {"no first", nullptr, kWhole, 1.25F, 0.75F},
    {"an empty first", "", kWhole, 1.25F, 0.75F},
    {"a first without numbers", "h\nd\n", kWhole, 1.25F, 0.75F},
    {"a first with one number", "h\nd\n2\n", kWhole, 1.25F, 0.75F},
    {"a first beyond a float", "h\nd\n1e99\n2\n", kWhole, 1.25F, 0.75F},
    {"no second", "h\nd\n2\n", nullptr, 2, 0},
    {"neither", nullptr, nullptr, 0, 0},
};

TEST_F(CalibrateTest, OneThatIsNotWholeIsReadFromTheNextPlace) {
    for (const OrderRow& row : kOrder) {
        for (const auto& [name, text] : {std::pair{"first", row.first}, {"second", row.second}}) {
            std::filesystem::remove(Path(name));
            if (text) {
                WriteFile(name, text);
            }
        }
        Host.calibrationsToRead = [this] { return std::vector{Path("first"), Path("second")}; };
        SetFactors(0, 0);
        ReadCalibrate(Design);
        EXPECT_EQ(Factors(), std::pair(row.x, row.y)) << row.name;
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(CalibrateTest, APipeIsAFileThatCannotBeOpened) {
    ASSERT_EQ(mkfifo(Path("first").c_str(), 0600), 0);
    WriteFile("second", kWhole);
    Host.calibrationsToRead = [this] { return std::vector{Path("first"), Path("second")}; };
    SetFactors(0, 0);
    ReadCalibrate(Design);
    EXPECT_EQ(Design.CalibrationX, 1.25F);
}

TEST_F(CalibrateTest, ReadingByNamePassesTheFailureOn) {
    EXPECT_THROW(ReadCalibration(Design, Path("none.txt")), RunTimeError);
    ReadCalibration(Design, WriteFile("other.txt", "h\nd\n1.25\n1.5\n"));
    EXPECT_EQ(Factors(), std::pair(1.25F, 1.5F));
}

TEST_F(CalibrateTest, WriteFailureIsNotReported) {
    for (const char* place : {"/dev/full", "/dev/null/Calibrate.txt"}) {
        Design.DesignFileName = "mine.vrn";
        std::string asked;
        Host.openForOutput = [&](const std::string& name) {
            asked = name;
            return OpenFileSink(place);
        };
        WriteCalibrate(Design);
        EXPECT_EQ(asked, Path("Calibrate.txt"));
        EXPECT_TRUE(said.empty());
        EXPECT_EQ(Design.DesignFileName, "Calibrate.txt");
    }
}

TEST_F(CalibrateTest, EveryWriteIsCheckedToTheEnd) {
    SinkScript script;
    Host.openForOutput = [&script](const std::string&) { return OpenScriptedSink(script); };
    WriteCalibrate(Design);
    EXPECT_EQ(script.closes, 1);
    const int writes = script.writes;
    for (int write = 1; write <= writes; ++write) {
        script = SinkScript();
        script.failAtWrite = write;
        WriteCalibrate(Design);
        EXPECT_EQ(script.writes, write);
    }
    script = SinkScript();
    script.failAtClose = true;
    WriteCalibrate(Design);
    EXPECT_EQ(script.closes, 1);
    EXPECT_EQ(script.open, 0);
    EXPECT_TRUE(said.empty());
}

struct MeasureRow {
    float factor;
    double measuredMm;
    float after;
};

TEST_F(CalibrateTest, MeasuredSidesCorrectTheFactor) {
    const MeasureRow rows[] = {
        {1, 100, 1},     {1.07F, 100, 1.07F}, {1, 80, 1.25F},     {1, 125, 0.8F},
        {1.25F, 125, 1}, {1, 40, 2},          {1, 50, 2},         {1, 50.5, 100 / 50.5F},
        {1, 200, 0.5F},  {1, 400, 0.5F},      {0, 80, 1.25F},     {0, 0, 1},
        {0, -3, 1},      {1.5F, 0, 1.5F},     {1.5F, -100, 1.5F}, {0.6F, 120, 0.5F},
        {0.3F, 0, 0.3F}, // not held where it is left alone
    };
    for (const MeasureRow& row : rows) {
        float factor = row.factor;
        Recalibrate(factor, row.measuredMm);
        EXPECT_FLOAT_EQ(factor, row.after) << row.factor << " at " << row.measuredMm;
    }
}

TEST_F(CalibrateTest, RepeatedCalibrationMultiplies) {
    float factor = 1;
    Recalibrate(factor, 80);
    Recalibrate(factor, 125);
    Recalibrate(factor, 80);
    EXPECT_FLOAT_EQ(factor, 1.25F);
}

TEST_F(CalibrateTest, FactorsAreHeldInTheDesign) {
    const MeasureRow rows[] = {{0, 0, 0.5F},    {-1, 0, 0.5F}, {0.49F, 0, 0.5F}, {0.5F, 0, 0.5F},
                               {1.3F, 0, 1.3F}, {2, 0, 2},     {2.01F, 0, 2}};
    for (const MeasureRow& row : rows) {
        SetFactors(row.factor, 1);
        HoldCalibration(Design);
        EXPECT_EQ(Factors(), std::pair(row.after, 1.F)) << row.factor;
        SetFactors(1, row.factor);
        HoldCalibration(Design);
        EXPECT_EQ(Factors(), std::pair(1.F, row.after)) << row.factor;
    }
}

struct SquareRow {
    float x;
    float y;
    const char* box; // 2828.9 units from the centre at a factor of 1
};

TEST_F(CalibrateTest, TestSquareIs100MillimetresByTheFactors) {
    const SquareRow rows[] = {
        {0, 0, "Box 3171.1 1171.1 8828.9 6828.9 0"},
        {1, 1, "Box 3171.1 1171.1 8828.9 6828.9 0"},
        {1.1F, 1, "Box 2888.21 1171.1 9111.79 6828.9 0"},
        {0, 1.1F, "Box 3171.1 888.21 8828.9 7111.79 0"},
        {3, 0.25F, "Box -2486.7 3292.775 14486.7 4707.225 0"}, // not held here
    };
    for (const SquareRow& row : rows) {
        SetFactors(row.x, row.y);
        surface.Forget();
        EXPECT_TRUE(PrintTestSquare(Design, surface));
        EXPECT_TRUE(
            SameCalls(surface.calls, Calls{"StartSheet", "SetLineWidth 1", row.box, "EndDoc"}));
        EXPECT_EQ(Factors(), std::pair(row.x == 0 ? 1 : row.x, row.y == 0 ? 1 : row.y));
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(CalibrateTest, FailedTestSquareIsReportedWithASoundIfSoundsAreOn) {
    const Texts report = {"beep", "failure: We had a problem driving the printer."};
    for (int call = 1; call <= 4; ++call) {
        for (const bool sounds : {false, true}) {
            Design.MessageLevel = sounds ? 1 : 0;
            surface = RecordingSurface();
            surface.failAt = call;
            said.clear();
            EXPECT_FALSE(PrintTestSquare(Design, surface));
            Texts expected = report;
            if (sounds) {
                expected.insert(expected.begin(), "sound: warningprinter.wav");
            }
            EXPECT_EQ(said, expected) << call;
        }
    }
}

} // namespace
} // namespace vernacle::test
