// The text page. Its entries start disabled; the tests enable them to reach their handlers.
#include <cmath>

#include "desktop/pages/pagedrawing.h"
#include "desktop/system/programfiles.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/freetexts.h"
#include "engine/designfile/readwrite.h"
#include "engine/render/stages.h"
#include "support/pixels.h"

namespace vernacle::test {
namespace {

class TextPageTest : public DrawingPageTest {
protected:
    // The page with its entries enabled.
    void OpenText() {
        OpenPage("frmText");
        EnableAll();
    }

    static void GiveText(int entry, const std::string& text, float left, float bottom, float size) {
        Design.TextString[entry] = text;
        Design.LeftToText[entry] = left;
        Design.BottomToText[entry] = bottom;
        Design.TextRelativeSize[entry] = size;
    }

    // A key of the toolbar that goes nowhere: the page's own.
    void PressOwnKey() const { Click("Text"); }

    // What the page keeps of the entry that is shown.
    struct Kept {
        std::string text;
        float left;
        float bottom;
        float size;
        std::int32_t colour;
    };
    Kept KeptOf(int entry) const {
        PressOwnKey();
        return {Design.TextString[entry], Design.LeftToText[entry], Design.BottomToText[entry],
                Design.TextRelativeSize[entry], Design.TextColor[entry]};
    }

