// The ohmmeter setup on its own controls.
#include "desktop/setups/frmSetupOhmmeter.h"

#include "desktop/setups/setuptest.h"
#include "engine/base/numbertext.h"

namespace vernacle::test {
namespace {

constexpr int kOhmmeterRows = 31;
constexpr const char* kFull = "information: Only 29 ticmarks are allowed in this routine";
constexpr const char* kLast = "information: With 29 items please do not delete the last item.";

class OhmmeterPageTest : public SetupFormTest {
protected:
    void OpenOhmmeter() { OpenSetup("frmSetupOhmmeter"); }

    void Compute(const std::string& midscale, const std::string& resistance) const {
        Type("txtEnterMidscale", midscale);
        Type("txtEnterResistance", resistance);
        Click("cmdComputeDeflection");
    }
    void Add(const std::string& resistance) const {
        Compute("100", resistance);
        Click("cmdAddToList");
    }
    // Rows 2 to that one.
    void FillUpTo(int row) const {
        for (int next = 2; next <= row; ++next) {
            Add(std::to_string(next));
        }
    }

    std::string TicText(int row) const {
        return Find<QPushButton>(RowName("Tic", row)).text().toStdString();
    }

    // "Tic# | deflection | label" of the rows that show.
    Strings Rows() const {
        Strings rows;
        for (int row = 0; row < kOhmmeterRows; ++row) {
            const bool shown = IsShown(RowName("Tic", row));
            for (const char* part : {"lblDeflection", "fraMajorMinor", "txtLabel"}) {
                EXPECT_EQ(IsShown(RowName(part, row)), shown) << part << row;
            }
            if (shown) {
                rows.push_back(TicText(row) + " | " + Shown(RowName("lblDeflection", row)) + " | " +
                               TextOf(RowName("txtLabel", row)));
            }
        }
        return rows;
    }

