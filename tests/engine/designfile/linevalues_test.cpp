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
        SplitField(rest, taken);
        EXPECT_EQ(taken, field) << start;
        EXPECT_EQ(rest, newRest) << start;
    }
}

TEST_F(SplitFieldTest, OverwritesTheSharedIndices) {
    Design.SharedIndex = 99;
    Design.SharedIndex2 = 98;
    Design.ScaleLoop = 97;
    std::string rest = "a\\b";
    std::string field;
    SplitField(rest, field);
    EXPECT_NE(Design.SharedIndex, 99);
    EXPECT_NE(Design.SharedIndex2, 98);
    EXPECT_EQ(Design.ScaleLoop, 97);
}

} // namespace
} // namespace vernacle::test
