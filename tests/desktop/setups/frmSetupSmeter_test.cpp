// The S-meter setup on its own controls.
#include "desktop/setups/frmSetupSmeter.h"

#include "desktop/setups/setuptest.h"

namespace vernacle::test {
namespace {

class SmeterPageTest : public SetupFormTest {
protected:
    void OpenSmeter(int scale = 1) { OpenSetup("frmSetupSmeter", scale); }
};

TEST_F(SmeterPageTest, CaptionsAndStartingState) {
    OpenSmeter();
    EXPECT_EQ(Page().windowTitle(), QLatin1String("Vernacle - S-meter setup"));
    const char* const options[] = {"S 0-9", "S 0-9, +40", "S 0-9, +50", "S 0-9, +60"};
    for (int option = 1; option <= 4; ++option) {
        const std::string name = "Option" + std::to_string(option);
        EXPECT_EQ(Option(name).text(), QLatin1String(options[option - 1]));
        EXPECT_FALSE(IsSelected(name));
        EXPECT_TRUE(Find("fraScaletype").isAncestorOf(&Option(name)));
    }
    EXPECT_EQ(Find<QGroupBox>("fraScaletype").title(), QLatin1String("Scale type"));
    EXPECT_EQ(Shown("lblLinearityExponent"), "Linearity exponent:");
    EXPECT_EQ(TextOf("txtLinearityExponent"), "1");
    EXPECT_EQ(Find<QPushButton>("cmdAccept").text(),
              QLatin1String("Accept and return to Scale Design page"));
    EXPECT_EQ(Find<QPushButton>("cmdIgnore").text(),
              QLatin1String("Ignore; just return to Scale Design page"));
    EXPECT_EQ(Page().findChild<QWidget*>(QStringLiteral("cmdPreview")), nullptr);
}

TEST_F(SmeterPageTest, NothingIsComputedOrDrawnAtTheLoad) {
    Design.ScaleColor[1] = -1;
    Design.LinearityExponent[1] = 3;
    SpoilTables(1);
    OpenSmeter();
    EXPECT_EQ(TicInWords(1, 5), "[old] print label major");
    EXPECT_EQ(TextOf("txtLinearityExponent"), "1") << "nothing is read back";
    EXPECT_FALSE(IsSelected("Option1"));
    EXPECT_TRUE(CallsOf("picPlate").empty());
}

TEST_F(SmeterPageTest, OptionsComputeAndDraw) {
    OpenSmeter();
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
    EXPECT_EQ(TextsOf("picPlate"),
              (std::vector<std::string>{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "+10",
                                        "+20", "+30", "+40", "+50", "+60"}));
    EXPECT_GE(Design.ScaleColor[1], 0);
}

TEST_F(SmeterPageTest, AChangedExponentDeselectsAndWaits) {
    OpenSmeter();
    Click("Option1");
    Type("txtLinearityExponent", "2");
    for (int option = 1; option <= 4; ++option) {
        EXPECT_FALSE(IsSelected("Option" + std::to_string(option)));
    }
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_EQ(Design.TicDeflection[1][3], 0.333333343F) << "the tics stay";
    Click("Option1");
    EXPECT_EQ(Design.LinearityExponent[1], 2);
    EXPECT_EQ(Design.TicDeflection[1][3], 0.111111119F);
}

TEST_F(SmeterPageTest, AcceptWithoutAnOptionKeepsTheOldTics) {
    OpenSmeter();
    Click("Option1");
    Type("txtLinearityExponent", "2");
    Design.ActiveScale = 2;
    Press("cmdAccept");
    EXPECT_EQ(Design.TicDeflection[1][3], 0.333333343F);
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_EQ(Design.ScaleColor[1], -1);
}

TEST_F(SmeterPageTest, AcceptAtOnceMarksWhateverTheScaleHas) {
    SpoilTables(1);
    OpenSmeter();
    Design.ActiveScale = 2;
    Press("cmdAccept");
    EXPECT_EQ(Design.ScaleColor[1], -1);
    EXPECT_EQ(TicInWords(1, 5), "[old] print label major");
}

TEST_F(SmeterPageTest, ExponentIsClampedSilently) {
    OpenSmeter();
    Type("txtLinearityExponent", "9");
    Click("Option1");
    EXPECT_EQ(Design.LinearityExponent[1], 4);
    EXPECT_EQ(TextOf("txtLinearityExponent"), "9");
    EXPECT_TRUE(said.empty());
}

TEST_F(SmeterPageTest, LongExponentsKeepTheDesigns) {
    Design.LinearityExponent[1] = 2;
    OpenSmeter();
    Paste("txtLinearityExponent", "1.000000000");
    Click("Option1");
    EXPECT_EQ(Design.LinearityExponent[1], 2);
}

TEST_F(SmeterPageTest, OptionsAreChosenByKeys) {
    OpenSmeter();
    Find("Option1").setFocus();
    QTest::keyClick(&Option("Option1"), Qt::Key_Space);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 9);
    QTest::keyClick(&Option("Option1"), Qt::Key_Down);
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 94);
}

TEST_F(SmeterPageTest, NegativeExponentIsToldAndThePageStays) {
    OpenSmeter();
    Click("Option1");
    const std::vector<std::string> before = CallsOf("picPlate");
    Type("txtLinearityExponent", "-1");
    for (int times = 0; times < 2; ++times) {
        said.clear();
        Click("Option2");
        ASSERT_EQ(said.size(), 2U);
        EXPECT_EQ(said[0], "beep");
        EXPECT_NE(said[1].find("exponent"), std::string::npos);
        EXPECT_EQ(PageName(), "frmSetupSmeter");
        EXPECT_EQ(Design.LinearityExponent[1], -1) << "stays stored";
        EXPECT_EQ(CallsOf("picPlate"), before);
    }
    Type("txtLinearityExponent", "1");
    Click("Option2");
    EXPECT_EQ(Design.SpecialNrOfTicmarks[1], 94);
}

TEST_F(SmeterPageTest, OnTheSecondScaleTheFirstIsWipedToo) {
    SpoilTables(1);
    OpenSmeter(2);
    Click("Option1");
    EXPECT_EQ(TicInWords(1, 5), "[]");
    EXPECT_EQ(TicInWords(2, 5), "[5] print label major");
}

} // namespace
} // namespace vernacle::test
