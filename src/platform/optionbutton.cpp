#include "platform/optionbutton.h"

namespace vernacle {

OptionButton::OptionButton(const char* name, const QString& caption, QWidget* parent)
    : QRadioButton(caption, parent) {
    setObjectName(QLatin1String(name));
    setAccessibleName(caption);
    setBackgroundRole(QPalette::Window); // buttons stand on their own role else
    connect(this, &QRadioButton::clicked, this, [this] { handler_(); });
}

void OptionButton::Select() {
    setChecked(true);
    handler_();
}

void OptionButton::Unselect() {
    setAutoExclusive(false); // an exclusive group does not let go of its last
    setChecked(false);
    setAutoExclusive(true);
}

void OptionButton::SetInk(const QColor& colour) {
    SetColour(QPalette::WindowText, colour);
}

void OptionButton::SetGround(const QColor& colour) {
    setAutoFillBackground(true);
    SetColour(QPalette::Window, colour);
}

void OptionButton::SetColour(QPalette::ColorRole role, const QColor& colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Active, role, colour);
    colours.setColor(QPalette::Inactive, role, colour);
    setPalette(colours);
}

} // namespace vernacle
