// Loading the plate page: what it repairs, fills, fires and shows, and in which order.
#include <QGroupBox>

#include "desktop/pages/platetest.h"
#include "engine/base/numbertext.h"
#include "engine/designfile/readwrite.h"

namespace vernacle::test {
namespace {

class PlateLoadTest : public PlateTest {};

TEST_F(PlateLoadTest, TitleNamesTheFileIfThereIsOne) {
    EXPECT_EQ(OpenPlate().windowTitle(), QStringLiteral("Vernacle - Plate design"));
    Design.DesignFileName = "C:\\Meters\\Volts.VRN";
    EXPECT_EQ(OpenPlate().windowTitle(),
              QStringLiteral("Vernacle - Plate design - C:\\Meters\\Volts.VRN"));
}

TEST_F(PlateLoadTest, BoxesShowTheSignedForm) {
    const std::pair<const char*, std::pair<float, const char*>> rows[] = {
        {"PlateWidth", {75, " 75"}},
        {"PlateHeight", {50.25F, " 50.25"}},
        {"BottomToBearing", {-12.5F, "-12.5"}},
        {"BottomToHoles", {0, " 0"}},
        {"HoleSeparation", {50, " 50"}},
        {"PointerDeflection", {0.5F, " .5"}},
        {"ActualVirtualOffset", {-3, "-3"}},
        {"MinorTicLength", {0.75F, " .75"}},
        {"MajorTicLength", {15, " 15"}},
        {"MinorTicWidth", {1.5F, " 1.5"}},
        {"MajorTicWidth", {20, " 20"}},
        {"FontSize", {2, " 2"}},
        {"LabelSpacing", {-0.5F, "-.5"}},
        {"ArcWidth", {3, " 3"}},
    };
    for (const auto& [stem, shown] : rows) {
        MeasureOf(stem).Value() = shown.first;
    }
    OpenPlate();
    for (const auto& [stem, shown] : rows) {
        EXPECT_EQ(TextOf(MeasureOf(stem).Named("txt")), shown.second) << stem;
        EXPECT_EQ(MeasureOf(stem).Value(), shown.first) << stem;
    }
}

struct LoadedValue {
    const char* stem;
    float stored;
    const char* shown; // after the repairs of any design
    float held;        // after the limits of its box
};

// clang-format off
constexpr LoadedValue kLoaded[] = {
    {"PlateWidth",          5,          " 5",       20},
    {"PlateWidth",          0,          " 50",      50},
    {"PlateWidth",          500,        " 180",     180},
    {"PlateHeight",         -1,         " 50",      50},
    {"PlateHeight",         3,          " 3",       10},
    {"PlateHeight",         400,        " 400",     180},
    {"BottomToBearing",     -200000,    "-100000",  -100000},
    {"BottomToHoles",       151,        " 151",     150},
    {"BottomToHoles",       -1001,      "-1001",    -1000},
    {"HoleSeparation",      0,          " 40",      40},
    {"HoleSeparation",      2,          " 2",       5},
    {"PointerDeflection",   -5,         " 90",      90},
    {"PointerDeflection",   0.05F,      " .05",     0.1F},
    {"PointerDeflection",   720,        " 720",     360},
    {"ActualVirtualOffset", 2000000,    " 100000",  100000},
    {"MinorTicLength",      0,          " .5",      0.5F},
    {"MinorTicLength",      16,         " 16",      15},
    {"MajorTicLength",      100,        " 100",     15},
    {"MinorTicWidth",       0.5F,       " .5",      1},
    {"MajorTicWidth",       -1,         " 1",       1},
    {"MajorTicWidth",       21,         " 21",      20},
    {"FontSize",            0,          " 8",       8},
    {"FontSize",            1,          " 1",       2},
    {"FontSize",            72,         " 72",      20},
    {"LabelSpacing",        -300,       "-200",     -200},
    {"LabelSpacing",        201,        " 201",     200},
    {"ArcWidth",            0,          " .5",      0.5F},
    {"ArcWidth",            21,         " 21",      20},
};
// clang-format on

TEST_F(PlateLoadTest, ValuesAreRepairedThenShownThenHeldToTheLimits) {
    for (const LoadedValue& value : kLoaded) {
        SCOPED_TRACE(std::string(value.stem) + " " + PlainNumber(value.stored));
        ResetDesign(Design);
        const Measure& measure = MeasureOf(value.stem);
        measure.Value() = value.stored;
        OpenPlate();
        EXPECT_EQ(TextOf(measure.Named("txt")), value.shown);
        EXPECT_EQ(measure.Value(), value.held);
    }
}

TEST_F(PlateLoadTest, ValueWhoseTextIsTooLongToBeReadKeepsItself) {
    Design.LabelSpacing = 0.012345678F; // shown with 12 characters
    OpenPlate();
    EXPECT_GT(TextOf("txtLabelSpacing").size(), 10U);
    EXPECT_EQ(Design.LabelSpacing, 0.012345678F);
}

TEST_F(PlateLoadTest, EachBoxFiresAndTheLastOneLeavesItsTopic) {
    Design.HelpTopic = 3;
    OpenPlate();
    EXPECT_EQ(Design.HelpTopic, 25);
}

TEST_F(PlateLoadTest, SchematicIsClearedAtTheEnd) {
    Design.HelpTopic = 3;
    OpenPlate();
    EXPECT_EQ(ShownSchematic(), Strings{"Clear"});
    const QImage shown = Picture("picSchematic").grab().toImage();
    EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2), Qt::white);
}

