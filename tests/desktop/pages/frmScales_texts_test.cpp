// The entries of the scales page that have rules of their own: the relative size with its partner
// box and arrows, the title, the exponent.
#include <cmath>

#include "desktop/pages/scalestest.h"

namespace vernacle::test {
namespace {

class ScalesTextsTest : public ScalesTest {};

struct SizeEntry {
    const char* typed;
    const char* shown;
    float held;
};

// clang-format off
constexpr SizeEntry kSizes[] = {
    {"2",     "1.5",  1.5F},
    {"1.51",  "1.5",  1.5F},
    {"1.5",   "1.5",  1.5F},
    {"1.49",  "1.49", 1.49F},
    {"1,2",   "1,2",  1.2F},
    {".51",   ".51",  0.51F},
    {"0.5",   "0.5",  0.5F},
    {".49",   ".5",   0.5F},
    {".3",    ".5",   0.5F},
    {"0",     ".5",   0.5F},
    {"-1",    ".5",   0.5F},
    {"abc",   ".5",   0.5F},
    {"",      ".5",   0.5F},
    {"9E99",  "1.5",  1.5F},
    {"700m",  "700m",  700 * 0.001F},
};
// clang-format on

TEST_F(ScalesTextsTest, RelativeSizeBeyondItsLimitsRewritesItsBox) {
    OpenScales();
    for (const SizeEntry& row : kSizes) {
        SCOPED_TRACE(row.typed);
        Paste("txtRelFontsize", "1.1");
        Spoil();
        Paste("txtRelFontsize", row.typed);
        EXPECT_EQ(TextOf("txtRelFontsize"), row.shown);
        EXPECT_EQ(Design.RelativeFontSize[1], row.held);
        ExpectRedrawn();
    }
}

// Typed, what is beyond the limits is rewritten when the box is left, and held at each key.
TEST_F(ScalesTextsTest, TypedRelativeSizeIsRewrittenWhenItsBoxIsLeft) {
    OpenScales();
    for (const SizeEntry& row : kSizes) {
        SCOPED_TRACE(row.typed);
        Type("txtRelFontsize", "1.1");
        Spoil();
        Overtype("txtRelFontsize", row.typed);
        if (*row.typed == '\0') {
            QTest::keyClick(&Box("txtRelFontsize"), Qt::Key_Delete);
        }
        EXPECT_EQ(TextOf("txtRelFontsize"), row.typed);
        EXPECT_EQ(Design.RelativeFontSize[1], row.held);
        ExpectRedrawn();
        QTest::keyClick(&Box("txtRelFontsize"), Qt::Key_Tab);
        EXPECT_EQ(TextOf("txtRelFontsize"), row.shown);
        EXPECT_EQ(Design.RelativeFontSize[1], row.held);
        ExpectRedrawn();
    }
}

TEST_F(ScalesTextsTest, ArrowsStepRelativeSizeFromWhereTypingLeftIt) {
    Design.ActiveScale = 2;
    OpenScales(2);
    Click("Option2");
    Type("txtRelFontsize", "2");
    QTest::keyClick(&Box("txtRelFontsize"), Qt::Key_Down); // through its partner, at 10 tenths
    EXPECT_EQ(TextOf("txtRelFontsize"), ".9");
    EXPECT_EQ(Design.RelativeFontSize[2], 0.9F);
    QTest::keyClick(&Box("txtRelFontsize"), Qt::Key_Tab);
    EXPECT_EQ(TextOf("txtRelFontsize"), ".9") << "no text waits any more";
}

TEST_F(ScalesTextsTest, TooLongRelativeSizeLeavesTheValue) {
    OpenScales();
    Paste("txtRelFontsize", "1.25");
    Paste("txtRelFontsize", "00000000002");
    EXPECT_EQ(Design.RelativeFontSize[1], 1.25F);
    EXPECT_EQ(TextOf("txtRelFontsize"), "00000000002");
}

TEST_F(ScalesTextsTest, ArrowsStepTheRelativeSizeByTenths) {
    Design.RelativeFontSize[1] = 0.5F;
    OpenScales();
    EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), "5");
    for (int tenths = 6; tenths <= 15; ++tenths) {
        StepUp("UpDown6");
        const float size = static_cast<float>(tenths) / 10;
        EXPECT_EQ(Design.RelativeFontSize[1], size);
        EXPECT_EQ(TextOf("txtRelFontsize"), PlainNumber(size));
        EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), std::to_string(tenths));
    }
    StepUp("UpDown6");
    EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), "15");
    EXPECT_EQ(TextOf("txtRelFontsize"), "1.5");
    for (int tenths = 14; tenths >= 5; --tenths) {
        QTest::keyClick(&Box("txtRelFontsize"), Qt::Key_Down);
        EXPECT_EQ(Design.RelativeFontSize[1], static_cast<float>(tenths) / 10);
    }
    StepDown("UpDown6");
    EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), "5");
    EXPECT_EQ(TextOf("txtRelFontsize"), ".5");
}

TEST_F(ScalesTextsTest, PartnerWritesATenthOfItsNumericValue) {
    const std::pair<const char*, const char*> rows[] = {
        {"7", ".7"},   {"12.5", "1.25"}, {"40", "1.5"},      {"4", ".5"},
        {"abc", ".5"}, {"", ".5"},       {"8 tenths", ".8"}, {"1,4", ".5"},
    };
    OpenScales();
    for (const auto& [tenths, size] : rows) {
        Paste("txtRelFontsize", "1");
        Paste("txtRelFontSizeUpDown", tenths);
        EXPECT_EQ(TextOf("txtRelFontsize"), size) << tenths;
        EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), tenths);
        EXPECT_EQ(PlainNumber(Design.RelativeFontSize[1]), size) << tenths;
    }
}

