// The highlights page. Its entries start disabled; the tests enable them to reach their handlers.
#include <algorithm>
#include <cmath>
#include <locale>
#include <sstream>

#include "desktop/pages/pagedrawing.h"
#include "engine/base/numbertext.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/fieldplace.h"
#include "engine/designfile/readwrite.h"
#include "engine/render/stages.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

struct Entry {
    const char* box;
    const char* label;
    const char* caption;
    const char* arrows;
    FieldPlace field;
};

constexpr Entry kEntries[] = {
    {"txtStart1", "lblStart", "Start %:", "UpDown1", At<&D::HighlightStart>},
    {"txtStop1", "lblStop", "Stop %:", "UpDown2", At<&D::HighlightStop>},
    {"txtCeiling1", "lblBottom", "Bottom mm:", "UpDown3", At<&D::HighlightCeiling>},
    {"txtLength1", "lblHeight", "Height mm:", "UpDown4", At<&D::HighlightLength>},
};

constexpr const char* kSample = "FilledBox 7730 5470 8700 5530 ";
constexpr const char* kSampleOutline = "Box 7700 5440 8730 5560 0";

class HighlightsPageTest : public DrawingPageTest {
protected:
    static void GiveHighlight(int highlight, float start, float stop, float ceiling, float length) {
        Design.HighlightStart[highlight] = start;
        Design.HighlightStop[highlight] = stop;
        Design.HighlightCeiling[highlight] = ceiling;
        Design.HighlightLength[highlight] = length;
    }

    // Ten that differ from each other.
    static void GiveAll() {
        for (int highlight = 1; highlight <= kHighlights; ++highlight) {
            const auto number = static_cast<float>(highlight);
            GiveHighlight(highlight, 10 + number, 30 + number, 20 + number, number / 4);
            Design.HighlightColor[highlight] = 0x0000F0 + highlight;
        }
    }

    void OpenHighlights() {
        OpenPage("frmHighlights");
        EnableAll();
    }

    static float ValueOf(const Entry& entry, int highlight) {
        return static_cast<float>(NumberIn(entry.field.In(Design, highlight)));
    }

    // The calls behind the plate's drawing.
    Strings Sample() const {
        Strings calls = ShownPlate();
        std::erase_if(calls, [](const std::string& call) {
            return !call.starts_with(kSample) && call != kSampleOutline;
        });
        return calls;
    }

    void PressOwnKey() const { Click("Highlights"); }
};

TEST_F(HighlightsPageTest, CaptionsAndTips) {
    OpenPage("frmHighlights");
    for (const Entry& entry : kEntries) {
        EXPECT_EQ(Shown(entry.label), entry.caption);
        EXPECT_FALSE(Box(entry.box).accessibleName().isEmpty());
    }
    ExpectShown({{"lblHeading", "Highlight entry"},
                 {"Label1", "Highlight #:"},
                 {"cmdGetColor", "Color"},
                 {"cmdShowTicInfo", "Show ticmark information"}});
    ExpectEditOptions(kHighlights);
}

TEST_F(HighlightsPageTest, OnlyTheTicInformationStartsEnabled) {
    GiveAll();
    OpenPage("frmHighlights");
    for (const Entry& entry : kEntries) {
        ExpectEnabled({entry.box, entry.label, entry.arrows}, false);
        EXPECT_EQ(TextOf(entry.box), "") << "whatever the design holds";
    }
    ExpectEnabled({"txtLength10", "cmdGetColor", "Label1", "fraTextNumber"}, false);
    EXPECT_EQ(TextOf("txtLength10"), "");
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        const auto& option = Option("Option" + std::to_string(highlight));
        EXPECT_FALSE(option.isEnabled());
        EXPECT_FALSE(option.isChecked());
        EXPECT_EQ(option.palette().color(QPalette::Active, QPalette::WindowText),
                  QColor(0xF0 + highlight, 0, 0));
    }
    EXPECT_TRUE(IsEnabled("cmdShowTicInfo"));
    ExpectOnlyPrintIsGreyed();
    EXPECT_EQ(Sample(), Strings{});
}

TEST_F(HighlightsPageTest, DrawingPassesHighlightsBy) {
    GiveAll();
    OpenPage("frmHighlights");
    EXPECT_TRUE(WasRedrawn());
    EXPECT_EQ(ShownPlate(), DrawnPlate(HighlightsTraits(), {Design.FontSize, Design.LabelSpacing}));
}

