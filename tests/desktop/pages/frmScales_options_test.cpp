// The options of the scales page: selecting a scale with all that it changes, and the two switches
// of tics and arcs.
#include "desktop/pages/scalestest.h"

namespace vernacle::test {
namespace {

constexpr std::int32_t kGreen = 0x00FF00;

constexpr std::initializer_list<const char*> kSizeControls = {"lblRelFontsize", "txtRelFontsize",
                                                              "txtRelFontSizeUpDown", "UpDown6"};

constexpr std::initializer_list<const char*> kStandardEntries = {
    "lblScaleLeftEnd",
    "txtScaleLeftEnd",
    "lblScaleLength",
    "txtScaleLength",
    "lblNumberOfTics",
    "txtNumberOfTics",
    "lblMajorTicsEveryHowMany",
    "txtMajorTicsEveryHowMany",
    "lblLabelsEveryHowMany",
    "txtLabelsEveryHowMany",
    "UpDown3",
    "UpDown4",
    "UpDown5",
};

std::string OptionOf(int scale) {
    return "Option" + std::to_string(scale);
}

class ScalesOptionsTest : public ScalesTest {
protected:
    std::size_t CountOf(const std::string& call) const {
        return Recorded(Picture("picPlate")).Count(call);
    }
};

TEST_F(ScalesOptionsTest, CaptionsTipsAndFrames) {
    OpenScales(6);
    for (int scale = 1; scale <= kScales; ++scale) {
        const QString number = QString::number(scale);
        EXPECT_EQ(Option(OptionOf(scale)).text(), number);
        EXPECT_EQ(Option(OptionOf(scale)).toolTip(), QStringLiteral("Edit scale #") + number);
        EXPECT_FALSE(Option(OptionOf(scale)).accessibleName().isEmpty());
        EXPECT_TRUE(Find("fraScaleNumber").isAncestorOf(&Option(OptionOf(scale))));
    }
    EXPECT_EQ(Find("fraScaleNumber").toolTip(), QStringLiteral("Select the scale to edit"));
    ExpectShown({{"fraScaleNumber", "Edit"},
                 {"lblScaleNumber", "Scale #:"},
                 {"fraPrintArcs", "Allow arcs:"},
                 {"Option7", "Yes"},
                 {"Option8", "No"},
                 {"Option9", "Yes"},
                 {"Option10", "No"}});
    const std::pair<const char*, const char*> frames[] = {{"Option7", "fraPrintTics"},
                                                          {"Option8", "fraPrintTics"},
                                                          {"Option9", "fraPrintArcs"},
                                                          {"Option10", "fraPrintArcs"}};
    for (const auto& [option, frame] : frames) {
        EXPECT_TRUE(Find(frame).isAncestorOf(&Option(option))) << option;
    }
}

TEST_F(ScalesOptionsTest, SelectingAScaleFillsItsValues) {
    GiveAllOwnValues();
    OpenScales(6);
    for (const int scale : {2, 6, 3, 1, 4, 5}) {
        SCOPED_TRACE(scale);
        Click(OptionOf(scale));
        EXPECT_EQ(Design.ActiveScale, scale);
        ExpectOwnValuesShown(scale);
    }
}

TEST_F(ScalesOptionsTest, OffsetBelongsToNoScale) {
    OpenScales(2);
    Type("txtOffset", "2000");
    Click("Option2");
    EXPECT_EQ(TextOf("txtOffset"), "2000") << "not filled anew with the 1000 it was held to";
}

TEST_F(ScalesOptionsTest, SelectingLeavesTheOtherScalesValues) {
    GiveAllOwnValues();
    OpenScales(6);
    Click("Option4");
    for (const int scale : {2, 3, 5, 6}) {
        EXPECT_EQ(Design.NrOfTicmarks[scale], 60 + scale);
        EXPECT_EQ(Design.ScaleLeftEnd[scale], 100 + static_cast<float>(scale));
        EXPECT_EQ(Design.RelativeFontSize[scale], 0.5F + static_cast<float>(scale) / 10);
    }
}

TEST_F(ScalesOptionsTest, BoxesAreFilledInTheirOrder) {
    GiveAllOwnValues();
    Design.ScaleColor[2] = kRed;
    OpenScales(3);
    Strings filled;
    for (EntryBox* box : Page().findChildren<EntryBox*>()) {
        QObject::connect(box, &QLineEdit::textChanged, box, [&filled, box] {
            const bool cleared = Design.ScaleColor[2] == 0;
            filled.push_back(box->objectName().toStdString() + (cleared ? "" : " in colour"));
            EXPECT_EQ(Design.ActiveScale, 2);
        });
    }
    Click("Option2");
    const Strings expected = {
        "txtRelFontsize in colour",
        "txtRelFontSizeUpDown in colour",
        "txtScaleLeftEnd",
        "txtScaleLength",
        "txtBottomToTitle",
        "txtBottomToScaleCeiling",
        "txtScaleTitle",
        "txtLabelsEveryHowMany",
        "txtNumberOfTics",
        "txtMajorTicsEveryHowMany",
        "txtLinearityExponent",
    };
    EXPECT_EQ(filled, expected);
}

TEST_F(ScalesOptionsTest, LabelsAreFilledOnceMoreBehindTheMajorTics) {
    GiveAllOwnValues();
    OpenScales(3);
    QObject::connect(&Box("txtMajorTicsEveryHowMany"), &QLineEdit::textChanged, &Page(),
                     [] { Design.LabelsEveryHowMany[2] = 33; });
    Click("Option2");
    EXPECT_EQ(TextOf("txtLabelsEveryHowMany"), "33");
}

TEST_F(ScalesOptionsTest, EachFillRedraws) {
    GiveAllOwnValues();
    OpenScales(3);
    for (EntryBox* box : Page().findChildren<EntryBox*>()) {
        QObject::connect(box, &QLineEdit::textChanged, &Page(), [this, box] {
            SCOPED_TRACE(box->objectName().toStdString());
            EXPECT_EQ(ShownPlate(), PlateOfDesign());
            Spoil();
        });
    }
    Click("Option3");
    ExpectRedrawn();
}

TEST_F(ScalesOptionsTest, SelectingRedrawsAtItsEnd) {
    Design.PrintTicsAndArcs[2] = std::int16_t{2}; // no switch runs for it
    OpenScales(2);
    Click("Option2");
    Click("Option2"); // of equal texts too
    QObject::connect(&Box("txtLinearityExponent"), &QLineEdit::textChanged, &Page(),
                     [this] { Spoil(); });
    Design.LinearityExponent[2] = 2;
    Click("Option2");
    ExpectRedrawn();
}

TEST_F(ScalesOptionsTest, FirstScaleIsTheReferenceOfSizes) {
    GiveAllOwnValues();
    OpenScales(3);
    ExpectEnabled(kSizeControls, true); // they are frozen by the option alone
    Box("txtRelFontSizeUpDown").setText(QStringLiteral("12"));
    Click("Option1");
    ExpectEnabled(kSizeControls, false);
    EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), "12") << "the partner is left";
    EXPECT_EQ(TextOf("txtRelFontsize"), "1");
    EXPECT_EQ(Design.RelativeFontSize[1], 1);
    for (const int scale : {2, 3}) {
        Click(OptionOf(scale));
        ExpectEnabled(kSizeControls, true);
        const float size = 0.5F + static_cast<float>(scale) / 10;
        EXPECT_EQ(TextOf("txtRelFontsize"), PlainNumber(size));
        EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), std::to_string(5 + scale));
        EXPECT_EQ(Design.RelativeFontSize[scale], size);
    }
    Click("Option1");
    EXPECT_FALSE(IsEnabled("UpDown6"));
    EXPECT_FALSE(IsEnabled("UpDown6Up"));
}

