#include "engine/core/fieldplace.h"

#include <bit>

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
                   [value](DynamicValue* either) {
                       std::int16_t number = 0;
                       StoreNumber(value, number);
                       *either = number;
                   },
                   [value](auto* number) { StoreNumber(value, *number); },
               },
               field);
}

void ParseInto(std::string& text, const FieldPointer& field) {
    std::visit(Overloaded{
                   [](std::monostate) {},
                   [](std::string*) { ThrowTypeMismatch(); },
                   [&text](DynamicValue* either) { *either = text; },
                   [&text](auto* number) { ParseEntry(text, *number); },
               },
               field);
}

double NumberIn(const ConstFieldPointer& field) {
    return std::visit(Overloaded{
                          [](std::monostate) { return 0.0; },
                          [](const std::string* text) { return NumericValue(*text); },
                          [](const DynamicValue* either) { return NumberOf(*either); },
                          [](const auto* number) { return static_cast<double>(*number); },
                      },
                      field);
}

bool SameValue(const ConstFieldPointer& a, const ConstFieldPointer& b) {
    return std::visit(
        Overloaded{
            [](const float* first, const float* second) {
                return std::bit_cast<std::uint32_t>(*first) ==
                       std::bit_cast<std::uint32_t>(*second);
            },
            []<typename T>(const T* first, const T* second) { return *first == *second; },
            [](const auto&, const auto&) { return false; },
        },
        a, b);
}

std::string PlainText(const ConstFieldPointer& field) {
    return std::visit(Overloaded{
                          [](std::monostate) { return std::string(); },
                          [](const std::string* text) { return *text; },
                          [](const float* number) { return PlainNumber(*number); },
                          [](const DynamicValue* either) {
                              const auto* text = std::get_if<std::string>(either);
                              return text ? *text : PlainNumber(std::int32_t{std::get<0>(*either)});
                          },
                          [](const auto* whole) { return PlainNumber(std::int32_t{*whole}); },
                      },
                      field);
}

} // namespace vernacle
