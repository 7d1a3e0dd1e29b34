#include "desktop/kit/rowlist.h"

#include <algorithm>
#include <iterator>

#include <QFontDatabase>
#include <QMouseEvent>
#include <QScrollBar>

namespace vernacle {

namespace {

constexpr int kMoves[] = {Qt::Key_Up,   Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                          Qt::Key_Home, Qt::Key_End,  Qt::Key_Space};

} // namespace

RowList::RowList(const char* name, const QString& accessibleName) {
    setObjectName(QLatin1String(name));
    setAccessibleName(accessibleName);
    setUniformItemSizes(true); // or each of many rows would be measured
    QFont font(QStringLiteral("Courier"));
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    if (!QFontInfo(font).fixedPitch()) {
        font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    }
    setFont(font);
    setAutoFillBackground(true); // also below the last row
    setBackgroundRole(QPalette::Base);
}

void RowList::resizeEvent(QResizeEvent* event) {
    QListWidget::resizeEvent(event);
    const int row = count() > 0 ? sizeHintForRow(0) : 0;
    const int bar = horizontalScrollBar()->isVisible() ? horizontalScrollBar()->height() : 0;
    const int room = contentsRect().height() - bar;
    const QMargins below(0, 0, 0, row > 0 && room > row ? room % row : 0);
    if (below != viewportMargins()) {
        setViewportMargins(below);
    }
}

void RowList::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
    QListWidget::mousePressEvent(event);
    const int row = indexAt(event->pos()).row();
    setCurrentRow(row);
    Q_EMIT Chosen(row);
}

// The row that a key leads to is chosen, also the one at which the list stands before any was.
void RowList::keyPressEvent(QKeyEvent* event) {
    const int before = SelectedRow();
    QListWidget::keyPressEvent(event);
    if (std::find(std::begin(kMoves), std::end(kMoves), event->key()) != std::end(kMoves)) {
        setCurrentRow(currentRow());
    }
    if (SelectedRow() != before) {
        Q_EMIT Chosen(SelectedRow());
    }
}

int RowList::SelectedRow() const {
    return selectedItems().isEmpty() ? -1 : currentRow();
}

} // namespace vernacle
