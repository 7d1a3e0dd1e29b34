// The row of keys at the top of a page: an icon with its caption below, a tip, a shortcut.
#pragma once

#include <QToolBar>

namespace vernacle {

struct ToolbarKey {
    const char* key;
    const char* caption;
    const char* tip; // empty for none
    const char* icon;
    const char* shortcut; // empty for none
};

enum class KeyState { Enabled, Greyed };

// Where a window is too narrow for it, its letters are smaller.
class Toolbar : public QToolBar {
    Q_OBJECT

public:
    explicit Toolbar(const char* name, QWidget* parent = nullptr);

    // Adds a key behind those before it, and gives what it does; its button's object name is the
    // key.
    QAction* AddKey(const ToolbarKey& key, KeyState state);

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void SetKeyFont(double share);
};

} // namespace vernacle
