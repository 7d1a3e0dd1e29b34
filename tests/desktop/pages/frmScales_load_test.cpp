// Loading the scales page: what it fills, fires, clears and shows, in which order, and what fails.
#include <QTextBrowser>

#include "desktop/pages/scalestest.h"
#include "engine/designfile/readwrite.h"

namespace vernacle::test {
namespace {

class ScalesLoadTest : public ScalesTest {
protected:
    // The names of the controls that Tab visits from one on, greyed ones too.
    std::string TabOrderFrom(const std::string& first) const {
        std::string names;
        QWidget* start = &Find(first);
        QWidget* control = start;
        do {
            const bool visited = (control->focusPolicy() & Qt::TabFocus) != 0 &&
                                 control->isVisible() && !control->focusProxy();
            if (visited) {
                names += control->objectName().toStdString() + " ";
            }
            control = control->nextInFocusChain();
        } while (control != start);
        return names;
    }
};

TEST_F(ScalesLoadTest, TitleNamesTheFileIfThereIsOne) {
    EXPECT_EQ(OpenScales().windowTitle(), QStringLiteral("Vernacle - Scale design"));
    EXPECT_EQ(Find<QLabel>("lblHeading").text(), QStringLiteral("Scale design"));
    Design.DesignFileName = "C:\\Meters\\Volts.VRN";
    EXPECT_EQ(OpenScales().windowTitle(),
              QStringLiteral("Vernacle - Scale design - C:\\Meters\\Volts.VRN"));
}

TEST_F(ScalesLoadTest, BoxesShowTheActiveScale) {
    GiveAllOwnValues();
    for (const int scale : {1, 3, 6}) {
        SCOPED_TRACE(scale);
        Design.ActiveScale = static_cast<std::int16_t>(scale);
        Design.ActualVirtualOffset = 12.5F;
        OpenScales(6);
        ExpectOwnValuesShown(scale);
        EXPECT_EQ(TextOf("txtRelFontsize"), PlainNumber(0.5F + static_cast<float>(scale) / 10));
        EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), std::to_string(5 + scale));
        EXPECT_EQ(TextOf("txtOffset"), "12.5");
        EXPECT_EQ(Find("fraPrintTics").accessibleName(), Find<QGroupBox>("fraPrintTics").title());
    }
}

struct LoadedValue {
    const char* stem;
    double stored;
    const char* shown;
    double held;
};

// clang-format off
constexpr LoadedValue kLoaded[] = {
    {"ScaleLeftEnd",          -12.5,    "-12.5",        -12.5},
    {"ScaleLeftEnd",          0.25,     ".25",          0.25},
    {"ScaleLeftEnd",          2e7,      "2E+07",        2e7},
    {"ScaleLeftEnd",          1e20,     "1E+20",        kLargest},
    {"ScaleLeftEnd",          1234567.5, "1234568",     1234568},
    {"ScaleLength",           -50,      "-50",          -50},
    {"ScaleLength",           0,        "0",            0},
    {"ScaleLength",           -1e20,    "-1E+20",       -kLargest},
    {"BottomToScaleCeiling",  -201,     "-201",         -200},
    {"BottomToScaleCeiling",  500,      "500",          200},
    {"BottomToTitle",         -1000,    "-1000",        -200},
    {"BottomToTitle",         200.5,    "200.5",        200},
    {"MajorTicsEveryHowMany", 0,        "0",            1},
    {"MajorTicsEveryHowMany", 400,      "400",          360},
    {"LabelsEveryHowMany",    -1,       "-1",           1},
    {"LabelsEveryHowMany",    32767,    "32767",        360},
    {"Offset",                -1,       "-1",           0},
    {"Offset",                100000,   "100000",       1000},
};
// clang-format on

TEST_F(ScalesLoadTest, ValuesAreShownAndThenHeldToTheirLimits) {
    for (const LoadedValue& value : kLoaded) {
        SCOPED_TRACE(std::string(value.stem) + " " + value.shown);
        ResetDesign(Design);
        StoreIn(EntryOf(value.stem).field.In(Design, 1), value.stored);
        OpenScales();
        EXPECT_EQ(TextOf(EntryOf(value.stem).Box()), value.shown);
        EXPECT_EQ(EntryOf(value.stem).Value(), value.held);
    }
}

