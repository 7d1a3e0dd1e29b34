// The print of the plate that a page's key asks for.
#pragma once

class QWidget;

namespace vernacle {

// Asks for the printer and prints. Where true plates are in service a box tells before what of the
// print does not fit on the sheet that the dialog proposes.
void AskAndPrintPlate(QWidget* page);

} // namespace vernacle
