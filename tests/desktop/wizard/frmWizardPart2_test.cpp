// The wizard's second page on its own controls.
#include "desktop/wizard/frmWizardPart2.h"

#include <QAccessible>

#include "desktop/kit/updown.h"
#include "engine/base/text.h"
#include "engine/render/drawing.h"
#include "engine/wizard/nudges.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class WizardPart2Test : public FormTest {
protected:
    WizardPart2Test() {
        Design.BottomToBearing = 10;
        Design.PlateHeight = 50;
    }

    void OpenPart2() { OpenPage("frmWizardPart2"); }

    void Wipe() const { Picture("picPlate").Surface().Clear(); }
    bool WasRedrawn() const { return CallsOf("picPlate").size() > 30; }
};

TEST_F(WizardPart2Test, CaptionsTipsAndNumbers) {
    OpenPart2();
    EXPECT_EQ(Page().windowTitle(), QLatin1String("Vernacle - Design Wizard Part 2"));
    EXPECT_EQ(Shown("lblHeading"), "Design Wizard - Part 2");
    EXPECT_EQ(Shown("Label1"), "You now have a basic design and can modify and adjust it and add "
                               "on to it using all of Vernacle's tools.");
    EXPECT_EQ(Find<QPushButton>("cmdAccept").text(), QLatin1String("Accept and preview"));
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"UpDown1",
         "Bottom to ceiling, mm: ", "Move the top of the scale - the ceiling - up or down"},
        {"UpDown2", "Bottom to title, mm: ", "Move the title up or down"},
        {"UpDown3", "Actual/virtual offset: ", "Move the virtual bearing up or down"},
        {"UpDown4",
         "Label-arc spacing, mm: ", "Spacing in mm from top of ticmark labels to the arc"},
        {"UpDown5", "Fontsize: ", "Fontsize for ticmark labels"},
        {"UpDown6", "Major tic length, mm: ", "Major ticmark length, mm"},
        {"UpDown7", "Minor tic length, mm: ", "Minor ticmark length, mm"},
        {"UpDown8", "Major tic width, tenths of mm: ", "Major ticmark width, tenths of a mm"},
        {"UpDown9", "Minor tic width, tenths of mm: ", "Minor ticmark width, tenths of a mm"},
        {"UpDown10", "How often major tics: ", "Major tics every how many tics"},
        {"UpDown11", "How often tic labels: ", "Tic labels every how many tics"}};
    std::size_t index = 0;
    for (const auto& [arrows, caption, tip] : rows) {
        const Nudge& nudge = Nudges()[index++];
        EXPECT_STREQ(nudge.upDown, arrows);
        EXPECT_EQ(Find<UpDown>(arrows).toolTip(), QLatin1String(tip));
        EXPECT_EQ(Shown(std::string(nudge.label) + "Caption"), caption);
        EXPECT_EQ(Shown(nudge.label), NudgeValue(Design, nudge));
    }
}

// What a screen reader says of a number is its caption and its value.
TEST_F(WizardPart2Test, NumbersAreSpokenBehindTheirCaptions) {
    OpenPart2();
    const auto spoken = [this](const char* label) {
        return QAccessible::queryAccessibleInterface(&Find(label))
            ->text(QAccessible::Name)
            .toStdString();
    };
    for (const Nudge& nudge : Nudges()) {
        EXPECT_EQ(spoken(nudge.label),
                  nudge.caption + std::string(Trimmed(NudgeValue(Design, nudge))));
    }
    const Nudge& ceiling = Nudges()[0];
    Find<QLabel>(ceiling.label).setText(QStringLiteral("12"));
    StepDown("UpDown1"); // accepted
    EXPECT_EQ(spoken(ceiling.label), "Bottom to ceiling, mm: 11");
    StepDown("UpDown1"); // corrected: the bearing is at 10
    EXPECT_EQ(spoken(ceiling.label), ceiling.caption + std::string(Trimmed(Shown(ceiling.label))));
    const Nudge& spacing = Nudges()[3];
    Find<QLabel>(spacing.label).setText(QStringLiteral("60"));
    StepUp("UpDown4"); // out of range, and kept
    EXPECT_EQ(spoken(spacing.label), "Label-arc spacing, mm: 61");
}

TEST_F(WizardPart2Test, LoadMakesASimpleScale) {
    Design.FontSize = 0;
    Design.LinearityExponent[1] = 3;
    Design.RelativeFontSize[1] = 0.5F;
    Design.PlateStyle = 1;
    OpenPart2();
    EXPECT_EQ(Design.FontSize, 8);
    EXPECT_EQ(Design.LinearityExponent[1], 1);
    EXPECT_EQ(Design.RelativeFontSize[1], 1);
    EXPECT_EQ(Design.PlateStyle, 0);
    EXPECT_TRUE(WasRedrawn());
    EXPECT_EQ(TextsOf("picPlate"), (Strings{"0", "10", "20", "30", "40", "50", "Default Scale 1"}));
}

struct StepRow {
    const char* arrows;
    float* field;
    float lowest;
    float highest;
};

