#include "platform/toolbar.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QToolButton>

#include "platform/inkicon.h"

namespace vernacle {

namespace {

constexpr QSize kIconSize(24, 24);

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

} // namespace vernacle
