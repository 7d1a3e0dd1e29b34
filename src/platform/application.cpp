#include "platform/application.h"

#include <exception>

#include <QIcon>

#include "platform/messages.h"

namespace vernacle {

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Vernacle"));
    setApplicationDisplayName(QString());
    setDesktopFileName(QStringLiteral("vernacle"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/vernacle.svg")));
    setQuitOnLastWindowClosed(false); // pages come and go; the process ends where it is told to
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        EndWith(failure.what());
    }
    return true;
}

// The box is queued: one that opened inside a paint event would paint again, and fail again.
void Application::EndWith(const std::string& failure) {
    if (ending_) {
        return;
    }
    ending_ = true;
    QMetaObject::invokeMethod(
        this,
        [failure] {
            ShowRunTimeError(failure);
            exit(kRunTimeErrorStatus);
        },
        Qt::QueuedConnection);
}

} // namespace vernacle