TEST_F(PlateLoadTest, OneStandardScaleAndTheFontAreForced) {
    Design.NumberOfScales = 4;
    Design.ActiveScale = 3;
    Design.FontName = "Courier New";
    Design.ScaleColor[1] = -5;
    Design.LinearityExponent[1] = 2;
    OpenPlate();
    EXPECT_EQ(Design.NumberOfScales, 1);
    EXPECT_EQ(Design.ActiveScale, 1);
    EXPECT_TRUE(IsSelected("Option1"));
    EXPECT_EQ(Design.FontName, "Arial");
    EXPECT_EQ(Design.ScaleColor[1], 0);
    EXPECT_EQ(Design.LinearityExponent[1], 1);
}

TEST_F(PlateLoadTest, FontIsShownAsItWasBeforeTheRepairs) {
    Design.FontName = "  Courier New ";
    OpenPlate();
    EXPECT_EQ(Find<QLabel>("lblShowFont").text(), QStringLiteral("     Courier New"));
    EXPECT_EQ(Design.FontName, "Arial");
    OpenPlate();
    EXPECT_EQ(Find<QLabel>("lblShowFont").text(), QStringLiteral("           Arial"));
}

TEST_F(PlateLoadTest, LongFontNameIsShownWhole) {
    Design.FontName = "Liberation Sans Narrow";
    OpenPlate();
    EXPECT_EQ(Find<QLabel>("lblShowFont").text(), QStringLiteral("Liberation Sans Narrow"));
}

struct PlateFlag {
    const char* name;
    std::string DesignRecord::*flag;
    const char* filled;       // where it is empty
    const char* filledOption; // none if null
    const char* other;
    const char* otherOption;
};

constexpr PlateFlag kPlateFlags[] = {
    {"arcs", &D::DrawArcs, "Y", "optArcsYes", "N", "optArcsNo"},
    {"rotation", &D::LabelRotation, "H", "optLabelRotationHorizontal", "B",
     "optLabelRotationBearing"},
    {"labels", &D::PrintText, "Y", "optPrintTextYes", "N", "optPrintTextNo"},
    {"highlights", &D::DrawHighlights, "Y", nullptr, "N", nullptr},
    {"graphic", &D::DrawGraphic, "N", "optGraphicNo", "Y", "optGraphicYes"},
};

TEST_F(PlateLoadTest, EmptyFlagsAreFilledAndSetOnesKept) {
    for (const bool set : {false, true}) {
        SCOPED_TRACE(set ? "set" : "empty");
        for (const PlateFlag& row : kPlateFlags) {
            Design.*row.flag = set ? row.other : "";
        }
        OpenPlate();
        for (const PlateFlag& row : kPlateFlags) {
            EXPECT_EQ(Design.*row.flag, set ? row.other : row.filled) << row.name;
            const char* const option = set ? row.otherOption : row.filledOption;
            EXPECT_TRUE(!option || IsSelected(option)) << row.name;
        }
    }
}

TEST_F(PlateLoadTest, LabelsShowTheirFieldWhateverTheGraphicIs) {
    for (const char* graphic : {"Y", "N"}) {
        for (const char* labels : {"Y", "N"}) {
            Design.DrawGraphic = graphic;
            Design.PrintText = labels;
            OpenPlate();
            SCOPED_TRACE(std::string("graphic ") + graphic + ", labels " + labels);
            EXPECT_EQ(IsSelected("optPrintTextYes"), labels == std::string("Y"));
            EXPECT_EQ(IsSelected("optPrintTextNo"), labels == std::string("N"));
            EXPECT_EQ(IsSelected("optGraphicYes"), graphic == std::string("Y"));
            EXPECT_EQ(Design.PrintText, labels);
            EXPECT_EQ(Design.DrawGraphic, graphic);
        }
    }
}

