#include "platform/rowlist.h"

#include <QFontDatabase>
#include <QMouseEvent>

namespace vernacle {

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
}

void RowList::mousePressEvent(QMouseEvent* event) {
    QListWidget::mousePressEvent(event);
    const int row = indexAt(event->pos()).row();
    setCurrentRow(row);
    Chosen(row);
}

void RowList::keyPressEvent(QKeyEvent* event) {
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    if (currentRow() != before) {
        Chosen(currentRow());
    }
}

void RowList::Chosen(int row) {
    if (handler_) {
        handler_(row);
    }
}

} // namespace vernacle
