#include "engine/core/entry.h"

#include <cmath>
#include <numbers>

#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class EntryTest : public EngineTest {};

template <typename T>
T Entered(std::string text, T before = 0) {
    T target = before;
    ParseEntry(text, target);
    return target;
}

struct RangeRow {
    EntryLimits limits;
    const char* unit;
    const char* text;
};

TEST_F(EntryTest, LimitsInWords) {
    const RangeRow rows[] = {
        {{20, 180}, "mm", "20 to 180 mm"},
        {{-200, 200}, "mm", "-200 to 200 mm"},
        {{-4, 4}, "", "-4 to 4"},
        {{0.5, 1.15}, "", "0.5 to 1.15"},
        {{0.7F, 1.1F}, "", "0.7 to 1.1"},
        {{0.1, 360}, "degrees", "0.1 to 360 degrees"},
        {{-100000, 1000000}, "mm", "-100000 to 1000000 mm"},
        {{.lowest = -100}, "mm", "at least -100 mm"},
        {{.highest = 1000000}, "mm", "at most 1000000 mm"},
        {{.lowest = 0, .lowestIsOpen = true}, "mm", "above 0 mm"},
        {{.highest = 5, .highestIsOpen = true}, "", "below 5"},
        {{0.5, 3, true, false}, "mm", "above 0.5, at most 3 mm"},
        {{0, 101, true, true}, "ticmarks", "above 0, below 101 ticmarks"},
        {{0, 8, false, true}, "", "at least 0, below 8"},
        {{}, "mm", ""},
    };
    for (const RangeRow& row : rows) {
        EXPECT_EQ(RangeText(row.limits, row.unit), row.text);
    }
}

TEST_F(EntryTest, LimitsHoldNumbers) {
    constexpr EntryLimits kLimits{-2.5, 10};
    EXPECT_EQ(kLimits.Held(-3.), -2.5);
    EXPECT_EQ(kLimits.Held(-2.5F), -2.5F);
    EXPECT_EQ(kLimits.Held(10.F), 10.F);
    EXPECT_EQ(kLimits.Held(10.5), 10);
    EXPECT_EQ(EntryLimits{}.Held(-1e30), -1e30);
    EXPECT_EQ((EntryLimits{.highest = 1}.Held(1e9F)), 1);
}

TEST_F(EntryTest, AcceptsForgivingNumbers) {
    constexpr std::pair<const char*, float> kRows[] = {
        {"75", 75},
        {"2k2", 2000},
        {"1,5", 1.5F},
        {"+3", 3},
        {"-1e-3", -0.001F},
        {"abc", 0},
        {"m5", 5}, // a unit letter needs something before it
        {"", 0},
        {"    ", 0},
        {"12-3", 123},
        {"12+3", 123},
        {"1.2.3", 1.23F},
        {"1,2", 1.2F},
        {",5", 0.5F},
        {"1,000.5", 1.0005F},
        {"-.5", -0.5F},
        {".", 0},
        {"-", 0},
        {"--5", -5},
        {"-+5", -5},
        {"1 2", 12},
        {"1/2", 12},
        {"$12", 12},
        {"5\u00B5", 5}, // the micro sign is no unit letter
        // exponents
        {"1E", 1},
        {"1E5", 100000},
        {"1e5", 100000},
        {"1E+2", 100},
        {"1E-2", 0.01F},
        {"1E-", 1},
        {"1E5E2", 100000},
        {"1e2e9", 100},
        {"1E2-3", 1e10F}, // 1E23: a sign counts only just behind the E
        {"1E0.2", 100},   // 1E02: no point behind an exponent
        {"E5", 5},
        {"-E5", 0},
        {"1E2k", 100}, // nor a unit
        {"1E2m", 100},
        {"1E-50", 0},
        {"1E-999", 0},
        {"0E9999", 0},
        // unit letters
        {"1k5", 1000},
        {"5K", 5000},
        {"5m", 5 * 0.001F},
        {"5M", 5e6F},
        {"-2k", -2000},
        {"5 m", 5 * 0.001F},
        {"2km", 2000}, // the first ends the number
        {"2k.5", 2000},
        {"2kE3", 2000},
        {"2k-5", 2000},
        {"-k5", 0},
        {".k5", 0},
        // the largest
        {"1E10", 1e10F},
        {"2E10", 1e10F},
        {"-1E10", -1e10F},
        {"-2E10", -1e10F},
        {"99G", 1e10F},
        {"-99G", -1e10F},
        {"3E38", 1e10F},
        {"-3E38", -1e10F},
        {"9E38", 1e10F},
        {"9E99", 1e10F},
        {"-9E99", 1e10F}, // an overflow loses its sign
        {"-9E9999", 1e10F},
    };
    for (const auto& [text, value] : kRows) {
        EXPECT_EQ(Entered<float>(text, 1234), value) << "entry: " << text;
    }
}