TEST_F(ScalesTextsTest, ArrowsStepTheirPartnerWhateverTheBoxShows) {
    OpenScales();
    Paste("txtRelFontsize", ".7");
    EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), "10");
    StepUp("UpDown6");
    EXPECT_EQ(TextOf("txtRelFontsize"), "1.1");
    Paste("txtRelFontSizeUpDown", "99");
    StepDown("UpDown6");
    EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), "15");
    Paste("txtRelFontSizeUpDown", "-3");
    StepUp("UpDown6");
    EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), "5");
}

TEST_F(ScalesTextsTest, RelativeSizeIsDrawn) {
    OpenScales();
    const auto fontsOf = [&] { return CallsOf("picPlate"); };
    const Strings before = fontsOf();
    Paste("txtRelFontsize", "1.5");
    EXPECT_NE(fontsOf(), before);
    EXPECT_EQ(fontsOf(), PlateOfDesign());
}

std::string Repeated(const std::string& text, int count) {
    std::string all;
    while (count-- > 0) {
        all += text;
    }
    return all;
}

TEST_F(ScalesTextsTest, TitleKeepsItsBlanksAndItsFirstSixtyCharacters) {
    const std::string umlaut = "\xC3\xBC";
    const std::string beyondTheBasicPlane = "\xF0\x9F\x93\x8F";
    const std::pair<std::string, std::string> rows[] = {
        {"", ""},
        {"Volts", "Volts"},
        {"  Volts   ", "  Volts   "},
        {"     ", "     "},
        {std::string(59, 'a'), std::string(59, 'a')},
        {std::string(60, 'a'), std::string(60, 'a')},
        {std::string(61, 'a'), std::string(60, 'a')},
        {std::string(60, 'a') + "0123456789", std::string(60, 'a')},
        {std::string(30, ' ') + std::string(40, 'b'), std::string(30, ' ') + std::string(30, 'b')},
        {Repeated(umlaut, 70), Repeated(umlaut, 60)},
        {std::string(59, 'a') + umlaut + "zz", std::string(59, 'a') + umlaut},
        {Repeated(beyondTheBasicPlane, 61), Repeated(beyondTheBasicPlane, 60)},
        {std::string(20000, 'x'), std::string(60, 'x')},
    };
    OpenScales();
    for (const auto& [typed, kept] : rows) {
        SCOPED_TRACE(typed.substr(0, 70));
        Paste("txtScaleTitle", "before");
        Spoil();
        Paste("txtScaleTitle", typed);
        EXPECT_EQ(Design.ScaleTitle[1], kept);
        EXPECT_EQ(TextOf("txtScaleTitle"), typed);
        EXPECT_EQ(TextsOf("picPlate").back(), kept);
        ExpectRedrawn();
    }
}

TEST_F(ScalesTextsTest, TitleIsNoNumber) {
    OpenScales();
    Type("txtScaleTitle", "12345678901234");
    EXPECT_EQ(Design.ScaleTitle[1], "12345678901234");
    QTest::keyClick(&Box("txtScaleTitle"), Qt::Key_Up);
    EXPECT_EQ(TextOf("txtScaleTitle"), "12345678901234");
}

TEST_F(ScalesTextsTest, TitleGoesToTheActiveScale) {
    Design.ActiveScale = 3;
    OpenScales(3);
    Type("txtScaleTitle", "dB");
    EXPECT_EQ(Design.ScaleTitle[1], "Default Scale 1");
    EXPECT_EQ(Design.ScaleTitle[2], "Default Scale 2");
    EXPECT_EQ(Design.ScaleTitle[3], "dB");
}

TEST_F(ScalesTextsTest, ExponentIsHeldAndBendsTheScale) {
    const std::pair<const char*, float> rows[] = {
        {"7", 4},      {"4.01", 4}, {"4", 4}, {"3.99", 3.99F}, {"2", 2},
        {"0.5", 0.5F}, {"0", 0},    {"", 0},  {"abc", 0},      {"1,5", 1.5F},
    };
    OpenScales();
    Enable("txtLinearityExponent");
    for (const auto& [typed, held] : rows) {
        Spoil();
        Paste("txtLinearityExponent", typed);
        EXPECT_EQ(Design.LinearityExponent[1], held) << typed;
        EXPECT_EQ(TextOf("txtLinearityExponent"), typed);
        EXPECT_FLOAT_EQ(Design.StandardDeflection[1][25], std::pow(0.5F, held)) << typed;
        ExpectRedrawn();
    }
}

// Zero to a negative power has no value.
TEST_F(ScalesTextsTest, NegativeExponentIsHeldAndFailsTheRedraw) {
    const std::pair<const char*, float> rows[] = {
        {"-0.5", -0.5F}, {"-3.99", -3.99F}, {"-4", -4}, {"-4.01", -4}, {"-9", -4}};
    OpenScales();
    Enable("txtLinearityExponent");
    for (const auto& [typed, held] : rows) {
        EXPECT_THROW(Paste("txtLinearityExponent", typed), RunTimeError) << typed;
        EXPECT_EQ(Design.LinearityExponent[1], held);
    }
}

TEST_F(ScalesTextsTest, TooLongExponentKeepsTheOneReadBefore) {
    OpenScales();
    Enable("txtLinearityExponent");
    Paste("txtLinearityExponent", "7");
    Design.LinearityExponent[1] = 2;
    Paste("txtLinearityExponent", "12345678901");
    EXPECT_EQ(Design.LinearityExponent[1], 4) << "what was read last is limited and stored anew";
}

} // namespace
} // namespace vernacle::test
