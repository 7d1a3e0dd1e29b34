// The fourteen measures of the plate page: their parts, limits and arrows.
#include <cmath>

#include "desktop/pages/platetest.h"
#include "engine/base/numbertext.h"

namespace vernacle::test {
namespace {

class PlateEntriesTest : public PlateTest {
protected:
    void ExpectHeld(const Measure& measure, double typed, double held) const {
        const std::string text = PlainNumber(static_cast<float>(typed));
        TypeIn(measure, text);
        EXPECT_EQ(measure.Value(), static_cast<float>(held)) << "typed " << text;
        EXPECT_EQ(TextOf(measure.Named("txt")), text) << "the box keeps what was typed";
    }

    // Steps the arrows from that text.
    void ExpectStep(const Measure& measure, double from, bool up, double to) const {
        const std::string start = PlainNumber(static_cast<float>(from));
        TypeIn(measure, start);
        const std::string arrows = measure.Named("UpDown");
        up ? StepUp(arrows) : StepDown(arrows);
        EXPECT_EQ(TextOf(measure.Named("txt")), PlainNumber(static_cast<float>(to)))
            << (up ? "up" : "down") << " from " << start;
        const double held = std::clamp(to, measure.lowest, measure.highest);
        EXPECT_EQ(measure.Value(), static_cast<float>(held));
    }
};

// A little, but enough to be seen in a 32-bit float.
double Beside(double limit) {
    return std::fabs(limit) < 1000 ? 0.05 : 1;
}

TEST_F(PlateEntriesTest, EachMeasureHasCaptionBoxArrowsAndIllustrationButton) {
    OpenPlate();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        EXPECT_EQ(Find<QLabel>(measure.Named("lbl")).text(), QLatin1String(measure.caption));
        EXPECT_EQ(Find<QLabel>(measure.Named("lbl")).buddy(), &Box(measure.Named("txt")));
        EXPECT_EQ(Find<QPushButton>(measure.Named("cmd")).text(), QLatin1String("H"));
        EXPECT_EQ(Box(measure.Named("txt")).accessibleName(), QLatin1String(measure.caption));
        for (const char* prefix : {"lbl", "txt", "UpDown", "cmd"}) {
            EXPECT_TRUE(Find(measure.Named(prefix)).isEnabled()) << prefix;
            EXPECT_TRUE(Find(measure.Named(prefix)).isVisible()) << prefix;
            const bool named = !Find(measure.Named(prefix)).accessibleName().isEmpty() ||
                               prefix == std::string("lbl");
            EXPECT_TRUE(named) << prefix;
        }
    }
    EXPECT_EQ(Page().findChildren<EntryBox*>().size(), std::ssize(kMeasures));
}

TEST_F(PlateEntriesTest, TypedValueIsHeldToItsLimitsAndItsBoxIsNotRewritten) {
    OpenPlate();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        const double low = Beside(measure.lowest);
        const double high = Beside(measure.highest);
        if (measure.lowest > kNone) {
            ExpectHeld(measure, measure.lowest - low, measure.lowest);
            ExpectHeld(measure, measure.lowest, measure.lowest);
            ExpectHeld(measure, measure.lowest + low, measure.lowest + low);
        }
        ExpectHeld(measure, measure.highest - high, measure.highest - high);
        ExpectHeld(measure, measure.highest, measure.highest);
        ExpectHeld(measure, measure.highest + high, measure.highest);
    }
}

TEST_F(PlateEntriesTest, OffsetHasNoLowerLimit) {
    OpenPlate();
    const Measure& offset = MeasureOf("ActualVirtualOffset");
    ExpectHeld(offset, -0.5, -0.5);
    ExpectHeld(offset, -2000000, -2000000);
    TypeIn(offset, "-9E9");
    EXPECT_EQ(Design.ActualVirtualOffset, -9e9F);
}

TEST_F(PlateEntriesTest, NoRuleHoldsBetweenTheMeasures) {
    OpenPlate();
    Type("txtMajorTicLength", "2");
    Type("txtMinorTicLength", "9");
    Type("txtMajorTicWidth", "1");
    Type("txtMinorTicWidth", "20");
    Type("txtPlateWidth", "20");
    Type("txtHoleSeparation", "180");
    EXPECT_EQ(Design.MajorTicLength, 2);
    EXPECT_EQ(Design.MinorTicLength, 9);
    EXPECT_EQ(Design.MajorTicWidth, 1);
    EXPECT_EQ(Design.MinorTicWidth, 20);
    EXPECT_EQ(Design.PlateWidth, 20);
    EXPECT_EQ(Design.HoleSeparation, 180);
}

