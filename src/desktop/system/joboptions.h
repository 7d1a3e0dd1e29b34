// What was chosen in the printer dialog, in the words of the spooler's program.
#pragma once

#include <string>
#include <vector>

class QPrinter;

namespace vernacle {

// The arguments of "lp" for one document of one sheet: queue, title, copies, paper, sides,
// orientation, colour, page range, and the queue's own options. The sheet is never scaled, whatever
// the queue does with the documents of others.
std::vector<std::string> JobArguments(const QPrinter& printer);

// Asks the same of the toolkit's own job, where that goes to a queue.
void PrintUnscaled(QPrinter& printer);

} // namespace vernacle
