// Reads the bytes as a design and writes what came of it; then makes the design ready as a page
// does.
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "target.h"

namespace {

class NoSink : public vernacle::ByteSink {
    void Write(std::string_view /*bytes*/) override {}
    void Close() override {}
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vernacle;
    fuzz::ServeAsFile(data, size);
    Host.openForOutput = [](const std::string&) { return std::make_unique<NoSink>(); };
    const LineReport hear = [](int /*line*/, const std::string& /*reason*/) {};
    ReadDesign(Design, "design", {.doubt = hear, .failure = hear});
    WriteDesign(Design);
    fuzz::MakeReady(Design);
    return 0;
}
