// The tics of a printed plate as a table, one row a tic: for a spreadsheet, or to check a plate
// with a measuring microscope.
#pragma once

#include <string>

#include "engine/core/design.h"

namespace vernacle::exporter {

// The table as RFC 4180 text, its header first. Places are millimetres from the plate's left and
// bottom edges.
std::string TicTableText(const DesignRecord& design);

} // namespace vernacle::exporter
