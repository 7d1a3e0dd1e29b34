#include "engine/base/runtimeerror.h"

#include <cmath>
#include <limits>

namespace vernacle {

void ThrowSubscriptOutOfRange() {
    throw RunTimeError("Subscript out of range");
}

void ThrowOverflow() {
    throw RunTimeError("Overflow");
}

void ThrowTypeMismatch() {
    throw RunTimeError("Type mismatch");
}

double CheckedDivide(double dividend, double divisor) {
    if (divisor == 0) {
        throw RunTimeError("Division by zero");
    }
    return dividend / divisor;
}

double CheckedPower(double base, double exponent) {
    if (base == 0 && exponent < 0) {
        throw RunTimeError("Invalid procedure call or argument");
    }
    const double power = std::pow(base, exponent);
    if (!std::isfinite(power)) {
        ThrowOverflow();
    }
    return power;
}

int RoundToInt(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<int>::min() &&
          rounded <= std::numeric_limits<int>::max())) {
        ThrowOverflow();
    }
    return static_cast<int>(rounded);
}

} // namespace vernacle
