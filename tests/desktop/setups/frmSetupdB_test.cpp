// The decibel setup on its own controls.
#include "desktop/setups/frmSetupdB.h"

#include "desktop/setups/setuptest.h"

namespace vernacle::test {
namespace {

class DecibelPageTest : public SetupFormTest {
protected:
    void OpenDecibel() { OpenSetup("frmSetupdB"); }

    void Enter(const std::string& box, const std::string& text) const {
        Type(box, text);
        Click("cmdEnter");
    }

    // "Tic# | deflection | label" as a row shows it.
    std::string RowShown(int row) const {
        return Shown(RowName("Tic", row)) + " | " + Shown(RowName("DeflectLabel", row)) + " | " +
               Shown(RowName("Value", row));
    }

    // Rows of which the five parts show.
    int RowsShown() const {
        int rows = 0;
        for (int row = 0; row < kDecibelRows; ++row) {
            const bool shown = IsShown(RowName("Value", row));
            for (const char* part : {"fraTics", "fraMajorMinor", "fraPrintLabel", "DeflectLabel"}) {
                EXPECT_EQ(IsShown(RowName(part, row)), shown) << part << row;
            }
            rows += shown ? 1 : 0;
        }
        return rows;
    }
};

TEST_F(DecibelPageTest, CaptionsAndStartingState) {
    OpenDecibel();
    EXPECT_EQ(Page().windowTitle(), QLatin1String("Vernacle - dB setup"));
    const std::tuple<const char*, const char*, const char*, const char*> entries[] = {
        {"lblFullScaledB", "Full-scale dB value:", "txtFullScaledB", "0"},
        {"lblNrOfTicmarks", "Number of ticmarks:", "txtNrOfTicmarks", "11"},
        {"lblLinearityExponent", "Linearity exponent:", "txtLinearityExponent", "1"},
        {"lblFullscaleMultiplier", "Fullscale multiplier:", "txtFullscaleMultiplier", "1"}};
    for (const auto& [label, caption, box, start] : entries) {
        EXPECT_EQ(Shown(label), caption);
        EXPECT_EQ(TextOf(box), start);
        EXPECT_EQ(Box(box).accessibleName().toStdString(), caption);
    }
    ExpectShown({{"fraUnlabelledAtBottom", "Unlabelled ticmark at zero deflection?"},
                 {"fraPrefix", "Prefix  '+'  to positive decibel labels?"},
                 {"cmdEnter", "Enter"},
                 {"cmdPreview", "Preview"},
                 {"cmdIgnore", "Ignore; just return to Scale Design page"},
                 {"cmdAccept", "Accept and return to Scale Design page"}});
    ExpectSelected({"optUnlabelledAtBottomYes", "optY"}, true);
    ExpectEnabled({"cmdEnter", "cmdPreview", "cmdIgnore", "cmdAccept"}, true);
    EXPECT_EQ(Headings(), (Strings{"Tic#:", "Deflection:", "Label:", "Print label?", "Major/minor?",
                                   "Print tic?"}));
    for (int row = 0; row < kDecibelRows; ++row) {
        EXPECT_TRUE(IsSelected(RowName("PrintTicYes", row)));
        EXPECT_EQ(IsSelected(RowName("Major", row)), row == 0);
        for (const char* option : {"Minor", "PrintLabelYes", "PrintLabelNo"}) {
            EXPECT_FALSE(IsSelected(RowName(option, row))) << option << row;
        }
    }
}

TEST_F(DecibelPageTest, ComputesAtItsLoad) {
    OpenDecibel();
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 11);
    EXPECT_EQ(RowShown(0), "0 (top) | 1 | 0");
    EXPECT_EQ(RowShown(1), "1 | .8912509 | -1");
    EXPECT_EQ(RowShown(10), "10 | .3162278 | -10");
    EXPECT_EQ(RowShown(11), "(bottom) | 0 | ");
    EXPECT_EQ(RowShown(12), " |  | ");
    EXPECT_EQ(RowsShown(), 12);
    EXPECT_EQ(TicInWords(1, 0), "[0] print major");
    EXPECT_EQ(Design.TicPrintYN[1][11], "Y");
    EXPECT_GE(Design.ScaleColor[1], 0) << "marked on Accept alone";
}

TEST_F(DecibelPageTest, EnterComputesAnew) {
    OpenDecibel();
    Type("txtFullScaledB", "3");
    EXPECT_EQ(RowShown(0), "0 (top) | 1 | 0") << "not before";
    Click("cmdEnter");
    EXPECT_EQ(RowShown(0), "0 (top) | 1 | +3");
    EXPECT_EQ(RowShown(3), "3 | .7079458 | 0");
    Click("optN");
    Click("cmdEnter");
    EXPECT_EQ(RowShown(0), "0 (top) | 1 | 3");
}

struct BoxRow {
    const char* box;
    const char* typed;
    const char* shown;
};

TEST_F(DecibelPageTest, LimitedNumbersAreWrittenBackButTheExponent) {
    const BoxRow rows[] = {
        {"txtFullScaledB", "-0.5", "-1"},         {"txtFullScaledB", "250", "200"},
        {"txtFullScaledB", "-250", "-200"},       {"txtFullScaledB", "2,9", "2"},
        {"txtNrOfTicmarks", "30", "24"},          {"txtNrOfTicmarks", "-30", "24"},
        {"txtNrOfTicmarks", "2.7", "2"},          {"txtNrOfTicmarks", "0", "0"},
        {"txtLinearityExponent", "7", "7"},       {"txtLinearityExponent", "-7", "-7"},
        {"txtFullscaleMultiplier", "2", "1.1"},   {"txtFullscaleMultiplier", "0", ".7"},
        {"txtFullscaleMultiplier", ".95", ".95"},
    };
    OpenDecibel();
    for (const BoxRow& row : rows) {
        Enter(row.box, row.typed);
        EXPECT_EQ(TextOf(row.box), row.shown) << row.box << " " << row.typed;
    }
    EXPECT_EQ(Design.LinearityExponent[1], -4);
    EXPECT_EQ(Design.FullscaleMultiplier[1], 0.95F);
}

TEST_F(DecibelPageTest, LastRowIsTheBottomTics) {
    OpenDecibel();
    Enter("txtNrOfTicmarks", "30");
    EXPECT_EQ(RowsShown(), 25);
    EXPECT_EQ(RowShown(23), "23 | 7.079457E-02 | -23");
    EXPECT_EQ(RowShown(24), "(bottom) | 0 | ");
    Click("optUnlabelledAtBottomNo");
    Click("cmdEnter");
    EXPECT_EQ(RowShown(24), " |  | ");
    EXPECT_EQ(RowsShown(), 25) << "its row shows all the same";
    EXPECT_EQ(Design.UnlabelledBottomTic[1], "N");
    EXPECT_EQ(Design.TicPrintYN[1][24], "N");
}

TEST_F(DecibelPageTest, NoTicsLeaveTheBottomTic) {
    OpenDecibel();
    Enter("txtNrOfTicmarks", "0");
    EXPECT_EQ(RowsShown(), 1);
    EXPECT_EQ(RowShown(0), "(bottom) | 0 | ");
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 0);
    EXPECT_EQ(Design.TicPrintYN[1][0], "Y");
}

