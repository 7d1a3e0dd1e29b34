#include "export/arguments.h"

#include <algorithm>
#include <ctime>
#include <string_view>

#include <strings.h>

namespace vernacle::exporter {

const char* const kHelp =
    R"(Usage: vernacle-export [OPTIONS] DESIGN.VRN OUTPUT [OUTPUT ...]

Writes a meter's scale plate from its design file. The ending of OUTPUT picks the form:
  .hpgl .plt   HP-GL stream for a plotter
  .pcl         the same, wrapped for a PCL printer
  .pdf         the printed plate, true size
  .svg         the printed plate, true size
  .png         the preview picture
  .vrn         the design, written anew
  .csv         the tic table

Options:
  --paper A4|Letter        sheet of .pdf and .svg (default A4)
  --size WxH               screen that .png shows, in pixels (default 1600x900)
  --calibration FILE       printer calibration, a Calibrate.txt (default: both factors 1)
  --at "YYYY-MM-DD hh:mm:ss"  date and time to write instead of the present ones
  --force                  write over a .vrn that exists
  --strict                 take a doubt about what is read for a failure, and write nothing
  --workshop               draw and write everything that the design holds, as the workshop does
  --help                   print this and exit
  --version                print the version and exit

What is read and looks like a mistake is said on standard error as "vernacle-export: FILE:LINE:
REASON"; an output that cannot be written leaves what stood there.

Exit status: 0 all written, 1 a file could not be read or written, 2 wrong usage.
)";

namespace {

constexpr int kSmallestPicture = 16; // pixels a side
constexpr int kLargestPicture = 8192;

enum Option {
    kHelpOption = 1,
    kVersionOption,
    kForceOption,
    kStrictOption,
    kAtOption,
    kCalibrationOption,
    kPaperOption,
    kSizeOption,
    kWorkshopOption
};

constexpr option kOptions[] = {
    {"help", no_argument, nullptr, kHelpOption},
    {"version", no_argument, nullptr, kVersionOption},
    {"force", no_argument, nullptr, kForceOption},
    {"strict", no_argument, nullptr, kStrictOption},
    {"at", required_argument, nullptr, kAtOption},
    {"calibration", required_argument, nullptr, kCalibrationOption},
    {"paper", required_argument, nullptr, kPaperOption},
    {"size", required_argument, nullptr, kSizeOption},
    {"workshop", no_argument, nullptr, kWorkshopOption},
    {nullptr, 0, nullptr, 0},
};

// A real date in just this form: what strptime reads must print alike.
std::string CheckedTime(const char* text) {
    constexpr const char* kForm = "%Y-%m-%d %H:%M:%S";
    std::tm parts{};
    char again[32] = "";
    const char* end = strptime(text, kForm, &parts);
    if (end && *end == '\0') {
        std::tm real = parts;
        timegm(&real); // carries a thirtieth of February over into March
        std::strftime(again, sizeof again, kForm, &real);
    }
    if (std::string_view(text) != again || *text == '\0') {
        throw UsageError("--at wants \"YYYY-MM-DD hh:mm:ss\", not \"" + std::string(text) + "\"");
    }
    return text;
}

Sheet CheckedSheet(const char* name) {
    const auto* sheet =
        std::find_if(std::begin(kSheets), std::end(kSheets),
                     [name](const Sheet& s) { return strcasecmp(s.name, name) == 0; });
    if (sheet == std::end(kSheets)) {
        throw UsageError("--paper wants A4 or Letter, not \"" + std::string(name) + "\"");
    }
    return *sheet;
}

void ReadSize(std::string_view text, Arguments& arguments) {
    const auto size = ReadPixelSize(text, kSmallestPicture, kLargestPicture);
    if (!size) {
        throw UsageError("--size wants WxH, sides of 16 to 8192 pixels, not \"" +
                         std::string(text) + "\"");
    }
    arguments.widthPixels = size->width;
    arguments.heightPixels = size->height;
}

void TakeOption(int option, const char* value, Arguments& arguments) {
    switch (option) {
    case kHelpOption:
        arguments.help = true;
        break;
    case kVersionOption:
        arguments.version = true;
        break;
    case kForceOption:
        arguments.force = true;
        break;
    case kStrictOption:
        arguments.strict = true;
        break;
    case kWorkshopOption:
        arguments.workshop = true;
        break;
    case kAtOption:
        arguments.at = CheckedTime(value);
        break;
    case kCalibrationOption:
        arguments.calibration = value;
        break;
    case kPaperOption:
        arguments.paper = CheckedSheet(value);
        break;
    case kSizeOption:
        ReadSize(value, arguments);
        break;
    }
}

} // namespace

Arguments ParseArguments(int argc, char** argv) {
    Arguments arguments;
    const int first = TakeOptions(argc, argv, kOptions, [&](int option, const char* value) {
        TakeOption(option, value, arguments);
    });
    if (arguments.help || arguments.version) {
        return arguments;
    }
    if (argc - first < 2) {
        throw UsageError("a design and at least one output are wanted");
    }
    arguments.design = argv[first];
    arguments.outputs.assign(argv + first + 1, argv + argc);
    if (arguments.design.empty()) {
        throw UsageError("the design's name is empty");
    }
    return arguments;
}

} // namespace vernacle::exporter
