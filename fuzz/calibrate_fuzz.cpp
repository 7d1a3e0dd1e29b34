// Reads the bytes as a printer calibration.
#include "engine/core/design.h"
#include "engine/output/calibrate.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vernacle;
    fuzz::ServeAsFile(data, size);
    ReadCalibrate(Design);
    HoldCalibration(Design);
    return 0;
}
