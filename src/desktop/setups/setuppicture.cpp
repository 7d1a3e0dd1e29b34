#include "desktop/setups/setuppicture.h"

#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"

namespace vernacle {

namespace {

constexpr LogicalArea kArea{2300, 700, 7400, 7300}; // the plate and what stands beside it

} // namespace

SetupPicture::SetupPicture()
    : PictureBox("picPlate", kArea, UnitShape::OfScreen),
      sizes_{.fontSize = Design.FontSize, .labelSpacing = Design.LabelSpacing} {
    setAccessibleName(QStringLiteral("Drawing of the scale"));
}

void SetupPicture::DrawScale() {
    try {
        DrawSetup(Design, Surface(), sizes_, Drawing);
    } catch (const RunTimeError&) {
        Host.failureBox("We have a problem.\n\nWe are at SetupPreview errorhandler 337\n" +
                        LastStepTrace.Text());
    }
}

} // namespace vernacle
