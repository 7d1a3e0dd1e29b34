#include "desktop/setups/picturedsetup.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/setups/setuppicture.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

constexpr FieldRow kExponent = {.box = "txtLinearityExponent",
                                .caption = "Linearity exponent:",
                                .limits = kExponentLimits,
                                .text = "1"};

} // namespace

PicturedSetupPage::PicturedSetupPage(const PicturedSetupTraits& traits)
    : SetupPage(traits.setup), traits_(traits) {
    Build();
}

void PicturedSetupPage::Build() {
    picture_ = new SetupPicture;
    auto* exponent = new QGridLayout;
    exponent_ = new Field(kExponent, *this);
    exponent_->AddBoxTo(*exponent, exponent->rowCount());
    connect(exponent_->box, &EntryBox::Changed, this,
            &PicturedSetupPage::txtLinearityExponentChanged);
    auto* column = new QVBoxLayout;
    column->setSpacing(10);
    column->addWidget(MakeOptions());
    column->addLayout(exponent);
    column->addWidget(MakeIgnore());
    column->addWidget(MakeAccept());
    column->addStretch();
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addWidget(picture_, 1);
    halves->addLayout(column);
    Body().addLayout(halves, 1);
}

QWidget* PicturedSetupPage::MakeOptions() {
    QGroupBox* frame = MakeFrame("fraScaletype", QString::fromUtf8(traits_.frame));
    auto* column = new QVBoxLayout(frame);
    int number = 0;
    for (const char* caption : traits_.options) {
        ++number;
        auto* option = new OptionButton(OptionName(number).c_str(), QString::fromUtf8(caption));
        connect(option, &OptionButton::Selected, this, [this, number] { OptionClicked(number); });
        column->addWidget(option);
        options_.push_back(option);
    }
    return frame;
}

void PicturedSetupPage::OptionClicked(int option) {
    float exponent = Design.LinearityExponent[Scale()]; // stays where the text is no entry
    exponent_->Read(&exponent);
    ComputeOrReport([&] {
        ComputeTics(option, exponent);
        picture_->DrawScale();
    });
}

// The tics stay as they are until an option is chosen again.
void PicturedSetupPage::txtLinearityExponentChanged() {
    for (OptionButton* option : options_) {
        option->Unselect();
    }
}

} // namespace vernacle
