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

TEST_F(WorkshopTest, TheTextPageTakesTextsFromItsFirstEntryOn) {
    OpenPage("frmText");
    ExpectEnabled({"txtText", "txtLeftToText", "txtBottomToText", "txtRelSize", "cmdCenterText",
                   "cmdGetColor", "Option10"},
                  true);
    ExpectSelected({"Option1"}, true);
    Type("txtText", "Made here");
    Type("txtRelSize", "1.5");
    Click("cmdCenterText");
    const Strings texts = TextsOf("picPlate");
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Made here"), 1);
    Click("Option10"); // a gap stays one
    Type("txtText", "Last");
    ClickAndSettle("Preview"); // a key of the toolbar keeps them
    EXPECT_EQ(Design.TextString[1], "Made here");
    EXPECT_EQ(Design.TextString[2], "");
    EXPECT_EQ(Design.TextString[10], "Last");
    EXPECT_EQ(Design.TextRelativeSize[1], 1.5F);
}

// M of Arial is 1706 / 2048 of its size wide.
TEST_F(WorkshopTest, ATextIsCentredByItsTrueWidth) {
    Design.FontSize = 10;
    OpenPage("frmText");
    Type("txtText", "MMMM");
    const double width = 4 * 1706. / 2048 * 10 * 25.4 / 72;
    EXPECT_EQ(Shown("lblTextWidthmm").substr(0, 21), "Text width (mm): 11.8");
    Click("cmdCenterText");
    ClickAndSettle("Preview");
    EXPECT_NEAR(double{Design.LeftToText[1]}, (75 - width) / 2, 0.06);
}

TEST_F(WorkshopTest, TheHighlightsPageTakesZonesThatStartAtZero) {
    OpenPage("frmHighlights");
    ExpectEnabled({"txtStart1", "txtStop1", "txtCeiling1", "txtLength1", "cmdGetColor", "Option10"},
                  true);
    Type("txtStart1", "0");
    Type("txtStop1", "25");
    Type("txtCeiling1", "30");
    Type("txtLength1", "2");
    EXPECT_EQ(CountCalls("FillArea"), 1U);
    Click("Option4");
    Type("txtStart1", "50");
    Type("txtStop1", "60");
    Type("txtCeiling1", "30");
    Type("txtLength1", "2");
    EXPECT_EQ(CountCalls("FillArea"), 2U);
    EXPECT_EQ(CountCalls("Box"), 0U) << "no sample on the plate";
    OpenPage("frmPreview");
    EXPECT_EQ(CountCalls("FillArea"), 2U);
}

TEST_F(WorkshopTest, EveryPageCanPrint) {
    for (const char* page : {"frmPlate", "frmScales", "frmText", "frmGraphic", "frmHighlights"}) {
        OpenPage(page);
        EXPECT_TRUE(IsEnabled("Print")) << page;
        ClickAndAnswer("Print", PrintTo(Path("plate.pdf")));
        EXPECT_TRUE(std::filesystem::remove(Path("plate.pdf"))) << page;
    }
}

TEST_F(WorkshopTest, AScaleWithoutARadiusIsToldOf) {
    Design.BottomToBearing = 10;
    Design.ActualVirtualOffset = 0;
    Design.BottomToScaleCeiling[1] = 10;
    OpenPage("frmScales");
    EXPECT_NE(Shown("lblRemarks"), "");
    EXPECT_TRUE(said.empty());
}

TEST_F(WorkshopTest, TheFirstScaleKeepsItsRelativeSize) {
    Design.NumberOfScales = 2;
    Design.RelativeFontSize[1] = 1.3F;
    OpenPage("frmScales");
    Click("Option2");
    Click("Option1");
    EXPECT_EQ(Design.RelativeFontSize[1], 1.3F);
    EXPECT_TRUE(IsEnabled("txtRelFontsize"));
}

TEST_F(WorkshopTest, NumbersAreSeenOnADarkPlate) {
    Design.PlateBackground = 1;
    Design.HighlightColor[3] = 0x0000FF;
    OpenPage("frmHighlights");
    const auto ink = [this](const char* option) {
        return Option(option).palette().color(QPalette::Active, QPalette::WindowText);
    };
    EXPECT_EQ(ink("Option2"), QColor(Qt::white));
    EXPECT_EQ(ink("Option3"), QColor(Qt::red));
    Design.PlateBackground = kWhite;
    OpenPage("frmPlate");
    OpenPage("frmHighlights");
    EXPECT_EQ(ink("Option2"), QColor(1, 0, 0)) << "the black that is kept";
}

TEST_F(WorkshopTest, TheGraphicPageKeepsAPicturesName) {
    const std::string file = WriteFile("Mark of ours.bmp", "no picture");
    OpenPage("frmGraphic");
    ExpectEnabled({"txtLeftToImage", "txtBottomToImage", "txtGraphicWidth", "txtGraphicHeight",
                   "cmdGetGraphic", "cmdRemoveGraphic"},
                  true);
    ClickAndAnswer("cmdGetGraphic", Cancel);
    EXPECT_EQ(Design.DrawGraphic, "N") << "a cancelled dialog does nothing";
    ClickAndAnswer("cmdGetGraphic", TypeFile(file));
    EXPECT_EQ(Design.GraphicFileName, file);
    EXPECT_EQ(Design.DrawGraphic, "Y");
    Type("txtGraphicWidth", "25");
    EXPECT_EQ(Design.GraphicWidth, 25);
    OpenPage("frmPreview");
    OpenPage("frmGraphic");
    EXPECT_EQ(Shown("lblGraphicName"), file);
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
