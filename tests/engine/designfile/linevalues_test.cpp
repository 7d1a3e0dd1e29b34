#include "engine/designfile/linevalues.h"

#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class SplitFieldTest : public EngineTest {};

TEST_F(SplitFieldTest, TakesTheFirstFieldAndTheSeparatorsAroundIt) {
    struct Row {
        const char* rest;
        const char* field;
        const char* newRest;
    };
    constexpr Row kRows[] = {
        {"a\\b\\c", "a", "b\\c"}, {"a", "a", ""},
        {"a\\", "a", ""},         {"\\\\a\\\\\\b\\", "a", "b\\"}, // several separators count as one
        {" a \\ b", " a ", " b"},                                 // blanks belong to the field
        {"a/b\\c", "a/b", "c"},   {"", "old", ""},                // nothing left: the field stays
        {"\\", "old", ""},        {"\\\\\\", "old", ""},
    };
    for (const auto& [start, field, newRest] : kRows) {
        std::string rest = start;
        std::string taken = "old";
        const auto behind = SplitField(rest, taken);
        EXPECT_EQ(taken, field) << start;
        EXPECT_EQ(rest, newRest) << start;
        EXPECT_EQ(behind.has_value(), taken != "old") << start;
    }
}

TEST_F(SplitFieldTest, TellsThePlaceBehindTheField) {
    for (const auto& [start, place] : {std::pair{"a\\b", 2}, {"abc", 4}, {"\\\\ab\\c", 5}}) {
        std::string rest = start;
        std::string field;
        EXPECT_EQ(SplitField(rest, field), place) << start;
    }
}

class SharedIndexTest : public NewDesignTest {
protected:
    // The first tic of scale 1 that is deleted once a line of that text was read.
    static int Deleted(std::string text) {
        ReadDeletedTic(text, {Design, {}, {.outer = 1}});
        int tic = 0;
        while (Design.StandardTicYN[1][tic] != "N") {
            ++tic;
        }
        return tic;
    }
};

// A number of more than ten characters is ignored.
TEST_F(SharedIndexTest, TooLongANumberDeletesTheTicOfTheLineBefore) {
    EXPECT_EQ(Deleted(" 20"), 20);
    EXPECT_EQ(Design.SharedIndex2, 20);
    Design.StandardTicYN[1][20] = "Y";
    EXPECT_EQ(Deleted(" 00000000030"), 20);
}

TEST_F(SharedIndexTest, TooLongANumberDeletesTheTicWhereTheLastFieldEnded) {
    std::string value = " .5\\Y\\N\\Y\\label";
    ReadTicFields(value, {Design, {}, {.outer = 2, .inner = 7}});
    EXPECT_EQ(Deleted(" 00000000030"), 6) << "behind the label";
    Design.StandardTicYN[1][6] = "Y";
    value = " .25 \\ .125";
    ReadCurvePoint(value, {Design, {}, {.outer = 1}});
    EXPECT_EQ(Deleted(" 00000000030"), 6) << "behind Y";
    Design.StandardTicYN[1][6] = "Y";
    value = "7\\8";
    ReadFirstVal(value, {Design, &Design.NumberOfCorrectionPoints, {}});
    EXPECT_EQ(Deleted(" 00000000030"), 2) << "behind the first field";
}

} // namespace
} // namespace vernacle::test