struct CountRow {
    float start;
    float stop;
    bool counts;
};

TEST_F(HighlightsPageTest, RedrawCountsThoseWithBothEnds) {
    const CountRow rows[] = {{0, 40, false},  {40, 0, false},  {40, 80, true}, {80, 40, true},
                             {-5, 40, false}, {40, -5, false}, {0, 0, false},  {.5F, .1F, true}};
    for (const CountRow& row : rows) {
        GiveHighlight(7, row.start, row.stop, 30, 2);
        Design.NumberOfHighlights = 9;
        OpenPage("frmHighlights");
        EXPECT_EQ(Design.NumberOfHighlights, row.counts ? 1 : 0) << row.start << " " << row.stop;
    }
    GiveAll();
    OpenHighlights();
    EXPECT_EQ(Design.NumberOfHighlights, 10);
    Click("Option3");
    Type("txtStart1", "0");
    EXPECT_EQ(Design.NumberOfHighlights, 9) << "at each redraw";
}

TEST_F(HighlightsPageTest, SelectingFillsAndEnables) {
    GiveAll();
    OpenPage("frmHighlights");
    Find("fraTextNumber").setEnabled(true);
    for (const int highlight : {5, 10, 1}) {
        SCOPED_TRACE(highlight);
        Option("Option" + std::to_string(highlight)).setEnabled(true);
        Click("Option" + std::to_string(highlight));
        for (const Entry& entry : kEntries) {
            EXPECT_EQ(TextOf(entry.box), PlainNumber(ValueOf(entry, highlight)));
            ExpectEnabled({entry.box, entry.label, entry.arrows}, true);
        }
        EXPECT_EQ(TextOf("txtLength10"), PlainNumber(Design.HighlightLength[highlight] * 10));
        ExpectEnabled({"cmdGetColor"}, true);
        ExpectEnabled({"Label1", "Option7"}, false);
    }
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        const auto number = static_cast<float>(highlight);
        EXPECT_EQ(Design.HighlightStart[highlight], 10 + number) << "selecting changes nothing";
        EXPECT_EQ(Design.HighlightLength[highlight], number / 4);
    }
}

// The others are drawn only where a text changes.
TEST_F(HighlightsPageTest, SecondOptionAloneRedrawsByItself) {
    OpenHighlights();
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        GiveHighlight(highlight, 10, 20, 30, 4);
    }
    Click("Option1"); // the boxes hold these values from now on
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        Wipe();
        Click("Option" + std::to_string(highlight));
        EXPECT_EQ(WasRedrawn(), highlight == 2) << highlight;
    }
    Design.HighlightStop[7] = 21;
    Wipe();
    Click("Option7");
    EXPECT_TRUE(WasRedrawn()) << "a text has changed";
}

struct TypedHighlightRow {
    const char* typed;
    float value;
};

TEST_F(HighlightsPageTest, EntriesAreReadPlainlyAndHaveNoLimits) {
    const TypedHighlightRow rows[] = {{"80", 80}, {"-20", -20}, {"250", 250}, {"", 0},
                                      {"abc", 0}, {"2,5", 2},   {"2k2", 2},   {"12.5%", 12.5F}};
    GiveAll();
    OpenHighlights();
    Click("Option4");
    for (const TypedHighlightRow& row : rows) {
        for (const Entry& entry : kEntries) {
            SCOPED_TRACE(std::string(entry.box) + " " + row.typed);
            Wipe();
            Paste(entry.box, row.typed); // typed, a height would be written anew at each key
            EXPECT_EQ(ValueOf(entry, 4), row.value);
            EXPECT_TRUE(WasRedrawn());
        }
    }
    EXPECT_EQ(Design.HighlightStart[3], 13) << "no other is touched";
    EXPECT_EQ(Design.HighlightLength[5], 1.25F);
}

TEST_F(HighlightsPageTest, AStopBelowTheStartIsAccepted) {
    OpenHighlights();
    Click("Option1");
    Type("txtStart1", "60");
    Type("txtStop1", "40");
    EXPECT_EQ(Design.HighlightStart[1], 60);
    EXPECT_EQ(Design.HighlightStop[1], 40);
    EXPECT_EQ(TextOf("txtStart1"), "60");
    EXPECT_TRUE(WasRedrawn());
}

