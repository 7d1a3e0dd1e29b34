#include "engine/render/drawingsteps.h"

#include "engine/core/design.h"
#include "engine/scale/ticrows.h"

namespace vernacle {

void StepsOn::RaiseAspect() const {
    RaiseAspectRatio(design_);
}

void StepsOn::ReachScale(int scale) const {
    design_.CurrentScale = static_cast<std::int16_t>(scale);
}

void StepsOn::RaiseRelativeSize(int scale) const {
    float& relative = design_.RelativeFontSize[scale];
    if (relative <= 0) {
        relative = 1;
    }
}

void StepsOn::ClearColour(int scale) const {
    design_.ScaleColor[scale] = 0;
}

void StepsOn::SetBackLabel(int scale, int tic) const {
    LabelFlagOf(design_, scale, tic) = "Y";
}

void RaiseAspectRatio(DesignRecord& design) {
    if (design.AspectRatio <= 0) {
        design.AspectRatio = 1;
    }
}

} // namespace vernacle
