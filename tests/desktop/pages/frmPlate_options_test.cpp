// The option groups of the plate page, shown and hidden ones.
#include <QGroupBox>

#include "desktop/pages/platetest.h"
#include "engine/core/fieldplace.h"

namespace vernacle::test {
namespace {

struct PlateOption {
    const char* frame;
    const char* name;
    const char* caption;
    bool enabled;
    const char* value; // of the field
    FieldPlace field;
    const char* other; // of its group

    std::string Kept() const { return PlainText(field.In(Design)); }
};

// clang-format off
constexpr PlateOption kPlateOptions[] = {
    {"Arcs",         "optArcsYes",                 "Yes",         true,  "Y", At<&D::DrawArcs>,             "optArcsNo"},
    {"Arcs",         "optArcsNo",                  "No",          true,  "N", At<&D::DrawArcs>,             "optArcsYes"},
    {"Labels",       "optPrintTextYes",            "Yes",         true,  "Y", At<&D::PrintText>,            "optPrintTextNo"},
    {"Labels",       "optPrintTextNo",             "No",          true,  "N", At<&D::PrintText>,            "optPrintTextYes"},
    {"Label rotate", "optLabelRotationHorizontal", "Horizontal",  true,  "H", At<&D::LabelRotation>,        "optLabelRotationBearing"},
    {"Label rotate", "optLabelRotationBearing",    "Bearing",     true,  "B", At<&D::LabelRotation>,        "optLabelRotationHorizontal"},
    {"Style",        "optNormal",                  "Standard",    false, "0", At<&D::PlateStyle>,           "optDINquad"},
    {"Style",        "optDINquad",                 "Quadrant",    false, "1", At<&D::PlateStyle>,           "optNormal"},
    {"Number",       "Option1",                    "1",           true,  "1", At<&D::NumberOfScales>,       "Option6"},
    {"Number",       "Option2",                    "2",           false, "2", At<&D::NumberOfScales>,       "Option1"},
    {"Number",       "Option3",                    "3",           false, "3", At<&D::NumberOfScales>,       "Option2"},
    {"Number",       "Option4",                    "4",           false, "4", At<&D::NumberOfScales>,       "Option3"},
    {"Number",       "Option5",                    "5",           false, "5", At<&D::NumberOfScales>,       "Option4"},
    {"Number",       "Option6",                    "6",           false, "6", At<&D::NumberOfScales>,       "Option5"},
    {"Plate",        "optCircular",                "Circular",    true,  "1", At<&D::PlateOutlineCircular>, "optRectangular"},
    {"Plate",        "optRectangular",             "Rectangular", true,  "0", At<&D::PlateOutlineCircular>, "optCircular"},
    {"Graphic",      "optGraphicYes",              "Yes",         true,  "Y", At<&D::DrawGraphic>,          "optGraphicNo"},
    {"Graphic",      "optGraphicNo",               "No",          true,  "N", At<&D::DrawGraphic>,          "optGraphicYes"},
    {"Sound",        "optSoundOff",                "Off",         true,  "0", At<&D::MessageLevel>,         "optSoundAll"},
    {"Sound",        "optSoundWarn",               "Warn",        true,  "1", At<&D::MessageLevel>,         "optSoundOff"},
    {"Sound",        "optSoundAll",                "All",         false, "2", At<&D::MessageLevel>,         "optSoundWarn"},
};
// clang-format on

bool IsHiddenFrame(const std::string& title) {
    return title == "Plate" || title == "Graphic" || title == "Sound";
}

class PlateOptionsTest : public PlateTest {
protected:
    QGroupBox& FrameOf(const std::string& option) const {
        auto* frame = qobject_cast<QGroupBox*>(Option(option).parentWidget());
        if (!frame) {
            throw std::runtime_error(option + " stands in no frame");
        }
        return *frame;
    }

    // What the program keeps greyed or hidden becomes the user's.
    void Reach(const std::string& option) const {
        FrameOf(option).show();
        Option(option).setEnabled(true);
        Settle();
    }

