#include "desktop/system/desktophost.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

#include <QGuiApplication>
#include <QScreen>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

#include "desktop/system/messages.h"
#include "desktop/system/programfiles.h"
#include "desktop/system/sessionfiles.h"
#include "desktop/system/sound.h"
#include "desktop/system/spool.h"
#include "engine/base/hostservices.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/service.h"
#include "files/outputfile.h"

namespace vernacle {

namespace {

constexpr const char* kPrinterPort = "LPT1";

#ifdef Q_OS_UNIX
// A pipe that has a reader. While it is held it has a writer too, so that the reader sees no end.
class HeldPipe {
public:
    explicit HeldPipe(const std::string& name)
        : pipe_(::open(name.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)) {
        if (pipe_ < 0) {
            throw FileFailure(name + ": " + std::strerror(errno));
        }
    }
    ~HeldPipe() { ::close(pipe_); }
    HeldPipe(const HeldPipe&) = delete;
    HeldPipe& operator=(const HeldPipe&) = delete;

private:
    int pipe_;
};
#endif

// Opening a pipe that nobody reads would wait for ever.
std::unique_ptr<ByteSink> OpenFile(const std::string& name) {
#ifdef Q_OS_UNIX
    std::error_code ignored;
    if (std::filesystem::is_fifo(name, ignored)) {
        const HeldPipe held(name);
        return OpenFileSink(name);
    }
#endif
    return Service.carefulFiles ? OpenOutputFile(name, Flush::All) : OpenFileSink(name);
}

std::unique_ptr<ByteSink> Open(const std::string& name) {
    return name == kPrinterPort ? OpenPrinterPort() : OpenFile(name);
}

ScreenSize PrimaryScreen() {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {static_cast<float>(size.width() * kTwipsPerPixel),
            static_cast<float>(size.height() * kTwipsPerPixel)};
}

// What the user does during a wait is dealt with behind it.
void ServePendingEvents() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

HostServices DesktopHost() {
    HostServices host = DefaultHost();
    const auto files = std::make_shared<ProgramFiles>(SystemFolders());
    host.openForOutput = Open;
    host.besideProgram = [files](const std::string& name) { return files->PathOf(name); };
    host.newestBesideProgram = [files](const std::string& name) { return files->NewestOf(name); };
    if (Service.carefulFiles) {
        const auto sessions = std::make_shared<SessionFiles>(SystemFolders().userData);
        host.besideProgram = [sessions](const std::string& name) { return sessions->PathOf(name); };
        host.newestBesideProgram = [sessions](const std::string& name) {
            return sessions->Newest(name);
        };
        host.keptSessions = [sessions](const std::string& name) {
            return sessions->NewestFirst(name);
        };
    }
    host.calibrationsToRead = [files] { return files->Calibrations(); };
    host.calibrationToWrite = [files] { return files->Calibration(); };
    host.servePendingEvents = ServePendingEvents;
    host.screenSize = PrimaryScreen;
    host.beep = Beep;
    host.failureBox = ShowFailure;
    host.informationBox = ShowInformation;
    host.playSound = PlaySound;
    return host;
}

} // namespace vernacle
