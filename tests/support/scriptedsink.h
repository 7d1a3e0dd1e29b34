// A sink that keeps or refuses what is written.
#pragma once

#include <memory>
#include <string>

#include "engine/base/bytesink.h"

namespace vernacle::test {

// Keeps what is written, counts, and fails at a write (counted from 1) or at the close.
struct SinkScript {
    std::string bytes;
    int failAtWrite = 0;
    bool failAtClose = false;
    int writes = 0;
    int closes = 0;
    int open = 0; // sinks that exist
};

std::unique_ptr<ByteSink> OpenScriptedSink(SinkScript& script);

} // namespace vernacle::test
