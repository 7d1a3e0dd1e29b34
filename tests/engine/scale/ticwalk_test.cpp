#include "engine/scale/ticwalk.h"

#include "engine/base/runtimeerror.h"
#include "engine/scale/scale.h"
#include "engine/scale/ticrows.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

using Names = std::vector<std::string>;

class TicWalkTest : public RenderTest {
protected:
    // "3" for a minor tic, "3M" for a major one; of those before a failure, the last is kept.
    Names Tics(int scale, TicFlags flags = TicFlags::Honoured) {
        Names names;
        last = {};
        WalkTics(Design, scale, flags, [&](const Tic& tic) {
            EXPECT_EQ(tic.scale, scale);
            last = std::to_string(tic.number) + (tic.major ? "M" : "");
            names.push_back(last);
        });
        return names;
    }

    static Names Labels(int scale, LabelFlags flags) {
        Names names;
        WalkLabels(Design, scale, flags, [&](const TicLabel& label) {
            EXPECT_EQ(label.scale, scale);
            names.push_back(NameOf(label));
        });
        return names;
    }

    // What a label walk tells, as a page that sets the flags back hears it: each tic reached and,
    // behind its own, each label.
    Names LabelsAndReached(int scale, LabelFlags flags) {
        const bool special = IsSpecial(Design, scale);
        const auto walk = special ? WalkSpecialLabels : WalkStandardLabels;
        told.clear();
        walk(
            Design, scale, flags,
            [this](int of, int tic) {
                LabelFlagOf(Design, of, tic) = "Y";
                told.push_back(std::to_string(of) + "/" + std::to_string(tic));
            },
            [this](const TicLabel& label) { told.push_back(NameOf(label)); });
        return told;
    }

    static std::string NameOf(const TicLabel& label) {
        return std::to_string(label.number) + ":" + label.text;
    }

    std::string last;
    Names told;
};

struct MajorRow {
    const char* name;
    std::int16_t majorEvery;
    std::int16_t labelsEvery;
    Names tics;
};

TEST_F(TicWalkTest, LabelledTicsAreMajorBesidesTheMultiples) {
    const MajorRow rows[] = {
        {"every second", 2, 4, {"0M", "1", "2M", "3", "4M", "5", "6M"}},
        {"labels between the multiples", 5, 2, {"0M", "1", "2M", "3", "4M", "5M", "6M"}},
        {"every tic labelled", 5, 1, {"0M", "1M", "2M", "3M", "4M", "5M", "6M"}},
        {"intervals beyond the scale", 9, 7, {"0M", "1", "2", "3", "4", "5", "6"}},
    };
    GiveTics(1, 6);
    for (const MajorRow& row : rows) {
        Design.MajorEveryHowMany[1] = row.majorEvery;
        Design.LabelsEveryHowMany[1] = row.labelsEvery;
        EXPECT_EQ(Tics(1), row.tics) << row.name;
    }
}

TEST_F(TicWalkTest, ScaleWithoutStepsHasOneTic) {
    EXPECT_EQ(Tics(1), (Names{"0M"}));
    EXPECT_EQ(Labels(1, LabelFlags::SkipDeleted), (Names{"0:7"}));
}

TEST_F(TicWalkTest, DeletedTicsAreSkippedUnlessFlagsAreIgnored) {
    GiveTics(1, 3);
    Design.StandardTicYN[1][1] = "N";
    Design.StandardTicYN[1][2] = "n"; // only an exact "N" deletes
    EXPECT_EQ(Tics(1), (Names{"0M", "2M", "3M"}));
    EXPECT_EQ(Tics(1, TicFlags::Ignored), (Names{"0M", "1M", "2M", "3M"}));
}

