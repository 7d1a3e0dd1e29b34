// The VSWR setup on its own controls.
#include "desktop/setups/frmSetupVSWR.h"

#include "desktop/setups/setuptest.h"

namespace vernacle::test {
namespace {

class VswrPageTest : public SetupFormTest {
protected:
    void OpenVswr() { OpenSetup("frmSetupVSWR"); }
};

TEST_F(VswrPageTest, CaptionsAndStartingState) {
    OpenVswr();
    EXPECT_EQ(Page().windowTitle(), QLatin1String("Vernacle - VSWR setup"));
    const char* const options[] = {"0.2", "0.5", "1.0"};
    for (int option = 1; option <= 3; ++option) {
        const std::string name = "Option" + std::to_string(option);
        EXPECT_EQ(Option(name).text(), QLatin1String(options[option - 1]));
        EXPECT_FALSE(IsSelected(name));
        EXPECT_TRUE(Find("fraScaletype").isAncestorOf(&Option(name)));
    }
    EXPECT_EQ(Find<QGroupBox>("fraScaletype").title(), QLatin1String("Scale stepsize"));
    EXPECT_EQ(TextOf("txtLinearityExponent"), "1");
    EXPECT_EQ(Shown("lblLinearityExponent"), "Linearity exponent:");
    EXPECT_EQ(Page().findChild<QWidget*>(QStringLiteral("cmdPreview")), nullptr);
    EXPECT_EQ(Find<QPushButton>("cmdAccept").text(),
              QLatin1String("Accept and return to Scale Design page"));
    EXPECT_EQ(Find<QPushButton>("cmdIgnore").text(),
              QLatin1String("Ignore; just return to Scale Design page"));
    EXPECT_TRUE(CallsOf("picPlate").empty()) << "nothing is drawn yet";
}

TEST_F(VswrPageTest, OptionsComputeAndDraw) {
    OpenVswr();
    const int lasts[] = {46, 19, 10};
    const std::vector<std::string> whole = {"1", "2", "3", "4", "5", "10"};
    for (int option = 3; option >= 1; --option) {
        Click("Option" + std::to_string(option));
        EXPECT_EQ(Design.SpecialNrOfTicmarks[1], lasts[option - 1]);
        EXPECT_EQ(Design.CurrentScale, 1);
        if (option > 1) {
            EXPECT_EQ(TextsOf("picPlate"), whole);
        }
    }
    EXPECT_EQ(TextsOf("picPlate"), (std::vector<std::string>{"1", "1.2", "1.4", "1.6", "1.8", "2",
                                                             "3", "4", "5", "10"}));
}

TEST_F(VswrPageTest, AChangedExponentDeselectsAndWaits) {
    OpenVswr();
    Click("Option3");
    Type("txtLinearityExponent", "2");
    for (int option = 1; option <= 3; ++option) {
        EXPECT_FALSE(IsSelected("Option" + std::to_string(option)));
    }
    EXPECT_EQ(Design.TicDeflection[1][2], 0.5F);
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    Design.ActiveScale = 2;
    Press("cmdAccept");
    EXPECT_EQ(Design.TicDeflection[1][2], 0.5F) << "accepting computes nothing";
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_EQ(Design.ScaleColor[1], -1);
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

TEST_F(VswrPageTest, NothingIsReadBackAndAcceptMarksWhateverIsThere) {
    Design.ScaleColor[1] = -1;
    Design.LinearityExponent[1] = 3;
    SpoilTables(1);
    OpenVswr();
    EXPECT_EQ(TextOf("txtLinearityExponent"), "1");
    EXPECT_FALSE(IsSelected("Option1"));
    Design.ScaleColor[1] = 0;
    Design.ActiveScale = 2;
    Press("cmdAccept");
    EXPECT_EQ(Design.ScaleColor[1], -1);
    EXPECT_EQ(TicInWords(1, 5), "[old] print label major");
}

TEST_F(VswrPageTest, ExponentIsClampedSilently) {
    OpenVswr();
    Type("txtLinearityExponent", "-9");
    Click("Option3");
    EXPECT_EQ(Design.LinearityExponent[1], -4);
    EXPECT_EQ(TextOf("txtLinearityExponent"), "-9");
    said.clear(); // of what cannot be bent
    Type("txtLinearityExponent", "9");
    Click("Option3");
    EXPECT_EQ(Design.LinearityExponent[1], 4);
    EXPECT_EQ(TextOf("txtLinearityExponent"), "9");
    EXPECT_TRUE(said.empty());
}

TEST_F(VswrPageTest, NegativeExponentIsToldAndThePageStays) {
    OpenVswr();
    Type("txtLinearityExponent", "-1");
    Click("Option1");
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[0], "beep");
    EXPECT_NE(said[1].find("exponent"), std::string::npos);
    EXPECT_EQ(PageName(), "frmSetupVSWR");
    EXPECT_EQ(Design.LinearityExponent[1], -1);
    EXPECT_TRUE(CallsOf("picPlate").empty());
}

TEST_F(VswrPageTest, FailingDrawingIsReportedAndThePageStays) {
    OpenVswr();
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
