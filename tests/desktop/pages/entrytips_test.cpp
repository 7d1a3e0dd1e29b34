// What the boxes of all pages tell of their limits, held against what they do with a number below
// and above.
#include <algorithm>
#include <optional>

#include "desktop/pages/pagedrawing.h"
#include "engine/base/numbertext.h"
#include "engine/core/fieldplace.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

// Where the number goes, and what the user presses until it is held.
struct TipRow {
    const char* box;
    const char* tip;
    FieldPlace field = {};
    const char* press = "";
};

struct TipPage {
    const char* form;
    const char* before; // pressed once the page stands
    std::vector<TipRow> rows;
};

// clang-format off
const TipPage kPages[] = {
    {"frmPlate", nullptr, {
        {"txtPlateWidth",          "20 to 180 mm",            At<&D::PlateWidth>},
        {"txtPlateHeight",         "10 to 180 mm",            At<&D::PlateHeight>},
        {"txtBottomToBearing",     "-100000 to 100000 mm",    At<&D::BottomToBearing>},
        {"txtBottomToHoles",       "-1000 to 150 mm",         At<&D::BottomToHoles>},
        {"txtHoleSeparation",      "5 to 180 mm",             At<&D::HoleSeparation>},
        {"txtPointerDeflection",   "0.1 to 360 degrees",      At<&D::PointerDeflection>},
        {"txtActualVirtualOffset", "at most 1000000 mm",      At<&D::ActualVirtualOffset>},
        {"txtMinorTicLength",      "0.5 to 15 mm",            At<&D::MinorTicLength>},
        {"txtMajorTicLength",      "0.5 to 15 mm",            At<&D::MajorTicLength>},
        {"txtMinorTicWidth",       "1 to 20 tenths of mm",    At<&D::MinorTicWidth>},
        {"txtMajorTicWidth",       "1 to 20 tenths of mm",    At<&D::MajorTicWidth>},
        {"txtFontSize",            "2 to 20 points",          At<&D::FontSize>},
        {"txtLabelSpacing",        "-200 to 200 mm",          At<&D::LabelSpacing>},
        {"txtArcWidth",            "0.5 to 20 tenths of mm",  At<&D::ArcWidth>},
    }},
    {"frmScales", nullptr, {
        {"txtScaleLeftEnd",          "",               At<&D::ScaleLeftEnd>},
        {"txtScaleLength",           "",               At<&D::ScaleLengthUnits>},
        {"txtBottomToScaleCeiling",  "-200 to 200 mm", At<&D::BottomToScaleCeiling>},
        {"txtBottomToTitle",         "-200 to 200 mm", At<&D::BottomToTitle>},
        {"txtNumberOfTics",          "1 to 360 tics",  At<&D::NrOfTicmarks>},
        {"txtMajorTicsEveryHowMany", "1 to 360 tics",  At<&D::MajorEveryHowMany>},
        {"txtLabelsEveryHowMany",    "1 to 360 tics",  At<&D::LabelsEveryHowMany>},
        {"txtRelFontsize",           "0.5 to 1.5 times the font size", At<&D::RelativeFontSize>},
        {"txtOffset",                "0 to 1000 mm",   At<&D::ActualVirtualOffset>},
        {"txtScaleTitle",            ""},
        {"txtLinearityExponent",     "-4 to 4",        At<&D::LinearityExponent>},
    }},
    {"frmPreview", nullptr, {
        {"txtAspect",       "0.5 to 1.15", At<&D::AspectRatio>},
        {"txtAspectUpDown", "50 to 115 %", FieldPlace{[](DesignRecord& design, int, int) -> FieldPointer { static float percent; percent = design.AspectRatio * 100; return &percent; }}},
    }},
    {"frmText", nullptr, {
        {"txtText",         ""},
        {"txtLeftToText",   "at least -100 mm",              At<&D::LeftToText>,   "Text"},
        {"txtBottomToText", "0 to 180 mm by the arrows",     At<&D::BottomToText>, "Text"},
        {"txtRelSize",      "at most 2 times the font size", At<&D::TextRelativeSize>, "Text"},
    }},
    {"frmGraphic", nullptr, {
        {"txtLeftToImage",   "0 to 180 mm", At<&D::LeftToGraphic>,   "Graphic"},
        {"txtBottomToImage", "0 to 120 mm", At<&D::BottomToGraphic>, "Graphic"},
        {"txtGraphicWidth",  "2 to 180 mm", At<&D::GraphicWidth>},
        {"txtGraphicHeight", "2 to 180 mm", At<&D::GraphicHeight>},
    }},
    {"frmHighlights", "Option1", {
        {"txtStart1",   "0 to 100 % by the arrows",  At<&D::HighlightStart>},
        {"txtStop1",    "0 to 100 % by the arrows",  At<&D::HighlightStop>},
        {"txtCeiling1", "0 to 180 mm by the arrows", At<&D::HighlightCeiling>},
        {"txtLength1",  "0 to 18 mm by the arrows",  At<&D::HighlightLength>},
    }},
    {"frmSetupdB", nullptr, {
        {"txtFullScaledB",         "-200 to 200 dB",   FieldPlace{[](DesignRecord& design, int, int) -> FieldPointer { static float decibels; decibels = static_cast<float>(NumericValue(design.TicLabelText[1][0])); return &decibels; }}, "cmdEnter"},
        {"txtNrOfTicmarks",        "0 to 24 ticmarks", At<&D::SpecialNrOfTicmarks>, "cmdEnter"},
        {"txtLinearityExponent",   "-4 to 4",          At<&D::LinearityExponent>,   "cmdEnter"},
        {"txtFullscaleMultiplier", "0.7 to 1.1",       At<&D::FullscaleMultiplier>, "cmdEnter"},
    }},
    {"frmSetupSmeter", nullptr, {{"txtLinearityExponent", "-4 to 4", At<&D::LinearityExponent>, "Option1"}}},
    {"frmSetupVSWR",   nullptr, {{"txtLinearityExponent", "-4 to 4", At<&D::LinearityExponent>, "Option1"}}},
    {"frmSpecialScale", nullptr, {
        {"txtNrOfTicmarks", "1 to 30 ticmarks",    At<&D::SpecialNrOfTicmarks>},
        {"txtDeflection0",  "0 to 1 of full scale", FieldPlace{[](DesignRecord& design, int, int) -> FieldPointer { return &design.TicDeflection[1][0]; }}, "cmdPreview"},
    }},
    {"frmSetupOhmmeter", nullptr, {{"txtEnterMidscale", ""}, {"txtEnterResistance", ""}}},
};
// clang-format on