TEST_F(WizardPart2Test, ArrowsStepByOneInTheirRanges) {
    OpenPart2();
    Design.PlateHeight = 180;
    const StepRow rows[] = {
        {"UpDown3", &Design.ActualVirtualOffset, 0, 100},
        {"UpDown4", &Design.LabelSpacing, -200, 200},
        {"UpDown5", &Design.FontSize, 2, 20},
    };
    for (const StepRow& row : rows) {
        const float from = *row.field;
        Wipe();
        StepUp(row.arrows);
        EXPECT_EQ(*row.field, from + 1);
        EXPECT_TRUE(WasRedrawn());
        StepDown(row.arrows);
        EXPECT_EQ(*row.field, from);
        for (int step = 0; step < 300; ++step) {
            Find<UpDown>(row.arrows).Up();
        }
        EXPECT_EQ(*row.field, row.highest);
        for (int step = 0; step < 500; ++step) {
            Find<UpDown>(row.arrows).Down();
        }
        EXPECT_EQ(*row.field, row.lowest);
    }
}

TEST_F(WizardPart2Test, CeilingStaysAboveTheBearing) {
    Design.BottomToBearing = 30;
    Design.BottomToScaleCeiling[1] = 33;
    OpenPart2();
    StepDown("UpDown1");
    EXPECT_EQ(Shown("lblBottomToCeiling"), "32");
    Wipe();
    StepDown("UpDown1");
    StepDown("UpDown1");
    EXPECT_EQ(Design.BottomToScaleCeiling[1], 31);
    EXPECT_EQ(Shown("lblBottomToCeiling"), " 31");
    EXPECT_FALSE(WasRedrawn()) << "a corrected value is not drawn";
    StepUp("UpDown1");
    EXPECT_TRUE(WasRedrawn());
}

TEST_F(WizardPart2Test, SpacingOutOfRangeIsKeptAndNotDrawn) {
    Design.LabelSpacing = 49;
    OpenPart2();
    StepUp("UpDown4");
    Wipe();
    for (int step = 0; step < 10; ++step) {
        StepUp("UpDown4");
    }
    EXPECT_EQ(Design.LabelSpacing, 60);
    EXPECT_EQ(Shown("lblLabelSpacing"), "60");
    EXPECT_FALSE(WasRedrawn());
    StepUp("UpDown2");
    RecordingSurface expected;
    DrawPage(Design, expected, WizardTraits(), {Design.FontSize, 50}, Drawing);
    EXPECT_EQ(CallsOf("picPlate").size(), expected.calls.size());
    const auto firstLabel = [](const Strings& calls) {
        return *std::find_if(calls.begin(), calls.end(), [](const std::string& call) {
            return call.starts_with("SetCurrentX");
        });
    };
    EXPECT_EQ(firstLabel(CallsOf("picPlate")), firstLabel(expected.calls))
        << "the drawing stands at the last value in range";
    for (int step = 0; step < 10; ++step) {
        StepDown("UpDown4");
    }
    EXPECT_TRUE(WasRedrawn());
}

TEST_F(WizardPart2Test, TicsHoldEachOther) {
    Design.MinorTicLength = 2;
    Design.MajorTicLength = 2;
    OpenPart2();
    StepDown("UpDown6");
    EXPECT_EQ(Design.MajorTicLength, 2);
    EXPECT_EQ(Shown("lblMajorTicLength"), " 2");
    StepUp("UpDown7");
    EXPECT_EQ(Design.MinorTicLength, 2);
    StepUp("UpDown6");
    StepUp("UpDown7");
    EXPECT_EQ(Design.MinorTicLength, 3);
}

TEST_F(WizardPart2Test, CountsNeverLeaveOne) {
    Design.MajorEveryHowMany[1] = 2;
    OpenPart2();
    StepDown("UpDown10");
    EXPECT_EQ(Design.MajorEveryHowMany[1], 2);
    EXPECT_EQ(Shown("lblMajorEveryHowMany"), " 2");
    Design.NrOfTicmarks[1] = 3;
    StepUp("UpDown10");
    StepUp("UpDown10");
    EXPECT_EQ(Design.MajorEveryHowMany[1], 3);
}

TEST_F(WizardPart2Test, ArrowsArePressedByKeys) {
    OpenPart2();
    Find("UpDown2Up").setFocus();
    const float title = Design.BottomToTitle[1];
    QTest::keyClick(&Find("UpDown2Up"), Qt::Key_Space);
    EXPECT_EQ(Design.BottomToTitle[1], title + 1);
    QTest::keyClick(&Find("UpDown2Up"), Qt::Key_Tab);
    EXPECT_EQ(Page().focusWidget()->objectName(), QLatin1String("UpDown2Down"));
}

TEST_F(WizardPart2Test, WhatCannotBeDrawnIsTold) {
    Design.NrOfTicmarks[1] = 1000;
    OpenPart2();
    ASSERT_EQ(said.size(), 2U);
    EXPECT_NE(said[1].find("cannot be drawn"), std::string::npos);
    EXPECT_EQ(PageName(), "frmWizardPart2");
}

TEST_F(WizardPart2Test, AcceptGoesToThePreview) {
    OpenPart2();
    ClickAndSettle("cmdAccept");
    EXPECT_EQ(PageName(), "frmPreview");
}

} // namespace
} // namespace vernacle::test