TEST_F(PlateEntriesTest, ArrowsStepByOneInsideTheirRange) {
    OpenPlate();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        const double first = measure.arrowsLowest;
        const double last = measure.arrowsHighest;
        ExpectStep(measure, first, true, first + 1);
        ExpectStep(measure, first + 1, false, first);
        ExpectStep(measure, first, false, first);
        ExpectStep(measure, last - 1, true, last);
        ExpectStep(measure, last, true, last);
        ExpectStep(measure, last, false, last - 1);
    }
}

TEST_F(PlateEntriesTest, ArrowsJumpIntoTheirRangeFromOutside) {
    OpenPlate();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        for (const bool up : {true, false}) {
            ExpectStep(measure, measure.arrowsLowest - 20, up, measure.arrowsLowest);
            ExpectStep(measure, measure.arrowsHighest + 20, up, measure.arrowsHighest);
        }
    }
}

TEST_F(PlateEntriesTest, MajorTicWidthIsTypedTo15AndStepsBackIntoItsArrows) {
    OpenPlate();
    Type("txtMajorTicWidth", "15");
    EXPECT_EQ(Design.MajorTicWidth, 15);
    StepUp("UpDownMajorTicWidth");
    EXPECT_EQ(TextOf("txtMajorTicWidth"), "10");
    EXPECT_EQ(Design.MajorTicWidth, 10);
    Type("txtMajorTicWidth", "1");
    StepDown("UpDownMajorTicWidth");
    EXPECT_EQ(TextOf("txtMajorTicWidth"), "0");
    EXPECT_EQ(Design.MajorTicWidth, 1);
}

TEST_F(PlateEntriesTest, OffsetOfArrowsBeginsAtZero) {
    OpenPlate();
    Type("txtActualVirtualOffset", "-30");
    EXPECT_EQ(Design.ActualVirtualOffset, -30);
    StepDown("UpDownActualVirtualOffset");
    EXPECT_EQ(TextOf("txtActualVirtualOffset"), "0");
    EXPECT_EQ(Design.ActualVirtualOffset, 0);
}

TEST_F(PlateEntriesTest, FractionsStepByOneAndKeepTheirFraction) {
    OpenPlate();
    Type("txtArcWidth", "2.5");
    StepUp("UpDownArcWidth");
    EXPECT_EQ(TextOf("txtArcWidth"), "3.5");
    EXPECT_EQ(Design.ArcWidth, 3.5F);
}

TEST_F(PlateEntriesTest, ArrowsStepFromWhatTheBoxShowsNotFromTheDesign) {
    OpenPlate();
    Type("txtPlateWidth", "200");
    StepDown("UpDownPlateWidth");
    EXPECT_EQ(TextOf("txtPlateWidth"), "180");
    Type("txtPlateWidth", "");
    StepUp("UpDownPlateWidth");
    EXPECT_EQ(TextOf("txtPlateWidth"), "20");
}

TEST_F(PlateEntriesTest, ArrowKeysStepTheBoxThatHasThem) {
    OpenPlate();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        TypeIn(measure, "8");
        QTest::keyClick(&Box(measure.Named("txt")), Qt::Key_Up);
        const float up = measure.stem == std::string("PlateWidth") ? 20 : // from outside
                             measure.stem == std::string("PlateHeight") ? 10
                                                                        : 9;
        EXPECT_EQ(measure.Value(), up);
        TypeIn(measure, "16");
        QTest::keyClick(&Box(measure.Named("txt")), Qt::Key_Down);
        EXPECT_EQ(measure.Value(), std::clamp(15.0, measure.arrowsLowest, measure.arrowsHighest));
        ExpectIllustrated(measure);
    }
}

TEST_F(PlateEntriesTest, EachKeystrokeRedrawsTheSchematicOfItsMeasure) {
    OpenPlate();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        EntryBox& box = Box(measure.Named("txt"));
        box.setFocus();
        for (const auto& [key, name] : {std::pair(Qt::Key_7, "digit"), std::pair(Qt::Key_X, "x"),
                                        std::pair(Qt::Key_Backspace, "backspace")}) {
            SCOPED_TRACE(name);
            Design.HelpTopic = 0;
            WipeSchematic();
            QTest::keyClick(&box, key);
            ExpectIllustrated(measure);
        }
    }
}

TEST_F(PlateEntriesTest, ArrowsRedrawTheSchematicOfTheirMeasure) {
    OpenPlate();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        TypeIn(measure, "5");
        Design.HelpTopic = 0;
        WipeSchematic();
        StepUp(measure.Named("UpDown"));
        ExpectIllustrated(measure);
    }
}

