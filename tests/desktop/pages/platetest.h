// What the tests of the plate page share: its fourteen measures, written down anew, and the
// schematic that belongs to each.
#pragma once

#include "engine/illustrations/schematic.h"
#include "support/formtest.h"

namespace vernacle::test {

// The control's names are its stem behind "txt", "lbl", "UpDown" and "cmd".
struct Measure {
    const char* caption;
    const char* stem;
    float DesignRecord::*field;
    double lowest;
    double highest;
    double arrowsLowest;
    double arrowsHighest;
    int topic;
    const char* illustration; // caption of the schematic

    std::string Named(const char* prefix) const { return prefix + std::string(stem); }
    float& Value() const { return Design.*field; }
};

constexpr double kNone = -1e10; // as low as an entry can be

using D = DesignRecord;

// clang-format off
constexpr Measure kMeasures[] = {
    {"Plate width, mm",           "PlateWidth",          &D::PlateWidth,          20,      180,     20,      180,    1,  "Plate width - mm"},
    {"Plate height, mm",          "PlateHeight",         &D::PlateHeight,         10,      180,     10,      180,    2,  "Plate height - mm"},
    {"Bottom to bearing, mm",     "BottomToBearing",     &D::BottomToBearing,     -100000, 100000,  -100000, 100000, 3,  "Bottom to bearing - mm"},
    {"Bottom to mounting, mm",    "BottomToHoles",       &D::BottomToHoles,       -1000,   150,     -1000,   150,    4,  "Bottom to mounting holes - mm"},
    {"Hole separation, mm",       "HoleSeparation",      &D::HoleSeparation,      5,       180,     5,       180,    5,  "Mounting hole separation - mm"},
    {"Pointer deflection, deg ",  "PointerDeflection",   &D::PointerDeflection,   0.1,     360,     1,       360,    6,  "Pointer deflection - degrees"},
    {"Actual/virtual offset, mm", "ActualVirtualOffset", &D::ActualVirtualOffset, kNone,   1000000, 0,       100000, 7,  "Actual/virtual offset - mm"},
    {"Minor tic length, mm",      "MinorTicLength",      &D::MinorTicLength,      0.5,     15,      1,       15,     9,  "Minor tic length - mm"},
    {"Major tic length, mm",      "MajorTicLength",      &D::MajorTicLength,      0.5,     15,      1,       15,     10, "Major tic length - mm"},
    {"Minor tic width, .1 mm",    "MinorTicWidth",       &D::MinorTicWidth,       1,       20,      1,       20,     11, "Minor tic width - mm/10"},
    {"Major tic width, .1 mm",    "MajorTicWidth",       &D::MajorTicWidth,       1,       20,      0,       10,     12, "Major tic width - mm/10"},
    {"Font size",                 "FontSize",            &D::FontSize,            2,       20,      2,       20,     13, "Font size - points"},
    {"Label-arc spacing, mm",     "LabelSpacing",        &D::LabelSpacing,        -200,    200,     -200,    200,    14, "Arc to label spacing - mm"},
    {"Arc thickness, mm",         "ArcWidth",            &D::ArcWidth,            0.5,     20,      1,       20,     25, "Arc width (thickness) - mm/10"},
};
// clang-format on

inline const Measure& MeasureOf(const std::string& stem) {
    for (const Measure& measure : kMeasures) {
        if (stem == measure.stem) {
            return measure;
        }
    }
    throw std::runtime_error("no measure " + stem);
}

const inline QColor kPaleRed(0xFF, 0xEE, 0xEE);

class PlateTest : public FormTest {
protected:
    QWidget& OpenPlate() { return OpenPage("frmPlate"); }

    void TypeIn(const Measure& measure, const std::string& text) const {
        Type(measure.Named("txt"), text);
    }

    QColor BackgroundOf(const std::string& box) const {
        return Box(box).palette().color(QPalette::Base);
    }

    Strings ShownSchematic() const { return CallsOf("picSchematic"); }

    void WipeSchematic() const { Picture("picSchematic").Surface().Clear(); }

    // The schematic of a topic as a page of its own shows it.
    static Strings SchematicOf(int topic) {
        PictureBox picture("expected", SchematicArea(), UnitShape::Square);
        DrawSchematic(picture.Surface(), topic, kPlatePageLook);
        return Recorded(picture).calls;
    }

    // The page shows the measure's schematic, caption and all, and the design knows the topic.
    void ExpectIllustrated(const Measure& measure) const {
        EXPECT_EQ(Design.HelpTopic, measure.topic);
        EXPECT_EQ(ShownSchematic(), SchematicOf(measure.topic));
        const Strings texts = TextsOf("picSchematic");
        ASSERT_FALSE(texts.empty());
        EXPECT_EQ(texts.back(), measure.illustration);
    }
};

} // namespace vernacle::test