TEST_F(DecibelPageTest, ChoicesOfTheRowsAreStored) {
    OpenDecibel();
    Click("PrintLabelYes1");
    Click("Major2");
    Click("PrintTicNo3");
    Click("Minor0");
    Click("cmdEnter");
    EXPECT_EQ(TicInWords(1, 0), "[0] print");
    EXPECT_EQ(TicInWords(1, 1), "[-1] print label");
    EXPECT_EQ(TicInWords(1, 2), "[-2] print major");
    EXPECT_EQ(TicInWords(1, 3), "[-3]");
}

TEST_F(DecibelPageTest, PreviewComputesAndShows) {
    OpenDecibel();
    Type("txtFullScaledB", "6");
    Click("PrintLabelYes0");
    Click("PrintLabelYes6");
    PressPreview([](QWidget& form) { EXPECT_EQ(TextsOn(form), (Strings{"+6", "0"})); });
    EXPECT_EQ(Design.TicLabelText[1][0], "+6");
}

TEST_F(DecibelPageTest, AcceptDropsWhatWasTypedAfterwards) {
    OpenDecibel();
    Enter("txtFullScaledB", "3");
    Type("txtFullScaledB", "20");
    Design.ActiveScale = 2;
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.TicLabelText[1][0], "+3");
    EXPECT_EQ(Design.ScaleColor[1], -1);
}

