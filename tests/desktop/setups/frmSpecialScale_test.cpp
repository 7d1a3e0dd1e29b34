// The setup of a typed scale on its own controls.
#include "desktop/setups/frmSpecialScale.h"

#include "desktop/setups/setuptest.h"
#include "engine/setups/special.h"

namespace vernacle::test {
namespace {

constexpr const char* kRange =
    "information: The value for deflection must be 0 minimum to 1.0 maximum";

class SpecialPageTest : public SetupFormTest {
protected:
    void OpenSpecial() { OpenSetup("frmSpecialScale"); }

    void TypeRow(int row, const std::string& deflection, const std::string& label) const {
        Type(RowName("txtDeflection", row), deflection);
        Type(RowName("txtLabel", row), label);
    }

    // Rows of which the three parts show.
    int RowsShown() const {
        int rows = 0;
        for (int row = 0; row < kSpecialRows; ++row) {
            const bool shown = IsShown(RowName("txtDeflection", row));
            EXPECT_EQ(IsShown(RowName("txtLabel", row)), shown);
            EXPECT_EQ(IsShown(RowName("fraMajorMinor", row)), shown);
            rows += shown ? 1 : 0;
        }
        return rows;
    }
};

TEST_F(SpecialPageTest, CaptionsAndStartingState) {
    OpenSpecial();
    EXPECT_EQ(Page().windowTitle(), QLatin1String("Vernacle - Special scale setup"));
    ExpectShown(
        {{"lblNrOfTicmarks", "Number of ticmarks:"},
         {"lblFullScale", "Full-scale deflection is 1.0; for a \"blank\" label, use a space."},
         {"cmdPreview", "Preview"},
         {"cmdAccept", "Accept and return to Scales page"},
         {"cmdIgnore", "Ignore and return to Scales page"}});
    ExpectEnabled({"cmdPreview", "cmdAccept", "cmdIgnore"}, true);
    EXPECT_EQ(Headings(), (Strings{"Tic#:", "Deflection:", "Label:", "Major/minor?"}));
    EXPECT_EQ(TextOf("txtNrOfTicmarks"), "1") << "of the design's 0";
    EXPECT_EQ(RowsShown(), 2);
    ExpectShown({{"Tic0", "0"}, {"Tic1", "1 (top)"}, {"Tic2", ""}});
    for (int row = 0; row < kSpecialRows; ++row) {
        EXPECT_FALSE(IsSelected(RowName("Major", row)));
    }
}

TEST_F(SpecialPageTest, AppliesAtItsLoad) {
    SpoilTables(1);
    Design.SpecialNrOfTicmarks[1] = 4;
    OpenSpecial();
    EXPECT_EQ(TextOf("txtNrOfTicmarks"), "4");
    EXPECT_EQ(DeflectionsOf(1, 4), std::vector<float>(5, 0)) << "empty deflections are 0";
    EXPECT_EQ(TicInWords(1, 4), "[] print label");
    EXPECT_EQ(Design.StandardLabel[1][0], "");
    EXPECT_GE(Design.ScaleColor[1], 0);
}

struct CountRow {
    const char* typed;
    const char* shown;
    int rows;
};

TEST_F(SpecialPageTest, CountIsHeldAtEachChange) {
    const CountRow rows[] = {{"0", "1", 2},   {"31", "30", 31}, {"99", "30", 31}, {"-5", "5", 6},
                             {"2.7", "2", 3}, {"abc", "1", 2},  {"12", "12", 13}};
    OpenSpecial();
    for (const CountRow& row : rows) {
        Paste("txtNrOfTicmarks", row.typed);
        EXPECT_EQ(TextOf("txtNrOfTicmarks"), row.shown) << row.typed;
        EXPECT_EQ(RowsShown(), row.rows);
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], row.rows - 1);
        EXPECT_EQ(Shown(RowName("Tic", row.rows - 1)), std::to_string(row.rows - 1) + " (top)");
        EXPECT_EQ(Shown("Tic0"), "0");
    }
}

// Typed, the count is held at each key and rewritten when its box is left.
TEST_F(SpecialPageTest, CountIsTypedDigitByDigit) {
    const CountRow rows[] = {{"12", "12", 13}, {"5", "5", 6},   {"0", "1", 2}, {"300", "30", 31},
                             {"-5", "5", 6},   {"2.7", "2", 3}, {"x", "1", 2}, {"07", "7", 8}};
    OpenSpecial();
    for (const CountRow& row : rows) {
        SCOPED_TRACE(row.typed);
        Type("txtNrOfTicmarks", row.typed);
        EXPECT_EQ(TextOf("txtNrOfTicmarks"), row.typed);
        EXPECT_EQ(RowsShown(), row.rows);
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], row.rows - 1);
        QTest::keyClick(&Box("txtNrOfTicmarks"), Qt::Key_Tab);
        EXPECT_EQ(TextOf("txtNrOfTicmarks"), row.shown);
        EXPECT_EQ(RowsShown(), row.rows);
    }
    Type("txtNrOfTicmarks", "");
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 1);
    Click("txtDeflection0");
    EXPECT_EQ(TextOf("txtNrOfTicmarks"), "1");
}

TEST_F(SpecialPageTest, HiddenRowsKeepTheirEntries) {
    OpenSpecial();
    Paste("txtNrOfTicmarks", "5");
    TypeRow(5, ".75", "five");
    Paste("txtNrOfTicmarks", "2");
    EXPECT_EQ(Design.TicPrintYN[1][5], "N");
    Paste("txtNrOfTicmarks", "6");
    EXPECT_EQ(TextOf("txtDeflection5"), ".75");
    EXPECT_EQ(Design.TicDeflection[1][5], 0.75F);
    EXPECT_EQ(TicInWords(1, 5), "[five] print label");
}

