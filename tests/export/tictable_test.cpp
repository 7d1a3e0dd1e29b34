// The tic table: of examples by the program, of what no file brings to print by its routine.
#include "export/tictable.h"

#include <charconv>
#include <cmath>
#include <numbers>
#include <ostream>

#include "engine/core/design.h"
#include "export/csv.h"
#include "export/exporttest.h"
#include "support/plategeometry.h"

namespace vernacle::test {

using exporter::TicTableText;

namespace {

constexpr const char* kHeader = "scale,tic,major,labelled,label,deflection,corrected,pointer_deg,"
                                "x_mm,y_mm,end_x_mm,end_y_mm\r\n";

enum Column {
    kScale,
    kTic,
    kMajor,
    kLabelled,
    kLabel,
    kDeflection,
    kCorrected,
    kPointer,
    kX,
    kY,
    kEndX,
    kEndY,
    kColumns
};

double Number(const std::string& text) {
    double value = std::nan("");
    const char* end = text.data() + text.size();
    return std::from_chars(text.data(), end, value).ptr == end ? value : std::nan("");
}

// The rows behind the header, which is checked.
std::vector<CsvRow> RowsOf(const std::string& table) {
    EXPECT_TRUE(table.starts_with(kHeader)) << table.substr(0, 200);
    std::vector<CsvRow> rows = ReadCsv(table);
    rows.erase(rows.begin());
    for (const CsvRow& row : rows) {
        EXPECT_EQ(row.size(), kColumns);
    }
    return rows;
}

struct TableCase {
    const char* name;
    const char* example;
    Edits edits = {};
    std::vector<int> deletedTics = {};
    std::vector<int> deletedLabels = {};
    bool texts = true;
};

void PrintTo(const TableCase& table, std::ostream* out) {
    *out << table.name;
}

bool Has(const std::vector<int>& numbers, int number) {
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

void ExpectRow(const CsvRow& row, const Plate& plate, const TicPlace& tic, bool labelled) {
    EXPECT_EQ(row[kScale], "1");
    EXPECT_EQ(row[kTic], std::to_string(tic.number));
    EXPECT_EQ(row[kMajor], tic.major ? "Y" : "N");
    EXPECT_EQ(row[kLabelled], labelled ? "Y" : "N");
    if (labelled) { // the label's own form is rounded
        const double value = plate.leftEnd + plate.span * tic.fraction;
        EXPECT_NEAR(Number(row[kLabel]), value, 0.005) << row[kLabel];
    } else {
        EXPECT_EQ(row[kLabel], "");
    }
    // The fraction is a float, which holds seven digits; so then does all that comes of it.
    EXPECT_NEAR(Number(row[kDeflection]), tic.fraction, 1e-7);
    EXPECT_NEAR(Number(row[kCorrected]), tic.fraction, 1e-7);
    EXPECT_NEAR(Number(row[kPointer]), tic.pointerRad * 180 / std::numbers::pi, 1e-4);
    EXPECT_NEAR(Number(row[kX]), tic.foot.x, 5e-5);
    EXPECT_NEAR(Number(row[kY]), tic.foot.y, 5e-5);
    EXPECT_NEAR(Number(row[kEndX]), tic.end.x, 5e-5);
    EXPECT_NEAR(Number(row[kEndY]), tic.end.y, 5e-5);
}

class TableTest : public ExportTest, public ::testing::WithParamInterface<TableCase> {};

const TableCase kTables[] = {
    {"amperes", "AMPERES-0-30"},
    {"falling", "ATTENUATION-40-0"},
    {"dense", "DEGREES-0-360"},
    {"centre_zero", "GALVANOMETER-30-0-30"},
    {"reeds", "HERTZ-45-55"},
    {"microamperes", "MICROAMPERES-0-50"},
    {"milliamperes", "MILLIAMPERES-0-1"},
    {"turned_labels", "PERCENT"},
    {"volts", "VOLTS-0-15"},
    {"deleted_tics", "VOLTS-0-15", {DeletedTics({0, 4, 15})}, {0, 4, 15}},
    {"deleted_labels", "VOLTS-0-15", {DeletedLabels({0, 5, 10})}, {}, {0, 5, 10}},
    {"deletions_of_another_scale",
     "VOLTS-0-15",
     {{"Scale 2 - deleted tics: ", DeletedList("Tic deleted: ", {3})},
      {"Scale 3 - deleted labels: ", DeletedList("Label deleted: ", {0})}}},
    {"no_texts", "VOLTS-0-15", {{"Print text Y/N:", "N"}}, {}, {}, false},
    {"relative_size", "VOLTS-0-15", {{"Scale 1: ", "1.5"}}},
    {"major_tics_of_two_kinds",
     "GALVANOMETER-30-0-30",
     {{"Major ticmarks every how often: ", "5"}, {"Labels every how many ticmarks: ", "2"}}},
    {"seven_steps_labelled_by_twos",
     "VOLTS-0-15",
     {{"Number of ticmarks: ", "7"}, {"Labels every how many ticmarks: ", "2"}}},
    {"bearing_below_the_plate", "VOLTS-0-15", {{"Bottom to bearing: ", "-6"}}},
    {"a_law_that_the_page_straightens", "VOLTS-0-15", {{"Linearity exponent: ", "2"}}},
};

TEST_P(TableTest, HasARowForEachTicOfThePrint) {
    const TableCase& table = GetParam();
    const std::string design = EditedExample(table.example, table.edits);
    ExportQuietly(design, {Path("plate.csv")});
    const Plate plate = ReadPlate(ReadText(design));
    const std::vector<CsvRow> rows = RowsOf(ReadFile("plate.csv"));
    std::size_t next = 0;
    for (int number = 0; number <= plate.tics; ++number) {
        if (Has(table.deletedTics, number)) {
            continue;
        }
        SCOPED_TRACE(number);
        const TicPlace tic = PlaceOfTic(plate, number);
        const bool labelled = tic.labelled && table.texts && !Has(table.deletedLabels, number);
        ASSERT_LT(next, rows.size());
        ExpectRow(rows[next++], plate, tic, labelled);
    }
    EXPECT_EQ(next, rows.size());
}

INSTANTIATE_TEST_SUITE_P(Designs, TableTest, ::testing::ValuesIn(kTables),
                         [](const auto& test) { return std::string(test.param.name); });

class TicTableTest : public ExportTest {
protected:
    // One special scale with three tics, from the left end to the middle.
    void GiveSpecialScale(const char* label0, const char* label1, const char* label2) {
        SetOpeningValues(Design);
        ResetDesign(Design);
        Design.ScaleColor[1] = -1;
        Design.SpecialNrOfTicmarks[1] = 2;
        const char* const labels[] = {label0, label1, label2};
        for (int tic = 0; tic <= 2; ++tic) {
            Design.TicDeflection[1][tic] = static_cast<float>(tic) / 4;
            Design.TicLabelText[1][tic] = labels[tic];
        }
    }
};

TEST_F(TicTableTest, LabelsReadAsTheyArePrinted) {
    ExportQuietly(Example("MILLIAMPERES-0-1"), {Path("plate.csv")});
    std::vector<std::string> labels;
    for (const CsvRow& row : RowsOf(ReadFile("plate.csv"))) {
        if (row[kLabelled] == "Y") {
            labels.push_back(row[kLabel]);
        }
    }
    EXPECT_EQ(labels, (std::vector<std::string>{"0", ".2", ".4", ".6", ".8", "1"}));
}

TEST_F(TicTableTest, NumbersHaveSevenDigitsAndAPoint) {
    ExportQuietly(Example("MILLIAMPERES-0-1"), {Path("plate.csv")});
    const CsvRow row = RowsOf(ReadFile("plate.csv"))[7];
    for (const Column column : {kX, kY, kEndX, kEndY}) {
        const std::string& text = row[column];
        EXPECT_NE(text.find('.'), std::string::npos) << text;
        EXPECT_GE(text.size(), 8U) << text;
    }
}

// A special scale loses its sign when it is made ready, and its own tics with that.
TEST_F(TicTableTest, ASpecialScaleOfAFileIsPrintedAsAStandardOne) {
    std::string design = ReadText(Example("VOLTS-0-15"));
    const std::size_t start = design.find("Scale color: ");
    const std::size_t end = design.find("Draw graphic Y/N:");
    design.replace(start, end - start,
                   "Scale color: -1\r\nBottom to scale title: 30\r\nBottom to scale ceiling: 35\r\n"
                   "Scale title:S\r\nNumber of ticmarks: 1\r\n"
                   " 0\\Y\\Y\\Y\\/\r\n 1\\Y\\Y\\Y\\+60\r\n"
                   "Unlabelled ticmark at scale bottom Y/N: N\r\nScale exponent: 1\r\n"
                   "Fullscale multiplier: 1\r\n");
    ExportQuietly(WriteFile("special.VRN", design), {Path("plate.csv")});
    const std::vector<CsvRow> rows = RowsOf(ReadFile("plate.csv"));
    ASSERT_EQ(rows.size(), 51U); // a standard scale as no file has set it
    for (std::size_t tic = 0; tic < rows.size(); ++tic) {
        EXPECT_EQ(rows[tic][kMajor], tic % 5 == 0 ? "Y" : "N") << tic;
        EXPECT_EQ(rows[tic][kLabel], tic % 10 == 0 ? std::to_string(tic) : "") << tic;
    }
}

TEST_F(TicTableTest, AFieldThatNeedsQuotesHasThem) {
    GiveSpecialScale("6\" pipe", "\"", "two\r\nlines");
    const std::string table = TicTableText(Design);
    EXPECT_NE(table.find("\r\n1,0,N,Y,\"6\"\" pipe\",0,"), std::string::npos) << table;
    EXPECT_NE(table.find("\r\n1,1,N,Y,\"\"\"\",0.25,"), std::string::npos) << table;
    const std::vector<CsvRow> rows = RowsOf(table);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0][kLabel], "6\" pipe");
    EXPECT_EQ(rows[1][kLabel], "\"");
    EXPECT_EQ(rows[2][kLabel], "two\r\nlines");
}

// On the plate a comma of a label is a point, and a lone slash stands for no label.
TEST_F(TicTableTest, LabelsAreThoseOfThePlate) {
    for (const char* rotation : {"H", "B", "V"}) {
        SCOPED_TRACE(rotation);
        GiveSpecialScale("1,5", "/", "");
        Design.LabelRotation = rotation;
        const std::vector<CsvRow> rows = RowsOf(TicTableText(Design));
        ASSERT_EQ(rows.size(), 3U);
        EXPECT_EQ(rows[0][kLabelled] + rows[0][kLabel], "Y1.5");
        EXPECT_EQ(rows[1][kLabelled] + rows[1][kLabel], "N");
        EXPECT_EQ(rows[2][kLabelled] + rows[2][kLabel], "N");
    }
}

TEST_F(TicTableTest, SpecialTicsFollowTheirOwnFlags) {
    GiveSpecialScale("a", "b", "c");
    Design.TicPrintYN[1][1] = "N";
    Design.TicMajorYN[1][2] = "Y";
    Design.TicLabelYN[1][2] = "N";
    const std::vector<CsvRow> rows = RowsOf(TicTableText(Design));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0][kTic] + rows[0][kMajor] + rows[0][kLabelled], "0NY");
    EXPECT_EQ(rows[1][kTic] + rows[1][kMajor] + rows[1][kLabelled], "2YN");
}

