#include "desktop/setups/frmSetupVSWR.h"

#include <algorithm>
#include <array>

#include <QPushButton>

namespace vernacle {

namespace {

struct StepOption {
    const char* caption;
    float step;
};

constexpr std::array<StepOption, 3> kSetupVSWRSteps = {
    {{"0.2", 0.2F}, {"0.5", 0.5F}, {"1.0", 1.0F}}};
constexpr const char* kSetupVSWROptions[] = {kSetupVSWRSteps[0].caption, kSetupVSWRSteps[1].caption,
                                             kSetupVSWRSteps[2].caption};

constexpr PicturedSetupTraits kSetupVSWRTraits = {
    .setup = {.kind = kVswrKind,
              .form = "frmSetupVSWR",
              .title = "Vernacle - VSWR setup",
              .heading = "VSWR setup",
              .acceptCaption = "Accept and return to Scale Design page",
              .ignoreCaption = "Ignore; just return to Scale Design page"},
    .frame = "Scale stepsize",
    .options = kSetupVSWROptions};

} // namespace

frmSetupVSWR::frmSetupVSWR() : PicturedSetupPage(kSetupVSWRTraits) {
    EnterSetup();
}

// What is accepted cannot be ignored any more, also while the next page is built.
bool frmSetupVSWR::AcceptSetup() {
    Ignore().setEnabled(false);
    const bool accepted = PicturedSetupPage::AcceptSetup();
    if (!accepted) {
        Ignore().setEnabled(true);
    }
    return accepted;
}

int frmSetupVSWR::MadeOption() const {
    const float step = VswrStepOf(Design, Scale());
    const auto* made = std::ranges::find(kSetupVSWRSteps, step, &StepOption::step);
    return made == kSetupVSWRSteps.end() ? 0 : static_cast<int>(made - kSetupVSWRSteps.begin()) + 1;
}

void frmSetupVSWR::ComputeTics(int option, float exponent) {
    setup_.StepSize = kSetupVSWRSteps.at(static_cast<std::size_t>(option) - 1).step;
    ComputeVSWRTics(Design, Scale(), exponent, setup_);
}

} // namespace vernacle
