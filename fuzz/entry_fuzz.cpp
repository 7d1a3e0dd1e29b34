// Takes the bytes as an entry for each type of field. Whatever it says, the value must stay inside
// the limits that hold for all entries, and must come back as text.
#include <cstdlib>

#include "engine/base/numbertext.h"
#include "engine/core/entry.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vernacle;
    std::string text(reinterpret_cast<const char*>(data), size);
    float value = 0;
    std::int16_t small = 0;
    std::int32_t whole = 0;
    ParseEntry(text, value);
    ParseEntry(text, small);
    ParseEntry(text, whole);
    if (!(value >= -1e10F && value <= 1e10F)) {
        std::abort();
    }
    std::string shown;
    FormatByMagnitude(double{value}, shown);
    if (shown.empty() || PlainNumber(value).empty()) {
        std::abort();
    }
    return 0;
}
