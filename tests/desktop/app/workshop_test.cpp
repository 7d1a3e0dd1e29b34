// The pages with everything in service.
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "engine/scale/scale.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class WorkshopTest : public FormTest {
protected:
    WorkshopTest() {
        StoreService(Program::Workshop);
        ResetDesign(Design);
    }

    // Scale 2 as a setup leaves it, in blue.
    static void GiveSpecialScale() {
        Design.NumberOfScales = 2;
        Design.ScaleColor[1] = 0x0000FF;
        Design.ScaleColor[2] = -0xFF0000;
        Design.SpecialNrOfTicmarks[2] = 2;
        for (int tic = 0; tic <= 2; ++tic) {
            Design.TicDeflection[2][tic] = 0.4F * static_cast<float>(tic);
            Design.TicLabelText[2][tic] = "s" + std::to_string(tic);
        }
    }

    std::size_t CountCalls(const std::string& word) const {
        return Recorded(Picture("picPlate")).Count(word);
    }
};

TEST_F(WorkshopTest, ThePreviewShowsTheTruePlateWithAllOfItsScales) {
    GiveSpecialScale();
    OpenPage("frmPreview");
    const Strings texts = TextsOf("picPlate");
    for (const char* text : {"s0", "s1", "s2", "mm"}) {
        EXPECT_EQ(std::count(texts.begin(), texts.end(), text), 1) << text;
    }
    EXPECT_EQ(CountCalls("PlaceText"), 6U + 3 + 2); // labels and titles
    EXPECT_EQ(Design.NumberOfScales, 2);
    EXPECT_EQ(Design.ScaleColor[2], -0xFF0000);
    for (const char* control : {"txtAspect", "txtAspectUpDown", "UpDown1"}) {
        EXPECT_FALSE(Find(control).isVisible()) << control;
    }
}

TEST_F(WorkshopTest, ThePreviewSaysWhatItLeavesOut) {
    OpenPage("frmPreview");
    EXPECT_EQ(Shown("lblRemarks"), "");
    Design.CorrectionPair[8] = 0; // the fourth point falls back
    OpenPage("frmPlate");
    OpenPage("frmPreview");
    EXPECT_EQ(Shown("lblRemarks"), "The movement's curve does not rise; a straight one is drawn.");
}

// Each is drawn as it stands, and stays when another comes.
TEST_F(WorkshopTest, OverlaysStayUntilTheyAreSwitchedOff) {
    OpenPage("frmPreview");
    const std::size_t bare = CountCalls("Line");
    Click("cmdGrid");
    const std::size_t withGrid = CountCalls("Line");
    EXPECT_GT(withGrid, bare + 50);
    Click("cmdPointer");
    const std::size_t withBoth = CountCalls("Line");
    EXPECT_GT(withBoth, withGrid);
    OpenPage("frmPlate");
    OpenPage("frmPreview");
    EXPECT_EQ(CountCalls("Line"), withBoth);
    Click("cmdGrid");
    Click("cmdPointer");
    EXPECT_EQ(CountCalls("Line"), bare);
}

TEST_F(WorkshopTest, ThePlatePageHasAllInService) {
    OpenPage("frmPlate");
    ExpectEnabled({"Option1", "Option2", "Option6", "optNormal", "optDINquad", "optCircular",
                   "optGraphicYes", "optSoundAll", "cmdStyleHelp", "cmdLinearity", "cmdGetFont",
                   "cmdGetBackgroundColor"},
                  true);
    for (const char* frame : {"fraPlate", "fraGraphic", "fraSound"}) {
        EXPECT_TRUE(Find(frame).isVisible()) << frame;
    }
    Click("Option3");
    Click("optDINquad");
    Click("optCircular");
    OpenPage("frmScales");
    OpenPage("frmPreview");
    OpenPage("frmPlate");
    EXPECT_EQ(Design.NumberOfScales, 3);
    EXPECT_EQ(Design.PlateStyle, 1);
    EXPECT_EQ(Design.PlateOutlineCircular, 1);
    ExpectSelected({"Option3", "optDINquad", "optCircular"}, true);
}

TEST_F(WorkshopTest, TheGraphicsOptionsLeaveTheLabelsAlone) {
    OpenPage("frmPlate");
    Click("optPrintTextNo");
    Click("optGraphicYes");
    EXPECT_EQ(Design.PrintText, "N");
    ExpectSelected({"optPrintTextNo", "optGraphicYes"}, true);
    Click("optGraphicNo");
    ExpectSelected({"optPrintTextNo", "optGraphicNo"}, true);
}

TEST_F(WorkshopTest, TheScalesPageKeepsColourAndMark) {
    GiveSpecialScale();
    Design.ActiveScale = 1;
    OpenPage("frmScales");
    ExpectEnabled({"cmdGetColor", "cmdRevertToStandard", "cmddBsetup", "cmdSelectTics",
                   "txtLinearityExponent"},
                  true);
    EXPECT_FALSE(Find("lblSpecialScale").isVisible());
    const std::initializer_list<const char*> ofStandard = {
        "txtScaleLeftEnd",          "txtScaleLength",        "txtNumberOfTics",
        "txtMajorTicsEveryHowMany", "txtLabelsEveryHowMany", "txtLinearityExponent"};
    ExpectEnabled(ofStandard, true);
    Click("Option2");
    EXPECT_EQ(Design.ActiveScale, 2);
    EXPECT_TRUE(Find("lblSpecialScale").isVisible());
    ExpectEnabled(ofStandard, false);
    ExpectEnabled(
        {"txtBottomToScaleCeiling", "txtBottomToTitle", "txtRelFontsize", "txtScaleTitle"}, true);
    EXPECT_EQ(Design.ScaleColor[1], 0x0000FF);
    EXPECT_EQ(Design.ScaleColor[2], -0xFF0000);
    Click("cmdRevertToStandard");
    EXPECT_EQ(Design.ScaleColor[2], 0xFF0000);
    EXPECT_FALSE(Find("lblSpecialScale").isVisible());
    ExpectEnabled(ofStandard, true);
    EXPECT_EQ(Design.TicLabelText[2][1], "s1") << "the mark alone goes";
}

TEST_F(WorkshopTest, AnExponentIsAboveZero) {
    OpenPage("frmScales");
    Type("txtLinearityExponent", "2.5");
    EXPECT_EQ(Design.LinearityExponent[1], 2.5F);
    for (const char* refused : {"0", "-1"}) {
        Type("txtLinearityExponent", refused);
        EXPECT_EQ(Design.LinearityExponent[1], 2.5F) << refused;
    }
    Type("txtLinearityExponent", "5");
    EXPECT_EQ(Design.LinearityExponent[1], 4);
    OpenPage("frmPlate");
    EXPECT_EQ(Design.LinearityExponent[1], 4);
}

TEST_F(WorkshopTest, ItsSessionStandsBesideTheEverydayOne) {
    Design.LeftToBearing = 7;
    EXPECT_TRUE(SaveLastSession(Design));
    EXPECT_TRUE(Exists("LASTWORKSHOP.VRN"));
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
    StoreService(Program::Everyday);
    EXPECT_TRUE(SaveLastSession(Design));
    EXPECT_TRUE(Exists("LASTSESSION.VRN"));
    StoreService(Program::Workshop);
    ReadDesign(Design, LastSessionName());
    EXPECT_EQ(Design.LeftToBearing, 7);
}

} // namespace
} // namespace vernacle::test
