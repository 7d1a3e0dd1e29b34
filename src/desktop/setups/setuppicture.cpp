#include "desktop/setups/setuppicture.h"

#include <memory>

#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"
#include "engine/setups/setup.h"

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
    if (Service.truePlate) {
        ShowTruePlate();
        return;
    }
    try {
        DrawSetup(Design, Surface(), sizes_, Drawing);
    } catch (const RunTimeError&) {
        Host.failureBox("We have a problem.\n\nWe are at SetupPreview errorhandler 337\n" +
                        LastStepTrace.Text());
    }
}

// The whole plate, with the scale as it will be once it is accepted.
void SetupPicture::ShowTruePlate() {
    const auto plate = std::make_unique<DesignRecord>(Design);
    MarkSpecial(*plate, Design.CurrentScale);
    ShowPage(TrueArea(*plate));
    DrawPage(*plate, Surface(), ScalesTraits(), sizes_, Drawing);
}

} // namespace vernacle
