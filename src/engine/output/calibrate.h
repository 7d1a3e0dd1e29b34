// The printer's calibration: one factor for each axis, their file, and the test square by whose
// measured sides they are found.
#pragma once

#include <string>

#include "engine/base/readreports.h"
#include "engine/core/entry.h"

namespace vernacle {

class PrinterSurface;
struct DesignRecord;

// Reads the two factors from the first of the calibration's files that has both. That there is none
// is not reported; it leaves the factors that were not reached as they are.
void ReadCalibrate(DesignRecord& design);

// The same from a file of that name; throws the failure. What looks like a mistake goes to doubt.
void ReadCalibration(DesignRecord& design, const std::string& name, const LineReport& doubt = {});

// Writes the calibration's file anew and leaves its bare name, "Calibrate.txt", in DesignFileName.
// A failure is not reported.
void WriteCalibrate(DesignRecord& design);

// Prints a square of 100 mm by the factors as they stand, a factor of 0 becoming 1. A failure is
// reported, with the warning sound before it if MessageLevel is above 0; false then.
bool PrintTestSquare(DesignRecord& design, PrinterSurface& printer);

// A measured side of the test square corrects the factor of its axis, held to 0.5 .. 2; a factor of
// 0 becomes 1 first, and a side that is not above 0 mm leaves it at that.
void Recalibrate(float& factor, double measuredMm);

// The sides, to a tenth of a mm, that Recalibrate takes for a factor without holding it.
EntryLimits MeasureLimits(float factor);

// Holds both factors to 0.5 .. 2.
void HoldCalibration(DesignRecord& design);

} // namespace vernacle
