#include "desktop/setups/picturedsetup.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/field.h"
#include "desktop/kit/formkit.h"
#include "desktop/kit/optionbutton.h"
#include "desktop/setups/setuppicture.h"
#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"
#include "engine/setups/setup.h"

namespace vernacle {

namespace {

constexpr FieldRow kExponent = {
    .box = "txtLinearityExponent", .caption = "Linearity exponent:", .text = "1"};

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
    exponent_->box->TellRange(RangeText(ExponentLimits(), ""));
    GuardNumber(*exponent_->box);
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

// Nothing is computed: the tics stand as they were made.
void PicturedSetupPage::ReadBack() {
    exponentKept_ = ExponentOf(Design, Scale());
    exponentRead_ = EntryText(exponentKept_);
    exponent_->box->Write(exponentRead_);
    if (const int made = MadeOption(); made > 0) {
        options_.at(static_cast<std::size_t>(made) - 1)->ShowSelected();
    }
    isComputed_ = true;
    picture_->DrawScale();
}

bool PicturedSetupPage::CheckEntries(SetupMoment /*moment*/) {
    const bool hasTics = HasReadBack() || ChosenOption() > 0;
    if (!Service.specialScales || (isComputed_ && hasTics)) {
        return true;
    }
    if (ChosenOption() == 0) {
        ReportFailure(std::string("The tics are not made yet.\nPlease choose among \"") +
                      traits_.frame + "\".");
        return false;
    }
    OptionClicked(ChosenOption());
    return isComputed_;
}

void PicturedSetupPage::OptionClicked(int option) {
    isComputed_ = StoreOrReport([&] { MakeTics(option); });
}

// The tics stay as they are until an option is chosen again. Where special scales are in service
// they follow, as far as the exponent on its way to another can be computed: accepting tells.
void PicturedSetupPage::txtLinearityExponentChanged() {
    if (!Service.specialScales) {
        for (OptionButton* option : options_) {
            option->Unselect();
        }
        return;
    }
    isComputed_ = false;
    if (const int option = ChosenOption(); option > 0 && CanBend(Exponent())) {
        OptionClicked(option);
    }
}

void PicturedSetupPage::MakeTics(int option) {
    const float exponent = Exponent();
    ComputeTics(option, exponent);
    if (Service.specialScales) {
        exponent_->box->ShowHeld(exponent, ExponentOf(Design, Scale()));
    }
    picture_->DrawScale();
}

int PicturedSetupPage::ChosenOption() const {
    const auto chosen = std::ranges::find_if(options_, &OptionButton::isChecked);
    return chosen == options_.end() ? 0 : static_cast<int>(chosen - options_.begin()) + 1;
}

float PicturedSetupPage::Exponent() const {
    if (!exponentRead_.empty() && exponent_->box->Text() == exponentRead_) {
        return exponentKept_;
    }
    float exponent = ExponentOf(Design, Scale()); // stays where the text is no entry
    exponent_->Read(&exponent);
    return exponent;
}

} // namespace vernacle
