// The forms in which vernacle-export writes a design, by the ending of the output's name.
#pragma once

#include <string>

#include "engine/core/design.h"
#include "export/arguments.h"

namespace vernacle::exporter {

// Writes the design, which is this output's own, to the path. A failure is reported through Host or
// thrown as a RunTimeError.
using WriteOutput = void (*)(DesignRecord& design, const std::string& path,
                             const Arguments& arguments);

struct OutputForm {
    const char* ending = nullptr;
    WriteOutput write = nullptr;
    bool wantsTables = false; // the design is first made ready as the preview page does
    bool wantsFonts = false;
    bool isDesign = false; // an input as well, which must not be lost
};

// By the ending in any case; null for one that is not known.
const OutputForm* FindForm(const std::string& path);

// What the preview page does to a design before it is drawn.
void MakeReady(DesignRecord& design);

} // namespace vernacle::exporter