TEST_F(DecibelPageTest, AStoredScaleIsReadBack) {
    OpenDecibel();
    Click("PrintLabelYes0");
    Click("PrintTicNo2");
    Click("Major4");
    Click("Minor0");
    Click("optUnlabelledAtBottomNo");
    Click("optN");
    Type("txtFullScaledB", "3");
    Type("txtNrOfTicmarks", "8");
    Type("txtLinearityExponent", "2");
    Enter("txtFullscaleMultiplier", ".9");
    Design.ActiveScale = 2;
    ClickAndSettle("cmdAccept");
    OpenDecibel();
    ExpectShown({{"txtFullScaledB", "3"},
                 {"txtNrOfTicmarks", "8"},
                 {"txtLinearityExponent", "2"},
                 {"txtFullscaleMultiplier", ".9"}});
    EXPECT_TRUE(IsSelected("PrintLabelYes0"));
    EXPECT_FALSE(IsSelected("PrintLabelYes1"));
    EXPECT_FALSE(IsSelected("PrintTicYes2"));
    EXPECT_TRUE(IsSelected("PrintTicYes3"));
    EXPECT_TRUE(IsSelected("Major4"));
    EXPECT_FALSE(IsSelected("Major0")) << "a stored minor tic";
    EXPECT_EQ(RowShown(0), "0 (top) | .9 | +3");
    // the two questions are no part of what is stored
    EXPECT_TRUE(IsSelected("optUnlabelledAtBottomYes"));
    EXPECT_TRUE(IsSelected("optY"));
    EXPECT_EQ(Design.UnlabelledBottomTic[1], "Y");
    EXPECT_EQ(Design.TicLabelText[1][0], "+3");
}

TEST_F(DecibelPageTest, AScaleOfAnotherSetupIsReadAsOne) {
    Design.ScaleColor[1] = -1;
    Design.SpecialNrOfTicmarks[1] = 114;
    Design.TicLabelText[1][0] = " 0";
    OpenDecibel();
    EXPECT_EQ(TextOf("txtNrOfTicmarks"), "24");
    EXPECT_EQ(TextOf("txtFullScaledB"), "0");
    Design.TicLabelText[1][0] = "E";
    OpenDecibel();
    EXPECT_EQ(TextOf("txtFullScaledB"), "0") << "no number";
}

TEST_F(DecibelPageTest, LongAndAbsurdNumbersAreReadBack) {
    Design.ScaleColor[1] = -1;
    Design.SpecialNrOfTicmarks[1] = 3;
    Design.LinearityExponent[1] = 0.01234567F; // whose text is too long for an entry
    Design.FullscaleMultiplier[1] = 1;
    for (const char* label : {"1E39", "9E99", "123456789"}) {
        Design.TicLabelText[1][0] = label;
        OpenDecibel();
        EXPECT_EQ(TextOf("txtFullScaledB"), "200");
        EXPECT_EQ(Design.LinearityExponent[1], 0.01234567F);
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(DecibelPageTest, LongTextsKeepWhatWasReadBefore) {
    OpenDecibel();
    Enter("txtFullScaledB", "3");
    Paste("txtFullScaledB", "12345678901");
    Click("cmdEnter");
    EXPECT_EQ(TextOf("txtFullScaledB"), "3");
}

TEST_F(DecibelPageTest, BottomTicIsDrawnWithoutALabel) {
    OpenDecibel();
    Paste("txtNrOfTicmarks", "-30");
    for (const int row : {0, 23, 24}) {
        Click(RowName("PrintLabelYes", row));
    }
    PressPreview([](QWidget& form) { EXPECT_EQ(TextsOn(form), (Strings{"0", "-23"})); });
    EXPECT_EQ(RowShown(24), "(bottom) | 0 | ");
}

TEST_F(DecibelPageTest, TabFollowsReadingOrder) {
    OpenDecibel();
    ExpectTabOrder("txtFullScaledB txtNrOfTicmarks txtLinearityExponent txtFullscaleMultiplier "
                   "optUnlabelledAtBottomYes optY cmdEnter cmdPreview cmdIgnore cmdAccept "
                   "PrintLabelYes0");
}

TEST_F(DecibelPageTest, AStandardScaleIsNotReadBack) {
    Design.TicLabelText[1][0] = "77";
    Design.SpecialNrOfTicmarks[1] = 5;
    OpenDecibel();
    EXPECT_EQ(TextOf("txtFullScaledB"), "0");
    EXPECT_EQ(TextOf("txtNrOfTicmarks"), "11");
}

} // namespace
} // namespace vernacle::test
