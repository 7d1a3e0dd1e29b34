// A handle of the correction plot: dragged with the mouse, which Escape takes back, or moved in
// small steps by the arrow keys.
#pragma once

#include <QWidget>

namespace vernacle {

class CurveHandle : public QWidget {
    Q_OBJECT

public:
    CurveHandle(const char* name, const QString& accessibleName, QWidget* parent);

    // Lets it be dragged; without it the handle only marks its point.
    void SetMovable();

    // Puts it back to where it stood when it was pressed.
    void TakeBack() { move(home_); }

Q_SIGNALS:
    void Pressed();
    void Dropped(QPoint at);          // where the pointer stands, after a drag; in its parent
    void Stepped(int across, int up); // by a key, one step each

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool movable_ = false;
    bool dragged_ = false;
    QPoint home_;
};

} // namespace vernacle
