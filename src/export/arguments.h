// The command line of vernacle-export.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "commandline/options.h"
#include "surfaces/papersurface.h"

namespace vernacle::exporter {

struct Arguments {
    bool help = false;
    bool version = false;
    bool force = false;                     // an existing design may be written over
    bool strict = false;                    // a doubt about what is read is a failure
    bool workshop = false;                  // all that the design holds is in service
    std::string at;                         // "YYYY-MM-DD hh:mm:ss"; empty for the present time
    std::optional<std::string> calibration; // file of the printer's factors; none: both are 1
    Sheet paper = kSheets[0];
    int widthPixels = 1600; // of the screen that a picture shows
    int heightPixels = 900;
    std::string design;
    std::vector<std::string> outputs;
};

// Throws UsageError. Whether the outputs' endings are known is not judged here.
Arguments ParseArguments(int argc, char** argv);

extern const char* const kHelp;

} // namespace vernacle::exporter
