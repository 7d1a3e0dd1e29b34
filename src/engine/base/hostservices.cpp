#include "engine/base/hostservices.h"

#include <array>
#include <chrono>
#include <ctime>
#include <thread>

namespace vernacle {

namespace {

std::string FormattedNow(const char* format) {
    const std::time_t now = std::time(nullptr);
    std::array<char, 256> text{};
    std::tm* parts = std::localtime(&now);
    return {text.data(), std::strftime(text.data(), text.size(), format, parts)};
}

std::string IsoDateTime() {
    return FormattedNow("%Y-%m-%d %H:%M:%S");
}

// The locale decides this form; a design file needs a line here that is neither empty nor a
// comment.
std::string LocalDateTime() {
    const std::string text = FormattedNow("%x %X");
    return text.empty() || text[0] == '*' || text[0] == ' ' ? IsoDateTime() : text;
}

// Counted from the first call: waits are computed in 32-bit floats, which a machine's whole uptime
// would leave with steps of seconds.
double ClockSeconds() {
    static const auto start = std::chrono::steady_clock::now();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

constexpr const char* kCalibrationFile = "Calibrate.txt";
constexpr ScreenSize kUsualScreen{1600 * 15, 900 * 15};

} // namespace

HostServices DefaultHost() {
    return HostServices{
        .readFile = ReadWholeFile,
        .openForOutput = OpenFileSink,
        .besideProgram = [](const std::string& name) { return name; },
        .newestBesideProgram = [](const std::string& name) { return name; },
        .keptSessions = [](const std::string&) { return std::vector<std::string>{}; },
        .calibrationsToRead = [] { return std::vector<std::string>{kCalibrationFile}; },
        .calibrationToWrite = [] { return std::string(kCalibrationFile); },
        .localDateTime = LocalDateTime,
        .isoDateTime = IsoDateTime,
        .clockSeconds = ClockSeconds,
        .pause = [] { std::this_thread::sleep_for(std::chrono::milliseconds(1)); },
        .servePendingEvents = [] {},
        .screenSize = [] { return kUsualScreen; },
        .beep = [] {},
        .failureBox = [](const FailureReport&) {},
        .informationBox = [](const std::string&) {},
        .playSound = [](const std::string&) {},
    };
}

HostServices Host = DefaultHost();

void ReportFailure(const FailureReport& report) {
    Host.beep();
    Host.failureBox(report);
}

} // namespace vernacle
