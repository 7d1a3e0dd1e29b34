// The printer's port, as bytes that reach the printer unchanged: the parallel port's device, else a
// raw job for a print queue.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "engine/base/bytesink.h"

namespace vernacle {

// Where a raw job goes.
struct PrintTarget {
    std::string queue; // empty for the default one
    std::string title;
    std::string failure; // why no queue could be found: opening then fails with it
};

struct PrinterPort {
#ifdef _WIN32
    std::string device = "LPT1";
#else
    std::string device = "/dev/lp0";
#endif
    std::string program = "lp"; // found on the path; queues what it reads from standard input
    std::chrono::milliseconds limit{10000};    // for the device to take a byte
    std::chrono::milliseconds jobLimit{60000}; // for the program to take the job
    PrintTarget target = {};
};

// While it lives, the machine's port has that target.
class PrintTargetUse {
public:
    explicit PrintTargetUse(PrintTarget target);
    ~PrintTargetUse();
    PrintTargetUse(const PrintTargetUse&) = delete;
    PrintTargetUse& operator=(const PrintTargetUse&) = delete;
};

// The machine's port, with the target that is in use.
PrinterPort UsualPort();

// Whether there is a device to write to, so that no queue is asked.
bool HasDevice(const PrinterPort& port);

// The device if it opens; its Write throws FileFailure when the printer takes nothing within the
// limit. Else a job that Close sends; a program that fails or outlasts the limit is a FileFailure
// with its reason. Where there is neither device nor program, opening throws FileFailure.
std::unique_ptr<ByteSink> OpenPrinterPort(const PrinterPort& port = UsualPort());

} // namespace vernacle