// The ends that a tip speaks of, be they open ones.
struct Ends {
    std::optional<double> lowest;
    std::optional<double> highest;
};

Ends EndsOf(const std::string& tip) {
    std::vector<double> numbers;
    for (const QString& word :
         QString::fromStdString(tip).remove(QLatin1Char(',')).split(QLatin1Char(' '))) {
        bool isNumber = false;
        const double value = word.toDouble(&isNumber);
        if (isNumber) {
            numbers.push_back(value);
        }
    }
    if (tip.starts_with("at least ")) {
        return {numbers.at(0), {}};
    }
    if (tip.starts_with("at most ")) {
        return {{}, numbers.at(0)};
    }
    return {numbers.at(0), numbers.at(1)};
}

class EntryTipsTest : public DrawingPageTest {
protected:
    // Over a new design.
    void Open(const TipPage& page) {
        ResetDesign(Design);
        Design.ActiveScale = Design.CurrentScale = Design.NumberOfScales = 1;
        OpenPage(page.form);
        EnableAll();
        if (page.before) {
            Click(page.before);
        }
    }

    // What the design holds once that was typed into the box and it was left.
    double Kept(const TipRow& row, double typed) {
        Type(row.box, PlainNumber(static_cast<float>(typed)));
        QTest::keyClick(&Box(row.box), Qt::Key_Tab);
        if (row.press == std::string("cmdPreview")) {
            Answer(Cancel);
        }
        if (*row.press != '\0') {
            Click(row.press);
        }
        said.clear();
        return NumberIn(row.field.In(Design, 1));
    }

