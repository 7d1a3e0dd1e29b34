#include "engine/scale/scale.h"

#include <cmath>

#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class ScaleTest : public NewDesignTest {
protected:
    static void Compute() {
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
    }

    // The labels of scale 1 as "tic=text", blank entries left out.
    static std::string Labels(int scale = 1) {
        std::string labels;
        for (int tic = 0; tic <= kLastTic; ++tic) {
            if (const std::string& label = Design.StandardLabel[scale][tic]; !label.empty()) {
                labels += std::to_string(tic) + "=" + label + " ";
            }
        }
        return labels;
    }
};

TEST_F(ScaleTest, ADefaultScaleHasSixLabels) {
    Compute();
    EXPECT_EQ(Labels(), "0=0 10=10 20=20 30=30 40=40 50=50 ");
    EXPECT_EQ(Design.StandardDeflection[1][0], 0);
    EXPECT_EQ(Design.StandardDeflection[1][20], 0.4F);
    EXPECT_EQ(Design.StandardDeflection[1][25], 0.5F);
    EXPECT_EQ(Design.StandardDeflection[1][50], 1);
    EXPECT_EQ(Design.StandardDeflection[1][51], 0);
    EXPECT_TRUE(IsMultiple(25, Design.MajorEveryHowMany[1]));
    EXPECT_FALSE(IsMultiple(25, Design.LabelsEveryHowMany[1]));
}

TEST_F(ScaleTest, DeflectionsFollowTheExponent) {
    Design.NrOfTicmarks[1] = 4;
    const std::pair<float, std::vector<double>> rows[] = {
        {1, {0, 0.25, 0.5, 0.75, 1}},
        {2, {0, 0.0625, 0.25, 0.5625, 1}},
        {0.5F, {0, 0.5, std::sqrt(0.5), std::sqrt(0.75), 1}},
        {0, {1, 1, 1, 1, 1}}, // even tic 0: the whole scale falls on the right end
    };
    for (const auto& [exponent, deflections] : rows) {
        Design.LinearityExponent[1] = exponent;
        ComputeTicDeflections(Design);
        for (int tic = 0; tic <= 4; ++tic) {
            const auto expected = static_cast<float>(deflections[static_cast<std::size_t>(tic)]);
            EXPECT_EQ(Design.StandardDeflection[1][tic], expected) << exponent << " at " << tic;
        }
    }
}

TEST_F(ScaleTest, TheQuotientIsRoundedBeforeItIsRaised) {
    Design.NrOfTicmarks[1] = 3;
    Design.LinearityExponent[1] = 4;
    ComputeTicDeflections(Design);
    const auto third = static_cast<float>(1.0 / 3);
    EXPECT_EQ(Design.StandardDeflection[1][1], static_cast<float>(std::pow(double{third}, 4)));
    EXPECT_NE(Design.StandardDeflection[1][1], static_cast<float>(std::pow(1.0 / 3, 4)));
}

TEST_F(ScaleTest, AScaleMayHaveAllItsTics) {
    Design.NrOfTicmarks[1] = 360;
    Design.LabelsEveryHowMany[1] = 1;
    Design.ScaleLengthUnits[1] = 360;
    Compute();
    EXPECT_EQ(Design.StandardDeflection[1][90], 0.25F);
    EXPECT_EQ(Design.StandardDeflection[1][360], 1);
    EXPECT_EQ(Design.StandardLabel[1][359], "359");
    EXPECT_EQ(Design.StandardLabel[1][360], "360");
    Design.NrOfTicmarks[1] = 361;
    EXPECT_THROW(ComputeTicDeflections(Design), RunTimeError);
    EXPECT_THROW(ComputeTicLabels(Design), RunTimeError);
}

TEST_F(ScaleTest, LabelsStandAtMultiples) {
    struct Row {
        std::int16_t tics;
        std::int16_t every;
        const char* labels;
    };
    constexpr Row kRows[] = {
        {7, 2, "0=0 2=2 4=4 6=6 "}, // the last tic, 7, has none
        {7, 1, "0=0 1=1 2=2 3=3 4=4 5=5 6=6 7=7 "},
        {7, 7, "0=0 7=7 "},
        {7, 8, "0=0 "},
        {7, 360, "0=0 "},
        {7, 0, ""},
        {7, -2, ""},
        {-1, 2, ""},
    };
    for (const auto& [tics, every, labels] : kRows) {
        ResetDesign(Design);
        Design.NrOfTicmarks[1] = tics;
        Design.LabelsEveryHowMany[1] = every;
        Design.ScaleLengthUnits[1] = 7;
        ComputeTicLabels(Design);
        EXPECT_EQ(Labels(), labels) << tics << " every " << every;
    }
}