    std::string WidthShown() const {
        const std::string label = Shown("lblTextWidthmm");
        EXPECT_TRUE(label.starts_with("Text width (mm): ")) << label;
        return label.substr(17);
    }
};

TEST_F(TextPageTest, CaptionsAndTips) {
    OpenPage("frmText");
    ExpectShown({{"lblHeading", "Text entry"},
                 {"lblText", "Text:"},
                 {"lblLeftToText", "Left to text:"},
                 {"lblBottomToText", "Bottom to text:"},
                 {"lblRelSize", "Relative size:"},
                 {"Label1", "Text #:"},
                 {"cmdCenterText", "Center horizontally"},
                 {"cmdGetColor", "Get text color"}});
    EXPECT_EQ(Find("cmdCenterText").toolTip(), QString());
    EXPECT_EQ(Find("cmdGetColor").toolTip(), QLatin1String("Select color for text #1"));
    ExpectEditOptions(kTexts);
}

TEST_F(TextPageTest, EverythingButTheToolbarStartsDisabled) {
    OpenPage("frmText");
    ExpectEnabled({"lblText", "txtText", "lblLeftToText", "txtLeftToText", "UpDown1",
                   "lblBottomToText", "txtBottomToText", "UpDown2", "lblRelSize", "txtRelSize",
                   "txtRelSizeUpDown", "UpDown3", "lblTextWidthmm", "cmdCenterText", "cmdGetColor",
                   "Label1", "fraTextNumber"},
                  false);
    for (int entry = 1; entry <= kTexts; ++entry) {
        EXPECT_FALSE(Option("Option" + std::to_string(entry)).isEnabled());
        EXPECT_EQ(IsSelected("Option" + std::to_string(entry)), entry == 1);
    }
    ExpectOnlyPrintIsGreyed();
}

TEST_F(TextPageTest, ShowsTheFirstTextOfTheDesign) {
    GiveText(1, "Hz", -12.5F, 33, 0.7F);
    GiveText(2, "other", 5, 6, 1);
    OpenPage("frmText");
    ExpectShown({{"txtText", "Hz"},
                 {"txtLeftToText", "-12.5"},
                 {"txtBottomToText", "33"},
                 {"txtRelSize", ".7"},
                 {"txtRelSizeUpDown", "7"}});
    EXPECT_NE(WidthShown(), "0");
}

TEST_F(TextPageTest, OpeningWithoutTextsShowsTheDefaults) {
    OpenPage("frmText");
    ExpectShown(
        {{"txtText", ""}, {"txtLeftToText", "0"}, {"txtBottomToText", "0"}, {"txtRelSize", "1"}});
    EXPECT_EQ(WidthShown(), "0");
}

TEST_F(TextPageTest, DrawingPassesFreeTextsBy) {
    GiveText(1, "maker's mark", 10, 10, 1);
    OpenPage("frmText");
    EXPECT_EQ(ShownPlate(), DrawnPlate(TextTraits(), {Design.FontSize, Design.LabelSpacing}));
    EXPECT_TRUE(WasRedrawn());
    for (const std::string& text : TextsOf("picPlate")) {
        EXPECT_NE(text, "maker's mark");
    }
}

TEST_F(TextPageTest, DesignLearnsOfATextWhenTheToolbarIsUsed) {
    OpenText();
    Type("txtText", "  r. m. s.  ");
    Type("txtLeftToText", "42");
    EXPECT_EQ(Design.TextString[1], "");
    EXPECT_EQ(Design.LeftToText[1], 0);
    const Kept kept = KeptOf(1);
    EXPECT_EQ(kept.text, "r. m. s.") << "trimmed";
    EXPECT_EQ(kept.left, 42);
    EXPECT_EQ(Design.NumberOfTexts, 1);
}

TEST_F(TextPageTest, EveryKeyOfTheToolbarGivesTheTextsBack) {
    for (const char* key : kPageKeys) {
        SCOPED_TRACE(key);
        ResetDesign(Design);
        Design.TextString[1].clear();
        OpenText();
        Type("txtText", "mark");
        if (OpensADialog(key)) {
            Answer(Cancel);
        }
        Design.DesignFileName.clear(); // so that a cancelled Save writes nothing
        Click(key);
        EXPECT_EQ(Design.TextString[1], "mark");
        EXPECT_EQ(Design.NumberOfTexts, 1);
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(TextPageTest, OpenGivesThemBackBeforeItReads) {
    OpenText();
    Type("txtText", "mark");
    const std::string file = Path("empty.VRN");
    const DesignRecord kept = Design;
    ResetDesign(Design);
    Design.TextString[1] = "of the file";
    Design.NumberOfTexts = 1;
    Design.DesignFileName = file;
    WriteDesign(Design);
    Design = kept;
    ClickAndAnswer("Open", TypeFile(file));
    EXPECT_EQ(Design.TextString[1], "of the file");
    EXPECT_EQ(TextOf("txtText"), "of the file");
    EXPECT_EQ(Design.ActiveScale, 1);
}

struct EntryRow {
    const char* typed;
    float kept;
    const char* shown;
};

TEST_F(TextPageTest, LeftDistanceHasALowerLimitOnly) {
    const EntryRow rows[] = {
        {"-150", -100, "-100"},   {"-100", -100, "-100"},
        {"-100.5", -100, "-100"}, {"-99", -99, "-99"},
        {"500", 500, "500"},      {"12.5mm", 12.5F, "12.5mm"},
        {"abc", 0, "abc"},        {"2,5", 2, "2,5"},
        {"2k2", 2, "2k2"},        {"12345678901", 12345678848.F, "12345678901"},
    };
    OpenText();
    for (const EntryRow& row : rows) {
        Wipe();
        Type("txtLeftToText", row.typed);
        EXPECT_TRUE(WasRedrawn());
        EXPECT_EQ(TextOf("txtLeftToText"), row.shown);
        EXPECT_EQ(KeptOf(1).left, row.kept) << row.typed;
    }
}

TEST_F(TextPageTest, BottomDistanceHasNoLimit) {
    const EntryRow rows[] = {
        {"-150", -150, "-150"},
        {"500", 500, "500"},
        {"", 0, ""},
        {"2,5", 2, "2,5"},
    };
    OpenText();
    for (const EntryRow& row : rows) {
        Wipe();
        Type("txtBottomToText", row.typed);
        EXPECT_TRUE(WasRedrawn());
        EXPECT_EQ(TextOf("txtBottomToText"), row.shown);
        EXPECT_EQ(KeptOf(1).bottom, row.kept) << row.typed;
    }
}

TEST_F(TextPageTest, SizeHasAnUpperLimitOnly) {
    const EntryRow rows[] = {
        {"3", 2, "2"}, {"2.01", 2, "2"}, {"2", 2, "2"},     {"1,5", 1.5F, "1,5"},
        {"0", 0, "0"}, {"-1", -1, "-1"}, {".1", .1F, ".1"}, {"1.2.3", 1.23F, "1.2.3"},
    };
    OpenText();
    Type("txtText", "text");
    for (const EntryRow& row : rows) {
        Wipe();
        Type("txtRelSize", row.typed);
        EXPECT_TRUE(WasRedrawn());
        EXPECT_EQ(TextOf("txtRelSize"), row.shown);
        EXPECT_EQ(KeptOf(1).size, row.kept) << row.typed;
        EXPECT_EQ(WidthShown() == "0", row.kept == 0) << row.typed;
    }
    Paste("txtRelSize", "0.123456789"); // more than an entry's ten characters: ignored
    EXPECT_EQ(KeptOf(1).size, 1.23F);
}

TEST_F(TextPageTest, ArrowsStepTenthsOfTheSize) {
    OpenText();
    EXPECT_EQ(TextOf("txtRelSizeUpDown"), "10");
    StepUp("UpDown3");
    EXPECT_EQ(TextOf("txtRelSizeUpDown"), "11");
    EXPECT_EQ(TextOf("txtRelSize"), "1.1");
    EXPECT_EQ(KeptOf(1).size, 1.1F);
    Box("txtRelSizeUpDown").Write("19");
    StepUp("UpDown3");
    StepUp("UpDown3");
    EXPECT_EQ(TextOf("txtRelSize"), "2");
    Box("txtRelSizeUpDown").Write("2");
    StepDown("UpDown3");
    StepDown("UpDown3");
    EXPECT_EQ(TextOf("txtRelSize"), ".1");
    EXPECT_EQ(KeptOf(1).size, .1F);
}

TEST_F(TextPageTest, ArrowsOfTheDistancesHaveTheirRanges) {
    OpenText();
    ExpectRange("UpDown1", "txtLeftToText", "-100", "180");
    ExpectRange("UpDown2", "txtBottomToText", "0", "180");
    EXPECT_EQ(KeptOf(1).left, -100);
    EXPECT_EQ(KeptOf(1).bottom, 0);
}

TEST_F(TextPageTest, OptionsSelectTheEntry) {
    for (int entry = 1; entry <= kTexts; ++entry) {
        const auto number = static_cast<float>(entry);
        GiveText(entry, "text " + std::to_string(entry), 10 + number, 20 + number, number / 8);
    }
    OpenText();
    for (const int entry : {10, 3, 9, 1, 7}) {
        SCOPED_TRACE(entry);
        const auto number = static_cast<float>(entry);
        Wipe();
        Click("Option" + std::to_string(entry));
        EXPECT_EQ(TextOf("txtText"), "text " + std::to_string(entry));
        EXPECT_EQ(TextOf("txtLeftToText"), std::to_string(10 + entry));
        EXPECT_EQ(TextOf("txtBottomToText"), std::to_string(20 + entry));
        EXPECT_EQ(TextOf("txtRelSize"), PlainNumber(number / 8));
        EXPECT_EQ(TextOf("txtRelSizeUpDown"), PlainNumber(number / 8 * 10));
        EXPECT_TRUE(WasRedrawn());
    }
    Type("txtText", "seven");
    Type("txtLeftToText", "70");
    PressOwnKey();
    EXPECT_EQ(Design.TextString[7], "seven");
    EXPECT_EQ(Design.LeftToText[7], 70);
    EXPECT_EQ(Design.TextString[1], "text 1") << "selecting changes no other";
    EXPECT_EQ(Design.LeftToText[10], 20);
    EXPECT_EQ(Design.NumberOfTexts, 10);
}

TEST_F(TextPageTest, BoxesAreFilledInTheirOrder) {
    GiveText(2, "two", 12, 22, 2);
    OpenText();
    Strings filled;
    for (EntryBox* box : Page().findChildren<EntryBox*>()) {
        QObject::connect(box, &QLineEdit::textChanged, box,
                         [&filled, box] { filled.push_back(box->objectName().toStdString()); });
    }
    Click("Option2");
    EXPECT_EQ(filled, (Strings{"txtText", "txtLeftToText", "txtBottomToText", "txtRelSize",
                               "txtRelSizeUpDown"}));
}

struct WidthRow {
    const char* text;
    double advances; // of the font, 1/2048 em
    float fontSize;
    const char* size;
};

TEST_F(TextPageTest, ShownWidthIsRoundedToTenths) {
    const WidthRow rows[] = {
        {"H", 1479, 8, "1"},         {"HHHHHHHHHH", 14790, 8, "1"}, {"H", 1479, 20, "2"},
        {"HH", 2958, 6, ".5"},       {"0000", 4 * 1139, 8, "1.3"},  {"H H", 2 * 1479 + 569, 8, "1"},
        {"HHHH", 4 * 1479, 8, "-1"},
    };
    for (const WidthRow& row : rows) {
        SCOPED_TRACE(row.text);
        Design.FontSize = row.fontSize;
        OpenText();
        Type("txtText", row.text);
        Type("txtRelSize", row.size);
        const double points = double{row.fontSize} * NumericValue(row.size);
        const double mm = row.advances / 904.5 * points * .0198 * 15 / 2;
        const double shown = NumericValue(WidthShown());
        EXPECT_NEAR(shown, mm, 0.0501);
        EXPECT_NEAR(shown * 10, std::round(shown * 10), 1e-6);
        EXPECT_LE(WidthShown().size(), 5U) << WidthShown();
    }
}

TEST_F(TextPageTest, EmptyTextsHaveNoWidth) {
    OpenText();
    Type("txtText", "x");
    EXPECT_NE(WidthShown(), "0");
    Type("txtText", "");
    EXPECT_EQ(WidthShown(), "0");
    Type("txtText", "   ");
    EXPECT_EQ(WidthShown(), "0") << "trimmed to nothing";
}

// Of another font, whose average character is another.
TEST_F(TextPageTest, WidthIsThatOfTheDesignsFont) {
    Design.FontName = " Liberation Mono ";
    OpenText();
    Type("txtText", "HHHHHHHHHH");
    const double mm = 10 * 8 * .0198 * 15 / 2; // each letter is as wide as the average
    EXPECT_NEAR(NumericValue(WidthShown()), mm, 0.0501);
}

TEST_F(TextPageTest, FontSizeIsThatOfTheLoad) {
    OpenText();
    Type("txtText", "H");
    const std::string width = WidthShown();
    Design.FontSize = 20;
    Type("txtText", "H");
    EXPECT_EQ(WidthShown(), width);
}

TEST_F(TextPageTest, TypedSizeLeavesTheArrowsWhereTheyAre) {
    OpenText();
    Type("txtRelSize", "1.7");
    EXPECT_EQ(TextOf("txtRelSizeUpDown"), "10");
    StepUp("UpDown3");
    EXPECT_EQ(TextOf("txtRelSize"), "1.1");
}

TEST_F(TextPageTest, ArrowsStepFromThePlainNumber) {
    OpenText();
    for (const char* box : {"txtLeftToText", "txtBottomToText"}) {
        Paste(box, "2,5");
        StepUp(box == std::string("txtLeftToText") ? "UpDown1" : "UpDown2");
        EXPECT_EQ(TextOf(box), "3");
    }
}

// Filling the boxes runs their handlers.
TEST_F(TextPageTest, WhatTheDesignBringsIsLimitedAtTheLoad) {
    GiveText(1, "  blanks  ", -150, 500, 3);
    OpenText();
    EXPECT_EQ(TextOf("txtLeftToText"), "-100");
    EXPECT_EQ(TextOf("txtRelSize"), "2");
    const Kept kept = KeptOf(1);
    EXPECT_EQ(kept.text, "blanks");
    EXPECT_EQ(kept.left, -100);
    EXPECT_EQ(kept.bottom, 500);
    EXPECT_EQ(kept.size, 2);
}

TEST_F(TextPageTest, FirstEntryIsEditedAtEachLoad) {
    OpenText();
    Click("Option7");
    Click("Preview");
    OpenText();
    EXPECT_TRUE(IsSelected("Option1"));
    Type("txtText", "first");
    EXPECT_EQ(KeptOf(1).text, "first");
}

TEST_F(TextPageTest, TabFollowsReadingOrder) {
    OpenText();
    ExpectTabOrder("Option1 txtText txtLeftToText txtBottomToText txtRelSize cmdCenterText "
                   "cmdGetColor");
}

// Where the text's ink lies on the page's own drawing, mm from the plate's left edge, with the
// stage of the free texts in service.
class DrawnTextTest : public TextPageTest {
protected:
    static constexpr int kPixelsAcross = 4000;

    struct Ink {
        double left;
        double right;
    };

    // The design and its first text.
    struct DrawnRow {
        float plateWidth;
        float aspect;
        float fontSize;
        int pixels; // the made font's width is a whole number: sizes are taken that ask for one
        const char* text;
    };
    void TypeText(const DrawnRow& row) {
        Design.PlateWidth = row.plateWidth;
        Design.PlateHeight = row.plateWidth / 2;
        Design.AspectRatio = row.aspect;
        Design.FontSize = row.fontSize;
        OpenText();
        Type("txtText", row.text);
        const double asked = 3000. / double{row.plateWidth} * .0198 * double{row.aspect} *
                             double{row.fontSize} * double{Design.ScreenScaleX};
        Paste("txtRelSize", PlainNumber(static_cast<float>(row.pixels / asked)).substr(0, 9));
    }

    static Ink DrawTexts() {
        const DrawingStage stages[] = {ClearStage, FontStage, FreeTextsStage};
        return OnThePlate(ImageOfPlate(stages, kPixelsAcross));
    }

private:
    static Ink OnThePlate(const QImage& image) {
        const QRect ink = test::InkOf(image, 128);
        const double unitsPerPixel = 12000. / image.width();
        const PlateFrame frame = FrameOf(Design, TextTraits());
        const double unitsPerMm = 2 * frame.upPerHalfMm * frame.aspect;
        const double plateLeft = 3400 - unitsPerMm * double{Design.PlateWidth} / 2;
        return {(ink.left() * unitsPerPixel - plateLeft) / unitsPerMm,
                ((ink.right() + 1) * unitsPerPixel - plateLeft) / unitsPerMm};
    }
};

TEST_F(DrawnTextTest, ShownWidthIsThatOfTheDrawing) {
    const DrawnRow rows[] = {{75, 1, 8, 10, "HHHHHHHHHHH"},
                             {75, 0.75F, 8, 10, "HHHHHHHHHHH"},
                             {120, 1, 14, 10, "HHHHHHHHHHH"},
                             {40, 0.9F, 5, 10, "HHHHHHHHHHH"}};
    for (const DrawnRow& row : rows) {
        SCOPED_TRACE(row.plateWidth);
        TypeText(row);
        Type("txtLeftToText", "5");
        PressOwnKey();
        ASSERT_LT(Design.TextRelativeSize[1], 2);
        const Ink longer = DrawTexts();
        Design.TextString[1] = "H";
        const Ink shorter = DrawTexts();
        const double tenAdvances = longer.right - shorter.right;
        const double shown = NumericValue(WidthShown());
        EXPECT_NEAR(shown, tenAdvances * 1.1, 0.01 * shown + 0.05);
    }
}

// The same on either side, to what the tenths of the left distance leave.
TEST_F(DrawnTextTest, CentredTextIsSymmetricToATenthOfAMillimetre) {
    const DrawnRow rows[] = {{75, 1, 8, 10, "HIIIH"},
                             {75, 1, 8, 13, "H"},
                             {75, 0.75F, 8, 9, "HHHHHHHH"},
                             {120, 1, 14, 12, "HOIOH"},
                             {40, 0.9F, 5, 11, "HAH"}};
    for (const DrawnRow& row : rows) {
        SCOPED_TRACE(row.text);
        TypeText(row);
        Type("txtBottomToText", "10");
        Click("cmdCenterText");
        PressOwnKey();
        ASSERT_LT(Design.TextRelativeSize[1], 2);
        const Ink ink = DrawTexts();
        EXPECT_GT(ink.right - ink.left, 1);
        const double rightOfIt = double{row.plateWidth} - ink.right;
        EXPECT_NEAR((ink.left - rightOfIt) / 2, 0, 0.1);
    }
}

TEST_F(DrawnTextTest, CentredTextStandsInTheMiddleOfThePlate) {
    for (const float fontSize : {8.F, 16.F}) {
        Design.FontSize = fontSize;
        Design.AspectRatio = 1;
        OpenText();
        Type("txtText", "HIIIH");
        Type("txtRelSize", "1.6");
        Type("txtLeftToText", "-60");
        Click("cmdCenterText");
        PressOwnKey();
        const Ink ink = DrawTexts();
        EXPECT_NEAR((ink.left + ink.right) / 2, 75. / 2, 0.03 * (ink.right - ink.left));
        EXPECT_GT(ink.right - ink.left, 5);
    }
}

TEST_F(TextPageTest, CentringShowsAndStoresTenths) {
    Design.PlateWidth = 80;
    OpenText();
    Type("txtText", "HHHHHHHHHH");
    Wipe();
    Click("cmdCenterText");
    EXPECT_TRUE(WasRedrawn());
    const double width = 14790 / 904.5 * 8 * .0198 * 15 / 2; // 19.43
    const double left = NumericValue(TextOf("txtLeftToText"));
    EXPECT_NEAR(left, 40 - width / 2, 0.0501);
    EXPECT_NEAR(left * 10, std::round(left * 10), 1e-6);
    EXPECT_EQ(KeptOf(1).left, static_cast<float>(left));
}

TEST_F(TextPageTest, EmptyTextIsCentredAtHalfThePlate) {
    OpenText();
    Click("cmdCenterText");
    EXPECT_EQ(TextOf("txtLeftToText"), "37.5");
    EXPECT_EQ(KeptOf(1).left, 37.5F);
}

// Its box limits what centring shows.
TEST_F(TextPageTest, CentringIsHeldToTheLeftLimit) {
    Design.FontSize = 20;
    OpenText();
    Type("txtText", "a text that is far too long for any plate of any panel meter ever made");
    Type("txtRelSize", "2");
    Wipe();
    Click("cmdCenterText");
    EXPECT_EQ(TextOf("txtLeftToText"), "-100");
    EXPECT_EQ(KeptOf(1).left, -100);
}

class TextColourTest : public TextPageTest {
protected:
    QColor start;

    void GetColour(const char* colour) {
        ClickAndAnswer("cmdGetColor", ChooseColour("Get text color", colour, start));
    }
};

TEST_F(TextColourTest, StartsFromTheColourOfTheScaleOfThatNumber) {
    Design.TextColor[2] = 0x00FF00;
    OpenText();
    Design.ScaleColor[2] = -0x0000FF;
    Design.ScaleColor[8] = 0xFF0000;
    Click("Option2");
    GetColour("#804020");
    EXPECT_EQ(start, QColor(Qt::red)) << "the magnitude";
    EXPECT_EQ(KeptOf(2).colour, 0x204080);
    GetColour(nullptr);
    EXPECT_EQ(KeptOf(2).colour, 0xFF) << "a cancelled dialog gives what it started with";
    Click("Option8");
    GetColour("#000000");
    EXPECT_EQ(start, QColor(Qt::blue));
    EXPECT_EQ(KeptOf(8).colour, 1) << "black";
}

TEST_F(TextColourTest, ReachesTheDesignWithTheToolbarAndRedraws) {
    OpenText();
    Wipe();
    GetColour("#ff0000");
    EXPECT_TRUE(WasRedrawn());
    EXPECT_EQ(Design.TextColor[1], 0);
    EXPECT_EQ(KeptOf(1).colour, 0xFF);
}

TEST_F(TextColourTest, LastTwoEntriesHaveNoScaleAndFail) {
    OpenText();
    for (const char* option : {"Option9", "Option10"}) {
        Click(option);
        EXPECT_THROW(Click("cmdGetColor"), RunTimeError) << option;
    }
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(TextPageTest, DrawingUsesThePagesTextsAndNotTheDesigns) {
    GiveText(1, "design", 10, 10, 1);
    FreeTexts texts = CopyOfTexts(Design);
    texts.TextString[1] = "page";
    texts.LeftToText[1] = 20;
    DrawingTraits traits = TextTraits();
    const DrawingStage stages[] = {ClearStage, FontStage, FreeTextsStage};
    traits.stages = stages;
    PageCopies copies{Design.FontSize, Design.LabelSpacing, &texts};
    RecordingSurface ofPage;
    DrawPage(Design, ofPage, traits, copies, Drawing);
    EXPECT_EQ(ofPage.texts, Strings{"page"});
    RecordingSurface ofDesign;
    copies.texts = nullptr;
    DrawPage(Design, ofDesign, traits, copies, Drawing);
    EXPECT_EQ(ofDesign.texts, Strings{"design"});
    EXPECT_NE(ofPage.CallsOf("SetCurrentX"), ofDesign.CallsOf("SetCurrentX"));
}

// The page's file, its entries and the plotter: one design all the way.
TEST_F(TextPageTest, FreeTextsReachThePlotter) {
    GiveText(1, "kHz", 10, 12, 1);
    GiveText(2, "made in 2026", 20, 5, 0.5F);
    Design.NumberOfTexts = 2;
    Design.DesignFileName = Path("texts.VRN");
    WriteDesign(Design);
    ResetDesign(Design);
    for (const int entry : {1, 2}) {
        GiveText(entry, "", 10, 10, 1);
    }
    OpenPage("frmPreview");
    ClickAndAnswer("Open", TypeFile(Path("texts.VRN")));
    ClickAndSettle("Text");
    EXPECT_EQ(TextOf("txtText"), "kHz");
    EnableAll();
    Click("Option3");
    Type("txtText", "No. 7");
    ClickAndSettle("Preview");
    Strings opened;
    Host.openForOutput = [&, open = Host.openForOutput](const std::string& name) {
        opened.push_back(name);
        return open(Path("plot"));
    };
    ClickAndAnswer("cmdHPGL", [this](QWidget& form) {
        Click(On<QPushButton>(form, "cmdHPGL"));
        Click(On<QPushButton>(form, "cmdExit"));
    });
    ASSERT_EQ(opened, Strings{PlotterFileName()});
    const std::string stream = ReadFile("plot");
    for (const char* text : {"kHz", "made in 2026", "No. 7"}) {
        EXPECT_NE(stream.find(std::string("LB") + text + "\x03"), std::string::npos) << text;
    }
    EXPECT_EQ(Design.NumberOfTexts, 3);
}

TEST_F(TextPageTest, CloseBoxEndsAtOnceAndDropsWhatWasTyped) {
    OpenText();
    Type("txtText", "lost");
    CloseByUser(Page());
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
    EXPECT_EQ(Design.TextString[1], "");
    EXPECT_EQ(Design.NumberOfTexts, 0);
}

} // namespace
} // namespace vernacle::test
