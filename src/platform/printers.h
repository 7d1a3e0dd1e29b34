// The platform's printer dialog, and the print on the printer and sheet that were chosen in it.
#pragma once

#include "surfaces/documents.h"

class QPrinter;
class QWidget;

namespace vernacle {

// Shows the printer dialog, named "PrintDialog"; after a cancel nothing else happens, else print
// runs once with a surface on what was chosen. The printer and its sheet are proposed again at the
// next call.
void AskForPrinterAndPrint(QWidget* parent, const PrintOn& print);

// Runs print with a surface on the printer as it is set up: true to size on its sheet, whatever its
// resolution. A job or file is made only at EndDoc, which throws a RunTimeError when that fails.
void PrintOnPrinter(QPrinter& printer, const PrintOn& print);

// The same through the toolkit's own job, which is the way to everything but a PDF file.
void PrintAsJob(QPrinter& printer, const PrintOn& print);

} // namespace vernacle
