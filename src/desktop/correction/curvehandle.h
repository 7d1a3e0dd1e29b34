// A handle of the correction plot: dragged with the mouse, which Escape takes back, or moved in
// small steps by the arrow keys.
#pragma once

#include <functional>

#include <QWidget>

namespace vernacle {

enum class DropResult { Taken, Refused };

// What a handle tells its page. Places are in the coordinates of its parent.
struct HandleEvents {
    std::function<void()> pressed;
    std::function<DropResult(QPoint at)> released;   // where the pointer stands, after a drag
    std::function<void(int across, int up)> stepped; // by a key, one step each
};

class CurveHandle : public QWidget {
    Q_OBJECT

public:
    CurveHandle(const char* name, const QString& accessibleName, QWidget* parent);

    // Lets it be dragged; without it the handle only marks its point.
    void SetEvents(HandleEvents events);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    HandleEvents events_;
    bool movable_ = false;
    bool dragged_ = false;
    QPoint home_; // where it stood when it was pressed
};

} // namespace vernacle