TEST_F(HighlightsPageTest, HeightHasAPartnerInTenths) {
    OpenHighlights();
    Click("Option1");
    Type("txtLength1", "2.5");
    EXPECT_EQ(TextOf("txtLength10"), "25");
    StepUp("UpDown4");
    EXPECT_EQ(TextOf("txtLength10"), "26");
    EXPECT_EQ(TextOf("txtLength1"), "2.6");
    EXPECT_EQ(Design.HighlightLength[1], 2.6F);
    Type("txtLength1", "18");
    StepUp("UpDown4");
    EXPECT_EQ(TextOf("txtLength1"), "18");
    Type("txtLength1", ".1");
    StepDown("UpDown4");
    StepDown("UpDown4");
    EXPECT_EQ(Design.HighlightLength[1], 0);
    Type("txtLength1", "0.33");
    EXPECT_EQ(TextOf("txtLength10"), "3.3");
    EXPECT_EQ(TextOf("txtLength1"), "0.33");
    QTest::keyClick(&Box("txtLength1"), Qt::Key_Tab);
    EXPECT_EQ(TextOf("txtLength1"), ".33") << "written back by its partner";
    EXPECT_EQ(Design.HighlightLength[1], 0.33F);
}

TEST_F(HighlightsPageTest, HeightFollowsEachKey) {
    OpenHighlights();
    Click("Option1");
    EntryBox& box = Box("txtLength1");
    box.setFocus();
    box.selectAll();
    const std::pair<char, const char*> keys[] = {{'0', "0"}, {'.', "0"}, {'0', "0"}, {'5', ".5"}};
    std::string typed;
    for (const auto& [key, tenths] : keys) {
        typed += key;
        Wipe();
        QTest::keyClick(&box, key);
        EXPECT_EQ(box.Text(), typed);
        EXPECT_EQ(TextOf("txtLength10"), tenths);
        EXPECT_EQ(Design.HighlightLength[1], box.Number());
        EXPECT_TRUE(WasRedrawn());
    }
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.Text(), ".05");
}

