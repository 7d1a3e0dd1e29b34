#include "desktop/system/patience.h"

#include <QApplication>
#include <QProgressDialog>

namespace vernacle {

namespace {

constexpr int kUnnoticedMs = 1000; // a wait that is over by then needs no window

} // namespace

Patience::Patience(const QString& waitingFor)
    : box_(std::make_unique<QProgressDialog>(waitingFor, QStringLiteral("Cancel"), 0, 0,
                                             QApplication::activeWindow())) {
    box_->setObjectName(QStringLiteral("boxWaiting"));
    box_->setWindowTitle(QStringLiteral("Vernacle"));
    box_->setWindowModality(Qt::ApplicationModal);
    box_->reset(); // it would show itself, at a time of its own
    since_.start();
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

Patience::~Patience() {
    QApplication::restoreOverrideCursor();
}

// Until the modal window stands before the pages, what the user does waits as it would for any
// routine that is under way.
bool Patience::Turn() {
    if (!box_->isVisible() && !box_->wasCanceled() && since_.hasExpired(kUnnoticedMs)) {
        box_->show();
    }
    QCoreApplication::processEvents(box_->isVisible() ? QEventLoop::AllEvents
                                                      : QEventLoop::ExcludeUserInputEvents);
    return !box_->wasCanceled();
}

} // namespace vernacle