TEST_F(ScalesOptionsTest, FrozenSizeDoesNotStepByItsKeys) {
    OpenScales();
    Click("Option1");
    QTest::keyClick(&Box("txtRelFontsize"), Qt::Key_Up);
    EXPECT_EQ(TextOf("txtRelFontsize"), "1");
    EXPECT_EQ(Design.RelativeFontSize[1], 1);
}

TEST_F(ScalesOptionsTest, RelativeSizeBeyondItsLimitsIsHeldBySelecting) {
    OpenScales(3);
    Design.RelativeFontSize[2] = 3;
    Click("Option2");
    EXPECT_EQ(TextOf("txtRelFontsize"), "1.5");
    EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), "15");
    Design.RelativeFontSize[3] = 0.25F;
    Click("Option3");
    EXPECT_EQ(TextOf("txtRelFontsize"), ".5");
    EXPECT_EQ(Design.RelativeFontSize[3], 0.5F);
}

// What is beyond the scales in use is not drawn, and so reaches the limits.
TEST_F(ScalesOptionsTest, ValuesBeyondLimitsAreHeldBySelecting) {
    OpenScales(1);
    Enable("Option2");
    Design.NrOfTicmarks[2] = 1000;
    Design.MajorEveryHowMany[2] = 0;
    Design.LabelsEveryHowMany[2] = -7;
    Design.BottomToTitle[2] = 300;
    Design.BottomToScaleCeiling[2] = -300;
    Design.LinearityExponent[2] = 7;
    Design.ScaleTitle[2] = std::string(70, 't');
    Click("Option2");
    EXPECT_EQ(Design.NrOfTicmarks[2], 360);
    EXPECT_EQ(TextOf("txtNumberOfTics"), "1000");
    EXPECT_EQ(Design.MajorEveryHowMany[2], 1);
    EXPECT_EQ(TextOf("txtMajorTicsEveryHowMany"), "0");
    EXPECT_EQ(Design.LabelsEveryHowMany[2], 1);
    EXPECT_EQ(TextOf("txtLabelsEveryHowMany"), "1") << "filled once more with what is held";
    EXPECT_EQ(Design.BottomToTitle[2], 200);
    EXPECT_EQ(Design.BottomToScaleCeiling[2], -200);
    EXPECT_EQ(Design.LinearityExponent[2], 4);
    EXPECT_EQ(Design.ScaleTitle[2], std::string(60, 't'));
}