TEST_F(SpecialPageTest, PreviewShowsWhatWasTyped) {
    OpenSpecial();
    Paste("txtNrOfTicmarks", "2");
    TypeRow(0, "1", "end"); // rows need no order
    TypeRow(1, ".25", " ");
    TypeRow(2, "0", "start");
    Click("Major0");
    PressPreview([](QWidget& form) { EXPECT_EQ(TextsOn(form), (Strings{"end", "", "start"})); });
    EXPECT_EQ(DeflectionsOf(1, 2), (std::vector<float>{1, 0.25F, 0}));
    EXPECT_EQ(TicsInWords(1, 2),
              (Strings{"[end] print label major", "[ ] print label", "[start] print label"}));
    EXPECT_TRUE(said.empty());
    EXPECT_GE(Design.ScaleColor[1], 0) << "marked on Accept";
}

struct FaultRow {
    const char* typed;
    const char* shown;
    float stored;
    const char* stopOfPreview;
};

TEST_F(SpecialPageTest, FaultsAreCorrectedAndToldInTwoWays) {
    const FaultRow rows[] = {{"1.5", "1", 1, "."}, {"-0.1", "0", 0, ""}};
    for (const FaultRow& row : rows) {
        SCOPED_TRACE(row.typed);
        ResetDesign(Design);
        OpenSpecial();
        TypeRow(1, row.typed, "x");
        said.clear();
        PressPreview();
        EXPECT_EQ(said, Strings{kRange + std::string(row.stopOfPreview)});
        EXPECT_EQ(TextOf("txtDeflection1"), row.shown);
        EXPECT_EQ(Design.TicDeflection[1][1], row.stored);
        Type("txtDeflection1", row.typed);
        said.clear();
        Design.ActiveScale = 2;
        ClickAndSettle("cmdAccept");
        EXPECT_EQ(said, Strings{kRange});
        EXPECT_EQ(Design.TicDeflection[1][1], row.stored);
        EXPECT_EQ(Design.ScaleColor[1], -1);
        EXPECT_EQ(PageName(), "frmScales") << "a wrong entry stops nothing";
    }
}

TEST_F(SpecialPageTest, EachFaultyRowHasItsOwnMessage) {
    OpenSpecial();
    Paste("txtNrOfTicmarks", "3");
    TypeRow(0, "2", "a");
    TypeRow(1, ".5", "b");
    TypeRow(2, "-2", "c");
    TypeRow(3, "3", "d");
    PressPreview();
    EXPECT_EQ(said, (Strings{kRange + std::string("."), kRange, kRange + std::string(".")}));
    EXPECT_EQ(DeflectionsOf(1, 3), (std::vector<float>{1, 0.5F, 0, 1}));
}

TEST_F(SpecialPageTest, CheckedNumbersAreWrittenPlainly) {
    OpenSpecial();
    TypeRow(0, "0,250", "x");
    PressPreview();
    EXPECT_EQ(TextOf("txtDeflection0"), ".25");
    EXPECT_EQ(TextOf("txtDeflection1"), "0") << "an empty one reads as 0";
}

// As everywhere a text of more than ten characters is no entry.
TEST_F(SpecialPageTest, LongTextsAreNoEntries) {
    OpenSpecial();
    Paste("txtDeflection0", "9.090909E-02");
    PressPreview();
    EXPECT_EQ(TextOf("txtDeflection0"), "0");
    EXPECT_EQ(Design.TicDeflection[1][0], 0);
}

TEST_F(SpecialPageTest, AStoredScaleIsReadBack) {
    Design.ScaleColor[1] = -1;
    Design.SpecialNrOfTicmarks[1] = 2;
    const std::pair<float, const char*> tics[] = {{0, "E"}, {0.5F, " / "}, {1, "F"}};
    for (int tic = 0; tic <= 2; ++tic) {
        Design.TicDeflection[1][tic] = tics[tic].first;
        Design.TicLabelText[1][tic] = tics[tic].second;
        Design.TicMajorYN[1][tic] = tic == 1 ? "N" : "Y";
    }
    OpenSpecial();
    ExpectShown({{"txtNrOfTicmarks", "2"},
                 {"txtDeflection1", ".5"},
                 {"txtLabel1", " "},
                 {"txtLabel2", "F"}});
    EXPECT_TRUE(IsSelected("Major0"));
    EXPECT_FALSE(IsSelected("Major1"));
    EXPECT_EQ(TicsInWords(1, 2),
              (Strings{"[E] print label major", "[ ] print label", "[F] print label major"}));
    EXPECT_EQ(DeflectionsOf(1, 2), (std::vector<float>{0, 0.5F, 1}));
}

TEST_F(SpecialPageTest, AScaleOfMoreTicsThanRowsFillsTheRows) {
    Design.ScaleColor[1] = -1;
    Design.SpecialNrOfTicmarks[1] = 114;
    OpenSpecial();
    EXPECT_EQ(TextOf("txtNrOfTicmarks"), "30");
    EXPECT_EQ(RowsShown(), 31);
}

TEST_F(SpecialPageTest, AcceptTakesWhatIsTyped) {
    OpenSpecial();
    TypeRow(0, "0", "L");
    TypeRow(1, "1", "H");
    Click("Major1");
    Design.ActiveScale = 2;
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(TicsInWords(1, 1), (Strings{"[L] print label", "[H] print label major"}));
    EXPECT_EQ(Design.ScaleColor[1], -1);
}

TEST_F(SpecialPageTest, TabFollowsTheRows) {
    OpenSpecial();
    ExpectTabOrder("txtNrOfTicmarks cmdPreview cmdIgnore cmdAccept txtDeflection0 txtLabel0 "
                   "Major0 txtDeflection1");
}

} // namespace
} // namespace vernacle::test
