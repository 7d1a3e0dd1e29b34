// Where bytes go, checked to the end: a file is written only when its close has succeeded.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace vernacle {

class ByteSink {
public:
    virtual ~ByteSink() = default;

    // Takes all the bytes or throws FileFailure.
    virtual void Write(std::string_view bytes) = 0;

    // Flushes and closes, or throws FileFailure; the sink is closed either way. Destruction without
    // it closes without a check.
    virtual void Close() = 0;
};

// Opens a file for output, replacing what was there; throws FileFailure.
std::unique_ptr<ByteSink> OpenFileSink(const std::string& path);

// The bytes of a regular file of at most kLargestFile bytes; throws FileFailure for anything else:
// a pipe that nobody writes to would be waited for without end.
std::string ReadWholeFile(const std::string& path);

// The same for a program that stands in a pipeline: its standard input is read too, by the name of
// its device, whatever stands behind it.
std::string ReadFileOrInput(const std::string& path);

constexpr std::size_t kLargestFile = 16U << 20U; // a thousand times the largest design

} // namespace vernacle