TEST_F(TicWalkTest, DeflectionsComeFromTheTables) {
    GiveTics(1, 4);
    std::vector<float> found;
    WalkTics(Design, 1, TicFlags::Honoured,
             [&](const Tic& tic) { found.push_back(tic.deflection); });
    EXPECT_EQ(found, (std::vector<float>{0, 0.25F, 0.5F, 0.75F, 1}));
    found.clear();
    GiveSpecialTics(1, 2);
    WalkTics(Design, 1, TicFlags::Honoured,
             [&](const Tic& tic) { found.push_back(tic.deflection); });
    EXPECT_EQ(found, (std::vector<float>{0, 0.5F, 1}));
    found.clear();
    WalkLabels(Design, 1, LabelFlags::SkipDeleted,
               [&](const TicLabel& label) { found.push_back(label.deflection); });
    EXPECT_EQ(found, (std::vector<float>{0, 0.5F, 1}));
}

TEST_F(TicWalkTest, SpecialScalesFollowTheirOwnFlagsOnly) {
    GiveTics(1, 5);
    GiveSpecialTics(1, 3);
    Design.MajorEveryHowMany[1] = 0; // not consulted
    Design.LabelsEveryHowMany[1] = 0;
    Design.TicMajorYN[1][2] = "Y";
    Design.TicPrintYN[1][1] = "N";
    Design.TicPrintYN[1][3] = ""; // only "Y" prints
    Design.StandardTicYN[1][0] = "N";
    EXPECT_EQ(Tics(1), (Names{"0", "2M"}));
    EXPECT_EQ(Tics(1, TicFlags::Ignored), (Names{"0", "2M"}));
}

TEST_F(TicWalkTest, SpecialScaleWithoutStepsVisitsItsFirstTic) {
    GiveSpecialTics(1, 0);
    EXPECT_EQ(Tics(1), (Names{"0"}));
    Design.TicPrintYN[1][0] = "N";
    EXPECT_EQ(Tics(1), Names{});
}

TEST_F(TicWalkTest, TheSignOfTheColourMakesAScaleSpecial) {
    EXPECT_FALSE(IsSpecial(Design, 1));
    Design.ScaleColor[1] = 0;
    EXPECT_FALSE(IsSpecial(Design, 1));
    Design.ScaleColor[1] = -1;
    EXPECT_TRUE(IsSpecial(Design, 1));
}

struct FlagRow {
    const char* name;
    LabelFlags flags;
    Names labels;
};

TEST_F(TicWalkTest, StandardLabelsByThePagesUseOfTheirFlags) {
    const FlagRow rows[] = {
        {"skips deleted", LabelFlags::SkipDeleted, {"0:0", "4:4"}},
        {"only flagged", LabelFlags::OnlyFlagged, {"0:0"}},
        {"ignores flags", LabelFlags::Ignored, {"0:0", "2:2", "4:4"}},
        {"sets back", LabelFlags::SetBack, {"0:0", "2:2", "4:4"}},
    };
    GiveTics(1, 5);
    Design.LabelsEveryHowMany[1] = 2;
    for (const FlagRow& row : rows) {
        Design.StandardLabelYN[1][1] = "N";
        Design.StandardLabelYN[1][2] = "N";
        Design.StandardLabelYN[1][4] = "";
        EXPECT_EQ(Labels(1, row.flags), row.labels) << row.name;
    }
}

TEST_F(TicWalkTest, SettingBackReachesEveryTicOfTheScaleAndNoFurther) {
    GiveTics(1, 5);
    Design.LabelsEveryHowMany[1] = 2;
    for (int tic = 0; tic <= 6; ++tic) {
        Design.StandardLabelYN[1][tic] = "N";
    }
    EXPECT_EQ(LabelsAndReached(1, LabelFlags::SetBack),
              (Names{"1/0", "0:0", "1/1", "1/2", "2:2", "1/3", "1/4", "4:4", "1/5"}));
    for (int tic = 0; tic <= 5; ++tic) {
        EXPECT_EQ(Design.StandardLabelYN[1][tic], "Y") << tic;
    }
    EXPECT_EQ(Design.StandardLabelYN[1][6], "N");
}

// A page that draws every label draws those of a design that nobody may change, too.
TEST_F(TicWalkTest, SettingBackNeedsNoFlagToBeSetBack) {
    GiveTics(1, 2);
    Design.StandardLabelYN[1][1] = "N";
    EXPECT_EQ(Labels(1, LabelFlags::SetBack), (Names{"0:0", "1:1", "2:2"}));
    EXPECT_EQ(Design.StandardLabelYN[1][1], "N");
}

