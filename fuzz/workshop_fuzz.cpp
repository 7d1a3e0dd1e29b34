// Reads the bytes as a careful file: what was read is written and read again, and is the same.
#include <cstdio>
#include <cstdlib>

#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vernacle;
    fuzz::ServeAsFile(data, size);
    Host.localDateTime = [] { return std::string("then"); };
    StoreService(Program::Workshop);
    ResetDesign(Design);
    ReadDesign(Design, "design");
    const std::string text = DesignText(Design);
    ReadDesignText(Design, text);
    if (DesignText(Design) != text) {
        std::fputs("a design is not what it was written as\n", stderr);
        std::abort();
    }
    fuzz::MakeReady(Design);
    return 0;
}
