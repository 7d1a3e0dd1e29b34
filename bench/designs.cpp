#include "designs.h"

#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "engine/render/drawing.h"
#include "engine/scale/scale.h"

namespace vernacle::bench {

void LoadDense() {
    SetVersionAndScreenScale(Design);
    SetOpeningValues(Design);
    ReadDesign(Design, VERNACLE_EXAMPLES "/DEGREES-0-360.VRN");
    NormalizeDesign(Design);
    HoldAspectRatio(Design);
    ComputeTicDeflections(Design);
    ComputeTicLabels(Design);
    Design.CalibrationX = Design.CalibrationY = 1;
}

void LoadScales(int scales, std::int16_t steps) {
    SetOpeningValues(Design);
    ResetDesign(Design);
    Design.NumberOfScales = static_cast<std::int16_t>(scales);
    for (int scale = 1; scale <= scales; ++scale) {
        Design.NrOfTicmarks[scale] = steps;
        Design.LinearityExponent[scale] = 1.5F;
    }
}

} // namespace vernacle::bench
