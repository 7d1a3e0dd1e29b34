#include "engine/base/text.h"

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

TEST(TextTest, AFileNameStandsBehindTheLastFolder) {
    EXPECT_EQ(FileNameOf("/a/b c/plate.VRN"), "plate.VRN");
    EXPECT_EQ(FileNameOf("C:\\a\\plate.VRN"), "plate.VRN");
    EXPECT_EQ(FileNameOf("plate.VRN"), "plate.VRN");
    EXPECT_EQ(FileNameOf("folder/"), "");
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

TEST(TextTest, MiddleCountsCharactersFromOne) {
    EXPECT_EQ(Middle("volts", 1, 2), "vo");
    EXPECT_EQ(Middle("volts", 4, 2), "ts");
    EXPECT_EQ(Middle("volts", 5, 9), "s");
    EXPECT_EQ(Middle("volts", 6, 1), "");
    EXPECT_EQ(Middle("volts", 60, 1), "");
    EXPECT_EQ(Middle("volts", 2, 0), "");
    EXPECT_EQ(Middle("", 1, 4), "");
    EXPECT_EQ(Middle("\u00B5A\u20AC", 2, 2), "A\u20AC");
    EXPECT_EQ(Middle("\u00B5A\u20AC", 3, 1), "\u20AC");
}

} // namespace
} // namespace vernacle::test