    void ExpectLimited(const TipRow& row) {
        const Ends ends = EndsOf(row.tip);
        const bool byArrows = std::string(row.tip).ends_with(" by the arrows");
        const auto expectKept = [&](double typed, double kept) {
            EXPECT_EQ(static_cast<float>(Kept(row, typed)), static_cast<float>(kept)) << typed;
        };
        constexpr double kBeyond = 1;
        if (ends.lowest) {
            const double below = *ends.lowest - kBeyond;
            const bool signDropped = row.box == std::string("txtNrOfTicmarks");
            expectKept(*ends.lowest, *ends.lowest);
            if (!signDropped) {
                expectKept(below, byArrows ? below : *ends.lowest);
            }
        }
        if (ends.highest) {
            const double above = *ends.highest + kBeyond;
            expectKept(*ends.highest, *ends.highest);
            expectKept(above, byArrows ? above : *ends.highest);
        }
        if (!ends.lowest) {
            expectKept(-30000, -30000);
        }
        if (!ends.highest) {
            expectKept(30000, 30000);
        }
    }
};

TEST_F(EntryTipsTest, BoxesTellTheirLimitsAndKeepThem) {
    for (const TipPage& page : kPages) {
        for (const TipRow& row : page.rows) {
            SCOPED_TRACE(std::string(page.form) + " " + row.box);
            Open(page);
            EXPECT_EQ(Box(row.box).toolTip().toStdString(), row.tip);
            EXPECT_EQ(Box(row.box).accessibleDescription().toStdString(), row.tip);
            const bool bendsZero = row.box == std::string("txtLinearityExponent");
            if (*row.tip != '\0' && !bendsZero) {
                ExpectLimited(row);
            }
        }
    }
}

// A negative exponent cannot bend the first tic: what is drawn fails, what is kept is held.
TEST_F(EntryTipsTest, ExponentsAreHeldAsTheyTell) {
    for (const TipPage& page : kPages) {
        for (const TipRow& row : page.rows) {
            if (row.box != std::string("txtLinearityExponent")) {
                continue;
            }
            SCOPED_TRACE(page.form);
            Open(page);
            EXPECT_EQ(Kept(row, 4), 4);
            EXPECT_EQ(Kept(row, 5), 4);
        }
    }
}

// No box of a page is forgotten: what is not in the table is a row's further box, or a partner.
TEST_F(EntryTipsTest, EveryBoxIsKnown) {
    for (const TipPage& page : kPages) {
        SCOPED_TRACE(page.form);
        Open(page);
        for (const EntryBox* box : Page().findChildren<EntryBox*>()) {
            const std::string name = box->objectName().toStdString();
            const auto isIt = [&](const TipRow& row) { return name == row.box; };
            if (std::any_of(page.rows.begin(), page.rows.end(), isIt) || !box->isVisible()) {
                continue;
            }
            const bool deflection = name.starts_with("txtDeflection");
            EXPECT_TRUE(deflection || name.starts_with("txtLabel")) << name;
            EXPECT_EQ(box->toolTip().toStdString(), deflection ? "0 to 1 of full scale" : "");
        }
    }
}

TEST_F(EntryTipsTest, PointsOfTheCurveLieBetweenItsEnds) {
    OpenPage("frmPlate");
    for (const char* typed : {"-1", "101"}) {
        for (int number = 1; number <= 14; ++number) {
            const std::string name = "Text" + std::to_string(number);
            const bool entered = number >= 3 && number <= 12;
            SCOPED_TRACE(name + " " + typed);
            Answer([&](QWidget& form) {
                auto& box = On<EntryBox>(form, name);
                EXPECT_EQ(box.toolTip(), entered ? QStringLiteral("0 to 100 %") : QString());
                EXPECT_EQ(box.accessibleDescription(), box.toolTip());
                said.clear();
                box.setFocus();
                box.selectAll();
                QTest::keyClicks(&box, QLatin1String(typed));
                Click(On<QPushButton>(form, "cmdAcceptXY"));
                EXPECT_EQ(said.size(), entered ? 1U : 0U);
                Click(On<QPushButton>(form, "cmdRestore"));
                Click(On<QPushButton>(form, "cmdExitNo"));
            });
            ShowModal("frmCorrectionEntry");
        }
    }
}

struct SideRow {
    float factor;
    const char* tip;
};

