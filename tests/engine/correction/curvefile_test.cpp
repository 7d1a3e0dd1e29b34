// The correction file: what is written, and what is taken for a curve when one is read.
#include <limits>

#include "engine/core/design.h"
#include "engine/correction/curve.h"
#include "support/enginetest.h"
#include "support/filelimit.h"

namespace vernacle::test {
namespace {

const Texts kNotWritten = {"beep", "failure: We had a problem writing the curve data"};
constexpr const char* kNotRead = "failure: We did not read the linearity-correction file";

class CurveFileTest : public NewDesignTest {
protected:
    void Read(const std::string& text) { ReadCorrectionFile(Design, WriteFile("curve.cor", text)); }

    void ExpectNotRead() const {
        ASSERT_FALSE(said.empty());
        EXPECT_EQ(said.back(), kNotRead);
    }
};

void SetPair(int point, float x, float y) {
    Design.CorrectionPair[2 * point - 1] = x;
    Design.CorrectionPair[2 * point] = y;
}

void ExpectPair(int point, float x, float y) {
    EXPECT_EQ(Design.CorrectionPair[2 * point - 1], x) << "X of point " << point;
    EXPECT_EQ(Design.CorrectionPair[2 * point], y) << "Y of point " << point;
}

TEST_F(CurveFileTest, WritesTheStraightCurve) {
    Design.NumberOfCorrectionPoints = 3;
    WriteCorrectionFile(Design, Path("curve.cor"));
    EXPECT_EQ(ReadFile("curve.cor"), "Meter movement-correction datafile\r\n"
                                     "11/21/26 10:08:00\r\n"
                                     "\r\n"
                                     "7\r\n"
                                     " X:            Y:\r\n"
                                     "0             0\r\n"
                                     ".15           .15\r\n"
                                     ".3            .3\r\n"
                                     ".5            .5\r\n"
                                     ".7            .7\r\n"
                                     ".85           .85\r\n"
                                     "1             1\r\n");
    EXPECT_EQ(Design.NumberOfCorrectionPoints, 7);
    EXPECT_TRUE(said.empty());
}

TEST_F(CurveFileTest, WritesNumbersOfEveryLength) {
    SetPair(2, -0.03333333F, 1e7F);
    SetPair(3, -0.5F, 1.0F / 3);
    WriteCorrectionFile(Design, Path("curve.cor"));
    const std::string text = ReadFile("curve.cor");
    EXPECT_NE(text.find("\r\n-3.333333E-02 1E+07\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\r\n-.5           .3333333\r\n"), std::string::npos) << text;
}

TEST_F(CurveFileTest, AnEmptyNameWritesNothing) {
    Design.NumberOfCorrectionPoints = 3;
    WriteCorrectionFile(Design, "");
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.NumberOfCorrectionPoints, 3);
}

TEST_F(CurveFileTest, ReportsWhatCannotBeWritten) {
    for (const std::string& name : {Path("none/curve.cor"), Path(""), std::string("/dev/full")}) {
        said.clear();
        Design.NumberOfCorrectionPoints = 3;
        WriteCorrectionFile(Design, name);
        EXPECT_EQ(said, kNotWritten) << name;
        const bool opened = name == "/dev/full";
        EXPECT_EQ(Design.NumberOfCorrectionPoints, opened ? 7 : 3) << name;
    }
}

TEST_F(CurveFileTest, ReportsASizeLimit) {
    {
        const FileSizeLimit limit(64);
        WriteCorrectionFile(Design, Path("curve.cor"));
    }
    EXPECT_EQ(said, kNotWritten);
}

TEST_F(CurveFileTest, ReportsANumberThatHasNoText) {
    SetPair(7, std::numeric_limits<float>::infinity(), 1);
    WriteCorrectionFile(Design, Path("curve.cor"));
    EXPECT_EQ(said, kNotWritten);
}

TEST_F(CurveFileTest, AFileReadsAsItWasWritten) {
    const float written[] = {0, 0, 0.1234567F, 0.2F, 1.0F / 3, 0.35F, 0.5F, 0.00125F};
    for (int entry = 1; entry <= 8; ++entry) {
        Design.CorrectionPair[entry] = written[entry - 1];
    }
    WriteCorrectionFile(Design, Path("curve.cor"));
    ResetDesign(Design);
    ReadCorrectionFile(Design, Path("curve.cor"));
    EXPECT_TRUE(said.empty());
    for (int entry = 1; entry <= 8; ++entry) {
        EXPECT_FLOAT_EQ(Design.CorrectionPair[entry], written[entry - 1]) << entry;
    }
    ExpectPair(7, 1, 1);
    EXPECT_EQ(Design.NumberOfCorrectionPoints, 7);
}

TEST_F(CurveFileTest, ReadsSignificantLinesAndTokens) {
    Read("! made by hand\n"
         "\r\n"
         "   \n"
         "* and\n"
         "' with\n"
         "  / many\n"
         "\\ remarks\n"
         "   Meter   \n"
         "! before the date\n"
         "yesterday\n"
         "2 points\n"
         "\n"
         "whatever heads the columns\n"
         "0 0\n"
         "* among the points\n"
         "   .25      50m   the rest is dropped\n");
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.NumberOfCorrectionPoints, 2);
    ExpectPair(1, 0, 0);
    ExpectPair(2, 0.25F, 0.05F);
    ExpectPair(3, 0.3F, 0.3F);
    EXPECT_EQ(Design.CorrectionSlope[1], 1);
}

