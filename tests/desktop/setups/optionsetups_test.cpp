// The setups of the S-meter and of the VSWR scale, which offer one choice of ready scales and bend
// it by an exponent.
#include "desktop/setups/setuptest.h"

namespace vernacle::test {
namespace {

struct OptionSetup {
    const char* page;
    const char* title;
    const char* frame;
    std::vector<const char*> options;
    const char* option; // one of them, and what it makes of a tic with exponents 1 and 2
    int tic;
    float linear;
    float squared;
    const char* other; // another, and its number of tics
    int otherTics;
};

const OptionSetup kOptionSetups[] = {
    {"frmSetupSmeter",
     "Vernacle - S-meter setup",
     "Scale type",
     {"S 0-9", "S 0-9, +40", "S 0-9, +50", "S 0-9, +60"},
     "Option1",
     3,
     0.333333343F,
     0.111111119F,
     "Option2",
     94},
    {"frmSetupVSWR",
     "Vernacle - VSWR setup",
     "Scale stepsize",
     {"0.2", "0.5", "1.0"},
     "Option3",
     2,
     0.5F,
     0.25F,
     "Option1",
     46},
};

class OptionSetupTest : public SetupFormTest, public ::testing::WithParamInterface<OptionSetup> {
protected:
    const OptionSetup& row = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Setups, OptionSetupTest, ::testing::ValuesIn(kOptionSetups),
                         [](const auto& setup) { return std::string(setup.param.page); });

TEST_P(OptionSetupTest, CaptionsAndStartingState) {
    OpenSetup(row.page);
    EXPECT_EQ(Page().windowTitle(), QLatin1String(row.title));
    int number = 0;
    for (const char* caption : row.options) {
        const auto& option = Option("Option" + std::to_string(++number));
        EXPECT_EQ(option.text(), QLatin1String(caption));
        EXPECT_FALSE(option.isChecked());
        EXPECT_TRUE(Find("fraScaletype").isAncestorOf(&option));
    }
    ExpectShown({{"fraScaletype", row.frame},
                 {"lblLinearityExponent", "Linearity exponent:"},
                 {"txtLinearityExponent", "1"},
                 {"cmdAccept", "Accept and return to Scale Design page"},
                 {"cmdIgnore", "Ignore; just return to Scale Design page"}});
    EXPECT_EQ(Page().findChild<QWidget*>(QStringLiteral("cmdPreview")), nullptr);
}

TEST_P(OptionSetupTest, NothingIsReadBackAndAcceptMarksWhateverIsThere) {
    Design.ScaleColor[1] = -1;
    Design.LinearityExponent[1] = 3;
    SpoilTables(1);
    OpenSetup(row.page);
    EXPECT_EQ(TicInWords(1, 5), "[old] print label major");
    EXPECT_EQ(TextOf("txtLinearityExponent"), "1");
    EXPECT_FALSE(IsSelected("Option1"));
    EXPECT_TRUE(CallsOf("picPlate").empty()) << "nothing is drawn yet";
    Design.ScaleColor[1] = 0;
    Design.ActiveScale = 2;
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.ScaleColor[1], -1);
    EXPECT_EQ(TicInWords(1, 5), "[old] print label major");
}

TEST_P(OptionSetupTest, AChangedExponentDeselectsAndWaits) {
    OpenSetup(row.page);
    Click(row.option);
    Type("txtLinearityExponent", "2");
    for (std::size_t option = 1; option <= row.options.size(); ++option) {
        EXPECT_FALSE(IsSelected("Option" + std::to_string(option)));
    }
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_EQ(Design.TicDeflection[1][row.tic], row.linear) << "the tics stay";
    Click(row.option);
    EXPECT_EQ(Design.LinearityExponent[1], 2);
    EXPECT_EQ(Design.TicDeflection[1][row.tic], row.squared);
}

TEST_P(OptionSetupTest, AcceptWithoutAnOptionKeepsTheOldTics) {
    OpenSetup(row.page);
    Click(row.option);
    Type("txtLinearityExponent", "2");
    Design.ActiveScale = 2;
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.TicDeflection[1][row.tic], row.linear);
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_EQ(Design.ScaleColor[1], -1);
}

TEST_P(OptionSetupTest, ExponentIsClampedSilently) {
    OpenSetup(row.page);
    Type("txtLinearityExponent", "-9");
    Click(row.option);
    EXPECT_EQ(Design.LinearityExponent[1], -4);
    EXPECT_EQ(TextOf("txtLinearityExponent"), "-9");
    said.clear(); // of what cannot be bent
    Type("txtLinearityExponent", "9");
    Click(row.option);
    EXPECT_EQ(Design.LinearityExponent[1], 4);
    EXPECT_EQ(TextOf("txtLinearityExponent"), "9");
    EXPECT_TRUE(said.empty());
}

