#include "engine/wizard/wizardsteps.h"

#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class WizardStepsTest : public NewDesignTest {
protected:
    WizardStepsTest() {
        Design.PlateWidth = 100;
        Design.PlateHeight = 80;
        Design.MajorTicLength = 4;
        Design.MajorTicWidth = 5;
    }

    static const WizardStep& Step(int number) {
        return WizardSteps()[static_cast<std::size_t>(number - 1)];
    }
    static std::string Enter(int number, const std::string& text) {
        return EnterWizardStep(Design, Step(number), text).value_or("accepted");
    }
};

struct StepRow {
    int step;
    const char* caption;
    const char* accepted; // entries
    const char* refused;
    const char* range; // in words
    int nextTopic;
};

const StepRow kRows[] = {
    {1, "Plate width, mm: ", "20 180 75.5", "19.9 180.1 x", "20 minimum to 180 maximum", 2},
    {2, "Plate height, mm: ", "10 15 160", "9.9 161", "20 minimum to 160 maximum", 3},
    {3, "Bottom to bearing, mm: ", "-100000 0 100000", "-100001 100001",
     "-100000 minimum to 100000 maximum", 4},
    {4, "Bottom to mounting, mm: ", "-1000 150", "-1001 151", "-1000 minimum to 150 maximum", 5},
    {5, "Mounting hole separation, mm: ", "5 100", "4.9 100.5", "5 minimum to  100 maximum", 6},
    {6, "Pointer deflection, degrees: ", ".1 360", ".09 361", ".1 minimum to 360 maximum", 7},
    {7, "Actual/virtual offset, mm: ", "0 100000", "-.1 100001", "0 minimum to 100000 maximum", 10},
    {8, "Major tic length, mm: ", "1 20", ".9 20.5", "1 minimum to 20 maximum", 9},
    {9, "Minor tic length, mm: ", ".51 4", ".5 4.1", ".5 minimum to  4 maximum", 12},
    {10, "Major tic width, tenths of mm: ", "1 20", ".9 21", "1 minimum to 20 maximum", 11},
    {11, "Minor tic width, tenths of mm: ", "1 5", ".9 5.5", ".5 minimum to  5 maximum", 25},
    {12, "Arc thickness, tenths of mm: ", "1 20", ".9 21", "1 minimum to 20 maximum", 24},
    {13, "Bottom to scale ceiling, mm: ", ".1 80", "0 80.5", "greater than zero to 80 maximum", 13},
    {14, "Font size for ticmark labels: ", "2 20", "1.9 21", "2 minimum to 20 maximum", 14},
    {15, "Label to arc spacing, mm: ", "-99 200", "-100 201", "greater than zero to 200 maximum",
     23},
    {16, "Bottom to top of title, mm: ", ".1 80", "0 81", "greater than zero to  80 maximum", 0},
    {17, "Number of ticmarks: ", ".1 1 100 100.9", "0 -3 101", "1 minimum to 100 maximum", 0},
    {18, "Major tics every how many: ", ".5 10 20", "0 21", "greater than 0 to 10 maximum", 0},
};

TEST_F(WizardStepsTest, EachAcceptsItsRangeAndRefusesTheRest) {
    ASSERT_EQ(WizardSteps().size(), 18U);
    for (const StepRow& row : kRows) {
        SCOPED_TRACE(row.step);
        EXPECT_STREQ(Step(row.step).caption, row.caption);
        EXPECT_EQ(Step(row.step).nextTopic, row.nextTopic);
        Design.MajorTicLength = 4;
        Design.MajorTicWidth = 5;
        Design.PlateWidth = 100;
        Design.PlateHeight = 80;
        for (const std::string& text : WordsOf(row.accepted)) {
            EXPECT_EQ(Enter(row.step, text), "accepted") << text;
        }
        for (const std::string& text : WordsOf(row.refused)) {
            EXPECT_EQ(Enter(row.step, text), std::string("Please enter ") + row.range) << text;
        }
    }
    EXPECT_EQ(Enter(1, ""), "Please enter 20 minimum to 180 maximum");
}

// The tip's range has the unit of the caption, "Plate width, mm: ", where that has one.
TEST_F(WizardStepsTest, TheTipsRangeIsInTheCaptionsUnit) {
    for (const StepRow& row : kRows) {
        const std::string caption = row.caption;
        const std::size_t comma = caption.find(", ");
        const std::string unit =
            comma == caption.npos ? "" : caption.substr(comma + 2, caption.size() - comma - 4);
        EXPECT_TRUE(WizardRange(Design, Step(row.step)).ends_with(unit)) << caption;
    }
}

