// The command line of vernacle-gallery.
#pragma once

#include <string>

#include "commandline/options.h"

namespace vernacle::gallery {

struct Arguments {
    std::string form;       // its name; whether there is such a form is not judged here
    std::string design;     // file to open; empty for the opening values
    int widthPixels = 1600; // of the screen, device pixels
    int heightPixels = 900;
    double deviceRatio = 1; // device pixels to one of the toolkit's
    bool sized = false;     // the screen was asked for
    std::string shot;       // file of the form's picture; empty for none
    bool enableAll = false;
    bool dark = false;
    bool workshop = false; // everything is in service
    std::string dump;      // file of the design's fields; empty for none
    double fontPoints = 0; // of the application's font; 0 for the desktop's own
    bool help = false;
};

// Throws UsageError. With help asked for, the words that are no options are not looked at.
Arguments ParseArguments(int argc, char** argv);

extern const char* const kHelp;

} // namespace vernacle::gallery
