// What every fuzz target begins with: the bytes to be read, served as a file from memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/scale/scale.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace vernacle::fuzz {

inline void ServeAsFile(const std::uint8_t* data, std::size_t size) {
    const auto* text = reinterpret_cast<const char*>(data);
    Host.readFile = [text, size](const std::string&) { return std::string(text, size); };
}

// What a page does with a design that was read; the failure of the numbers that the file held is
// trapped there too.
inline void MakeReady(DesignRecord& design) {
    try {
        NormalizeDesign(design);
        ComputeTicDeflections(design);
        ComputeTicLabels(design);
    } catch (const RunTimeError&) {
    }
}

} // namespace vernacle::fuzz
