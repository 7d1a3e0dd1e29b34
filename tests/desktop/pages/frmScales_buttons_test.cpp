// The buttons of the scales page: colour, revert to standard, and the forms that they open.
#include <memory>

#include "desktop/app/forms.h"
#include "desktop/pages/scalestest.h"

namespace vernacle::test {
namespace {

constexpr std::int32_t kBlue = 0xFF0000;

template <typename Form>
std::unique_ptr<QWidget> MakeStandIn() {
    return std::make_unique<Form>();
}

class ScalesButtonsTest : public ScalesTest {
protected:
    // Registers a form in place of one that does not exist yet.
    void StandInFor(const char* name, std::unique_ptr<QWidget> (*make)()) {
        rows_.assign(ProgramForms().begin(), ProgramForms().end());
        std::erase_if(rows_, [&](const FormRow& row) { return row.name == std::string(name); });
        rows_.push_back({name, make});
        SetForms(rows_);
    }

    void Press(const std::string& button) const {
        Enable(button);
        Click(button);
    }

    void GetColour(const char* colour) {
        Answer(ChooseColour("Get scale color", colour, start_));
        Press("cmdGetColor");
    }

    std::vector<FormRow> rows_;
    QColor start_; // of the colour's dialog
};

TEST_F(ScalesButtonsTest, CaptionsTipsAndStartingStates) {
    struct Row {
        const char* name;
        const char* caption;
        const char* tip;
        bool enabled;
    };
    constexpr Row kRows[] = {
        {"cmdGetColor", "Foreground color", "Select the color for this scale and its label", false},
        {"cmdRevertToStandard", "Revert to standard scale", "", false},
        {"cmddBsetup", "Create or edit  special scale", "", false},
        {"cmdSelectTics", "Select tics", "", false},
        {"cmdSelectTicsHelp", "H", "", true},
        {"cmdLinearityExponent", "H", "Show linearity graphic", true},
    };
    OpenScales(6);
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        auto& button = Find<QPushButton>(row.name);
        EXPECT_EQ(button.text(), QLatin1String(row.caption));
        EXPECT_EQ(button.toolTip(), QLatin1String(row.tip));
        EXPECT_EQ(button.isEnabled(), row.enabled);
        EXPECT_TRUE(button.isVisible());
        EXPECT_FALSE(button.accessibleName().isEmpty());
    }
}

TEST_F(ScalesButtonsTest, NothingEnablesTheGreyedButtons) {
    OpenScales(3);
    Click("Option2");
    Click("Option1");
    Type("txtNumberOfTics", "30");
    ExpectEnabled({"cmdGetColor", "cmdRevertToStandard", "cmddBsetup", "cmdSelectTics",
                   "txtLinearityExponent", "lblLinearityExponent"},
                  false);
}

TEST_F(ScalesButtonsTest, ColourGoesToTheActiveScaleAndIsDrawn) {
    OpenScales(3);
    Click("Option2");
    GetColour("red");
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(Design.ScaleColor[2], kRed);
    EXPECT_EQ(Design.ScaleColor[3], 0);
    EXPECT_EQ(InkOf("Option2"), QColor(Qt::red));
    EXPECT_EQ(ShownPlate(), PlateOfDesign());
    const Strings calls = ShownPlate();
    EXPECT_NE(std::find(calls.begin(), calls.end(), "SetForeColor ff"), calls.end());
}

TEST_F(ScalesButtonsTest, ColourLastsUntilTheScaleIsSelectedAgain) {
    OpenScales();
    GetColour("red");
    Type("txtNumberOfTics", "30");
    EXPECT_EQ(Design.ScaleColor[1], kRed);
    Click("Option1");
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(InkOf("Option1"), QColor(Qt::black));
}

TEST_F(ScalesButtonsTest, ColourLastsUntilThePageIsLoadedAgain) {
    OpenScales();
    GetColour("red");
    OpenScales();
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(InkOf("Option1"), QColor(Qt::red)) << "taken before the colour is cleared";
}

TEST_F(ScalesButtonsTest, ColourDialogStartsWithTheMagnitude) {
    OpenScales();
    for (const std::int32_t colour : {0x804020, -0x804020}) {
        Design.ScaleColor[1] = colour;
        GetColour(nullptr);
        EXPECT_EQ(start_, QColor(0x20, 0x40, 0x80));
        EXPECT_EQ(Design.ScaleColor[1], colour);
    }
}

TEST_F(ScalesButtonsTest, SignIsKeptAndBlackCanCarryIt) {
    struct Row {
        std::int32_t before;
        const char* chosen; // cancelled if null
        std::int32_t after;
    };
    constexpr Row kRows[] = {
        {0, nullptr, 1},         {0, "black", 1},          {kRed, nullptr, kRed},
        {-kRed, nullptr, -kRed}, {-1, nullptr, -1},        {kRed, "blue", kBlue},
        {-kRed, "blue", -kBlue}, {-kRed, "black", -1},     {kRed, "black", 1},
        {1, "#ffffff", kWhite},  {-1, "#ffffff", -kWhite},
    };
    OpenScales();
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::to_string(row.before) + " " + (row.chosen ? row.chosen : "cancelled"));
        Design.ScaleColor[1] = row.before;
        Picture("picPlate").Surface().Clear();
        GetColour(row.chosen);
        EXPECT_EQ(Design.ScaleColor[1], row.after);
        const auto bits = static_cast<unsigned>(std::abs(row.after));
        EXPECT_EQ(InkOf("Option1"),
                  QColor(static_cast<int>(bits & 0xFFU), static_cast<int>(bits >> 8U & 0xFFU),
                         static_cast<int>(bits >> 16U & 0xFFU)));
        EXPECT_EQ(ShownPlate(), PlateOfDesign());
        EXPECT_GT(ShownPlate().size(), 30U);
    }
}