TEST_F(ScalesLoadTest, OtherEntriesAreHeldToo) {
    Design.LinearityExponent[1] = 7;
    Design.ScaleTitle[1] = "  " + std::string(68, 't');
    OpenScales();
    EXPECT_EQ(Design.LinearityExponent[1], 4);
    EXPECT_EQ(TextOf("txtLinearityExponent"), "7");
    EXPECT_EQ(Design.ScaleTitle[1], "  " + std::string(58, 't'));
}

TEST_F(ScalesLoadTest, ValueWhoseTextIsTooLongToBeReadKeepsItself) {
    Design.ScaleLengthUnits[1] = 0.012345678F; // shown with 12 characters
    OpenScales();
    EXPECT_EQ(TextOf("txtScaleLength"), "1.234568E-02");
    EXPECT_EQ(Design.ScaleLengthUnits[1], 0.012345678F);
}

TEST_F(ScalesLoadTest, RelativeSizeIsRepairedThenHeld) {
    struct Row {
        float stored;
        const char* shown;
        const char* tenths;
        float held;
    };
    constexpr Row kRows[] = {
        {0, "1", "10", 1},         {-2, "1", "10", 1},      {0.25F, ".5", "5", 0.5F},
        {3, "1.5", "15", 1.5F},    {0.5F, ".5", "5", 0.5F}, {1.25F, "1.25", "12.5", 1.25F},
        {1.3F, "1.3", "13", 1.3F},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.stored);
        Design.RelativeFontSize[1] = row.stored;
        OpenScales();
        EXPECT_EQ(TextOf("txtRelFontsize"), row.shown);
        EXPECT_EQ(TextOf("txtRelFontSizeUpDown"), row.tenths);
        EXPECT_EQ(Design.RelativeFontSize[1], row.held);
        EXPECT_TRUE(Find("lblRelFontsize").isVisible());
        EXPECT_TRUE(Find("txtRelFontsize").isVisible());
        EXPECT_TRUE(IsEnabled("txtRelFontsize"));
    }
}

// Also where no drawing has repaired it before.
TEST_F(ScalesLoadTest, RelativeSizeOfAScaleThatIsNotDrawnIsRepaired) {
    Design.RelativeFontSize[3] = -2;
    Design.ActiveScale = 3;
    OpenScales(1);
    EXPECT_EQ(TextOf("txtRelFontsize"), "1");
}

TEST_F(ScalesLoadTest, OptionsAreEnabledUpToTheNumberOfScales) {
    for (const int scale : {7, 8}) {
        GiveOwnValues(scale);
    }
    for (const int scales : {1, 3, 6, 7, 8}) {
        OpenScales(scales);
        for (int scale = 1; scale <= kScales; ++scale) {
            EXPECT_EQ(IsEnabled("Option" + std::to_string(scale)), scale <= scales)
                << scale << " of " << scales;
        }
        EXPECT_EQ(Find("fraScaleNumber").findChildren<OptionButton*>().size(), kScales);
    }
}

TEST_F(ScalesLoadTest, CountsBelowOneAreRaised) {
    for (const int count : {0, -4}) {
        Design.CurrentScale = static_cast<std::int16_t>(count);
        Design.ActiveScale = static_cast<std::int16_t>(count);
        Design.AspectRatio = static_cast<float>(count);
        OpenScales(count);
        EXPECT_EQ(Design.NumberOfScales, 1);
        EXPECT_EQ(Design.CurrentScale, 2);
        EXPECT_EQ(Design.ActiveScale, 1);
        EXPECT_EQ(Design.AspectRatio, 1);
        EXPECT_TRUE(IsSelected("Option1"));
        EXPECT_EQ(ShownPlate(), PlateOfDesign());
    }
}

TEST_F(ScalesLoadTest, OptionsWearTheColoursOfTheirScales) {
    const std::int32_t colours[] = {0, 0x0000FF, -0x0000FF, 0xFF0000, -1, 0, 0x804020};
    for (int scale = 1; scale <= kScales; ++scale) {
        Design.ScaleColor[scale] = colours[scale];
    }
    Design.ActiveScale = 2;
    Design.PlateBackground = 0x80C0FF;
    Design.NumberOfScales = 3;
    OpenScales();
    const QColor inks[] = {
        {}, Qt::red, Qt::red, Qt::blue, QColor(1, 0, 0), Qt::black, QColor(0x20, 0x40, 0x80)};
    for (int scale = 1; scale <= kScales; ++scale) {
        const std::string option = "Option" + std::to_string(scale);
        EXPECT_EQ(InkOf(option), inks[scale]) << option;
        EXPECT_EQ(GroundOf(option) == QColor(0xFF, 0xC0, 0x80), scale == 2) << option;
    }
    EXPECT_EQ(Design.ScaleColor[1], 0x0000FF);
    EXPECT_EQ(Design.ScaleColor[2], 0) << "only the active scale loses its colour";
    EXPECT_EQ(Design.ScaleColor[3], 0xFF0000);
}

