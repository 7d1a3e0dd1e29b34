// An output file that takes its place when it is whole: what stood there stays, byte for byte, if
// anything fails on the way.
#pragma once

#include <memory>
#include <string>

#include "engine/base/bytesink.h"

namespace vernacle {

// A regular file is written beside its place, through a link beside what the link leads to, and
// then renamed onto it with the mode of what stood there. Where the folder does not allow that, it
// is overwritten only when there is room for all of it. What is no regular file is written
// directly. Nothing reaches the disk before Close; destruction without it leaves all as it was.
// What replaces a file is flushed to the disk before, or all of it and its place, for whoever asks.
// Throws FileFailure.
enum class Flush { Replacements, All };

std::unique_ptr<ByteSink> OpenOutputFile(const std::string& path,
                                         Flush flush = Flush::Replacements);

} // namespace vernacle
