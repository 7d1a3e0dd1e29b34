#include "desktop/setups/frmSetupSmeter.h"

namespace vernacle {

namespace {

constexpr const char* kSetupSmeterOptions[] = {"S 0-9", "S 0-9, +40", "S 0-9, +50", "S 0-9, +60"};

// Everyday accepting unloads another page: this one stays behind, and comes back as it was left.
constexpr PicturedSetupTraits kSetupSmeterTraits = {
    .setup = {.kind = kSmeterKind,
              .form = "frmSetupSmeter",
              .title = "Vernacle - S-meter setup",
              .heading = "S-meter setup",
              .acceptCaption = "Accept and return to Scale Design page",
              .ignoreCaption = "Ignore; just return to Scale Design page",
              .acceptUnloads = "frmSetupVSWR"},
    .frame = "Scale type",
    .options = kSetupSmeterOptions};

} // namespace

frmSetupSmeter::frmSetupSmeter() : PicturedSetupPage(kSetupSmeterTraits) {
    EnterSetup();
}

int frmSetupSmeter::MadeOption() const {
    return SmeterTypeOf(Design, Scale());
}

void frmSetupSmeter::ComputeTics(int option, float exponent) {
    setup_.ScaleType = static_cast<std::int16_t>(option);
    ComputeSmeterTics(Design, Scale(), exponent, setup_);
}

} // namespace vernacle
