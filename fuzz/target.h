// What every fuzz target begins with: the bytes to be read, served as a file from memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "engine/base/hostservices.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace vernacle::fuzz {

inline void ServeAsFile(const std::uint8_t* data, std::size_t size) {
    const auto* text = reinterpret_cast<const char*>(data);
    Host.readFile = [text, size](const std::string&) { return std::string(text, size); };
}

} // namespace vernacle::fuzz
