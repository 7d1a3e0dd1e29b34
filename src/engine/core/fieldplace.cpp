#include "engine/core/fieldplace.h"

#include "engine/base/numbertext.h"
#include "engine/base/runtimeerror.h"

namespace vernacle {

namespace {

template <typename... Ts>
struct Overloaded : Ts... {
    using Ts::operator()...;
};
template <typename... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

} // namespace

Slot Nowhere(int /*outer*/, int /*inner*/) {
    return std::monostate{};
}

void StoreInSlot(double value, const Slot& slot) {
    std::visit(Overloaded{
                   [](std::monostate) {},
                   [](std::string*) { ThrowTypeMismatch(); },
                   [value](auto* number) { StoreNumber(value, *number); },
               },
               slot);
}

double NumberInSlot(const Slot& slot) {
    return std::visit(Overloaded{
                          [](std::monostate) { return 0.0; },
                          [](const std::string* text) { return NumericValue(*text); },
                          [](const auto* number) { return static_cast<double>(*number); },
                      },
                      slot);
}

} // namespace vernacle
