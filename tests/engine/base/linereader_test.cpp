#include "engine/base/linereader.h"

#include "engine/base/runtimeerror.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

Texts AllLines(const std::string& text) {
    LineReader reader(text);
    Texts lines;
    while (!reader.AtEnd()) {
        lines.emplace_back(reader.Next());
    }
    EXPECT_THROW(reader.Next(), FileFailure);
    EXPECT_THROW(reader.NextValue(), FileFailure);
    return lines;
}

TEST(LinesTest, EndWithCrLfOrLfOrTheText) {
    EXPECT_EQ(AllLines(""), Texts{});
    EXPECT_EQ(AllLines("a\r\nb\r\n"), (Texts{"a", "b"}));
    EXPECT_EQ(AllLines("a\nb\n"), (Texts{"a", "b"}));
    EXPECT_EQ(AllLines("a\r\nb"), (Texts{"a", "b"}));
    EXPECT_EQ(AllLines("\r\n\n"), (Texts{"", ""}));
    EXPECT_EQ(AllLines("a\r\r\n"), (Texts{"a\r"}));
    EXPECT_EQ(AllLines("a\rb\n"), (Texts{"a\rb"}));
    EXPECT_EQ(AllLines("a\r"), (Texts{"a"}));
}

TEST(LinesTest, AValueIsWhatStandsBehindTheFirstColon) {
    constexpr std::pair<const char*, const char*> kRows[] = {
        {"Plate width: 75\n", " 75"},
        {"75\n", "75"},
        {"Title:Volts: DC\n", "Volts: DC"},
        {"Title:\n", ""},
        {":\n", ""},
        {" \n", " "},
        {" *a:b\n", "b"},          // a comment begins in the first column
        {"\n\r\n\na:b\n", "b"},    // empty lines
        {"*a:b\n**\n*\na:c", "c"}, // comments
        {"*x\n\n*y\r\n\r\na:d", "d"},
    };
    for (const auto& [text, value] : kRows) {
        LineReader reader(text);
        EXPECT_EQ(reader.NextValue(), value) << text;
    }
}

TEST(LinesTest, OnlyEmptyLinesAndCommentsAreNoValue) {
    for (const char* text : {"", "\n\n", "*a:b\n", "\r\n*"}) {
        LineReader reader(text);
        EXPECT_THROW(reader.NextValue(), FileFailure) << text;
    }
}

} // namespace
} // namespace vernacle::test