// The sides that correct the factor without being held.
TEST_F(EntryTipsTest, MeasuredSidesTellWhatCorrects) {
    OpenPage("frmPreview");
    Design.DesignFileName.clear();
    for (const SideRow& row : {SideRow{1, "50 to 200 mm"}, SideRow{0, "50 to 200 mm"},
                               SideRow{1.25F, "62.5 to 250 mm"}, SideRow{0.98F, "49 to 196 mm"}}) {
        SCOPED_TRACE(row.tip);
        const Ends ends = EndsOf(row.tip);
        const auto measure = [&](double side) {
            Design.CalibrationX = Design.CalibrationY = row.factor;
            Answer([&, side](QWidget& form) {
                for (const char* name : {"txtActualWidth", "txtActualHeight"}) {
                    auto& box = On<EntryBox>(form, name);
                    EXPECT_EQ(box.toolTip(), QLatin1String(row.tip));
                    EXPECT_EQ(box.accessibleDescription(), box.toolTip());
                    box.setText(QString::number(side));
                }
                Click(On<QPushButton>(form, "cmdReturn"));
            });
            ShowModal("frmCalibrate");
            EXPECT_EQ(Design.CalibrationX, Design.CalibrationY);
            return double{Design.CalibrationX};
        };
        EXPECT_EQ(measure(*ends.lowest - 1), 2);
        EXPECT_LT(measure(*ends.lowest + 1), 2);
        EXPECT_EQ(measure(*ends.highest + 1), 0.5);
        EXPECT_GT(measure(*ends.highest - 1), 0.5);
    }
}

// Each step of the wizard tells what it accepts, also where an earlier one decides.
TEST_F(EntryTipsTest, WizardsStepsTellWhatTheyAccept) {
    struct Step {
        const char* box;
        const char* entered;
        const char* tip;
    };
    const Step steps[] = {
        {"txtPlateWidth", "90", "20 to 180 mm"},
        {"txtPlateHeight", "60.5", "10 to 160 mm"},
        {"txtBottomToBearing", "5", "-100000 to 100000 mm"},
        {"txtBottomToHoles", "5", "-1000 to 150 mm"},
        {"txtHoleSeparation", "70", "5 to 90 mm"},
        {"txtPointerDeflection", "90", "0.1 to 360 degrees"},
        {"txtActualVirtualOffset", "0", "0 to 100000 mm"},
        {"txtMajorTicLength", "3.5", "1 to 20 mm"},
        {"txtMinorTicLength", "2", "above 0.5, at most 3.5 mm"},
        {"txtMajorTicWidth", "4", "1 to 20 tenths of mm"},
        {"txtMinorTicWidth", "2", "1 to 4 tenths of mm"},
        {"txtArcWidth", "2", "1 to 20 tenths of mm"},
        {"txtBottomToScaleCeiling", "40", "above 0, at most 60.5 mm"},
        {"txtFontSize", "8", "2 to 20 points"},
        {"txtLabelSpacing", "6", "above -100, at most 200 mm"},
        {"txtBottomToTitle", "25", "above 0, at most 60.5 mm"},
        {"txtNrOfTicmarks", "50", "above 0, below 101 ticmarks"},
        {"txtMajorEveryHowMany", "5", "above 0, below 21 ticmarks"},
    };
    OpenPage("frmWizard");
    for (const Step& step : steps) {
        SCOPED_TRACE(step.box);
        EXPECT_EQ(Box(step.box).toolTip(), QLatin1String(step.tip));
        EXPECT_EQ(Box(step.box).accessibleDescription(), QLatin1String(step.tip));
        const Ends ends = EndsOf(step.tip);
        for (const double refused : {*ends.lowest - 0.25, *ends.highest + 0.25}) {
            said.clear();
            Type(step.box, PlainNumber(static_cast<float>(refused)));
            QTest::keyClick(&Box(step.box), Qt::Key_Return);
            EXPECT_EQ(said.size(), 1U) << refused;
        }
        said.clear();
        Type(step.box, step.entered);
        QTest::keyClick(&Box(step.box), Qt::Key_Return);
        EXPECT_TRUE(said.empty());
    }
}

} // namespace
} // namespace vernacle::test
