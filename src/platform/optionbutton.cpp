#include "platform/optionbutton.h"

namespace vernacle {

std::string OptionName(int number) {
    return "Option" + std::to_string(number);
}

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
    QPalette colours = palette();
    colours.setColor(QPalette::Active, QPalette::WindowText, colour); // faded while it is disabled
    colours.setColor(QPalette::Inactive, QPalette::WindowText, colour);
    setPalette(colours);
}

void OptionButton::SetGround(const QColor& colour) {
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, colour);
    setPalette(colours);
}

} // namespace vernacle
