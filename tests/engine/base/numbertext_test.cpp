#include "engine/base/numbertext.h"

#include <limits>

#include <gtest/gtest.h>

#include "engine/base/runtimeerror.h"

namespace vernacle::test {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(NumberTextTest, WritesFloatsInTheirShortestForm) {
    constexpr std::pair<float, const char*> kRows[] = {
        {0, "0"},
        {-0.0F, "0"},
        {1, "1"},
        {75, "75"},
        {-75, "-75"},
        {100, "100"},
        {61.5F, "61.5"},
        {0.15F, ".15"},
        {-0.5F, "-.5"},
        {1.05F, "1.05"},
        {123.4567F, "123.4567"},
        {1.0F / 3, ".3333333"},
        {2.0F / 3, ".6666667"},
        {0.0012345F, ".0012345"},
        {0.1234567F, ".1234567"},
        {0.99999994F, ".9999999"}, // the largest float below 1
        {0.01F, ".01"},
        // as far as seven places behind the point go, and beyond
        {0.0000001F, ".0000001"},
        {0.00000012F, "1.2E-07"},
        {0.00000001F, "1E-08"},
        {0.03333333F, "3.333333E-02"},
        {-0.03333333F, "-3.333333E-02"},
        {0.01234567F, "1.234567E-02"},
        {0.0123456F, ".0123456"},
        // below, at and above 1e7
        {1000000, "1000000"},
        {1234567, "1234567"},
        {9999999, "9999999"},
        {10000000, "1E+07"},
        {-10000000, "-1E+07"},
        {15000000, "1.5E+07"},
        {12345678, "1.234568E+07"},
        {16777216, "1.677722E+07"},
        {1e10F, "1E+10"},
        {3.4e38F, "3.4E+38"},
        {1e-37F, "1E-37"},
        {1e-45F, "1.401298E-45"},
    };
    for (const auto& [value, text] : kRows) {
        EXPECT_EQ(PlainNumber(value), text) << value;
    }
}

TEST(NumberTextTest, HasNoTextForWhatIsNoNumber) {
    EXPECT_THROW(PlainNumber(kInfinity), RunTimeError);
    EXPECT_THROW(PlainNumber(-kInfinity), RunTimeError);
    EXPECT_THROW(PlainNumber(kNaN), RunTimeError);
    EXPECT_THROW(PlotterDigits(double{kInfinity}), RunTimeError);
}

TEST(NumberTextTest, WritesIntegersInPlainDigits) {
    EXPECT_EQ(PlainNumber(0), "0");
    EXPECT_EQ(PlainNumber(-1), "-1");
    EXPECT_EQ(PlainNumber(16777215), "16777215");
    EXPECT_EQ(PlainNumber(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(NumberTextTest, SignedFormHasABlankForTheSign) {
    EXPECT_EQ(SignedNumber(0), " 0");
    EXPECT_EQ(SignedNumber(-0.0F), " 0");
    EXPECT_EQ(SignedNumber(0.5F), " .5");
    EXPECT_EQ(SignedNumber(-0.5F), "-.5");
    EXPECT_EQ(SignedNumber(1e7F), " 1E+07");
}

TEST(NumberTextTest, PaddedFormHasABlankBehindItToo) {
    EXPECT_EQ(PaddedNumber(2), " 2 ");
    EXPECT_EQ(PaddedNumber(-0.5F), "-.5 ");
    EXPECT_EQ(PaddedNumber(0), " 0 ");
}

TEST(NumberTextTest, PlotterFormNeverHasAnExponent) {
    constexpr std::pair<double, const char*> kRows[] = {
        {0, " 0 "},
        {-0.0, " 0 "},
        {3000, " 3000 "},
        {-3000, "-3000 "},
        {10000000, " 10000000 "},
        {123456789, " 123456789 "}, // a whole number is written in full
        {1e20, " 100000000000000000000 "},
        {0.5, " .5 "},
        {-0.5, "-.5 "},
        {0.125, " .125 "},
        {5.0 / 60, " .08333334 "}, // rounded to a float first
        {0.00000012, " .00000012 "},
        {1234.56789, " 1234.568 "},
    };
    for (const auto& [value, text] : kRows) {
        EXPECT_EQ(PlotterNumber(value), text) << value;
    }
    EXPECT_EQ(PlotterDigits(-0.5), "-.5");
    EXPECT_EQ(PlotterDigits(3000), "3000");
}

TEST(NumberTextTest, RoundsToPlacesHalfAwayFromZero) {
    struct Row {
        float value;
        int places;
        const char* text;
    };
    constexpr Row kRows[] = {
        {0.5F, 5, "0.5"},         // keeps the zero before the point
        {-0.5F, 5, "-0.5"},       //
        {12.3456F, 3, "12.346"},  //
        {12.3454F, 3, "12.345"},  //
        {2.5F, 0, "3"},           //
        {-2.5F, 0, "-3"},         //
        {0.5F, 0, "1"},           //
        {0.4F, 0, "0"},           //
        {0.04F, 0, "0"},          //
        {-0.04F, 0, "0"},         //
        {999.9996F, 3, "1000"},   //
        {9.99999F, 4, "10"},      //
        {100.005F, 2, "100.01"},  // its seven digits, not its exact value, are rounded
        {100.015F, 2, "100.02"},  //
        {0.00002F, 5, "0.00002"}, //
        {1234567, 0, "1234567"},  //
        {100, 2, "100"},          //
        {1e29F, 3, "1E+29"},      //
    };
    for (const auto& [value, places, text] : kRows) {
        EXPECT_EQ(RoundedToPlaces(value, places), text) << value << " to " << places;
    }
}

TEST(NumberTextTest, NumericValueIsTheLeadingNumber) {
    constexpr double kTooLarge = std::numeric_limits<double>::infinity();
    const std::string zeros(400, '0');
    const std::pair<std::string, double> kRows[] = {
        {"", 0},
        {"   ", 0},
        {"12", 12},
        {"  12.5 ", 12.5},
        {"+12", 12},
        {"-12", -12},
        {"- 12", 0},
        {"+-12", 0},
        {".5", .5},
        {"-.5", -.5},
        {".", 0},
        {"-", 0},
        {"5.", 5},
        {"5.5.5", 5.5},
        {"1,5", 1},
        {"2k2", 2},
        {"12 34", 12},
        {"1E3", 1000},
        {"1e-3", .001},
        {"1E+3", 1000},
        {"1E", 1},
        {"1E-", 1},
        {"E5", 0},
        {"\t5", 0}, // blanks only are skipped
        {"abc", 0},
        {"inf", 0},
        {"nan", 0},
        {"-inf", 0},
        {"0x10", 0},
        {"1E9999", kTooLarge},
        {"-1E9999", -kTooLarge},
        {"1" + zeros, kTooLarge},
        {"0.1E9999", kTooLarge},
        {"1E-9999", 0},
        {"-1E-9999", 0},
        {"." + zeros + "1", 0},
        {"0." + zeros + "1", 0},
        {"0E9999", 0},
        {"0.0E9999", 0},
    };
    for (const auto& [text, value] : kRows) {
        EXPECT_EQ(NumericValue(text), value) << text;
    }
}

TEST(NumberTextTest, StrictNumberIsTheWholeText) {
    const std::pair<const char*, std::optional<double>> kRows[] = {
        {"255", 255},           //
        {"  255 ", 255},        //
        {"-1.5E2", -150},       //
        {".5", .5},             //
        {"", std::nullopt},     //
        {" ", std::nullopt},    //
        {"red", std::nullopt},  //
        {"255x", std::nullopt}, //
        {"2 5", std::nullopt},  //
        {"1E", std::nullopt},   //
        {"1,5", std::nullopt},  //
        {"-", std::nullopt},    //
        {"inf", std::nullopt},  //
    };
    for (const auto& [text, value] : kRows) {
        EXPECT_EQ(StrictNumber(text), value) << text;
    }
}

template <typename T>
void ExpectStored(double value, T expected) {
    T target = 1;
    StoreNumber(value, target);
    EXPECT_EQ(target, expected) << value;
}

template <typename T>
void ExpectRefused(double value) {
    T target = 1;
    EXPECT_THROW(StoreNumber(value, target), RunTimeError) << value;
    EXPECT_EQ(target, 1) << value;
}

TEST(NumberTextTest, StoresIntegersRoundedToEven) {
    ExpectStored<std::int16_t>(0.5, 0);
    ExpectStored<std::int16_t>(1.5, 2);
    ExpectStored<std::int16_t>(2.5, 2);
    ExpectStored<std::int16_t>(-2.5, -2);
    ExpectStored<std::int32_t>(2.5, 2);
    ExpectStored<std::int32_t>(3.5, 4);
}

TEST(NumberTextTest, RefusesWhatDoesNotFitTheType) {
    ExpectStored<std::int16_t>(32767.4, 32767);
    ExpectStored<std::int16_t>(-32768.5, -32768);
    ExpectRefused<std::int16_t>(32767.5);
    ExpectRefused<std::int16_t>(-32769);
    ExpectStored<std::int32_t>(2147483647.4, 2147483647);
    ExpectStored<std::int32_t>(-2147483648.0, std::numeric_limits<std::int32_t>::min());
    ExpectRefused<std::int32_t>(2147483647.5);
    ExpectRefused<std::int32_t>(-2147483649.0);
    ExpectStored<float>(3.4e38, 3.4e38F);
    ExpectStored<float>(1e-60, 0);
    ExpectRefused<float>(1e39);
    ExpectRefused<float>(-1e39);
    ExpectRefused<float>(double{kInfinity});
    ExpectRefused<std::int16_t>(double{kNaN});
    ExpectRefused<std::int32_t>(double{kNaN});
}

} // namespace
} // namespace vernacle::test
