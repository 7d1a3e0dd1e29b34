// What writing a design file changes in the design, and when: a line that cannot be written ends
// it.
#include "engine/designfile/readwrite.h"

#include <limits>

#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

constexpr float kUnwritableNumber = std::numeric_limits<float>::infinity();

class WritingStepsTest : public NewDesignTest {
protected:
    // A design that each of the steps changes.
    WritingStepsTest() {
        Design.DesignFileName = Path("plate.vrn");
        Design.ScaleColor[1] = -1;
        Design.SpecialNrOfTicmarks[1] = 1;
        Design.TicLabelText[1][1] = " ";
        Design.GraphicFileName = "logo.bmp";
        Design.HighlightStop[1] = Design.HighlightStop[4] = 50;
        Design.NumberOfHighlights = 7;
        Design.StandardTicYN[2][5] = Design.StandardLabelYN[3][6] = "N";
    }

    // The steps that were taken, in words.
    static std::string Taken() {
        std::string steps = Design.TicLabelText[1][0] == "/" ? "label0 " : "";
        steps += Design.TicLabelText[1][1] == "/" ? "label1 " : "";
        steps += Design.GraphicFileName.empty() ? "graphic " : "";
        steps += Design.NumberOfHighlights == 2 ? "highlights " : "";
        steps += Design.DeletedTicCount[2] == 1 && Design.DeletedLabelCount[3] == 1 ? "lists " : "";
        return steps;
    }
};

TEST_F(WritingStepsTest, AFileThatCannotBeOpenedChangesNothing) {
    Design.DesignFileName = Path("none/plate.vrn");
    EXPECT_FALSE(WriteDesign(Design));
    EXPECT_EQ(Taken(), "");
    EXPECT_EQ(Design.TicLabelText[1][1], " ");
}

struct MomentRow {
    const char* name;
    float* unwritable;
    const char* taken;
};

TEST_F(WritingStepsTest, EachStepComesAtItsLine) {
    const MomentRow rows[] = {
        {"bottom to title", &Design.BottomToTitle[1], ""},
        {"second tic", &Design.TicDeflection[1][1], "label0 label1 "},
        {"scale exponent", &Design.LinearityExponent[1], "label0 label1 "},
        {"left to graphic", &Design.LeftToGraphic, "label0 label1 graphic "},
        {"arc width", &Design.ArcWidth, "label0 label1 graphic "},
        {"highlight", &Design.HighlightCeiling[1], "label0 label1 graphic highlights "},
        {"font size", &Design.RelativeFontSize[1], "label0 label1 graphic highlights lists "},
    };
    const auto before = std::make_unique<DesignRecord>(Design);
    for (const MomentRow& row : rows) {
        *row.unwritable = kUnwritableNumber;
        EXPECT_FALSE(WriteDesign(Design)) << row.name;
        EXPECT_EQ(Taken(), row.taken) << row.name;
        Design = *before;
    }
    EXPECT_TRUE(WriteDesign(Design));
    EXPECT_EQ(Taken(), "label0 label1 graphic highlights lists ");
    EXPECT_EQ(Design.NumberOfHighlights, 2);
}

TEST_F(WritingStepsTest, AGraphicThatIsDrawnKeepsItsName) {
    Design.DrawGraphic = "Y";
    WriteDesign(Design);
    EXPECT_EQ(Design.GraphicFileName, "logo.bmp");
}

TEST_F(WritingStepsTest, AnotherDesignThanTheProcesssIsWrittenAndChanged) {
    const auto other = std::make_unique<DesignRecord>(Design);
    other->PlateWidth = 61.5F;
    EXPECT_TRUE(WriteDesign(*other));
    EXPECT_EQ(other->TicLabelText[1][1], "/");
    EXPECT_EQ(Taken(), "");
    ReadDesign(*other, Path("plate.vrn"));
    EXPECT_EQ(other->PlateWidth, 61.5F);
    EXPECT_EQ(Design.PlateWidth, 75);
}

} // namespace
} // namespace vernacle::test