    void ExpectNothingToAdd() const {
        EXPECT_EQ(Shown("lblResultingDeflection"), "");
        ExpectEnabled({"cmdAddToList", "cmdIgnoreEntry"}, false);
    }
};

TEST_F(OhmmeterPageTest, CaptionsAndStartingState) {
    OpenOhmmeter();
    EXPECT_EQ(Page().windowTitle(), QLatin1String("Vernacle - ohmmeter setup"));
    EXPECT_EQ(Headings(), (Strings{"Tic#:", "Deflection:", "Label:", "Major/minor?"}));
    ExpectShown({{"lblEnterMidscale", "Enter midscale resistance value:"},
                 {"lblEnterResistance", "Enter resistance to get deflection:"},
                 {"lblResultingDeflection", ""},
                 {"lblClickToRemoveItem", "To remove an item click on its Tic#."},
                 {"lblRemoveLabel", "Each label may be edited or removed"},
                 {"cmdComputeDeflection", "Compute deflection"},
                 {"cmdAddToList", "Add to list"},
                 {"cmdIgnoreEntry", "Ignore"},
                 {"cmdPreview", "Preview"},
                 {"cmdAccept", "Accept and return to Scale Design page"},
                 {"cmdIgnoreAndReturn", "Ignore; just return to Scale Design page"}});
    ExpectEnabled({"lblEnterMidscale", "txtEnterMidscale", "lblClickToRemoveItem", "lblRemoveLabel",
                   "cmdPreview", "cmdIgnoreAndReturn"},
                  true);
    ExpectEnabled({"lblEnterResistance", "txtEnterResistance", "cmdComputeDeflection",
                   "lblResultingDeflection", "cmdAddToList", "cmdIgnoreEntry", "cmdAccept"},
                  false);
}

TEST_F(OhmmeterPageTest, AStandardScaleStartsWithTwoRows) {
    OpenOhmmeter();
    EXPECT_EQ(Rows(), (Strings{"0 | 1 | 0", "1 | 0 | 1"}));
    for (int row = 0; row < kOhmmeterRows; ++row) {
        EXPECT_EQ(IsSelected(RowName("Major", row)), row < 2);
        EXPECT_EQ(IsSelected(RowName("Minor", row)), row >= 2);
    }
    EXPECT_GE(Design.ScaleColor[1], 0) << "nothing is stored yet";
}

TEST_F(OhmmeterPageTest, EntriesEnableTheNextStep) {
    OpenOhmmeter();
    Type("txtEnterMidscale", "1");
    ExpectEnabled({"lblEnterResistance", "txtEnterResistance", "lblResultingDeflection"}, true);
    ExpectEnabled({"cmdComputeDeflection", "cmdAddToList"}, false);
    Type("txtEnterResistance", "1");
    ExpectEnabled({"cmdComputeDeflection"}, true);
    ExpectEnabled({"cmdAddToList", "cmdIgnoreEntry"}, false);
    Click("cmdComputeDeflection");
    ExpectEnabled({"cmdAddToList", "cmdIgnoreEntry"}, true);
    ExpectEnabled({"cmdAccept"}, false);
    QTest::keyClicks(&Box("txtEnterResistance"), QStringLiteral("0"));
    ExpectNothingToAdd(); // altered: what was computed is not its own
}

struct OhmsRow {
    const char* midscale;
    const char* resistance;
    const char* shown;
};

TEST_F(OhmmeterPageTest, DeflectionIsShown) {
    const OhmsRow rows[] = {
        {"100", "100", "Deflection:  .5"},  {"100", "0", "Deflection:  1"},
        {"100", "300", "Deflection:  .25"}, {"2,2k", "2200", "Deflection:  .5"},
        {"20", "30", "Deflection:  .4"},
    };
    OpenOhmmeter();
    for (const OhmsRow& row : rows) {
        Compute(row.midscale, row.resistance);
        EXPECT_EQ(Shown("lblResultingDeflection"), row.shown)
            << row.midscale << " " << row.resistance;
    }
}

TEST_F(OhmmeterPageTest, AddingTakesTheResistanceForALabel) {
    OpenOhmmeter();
    Add("300");
    EXPECT_EQ(Rows().back(), "2 | .25 | 300");
    EXPECT_EQ(TextOf("txtEnterResistance"), "");
    ExpectNothingToAdd();
    ExpectEnabled({"cmdAccept"}, true);
    EXPECT_FALSE(IsEnabled("cmdComputeDeflection"));
    Compute("100", "1k");
    Click("cmdAddToList");
    EXPECT_EQ(Rows().size(), 4U);
    EXPECT_TRUE(Rows().back().ends_with("| 1k")) << "as it was typed";
    EXPECT_TRUE(IsSelected("Minor3"));
}

TEST_F(OhmmeterPageTest, IgnoringEmptiesTheEntry) {
    OpenOhmmeter();
    Compute("100", "50");
    Click("cmdIgnoreEntry");
    EXPECT_EQ(TextOf("txtEnterResistance"), "");
    ExpectNothingToAdd();
    ExpectEnabled({"cmdComputeDeflection"}, true);
    EXPECT_EQ(Rows().size(), 2U);
}

TEST_F(OhmmeterPageTest, ThirtyRowsAreTheMost) {
    OpenOhmmeter();
    FillUpTo(29);
    EXPECT_EQ(Rows().size(), 30U);
    EXPECT_TRUE(said.empty());
    Compute("100", "7");
    Click("cmdAddToList");
    EXPECT_EQ(said, Strings{kFull});
    EXPECT_EQ(Rows().size(), 30U);
    EXPECT_EQ(TextOf("txtEnterResistance"), "7") << "stays in its box";
    EXPECT_TRUE(Rows().back().ends_with("| 29"));
}

TEST_F(OhmmeterPageTest, LastOfThirtyCannotBeRemoved) {
    OpenOhmmeter();
    FillUpTo(29);
    Click("Tic29");
    EXPECT_EQ(said, Strings{kLast});
    EXPECT_EQ(Rows().size(), 30U);
    const std::string last = Rows().back();
    Click("Tic28");
    EXPECT_EQ(Rows().size(), 29U);
    EXPECT_EQ(Rows().back(), last) << "moved down, its number with it";
    EXPECT_EQ(TextOf("txtLabel29"), "") << "the contents of the row that never shows";
    Click("Tic28");
    EXPECT_EQ(Rows().size(), 28U);
}

TEST_F(OhmmeterPageTest, RemovingMovesRowsWithTheirNumbersAndChoices) {
    OpenOhmmeter();
    Add("300");
    Add("100");
    Click("Major3");
    Click("Tic2");
    EXPECT_EQ(Rows(), (Strings{"0 | 1 | 0", "1 | 0 | 1", "3 | .5 | 100"}));
    EXPECT_TRUE(IsSelected("Major2"));
    EXPECT_FALSE(IsSelected("Minor2"));
    Add("0");
    EXPECT_EQ(Rows().back(), "3 | 1 | 0") << "a number twice";
    EXPECT_EQ(TicText(2), "3");
}

TEST_F(OhmmeterPageTest, EveryRowCanBeRemoved) {
    OpenOhmmeter();
    Click("Tic0");
    EXPECT_EQ(Rows(), Strings{"1 | 0 | 1"});
    Click("Tic0");
    EXPECT_TRUE(Rows().empty());
    PressPreview();
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], -1);
    Add("300");
    EXPECT_EQ(Rows(), Strings{"0 | .25 | 300"});
}