TEST_F(ScalesButtonsTest, WithoutAnActiveScaleTheColourIsOfTheFirst) {
    OpenScales();
    for (const std::int32_t spare : {0, -5}) {
        Design.ActiveScale = 0;
        Design.ScaleColor[0] = spare;
        Design.ScaleColor[1] = 0;
        GetColour("red");
        EXPECT_EQ(Design.ActiveScale, 1);
        EXPECT_EQ(Design.ScaleColor[1], spare < 0 ? -kRed : kRed) << "the sign is kept before";
        EXPECT_EQ(Design.ScaleColor[0], spare);
    }
}

TEST_F(ScalesButtonsTest, ScaleWithoutAnOptionTakesItsColourToo) {
    OpenScales();
    Design.ActiveScale = 7;
    GetColour("red");
    EXPECT_EQ(Design.ScaleColor[7], kRed);
    EXPECT_EQ(InkOf("Option6"), QColor(Qt::black));
}

TEST_F(ScalesButtonsTest, RevertTakesOverTheScaleBehindTheLastWithText) {
    for (const int scales : {1, 3}) {
        SCOPED_TRACE(scales);
        ResetDesign(Design);
        const int behind = scales + 1;
        GiveOwnValues(behind);
        Design.ScaleColor[behind] = -kRed;
        OpenScales(scales);
        Type("txtScaleLength", "80");
        Type("txtLabelsEveryHowMany", "7");
        Type("txtNumberOfTics", "30");
        ASSERT_EQ(Design.CurrentScale, behind);
        Spoil();
        Press("cmdRevertToStandard");
        EXPECT_EQ(Design.ScaleColor[behind], kRed);
        EXPECT_EQ(TextOf("txtNumberOfTics"), std::to_string(60 + behind));
        EXPECT_EQ(Design.NrOfTicmarks[1], 60 + behind);
        EXPECT_EQ(TextOf("txtMajorTicsEveryHowMany"), std::to_string(20 + behind));
        EXPECT_EQ(Design.MajorEveryHowMany[1], 20 + behind);
        EXPECT_EQ(TextOf("txtLinearityExponent"), "1");
        EXPECT_EQ(Design.LinearityExponent[1], 1);
        EXPECT_NE(Design.LinearityExponent[behind], 1);
        EXPECT_EQ(Design.LabelsEveryHowMany[1], 7);
        EXPECT_EQ(Design.ScaleLengthUnits[1], 80);
        ExpectRedrawn();
    }
}

TEST_F(ScalesButtonsTest, RevertGivesTheUsualScaleInPractice) {
    OpenScales();
    Enable("txtLinearityExponent");
    Type("txtLinearityExponent", "7");
    Type("txtNumberOfTics", "30");
    Type("txtMajorTicsEveryHowMany", "3");
    EXPECT_EQ(Design.LinearityExponent[1], 4);
    EXPECT_EQ(TextOf("txtLinearityExponent"), "7");
    Press("cmdRevertToStandard");
    EXPECT_EQ(Design.NrOfTicmarks[1], 50);
    EXPECT_EQ(Design.MajorEveryHowMany[1], 5);
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_EQ(TextOf("txtLinearityExponent"), "1");
}