TEST_F(WizardStepsTest, ValuesGoIntoTheirFields) {
    const std::pair<int, float*> rows[] = {{1, &Design.PlateWidth},
                                           {2, &Design.PlateHeight},
                                           {3, &Design.BottomToBearing},
                                           {4, &Design.BottomToHoles},
                                           {5, &Design.HoleSeparation},
                                           {6, &Design.PointerDeflection},
                                           {7, &Design.ActualVirtualOffset},
                                           {8, &Design.MajorTicLength},
                                           {9, &Design.MinorTicLength},
                                           {10, &Design.MajorTicWidth},
                                           {11, &Design.MinorTicWidth},
                                           {12, &Design.ArcWidth},
                                           {13, &Design.BottomToScaleCeiling[1]},
                                           {14, &Design.FontSize},
                                           {15, &Design.LabelSpacing},
                                           {16, &Design.BottomToTitle[1]}};
    for (const auto& [step, field] : rows) {
        Enter(step, "25.5");
        EXPECT_EQ(*field, 25.5F) << step;
        EXPECT_EQ(WizardValue(Design, Step(step)), " 25.5");
    }
}

TEST_F(WizardStepsTest, SomeStepsSetMore) {
    Enter(1, "75");
    EXPECT_EQ(Design.ScaleTitle[1], "Simple Scale");
    Enter(17, "40.6");
    EXPECT_EQ(Design.NrOfTicmarks[1], 41) << "the nearest";
    EXPECT_EQ(Design.ScaleLeftEnd[1], 0);
    EXPECT_EQ(Design.ScaleLengthUnits[1], 41);
    Enter(18, "4.4");
    EXPECT_EQ(Design.MajorEveryHowMany[1], 4);
    EXPECT_EQ(Design.LabelsEveryHowMany[1], 4);
    Enter(17, "200");
    EXPECT_EQ(Design.NrOfTicmarks[1], 41) << "a refused count stays a working value";
}

TEST_F(WizardStepsTest, PromptsFollowTheTopicAndThePlate) {
    EXPECT_EQ(WizardPrompt(Design, 1),
              "Measure and enter the plate width in mm; 20 minimum to 180 maximum.");
    EXPECT_EQ(WizardPrompt(Design, 3),
              "Measure and enter the distance from  the plate bottom  up to  the "
              "bearing, in mm; -1000 minimum to 1000 maximum.");
    EXPECT_EQ(WizardPrompt(Design, 5),
              "Measure and enter the mounting hole separation, in mm, typically "
              "20 to plate width (100) max.");
    Design.PlateHeight = 61;
    EXPECT_TRUE(WizardPrompt(Design, 7).ends_with("half the plate height (i.e., 30)."));
    EXPECT_TRUE(WizardPrompt(Design, 10).ends_with("A suggested value is  3"));
    EXPECT_TRUE(WizardPrompt(Design, 13).ends_with("maximum.  A suggested value is  8."));
    EXPECT_EQ(WizardPrompt(Design, 23),
              "Enter a value for the distance from the plate bottom to the top of the scale title, "
              "in mm, 0 to 61 maximum. A typical value would be about .5 times scale height i.e., "
              "30 mm");
    EXPECT_EQ(WizardPrompt(Design, 24),
              "Enter a value for the distance from the plate bottom to the top of the scale arc "
              "(the 'ceiling') in mm, 0 minimum to 61 maximum.  A typical value would be about .7 "
              "times scale height i.e., 42 mm");
    Design.PlateHeight = 90;
    EXPECT_TRUE(WizardPrompt(Design, 24).ends_with("i.e., 63 mm"));
    EXPECT_EQ(WizardPrompt(Design, 25),
              "Enter a value for the thickness of the arc, in tenths of a mm, .5 "
              "minimum to 20 maximum. A suggested is a value of 2.");
    EXPECT_EQ(WizardPrompt(Design, 14),
              "Enter a value for the spacing between the arc and the top of the ticmark labels, in "
              "mm, 0 minimum to 200 maximum. A suggested value is 6.");
    EXPECT_EQ(
        WizardPrompt(Design, 9),
        "Enter a value for the Minor tic length, in mm, .5 minimum to 20 maximum. A suggested "
        "value is 2. This cannot be greater than the major tic length.");
    for (const int topic : {0, 8, 15, 22, 26, -1}) {
        EXPECT_EQ(WizardPrompt(Design, topic), "") << topic;
    }
    for (const int topic : {2, 4, 6, 9, 11, 12, 14, 25}) {
        EXPECT_FALSE(WizardPrompt(Design, topic).empty()) << topic;
    }
}