    void ReachAndClick(const std::string& option) const {
        Reach(option);
        Click(option);
    }
};

TEST_F(PlateOptionsTest, OptionsStandInTheirFramesAsTheyStart) {
    OpenPlate();
    for (const PlateOption& option : kPlateOptions) {
        SCOPED_TRACE(option.name);
        const QGroupBox& frame = FrameOf(option.name);
        EXPECT_EQ(frame.title(), QLatin1String(option.frame));
        EXPECT_TRUE(frame.isEnabled());
        EXPECT_EQ(frame.isVisible(), !IsHiddenFrame(option.frame));
        EXPECT_EQ(Option(option.name).text(), QLatin1String(option.caption));
        EXPECT_EQ(Option(option.name).accessibleName(), QLatin1String(option.caption));
        EXPECT_EQ(Option(option.name).testAttribute(Qt::WA_Disabled), !option.enabled);
    }
    EXPECT_EQ(Page().findChildren<OptionButton*>().size(), std::ssize(kPlateOptions));
    EXPECT_EQ(Page().findChildren<QGroupBox*>().size(), 8);
}

TEST_F(PlateOptionsTest, NumberOfScalesReadsOfOneToSixScales) {
    OpenPlate();
    std::string line;
    const QGroupBox& frame = FrameOf("Option1");
    std::vector<QWidget*> parts;
    for (auto* part : frame.findChildren<QWidget*>()) {
        parts.push_back(part);
    }
    std::sort(parts.begin(), parts.end(),
              [](const QWidget* a, const QWidget* b) { return a->x() < b->x(); });
    for (QWidget* part : parts) {
        line += part->property("text").toString().toStdString() + " ";
    }
    EXPECT_EQ(line, "of 1 2 3 4 5 6 scales ");
}

TEST_F(PlateOptionsTest, ClickSetsTheFieldAndClearsTheOthers) {
    OpenPlate();
    for (const PlateOption& option : kPlateOptions) {
        SCOPED_TRACE(option.name);
        ReachAndClick(option.other);
        EXPECT_NE(option.Kept(), option.value);
        ReachAndClick(option.name);
        EXPECT_EQ(option.Kept(), option.value);
        EXPECT_TRUE(IsSelected(option.name));
        EXPECT_FALSE(IsSelected(option.other));
    }
}

TEST_F(PlateOptionsTest, GreyedOptionTakesNoClick) {
    OpenPlate();
    for (const char* greyed : {"optDINquad", "Option2", "Option6"}) {
        Click(greyed);
        EXPECT_FALSE(IsSelected(greyed)) << greyed;
    }
    EXPECT_EQ(Design.PlateStyle, 0);
    EXPECT_EQ(Design.NumberOfScales, 1);
}

TEST_F(PlateOptionsTest, ArrowKeysSelectWithinTheGroup) {
    OpenPlate();
    Click("optArcsYes");
    QTest::keyClick(&Option("optArcsYes"), Qt::Key_Right);
    EXPECT_EQ(Design.DrawArcs, "N");
    QTest::keyClick(&Option("optArcsNo"), Qt::Key_Left);
    EXPECT_EQ(Design.DrawArcs, "Y");
    EXPECT_TRUE(IsSelected("optPrintTextYes")) << "another group";
}

TEST_F(PlateOptionsTest, EachNumberOfScalesSelectsTheFirstScale) {
    OpenPlate();
    for (const char* number : {"Option6", "Option2", "Option1"}) {
        Design.ActiveScale = 4;
        ReachAndClick(number);
        EXPECT_EQ(Design.ActiveScale, 1) << number;
    }
}

TEST_F(PlateOptionsTest, OtherOptionsLeaveTheActiveScale) {
    OpenPlate();
    Design.ActiveScale = 4;
    for (const char* option : {"optArcsNo", "optPrintTextNo", "optDINquad", "optSoundWarn"}) {
        ReachAndClick(option);
    }
    EXPECT_EQ(Design.ActiveScale, 4);
}

TEST_F(PlateOptionsTest, GraphicClearsTheLabelsOptionOfTheOtherSide) {
    const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
        {"optPrintTextNo", "optGraphicYes", "N", "Y"},
        {"optPrintTextYes", "optGraphicNo", "Y", "N"}};
    OpenPlate();
    for (const auto& [labels, graphic, printText, drawGraphic] : rows) {
        SCOPED_TRACE(graphic);
        Click(labels);
        ReachAndClick(graphic);
        EXPECT_EQ(Design.DrawGraphic, drawGraphic);
        ExpectSelected({"optPrintTextNo", "optPrintTextYes"}, false);
        EXPECT_EQ(Design.PrintText, printText) << "the field stays";
    }
}

TEST_F(PlateOptionsTest, GraphicLeavesTheLabelsOptionOfTheSameSide) {
    OpenPlate();
    Click("optPrintTextYes");
    ReachAndClick("optGraphicYes");
    EXPECT_TRUE(IsSelected("optPrintTextYes"));
    Click("optPrintTextNo");
    ReachAndClick("optGraphicNo");
    EXPECT_TRUE(IsSelected("optPrintTextNo"));
    EXPECT_EQ(Design.PrintText, "N");
}

TEST_F(PlateOptionsTest, LabelsThatAGraphicClearedCanBeSelectedAgain) {
    OpenPlate();
    ReachAndClick("optGraphicNo");
    Click("optPrintTextNo");
    EXPECT_EQ(Design.PrintText, "N");
    ReachAndClick("optGraphicYes");
    Click("optPrintTextYes");
    EXPECT_EQ(Design.PrintText, "Y");
    EXPECT_TRUE(IsSelected("optPrintTextYes"));
    EXPECT_FALSE(IsSelected("optPrintTextNo"));
}

TEST_F(PlateOptionsTest, LabelsLeaveTheGraphicOptions) {
    OpenPlate();
    ReachAndClick("optGraphicYes");
    Click("optPrintTextNo");
    EXPECT_TRUE(IsSelected("optGraphicYes"));
    EXPECT_EQ(Design.DrawGraphic, "Y");
}

TEST_F(PlateOptionsTest, OptionsDoNotTouchTheSchematic) {
    OpenPlate();
    Click("cmdPlateHeight");
    const Strings before = ShownSchematic();
    for (const PlateOption& option : kPlateOptions) {
        ReachAndClick(option.name);
    }
    EXPECT_EQ(ShownSchematic(), before);
    EXPECT_EQ(Design.HelpTopic, 2);
}

// A quadrant plate needs 90 degrees and no offset.
struct Warning {
    const char* box;
    const char* fitting;
    const char* doubtful;
};

constexpr Warning kWarnings[] = {
    {"txtPointerDeflection", "90", "90.5"},
    {"txtActualVirtualOffset", "0", "-0.5"},
};

TEST_F(PlateOptionsTest, QuadrantWarnsOfDoubtfulMeasuresAndStandardOfNone) {
    OpenPlate();
    for (const Warning& warning : kWarnings) {
        SCOPED_TRACE(warning.box);
        Type(warning.box, warning.doubtful);
        EXPECT_EQ(BackgroundOf(warning.box), Qt::white) << "of a standard plate";
        ReachAndClick("optDINquad");
        EXPECT_EQ(BackgroundOf(warning.box), kPaleRed);
        ReachAndClick("optNormal");
        EXPECT_EQ(BackgroundOf(warning.box), Qt::white);
        Type(warning.box, warning.fitting);
        ReachAndClick("optDINquad");
        EXPECT_EQ(BackgroundOf(warning.box), Qt::white);
        ReachAndClick("optNormal");
    }
}

TEST_F(PlateOptionsTest, TypingWarnsAndClearsTheWarningOfAQuadrant) {
    OpenPlate();
    ReachAndClick("optDINquad");
    for (const Warning& warning : kWarnings) {
        SCOPED_TRACE(warning.box);
        Type(warning.box, warning.doubtful);
        EXPECT_EQ(BackgroundOf(warning.box), kPaleRed);
        Type(warning.box, warning.fitting);
        EXPECT_EQ(BackgroundOf(warning.box), Qt::white);
        Type(warning.box, "7");
        EXPECT_EQ(BackgroundOf(warning.box), kPaleRed);
    }
}

TEST_F(PlateOptionsTest, WarningsTellTheTwoMeasuresApart) {
    OpenPlate();
    ReachAndClick("optDINquad");
    Type("txtPointerDeflection", "60");
    Type("txtActualVirtualOffset", "0");
    EXPECT_EQ(BackgroundOf("txtPointerDeflection"), kPaleRed);
    EXPECT_EQ(BackgroundOf("txtActualVirtualOffset"), Qt::white);
    Type("txtPointerDeflection", "90");
    Type("txtActualVirtualOffset", "5");
    EXPECT_EQ(BackgroundOf("txtPointerDeflection"), Qt::white);
    EXPECT_EQ(BackgroundOf("txtActualVirtualOffset"), kPaleRed);
    EXPECT_EQ(BackgroundOf("txtPlateWidth"),
              QApplication::palette(&Box("txtPlateWidth")).color(QPalette::Base));
}

TEST_F(PlateOptionsTest, WarningStopsNothing) {
    OpenPlate();
    ReachAndClick("optDINquad");
    Type("txtPointerDeflection", "60");
    EXPECT_EQ(Design.PointerDeflection, 60);
    EXPECT_TRUE(said.empty());
    const QPalette colours = Box("txtPointerDeflection").palette();
    EXPECT_LT(colours.color(QPalette::Text).lightness(), 64) << "reads on the pale ground";
}

} // namespace
} // namespace vernacle::test
