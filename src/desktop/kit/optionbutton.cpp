#include "desktop/kit/optionbutton.h"

#include <algorithm>
#include <cmath>

namespace vernacle {

namespace {

constexpr double kVisible = 1.6;  // below that a letter is lost on its ground
constexpr double kReadable = 4.5; // contrast that small text wants, of at most 21

// As the eye weighs the three lights, 0 to 1.
double Luminance(const QColor& colour) {
    const auto linear = [](float part) {
        const double share = double{part};
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace

std::string OptionName(int number) {
    return "Option" + std::to_string(number);
}

OptionButton::OptionButton(const char* name, const QString& caption, QWidget* parent)
    : QRadioButton(caption, parent) {
    setObjectName(QLatin1String(name));
    setAccessibleName(caption);
    setBackgroundRole(QPalette::Window); // buttons stand on their own role else
    connect(this, &QRadioButton::clicked, this, &OptionButton::Selected);
}

void OptionButton::Select() {
    setChecked(true);
    Q_EMIT Selected();
}

void OptionButton::Unselect() {
    setAutoExclusive(false); // an exclusive group does not let go of its last
    setChecked(false);
    setAutoExclusive(true);
}

void OptionButton::SetInk(const QColor& colour) {
    ink_ = colour;
    const QColor ink = VisibleInk();
    QPalette colours = palette();
    colours.setColor(QPalette::Active, QPalette::WindowText, ink); // faded while it is disabled
    colours.setColor(QPalette::Inactive, QPalette::WindowText, ink);
    setPalette(colours);
    if (!groundIsGiven_) {
        SetReadableGround(colour);
    }
}

// On black or on white every colour reads.
void OptionButton::SetReadableGround(const QColor& ink) {
    const QColor paper = parentWidget() ? parentWidget()->palette().color(QPalette::Window)
                                        : QPalette().color(QPalette::Window);
    QColor ground = paper;
    if (Contrast(ink, paper) < kReadable) {
        ground = Contrast(ink, Qt::black) < kReadable ? Qt::white : Qt::black;
    }
    QPalette colours = palette();
    colours.setColor(QPalette::Window, paper);
    colours.setColor(QPalette::Active, QPalette::Window, ground);
    colours.setColor(QPalette::Inactive, QPalette::Window, ground);
    setPalette(colours);
    setAutoFillBackground(true);
}

void OptionButton::SetGround(const QColor& colour) {
    groundIsGiven_ = true;
    setAutoFillBackground(true);
    QPalette colours = palette();
    colours.setColor(QPalette::Window, colour);
    setPalette(colours);
    if (keepsVisible_ && ink_.isValid()) {
        SetInk(ink_);
    }
}

QColor OptionButton::VisibleInk() const {
    const QColor ground = palette().color(QPalette::Window);
    if (!keepsVisible_ || !groundIsGiven_ || Contrast(ink_, ground) >= kVisible) {
        return ink_;
    }
    return Contrast(Qt::black, ground) < Contrast(Qt::white, ground) ? Qt::white : Qt::black;
}

} // namespace vernacle