TEST_F(TicTableTest, ScalesThatPrintNoTicsAreLeftOut) {
    GiveSpecialScale("a", "b", "c");
    Design.NumberOfScales = 3;
    for (const int scale : {2, 3}) {
        Design.ScaleColor[scale] = -1;
        Design.SpecialNrOfTicmarks[scale] = 0;
    }
    Design.PrintTicsAndArcs[1] = std::int16_t{1};
    const std::vector<CsvRow> rows = RowsOf(TicTableText(Design));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0][kScale], "2");
    EXPECT_EQ(rows[1][kScale], "3");
}

// The tics of an even scale point to the bearing, those of an odd one away from it.
TEST_F(TicTableTest, EvenScalesPointInward) {
    GiveSpecialScale("a", "b", "c");
    Design.NumberOfScales = 2;
    Design.ScaleColor[2] = -1;
    Design.SpecialNrOfTicmarks[2] = 0;
    Design.TicDeflection[2][0] = 0.5F;
    Design.RelativeFontSize[2] = 2;
    const std::vector<CsvRow> rows = RowsOf(TicTableText(Design));
    ASSERT_EQ(rows.size(), 4U);
    const double length = double{Design.MinorTicLength};
    EXPECT_NEAR(Number(rows[2][kEndY]) - Number(rows[2][kY]), length, 1e-5);
    EXPECT_NEAR(Number(rows[3][kEndY]) - Number(rows[3][kY]), -2 * length, 1e-5);
}