TEST_F(ScaleTest, LabelsAreLinearWhateverTheExponent) {
    struct Row {
        const char* name;
        float leftEnd;
        float length;
        const char* labels;
    };
    constexpr Row kRows[] = {
        {"small", 0, 1, "0=0 1=.25 2=.5 3=.75 4=1 "},
        {"falling", 10, -10, "0=10 1=7.5 2=5 3=2.5 4=0 "},
        {"centre zero", -50, 100, "0=-50 1=-25 2=0 3=25 4=50 "},
        {"around zero", -1, 2, "0=-1 1=-0.5 2=0 3=.5 4=1 "},
        {"thousands", 0, 6000, "0=0 1=1500 2=3000 3=4500 4=6000 "},
        {"millions", 0, 10e6F, "0=0 1=2.5M 2=5M 3=7.5M 4=10M "},
        {"up to a thousand millions", 0, 1e9F, "0=0 1=250M 2=500M 3=750M 4=1G "},
        {"offset", 0.5F, 2, "0=.5 1=1 2=1.5 3=2 4=2.5 "},
        {"empty span", 12.5F, 0, "0=12.5 1=12.5 2=12.5 3=12.5 4=12.5 "},
    };
    for (const auto& [name, leftEnd, length, labels] : kRows) {
        Design.NrOfTicmarks[1] = 4;
        Design.LabelsEveryHowMany[1] = 1;
        Design.LinearityExponent[1] = 3;
        Design.ScaleLeftEnd[1] = leftEnd;
        Design.ScaleLengthUnits[1] = length;
        ComputeTicLabels(Design);
        EXPECT_EQ(Labels(), labels) << name;
    }
}

TEST_F(ScaleTest, AFallingScaleDeflectsAsARisingOne) {
    Design.ScaleLengthUnits[1] = -50;
    ComputeTicDeflections(Design);
    EXPECT_EQ(Design.StandardDeflection[1][20], 0.4F);
}

TEST_F(ScaleTest, OldLabelsStayWhereNoneIsWritten) {
    Design.LabelsEveryHowMany[1] = 25;
    ComputeTicLabels(Design);
    Design.LabelsEveryHowMany[1] = 50;
    Design.ScaleLengthUnits[1] = 100;
    ComputeTicLabels(Design);
    EXPECT_EQ(Labels(), "0=0 25=25 50=100 ");
    Design.NrOfTicmarks[1] = 10;
    ComputeTicLabels(Design);
    EXPECT_EQ(Labels(), "0=0 25=25 50=100 ");
}

TEST_F(ScaleTest, ASpecialScaleKeepsItsDeflectionsAndGetsLabels) {
    Design.NumberOfScales = 3;
    Design.ScaleColor[1] = 255;
    Design.ScaleColor[2] = -1;
    Design.ScaleColor[3] = 0;
    Design.StandardDeflection[2][25] = 0.125F;
    Compute();
    EXPECT_EQ(Design.StandardDeflection[1][25], 0.5F);
    EXPECT_EQ(Design.StandardDeflection[2][25], 0.125F);
    EXPECT_EQ(Design.StandardDeflection[3][25], 0.5F);
    EXPECT_EQ(Labels(2), "0=0 10=10 20=20 30=30 40=40 50=50 ");
}

TEST_F(ScaleTest, OnlyTheScalesInUseAreComputed) {
    Design.NumberOfScales = 2;
    Compute();
    EXPECT_EQ(Design.StandardDeflection[2][50], 1);
    EXPECT_EQ(Design.StandardDeflection[3][50], 0);
    EXPECT_EQ(Labels(3), "");
}

TEST_F(ScaleTest, TheTablesHoldEightScales) {
    Design.NumberOfScales = 8;
    Design.NrOfTicmarks.fill(50);
    Design.LinearityExponent.fill(1);
    Compute();
    EXPECT_EQ(Design.StandardDeflection[8][50], 1);
    Design.NumberOfScales = 9;
    EXPECT_THROW(ComputeTicDeflections(Design), RunTimeError);
    EXPECT_THROW(ComputeTicLabels(Design), RunTimeError);
}

TEST_F(ScaleTest, NoTicsAtAllIsARunTimeError) {
    Design.NrOfTicmarks[1] = 0;
    EXPECT_THROW(ComputeTicDeflections(Design), RunTimeError);
    EXPECT_THROW(ComputeTicLabels(Design), RunTimeError);
}

TEST_F(ScaleTest, ANegativeExponentIsARunTimeErrorAtTheFirstTic) {
    Design.LinearityExponent[1] = -1;
    Design.StandardDeflection[1][1] = 0.125F;
    EXPECT_THROW(ComputeTicDeflections(Design), RunTimeError);
    EXPECT_EQ(Design.StandardDeflection[1][1], 0.125F);
}

TEST_F(ScaleTest, ALabelBeyondTheLargestNumberIsARunTimeError) {
    Design.ScaleLeftEnd[1] = 3e38F;
    Design.ScaleLengthUnits[1] = 3e38F;
    EXPECT_THROW(ComputeTicLabels(Design), RunTimeError);
}

