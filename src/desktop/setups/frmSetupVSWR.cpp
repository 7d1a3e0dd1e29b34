#include "desktop/setups/frmSetupVSWR.h"

#include <array>

#include <QPushButton>

namespace vernacle {

namespace {

struct StepOption {
    const char* caption;
    float step;
};

constexpr std::array<StepOption, 3> kSteps = {{{"0.2", 0.2F}, {"0.5", 0.5F}, {"1.0", 1.0F}}};
constexpr const char* kOptions[] = {kSteps[0].caption, kSteps[1].caption, kSteps[2].caption};

constexpr PicturedSetupTraits kTraits = {
    .setup = {.form = "frmSetupVSWR",
              .title = "Vernacle - VSWR setup",
              .heading = "VSWR setup",
              .acceptCaption = "Accept and return to Scale Design page",
              .ignoreCaption = "Ignore; just return to Scale Design page"},
    .frame = "Scale stepsize",
    .options = kOptions};

} // namespace

frmSetupVSWR::frmSetupVSWR() : PicturedSetupPage(kTraits) {
    EnterSetup();
}

// What is accepted cannot be ignored any more, also while the next page is built.
void frmSetupVSWR::AcceptSetup() {
    Ignore().setEnabled(false);
    PicturedSetupPage::AcceptSetup();
}

void frmSetupVSWR::ComputeTics(int option, float exponent) {
    setup_.StepSize = kSteps.at(static_cast<std::size_t>(option) - 1).step;
    ComputeVSWRTics(Design, Scale(), exponent, setup_);
}

} // namespace vernacle
