#include "engine/core/fieldplace.h"

#include "engine/base/numbertext.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/entry.h"

namespace vernacle {

namespace {

template <typename... Ts>
struct Overloaded : Ts... {
    using Ts::operator()...;
};
template <typename... Ts>
Overloaded(Ts...) -> Overloaded<Ts...>;

} // namespace

ConstFieldPointer AsConst(const FieldPointer& field) {
    return std::visit([](auto pointer) { return ConstFieldPointer(pointer); }, field);
}

void StoreIn(const FieldPointer& field, double value) {
    std::visit(Overloaded{
                   [](std::monostate) {},
                   [](std::string*) { ThrowTypeMismatch(); },
                   [value](auto* number) { StoreNumber(value, *number); },
               },
               field);
}

void ParseInto(std::string& text, const FieldPointer& field) {
    std::visit(Overloaded{
                   [](std::monostate) {},
                   [](std::string*) { ThrowTypeMismatch(); },
                   [&text](auto* number) { ParseEntry(text, *number); },
               },
               field);
}

double NumberIn(const ConstFieldPointer& field) {
    return std::visit(Overloaded{
                          [](std::monostate) { return 0.0; },
                          [](const std::string* text) { return NumericValue(*text); },
                          [](const auto* number) { return static_cast<double>(*number); },
                      },
                      field);
}

std::string PlainText(const ConstFieldPointer& field) {
    return std::visit(Overloaded{
                          [](std::monostate) { return std::string(); },
                          [](const std::string* text) { return *text; },
                          [](const float* number) { return PlainNumber(*number); },
                          [](const auto* whole) { return PlainNumber(std::int32_t{*whole}); },
                      },
                      field);
}

} // namespace vernacle
