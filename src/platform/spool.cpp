#include "platform/spool.h"

#include <cerrno>
#include <cstring>
#include <utility>

#include <QProcess>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#endif

#include "core/runtimeerror.h"

namespace vernacle {

namespace {

using std::chrono::milliseconds;

#ifdef Q_OS_UNIX

using Clock = std::chrono::steady_clock;

constexpr int kPollMs = 50;
constexpr milliseconds kPause{5};

// Never blocks: a printer that is switched off or out of paper would hold the program for ever.
class DeviceSink : public ByteSink {
public:
    DeviceSink(std::string path, milliseconds limit)
        : path_(std::move(path)),
          limit_(limit),
          device_(::open(path_.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {
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

    void WaitForRoom() const {
        pollfd device{.fd = device_, .events = POLLOUT, .revents = 0};
        if (::poll(&device, 1, kPollMs) > 0) {
            std::this_thread::sleep_for(kPause); // the port's driver always calls itself ready
        }
    }

    std::string path_;
    milliseconds limit_;
    int device_;
};

std::unique_ptr<ByteSink> OpenDevice(const PrinterPort& port) {
    return std::make_unique<DeviceSink>(port.device, port.limit);
}

#else

std::unique_ptr<ByteSink> OpenDevice(const PrinterPort& port) {
    return OpenFileSink(port.device);
}

#endif

// A job is sent whole, or, without Close, not at all.
class JobSink : public ByteSink {
public:
    explicit JobSink(const PrinterPort& port)
        : name_(port.program),
          program_(QStandardPaths::findExecutable(QString::fromStdString(port.program))),
          limitMs_(static_cast<int>(port.limit.count())) {
        if (program_.isEmpty()) {
            throw FileFailure(name_ + ": not found");
        }
        for (const std::string& argument : port.arguments) {
            arguments_ << QString::fromStdString(argument);
        }
    }

    void Write(std::string_view bytes) override { bytes_.append(bytes); }

    void Close() override {
        QProcess job;
        job.setStandardOutputFile(QProcess::nullDevice());
        job.start(program_, arguments_);
        job.write(bytes_.data(), static_cast<qint64>(bytes_.size()));
        job.closeWriteChannel();
        const bool ended = job.waitForFinished(limitMs_);
        const std::string failure = ended ? FailureOf(job) : job.errorString().toStdString();
        if (!ended) {
            job.kill();
            job.waitForFinished(limitMs_);
        }
        if (!failure.empty()) {
            throw FileFailure(name_ + ": " + failure);
        }
    }

private:
    // Why a job that ended was not queued; empty if it was.
    static std::string FailureOf(QProcess& job) {
        const QByteArray said = job.readAllStandardError().trimmed();
        if (job.exitStatus() == QProcess::NormalExit && job.exitCode() != 0) {
            return said.isEmpty() ? "exit status " + std::to_string(job.exitCode())
                                  : QString::fromLocal8Bit(said).toStdString();
        }
        // It may also have ended well without reading the whole job.
        return job.error() == QProcess::UnknownError ? "" : job.errorString().toStdString();
    }

    std::string name_;
    QString program_;
    QStringList arguments_;
    int limitMs_;
    std::string bytes_;
};

} // namespace

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
