#include "desktop/correction/curvehandle.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace vernacle {

namespace {

constexpr int kSize = 13; // pixels
constexpr QColor kInk(0x99, 0x11, 0x11);
constexpr QColor kFixedInk(0x60, 0x60, 0x60);

} // namespace

CurveHandle::CurveHandle(const char* name, const QString& accessibleName, QWidget* parent)
    : QWidget(parent) {
    setObjectName(QLatin1String(name));
    setAccessibleName(accessibleName);
    setFixedSize(kSize, kSize);
}

void CurveHandle::SetMovable() {
    movable_ = true;
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SizeAllCursor);
    setToolTip(QStringLiteral("Drag it, or move it with the arrow keys"));
}

void CurveHandle::mousePressEvent(QMouseEvent* event) {
    if (!movable_ || event->button() != Qt::LeftButton) {
        return;
    }
    dragged_ = true;
    home_ = pos();
    raise();
    setFocus(); // for the key that ends the drag
    Q_EMIT Pressed();
}

void CurveHandle::mouseMoveEvent(QMouseEvent* event) {
    if (dragged_) {
        move(mapToParent(event->pos()) - rect().center());
    }
}

// One that is let go where it stood was pressed only.
void CurveHandle::mouseReleaseEvent(QMouseEvent* event) {
    if (!dragged_ || event->button() != Qt::LeftButton) {
        return;
    }
    dragged_ = false;
    const QPoint at = mapToParent(event->pos());
    if (QRect(home_, size()).contains(at)) {
        TakeBack();
        Q_EMIT Pressed();
    } else {
        Q_EMIT Dropped(at);
    }
}

void CurveHandle::keyPressEvent(QKeyEvent* event) {
    if (dragged_ && event->matches(QKeySequence::Cancel)) {
        dragged_ = false;
        TakeBack();
        return;
    }
    const int across = (event->key() == Qt::Key_Right ? 1 : 0) - (event->key() == Qt::Key_Left);
    const int up = (event->key() == Qt::Key_Up ? 1 : 0) - (event->key() == Qt::Key_Down);
    if (!movable_ || (across == 0 && up == 0)) {
        QWidget::keyPressEvent(event);
        return;
    }
    Q_EMIT Pressed();
    Q_EMIT Stepped(across, up);
}

void CurveHandle::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(hasFocus() ? Qt::black : Qt::white, hasFocus() ? 2 : 1));
    painter.setBrush(movable_ ? kInk : kFixedInk);
    painter.drawEllipse(rect().adjusted(2, 2, -2, -2));
}

} // namespace vernacle
