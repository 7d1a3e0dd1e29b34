#include "engine/render/drawing.h"

#include "engine/render/drawingsteps.h"
#include "support/rendertest.h"

namespace vernacle::test {
namespace {

using DrawingFrameTest = RenderTest;

struct FrameRow {
    const char* name;
    float width;
    float height;
    DrawingTraits traits;
    float plateScale;
};

TEST_F(DrawingFrameTest, TheLargerDimensionFillsThePicture) {
    const FrameRow rows[] = {
        {"wide on the preview", 100, 50, PreviewTraits(), 32},
        {"high on the preview", 50, 64, PreviewTraits(), 50},
        {"square", 80, 80, PreviewTraits(), 40},
        {"a hair wider counts as square", 100.005F, 100, PreviewTraits(), 32},
        {"more than a hair", 100.2F, 100, PreviewTraits(), 3200 / 100.2F},
        {"wide beside the entries", 75, 50, ScalesTraits(), 40},
        {"high beside the entries", 50, 60, TextTraits(), 50},
        {"highlights", 100, 50, HighlightsTraits(), 30},
        {"wizard", 100, 50, WizardTraits(), 32},
    };
    for (const FrameRow& row : rows) {
        Design.PlateWidth = row.width;
        Design.PlateHeight = row.height;
        const PlateFrame frame = FrameOf(Design, row.traits);
        DrawStages({}, row.traits);
        EXPECT_EQ(Drawing.PlateScale, row.plateScale) << row.name;
        EXPECT_EQ(frame.plateScale, double{row.plateScale}) << row.name;
        EXPECT_EQ(frame.upPerHalfMm, double{row.plateScale}) << row.name;
        EXPECT_EQ(frame.AcrossPerHalfMm(), double{row.plateScale} / 2) << row.name;
    }
}

TEST_F(DrawingFrameTest, AspectStretchesAcrossOnly) {
    Design.AspectRatio = 1.15F;
    const PlateFrame frame = FrameOf(Design, PreviewTraits());
    EXPECT_NEAR(frame.Right() - frame.Left(), 6400 * 1.15, 0.001);
    EXPECT_NEAR(frame.Bottom() - frame.Top(), 3200, 0.001);
}

using Aspects = std::pair<float, float>; // before and after

TEST_F(DrawingFrameTest, AspectRatioIsHeldToWholeHundredths) {
    constexpr Aspects kRows[] = {
        {0.4F, 0.5F},   {0.5F, 0.5F},     {0.777F, 0.78F}, {0.774F, 0.77F}, {0.80F, 0.8F},
        {1.15F, 1.15F}, {1.1499F, 1.15F}, {1.2F, 1.15F},   {50, 1.15F},     {1, 1},
        {0, 0.5F},      {-0.7F, 0.5F},    {0.001F, 0.5F},  {0.505F, 0.51F}, {0.705F, 0.71F},
    };
    for (const auto& [before, after] : kRows) {
        Design.AspectRatio = before;
        HoldAspectRatio(Design);
        EXPECT_EQ(Design.AspectRatio, after) << before;
    }
}

TEST_F(DrawingFrameTest, AnAspectRatioThatWasNeverSetBecomes1) {
    for (const auto& [before, after] : {Aspects{0, 1}, {-0.7F, 1}, {0.2F, 0.2F}}) {
        Design.AspectRatio = before;
        RaiseAspectRatio(Design);
        EXPECT_EQ(Design.AspectRatio, after) << before;
    }
}

} // namespace
} // namespace vernacle::test
