#include "engine/core/service.h"

namespace vernacle {

ServiceState Service;

namespace {

constexpr ServiceState kEveryday{};
constexpr const char* kEverydayName = "Vernacle";
const char* storedName = kEverydayName;

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
    storedName = program == Program::Workshop ? "Vernacle Workshop" : kEverydayName;
}

const char* ServiceName() {
    return storedName;
}

bool IsLifted(LiftedBy member) {
    return member && Service.*member;
}

} // namespace vernacle
