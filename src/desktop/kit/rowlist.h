// A list of rows in a font of one pitch, so that the columns of the rows stand below each other. It
// shows whole rows alone.
#pragma once

#include <QListWidget>

namespace vernacle {

class RowList : public QListWidget {
    Q_OBJECT

public:
    RowList(const char* name, const QString& accessibleName);

Q_SIGNALS:
    // The user chose the row of that index, by a click or a key; -1 for a click with no row under
    // it.
    void Chosen(int row);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* /*event*/) override {} // dragging chooses no other row
    void keyPressEvent(QKeyEvent* event) override;

private:
    int SelectedRow() const;
};

} // namespace vernacle
