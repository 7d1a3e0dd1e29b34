#include "desktop/app/application.h"

#include <exception>

#include <QDialog>
#include <QIcon>
#include <QTimer>

#include "desktop/navigation/navigator.h"
#include "desktop/navigation/session.h"
#include "desktop/system/messages.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr int kFocusCheckMs = 300;

// A window manager that still deals with a dialog that went may give the keys to no window: then
// they are asked for, for what stands uppermost now.
void AskForKeys() {
    QWidget* uppermost = QApplication::activeModalWidget();
    uppermost = uppermost ? uppermost : CurrentPage();
    const QWidget* active = QApplication::activeWindow();
    const bool free = !active || active == uppermost; // the toolkit's belief may be old
    if (free && uppermost && uppermost->isVisible()) {
        uppermost->activateWindow();
    }
}

// What failed may fail again.
void KeepWhatCanBe() {
    if (!Service.carefulFiles) {
        return;
    }
    try {
        KeepSession();
    } catch (const std::exception&) {
        // The box tells of the failure that came before.
    }
}

} // namespace

Application::Application(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Vernacle"));
    setApplicationDisplayName(QString());
    const QString name = QLatin1String(Service.carefulFiles ? "vernacle-workshop" : "vernacle");
    setDesktopFileName(name);
    setWindowIcon(QIcon(QStringLiteral(":/icons/%1.svg").arg(name)));
    setQuitOnLastWindowClosed(false); // pages come and go; the process ends where it is told to
}

bool Application::notify(QObject* receiver, QEvent* event) {
    try {
        if (event->type() == QEvent::Hide && qobject_cast<QDialog*>(receiver)) {
            QTimer::singleShot(kFocusCheckMs, this, AskForKeys);
        }
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
            KeepWhatCanBe();
            ShowRunTimeError(failure);
            exit(kRunTimeErrorStatus);
        },
        Qt::QueuedConnection);
}

} // namespace vernacle