TEST_F(ScalesLoadTest, SpecialScaleComesBackAsAStandardOne) {
    Design.ScaleColor[1] = -kRed;
    Design.SpecialNrOfTicmarks[1] = 2;
    Design.TicDeflection[1][1] = 0.3F;
    Design.TicLabelText[1][1] = "s";
    OpenScales();
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 2);
    EXPECT_EQ(Design.TicDeflection[1][1], 0.3F);
    EXPECT_EQ(Design.TicLabelText[1][1], "s");
    ExpectEnabled({"txtScaleLeftEnd", "txtScaleLength", "txtNumberOfTics",
                   "txtMajorTicsEveryHowMany", "txtLabelsEveryHowMany"},
                  true);
    EXPECT_EQ(TextsOf("picPlate"), (Strings{"0", "10", "20", "30", "40", "50", "Default Scale 1"}));
}

TEST_F(ScalesLoadTest, SelectedOptionRunsNothingOfItsOwn) {
    GiveOwnValues(1);
    OpenScales();
    EXPECT_EQ(Design.RelativeFontSize[1], 0.6F) << "a selection would freeze it at 1";
    ExpectEnabled({"UpDown6", "txtRelFontSizeUpDown", "lblRelFontsize"}, true);
}

TEST_F(ScalesLoadTest, SwitchesShowTheDesign) {
    struct Row {
        DynamicValue left;
        const char* arcs;
        const char* selected;
    };
    const Row rows[] = {
        {std::int16_t{0}, "Y", "7 9"}, {std::int16_t{1}, "N", "8 10"}, {std::int16_t{2}, "", ""},
        {std::int16_t{-1}, "y", ""},   {std::string("1"), "Y", "8 9"}, {std::string(), "N", "7 10"},
        {DynamicValue{}, "Y", "7 9"},
    };
    for (const Row& row : rows) {
        Design.PrintTicsAndArcs[1] = row.left;
        Design.DrawArcs = row.arcs;
        OpenScales();
        std::string selected;
        for (const char* number : {"7", "8", "9", "10"}) {
            if (IsSelected(std::string("Option") + number)) {
                selected += (selected.empty() ? "" : " ") + std::string(number);
            }
        }
        EXPECT_EQ(selected, row.selected);
        EXPECT_EQ(NumberOf(Design.PrintTicsAndArcs[1]), NumberOf(row.left));
        EXPECT_EQ(Design.DrawArcs, row.arcs);
    }
}

TEST_F(ScalesLoadTest, PlateStandsBesideTheEntries) {
    OpenScales();
    const Strings calls = ShownPlate();
    ASSERT_GT(calls.size(), 2U);
    EXPECT_EQ(calls[0], "Clear");
    // 75 x 50 mm across 6000 units, narrowed by 0.75, about (3400, 4400)
    EXPECT_EQ(calls[2], "FilledBox 1150 2400 5650 6400 ffffff");
    const RecordingSurface surface = Recorded(Picture("picPlate"));
    EXPECT_EQ(surface.Count("Clear"), 1U);
    EXPECT_EQ(surface.Count("FilledBox"), 1U);
}

TEST_F(ScalesLoadTest, LabelIsDrawnOnlyIfItIsFlagged) {
    Design.StandardLabelYN[1][10] = "N";
    Design.StandardLabelYN[1][20] = "?";
    Design.StandardTicYN[1][30] = "N";
    OpenScales();
    EXPECT_EQ(TextsOf("picPlate"), (Strings{"0", "30", "40", "50", "Default Scale 1"}));
}

TEST_F(ScalesLoadTest, SizesAreThoseOfTheLoad) {
    OpenScales();
    const PageCopies atLoad = {Design.FontSize, Design.LabelSpacing};
    Design.FontSize = 14;
    Design.LabelSpacing = 1;
    Type("txtNumberOfTics", "30");
    EXPECT_EQ(ShownPlate(), PlateOf(atLoad));
    EXPECT_NE(ShownPlate(), PlateOfDesign());
    OpenScales();
    EXPECT_EQ(ShownPlate(), PlateOfDesign());
}

