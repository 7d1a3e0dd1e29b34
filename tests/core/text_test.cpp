#include "core/text.h"

#include <gtest/gtest.h>

namespace vernacle::test {
namespace {

TEST(TextTest, TrimsBlanksAtBothEndsAndNothingElse) {
    EXPECT_EQ(Trimmed("  a b  "), "a b");
    EXPECT_EQ(Trimmed("a"), "a");
    EXPECT_EQ(Trimmed("   "), "");
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Trimmed("\ta\t "), "\ta\t");
}

TEST(TextTest, TrimsBlanksAtTheStart) {
    EXPECT_EQ(LeftTrimmed("  a b  "), "a b  ");
    EXPECT_EQ(LeftTrimmed("   "), "");
    EXPECT_EQ(LeftTrimmed("\t a"), "\t a");
}

TEST(TextTest, CountsCharactersAndNotBytes) {
    EXPECT_EQ(CharacterCount(""), 0U);
    EXPECT_EQ(CharacterCount("mA"), 2U);
    EXPECT_EQ(CharacterCount("\u00B5A"), 2U);
    EXPECT_EQ(CharacterCount("k\u2126\u20AC"), 3U);
}

TEST(TextTest, LeftmostCountsCharacters) {
    EXPECT_EQ(Leftmost("", 3), "");
    EXPECT_EQ(Leftmost("volts", 0), "");
    EXPECT_EQ(Leftmost("volts", 3), "vol");
    EXPECT_EQ(Leftmost("volts", 5), "volts");
    EXPECT_EQ(Leftmost("volts", 60), "volts");
    EXPECT_EQ(Leftmost("\u00B5A\u20AC", 1), "\u00B5");
    EXPECT_EQ(Leftmost("\u00B5A\u20AC", 2), "\u00B5A");
    EXPECT_EQ(Leftmost("\u00B5A\u20AC", 3), "\u00B5A\u20AC");
}

} // namespace
} // namespace vernacle::test
