// What a reader reports of a file beside its message.
#pragma once

#include <functional>
#include <string>

namespace vernacle {

// Hears of a line, counted from 1, and in a few words what is wrong with it.
using LineReport = std::function<void(int line, const std::string& reason)>;

// Either may be left empty.
struct ReadReports {
    LineReport doubt;   // looks like a mistake, though the reader takes it
    LineReport failure; // line 0 where no line had been read; the reason names the file then
};

} // namespace vernacle
