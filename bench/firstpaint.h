// Ends the program once a window has been painted.
#pragma once

#include <QApplication>
#include <QEvent>

namespace vernacle::bench {

class EndAtFirstPaint : public QObject {
public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !painted_) {
            painted_ = true;
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection); // behind the paint
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool painted_ = false;
};

} // namespace vernacle::bench