TEST_F(OhmmeterPageTest, AcceptingAnEmptyListStoresMinusOne) {
    OpenOhmmeter();
    Add("300");
    Click("Tic0");
    Click("Tic0");
    Click("Tic0");
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], -1);
    EXPECT_EQ(PageName(), "frmScales");
}

TEST_F(OhmmeterPageTest, PreviewStoresAndMarksAndAllowsAccepting) {
    OpenOhmmeter();
    Type("txtLabel1", "inf");
    PressPreview([](QWidget& form) { EXPECT_EQ(TextsOn(form), (Strings{"0", "inf"})); });
    EXPECT_EQ(Design.ScaleColor[1], -1);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 1);
    EXPECT_TRUE(IsEnabled("cmdAccept"));
}

TEST_F(OhmmeterPageTest, AcceptStoresTheListAsItStands) {
    OpenOhmmeter();
    Add("300");
    Type("txtLabel2", "300 ohms");
    Type("txtLabel0", "");
    Click("Minor0");
    Design.ActiveScale = 2;
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 2);
    EXPECT_EQ(TicsInWords(1, 2),
              (Strings{"[] print label", "[1] print label major", "[300 ohms] print label"}));
    EXPECT_EQ(DeflectionsOf(1, 2), (std::vector<float>{1, 0, 0.25F}))
        << "a label changes no deflection";
    EXPECT_EQ(Design.ScaleColor[1], -1);
}

TEST_F(OhmmeterPageTest, DeflectionHasThePrecisionOfItsText) {
    OpenOhmmeter();
    Add("200"); // a third
    const std::string text = Shown("lblDeflection2");
    PressPreview();
    EXPECT_EQ(Design.TicDeflection[1][2], static_cast<float>(NumericValue(text)));
    EXPECT_NE(Design.TicDeflection[1][2], static_cast<float>(1. / 3));
}

TEST_F(OhmmeterPageTest, AStoredScaleIsReadBack) {
    Design.ScaleColor[1] = -1;
    Design.LinearityExponent[1] = 2;
    Design.SpecialNrOfTicmarks[1] = 3;
    const std::pair<float, const char*> tics[] = {{1, "0"}, {0.5F, " / "}, {0.25F, ""}, {0, "x"}};
    for (int tic = 0; tic <= 3; ++tic) {
        Design.TicDeflection[1][tic] = tics[tic].first;
        Design.TicLabelText[1][tic] = tics[tic].second;
        Design.TicMajorYN[1][tic] = tic == 1 ? "N" : "Y";
    }
    OpenOhmmeter();
    EXPECT_EQ(Rows(), (Strings{"0 | 1 | 0", "1 | .5 |  ", "2 | .25 |  ", "3 | 0 | x"}))
        << "the backup writes a mark for an empty label too";
    EXPECT_EQ(Design.TicLabelText[1][1], " ");
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_TRUE(IsSelected("Major0"));
    EXPECT_FALSE(IsSelected("Major1"));
    EXPECT_FALSE(IsEnabled("cmdAccept")) << "until something is added or previewed";
}

