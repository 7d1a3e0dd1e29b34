// The numeric entries of the scales page: their parts, limits and arrows, what is typed into them,
// and the redraw that follows.
#include <algorithm>

#include "desktop/pages/scalestest.h"

namespace vernacle::test {
namespace {

class ScalesEntriesTest : public ScalesTest {
protected:
    void ExpectHeld(const ScaleEntry& entry, const std::string& typed, double held) const {
        Type(entry.Box(), typed);
        EXPECT_EQ(entry.Value(), double{static_cast<float>(held)}) << "typed " << typed;
        EXPECT_EQ(TextOf(entry.Box()), typed) << "the box keeps what was typed";
    }

    void ExpectHeld(const ScaleEntry& entry, double typed, double held) const {
        ExpectHeld(entry, PlainNumber(static_cast<float>(typed)), held);
    }

    // Steps the arrows, by the button or by its key, from that number.
    void ExpectStep(const ScaleEntry& entry, double from, bool up, double to) const {
        const std::string start = PlainNumber(static_cast<float>(from));
        const std::string end = PlainNumber(static_cast<float>(to));
        const double held = std::clamp(to, entry.lowest, entry.highest);
        for (const bool byKey : {false, true}) {
            Type(entry.Box(), start);
            if (byKey) {
                QTest::keyClick(&Box(entry.Box()), up ? Qt::Key_Up : Qt::Key_Down);
            } else {
                up ? StepUp(entry.arrows) : StepDown(entry.arrows);
            }
            EXPECT_EQ(TextOf(entry.Box()), end) << (up ? "up" : "down") << " from " << start;
            EXPECT_EQ(entry.Value(), held) << (up ? "up" : "down") << " from " << start;
        }
    }
};

TEST_F(ScalesEntriesTest, EachHasCaptionBoxAndArrows) {
    OpenScales();
    for (const ScaleEntry& entry : kScaleEntries) {
        SCOPED_TRACE(entry.stem);
        EXPECT_EQ(Find<QLabel>(entry.Label()).text(), QLatin1String(entry.caption));
        EXPECT_EQ(Find<QLabel>(entry.Label()).buddy(), &Box(entry.Box()));
        EXPECT_EQ(Box(entry.Box()).accessibleName(), QLatin1String(entry.caption));
        for (const std::string& control : {entry.Label(), entry.Box()}) {
            EXPECT_TRUE(IsEnabled(control)) << control;
            EXPECT_TRUE(Find(control).isVisible()) << control;
        }
        if (entry.arrows) {
            EXPECT_TRUE(IsEnabled(entry.arrows));
            EXPECT_TRUE(Find(entry.arrows).isVisible());
            EXPECT_EQ(Find(entry.arrows).accessibleName(), QLatin1String(entry.caption));
        }
    }
}

TEST_F(ScalesEntriesTest, OtherEntriesHaveTheirCaptions) {
    OpenScales();
    const std::pair<const char*, const char*> rows[] = {
        {"LinearityExponent", "Linearity exponent"},
        {"RelFontsize", "Relative fontsize:"},
        {"ScaleTitle", "Scale title:"},
    };
    for (const auto& [stem, caption] : rows) {
        const std::string box = std::string("txt") + stem;
        EXPECT_EQ(Find<QLabel>(std::string("lbl") + stem).text(), QLatin1String(caption));
        EXPECT_EQ(Find<QLabel>(std::string("lbl") + stem).buddy(), &Box(box));
        EXPECT_EQ(Box(box).accessibleName(), QLatin1String(caption));
        EXPECT_TRUE(Find(box).isVisible()) << box;
    }
    EXPECT_FALSE(Find("txtRelFontSizeUpDown").isVisible());
    EXPECT_EQ(Page().findChildren<EntryBox*>().size(), std::ssize(kScaleEntries) + 4);
}

TEST_F(ScalesEntriesTest, TypedValueIsHeldToItsLimitsAndItsBoxIsNotRewritten) {
    OpenScales();
    for (const ScaleEntry& entry : kScaleEntries) {
        SCOPED_TRACE(entry.stem);
        if (entry.lowest == -kLargest) {
            continue;
        }
        ExpectHeld(entry, entry.lowest - 1, entry.lowest);
        ExpectHeld(entry, entry.lowest, entry.lowest);
        ExpectHeld(entry, entry.lowest + 1, entry.lowest + 1);
        ExpectHeld(entry, entry.highest - 1, entry.highest - 1);
        ExpectHeld(entry, entry.highest, entry.highest);
        ExpectHeld(entry, entry.highest + 1, entry.highest);
        ExpectHeld(entry, entry.highest + 10000, entry.highest);
        ExpectHeld(entry, entry.lowest - 10000, entry.lowest);
    }
}

TEST_F(ScalesEntriesTest, RangeInUnitsHasNoLimits) {
    OpenScales();
    for (const char* stem : {"ScaleLeftEnd", "ScaleLength"}) {
        ExpectHeld(EntryOf(stem), "-9E9", -9e9);
        ExpectHeld(EntryOf(stem), "-0.001", -0.001);
        ExpectHeld(EntryOf(stem), "0", 0);
        ExpectHeld(EntryOf(stem), "9E9", 9e9);
        ExpectHeld(EntryOf(stem), "9E20", kLargest); // that an entry is held to anyway
        ExpectHeld(EntryOf(stem), "-9E20", -kLargest);
    }
}

TEST_F(ScalesEntriesTest, FractionsOfMillimetresAreKept) {
    OpenScales();
    ExpectHeld(EntryOf("BottomToScaleCeiling"), "199.95", 199.95);
    ExpectHeld(EntryOf("BottomToScaleCeiling"), "-200.05", -200);
    ExpectHeld(EntryOf("BottomToTitle"), "-.25", -0.25);
    ExpectHeld(EntryOf("BottomToTitle"), "200.05", 200);
    ExpectHeld(EntryOf("Offset"), "-0.05", 0);
    ExpectHeld(EntryOf("Offset"), "0.05", 0.05);
    ExpectHeld(EntryOf("Offset"), "1000.5", 1000);
}

TEST_F(ScalesEntriesTest, ArrowsStepByOneAndStopAtTheirEnds) {
    OpenScales();
    for (const ScaleEntry& entry : kScaleEntries) {
        SCOPED_TRACE(entry.stem);
        if (!entry.arrows) {
            continue;
        }
        ExpectStep(entry, entry.arrowsLowest, true, entry.arrowsLowest + 1);
        ExpectStep(entry, entry.arrowsLowest + 1, false, entry.arrowsLowest);
        ExpectStep(entry, entry.arrowsLowest, false, entry.arrowsLowest);
        ExpectStep(entry, entry.arrowsHighest - 1, true, entry.arrowsHighest);
        ExpectStep(entry, entry.arrowsHighest, true, entry.arrowsHighest);
        ExpectStep(entry, entry.arrowsHighest, false, entry.arrowsHighest - 1);
    }
}

TEST_F(ScalesEntriesTest, ArrowsJumpIntoTheirRangeFromOutside) {
    OpenScales();
    for (const ScaleEntry& entry : kScaleEntries) {
        SCOPED_TRACE(entry.stem);
        if (!entry.arrows) {
            continue;
        }
        for (const bool up : {true, false}) {
            ExpectStep(entry, entry.arrowsLowest - 20, up, entry.arrowsLowest);
            ExpectStep(entry, entry.arrowsHighest + 20, up, entry.arrowsHighest);
        }
    }
}

TEST_F(ScalesEntriesTest, LeftEndLengthAndExponentHaveNoArrows) {
    OpenScales();
    Enable("txtLinearityExponent");
    for (const char* box : {"txtScaleLeftEnd", "txtScaleLength", "txtLinearityExponent"}) {
        Type(box, "2");
        QTest::keyClick(&Box(box), Qt::Key_Up);
        EXPECT_EQ(TextOf(box), "2");
    }
}

TEST_F(ScalesEntriesTest, ArrowsReachWhatTheEntryLimits) {
    OpenScales();
    ExpectStep(EntryOf("NumberOfTics"), 1, false, 0);
    EXPECT_EQ(Design.NrOfTicmarks[1], 1);
    ExpectStep(EntryOf("Offset"), 1000, true, 1001);
    EXPECT_EQ(Design.ActualVirtualOffset, 1000);
}

TEST_F(ScalesEntriesTest, ArrowsStepFromTheNumberThatTheTextBeginsWith) {
    OpenScales();
    Type("txtNumberOfTics", "abc");
    StepUp("UpDown3");
    EXPECT_EQ(TextOf("txtNumberOfTics"), "1");
    Type("txtNumberOfTics", "12.5 tics");
    StepDown("UpDown3");
    EXPECT_EQ(TextOf("txtNumberOfTics"), "11.5");
    EXPECT_EQ(Design.NrOfTicmarks[1], 12);
}

struct Typed {
    const char* text;
    double value;
};

TEST_F(ScalesEntriesTest, FractionalEntryReadsForgivingly) {
    // clang-format off
    constexpr Typed kRows[] = {
        {"", 0}, {"abc", 0}, {"-", 0}, {"1,5", 1.5}, {",5", 0.5}, {"1.2.3", 1.23}, {"2k2", 2000},
        {"5m", 5 * double{0.001F}}, {"5M", 5e6}, {"4.7u", 4.7e-6}, {"+3", 3}, {"-1e-3", -0.001}, {"12-3", 123},
        {"1E5E2", 1e5}, {"1E", 1}, {"E5", 5}, {"m5", 5}, {"9E99", kLargest}, {"  75  ", 75},
        {"1234567890", 1234567890}, {"\xC2\xB5 7 \xC2\xB5", 7},
    };
    // clang-format on
    OpenScales();
    for (const Typed& row : kRows) {
        ExpectHeld(EntryOf("ScaleLeftEnd"), row.text, row.value);
    }
}

TEST_F(ScalesEntriesTest, CountsRoundToTheNearestAndOverflowToTheLargest) {
    constexpr Typed kRows[] = {
        {"", 1},      {"abc", 1},     {"0.4", 1},      {"1.5", 2},     {"2.5", 2},
        {"3.5", 4},   {"360.4", 360}, {"99999", 360},  {"9E99", 360},  {"2k", 360},
        {"1,6", 2},   {"-5", 1},      {"32767", 360},  {"32768", 360}, {"-32768", 1},
        {"  12", 12}, {"1e1", 10},    {"00000007", 7}, {"7 tics", 7},
    };
    OpenScales();
    for (const char* stem : {"NumberOfTics", "MajorTicsEveryHowMany", "LabelsEveryHowMany"}) {
        for (const Typed& row : kRows) {
            SCOPED_TRACE(stem);
            ExpectHeld(EntryOf(stem), row.text, row.value);
        }
    }
}

TEST_F(ScalesEntriesTest, TooLongTextLeavesTheValue) {
    OpenScales();
    for (const ScaleEntry& entry : kScaleEntries) {
        SCOPED_TRACE(entry.stem);
        Type(entry.Box(), "17");
        for (const std::string& text :
             {std::string("00000000019"), std::string("   19      "), std::string(100000, '9')}) {
            Paste(entry.Box(), text);
            EXPECT_EQ(entry.Value(), 17) << text.size() << " characters";
        }
        Paste(entry.Box(), "0000000019"); // ten characters are read
        EXPECT_EQ(entry.Value(), 19);
    }
}

TEST_F(ScalesEntriesTest, TooLongTextStillAppliesTheLimitsAndRedraws) {
    OpenScales();
    Design.BottomToTitle[1] = 777;
    Spoil();
    Paste("txtBottomToTitle", "12345678901");
    EXPECT_EQ(Design.BottomToTitle[1], 200);
    ExpectRedrawn();
}

TEST_F(ScalesEntriesTest, EachGoesToTheActiveScaleAlone) {
    Design.ActiveScale = 2;
    OpenScales(3);
    for (const ScaleEntry& entry : kScaleEntries) {
        SCOPED_TRACE(entry.stem);
        const bool perScale = entry.stem != std::string("Offset");
        const double before[] = {entry.Value(1), entry.Value(3)};
        Type(entry.Box(), "41");
        EXPECT_EQ(entry.Value(2), 41);
        if (perScale) {
            EXPECT_EQ(entry.Value(1), before[0]);
            EXPECT_EQ(entry.Value(3), before[1]);
        }
    }
}

TEST_F(ScalesEntriesTest, EachChangeRecomputesTheTablesAndDrawsTheWholePlate) {
    OpenScales(2);
    for (const ScaleEntry& entry : kScaleEntries) {
        SCOPED_TRACE(entry.stem);
        const Strings before = ShownPlate();
        Spoil();
        Paste(entry.Box(), "23");
        ExpectRedrawn();
        EXPECT_NE(ShownPlate(), before);
    }
    for (const char* box : {"txtRelFontsize", "txtScaleTitle", "txtRelFontSizeUpDown"}) {
        SCOPED_TRACE(box);
        Spoil();
        Paste(box, "1.25");
        ExpectRedrawn();
    }
}

TEST_F(ScalesEntriesTest, EveryKeystrokeRedraws) {
    OpenScales();
    Type("txtNumberOfTics", "");
    EXPECT_EQ(Design.NrOfTicmarks[1], 1);
    const std::pair<char, int> keys[] = {{'3', 3}, {'6', 36}, {'0', 360}, {'0', 360}};
    for (const auto& [key, tics] : keys) {
        Spoil();
        QTest::keyClick(&Box("txtNumberOfTics"), key);
        EXPECT_EQ(Design.NrOfTicmarks[1], tics);
        ExpectRedrawn();
    }
    EXPECT_EQ(TextOf("txtNumberOfTics"), "3600");
}

TEST_F(ScalesEntriesTest, TypedRangeComesOutInTheLabels) {
    OpenScales();
    Type("txtScaleLeftEnd", "-10");
    Type("txtScaleLength", "20");
    Type("txtNumberOfTics", "20");
    Type("txtLabelsEveryHowMany", "10");
    Type("txtScaleTitle", "Volts");
    EXPECT_EQ(TextsOf("picPlate"), (Strings{"-10", "0", "10", "Volts"}));
}

} // namespace
} // namespace vernacle::test