TEST_F(PlateEntriesTest, IllustrationButtonShowsTheMeasureAndLeavesTheValue) {
    OpenPlate();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        TypeIn(measure, "99");
        const float held = measure.Value();
        measure.Value() = 3.25F; // would not stay if the box were read again
        Design.HelpTopic = 0;
        WipeSchematic();
        Click(measure.Named("cmd"));
        ExpectIllustrated(measure);
        EXPECT_EQ(measure.Value(), 3.25F);
        EXPECT_EQ(TextOf(measure.Named("txt")), "99");
        measure.Value() = held;
    }
}

TEST_F(PlateEntriesTest, SchematicIsTheGreyModelPlateWhateverTheDesign) {
    OpenPlate();
    Click("cmdPlateWidth");
    const Strings before = ShownSchematic();
    Type("txtPlateWidth", "60");
    Type("txtPointerDeflection", "270");
    Click("cmdPlateWidth");
    EXPECT_EQ(ShownSchematic(), before);
    const Strings texts = TextsOf("picSchematic");
    for (const char* sample : {"VOLTS", "HarrowgateSoftware", "30"}) {
        EXPECT_NE(std::find(texts.begin(), texts.end(), sample), texts.end()) << sample;
    }
    const bool grey = std::any_of(before.begin(), before.end(), [](const std::string& call) {
        return call.starts_with("FilledBox") && call.ends_with(" c0ccd0");
    });
    EXPECT_TRUE(grey);
}

struct TypedText {
    const char* name;
    const char* text;
    float held; // by the arc's thickness, which was 7 before
};

class PlateTextsTest : public PlateTest, public ::testing::WithParamInterface<TypedText> {};

TEST_P(PlateTextsTest, TextBecomesANumberInsideTheLimits) {
    OpenPlate();
    Type("txtArcWidth", "7");
    Paste("txtArcWidth", GetParam().text);
    EXPECT_EQ(Design.ArcWidth, GetParam().held);
    EXPECT_EQ(TextOf("txtArcWidth"), GetParam().text);
    EXPECT_EQ(Design.HelpTopic, 25);
    EXPECT_TRUE(said.empty());
}

constexpr TypedText kTexts[] = {
    {"Nothing", "", 0.5F},
    {"Blank", " ", 0.5F},
    {"Letters", "abc", 0.5F},
    {"Umlauts", "\xC3\xA4\xC3\xB6\xC3\xBC", 0.5F},
    {"BlanksAround", "  12  ", 12},
    {"DecimalPoint", "2.5", 2.5F},
    {"DecimalComma", "2,5", 2.5F},
    {"TwoPoints", "1.2.3", 1.23F},
    {"SignInside", "1-2", 12},
    {"Negative", "-3", 0.5F},
    {"Plus", "+3", 3},
    {"Exponent", "5E-1", 0.5F},
    {"Kilo", "2k", 20},
    {"Milli", "5000m", 5},
    {"Overflow", "9E99", 20},
    {"TenDigits", "9999999999", 20},
    {"TenCharacters", "0000000012", 12},
    {"ElevenCharacters", "00000000012", 7},
    {"ElevenWithBlanks", "12         ", 7},
    {"ManyCharacters", "1234567890123456789012345678901234567890", 7},
};

INSTANTIATE_TEST_SUITE_P(Texts, PlateTextsTest, ::testing::ValuesIn(kTexts),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(PlateEntriesTest, ErasedBoxesShowNothingWhileTheDesignHoldsTheMinimum) {
    OpenPlate();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        TypeIn(measure, "");
        EXPECT_EQ(TextOf(measure.Named("txt")), "");
        const double held = std::max(measure.lowest, 0.0);
        EXPECT_EQ(measure.Value(), static_cast<float>(held));
    }
    EXPECT_EQ(Design.PlateWidth, 20);
    EXPECT_EQ(Design.PlateHeight, 10);
}

TEST_F(PlateEntriesTest, ValueStaysWhereAnEntryPassesTenCharacters) {
    OpenPlate();
    Type("txtBottomToHoles", "12.3400000");
    EXPECT_EQ(Design.BottomToHoles, 12.34F);
    QTest::keyClicks(&Box("txtBottomToHoles"), QStringLiteral("99"));
    EXPECT_EQ(Design.BottomToHoles, 12.34F);
}

TEST_F(PlateEntriesTest, LimitsHoldAlsoWhereTheTextIsTooLongToBeRead) {
    OpenPlate();
    Design.PlateWidth = 500;
    Paste("txtPlateWidth", "00000000075");
    EXPECT_EQ(Design.PlateWidth, 180);
}

} // namespace
} // namespace vernacle::test