TEST_F(EntryTest, MultipliesByTheUnitLetter) {
    const std::pair<std::string, float> kRows[] = {
        {"pP", 1e-12F}, {"nN", 1e-9F}, {"uU", 1e-6F}, {"m", 0.001F},
        {"kK", 1000},   {"M", 1e6F},   {"gG", 1e9F},
    };
    for (const auto& [letters, multiplier] : kRows) {
        for (const char letter : letters) {
            const auto value = static_cast<float>(double{4.7F} * double{multiplier});
            EXPECT_EQ(Entered<float>(std::string("4.7") + letter), value) << letter;
        }
    }
    EXPECT_FLOAT_EQ(Entered<float>("4.7u"), 4.7e-6F);
}

TEST_F(EntryTest, DropsEveryOtherLetter) {
    const std::string letters = "abcdfhijloqrstvwxyzABCDFHIJLOQRSTVWXYZ%&()*/:;<=>?@[]^_{|}~\"'#!";
    for (const char letter : letters) {
        EXPECT_EQ(Entered<float>(std::string("1") + letter + "2"), 12) << letter;
    }
}

TEST_F(EntryTest, IgnoresMoreThanTenCharacters) {
    const std::pair<std::string, float> kRows[] = {
        {"1234567890", 1234567890.0F},
        {"12345678901", 8},
        {"  75", 75},
        {"75  ", 75},
        {"        75", 75},
        {"         75", 8},
        {"      75     ", 8},
        {"           ", 8},
        // characters, not bytes
        {"7\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5", 7},
        {"7\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5\u00B5", 8},
    };
    for (const auto& [text, value] : kRows) {
        EXPECT_EQ(Entered<float>(text, 8), value) << "entry: " << text;
    }
}

TEST_F(EntryTest, TrimsTheTextThatItReads) {
    std::string text = "  7 5  ";
    float value = 0;
    ParseEntry(text, value);
    EXPECT_EQ(text, "7 5");
    text = "   75      ";
    ParseEntry(text, value);
    EXPECT_EQ(text, "   75      ");
}

TEST_F(EntryTest, RoundsForAShortIntegerAndHoldsIt) {
    constexpr std::pair<const char*, int> kRows[] = {
        {"7", 7},
        {"-7", -7},
        {"0.5", 0},
        {"1.5", 2},
        {"2.5", 2},
        {"-2.5", -2},
        {"2.6", 3},
        {"1k", 1000},
        {"32767", 32767},
        {"32767.4", 32767},
        {"32767.6", 32767},
        {"32768", 32767},
        {"99999", 32767},
        {"-32768", -32768},
        {"-32769", 32767},
        {"-99999", 32767},
        {"9E99", 32767},
        {"-9E99", 32767},
        {"", 0},
        {"12345678901", 5},
    };
    for (const auto& [text, value] : kRows) {
        EXPECT_EQ(Entered<std::int16_t>(text, 5), value) << "entry: " << text;
    }
}

TEST_F(EntryTest, RoundsForALongIntegerAndHoldsIt) {
    constexpr std::pair<const char*, std::int32_t> kRows[] = {
        {"16777215", 16777215}, // every colour passes the float on the way
        {"-16777215", -16777215}, {"2.5", 2},           {"3.5", 4},
        {"99999", 99999},         {"1E9", 1000000000},  {"3E9", 2147483647},
        {"-3E9", 2147483647},     {"1E10", 2147483647}, {"9E99", 2147483647},
    };
    for (const auto& [text, value] : kRows) {
        EXPECT_EQ(Entered<std::int32_t>(text, 5), value) << "entry: " << text;
    }
}

TEST_F(EntryTest, NeverSpeaks) {
    Entered<float>("9E99");
    Entered<std::int16_t>("99999");
    Entered<float>("rubbish");
    EXPECT_TRUE(said.empty());
}

TEST_F(EntryTest, FormatsByMagnitude) {
    constexpr std::pair<double, const char*> kRows[] = {
        // thousand millions and millions
        {1e9, "1G"},
        {2.5e9, "2.5G"},
        {-2.5e9, "-2.5G"},
        {1234567890, "1.235G"},
        {1.2345e9, "1.235G"},
        {1.2344e9, "1.234G"},
        {12.5e9, "12.5G"},
        {123456e9, "123456G"},
        {999999999, "1000M"},
        {1e6, "1M"},
        {1.5e6, "1.5M"},
        {2.5e6, "2.5M"},
        {-1.5e6, "-1.5M"},
        {12345678, "12.346M"},
        // whole numbers
        {999999, "999999"},
        {999999.6, "1000000"},
        {1000, "1000"},
        {1234.56, "1235"},
        {1234.5, "1235"},
        {1234.4, "1234"},
        {-1234.5, "-1235"},
        {1500, "1500"},
        // two places
        {999.999, "1000"},
        {123.456, "123.46"},
        {123.454, "123.45"},
        {100.005, "100.01"},
        {100, "100"},
        {-100.5, "-100.5"},
        // three
        {99.9999, "100"},
        {99.9994, "99.999"},
        {12.3456, "12.346"},
        {12.5, "12.5"},
        {10, "10"},
        // four
        {9.99999, "10"},
        {9.99994, "9.9999"},
        {1.23456, "1.2346"},
        {1, "1"},
        {-1, "-1"},
        // five, where a leading zero is dropped unless a sign stands before it
        {0.999999, "1"},
        {0.999994, ".99999"},
        {0.5, ".5"},
        {-0.5, "-0.5"},
        {0.123456, ".12346"},
        {-0.123454, "-0.12345"},
        {0.00002, ".00002"},
        {-0.00002, "-0.00002"},
        {0.000015, ".00002"},
        {0.0000101, ".00001"},
        // zero
        {0.00001, "0"},
        {-0.00001, "0"},
        {0.000001, "0"},
        {0, "0"},
        {-0.0, "0"},
    };
    for (const auto& [value, text] : kRows) {
        std::string result = "old";
        FormatByMagnitude(value, result);
        EXPECT_EQ(result, text) << value;
    }
}

