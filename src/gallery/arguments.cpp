#include "gallery/arguments.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "engine/base/numbertext.h"

namespace vernacle::gallery {

const char* const kHelp = R"(Usage: vernacle-gallery [OPTIONS] FORM [DESIGN.VRN]

Opens one form of Vernacle by its name, over a design, as the program would.

Options:
  --size WxH[@RATIO]  screen in device pixels (default 1600x900), and its device ratio (default 1)
  --font POINTS       size of the application's font
  --dark              the desktop's colours are light on dark
  --workshop          as the program with everything in service
  --enable-all        enable what starts disabled
  --shot FILE.png     take the form's picture and end
  --dump FILE         write every field of the design at the end
  --help              print this and exit
)";

namespace {

constexpr int kSmallestScreen = 320; // device pixels a side
constexpr int kLargestScreen = 16384;
constexpr double kSmallestRatio = .5;
constexpr double kLargestRatio = 8;
constexpr double kSmallestFont = 4; // points
constexpr double kLargestFont = 40;

enum Option {
    kSizeOption = 1,
    kFontOption,
    kDarkOption,
    kEnableAllOption,
    kShotOption,
    kDumpOption,
    kHelpOption,
    kWorkshopOption
};

constexpr option kOptions[] = {
    {"size", required_argument, nullptr, kSizeOption},
    {"font", required_argument, nullptr, kFontOption},
    {"dark", no_argument, nullptr, kDarkOption},
    {"enable-all", no_argument, nullptr, kEnableAllOption},
    {"shot", required_argument, nullptr, kShotOption},
    {"dump", required_argument, nullptr, kDumpOption},
    {"help", no_argument, nullptr, kHelpOption},
    {"workshop", no_argument, nullptr, kWorkshopOption},
    {nullptr, 0, nullptr, 0},
};

std::optional<double> NumberWithin(std::string_view text, double smallest, double largest) {
    const auto number = StrictNumber(text);
    return number && *number >= smallest && *number <= largest ? number : std::nullopt;
}

void ReadScreen(std::string_view text, Arguments& arguments) {
    const std::size_t at = std::min(text.find('@'), text.size());
    const auto size = ReadPixelSize(text.substr(0, at), kSmallestScreen, kLargestScreen);
    const auto ratio =
        at == text.size() ? 1 : NumberWithin(text.substr(at + 1), kSmallestRatio, kLargestRatio);
    if (!size || !ratio) {
        throw UsageError("--size wants WxH or WxH@RATIO, sides of 320 to 16384 pixels and a ratio "
                         "of 0.5 to 8, not \"" +
                         std::string(text) + "\"");
    }
    arguments.widthPixels = size->width;
    arguments.heightPixels = size->height;
    arguments.deviceRatio = *ratio;
    arguments.sized = true;
}

double CheckedPoints(const char* text) {
    const auto points = NumberWithin(text, kSmallestFont, kLargestFont);
    if (!points) {
        throw UsageError("--font wants 4 to 40 points, not \"" + std::string(text) + "\"");
    }
    return *points;
}

std::string CheckedFile(const char* name, const char* option) {
    if (*name == '\0') {
        throw UsageError(std::string(option) + " wants the name of a file");
    }
    return name;
}

void TakeOption(int option, const char* value, Arguments& arguments) {
    switch (option) {
    case kSizeOption:
        ReadScreen(value, arguments);
        break;
    case kFontOption:
        arguments.fontPoints = CheckedPoints(value);
        break;
    case kDarkOption:
        arguments.dark = true;
        break;
    case kEnableAllOption:
        arguments.enableAll = true;
        break;
    case kShotOption:
        arguments.shot = CheckedFile(value, "--shot");
        break;
    case kDumpOption:
        arguments.dump = CheckedFile(value, "--dump");
        break;
    case kWorkshopOption:
        arguments.workshop = true;
        break;
    case kHelpOption:
        arguments.help = true;
        break;
    }
}

void TakeWords(int count, char** words, Arguments& arguments) {
    if (count < 1 || *words[0] == '\0') {
        throw UsageError("the name of a form is wanted");
    }
    if (count > 2) {
        throw UsageError("a form and at most one design are wanted, not \"" +
                         std::string(words[2]) + "\" too");
    }
    arguments.form = words[0];
    if (count == 1) {
        return;
    }
    arguments.design = words[1];
    if (arguments.design.empty()) {
        throw UsageError("the design's name is empty");
    }
}

} // namespace

Arguments ParseArguments(int argc, char** argv) {
    Arguments arguments;
    const int first = TakeOptions(argc, argv, kOptions, [&](int option, const char* value) {
        TakeOption(option, value, arguments);
    });
    if (!arguments.help) {
        TakeWords(argc - first, argv + first, arguments);
    }
    return arguments;
}

} // namespace vernacle::gallery