TEST_F(TicTableTest, TheMovementsCurveShowsInTheCorrectedColumn) {
    GiveSpecialScale("a", "b", "c");
    Design.CorrectionPair[5] = 0.3F; // the third point: three tenths of the current move it four
    Design.CorrectionPair[6] = 0.4F;
    Design.CorrectionSlope[2] = (0.4F - 0.15F) / (0.3F - 0.15F);
    const std::vector<CsvRow> rows = RowsOf(TicTableText(Design));
    ASSERT_EQ(rows.size(), 3U);
    const double corrected = 0.15 + (0.25 - 0.15) * 0.25 / 0.15;
    EXPECT_EQ(rows[1][kDeflection], "0.25");
    EXPECT_NEAR(Number(rows[1][kCorrected]), corrected, 1e-6);
    const double swing = double{Design.PointerDeflection};
    EXPECT_NEAR(Number(rows[1][kPointer]), 90 - swing / 2 + swing * corrected, 1e-4);
}

// Calibration is the printer's affair: millimetres of the plate stay what they are.
TEST_F(TicTableTest, CalibrationDoesNotEnter) {
    const std::string design = Example("VOLTS-0-15");
    const std::string calibration =
        WriteFile("printer.txt", "\"Vernacle calibration file\"\r\n#d#\r\n1.1\r\n.9\r\n");
    ExportQuietly(design, {Path("plain.csv")});
    ExportQuietly(design, {Path("calibrated.csv")}, {"--calibration", calibration});
    EXPECT_EQ(ReadFile("plain.csv"), ReadFile("calibrated.csv"));
}

} // namespace

} // namespace vernacle::test
