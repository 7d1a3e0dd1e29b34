// The failures that no routine traps by itself: they travel up to the nearest routine whose task
// includes a trap, and else to the application's one handler, which shows them and ends.
#pragma once

#include <stdexcept>
#include <string>

namespace vernacle {

class RunTimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A file, a port or a device that could not be opened, read, written or closed.
class FileFailure : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

[[noreturn]] void ThrowSubscriptOutOfRange();
[[noreturn]] void ThrowOverflow();
[[noreturn]] void ThrowTypeMismatch();

// dividend / divisor; a divisor of 0 is a run-time error, whatever the dividend.
double CheckedDivide(double dividend, double divisor);

// base to the power exponent; 0 to a negative power, or a power with no real value, is a run-time
// error, and so is one that is too large for a double.
double CheckedPower(double base, double exponent);

// The nearest integer, ties to even; one that does not fit an int is a run-time error.
int RoundToInt(double value);

} // namespace vernacle
