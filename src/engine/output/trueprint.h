// The true plate on a sheet: by the printer's calibration where it goes to a device, with trim
// marks, ruler and footer where the sheet has room for them.
#pragma once

#include <string>

namespace vernacle {

class PrinterSurface;
struct DesignRecord;

// Prints a design whose tables are computed. Returns whether the document was sent; a failure ends
// it and is reported without a sound.
bool PrintTruePlate(const DesignRecord& design, PrinterSurface& printer);

// What of that print does not fit on a printer's sheet of that size, in words: "trim marks,
// footer", empty if all does.
std::string CutOffOnSheet(const DesignRecord& design, double widthMm, double heightMm);

} // namespace vernacle
