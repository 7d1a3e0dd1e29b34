// What the programs' command lines have in common: the walk over the options, the sizes of screens,
// and the failure of wrong usage.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string_view>

#include <getopt.h>

namespace vernacle {

// Wrong usage; what() says in one line what is wrong.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Takes an option by its number in the table; value is null for an option without one.
using OptionTaker = std::function<void(int option, const char* value)>;

// Hands every option to the taker, in order, and moves the other words behind them; gives the index
// of the first of those. options ends with a row of nulls. Throws UsageError for an option that is
// unknown or lacks its value.
int TakeOptions(int argc, char** argv, const option* options, const OptionTaker& take);

struct PixelSize {
    int width = 0;
    int height = 0;
};

// "WxH" with both sides, whole pixels, from smallest to largest; nothing for any other text.
std::optional<PixelSize> ReadPixelSize(std::string_view text, int smallest, int largest);

} // namespace vernacle
