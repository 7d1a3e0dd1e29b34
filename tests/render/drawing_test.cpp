#include "render/drawing.h"

#include "core/design.h"
#include "scale/scale.h"
#include "support/enginetest.h"
#include "support/recordingsurface.h"

namespace vernacle::test {
namespace {

class DrawingTest : public EngineTest {
protected:
    DrawingTest() {
        SetVersionAndScreenScale();
        SetOpeningValues();
        ResetDesign();
        NormalizeDesign();
        ComputeTicDeflections();
        ComputeTicLabels();
    }

    RecordingSurface surface;
};

TEST_F(DrawingTest, PreviewDrawsOneLabelForEachTenthTic) {
    DrawDesign(surface, PreviewTraits(), {Design.FontSize, Design.LabelSpacing});
    EXPECT_EQ(surface.Count("BeginFont"), 7U); // six labels and a title
    EXPECT_EQ(Drawing.WhereMarker, 675);
}

} // namespace
} // namespace vernacle::test