TEST_F(PlateLoadTest, NumbersSelectTheirOptions) {
    const std::pair<std::int16_t, const char*> sounds[] = {
        {0, "optSoundOff"}, {1, "optSoundWarn"}, {2, "optSoundAll"}};
    for (const auto& [level, option] : sounds) {
        Design.MessageLevel = level;
        OpenPlate();
        EXPECT_TRUE(IsSelected(option)) << option;
        EXPECT_EQ(Design.MessageLevel, level);
    }
    for (const auto value : {std::int16_t{0}, std::int16_t{1}}) {
        Design.PlateStyle = value;
        Design.PlateOutlineCircular = value;
        OpenPlate();
        EXPECT_EQ(IsSelected("optDINquad"), value == 1);
        EXPECT_EQ(IsSelected("optNormal"), value == 0);
        EXPECT_EQ(IsSelected("optCircular"), value == 1);
        EXPECT_EQ(IsSelected("optRectangular"), value == 0);
        EXPECT_EQ(Design.PlateStyle, value);
        EXPECT_EQ(Design.PlateOutlineCircular, value);
    }
}

TEST_F(PlateLoadTest, ValueWithoutAnOptionSelectsNoneAndStays) {
    Design.LabelRotation = "V";
    Design.MessageLevel = 7;
    OpenPlate();
    ExpectSelected({"optLabelRotationHorizontal", "optLabelRotationBearing", "optSoundOff"}, false);
    EXPECT_EQ(Design.LabelRotation, "V");
    EXPECT_EQ(Design.MessageLevel, 7);
}

struct WarnedLoad {
    std::int16_t style;
    float deflection;
    float offset;
    bool deflectionWarned;
    bool offsetWarned;
};

TEST_F(PlateLoadTest, QuadrantIsWarnedOfAtOnce) {
    const WarnedLoad rows[] = {
        {0, 60, 30, false, false}, {1, 90, 0, false, false}, {1, 60, 0, true, false},
        {1, 90, 30, false, true},  {1, 99, -1, true, true},  {1, 0, 0, false, false}, // repaired
    };
    for (const WarnedLoad& row : rows) {
        SCOPED_TRACE(std::to_string(&row - rows));
        Design.PlateStyle = row.style;
        Design.PointerDeflection = row.deflection;
        Design.ActualVirtualOffset = row.offset;
        OpenPlate();
        EXPECT_EQ(BackgroundOf("txtPointerDeflection") == kPaleRed, row.deflectionWarned);
        EXPECT_EQ(BackgroundOf("txtPointerDeflection") == QColor(Qt::white), !row.deflectionWarned);
        EXPECT_EQ(BackgroundOf("txtActualVirtualOffset") == kPaleRed, row.offsetWarned);
        EXPECT_EQ(BackgroundOf("txtActualVirtualOffset") == QColor(Qt::white), !row.offsetWarned);
    }
}

TEST_F(PlateLoadTest, ShortNameOfTheGraphicIsKept) {
    const std::pair<const char*, const char*> rows[] = {{"C:\\Pictures\\Logo.bmp", "Logo.bmp"},
                                                        {"Logo.bmp", "Logo.bmp"},
                                                        {"C:\\Pictures\\", ""},
                                                        {"", ""}};
    for (const auto& [path, shown] : rows) {
        Design.GraphicFileName = path;
        OpenPlate();
        EXPECT_EQ(Find<QGroupBox>("fraGraphic").toolTip(), QLatin1String(shown)) << path;
        EXPECT_EQ(Design.GraphicFileName, path);
    }
}

TEST_F(PlateLoadTest, WhatWasTypedIsBackWhenThePageIsBack) {
    OpenPlate();
    Type("txtPlateWidth", "200");
    Type("txtMajorTicWidth", "15");
    Click("optArcsNo");
    OpenPage("frmPreview");
    OpenPlate();
    EXPECT_EQ(TextOf("txtPlateWidth"), " 180");
    EXPECT_EQ(TextOf("txtMajorTicWidth"), " 15");
    EXPECT_TRUE(IsSelected("optArcsNo"));
}

TEST_F(PlateLoadTest, LoadSaysNothing) {
    OpenPlate();
    EXPECT_TRUE(said.empty());
    EXPECT_TRUE(Box("txtPlateWidth").hasFocus());
}

TEST_F(PlateLoadTest, CloseBoxSavesTheSessionAndEnds) {
    OpenPlate();
    Type("txtPlateWidth", "123");
    CloseByUser(Page());
    EXPECT_EQ(CurrentPage(), nullptr);
    EXPECT_TRUE(TakeProcessEnd());
    Design.PlateWidth = 0;
    ReadDesign(Design, Path("LASTSESSION.VRN"));
    EXPECT_EQ(Design.PlateWidth, 123);
}

} // namespace
} // namespace vernacle::test
