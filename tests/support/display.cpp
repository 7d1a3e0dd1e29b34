#include "support/display.h"

#include <chrono>
#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/process.h"

namespace vernacle::test {

namespace {

using Clock = std::chrono::steady_clock;

constexpr double kWindowPatience = 20; // seconds for a window, or for a display
constexpr double kEndPatience = 5;     // for a program that is told to end
constexpr const char* kToolPatience = "20";
constexpr const char* kScreen = "1280x800x24";
constexpr int kFirstDisplay = 90;
constexpr int kLastDisplay = 190;
constexpr auto kManagerStart = std::chrono::milliseconds(300);
constexpr auto kRest = std::chrono::milliseconds(600);
constexpr auto kWindowTurn = std::chrono::milliseconds(50);

// Whether it came true within that time.
template <typename Condition>
bool WaitUntil(const Condition& condition, double seconds) {
    const auto end = Clock::now() + std::chrono::duration<double>(seconds);
    while (!condition()) {
        if (Clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(kWindowTurn);
    }
    return true;
}

bool IsInstalled(const char* program) {
    return RunProgram("which", {program}).status == EXIT_SUCCESS;
}

} // namespace

BackgroundProgram::BackgroundProgram(const std::vector<std::string>& words,
                                     const std::vector<std::string>& environment) {
    std::vector<std::string> command = {"env"};
    command.insert(command.end(), environment.begin(), environment.end());
    command.insert(command.end(), words.begin(), words.end());
    std::vector<char*> argv;
    for (std::string& word : command) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    process_ = fork();
    if (process_ < 0) {
        throw std::runtime_error("no process");
    }
    if (process_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGTERM); // nor does it outlive a test that ends by a signal
        const int nowhere = open("/dev/null", O_RDWR);
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        execvp("env", argv.data());
        _exit(127);
    }
}

BackgroundProgram::~BackgroundProgram() {
    if (IsRunning()) {
        kill(process_, SIGTERM); // a display takes its lock away with it
        if (!Wait(kEndPatience)) {
            kill(process_, SIGKILL);
            waitpid(process_, nullptr, 0);
        }
    }
}

bool BackgroundProgram::IsRunning() {
    int ending = 0;
    if (!status_ && waitpid(process_, &ending, WNOHANG) == process_) {
        status_ = WIFEXITED(ending) ? WEXITSTATUS(ending) : -WTERMSIG(ending);
    }
    return !status_;
}

void BackgroundProgram::Send(int signal) const {
    kill(process_, signal);
}

std::optional<int> BackgroundProgram::Wait(double seconds) {
    WaitUntil([this] { return !IsRunning(); }, seconds);
    return status_;
}

std::string Display::Missing() {
    std::string missing;
    for (const char* program : {"Xvfb", "openbox", "xdotool", "timeout"}) {
        missing += IsInstalled(program) ? "" : std::string(" ") + program;
    }
    return missing;
}

// A number that another server has taken makes this one end at once.
Display::Display() {
    for (int number = kFirstDisplay; number <= kLastDisplay; ++number) {
        if (std::filesystem::exists("/tmp/.X" + std::to_string(number) + "-lock")) {
            continue;
        }
        name_ = ":" + std::to_string(number);
        server_ = std::make_unique<BackgroundProgram>(
            std::vector<std::string>{"Xvfb", name_, "-screen", "0", kScreen, "-nolisten", "tcp"},
            std::vector<std::string>{});
        const bool ready = WaitUntil(
            [this] { return !server_->IsRunning() || !Tool({"getdisplaygeometry"}).empty(); },
            kWindowPatience);
        if (ready && server_->IsRunning()) {
            manager_ = std::make_unique<BackgroundProgram>(std::vector<std::string>{"openbox"},
                                                           Environment());
            // A window that is there before its manager gets no focus; the manager holds it first.
            WaitUntil([this] { return FocusedTitle() == "Openbox"; }, kWindowPatience);
            std::this_thread::sleep_for(kManagerStart);
            return;
        }
    }
    throw std::runtime_error("no display came up");
}

std::vector<std::string> Display::Environment() const {
    return {"DISPLAY=" + name_, "QT_QPA_PLATFORM=xcb"};
}

std::string Display::Tool(const std::vector<std::string>& words) const {
    std::vector<std::string> command = {kToolPatience, "xdotool"};
    command.insert(command.end(), words.begin(), words.end());
    ProcessSetting setting;
    setting.environment = Environment();
    return RunProgram("timeout", command, setting).out;
}

std::string Display::FocusedTitle() const {
    std::string title = Tool({"getwindowfocus", "getwindowname"});
    while (!title.empty() && title.back() == '\n') {
        title.pop_back();
    }
    return title;
}

bool Display::WaitForWindow(const std::string& title) const {
    return WaitUntil([&] { return FocusedTitle() == title; }, kWindowPatience);
}

void Display::Press(const std::string& keys, int times) const {
    for (int time = 0; time < times; ++time) {
        Tool({"key", "--clearmodifiers", keys});
    }
}

void Display::Rest() {
    std::this_thread::sleep_for(kRest);
}

void Display::Type(const std::string& text) const {
    Tool({"type", "--delay", "20", "--", text});
}

} // namespace vernacle::test
