#include "platform/host.h"

#include <QGuiApplication>
#include <QScreen>

#include "platform/messages.h"
#include "platform/programfiles.h"
#include "platform/sound.h"
#include "platform/spool.h"

namespace vernacle {

namespace {

constexpr float kTwipsPerPixel = 15;
constexpr const char* kPrinterPort = "LPT1";

std::unique_ptr<ByteSink> Open(const std::string& name) {
    return name == kPrinterPort ? OpenPrinterPort() : OpenFileSink(FileFor(name));
}

ScreenSize PrimaryScreen() {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {static_cast<float>(size.width()) * kTwipsPerPixel,
            static_cast<float>(size.height()) * kTwipsPerPixel};
}

// What the user does during a wait is dealt with behind it.
void ServePendingEvents() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

HostSeam DesktopHost() {
    HostSeam host = DefaultHost();
    host.readFile = [](const std::string& name) { return ReadWholeFile(FileFor(name)); };
    host.openForOutput = Open;
    host.besideProgram = ProgramFile;
    host.servePendingEvents = ServePendingEvents;
    host.screenSize = PrimaryScreen;
    host.beep = Beep;
    host.failureBox = ShowFailure;
    host.informationBox = ShowInformation;
    host.playSound = PlaySound;
    return host;
}

} // namespace vernacle
