#include "commandline/options.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace vernacle {

namespace {

bool ReadSide(std::string_view text, int smallest, int largest, int& side) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), side);
    return error == std::errc() && end == text.data() + text.size() && side >= smallest &&
           side <= largest;
}

} // namespace

int TakeOptions(int argc, char** argv, const option* options, const OptionTaker& take) {
    opterr = 0;
    optind = 0; // starts afresh
    while (true) {
        const int at = std::max(optind, 1);
        const int option = getopt_long(argc, argv, ":", options, nullptr);
        if (option == -1) {
            return optind;
        }
        const std::string word = argv[std::max(optind - 1, at)];
        if (option == ':') {
            throw UsageError("option " + word + " wants a value");
        }
        if (option == '?') {
            throw UsageError("unknown option " + word);
        }
        take(option, optarg);
    }
}

std::optional<PixelSize> ReadPixelSize(std::string_view text, int smallest, int largest) {
    const std::size_t cross = text.find_first_of("xX");
    PixelSize size;
    if (cross == text.npos || !ReadSide(text.substr(0, cross), smallest, largest, size.width) ||
        !ReadSide(text.substr(cross + 1), smallest, largest, size.height)) {
        return std::nullopt;
    }
    return size;
}

} // namespace vernacle
