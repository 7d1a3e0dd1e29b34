#include "desktop/kit/toolbar.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QToolButton>

#include "desktop/kit/inkicon.h"

namespace vernacle {

namespace {

constexpr QSize kIconSize(24, 24);
constexpr double kSmallestLetters = 0.5; // of the ordinary font
constexpr double kLetterStep = 0.02;

} // namespace

Toolbar::Toolbar(const char* name, QWidget* parent) : QFrame(parent) {
    setObjectName(QLatin1String(name));
    setFrameShape(QFrame::StyledPanel);
    row_ = new QHBoxLayout(this);
    row_->setContentsMargins(4, 2, 4, 2);
    row_->setSpacing(2);
    row_->addStretch();
}

void Toolbar::AddKey(const ToolbarKey& key, KeyState state, std::function<void()> clicked) {
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(key.key));
    button->setAccessibleName(QString::fromUtf8(key.caption));
    button->setText(QString::fromUtf8(key.caption));
    button->setToolTip(QString::fromUtf8(key.tip));
    button->setIcon(InkIcon(key.icon));
    button->setIconSize(kIconSize);
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setEnabled(state == KeyState::Enabled);
    connect(button, &QToolButton::clicked, this, std::move(clicked));
    if (*key.shortcut != '\0') {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(key.shortcut)), this);
        connect(shortcut, &QShortcut::activated, button, [button] { button->click(); });
    }
    row_->insertWidget(row_->count() - 1, button);
}

QSize Toolbar::minimumSizeHint() const {
    const QSize least = QFrame::minimumSizeHint();
    return {0, least.height()};
}

void Toolbar::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    double share = 1;
    SetKeyFont(share);
    while (row_->totalMinimumSize().width() > width() && share > kSmallestLetters) {
        share -= kLetterStep;
        SetKeyFont(share);
    }
}

void Toolbar::SetKeyFont(double share) {
    QFont letters = font();
    letters.setPointSizeF(letters.pointSizeF() * share);
    for (auto* key : findChildren<QToolButton*>()) {
        key->setFont(letters);
    }
    row_->invalidate();
}

} // namespace vernacle
