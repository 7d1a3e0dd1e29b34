#include "desktop/kit/updown.h"

#include <algorithm>

#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "engine/base/numbertext.h"

namespace vernacle {

namespace {

void StepBox(EntryBox& box, double step, const StepRange& range) {
    const double value = double{box.SteppedNumber()} + step;
    box.Write(PlainNumber(static_cast<float>(std::clamp(value, range.lowest, range.highest))));
}

} // namespace

UpDown::UpDown(const char* name, const QString& accessibleName, QWidget* parent) : QWidget(parent) {
    setObjectName(QLatin1String(name));
    setAccessibleName(accessibleName);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    const auto add = [&](const QString& arrowName, Qt::ArrowType type, auto step) {
        auto* arrow = new QToolButton(this);
        arrow->setObjectName(objectName() + arrowName);
        arrow->setAccessibleName(accessibleName + QLatin1Char(' ') + arrowName);
        arrow->setArrowType(type);
        arrow->setAutoRepeat(true);
        arrow->setFocusPolicy(Qt::NoFocus); // a box has the keys
        arrow->setFixedWidth(kWidth);
        arrow->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        connect(arrow, &QToolButton::clicked, this, step);
        column->addWidget(arrow);
    };
    add(QStringLiteral("Up"), Qt::UpArrow, [this] { Up(); });
    add(QStringLiteral("Down"), Qt::DownArrow, [this] { Down(); });
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void UpDown::AttachTo(EntryBox& box, const StepRange& range) {
    box.SetArrows(this);
    connect(this, &UpDown::Stepped, &box,
            [&box, range](int by) { StepBox(box, by * range.step, range); });
}

void UpDown::TakeKeys() {
    for (auto* arrow : findChildren<QToolButton*>()) {
        arrow->setFocusPolicy(Qt::StrongFocus);
    }
}

void UpDown::Up() {
    Q_EMIT Stepping();
    Q_EMIT Stepped(1);
}

void UpDown::Down() {
    Q_EMIT Stepping();
    Q_EMIT Stepped(-1);
}

} // namespace vernacle
