// Reads the bytes as a correction file and evaluates the curve that came of it.
#include "engine/core/design.h"
#include "engine/correction/curve.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vernacle;
    fuzz::ServeAsFile(data, size);
    SetLinearCurve(Design);
    ReadCorrectionFile(Design, "curve");
    try {
        ComputeCorrectionSlopes(Design);
    } catch (const RunTimeError&) {
        // Two points with the same X, or a slope beyond a float.
    }
    float fraction = 0.4F;
    CorrectDeflection(Design, fraction);
    return 0;
}
