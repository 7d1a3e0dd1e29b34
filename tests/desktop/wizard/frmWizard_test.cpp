// The wizard's first page on its own controls, from an empty page to a printed plate.
#include "desktop/wizard/frmWizard.h"

#include "desktop/app/frmOpening.h"
#include "engine/illustrations/schematicmarks.h"
#include "engine/wizard/wizardsteps.h"
#include "support/formtest.h"
#include "support/pdfreader.h"

namespace vernacle::test {
namespace {

constexpr const char* kTexts[] = {"90", "60",  "12", "10", "70", "100", "25", "4",  "2.5",
                                  "5",  "2.5", "2",  "45", "9",  "5",   "30", "30", "5"};

class WizardTest : public FormTest {
protected:
    void OpenWizard() { OpenPage("frmWizard"); }

    static std::string BoxName(int step) {
        return WizardSteps()[static_cast<std::size_t>(step - 1)].box;
    }
    static std::string Name(const char* part, int step) { return part + std::to_string(step); }

    bool IsStepShown(int step) const {
        const bool shown = Find(BoxName(step)).isVisible();
        EXPECT_EQ(Find(Name("lblStep", step)).isVisible(), shown);
        EXPECT_EQ(Find(Name("cmdEnter", step)).isVisible(), shown);
        return shown;
    }

