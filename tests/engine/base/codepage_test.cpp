#include "engine/base/codepage.h"

#include <gtest/gtest.h>

namespace vernacle::test {
namespace {

constexpr const char* kMark = "\xEF\xBB\xBF";

// The characters that Windows-1252 has where Latin-1 has control codes.
constexpr std::pair<const char*, const char*> kSpecials[] = {
    {"\u20AC", "\x80"}, {"\u201A", "\x82"}, {"\u0192", "\x83"}, {"\u201E", "\x84"},
    {"\u2026", "\x85"}, {"\u2020", "\x86"}, {"\u2021", "\x87"}, {"\u02C6", "\x88"},
    {"\u2030", "\x89"}, {"\u0160", "\x8A"}, {"\u2039", "\x8B"}, {"\u0152", "\x8C"},
    {"\u017D", "\x8E"}, {"\u2018", "\x91"}, {"\u2019", "\x92"}, {"\u201C", "\x93"},
    {"\u201D", "\x94"}, {"\u2022", "\x95"}, {"\u2013", "\x96"}, {"\u2014", "\x97"},
    {"\u02DC", "\x98"}, {"\u2122", "\x99"}, {"\u0161", "\x9A"}, {"\u203A", "\x9B"},
    {"\u0153", "\x9C"}, {"\u017E", "\x9E"}, {"\u0178", "\x9F"},
};

TEST(CodepageTest, KnowsItsSpecialCharacters) {
    for (const auto& [text, byte] : kSpecials) {
        EXPECT_EQ(ToFileBytes(text), byte);
        EXPECT_EQ(FromFileBytes(byte), text);
        EXPECT_EQ(ToPlotterBytes(text), byte);
    }
}

TEST(CodepageTest, WritesLatinLettersAsTheirNumbers) {
    EXPECT_EQ(ToFileBytes("0 \u2013 50 \u00B5A \u00B0"), "0 \x96 50 \xB5"
                                                         "A \xB0");
    EXPECT_EQ(ToFileBytes("\u00A0\u00FF"), "\xA0\xFF");
    EXPECT_EQ(ToFileBytes("\t~\r\n"), "\t~\r\n");
    EXPECT_EQ(ToFileBytes(""), "");
}

TEST(CodepageTest, EveryByteComesBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string bytes(1, static_cast<char>(byte));
        EXPECT_EQ(ToFileBytes(FromFileBytes(bytes)), bytes) << byte;
    }
}

TEST(CodepageTest, WritesAllAsUtf8WhereOneCharacterHasNoPlace) {
    for (const std::string text : {"k\u2126", "\u03A9 \u00B5A", "\u4E2D", "\U0001F600", "\u0100"}) {
        const std::string bytes = ToFileBytes(text);
        EXPECT_EQ(bytes, kMark + text);
        EXPECT_EQ(FromFileBytes(bytes), text);
    }
}

TEST(CodepageTest, ReadsUtf8OnlyBehindTheMark) {
    EXPECT_EQ(FromFileBytes(std::string(kMark) + "\u00B5"), "\u00B5");
    EXPECT_EQ(FromFileBytes("\u00B5"), "\u00C2\u00B5");
    EXPECT_EQ(FromFileBytes(kMark), "");
    EXPECT_EQ(FromFileBytes("\xEF\xBB"), "\u00EF\u00BB");
    EXPECT_EQ(FromFileBytes(""), "");
}

TEST(CodepageTest, ReplacesWhatIsNoUtf8) {
    struct Row {
        const char* name;
        std::string bytes;
        std::string text;
    };
    const Row kRows[] = {
        {"stray continuation", "a\x80z", "a\uFFFDz"},
        {"cut sequence", "a\xE2\x84", "a\uFFFD\uFFFD"},
        {"cut by a letter", "\xC3z", "\uFFFDz"},
        {"over-long blank", "\xC0\xA0", "\uFFFD\uFFFD"},
        {"over-long in three", "\xE0\x9F\xBF", "\uFFFD\uFFFD\uFFFD"},
        {"over-long in four", "\xF0\x8F\xBF\xBF", "\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"first in two", "\xC2\x80", "\u0080"},
        {"first in three", "\xE0\xA0\x80", "\u0800"},
        {"first in four", "\xF0\x90\x80\x80", "\U00010000"},
        {"surrogate", "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
        {"last surrogate", "\xED\xBF\xBF", "\uFFFD\uFFFD\uFFFD"},
        {"behind the surrogates", "\xEE\x80\x80", "\uE000"},
        {"last of all", "\xF4\x8F\xBF\xBF", "\U0010FFFF"},
        {"beyond the last", "\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"no lead byte", "\xFF", "\uFFFD"},
    };
    for (const auto& [name, bytes, text] : kRows) {
        EXPECT_EQ(FromFileBytes(kMark + bytes), text) << name;
    }
}

TEST(CodepageTest, WritesStrayBytesAsTheReplacement) {
    EXPECT_EQ(ToFileBytes("a\xFF"), std::string(kMark) + "a\uFFFD");
}

TEST(CodepageTest, PlotterGetsAQuestionMarkForOtherCharacters) {
    EXPECT_EQ(ToPlotterBytes("5 k\u2126 \u00B5 \U0001F600."), "5 k? \xB5 ?.");
    EXPECT_EQ(ToPlotterBytes("a\xFF"), "a?");
    EXPECT_EQ(ToPlotterBytes(""), "");
}

} // namespace
} // namespace vernacle::test
