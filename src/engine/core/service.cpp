#include "engine/core/service.h"

namespace vernacle {

ServiceState Service;

namespace {

constexpr ServiceState kEveryday{};

constexpr ServiceState kWorkshop{
    .severalScales = true,
    .specialScales = true,
    .exponent = true,
    .styles = true,
    .reserveStages = true,
    .truePlate = true,
    .curveInFile = true,
    .carefulFiles = true,
    .wizard = true,
    .illustratedHelp = true,
};

} // namespace

const ServiceState& ServiceOf(Program program) {
    return program == Program::Workshop ? kWorkshop : kEveryday;
}

void StoreService(Program program) {
    Service = ServiceOf(program);
}

bool IsLifted(LiftedBy member) {
    return member && Service.*member;
}

} // namespace vernacle
