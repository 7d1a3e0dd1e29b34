#include "desktop/pages/numberframe.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr int kMostPerLine = 6; // options; more would widen the column at the plate's cost
constexpr QColor kPaper(0xF4, 0xF4, 0xF4);
constexpr QColor kFadedInk(0x90, 0x90, 0x90);

// Paper and ink, whatever the desktop's colours are.
QPalette PaperPalette() {
    QPalette colours;
    colours.setColor(QPalette::Window, kPaper);
    colours.setColor(QPalette::WindowText, Qt::black);
    colours.setColor(QPalette::Base, Qt::white); // the options' marks
    colours.setColor(QPalette::Text, Qt::black);
    colours.setColor(QPalette::Disabled, QPalette::WindowText, kFadedInk);
    return colours;
}

} // namespace

NumberFrame MakeNumberFrame(const NumberFrameTraits& traits, std::function<void(int)> selected) {
    NumberFrame made;
    made.frame = MakeFrame(traits.frame, QStringLiteral("Edit"));
    made.frame->setToolTip(QStringLiteral("Select the scale to edit"));
    made.label = MakeLabel(traits.label, QString::fromUtf8(traits.labelText));
    auto* line = new QHBoxLayout(made.frame);
    line->addWidget(made.label);
    auto* paper = new QFrame;
    paper->setObjectName(made.frame->objectName() + QStringLiteral("Paper"));
    paper->setAutoFillBackground(true);
    paper->setPalette(PaperPalette());
    auto* options = new QGridLayout(paper);
    options->setContentsMargins(6, 3, 6, 3);
    const int perLine = traits.options > kMostPerLine ? (traits.options + 1) / 2 : traits.options;
    for (int number = 1; number <= traits.options; ++number) {
        const QString shown = QString::number(number);
        auto* option = new OptionButton(OptionName(number).c_str(), shown);
        if (Service.truePlate) {
            option->KeepVisible();
        }
        if (number <= traits.tips) {
            option->setToolTip(QStringLiteral("Edit scale #") + shown);
        }
        option->setAccessibleName(QString::fromUtf8(traits.spoken) + shown);
        QObject::connect(option, &OptionButton::Selected, option,
                         [selected, number] { selected(number); });
        options->addWidget(option, (number - 1) / perLine, (number - 1) % perLine);
        made.options.push_back(option);
    }
    line->addWidget(paper, 1);
    return made;
}

void NumberFrame::Disable() const {
    for (OptionButton* option : options) {
        option->setEnabled(false);
    }
    label->setEnabled(false);
    frame->setEnabled(false);
}

} // namespace vernacle
