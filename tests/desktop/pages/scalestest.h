// What the tests of the scales page share: its numeric entries, written down anew, and the drawing
// that the page must show.
#pragma once

#include "desktop/pages/pagedrawing.h"
#include "engine/base/numbertext.h"
#include "engine/core/fieldplace.h"

namespace vernacle::test {

using D = DesignRecord;

// The names of its box and caption are the stem behind "txt" and "lbl".
struct ScaleEntry {
    const char* caption;
    const char* stem;
    FieldPlace field;
    double lowest;
    double highest;
    const char* arrows; // none if null
    double arrowsLowest;
    double arrowsHighest;

    std::string Box() const { return std::string("txt") + stem; }
    std::string Label() const { return std::string("lbl") + stem; }
    double Value(int scale) const { return NumberIn(field.In(Design, scale)); }
    double Value() const { return Value(Design.ActiveScale); }
};

constexpr std::int32_t kRed = 0x0000FF;
constexpr double kLargest = 1e10; // that any entry can be

// clang-format off
constexpr ScaleEntry kScaleEntries[] = {
    {"Scale left end (units):",   "ScaleLeftEnd",          At<&D::ScaleLeftEnd>,         -kLargest, kLargest, nullptr,                      0, 0},
    {"Scale length (units):",     "ScaleLength",           At<&D::ScaleLengthUnits>,     -kLargest, kLargest, nullptr,                      0, 0},
    {"Bottom to scale ceiling:",  "BottomToScaleCeiling",  At<&D::BottomToScaleCeiling>, -200,      200,      "UpDownBottomToScaleCeiling", 0, 180},
    {"Bottom to title:",          "BottomToTitle",         At<&D::BottomToTitle>,        -200,      200,      "UpDownBottomToTitle",        0, 180},
    {"Number of tics",            "NumberOfTics",          At<&D::NrOfTicmarks>,         1,         360,      "UpDown3",                    0, 360},
    {"Major tics every how many", "MajorTicsEveryHowMany", At<&D::MajorEveryHowMany>,    1,         360,      "UpDown4",                    1, 50},
    {"Labels every how many",     "LabelsEveryHowMany",    At<&D::LabelsEveryHowMany>,   1,         360,      "UpDown5",                    1, 50},
    {"Actual/virtual offset:",    "Offset",                At<&D::ActualVirtualOffset>,  0,         1000,     "UpDown7",                    0, 100000},
};
// clang-format on

inline const ScaleEntry& EntryOf(const std::string& stem) {
    for (const ScaleEntry& entry : kScaleEntries) {
        if (stem == entry.stem) {
            return entry;
        }
    }
    throw std::runtime_error("no entry " + stem);
}

class ScalesTest : public DrawingPageTest {
protected:
    QWidget& OpenScales() { return OpenPage("frmScales"); }

    // The page over a design of so many scales.
    QWidget& OpenScales(int scales) {
        Design.NumberOfScales = static_cast<std::int16_t>(scales);
        return OpenScales();
    }

    // Types over what the box holds, without emptying it first.
    void Overtype(const std::string& box, const std::string& text) const {
        Box(box).setFocus();
        Box(box).selectAll();
        QTest::keyClicks(&Box(box), QString::fromStdString(text));
    }

    void Enable(const std::string& control) const { Find(control).setEnabled(true); }
    void Disable(std::initializer_list<const char*> controls) const {
        for (const char* control : controls) {
            Find(control).setEnabled(false);
        }
    }

    // The colours of an option, whether or not it is enabled.
    QColor InkOf(const std::string& option) const {
        return Option(option).palette().color(QPalette::Active, QPalette::WindowText);
    }
    QColor GroundOf(const std::string& option) const {
        return Option(option).grab().toImage().pixelColor(0, 0); // as it is painted
    }

    // The drawing of the design as it is now, with the sizes that the page had at its load.
    static Strings PlateOf(const PageCopies& sizes) { return DrawnPlate(ScalesTraits(), sizes); }
    static Strings PlateOfDesign() { return PlateOf({Design.FontSize, Design.LabelSpacing}); }

    // Takes the drawing away and puts nonsense into the tables: only a redraw mends both.
    void Spoil() const {
        Wipe();
        for (int scale = 1; scale <= Design.NumberOfScales; ++scale) {
            Design.StandardDeflection[scale][1] = 9;
            Design.StandardLabel[scale][0] = "spoilt";
        }
    }

    // The plate is drawn whole, from tables that were computed before.
    void ExpectRedrawn() const {
        for (int scale = 1; scale <= Design.NumberOfScales; ++scale) {
            EXPECT_NE(Design.StandardDeflection[scale][1], 9) << "scale " << scale;
            EXPECT_NE(Design.StandardLabel[scale][0], "spoilt") << "scale " << scale;
        }
        const Strings shown = ShownPlate();
        EXPECT_EQ(shown, PlateOfDesign());
        EXPECT_GT(shown.size(), 30U);
    }

    // Values that differ from those of every other scale.
    static void GiveOwnValues(int scale) {
        const auto number = static_cast<float>(scale);
        Design.ScaleLeftEnd[scale] = 100 + number;
        Design.ScaleLengthUnits[scale] = 200 + number;
        Design.BottomToTitle[scale] = 20 + number;
        Design.BottomToScaleCeiling[scale] = 30 + number;
        Design.ScaleTitle[scale] = "Volts " + std::to_string(scale);
        Design.LabelsEveryHowMany[scale] = static_cast<std::int16_t>(10 + scale);
        Design.NrOfTicmarks[scale] = static_cast<std::int16_t>(60 + scale);
        Design.MajorEveryHowMany[scale] = static_cast<std::int16_t>(20 + scale);
        Design.LinearityExponent[scale] = 1 + number / 8;
        Design.RelativeFontSize[scale] = 0.5F + number / 10;
    }
    static void GiveAllOwnValues() {
        for (int scale = 1; scale <= kScales; ++scale) {
            GiveOwnValues(scale);
        }
    }

    // The page is that of the scale, which has its own values.
    void ExpectOwnValuesShown(int scale) const {
        const auto number = static_cast<float>(scale);
        const std::pair<const char*, std::string> rows[] = {
            {"txtScaleLeftEnd", PlainNumber(100 + number)},
            {"txtScaleLength", PlainNumber(200 + number)},
            {"txtBottomToTitle", PlainNumber(20 + number)},
            {"txtBottomToScaleCeiling", PlainNumber(30 + number)},
            {"txtNumberOfTics", std::to_string(60 + scale)},
            {"txtMajorTicsEveryHowMany", std::to_string(20 + scale)},
            {"txtLabelsEveryHowMany", std::to_string(10 + scale)},
            {"txtLinearityExponent", PlainNumber(1 + number / 8)},
            {"txtScaleTitle", "Volts " + std::to_string(scale)},
            {"fraPrintTics", "Print arcs and tics on #" + std::to_string(scale) + ":"},
        };
        for (const auto& [control, text] : rows) {
            EXPECT_EQ(Shown(control), text) << control;
        }
        EXPECT_TRUE(IsSelected("Option" + std::to_string(scale)));
        EXPECT_EQ(ShownPlate(), PlateOfDesign());
    }
};

} // namespace vernacle::test
