#include "desktop/kit/formkit.h"

#include <QKeyEvent>

namespace vernacle {

namespace {

constexpr double kHeadingSize = 1.4; // of the ordinary font

// Enter presses it where it has the focus, and nowhere else: Enter in a box is no press.
class Button : public QPushButton {
public:
    explicit Button(const QString& caption) : QPushButton(caption) { setAutoDefault(false); }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
        } else {
            QPushButton::keyPressEvent(event);
        }
    }
};

} // namespace

QLabel* MakeLabel(const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* MakeButton(const char* name, const QString& caption, const QString& tip) {
    auto* button = new Button(caption);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(caption);
    button->setToolTip(tip);
    return button;
}

QPushButton* MakeHelpButton(const char* name, const QString& illustrates) {
    QPushButton* button = MakeButton(name, QStringLiteral("H"));
    button->setAccessibleName(QStringLiteral("H: ") + illustrates);
    button->setFixedWidth(button->fontMetrics().horizontalAdvance(QLatin1Char('H')) * 3);
    return button;
}

QGroupBox* MakeFrame(const char* name, const QString& title) {
    auto* frame = new QGroupBox(title);
    frame->setObjectName(QLatin1String(name));
    frame->setAccessibleName(title);
    return frame;
}

QLabel* MakeHeading(const char* name, const QString& text) {
    QLabel* heading = MakeLabel(name, text);
    QFont font = heading->font();
    font.setPointSizeF(font.pointSizeF() * kHeadingSize);
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

} // namespace vernacle
