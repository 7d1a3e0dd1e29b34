#include "desktop/app/endsignals.h"

#include <cstdlib>
#include <exception>

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>
#endif

#include "desktop/navigation/session.h"

namespace vernacle {

namespace {

// Nothing else of the program runs any more: a dialog that stands open would come back as cancelled
// to a routine that goes on, as one that saves the design does.
void EndAtOnce() {
    bool kept = false;
    try {
        kept = KeepSession();
    } catch (const std::exception&) { // no memory: the end comes all the same
    }
    std::_Exit(kept ? EXIT_SUCCESS : EXIT_FAILURE);
}

// What a session manager, or the desktop, sends to end the program.
class QuitWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == qApp && event->type() == QEvent::Quit) {
            EndAtOnce();
        }
        return QObject::eventFilter(watched, event);
    }
};

#ifdef Q_OS_UNIX

constexpr int kEndSignals[] = {SIGTERM, SIGINT, SIGHUP};

// A handler may do next to nothing: it writes a byte here, which the event loop finds.
int pipeEnds[2] = {-1, -1};

extern "C" void PassOn(int /*signal*/) {
    const int error = errno;
    const char byte = 0;
    static_cast<void>(!::write(pipeEnds[1], &byte, 1)); // a full pipe has said it already
    errno = error;
}

bool OpenPipe() {
    if (::pipe(pipeEnds) != 0) {
        return false;
    }
    for (const int end : pipeEnds) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return true;
}

void Handle(int signal) {
    struct sigaction action {};
    ::sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN) {
        return;
    }
    action = {};
    action.sa_handler = PassOn;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
}

void HandleSignals() {
    if (!OpenPipe()) {
        return; // they end the program as ever
    }
    auto* notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, EndAtOnce);
    for (const int signal : kEndSignals) {
        Handle(signal);
    }
}

#else

void HandleSignals() {}

#endif

} // namespace

// A session manager asks for the work to be kept at times when nothing ends; the end has its own
// word.
void KeepSessionAtTheSystemsEnd() {
    HandleSignals();
    qApp->installEventFilter(new QuitWatch(qApp));
    QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, qGuiApp,
                     [](QSessionManager& /*manager*/) { KeepSession(); });
}

} // namespace vernacle
