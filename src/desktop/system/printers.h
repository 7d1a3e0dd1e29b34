// The platform's printer dialog, and the print on the printer and sheet that were chosen in it.
#pragma once

#include "surfaces/documents.h"

class QPrinter;
class QWidget;

namespace vernacle {

// The design's file name without its folder, "Vernacle" for a design without a file.
QString DocumentName();

// The sheet that the printer dialog will propose.
Sheet ProposedSheet();

// Shows the printer dialog, named "PrintDialog"; after a cancel nothing else happens, else print
// runs once with a surface on what was chosen. The printer is proposed again at the next call, and
// a file's sheet with it; a queue proposes its own. A file is proposed among the user's documents,
// under the document's name.
void AskForPrinterAndPrint(QWidget* parent, const PrintOn& print,
                           const QString& document = DocumentName());

// Runs print with a surface on the printer as it is set up: true to size on its sheet, whatever its
// resolution. A job or file is made only at EndDoc, which throws a RunTimeError when that fails, be
// it that the spooler refuses the job.
void PrintOnPrinter(QPrinter& printer, const PrintOn& print);

// The same through the toolkit's own job, which is the way to everything but a PDF file and a queue
// of a spooler that has a program to take jobs.
void PrintAsJob(QPrinter& printer, const PrintOn& print);

} // namespace vernacle