TEST_F(ScalesButtonsTest, RevertWithoutTextWorksOnTheSpareSlot) {
    Design.PrintText = "N";
    OpenScales(2);
    for (const char* arcs : {"Option9", "Option10"}) {
        Click(arcs);
        Design.NrOfTicmarks[0] = Design.MajorEveryHowMany[0] = 0;
        Design.LinearityExponent[0] = 0;
        Design.ScaleColor[0] = -kBlue;
        Type("txtNumberOfTics", "30");
        ASSERT_EQ(Design.CurrentScale, 0);
        Press("cmdRevertToStandard");
        EXPECT_EQ(Design.NrOfTicmarks[0], 50);
        EXPECT_EQ(Design.MajorEveryHowMany[0], 5);
        EXPECT_EQ(Design.LinearityExponent[0], 1);
        EXPECT_EQ(Design.ScaleColor[0], kBlue);
        EXPECT_EQ(Design.NrOfTicmarks[1], 50);
        EXPECT_EQ(Design.MajorEveryHowMany[1], 5);
    }
}

TEST_F(ScalesButtonsTest, RevertGoesToTheActiveScaleAlone) {
    Design.ActiveScale = 2;
    OpenScales(3);
    GiveOwnValues(4);
    Press("cmdRevertToStandard");
    EXPECT_EQ(Design.NrOfTicmarks[1], 50);
    EXPECT_EQ(Design.NrOfTicmarks[2], 64);
    EXPECT_EQ(Design.NrOfTicmarks[3], 50);
}

TEST_F(ScalesButtonsTest, RevertRepairsCountsBelowOne) {
    OpenScales();
    const std::pair<int, int> rows[] = {{-3, 50}, {0, 50}, {1, 1}, {2, 2}};
    for (const auto& [before, after] : rows) {
        Design.NrOfTicmarks[2] = Design.MajorEveryHowMany[2] = static_cast<std::int16_t>(before);
        Press("cmdRevertToStandard");
        EXPECT_EQ(Design.NrOfTicmarks[2], after);
        EXPECT_EQ(Design.MajorEveryHowMany[2], before < 1 ? 5 : before);
        EXPECT_EQ(TextOf("txtNumberOfTics"), std::to_string(after));
    }
}

TEST_F(ScalesButtonsTest, RevertEnablesItsEntries) {
    const std::initializer_list<const char*> enabled = {
        "lblNumberOfTics",          "txtNumberOfTics",       "lblMajorTicsEveryHowMany",
        "txtMajorTicsEveryHowMany", "lblLabelsEveryHowMany", "txtLabelsEveryHowMany",
    };
    const std::initializer_list<const char*> left = {
        "lblScaleLeftEnd",      "txtScaleLeftEnd",      "UpDown3", "UpDown4", "UpDown5",
        "lblLinearityExponent", "txtLinearityExponent",
    };
    OpenScales();
    Disable(enabled);
    Disable(left);
    Press("cmdRevertToStandard");
    ExpectEnabled(enabled, true);
    ExpectEnabled(left, false);
}

TEST_F(ScalesButtonsTest, SetupGetsTheActiveScaleAndTakesThePagesPlace) {
    StandInFor("frmSetupMenu", MakeStandIn<QWidget>);
    const std::pair<int, int> rows[] = {{0, 1}, {1, 1}, {3, 3}};
    for (const auto& [active, working] : rows) {
        OpenScales(3);
        QPointer<QWidget> page = &Page();
        Design.ActiveScale = static_cast<std::int16_t>(active);
        Press("cmddBsetup");
        Settle();
        EXPECT_EQ(Design.CurrentScale, working);
        EXPECT_TRUE(page.isNull()) << "the page is unloaded";
        EXPECT_EQ(Page().findChild<QWidget*>(QStringLiteral("cmddBsetup")), nullptr);
    }
}

// Forms that the buttons open above the page.
TEST_F(ScalesButtonsTest, ModalFormsLeaveThePage) {
    class StandIn : public QDialog {
    public:
        StandIn() { setObjectName(QStringLiteral("frmSelectTics")); }
    };
    StandInFor("frmSelectTics", MakeStandIn<StandIn>);
    OpenScales();
    const std::pair<const char*, const char*> rows[] = {{"cmdSelectTics", "frmSelectTics"},
                                                        {"cmdSelectTicsHelp", "frmTicsHelp"},
                                                        {"cmdLinearityExponent", "frmExponent"}};
    const QPointer<QWidget> page = &Page();
    for (const auto& [button, form] : rows) {
        SCOPED_TRACE(button);
        Design.HelpTopic = 3;
        const bool isExponent = form == std::string("frmExponent");
        Answer([expected = form, isExponent](QWidget& dialog) {
            EXPECT_EQ(dialog.objectName(), QLatin1String(expected));
            EXPECT_EQ(Design.HelpTopic, isExponent ? 28 : 3);
            dynamic_cast<QDialog&>(dialog).reject();
        });
        Press(button);
        Settle();
        EXPECT_TRUE(AllAnswered());
        EXPECT_FALSE(page.isNull());
        EXPECT_EQ(CurrentPage(), page.data());
    }
}

} // namespace
} // namespace vernacle::test