    void Enter(int step, const std::string& text) const {
        Type(BoxName(step), text);
        Click(Name("cmdEnter", step));
    }
    void EnterAllUpTo(int last) const {
        for (int step = 1; step <= last; ++step) {
            Enter(step, kTexts[step - 1]);
        }
    }
};

TEST_F(WizardTest, StartsWithTheFirstStep) {
    Design.HelpTopic = 12;
    OpenWizard();
    EXPECT_EQ(Page().windowTitle(), QLatin1String("Vernacle - Design Wizard Part 1"));
    for (int step = 1; step <= 18; ++step) {
        EXPECT_EQ(IsStepShown(step), step == 1);
        EXPECT_EQ(Find<QPushButton>(Name("cmdEnter", step)).text(), QLatin1String("Enter"));
        EXPECT_EQ(Shown(Name("lblStep", step)),
                  WizardSteps()[static_cast<std::size_t>(step - 1)].caption);
    }
    ExpectShown({{"lblHeading", "Design Wizard - Part 1"},
                 {"cmdAccept", "Accept and go to Part 2"},
                 {"cmdExit", "Restart program"}});
    EXPECT_EQ(Design.HelpTopic, 1);
    EXPECT_EQ(Shown("Label1"), WizardPrompt(Design, 1));
    EXPECT_FALSE(Find("Label2").isVisible());
    EXPECT_EQ(TextsOf("picSchematic").back(), TopicCaption(1));
}

TEST_F(WizardTest, AcceptedStepsLeadToTheNext) {
    OpenWizard();
    for (int step = 1; step <= 18; ++step) {
        SCOPED_TRACE(step);
        EXPECT_TRUE(IsStepShown(step));
        Enter(step, kTexts[step - 1]);
        EXPECT_FALSE(Find(Name("cmdEnter", step)).isEnabled());
        EXPECT_TRUE(Find(BoxName(step)).isEnabled()) << "can be overtyped";
        EXPECT_EQ(TextOf(BoxName(step)),
                  " " + std::string(step == 9 || step == 11 ? "2.5" : kTexts[step - 1]));
        const int topic = WizardSteps()[static_cast<std::size_t>(step - 1)].nextTopic;
        EXPECT_EQ(Design.HelpTopic, topic);
        EXPECT_EQ(Shown("Label1"), WizardPrompt(Design, topic));
        EXPECT_EQ(CallsOf("picSchematic").empty(), false);
        if (topic != 0) {
            EXPECT_EQ(TextsOf("picSchematic").back(), TopicCaption(topic));
        } else {
            EXPECT_TRUE(TextsOf("picSchematic").empty()) << "cleared";
        }
        if (step < 18) {
            EXPECT_EQ(Page().focusWidget()->objectName().toStdString(), BoxName(step + 1));
        }
    }
    EXPECT_TRUE(Find("Label2").isVisible());
    EXPECT_EQ(Shown("Label2"),
              "The fullscale value in units (volts, amps, etc.) has been temporarily set to be the "
              "same as the number of ticmarks. You may change this later. You now have a simple "
              "scale which can be added on to and edited upon return to the main part of the "
              "program. ");
    EXPECT_TRUE(said.empty());
}

TEST_F(WizardTest, RefusalsStayInTheStep) {
    OpenWizard();
    Enter(1, "200");
    EXPECT_EQ(said, Strings{"information: Please enter 20 minimum to 180 maximum"});
    EXPECT_EQ(TextOf(BoxName(1)), "");
    EXPECT_EQ(Page().focusWidget()->objectName().toStdString(), BoxName(1));
    EXPECT_FALSE(IsStepShown(2));
    EXPECT_TRUE(Find("cmdEnter1").isEnabled());
    EXPECT_EQ(Design.HelpTopic, 1);
    said.clear();
    Enter(1, "90");
    EXPECT_TRUE(said.empty());
    EXPECT_TRUE(IsStepShown(2));
}

TEST_F(WizardTest, MessagesAndAcceptanceDiffer) {
    OpenWizard();
    Enter(1, "90");
    Enter(2, "15"); // the message would speak of 20
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.PlateHeight, 15);
    for (int step = 3; step <= 8; ++step) {
        Enter(step, kTexts[step - 1]);
    }
    Enter(9, ".5");
    EXPECT_EQ(said, Strings{"information: Please enter .5 minimum to  4 maximum"});
    said.clear();
    Enter(9, "2");
    Enter(10, "5");
    Enter(11, "2");
    Enter(12, "2");
    Enter(13, "16");
    EXPECT_EQ(said, Strings{"information: Please enter greater than zero to 15 maximum"});
    said.clear();
    Enter(13, "14");
    Enter(14, "9");
    Enter(15, "5");
    Enter(16, "10");
    Enter(17, "30");
    Enter(18, "21");
    EXPECT_EQ(said, Strings{"information: Please enter greater than 0 to 10 maximum"});
    said.clear();
    Enter(18, "20");
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(Design.MajorEveryHowMany[1], 20);
}

TEST_F(WizardTest, ReturnEnters) {
    OpenWizard();
    Type(BoxName(1), "90");
    QTest::keyClick(&Box(BoxName(1)), Qt::Key_Return);
    EXPECT_TRUE(IsStepShown(2));
    EXPECT_EQ(Design.PlateWidth, 90);
}

TEST_F(WizardTest, AcceptAtOnceGivesTheUsualDesign) {
    OpenWizard();
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(PageName(), "frmWizardPart2");
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_EQ(Design.PlateHeight, 50);
    EXPECT_EQ(Design.ScaleTitle[1], "Wizard Title");
    EXPECT_EQ(Design.NrOfTicmarks[1], 50);
}

TEST_F(WizardTest, AcceptReadsTheBoxesAgain) {
    OpenWizard();
    EnterAllUpTo(4);
    Type(BoxName(1), "110");
    Type(BoxName(3), "0");
    Type(BoxName(4), "0");
    EXPECT_EQ(Design.PlateWidth, 90) << "not before";
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(Design.PlateWidth, 110);
    EXPECT_EQ(Design.PlateHeight, 60);
    EXPECT_EQ(Design.BottomToBearing, 1);
    EXPECT_EQ(Design.BottomToHoles, 1);
    EXPECT_EQ(Design.HoleSeparation, 100) << "of a step not reached";
}

TEST_F(WizardTest, RestartReturnsWithTheDesign) {
    OpenWizard();
    EnterAllUpTo(2);
    ClickAndSettle("cmdExit");
    EXPECT_EQ(PageName(), "frmOpening");
    EXPECT_EQ(Design.PlateWidth, 90);
    EXPECT_EQ(Design.PlateHeight, 60);
}

// What a newcomer does: eighteen values, a nudge, the preview, a sheet of paper.
TEST_F(WizardTest, FromAnEmptyPageToAPrintedPlate) {
    OpenPage("frmOpening");
    dynamic_cast<frmOpening&>(Page()).StartNewDesign();
    Settle();
    ASSERT_EQ(PageName(), "frmWizard");
    EnterAllUpTo(18);
    ClickAndSettle("cmdAccept");
    ASSERT_EQ(PageName(), "frmWizardPart2");
    StepUp("UpDown2");
    EXPECT_EQ(Design.BottomToTitle[1], 31);
    ClickAndSettle("cmdAccept");
    ASSERT_EQ(PageName(), "frmPreview");
    ClickAndAnswer("Print", PrintTo(Path("plate.pdf")));
    ASSERT_TRUE(Exists("plate.pdf"));
    Strings words;
    for (const Word& word : ReadPdfWords(Path("plate.pdf"))) {
        words.push_back(word.text);
    }
    for (const char* word : {"Wizard", "Title", "0", "5", "25", "30"}) {
        EXPECT_NE(std::find(words.begin(), words.end(), word), words.end()) << word;
    }
    const SvgPicture sheet = ReadPdf(Path("plate.pdf"));
    EXPECT_GT(sheet.shapes.size(), 31U);
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace vernacle::test
