// The stage numbers of the lines, by which a user's report tells where a file went wrong.
#include "engine/designfile/designlines.h"

#include <algorithm>

#include "support/enginetest.h"

namespace vernacle::test {
namespace {

struct Visited {
    std::string label; // empty for a step between lines
    int stage;
};

class RecordingWalker : public FileWalker {
public:
    using FileWalker::FileWalker;
    std::vector<Visited> visited;

private:
    void Visit(const FileLine& line, LinePlace /*place*/) override {
        visited.push_back({line.label ? line.label : "", line.stage});
    }
};

class DesignLinesTest : public NewDesignTest {
protected:
    static std::vector<Visited> Walked() {
        RecordingWalker walker(Design);
        walker.Walk();
        return walker.visited;
    }
};

TEST_F(DesignLinesTest, HeadLinesHaveTheirStages) {
    const Visited expected[] = {
        {"Filename: ", 417},
        {"", 422},
        {"Plate width: ", 427},
        {"Plate height: ", 433},
        {"Bottom to bearing: ", 438},
        {"Bottom to mounting holes: ", 443},
        {"Hole separation: ", 448},
        {"Pointer deflection: ", 453},
        {"Dummy1: ", 458},
        {"Dummy2:", 463},
        {"Minor ticmark length: ", 468},
        {"Minor ticmark width: ", 473},
        {"Major ticmark length: ", 478},
        {"Major ticmark width: ", 483},
        {"Font size: ", 488},
        {"Actual/virtual offset: ", 493},
        {"Dummy3: ", 498},
        {"Dummy4: ", 503},
        {"Plate style: ", 508},
        {"Draw arcs Y/N:", 513},
        {"Label rotation H/V/B:", 518},
        {"Print text Y/N:", 523},
        {"Label spacing: ", 528},
        {"Font style: ", 533},
        {"Number of scales: ", 538},
        {"", 544}, // the loop over the scales
    };
    const std::vector<Visited> visited = Walked();
    for (std::size_t line = 0; line < std::size(expected); ++line) {
        EXPECT_EQ(visited[line].label, expected[line].label);
        EXPECT_EQ(visited[line].stage, expected[line].stage) << expected[line].label;
    }
    EXPECT_EQ(visited.back().stage, 990);
}

void ExpectRising(const std::vector<Visited>& visited) {
    for (std::size_t line = 1; line < visited.size(); ++line) {
        EXPECT_GT(visited[line].stage, visited[line - 1].stage)
            << visited[line].label << " behind " << visited[line - 1].label;
    }
}

// With one of everything, so that no line comes twice; the points of the curve always do.
std::vector<Visited> WithoutRepeats(const std::vector<Visited>& visited) {
    std::vector<Visited> lines;
    for (const Visited& line : visited) {
        if (lines.empty() || line.label != "Pair #%: " || lines.back().label != line.label) {
            lines.push_back(line);
        }
    }
    return lines;
}

TEST_F(DesignLinesTest, StagesRiseInTheOrderOfTheLines) {
    Design.NumberOfTexts = 1;
    Design.NumberOfHighlights = 1;
    for (const int colour : {0, -1}) {
        Design.ScaleColor[1] = colour;
        ExpectRising(WithoutRepeats(Walked()));
    }
}

TEST_F(DesignLinesTest, StagesRiseThroughTheDeletions) {
    for (int scale = 1; scale <= 4; ++scale) {
        Design.DeletedTicCount[scale] = 1;
        Design.DeletedLabelCount[scale] = 1;
    }
    ExpectRising(WithoutRepeats(Walked()));
}

TEST_F(DesignLinesTest, EachBlockComesAsOftenAsItsCountSays) {
    Design.NumberOfScales = 3;
    Design.ScaleColor[2] = -1;
    Design.SpecialNrOfTicmarks[2] = 4;
    Design.NumberOfTexts = 2;
    Design.NumberOfHighlights = 10;
    Design.DeletedTicCount[4] = 360;
    Design.DeletedLabelCount[1] = 5;
    constexpr std::pair<const char*, int> kRows[] = {
        {"Scale color: ", 3}, {"Linearity exponent: ", 2},     {"Scale exponent: ", 1},
        {"Text %:", 2},       {"Starting percentage: ", 10},   {"Tic deleted: ", 360},
        {"Pair #%: ", 7},     {"Label deleted: ", 5},          {"Scale %: ", 6},
        {"Messages: ", 1},    {"Scale 4 - deleted tics: ", 1},
    };
    const std::vector<Visited> visited = Walked();
    for (const auto& [label, times] : kRows) {
        EXPECT_EQ(std::ranges::count(visited, label, &Visited::label), times) << label;
    }
}

} // namespace
} // namespace vernacle::test
