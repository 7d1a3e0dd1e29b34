// The one seam between the engine and the system: function values that the program sets. The engine
// reads files, tells the time, waits and reports through these and has no other way out.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "engine/base/bytesink.h"

namespace vernacle {

constexpr double kTwipsPerPixel = 15;

struct ScreenSize {
    float widthTwips;
    float heightTwips;
};

// A failure's text, word for word as it is documented, and beside it the reason that the system
// gave, if any.
struct FailureReport {
    FailureReport(const char* failureText) : text(failureText) {}
    FailureReport(std::string failureText, std::string failureReason = {})
        : text(std::move(failureText)), reason(std::move(failureReason)) {}

    std::string text;
    std::string reason;
};

struct HostServices {
    // The bytes of the file of that name; throws FileFailure. A bare name ("Backup.DAT") stands in
    // the working folder.
    std::function<std::string(const std::string& name)> readFile;

    // A sink that replaces the file, or feeds the port ("LPT1"), of that name; throws FileFailure.
    std::function<std::unique_ptr<ByteSink>(const std::string& name)> openForOutput;

    // The full path of a file that stands beside the program.
    std::function<std::string(const std::string& name)> besideProgram;

    // Of the places that an earlier run may have left such a file in, the path of the newest.
    std::function<std::string(const std::string& name)> newestBesideProgram;

    // The files of that name that earlier runs have left, the newest first.
    std::function<std::vector<std::string>(const std::string& name)> keptSessions;

    // The printer's calibration: the files that it may be read from, of which the first that is
    // whole counts, and the one that it is written to.
    std::function<std::vector<std::string>()> calibrationsToRead;
    std::function<std::string()> calibrationToWrite;

    std::function<std::string()> localDateTime; // now, in the machine's short form; never empty
    std::function<std::string()> isoDateTime;   // now, "YYYY-MM-DD hh:mm:ss"
    std::function<double()> clockSeconds;       // a clock that only rises
    std::function<void()> pause;                // one turn of a blocking wait
    std::function<void()> servePendingEvents;
    std::function<ScreenSize()> screenSize;

    std::function<void()> beep;
    std::function<void(const FailureReport& report)> failureBox; // message box with OK
    std::function<void(const std::string& text)> informationBox; // with what was done
    std::function<void(const std::string& file)> playSound; // starts it, does not wait for its end
};

// Set by the program before it uses the engine; starts as DefaultHost().
extern HostServices Host;

// The plain file system and clock, names taken as paths, and nothing that shows or sounds.
HostServices DefaultHost();

// The beep and the message box of a trapped failure.
void ReportFailure(const FailureReport& report);

} // namespace vernacle
