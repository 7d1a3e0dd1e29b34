#include "desktop/kit/toolbar.h"

#include <QLayout>
#include <QStyleOptionFrame>
#include <QStylePainter>

#include "desktop/kit/inkicon.h"

namespace vernacle {

namespace {

constexpr QSize kIconSize(24, 24);
constexpr int kEdge = 3;                 // pixels, with the frame
constexpr double kSmallestLetters = 0.5; // of the ordinary font
constexpr double kLetterStep = 0.02;

} // namespace

Toolbar::Toolbar(const char* name, QWidget* parent) : QToolBar(parent) {
    setObjectName(QLatin1String(name));
    setMovable(false);
    setIconSize(kIconSize);
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    layout()->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
    layout()->setSpacing(2);
}

QAction* Toolbar::AddKey(const ToolbarKey& key, KeyState state) {
    QAction* action = addAction(InkIcon(key.icon), QString::fromUtf8(key.caption));
    action->setToolTip(QString::fromUtf8(key.tip));
    action->setShortcut(QKeySequence(QLatin1String(key.shortcut)));
    action->setEnabled(state == KeyState::Enabled);
    QWidget* button = widgetForAction(action);
    button->setObjectName(QLatin1String(key.key));
    button->setAccessibleName(QString::fromUtf8(key.caption));
    button->setToolTip(QString::fromUtf8(key.tip)); // an action without one tells its caption
    button->setFocusPolicy(Qt::TabFocus);
    return action;
}

QSize Toolbar::minimumSizeHint() const {
    return {0, sizeHint().height()};
}

void Toolbar::resizeEvent(QResizeEvent* event) {
    QToolBar::resizeEvent(event);
    double share = 1;
    SetKeyFont(share);
    while (layout()->sizeHint().width() > width() && share > kSmallestLetters) {
        share -= kLetterStep;
        SetKeyFont(share);
    }
}

void Toolbar::SetKeyFont(double share) {
    QFont letters = font();
    letters.setPointSizeF(letters.pointSizeF() * share);
    for (QAction* action : actions()) {
        widgetForAction(action)->setFont(letters);
    }
    layout()->invalidate();
}

// A frame around it, where the toolkit draws a line below it.
void Toolbar::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, this);
    frame.frameShape = QFrame::StyledPanel;
    QStylePainter(this).drawPrimitive(QStyle::PE_Frame, frame);
}

} // namespace vernacle