TEST_F(WizardStepsTest, ReadingOrderVisitsEveryBoxOnce) {
    std::vector<int> order(WizardReadingOrder().begin(), WizardReadingOrder().end());
    EXPECT_EQ(order[7], 8) << "the minor length before the major";
    EXPECT_EQ(order[8], 7);
    EXPECT_EQ(order[9], 10);
    std::sort(order.begin(), order.end());
    for (int step = 0; step < 18; ++step) {
        EXPECT_EQ(order[static_cast<std::size_t>(step)], step);
    }
}

TEST_F(WizardStepsTest, RereadCountsGoStraightIntoTheDesign) {
    ReadWizardStep(Design, Step(17), "200");
    EXPECT_EQ(Design.NrOfTicmarks[1], 200);
    ReadWizardStep(Design, Step(18), "");
    EXPECT_EQ(Design.MajorEveryHowMany[1], 0);
    ReadWizardStep(Design, Step(2), "");
    EXPECT_EQ(Design.PlateHeight, 0);
}

TEST_F(WizardStepsTest, RepairsFillWhatIsMissing) {
    for (const WizardStep& step : WizardSteps()) {
        ReadWizardStep(Design, step, "");
    }
    Design.AspectRatio = 0;
    RepairWizardDesign(Design);
    EXPECT_EQ(Design.PlateWidth, 75);
    EXPECT_EQ(Design.PlateHeight, 50);
    EXPECT_EQ(Design.ArcWidth, 1);
    EXPECT_EQ(Design.AspectRatio, 0.75F);
    EXPECT_EQ(Design.BottomToBearing, 1);
    EXPECT_EQ(Design.BottomToScaleCeiling[1], 35);
    EXPECT_EQ(Design.BottomToHoles, 1);
    EXPECT_EQ(Design.BottomToTitle[1], 25);
    EXPECT_EQ(Design.MajorEveryHowMany[1], 5);
    EXPECT_EQ(Design.LabelSpacing, 6);
    EXPECT_EQ(Design.MajorTicLength, 3);
    EXPECT_EQ(Design.MajorTicWidth, 4);
    EXPECT_EQ(Design.MinorTicLength, 2);
    EXPECT_EQ(Design.MinorTicWidth, 2);
    EXPECT_EQ(Design.HoleSeparation, -10) << "before the width is repaired";
    EXPECT_EQ(Design.NrOfTicmarks[1], 50);
    EXPECT_EQ(Design.NumberOfScales, 1);
    EXPECT_EQ(Design.PlateBackground, 0xFFFFFF);
    EXPECT_EQ(Design.PlateStyle, 0);
    EXPECT_EQ(Design.PointerDeflection, 90);
    EXPECT_EQ(Design.FontSize, 8);
    EXPECT_EQ(Design.DrawArcs, "Y");
    EXPECT_EQ(Design.PrintText, "Y");
    EXPECT_EQ(Design.LabelRotation, "H");
    EXPECT_EQ(Design.ScaleTitle[1], "Wizard Title");
}

TEST_F(WizardStepsTest, RepairsLeaveWhatIsThere) {
    Design.PlateWidth = 90;
    Design.HoleSeparation = 0;
    Design.MajorTicLength = 1;
    Design.MinorTicLength = 7;
    Design.MajorTicWidth = 3;
    Design.MinorTicWidth = 8;
    Design.BottomToBearing = -4;
    Design.PointerDeflection = 0.1F;
    Design.NrOfTicmarks[1] = 17;
    Design.NumberOfScales = 4;
    Design.PlateStyle = 1;
    Design.LabelRotation = "B";
    Design.AspectRatio = 0.9F;
    RepairWizardDesign(Design);
    EXPECT_EQ(Design.HoleSeparation, 80);
    EXPECT_EQ(Design.MinorTicLength, 1) << "held to the major ones";
    EXPECT_EQ(Design.MinorTicWidth, 3);
    EXPECT_EQ(Design.BottomToBearing, -4);
    EXPECT_EQ(Design.PointerDeflection, 0.1F);
    EXPECT_EQ(Design.NrOfTicmarks[1], 17);
    EXPECT_EQ(Design.NumberOfScales, 1);
    EXPECT_EQ(Design.PlateStyle, 0);
    EXPECT_EQ(Design.LabelRotation, "H");
    EXPECT_EQ(Design.AspectRatio, 0.9F);
}

// What is above 0 is a size, however small.
TEST_F(WizardStepsTest, RepairsLeaveSmallSizes) {
    Design.PlateWidth = 0.5F;
    Design.ArcWidth = 0.25F;
    Design.FontSize = 0.125F;
    RepairWizardDesign(Design);
    EXPECT_EQ(Design.PlateWidth, 0.5F);
    EXPECT_EQ(Design.ArcWidth, 0.25F);
    EXPECT_EQ(Design.FontSize, 0.125F);
}

} // namespace
} // namespace vernacle::test
