#include "desktop/system/spool.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <csignal>
#include <optional>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#endif

#include "desktop/system/patience.h"
#include "desktop/system/spooler.h"
#include "engine/base/runtimeerror.h"

namespace vernacle {

namespace {

using std::chrono::milliseconds;

#ifdef Q_OS_UNIX

using Clock = std::chrono::steady_clock;

constexpr int kPollMs = 50;
constexpr milliseconds kPause{5};
constexpr int kOpening = O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

// Never blocks: a printer that is switched off or out of paper would hold the program for ever.
class DeviceSink : public ByteSink {
public:
    DeviceSink(std::string path, milliseconds limit)
        : path_(std::move(path)), limit_(limit), device_(::open(path_.c_str(), kOpening)) {
        if (device_ < 0) {
            Fail();
        }
        // A reader that goes away is then a failure of the write, not the end of the program.
        std::signal(SIGPIPE, SIG_IGN);
    }
    ~DeviceSink() override {
        if (device_ >= 0) {
            ::close(device_);
        }
    }
    DeviceSink(const DeviceSink&) = delete;
    DeviceSink& operator=(const DeviceSink&) = delete;

    void Write(std::string_view bytes) override {
        Clock::time_point deadline = Clock::now() + limit_;
        while (!bytes.empty()) {
            const std::size_t taken = WriteSome(bytes);
            if (taken > 0) {
                bytes.remove_prefix(taken);
                deadline = Clock::now() + limit_;
            } else if (Clock::now() < deadline) {
                WaitForRoom();
            } else {
                throw FileFailure(path_ + ": the printer takes no data");
            }
        }
    }

    void Close() override {
        if (::close(std::exchange(device_, -1)) != 0) {
            Fail();
        }
    }

private:
    [[noreturn]] void Fail() const { throw FileFailure(path_ + ": " + std::strerror(errno)); }

    // How many bytes the device took; 0 if it is busy.
    std::size_t WriteSome(std::string_view bytes) const {
        const ssize_t taken = ::write(device_, bytes.data(), bytes.size());
        if (taken >= 0) {
            return static_cast<std::size_t>(taken);
        }
        if (errno != EAGAIN && errno != EINTR) {
            Fail();
        }
        return 0;
    }

    void WaitForRoom() {
        if (!patience_) {
            patience_.emplace(QStringLiteral("Waiting for the printer ..."));
        }
        if (!patience_->Turn()) {
            throw FileFailure(path_ + ": cancelled");
        }
        pollfd device{.fd = device_, .events = POLLOUT, .revents = 0};
        if (::poll(&device, 1, kPollMs) > 0) {
            std::this_thread::sleep_for(kPause); // the port's driver always calls itself ready
        }
    }

    std::string path_;
    milliseconds limit_;
    int device_;
    std::optional<Patience> patience_; // once it was found busy
};

bool CanOpen(const std::string& device) {
    const int opened = ::open(device.c_str(), kOpening);
    if (opened >= 0) {
        ::close(opened);
    }
    return opened >= 0;
}

std::unique_ptr<ByteSink> OpenDevice(const PrinterPort& port) {
    return std::make_unique<DeviceSink>(port.device, port.limit);
}

#else

bool CanOpen(const std::string& /*device*/) {
    return true;
}

std::unique_ptr<ByteSink> OpenDevice(const PrinterPort& port) {
    return OpenFileSink(port.device);
}

#endif

std::vector<std::string> RawJob(const PrintTarget& target) {
    std::vector<std::string> arguments = {"-o", "raw", "-s"};
    if (!target.title.empty()) {
        arguments.insert(arguments.end(), {"-t", target.title});
    }
    if (!target.queue.empty()) {
        arguments.insert(arguments.end(), {"-d", target.queue});
    }
    return arguments;
}

// A job is sent whole, or, without Close, not at all.
class JobSink : public ByteSink {
public:
    explicit JobSink(const PrinterPort& port)
        : job_{port.program, RawJob(port.target), port.jobLimit} {
        if (!port.target.failure.empty()) {
            throw FileFailure(port.target.failure);
        }
        if (FindProgram(port.program).empty()) {
            throw FileFailure(port.program + ": not found");
        }
    }

    void Write(std::string_view bytes) override { bytes_.append(bytes); }
    void Close() override { SendJob(job_, bytes_); }

private:
    SpoolJob job_;
    std::string bytes_;
};

PrintTarget& CurrentTarget() {
    static PrintTarget target;
    return target;
}

} // namespace

PrintTargetUse::PrintTargetUse(PrintTarget target) {
    CurrentTarget() = std::move(target);
}

PrintTargetUse::~PrintTargetUse() {
    CurrentTarget() = {};
}

PrinterPort UsualPort() {
    PrinterPort port;
    port.target = CurrentTarget();
    return port;
}

bool HasDevice(const PrinterPort& port) {
    return CanOpen(port.device);
}

std::unique_ptr<ByteSink> OpenPrinterPort(const PrinterPort& port) {
    std::string failure;
    try {
        return OpenDevice(port);
    } catch (const FileFailure& noDevice) {
        failure = noDevice.what();
    }
    try {
        return std::make_unique<JobSink>(port);
    } catch (const FileFailure& noProgram) {
        throw FileFailure(failure + "; " + noProgram.what());
    }
}

} // namespace vernacle