TEST_F(EntryTest, FormatsTheLargestFloatInExponentForm) {
    std::string result;
    FormatByMagnitude(1e38, result);
    EXPECT_EQ(result, "1E+29G");
}

struct EntryTextRow {
    float value;
    const char* text;
};

// What a page shows is what the entry takes, as far as ten characters go.
TEST_F(EntryTest, EntryTextsAreReadInFull) {
    const EntryTextRow rows[] = {
        {0, "0"},
        {-0.F, "0"},
        {1, "1"},
        {0.5F, ".5"},
        {-0.5F, "-.5"},
        {0.0333333351F, ".033333335"},
        {100, "100"},
        {1e-12F, "0"},
        {0.1234567F, ".1234567"},
        {1234567, "1234567"},
        {1e10F, "10G"},
        {-0.123456789F, "-.12345679"},
        {2.5F, "2.5"},
        {12345.678F, "12345.678"},
    };
    for (const EntryTextRow& row : rows) {
        std::string text = EntryText(row.value);
        EXPECT_EQ(text, row.text);
        EXPECT_FALSE(IsTooLongForEntry(text));
        float read = 77;
        ParseEntry(text, read);
        EXPECT_NEAR(read, row.value, std::abs(double{row.value}) * 1e-6 + 1e-9) << text;
    }
}

TEST_F(EntryTest, ArcSinIsHeldShortOfARightAngle) {
    struct Row {
        double x;
        double held;
        const char* trace;
    };
    constexpr Row kRows[] = {
        {0, 0, "In ArcSin, X=0"},
        {0.5, 0.5, "In ArcSin, X=.5"},
        {-0.5, -0.5, "In ArcSin, X=-.5"},
        {0.999999, 0.999999, "In ArcSin, X=.999999"},
        {0.9999995, 0.999999, "In ArcSin, X=.9999995"},
        {1, 0.999999, "In ArcSin, X=1"},
        {-1, -0.999999, "In ArcSin, X=-1"},
        {2, 0.999999, "In ArcSin, X=2"},
        {-1e20, -0.999999, "In ArcSin, X=-1E+20"},
    };
    EXPECT_EQ(LastStepTrace.Text(), "");
    for (const auto& [x, held, trace] : kRows) {
        double argument = x;
        const double angle = ArcSin(argument);
        EXPECT_NEAR(angle, std::asin(held), 1e-9) << x;
        EXPECT_LT(std::fabs(angle), std::numbers::pi / 2) << x;
        EXPECT_EQ(argument, held) << x;
        EXPECT_EQ(LastStepTrace.Text(), trace);
    }
    double half = 0.5;
    EXPECT_NEAR(ArcSin(half), std::numbers::pi / 6, 1e-15);
}

TEST_F(EntryTest, ArcSinNeverFails) {
    double x = 1e300;
    EXPECT_NO_THROW(ArcSin(x));
    EXPECT_EQ(x, 0.999999);
}

TEST_F(EntryTest, DelayServesEventsOnceAndSpinsToItsTarget) {
    std::string steps;
    double clock = 10;
    Host.clockSeconds = [&] { return clock; };
    Host.servePendingEvents = [&] { steps += "events "; };
    Host.pause = [&] {
        steps += "pause ";
        clock += 0.25;
    };
    Delay(1);
    EXPECT_EQ(steps, "events pause pause pause pause ");
    EXPECT_EQ(clock, 11);

    steps.clear();
    Delay(0);
    EXPECT_EQ(steps, "events ");
}

TEST_F(EntryTest, DelayCountsTheTimeThatItsEventsTake) {
    int pauses = 0;
    double clock = 10;
    Host.clockSeconds = [&] { return clock; };
    Host.servePendingEvents = [&] { clock += 3; };
    Host.pause = [&] { ++pauses; };
    Delay(2);
    EXPECT_EQ(pauses, 0);
}

} // namespace
} // namespace vernacle::test