TEST_F(ScalesOptionsTest, SelectingClearsColourAndMark) {
    OpenScales(3);
    for (const std::int32_t colour : {kRed, -kRed, -1, 1}) {
        for (const int scale : {2, 3, 1}) {
            Design.ScaleColor[scale] = colour;
            Option(OptionOf(scale)).SetInk(Qt::red);
            Click(OptionOf(scale));
            EXPECT_EQ(Design.ScaleColor[scale], 0);
            EXPECT_EQ(InkOf(OptionOf(scale)), QColor(Qt::black));
        }
    }
}

TEST_F(ScalesOptionsTest, SelectingLeavesTheOtherScalesColours) {
    OpenScales(3);
    Design.ScaleColor[1] = kGreen;
    Design.ScaleColor[3] = -kRed;
    Click("Option2");
    EXPECT_EQ(Design.ScaleColor[1], kGreen);
    EXPECT_EQ(Design.ScaleColor[3], -kRed);
}

TEST_F(ScalesOptionsTest, SelectedOptionStandsOnThePlatesBackground) {
    OpenScales(3);
    Design.PlateBackground = 0x80C0FF;
    Click("Option2");
    EXPECT_EQ(GroundOf("Option2"), QColor(0xFF, 0xC0, 0x80));
    EXPECT_NE(GroundOf("Option3"), QColor(0xFF, 0xC0, 0x80));
    Click("Option3");
    EXPECT_EQ(GroundOf("Option2"), QColor(0xFF, 0xC0, 0x80)) << "stays with the one left behind";
    Option("Option3").setEnabled(false);
    EXPECT_EQ(GroundOf("Option3"), QColor(0xFF, 0xC0, 0x80));
}

TEST_F(ScalesOptionsTest, ActiveScaleCanBeSelectedAgain) {
    OpenScales();
    const std::pair<const char*, std::function<void()>> gestures[] = {
        {"click", [this] { Click("Option1"); }},
        {"space", [this] { QTest::keyClick(&Option("Option1"), Qt::Key_Space); }},
    };
    for (const auto& [name, gesture] : gestures) {
        SCOPED_TRACE(name);
        Design.ScaleColor[1] = -kRed;
        Design.NrOfTicmarks[1] = 12;
        Option("Option1").SetInk(Qt::red);
        Spoil();
        gesture();
        EXPECT_TRUE(IsSelected("Option1"));
        EXPECT_EQ(Design.ScaleColor[1], 0);
        EXPECT_EQ(InkOf("Option1"), QColor(Qt::black));
        EXPECT_EQ(TextOf("txtNumberOfTics"), "12");
        ExpectRedrawn();
    }
}

