// The printer's port, as bytes that reach the printer unchanged: the parallel port's device, else a
// raw job for the default print queue.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "core/bytesink.h"

namespace vernacle {

struct PrinterPort {
#ifdef _WIN32
    std::string device = "LPT1";
#else
    std::string device = "/dev/lp0";
#endif
    std::string program = "lp"; // found on the path; queues what it reads from standard input
    std::vector<std::string> arguments = {"-o", "raw", "-s"};
    std::chrono::milliseconds limit{10000}; // for the device to take a byte, the program the job
};

// The device if it opens; its Write throws FileFailure when the printer takes nothing within the
// limit. Else a job that Close sends; a program that fails or outlasts the limit is a FileFailure
// with its reason. Where there is neither device nor program, opening throws FileFailure.
std::unique_ptr<ByteSink> OpenPrinterPort(const PrinterPort& port = {});

} // namespace vernacle
