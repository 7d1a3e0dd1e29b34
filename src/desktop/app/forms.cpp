#include "desktop/app/forms.h"

#include "desktop/app/frmAbout.h"
#include "desktop/app/frmBlank.h"
#include "desktop/app/frmExit.h"
#include "desktop/app/frmOpening.h"
#include "desktop/correction/frmCorrectionEntry.h"
#include "desktop/correction/frmCorrectionShow.h"
#include "desktop/help/frmExponent.h"
#include "desktop/help/frmHelp.h"
#include "desktop/help/frmRotateIllustration.h"
#include "desktop/help/frmStyleHelp.h"
#include "desktop/pages/frmCalibrate.h"
#include "desktop/pages/frmGraphic.h"
#include "desktop/pages/frmHPGL.h"
#include "desktop/pages/frmHighlights.h"
#include "desktop/pages/frmPlate.h"
#include "desktop/pages/frmPreview.h"
#include "desktop/pages/frmScales.h"
#include "desktop/pages/frmSelectTics.h"
#include "desktop/pages/frmShowTicInfo.h"
#include "desktop/pages/frmText.h"
#include "desktop/pages/frmTicsHelp.h"
#include "desktop/setups/frmSetupMenu.h"
#include "desktop/setups/frmSetupOhmmeter.h"
#include "desktop/setups/frmSetupPreview.h"
#include "desktop/setups/frmSetupSmeter.h"
#include "desktop/setups/frmSetupVSWR.h"
#include "desktop/setups/frmSetupdB.h"
#include "desktop/setups/frmSpecialScale.h"
#include "desktop/wizard/frmWizard.h"
#include "desktop/wizard/frmWizardPart2.h"

namespace vernacle {

namespace {

template <typename Form>
std::unique_ptr<QWidget> Make() {
    return std::make_unique<Form>();
}

constexpr FormRow kForms[] = {
    {"frmOpening", Make<frmOpening>},
    {"frmPreview", Make<frmPreview>},
    {"frmPlate", Make<frmPlate>},
    {"frmScales", Make<frmScales>},
    {"frmText", Make<frmText>},
    {"frmGraphic", Make<frmGraphic>},
    {"frmHighlights", Make<frmHighlights>},
    {"frmSelectTics", Make<frmSelectTics>},
    {"frmShowTicInfo", Make<frmShowTicInfo>},
    {"frmSetupMenu", Make<frmSetupMenu>},
    {"frmSetupOhmmeter", Make<frmSetupOhmmeter>},
    {"frmSpecialScale", Make<frmSpecialScale>},
    {"frmSetupSmeter", Make<frmSetupSmeter>},
    {"frmSetupVSWR", Make<frmSetupVSWR>},
    {"frmSetupdB", Make<frmSetupdB>},
    {"frmSetupPreview", Make<frmSetupPreview>},
    {"frmCorrectionEntry", Make<frmCorrectionEntry>},
    {"frmCorrectionShow", Make<frmCorrectionShow>},
    {"frmWizard", Make<frmWizard>},
    {"frmWizardPart2", Make<frmWizardPart2>},
    {"frmHelp", Make<frmHelp>},
    {"frmHPGL", Make<frmHPGL>},
    {"frmCalibrate", Make<frmCalibrate>},
    {"frmTicsHelp", Make<frmTicsHelp>},
    {"frmExponent", Make<frmExponent>},
    {"frmRotateIllustration", Make<frmRotateIllustration>},
    {"frmStyleHelp", Make<frmStyleHelp>},
    {"frmExit", Make<frmExit>},
    {"frmBlank", Make<frmBlank>},
    {"frmAbout", Make<frmAbout>},
};

} // namespace

std::span<const FormRow> ProgramForms() {
    return kForms;
}

} // namespace vernacle