TEST_F(ScaleTest, MultiplesAreWholeQuotients) {
    struct Row {
        int tic;
        int every;
        bool multiple;
    };
    constexpr Row kRows[] = {
        {0, 1, true},  {0, 360, true},  {7, 7, true},     {7, 2, false},
        {7, 8, false}, {360, 7, false}, {360, 360, true}, {6, -3, true},
    };
    for (const auto& [tic, every, multiple] : kRows) {
        EXPECT_EQ(IsMultiple(tic, every), multiple) << tic << " of " << every;
    }
    EXPECT_THROW(IsMultiple(5, 0), RunTimeError);
}

TEST_F(ScaleTest, MajorsAndLabelsMix) {
    constexpr int kMajor = 5;
    constexpr int kLabel = 2;
    EXPECT_FALSE(IsMultiple(2, kMajor));
    EXPECT_TRUE(IsMultiple(2, kLabel));
    EXPECT_TRUE(IsMultiple(5, kMajor));
    EXPECT_FALSE(IsMultiple(5, kLabel));
    EXPECT_TRUE(IsMultiple(10, kMajor) && IsMultiple(10, kLabel));
    EXPECT_FALSE(IsMultiple(7, kMajor) || IsMultiple(7, kLabel));
}

// The entries of a list up to its count.
std::vector<int> Entries(Table<std::int16_t, kLastTic>& list, int count) {
    std::vector<int> entries;
    for (int entry = 1; entry <= count; ++entry) {
        entries.push_back(list[entry]);
    }
    return entries;
}

TEST_F(ScaleTest, DeletionsAreListedInRisingOrder) {
    for (int scale = 1; scale <= 6; ++scale) {
        Design.StandardTicYN[scale][360] = "N"; // far beyond the scale's last tic
        Design.StandardTicYN[scale][10 * scale] = "N";
        Design.StandardTicYN[scale][0] = "N";
        Design.StandardLabelYN[scale][scale] = "N";
    }
    CollectDeletedTics(Design);
    for (int scale = 1; scale <= 6; ++scale) {
        SCOPED_TRACE(scale);
        ASSERT_EQ(Design.DeletedTicCount[scale], 3);
        EXPECT_EQ(Entries(Design.DeletedTics[scale], 3), (std::vector{0, 10 * scale, 360}));
        ASSERT_EQ(Design.DeletedLabelCount[scale], 1);
        EXPECT_EQ(Entries(Design.DeletedLabels[scale], 1), std::vector{scale});
    }
}

TEST_F(ScaleTest, ListsAreMadeAnew) {
    Design.StandardTicYN[1][10] = "N";
    Design.StandardTicYN[1][20] = "N";
    CollectDeletedTics(Design);
    Design.StandardTicYN[1][10] = "Y";
    Design.NrOfTicmarks[1] = 5;
    CollectDeletedTics(Design);
    ASSERT_EQ(Design.DeletedTicCount[1], 1);
    EXPECT_EQ(Design.DeletedTics[1][1], 20);
    EXPECT_EQ(Design.DeletedLabelCount[1], 0);
}

TEST_F(ScaleTest, OnlyACapitalNDeletes) {
    const char* others[] = {"n", "", " N", "NN", "Y"};
    for (int tic = 0; tic < 5; ++tic) {
        Design.StandardTicYN[1][tic] = Design.StandardLabelYN[1][tic] = others[tic];
    }
    CollectDeletedTics(Design);
    EXPECT_EQ(Design.DeletedTicCount[1], 0);
    EXPECT_EQ(Design.DeletedLabelCount[1], 0);
}

TEST_F(ScaleTest, AListHoldsThreeHundredAndSixtyDeletions) {
    for (int scale = 1; scale <= 6; ++scale) {
        for (auto* flags : {&Design.StandardTicYN, &Design.StandardLabelYN}) {
            SCOPED_TRACE(scale);
            ResetDesign(Design);
            for (int tic = 1; tic <= 360; ++tic) {
                (*flags)[scale][tic] = "N";
            }
            EXPECT_NO_THROW(CollectDeletedTics(Design));
            (*flags)[scale][0] = "N";
            EXPECT_THROW(CollectDeletedTics(Design), RunTimeError);
        }
    }
}

TEST_F(ScaleTest, DeletionsAreKeyedByTheTicsNumber) {
    Design.StandardTicYN[1][10] = "N";
    ComputeTicDeflections(Design);
    const float before = Design.StandardDeflection[1][10];
    Design.NrOfTicmarks[1] = 100;
    ComputeTicDeflections(Design);
    EXPECT_EQ(Design.StandardTicYN[1][10], "N");
    EXPECT_EQ(Design.StandardDeflection[1][10], before / 2);
}

} // namespace
} // namespace vernacle::test