TEST_F(OhmmeterPageTest, AScaleOfMoreTicsThanRowsFillsTheRows) {
    Design.ScaleColor[1] = -1;
    Design.SpecialNrOfTicmarks[1] = 114;
    OpenOhmmeter();
    EXPECT_EQ(Rows().size(), 30U);
    PressPreview();
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 29);
}

TEST_F(OhmmeterPageTest, AScaleWithoutTicsGivesAnEmptyList) {
    Design.ScaleColor[1] = -1;
    for (const std::int16_t count : {std::int16_t{-1}, std::int16_t{-5}}) {
        Design.SpecialNrOfTicmarks[1] = count;
        OpenOhmmeter();
        EXPECT_TRUE(Rows().empty());
        Add("300");
        EXPECT_EQ(Rows(), Strings{"0 | .25 | 300"});
    }
}

// Texts of all digits can be too long for an entry, and would then keep what their place held.
TEST_F(OhmmeterPageTest, LongDeflectionsMoveWithTheirRows) {
    Design.ScaleColor[1] = -1;
    Design.SpecialNrOfTicmarks[1] = 2;
    Design.TicDeflection[1][0] = 1;
    Design.TicDeflection[1][1] = 0.5F;
    Design.TicDeflection[1][2] = 7.079457E-02F;
    OpenOhmmeter();
    EXPECT_LE(Shown("lblDeflection2").size(), 10U);
    Click("Tic1");
    PressPreview();
    EXPECT_NEAR(Design.TicDeflection[1][1], 7.079457E-02F, 1e-5);
}

TEST_F(OhmmeterPageTest, AFailedResultCannotBeAdded) {
    OpenOhmmeter();
    Compute("100", "100");
    Type("txtEnterMidscale", "0");
    Click("cmdComputeDeflection");
    EXPECT_EQ(said.size(), 2U);
    ExpectNothingToAdd();
}

TEST_F(OhmmeterPageTest, ImpossibleEntriesAreToldAndThePageStays) {
    OpenOhmmeter();
    const std::pair<const char*, const char*> rows[] = {{"0", "100"}, {"100", "-100"}, {"", "5"}};
    for (const auto& [midscale, resistance] : rows) {
        said.clear();
        Compute(midscale, resistance);
        ASSERT_EQ(said.size(), 2U) << midscale;
        EXPECT_EQ(said[0], "beep");
        EXPECT_TRUE(said[1].starts_with("failure: ")) << said[1];
        EXPECT_EQ(PageName(), "frmSetupOhmmeter");
        ExpectNothingToAdd();
    }
    Compute("100", "100");
    EXPECT_EQ(Shown("lblResultingDeflection"), "Deflection:  .5") << "the next entry works";
}

TEST_F(OhmmeterPageTest, NegativeResistancesAreNotRefused) {
    OpenOhmmeter();
    Add("-50");
    EXPECT_EQ(Rows().back(), "2 | 2 | -50");
    PressPreview();
    EXPECT_EQ(Design.TicDeflection[1][2], 2);
    EXPECT_TRUE(said.empty());
}

TEST_F(OhmmeterPageTest, TabFollowsReadingOrder) {
    OpenOhmmeter();
    Compute("100", "100");
    ExpectTabOrder("txtEnterMidscale txtEnterResistance cmdComputeDeflection cmdAddToList "
                   "cmdIgnoreEntry cmdPreview cmdIgnoreAndReturn Tic0 txtLabel0 Major0");
}

} // namespace
} // namespace vernacle::test
