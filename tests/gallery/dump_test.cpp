// The dump of the design: every field of the record under its own name, each kind of value on one
// line, and of the tables only what differs.
#include "gallery/dump.h"

#include <limits>
#include <memory>

#include "engine/core/recordfields.h"
#include "support/enginetest.h"

namespace vernacle::test {

using namespace gallery;

namespace {

using Lines = std::vector<std::string>;

class DumpTest : public EngineTest {
protected:
    Lines DumpedLines() const {
        const std::string dump = DumpDesign(Design, *atStart);
        Lines lines;
        std::size_t begin = 0;
        while (begin < dump.size()) {
            const std::size_t end = dump.find('\n', begin);
            EXPECT_NE(end, std::string::npos) << "the last line has no end";
            lines.push_back(dump.substr(begin, end - begin));
            begin = end == std::string::npos ? dump.size() : end + 1;
        }
        return lines;
    }

    // The lines of one field, whatever its indices.
    Lines LinesOf(const std::string& name) const {
        Lines lines;
        for (const std::string& line : DumpedLines()) {
            if (line.starts_with(name + " ") || line.starts_with(name + "[")) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    const std::unique_ptr<DesignRecord> atStart = std::make_unique<DesignRecord>();
};

TEST_F(DumpTest, WritesPlainFieldsAlwaysAndNothingOfUntouchedTables) {
    Design = *atStart;
    const Lines lines = DumpedLines();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "DesignFileName = \"\"");
    EXPECT_EQ(lines[1], "PlateWidth = 0");
    for (const std::string& line : lines) {
        EXPECT_EQ(line.find('['), std::string::npos) << line;
    }
}

TEST_F(DumpTest, WritesEachKindOfPlainField) {
    Design.PlateWidth = 75.5F;
    Design.FontSize = .15F;
    Design.ActualVirtualOffset = -1234567936.F;
    Design.NumberOfScales = -32768;
    Design.PlateBackground = 0xFFFFFF;
    Design.FontName = "Arial";
    EXPECT_EQ(LinesOf("PlateWidth"), Lines{"PlateWidth = 75.5"});
    EXPECT_EQ(LinesOf("FontSize"), Lines{"FontSize = .15"});
    EXPECT_EQ(LinesOf("ActualVirtualOffset"), Lines{"ActualVirtualOffset = -1.234568E+09"});
    EXPECT_EQ(LinesOf("NumberOfScales"), Lines{"NumberOfScales = -32768"});
    EXPECT_EQ(LinesOf("PlateBackground"), Lines{"PlateBackground = 16777215"});
    EXPECT_EQ(LinesOf("FontName"), Lines{"FontName = \"Arial\""});
}

// The plain number has no form for them, and a dump must not fail over a spoilt design.
TEST_F(DumpTest, WritesNumbersThatAreNotFinite) {
    Design.PlateWidth = std::numeric_limits<float>::infinity();
    Design.PlateHeight = -std::numeric_limits<float>::infinity();
    Design.FontSize = std::numeric_limits<float>::quiet_NaN();
    Design.ScaleLeftEnd[1] = -std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(LinesOf("PlateWidth"), Lines{"PlateWidth = inf"});
    EXPECT_EQ(LinesOf("PlateHeight"), Lines{"PlateHeight = -inf"});
    EXPECT_EQ(LinesOf("FontSize"), Lines{"FontSize = nan"});
    EXPECT_EQ(LinesOf("ScaleLeftEnd"), Lines{"ScaleLeftEnd[1] = nan"});
}

TEST_F(DumpTest, WritesEachKindOfTable) {
    Design.ScaleColor[1] = 255;
    Design.ScaleTitle[8] = "VOLTS";
    Design.NrOfTicmarks[0] = 51;
    Design.StandardDeflection[1][17] = .34F;
    Design.StandardLabel[8][360] = "15";
    Design.StandardTicYN[10][0] = "N";
    Design.DeletedTicCount[6] = 2;
    Design.DeletedTics[6][360] = 359;
    Design.CorrectionPair[20] = 1;
    EXPECT_EQ(LinesOf("ScaleColor"), Lines{"ScaleColor[1] = 255"});
    EXPECT_EQ(LinesOf("ScaleTitle"), Lines{"ScaleTitle[8] = \"VOLTS\""});
    EXPECT_EQ(LinesOf("NrOfTicmarks"), Lines{"NrOfTicmarks[0] = 51"});
    EXPECT_EQ(LinesOf("StandardDeflection"), Lines{"StandardDeflection[1][17] = .34"});
    EXPECT_EQ(LinesOf("StandardLabel"), Lines{"StandardLabel[8][360] = \"15\""});
    EXPECT_EQ(LinesOf("StandardTicYN"), Lines{"StandardTicYN[10][0] = \"N\""});
    EXPECT_EQ(LinesOf("DeletedTicCount"), Lines{"DeletedTicCount[6] = 2"});
    EXPECT_EQ(LinesOf("DeletedTics"), Lines{"DeletedTics[6][360] = 359"});
    EXPECT_EQ(LinesOf("CorrectionPair"), Lines{"CorrectionPair[20] = 1"});
}

TEST_F(DumpTest, WritesADynamicValueAsWhatItHolds) {
    Design.PrintTicsAndArcs[1] = std::int16_t{1};
    Design.PrintTicsAndArcs[2] = std::string("1");
    Design.PrintTicsAndArcs[3] = std::string("0");
    Design.PrintTicsAndArcs[4] = std::string();
    Design.PrintTicsAndArcs[5] = std::int16_t{0}; // as at the start
    EXPECT_EQ(LinesOf("PrintTicsAndArcs"),
              (Lines{"PrintTicsAndArcs[1] = 1", "PrintTicsAndArcs[2] = \"1\"",
                     "PrintTicsAndArcs[3] = \"0\"", "PrintTicsAndArcs[4] = \"\""}));
}

// Different from the start, not from nothing: an entry that was emptied is news.
TEST_F(DumpTest, ComparesTablesWithTheStart) {
    atStart->ScaleColor[1] = Design.ScaleColor[1] = 255;
    atStart->ScaleColor[2] = 255;
    atStart->StandardLabel[1][3] = "3";
    atStart->DeletedTics[1][2] = Design.DeletedTics[1][2] = 9;
    atStart->DeletedTics[2][1] = 9;
    EXPECT_EQ(LinesOf("ScaleColor"), Lines{"ScaleColor[2] = 0"});
    EXPECT_EQ(LinesOf("StandardLabel"), Lines{"StandardLabel[1][3] = \"\""});
    EXPECT_EQ(LinesOf("DeletedTics"), Lines{"DeletedTics[2][1] = 0"});
}

TEST_F(DumpTest, WritesTablesByScaleThenByTic) {
    Design.StandardDeflection[2][1] = 1;
    Design.StandardDeflection[1][10] = 2;
    Design.StandardDeflection[1][9] = 3;
    Design.DeletedLabels[2][1] = 4;
    Design.DeletedLabels[1][2] = 5;
    EXPECT_EQ(LinesOf("StandardDeflection"),
              (Lines{"StandardDeflection[1][9] = 3", "StandardDeflection[1][10] = 2",
                     "StandardDeflection[2][1] = 1"}));
    EXPECT_EQ(LinesOf("DeletedLabels"),
              (Lines{"DeletedLabels[1][2] = 5", "DeletedLabels[2][1] = 4"}));
}

TEST_F(DumpTest, WritesTheFieldsInTheOrderOfTheRecord) {
    Design.CorrectionPair[1] = 1;
    Design.ScaleColor[1] = 1;
    Design.TextString[1] = "a";
    std::vector<std::string> names;
    for (const std::string& line : DumpedLines()) {
        names.push_back(line.substr(0, line.find_first_of(" [")));
    }
    const auto fields = RecordFields();
    auto field = fields.begin();
    for (const std::string& name : names) {
        field = std::find_if(field, fields.end(),
                             [&name](const RecordField& row) { return name == row.name; });
        ASSERT_NE(field, fields.end()) << name;
    }
}

TEST_F(DumpTest, EscapesTextsSoThatEachStaysOnItsLine) {
    const std::pair<std::string, const char*> rows[] = {
        {"say \"5\"", R"("say \"5\"")"},         {"C:\\n", R"("C:\\n")"},
        {"a\nb\r\n", R"("a\nb\r\n")"},           {"\t\x1B\x1F\x7F", R"("\x09\x1B\x1F\x7F")"},
        {std::string("a\0b", 3), R"("a\x00b")"}, {" ~ ", R"(" ~ ")"},
        {"µA \xC2\xB0", "\"µA \xC2\xB0\""},      {"\xFF", "\"\xFF\""},
    };
    for (const auto& [text, dumped] : rows) {
        Design.ProgramName = Design.ScaleTitle[1] = text;
        Design.PrintTicsAndArcs[1] = text;
        EXPECT_EQ(LinesOf("ProgramName"), Lines{std::string("ProgramName = ") + dumped});
        EXPECT_EQ(LinesOf("ScaleTitle"), Lines{std::string("ScaleTitle[1] = ") + dumped});
        EXPECT_EQ(LinesOf("PrintTicsAndArcs"),
                  Lines{std::string("PrintTicsAndArcs[1] = ") + dumped});
    }
}

} // namespace

} // namespace vernacle::test
