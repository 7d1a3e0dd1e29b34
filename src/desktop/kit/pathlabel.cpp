#include "desktop/kit/pathlabel.h"

#include <QPainter>
#include <QStyle>

namespace vernacle {

namespace {

constexpr int kPlacing = Qt::AlignLeft | Qt::AlignTop | Qt::TextWrapAnywhere;
constexpr int kFewestCharacters = 12;
constexpr int kAnyHeight = 1 << 15;

} // namespace

PathLabel::PathLabel(const char* name) {
    setObjectName(QLatin1String(name));
    setTextFormat(Qt::PlainText);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize PathLabel::minimumSizeHint() const {
    const int width = kFewestCharacters * fontMetrics().averageCharWidth();
    return {width, fontMetrics().height()};
}

int PathLabel::heightForWidth(int width) const {
    const QRect room(0, 0, width, kAnyHeight);
    return fontMetrics().boundingRect(room, kPlacing, text()).height();
}

void PathLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), kPlacing, palette(), isEnabled(), text(),
                          foregroundRole());
}

} // namespace vernacle
