#include "app/forms.h"

#include "app/frmAbout.h"
#include "app/frmBlank.h"
#include "app/frmExit.h"
#include "app/frmOpening.h"
#include "correction/frmCorrectionEntry.h"
#include "correction/frmCorrectionShow.h"
#include "help/frmExponent.h"
#include "help/frmHelp.h"
#include "help/frmRotateIllustration.h"
#include "help/frmStyleHelp.h"
#include "pages/frmGraphic.h"
#include "pages/frmHighlights.h"
#include "pages/frmPlate.h"
#include "pages/frmPreview.h"
#include "pages/frmScales.h"
#include "pages/frmSelectTics.h"
#include "pages/frmShowTicInfo.h"
#include "pages/frmText.h"
#include "pages/frmTicsHelp.h"
#include "render/frmCalibrate.h"
#include "render/frmHPGL.h"
#include "setups/frmSetupMenu.h"
#include "setups/frmSetupOhmmeter.h"
#include "setups/frmSetupPreview.h"
#include "setups/frmSetupSmeter.h"
#include "setups/frmSetupVSWR.h"
#include "setups/frmSetupdB.h"
#include "setups/frmSpecialScale.h"
#include "wizard/frmWizard.h"
#include "wizard/frmWizardPart2.h"

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