TEST_F(CurveFileTest, FiveCharactersMakeTheHeader) {
    constexpr std::pair<const char*, bool> kRows[] = {
        {"Meter", true},  {"Meters and more", true}, {"  Meter", true},  {"Mete", false},
        {"meter", false}, {"METER", false},          {"A Meter", false}, {"Met er", false},
    };
    for (const auto& [header, reads] : kRows) {
        said.clear();
        ResetDesign(Design);
        Read(std::string(header) + "\nd\n1\nh\n.5 .6\n");
        if (reads) {
            EXPECT_TRUE(said.empty()) << header;
            ExpectPair(1, 0.5F, 0.6F);
        } else {
            ExpectNotRead();
            ExpectPair(1, 0, 0);
            EXPECT_EQ(Design.NumberOfCorrectionPoints, 7) << header;
        }
    }
}

TEST_F(CurveFileTest, AHeaderAndThreeLinesAreAWholeFile) {
    Read("Meter\nd\n0\nh\n");
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.NumberOfCorrectionPoints, 0);
}

TEST_F(CurveFileTest, ValuesAreNotJudged) {
    Read("Meter\nd\n4\nh\n.9 -5\n.1\nx y\n12345678901 1E99\n");
    EXPECT_TRUE(said.empty());
    ExpectPair(1, 0.9F, -5);
    ExpectPair(2, 0.1F, 0); // no second token
    ExpectPair(3, 0, 0);
    ExpectPair(4, 0.5F, 1e10F); // more than ten characters are ignored
}

TEST_F(CurveFileTest, AnEarlyEndIsAFailureThatKeepsThePointsRead) {
    const Texts lines = {"Meter", "d", "3", "h", ".1 .2", ".3 .4", ".5 .6"};
    std::string text;
    for (std::size_t count = 0; count < lines.size(); ++count) {
        SCOPED_TRACE(count);
        said.clear();
        ResetDesign(Design);
        Read(text + "* no line of the curve\n\n");
        EXPECT_EQ(said, (Texts{"beep", kNotRead}));
        EXPECT_EQ(Design.NumberOfCorrectionPoints, count > 2 ? 3 : 7);
        ExpectPair(1, count > 4 ? 0.1F : 0, count > 4 ? 0.2F : 0);
        ExpectPair(2, count > 5 ? 0.3F : 0.15F, count > 5 ? 0.4F : 0.15F);
        ExpectPair(3, 0.3F, 0.3F);
        text += lines[count] + "\n";
    }
    said.clear();
    Read(text);
    EXPECT_TRUE(said.empty());
    ExpectPair(3, 0.5F, 0.6F);
}

TEST_F(CurveFileTest, CountsOfEverySize) {
    struct Row {
        const char* count;
        bool reads;
        int points; // as counted afterwards
    };
    constexpr Row kRows[] = {
        {"0", true, 0},      {"-3", true, -3},         {"7", true, 7},
        {"10", true, 10},    {"11", false, 11},        {"20", false, 20},
        {"1k", false, 1000}, {"99999", false, 32767},  {"9E99", false, 32767},
        {"none", true, 0},   {"12345678901", true, 7}, {"2.5", true, 2},
    };
    std::string points;
    for (int point = 1; point <= 12; ++point) {
        points += "." + std::to_string(10 + point) + " ." + std::to_string(30 + point) + "\n";
    }
    for (const auto& [count, reads, counted] : kRows) {
        SCOPED_TRACE(count);
        said.clear();
        ResetDesign(Design);
        Design.CorrectionPair[20] = 0;
        Read(std::string("Meter\nd\n") + count + "\nh\n" + points);
        EXPECT_EQ(said.empty(), reads);
        EXPECT_EQ(Design.NumberOfCorrectionPoints, counted);
        if (counted >= 10) {
            ExpectPair(10, 0.2F, 0.4F);
        } else {
            EXPECT_EQ(Design.CorrectionPair[20], 0);
        }
    }
}

TEST_F(CurveFileTest, ReportsWhatIsNoFileOfText) {
    WriteFile("empty.cor", "");
    WriteFile("garbage.cor", std::string("\0\xFF\x80Meter\n", 9));
    for (const std::string& name : {Path("none.cor"), Path("none/curve.cor"), Path(""),
                                    Path("empty.cor"), Path("garbage.cor")}) {
        said.clear();
        ReadCorrectionFile(Design, name);
        EXPECT_EQ(said.empty() ? "nothing said" : said.back(), kNotRead) << name;
        ExpectPair(2, 0.15F, 0.15F);
        EXPECT_EQ(Design.NumberOfCorrectionPoints, 7);
    }
}

TEST_F(CurveFileTest, AnEmptyNameIsAFileThatCannotBeOpened) {
    ReadCorrectionFile(Design, "");
    ExpectNotRead();
}

} // namespace
} // namespace vernacle::test