TEST_F(TicWalkTest, FlagIsAskedForWhenItsTicWasTold) {
    GiveTics(1, 2);
    Design.StandardLabelYN[1][1] = "N";
    EXPECT_EQ(LabelsAndReached(1, LabelFlags::SkipDeleted),
              (Names{"1/0", "0:0", "1/1", "1:1", "1/2", "2:2"}));
    GiveSpecialTics(1, 1);
    Design.TicLabelYN[1][1] = "N";
    EXPECT_EQ(LabelsAndReached(1, LabelFlags::SkipDeleted), (Names{"1/0", "0:s0", "1/1", "1:s1"}));
}

TEST_F(TicWalkTest, SpecialLabelsNeedTheirOwnFlag) {
    for (const LabelFlags flags :
         {LabelFlags::SkipDeleted, LabelFlags::OnlyFlagged, LabelFlags::Ignored}) {
        GiveSpecialTics(1, 3);
        Design.LabelsEveryHowMany[1] = 0; // not consulted
        Design.StandardLabelYN[1][0] = "N";
        Design.TicLabelYN[1][1] = "N";
        Design.TicLabelYN[1][3] = ""; // only "Y" labels
        EXPECT_EQ(Labels(1, flags), (Names{"0:s0", "2:s2"}));
        EXPECT_EQ(Design.TicLabelYN[1][1], "N");
    }
    EXPECT_EQ(Labels(1, LabelFlags::SetBack), (Names{"0:s0", "1:s1", "2:s2", "3:s3"}));
    EXPECT_EQ(LabelsAndReached(1, LabelFlags::SetBack).size(), 8U);
    EXPECT_EQ(Design.TicLabelYN[1][1], "Y");
}

TEST_F(TicWalkTest, LabelTextsShowPointsForCommasAndNoOuterBlanks) {
    Design.StandardLabel[1][0] = "  1,5,0 V ";
    EXPECT_EQ(Labels(1, LabelFlags::SkipDeleted), (Names{"0:1.5.0 V"}));
    GiveSpecialTics(1, 0);
    Design.TicLabelText[1][0] = " -,5 ";
    EXPECT_EQ(Labels(1, LabelFlags::SkipDeleted), (Names{"0:-.5"}));
    EXPECT_EQ(Design.TicLabelText[1][0], " -,5 "); // the design keeps what was typed
}

TEST_F(TicWalkTest, IntervalOfZeroFailsWhereItStands) {
    GiveTics(1, 3);
    Design.StandardTicYN[1][0] = "N"; // a deleted tic is passed by before its class is asked for
    Design.MajorEveryHowMany[1] = 0;
    EXPECT_THROW(Tics(1), RunTimeError);
    EXPECT_EQ(last, "");

    Design.MajorEveryHowMany[1] = 1;
    Design.LabelsEveryHowMany[1] = 0;
    EXPECT_THROW(Tics(1), RunTimeError);
    Design.StandardLabelYN[1][0] = "N";
    Design.StandardLabelYN[1][1] = "N";
    EXPECT_THROW(Labels(1, LabelFlags::SkipDeleted), RunTimeError);
    EXPECT_THROW(LabelsAndReached(1, LabelFlags::SetBack), RunTimeError);
    EXPECT_EQ(told, (Names{"1/0"}));
    EXPECT_EQ(Design.StandardLabelYN[1][1], "N") << "not reached";
}

TEST_F(TicWalkTest, MoreTicsThanATableHoldsIsARunTimeError) {
    GiveTics(1, 360);
    EXPECT_EQ(Tics(1).size(), 361U);
    Design.NrOfTicmarks[1] = 361;
    EXPECT_THROW(Tics(1), RunTimeError);
    EXPECT_EQ(last, "360M");
}

TEST(LabelRemarkTest, TellsOfACommaAlone) {
    EXPECT_EQ(LabelRemark("1,5 V "), "The comma of this label is drawn as a point: 1.5 V");
    EXPECT_EQ(LabelRemark("1.5 V"), "");
    EXPECT_EQ(LabelRemark(""), "");
}

} // namespace
} // namespace vernacle::test
