#include "desktop/pages/plateprint.h"

#include "desktop/system/printers.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/output/print.h"
#include "engine/output/trueprint.h"

namespace vernacle {

namespace {

std::string Millimetres(double mm) {
    return RoundedToPlaces(static_cast<float>(mm), 0);
}

void TellOfCutOff() {
    const Sheet sheet = ProposedSheet();
    const std::string cut = CutOffOnSheet(Design, sheet.widthMm, sheet.heightMm);
    if (!cut.empty()) {
        Host.informationBox("The plate is too large for the printer's sheet of " +
                            Millimetres(sheet.widthMm) + " x " + Millimetres(sheet.heightMm) +
                            " mm. What is cut off: " + cut +
                            ".\n\nA larger sheet can be chosen in the printer dialog.");
    }
}

} // namespace

void AskAndPrintPlate(QWidget* page) {
    if (Service.truePlate) {
        TellOfCutOff();
    }
    AskForPrinterAndPrint(page, [](PrinterSurface& printer) { PrintPlate(Design, printer); });
}

} // namespace vernacle