TEST_F(ScalesOptionsTest, ArrowKeysSelectTheNextScale) {
    GiveAllOwnValues();
    OpenScales(3);
    Option("Option1").setFocus();
    QTest::keyClick(&Option("Option1"), Qt::Key_Right);
    EXPECT_EQ(Design.ActiveScale, 2);
    EXPECT_EQ(TextOf("txtScaleTitle"), "Volts 2");
    QTest::keyClick(&Option("Option2"), Qt::Key_Left);
    EXPECT_EQ(Design.ActiveScale, 1);
    EXPECT_EQ(TextOf("txtScaleTitle"), "Volts 1");
}

TEST_F(ScalesOptionsTest, SelectingEnablesTheStandardEntries) {
    OpenScales(2);
    for (const int scale : {2, 1}) {
        Disable(kStandardEntries);
        Click(OptionOf(scale));
        ExpectEnabled(kStandardEntries, true);
        ExpectEnabled({"txtLinearityExponent", "lblLinearityExponent"}, false);
    }
}

TEST_F(ScalesOptionsTest, TicsAndArcsOfTheActiveScaleAreSwitched) {
    OpenScales(2);
    Click("Option2");
    const std::size_t all = CountOf("Line");
    const std::size_t texts = TextsOf("picPlate").size();
    Spoil();
    Click("Option8");
    EXPECT_EQ(std::get<std::int16_t>(Design.PrintTicsAndArcs[2]), 1);
    EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[1]), 0);
    ExpectRedrawn();
    EXPECT_EQ(CountOf("Line"), all - 51 - 101) << "51 tics and an arc of 101 pieces go";
    EXPECT_EQ(TextsOf("picPlate").size(), texts) << "labels and titles stay";
    Spoil();
    Click("Option7");
    EXPECT_EQ(std::get<std::int16_t>(Design.PrintTicsAndArcs[2]), 0);
    ExpectRedrawn();
    EXPECT_EQ(CountOf("Line"), all);
}

TEST_F(ScalesOptionsTest, ArcsAreSwitchedForAllScales) {
    OpenScales(2);
    const std::size_t all = CountOf("Line");
    Spoil();
    Click("Option10");
    EXPECT_EQ(Design.DrawArcs, "N");
    ExpectRedrawn();
    EXPECT_EQ(CountOf("Line"), all - 2 * 101);
    Spoil();
    Click("Option9");
    EXPECT_EQ(Design.DrawArcs, "Y");
    ExpectRedrawn();
    EXPECT_EQ(CountOf("Line"), all);
}

TEST_F(ScalesOptionsTest, SwitchesRedrawWhenTheyAreSetAlready) {
    OpenScales();
    for (const char* option : {"Option7", "Option9"}) {
        ASSERT_TRUE(IsSelected(option));
        Spoil();
        Click(option);
        ExpectRedrawn();
    }
}

TEST_F(ScalesOptionsTest, SelectingShowsTheSwitchOfTheScale) {
    Design.PrintTicsAndArcs[2] = std::int16_t{1};
    Design.PrintTicsAndArcs[3] = std::string("1");
    OpenScales(3);
    EXPECT_TRUE(IsSelected("Option7"));
    for (const int scale : {2, 1, 3}) {
        Click(OptionOf(scale));
        EXPECT_EQ(IsSelected("Option7"), scale == 1) << scale;
        EXPECT_EQ(IsSelected("Option8"), scale != 1) << scale;
        EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[scale]), scale == 1 ? 0 : 1);
    }
}

TEST_F(ScalesOptionsTest, ValueThatIsNeitherShowsNeitherSwitch) {
    Design.PrintTicsAndArcs[2] = std::int16_t{2};
    OpenScales(2);
    EXPECT_TRUE(IsSelected("Option7"));
    Click("Option2");
    EXPECT_FALSE(IsSelected("Option7"));
    EXPECT_FALSE(IsSelected("Option8"));
    EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[2]), 2);
    Click("Option1");
    EXPECT_TRUE(IsSelected("Option7"));
}

} // namespace
} // namespace vernacle::test
