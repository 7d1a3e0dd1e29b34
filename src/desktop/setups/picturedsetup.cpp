#include "desktop/setups/picturedsetup.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/setups/setuppicture.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/setups/setup.h"

namespace vernacle {

PicturedSetupPage::PicturedSetupPage(const PicturedSetupTraits& traits)
    : SetupPage(traits.setup), traits_(traits) {
    Build();
}

void PicturedSetupPage::Build() {
    picture_ = new SetupPicture;
    auto* exponent = new QGridLayout;
    txtLinearityExponent_ =
        &AddEntry(*exponent, "lblLinearityExponent", "Linearity exponent:", "txtLinearityExponent")
             .box;
    txtLinearityExponent_->TellRange(RangeText(kExponentLimits, ""));
    txtLinearityExponent_->Show("1");
    connect(txtLinearityExponent_, &EntryBox::Changed, this,
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
        option->OnSelect([this, number] { OptionClicked(number); });
        column->addWidget(option);
        options_.push_back(option);
    }
    return frame;
}

void PicturedSetupPage::OptionClicked(int option) {
    std::string text = txtLinearityExponent_->Text();
    float exponent = Design.LinearityExponent[Scale()]; // stays where the text is no entry
    ParseEntry(text, exponent);
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