// The first box that is filled redraws, before the box of the tics can hold them to their limits.
TEST_F(ScalesLoadTest, CountOfTicsThatCannotBeComputedFailsTheLoad) {
    struct Row {
        int scale;
        int tics;
        int scales;
        bool fails;
    };
    constexpr Row kRows[] = {
        {1, 0, 1, true},  {1, 361, 1, true},  {2, 0, 2, true},   {2, 0, 1, false},
        {1, 1, 1, false}, {1, 360, 1, false}, {1, -1, 1, false},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::to_string(row.tics) + " tics on " + std::to_string(row.scale) + " of " +
                     std::to_string(row.scales));
        ResetDesign(Design);
        Design.NrOfTicmarks[row.scale] = static_cast<std::int16_t>(row.tics);
        Design.NumberOfScales = static_cast<std::int16_t>(row.scales);
        if (row.fails) {
            EXPECT_THROW(OpenScales(), RunTimeError);
        } else {
            EXPECT_NO_THROW(OpenScales());
        }
    }
}

TEST_F(ScalesLoadTest, NegativeExponentFailsTheLoad) {
    Design.LinearityExponent[1] = -1;
    EXPECT_THROW(OpenScales(), RunTimeError);
}

TEST_F(ScalesLoadTest, DrawingThatFailsLeavesThePage) {
    Design.BottomToScaleCeiling[1] = -20;
    Design.BottomToBearing = 10;
    Design.ActualVirtualOffset = 30; // no radius is left
    EXPECT_NO_THROW(OpenScales());
    EXPECT_EQ(TextsOf("picPlate"), Strings{});
    Type("txtBottomToScaleCeiling", "35");
    EXPECT_EQ(TextsOf("picPlate").size(), 7U);
}

TEST_F(ScalesLoadTest, TabFollowsReadingOrder) {
    OpenScales(6);
    const std::string order = TabOrderFrom("Option1");
    EXPECT_TRUE(order.starts_with(
        "Option1 Option2 Option3 Option4 Option5 Option6 txtScaleLeftEnd txtScaleLength "
        "txtBottomToScaleCeiling txtBottomToTitle txtNumberOfTics txtMajorTicsEveryHowMany "
        "txtLabelsEveryHowMany txtLinearityExponent cmdLinearityExponent txtRelFontsize txtOffset "
        "txtScaleTitle Option7 Option8 Option9 Option10 cmdGetColor cmdRevertToStandard cmddBsetup "
        "cmdSelectTics cmdSelectTicsHelp Open "))
        << order;
}

TEST_F(ScalesLoadTest, CloseBoxKeepsWhatWasEntered) {
    OpenScales();
    Type("txtScaleTitle", "Volts");
    CloseByUser(Page());
    EXPECT_TRUE(TakeProcessEnd());
    Design.ScaleTitle[1].clear();
    ReadDesign(Design, Path("LASTSESSION.VRN"));
    EXPECT_EQ(Design.ScaleTitle[1], "Volts");
}

TEST_F(ScalesLoadTest, DesignThatIsOpenedStartsWithTheFirstScale) {
    Design.DesignFileName = Path("other.VRN");
    Design.ScaleTitle[1] = "Ohms";
    SaveDesign(Design, Design.DesignFileName);
    ResetDesign(Design);
    Design.ActiveScale = 3;
    OpenScales(3);
    ClickAndAnswer("Open", TypeFile(Path("other.VRN")));
    EXPECT_EQ(Design.ActiveScale, 1);
    EXPECT_TRUE(IsSelected("Option1"));
    EXPECT_EQ(TextOf("txtScaleTitle"), "Ohms");
    EXPECT_TRUE(Page().windowTitle().endsWith(QLatin1String(" - ") +
                                              QString::fromStdString(Path("other.VRN"))));
}

TEST_F(ScalesLoadTest, HelpOpensThePagesTopicAndPrintIsGreyed) {
    OpenScales();
    EXPECT_FALSE(IsEnabled("Print"));
    Click("Help");
    QTextBrowser* topic = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("HelpViewer")) {
            topic = window->findChild<QTextBrowser*>();
            window->deleteLater();
        }
    }
    ASSERT_NE(topic, nullptr);
    EXPECT_TRUE(topic->source().toString().endsWith(QLatin1String("/vscales.htm")));
}

} // namespace
} // namespace vernacle::test