TEST_P(OptionSetupTest, NegativeExponentIsToldAndThePageStays) {
    for (const bool drawn : {false, true}) {
        OpenSetup(row.page);
        if (drawn) {
            Click(row.option);
        }
        const Strings before = CallsOf("picPlate");
        EXPECT_EQ(before.empty(), !drawn);
        Type("txtLinearityExponent", "-1");
        for (int times = 0; times < 2; ++times) {
            said.clear();
            Click(row.other);
            ASSERT_EQ(said.size(), 2U);
            EXPECT_EQ(said[0], "beep");
            EXPECT_NE(said[1].find("exponent"), std::string::npos);
            EXPECT_EQ(PageName(), row.page);
            EXPECT_EQ(Design.LinearityExponent[1], -1) << "stays stored";
            EXPECT_EQ(CallsOf("picPlate"), before);
        }
    }
    Type("txtLinearityExponent", "1");
    Click(row.other);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], row.otherTics);
}

class SmeterPageTest : public SetupFormTest {};

TEST_F(SmeterPageTest, OptionsComputeAndDraw) {
    OpenSetup("frmSetupSmeter");
    const int lasts[] = {9, 94, 104, 114};
    for (int option = 1; option <= 4; ++option) {
        Click("Option" + std::to_string(option));
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], lasts[option - 1]);
        EXPECT_EQ(Design.CurrentScale, 1) << "its drawing leaves it alone";
    }
    EXPECT_EQ(Design.TicLabelText[1][54], " 9");
    EXPECT_EQ(Design.TicDeflection[1][54], static_cast<float>(54. / 114));
    EXPECT_EQ(Design.TicLabelText[1][114], "+60");
    EXPECT_EQ(Design.TicDeflection[1][114], 1);
    EXPECT_EQ(TextsOf("picPlate"), (Strings{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "+10",
                                            "+20", "+30", "+40", "+50", "+60"}));
    EXPECT_GE(Design.ScaleColor[1], 0);
}

TEST_F(SmeterPageTest, LongExponentsKeepTheDesigns) {
    Design.LinearityExponent[1] = 2;
    OpenSetup("frmSetupSmeter");
    Paste("txtLinearityExponent", "1.000000000");
    Click("Option1");
    EXPECT_EQ(Design.LinearityExponent[1], 2);
}

TEST_F(SmeterPageTest, OptionsAreChosenByKeys) {
    OpenSetup("frmSetupSmeter");
    Find("Option1").setFocus();
    QTest::keyClick(&Option("Option1"), Qt::Key_Space);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 9);
    QTest::keyClick(&Option("Option1"), Qt::Key_Down);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 94);
}

TEST_F(SmeterPageTest, OnTheSecondScaleTheFirstIsWipedToo) {
    SpoilTables(1);
    OpenSetup("frmSetupSmeter", 2);
    Click("Option1");
    EXPECT_EQ(TicInWords(1, 5), "[]");
    EXPECT_EQ(TicInWords(2, 5), "[5] print label major");
}

class VswrPageTest : public SetupFormTest {};

TEST_F(VswrPageTest, OptionsComputeAndDraw) {
    OpenSetup("frmSetupVSWR");
    const int lasts[] = {46, 19, 10};
    const Strings whole = {"1", "2", "3", "4", "5", "10"};
    for (int option = 3; option >= 1; --option) {
        Click("Option" + std::to_string(option));
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], lasts[option - 1]);
        EXPECT_EQ(Design.CurrentScale, 1);
        if (option > 1) {
            EXPECT_EQ(TextsOf("picPlate"), whole);
        }
    }
    EXPECT_EQ(TextsOf("picPlate"),
              (Strings{"1", "1.2", "1.4", "1.6", "1.8", "2", "3", "4", "5", "10"}));
}

TEST_F(VswrPageTest, AcceptLeavesNoWayBack) {
    const QPointer<QWidget> page = &OpenSetup("frmSetupVSWR");
    bool ignoreWasEnabled = true;
    auto& ignore = Find<QPushButton>("cmdIgnore");
    QObject::connect(&Find<QPushButton>("cmdAccept"), &QPushButton::clicked, &ignore,
                     [&] { ignoreWasEnabled = ignore.isEnabled(); });
    Click("cmdAccept");
    EXPECT_FALSE(ignoreWasEnabled);
    Settle();
    EXPECT_TRUE(page.isNull());
    EXPECT_EQ(PageName(), "frmScales");
}

TEST_F(VswrPageTest, FailingDrawingIsReportedAndThePageStays) {
    OpenSetup("frmSetupVSWR");
    Design.BottomToScaleCeiling[1] = -20;
    Design.BottomToBearing = 10;
    Design.ActualVirtualOffset = 30; // no radius is left
    Click("Option3");
    ASSERT_EQ(said.size(), 1U);
    EXPECT_TRUE(said[0].starts_with(
        "failure: We have a problem.\n\nWe are at SetupPreview errorhandler 337\n"))
        << said[0];
    EXPECT_EQ(Design.CurrentScale, 1);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 10) << "what was computed stays";
}

} // namespace
} // namespace vernacle::test