double Luminance(const QColor& colour) {
    double sum = 0;
    const std::pair<double, double> parts[] = {{double{colour.redF()}, 0.2126},
                                               {double{colour.greenF()}, 0.7152},
                                               {double{colour.blueF()}, 0.0722}};
    for (const auto& [part, weight] : parts) {
        sum += weight * (part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
    }
    return sum;
}

double Contrast(const QColor& one, const QColor& other) {
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

// The numbers are written in the highlights' colours, and read on what they stand on.
TEST_F(HighlightsPageTest, NumbersReadInAnyColour) {
    std::vector<std::int32_t> colours = {0xFFFFFF, 0x00FFFF, 0xFFFF00, 0xF4F4F4, 0,
                                         0x747474, 0x777777, 0x0000FF, 0xFF0000, 0x00FF00};
    for (std::int32_t step = 0; step < 40; ++step) {
        colours.push_back(step * 419430);
    }
    for (std::size_t first = 0; first < colours.size(); first += kHighlights) {
        for (int highlight = 1; highlight <= kHighlights; ++highlight) {
            Design.HighlightColor[highlight] =
                colours[first + static_cast<std::size_t>(highlight) - 1];
        }
        OpenHighlights();
        for (int highlight = 1; highlight <= kHighlights; ++highlight) {
            const std::int32_t colour = Design.HighlightColor[highlight];
            SCOPED_TRACE(colour);
            auto& option = Option("Option" + std::to_string(highlight));
            const QColor ink = option.palette().color(QPalette::Active, QPalette::WindowText);
            EXPECT_EQ(ink.red() + 256 * ink.green() + 65536 * ink.blue(), colour);
            const QColor ground = option.grab().toImage().pixelColor(1, 1); // as it is painted
            EXPECT_GE(Contrast(ink, ground), 4.5);
        }
    }
}

// Greyed they are all alike, on the paper that they stand on.
TEST_F(HighlightsPageTest, DisabledNumbersStandOnPaper) {
    Design.HighlightColor[1] = 0xFFFFFF;
    Design.HighlightColor[2] = 0;
    OpenPage("frmHighlights");
    const QColor paper = Find("fraTextNumberPaper").palette().color(QPalette::Window);
    for (const char* option : {"Option1", "Option2"}) {
        EXPECT_EQ(Option(option).grab().toImage().pixelColor(1, 1), paper);
    }
}

// Every tenth comes back as it was.
TEST_F(HighlightsPageTest, TenthsAreExact) {
    OpenHighlights();
    Click("Option1");
    for (int tenths = 1; tenths <= 180; ++tenths) {
        Box("txtLength10").Show(std::to_string(tenths));
        EXPECT_EQ(TextOf("txtLength10"), std::to_string(tenths));
        EXPECT_EQ(Design.HighlightLength[1], static_cast<float>(tenths / 10.));
    }
}

TEST_F(HighlightsPageTest, PartnerTakesNothingButNumbers) {
    OpenHighlights();
    Click("Option1");
    for (const char* text : {"", "x", "2 mm"}) {
        Box("txtLength10").Show("7");
        EXPECT_THROW(Box("txtLength10").Show(text), RunTimeError) << text;
    }
}

TEST_F(HighlightsPageTest, ArrowsHaveTheirRanges) {
    OpenHighlights();
    Click("Option1");
    ExpectRange("UpDown1", "txtStart1", "0", "100");
    ExpectRange("UpDown2", "txtStop1", "0", "100");
    ExpectRange("UpDown3", "txtCeiling1", "0", "180");
}

TEST_F(HighlightsPageTest, ArrowsStepFromThePlainNumber) {
    OpenHighlights();
    Click("Option1");
    Paste("txtStart1", "2,5");
    EXPECT_EQ(Design.HighlightStart[1], 2);
    StepUp("UpDown1");
    EXPECT_EQ(TextOf("txtStart1"), "3");
}

TEST_F(HighlightsPageTest, WithoutASelectionEntriesGoNowhere) {
    OpenHighlights();
    const DesignRecord before = Design;
    for (const Entry& entry : kEntries) {
        Type(entry.box, "12");
    }
    for (int highlight = 1; highlight <= kHighlights; ++highlight) {
        for (const Entry& entry : kEntries) {
            EXPECT_EQ(NumberIn(entry.field.In(Design, highlight)),
                      NumberIn(entry.field.In(before, highlight)))
                << entry.box;
        }
    }
    EXPECT_EQ(Design.HighlightStart[0], 12) << "which nothing reads";
    EXPECT_EQ(Design.NumberOfHighlights, 0);
    EXPECT_EQ(Sample(), Strings{});
    ClickAndAnswer("cmdGetColor", Cancel);
    EXPECT_EQ(Sample(), Strings{});
}

TEST_F(HighlightsPageTest, SampleShowsTheColourOfTheSelected) {
    GiveAll();
    OpenHighlights();
    for (const int highlight : {2, 9}) {
        Click("Option" + std::to_string(highlight));
        const std::string colour = highlight == 2 ? "f2" : "f9";
        EXPECT_EQ(Sample(), (Strings{kSample + colour, kSampleOutline}));
        EXPECT_EQ(ShownPlate().back(), kSampleOutline) << "behind the plate";
    }
}

TEST_F(HighlightsPageTest, ColourComesFromItsDialog) {
    GiveAll();
    OpenHighlights();
    Click("Option6");
    struct Row {
        const char* colour; // cancelled if null
        std::int32_t stored;
    };
    std::int32_t before = 0xF6;
    for (const Row& row : {Row{nullptr, 0xF6}, Row{"#804020", 0x204080}, Row{"#000000", 0}}) {
        QColor start;
        Wipe();
        ClickAndAnswer("cmdGetColor", ChooseColour("Get Highlight color", row.colour, start));
        EXPECT_EQ(start.red() + 256 * start.green() + 65536 * start.blue(), before);
        EXPECT_EQ(Design.HighlightColor[6], row.stored);
        EXPECT_TRUE(WasRedrawn());
        before = row.stored;
    }
    EXPECT_EQ(Design.HighlightColor[7], 0xF7);
}

TEST_F(HighlightsPageTest, SelectionDoesNotSurviveThePage) {
    GiveAll();
    OpenHighlights();
    Click("Option3");
    OpenPage("frmPreview");
    OpenHighlights();
    EXPECT_EQ(Sample(), Strings{});
    EXPECT_EQ(TextOf("txtStart1"), "");
}

TEST_F(HighlightsPageTest, ToolbarGivesTheTextsBack) {
    Design.TextString[1] = "mark";
    for (const char* key : {"Highlights", "Save", "Preview"}) {
        OpenPage("frmHighlights");
        Design.TextString[1] = "spoilt";
        Design.NumberOfTexts = 9;
        if (key == std::string("Save")) {
            Answer(TypeFile(Path("saved.VRN")));
        }
        Click(key);
        EXPECT_EQ(Design.TextString[1], "mark");
        EXPECT_EQ(Design.NumberOfTexts, 1);
    }
    EXPECT_NE(ReadFile("saved.VRN").find("mark"), std::string::npos);
}

TEST_F(HighlightsPageTest, OpenReadsWithTheFirstScaleActive) {
    Design.DesignFileName = Path("highlights.VRN");
    WriteDesign(Design);
    OpenPage("frmHighlights");
    Design.ActiveScale = 3;
    ClickAndAnswer("Open", TypeFile(Path("highlights.VRN")));
    EXPECT_EQ(Design.ActiveScale, 1);
}

TEST_F(HighlightsPageTest, TabFollowsReadingOrder) {
    OpenHighlights();
    Click("Option1");
    ExpectTabOrder("Option1 txtStart1 txtStop1 txtCeiling1 txtLength1 cmdGetColor cmdShowTicInfo");
}

TEST_F(HighlightsPageTest, CloseBoxKeepsTheSession) {
    OpenHighlights();
    Click("Option1");
    Type("txtStart1", "37");
    Type("txtStop1", "44");
    CloseByUser(Page());
    EXPECT_TRUE(TakeProcessEnd());
    EXPECT_TRUE(Exists("LASTSESSION.VRN"));
}

// The band of a highlight that was entered here, with its stage in service: each line reaches from
// the bottom's arc outward by the height, the first and the last at the pointer's angles.
TEST_F(HighlightsPageTest, EnteredBandStandsWhereItsEntriesSay) {
    Design.AspectRatio = 1;
    OpenHighlights();
    Click("Option3");
    Type("txtStart1", "20");
    Type("txtStop1", "60");
    Type("txtCeiling1", "30");
    Type("txtLength1", "4");
    Design.HighlightColor[3] = 0x0000FF;
    const DrawingStage stages[] = {ClearStage, HighlightsStage};
    DrawingTraits traits = HighlightsTraits();
    traits.stages = stages;
    RecordingSurface surface;
    DrawPage(Design, surface, traits, {Design.FontSize, Design.LabelSpacing}, Drawing);
    const Strings lines = surface.CallsOf("Line");
    EXPECT_NEAR(static_cast<double>(lines.size()), 2001, 1); // 40 percent in steps of .02
    const PlateFrame frame = FrameOf(Design, traits);
    const double radius = 30 - double{Design.BottomToBearing} + double{Design.ActualVirtualOffset};
    const SurfacePoint centre = VirtualBearing(frame);
    const auto expectLine = [&](const std::string& line, double fraction) {
        double x1 = 0;
        double y1 = 0;
        double x2 = 0;
        double y2 = 0;
        std::istringstream numbers(line.substr(std::string("Line").size()));
        numbers.imbue(std::locale::classic());
        ASSERT_TRUE(numbers >> x1 >> y1 >> x2 >> y2) << line;
        const double unitsPerMm = 2 * frame.upPerHalfMm;
        EXPECT_NEAR(std::hypot(x1 - centre.x, y1 - centre.y) / unitsPerMm, radius, 0.01);
        EXPECT_NEAR(std::hypot(x2 - x1, y2 - y1) / unitsPerMm, 4, 0.01);
        const double swing = double{Design.PointerDeflection};
        const double degrees = 90 - swing / 2 + swing * fraction; // from the left
        const double drawn = std::atan2(y1 - y2, x1 - x2) * 180 / std::acos(-1.);
        EXPECT_NEAR(drawn, degrees, 0.05);
        EXPECT_TRUE(line.ends_with(" ff"));
    };
    expectLine(lines.front(), 0.2);
    expectLine(lines.back(), 0.6);
}

} // namespace
} // namespace vernacle::test
